#include "window/SurfaceClipboard.h"

#include "imaging/Picture.h"
#include "imaging/cDIBSection.h"
#include "ports/Clipboard.h"
#include "ports/MessageBoxes.h"

#include <gtest/gtest.h>
#include <vector>

namespace sw {
namespace {

class RecordingClipboard : public Clipboard {
public:
    void Clear() override { ++clears; }
    void SetText(const std::string&) override {}
    bool SetPicture(const Picture& picture) override {
        pictures.push_back(picture);
        return true;
    }
    int clears = 0;
    std::vector<Picture> pictures;
};

class RecordingBoxes : public MessageBoxes {
public:
    BoxResult Show(const BoxRequest& request) override {
        shown.push_back(request);
        return BoxResult::OK;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override {
        return {};
    }
    std::vector<BoxRequest> shown;
};

// A 3 x 2 picture whose every pixel differs, rows padded to 12 bytes.
Picture numberedPicture() {
    std::vector<std::uint8_t> bytes(2 * Picture::Stride(3));
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>(i * 7 + 1);
    }
    return Picture::FromBottomUpBgr(3, 2, std::move(bytes));
}

TEST(SurfaceClipboard, ADibIsRefusedWithAMessageAndABitmapIsCopied) {
    const Picture picture = numberedPicture();
    cDIBSection s;
    s.CreateFromPicture(picture);
    RecordingClipboard clipboard;
    RecordingBoxes boxes;

    EXPECT_FALSE(CopyToClipboard(s, clipboard, boxes, "Slicewright"));
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_EQ(boxes.shown[0].title, "Slicewright");
    EXPECT_EQ(boxes.shown[0].text,
              "I don't know how to put a DIB on the clipboard! Copy as bitmap instead!!!");
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::None);
    EXPECT_EQ(boxes.shown[0].buttons, BoxButtons::OK);
    EXPECT_TRUE(clipboard.pictures.empty());
    EXPECT_EQ(clipboard.clears, 0);

    EXPECT_TRUE(CopyToClipboard(s, clipboard, boxes, "Slicewright", false));
    ASSERT_EQ(clipboard.pictures.size(), 1u);
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 3; ++x) {
            EXPECT_EQ(clipboard.pictures[0].PixelAt(x, y), picture.PixelAt(x, y)) << x << "," << y;
        }
    }
    // The clipboard's copy is its own: the surface going away leaves it whole.
    s.ClearUp();
    EXPECT_EQ(clipboard.pictures[0].PixelAt(2, 1), picture.PixelAt(2, 1));
    EXPECT_FALSE(CopyToClipboard(s, clipboard, boxes, "Slicewright", false));
}

} // namespace
} // namespace sw
