#include "qt/QtScrollBar.h"

#include <QScrollBar>
#include <algorithm>

namespace sw::qt {

QtScrollBar::QtScrollBar(QScrollBar* bar, const StoredControl& stored)
    : QtPlaced(bar, stored), bar_(bar) {
    applyRange();
    bar_->setSingleStep(1);
    bar_->setPageStep(1);
}

bool QtScrollBar::Visible() const {
    return !bar_->isHidden();
}

void QtScrollBar::SetVisible(bool visible) {
    bar_->setVisible(visible);
}

i32 QtScrollBar::SmallChange() const {
    return bar_->singleStep();
}

i32 QtScrollBar::LargeChange() const {
    return bar_->pageStep();
}

i32 QtScrollBar::Value() const {
    return bar_->value();
}

void QtScrollBar::applyRange() {
    bar_->setRange(min_, std::max(min_, max_));
}

void QtScrollBar::SetMin(i32 value) {
    min_ = value;
    applyRange();
}

void QtScrollBar::SetMax(i32 value) {
    max_ = value;
    applyRange();
}

void QtScrollBar::SetSmallChange(i32 value) {
    bar_->setSingleStep(value);
}

void QtScrollBar::SetLargeChange(i32 value) {
    bar_->setPageStep(value);
}

void QtScrollBar::SetValue(i32 value) {
    bar_->setValue(value);
}

} // namespace sw::qt
