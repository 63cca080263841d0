#include "CommandLine.h"

#include "CutPlanner.h"
#include "common/Numbers.h"
#include "export/SaveName.h"
#include "session/EqualDivision.h"

#include <CLI/CLI.hpp>
#include <set>
#include <sstream>
#include <thread>

namespace sw {
namespace {

// A usage error: the program stops before anything is read or written.
struct UsageError {
    std::string what;
};

// The texts of the options as typed, before they are checked.
struct RawOptions {
    std::string grid;
    std::string tile;
    std::string hLines;
    std::string vLines;
    std::string name;
    std::string format;
};

std::string description() {
    return "Cuts pictures (BMP, JPG, GIF) into a grid of sections, as Slicewright's window "
           "does, and writes every section as a numbered file, with an HTML table, a CSS page "
           "and a manifest that put them together again.";
}

std::string footer() {
    return "Exactly one of --grid, --tile, --lines or --h/--v gives the lines. Pieces are named "
           "as the window names them (the picture's name and a running number) unless --name "
           "gives a pattern. With several pictures each gets a sub-folder of --out named after "
           "it, and --html, --css and --manifest name a file in each sub-folder.\n\n"
           "Exit status: 0 all written (and verified, when asked); 1 a picture could not be "
           "read, a file could not be written or a check failed; 2 a usage error.";
}

// One count of --grid, read as the window reads its division box: a count of
// 1 leaves that direction undivided.
void checkGridCount(const std::string& text, const std::string& which) {
    if (LeavesUndivided(text)) {
        return;
    }
    // Any picture of the largest size passes the test against its size here;
    // that test waits for the picture.
    const SectionCount count =
        CountSections(text, Direction::Horizontal, 32767.0f * kTwipsPerPixel);
    if (count.refusal) {
        throw UsageError{"--grid " + which + " \"" + text + "\": " + *count.refusal +
                         " (1 leaves that direction undivided)"};
    }
}

void parseGrid(const std::string& text, CutOptions& options) {
    const std::size_t x = text.find_first_of("xX");
    if (x == std::string::npos || text.find_first_of("xX", x + 1) != std::string::npos) {
        throw UsageError{"--grid \"" + text + "\": give rows x columns, such as 3x4"};
    }
    options.gridRows = text.substr(0, x);
    options.gridColumns = text.substr(x + 1);
    checkGridCount(options.gridRows, "rows");
    checkGridCount(options.gridColumns, "columns");
}

i32 tileSide(const std::string& text, const std::string& whole) {
    const Converted<i16> side = TextToInteger(text);
    if (!side.ok() || !IsNumericText(text) || side.value < 1 ||
        text.find_first_not_of("0123456789 ") != std::string::npos) {
        throw UsageError{
            "--tile \"" + whole +
            "\": give width x height in whole pixels from 1 to 32767, such as 256x256"};
    }
    return side.value;
}

void parseTile(const std::string& text, CutOptions& options) {
    const std::size_t x = text.find_first_of("xX");
    if (x == std::string::npos) {
        throw UsageError{"--tile \"" + text + "\": give width x height, such as 256x256"};
    }
    options.tileWidth = tileSide(text.substr(0, x), text);
    options.tileHeight = tileSide(text.substr(x + 1), text);
}

// "10,50,-3": positions in picture pixels, 16-bit like every section line.
std::vector<i16> parsePositions(const std::string& text, const std::string& option) {
    std::vector<i16> positions;
    std::stringstream items(text);
    std::string item;
    while (std::getline(items, item, ',')) {
        const Converted<i16> position = TextToInteger(item);
        if (!position.ok() || !IsNumericText(item) ||
            item.find_first_of(".eE") != std::string::npos) {
            throw UsageError{option + " \"" + text + "\": \"" + item +
                             "\" is no whole pixel position from -32768 to 32767"};
        }
        positions.push_back(position.value);
    }
    if (positions.empty()) {
        throw UsageError{option + " needs at least one position"};
    }
    return positions;
}

void parseLineSource(const RawOptions& raw, CutOptions& options, const CLI::App& app) {
    const int sources = int(app.count("--grid") > 0) + int(app.count("--tile") > 0) +
                        int(app.count("--lines") > 0) +
                        int(app.count("--h") + app.count("--v") > 0);
    if (sources != 1) {
        throw UsageError{sources == 0 ? "no lines: give --grid, --tile, --lines or --h/--v"
                                      : "give only one of --grid, --tile, --lines or --h/--v"};
    }
    if (app.count("--grid")) {
        options.source = LineSource::Grid;
        parseGrid(raw.grid, options);
    } else if (app.count("--tile")) {
        options.source = LineSource::Tile;
        parseTile(raw.tile, options);
    } else if (app.count("--lines")) {
        options.source = LineSource::LineFile;
    } else {
        options.source = LineSource::Explicit;
        if (app.count("--h")) {
            options.hLines = parsePositions(raw.hLines, "--h");
        }
        if (app.count("--v")) {
            options.vLines = parsePositions(raw.vLines, "--v");
        }
    }
}

void parseNaming(const RawOptions& raw, CutOptions& options, const CLI::App& app) {
    if (app.count("--name")) {
        std::string problem;
        options.namePattern = NamePattern::Parse(raw.name, problem);
        if (!options.namePattern) {
            throw UsageError{"--name: " + problem};
        }
    }
    if (app.count("--format")) {
        options.format = ParsePieceFormat(raw.format);
        if (!options.format) {
            throw UsageError{"--format \"" + raw.format + "\": choose bmp, jpg, png or webp"};
        }
    }
}

// Several pictures go into sub-folders named after them, which must differ.
void checkPictureNames(const CutOptions& options) {
    std::set<std::string> names;
    for (const std::string& picture : options.pictures) {
        const std::string stem = SplitChosenName(picture).BaseName;
        if (options.pictures.size() > 1 && !names.insert(stem).second) {
            throw UsageError{"two pictures are named \"" + stem +
                             "\"; their sub-folders of --out would be one"};
        }
    }
}

// Where the lines come from; exactly one is given.
void addLineOptions(CLI::App& app, CutOptions& options, RawOptions& raw) {
    app.add_option("PICTURE", options.pictures, "BMP, JPG or GIF pictures to cut")
        ->required()
        ->type_name("");
    app.add_option("--grid", raw.grid,
                   "R rows and C columns by the window's equal division (same rounding, same "
                   "refusals)")
        ->type_name("RxC");
    app.add_option("--tile", raw.tile,
                   "sections of a fixed size; the last row and column take what is left")
        ->type_name("WxH");
    app.add_option("--lines", options.lineFile,
                   "the lines of a line file, as the window would load them onto the picture")
        ->type_name("FILE.ple");
    app.add_option("--h", raw.hLines, "horizontal lines at these Y positions (picture pixels)")
        ->type_name("Y,Y,...");
    app.add_option("--v", raw.vLines, "vertical lines at these X positions (picture pixels)")
        ->type_name("X,X,...");
}

// What is written, where, and under which names.
void addOutputOptions(CLI::App& app, CutOptions& options, RawOptions& raw) {
    app.add_option("-o,--out", options.outFolder,
                   "the folder for the sections, made if missing (default: the current folder)")
        ->type_name("DIR");
    app.add_option("--name", raw.name,
                   "piece names from {base} {n} {row} {col}, numbers padded as in {n:03} "
                   "(default: the picture's name and the running number, as the window names them)")
        ->type_name("PATTERN");
    app.add_option("-f,--format", raw.format,
                   "bmp, jpg, png or webp (default: jpg for a JPG picture, else bmp)")
        ->type_name("FORMAT");
    app.add_option("-q,--quality", options.quality, "JPEG and WebP quality 1..100 (default 90)")
        ->check(CLI::Range(1, 100).description(""))
        ->type_name("N");
    app.add_option("--html", options.htmlFile, "write the window's HTML table to FILE")
        ->type_name("FILE");
    app.add_option("--css", options.cssFile, "write a page that rejoins the pieces in a CSS grid")
        ->type_name("FILE");
    app.add_option("--manifest", options.manifestFile,
                   "write every section's file, row, column and rectangle as JSON")
        ->type_name("FILE.json");
}

// How the run goes and what it tells.
void addRunOptions(CLI::App& app, CutOptions& options) {
    app.add_flag("--verify", options.verify,
                 "read the pieces back, rejoin them and compare with the picture: BMP and PNG "
                 "must be pixel-exact, every JPEG or WebP piece within 30 dB PSNR (20 dB at a "
                 "quality below 50); exit 1 on a mismatch");
    app.add_flag("--force", options.force,
                 "replace existing files (without it, the files that would be replaced are "
                 "listed and nothing is written)");
    app.add_flag("--dry-run", options.dryRun,
                 "print the plan (sections, names, rectangles) and write nothing");
    app.add_option("-j,--jobs", options.jobs, "sections encoded at once (default: every core)")
        ->check(CLI::Range(1, 1024).description(""))
        ->type_name("N");
    auto* progress = app.add_flag("--progress", options.progress,
                                  "a progress bar on standard error when it is a terminal");
    app.add_flag("--quiet", options.quiet, "print only errors")->excludes(progress);
    app.set_version_flag("--version", std::string(kProgram) + " " + SLICEWRIGHT_VERSION);
}

std::string usageLine() {
    return std::string("Usage: ") + kProgram + " [OPTIONS] PICTURE...\nTry '" + kProgram +
           " --help' for more.\n";
}

CommandLine usageError(const std::string& what) {
    return {std::nullopt, 2, {}, std::string(kProgram) + ": " + what + "\n" + usageLine()};
}

} // namespace

double PsnrFloor(i32 quality) {
    return quality >= 50 ? 30.0 : 20.0;
}

CommandLine ParseCommandLine(int argc, const char* const* argv) {
    CutOptions options;
    RawOptions raw;
    CLI::App app(description(), kProgram);
    app.footer(footer());
    app.get_formatter()->column_width(34);
    addLineOptions(app, options, raw);
    addOutputOptions(app, options, raw);
    addRunOptions(app, options);
    try {
        app.parse(argc, argv);
        parseLineSource(raw, options, app);
        parseNaming(raw, options, app);
        checkPictureNames(options);
    } catch (const CLI::CallForHelp&) {
        return {std::nullopt, 0, app.help(), {}};
    } catch (const CLI::CallForVersion& version) {
        return {std::nullopt, 0, std::string(version.what()) + "\n", {}};
    } catch (const CLI::ParseError& error) {
        return usageError(error.what());
    } catch (const UsageError& error) {
        return usageError(error.what);
    }
    if (options.jobs == 0) {
        options.jobs = static_cast<i32>(std::max(1u, std::thread::hardware_concurrency()));
    }
    return {std::move(options), 0, {}, {}};
}

} // namespace sw
