#include "imaging/BmpFile.h"

#include "imaging/PictureLimits.h"
#include "imaging/PictureProblems.h"

#include <fstream>

namespace sw {

bool IsBmpFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return StartsLikeBmp(file);
}

BmpRead ReadBmp(std::istream& file, std::uint64_t fileSize) {
    const BmpHeaderRead read = ReadBmpHeader(file);
    if (!read.header) {
        return {std::nullopt, read.problem};
    }
    const BmpHeader& header = *read.header;
    if (const std::optional<std::string> problem =
            PictureSizeProblem(header.Columns(), header.Rows())) {
        return {std::nullopt, *problem};
    }
    if (!header.HoldsEveryRow(fileSize)) {
        return {std::nullopt, kIncompleteFileProblem};
    }
    return ReadBmpPixels(file, header);
}

BmpRead ReadBmpFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    if (!file) {
        return {std::nullopt, "the file cannot be read"};
    }
    const auto size = static_cast<std::uint64_t>(file.tellg());
    file.seekg(0);
    return ReadBmp(file, size);
}

} // namespace sw
