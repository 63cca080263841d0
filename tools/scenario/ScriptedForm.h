#pragma once

#include "ports/FormWindow.h"
#include "tools/scenario/ScriptedCornerPiece.h"
#include "tools/scenario/ScriptedPictureBox.h"
#include "tools/scenario/ScriptedScrollBar.h"
#include "tools/scenario/Transcript.h"
#include "window/StoredLayout.h"

#include <functional>
#include <memory>
#include <vector>

namespace sw::scripted {

// The main form without a screen, in the stored layout: 3525 x 6015 twips
// standing at 0,0, its controls where the layout puts them, 15 twips to the
// pixel. Every write is logged; a write that changes the form's size raises
// Form_Resize (onResize) before it returns. A maximised form covers the whole
// screen; sizes written meanwhile are those it takes back when restored.
// What the logic writes into the form's size and place, and Form_Resize with
// all it does, is window chatter; what the user does is not.
class ScriptedForm : public FormWindow {
public:
    ScriptedForm(Transcript& transcript, ScriptedPictureBox& picActual);

    TwipRect Bounds() const override;
    void SetLeft(float left) override;
    void SetTop(float top) override;
    void SetWidth(float width) override;
    void SetHeight(float height) override;
    int WindowState() const override { return windowState_; }
    void SetWindowState(int state) override;
    void Refresh() override;
    ScreenMetrics Screen() const override { return screen_; }
    ScrollBar& hscroll() override { return hscroll_; }
    ScrollBar& vscroll() override { return vscroll_; }
    CornerPiece& picResize() override { return picResize_; }
    std::vector<FormControl*> Controls() override { return controls_; }
    void SetMousePointer(MousePointer pointer) override;
    void Unload() override;

    // What the form raises into the logic: Form_Unload and Form_Resize.
    std::function<void()> onUnload;
    std::function<void()> onResize;
    bool Unloaded() const { return unloaded_; }

    // The user drags the window's edges to this outer size.
    void UserResize(float width, float height);
    // The user moves the window to this place on the screen.
    void UserMove(float left, float top);
    // The user minimises (1), maximises (2) or restores (0) the window.
    void UserWindowState(int state);
    // Screen size in twips ("screen W H"); 1024 x 768 pixels by default.
    void SetScreen(float width, float height) { screen_ = {width, height, 15}; }

    ScriptedScrollBar& HScroll() { return hscroll_; }
    ScriptedScrollBar& VScroll() { return vscroll_; }
    ScriptedCornerPiece& Corner() { return picResize_; }
    ScriptedControl& MousePos() { return lblMousePos_; }

private:
    // Applies a change of size or state, raising Form_Resize if the form's
    // size changed.
    void resizing(const std::function<void()>& change);
    void buildControlList();
    Transcript& transcript_;
    ScriptedPictureBox& picActual_;
    TwipRect normal_ = StoredLayout::form;
    int windowState_ = kWindowNormal;
    ScreenMetrics screen_{15360, 11520, 15};
    ScriptedScrollBar vscroll_;
    ScriptedScrollBar hscroll_;
    ScriptedCornerPiece picResize_;
    ScriptedControl lblMousePos_;
    // Toolbar, image list, dialog, clip control and menu items.
    std::vector<std::unique_ptr<ScriptedControl>> unplaced_;
    std::vector<FormControl*> controls_;
    bool unloaded_ = false;
};

} // namespace sw::scripted
