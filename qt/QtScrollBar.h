#pragma once

#include "ports/ScrollBar.h"
#include "qt/QtPlaced.h"

class QScrollBar;

namespace sw::qt {

// hscroll or vscroll over a QScrollBar. A write that moves the value makes
// the bar emit valueChanged at once, which the main window turns into the
// bar's Change event. The range the bar runs is Min to Max, or Min alone when
// Max lies below Min; Max reads back as the logic wrote it.
class QtScrollBar : public QtPlaced<ScrollBar> {
public:
    QtScrollBar(QScrollBar* bar, const StoredControl& stored);

    float Width() const override { return geometry_.Width(); }
    float Height() const override { return geometry_.Height(); }
    void SetWidth(float width) override { geometry_.SetWidth(width); }
    void SetHeight(float height) override { geometry_.SetHeight(height); }
    bool Visible() const override;
    void SetVisible(bool visible) override;

    i32 Min() const override { return min_; }
    i32 Max() const override { return max_; }
    i32 SmallChange() const override;
    i32 LargeChange() const override;
    i32 Value() const override;
    void SetMin(i32 value) override;
    void SetMax(i32 value) override;
    void SetSmallChange(i32 value) override;
    void SetLargeChange(i32 value) override;
    void SetValue(i32 value) override;

private:
    void applyRange();
    QScrollBar* bar_;
    i32 min_ = 0;
    i32 max_ = 32767;
};

} // namespace sw::qt
