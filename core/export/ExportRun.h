#pragma once

namespace sw {

struct Session;

// File, Create Sections: the whole export run, from the click to the clear question.
void mnuCreate_Click(Session& session);

} // namespace sw
