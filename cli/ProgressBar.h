#pragma once

#include <ostream>
#include <string>

namespace sw {

// A bar of the pieces written so far, redrawn in place on one line of
// standard error. It draws only when asked for and that stream is a terminal:
// a bar in a log file or pipe is noise.
class ProgressBar {
public:
    ProgressBar(std::ostream& stream, bool shown, long total);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    // One more piece of the picture named `label` is done.
    void Step(const std::string& label);
    // Clears the bar's line, so that a message can take it.
    void Clear();

private:
    std::ostream& stream_;
    bool shown_;
    long total_;
    long done_ = 0;
    int drawnPercent_ = -1;
};

// Whether standard error is a terminal.
bool StandardErrorIsTerminal();

} // namespace sw
