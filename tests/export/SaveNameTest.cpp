#include "export/SaveName.h"

#include <gtest/gtest.h>

namespace sw {
namespace {

TEST(FormatOfName, LooksAtTheLastThreeCharactersInAnyCase) {
    const struct {
        const char* name;
        const char* format;
    } cases[] = {
        {"out/a.JpG", "JPG"}, {"Tile.bmp", "BMP"}, {"tilebmp", "BMP"}, {"x.jpg", "JPG"},
        {"tile.jpeg", ""},    {"tile.png", ""},    {"pg", ""},         {"", ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FormatOfName(c.name).value_or(""), c.format) << c.name;
    }
}

TEST(SplitChosenName, KeepsTheFolderWithItsSeparatorAndCutsAtTheLastDotOnly) {
    const struct {
        const char* name;
        const char* folder; // nullptr: the name has no folder part
        const char* baseName;
    } cases[] = {
        {"/home/u/Out/Tile.JPG", "/home/u/Out/", "Tile"},
        {"out/a.b.bmp", "out/", "a.b"},
        {"out/.bmp", "out/", ".bmp"},
        {"out/tilebmp", "out/", "tilebmp"},
        {"my.pics/tile", "my.pics/", "tile"},
        {"/x.bmp", "/", "x"},
        {"Tile.bmp", nullptr, "Tile"},
        {"two words.jpg", nullptr, "two words"},
    };
    for (const auto& c : cases) {
        const SplitName split = SplitChosenName(c.name);
        EXPECT_EQ(split.BaseName, c.baseName) << c.name;
        EXPECT_EQ(split.Folder.has_value(), c.folder != nullptr) << c.name;
        if (split.Folder && c.folder) {
            EXPECT_EQ(*split.Folder, c.folder) << c.name;
        }
    }
}

} // namespace
} // namespace sw
