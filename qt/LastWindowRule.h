#pragma once

namespace sw::qt {

// The program ends when the last of its windows has gone, in whatever order
// the main window and the about window went. Qt notices a window closed by
// the user, but not one that its own logic only hides, so that logic asks
// here after hiding it.
void QuitWhenNoWindowIsLeft();

} // namespace sw::qt
