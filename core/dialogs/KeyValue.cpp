#include "dialogs/KeyValue.h"

#include <cstdio>

namespace sw {
namespace {

// Values longer than this do not fit the buffer the value is read into.
constexpr std::size_t kValueBufferSize = 1024;

// A byte's code in hexadecimal without leading zeros: 0x05 gives "5".
std::string hexOf(unsigned char byte) {
    char digits[4];
    std::snprintf(digits, sizeof digits, "%X", static_cast<unsigned>(byte));
    return digits;
}

std::string bytesLastToFirst(const std::string& bytes) {
    std::string hex;
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
        hex += hexOf(static_cast<unsigned char>(*byte));
    }
    return hex;
}

} // namespace

bool GetKeyValue(Registry& registry, RegistryRoot KeyRoot, const std::string& KeyName,
                 const std::string& SubKeyRef, std::string& KeyVal) {
    RegistryValue value;
    if (!registry.QueryValue(KeyRoot, KeyName, SubKeyRef, value) ||
        value.bytes.size() > kValueBufferSize) {
        KeyVal.clear();
        return false;
    }
    std::string text = value.bytes;
    if (!text.empty() && text.back() == '\0') {
        text.pop_back();
    }
    if (value.type == kRegistryText) {
        KeyVal = text;
    } else if (value.type == kRegistryDword) {
        KeyVal = "&h" + KeyVal + bytesLastToFirst(text);
    }
    return true;
}

} // namespace sw
