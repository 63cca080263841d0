#pragma once

#include <stdexcept>

namespace sw::scripted {

// The script and the logic disagree: an answer is missing or left unused, or
// a line of the script cannot be read.
class ScriptError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace sw::scripted
