#pragma once

#include <QDialog>
#include <functional>

namespace sw {
class frmAbout;
}

namespace sw::qt {

// frmAbout on the screen, beside the main window. Its clicks go to the
// form's handlers through `raise`, which also closes it when they unload it.
class AboutForm : public QDialog {
public:
    using Raise = std::function<void(void (frmAbout::*)())>;
    AboutForm(const frmAbout& form, Raise raise);

protected:
    void reject() override;

private:
    void setupTexts(const frmAbout& form);
    void setupButtons();
    QWidget* makeLogo();
    Raise raise_;
};

} // namespace sw::qt
