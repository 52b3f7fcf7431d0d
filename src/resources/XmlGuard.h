// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace bc {

/// Deepest nesting of elements that is handed to the parser, which recurses for each level.
inline constexpr int maxXmlDepth = 256;
/// Most attributes of one element; the parser compares each with all before it.
inline constexpr int maxXmlAttributes = 256;
/// Most tags, comments and attributes of a text; each takes the parser up to 250 bytes.
inline constexpr int maxXmlPieces = 3'000'000;

/// Why a text must not reach the XML parser, or empty when it may. Faults of form are left to the
/// parser and its messages unless what follows one could still nest too deeply.
[[nodiscard]] std::string xmlRefusal(std::string_view text);

/// True for well-formed UTF-8. The parser steps over a broken sequence by the length that its
/// first byte claims, so other texts have to be read byte by byte.
[[nodiscard]] bool isUtf8(std::string_view text);

}  // namespace bc
