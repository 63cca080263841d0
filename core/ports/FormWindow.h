#pragma once

namespace sw {

// Geometry of a window or control in twips.
struct TwipRect {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
};

enum class MousePointer { Default = 0, Hourglass = 11 };

// The main form itself, as far as the logic needs it.
class FormWindow {
public:
    virtual ~FormWindow() = default;
    virtual TwipRect Bounds() const = 0;
    // 0 normal, 1 minimised, 2 maximised.
    virtual int WindowState() const = 0;
    virtual void SetMousePointer(MousePointer pointer) = 0;
    // Closes the form; the window layer then raises Form_Unload.
    virtual void Unload() = 0;

    // Fitting the window to a newly opened picture.
    virtual void NarrowWindow() = 0;
    virtual void FitNormalWindow() = 0;
    virtual void FitMaximisedWindow() = 0;
};

} // namespace sw
