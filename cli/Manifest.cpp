#include "Manifest.h"

#include "export/SectionArea.h"

#include <nlohmann/json.hpp>

namespace sw {
namespace {

nlohmann::json sectionEntry(const SectionRect& piece, i32 columns) {
    nlohmann::json entry = {
        {"number", piece.Number},
        {"row", (piece.Number - 1) / columns + 1},
        {"column", (piece.Number - 1) % columns + 1},
        {"left", piece.Left},
        {"top", piece.Top},
        {"width", piece.Width},
        {"height", piece.Height},
    };
    entry["file"] = HasArea(piece) ? nlohmann::json(piece.FileName) : nlohmann::json(nullptr);
    return entry;
}

} // namespace

std::string ManifestText(const ManifestSource& source, const PieceLayout& layout) {
    const auto columns = static_cast<i32>(layout.columnWidths.size());
    nlohmann::json sections = nlohmann::json::array();
    for (const SectionRect& piece : layout.pieces) {
        sections.push_back(sectionEntry(piece, columns));
    }
    const nlohmann::json manifest = {
        {"picture", source.picture},
        {"width", source.width},
        {"height", source.height},
        {"format", NameOf(source.format)},
        {"rows", layout.rowHeights.size()},
        {"columns", columns},
        {"sections", sections},
    };
    return manifest.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";
}

} // namespace sw
