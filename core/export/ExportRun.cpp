#include "export/ExportRun.h"

#include "session/Session.h"

namespace sw {

// Interim: the export arrives with the section writer.
void mnuCreate_Click(Session& session) {
    session.ports.boxes.Show({"Create Sections", "Creating sections is not available yet.",
                              BoxIcon::Information, BoxButtons::OK, BoxResult::OK});
}

} // namespace sw
