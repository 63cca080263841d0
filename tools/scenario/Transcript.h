#pragma once

#include <ostream>
#include <string>

namespace sw::scripted {

// Where the scripted ports write one line for every call the logic makes.
class Transcript {
public:
    explicit Transcript(std::ostream& out) : out_(out) {}
    void Line(const std::string& text) { out_ << text << '\n'; }

private:
    std::ostream& out_;
};

std::string FlagText(bool value);

} // namespace sw::scripted
