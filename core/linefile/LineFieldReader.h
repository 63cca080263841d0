#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace sw {

// Reads the fields of a line file's text one by one. It takes more than the
// writer produces: unquoted fields, several fields on a line separated by
// commas, CR, LF or CR LF as the line end, and a last line without one.
class LineFieldReader {
public:
    explicit LineFieldReader(std::string_view text) : text_(text) {}

    bool AtEnd() const { return pos_ >= text_.size(); }
    // The next field's text; a line with nothing on it is an empty field.
    std::string ReadLineField();

private:
    std::string readQuoted();
    std::string readUnquoted();
    // Steps over what ends a field: a comma or a line end, when one is next.
    void skipSeparator();
    bool atSeparator() const;

    std::string_view text_;
    std::size_t pos_ = 0;
};

} // namespace sw
