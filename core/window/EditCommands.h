#pragma once

namespace sw {

struct Session;

void picActual_Click(Session& session);
void mnuUndo_Click(Session& session);
void mnuClear_Click(Session& session);
void mnuDivideH_Click(Session& session);
void mnuDivideV_Click(Session& session);

} // namespace sw
