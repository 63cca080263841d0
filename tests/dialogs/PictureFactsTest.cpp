#include "dialogs/DialogCommands.h"
#include "session/Session.h"
#include "tools/scenario/ScriptedPorts.h"

#include <gtest/gtest.h>
#include <sstream>

namespace sw {
namespace {

std::string factsBoxFor(float widthTwips, float heightTwips) {
    std::ostringstream transcript;
    scripted::ScriptedPorts o(transcript, nullptr);
    o.picActual.SetTwipSize(widthTwips, heightTwips);
    Session session(o.ports);
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
