#include "NamePattern.h"

#include <gtest/gtest.h>

namespace sw {
namespace {

TEST(NamePattern, FieldsPaddingAndPlainText) {
    std::string problem;
    const auto pattern = NamePattern::Parse("tile {base}-{row:02}x{col:3}_{n:04}", problem);
    ASSERT_TRUE(pattern) << problem;
    EXPECT_EQ(pattern->Name("sky", 12, 2, 4), "tile sky-02x004_0012");
    // A number wider than its padding is not cut.
    EXPECT_EQ(pattern->Name("sky", 123456, 100, 1000), "tile sky-100x1000_123456");
}

TEST(NamePattern, RefusesPatternsThatCannotTellPiecesApart) {
    for (const char* text : {"{base}", "{row}", "{col}-x", "{n", "n}", "{size}", "{base:03}",
                             "{n:}", "{n:123}", "{n:99}", "a/{n}"}) {
        std::string problem;
        EXPECT_FALSE(NamePattern::Parse(text, problem)) << text;
        EXPECT_FALSE(problem.empty()) << text;
    }
}

} // namespace
} // namespace sw
