#include "tools/scenario/ScriptedFileDialog.h"

#include "common/QuotedText.h"

namespace sw::scripted {

void ScriptedFileDialog::show(const std::string& kind) {
    const std::string line = "dialog " + kind + " filename=" + QuoteText(FileName) +
                             " initdir=" + QuoteText(InitDir) + " filter=" + QuoteText(Filter) +
                             " title=" + QuoteText(DialogTitle);
    FileName = answers_.Take(kind, line);
    transcript_.Line(line + " -> " + QuoteText(FileName));
}

} // namespace sw::scripted
