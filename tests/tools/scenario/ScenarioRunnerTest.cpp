#include "tools/scenario/ScenarioRunner.h"

#include <gtest/gtest.h>
#include <sstream>

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

} // namespace
} // namespace sw::scripted
