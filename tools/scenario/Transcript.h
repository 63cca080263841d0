#pragma once

#include <ostream>
#include <string>

namespace sw::scripted {

// Where the scripted ports write one line for every call the logic makes.
class Transcript {
public:
    explicit Transcript(std::ostream& out) : out_(out) {}
    void Line(const std::string& text);
    // A call of a port that writes no line: it may fail all the same.
    void Check(const std::string& text);

    // The next call of a port whose line begins with `prefix` throws, as a
    // port of the window layer may (out of memory, a broken invariant): for
    // the tests of what happens at the event boundary.
    void FailAt(std::string prefix) { failAt_ = std::move(prefix); }

private:
    std::ostream& out_;
    std::string failAt_;
};

std::string FlagText(bool value);

} // namespace sw::scripted
