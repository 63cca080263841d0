#include "qt/QtControls.h"

#include "qt/QtText.h"

#include <QAction>
#include <QLabel>
#include <QMainWindow>

namespace sw::qt {

void QtControls::SetEnabled(Item item, bool enabled) {
    if (QAction* action = actions_.value(item)) {
        action->setEnabled(enabled);
    } else if (QWidget* widget = widgets_.value(item)) {
        widget->setEnabled(enabled);
    }
}

void QtControls::SetChecked(Item item, bool checked) {
    if (QAction* action = actions_.value(item)) {
        action->setChecked(checked);
    }
}

bool QtControls::Checked(Item item) const {
    const QAction* action = actions_.value(item);
    return action != nullptr && action->isChecked();
}

void QtControls::SetVisible(Item item, bool visible) {
    if (QAction* action = actions_.value(item)) {
        action->setVisible(visible);
    } else if (QWidget* widget = widgets_.value(item)) {
        widget->setVisible(visible);
    }
}

void QtControls::SetCaption(Item item, const std::string& caption) {
    if (item == Item::frmSlicewright) {
        form_->setWindowTitle(ToQ(caption));
    } else if (QAction* action = actions_.value(item)) {
        action->setText(ToQ(caption));
    } else if (auto* label = qobject_cast<QLabel*>(widgets_.value(item))) {
        label->setText(ToQ(caption));
        label->adjustSize();
    }
}

void QtControls::SetToolbarButtonEnabled(int index, bool enabled) {
    if (QAction* action = buttons_.value(index)) {
        action->setEnabled(enabled);
    }
}

} // namespace sw::qt
