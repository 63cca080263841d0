#include "imaging/RandomSource.h"

#include <bit>
#include <cstdint>
#include <random>

namespace sw {
namespace {

// 24 random bits scaled into [0, 1): every value a float can hold exactly,
// and never 1 itself.
class MersenneRandomSource : public RandomSource {
public:
    void Seed(float seed) override { engine_.seed(std::bit_cast<std::uint32_t>(seed)); }
    float Next() override { return static_cast<float>(engine_() >> 8) * 0x1.0p-24f; }

private:
    std::mt19937 engine_;
};

} // namespace

RandomSource& DefaultRandomSource() {
    static MersenneRandomSource source;
    return source;
}

} // namespace sw
