#include "tools/scenario/ScriptedAboutWindow.h"

#include "common/QuotedText.h"

namespace sw::scripted {

void ScriptedAboutWindow::Show(std::unique_ptr<frmAbout> form) {
    form_ = std::move(form);
    transcript_.Line("about show caption=" + QuoteText(form_->Caption) +
                     " version=" + QuoteText(form_->lblVersion) +
                     " description=" + QuoteText(form_->lblDescription));
}

void ScriptedAboutWindow::Close() {
    form_.reset();
    transcript_.Line("about closed");
}

} // namespace sw::scripted
