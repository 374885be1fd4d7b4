// SPDX-License-Identifier: MIT
#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "platform/raised_error.h"

using namespace quorvane;
using quorvane::testing::RaisedError;

namespace {

TEST(Numbers, RoundHalfToEvenAndOverflow) {
    const double infinite = std::numeric_limits<double>::infinity();
    struct Row {
        double Value;
        int Error16, As16, Error32;
        std::int32_t As32;
    };
    const Row rows[] = {
        {0.5, 0, 0, 0, 0},
        {1.5, 0, 2, 0, 2},
        {2.5, 0, 2, 0, 2},
        {-0.5, 0, 0, 0, 0},
        {-1.5, 0, -2, 0, -2},
        {2.500001, 0, 3, 0, 3},
        {32767.4, 0, 32767, 0, 32767},
        {32767.5, 6, 0, 0, 32768},
        {-32768.5, 0, -32768, 0, -32768},
        {-32769, 6, 0, 0, -32769},
        {2147483646.5, 6, 0, 0, 2147483646},
        {2147483647.5, 6, 0, 6, 0},
        {-2147483648.5, 6, 0, 0, std::numeric_limits<std::int32_t>::min()},
        {-2147483649.0, 6, 0, 6, 0},
        {infinite, 6, 0, 6, 0},
        {-infinite, 6, 0, 6, 0},
        {std::nan(""), 6, 0, 6, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Value);
        int as16 = 0;
        std::int32_t as32 = 0;
        EXPECT_EQ(RaisedError([&] { as16 = ToInt16(row.Value); }), row.Error16);
        EXPECT_EQ(as16, row.As16);
        EXPECT_EQ(RaisedError([&] { as32 = ToInt32(row.Value); }), row.Error32);
        EXPECT_EQ(as32, row.As32);
    }
}

TEST(Numbers, TextBecomesANumber) {
    const std::string zeros(400, '0');
    struct Row {
        std::string Text;
        int Error;  ///< Of TextToNumber
        double Value;
    };
    const Row rows[] = {
        {"12", 0, 12},
        {" 12 ", 0, 12},
        {"\t-7\t", 0, -7},
        {"+12", 0, 12},
        {"007", 0, 7},
        {".5", 0, 0.5},
        {"5.", 0, 5},
        {"-.5", 0, -0.5},
        {"1e3", 0, 1000},
        {"1E+3", 0, 1000},
        {"1.5e1", 0, 15},
        {"25e-1", 0, 2.5},
        {"1e-400", 0, 0},
        {"0." + zeros + "1", 0, 0},
        {"1e400", 6, 0},
        {"-1e400", 6, 0},
        {"1" + zeros, 6, 0},
        {"1" + zeros + "e-1", 6, 0},
        {"", 13, 0},
        {"  ", 13, 0},
        {"abc", 13, 0},
        {"1 2", 13, 0},
        {"1,5", 13, 0},
        {"0x10", 13, 0},
        {"1e", 13, 0},
        {"1e+", 13, 0},
        {"e5", 13, 0},
        {".", 13, 0},
        {"-", 13, 0},
        {"--1", 13, 0},
        {"+-1", 13, 0},
        {"1.2.3", 13, 0},
        {"12abc", 13, 0},
        {"nan", 13, 0},
        {"inf", 13, 0},
        {"\xD9\xA3", 13, 0},
        {std::string("1\0", 2), 13, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Text.substr(0, 20));
        double value = 0;
        EXPECT_EQ(RaisedError([&] { value = TextToNumber(row.Text); }), row.Error);
        EXPECT_EQ(value, row.Value);
        EXPECT_EQ(IsNumeric(row.Text), row.Error != 13);
    }
}

TEST(Numbers, TextBecomesAWholeNumber) {
    struct Row {
        const char* Text;
        int Error;
        int Value;
    };
    const Row rows[] = {
        {"32767", 0, 32767}, {"-32768", 0, -32768},
        {"32768", 6, 0},     {"-32769", 6, 0},
        {"1e5", 6, 0},       {"+3", 0, 3},
        {" 3 ", 0, 3},       {"2.5", 0, 2},
        {"3.5", 0, 4},       {"32767.4", 0, 32767},
        {"32767.5", 6, 0},   {"-0", 0, 0},
        {"1e2", 0, 100},     {"", 13, 0},
        {"3x", 13, 0},       {"99999999999999999999", 6, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Text);
        int value = 0;
        EXPECT_EQ(RaisedError([&] { value = TextToInt16(row.Text); }), row.Error);
        EXPECT_EQ(value, row.Value);
    }
    EXPECT_EQ(TextToInt32("2147483647"), 2147483647);
    EXPECT_EQ(TextToInt32("-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(RaisedError([] { TextToInt32("2147483648"); }), 6);
}

TEST(Numbers, BecomeTextWithoutABlank) {
    EXPECT_EQ(NumberText(0) + NumberText(-5) + NumberText(350), "0-5350");
    EXPECT_EQ(NumberText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(LowerCase("ABC xyz \xC3\x84 [@Z"), "abc xyz \xC3\x84 [@z");
    EXPECT_EQ(UpperCase("abc XYZ \xC3\xA4 {`z"), "ABC XYZ \xC3\xA4 {`Z");
}

}  // namespace
