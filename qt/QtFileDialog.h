#pragma once

#include "ports/FileDialog.h"

#include <QString>
#include <map>
#include <string>

class QWidget;

namespace sw::qt {

// dlgPic as a Qt file dialog. The logic asks its own overwrite questions, so
// the dialog asks none.
class QtFileDialog : public FileDialog {
public:
    explicit QtFileDialog(QWidget* owner) : owner_(owner) {}
    void ShowOpen() override { show(true); }
    void ShowSave() override { show(false); }

private:
    void show(bool forOpening);
    QWidget* owner_;
    // The type last chosen for each list of types.
    std::map<std::string, QString> chosenTypes_;
};

} // namespace sw::qt
