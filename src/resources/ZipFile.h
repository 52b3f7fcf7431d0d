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

/// One record of an archive's central directory. The archive may be damaged or hostile, so every
/// member except the three texts and their lengths may have any value.
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
    /// Where the member's data begin if its local header has texts of the same lengths.
    std::uint64_t dataOffset = 0;
    /// With "/" between its parts; the "\" that some programs write are replaced.
    std::string name;
    std::string extra;
    std::string comment;
};

/// The header before the data of a member.
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

/// A ZIP archive. open() reads its directory; getBytes opens the file again for each member. Reads
/// stored and deflated members and ignores check sums and compressed sizes.
class ZipFile {
  public:
    /// The limit for an extracted member, in bytes.
    static constexpr std::uint32_t maxMemberSize = 256U << 20;

    /// fileName is a name for files::resolve.
    explicit ZipFile(std::string fileName) : fileName_(std::move(fileName)) {}

    /// Reads the directory. False, with a log line, when the file cannot be read or is no archive.
    /// A directory that is cut off gives the entries before the cut.
    bool open();
    /// Extracts a member: size bytes and one zero byte after them. When that fails the result is
    /// null, size is unchanged, error is set and the log says why. A compression method other than
    /// stored and deflated gives null without a message and without setting error.
    std::unique_ptr<char[]> getBytes(std::size_t& size, const ZipEntry& entry, bool& error) const;
    /// The first entry with exactly this name, or null.
    [[nodiscard]] const ZipEntry* find(std::string_view name) const;

    [[nodiscard]] const std::string& fileName() const { return fileName_; }
    [[nodiscard]] const std::vector<ZipEntry>& entries() const { return entries_; }

  private:
    std::string fileName_;
    std::vector<ZipEntry> entries_;
};

/// An archive and one of its entries. Valid until ResourceManager::release.
struct ZipResultsBundle {
    const ZipFile* file = nullptr;
    const ZipEntry* entry = nullptr;
};

}  // namespace bc
