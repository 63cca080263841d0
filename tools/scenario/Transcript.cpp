#include "tools/scenario/Transcript.h"

#include <stdexcept>

namespace sw::scripted {

void Transcript::Line(const std::string& text) {
    Check(text);
    if (chatterDepth_ > 0 && shown_ != Shown::All) {
        return;
    }
    out_ << text << '\n';
}

void Transcript::FormChatter(const std::string& text) {
    Check(text);
    if (shown_ != Shown::None) {
        out_ << text << '\n';
    }
}

void Transcript::Chatter(const std::string& text) {
    const ChatterScope chatter(*this);
    Line(text);
}

void Transcript::Check(const std::string& text) {
    if (!failAt_.empty() && text.rfind(failAt_, 0) == 0) {
        failAt_.clear();
        throw std::runtime_error("the port failed at \"" + text + "\"");
    }
}

} // namespace sw::scripted
