#pragma once

#include "ports/MessageBoxes.h"
#include "tools/scenario/Answers.h"
#include "tools/scenario/Transcript.h"

namespace sw::scripted {

// Boxes answered from the script; a box with only OK needs no answer.
class ScriptedBoxes : public MessageBoxes {
public:
    ScriptedBoxes(Transcript& transcript, Answers& answers)
        : transcript_(transcript), answers_(answers) {}

    BoxResult Show(const BoxRequest& request) override;
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText) override;

private:
    Transcript& transcript_;
    Answers& answers_;
};

} // namespace sw::scripted
