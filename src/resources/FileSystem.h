// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace bc {

/// The files that the game reads and writes. Their names are relative, with "/" between the parts.
/// A file is looked for in the user folder first and then in the data folder; all files are written
/// to the user folder.
namespace files {

/// Sets both folders, which may be the same. An empty name stands for the working folder, which
/// both are at first.
void setFolders(const std::string& userFolder, const std::string& dataFolder);
[[nodiscard]] const std::string& userFolder();
[[nodiscard]] const std::string& dataFolder();

/// False for a name that is empty, is absolute, has a ".." part (and so might leave the folders) or
/// contains a control character.
[[nodiscard]] bool isSafeName(std::string_view name);

/// The path of an existing file with this name, for opening it: in the user folder or else in the
/// data folder. Nothing when there is none or the name is not safe.
[[nodiscard]] std::optional<std::string> resolve(std::string_view name);

/// The path in the user folder at which to write a file with this name. Makes the missing folders
/// of the path. Nothing, with a log line, when the name is not safe or a folder cannot be made.
[[nodiscard]] std::optional<std::string> writable(std::string_view name);

/// The contents of a file; nothing when resolve does not find it, when it cannot be read or when it
/// is larger than maxBytes.
[[nodiscard]] std::optional<std::string> readAll(std::string_view name,
                                                 std::uint64_t maxBytes = 256U << 20);

/// Writes or replaces a file of the user folder. The contents first go to a new file beside it,
/// which is then renamed, so that a crash or a full disk never leaves half a file. On failure the
/// old file stays, the log says why and the result is false.
bool replace(std::string_view name, std::string_view contents);
/// Appends text to a file of the user folder; makes the file when it does not exist. On failure the
/// log says why and the result is false.
bool append(std::string_view name, std::string_view text);

}  // namespace files
}  // namespace bc
