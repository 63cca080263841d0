#include "PictureJob.h"

#include "export/SectionArea.h"

namespace sw {

std::vector<std::string> SideFilesOf(const PictureJob& job) {
    std::vector<std::string> files;
    for (const std::string* side : {&job.htmlFile, &job.cssFile, &job.manifestFile}) {
        if (!side->empty()) {
            files.push_back(*side);
        }
    }
    return files;
}

std::vector<std::string> FilesOf(const PictureJob& job) {
    std::vector<std::string> files;
    for (const SectionRect& piece : job.layout.pieces) {
        if (HasArea(piece)) {
            files.push_back(piece.FileName);
        }
    }
    const std::vector<std::string> sides = SideFilesOf(job);
    files.insert(files.end(), sides.begin(), sides.end());
    return files;
}

} // namespace sw
