#include "imaging/cDIBSection.h"

#include "imaging/Clock.h"
#include "imaging/Picture.h"
#include "imaging/PixelRows.h"
#include "imaging/RandomSource.h"
#include "imaging/SurfaceSize.h"

#include <cstring>
#include <new>

namespace sw {
namespace {

ConstPixelRows rowsOf(const Picture& picture) {
    if (picture.IsEmpty()) {
        return {};
    }
    return {picture.Row(0), -static_cast<std::ptrdiff_t>(picture.RowPitch()), picture.Width(),
            picture.Height()};
}

template <typename Byte> PixelRowsOf<Byte> rowsOf(Byte* bits, i32 stride, i32 width, i32 height) {
    if (bits == nullptr) {
        return {};
    }
    return {bits + static_cast<std::ptrdiff_t>(stride) * (height - 1), -stride, width, height};
}

i32 wholeIfNegative(i32 size, i32 whole) {
    return size < 0 ? whole : size;
}

} // namespace

cDIBSection::cDIBSection() : random_(&DefaultRandomSource()), clock_(&SystemClock()) {}

cDIBSection::~cDIBSection() {
    ClearUp();
}

i32 cDIBSection::BytesPerScanLine() const {
    return CheckedStride(bitmapInfo_.biWidth).value_or(0);
}

bool cDIBSection::CreateDIB(i32 lWidth, i32 lHeight) {
    bitmapInfo_ = BitmapInfoHeader{};
    bitmapInfo_.biSize = 40;
    bitmapInfo_.biWidth = lWidth;
    bitmapInfo_.biHeight = lHeight;
    bitmapInfo_.biPlanes = 1;
    bitmapInfo_.biBitCount = 24;
    const std::optional<i32> size = CheckedBufferSize(lWidth, lHeight);
    if (!size || lWidth <= 0 || lHeight <= 0) {
        return false;
    }
    bitmapInfo_.biSizeImage = *size;
    // Zeroed, as a freshly made platform bitmap is: a new surface is black.
    bits_.reset(new (std::nothrow) std::uint8_t[static_cast<std::size_t>(*size)]());
    return bits_ != nullptr;
}

bool cDIBSection::Create(i32 lWidth, i32 lHeight) {
    ClearUp();
    return CreateDIB(lWidth, lHeight);
}

void cDIBSection::CreateFromPicture(const Picture& picThis) {
    if (Create(picThis.Width(), picThis.Height())) {
        LoadPictureBlt(picThis);
    }
}

void cDIBSection::ClearUp() {
    bits_.reset();
}

void cDIBSection::UseNoiseSources(RandomSource& random, Clock& clock) {
    random_ = &random;
    clock_ = &clock;
}

void cDIBSection::LoadPictureBlt(const Picture& source, i32 lSrcLeft, i32 lSrcTop, i32 lSrcWidth,
                                 i32 lSrcHeight) {
    CopyPixelRect(rowsOf(source), lSrcLeft, lSrcTop,
                  rowsOf(bits_.get(), BytesPerScanLine(), Width(), Height()), 0, 0,
                  wholeIfNegative(lSrcWidth, Width()), wholeIfNegative(lSrcHeight, Height()));
}

void cDIBSection::LoadPictureBlt(const cDIBSection& source, i32 lSrcLeft, i32 lSrcTop,
                                 i32 lSrcWidth, i32 lSrcHeight) {
    source.PaintPicture(*this, 0, 0, wholeIfNegative(lSrcWidth, Width()),
                        wholeIfNegative(lSrcHeight, Height()), lSrcLeft, lSrcTop);
}

void cDIBSection::PaintPicture(cDIBSection& target, i32 lDestLeft, i32 lDestTop, i32 lDestWidth,
                               i32 lDestHeight, i32 lSrcLeft, i32 lSrcTop) const {
    const ConstPixelRows from =
        rowsOf<const std::uint8_t>(bits_.get(), BytesPerScanLine(), Width(), Height());
    CopyPixelRect(
        from, lSrcLeft, lSrcTop,
        rowsOf(target.bits_.get(), target.BytesPerScanLine(), target.Width(), target.Height()),
        lDestLeft, lDestTop, wholeIfNegative(lDestWidth, Width()),
        wholeIfNegative(lDestHeight, Height()));
}

} // namespace sw
