#pragma once

#include <string>

namespace sw {

// The menu items, toolbar buttons and other controls whose state the logic
// sets. The names are those the window layer gives them.
enum class Item {
    frmSlicewright,
    mnuFile,
    mnuOPen,
    mnuCreate,
    mnuSaveLines,
    mnuLoadLines,
    mnuLastCut,
    mnuExit,
    mnuEdit,
    mnuDrawMode,
    mnuHorizontalLine,
    mnuVerticalLine,
    mnuDivideH,
    mnuDivideV,
    mnuClear,
    mnuUndo,
    mnuJPGComp,
    mnuLineColor,
    mnuBlack,
    mnuRed,
    mnuGreen,
    mnuYellow,
    mnuBlue,
    mnuWhite,
    mnuAbout,
    mnuPicAbout,
    mnuProgram,
    mnuHelp,
    tlbrMain,
    picActual,
    lblMousePos,
};

const char* ItemName(Item item);

class Controls {
public:
    virtual ~Controls() = default;
    virtual void SetEnabled(Item item, bool enabled) = 0;
    virtual void SetChecked(Item item, bool checked) = 0;
    virtual bool Checked(Item item) const = 0;
    virtual void SetVisible(Item item, bool visible) = 0;
    virtual void SetCaption(Item item, const std::string& caption) = 0;
    // Buttons of tlbrMain by their index, 1 to 9.
    virtual void SetToolbarButtonEnabled(int index, bool enabled) = 0;
};

// The index of Undo on tlbrMain, offered and withdrawn together with mnuUndo.
inline constexpr int kUndoButton = 9;

} // namespace sw
