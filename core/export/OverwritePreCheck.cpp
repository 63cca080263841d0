#include "export/OverwritePreCheck.h"

#include "export/SectionGrid.h"
#include "session/Session.h"

namespace sw {
namespace {

bool anySectionFileExists(FileSystem& files, const CutDestination& destination,
                          std::int64_t sections) {
    for (std::int64_t number = 1; number <= sections; ++number) {
        if (files.FileExists(SectionFileName(destination, static_cast<i32>(number)))) {
            return true;
        }
    }
    return false;
}

} // namespace

bool OverwritePreCheck(Session& session, const CutDestination& destination, i16 hLineCount,
                       i16 vLineCount) {
    const std::int64_t sections =
        (static_cast<std::int64_t>(hLineCount) + 1) * (static_cast<std::int64_t>(vLineCount) + 1);
    if (!anySectionFileExists(session.ports.files, destination, sections)) {
        return true;
    }
    const BoxResult answer = session.ports.boxes.Show(
        {"Continue?", "File(s) found that will be overwritten if you use this path.  Continue?",
         BoxIcon::Exclamation, BoxButtons::YesNo, BoxResult::Yes});
    return answer == BoxResult::Yes;
}

} // namespace sw
