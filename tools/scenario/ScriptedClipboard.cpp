#include "tools/scenario/ScriptedClipboard.h"

#include "common/QuotedText.h"
#include "imaging/Picture.h"

namespace sw::scripted {

void ScriptedClipboard::Clear() {
    text_.clear();
    transcript_.Line("clipboard clear");
}

void ScriptedClipboard::SetText(const std::string& text) {
    text_ = text;
    transcript_.Line("clipboard text " + QuoteText(text));
}

bool ScriptedClipboard::SetPicture(const Picture& picture) {
    text_.clear();
    transcript_.Line("clipboard picture " + std::to_string(picture.Width()) + "x" +
                     std::to_string(picture.Height()));
    return true;
}

} // namespace sw::scripted
