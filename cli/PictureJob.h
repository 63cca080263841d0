#pragma once

#include "PieceFormat.h"
#include "PieceLayout.h"
#include "export/CutPlan.h"

#include <string>

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

// Every file the job would write, pieces first.
std::vector<std::string> FilesOf(const PictureJob& job);

} // namespace sw
