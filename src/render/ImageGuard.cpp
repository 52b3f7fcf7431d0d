// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/ImageGuard.h"

#include <zlib.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace bc {

namespace {

constexpr std::string_view pngSignature("\x89PNG\r\n\x1a\n", 8);

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

/// From the first chunk to IEND: every length within the file, every checksum right, the header
/// first and pixels somewhere between.
std::optional<ImageFacts> inspectPng(std::string_view bytes) {
    constexpr std::size_t frame = 12;  // length, type and checksum around the data of a chunk
    std::optional<ImageFacts> facts;
    bool pixels = false;
    bytes.remove_prefix(pngSignature.size());
    while (bytes.size() >= frame) {
        const std::size_t length = bigEndian32(bytes, 0);
        if (length > bytes.size() - frame)
            return std::nullopt;
        const std::string_view typeAndData = bytes.substr(4, length + 4);
        const std::string_view type = typeAndData.substr(0, 4);
        const auto* raw = reinterpret_cast<const Bytef*>(typeAndData.data());
        if (crc32(0, raw, static_cast<uInt>(typeAndData.size())) != bigEndian32(bytes, length + 8))
            return std::nullopt;
        if ((type == "IHDR") == facts.has_value())
            return std::nullopt;
        if (!facts) {
            facts = readPngHeader(typeAndData.substr(4));
            if (!facts)
                return std::nullopt;
        }
        if (type == "IDAT")
            pixels = true;
        if (type == "IEND")
            return pixels && length == 0 ? facts : std::nullopt;
        bytes.remove_prefix(length + frame);
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
