#pragma once

#include "ports/FileDialog.h"
#include "tools/scenario/Answers.h"
#include "tools/scenario/Transcript.h"

namespace sw::scripted {

// dlgPic answered from the script: "answer open|save PATH"; "" is a cancel,
// which leaves FileName empty.
class ScriptedFileDialog : public FileDialog {
public:
    ScriptedFileDialog(Transcript& transcript, Answers& answers)
        : transcript_(transcript), answers_(answers) {}

    void ShowOpen() override { show("open"); }
    void ShowSave() override { show("save"); }

private:
    void show(const std::string& kind);
    Transcript& transcript_;
    Answers& answers_;
};

} // namespace sw::scripted
