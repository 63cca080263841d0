#pragma once

namespace sw::qt {

// Whether the window can be shown at all: a display is named in DISPLAY or
// WAYLAND_DISPLAY, or QT_QPA_PLATFORM asks for a platform that needs none
// (offscreen, as in tests).
bool DisplayAvailable();

// The one line said instead of the platform plugin's long complaint.
inline constexpr const char* kNoDisplayMessage =
    "slicewright: no display to show the window on (neither DISPLAY nor WAYLAND_DISPLAY is set); "
    "start it in a desktop session, or without a screen under xvfb-run: xvfb-run slicewright\n";

} // namespace sw::qt
