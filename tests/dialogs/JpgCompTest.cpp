#include "dialogs/frmJPGComp.h"
#include "session/Session.h"
#include "tools/scenario/ScriptedPorts.h"

#include <gtest/gtest.h>
#include <sstream>

namespace sw {
namespace {

class JpgCompTest : public ::testing::Test {
protected:
    std::ostringstream transcript;
    scripted::ScriptedPorts outside{transcript, nullptr};
    Session session{outside.ports};

    // Opens the dialog on quality 90, types over the whole box and presses OK.
    frmJPGComp pressOkWith(const std::string& keys) {
        session.state.JPGComp = 90;
        frmJPGComp form(session);
        form.Form_Load();
        form.txtJPGComp.SelectAll();
        for (const char key : keys) {
            form.PressKey(static_cast<i16>(key));
        }
        form.cmdOK_Click();
        return form;
    }
};

TEST_F(JpgCompTest, AcceptsOneToAHundred) {
    const struct {
        const char* keys;
        i32 quality;
    } cases[] = {{"1", 1}, {"100", 100}, {"007", 7}, {"5x0", 50}, {"99\b", 9}};
    for (const auto& c : cases) {
        const frmJPGComp form = pressOkWith(c.keys);
        EXPECT_TRUE(form.Closed()) << c.keys;
        EXPECT_EQ(session.state.JPGComp, c.quality) << c.keys;
    }
}

TEST_F(JpgCompTest, RefusesOtherValuesAndStaysOpen) {
    for (const char* keys : {"0", "101", "000", "\b", "32768", "99999999"}) {
        transcript.str("");
        const frmJPGComp form = pressOkWith(keys);
        EXPECT_FALSE(form.Closed()) << keys;
        EXPECT_EQ(session.state.JPGComp, 90) << keys;
        EXPECT_NE(transcript.str().find("title=\"Incorrect Value\""), std::string::npos) << keys;
    }
}

TEST_F(JpgCompTest, ResetAndCancelCloseWhateverTheBoxHolds) {
    session.state.JPGComp = 42;
    frmJPGComp cancelled(session);
    cancelled.Form_Load();
    EXPECT_EQ(cancelled.txtJPGComp.Text, "42");
    cancelled.txtJPGComp.Text = "abc";
    cancelled.cmdCancel_Click();
    EXPECT_TRUE(cancelled.Closed());
    EXPECT_EQ(session.state.JPGComp, 42);

    frmJPGComp reset(session);
    reset.txtJPGComp.Text = "abc";
    reset.cmdReset_Click();
    EXPECT_TRUE(reset.Closed());
    EXPECT_EQ(session.state.JPGComp, 90);
}

} // namespace
} // namespace sw
