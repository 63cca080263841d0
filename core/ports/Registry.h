#pragma once

#include <cstdint>
#include <string>

namespace sw {

using RegistryRoot = std::uint32_t;
inline constexpr RegistryRoot kLocalMachine = 0x80000002u;

inline constexpr std::uint32_t kRegistryText = 1;  // REG_SZ
inline constexpr std::uint32_t kRegistryDword = 4; // REG_DWORD

// One value as the store holds it: its type code and its raw bytes, text
// values usually with their end mark (a 0 byte) included.
struct RegistryValue {
    std::uint32_t type = 0;
    std::string bytes;
};

// The system's registry of keys and values, read only. Key names use "\"
// between their parts.
class Registry {
public:
    virtual ~Registry() = default;
    // False when the key or the value is not there or cannot be read.
    virtual bool QueryValue(RegistryRoot root, const std::string& keyName,
                            const std::string& valueName, RegistryValue& value) = 0;
};

} // namespace sw
