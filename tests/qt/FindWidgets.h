#pragma once

#include <QAction>
#include <QPushButton>
#include <QWidget>

namespace sw::test {

// The push button of a form by its caption, or nullptr.
inline QPushButton* FindButton(QWidget& form, const QString& caption) {
    for (QPushButton* candidate : form.findChildren<QPushButton*>()) {
        if (candidate->text() == caption) {
            return candidate;
        }
    }
    return nullptr;
}

// The action of a window by its text (access key marks aside), or nullptr.
inline QAction* FindAction(QWidget& window, const QString& text) {
    for (QAction* action : window.findChildren<QAction*>()) {
        if (QString(action->text()).remove('&') == text) {
            return action;
        }
    }
    return nullptr;
}

} // namespace sw::test
