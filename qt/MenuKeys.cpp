#include "qt/MenuKeys.h"

#include <algorithm>
#include <array>
#include <utility>

namespace sw::qt {
namespace {

// Written out rather than taken from the platform's standard keys, which
// are missing for some commands on desktops without a theme.
constexpr std::array<std::pair<Item, QKeyCombination>, 7> kShortcuts{{
    {Item::mnuOPen, Qt::CTRL | Qt::Key_O},
    {Item::mnuSaveLines, Qt::CTRL | Qt::Key_S},
    {Item::mnuLoadLines, Qt::CTRL | Qt::Key_L},
    {Item::mnuCreate, Qt::CTRL | Qt::Key_E},
    {Item::mnuUndo, Qt::CTRL | Qt::Key_Z},
    {Item::mnuExit, Qt::CTRL | Qt::Key_Q},
    {Item::mnuHelp, QKeyCombination(Qt::Key_F1)},
}};

} // namespace

QKeySequence ShortcutOf(Item item) {
    const auto found = std::find_if(kShortcuts.begin(), kShortcuts.end(),
                                    [item](const auto& entry) { return entry.first == item; });
    return found == kShortcuts.end() ? QKeySequence() : QKeySequence(found->second);
}

// The five menus begin with five different letters (F, E, L, A, H).
QString WithAccessKey(const QString& caption, int depth) {
    return depth == 0 ? "&" + caption : caption;
}

} // namespace sw::qt
