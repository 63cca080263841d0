// The viewport's guards against windows and screens the layout cannot
// satisfy: the cut-down to the screen must end, whatever the window does.
#include "window/Viewport.h"

#include "imaging/Picture.h"
#include "session/Session.h"
#include "tools/scenario/ScenarioRunner.h"

#include <gtest/gtest.h>
#include <sstream>

namespace sw {
namespace {

// A window that takes no height it is given, as a window manager may refuse.
class StubbornForm : public scripted::ScriptedForm {
public:
    using ScriptedForm::ScriptedForm;
    void SetHeight(float) override {}
};

TEST(LayoutViewport, OnAScreenTooLowForTheLeastHeightTheCutStopsAboveIt) {
    std::ostringstream transcript;
    scripted::ScenarioRunner runner(transcript, nullptr);
    std::istringstream script("screen 15360 2100\npicture \"p.bmp\" 400 300\nstart\n"
                              "answer open \"p.bmp\"\nevent mnuOPen_Click\n");
    runner.Run(script);
    const TwipRect bounds = runner.Ports().form.Bounds();
    EXPECT_EQ(bounds.Height, 1860);
    EXPECT_EQ(bounds.Top, 1);
    EXPECT_EQ(runner.CurrentSession().state.formHeightNow, 1860);
}

TEST(LayoutViewport, AWindowThatWillNotGetLowerEndsTheCut) {
    std::ostringstream transcript;
    scripted::ScriptedPorts o(transcript, nullptr);
    StubbornForm form(o.transcript, o.picActual);
    form.UserResize(6000, 20000);
    Ports ports = o.WithForm(form);
    Session session(ports);
    o.picActual.SetPicture(Picture::Filled(100, 100, 0));
    LayoutViewport(session);
    EXPECT_EQ(form.Bounds().Height, 20000);
    EXPECT_EQ(session.state.formHeightNow, 20000);
}

} // namespace
} // namespace sw
