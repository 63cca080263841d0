#include "qt/QtFileDialog.h"

#include "qt/QtText.h"
#include "window/DialogFilter.h"

#include <QFileDialog>
#include <QFileInfo>

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

// The ending of a type of one plain pattern ("JPEG Files (*.jpg)" gives
// "jpg"); none for a type of several patterns or a wildcard ending.
QString endingOf(const QString& nameFilter) {
    if (!nameFilter.endsWith(')')) {
        return {};
    }
    const QStringList patterns =
        nameFilter.section('(', -1).chopped(1).split(' ', Qt::SkipEmptyParts);
    if (patterns.size() != 1 || !patterns.first().startsWith("*.")) {
        return {};
    }
    const QString ending = patterns.first().mid(2);
    return ending.contains('*') || ending.contains('?') ? QString() : ending;
}

} // namespace

// A name typed without an ending gets the ending of the chosen type, and the
// chosen type stays for the next showing with the same types (after the
// logic refused a name, say).
void QtFileDialog::show(bool forOpening) {
    QFileDialog dialog(owner_, ToQ(DialogTitle), ToQ(InitDir));
    dialog.setAcceptMode(forOpening ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(forOpening ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilters(nameFilters(Filter));
    const auto remembered = chosenTypes_.find(Filter);
    if (remembered != chosenTypes_.end()) {
        dialog.selectNameFilter(remembered->second);
    }
    if (!FileName.empty()) {
        dialog.selectFile(ToQ(FileName));
    }
    const bool accepted = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
    chosenTypes_[Filter] = dialog.selectedNameFilter();
    if (!accepted) {
        FileName.clear();
        return;
    }
    QString chosen = dialog.selectedFiles().first();
    const QString ending = endingOf(dialog.selectedNameFilter());
    if (!forOpening && !ending.isEmpty() && QFileInfo(chosen).suffix().isEmpty()) {
        chosen += "." + ending;
    }
    FileName = FromQ(chosen);
}

} // namespace sw::qt
