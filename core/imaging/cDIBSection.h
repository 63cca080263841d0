#pragma once

#include "common/Types.h"
#include "imaging/BitmapInfoHeader.h"

#include <cstdint>
#include <memory>

namespace sw {

class Clock;
class Picture;
class RandomSource;

// A 24-bit picture surface in plain memory: three bytes a pixel (blue, green,
// red), rows padded to a multiple of 4 bytes and stored bottom-up, so that the
// JPEG encoder and the pixel loops work on the bytes in place. The pad bytes
// are no picture data and no operation writes them.
class cDIBSection {
public:
    cDIBSection();
    ~cDIBSection();
    cDIBSection(const cDIBSection&) = delete;
    cDIBSection& operator=(const cDIBSection&) = delete;

    // Fills the size record and allocates a buffer of that size. The size stays
    // recorded even when the buffer cannot be had; the answer is then false.
    bool CreateDIB(i32 lWidth, i32 lHeight);
    // Makes the surface the size of the picture and copies the picture in; on
    // failure the surface has no buffer.
    void CreateFromPicture(const Picture& picThis);
    // An empty surface of that size, dropping any earlier one.
    bool Create(i32 lWidth, i32 lHeight);

    i32 BytesPerScanLine() const;
    i32 Width() const { return bitmapInfo_.biWidth; }
    i32 Height() const { return bitmapInfo_.biHeight; }
    const BitmapInfoHeader& BitmapInfo() const { return bitmapInfo_; }

    // Copies a rectangle of the source, (lSrcLeft, lSrcTop) counted from its
    // top-left corner, to this surface's top-left corner. A negative width or
    // height means this surface's own. What lies outside either side is skipped.
    void LoadPictureBlt(const Picture& source, i32 lSrcLeft = 0, i32 lSrcTop = 0,
                        i32 lSrcWidth = -1, i32 lSrcHeight = -1);
    void LoadPictureBlt(const cDIBSection& source, i32 lSrcLeft = 0, i32 lSrcTop = 0,
                        i32 lSrcWidth = -1, i32 lSrcHeight = -1);
    // Copies a rectangle of this surface into the target at (lDestLeft,
    // lDestTop). A negative width or height means this surface's own.
    void PaintPicture(cDIBSection& target, i32 lDestLeft = 0, i32 lDestTop = 0, i32 lDestWidth = -1,
                      i32 lDestHeight = -1, i32 lSrcLeft = 0, i32 lSrcTop = 0) const;

    // The first byte of the buffer (the bottom row), nullptr when there is none.
    std::uint8_t* DIBSectionBitsPtr() { return bits_.get(); }
    const std::uint8_t* DIBSectionBitsPtr() const { return bits_.get(); }

    // Fills every pixel with noise: grey, or green and red with no blue. The
    // generator is seeded from the clock's seconds since midnight.
    void RandomiseBits(bool bGray = false);
    // Frees the buffer; the size record stays.
    void ClearUp();
    // A bilinear copy of lNewWidth x lNewHeight pixels, or nullptr when that
    // surface cannot be made.
    std::unique_ptr<cDIBSection> Resample(i32 lNewHeight, i32 lNewWidth) const;

    // The generator and clock behind RandomiseBits; the system's by default.
    void UseNoiseSources(RandomSource& random, Clock& clock);

private:
    void ResampleInto(cDIBSection& target) const;

    std::unique_ptr<std::uint8_t[]> bits_;
    BitmapInfoHeader bitmapInfo_;
    RandomSource* random_;
    Clock* clock_;
};

} // namespace sw
