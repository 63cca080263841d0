#include "qt/QtExportDialogs.h"

#include "qt/FinishForm.h"
#include "qt/HtmlForm.h"

namespace sw::qt {

void QtExportDialogs::ShowFinish(frmFinish& form) {
    FinishForm dialog(form, owner_);
    dialog.exec();
}

void QtExportDialogs::ShowHtml(frmHTML& form) {
    HtmlForm dialog(form, owner_);
    dialog.exec();
}

} // namespace sw::qt
