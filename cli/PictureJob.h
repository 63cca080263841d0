#pragma once

#include "PieceFormat.h"
#include "PieceLayout.h"
#include "export/CutPlan.h"

#include <string>
#include <vector>

namespace sw {

// One picture of a run, planned: where its pieces go and in which format,
// and the files beside them that were asked for (empty when not asked for).
struct PictureJob {
    std::string picture;
    i32 width = 0;
    i32 height = 0;
    PieceFormat format = PieceFormat::Bmp;
    CutPlan plan;
    PieceLayout layout;
    std::string htmlFile;
    std::string cssFile;
    std::string manifestFile;
};

// The HTML table, CSS page and manifest that were asked for, in that order.
std::vector<std::string> SideFilesOf(const PictureJob& job);

// Every file the job would write, pieces first.
std::vector<std::string> FilesOf(const PictureJob& job);

} // namespace sw
