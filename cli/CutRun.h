#pragma once

#include "CutOptions.h"
#include "PictureJob.h"
#include "export/SectionCells.h"
#include "linefile/LineFileText.h"
#include "ports/PictureLoader.h"

#include <ostream>
#include <vector>

namespace sw {

class ProgressBar;

// One run of the command over all its pictures. Every picture is planned
// before any is cut, so that a file that would be replaced stops the run
// before anything is written. A picture that cannot be read, planned or cut
// is named and does not keep the others from being cut.
class CutRun {
public:
    CutRun(const CutOptions& options, std::ostream& out, std::ostream& err);

    // The exit status: 0 all written (and verified), 1 anything failed.
    int Run();

private:
    bool readLineFile();
    void planAll();
    bool nothingReplaced();
    void printPlan(const PictureJob& job);
    void cutAll(ProgressBar& progress);
    void cut(const PictureJob& job, const LoadedPicture& loaded, ProgressBar& progress);
    void printSummary(const PictureJob& job);
    bool writePieces(const PictureJob& job, const Picture& picture, ProgressBar& progress,
                     SectionCells& cells);
    bool writeSideFiles(const PictureJob& job, const SectionCells& cells);
    bool putOnDisk(const PictureJob& job);
    bool verify(const PictureJob& job, const Picture& picture);
    void warnAboutEmptySections(const PictureJob& job);
    void fail(const std::string& subject, const std::string& message);
    void listWritten();

    const CutOptions& options_;
    std::ostream& out_;
    std::ostream& err_;
    ParsedLineFile lineFile_;
    std::vector<PictureJob> jobs_;
    // Every file this run has put on disk, in order.
    std::vector<std::string> written_;
    int status_ = 0;
};

} // namespace sw
