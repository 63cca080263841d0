#include "window/DrawModeCommands.h"

#include "session/Session.h"

namespace sw {

void mnuHorizontalLine_Click(Session& session) {
    session.ports.controls.SetChecked(Item::mnuHorizontalLine, true);
    session.ports.controls.SetChecked(Item::mnuVerticalLine, false);
}

void mnuVerticalLine_Click(Session& session) {
    session.ports.controls.SetChecked(Item::mnuVerticalLine, true);
    session.ports.controls.SetChecked(Item::mnuHorizontalLine, false);
}

void ChooseLineColor(Session& session, Item item) {
    for (const LineColorItem& entry : kLineColors) {
        session.ports.controls.SetChecked(entry.item, entry.item == item);
        if (entry.item == item) {
            session.state.lineColor = entry.color;
        }
    }
}

void mnuBlack_Click(Session& session) {
    ChooseLineColor(session, Item::mnuBlack);
}
void mnuRed_Click(Session& session) {
    ChooseLineColor(session, Item::mnuRed);
}
void mnuGreen_Click(Session& session) {
    ChooseLineColor(session, Item::mnuGreen);
}
void mnuYellow_Click(Session& session) {
    ChooseLineColor(session, Item::mnuYellow);
}
void mnuBlue_Click(Session& session) {
    ChooseLineColor(session, Item::mnuBlue);
}
void mnuWhite_Click(Session& session) {
    ChooseLineColor(session, Item::mnuWhite);
}

} // namespace sw
