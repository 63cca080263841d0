#include "linefile/LineFieldReader.h"

namespace sw {
namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

} // namespace

bool LineFieldReader::atSeparator() const {
    const char c = text_[pos_];
    return c == ',' || c == '\r' || c == '\n';
}

void LineFieldReader::skipSeparator() {
    if (AtEnd()) {
        return;
    }
    const char c = text_[pos_++];
    // CR LF is one line end; a lone CR or a lone LF is one too.
    if (c == '\r' && !AtEnd() && text_[pos_] == '\n') {
        ++pos_;
    }
}

std::string LineFieldReader::readQuoted() {
    ++pos_;
    const std::size_t close = text_.find('"', pos_);
    const std::size_t end = close == std::string_view::npos ? text_.size() : close;
    std::string field(text_.substr(pos_, end - pos_));
    pos_ = end == text_.size() ? end : end + 1;
    // Whatever stands behind the closing quote belongs to no field.
    while (!AtEnd() && !atSeparator()) {
        ++pos_;
    }
    return field;
}

std::string LineFieldReader::readUnquoted() {
    const std::size_t start = pos_;
    while (!AtEnd() && !atSeparator()) {
        ++pos_;
    }
    std::size_t end = pos_;
    while (end > start && isBlank(text_[end - 1])) {
        --end;
    }
    return std::string(text_.substr(start, end - start));
}

std::string LineFieldReader::ReadLineField() {
    while (!AtEnd() && isBlank(text_[pos_])) {
        ++pos_;
    }
    std::string field = !AtEnd() && text_[pos_] == '"' ? readQuoted() : readUnquoted();
    skipSeparator();
    return field;
}

} // namespace sw
