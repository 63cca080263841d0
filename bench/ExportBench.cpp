// export_bench PICTURE WORKDIR [PARTS]: times the export of a picture cut
// PARTS x PARTS (10 by default), in-process (sort, plan, clip, write every
// section) as JPG at quality 90 and as BMP, on every core (a_) and on one
// thread (a1_), against the bare single-thread lower bounds of BareWriters.
// Prints one "name=milliseconds" line per measure, the best of several runs.
#include "bench/BareWriters.h"
#include "common/RunInOrder.h"
#include "export/ImagingSectionEncoder.h"
#include "export/SectionGrid.h"
#include "export/SectionWriter.h"
#include "imaging/ClipContainer.h"
#include "qt/image/QtPictureLoader.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <functional>
#include <iostream>
#include <vector>

namespace {

using namespace sw;

int parts = 10;

// Rounds of every measure; a fine grid writes thousands of files a round.
int rounds() {
    return parts <= 10 ? 15 : 3;
}

// Equal lines for parts parts, in descending order so that the sort has work to do.
OneBasedArray<i16> linesAcross(int length) {
    OneBasedArray<i16> lines;
    lines.ReDimPreserve(parts - 1);
    for (int i = 1; i < parts; ++i) {
        lines(i) = static_cast<i16>(length * (parts - i) / parts);
    }
    return lines;
}

CutPlan planFor(const Picture& picture, const std::string& folder, const char* extension) {
    OneBasedArray<i16> h = linesAcross(picture.Height());
    OneBasedArray<i16> v = linesAcross(picture.Width());
    const auto count = static_cast<i16>(parts - 1);
    SortLines(h, count);
    SortLines(v, count);
    return BuildSectionGrid(
        {h, count}, {v, count}, static_cast<float>(picture.Width()) * kTwipsPerPixel,
        static_cast<float>(picture.Height()) * kTwipsPerPixel, {folder + "/", "Tile", extension});
}

// The whole export as the run does it, from the unsorted lines on.
void exportInProcess(const Picture& picture, const std::string& folder, const std::string& format,
                     int threads) {
    ClipContainer clip{picture};
    const CutPlan plan = planFor(picture, folder, format == "BMP" ? ".bmp" : ".jpg");
    ImagingSectionEncoder encoder;
    SectionOutput output{clip, format, 90, encoder};
    output.threads = threads;
    SectionCells cells;
    if (WriteSections(output, plan, cells)) {
        throw std::runtime_error("a section could not be written");
    }
}

double millisecondsOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    return took.count();
}

// The measures run in turn, round after round, so that a busy moment of the
// machine falls on all of them alike; each keeps its best round.
struct Measure {
    std::string name;
    std::string folder;
    // Whether each round starts from an empty folder, or replaces the last round's files.
    bool fresh;
    std::function<void()> work;
    double best = 1e300;
};

// Every round writes into an empty folder, as an export into a new place
// does: replacing files would time the file system's handling of old ones.
void emptyFolder(const std::string& folder) {
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
}

void runRounds(std::vector<Measure>& measures) {
    for (int round = 0; round < rounds(); ++round) {
        for (Measure& measure : measures) {
            if (measure.fresh) {
                emptyFolder(measure.folder);
            }
            measure.best = std::min(measure.best, millisecondsOf(measure.work));
        }
    }
}

std::string folderIn(const std::string& work, const std::string& name) {
    const std::string folder = work + "/" + name;
    std::filesystem::create_directories(folder);
    return folder;
}

// The timed work of one measure, writing into `folder`. The bare loops get
// their rectangles and names up front: they stand for the writing alone.
using WorkIn = std::function<std::function<void()>(const std::string& folder)>;

std::vector<Measure> measuresFor(const Picture& picture, const std::string& work) {
    const std::vector<std::pair<std::string, WorkIn>> kinds = {
        {"a_jpg",
         [&](const std::string& f) {
             return [&, f] { exportInProcess(picture, f, "JPG", EveryCore()); };
         }},
        {"a1_jpg",
         [&](const std::string& f) { return [&, f] { exportInProcess(picture, f, "JPG", 1); }; }},
        {"b_jpg",
         [&](const std::string& f) {
             return [&, plan = planFor(picture, f, ".jpg")] {
                 bench::BareTurboJpeg(picture, plan, 90);
             };
         }},
        {"a_bmp",
         [&](const std::string& f) {
             return [&, f] { exportInProcess(picture, f, "BMP", EveryCore()); };
         }},
        {"b_bmp",
         [&](const std::string& f) {
             return [&, plan = planFor(picture, f, ".bmp")] { bench::BareBmp(picture, plan); };
         }},
    };
    std::vector<Measure> measures;
    for (const bool fresh : {true, false}) {
        for (const auto& [name, workIn] : kinds) {
            const std::string label = name + (fresh ? "" : "_replace");
            const std::string folder = folderIn(work, label);
            measures.push_back({label + "_ms", folder, fresh, workIn(folder)});
        }
    }
    return measures;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3 && argc != 4) {
        std::cerr << "usage: export_bench PICTURE WORKDIR [PARTS]\n";
        return 2;
    }
    if (argc == 4) {
        parts = std::stoi(argv[3]);
    }
    const LoadedPicture loaded = QtPictureLoader().LoadPicture(argv[1]);
    if (!loaded.ok()) {
        std::cerr << "export_bench: " << loaded.error << '\n';
        return 1;
    }
    const Picture& picture = loaded.picture;
    std::vector<Measure> measures = measuresFor(picture, argv[2]);
    try {
        runRounds(measures);
        for (const Measure& measure : measures) {
            std::cout << measure.name << '=' << measure.best << '\n';
        }
    } catch (const std::exception& error) {
        std::cerr << "export_bench: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
