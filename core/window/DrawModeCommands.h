#pragma once

#include "common/Types.h"
#include "ports/Controls.h"

namespace sw {

struct Session;

void mnuHorizontalLine_Click(Session& session);
void mnuVerticalLine_Click(Session& session);

// The line colours of the Line Color menu, as 0x00BBGGRR.
struct LineColorItem {
    Item item;
    Color color;
};
inline constexpr LineColorItem kLineColors[] = {
    {Item::mnuBlack, 0x00000000},  {Item::mnuRed, 0x000000FF},  {Item::mnuGreen, 0x0000FF00},
    {Item::mnuYellow, 0x0000FFFF}, {Item::mnuBlue, 0x00FF0000}, {Item::mnuWhite, 0x00FFFFFF},
};

// One colour command: checks its item alone and sets lineColor.
void ChooseLineColor(Session& session, Item item);

void mnuBlack_Click(Session& session);
void mnuRed_Click(Session& session);
void mnuGreen_Click(Session& session);
void mnuYellow_Click(Session& session);
void mnuBlue_Click(Session& session);
void mnuWhite_Click(Session& session);

} // namespace sw
