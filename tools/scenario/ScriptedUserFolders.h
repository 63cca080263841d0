#pragma once

#include "ports/UserFolders.h"
#include "tools/scenario/Transcript.h"

#include <set>
#include <string>

namespace sw::scripted {

// The user's folders of a script. Every folder exists but those the script
// declares gone; the Pictures folder is the program's folder until the script
// names one, so that scripts about other things keep their transcripts.
// Queries only: nothing goes into the transcript.
class ScriptedUserFolders : public UserFolders {
public:
    ScriptedUserFolders(Transcript& transcript, std::string pictures)
        : transcript_(transcript), pictures_(std::move(pictures)) {}
    std::string PicturesFolder() override;
    bool FolderExists(const std::string& path) override;

    void SetPictures(std::string folder, bool chosenByScript);
    void Vanish(const std::string& folder) { vanished_.insert(folder); }

private:
    Transcript& transcript_;
    std::string pictures_;
    bool chosenByScript_ = false;
    std::set<std::string> vanished_;
};

} // namespace sw::scripted
