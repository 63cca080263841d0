#include "common/AtomicFile.h"
#include "linefile/LineFile.h"
#include "linefile/LineFileText.h"
#include "session/PictureReload.h"
#include "session/SectionLines.h"
#include "session/Session.h"

#include <optional>

namespace sw {
namespace {

bool mayErase(Session& session) {
    if (!session.state.linesDrawn) {
        return true;
    }
    const BoxResult answer = session.ports.boxes.Show(
        {"Warning", "Loading a line set will erase any lines you have created now.  Continue?",
         BoxIcon::Exclamation, BoxButtons::YesNo, BoxResult::Yes});
    return answer == BoxResult::Yes;
}

std::string askFileName(Session& session) {
    PrepareLineFileDialog(session);
    session.ports.dlgPic.ShowOpen();
    return session.ports.dlgPic.FileName;
}

void tell(Session& session, const std::string& title, const std::string& text, BoxIcon icon) {
    session.ports.boxes.Show({title, text, icon, BoxButtons::OK, BoxResult::OK});
}

// The whole file is read before anything changes, so that a file that
// cannot be read leaves the lines on the screen as they are.
std::optional<std::string> readLineFile(Session& session, const std::string& fileName) {
    std::string text;
    std::string reason;
    if (!ReadWholeFile(fileName, text, reason)) {
        tell(session, "Cannot Load Lines",
             "The line file " + fileName + " could not be opened:\r\n" + reason,
             BoxIcon::Exclamation);
        return std::nullopt;
    }
    return text;
}

// A corrupt file leaves no line at all: a load gives all of a file or nothing.
void dropCorruptFile(Session& session) {
    tell(session, "Cannot Continue", "That Slicewright file appears to be corrupt!",
         BoxIcon::Critical);
    if (ReloadPicture(session)) {
        ResetLines(session);
    }
}

void applyRecords(Session& session, const std::vector<LineRecord>& records) {
    SessionState& s = session.state;
    for (const LineRecord& record : records) {
        const LineKind kind = KindOf(s, record.direction);
        s.linesDrawn = true;
        AddLine(kind, record.position);
        AppendLineOrder(session, kind.letter);
    }
}

// Whether the file loads as it is; when it does not, the user has been told.
bool loadable(Session& session, LineFileProblem problem) {
    if (problem == LineFileProblem::Corrupt) {
        dropCorruptFile(session);
    } else if (problem == LineFileProblem::TooManyLines) {
        tell(session, "Too Many Lines",
             "That Slicewright file holds more lines than a picture can: 32767 lines is the "
             "most.\r\nThe lines stay as they are.",
             BoxIcon::Exclamation);
    }
    return problem == LineFileProblem::None;
}

void loadParsedFile(Session& session, const ParsedLineFile& parsed) {
    if (!loadable(session, parsed.problem) || !ReloadPicture(session)) {
        return;
    }
    ResetLines(session);
    applyRecords(session, parsed.records);
    RedrawLines(session);
}

} // namespace

void LoadLineFile(Session& session) {
    if (!mayErase(session)) {
        return;
    }
    const std::string fileName = askFileName(session);
    if (fileName.empty()) {
        return;
    }
    const std::optional<std::string> text = readLineFile(session, fileName);
    if (text) {
        loadParsedFile(session, ParseLineFile(*text));
    }
}

void mnuLoadLines_Click(Session& session) {
    LoadLineFile(session);
}

} // namespace sw
