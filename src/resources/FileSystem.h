// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace bc {

/// "Disk" as the game sees it: the user folder laid over the data folder. Names are relative with
/// "/" between their parts. Every file that the game opens by name is found through resolve, and
/// everything that it writes goes to the user folder.
namespace files {

/// Both folders may be the same; without a call both are the working folder.
void setFolders(const std::string& userFolder, const std::string& dataFolder);
[[nodiscard]] const std::string& userFolder();
[[nodiscard]] const std::string& dataFolder();

/// False for names that could leave the folders: empty, absolute, with a ".." part or with
/// control characters.
[[nodiscard]] bool isSafeName(std::string_view name);

/// The path to open for reading: in the user folder if the file is there, else in the data folder.
/// Nothing when it is in neither or the name is not safe.
[[nodiscard]] std::optional<std::string> resolve(std::string_view name);

/// The path in the user folder under which a name is written, its folders made. Nothing (and a
/// log line that says why) when the name is not safe or a folder cannot be made.
[[nodiscard]] std::optional<std::string> writable(std::string_view name);

/// Whole contents of a resolved file; nothing when it cannot be read or is above maxBytes.
[[nodiscard]] std::optional<std::string> readAll(std::string_view name,
                                                 std::uint64_t maxBytes = 256U << 20);

/// Replaces a file of the user folder so that after a crash or a full disk the old or the new one
/// is there, whole: written beside it, flushed to disk, renamed over it. On failure the old file
/// stays, a log line says why, and the result is false.
bool replace(std::string_view name, std::string_view contents);
/// Appends text to a file of the user folder, made when missing.
bool append(std::string_view name, std::string_view text);

}  // namespace files
}  // namespace bc
