#include "dialogs/frmFinish.h"
#include "dialogs/frmHTML.h"
#include "tools/scenario/ScriptedClipboard.h"

#include <gtest/gtest.h>
#include <sstream>

namespace sw {
namespace {

std::string selected(const frmFinish& form) {
    return std::string(form.optScreen ? "S" : "") + (form.optFile ? "F" : "") +
           (form.optNo ? "N" : "");
}

TEST(frmFinish, OffersTheStoredChoiceAndTakesTheLastClick) {
    const struct {
        const char* entry;
        const char* clicks;
        const char* shownAtLoad;
        const char* result;
    } cases[] = {
        {"S", "", "S", "S"}, {"F", "", "F", "F"},  {"N", "FN", "N", "N"}, {"N", "SF", "N", "F"},
        {"X", "", "N", "X"}, {"X", "N", "N", "N"}, {"", "", "N", ""},     {"S", "SS", "S", "S"},
    };
    for (const auto& c : cases) {
        frmFinish form;
        form.optFile = true; // what an earlier showing left must not matter
        form.OutputType = c.entry;
        form.StatusCaption = "done";
        form.Form_Load();
        EXPECT_EQ(selected(form), c.shownAtLoad) << c.entry;
        EXPECT_EQ(form.lblStatus, "done");
        for (const char click : std::string(c.clicks)) {
            click == 'S' ? form.optScreen_Click()
                         : (click == 'F' ? form.optFile_Click() : form.optNo_Click());
        }
        form.cmdContinue_Click();
        EXPECT_FALSE(form.Loaded());
        EXPECT_EQ(form.OutputType, c.result) << c.entry << " then " << c.clicks;
    }
}

TEST(frmHTML, CopiesTheWholeTextEachTimeAndLeavesNoSelection) {
    std::ostringstream log;
    scripted::Transcript transcript(log);
    scripted::ScriptedClipboard clipboard(transcript);
    frmHTML form(clipboard);
    form.Form_Load();
    form.rtxtHTML.Text = "<TABLE>\r\n</TABLE>\r\n";
    form.rtxtHTML.SelStart = 3;
    form.rtxtHTML.SelLength = 2;
    form.cmdClip_Click();
    EXPECT_EQ(clipboard.Text(), "<TABLE>\r\n</TABLE>\r\n");
    EXPECT_EQ(form.rtxtHTML.SelStart, 0u);
    EXPECT_EQ(form.rtxtHTML.SelLength, 0u);
    EXPECT_TRUE(form.Loaded());

    form.rtxtHTML.Text = "edited"; // the copy takes what the box holds then
    form.cmdClip_Click();
    EXPECT_EQ(clipboard.Text(), "edited");
    EXPECT_EQ(log.str(), "clipboard clear\nclipboard text \"<TABLE>\\r\\n</TABLE>\\r\\n\"\n"
                         "clipboard clear\nclipboard text \"edited\"\n");

    form.cmdClose_Click();
    EXPECT_FALSE(form.Loaded());
    EXPECT_EQ(form.rtxtHTML.Text, "");
}

} // namespace
} // namespace sw
