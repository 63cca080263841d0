#include "qt/HtmlForm.h"

#include "dialogs/frmHTML.h"

#include <QFont>
#include <QFontMetrics>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <algorithm>

namespace sw::qt {
namespace {

// The stored client area, 7830 x 4350 twips.
constexpr QSize kStoredSize(522, 290);

} // namespace

HtmlForm::HtmlForm(frmHTML& form, QWidget* owner) : QDialog(owner), form_(form) {
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                   Qt::WindowMaximizeButtonHint);
    setWindowTitle(frmHTML::kTitle);
    form_.Form_Load();
    setupControls();
    fitToText();
}

// At least the stored 7830 x 4350 twips; larger where that shows a small
// table whole, up to most of the screen. Lines never wrap: a longer one is
// reached with the horizontal bar.
void HtmlForm::fitToText() {
    const QFontMetrics metrics(rtxtHTML_->font());
    int widest = 0;
    const QStringList lines = rtxtHTML_->toPlainText().split('\n');
    for (const QString& line : lines) {
        widest = std::max(widest, metrics.horizontalAdvance(line));
    }
    // Room for the text box's frame, margins and both bars around the text.
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize around = sizeHint() - rtxtHTML_->sizeHint() + QSize(bar + 16, bar + 16);
    const QSize text(widest, static_cast<int>(lines.size()) * metrics.lineSpacing());
    const QSize most = (screen()->availableGeometry().size() * 8 / 10).expandedTo(kStoredSize);
    resize((text + around).expandedTo(kStoredSize).boundedTo(most));
}

void HtmlForm::setupControls() {
    auto* layout = new QGridLayout(this);
    rtxtHTML_ = new QPlainTextEdit(QString::fromStdString(form_.rtxtHTML.Text), this);
    QFont courier("Courier");
    courier.setStyleHint(QFont::Monospace);
    courier.setPointSizeF(9.75);
    rtxtHTML_->setFont(courier);
    rtxtHTML_->setLineWrapMode(QPlainTextEdit::NoWrap);
    rtxtHTML_->document()->setModified(false);
    layout->addWidget(rtxtHTML_, 0, 0, 1, 3);
    auto* cmdClip = new QPushButton("Copy to Clipboard", this);
    auto* cmdClose = new QPushButton("Close", this);
    cmdClip->setAutoDefault(false);
    cmdClose->setAutoDefault(false);
    connect(cmdClip, &QPushButton::clicked, this, [this] { this->cmdClip(); });
    connect(cmdClose, &QPushButton::clicked, this, [this] { reject(); });
    layout->setColumnStretch(0, 1);
    layout->addWidget(cmdClip, 1, 1);
    layout->addWidget(cmdClose, 1, 2);
}

// The copy takes what the box holds; text the user has edited comes back
// with the CR LF line ends of the table.
void HtmlForm::pullText() {
    if (!rtxtHTML_->document()->isModified()) {
        return;
    }
    form_.rtxtHTML.Text = rtxtHTML_->toPlainText().replace('\n', "\r\n").toStdString();
}

void HtmlForm::cmdClip() {
    pullText();
    form_.cmdClip_Click();
    QTextCursor cursor = rtxtHTML_->textCursor();
    cursor.setPosition(0);
    rtxtHTML_->setTextCursor(cursor);
}

void HtmlForm::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        cmdClip();
        return;
    }
    QDialog::keyPressEvent(event);
}

void HtmlForm::reject() {
    form_.cmdClose_Click();
    QDialog::reject();
}

} // namespace sw::qt
