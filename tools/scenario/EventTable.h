#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace sw {
struct Session;
}

namespace sw::scripted {

using EventArgs = std::vector<std::string>;

// One event handler of the main form, raised by its name with its arguments
// as a script's words; an argument that is no number refuses the line.
struct EventEntry {
    std::string name;
    std::size_t argCount;
    std::function<void(Session&, const EventArgs&)> raise;
};

const std::vector<EventEntry>& MainFormEvents();
const EventEntry* FindEvent(std::string_view name);

} // namespace sw::scripted
