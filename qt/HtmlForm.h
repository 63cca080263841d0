#pragma once

#include <QDialog>

class QPlainTextEdit;

namespace sw {
class frmHTML;
}

namespace sw::qt {

// frmHTML on the screen: the table text for copying. The Esc key copies, as
// the Copy button does, and leaves the dialog open; Close and the close box close it.
class HtmlForm : public QDialog {
public:
    HtmlForm(frmHTML& form, QWidget* owner);

    QPlainTextEdit* rtxtHTML() const { return rtxtHTML_; }
    void cmdClip();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void reject() override;

private:
    void setupControls();
    void fitToText();
    void pullText();

    frmHTML& form_;
    QPlainTextEdit* rtxtHTML_ = nullptr;
};

} // namespace sw::qt
