#include "qt/TitleRoom.h"

#include <QDialog>
#include <QFontMetrics>
#include <QString>

namespace sw::qt {
namespace {

// The caption's buttons, icon and margins at the usual desktop sizes; the
// caption's font is the window manager's, a bold face a little wider than
// the dialog's own.
constexpr int kCaptionAllowance = 140;
constexpr double kBoldCaption = 1.15;

} // namespace

int TitleRoom(const QDialog& dialog, const QString& title) {
    const int text = dialog.fontMetrics().horizontalAdvance(title);
    return static_cast<int>(text * kBoldCaption) + kCaptionAllowance;
}

} // namespace sw::qt
