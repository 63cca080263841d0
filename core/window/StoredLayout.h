#pragma once

#include "ports/FormWindow.h"
#include "window/StoredControl.h"

namespace sw {

// The main form as stored, in twips, before the first picture: the form
// itself, its client area under the menu bar, and its controls with their
// names, kinds and places. Both the real window and the scripted one are
// built from it, and the viewport takes the frame's height from it.
struct StoredLayout {
    static constexpr TwipRect form{0, 0, 3525, 6015};
    // Left and Top are the frame's width and the frame, caption and menu bar
    // above the client area (60 + 570).
    static constexpr TwipRect clientArea{60, 630, 3405, 5325};
    // What frame, caption and menu bar add to the client area: 60 on either
    // side, and 630 above it with 60 below it.
    static constexpr float frameWidth = form.Width - clientArea.Width;
    static constexpr float frameHeight = form.Height - clientArea.Height;

    // The controls, in the order the form holds them. The picture box's size
    // holds until a picture sizes it. The label sizes itself to its text and
    // the toolbar takes the client area's width, so only their places are
    // used.
    static constexpr StoredControl vscroll{
        "vscroll", ControlKind::VScrollBar, {3120, 480, 255, 975}};
    static constexpr StoredControl hscroll{
        "hscroll", ControlKind::HScrollBar, {1920, 480, 1095, 255}};
    // The corner piece between the bars, a square of this side.
    static constexpr StoredControl picResize{
        "picResize", ControlKind::PictureBox, {2640, 840, 255, 255}};
    static constexpr StoredControl ilstToolbar{"ilstToolbar", ControlKind::ImageList, {}};
    static constexpr StoredControl tlbrMain{"tlbrMain", ControlKind::Toolbar, {0, 0, 3405, 405}};
    static constexpr StoredControl dlgPic{"dlgPic", ControlKind::CommonDialog, {}};
    static constexpr StoredControl picActual{
        "picActual", ControlKind::PictureBox, {120, 720, 3135, 4455}};
    static constexpr StoredControl clipContainer{"clipContainer", ControlKind::ClipControl, {}};
    static constexpr StoredControl lblMousePos{
        "lblMousePos", ControlKind::Label, {120, 480, 795, 195}};
};

static_assert(StoredLayout::frameWidth == 2 * StoredLayout::clientArea.Left,
              "the frame is as wide on either side");
static_assert(StoredLayout::frameHeight ==
                  StoredLayout::clientArea.Top + StoredLayout::clientArea.Left,
              "below the client area lies only the frame");

} // namespace sw
