// The toolbar table against the line set: the button that the line set
// offers and withdraws as Undo must be the one that undoes.
#include "window/Toolbar.h"

#include "ports/Controls.h"
#include "session/Session.h"
#include "tools/scenario/ScenarioRunner.h"
#include "window/CommandHandlers.h"

#include <gtest/gtest.h>
#include <sstream>

namespace sw {
namespace {

TEST(Toolbar, UndoIsTheButtonTheLineSetOffersAndStartsWithdrawn) {
    int count = 0;
    const ToolbarEntry* entries = ToolbarEntries(count);
    int undoEntries = 0;
    for (int i = 0; i < count; ++i) {
        const bool isUndo = entries[i].command == mnuUndo_Click;
        undoEntries += isUndo ? 1 : 0;
        EXPECT_EQ(entries[i].index == kUndoButton, isUndo) << entries[i].toolTip;
        EXPECT_EQ(entries[i].enabled, !isUndo) << entries[i].toolTip;
    }
    EXPECT_EQ(undoEntries, 1);
}

TEST(Toolbar, TheOfferedUndoButtonTakesTheLastLineBack) {
    std::ostringstream transcript;
    scripted::ScenarioRunner runner(transcript, nullptr);
    std::istringstream script("picture \"p.bmp\" 400 300\nstart\nanswer open \"p.bmp\"\n"
                              "event mnuOPen_Click\nevent picActual_MouseMove 7 9\n"
                              "event picActual_Click\n");
    runner.Run(script);
    Session& session = runner.CurrentSession();
    ASSERT_EQ(session.state.hLineCount, 1);
    EXPECT_NE(transcript.str().find("set tlbrMain.Buttons(" + std::to_string(kUndoButton) +
                                    ").Enabled=True"),
              std::string::npos);
    tlbrMain_ButtonClick(session, kUndoButton);
    EXPECT_EQ(session.state.hLineCount, 0);
    EXPECT_FALSE(session.state.undoOffered);
}

} // namespace
} // namespace sw
