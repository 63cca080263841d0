#pragma once

class QDialog;
class QString;

namespace sw::qt {

// The width a window needs for its whole title beside the window manager's
// caption buttons, in pixels.
int TitleRoom(const QDialog& dialog, const QString& title);

} // namespace sw::qt
