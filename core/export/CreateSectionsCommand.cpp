#include "export/ExportRun.h"
#include "export/ImagingSectionEncoder.h"

namespace sw {

void mnuCreate_Click(Session& session) {
    ImagingSectionEncoder encoder;
    RunExport(session, encoder);
}

} // namespace sw
