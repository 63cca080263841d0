#include "tools/scenario/ScriptedShell.h"

#include "common/QuotedText.h"

namespace sw::scripted {

void ScriptedShell::OpenDocument(const std::string& target) {
    transcript_.Line("shell open " + QuoteText(target));
}

} // namespace sw::scripted
