#pragma once

#include "ports/QualityDialog.h"

class QWidget;

namespace sw::qt {

class QtQualityDialog : public QualityDialog {
public:
    explicit QtQualityDialog(QWidget* owner) : owner_(owner) {}
    void ShowJpgComp(frmJPGComp& form) override;

private:
    QWidget* owner_;
};

} // namespace sw::qt
