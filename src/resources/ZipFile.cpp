// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "resources/ZipFile.h"

#include "core/Log.h"
#include "resources/FileSystem.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <new>
#include <optional>

namespace bc {

namespace {

constexpr std::uint32_t localSignature = 0x04034b50;
constexpr std::uint32_t centralSignature = 0x02014b50;
constexpr std::size_t localFixedSize = 30;
constexpr std::size_t centralFixedSize = 46;
constexpr std::uint64_t maxArchiveSize = 1ULL << 30;
/// An entry needs about 200 bytes of memory.
constexpr std::size_t maxEntries = 1'000'000;
/// The deflate format stores at most 258 bytes in two bits. A larger ratio between the size that a
/// member claims and the rest of the archive cannot be true.
constexpr std::uint64_t maxInflateRatio = 1032;
/// Bytes that are read and inflated at once.
constexpr std::size_t chunkSize = 512;

/// Reads little-endian numbers and texts one after another. The caller makes sure that the record
/// is long enough.
class RecordReader {
  public:
    explicit RecordReader(const char* bytes) : bytes_(bytes) {}

    std::uint16_t u16() { return static_cast<std::uint16_t>(take(2)); }
    std::uint32_t u32() { return take(4); }
    std::string text(std::size_t length) {
        std::string out(bytes_, length);
        bytes_ += length;
        return out;
    }

  private:
    std::uint32_t take(int count) {
        std::uint32_t value = 0;
        for (int i = 0; i < count; ++i)
            value |= std::uint32_t{static_cast<unsigned char>(*bytes_++)} << (8 * i);
        return value;
    }

    const char* bytes_;
};

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

File openArchive(const std::string& name) {
    const std::optional<std::string> path = files::resolve(name);
    return File(path ? std::fopen(path->c_str(), "rb") : nullptr);
}

/// A buffer of size bytes and a zero byte after them; null when there is not enough memory.
std::unique_ptr<char[]> allocate(std::size_t size) {
    std::unique_ptr<char[]> buffer(new (std::nothrow) char[size + 1]);
    if (buffer)
        buffer[size] = '\0';
    return buffer;
}

std::optional<ZipEntry> readCentralRecord(std::string_view rest) {
    if (rest.size() < centralFixedSize)
        return std::nullopt;
    RecordReader in(rest.data());
    ZipEntry e;
    e.signature = in.u32();
    if (e.signature != centralSignature)
        return std::nullopt;
    e.versionMadeBy = in.u16();
    e.versionNeeded = in.u16();
    e.flags = in.u16();
    e.method = in.u16();
    e.modTime = in.u16();
    e.modDate = in.u16();
    e.crc = in.u32();
    e.compressedSize = in.u32();
    e.uncompressedSize = in.u32();
    e.nameLength = in.u16();
    e.extraLength = in.u16();
    e.commentLength = in.u16();
    e.diskStart = in.u16();
    e.internalAttributes = in.u16();
    e.externalAttributes = in.u32();
    e.headerOffset = in.u32();
    e.dataOffset = std::uint64_t{e.headerOffset} + localFixedSize + e.nameLength + e.extraLength;
    const std::size_t texts = std::size_t{e.nameLength} + e.extraLength + e.commentLength;
    if (rest.size() - centralFixedSize < texts)
        return std::nullopt;
    e.name = in.text(e.nameLength);
    std::replace(e.name.begin(), e.name.end(), '\\', '/');
    e.extra = in.text(e.extraLength);
    e.comment = in.text(e.commentLength);
    return e;
}

/// Reads the header of a member at offset; the member's data follow at the file's position. Nothing
/// when there is no header or the file ends within it.
std::optional<LocalZipEntry> readLocalHeader(std::FILE* file, std::uint32_t offset) {
    std::array<char, localFixedSize> fixed{};
    if (std::fseek(file, static_cast<long>(offset), SEEK_SET) != 0 ||
        std::fread(fixed.data(), 1, fixed.size(), file) != fixed.size())
        return std::nullopt;
    RecordReader in(fixed.data());
    LocalZipEntry e;
    e.signature = in.u32();
    if (e.signature != localSignature)
        return std::nullopt;
    e.versionNeeded = in.u16();
    e.flags = in.u16();
    e.method = in.u16();
    e.modTime = in.u16();
    e.modDate = in.u16();
    e.crc = in.u32();
    e.compressedSize = in.u32();
    e.uncompressedSize = in.u32();
    e.nameLength = in.u16();
    e.extraLength = in.u16();
    e.name.resize(e.nameLength);
    e.extra.resize(e.extraLength);
    if (std::fread(e.name.data(), 1, e.nameLength, file) != e.nameLength ||
        std::fread(e.extra.data(), 1, e.extraLength, file) != e.extraLength)
        return std::nullopt;
    return e;
}

/// Bytes from the file's position to its end.
std::uint64_t bytesLeft(std::FILE* file) {
    const long here = std::ftell(file);
    if (here < 0 || std::fseek(file, 0, SEEK_END) != 0)
        return 0;
    const long end = std::ftell(file);
    return std::fseek(file, here, SEEK_SET) == 0 && end > here
               ? static_cast<std::uint64_t>(end - here)
               : 0;
}

/// Decompresses deflated data without a zlib header, as ZIP archives contain them.
class Inflater {
  public:
    Inflater() { ready_ = inflateInit2(&stream_, -15) == Z_OK; }
    ~Inflater() {
        if (ready_)
            inflateEnd(&stream_);
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;

    [[nodiscard]] bool ready() const { return ready_; }
    [[nodiscard]] bool finished() const { return finished_; }

    /// Decompresses the next piece of input and appends the result to what earlier calls wrote to
    /// out. False when the data are damaged or out, with capacity bytes, is too small for them.
    bool feed(unsigned char* input, std::size_t length, char* out, std::size_t capacity) {
        stream_.next_in = input;
        stream_.avail_in = static_cast<uInt>(length);
        std::array<unsigned char, chunkSize> chunk{};
        do {
            stream_.next_out = chunk.data();
            stream_.avail_out = chunkSize;
            const int result = inflate(&stream_, Z_NO_FLUSH);
            finished_ = result == Z_STREAM_END;
            if (!finished_ && result != Z_OK && result != Z_BUF_ERROR)
                return false;
            const std::size_t produced = chunkSize - stream_.avail_out;
            if (produced > capacity - total_)
                return false;
            std::memcpy(out + total_, chunk.data(), produced);
            total_ += produced;
        } while (stream_.avail_out == 0 && !finished_);
        return true;
    }
    [[nodiscard]] std::size_t total() const { return total_; }

  private:
    z_stream stream_{};
    bool ready_ = false;
    bool finished_ = false;
    std::size_t total_ = 0;
};

/// Decompresses the data at the file's position into the size bytes of out. Returns a message for
/// the log when that fails, an empty one otherwise.
std::string inflateInto(std::FILE* file, char* out, std::size_t size) {
    Inflater inflater;
    if (!inflater.ready())
        return "inflateinit2 failed";
    std::array<unsigned char, chunkSize> input{};
    while (!inflater.finished()) {
        const std::size_t n = std::fread(input.data(), 1, input.size(), file);
        if (std::ferror(file) != 0)
            return "ZipFile::getBytes(): fread file error";
        if (n == 0)
            break;
        if (!inflater.feed(input.data(), n, out, size))
            return "ZipFile::getBytes(): damaged member";
    }
    return inflater.total() == size ? "" : "ZipFile::getBytes(): member is shorter than it says";
}

std::string storedInto(std::FILE* file, char* out, std::size_t size) {
    return std::fread(out, 1, size, file) == size ? "" : "ZipFile::getBytes(): fread file error";
}

}  // namespace

bool ZipFile::open() {
    entries_.clear();
    const std::optional<std::string> bytes = files::readAll(fileName_, maxArchiveSize);
    if (!bytes) {
        logLine("couldn't open file, exiting");
        return false;
    }
    constexpr std::string_view localMark("PK\3\4", 4);
    constexpr std::string_view centralMark("PK\1\2", 4);
    if (bytes->compare(0, localMark.size(), localMark) != 0) {
        logLine("file is not a valid zip, exiting");
        return false;
    }
    logLine("valid zip file");
    std::size_t at = bytes->find(centralMark);
    if (at == std::string::npos || at >= bytes->size() - centralMark.size()) {
        logLine("couldn't find central directory, exiting");
        return false;
    }
    logLine("found central directory");
    const std::string rule(61, '-');
    logLine(rule);
    logLine("Type  Name  CompressedSize  UncompressedSize  CRC  Method  Offset  DOffset");
    logLine(rule);
    const std::string_view all(*bytes);
    while (entries_.size() < maxEntries) {
        std::optional<ZipEntry> entry = readCentralRecord(all.substr(at));
        if (!entry)
            break;
        at += centralFixedSize + entry->nameLength + entry->extraLength + entry->commentLength;
        entries_.push_back(std::move(*entry));
    }
    if (all.substr(at, centralMark.size()) == centralMark)
        logLine("central directory is cut off or too long, the rest of the archive is left out");
    return true;
}

std::unique_ptr<char[]> ZipFile::getBytes(std::size_t& size, const ZipEntry& entry,
                                          bool& error) const {
    const auto fail = [&error](std::string_view message) -> std::unique_ptr<char[]> {
        logLine(message);
        error = true;
        return nullptr;
    };
    const File file = openArchive(fileName_);
    if (!file)
        return fail("couldn't open file, exiting");
    const std::optional<LocalZipEntry> local = readLocalHeader(file.get(), entry.headerOffset);
    if (!local)
        return fail("ZipFile::getBytes(): damaged local header");
    if (local->method != 0 && local->method != 8)
        return nullptr;
    const bool deflated = local->method == 8;
    const std::uint64_t most = bytesLeft(file.get()) * (deflated ? maxInflateRatio : 1);
    if (entry.uncompressedSize > maxMemberSize || entry.uncompressedSize > most)
        return fail("ZipFile::getBytes(): member claims an impossible size");
    std::unique_ptr<char[]> buffer = allocate(entry.uncompressedSize);
    if (!buffer)
        return fail("ZipFile::getBytes(): out of memory");
    const std::string message = deflated
                                    ? inflateInto(file.get(), buffer.get(), entry.uncompressedSize)
                                    : storedInto(file.get(), buffer.get(), entry.uncompressedSize);
    if (!message.empty())
        return fail(message);
    size = entry.uncompressedSize;
    return buffer;
}

const ZipEntry* ZipFile::find(std::string_view name) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [name](const ZipEntry& e) { return e.name == name; });
    return found != entries_.end() ? &*found : nullptr;
}

}  // namespace bc
