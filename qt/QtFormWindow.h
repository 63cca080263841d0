#pragma once

#include "ports/FormWindow.h"

class QMainWindow;

namespace sw::qt {

// The main form's geometry in twips, its pointer and its closing.
class QtFormWindow : public FormWindow {
public:
    explicit QtFormWindow(QMainWindow* form) : form_(form) {}

    TwipRect Bounds() const override;
    int WindowState() const override;
    void SetMousePointer(MousePointer pointer) override;
    void Unload() override;
    void NarrowWindow() override;
    void FitNormalWindow() override;
    void FitMaximisedWindow() override;

private:
    QMainWindow* form_;
    bool busy_ = false;
};

} // namespace sw::qt
