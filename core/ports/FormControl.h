#pragma once

#include <string>

namespace sw {

// What a control of the main form is. Scrolling moves some kinds and leaves
// the others where they stand.
enum class ControlKind {
    PictureBox,
    Label,
    HScrollBar,
    VScrollBar,
    Toolbar,
    ImageList,
    CommonDialog,
    ClipControl,
    MenuItem,
};

// One control of the main form: its kind, its name and its place in twips,
// relative to the form's client area.
class FormControl {
public:
    virtual ~FormControl() = default;
    virtual ControlKind Kind() const = 0;
    virtual std::string Name() const = 0;
    virtual float Left() const = 0;
    virtual float Top() const = 0;
    virtual void SetLeft(float left) = 0;
    virtual void SetTop(float top) = 0;
};

} // namespace sw
