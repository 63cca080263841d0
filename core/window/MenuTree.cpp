#include "window/MenuTree.h"

#include "window/CommandHandlers.h"

namespace sw {
namespace {

MenuEntry menu(Item item, const char* caption, int depth, bool enabled = true) {
    return {item, caption, depth, enabled, false, nullptr};
}

MenuEntry command(Item item, const char* caption, Command handler, bool enabled = true,
                  bool checked = false) {
    return {item, caption, 1, enabled, checked, handler};
}

MenuEntry separator(int depth = 1) {
    return {std::nullopt, "-", depth, true, false, nullptr};
}

std::vector<MenuEntry> buildTree() {
    std::vector<MenuEntry> tree = {
        menu(Item::mnuFile, "File", 0),
        command(Item::mnuOPen, "Open", mnuOPen_Click),
        command(Item::mnuCreate, "Create Sections", mnuCreate_Click, false),
        separator(),
        command(Item::mnuSaveLines, "Save Section Lines", mnuSaveLines_Click, false),
        command(Item::mnuLoadLines, "Load Section Lines", mnuLoadLines_Click, false),
        separator(),
        command(Item::mnuLastCut, "", mnuLastCut_Click),
        separator(),
        command(Item::mnuExit, "Exit", mnuExit_Click),
        menu(Item::mnuEdit, "Edit", 0, false),
        menu(Item::mnuDrawMode, "Draw Mode", 1),
        {Item::mnuHorizontalLine, "Horizontal Line", 2, true, true, mnuHorizontalLine_Click},
        {Item::mnuVerticalLine, "Vertical Line", 2, true, false, mnuVerticalLine_Click},
        separator(),
        command(Item::mnuDivideH, "Divide H Equally", mnuDivideH_Click),
        command(Item::mnuDivideV, "Divide V Equally", mnuDivideV_Click),
        separator(),
        command(Item::mnuClear, "Clear Lines", mnuClear_Click),
        command(Item::mnuUndo, "Undo Last", mnuUndo_Click, false),
        separator(),
        command(Item::mnuJPGComp, "Set JPG Compression", mnuJPGComp_Click),
        menu(Item::mnuLineColor, "Line Color", 0),
        command(Item::mnuBlack, "Black", mnuBlack_Click, true, true),
        command(Item::mnuRed, "Red", mnuRed_Click),
        command(Item::mnuGreen, "Green", mnuGreen_Click),
        command(Item::mnuYellow, "Yellow", mnuYellow_Click),
        command(Item::mnuBlue, "Blue", mnuBlue_Click),
        command(Item::mnuWhite, "White", mnuWhite_Click),
        menu(Item::mnuAbout, "About", 0),
        command(Item::mnuPicAbout, "This Picture", mnuPicAbout_Click, false),
        separator(),
        command(Item::mnuProgram, "Program", mnuProgram_Click),
        {Item::mnuHelp, "Help", 0, true, false, mnuHelp_Click},
    };
    return tree;
}

} // namespace

const std::vector<MenuEntry>& MenuTree() {
    static const std::vector<MenuEntry> tree = buildTree();
    return tree;
}

} // namespace sw
