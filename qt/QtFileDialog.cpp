#include "qt/QtFileDialog.h"

#include "qt/QtText.h"
#include "window/DialogFilter.h"

#include <QFileDialog>

namespace sw::qt {
namespace {

QStringList nameFilters(const std::string& filter) {
    QStringList filters;
    for (const FilterChoice& choice : ParseDialogFilter(filter)) {
        QStringList patterns;
        for (const std::string& pattern : choice.patterns) {
            patterns << ToQ(pattern);
        }
        filters << ToQ(choice.label) + " (" + patterns.join(' ') + ")";
    }
    return filters;
}

} // namespace

void QtFileDialog::show(bool forOpening) {
    QFileDialog dialog(owner_, ToQ(DialogTitle), ToQ(InitDir));
    dialog.setAcceptMode(forOpening ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(forOpening ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilters(nameFilters(Filter));
    if (!FileName.empty()) {
        dialog.selectFile(ToQ(FileName));
    }
    const bool accepted = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
    FileName = accepted ? FromQ(dialog.selectedFiles().first()) : std::string();
}

} // namespace sw::qt
