#pragma once

#include "ports/MessageBoxes.h"

class QWidget;

namespace sw::qt {

class QtMessageBoxes : public MessageBoxes {
public:
    explicit QtMessageBoxes(QWidget* owner) : owner_(owner) {}
    BoxResult Show(const BoxRequest& request) override;
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText) override;

private:
    QWidget* owner_;
};

} // namespace sw::qt
