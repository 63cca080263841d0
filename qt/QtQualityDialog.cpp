#include "qt/QtQualityDialog.h"

#include "qt/JpgCompForm.h"

namespace sw::qt {

void QtQualityDialog::ShowJpgComp(frmJPGComp& form) {
    JpgCompForm dialog(form, owner_);
    dialog.exec();
}

} // namespace sw::qt
