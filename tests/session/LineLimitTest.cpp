#include "session/SectionLines.h"
#include "session/Session.h"
#include "tools/scenario/ScriptedPorts.h"

#include <gtest/gtest.h>
#include <sstream>

namespace sw::scripted {
namespace {

// The counts and the log are 16-bit: a line past 32767 of a kind must be
// refused with a message, never wrap the count.
TEST(LineLimit, TheLineAfterTheLastThatFitsIsRefusedAndNothingChanges) {
    std::ostringstream transcript;
    ScriptedPorts ports(transcript, nullptr);
    Session session(ports.ports);
    SessionState& s = session.state;
    s.hLines.ReDimPreserve(32767);
    s.hLineCount = 32767;
    s.lineOrder.ReDimPreserve(32767);
    for (int i = 1; i <= 32767; ++i) {
        s.lineOrder(i) = "H";
    }
    RecordLine(session);
    EXPECT_EQ(s.hLineCount, 32767);
    EXPECT_EQ(s.hLines.UBound(), 32767);
    EXPECT_EQ(s.lineOrder.UBound(), 32767);
    EXPECT_NE(transcript.str().find("Too Many Lines"), std::string::npos);
    EXPECT_EQ(transcript.str().find("stroke"), std::string::npos);
}

TEST(LineLimit, AFullLogAlsoRefusesALineOfTheOtherKind) {
    std::ostringstream transcript;
    ScriptedPorts ports(transcript, nullptr);
    Session session(ports.ports);
    session.state.lineOrder.ReDimPreserve(32767);
    ports.controls.SetChecked(Item::mnuHorizontalLine, false);
    RecordLine(session);
    EXPECT_EQ(session.state.vLineCount, 0);
}

} // namespace
} // namespace sw::scripted
