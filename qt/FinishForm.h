#pragma once

#include <QDialog>
#include <functional>

class QRadioButton;

namespace sw {
class frmFinish;
}

namespace sw::qt {

// frmFinish on the screen: each option's click goes to the form's handler at
// once; Continue, the Enter key and the close box all close it the same way.
class FinishForm : public QDialog {
public:
    FinishForm(frmFinish& form, QWidget* owner);

    QRadioButton* optScreen() const { return optScreen_; }
    QRadioButton* optFile() const { return optFile_; }
    QRadioButton* optNo() const { return optNo_; }

protected:
    void reject() override;

private:
    void setupControls();
    QRadioButton* addOption(const char* text, std::function<void()> click);
    void showSelection();
    void cmdContinue();

    frmFinish& form_;
    QRadioButton* optScreen_ = nullptr;
    QRadioButton* optFile_ = nullptr;
    QRadioButton* optNo_ = nullptr;
};

} // namespace sw::qt
