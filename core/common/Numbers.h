#pragma once

#include "common/Types.h"

#include <optional>
#include <string>
#include <string_view>

namespace sw {

enum class ConversionError { None, Overflow, TypeMismatch };

template <typename T> struct Converted {
    T value{};
    ConversionError error = ConversionError::None;
    bool ok() const { return error == ConversionError::None; }
};

// Nearest integer, a tie to the even neighbour.
double RoundHalfEven(double value);

// Rounds to a signed 16-bit integer; nothing when the result is out of range.
std::optional<i16> RoundToI16(double value);
std::optional<i32> RoundToI32(double value);

// Adds to a 16-bit value; nothing when the sum leaves the range.
std::optional<i16> CheckedAdd(i16 a, int b);

// Whether the text reads as a number: blanks around it, an optional sign,
// digits with an optional decimal fraction, an optional exponent.
bool IsNumericText(std::string_view text);

// Reads a numeric text and rounds it to 16 bits (half to even).
Converted<i16> TextToInteger(std::string_view text);
// The same for 32 bits.
Converted<i32> TextToLong(std::string_view text);

// A single-precision number in the plain general form: 480, 383.2, -0.5.
std::string FormatSingle(float value);

} // namespace sw
