#include "tools/scenario/ScriptedForm.h"

#include "common/Numbers.h"
#include "ports/Controls.h"
#include "window/StoredLayout.h"

namespace sw::scripted {
namespace {

bool sameSize(const TwipRect& a, const TwipRect& b) {
    return a.Width == b.Width && a.Height == b.Height;
}

} // namespace

ScriptedForm::ScriptedForm(Transcript& transcript, ScriptedPictureBox& picActual)
    : transcript_(transcript), picActual_(picActual), vscroll_(transcript, StoredLayout::vscroll),
      hscroll_(transcript, StoredLayout::hscroll), picResize_(transcript, StoredLayout::picResize),
      lblMousePos_(transcript, StoredLayout::lblMousePos) {
    buildControlList();
}

// In the stored layout's order: bars, corner, image list, toolbar, dialog,
// picture, clip control, label, then the menu items.
void ScriptedForm::buildControlList() {
    const auto unplaced = [this](const StoredControl& stored) {
        unplaced_.push_back(std::make_unique<ScriptedControl>(transcript_, stored));
        return unplaced_.back().get();
    };
    using L = StoredLayout;
    controls_ = {&vscroll_,
                 &hscroll_,
                 &picResize_,
                 unplaced(L::ilstToolbar),
                 unplaced(L::tlbrMain),
                 unplaced(L::dlgPic),
                 &picActual_,
                 unplaced(L::clipContainer),
                 &lblMousePos_};
    for (int item = static_cast<int>(Item::mnuFile); item <= static_cast<int>(Item::mnuHelp);
         ++item) {
        controls_.push_back(
            unplaced({ItemName(static_cast<Item>(item)), ControlKind::MenuItem, {}}));
    }
}

TwipRect ScriptedForm::Bounds() const {
    if (windowState_ == kWindowMaximised) {
        return {0, 0, screen_.Width, screen_.Height};
    }
    return normal_;
}

void ScriptedForm::resizing(const std::function<void()>& change) {
    const TwipRect before = Bounds();
    const int stateBefore = windowState_;
    change();
    if (!sameSize(before, Bounds()) || stateBefore != windowState_) {
        const Transcript::ChatterScope chatter(transcript_);
        transcript_.Line("raise Form_Resize");
        if (onResize) {
            onResize();
        }
    }
}

void ScriptedForm::SetLeft(float left) {
    transcript_.FormChatter("set frmSlicewright.Left=" + FormatSingle(left));
    normal_.Left = left;
}

void ScriptedForm::SetTop(float top) {
    transcript_.FormChatter("set frmSlicewright.Top=" + FormatSingle(top));
    normal_.Top = top;
}

void ScriptedForm::SetWidth(float width) {
    transcript_.FormChatter("set frmSlicewright.Width=" + FormatSingle(width));
    resizing([this, width] { normal_.Width = width; });
}

void ScriptedForm::SetHeight(float height) {
    transcript_.FormChatter("set frmSlicewright.Height=" + FormatSingle(height));
    resizing([this, height] { normal_.Height = height; });
}

void ScriptedForm::SetWindowState(int state) {
    transcript_.FormChatter("set frmSlicewright.WindowState=" + std::to_string(state));
    resizing([this, state] { windowState_ = state; });
}

void ScriptedForm::UserResize(float width, float height) {
    transcript_.Line("user resize " + FormatSingle(width) + " " + FormatSingle(height));
    resizing([this, width, height] {
        normal_.Width = width;
        normal_.Height = height;
    });
}

void ScriptedForm::UserMove(float left, float top) {
    transcript_.Line("user move " + FormatSingle(left) + " " + FormatSingle(top));
    normal_.Left = left;
    normal_.Top = top;
}

void ScriptedForm::UserWindowState(int state) {
    transcript_.Line("user windowstate " + std::to_string(state));
    resizing([this, state] { windowState_ = state; });
}

void ScriptedForm::Refresh() {
    transcript_.FormChatter("frmSlicewright.Refresh");
}

void ScriptedForm::SetMousePointer(MousePointer pointer) {
    transcript_.Line(pointer == MousePointer::Hourglass ? "form pointer=Hourglass"
                                                        : "form pointer=Default");
}

void ScriptedForm::Unload() {
    transcript_.Line("form unload");
    unloaded_ = true;
    if (onUnload) {
        onUnload();
    }
}

} // namespace sw::scripted
