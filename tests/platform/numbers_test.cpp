// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>

#include "support/step_test.h"

namespace quorvane::testing {

namespace {

/// What a conversion gives: a number, or "error" and its number.
template <class Convert>
std::string Given(Convert&& convert) {
    std::ostringstream given;
    given.precision(12);
    const int error = RaisedError([&] { given << convert(); });
    return error == 0 ? given.str() : "error " + std::to_string(error);
}

/// The text as a number, as one of 16 and as one of 32 bits.
std::string InAllKinds(std::string text) {
    text.erase(0, 1);
    if (const auto at = text.find('@'); at < text.size()) text.replace(at, 1, 400, '0');
    const auto number = Given([&] { return TextToNumber(text); });
    const auto narrow = Given([&] { return TextToInt16(text); });
    const auto wide = Given([&] { return TextToInt32(text); });
    EXPECT_EQ(Given([&] { return ToInt16(TextToNumber(text)); }), narrow);
    EXPECT_EQ(Given([&] { return ToInt32(TextToNumber(text)); }), wide);
    EXPECT_EQ(IsNumeric(text), number != "error 13");
    return number + " " + narrow + " " + wide;
}

}  // namespace

struct NumbersTest : StepTest {
    NumbersTest() {
        Know({{"number", Seen([](A a) { return InAllKinds(a.Text); })}});
    }
};

TEST_F(NumbersTest, TextBecomesANumber) {
    PlayTable("platform/numbers.tsv");
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

TEST_F(NumbersTest, BecomeTextWithoutABlank) {
    EXPECT_EQ(NumberText(0) + NumberText(-5) + NumberText(350), "0-5350");
    EXPECT_EQ(NumberText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(LowerCase("ABC xyz \xC3\x84 [@Z"), "abc xyz \xC3\x84 [@z");
    EXPECT_EQ(UpperCase("abc XYZ \xC3\xA4 {`z"), "ABC XYZ \xC3\xA4 {`Z");
}

}  // namespace quorvane::testing
