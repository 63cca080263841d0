#include "window/PictureOpening.h"

#include <gtest/gtest.h>

namespace sw {
namespace {

TEST(FolderOfPicture, KeepsTheRootsSeparatorAndNoOther) {
    const std::pair<const char*, const char*> cases[] = {
        {"/photo.bmp", "/"},
        {"/home/ann/photo.bmp", "/home/ann"},
        {"data/photo.jpg", "data"},
        {"photo.gif", ""},
    };
    for (const auto& [path, folder] : cases) {
        EXPECT_EQ(FolderOfPicture(path), folder) << path;
    }
}

} // namespace
} // namespace sw
