#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace sw {

struct Session;

using EventArgs = std::vector<std::string>;

// One event handler of the main form, raised by its name with its arguments
// as text: how the scenario runner and the window layer's tests reach them.
struct EventEntry {
    std::string name;
    std::size_t argCount;
    std::function<void(Session&, const EventArgs&)> raise;
};

const std::vector<EventEntry>& MainFormEvents();
const EventEntry* FindEvent(std::string_view name);

} // namespace sw
