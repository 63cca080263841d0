#pragma once

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

} // namespace sw::test
