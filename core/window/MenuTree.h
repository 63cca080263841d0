#pragma once

#include "ports/Controls.h"
#include "window/Toolbar.h"

#include <optional>
#include <vector>

namespace sw {

// One entry of the main menu, in display order; depth 0 is the menu bar.
struct MenuEntry {
    std::optional<Item> item; // nothing for a separator
    const char* caption;      // "-" for a separator
    int depth;
    bool enabled;
    bool checked;
    Command command; // nullptr where the entry only opens its menu
};

// The whole menu tree with the state of every entry at start.
const std::vector<MenuEntry>& MenuTree();

} // namespace sw
