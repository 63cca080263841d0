// Whether a JPG file ends before its picture does, read from its marker
// bytes alone. The file is read in chunks of 64 KiB, so the markers are also
// put across a chunk's end.
#include "qt/image/PictureFileCheck.h"

#include "imaging/PictureProblems.h"
#include "tests/imaging/FileBytes.h"
#include "tests/imaging/TestPictures.h"

#include <gtest/gtest.h>

namespace sw {
namespace {

constexpr std::size_t kChunk = 65536;

// A start of image, a start of scan, entropy-coded filler (no 0xFF) up to
// `scanLength` bytes, and then `ending`.
test::Bytes jpgWith(std::size_t scanLength, const test::Bytes& ending) {
    test::Bytes bytes = {0xFF, 0xD8, 0xFF, 0xDA};
    bytes.resize(scanLength, 0x5A);
    bytes.insert(bytes.end(), ending.begin(), ending.end());
    return bytes;
}

bool cutOff(const test::Bytes& bytes) {
    const test::ScratchFolder folder;
    const std::string path = folder.Path("picture.jpg");
    test::WriteBytes(path, bytes);
    return TruncationProblem(path, "jpeg") == std::optional<std::string>(kIncompleteFileProblem);
}

TEST(JpgEnd, AnEndMarkerAfterTheScanMakesTheFileWholeWhereverTheChunksEnd) {
    for (const std::size_t before :
         {std::size_t{100}, kChunk - 2, kChunk - 1, kChunk, kChunk + 1}) {
        SCOPED_TRACE(before);
        EXPECT_FALSE(cutOff(jpgWith(before, {0xFF, 0xD9})));
        // Fill bytes may stand before a marker.
        EXPECT_FALSE(cutOff(jpgWith(before, {0xFF, 0xFF, 0xD9})));
        // Stuffed and restart bytes are part of the scan.
        EXPECT_TRUE(cutOff(jpgWith(before, {0xFF, 0x00, 0xFF, 0xD0})));
    }
}

TEST(JpgEnd, OnlyTheLastScanCounts) {
    EXPECT_TRUE(cutOff(jpgWith(kChunk - 1, {0xFF, 0xD9, 0xFF, 0xDA, 0x12})));
    EXPECT_FALSE(cutOff(jpgWith(kChunk - 1, {0xFF, 0xD9, 0xFF, 0xDA, 0x12, 0xFF, 0xD9})));
    // An end marker before any scan ends nothing.
    EXPECT_TRUE(cutOff({0xFF, 0xD8, 0xFF, 0xD9, 0xFF, 0xDA, 0x12}));
}

} // namespace
} // namespace sw
