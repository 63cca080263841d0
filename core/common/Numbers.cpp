#include "common/Numbers.h"

#include <cfenv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace sw {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

std::string_view trimBlanks(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

std::size_t skipDigits(std::string_view text, std::size_t pos) {
    while (pos < text.size() && isDigit(text[pos])) {
        ++pos;
    }
    return pos;
}

// Mantissa: digits, optionally a point and more digits; at least one digit.
std::size_t scanMantissa(std::string_view text, std::size_t pos) {
    const std::size_t start = pos;
    pos = skipDigits(text, pos);
    std::size_t digits = pos - start;
    if (pos < text.size() && text[pos] == '.') {
        const std::size_t afterPoint = pos + 1;
        pos = skipDigits(text, afterPoint);
        digits += pos - afterPoint;
    }
    return digits == 0 ? std::string_view::npos : pos;
}

std::size_t scanExponent(std::string_view text, std::size_t pos) {
    if (pos >= text.size() || (text[pos] != 'e' && text[pos] != 'E')) {
        return pos;
    }
    ++pos;
    if (pos < text.size() && (text[pos] == '+' || text[pos] == '-')) {
        ++pos;
    }
    const std::size_t digitsEnd = skipDigits(text, pos);
    return digitsEnd == pos ? std::string_view::npos : digitsEnd;
}

template <typename T> Converted<T> convertText(std::string_view text) {
    if (!IsNumericText(text)) {
        return {T{}, ConversionError::TypeMismatch};
    }
    const std::string digits(trimBlanks(text));
    const double value = std::strtod(digits.c_str(), nullptr);
    const double rounded = RoundHalfEven(value);
    if (!std::isfinite(rounded) || rounded < std::numeric_limits<T>::min() ||
        rounded > std::numeric_limits<T>::max()) {
        return {T{}, ConversionError::Overflow};
    }
    return {static_cast<T>(rounded), ConversionError::None};
}

template <typename T> std::optional<T> roundTo(double value) {
    const double rounded = RoundHalfEven(value);
    if (!std::isfinite(rounded) || rounded < std::numeric_limits<T>::min() ||
        rounded > std::numeric_limits<T>::max()) {
        return std::nullopt;
    }
    return static_cast<T>(rounded);
}

} // namespace

double RoundHalfEven(double value) {
    const double down = std::floor(value);
    const double diff = value - down;
    if (diff > 0.5) {
        return down + 1.0;
    }
    if (diff < 0.5) {
        return down;
    }
    return std::fmod(down, 2.0) == 0.0 ? down : down + 1.0;
}

std::optional<i16> RoundToI16(double value) {
    return roundTo<i16>(value);
}
std::optional<i32> RoundToI32(double value) {
    return roundTo<i32>(value);
}

std::optional<i16> CheckedAdd(i16 a, int b) {
    const int sum = a + b;
    if (sum < std::numeric_limits<i16>::min() || sum > std::numeric_limits<i16>::max()) {
        return std::nullopt;
    }
    return static_cast<i16>(sum);
}

bool IsNumericText(std::string_view text) {
    text = trimBlanks(text);
    std::size_t pos = 0;
    if (pos < text.size() && (text[pos] == '+' || text[pos] == '-')) {
        ++pos;
    }
    pos = scanMantissa(text, pos);
    if (pos == std::string_view::npos) {
        return false;
    }
    pos = scanExponent(text, pos);
    return pos == text.size();
}

Converted<i16> TextToInteger(std::string_view text) {
    return convertText<i16>(text);
}
Converted<i32> TextToLong(std::string_view text) {
    return convertText<i32>(text);
}

std::string FormatSingle(float value) {
    // Seven significant digits is what a single holds; %g drops trailing zeros.
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.7g", static_cast<double>(value));
    return buffer;
}

} // namespace sw
