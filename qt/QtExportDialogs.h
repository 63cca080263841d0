#pragma once

#include "ports/ExportDialogs.h"

class QWidget;

namespace sw::qt {

// The two dialogs that close an export, shown modally over the main window.
class QtExportDialogs : public ExportDialogs {
public:
    explicit QtExportDialogs(QWidget* owner) : owner_(owner) {}
    void ShowFinish(frmFinish& form) override;
    void ShowHtml(frmHTML& form) override;

private:
    QWidget* owner_;
};

} // namespace sw::qt
