// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace bc {

/// One record of an archive's central directory, as it stands there; only the separators of the
/// name are made "/". Nothing in it can be trusted but the lengths of its own texts.
struct ZipEntry {
    std::uint32_t signature = 0;
    std::uint16_t versionMadeBy = 0;
    std::uint16_t versionNeeded = 0;
    std::uint16_t flags = 0;
    std::uint16_t method = 0;
    std::uint16_t modTime = 0;
    std::uint16_t modDate = 0;
    std::uint32_t crc = 0;
    std::uint32_t compressedSize = 0;
    std::uint32_t uncompressedSize = 0;
    std::uint16_t nameLength = 0;
    std::uint16_t extraLength = 0;
    std::uint16_t commentLength = 0;
    std::uint16_t diskStart = 0;
    std::uint16_t internalAttributes = 0;
    std::uint32_t externalAttributes = 0;
    std::uint32_t headerOffset = 0;
    /// Where the data begin if the local header's texts are as long as this record's.
    std::uint64_t dataOffset = 0;
    std::string name;
    std::string extra;
    std::string comment;
};

/// The header that stands before a member's data.
struct LocalZipEntry {
    std::uint32_t signature = 0;
    std::uint16_t versionNeeded = 0;
    std::uint16_t flags = 0;
    std::uint16_t method = 0;
    std::uint16_t modTime = 0;
    std::uint16_t modDate = 0;
    std::uint32_t crc = 0;
    std::uint32_t compressedSize = 0;
    std::uint32_t uncompressedSize = 0;
    std::uint16_t nameLength = 0;
    std::uint16_t extraLength = 0;
    std::string name;
    std::string extra;
};

/// A ZIP archive that is indexed once and read again for each member. Stored and deflated members
/// are understood; neither check sums nor the compressed sizes are looked at.
class ZipFile {
  public:
    /// A member is never larger in memory.
    static constexpr std::uint32_t maxMemberSize = 256U << 20;

    /// fileName is a name for files::resolve.
    explicit ZipFile(std::string fileName) : fileName_(std::move(fileName)) {}

    /// Indexes the archive. False, with a log line, when it cannot be read or is no archive.
    bool open();
    /// The member's bytes and one zero byte behind them. Null when it cannot be read whole: with a
    /// log line and error set, but for a compression method that is not understood. size is
    /// written on success only, error on failure only.
    std::unique_ptr<char[]> getBytes(std::size_t& size, const ZipEntry& entry, bool& error) const;
    /// The first entry of exactly this name, or null.
    [[nodiscard]] const ZipEntry* find(std::string_view name) const;

    [[nodiscard]] const std::string& fileName() const { return fileName_; }
    [[nodiscard]] const std::vector<ZipEntry>& entries() const { return entries_; }

  private:
    std::string fileName_;
    std::vector<ZipEntry> entries_;
};

/// Where a name was found. Valid until the manager is released.
struct ZipResultsBundle {
    const ZipFile* file = nullptr;
    const ZipEntry* entry = nullptr;
};

}  // namespace bc
