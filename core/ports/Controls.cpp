#include "ports/Controls.h"

namespace sw {

const char* ItemName(Item item) {
    static const char* const names[] = {
        "frmSlicewright",    "mnuFile",         "mnuOPen",      "mnuCreate",  "mnuSaveLines",
        "mnuLoadLines",      "mnuLastCut",      "mnuExit",      "mnuEdit",    "mnuDrawMode",
        "mnuHorizontalLine", "mnuVerticalLine", "mnuDivideH",   "mnuDivideV", "mnuClear",
        "mnuUndo",           "mnuJPGComp",      "mnuLineColor", "mnuBlack",   "mnuRed",
        "mnuGreen",          "mnuYellow",       "mnuBlue",      "mnuWhite",   "mnuAbout",
        "mnuPicAbout",       "mnuProgram",      "mnuHelp",      "tlbrMain",   "picActual",
        "lblMousePos",
    };
    return names[static_cast<int>(item)];
}

} // namespace sw
