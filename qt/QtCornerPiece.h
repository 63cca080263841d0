#pragma once

#include "ports/CornerPiece.h"
#include "qt/QtPlaced.h"

namespace sw::qt {

// picResize over a plain widget that fills the corner between the bars.
class QtCornerPiece : public QtPlaced<CornerPiece> {
public:
    explicit QtCornerPiece(QWidget* widget);

    float Height() const override { return geometry_.Height(); }
    void SetVisible(bool visible) override;
    void Refresh() override;

private:
    QWidget* widget_;
};

} // namespace sw::qt
