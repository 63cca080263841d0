#include "tools/scenario/ScenarioRunner.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace sw::scripted {
namespace {

std::string run(const std::string& script) {
    std::ostringstream transcript;
    ScenarioRunner runner(transcript, nullptr);
    std::istringstream in(script);
    runner.Run(in);
    return transcript.str();
}

TEST(ScenarioRunner, StopsWhenTheLogicAsksForAnAnswerTheScriptLacks) {
    const std::string script = "picture \"/p.bmp\" 10 10\nstart\nanswer open \"/p.bmp\"\n"
                               "event mnuOPen_Click\nevent mnuClear_Click\n";
    try {
        run(script);
        FAIL() << "the missing answer went unnoticed";
    } catch (const ScriptError& error) {
        EXPECT_NE(std::string(error.what()).find("line 5"), std::string::npos) << error.what();
        EXPECT_NE(std::string(error.what()).find("Clear Verification"), std::string::npos);
    }
}

TEST(ScenarioRunner, StopsWhenAnswersAreLeftUnused) {
    EXPECT_THROW(run("start\nanswer box Yes\n"), ScriptError);
}

TEST(ScenarioRunner, RefusesUnknownCommandsEventsAndWrongArgumentCounts) {
    EXPECT_THROW(run("jump\n"), ScriptError);
    EXPECT_THROW(run("event mnuNothing_Click\n"), ScriptError);
    EXPECT_THROW(run("event picActual_MouseMove 1\n"), ScriptError);
    EXPECT_THROW(run("answer box \"Yes\n"), ScriptError);
    // Found by fuzzing: an empty picture ended the runner as a failure of the logic.
    EXPECT_THROW(run("picture \"p.bmp\" 0 100\n"), ScriptError);
    EXPECT_THROW(run("picture \"p.bmp\" 100 -1\n"), ScriptError);
    // Found by fuzzing too: a folder that is not there ended it the same way.
    EXPECT_THROW(run("files \"no such folder\"\n"), ScriptError);
}

std::string refusalOf(const std::string& script) {
    try {
        run(script);
    } catch (const ScriptError& error) {
        return error.what();
    }
    return "(no refusal)";
}

// A number the runner cannot read whole once became 0 or its leading digits
// and ran; now the line is refused, named by its number in the script.
TEST(ScenarioRunner, RefusesNumbersItCannotReadWholeNamingTheLine) {
    const std::string opened = "picture \"/p.bmp\" 10 10\nstart\nanswer open \"/p.bmp\"\n"
                               "event mnuOPen_Click\n";
    EXPECT_EQ(refusalOf(opened + "event picActual_MouseMove x 3\n"), "line 5: not a number: \"x\"");
    EXPECT_EQ(refusalOf(opened + "event picActual_MouseMove 3 4px\n"),
              "line 5: not a number: \"4px\"");
    EXPECT_EQ(refusalOf(opened + "event tlbrMain_ButtonClick 9b\n"),
              "line 5: not a whole number: \"9b\"");
    EXPECT_EQ(refusalOf(opened + "event tlbrMain_ButtonClick 99999999999\n"),
              "line 5: not a whole number: \"99999999999\"");
    EXPECT_EQ(refusalOf("start\nscroll h 1.5\n"), "line 2: not a whole number: \"1.5\"");
}

TEST(ScenarioRunner, RefusesAnAnswerTheBoxDoesNotOffer) {
    const std::string script = "picture \"/p.bmp\" 10 10\nstart\nanswer open \"/p.bmp\"\n"
                               "event mnuOPen_Click\nanswer box OK\nevent mnuClear_Click\n";
    EXPECT_THROW(run(script), ScriptError);
}

TEST(ScenarioRunner, QuotesAndEscapesStringsInTheTranscript) {
    const std::string out = run("store LastPicture \"a \\\"b\\\"\\\\c\"\nstart\n");
    EXPECT_NE(out.find(R"(-> "a \"b\"\\c")"), std::string::npos) << out;
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

bool startsWithAny(const std::string& line, const std::vector<std::string>& prefixes) {
    return std::any_of(prefixes.begin(), prefixes.end(),
                       [&line](const std::string& prefix) { return line.rfind(prefix, 0) == 0; });
}

// What the layout writes when the form changes size: the form's sizes and
// places, the resize with the bars' changes it raises, the bars and the
// corner, and the moves those changes make.
const std::vector<std::string> kFormGeometry = {
    "set frmSlicewright.Left=", "set frmSlicewright.Top=", "set frmSlicewright.Width=",
    "set frmSlicewright.Height=", "set frmSlicewright.WindowState="};
std::vector<std::string> chatterKinds() {
    std::vector<std::string> kinds = kFormGeometry;
    kinds.insert(kinds.end(),
                 {"frmSlicewright.Refresh", "raise Form_Resize", "set hscroll.", "set vscroll.",
                  "set picResize.", "picResize.Refresh", "raise hscroll_Change",
                  "raise vscroll_Change", "set picActual.Left=", "set picActual.Top=",
                  "set lblMousePos.Left=", "set lblMousePos.Top="});
    return kinds;
}

// A picture larger than the screen in a window the user then resizes,
// maximises and scrolls: every kind of chatter, and the user's own doings.
const std::string kWindowJourney = "screen 15360 11520\n"
                                   "picture \"/big.bmp\" 1200 1000\n"
                                   "start\n"
                                   "answer open \"/big.bmp\"\n"
                                   "event mnuOPen_Click\n"
                                   "event picActual_MouseMove 57 103\n"
                                   "event picActual_Click\n"
                                   "resize 9000 7000\n"
                                   "scroll v 300\n"
                                   "windowstate 2\n"
                                   "answer open \"/big.bmp\"\n"
                                   "event mnuOPen_Click\n"
                                   "fields formWidthNow formHeightNow neededWidth hLines\n";

// Leaving chatter out changes only what is shown: the transcript is the whole
// one less chatter lines, in the same order, and the logic ends in the same state.
TEST(ScenarioRunnerChatter, LeavesOutOnlyChatterAndRunsTheLogicTheSame) {
    const std::vector<std::string> whole = linesOf(run(kWindowJourney));
    const std::vector<std::string> quiet = linesOf(run("chatter off\n" + kWindowJourney));
    ASSERT_LT(quiet.size(), whole.size());
    std::size_t next = 0;
    for (const std::string& line : whole) {
        if (next < quiet.size() && line == quiet[next]) {
            ++next;
        } else {
            EXPECT_TRUE(startsWithAny(line, chatterKinds()))
                << "left out, but no chatter: " << line;
        }
    }
    EXPECT_EQ(next, quiet.size()) << "a line the whole transcript does not have";
    EXPECT_TRUE(std::equal(whole.end() - 4, whole.end(), quiet.end() - 4)) << "the fields differ";
}

// What the user does to the window is not chatter, nor what the logic does
// in answer to a scroll; the rules of opening and drawing stay in view.
TEST(ScenarioRunnerChatter, KeepsTheUsersDoingsAndTheRulesOutsideTheLayout) {
    const std::vector<std::string> quiet = linesOf(run("chatter off\n" + kWindowJourney));
    for (const char* kept :
         {"user resize 9000 7000", "user scroll vscroll 300", "raise vscroll_Change",
          "set picActual.Top=420", "user windowstate 2", "picActual picture 1200x1000",
          "stroke 0,103 -> 18000,103 color=0x000000"}) {
        EXPECT_NE(std::find(quiet.begin(), quiet.end(), kept), quiet.end()) << kept;
    }
    std::vector<std::string> layoutOnly = kFormGeometry;
    layoutOnly.insert(layoutOnly.end(),
                      {"raise Form_Resize", "set hscroll.", "set vscroll.", "set picResize."});
    for (const std::string& line : quiet) {
        EXPECT_FALSE(startsWithAny(line, layoutOnly)) << line;
    }
}

TEST(ScenarioRunnerChatter, ShowsChatterAgainWhenSwitchedOn) {
    const std::string opened = "picture \"/p.bmp\" 300 100\nstart\nanswer open \"/p.bmp\"\n"
                               "event mnuOPen_Click\n";
    const std::string shown = run("chatter off\n" + opened + "chatter on\nresize 9000 7000\n");
    EXPECT_EQ(shown.find("set frmSlicewright.Width=4890"), std::string::npos) << shown;
    EXPECT_NE(shown.find("user resize 9000 7000\nraise Form_Resize\nset hscroll.Value=0\n"),
              std::string::npos)
        << shown;
    EXPECT_EQ(refusalOf("chatter\n"), "line 1: usage: chatter off|form|on");
    EXPECT_EQ(refusalOf("chatter quiet\n"), "line 1: chatter is off, form or on, not \"quiet\"");
}

std::size_t countStartingWith(const std::vector<std::string>& lines,
                              const std::vector<std::string>& prefixes) {
    return static_cast<std::size_t>(
        std::count_if(lines.begin(), lines.end(), [&prefixes](const std::string& line) {
            return startsWithAny(line, prefixes);
        }));
}

// "chatter form" keeps every write of the form's size, place and state and
// every refresh, the nested ones of the height's cutting included, and no
// other chatter.
TEST(ScenarioRunnerChatter, FormShowsEveryCallOnTheFormAndNoOtherChatter) {
    const std::vector<std::string> whole = linesOf(run(kWindowJourney));
    const std::vector<std::string> form = linesOf(run("chatter form\n" + kWindowJourney));
    std::vector<std::string> formCalls = kFormGeometry;
    formCalls.push_back("frmSlicewright.Refresh");
    std::size_t next = 0;
    for (const std::string& line : whole) {
        if (next < form.size() && line == form[next]) {
            ++next;
        } else {
            EXPECT_TRUE(startsWithAny(line, chatterKinds()) && !startsWithAny(line, formCalls))
                << "left out, but no chatter or the form's own: " << line;
        }
    }
    EXPECT_EQ(next, form.size()) << "a line the whole transcript does not have";
    EXPECT_GT(countStartingWith(form, kFormGeometry), 20U) << "the height is cut in steps";
    EXPECT_EQ(countStartingWith(form, formCalls), countStartingWith(whole, formCalls));
    EXPECT_EQ(countStartingWith(form, {"raise Form_Resize", "set hscroll.", "set vscroll.",
                                       "set picResize.", "picResize.Refresh"}),
              0U);
}

// "layout NAME..." gives the lines of the whole layout that it names, in the
// script's order, and refuses a name it does not know.
TEST(ScenarioRunnerLayout, NamedLinesAreThoseOfTheWholeLayout) {
    const std::string opened = "picture \"/p.bmp\" 300 100\nstart\nchatter off\n"
                               "answer open \"/p.bmp\"\nevent mnuOPen_Click\nscroll h 10\n";
    const std::vector<std::string> whole = linesOf(run(opened + "layout\n"));
    ASSERT_GE(whole.size(), 6U);
    const std::vector<std::string> all(whole.end() - 6, whole.end());
    const std::vector<std::string> named =
        linesOf(run(opened + "layout picResize frmSlicewright hscroll\n"));
    const std::vector<std::string> expected = {all[5], all[0], all[4]};
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), named.end() - 3));
    EXPECT_EQ(named.size(), whole.size() - 3);
    EXPECT_EQ(refusalOf("start\nlayout vscroll picActua\n"),
              "line 2: layout shows frmSlicewright, picActual, lblMousePos, vscroll, hscroll, "
              "picResize; not \"picActua\"");
}

} // namespace
} // namespace sw::scripted
