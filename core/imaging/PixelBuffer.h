#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace sw {

// Zeroed memory for the pixels of a picture. A large buffer is asked for in
// huge pages where the system gives them on request: the pixels of a picture
// of four million pixels then come in six page faults instead of three
// thousand, which cost more than reading the picture's file.
std::vector<std::uint8_t> PixelBuffer(std::size_t size);

} // namespace sw
