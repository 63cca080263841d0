#pragma once

#include "ports/Controls.h"

#include <QKeySequence>
#include <QString>

namespace sw::qt {

// The keys a Linux user expects on top of the menus: the standard shortcut
// of a command (shown in its menu), or none.
QKeySequence ShortcutOf(Item item);

// A menu bar caption with its Alt access key (its first letter); deeper
// captions as they are.
QString WithAccessKey(const QString& caption, int depth);

} // namespace sw::qt
