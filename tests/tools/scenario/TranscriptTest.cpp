#include "tools/scenario/Transcript.h"

#include <gtest/gtest.h>
#include <sstream>
#include <stdexcept>

namespace sw::scripted {
namespace {

TEST(Transcript, LeavesOutChatterOnlyWhileItIsSwitchedOff) {
    std::ostringstream out;
    Transcript transcript(out);
    transcript.Chatter("shown chatter");
    transcript.ShowChatter(Transcript::Shown::None);
    transcript.Line("plain");
    transcript.Chatter("hidden chatter");
    transcript.ShowChatter(Transcript::Shown::All);
    transcript.Chatter("shown again");
    EXPECT_EQ(out.str(), "shown chatter\nplain\nshown again\n");
}

// A handler raised by a resize writes through other ports: all of it is
// chatter until the outermost scope ends, and only then are lines shown again.
TEST(Transcript, EveryLineInsideAChatterScopeIsChatterToItsOutermostEnd) {
    std::ostringstream out;
    Transcript transcript(out);
    transcript.ShowChatter(Transcript::Shown::None);
    {
        const Transcript::ChatterScope outer(transcript);
        transcript.Line("raise Form_Resize");
        {
            const Transcript::ChatterScope inner(transcript);
            transcript.Line("set vscroll.Value=0");
        }
        transcript.Line("set picActual.Top=720");
    }
    transcript.Line("stroke 0,1 -> 2,1 color=0x000000");
    EXPECT_EQ(out.str(), "stroke 0,1 -> 2,1 color=0x000000\n");
}

// "chatter form" keeps the form's own writes, at any depth of nested
// resizes, and leaves out everything else the layout writes.
TEST(Transcript, FormOnlyShowsTheFormsOwnWritesAtAnyDepth) {
    std::ostringstream out;
    Transcript transcript(out);
    transcript.ShowChatter(Transcript::Shown::FormOnly);
    transcript.FormChatter("set frmSlicewright.Height=16560");
    {
        const Transcript::ChatterScope resize(transcript);
        transcript.Line("raise Form_Resize");
        transcript.Chatter("set vscroll.Max=5655");
        transcript.FormChatter("set frmSlicewright.Top=1");
    }
    transcript.FormChatter("frmSlicewright.Refresh");
    transcript.Chatter("picResize.Refresh");
    transcript.Line("plain");
    transcript.ShowChatter(Transcript::Shown::None);
    transcript.FormChatter("set frmSlicewright.Left=0");
    EXPECT_EQ(out.str(), "set frmSlicewright.Height=16560\nset frmSlicewright.Top=1\n"
                         "frmSlicewright.Refresh\nplain\n");
}

// The port that is made to fail must fail whether its line is shown or not,
// or leaving chatter out would change what the logic does.
TEST(Transcript, ChatterLeftOutStillFailsWhereAPortIsMadeToFail) {
    std::ostringstream out;
    Transcript transcript(out);
    transcript.ShowChatter(Transcript::Shown::None);
    transcript.FailAt("set vscroll.");
    EXPECT_THROW(transcript.Chatter("set vscroll.Max=90"), std::runtime_error);
    transcript.FailAt("set frmSlicewright.");
    EXPECT_THROW(transcript.FormChatter("set frmSlicewright.Width=90"), std::runtime_error);
    const Transcript::ChatterScope scope(transcript);
    transcript.FailAt("raise Form_Resize");
    EXPECT_THROW(transcript.Line("raise Form_Resize"), std::runtime_error);
    EXPECT_EQ(out.str(), "");
}

} // namespace
} // namespace sw::scripted
