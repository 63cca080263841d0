#include "window/Viewport.h"

#include "common/Numbers.h"
#include "session/Session.h"
#include "window/StoredLayout.h"

namespace sw {
namespace {

// The window's least height; a window higher than the screen less the
// allowance is taken down in steps and moved to the screen's top.
constexpr float kLeastHeight = 1680;
constexpr float kScreenAllowance = 500;
constexpr float kHeightStep = 300;
constexpr float kTopAfterCut = 1;
// What the vertical bar's test adds below the picture.
constexpr float kVerticalBarAllowance = 1260;
// What frame, caption and menu bar take of the window's height, and how far
// the vertical bar and the corner (and, a little less, the horizontal bar)
// stand in from the window's right edge.
constexpr float kFrameHeight = StoredLayout::frameHeight;
constexpr float kRightInset = 110;
constexpr float kHScrollRightInset = 100;
// One step of a bar, for an arrow and for the trough alike.
constexpr float kScrollStepPixels = 10;

void keepLeastSize(FormWindow& form, float minWidth) {
    if (form.Bounds().Width < minWidth) {
        form.SetWidth(minWidth);
        form.Refresh();
    }
    if (form.Bounds().Height < kLeastHeight) {
        form.SetHeight(kLeastHeight);
        form.Refresh();
    }
}

float screenLimit(const FormWindow& form) {
    return form.Screen().Height - kScreenAllowance;
}

// One step lower. False when the step would go below the least height, which
// on a very low screen would undo the cut through the nested resize events
// without end, or when the window did not get lower.
bool stepLower(FormWindow& form) {
    const float before = form.Bounds().Height;
    if (before - kHeightStep < kLeastHeight) {
        return false;
    }
    form.SetHeight(before - kHeightStep);
    return form.Bounds().Height < before;
}

// Takes a window higher than the screen allows down in steps until it is
// below that limit. The first test is strict and the loop's is not: a window
// exactly at the limit is left alone, but a cut ends strictly below it.
void cutDownToScreen(FormWindow& form) {
    if (form.WindowState() == kWindowMaximised || !(screenLimit(form) < form.Bounds().Height)) {
        return;
    }
    form.SetTop(kTopAfterCut);
    while (!(screenLimit(form) > form.Bounds().Height) && stepLower(form)) {
    }
    form.Refresh();
}

void noteNeededSize(Session& session) {
    SessionState& s = session.state;
    FormWindow& form = session.ports.form;
    const PictureBox& pic = session.ports.picActual;
    s.formHeightNow = WholeTwips(form.Bounds().Height);
    s.formWidthNow = WholeTwips(form.Bounds().Width);
    s.neededHeight = WholeTwips(pic.Top() + pic.Height() + kPictureAllowance +
                                kExtraHeightAllowance + form.hscroll().Height());
    s.neededWidth =
        WholeTwips(pic.Left() + pic.Width() + kPictureAllowance + form.vscroll().Width());
}

void setSteps(ScrollBar& bar, const FormWindow& form) {
    bar.SetSmallChange(WholeTwips(form.Screen().TwipsPerPixelX * kScrollStepPixels));
    bar.SetLargeChange(bar.SmallChange());
}

void placeVerticalBar(Session& session) {
    FormWindow& form = session.ports.form;
    ScrollBar& bar = form.vscroll();
    const float wanted = static_cast<float>(session.state.picOriginY) +
                         session.ports.picActual.Height() + kPictureAllowance +
                         kVerticalBarAllowance;
    if (!(wanted > form.Bounds().Height)) {
        bar.SetVisible(false);
        return;
    }
    bar.SetTop(0);
    bar.SetHeight(form.Bounds().Height - kFrameHeight - form.hscroll().Height());
    bar.SetLeft(form.Bounds().Width - bar.Width() - kRightInset);
    bar.SetMin(0);
    bar.SetMax(session.state.neededHeight - session.state.formHeightNow);
    setSteps(bar, form);
    bar.SetVisible(true);
}

void placeHorizontalBar(Session& session) {
    FormWindow& form = session.ports.form;
    ScrollBar& bar = form.hscroll();
    const float verticalBar = form.vscroll().Visible() ? form.vscroll().Width() : 0;
    const float wanted = static_cast<float>(session.state.picOriginX) +
                         session.ports.picActual.Width() + kPictureAllowance + verticalBar;
    if (!(wanted > form.Bounds().Width)) {
        bar.SetVisible(false);
        return;
    }
    bar.SetTop(form.Bounds().Height - bar.Height() - kFrameHeight);
    bar.SetLeft(0);
    bar.SetWidth(form.Bounds().Width - form.vscroll().Width() - kHScrollRightInset);
    bar.SetMin(0);
    bar.SetMax(session.state.neededWidth - session.state.formWidthNow);
    setSteps(bar, form);
    bar.SetVisible(true);
}

// The corner piece shows with either bar, not only with both.
void placeCorner(FormWindow& form) {
    CornerPiece& corner = form.picResize();
    if (form.hscroll().Visible() || form.vscroll().Visible()) {
        corner.SetVisible(true);
        corner.SetLeft(form.Bounds().Width - form.vscroll().Width() - kRightInset);
        corner.SetTop(form.Bounds().Height - corner.Height() - kFrameHeight);
    } else {
        corner.SetVisible(false);
    }
    corner.Refresh();
}

// The bars, the toolbar and what never stands on the client area stay where
// they are, and so does the corner piece; every other control moves with the
// picture.
bool standsStill(ControlKind kind) {
    switch (kind) {
    case ControlKind::ClipControl:
    case ControlKind::MenuItem:
    case ControlKind::CommonDialog:
    case ControlKind::ImageList:
    case ControlKind::Toolbar:
    case ControlKind::HScrollBar:
    case ControlKind::VScrollBar:
        return true;
    case ControlKind::PictureBox:
    case ControlKind::Label:
        return false;
    }
    return true;
}

bool scrolls(const FormControl& control) {
    return !standsStill(control.Kind()) && control.Name() != StoredLayout::picResize.name;
}

} // namespace

i32 WholeTwips(float twips) {
    return static_cast<i32>(RoundHalfEven(twips));
}

void Form_Resize(Session& session) {
    FormWindow& form = session.ports.form;
    form.hscroll().SetValue(0);
    form.vscroll().SetValue(0);
    if (session.ports.picActual.HasPicture()) {
        LayoutViewport(session);
    }
}

void LayoutViewport(Session& session) {
    FormWindow& form = session.ports.form;
    if (form.WindowState() == kWindowMinimised) {
        return;
    }
    keepLeastSize(form, session.state.minFormWidth);
    cutDownToScreen(form);
    noteNeededSize(session);
    placeVerticalBar(session);
    placeHorizontalBar(session);
    placeCorner(form);
}

void ScrollControls(Session& session, ScrollAxis axis, i32 value) {
    SessionState& s = session.state;
    const bool vertical = axis == ScrollAxis::Vertical;
    i32& last = vertical ? s.lastScrollY : s.lastScrollX;
    const auto delta = static_cast<float>(last - value);
    for (FormControl* control : session.ports.form.Controls()) {
        if (!scrolls(*control)) {
            continue;
        }
        if (vertical) {
            control->SetTop(control->Top() + delta);
        } else {
            control->SetLeft(control->Left() + delta);
        }
    }
    last = value;
    session.ports.form.Refresh();
}

void hscroll_Change(Session& session) {
    ScrollControls(session, ScrollAxis::Horizontal, session.ports.form.hscroll().Value());
}
void hscroll_Scroll(Session& session) {
    hscroll_Change(session);
}
void vscroll_Change(Session& session) {
    ScrollControls(session, ScrollAxis::Vertical, session.ports.form.vscroll().Value());
}
void vscroll_Scroll(Session& session) {
    vscroll_Change(session);
}

} // namespace sw
