#include "SideFiles.h"

#include "CssPage.h"
#include "Manifest.h"
#include "common/AtomicFile.h"
#include "export/HtmlTable.h"

#include <filesystem>
#include <system_error>

namespace sw {
namespace {

// A page or manifest may go into a folder of its own, made like the pieces' one.
void writeTextFile(const std::string& path, const std::string& text,
                   std::vector<std::string>& written) {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    std::error_code error;
    if (!folder.empty()) {
        std::filesystem::create_directories(folder, error);
    }
    AtomicFile file(path, SyncMode::Deferred);
    file.Write(text);
    file.Commit();
    written.push_back(path);
}

} // namespace

void WriteSideFiles(const PictureJob& job, const SectionCells& cells,
                    std::vector<std::string>& written) {
    if (!job.htmlFile.empty()) {
        writeTextFile(job.htmlFile, TableText(BuildTableLines(cells, job.plan.Columns)), written);
    }
    if (!job.cssFile.empty()) {
        writeTextFile(job.cssFile,
                      CssPageText(job.layout, job.plan.Destination.BaseName, job.cssFile), written);
    }
    if (!job.manifestFile.empty()) {
        writeTextFile(job.manifestFile,
                      ManifestText({job.picture, job.width, job.height, job.format}, job.layout),
                      written);
    }
}

} // namespace sw
