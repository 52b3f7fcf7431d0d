// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <zlib.h>

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace bc::test {

/// Red, green, blue, alpha.
using Pixel = std::array<std::uint8_t, 4>;
/// The pixel at a column and a row, row 0 at the top.
using Painter = std::function<Pixel(int x, int y)>;

inline void appendBigEndian(std::string& out, std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8)
        out += static_cast<char>(value >> shift & 0xFFU);
}

inline std::string pngChunk(std::string_view type, std::string_view data) {
    std::string chunk;
    appendBigEndian(chunk, static_cast<std::uint32_t>(data.size()));
    std::string body(type);
    body += data;
    chunk += body;
    appendBigEndian(chunk,
                    static_cast<std::uint32_t>(crc32(0, reinterpret_cast<const Bytef*>(body.data()),
                                                     static_cast<uInt>(body.size()))));
    return chunk;
}

inline std::string pngHeader(int width, int height, int depth, int colourType) {
    std::string data;
    appendBigEndian(data, static_cast<std::uint32_t>(width));
    appendBigEndian(data, static_cast<std::uint32_t>(height));
    data += static_cast<char>(depth);
    data += static_cast<char>(colourType);
    data.append(3, '\0');
    return pngChunk("IHDR", data);
}

/// rows: each a filter byte (0) and its samples.
inline std::string pngFile(int width, int height, int depth, int colourType,
                           const std::string& rows) {
    uLongf size = compressBound(static_cast<uLong>(rows.size()));
    std::string packed(size, '\0');
    compress(reinterpret_cast<Bytef*>(packed.data()), &size,
             reinterpret_cast<const Bytef*>(rows.data()), static_cast<uLong>(rows.size()));
    packed.resize(size);
    std::string file("\x89PNG\r\n\x1a\n", 8);
    file += pngHeader(width, height, depth, colourType);
    if (colourType == 3)
        file += pngChunk("PLTE", std::string("\0\0\0\xff\xff\xff", 6));
    return file + pngChunk("IDAT", packed) + pngChunk("IEND", "");
}

/// 24 or 32 bits.
inline std::string png(int width, int height, int bits, const Painter& paint) {
    std::string rows;
    for (int y = 0; y < height; ++y) {
        rows += '\0';
        for (int x = 0; x < width; ++x)
            rows.append(reinterpret_cast<const char*>(paint(x, y).data()),
                        static_cast<std::size_t>(bits / 8));
    }
    return pngFile(width, height, 8, bits == 32 ? 6 : 2, rows);
}

inline std::string png(int width, int height, const Pixel& colour) {
    return png(width, height, 32, [&](int, int) { return colour; });
}

inline std::string tgaHeader(int type, int width, int height, int bits, bool topFirst) {
    std::string header(18, '\0');
    const auto put16 = [&header](std::size_t at, int value) {
        header[at] = static_cast<char>(value & 0xFF);
        header[at + 1] = static_cast<char>(value >> 8 & 0xFF);
    };
    header[2] = static_cast<char>(type);
    put16(12, width);
    put16(14, height);
    header[16] = static_cast<char>(bits);
    header[17] = static_cast<char>((topFirst ? 0x20 : 0) | (bits == 32 ? 8 : 0));
    return header;
}

inline std::string tga(int width, int height, int bits, bool topFirst, const Painter& paint) {
    std::string file = tgaHeader(2, width, height, bits, topFirst);
    for (int row = 0; row < height; ++row)
        for (int x = 0; x < width; ++x) {
            const Pixel p = paint(x, topFirst ? row : height - 1 - row);
            for (const std::uint8_t channel : {p[2], p[1], p[0]})
                file += static_cast<char>(channel);
            if (bits == 32)
                file += static_cast<char>(p[3]);
        }
    return file;
}

}  // namespace bc::test
