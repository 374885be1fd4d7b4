// SPDX-License-Identifier: MIT
// What the core needs of the maths library. quorvane-compile does without that library, since to
// load it would take a tenth of its time.
#pragma once

#include <cstdint>

namespace quorvane {

/// The nearest whole number of a value within 64 bits, halves away from zero.
constexpr std::int64_t NearestWhole(double value) {
    const auto whole = static_cast<std::int64_t>(value);
    const double rest = value - static_cast<double>(whole);
    return rest >= 0.5 ? whole + 1 : rest <= -0.5 ? whole - 1 : whole;
}

/// The nearest whole number of a value within 51 bits, halves to even: beside this summand a double
/// has no room for a fraction.
constexpr double NearestEven(double value) {
    constexpr double summand = 6755399441055744.0;  // 3 * 2^51
    return value + summand - summand;
}

/// The cosine and the sine of an angle.
struct Direction {
    double X = 1;
    double Y = 0;
};

/// To 12 decimals for an angle of up to two turns: the first terms of the series for a small part
/// of the angle, which is then doubled again and again.
constexpr Direction DirectionOf(double angle) {
    constexpr int doublings = 10;
    const double part = angle / (1 << doublings);
    const double square = part * part;
    Direction at = {1 - square / 2 + square * square / 24,
                    part * (1 - square / 6 + square * square / 120)};
    for (int i = 0; i < doublings; ++i) at = {at.X * at.X - at.Y * at.Y, 2 * at.X * at.Y};
    return at;
}

/// The fifth root of a number from 0 to 1, by Newton's steps, which come down to it.
constexpr double FifthRoot(double number) {
    if (number <= 0) return 0;
    for (double root = 1;;) {
        const double next = (4 * root + number / (root * root * root * root)) / 5;
        if (next >= root) return root;
        root = next;
    }
}

}  // namespace quorvane
