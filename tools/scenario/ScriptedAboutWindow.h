#pragma once

#include "dialogs/frmAbout.h"
#include "ports/AboutWindow.h"
#include "tools/scenario/Transcript.h"

#include <memory>

namespace sw::scripted {

// The about window without a screen: it keeps the form and logs its texts.
// Its events are raised by the script ("event frmAbout.cmdOK_Click").
class ScriptedAboutWindow : public AboutWindow {
public:
    explicit ScriptedAboutWindow(Transcript& transcript) : transcript_(transcript) {}

    frmAbout* OpenForm() override { return form_.get(); }
    void Show(std::unique_ptr<frmAbout> form) override;
    void BringToFront() override { transcript_.Line("about front"); }
    void Close() override;

private:
    Transcript& transcript_;
    std::unique_ptr<frmAbout> form_;
};

} // namespace sw::scripted
