#include "qt/QtMessageBoxes.h"

#include "qt/QtText.h"

#include <QInputDialog>
#include <QMessageBox>

namespace sw::qt {
namespace {

QMessageBox::Icon iconOf(BoxIcon icon) {
    switch (icon) {
    case BoxIcon::Critical:
        return QMessageBox::Critical;
    case BoxIcon::Question:
        return QMessageBox::Question;
    case BoxIcon::Exclamation:
        return QMessageBox::Warning;
    case BoxIcon::Information:
        return QMessageBox::Information;
    case BoxIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons buttonsOf(BoxButtons buttons) {
    switch (buttons) {
    case BoxButtons::OK:
        return QMessageBox::Ok;
    case BoxButtons::OKCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case BoxButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton buttonOf(BoxResult result) {
    switch (result) {
    case BoxResult::OK:
        return QMessageBox::Ok;
    case BoxResult::Cancel:
        return QMessageBox::Cancel;
    case BoxResult::Yes:
        return QMessageBox::Yes;
    case BoxResult::No:
        return QMessageBox::No;
    }
    return QMessageBox::Ok;
}

// The close box of a box with a Cancel button answers Cancel; otherwise the
// box can only be left by one of its buttons.
BoxResult resultOf(int button) {
    switch (button) {
    case QMessageBox::Yes:
        return BoxResult::Yes;
    case QMessageBox::No:
        return BoxResult::No;
    case QMessageBox::Cancel:
        return BoxResult::Cancel;
    default:
        return BoxResult::OK;
    }
}

} // namespace

BoxResult QtMessageBoxes::Show(const BoxRequest& request) {
    QMessageBox box(iconOf(request.icon), ToQ(request.title),
                    ToQ(request.text).replace("\r\n", "\n"), buttonsOf(request.buttons), owner_);
    box.setDefaultButton(buttonOf(request.defaultButton));
    return resultOf(box.exec());
}

std::string QtMessageBoxes::InputBox(const std::string& prompt, const std::string& title,
                                     const std::string& defaultText) {
    bool accepted = false;
    const QString text = QInputDialog::getText(owner_, ToQ(title), ToQ(prompt), QLineEdit::Normal,
                                               ToQ(defaultText), &accepted);
    return accepted ? FromQ(text) : std::string();
}

} // namespace sw::qt
