#include "qt/MenuKeys.h"

namespace sw::qt {

// Written out rather than taken from the platform's standard keys, which
// are missing for some commands on desktops without a theme.
QKeySequence ShortcutOf(Item item) {
    switch (item) {
    case Item::mnuOPen:
        return QKeySequence(Qt::CTRL | Qt::Key_O);
    case Item::mnuSaveLines:
        return QKeySequence(Qt::CTRL | Qt::Key_S);
    case Item::mnuLoadLines:
        return QKeySequence(Qt::CTRL | Qt::Key_L);
    case Item::mnuCreate:
        return QKeySequence(Qt::CTRL | Qt::Key_E);
    case Item::mnuUndo:
        return QKeySequence(Qt::CTRL | Qt::Key_Z);
    case Item::mnuExit:
        return QKeySequence(Qt::CTRL | Qt::Key_Q);
    case Item::mnuHelp:
        return QKeySequence(Qt::Key_F1);
    default:
        return {};
    }
}

// The five menus begin with five different letters (F, E, L, A, H).
QString WithAccessKey(const QString& caption, int depth) {
    return depth == 0 ? "&" + caption : caption;
}

} // namespace sw::qt
