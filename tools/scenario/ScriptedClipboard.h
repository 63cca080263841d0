#pragma once

#include "ports/Clipboard.h"
#include "tools/scenario/Transcript.h"

#include <string>

namespace sw::scripted {

// A clipboard in memory that logs everything it receives.
class ScriptedClipboard : public Clipboard {
public:
    explicit ScriptedClipboard(Transcript& transcript) : transcript_(transcript) {}

    void Clear() override;
    void SetText(const std::string& text) override;
    bool SetPicture(const Picture& picture) override;

    const std::string& Text() const { return text_; }

private:
    Transcript& transcript_;
    std::string text_;
};

} // namespace sw::scripted
