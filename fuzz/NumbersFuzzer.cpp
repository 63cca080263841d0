// Any text handed to the number readers: they answer, never crash, and
// agree with each other on what is a number.
#include "common/Numbers.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const bool numeric = sw::IsNumericText(text);
    const sw::Converted<sw::i16> narrow = sw::TextToInteger(text);
    const sw::Converted<sw::i32> wide = sw::TextToLong(text);
    // A text is a number to all three readers or to none of them.
    if (numeric != (narrow.error != sw::ConversionError::TypeMismatch) ||
        numeric != (wide.error != sw::ConversionError::TypeMismatch)) {
        std::abort();
    }
    // What fits 16 bits fits 32 bits and reads the same there.
    if (narrow.ok() && (!wide.ok() || wide.value != narrow.value)) {
        std::abort();
    }
    return 0;
}
