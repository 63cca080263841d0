#include "qt/QtMessageBoxes.h"

#include "qt/QtText.h"
#include "qt/TitleRoom.h"

#include <QGridLayout>
#include <QInputDialog>
#include <QLayout>
#include <QLineEdit>
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

// The box's text without the line ends it may close with, which would show
// as an empty last line.
QString boxText(const std::string& text) {
    QString shown = ToQ(text).replace("\r\n", "\n");
    while (shown.endsWith('\n')) {
        shown.chop(1);
    }
    return shown;
}

// A message box sizes itself to its text only; a row as wide as its title
// keeps the title whole.
void makeRoomForTitle(QMessageBox& box) {
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (grid == nullptr) {
        return;
    }
    grid->addItem(new QSpacerItem(TitleRoom(box, box.windowTitle()), 0, QSizePolicy::Minimum,
                                  QSizePolicy::Minimum),
                  grid->rowCount(), 0, 1, grid->columnCount());
}

} // namespace

BoxResult QtMessageBoxes::Show(const BoxRequest& request) {
    QMessageBox box(iconOf(request.icon), ToQ(request.title), boxText(request.text),
                    buttonsOf(request.buttons), owner_);
    box.setDefaultButton(buttonOf(request.defaultButton));
    makeRoomForTitle(box);
    return resultOf(box.exec());
}

std::string QtMessageBoxes::InputBox(const std::string& prompt, const std::string& title,
                                     const std::string& defaultText) {
    QInputDialog input(owner_);
    input.setWindowTitle(ToQ(title));
    input.setLabelText(ToQ(prompt));
    input.setTextValue(ToQ(defaultText));
    // The dialog fixes its size to its contents, so the room goes to the
    // field, less the dialog's margins.
    if (auto* field = input.findChild<QLineEdit*>()) {
        const QMargins margins =
            input.layout() != nullptr ? input.layout()->contentsMargins() : QMargins();
        field->setMinimumWidth(TitleRoom(input, input.windowTitle()) - margins.left() -
                               margins.right());
    }
    return input.exec() == QDialog::Accepted ? FromQ(input.textValue()) : std::string();
}

} // namespace sw::qt
