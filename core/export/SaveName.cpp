#include "export/SaveName.h"

#include "common/Text.h"

namespace sw {

std::optional<std::string> FormatOfName(const std::string& fileName) {
    const std::string ending = UpperCase(RightChars(fileName, 3));
    if (ending == "JPG" || ending == "BMP") {
        return ending;
    }
    return std::nullopt;
}

std::string ExtensionOfFormat(const std::string& saveFormat) {
    return saveFormat == "BMP" ? ".bmp" : ".jpg";
}

SplitName SplitChosenName(const std::string& fileName) {
    SplitName split;
    std::string base = fileName;
    const std::size_t slash = fileName.rfind('/');
    // A name right under the root ("/x.bmp") has a folder too: "/".
    if (slash != std::string::npos) {
        split.Folder = fileName.substr(0, slash + 1);
        base = fileName.substr(slash + 1);
    }
    // Only a dot after the first character starts an extension, so that
    // ".bmp" as a whole name stays a name.
    const std::size_t dot = base.rfind('.');
    if (dot != std::string::npos && dot > 0) {
        base.resize(dot);
    }
    split.BaseName = base;
    return split;
}

std::string TableFileNameFromDialog(const std::string& fileName) {
    if (EndsWith(fileName, ".html") || EndsWith(fileName, ".htm")) {
        return fileName;
    }
    return fileName + ".html";
}

} // namespace sw
