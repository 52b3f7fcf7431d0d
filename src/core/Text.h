// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Digits.h"

#include <string>
#include <string_view>
#include <vector>

namespace bc {

// Text conversions. They use the classic locale, whatever locale the process has set: "." is the
// decimal point, and only A to Z and a to z are letters with a case.

/// Splits text at every character of delimiters and appends the pieces that are not empty to out.
void tokenise(std::string_view delimiters, std::string_view text, std::vector<std::string>& out);
[[nodiscard]] std::string lowerCase(std::string_view text);
/// Compares byte by byte without regard to case: -1 when a orders before b, 0 when they are equal,
/// 1 otherwise. A text orders after its own beginnings.
[[nodiscard]] int compareNoCase(std::string_view a, std::string_view b);
[[nodiscard]] inline bool equalsNoCase(std::string_view a, std::string_view b) {
    return compareNoCase(a, b) == 0;
}
/// Splits fileName at its last dot; the dot belongs to the extension. Without a dot the result is
/// false and both parts become empty. fileName may be a view of base or extension.
bool splitExtension(std::string_view fileName, std::string& base, std::string& extension);

/// "true" or "false".
[[nodiscard]] const char* boolText(bool value);
/// True for exactly "true", false for every other text and for null.
[[nodiscard]] bool parseBool(std::string_view text);
[[nodiscard]] bool parseBool(const char* text);

/// General notation; the usual digits are those with which an output stream writes a float.
[[nodiscard]] std::string formatFloat(float value, Digits digits = Digits::usual);
/// The number that the text begins with, else 0. What is not finite reads as 0, so that NaN and
/// infinity never enter the game through a text.
[[nodiscard]] float parseFloat(std::string_view text);
/// The decimal integer that the text begins with, clamped to the range of int; 0 without one.
[[nodiscard]] int parseInt(std::string_view text);
/// Splits the text as tokenise does, writes the first max pieces as numbers to out and returns how
/// many it wrote.
int parseFloats(std::string_view text, std::string_view delimiters, float* out, int max);

}  // namespace bc
