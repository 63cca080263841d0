#include "window/DialogFilter.h"

#include <gtest/gtest.h>

namespace sw {
namespace {

TEST(DialogFilter, ReadsLabelsAndPatternsOfEveryFilterTheToolUses) {
    const auto pictures = ParseDialogFilter("Picture Files |*.bmp;*.jpg;*.gif");
    ASSERT_EQ(pictures.size(), 1u);
    EXPECT_EQ(pictures[0].label, "Picture Files");
    EXPECT_EQ(pictures[0].patterns, (std::vector<std::string>{"*.bmp", "*.jpg", "*.gif"}));

    const auto sections = ParseDialogFilter("JPEG Files |*.jpg|Bitmap Files |*.bmp");
    ASSERT_EQ(sections.size(), 2u);
    EXPECT_EQ(sections[0].label, "JPEG Files");
    EXPECT_EQ(sections[1].patterns, std::vector<std::string>{"*.bmp"});

    // The trailing semicolon of the line-file filter adds no empty pattern.
    const auto lines = ParseDialogFilter("Slicewright Files |*.ple;");
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].patterns, std::vector<std::string>{"*.ple"});
}

} // namespace
} // namespace sw
