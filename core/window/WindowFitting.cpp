#include "window/WindowFitting.h"

#include "session/Session.h"
#include "window/Viewport.h"

namespace sw {
namespace {

// Off the screen's height when centring, so that the window sits a little high.
constexpr float kCentringAllowance = 300;

void centreWhenPastRightEdge(FormWindow& form) {
    const ScreenMetrics screen = form.Screen();
    if (!(form.Bounds().Width + form.Bounds().Left > screen.Width)) {
        return;
    }
    form.SetLeft((screen.Width - form.Bounds().Width) / 2);
    form.SetTop((screen.Height - form.Bounds().Height - kCentringAllowance) / 2);
}

} // namespace

void NarrowWindow(Session& session) {
    FormWindow& form = session.ports.form;
    if (form.WindowState() != kWindowMaximised) {
        form.SetWidth(session.state.minFormWidth);
    }
}

void FitNormalWindow(Session& session) {
    const SessionState& s = session.state;
    FormWindow& form = session.ports.form;
    const PictureBox& pic = session.ports.picActual;
    const float width = pic.Width() + pic.Left() + s.rightMargin;
    form.SetWidth(width >= s.minFormWidth ? width : s.minFormWidth);
    form.SetHeight(pic.Height() + pic.Top() + s.bottomMargin);
    centreWhenPastRightEdge(form);
}

void FitMaximisedWindow(Session& session) {
    SessionState& s = session.state;
    FormWindow& form = session.ports.form;
    const PictureBox& pic = session.ports.picActual;
    s.picOriginX = WholeTwips(pic.Left());
    s.picOriginY = WholeTwips(pic.Top());
    const float width = pic.Left() + pic.Width() + kPictureAllowance + form.vscroll().Width();
    if (width < form.Screen().Width) {
        form.SetWindowState(kWindowNormal);
        form.SetWidth(width);
    } else {
        form.SetWindowState(kWindowMaximised);
    }
    const float height = pic.Top() + pic.Height() + kPictureAllowance + kExtraHeightAllowance +
                         form.hscroll().Height();
    if (height < form.Screen().Height) {
        form.SetWindowState(kWindowNormal);
        form.SetHeight(height);
    } else {
        form.SetWindowState(kWindowMaximised);
    }
    form.Refresh();
    LayoutViewport(session);
}

} // namespace sw
