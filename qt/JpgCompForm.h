#pragma once

#include <QDialog>

class QLineEdit;

namespace sw {
class frmJPGComp;
}

namespace sw::qt {

// frmJPGComp on the screen: every typed key goes through the form's key
// filter, the buttons through its handlers; it closes when the form says so.
class JpgCompForm : public QDialog {
public:
    JpgCompForm(frmJPGComp& form, QWidget* owner);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void reject() override;

private:
    void setupControls();
    void press(void (frmJPGComp::*handler)());
    void pullText();
    void pushText();

    frmJPGComp& form_;
    QLineEdit* txtJPGComp_ = nullptr;
};

} // namespace sw::qt
