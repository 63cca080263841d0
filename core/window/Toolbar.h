#pragma once

namespace sw {

struct Session;

using Command = void (*)(Session&);

struct ToolbarEntry {
    int index;
    const char* toolTip; // empty for the separator
    int image;           // place in the image list, 0 for the separator
    Command command;     // nullptr for the separator
    bool enabled;        // before the first picture
};

// The nine entries of tlbrMain, the separator at index 3; all but Undo
// (kUndoButton) enabled at start.
const ToolbarEntry* ToolbarEntries(int& count);

// A toolbar click runs the menu command of its button; index 3 and any
// other index do nothing.
void tlbrMain_ButtonClick(Session& session, int index);

} // namespace sw
