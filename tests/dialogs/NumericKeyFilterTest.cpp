#include "dialogs/NumericKeyFilter.h"

#include <gtest/gtest.h>

namespace sw {
namespace {

struct Options {
    bool minus = false;
    bool point = false;
    bool comma = false;
    i16 decimals = 0;
};

constexpr Options kOff{};
constexpr Options kAll{true, true, true, 2};

struct KeyCase {
    const char* text;
    int selStart;
    int selLength;
    int key;
    Options options;
    bool passes;
};

void check(const KeyCase& c) {
    const TextBox box{c.text, c.selStart, c.selLength};
    const i16 result = NumericKeyFilter(box, static_cast<i16>(c.key), c.options.minus,
                                        c.options.point, c.options.comma, c.options.decimals);
    EXPECT_EQ(result, c.passes ? c.key : 0)
        << "text \"" << c.text << "\" sel " << c.selStart << "+" << c.selLength << " key " << c.key;
}

TEST(NumericKeyFilter, WithTheOptionsOffTakesDigitsAndBackspaceOnly) {
    const KeyCase cases[] = {
        {"12", 2, 0, '5', kOff, true},  {"12", 0, 2, '0', kOff, true},
        {"12", 2, 0, 8, kOff, true},    {"12", 2, 0, ',', kOff, false},
        {"12", 2, 0, '-', kOff, false}, {"12", 2, 0, '.', kOff, false},
        {"12", 2, 0, ' ', kOff, false}, {"12", 2, 0, 'a', kOff, false},
        {"12", 2, 0, 3, kOff, false},   {"12", 2, 0, 22, kOff, false},
        {"12", 2, 0, 24, kOff, false},  {"12", 2, 0, 13, kOff, false},
    };
    for (const KeyCase& c : cases) {
        check(c);
    }
}

TEST(NumericKeyFilter, TakesOneMinusInFrontOnly) {
    const KeyCase cases[] = {
        {"", 0, 0, '-', kAll, true},
        {"5", 0, 0, '-', kAll, true},
        {"5", 1, 0, '-', kAll, false},
        {"-5", 0, 0, '-', kAll, false},
        // Typing over a selection that holds the minus replaces it.
        {"-5", 0, 2, '-', kAll, true},
        {"-5", 0, 1, '-', kAll, true},
        {"-5", 1, 1, '-', kAll, false},
        {"5-", 1, 1, '-', kAll, false},
        {"", 0, 0, ',', kAll, true},
    };
    for (const KeyCase& c : cases) {
        check(c);
    }
}

TEST(NumericKeyFilter, TakesOnePointAndNeverInFrontOfTheMinus) {
    const KeyCase cases[] = {
        {"", 0, 0, '.', kAll, true},     {"12", 2, 0, '.', kAll, true},
        {"1.2", 3, 0, '.', kAll, false}, {"1.2", 0, 3, '.', kAll, true},
        {"1.2", 1, 1, '.', kAll, true},  {"-5", 0, 0, '.', kAll, false},
        {"-5", 0, 2, '.', kAll, true},   {"-5", 1, 0, '.', kAll, true},
    };
    for (const KeyCase& c : cases) {
        check(c);
    }
}

TEST(NumericKeyFilter, LimitsTheDigitsBehindThePoint) {
    const Options three{true, true, false, 3};
    const KeyCase cases[] = {
        {"1.2", 3, 0, '3', kAll, true},    {"1.23", 4, 0, '4', kAll, false},
        {"1.23", 1, 0, '4', kAll, true},   {"1.23", 0, 0, '4', kAll, true},
        {"1.23", 4, 0, '4', three, true},  {"1.234", 5, 0, '5', three, false},
        {"1.2345", 6, 0, '6', kOff, true}, {"12.5", 4, 0, '0', Options{}, true},
        {"12.34", 5, 0, 8, kAll, true},
    };
    for (const KeyCase& c : cases) {
        check(c);
    }
}

} // namespace
} // namespace sw
