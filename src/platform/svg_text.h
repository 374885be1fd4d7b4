// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvane {

/// The parts that an SVG picture is written of.

/// A place or length in pixels, with as many decimals as can be seen, but no zeros at the end.
std::string Pixels(double pixels, int decimals = 2);
std::string Point(double x, double y);

/// An attribute with a blank in front. The value has no character that needs escaping.
std::string Attribute(const char* name, const std::string& value);

/// "#rrggbb" for a colour with red in the low byte.
std::string ColorText(std::int32_t color);

/// Any bytes as character data. What is no character of XML shows as a question mark; the carriage
/// returns of line ends are left out.
std::string CharacterData(std::string_view text);

}  // namespace quorvane
