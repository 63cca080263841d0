#include "common/Numbers.h"

#include <gtest/gtest.h>

namespace sw {
namespace {

TEST(TextToInteger, RoundsHalfToEven) {
    EXPECT_EQ(TextToInteger("2.5").value, 2);
    EXPECT_EQ(TextToInteger("3.5").value, 4);
    EXPECT_EQ(TextToInteger("1.5").value, 2);
    EXPECT_EQ(TextToInteger("-2.5").value, -2);
    EXPECT_EQ(TextToInteger("1.4").value, 1);
    EXPECT_EQ(TextToInteger(" 007 ").value, 7);
    EXPECT_EQ(TextToInteger("1e2").value, 100);
}

TEST(TextToInteger, OverflowsOutsideSixteenBits) {
    EXPECT_EQ(TextToInteger("32767").value, 32767);
    EXPECT_EQ(TextToInteger("-32768").value, -32768);
    EXPECT_EQ(TextToInteger("32767.5").error, ConversionError::Overflow);
    EXPECT_EQ(TextToInteger("-32768.5").value, -32768);
    EXPECT_EQ(TextToInteger("40000").error, ConversionError::Overflow);
    EXPECT_EQ(TextToInteger("-40000").error, ConversionError::Overflow);
    EXPECT_EQ(TextToInteger("1e400").error, ConversionError::Overflow);
}

TEST(TextToInteger, RefusesTextThatIsNoNumber) {
    for (const char* text : {"abc", " ", "", "1,5", "--1", "1e", ".", "+", "12abc", "0x10"}) {
        EXPECT_EQ(TextToInteger(text).error, ConversionError::TypeMismatch) << text;
        EXPECT_FALSE(IsNumericText(text)) << text;
    }
}

TEST(IsNumericText, AcceptsSignsFractionsAndExponents) {
    for (const char* text : {"1", "-3", "+4", "1.5", ".5", "5.", "1e3", "2.5E-1", " 12 "}) {
        EXPECT_TRUE(IsNumericText(text)) << text;
    }
}

TEST(RoundHalfEven, TiesGoToTheEvenNeighbour) {
    EXPECT_EQ(RoundHalfEven(0.5), 0.0);
    EXPECT_EQ(RoundHalfEven(1.5), 2.0);
    EXPECT_EQ(RoundHalfEven(7.5), 8.0);
    EXPECT_EQ(RoundHalfEven(-0.5), 0.0);
    EXPECT_EQ(RoundHalfEven(-1.5), -2.0);
    EXPECT_EQ(RoundHalfEven(2.4999), 2.0);
}

TEST(CheckedAdd, StopsAtTheSixteenBitLimit) {
    EXPECT_EQ(CheckedAdd(32766, 1), std::optional<i16>(32767));
    EXPECT_FALSE(CheckedAdd(32767, 1));
    EXPECT_FALSE(CheckedAdd(-32768, -1));
}

TEST(FormatSingle, WritesThePlainGeneralForm) {
    EXPECT_EQ(FormatSingle(480.0f), "480");
    EXPECT_EQ(FormatSingle(5748.0f / 15.0f), "383.2");
    EXPECT_EQ(FormatSingle(57.0f), "57");
    EXPECT_EQ(FormatSingle(-3.0f), "-3");
}

} // namespace
} // namespace sw
