#include "qt/QtExportDialogs.h"

#include "qt/FinishForm.h"
#include "qt/HtmlForm.h"

#include <QProgressDialog>

namespace sw::qt {
namespace {

// A long export shows its progress after this; a short one only the hourglass.
constexpr int kShowAfterMilliseconds = 500;
constexpr int kUpdateEveryMilliseconds = 40;
// The dialog's width; a longer path loses its middle, so that the dialog
// never grows past the screen.
constexpr int kDialogWidth = 420;
constexpr int kPathWidth = kDialogWidth - 40;

QString progressText(const QWidget& dialog, int done, int total, const std::string& fileName) {
    return QString("Section %1 of %2 written:\n%3")
        .arg(done)
        .arg(total)
        .arg(dialog.fontMetrics().elidedText(QString::fromStdString(fileName), Qt::ElideMiddle,
                                             kPathWidth));
}

} // namespace

QtExportDialogs::QtExportDialogs(QWidget* owner) : owner_(owner) {}

QtExportDialogs::~QtExportDialogs() = default;

void QtExportDialogs::ShowFinish(frmFinish& form) {
    FinishForm dialog(form, owner_);
    dialog.exec();
}

void QtExportDialogs::ShowHtml(frmHTML& form) {
    HtmlForm dialog(form, owner_);
    dialog.exec();
}

void QtExportDialogs::BeginProgress(int total) {
    progress_ = std::make_unique<QProgressDialog>(QString(), "Cancel", 0, total, owner_);
    progress_->setLabelText(progressText(*progress_, 0, total, ""));
    progress_->setWindowTitle("Creating Sections");
    // Modal to the window, so that nothing else can touch the lines while
    // the dialog lets events through for its own painting and Cancel.
    progress_->setWindowModality(Qt::WindowModal);
    progress_->setMinimumDuration(kShowAfterMilliseconds);
    progress_->setAutoReset(false);
    progress_->setAutoClose(false);
    progress_->setMinimumWidth(kDialogWidth);
    progress_->setValue(0);
    sinceUpdate_.start();
}

bool QtExportDialogs::AdvanceProgress(int done, int total, const std::string& fileName) {
    if (!progress_) {
        return true;
    }
    if (done == total || sinceUpdate_.elapsed() >= kUpdateEveryMilliseconds) {
        progress_->setLabelText(progressText(*progress_, done, total, fileName));
        // Shows the dialog once the export has run long enough, and from
        // then on handles its events (painting, the Cancel button).
        progress_->setValue(done);
        sinceUpdate_.restart();
    }
    return !progress_->wasCanceled();
}

void QtExportDialogs::EndProgress() {
    progress_.reset();
}

} // namespace sw::qt
