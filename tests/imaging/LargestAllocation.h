#pragma once

#include <cstddef>

namespace sw::test {

// The largest single block this program has asked for since the last Reset,
// seen by an operator new of its own in front of the library's.
class LargestAllocation {
public:
    static void Reset();
    static std::size_t Bytes();
};

} // namespace sw::test
