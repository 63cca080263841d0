#include "linefile/LineFileText.h"

#include "linefile/LineFieldReader.h"
#include "session/SessionState.h"

#include <gtest/gtest.h>

namespace sw {
namespace {

SessionState lineSet(std::initializer_list<i16> h, std::initializer_list<i16> v) {
    SessionState s;
    s.hLines = h.size() == 0 ? OneBasedArray<i16>{0} : OneBasedArray<i16>(h);
    s.vLines = v.size() == 0 ? OneBasedArray<i16>{0} : OneBasedArray<i16>(v);
    s.hLineCount = static_cast<i16>(h.size());
    s.vLineCount = static_cast<i16>(v.size());
    return s;
}

std::vector<std::string> fieldsOf(std::string_view text) {
    std::vector<std::string> fields;
    LineFieldReader reader(text);
    while (!reader.AtEnd()) {
        fields.push_back(reader.ReadLineField());
    }
    return fields;
}

TEST(LineFileBytes, WritesHorizontalsThenVerticalsAsQuotedRecords) {
    const std::string expected = "\x22H33\x22\r\n\x22H67\x22\r\n\x22V120\x22\r\n";
    EXPECT_EQ(LineFileBytes(lineSet({33, 67}, {120})), expected);
    EXPECT_EQ(expected.size(), 22u);
    // A count of 0 goes with one slot holding 0, which is no line.
    EXPECT_EQ(LineFileBytes(lineSet({}, {})), "");
    EXPECT_EQ(LineFileBytes(lineSet({}, {0, -5, 32767})), "\"V0\"\r\n\"V-5\"\r\n\"V32767\"\r\n");
    EXPECT_EQ(LineFileBytes(lineSet({-32768, 9, 9}, {})), "\"H-32768\"\r\n\"H9\"\r\n\"H9\"\r\n");
}

TEST(LineFieldReader, SplitsFieldsAsTheReaderRulesSay) {
    using Fields = std::vector<std::string>;
    const struct {
        const char* text;
        Fields fields;
    } cases[] = {
        {"\"H5\"\r\n\"V7\"\r\n", {"H5", "V7"}},
        {"\"H5\"\n\"V7\"\r\"V8\"", {"H5", "V7", "V8"}},
        {"\"H5\",\"V7\"\r\n", {"H5", "V7"}},
        {"  \t\"H5\"  tail , V7  \r\n", {"H5", "V7"}},
        {"H 5 ,h6\t\r\n", {"H 5", "h6"}},
        {"\"H,5\"\r\n", {"H,5"}},
        {"\"H5\r\nV7", {"H5\r\nV7"}},
        {"\"H5\"\r\n\r\n\"V7\"", {"H5", "", "V7"}},
        {"\"H5\"\r\n\r\n", {"H5", ""}},
        {"\"H5\",\r\n", {"H5", ""}},
        {"", {}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(fieldsOf(c.text), c.fields) << c.text;
    }
}

TEST(ParseLineFile, LoadsEveryRecordOfAGoodFile) {
    const ParsedLineFile parsed = ParseLineFile("\"h5\"\r\nV-7,\"H 32767\"\r\n\"v1.5\"");
    ASSERT_EQ(parsed.problem, LineFileProblem::None);
    const std::vector<LineRecord> expected = {{Direction::Horizontal, 5},
                                              {Direction::Vertical, -7},
                                              {Direction::Horizontal, 32767},
                                              {Direction::Vertical, 2}};
    EXPECT_EQ(parsed.records, expected);
    EXPECT_TRUE(ParseLineFile("").records.empty());
}

TEST(ParseLineFile, DropsTheWholeFileForOneBadRecord) {
    for (const char* text :
         {"\"H5\"\r\ngarbage\r\n\"V7\"\r\n", "\"H5\"\r\n\r\n\"V7\"", "\"H5\"\r\n\r\n", "\"H\"",
          "\"Habc\"", "\"H40000\"", "\"V-32769\"", "\"X5\"", "\"\"", " ", "\"H5\",\r\n"}) {
        const ParsedLineFile parsed = ParseLineFile(text);
        EXPECT_EQ(parsed.problem, LineFileProblem::Corrupt) << text;
        EXPECT_TRUE(parsed.records.empty()) << text;
    }
}

TEST(ParseLineFile, RefusesMoreLinesThanTheLineSetHolds) {
    std::string full;
    for (int i = 0; i < 32767; ++i) {
        full += "\"H1\"\r\n";
    }
    EXPECT_EQ(ParseLineFile(full).problem, LineFileProblem::None);
    EXPECT_EQ(ParseLineFile(full + "\"V1\"\r\n").problem, LineFileProblem::TooManyLines);
    EXPECT_EQ(ParseLineFile(full + "\"H1\"\r\n").problem, LineFileProblem::TooManyLines);
}

} // namespace
} // namespace sw
