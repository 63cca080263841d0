#pragma once

#include "ports/ExportDialogs.h"

#include <QElapsedTimer>
#include <memory>

class QProgressDialog;
class QWidget;

namespace sw::qt {

// The dialogs of an export over the main window: a progress dialog with
// Cancel once the writing has taken about half a second, and the two modal
// dialogs that close the export.
class QtExportDialogs : public ExportDialogs {
public:
    explicit QtExportDialogs(QWidget* owner);
    ~QtExportDialogs() override;
    void ShowFinish(frmFinish& form) override;
    void ShowHtml(frmHTML& form) override;
    void BeginProgress(int total) override;
    bool AdvanceProgress(int done, int total, const std::string& fileName) override;
    void EndProgress() override;

private:
    QWidget* owner_;
    std::unique_ptr<QProgressDialog> progress_;
    // Time since the dialog was last brought up to date: thousands of small
    // sections must not each wait for a repaint.
    QElapsedTimer sinceUpdate_;
};

} // namespace sw::qt
