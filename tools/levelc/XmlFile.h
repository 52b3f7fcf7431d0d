// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

class TiXmlDocument;

namespace bc::levelc {

/// Empty when path was read into text, else why not.
[[nodiscard]] std::string readFile(const std::string& path, std::string& text);
/// Parses an XML text of unknown origin. Empty when it went well, else what is wrong.
[[nodiscard]] std::string parseXml(std::string_view text, TiXmlDocument& document);
/// Writes text beside path and renames it over it, so that a failed run leaves the old file. Empty
/// when it went well, else why not.
[[nodiscard]] std::string replaceFile(const std::string& path, std::string_view text);

}  // namespace bc::levelc
