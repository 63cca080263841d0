#pragma once

#include <cstddef>
#include <stdexcept>
#include <vector>

namespace sw {

// An array whose first index is 1 and whose length is its upper bound.
// A never-allocated array has upper bound 0.
template <typename T> class OneBasedArray {
public:
    OneBasedArray() = default;
    OneBasedArray(std::initializer_list<T> items) : items_(items) {}

    int UBound() const { return static_cast<int>(items_.size()); }
    bool Allocated() const { return !items_.empty(); }

    T& operator()(int index) { return items_.at(checked(index)); }
    const T& operator()(int index) const { return items_.at(checked(index)); }

    // Grows or shrinks to upper bound `ubound`, keeping what stands below it.
    void ReDimPreserve(int ubound) { items_.resize(static_cast<std::size_t>(ubound)); }
    // A fresh array of one slot holding the default value.
    void ResetToOneSlot() { items_.assign(1, T{}); }
    void Erase() { items_.clear(); }

    const std::vector<T>& items() const { return items_; }
    std::vector<T>& items() { return items_; }

    bool operator==(const OneBasedArray&) const = default;

private:
    static std::size_t checked(int index) {
        if (index < 1) {
            throw std::out_of_range("array index below 1");
        }
        return static_cast<std::size_t>(index - 1);
    }
    std::vector<T> items_;
};

} // namespace sw
