// The operations of cDIBSection that work on the pixel bytes themselves.
#include "imaging/Clock.h"
#include "imaging/PixelView.h"
#include "imaging/RandomSource.h"
#include "imaging/cDIBSection.h"

#include <algorithm>
#include <cmath>

namespace sw {
namespace {

// Rounds to the nearest integer, a tie to the even neighbour.
double roundHalfEven(double value) {
    return std::nearbyint(value);
}

std::uint8_t randomByte(RandomSource& random) {
    return static_cast<std::uint8_t>(roundHalfEven(static_cast<double>(random.Next()) * 255.0));
}

// Where one target coordinate falls in the source: the whole part and the
// fraction, each as the single-precision value the interpolation uses.
struct SamplePoint {
    i32 index;
    float fraction;
};

SamplePoint samplePoint(float scale, i32 position) {
    const auto f = static_cast<float>(static_cast<double>(scale) * position);
    const auto index = static_cast<i32>(std::floor(f));
    return {index, static_cast<float>(f - static_cast<float>(index))};
}

float scaleOf(i32 sourceSize, i32 targetSize) {
    return static_cast<float>(static_cast<double>(sourceSize - 1) / targetSize);
}

double blend(float weight, double near, double far) {
    return roundHalfEven((1.0 - static_cast<double>(weight)) * near +
                         static_cast<double>(weight) * far);
}

// Where the four neighbours of one sample point stand; a source one pixel wide or
// high repeats its edge pixel instead of reading past it.
struct Neighbours {
    i32 left;
    i32 right;
    i32 row;
    i32 nextRow;
};

Neighbours neighboursOf(SamplePoint x, SamplePoint y, i32 width, i32 height) {
    return {3 * x.index, 3 * std::min(x.index + 1, width - 1), y.index,
            std::min(y.index + 1, height - 1)};
}

std::uint8_t interpolate(const ConstPixelView& from, const Neighbours& n, i32 channel, float dx,
                         float dy) {
    const double left = blend(dy, from(n.left + channel, n.row), from(n.left + channel, n.nextRow));
    const double right =
        blend(dy, from(n.right + channel, n.row), from(n.right + channel, n.nextRow));
    return static_cast<std::uint8_t>(std::clamp(blend(dx, left, right), 0.0, 255.0));
}

// Row by row, one draw a pixel for all three channels.
void fillGrey(const PixelView& view, i32 width, RandomSource& random) {
    const i32 xEnd = (width - 1) * 3;
    for (i32 row = 0; row < view.Rows(); ++row) {
        for (i32 x = 0; x <= xEnd; x += 3) {
            const std::uint8_t grey = randomByte(random);
            view(x, row) = grey;
            view(x + 1, row) = grey;
            view(x + 2, row) = grey;
        }
    }
}

// Column by column; the noise has no blue.
void fillGreenAndRed(const PixelView& view, i32 width, RandomSource& random) {
    const i32 xEnd = (width - 1) * 3;
    for (i32 x = 0; x <= xEnd; x += 3) {
        for (i32 row = 0; row < view.Rows(); ++row) {
            view(x, row) = 0;
            view(x + 1, row) = randomByte(random);
            view(x + 2, row) = randomByte(random);
        }
    }
}

} // namespace

void cDIBSection::RandomiseBits(bool bGray) {
    if (DIBSectionBitsPtr() == nullptr) {
        return; // nothing to fill
    }
    const PixelView view(DIBSectionBitsPtr(), BytesPerScanLine(), Height());
    random_->Seed(clock_->SecondsSinceMidnight());
    if (bGray) {
        fillGrey(view, Width(), *random_);
    } else {
        fillGreenAndRed(view, Width(), *random_);
    }
}

std::unique_ptr<cDIBSection> cDIBSection::Resample(i32 lNewHeight, i32 lNewWidth) const {
    if (DIBSectionBitsPtr() == nullptr) {
        return nullptr;
    }
    auto target = std::make_unique<cDIBSection>();
    if (!target->Create(lNewWidth, lNewHeight)) {
        return nullptr;
    }
    if (lNewWidth == Width() && lNewHeight == Height()) {
        target->LoadPictureBlt(*this);
    } else {
        ResampleInto(*target);
    }
    return target;
}

void cDIBSection::ResampleInto(cDIBSection& target) const {
    const ConstPixelView from(DIBSectionBitsPtr(), BytesPerScanLine(), Height());
    const PixelView to(target.DIBSectionBitsPtr(), target.BytesPerScanLine(), target.Height());
    const float xScale = scaleOf(Width(), target.Width());
    const float yScale = scaleOf(Height(), target.Height());
    for (i32 y = 0; y < target.Height(); ++y) {
        const SamplePoint sy = samplePoint(yScale, y);
        for (i32 x = 0; x < target.Width(); ++x) {
            const SamplePoint sx = samplePoint(xScale, x);
            const Neighbours n = neighboursOf(sx, sy, Width(), Height());
            for (i32 channel = 0; channel < 3; ++channel) {
                to(3 * x + channel, y) = interpolate(from, n, channel, sx.fraction, sy.fraction);
            }
        }
    }
}

} // namespace sw
