#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace sw::test {

using Bytes = std::vector<std::uint8_t>;

// The whole file; empty when it cannot be read.
Bytes ReadBytes(const std::string& path);
// Makes or replaces the file with these bytes.
void WriteBytes(const std::string& path, const Bytes& bytes);

} // namespace sw::test
