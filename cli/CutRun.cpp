#include "CutRun.h"

#include "CommandLine.h"
#include "JobPlanner.h"
#include "PieceEncoder.h"
#include "ProgressBar.h"
#include "SideFiles.h"
#include "Verification.h"
#include "common/AtomicFile.h"
#include "common/FileWriteError.h"
#include "export/SectionArea.h"
#include "export/SectionWriter.h"
#include "imaging/ClipContainer.h"
#include "qt/image/QtPictureLoader.h"

#include <cmath>
#include <filesystem>
#include <future>
#include <system_error>

namespace sw {
namespace {

std::string failureText(const SectionFailure& failure) {
    switch (failure.kind) {
    case SectionFailure::Kind::Encoder:
        return "the JPEG encoder failed";
    case SectionFailure::Kind::File:
        return "cannot be written: " + failure.reason;
    case SectionFailure::Kind::Clip:
        return "cannot be cut from the picture: " + failure.reason;
    case SectionFailure::Kind::Cancelled:
        break;
    }
    return failure.reason;
}

std::string rectText(const SectionRect& rect) {
    return std::to_string(rect.Left) + "," + std::to_string(rect.Top) + " " +
           std::to_string(rect.Width) + "x" + std::to_string(rect.Height);
}

long pieceCount(const std::vector<PictureJob>& jobs) {
    long count = 0;
    for (const PictureJob& job : jobs) {
        count += static_cast<long>(job.plan.Sections.size());
    }
    return count;
}

} // namespace

CutRun::CutRun(const CutOptions& options, std::ostream& out, std::ostream& err)
    : options_(options), out_(out), err_(err) {}

void CutRun::fail(const std::string& subject, const std::string& message) {
    err_ << kProgram << ": " << subject << ": " << message << "\n";
    status_ = 1;
}

bool CutRun::readLineFile() {
    if (options_.source != LineSource::LineFile) {
        return true;
    }
    std::string text;
    std::string reason;
    if (!ReadWholeFile(options_.lineFile, text, reason)) {
        fail(options_.lineFile, "the line file cannot be opened: " + reason);
        return false;
    }
    lineFile_ = ParseLineFile(text);
    if (lineFile_.problem == LineFileProblem::Corrupt) {
        fail(options_.lineFile, "That Slicewright file appears to be corrupt!");
    } else if (lineFile_.problem == LineFileProblem::TooManyLines) {
        fail(options_.lineFile, "the file holds more lines than a picture can: 32767 lines of "
                                "a kind is the most");
    }
    return lineFile_.problem == LineFileProblem::None;
}

void CutRun::planAll() {
    for (const std::string& picture : options_.pictures) {
        auto job = PlanJob(options_, picture, lineFile_);
        if (auto* refusal = std::get_if<PlanRefusal>(&job)) {
            fail(picture, refusal->why);
        } else {
            jobs_.push_back(std::move(std::get<PictureJob>(job)));
        }
    }
}

// As the window's pre-check, but naming every file: nothing is written when
// anything would be replaced.
bool CutRun::nothingReplaced() {
    std::vector<std::string> existing;
    for (const PictureJob& job : jobs_) {
        for (const std::string& file : FilesOf(job)) {
            std::error_code error;
            if (std::filesystem::exists(file, error)) {
                existing.push_back(file);
            }
        }
    }
    if (existing.empty()) {
        return true;
    }
    err_ << kProgram << ": " << existing.size()
         << " file(s) found that would be replaced; nothing is written (--force replaces them):\n";
    for (const std::string& file : existing) {
        err_ << "  " << file << "\n";
    }
    status_ = 1;
    return false;
}

void CutRun::printPlan(const PictureJob& job) {
    const PieceLayout& layout = job.layout;
    out_ << job.picture << ": " << job.width << " x " << job.height << ", "
         << layout.rowHeights.size() << " row(s) x " << layout.columnWidths.size() << " column(s), "
         << NameOf(job.format) << "\n";
    for (const SectionRect& piece : layout.pieces) {
        const SectionRect& planned = job.plan.Sections[static_cast<std::size_t>(piece.Number - 1)];
        out_ << "  " << piece.Number << "  row " << RowOf(job.plan, planned) << " column "
             << ColumnOf(job.plan, planned) << "  " << rectText(piece) << "  "
             << (HasArea(piece) ? piece.FileName : "(no area inside the picture: not written)")
             << "\n";
    }
    for (const std::string& side : SideFilesOf(job)) {
        out_ << "  " << side << "\n";
    }
}

void CutRun::warnAboutEmptySections(const PictureJob& job) {
    const std::vector<i32> empty = SectionsWithoutArea(job.plan, job.width, job.height);
    if (!empty.empty() && !options_.quiet) {
        err_ << kProgram << ": " << job.picture << ": section(s) " << NumberList(empty)
             << " have no area inside the picture (two lines on one place, or a line on or "
                "beyond the picture's edge); they are not written, and the HTML table keeps an "
                "empty cell for each\n";
    }
}

bool CutRun::writePieces(const PictureJob& job, const Picture& picture, ProgressBar& progress,
                         SectionCells& cells) {
    ClipContainer clip{picture};
    PieceEncoder encoder(job.format);
    const std::string saveFormat = encoder.SaveFormat();
    SectionOutput output{clip, saveFormat, options_.quality, encoder};
    output.threads = options_.jobs;
    output.afterSection = [&](const SectionRect& section, std::size_t) {
        if (HasArea(job.layout.pieces[static_cast<std::size_t>(section.Number - 1)])) {
            written_.push_back(section.FileName);
        }
        progress.Step(job.picture);
        return true;
    };
    const std::optional<SectionFailure> failure = WriteSections(output, job.plan, cells);
    if (failure) {
        progress.Clear();
        fail(failure->path, failureText(*failure));
    }
    return !failure;
}

bool CutRun::writeSideFiles(const PictureJob& job, const SectionCells& cells) {
    try {
        WriteSideFiles(job, cells, written_);
    } catch (const FileWriteError& error) {
        fail(error.Path(), "cannot be written: " + error.Reason());
        return false;
    }
    return true;
}

bool CutRun::verify(const PictureJob& job, const Picture& picture) {
    const double floor = PsnrFloor(options_.quality);
    const VerificationReport report = VerifyPieces(picture, job.layout, job.format, floor);
    for (const std::string& problem : report.problems) {
        fail(job.picture, "verify: " + problem);
    }
    if (report.Passed() && !options_.quiet) {
        out_ << job.picture << ": verified: the pieces rejoin to the picture";
        if (std::isfinite(report.worstPsnr)) {
            out_ << " (lowest PSNR " << static_cast<int>(report.worstPsnr) << " dB, floor "
                 << static_cast<int>(floor) << " dB)";
        } else {
            out_ << " pixel for pixel";
        }
        out_ << "\n";
    }
    return report.Passed();
}

bool CutRun::putOnDisk(const PictureJob& job) {
    try {
        SyncFileSystem(job.plan.Destination.Folder);
    } catch (const FileWriteError& error) {
        fail(error.Path(), error.Reason());
        return false;
    }
    return true;
}

void CutRun::printSummary(const PictureJob& job) {
    const std::vector<i32> empty = SectionsWithoutArea(job.plan, job.width, job.height);
    out_ << job.picture << ": " << job.plan.Sections.size() - empty.size()
         << " piece(s) written to " << job.plan.Destination.Folder;
    const char* separator = "; also ";
    for (const std::string& side : SideFilesOf(job)) {
        out_ << separator << side;
        separator = ", ";
    }
    out_ << "\n";
}

void CutRun::cut(const PictureJob& job, const LoadedPicture& loaded, ProgressBar& progress) {
    if (!loaded.ok()) {
        fail(job.picture, "cannot be read: " + loaded.error);
        return;
    }
    if (loaded.picture.Width() != job.width || loaded.picture.Height() != job.height) {
        fail(job.picture, "the picture's size changed while it was being cut");
        return;
    }
    std::error_code error;
    std::filesystem::create_directories(job.plan.Destination.Folder, error);
    if (error) {
        fail(job.plan.Destination.Folder, "the folder cannot be made: " + error.message());
        return;
    }
    warnAboutEmptySections(job);
    SectionCells cells;
    const bool written =
        writePieces(job, loaded.picture, progress, cells) && writeSideFiles(job, cells);
    // One sync for all the files of the picture, written or not: what the run
    // reports as written is on the disk.
    if (!putOnDisk(job) || !written) {
        return;
    }
    if (!options_.quiet) {
        progress.Clear();
        printSummary(job);
    }
    if (options_.verify) {
        verify(job, loaded.picture);
    }
}

// With more than one thread the next picture is decoded while the current one
// is cut: decoding is the one step of a picture that runs on a single core.
void CutRun::cutAll(ProgressBar& progress) {
    const auto policy = options_.jobs > 1 ? std::launch::async : std::launch::deferred;
    const auto load = [](const std::string& path) { return QtPictureLoader().LoadPicture(path); };
    if (jobs_.empty()) {
        return;
    }
    std::future<LoadedPicture> next = std::async(policy, load, jobs_[0].picture);
    for (std::size_t i = 0; i < jobs_.size(); ++i) {
        const LoadedPicture loaded = next.get();
        if (i + 1 < jobs_.size()) {
            next = std::async(policy, load, jobs_[i + 1].picture);
        }
        cut(jobs_[i], loaded, progress);
    }
}

int CutRun::Run() {
    if (!readLineFile()) {
        return status_;
    }
    planAll();
    if (options_.dryRun) {
        for (const PictureJob& job : jobs_) {
            printPlan(job);
        }
        return status_;
    }
    // A picture that cannot be planned is named and left out; a file in the
    // way stops the run before anything is written.
    if (!options_.force && !nothingReplaced()) {
        return status_;
    }
    ProgressBar progress(err_, options_.progress && StandardErrorIsTerminal(), pieceCount(jobs_));
    cutAll(progress);
    if (status_ != 0) {
        progress.Clear();
        listWritten();
    }
    return status_;
}

// After a failure the user learns what is on disk, so that nothing written
// is lost track of.
void CutRun::listWritten() {
    if (written_.empty()) {
        err_ << kProgram << ": no file was written\n";
        return;
    }
    err_ << kProgram << ": " << written_.size() << " file(s) were written:\n";
    for (const std::string& file : written_) {
        err_ << "  " << file << "\n";
    }
}

} // namespace sw
