#pragma once

#include "ports/PictureLoader.h"
#include "tools/scenario/Transcript.h"

#include <map>

namespace sw::scripted {

// Pictures declared by the script ("picture NAME W H") stand in for files of
// that name; every other path goes to the real decoder, when there is one.
class ScriptedPictureLoader : public PictureLoader {
public:
    ScriptedPictureLoader(Transcript& transcript, PictureLoader* realLoader)
        : transcript_(transcript), real_(realLoader) {}

    void Declare(const std::string& name, Picture picture) { declared_[name] = std::move(picture); }
    void Forget(const std::string& name) { declared_.erase(name); }
    LoadedPicture LoadPicture(const std::string& path) override;

private:
    Transcript& transcript_;
    PictureLoader* real_;
    std::map<std::string, Picture> declared_;
};

} // namespace sw::scripted
