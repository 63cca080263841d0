#include "window/FormLifecycle.h"

#include "common/Numbers.h"
#include "common/Text.h"
#include "session/Session.h"
#include "session/Settings.h"

namespace sw {
namespace {

// Window sizes arrive as floats in twips; the session keeps them in 16 bits.
i16 twips(float value) {
    return RoundToI16(value).value_or(0);
}

void noteMargins(Session& session) {
    SessionState& s = session.state;
    PictureBox& pic = session.ports.picActual;
    const TwipRect form = session.ports.form.Bounds();
    s.picRight = twips(pic.Width() + pic.Left());
    s.picBottom = twips(pic.Height() + pic.Top());
    s.formRight = twips(form.Width + form.Left);
    s.formBottom = twips(form.Height + form.Top);
    s.rightMargin = static_cast<i16>(s.formRight - s.picRight);
    s.bottomMargin = static_cast<i16>(s.formBottom - s.picBottom);
}

void prepareLastCut(Session& session) {
    const std::string& last = session.state.LastPicture;
    Controls& controls = session.ports.controls;
    if (!Trim(last).empty()) {
        controls.SetCaption(Item::mnuLastCut, last);
    } else {
        controls.SetCaption(Item::mnuLastCut, "");
        controls.SetVisible(Item::mnuLastCut, false);
    }
}

} // namespace

void Form_Load(Session& session) {
    SessionState& s = session.state;
    noteMargins(session);
    s.hLineCount = 0;
    s.vLineCount = 0;
    s.hDivided = false;
    s.vDivided = false;
    LoadSettings(session);
    prepareLastCut(session);
    s.minFormWidth = twips(session.ports.form.Bounds().Width);
    s.pictureOpen = false;
    s.linesDrawn = false;
}

void Form_Unload(Session& session) {
    SaveSettings(session);
}

void mnuExit_Click(Session& session) {
    SaveSettings(session);
    session.ports.form.Unload();
}

} // namespace sw
