#include "ProgressBar.h"

#include <unistd.h>

namespace sw {
namespace {

constexpr int kBarWidth = 30;

} // namespace

bool StandardErrorIsTerminal() {
    return isatty(STDERR_FILENO) == 1;
}

ProgressBar::ProgressBar(std::ostream& stream, bool shown, long total)
    : stream_(stream), shown_(shown && total > 0), total_(total) {}

ProgressBar::~ProgressBar() {
    Clear();
}

void ProgressBar::Step(const std::string& label) {
    ++done_;
    if (!shown_) {
        return;
    }
    // Redrawn only when the percentage moves, so that thousands of small
    // pieces do not flood the terminal.
    const int percent = static_cast<int>(done_ * 100 / total_);
    if (percent == drawnPercent_) {
        return;
    }
    drawnPercent_ = percent;
    const int filled = percent * kBarWidth / 100;
    stream_ << "\r[" << std::string(static_cast<std::size_t>(filled), '#')
            << std::string(static_cast<std::size_t>(kBarWidth - filled), ' ') << "] " << done_
            << "/" << total_ << " " << label << "\x1b[K" << std::flush;
}

void ProgressBar::Clear() {
    if (shown_ && drawnPercent_ >= 0) {
        stream_ << "\r\x1b[K" << std::flush;
        drawnPercent_ = -1;
    }
}

} // namespace sw
