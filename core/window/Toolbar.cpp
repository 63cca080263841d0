#include "window/Toolbar.h"

#include "window/CommandHandlers.h"

#include <iterator>

namespace sw {
namespace {

const ToolbarEntry kEntries[] = {
    {1, "Open File", 1, mnuOPen_Click},
    {2, "Create Sections", 5, mnuCreate_Click},
    {3, "", 0, nullptr},
    {4, "Draw Horizontal Lines", 4, mnuHorizontalLine_Click},
    {5, "Draw Vertical Lines", 7, mnuVerticalLine_Click},
    {6, "Divide Horizontally Equal", 8, mnuDivideH_Click},
    {7, "Divide Vertically Equal", 9, mnuDivideV_Click},
    {8, "Clear Lines", 6, mnuClear_Click},
    {9, "Undo", 2, mnuUndo_Click},
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
