// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace bc {

/// The limit for levels of elements. The parser calls itself for each level and would run out of
/// stack at about 50,000.
inline constexpr int maxXmlDepth = 256;
/// The limit for attributes of one element. The parser compares each one with all before it.
inline constexpr int maxXmlAttributes = 256;
/// The limit for tags, comments and attributes in a text. The parser needs up to 250 bytes of
/// memory for each.
inline constexpr int maxXmlPieces = 3'000'000;

/// Checks a text before the XML parser gets it. The result says why the parser must not get it, and
/// is empty when it may. Syntax errors alone are no reason, because the parser reports them; they
/// are one when the text after the error could exceed maxXmlDepth.
[[nodiscard]] std::string xmlRefusal(std::string_view text);

/// True for well-formed UTF-8. Every other text must be parsed in the parser's one-byte encoding:
/// as UTF-8, a broken sequence at its end would make the parser read past it.
[[nodiscard]] bool isUtf8(std::string_view text);

}  // namespace bc
