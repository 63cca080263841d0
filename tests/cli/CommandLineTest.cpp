#include "CommandLine.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <vector>

namespace sw {
namespace {

CommandLine parse(std::initializer_list<const char*> arguments) {
    std::vector<const char*> argv{"slicewright-cut"};
    argv.insert(argv.end(), arguments);
    return ParseCommandLine(static_cast<int>(argv.size()), argv.data());
}

TEST(CutCommandLine, ReadsEveryOptionIntoTheModel) {
    const CommandLine line =
        parse({"a.jpg",      "b.bmp",  "--h",      "10,-3,40",      "--v",       "7",
               "-o",         "out",    "--name",   "{base}_{n:02}", "-f",        "WebP",
               "-q",         "55",     "--html",   "t.html",        "--css",     "p.html",
               "--manifest", "m.json", "--verify", "--force",       "--dry-run", "-j",
               "3",          "--quiet"});
    ASSERT_TRUE(line.options) << line.error;
    const CutOptions& o = *line.options;
    EXPECT_EQ(o.pictures, (std::vector<std::string>{"a.jpg", "b.bmp"}));
    EXPECT_EQ(o.source, LineSource::Explicit);
    EXPECT_EQ(o.hLines, (std::vector<i16>{10, -3, 40}));
    EXPECT_EQ(o.vLines, (std::vector<i16>{7}));
    EXPECT_EQ(o.outFolder, "out");
    ASSERT_TRUE(o.namePattern);
    EXPECT_EQ(o.namePattern->Name("a", 3, 1, 3), "a_03");
    EXPECT_EQ(o.format, PieceFormat::Webp);
    EXPECT_EQ(o.quality, 55);
    EXPECT_EQ(o.htmlFile, "t.html");
    EXPECT_EQ(o.cssFile, "p.html");
    EXPECT_EQ(o.manifestFile, "m.json");
    EXPECT_TRUE(o.verify && o.force && o.dryRun && o.quiet);
    EXPECT_FALSE(o.progress);
    EXPECT_EQ(o.jobs, 3);
}

TEST(CutCommandLine, GridCountsAreReadAsTheDivisionBoxReadsThem) {
    // 2.5 rounds half to even, as the window's answer does; 1 leaves a direction whole.
    const CommandLine line = parse({"a.bmp", "--grid", "2.5x1"});
    ASSERT_TRUE(line.options) << line.error;
    EXPECT_EQ(line.options->gridRows, "2.5");
    EXPECT_EQ(line.options->gridColumns, "1");
    EXPECT_EQ(line.options->jobs > 0, true);
    for (const auto& [grid, words] : std::vector<std::pair<const char*, const char*>>{
             {"0x2", "Number of sections must be greater than 1"},
             {"-3x2", "Number of sections must be greater than 1"},
             {"2xabc", "Number of sections must be numeric"},
             {"40000x2", "With a number that large, I think you need something a little more "
                         "high test than this!"}}) {
        const CommandLine refused = parse({"a.bmp", "--grid", grid});
        EXPECT_EQ(refused.exitCode, 2) << grid;
        EXPECT_NE(refused.error.find(words), std::string::npos) << refused.error;
    }
}

TEST(CutCommandLine, UsageErrorsEndWithTwoAndAShortUsage) {
    for (const auto& arguments :
         std::vector<std::vector<const char*>>{{},
                                               {"a.bmp"},
                                               {"a.bmp", "--grid", "2x2", "--lines", "x.ple"},
                                               {"a.bmp", "--tile", "10"},
                                               {"a.bmp", "--tile", "10x1.5"},
                                               {"a.bmp", "--v", "1,,2"},
                                               {"a.bmp", "--grid", "2x2", "--name", "{n:xx}"},
                                               {"a.bmp", "--grid", "2x2", "--name", "{base}"},
                                               {"a.bmp", "--grid", "2x2", "--name", "sub/{n}"},
                                               {"a.bmp", "--grid", "2x2", "-f", "tiff"},
                                               {"x/a.bmp", "y/a.jpg", "--grid", "2x2"}}) {
        std::vector<const char*> argv{"slicewright-cut"};
        argv.insert(argv.end(), arguments.begin(), arguments.end());
        const CommandLine line = ParseCommandLine(static_cast<int>(argv.size()), argv.data());
        EXPECT_FALSE(line.options);
        EXPECT_EQ(line.exitCode, 2);
        EXPECT_NE(line.error.find("Usage: slicewright-cut [OPTIONS] PICTURE..."), std::string::npos)
            << line.error;
        EXPECT_TRUE(line.output.empty());
    }
}

TEST(CutCommandLine, HelpAndVersionGoToStandardOutput) {
    const CommandLine help = parse({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_NE(help.output.find("--manifest"), std::string::npos);
    EXPECT_TRUE(help.error.empty());
    const CommandLine version = parse({"--version"});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_EQ(version.output.rfind("slicewright-cut ", 0), 0u);
}

} // namespace
} // namespace sw
