#include "imaging/Picture.h"
#include "imaging/SurfaceSize.h"
#include "imaging/cDIBSection.h"

#include <climits>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

namespace sw {
namespace {

// 0x00BBGGRR of a pixel, (x, y) counted from the picture's top-left.
Color pixelOf(const cDIBSection& s, int x, int y) {
    const std::uint8_t* p =
        s.DIBSectionBitsPtr() + (s.Height() - 1 - y) * s.BytesPerScanLine() + 3 * x;
    return Color{p[0]} << 16 | Color{p[1]} << 8 | p[2];
}

// Every pixel different, so that a shifted or mirrored copy shows.
Picture numberedPicture(int width, int height) {
    const std::size_t stride = Picture::Stride(width);
    std::vector<std::uint8_t> bytes(stride * height, 0);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            std::uint8_t* p = bytes.data() + stride * (height - 1 - y) + 3 * x;
            p[0] = static_cast<std::uint8_t>(x);
            p[1] = static_cast<std::uint8_t>(y);
            p[2] = static_cast<std::uint8_t>(7 * x + 13 * y);
        }
    }
    return Picture::FromBottomUpBgr(width, height, std::move(bytes));
}

void fillPad(cDIBSection& s, std::uint8_t value) {
    for (int row = 0; row < s.Height(); ++row) {
        std::uint8_t* rowEnd = s.DIBSectionBitsPtr() + row * s.BytesPerScanLine();
        std::memset(rowEnd + 3 * s.Width(), value, s.BytesPerScanLine() - 3 * s.Width());
    }
}

bool padIs(const cDIBSection& s, std::uint8_t value) {
    for (int row = 0; row < s.Height(); ++row) {
        const std::uint8_t* bytes = s.DIBSectionBitsPtr() + row * s.BytesPerScanLine();
        for (int i = 3 * s.Width(); i < s.BytesPerScanLine(); ++i) {
            if (bytes[i] != value) {
                return false;
            }
        }
    }
    return true;
}

TEST(SurfaceLayout, StridesAreRowsPaddedToFourBytes) {
    const std::pair<int, int> cases[] = {{1, 4}, {2, 8}, {3, 12}, {4, 12}, {5, 16}};
    for (const auto& [width, stride] : cases) {
        cDIBSection s;
        ASSERT_TRUE(s.Create(width, 3));
        EXPECT_EQ(s.BytesPerScanLine(), stride) << "width " << width;
        EXPECT_EQ(s.BitmapInfo().biSizeImage, stride * 3) << "width " << width;
    }
}

TEST(SurfaceLayout, PictureTopLeftPixelIsInTheLastRowInMemory) {
    const Picture picture = numberedPicture(5, 3);
    cDIBSection s;
    s.CreateFromPicture(picture);
    const std::uint8_t* lastRow = s.DIBSectionBitsPtr() + 2 * s.BytesPerScanLine();
    EXPECT_EQ(lastRow[0], 0);               // blue = x
    EXPECT_EQ(lastRow[1], 0);               // green = y
    EXPECT_EQ(lastRow[3], 1);               // the next pixel to the right
    EXPECT_EQ(s.DIBSectionBitsPtr()[1], 2); // the first row in memory is the bottom one
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 5; ++x) {
            EXPECT_EQ(pixelOf(s, x, y), picture.PixelAt(x, y)) << x << "," << y;
        }
    }
}

TEST(SurfaceLayout, SizesWhoseStrideOrBufferOverflowAreRefused) {
    EXPECT_EQ(CheckedStride(715827881), 2147483644);
    EXPECT_FALSE(CheckedStride(715827882));
    EXPECT_FALSE(CheckedStride(INT_MAX));
    EXPECT_EQ(CheckedBufferSize(1, 536870911), 2147483644);
    EXPECT_FALSE(CheckedBufferSize(1, 536870912));

    cDIBSection s;
    EXPECT_FALSE(s.Create(30000, 30000));
    EXPECT_EQ(s.DIBSectionBitsPtr(), nullptr);
    EXPECT_EQ(s.Width(), 30000); // the size asked for stays recorded
    EXPECT_FALSE(s.Create(INT_MAX, 1));
    EXPECT_EQ(s.BytesPerScanLine(), 0);
    EXPECT_FALSE(s.Create(0, 5));
    EXPECT_FALSE(s.Create(5, -1));
    EXPECT_EQ(s.DIBSectionBitsPtr(), nullptr);
}

TEST(SurfaceLifecycle, ClearUpDropsTheBufferButKeepsTheSize) {
    cDIBSection s;
    s.ClearUp();
    ASSERT_TRUE(s.Create(10, 10));
    s.ClearUp();
    s.ClearUp();
    EXPECT_EQ(s.DIBSectionBitsPtr(), nullptr);
    EXPECT_EQ(s.Width(), 10);
    EXPECT_EQ(s.BytesPerScanLine(), 32);
    s.RandomiseBits();           // without a buffer there is nothing to fill
    ASSERT_TRUE(s.Create(2, 2)); // a surface can be made again
    EXPECT_NE(s.DIBSectionBitsPtr(), nullptr);
}

TEST(SurfaceBlits, LoadPictureBltCopiesTheRectangleAndNothingElse) {
    const Picture picture = numberedPicture(6, 5);
    cDIBSection s;
    ASSERT_TRUE(s.Create(3, 2));
    fillPad(s, 0xAB);
    s.LoadPictureBlt(picture, 0, 0, 0, -1); // width 0: nothing
    EXPECT_EQ(pixelOf(s, 0, 0), 0u);
    s.LoadPictureBlt(picture, 2, 1); // -1: the surface's own size
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 3; ++x) {
            EXPECT_EQ(pixelOf(s, x, y), picture.PixelAt(x + 2, y + 1));
        }
    }
    s.LoadPictureBlt(picture, 5, 4, 1, 1); // what lies outside the picture is skipped
    EXPECT_EQ(pixelOf(s, 0, 0), picture.PixelAt(5, 4));
    EXPECT_EQ(pixelOf(s, 1, 0), picture.PixelAt(3, 1));
    EXPECT_TRUE(padIs(s, 0xAB));
}

TEST(SurfaceBlits, CreateFromAClipCopiesOnlyTheClip) {
    const Picture picture = numberedPicture(7, 6);
    cDIBSection s;
    s.CreateFromPicture(picture.Clip(2, 3, 3, 2));
    ASSERT_EQ(s.Width(), 3);
    ASSERT_EQ(s.Height(), 2);
    EXPECT_EQ(pixelOf(s, 0, 0), picture.PixelAt(2, 3));
    EXPECT_EQ(pixelOf(s, 2, 1), picture.PixelAt(4, 4));
    EXPECT_TRUE(padIs(s, 0));
}

TEST(SurfaceBlits, PaintPictureCopiesIntoTheTargetAtItsPlace) {
    cDIBSection source;
    source.CreateFromPicture(numberedPicture(3, 3));
    cDIBSection target;
    ASSERT_TRUE(target.Create(5, 4));
    fillPad(target, 0xCD);
    source.PaintPicture(target, 2, 1, -1, -1, 1, 0); // 3 x 3 from (1, 0): one column falls out
    EXPECT_EQ(pixelOf(target, 2, 1), pixelOf(source, 1, 0));
    EXPECT_EQ(pixelOf(target, 3, 3), pixelOf(source, 2, 2));
    EXPECT_EQ(pixelOf(target, 4, 1), 0u);
    EXPECT_EQ(pixelOf(target, 1, 1), 0u);
    EXPECT_TRUE(padIs(target, 0xCD));

    cDIBSection copy;
    ASSERT_TRUE(copy.Create(3, 3));
    copy.LoadPictureBlt(source);
    EXPECT_EQ(std::memcmp(copy.DIBSectionBitsPtr(), source.DIBSectionBitsPtr(), 36), 0);
}

} // namespace
} // namespace sw
