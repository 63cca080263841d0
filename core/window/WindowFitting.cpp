#include "window/WindowFitting.h"

#include "session/Session.h"
#include "window/Viewport.h"

namespace sw {
namespace {

// Off the screen's height when centring, so that the window sits a little high.
constexpr float kCentringAllowance = 300;

// Left within [low, high]; where the window is wider than that room allows,
// at its low end.
float within(float value, float low, float high) {
    return value > high ? (high > low ? high : low) : (value < low ? low : value);
}

// A window that crosses the screen's right edge, or was cut to the work
// area's width, is centred. It is never wider than the work area (see
// widthOnScreen), so centring keeps it whole on the screen; on a work area
// that is not the whole screen it is kept inside that area.
void centreWhenPastRightEdge(FormWindow& form, bool cut) {
    const ScreenMetrics screen = form.Screen();
    const TwipRect work = WorkAreaOf(screen);
    const TwipRect window = form.Bounds();
    if (!cut && !(window.Width + window.Left > work.Left + work.Width)) {
        return;
    }
    form.SetLeft(within((screen.Width - window.Width) / 2, work.Left,
                        work.Left + work.Width - window.Width));
    form.SetTop(within((screen.Height - window.Height - kCentringAllowance) / 2, work.Top,
                       work.Top + work.Height - window.Height));
}

// A normal window no wider than the screen's work area, so that its frame,
// caption buttons and vertical bar stay in reach; the horizontal bar gives
// the rest of the picture. Never below the least width.
float widthOnScreen(const FormWindow& form, float width, float leastWidth) {
    const float room = WorkAreaOf(form.Screen()).Width;
    const float cut = width > room ? room : width;
    return cut < leastWidth ? leastWidth : cut;
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
    const float fitted = widthOnScreen(form, width, s.minFormWidth);
    form.SetWidth(fitted);
    form.SetHeight(pic.Height() + pic.Top() + s.bottomMargin);
    centreWhenPastRightEdge(form, fitted < width);
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
