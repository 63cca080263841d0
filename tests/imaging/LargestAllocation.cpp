#include "tests/imaging/LargestAllocation.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> largest{0};

void note(std::size_t size) {
    std::size_t seen = largest.load();
    while (size > seen && !largest.compare_exchange_weak(seen, size)) {
    }
}

} // namespace

namespace sw::test {

void LargestAllocation::Reset() {
    largest = 0;
}

std::size_t LargestAllocation::Bytes() {
    return largest.load();
}

} // namespace sw::test

void* operator new(std::size_t size) {
    note(size);
    if (void* block = std::malloc(size == 0 ? 1 : size)) {
        return block;
    }
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}
