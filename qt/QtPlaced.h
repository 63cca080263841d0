#pragma once

#include "ports/FormControl.h"
#include "qt/TwipGeometry.h"
#include "window/StoredControl.h"

#include <string>

namespace sw::qt {

// A control of the main form over its widget: its kind and name (those of
// the stored layout) and its place in twips.
template <typename Port> class QtPlaced : public Port {
public:
    QtPlaced(QWidget* widget, const StoredControl& stored)
        : geometry_(widget), kind_(stored.kind), name_(stored.name) {}

    ControlKind Kind() const override { return kind_; }
    std::string Name() const override { return name_; }
    float Left() const override { return geometry_.Left(); }
    float Top() const override { return geometry_.Top(); }
    void SetLeft(float left) override { geometry_.SetLeft(left); }
    void SetTop(float top) override { geometry_.SetTop(top); }

protected:
    TwipGeometry geometry_;

private:
    ControlKind kind_;
    std::string name_;
};

} // namespace sw::qt
