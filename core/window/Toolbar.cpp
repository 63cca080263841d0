#include "window/Toolbar.h"

#include "ports/Controls.h"
#include "window/CommandHandlers.h"

#include <iterator>

namespace sw {
namespace {

const ToolbarEntry kEntries[] = {
    {1, "Open File", 1, mnuOPen_Click, true},
    {2, "Create Sections", 5, mnuCreate_Click, true},
    {3, "", 0, nullptr, true},
    {4, "Draw Horizontal Lines", 4, mnuHorizontalLine_Click, true},
    {5, "Draw Vertical Lines", 7, mnuVerticalLine_Click, true},
    {6, "Divide Horizontally Equal", 8, mnuDivideH_Click, true},
    {7, "Divide Vertically Equal", 9, mnuDivideV_Click, true},
    {8, "Clear Lines", 6, mnuClear_Click, true},
    {kUndoButton, "Undo", 2, mnuUndo_Click, false},
};

} // namespace

const ToolbarEntry* ToolbarEntries(int& count) {
    count = static_cast<int>(std::size(kEntries));
    return kEntries;
}

void tlbrMain_ButtonClick(Session& session, int index) {
    for (const ToolbarEntry& entry : kEntries) {
        if (entry.index == index && entry.command != nullptr) {
            entry.command(session);
        }
    }
}

} // namespace sw
