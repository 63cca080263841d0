#pragma once

namespace sw {

struct Session;

// Fitting the window to a newly opened picture.

// Takes a window that is not maximised back to its least width.
void NarrowWindow(Session& session);
// Gives a normal window the picture's size within the limits (never wider
// than the screen's work area), and centres it when it now crosses the
// screen's right edge.
void FitNormalWindow(Session& session);
// Notes where the picture stands, takes a maximised window back to normal in
// each direction in which the picture fits the screen, and lays it out.
void FitMaximisedWindow(Session& session);

} // namespace sw
