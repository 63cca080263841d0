#pragma once

#include "ports/CornerPiece.h"
#include "ports/FormControl.h"
#include "ports/ScrollBar.h"

#include <vector>

namespace sw {

// Geometry of a window or control in twips.
struct TwipRect {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
};

// The screen the form stands on, in twips.
struct ScreenMetrics {
    float Width = 0;
    float Height = 0;
    float TwipsPerPixelX = 15;
    // The part of the screen that windows may take (less panels and docks,
    // and less any window frame wider than the form's own allowance); empty
    // where it is the whole screen.
    TwipRect WorkArea{};
};

// The work area of the screen, the whole screen where none is given.
inline TwipRect WorkAreaOf(const ScreenMetrics& screen) {
    if (screen.WorkArea.Width > 0 && screen.WorkArea.Height > 0) {
        return screen.WorkArea;
    }
    return {0, 0, screen.Width, screen.Height};
}

enum class MousePointer { Default = 0, Hourglass = 11 };

inline constexpr int kWindowNormal = 0;
inline constexpr int kWindowMinimised = 1;
inline constexpr int kWindowMaximised = 2;

// The main form itself, as far as the logic needs it: its outer geometry
// (frame and menu bar included), its state, the screen, and its controls.
//
// A write to Width, Height or WindowState that changes the form's size raises
// Form_Resize before the write returns.
class FormWindow {
public:
    virtual ~FormWindow() = default;
    virtual TwipRect Bounds() const = 0;
    virtual void SetLeft(float left) = 0;
    virtual void SetTop(float top) = 0;
    virtual void SetWidth(float width) = 0;
    virtual void SetHeight(float height) = 0;
    // kWindowNormal, kWindowMinimised or kWindowMaximised.
    virtual int WindowState() const = 0;
    virtual void SetWindowState(int state) = 0;
    // Repaints the form now.
    virtual void Refresh() = 0;
    virtual ScreenMetrics Screen() const = 0;

    virtual ScrollBar& hscroll() = 0;
    virtual ScrollBar& vscroll() = 0;
    virtual CornerPiece& picResize() = 0;
    // Every control of the form, picActual and the scroll bars included.
    virtual std::vector<FormControl*> Controls() = 0;

    virtual void SetMousePointer(MousePointer pointer) = 0;
    // Closes the form; the window layer then raises Form_Unload.
    virtual void Unload() = 0;
};

} // namespace sw
