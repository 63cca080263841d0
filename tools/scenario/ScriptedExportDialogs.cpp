#include "tools/scenario/ScriptedExportDialogs.h"

#include "common/QuotedText.h"
#include "dialogs/frmFinish.h"
#include "dialogs/frmHTML.h"

namespace sw::scripted {
namespace {

const char* selectedOption(const frmFinish& form) {
    if (form.optScreen) {
        return "optScreen";
    }
    return form.optFile ? "optFile" : "optNo";
}

// Clicks one option; answers the name of what was clicked.
std::string clickOption(frmFinish& form, const std::string& token) {
    if (token == "S") {
        form.optScreen_Click();
    } else if (token == "F") {
        form.optFile_Click();
    } else if (token == "N") {
        form.optNo_Click();
    } else if (token != "keep") {
        throw ScriptError("a 'finish' answer takes N, S, F or keep, not \"" + token + "\"");
    }
    return token == "keep" ? "" : std::string(selectedOption(form)) + ",";
}

void clickHtml(frmHTML& form, const std::string& token) {
    if (token == "copy") {
        form.cmdClip_Click();
    } else if (token == "close") {
        form.cmdClose_Click();
    } else {
        throw ScriptError("an 'html' answer takes copy or close, not \"" + token + "\"");
    }
}

} // namespace

void ScriptedExportDialogs::ShowFinish(frmFinish& form) {
    form.Form_Load();
    const std::string line = "finish show title=" + QuoteText(frmFinish::kTitle) +
                             " status=" + QuoteText(form.lblStatus) +
                             " output=" + QuoteText(form.OutputType) +
                             " selected=" + selectedOption(form);
    std::string clicks;
    for (const std::string& token : answers_.TakeTokens("finish", line)) {
        clicks += clickOption(form, token);
    }
    form.cmdContinue_Click();
    transcript_.Line(line + " -> " + clicks + "Continue output=" + QuoteText(form.OutputType));
}

void ScriptedExportDialogs::ShowHtml(frmHTML& form) {
    form.Form_Load();
    const std::string line =
        "html show title=" + QuoteText(frmHTML::kTitle) + " text=" + QuoteText(form.rtxtHTML.Text);
    const Answers::Tokens clicks = answers_.TakeTokens("html", line);
    transcript_.Line(line);
    for (const std::string& token : clicks) {
        if (!form.Loaded()) {
            throw ScriptError("the HTML view is closed before \"" + token + "\"");
        }
        transcript_.Line("html " + token);
        clickHtml(form, token);
    }
    if (form.Loaded()) {
        throw ScriptError("the HTML view was left open: end its answer with close");
    }
}

void ScriptedExportDialogs::BeginProgress(int) {}

bool ScriptedExportDialogs::AdvanceProgress(int done, int total, const std::string& fileName) {
    const bool cancel = done == cancelAt;
    if (showProgress || cancel) {
        transcript_.Line("progress " + std::to_string(done) + "/" + std::to_string(total) + " " +
                         QuoteText(fileName) + (cancel ? " -> Cancel" : ""));
    }
    return !cancel;
}

void ScriptedExportDialogs::EndProgress() {
    cancelAt = 0;
}

} // namespace sw::scripted
