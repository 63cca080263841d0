#include "session/PictureReload.h"

#include "session/Session.h"

namespace sw {

bool ReloadPicture(Session& session) {
    const LoadedPicture loaded = session.ports.loader.LoadPicture(session.state.LastPicture);
    if (!loaded.ok()) {
        session.ports.boxes.Show({"Picture Missing",
                                  "The picture " + session.state.LastPicture +
                                      " can no longer be read (" + loaded.error +
                                      ").\r\nThe lines stay as they are.",
                                  BoxIcon::Exclamation, BoxButtons::OK, BoxResult::OK});
        return false;
    }
    session.ports.picActual.SetPicture(loaded.picture);
    return true;
}

} // namespace sw
