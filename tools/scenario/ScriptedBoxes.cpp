#include "tools/scenario/ScriptedBoxes.h"

#include "common/QuotedText.h"

namespace sw::scripted {
namespace {

BoxResult parseResult(const std::string& text) {
    for (BoxResult r : {BoxResult::OK, BoxResult::Cancel, BoxResult::Yes, BoxResult::No}) {
        if (text == BoxResultName(r)) {
            return r;
        }
    }
    throw ScriptError("unknown box answer \"" + text + "\" (Yes, No, Cancel or OK)");
}

bool offersAllowed(BoxButtons buttons, BoxResult result) {
    switch (buttons) {
    case BoxButtons::OK:
        return result == BoxResult::OK;
    case BoxButtons::OKCancel:
        return result == BoxResult::OK || result == BoxResult::Cancel;
    case BoxButtons::YesNo:
        return result == BoxResult::Yes || result == BoxResult::No;
    case BoxButtons::YesNoCancel:
        return result != BoxResult::OK;
    }
    return false;
}

} // namespace

BoxResult ScriptedBoxes::Show(const BoxRequest& r) {
    std::string line = "box title=" + QuoteText(r.title) + " text=" + QuoteText(r.text) +
                       " icon=" + BoxIconName(r.icon) + " buttons=" + BoxButtonsName(r.buttons);
    if (r.buttons != BoxButtons::OK) {
        line += std::string(" default=") + BoxResultName(r.defaultButton);
    }
    BoxResult result = BoxResult::OK;
    if (r.buttons != BoxButtons::OK) {
        result = parseResult(answers_.Take("box", line));
        if (!offersAllowed(r.buttons, result)) {
            throw ScriptError("the box does not offer " + std::string(BoxResultName(result)) +
                              ": " + line);
        }
    }
    transcript_.Line(line + " -> " + BoxResultName(result));
    return result;
}

std::string ScriptedBoxes::InputBox(const std::string& prompt, const std::string& title,
                                    const std::string& defaultText) {
    const std::string line = "input title=" + QuoteText(title) + " prompt=" + QuoteText(prompt) +
                             " default=" + QuoteText(defaultText);
    const std::string answer = answers_.Take("input", line);
    transcript_.Line(line + " -> " + QuoteText(answer));
    return answer;
}

} // namespace sw::scripted
