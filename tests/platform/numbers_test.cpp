// SPDX-License-Identifier: MIT
#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>

#include "platform/raised_error.h"
#include "support/table_file.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

/// What a conversion gives: a number, or "error" and its number.
template <class Convert>
std::string Given(Convert&& convert) {
    std::ostringstream given;
    given.precision(12);
    const int error = RaisedError([&] { given << convert(); });
    return error == 0 ? given.str() : "error " + std::to_string(error);
}

TEST(Numbers, TextBecomesANumber) {
    for (const auto& row : ReadTable("platform/numbers.tsv")) {
        auto text = row[0];
        SCOPED_TRACE(row.back() + " " + text);
        if (const auto at = text.find('@'); at < text.size()) text.replace(at, 1, 400, '0');
        EXPECT_EQ(Given([&] { return TextToNumber(text); }), row[1]);
        EXPECT_EQ(Given([&] { return TextToInt16(text); }), row[2]);
        EXPECT_EQ(Given([&] { return TextToInt32(text); }), row[3]);
        EXPECT_EQ(Given([&] { return ToInt16(TextToNumber(text)); }), row[2]);
        EXPECT_EQ(Given([&] { return ToInt32(TextToNumber(text)); }), row[3]);
        EXPECT_EQ(IsNumeric(text), row[1] != "error 13");
    }
    EXPECT_FALSE(IsNumeric(std::string("1\0", 2)));
    for (const char* beginning : {"-", "+", ".", "-.", " 1e", "-.5e+"}) {
        EXPECT_TRUE(BeginsNumber(beginning) && !IsNumeric(beginning)) << beginning;
    }
    for (const char* other : {"", " ", "1", "2.", "1e5", "e", "e5", ".e", "--", "1-", "1ex"}) {
        EXPECT_FALSE(BeginsNumber(other)) << other;
    }
    const double infinite = std::numeric_limits<double>::infinity();
    for (const double none : {infinite, -infinite, std::nan("")}) {
        EXPECT_EQ(Given([&] { return ToInt16(none); }), "error 6") << none;
        EXPECT_EQ(Given([&] { return ToInt32(none); }), "error 6") << none;
    }
}

TEST(Numbers, BecomeTextWithoutABlank) {
    EXPECT_EQ(NumberText(0) + NumberText(-5) + NumberText(350), "0-5350");
    EXPECT_EQ(NumberText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(LowerCase("ABC xyz \xC3\x84 [@Z"), "abc xyz \xC3\x84 [@z");
    EXPECT_EQ(UpperCase("abc XYZ \xC3\xA4 {`z"), "ABC XYZ \xC3\xA4 {`Z");
}

}  // namespace
