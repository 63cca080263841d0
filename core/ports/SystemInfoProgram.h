#pragma once

#include <string>

namespace sw {

// The desktop programs that show facts about the machine, in the order in
// which a search on the PATH should try them.
inline constexpr const char* kSystemInfoCandidates[] = {
    "hardinfo", "gnome-system-monitor", "kinfocenter", "lshw-gtk", "mate-system-monitor",
};

// A program of the desktop that shows facts about the machine.
class SystemInfoProgram {
public:
    virtual ~SystemInfoProgram() = default;
    // Where such a program is installed; the empty text when there is none.
    virtual std::string Find() = 0;
    // Starts a program file in a normal, focused window without waiting for
    // it; false when it cannot be started.
    virtual bool Start(const std::string& program) = 0;
};

} // namespace sw
