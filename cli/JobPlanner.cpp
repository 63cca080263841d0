#include "JobPlanner.h"

#include "PictureSize.h"
#include "export/SaveName.h"

#include <filesystem>
#include <optional>
#include <set>
#include <system_error>

namespace sw {
namespace {

std::string withSeparator(const std::string& folder) {
    return folder.empty() || folder.back() == '/' ? folder : folder + "/";
}

std::string folderFor(const CutOptions& options, const std::string& base) {
    const std::string out = withSeparator(options.outFolder.empty() ? "." : options.outFolder);
    return options.pictures.size() > 1 ? out + base + "/" : out;
}

// A side file as given; with several pictures, its name in each picture's folder.
std::string sideFile(const CutOptions& options, const std::string& given,
                     const std::string& folder) {
    if (given.empty() || options.pictures.size() == 1) {
        return given;
    }
    return folder + std::filesystem::path(given).filename().string();
}

std::filesystem::path normalPath(const std::string& file) {
    std::error_code error;
    return std::filesystem::absolute(file, error).lexically_normal();
}

// A file the job would write twice or over its own picture: a page or
// manifest named like a piece or like each other, or a piece or page named
// like the picture (even --force must not lose the picture being cut).
std::optional<std::string> fileWrittenOver(const PictureJob& job) {
    std::set<std::filesystem::path> paths{normalPath(job.picture)};
    for (const std::string& file : FilesOf(job)) {
        if (!paths.insert(normalPath(file)).second) {
            return file;
        }
    }
    return std::nullopt;
}

} // namespace

std::variant<PictureJob, PlanRefusal> PlanJob(const CutOptions& options, const std::string& picture,
                                              const ParsedLineFile& lineFile) {
    const auto size = PictureSizeOf(picture);
    if (const auto* reason = std::get_if<std::string>(&size)) {
        return PlanRefusal{"cannot be read: " + *reason};
    }
    PictureJob job;
    job.picture = picture;
    job.width = std::get<PixelSize>(size).width;
    job.height = std::get<PixelSize>(size).height;
    job.format = options.format.value_or(DefaultFormatFor(picture));
    const auto lines = PlanLines(options, job.width, job.height, lineFile);
    if (const auto* refusal = std::get_if<PlanRefusal>(&lines)) {
        return *refusal;
    }
    const std::string base = SplitChosenName(picture).BaseName;
    const std::string folder = folderFor(options, base);
    const CutDestination destination{folder, base, ExtensionOf(job.format)};
    auto plan = PlanPieces(std::get<PlannedLines>(lines), job.width, job.height, destination,
                           options.namePattern);
    if (const auto* refusal = std::get_if<PlanRefusal>(&plan)) {
        return *refusal;
    }
    job.plan = std::move(std::get<CutPlan>(plan));
    job.layout = LayOutPieces(job.plan, job.width, job.height);
    job.htmlFile = sideFile(options, options.htmlFile, folder);
    job.cssFile = sideFile(options, options.cssFile, folder);
    job.manifestFile = sideFile(options, options.manifestFile, folder);
    if (const auto over = fileWrittenOver(job)) {
        return PlanRefusal{*over + " would be written over the picture or over another file of "
                                   "the run; give each file a name of its own"};
    }
    return job;
}

} // namespace sw
