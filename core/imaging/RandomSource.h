#pragma once

namespace sw {

// A seedable pseudo-random generator, uniform in [0, 1).
class RandomSource {
public:
    virtual ~RandomSource() = default;
    virtual void Seed(float seed) = 0;
    virtual float Next() = 0;
};

// The generator the program uses when nobody injects another one.
RandomSource& DefaultRandomSource();

} // namespace sw
