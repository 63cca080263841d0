#pragma once

#include "ports/FormWindow.h"

class QMainWindow;

namespace sw::qt {

// The main form's geometry in twips, its state, the screen, its controls,
// its pointer and its closing.
//
// The form's outer size is its client area (the central widget, below the
// menu bar) plus the frame, caption and menu bar of the stored layout
// (StoredLayout::frameWidth and frameHeight).
// The window manager's own frame is not counted: it is unknown until the
// window is mapped, missing on some platforms and of any size, while the
// margins noted at start and the viewport's allowances expect these. Left
// and Top are those of the window's real frame on the screen.
class QtFormWindow : public FormWindow {
public:
    explicit QtFormWindow(QMainWindow* form) : form_(form) {}

    // The controls of the client area, once the form has made them.
    void Attach(ScrollBar& hscroll, ScrollBar& vscroll, CornerPiece& picResize,
                std::vector<FormControl*> controls);

    TwipRect Bounds() const override;
    void SetLeft(float left) override;
    void SetTop(float top) override;
    void SetWidth(float width) override;
    void SetHeight(float height) override;
    int WindowState() const override;
    void SetWindowState(int state) override;
    void Refresh() override;
    ScreenMetrics Screen() const override;
    ScrollBar& hscroll() override { return *hscroll_; }
    ScrollBar& vscroll() override { return *vscroll_; }
    CornerPiece& picResize() override { return *picResize_; }
    std::vector<FormControl*> Controls() override { return controls_; }
    void SetMousePointer(MousePointer pointer) override;
    void Unload() override;

    // The height of the menu bar over the client area, in pixels.
    int MenuBand() const;

private:
    QMainWindow* form_;
    ScrollBar* hscroll_ = nullptr;
    ScrollBar* vscroll_ = nullptr;
    CornerPiece* picResize_ = nullptr;
    std::vector<FormControl*> controls_;
};

} // namespace sw::qt
