#include "tools/scenario/EventTable.h"

#include "dialogs/frmAbout.h"
#include "session/Session.h"
#include "tools/scenario/ScriptTokens.h"
#include "window/CommandHandlers.h"
#include "window/Toolbar.h"

namespace sw::scripted {
namespace {

EventEntry simple(std::string name, void (*handler)(Session&)) {
    return {std::move(name), 0, [handler](Session& s, const EventArgs&) { handler(s); }};
}

// An event of the about window, which reaches the form only while it is open.
EventEntry aboutEvent(std::string name, void (frmAbout::*event)()) {
    return {"frmAbout." + name, 0,
            [event](Session& s, const EventArgs&) { RaiseAboutEvent(s, event); }};
}

std::vector<EventEntry> buildTable() {
    std::vector<EventEntry> table = {
        simple("Form_Load", Form_Load),
        simple("Form_Unload", Form_Unload),
        simple("mnuExit_Click", mnuExit_Click),
        simple("mnuOPen_Click", mnuOPen_Click),
        simple("mnuLastCut_Click", mnuLastCut_Click),
        {"OpenChosenPicture", 1,
         [](Session& s, const EventArgs& args) { OpenChosenPicture(s, args[0]); }},
        simple("mnuCreate_Click", mnuCreate_Click),
        simple("picActual_Click", picActual_Click),
        simple("mnuUndo_Click", mnuUndo_Click),
        simple("mnuClear_Click", mnuClear_Click),
        simple("mnuDivideH_Click", mnuDivideH_Click),
        simple("mnuDivideV_Click", mnuDivideV_Click),
        simple("mnuHorizontalLine_Click", mnuHorizontalLine_Click),
        simple("mnuVerticalLine_Click", mnuVerticalLine_Click),
        simple("mnuBlack_Click", mnuBlack_Click),
        simple("mnuRed_Click", mnuRed_Click),
        simple("mnuGreen_Click", mnuGreen_Click),
        simple("mnuYellow_Click", mnuYellow_Click),
        simple("mnuBlue_Click", mnuBlue_Click),
        simple("mnuWhite_Click", mnuWhite_Click),
        simple("Form_MouseMove", Form_MouseMove),
        simple("Form_Resize", Form_Resize),
        simple("hscroll_Change", hscroll_Change),
        simple("hscroll_Scroll", hscroll_Scroll),
        simple("vscroll_Change", vscroll_Change),
        simple("vscroll_Scroll", vscroll_Scroll),
        simple("mnuSaveLines_Click", mnuSaveLines_Click),
        simple("mnuLoadLines_Click", mnuLoadLines_Click),
        simple("mnuJPGComp_Click", mnuJPGComp_Click),
        simple("mnuProgram_Click", mnuProgram_Click),
        simple("mnuHelp_Click", mnuHelp_Click),
        simple("mnuPicAbout_Click", mnuPicAbout_Click),
        aboutEvent("cmdOK_Click", &frmAbout::cmdOK_Click),
        aboutEvent("cmdSysInfo_Click", &frmAbout::cmdSysInfo_Click),
        aboutEvent("imgLogo_Click", &frmAbout::imgLogo_Click),
        aboutEvent("lblForums_Click", &frmAbout::lblForums_Click),
    };
    table.push_back({"picActual_MouseMove", 2, [](Session& s, const EventArgs& a) {
                         picActual_MouseMove(s, DecimalNumber(a[0]), DecimalNumber(a[1]));
                     }});
    table.push_back({"tlbrMain_ButtonClick", 1, [](Session& s, const EventArgs& a) {
                         tlbrMain_ButtonClick(s, WholeNumber(a[0]));
                     }});
    return table;
}

} // namespace

const std::vector<EventEntry>& MainFormEvents() {
    static const std::vector<EventEntry> table = buildTable();
    return table;
}

const EventEntry* FindEvent(std::string_view name) {
    for (const EventEntry& entry : MainFormEvents()) {
        if (entry.name == name) {
            return &entry;
        }
    }
    return nullptr;
}

} // namespace sw::scripted
