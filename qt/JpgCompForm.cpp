#include "qt/JpgCompForm.h"

#include "dialogs/frmJPGComp.h"
#include "qt/QtText.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <optional>

namespace sw::qt {
namespace {

constexpr i16 kBackspace = 8;
// What a character beyond ASCII reaches the key filter as: a code it drops.
constexpr i16 kNotAscii = 127;

// The character code a key delivers, as the key filter sees it; nothing for
// keys that carry no character (arrows, Delete, Enter, Esc), which the box
// and the dialog handle themselves.
std::optional<i16> keyAsciiOf(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Backspace) {
        return kBackspace;
    }
    const QString text = key.text();
    const bool ownKey =
        key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Escape;
    if (text.isEmpty() || ownKey) {
        return std::nullopt;
    }
    const char16_t code = text.at(0).unicode();
    return text.size() == 1 && code < 0x80 ? static_cast<i16>(code) : kNotAscii;
}

} // namespace

JpgCompForm::JpgCompForm(frmJPGComp& form, QWidget* owner) : QDialog(owner), form_(form) {
    setWindowTitle(frmJPGComp::kCaption);
    setupControls();
    form_.Form_Load();
    pushText();
}

void JpgCompForm::setupControls() {
    auto* layout = new QGridLayout(this);
    layout->addWidget(new QLabel(frmJPGComp::kPrompt, this), 0, 0, 1, 2);
    txtJPGComp_ = new QLineEdit(this);
    txtJPGComp_->setFixedWidth(48);
    txtJPGComp_->installEventFilter(this);
    layout->addWidget(txtJPGComp_, 0, 2);
    auto* ok = new QPushButton("OK", this);
    auto* cancel = new QPushButton("Cancel", this);
    auto* reset = new QPushButton("Reset", this);
    ok->setDefault(true);
    layout->addWidget(ok, 1, 0);
    layout->addWidget(cancel, 1, 1);
    layout->addWidget(reset, 1, 2);
    connect(ok, &QPushButton::clicked, this, [this] { press(&frmJPGComp::cmdOK_Click); });
    connect(cancel, &QPushButton::clicked, this, [this] { press(&frmJPGComp::cmdCancel_Click); });
    connect(reset, &QPushButton::clicked, this, [this] { press(&frmJPGComp::cmdReset_Click); });
}

void JpgCompForm::pullText() {
    TextBox& box = form_.txtJPGComp;
    box.Text = FromQ(txtJPGComp_->text());
    const bool selected = txtJPGComp_->hasSelectedText();
    box.SelStart = selected ? txtJPGComp_->selectionStart() : txtJPGComp_->cursorPosition();
    box.SelLength = selected ? static_cast<int>(txtJPGComp_->selectedText().size()) : 0;
}

void JpgCompForm::pushText() {
    const TextBox& box = form_.txtJPGComp;
    txtJPGComp_->setText(ToQ(box.Text));
    txtJPGComp_->setSelection(box.SelStart, box.SelLength);
    if (box.SelLength == 0) {
        txtJPGComp_->setCursorPosition(box.SelStart);
    }
}

void JpgCompForm::press(void (frmJPGComp::*handler)()) {
    pullText();
    (form_.*handler)();
    if (form_.Closed()) {
        accept();
    }
}

// Esc and the close box act as Cancel.
void JpgCompForm::reject() {
    if (!form_.Closed()) {
        form_.cmdCancel_Click();
    }
    QDialog::reject();
}

bool JpgCompForm::eventFilter(QObject* watched, QEvent* event) {
    if (watched != txtJPGComp_ || event->type() != QEvent::KeyPress) {
        return QDialog::eventFilter(watched, event);
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const std::optional<i16> keyAscii = keyAsciiOf(key);
    if (!keyAscii) {
        return QDialog::eventFilter(watched, event);
    }
    pullText();
    form_.PressKey(*keyAscii);
    pushText();
    return true;
}

} // namespace sw::qt
