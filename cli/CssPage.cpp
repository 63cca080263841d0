#include "CssPage.h"

#include "export/SectionArea.h"

#include <filesystem>

namespace sw {
namespace {

std::string tracks(const std::vector<i32>& sizes) {
    std::string text;
    for (const i32 size : sizes) {
        if (!text.empty()) {
            text += ' ';
        }
        text += std::to_string(size);
        text += "px";
    }
    return text;
}

std::string escapedText(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

std::string cell(const SectionRect& piece, std::size_t row, std::size_t column,
                 const std::string& pagePath) {
    const std::string area =
        "grid-area: " + std::to_string(row + 1) + " / " + std::to_string(column + 1);
    if (!HasArea(piece)) {
        return "<div style=\"" + area + "\"></div>";
    }
    return "<img style=\"" + area + "\" src=\"" + UrlPath(RelativeTo(piece.FileName, pagePath)) +
           "\" width=\"" + std::to_string(piece.Width) + "\" height=\"" +
           std::to_string(piece.Height) + "\" alt=\"\">";
}

} // namespace

std::string UrlPath(const std::string& path) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string url;
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        const bool plain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
                           (byte >= '0' && byte <= '9') || c == '-' || c == '.' || c == '_' ||
                           c == '~' || c == '/';
        if (plain) {
            url += c;
        } else {
            url += '%';
            url += kHex[byte >> 4];
            url += kHex[byte & 0xF];
        }
    }
    return url;
}

std::string RelativeTo(const std::string& file, const std::string& page) {
    namespace fs = std::filesystem;
    const fs::path folder = fs::absolute(fs::path(page)).lexically_normal().parent_path();
    return fs::absolute(fs::path(file)).lexically_normal().lexically_relative(folder).string();
}

std::string CssPageText(const PieceLayout& layout, const std::string& title,
                        const std::string& pagePath) {
    std::string page =
        "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>" + escapedText(title) +
        "</title>\n<style>\n"
        "body { margin: 0; }\n"
        ".pieces { display: grid; grid-template-columns: " +
        tracks(layout.columnWidths) + "; grid-template-rows: " + tracks(layout.rowHeights) +
        "; }\n"
        ".pieces img { display: block; }\n"
        "</style>\n</head>\n<body>\n<div class=\"pieces\">\n";
    const std::size_t columns = layout.columnWidths.size();
    for (std::size_t i = 0; i < layout.pieces.size(); ++i) {
        page += cell(layout.pieces[i], i / columns, i % columns, pagePath) + "\n";
    }
    return page + "</div>\n</body>\n</html>\n";
}

} // namespace sw
