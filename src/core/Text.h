// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Digits.h"

#include <string>
#include <string_view>
#include <vector>

namespace bc {

// Text conversions. All of them use the classic locale whatever the process has set.

/// Appends the pieces of text between any of the delimiter characters; never an empty one.
void tokenise(std::string_view delimiters, std::string_view text, std::vector<std::string>& out);
[[nodiscard]] std::string lowerCase(std::string_view text);
/// -1, 0 or 1 without regard to case; a prefix orders first.
[[nodiscard]] int compareNoCase(std::string_view a, std::string_view b);
[[nodiscard]] inline bool equalsNoCase(std::string_view a, std::string_view b) {
    return compareNoCase(a, b) == 0;
}
/// Splits at the last dot; the extension keeps it. Without a dot both are empty, and false.
bool splitExtension(std::string_view fileName, std::string& base, std::string& extension);

[[nodiscard]] const char* boolText(bool value);
/// True only for exactly "true"; a null text is false.
[[nodiscard]] bool parseBool(std::string_view text);
[[nodiscard]] bool parseBool(const char* text);

/// General notation; the usual digits are those with which an output stream writes a float.
[[nodiscard]] std::string formatFloat(float value, Digits digits = Digits::usual);
/// The number that the text begins with, else 0. What is not finite reads as 0, so that NaN and
/// infinity never enter the game through a text.
[[nodiscard]] float parseFloat(std::string_view text);
/// The decimal integer that the text begins with, else 0; clamped to the range of int.
[[nodiscard]] int parseInt(std::string_view text);
/// Reads up to max numbers of a delimited list into out; returns how many (never above max).
int parseFloats(std::string_view text, std::string_view delimiters, float* out, int max);

}  // namespace bc
