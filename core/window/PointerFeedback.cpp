#include "window/PointerFeedback.h"

#include "common/Numbers.h"
#include "session/Session.h"

namespace sw {

void Form_MouseMove(Session& session) {
    if (!session.state.pictureOpen) {
        return;
    }
    session.ports.controls.SetCaption(Item::frmSlicewright, "Slicewright");
    session.ports.controls.SetCaption(Item::lblMousePos, "Position: ");
}

void picActual_MouseMove(Session& session, float x, float y) {
    SessionState& s = session.state;
    if (!s.pictureOpen) {
        return;
    }
    const std::string position = FormatSingle(x) + "," + FormatSingle(y);
    session.ports.controls.SetCaption(Item::lblMousePos, "Position: " + position);
    session.ports.controls.SetCaption(Item::frmSlicewright,
                                      "Slicewright - Current Position: " + position);
    // A picture is never larger than 32767 pixels, so a position inside it fits.
    s.mouseX = RoundToI16(x).value_or(s.mouseX);
    s.mouseY = RoundToI16(y).value_or(s.mouseY);
}

} // namespace sw
