#pragma once

#include "NamePattern.h"
#include "PieceFormat.h"
#include "common/Types.h"

#include <optional>
#include <string>
#include <vector>

namespace sw {

// Where the section lines of a run come from; exactly one per run.
enum class LineSource { Grid, Tile, LineFile, Explicit };

// Everything the command line asks for, checked for form but not yet
// against any picture.
struct CutOptions {
    std::vector<std::string> pictures;

    LineSource source = LineSource::Grid;
    // The two counts of --grid RxC as typed: they are read the way the
    // window reads the answer of its division box.
    std::string gridRows;
    std::string gridColumns;
    i32 tileWidth = 0;
    i32 tileHeight = 0;
    std::string lineFile;
    std::vector<i16> hLines;
    std::vector<i16> vLines;

    std::string outFolder = ".";
    std::optional<NamePattern> namePattern;
    // Nothing: the window's choice for each picture.
    std::optional<PieceFormat> format;
    i32 quality = 90;

    std::string htmlFile;
    std::string cssFile;
    std::string manifestFile;

    bool verify = false;
    bool force = false;
    bool dryRun = false;
    i32 jobs = 0;
    bool progress = false;
    bool quiet = false;
};

} // namespace sw
