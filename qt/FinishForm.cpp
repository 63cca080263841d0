#include "qt/FinishForm.h"

#include "dialogs/frmFinish.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>

namespace sw::qt {
namespace {

// The widest the status sentence stands on one line, in pixels.
constexpr int kSentenceWidth = 420;

} // namespace

FinishForm::FinishForm(frmFinish& form, QWidget* owner) : QDialog(owner), form_(form) {
    // A small fixed tool window, with no minimise or maximise button and no task bar entry.
    setWindowFlags(Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                   Qt::MSWindowsFixedSizeDialogHint);
    setWindowTitle(frmFinish::kTitle);
    form_.Form_Load();
    setupControls();
    showSelection();
    setFixedSize(sizeHint());
}

QRadioButton* FinishForm::addOption(const char* text, std::function<void()> click) {
    auto* option = new QRadioButton(text, this);
    connect(option, &QRadioButton::toggled, this, [click = std::move(click)](bool checked) {
        if (checked) {
            click();
        }
    });
    layout()->addWidget(option);
    return option;
}

void FinishForm::setupControls() {
    auto* layout = new QVBoxLayout(this);
    auto* lblStatus = new QLabel(QString::fromStdString(form_.lblStatus), this);
    lblStatus->setAlignment(Qt::AlignCenter);
    lblStatus->setWordWrap(true);
    // Wrapped at a sentence's width, not at the width of the widest option.
    lblStatus->setMinimumWidth(
        std::min(lblStatus->fontMetrics().horizontalAdvance(lblStatus->text()), kSentenceWidth));
    layout->addWidget(lblStatus);
    optScreen_ = addOption("Yes, in a screen", [this] { form_.optScreen_Click(); });
    optFile_ = addOption("Yes, to an HTML file", [this] { form_.optFile_Click(); });
    optNo_ = addOption("No thank you!", [this] { form_.optNo_Click(); });
    auto* continueButton = new QPushButton("Continue", this);
    continueButton->setDefault(true);
    connect(continueButton, &QPushButton::clicked, this, [this] { cmdContinue(); });
    layout->addWidget(continueButton, 0, Qt::AlignHCenter);
}

// Shows what loading the form selected, without clicking anything: a stored
// value other than the three leaves optNo selected and the value as it is.
void FinishForm::showSelection() {
    for (QRadioButton* option : {optScreen_, optFile_, optNo_}) {
        option->blockSignals(true);
    }
    optScreen_->setChecked(form_.optScreen);
    optFile_->setChecked(form_.optFile);
    optNo_->setChecked(form_.optNo);
    for (QRadioButton* option : {optScreen_, optFile_, optNo_}) {
        option->blockSignals(false);
    }
}

void FinishForm::cmdContinue() {
    form_.cmdContinue_Click();
    accept();
}

// The close box (and Esc) leave the choice as it stands, as Continue does.
void FinishForm::reject() {
    form_.cmdContinue_Click();
    QDialog::reject();
}

} // namespace sw::qt
