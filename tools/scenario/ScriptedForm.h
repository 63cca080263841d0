#pragma once

#include "ports/FormWindow.h"
#include "tools/scenario/Transcript.h"

#include <functional>

namespace sw::scripted {

// The main form without a screen: the stored layout's size, standing at 0,0.
class ScriptedForm : public FormWindow {
public:
    explicit ScriptedForm(Transcript& transcript) : transcript_(transcript) {}

    TwipRect Bounds() const override { return bounds_; }
    int WindowState() const override { return windowState_; }
    void SetMousePointer(MousePointer pointer) override;
    void Unload() override;
    void NarrowWindow() override { transcript_.Line("form NarrowWindow"); }
    void FitNormalWindow() override { transcript_.Line("form FitNormalWindow"); }
    void FitMaximisedWindow() override { transcript_.Line("form FitMaximisedWindow"); }

    // What unloading the form raises (Form_Unload).
    std::function<void()> onUnload;
    bool Unloaded() const { return unloaded_; }
    void SetWindowState(int state) { windowState_ = state; }
    // Screen size in twips ("screen W H"); 1024 x 768 pixels by default.
    void SetScreen(float width, float height) { screen_ = {0, 0, width, height}; }
    TwipRect ScreenRect() const { return screen_; }

private:
    Transcript& transcript_;
    TwipRect bounds_{0, 0, 3525, 6015};
    int windowState_ = 0;
    TwipRect screen_{0, 0, 15360, 11520};
    bool unloaded_ = false;
};

} // namespace sw::scripted
