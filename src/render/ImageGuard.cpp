// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/ImageGuard.h"

#include <zlib.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace bc {

namespace {

constexpr std::string_view pngSignature("\x89PNG\r\n\x1a\n", 8);
/// Length, type and checksum around the data of a chunk, in bytes.
constexpr std::size_t pngChunkFrame = 12;

std::uint32_t byteAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}

std::uint32_t bigEndian32(std::string_view bytes, std::size_t at) {
    return byteAt(bytes, at) << 24 | byteAt(bytes, at + 1) << 16 | byteAt(bytes, at + 2) << 8 |
           byteAt(bytes, at + 3);
}

std::uint32_t littleEndian16(std::string_view bytes, std::size_t at) {
    return byteAt(bytes, at) | byteAt(bytes, at + 1) << 8;
}

bool isUsableSize(std::uint32_t width, std::uint32_t height) {
    return width >= 1 && height >= 1 && width <= maxImageSide && height <= maxImageSide &&
           width * height <= maxImagePixels;
}

// --- PNG ---

/// Samples a pixel by colour type, 0 for one that does not exist.
int pngChannels(std::uint32_t colourType) {
    switch (colourType) {
        case 0:  // grey
        case 3:  // paletted
            return 1;
        case 2:
            return 3;
        case 4:  // grey with alpha
            return 2;
        case 6:
            return 4;
        default:
            return 0;
    }
}

bool isPngDepth(std::uint32_t depth) {
    return depth == 1 || depth == 2 || depth == 4 || depth == 8 || depth == 16;
}

std::optional<ImageFacts> readPngHeader(std::string_view data) {
    if (data.size() != 13)
        return std::nullopt;
    const std::uint32_t width = bigEndian32(data, 0);
    const std::uint32_t height = bigEndian32(data, 4);
    const std::uint32_t depth = byteAt(data, 8);
    const int channels = pngChannels(byteAt(data, 9));
    const bool knownCoding =
        byteAt(data, 10) == 0 && byteAt(data, 11) == 0 && byteAt(data, 12) <= 1;
    if (!isUsableSize(width, height) || !isPngDepth(depth) || channels == 0 || !knownCoding)
        return std::nullopt;
    return ImageFacts{ImageKind::png, static_cast<int>(width), static_cast<int>(height),
                      channels * static_cast<int>(depth)};
}

/// The size in pixels of one of the images of an interlaced file, pass 0 to 6; the whole image
/// for any pass of a file that is not interlaced.
std::pair<int, int> pngPassSize(const ImageFacts& facts, bool interlaced, int pass) {
    if (!interlaced)
        return {facts.width, facts.height};
    constexpr std::array<int, 7> startX{0, 4, 0, 2, 0, 1, 0};
    constexpr std::array<int, 7> startY{0, 0, 4, 0, 2, 0, 1};
    constexpr std::array<int, 7> stepX{8, 8, 4, 4, 2, 2, 1};
    constexpr std::array<int, 7> stepY{8, 8, 8, 4, 4, 2, 2};
    const auto i = static_cast<std::size_t>(pass);
    return {(facts.width - startX[i] + stepX[i] - 1) / stepX[i],
            (facts.height - startY[i] + stepY[i] - 1) / stepY[i]};
}

/// Unpacks the pixels of a PNG row by row, without keeping them: a decoder that fails half way
/// does not give back all of its memory, and a broken image is tried again and again.
class PngRows {
  public:
    PngRows(const ImageFacts& facts, bool interlaced) : facts_(facts), interlaced_(interlaced) {
        started_ = inflateInit(&stream_) == Z_OK;
        nextPass();
    }
    ~PngRows() {
        if (started_)
            inflateEnd(&stream_);
    }
    PngRows(const PngRows&) = delete;
    PngRows& operator=(const PngRows&) = delete;

    /// Takes the data of the next chunk; false when it cannot be unpacked to rows.
    bool feed(std::string_view data) {
        // zlib does not write to its input, it only lacks the const.
        stream_.next_in = const_cast<Bytef*>(reinterpret_cast<const Bytef*>(data.data()));
        stream_.avail_in = static_cast<uInt>(data.size());
        while (started_ && !ended_) {
            if (rowsLeft_ > 0 && stream_.avail_out == 0)
                beginRow();
            const int result = inflate(&stream_, Z_NO_FLUSH);
            // Nothing more without another chunk (or there is more than the image holds).
            if (result == Z_BUF_ERROR)
                return true;
            ended_ = result == Z_STREAM_END;
            if (result != Z_OK && !ended_)
                return false;
            if (rowsLeft_ > 0 && stream_.avail_out == 0 && !endRow())
                return false;
        }
        return started_;
    }
    /// Every row was there and nothing more.
    [[nodiscard]] bool isComplete() const { return ended_ && rowsLeft_ == 0; }

  private:
    void beginRow() {
        stream_.next_out = row_.data();
        stream_.avail_out = static_cast<uInt>(row_.size());
    }
    bool endRow() {
        constexpr Bytef lastFilter = 4;
        if (row_[0] > lastFilter)
            return false;
        if (--rowsLeft_ == 0)
            nextPass();
        return true;
    }
    /// On to the next pass that has pixels.
    void nextPass() {
        while (rowsLeft_ == 0 && pass_ < (interlaced_ ? 7 : 1)) {
            const auto [width, height] = pngPassSize(facts_, interlaced_, pass_++);
            if (width <= 0 || height <= 0)
                continue;
            rowsLeft_ = height;
            const auto bits =
                static_cast<std::size_t>(width) * static_cast<std::size_t>(facts_.bitsPerPixel);
            row_.assign(1 + (bits + 7) / 8, 0);
        }
    }

    ImageFacts facts_;
    bool interlaced_;
    z_stream stream_{};
    bool started_ = false;
    bool ended_ = false;
    int pass_ = 0;
    int rowsLeft_ = 0;
    std::vector<Bytef> row_;
};

/// Chunks that a decoder must understand; one that it does not know makes it fail.
bool isKnownOrOptional(std::string_view type) {
    const bool optional = (type[0] & 0x20) != 0;
    return optional || type == "IHDR" || type == "PLTE" || type == "IDAT" || type == "IEND";
}

struct PngChunk {
    std::string_view type;
    std::string_view data;
};

/// Nothing when bytes do not begin with a whole chunk with the right checksum.
std::optional<PngChunk> firstChunk(std::string_view bytes) {
    if (bytes.size() < pngChunkFrame)
        return std::nullopt;
    const std::size_t length = bigEndian32(bytes, 0);
    if (length > bytes.size() - pngChunkFrame)
        return std::nullopt;
    const std::string_view typeAndData = bytes.substr(4, length + 4);
    const auto* raw = reinterpret_cast<const Bytef*>(typeAndData.data());
    if (crc32(0, raw, static_cast<uInt>(typeAndData.size())) != bigEndian32(bytes, length + 8))
        return std::nullopt;
    return PngChunk{typeAndData.substr(0, 4), typeAndData.substr(4)};
}

/// From the first chunk to IEND: every length within the file, every checksum right, the header
/// first, and between them the pixels, all of them and no more.
std::optional<ImageFacts> inspectPng(std::string_view bytes) {
    bytes.remove_prefix(pngSignature.size());
    const std::optional<PngChunk> header = firstChunk(bytes);
    if (!header || header->type != "IHDR")
        return std::nullopt;
    const std::optional<ImageFacts> facts = readPngHeader(header->data);
    if (!facts)
        return std::nullopt;
    PngRows rows(*facts, header->data.back() != 0);
    bytes.remove_prefix(header->data.size() + pngChunkFrame);
    while (const std::optional<PngChunk> chunk = firstChunk(bytes)) {
        if (chunk->type == "IEND")
            return rows.isComplete() && chunk->data.empty() ? facts : std::nullopt;
        if (chunk->type == "IHDR" || !isKnownOrOptional(chunk->type))
            return std::nullopt;
        if (chunk->type == "IDAT" && !rows.feed(chunk->data))
            return std::nullopt;
        bytes.remove_prefix(chunk->data.size() + pngChunkFrame);
    }
    return std::nullopt;
}

// --- TGA ---

constexpr std::size_t tgaHeaderSize = 18;

struct TgaHeader {
    std::uint32_t idLength, mapType, imageType, mapLength, mapEntryBits, width, height, depth;
    [[nodiscard]] bool isRunLength() const { return imageType >= 9; }
    [[nodiscard]] std::size_t pixelBytes() const { return (depth + 7) / 8; }
};

bool isTgaDepth(std::uint32_t bits) {
    return bits == 8 || bits == 15 || bits == 16 || bits == 24 || bits == 32;
}

/// Kind and depth that belong together: 1 and 9 paletted, 2 and 10 colour, 3 and 11 grey.
bool isTgaKind(const TgaHeader& h) {
    switch (h.imageType) {
        case 1:
        case 9:
            return h.mapType == 1 && h.depth == 8 && h.mapLength > 0 &&
                   isTgaDepth(h.mapEntryBits) && h.mapEntryBits > 8;
        case 2:
        case 10:
            return h.mapType == 0 && isTgaDepth(h.depth) && h.depth > 8;
        case 3:
        case 11:
            return h.mapType == 0 && (h.depth == 8 || h.depth == 16);
        default:
            return false;
    }
}

/// Whether the packets hold exactly that many pixels without running past the end of the file.
bool fillsRunLength(std::string_view data, std::size_t pixels, std::size_t pixelBytes) {
    while (pixels > 0) {
        if (data.empty())
            return false;
        const std::uint32_t head = byteAt(data, 0);
        const std::size_t count = (head & 0x7FU) + 1;
        const std::size_t length = 1 + ((head & 0x80U) != 0 ? 1 : count) * pixelBytes;
        if (count > pixels || length > data.size())
            return false;
        pixels -= count;
        data.remove_prefix(length);
    }
    return true;
}

std::optional<ImageFacts> inspectTga(std::string_view bytes) {
    if (bytes.size() < tgaHeaderSize)
        return std::nullopt;
    const TgaHeader h{byteAt(bytes, 0),          byteAt(bytes, 1), byteAt(bytes, 2),
                      littleEndian16(bytes, 5),  byteAt(bytes, 7), littleEndian16(bytes, 12),
                      littleEndian16(bytes, 14), byteAt(bytes, 16)};
    if (!isTgaKind(h) || !isUsableSize(h.width, h.height))
        return std::nullopt;
    const std::size_t mapBytes = h.mapType == 1 ? h.mapLength * ((h.mapEntryBits + 7) / 8) : 0;
    const std::size_t start = tgaHeaderSize + h.idLength + mapBytes;
    if (start > bytes.size())
        return std::nullopt;
    const std::string_view data = bytes.substr(start);
    const std::size_t pixels = static_cast<std::size_t>(h.width) * h.height;
    const bool whole = h.isRunLength() ? fillsRunLength(data, pixels, h.pixelBytes())
                                       : data.size() >= pixels * h.pixelBytes();
    if (!whole)
        return std::nullopt;
    return ImageFacts{ImageKind::tga, static_cast<int>(h.width), static_cast<int>(h.height),
                      static_cast<int>(h.depth)};
}

}  // namespace

std::optional<ImageFacts> inspectImage(std::string_view bytes) {
    if (bytes.substr(0, pngSignature.size()) == pngSignature)
        return inspectPng(bytes);
    return inspectTga(bytes);
}

}  // namespace bc
