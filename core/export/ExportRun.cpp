#include "export/ExportRun.h"

#include "common/RunInOrder.h"
#include "export/ChooseDestination.h"
#include "export/HtmlOutput.h"
#include "export/HtmlTable.h"
#include "export/OverwritePreCheck.h"
#include "export/SectionArea.h"
#include "export/SectionGrid.h"
#include "export/SectionWriter.h"
#include "session/SectionLines.h"
#include "session/Session.h"

namespace sw {
namespace {

bool tooManySections(Session& session) {
    const SessionState& s = session.state;
    const std::int64_t sections =
        (std::int64_t{s.hLineCount} + 1) * (std::int64_t{s.vLineCount} + 1);
    if (sections <= kMostSections) {
        return false;
    }
    session.ports.boxes.Show({"Too Many Sections",
                              "The lines make " + std::to_string(sections) + " sections; at most " +
                                  std::to_string(kMostSections) +
                                  " can be cut at once.  Take some lines away first.",
                              BoxIcon::Exclamation, BoxButtons::OK, BoxResult::OK});
    return true;
}

CutPlan planTheCut(Session& session, const CutDestination& destination) {
    SessionState& s = session.state;
    SortLines(s.hLines, s.hLineCount);
    SortLines(s.vLines, s.vLineCount);
    return BuildSectionGrid({s.hLines, s.hLineCount}, {s.vLines, s.vLineCount},
                            session.ports.picActual.Width(), session.ports.picActual.Height(),
                            destination);
}

// Lines on one place, at 0, or on or past the picture's edge leave sections
// with nothing to cut. The user learns which before any file is written and
// may stop; going on writes the others under their grid numbers.
bool acceptSectionsWithoutArea(Session& session, const CutPlan& plan) {
    const Picture& picture = session.clipContainer.picture;
    const std::vector<i32> empty = SectionsWithoutArea(plan, picture.Width(), picture.Height());
    if (empty.empty()) {
        return true;
    }
    FormWindow& form = session.ports.form;
    form.SetMousePointer(MousePointer::Default);
    const BoxResult answer = session.ports.boxes.Show(
        {"Sections Without Area",
         "Section(s) " + NumberList(empty) +
             " have no area inside the picture: two lines lie on one place, or a line lies "
             "on or beyond the picture's edge.\r\nThey are not written, and the HTML table "
             "keeps an empty cell for each.  Continue with the other sections?",
         BoxIcon::Exclamation, BoxButtons::YesNo, BoxResult::Yes});
    if (answer != BoxResult::Yes) {
        return false;
    }
    form.SetMousePointer(MousePointer::Hourglass);
    return true;
}

// An encoder failure keeps its one fixed box. A file that cannot be written
// or a section that cannot be cut names the file and the cause, since the
// user has to act on them (another folder, room on the disk).
std::string failureText(const SectionFailure& failure) {
    if (failure.kind == SectionFailure::Kind::Encoder) {
        return "JPG File Creation Error!!!";
    }
    const std::string what =
        failure.kind == SectionFailure::Kind::File
            ? "The section file " + failure.path + " could not be written: "
            : "The section " + failure.path + " could not be cut from the picture: ";
    return what + failure.reason +
           ".\r\nFiles written before it stay; no further section is written.";
}

// Sections of fewer pixels than this are encoded faster than threads can
// hand them over: a fine grid is written on one thread unless asked otherwise.
constexpr std::int64_t kLeastPixelsForThreads = 16384;

int threadsFor(const Session& session, const CutPlan& plan) {
    if (session.exportThreads > 0) {
        return session.exportThreads;
    }
    const Picture& picture = session.clipContainer.picture;
    const std::int64_t pixels = std::int64_t{picture.Width()} * picture.Height();
    const auto sections = static_cast<std::int64_t>(plan.Sections.size());
    return pixels >= kLeastPixelsForThreads * sections ? EveryCore() : 1;
}

std::int32_t filesWritten(const SectionCells& cells) {
    std::int32_t written = 0;
    for (i32 i = 1; i <= cells.UBound(); ++i) {
        written += cells(i) != EmptyCellText() ? 1 : 0;
    }
    return written;
}

// A run the user stopped: what was written stays, and they learn how much and where.
void tellCancelled(Session& session, const CutPlan& plan, const SectionCells& cells) {
    const std::string& folder = plan.Destination.Folder;
    session.ports.boxes.Show(
        {"Sections Cancelled",
         "Cancelled: " + std::to_string(filesWritten(cells)) + " section file(s) of " +
             std::to_string(plan.Sections.size()) + " sections were written to " +
             (folder.empty() ? std::string("the current folder") : folder) +
             " and stay there.\r\nNo HTML is offered, and the lines stay on the picture.",
         BoxIcon::Information, BoxButtons::OK, BoxResult::OK});
}

std::optional<SectionFailure> writeWithProgress(Session& session, SectionEncoder& encoder,
                                                const CutPlan& plan, SectionCells& cells) {
    SessionState& s = session.state;
    ExportDialogs& dialogs = session.ports.exportDialogs;
    const auto total = static_cast<int>(plan.Sections.size());
    SectionOutput output{session.clipContainer, s.SaveFormat, s.JPGComp, encoder};
    output.threads = threadsFor(session, plan);
    output.afterSection = [&](const SectionRect& section, std::size_t done) {
        return dialogs.AdvanceProgress(static_cast<int>(done), total, section.FileName);
    };
    dialogs.BeginProgress(total);
    std::optional<SectionFailure> failure;
    try {
        failure = WriteSections(output, plan, cells);
    } catch (...) {
        dialogs.EndProgress();
        throw;
    }
    dialogs.EndProgress();
    return failure;
}

// Writes every section, once the user has accepted those that cannot be
// cut; false when the run ends early (the user has been told why).
bool cutSections(Session& session, SectionEncoder& encoder, const CutPlan& plan,
                 SectionCells& cells) {
    if (!acceptSectionsWithoutArea(session, plan)) {
        return false;
    }
    const std::optional<SectionFailure> failure = writeWithProgress(session, encoder, plan, cells);
    if (failure && failure->kind == SectionFailure::Kind::Cancelled) {
        tellCancelled(session, plan, cells);
    } else if (failure) {
        session.ports.boxes.Show(
            {"Error!", failureText(*failure), BoxIcon::Critical, BoxButtons::OK, BoxResult::OK});
    }
    session.ports.form.SetMousePointer(MousePointer::Default);
    return !failure;
}

} // namespace

void RunExport(Session& session, SectionEncoder& encoder) {
    SessionState& s = session.state;
    if (!s.linesDrawn) {
        session.ports.boxes.Show({"Sections?", "No Lines Drawn yet!", BoxIcon::Exclamation,
                                  BoxButtons::OK, BoxResult::OK});
        return;
    }
    if (tooManySections(session)) {
        return;
    }
    const std::optional<CutDestination> destination = ChooseDestination(session);
    if (!destination || !OverwritePreCheck(session, *destination, s.hLineCount, s.vLineCount)) {
        return;
    }
    session.ports.form.SetMousePointer(MousePointer::Hourglass);
    const CutPlan plan = planTheCut(session, *destination);
    SectionCells cells;
    // A run that ends early leaves the lines on the picture, so that the user
    // can put things right and cut again.
    if (cutSections(session, encoder, plan, cells) && OfferHTML(session, plan, cells)) {
        ClearLines(session);
    }
}

} // namespace sw
