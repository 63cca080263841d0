#include "dialogs/DialogCommands.h"
#include "session/Session.h"
#include "tools/scenario/ScriptedPorts.h"

#include <gtest/gtest.h>
#include <sstream>

namespace sw {
namespace {

// A picture box of any size in twips, also sizes no picture of whole pixels gives.
class SizedPictureBox : public PictureBox {
public:
    SizedPictureBox(float width, float height) : width_(width), height_(height) {}
    void SetPicture(const Picture&) override {}
    bool Line(int, int, int, int, Color) override { return true; }
    bool HasPicture() const override { return true; }
    float Width() const override { return width_; }
    float Height() const override { return height_; }
    float Left() const override { return 0; }
    float Top() const override { return 0; }

private:
    float width_;
    float height_;
};

std::string factsBoxFor(float widthTwips, float heightTwips) {
    std::ostringstream transcript;
    scripted::ScriptedPorts o(transcript, nullptr);
    SizedPictureBox box(widthTwips, heightTwips);
    Ports ports{o.boxes,       o.dlgPic,   box,        o.loader,    o.controls,
                o.form,        o.settings, o.files,    o.ports.app, o.jpgCompDialog,
                o.aboutWindow, o.shell,    o.registry, o.sysInfo};
    Session session(ports);
    mnuPicAbout_Click(session);
    return transcript.str();
}

TEST(mnuPicAbout, GivesHeightThenWidthInPixelsOfFifteenTwips) {
    EXPECT_EQ(factsBoxFor(9600, 7200),
              "box title=\"Slicewright\" text=\"Picture Attributes: \\r\\nHeight: 480 (pixels)"
              "\\r\\nWidth : 640 (pixels)\\r\\n\" icon=none buttons=OK -> OK\n");
    EXPECT_EQ(factsBoxFor(5748, 7),
              "box title=\"Slicewright\" text=\"Picture Attributes: \\r\\nHeight: 0.4666667 "
              "(pixels)\\r\\nWidth : 383.2 (pixels)\\r\\n\" icon=none buttons=OK -> OK\n");
}

} // namespace
} // namespace sw
