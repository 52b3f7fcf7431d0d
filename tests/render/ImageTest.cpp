// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/ImageFile.h"
#include "render/ImageGuard.h"
#include "support/TestFolders.h"
#include "support/TestImages.h"

#include <string>
#include <utility>
#include <vector>

namespace bc {
namespace {

using test::Pixel;

// Every pixel another colour, so that a flip, a swapped channel or a lost row shows.
Pixel pattern(int x, int y) {
    return {static_cast<std::uint8_t>(x * 40), static_cast<std::uint8_t>(y * 50), 200,
            static_cast<std::uint8_t>(255 - x - y)};
}

class ImageTest : public TestFolders {
  protected:
    std::optional<Image> read(const std::string& name, const std::string& bytes) {
        put(data() + "/" + name, bytes);
        return loadImage(name);
    }
};

TEST_F(ImageTest, ComesOutWithTheBottomRowFirstWhateverTheFileStores) {
    struct Case {
        std::string name;
        int bits;
        std::string bytes;
    };
    const Case cases[] = {
        {"a.png", 24, test::png(5, 3, 24, pattern)},
        {"b.png", 32, test::png(5, 3, 32, pattern)},
        {"c.tga", 24, test::tga(5, 3, 24, true, pattern)},
        {"d.tga", 32, test::tga(5, 3, 32, true, pattern)},
        {"e.tga", 32, test::tga(5, 3, 32, false, pattern)},
        {"a TGA by the name of png.png", 32, test::tga(5, 3, 32, false, pattern)},
    };
    for (const Case& c : cases) {
        const std::optional<Image> image = read(c.name, c.bytes);
        ASSERT_TRUE(image) << c.name;
        EXPECT_EQ(image->width, 5) << c.name;
        EXPECT_EQ(image->height, 3) << c.name;
        ASSERT_EQ(image->bitsPerPixel, c.bits) << c.name;
        const auto channels = static_cast<std::size_t>(c.bits / 8);
        ASSERT_EQ(image->pixels.size(), 15 * channels);
        for (int y = 0; y < 3; ++y)
            for (int x = 0; x < 5; ++x) {
                const Pixel wanted = pattern(x, 2 - y);
                for (std::size_t i = 0; i < channels; ++i)
                    EXPECT_EQ(image->pixels[static_cast<std::size_t>(y * 5 + x) * channels + i],
                              wanted[i])
                        << c.name << " at " << x << ',' << y << " channel " << i;
            }
    }
}

TEST_F(ImageTest, ReadsRunLengthPackets) {
    std::string file = test::tgaHeader(10, 4, 2, 24, true);
    file += std::string("\x83\x01\x02\x03", 4);  // four pixels of one colour
    file += std::string("\x03", 1) + std::string(12, '\x07');
    const std::optional<Image> image = read("rle.tga", file);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->pixels[0], 7);
    EXPECT_EQ(image->pixels[12], 3);
    EXPECT_EQ(image->pixels[14], 1);
}

TEST_F(ImageTest, ReadsPngsHoweverTheyAreCut) {
    // Seven passes; an 8 x 8 image of one colour, whose pixels pack into next to nothing.
    std::string rows;
    for (const auto& [width, height] :
         {std::pair(1, 1), {1, 1}, {2, 1}, {2, 2}, {4, 2}, {4, 4}, {8, 4}})
        for (int y = 0; y < height; ++y)
            rows += '\0' + std::string(static_cast<std::size_t>(width) * 4, '\x55');
    std::string interlaced = test::pngFile(8, 8, 8, 6, rows);
    std::string header = test::pngHeader(8, 8, 8, 6).substr(8, 13);
    header.back() = '\1';
    interlaced.replace(8, 25, test::pngChunk("IHDR", header));
    const std::optional<Image> woven = read("woven.png", interlaced);
    ASSERT_TRUE(woven);
    EXPECT_EQ(woven->pixels, std::vector<std::uint8_t>(256, 0x55));

    // The same pixels in chunks of a byte each, with a remark before them.
    const std::string whole = test::png(300, 200, {1, 2, 3, 4});
    const std::string data = whole.substr(41, whole.size() - 41 - 16);
    std::string cut = whole.substr(0, 33) + test::pngChunk("tEXt", "a remark");
    for (const char byte : data)
        cut += test::pngChunk("IDAT", std::string(1, byte));
    const std::optional<Image> joined = read("cut.png", cut + test::pngChunk("IEND", ""));
    ASSERT_TRUE(joined);
    EXPECT_EQ(joined->pixels, read("whole.png", whole)->pixels);
}

TEST_F(ImageTest, RefusesWhatIsDamagedLyingOrNotOfTwentyFourOrThirtyTwoBits) {
    const std::string whole = test::png(16, 16, 32, pattern);
    const auto changed = [&whole](std::size_t at) {
        std::string copy = whole;
        copy[at] = static_cast<char>(copy[at] ^ 1);
        return copy;
    };
    const std::string signature = whole.substr(0, 8);
    const std::string end = test::pngChunk("IEND", "");
    std::string grey;
    std::string grey16;
    for (int i = 0; i < 4; ++i) {
        grey += std::string(5, '\0');
        grey16 += std::string(25, '\0');
    }
    const std::vector<std::pair<std::string, std::string>> cases{
        {"empty.png", ""},
        {"cut in the signature.png", whole.substr(0, 7)},
        {"cut in the header.png", whole.substr(0, 20)},
        {"cut in the pixels.png", whole.substr(0, whole.size() - 30)},
        {"without an end.png", whole.substr(0, whole.size() - 12)},
        {"wrong checksum.png", changed(whole.size() - 20)},
        {"changed size.png", changed(19)},
        {"length beyond the file.png", changed(8)},
        {"two headers.png", signature + test::pngHeader(4, 4, 8, 6) + test::pngHeader(4, 4, 8, 6) +
                                test::pngChunk("IDAT", "x") + end},
        {"no pixels.png", signature + test::pngHeader(4, 4, 8, 6) + end},
        {"pixels that end early.png",
         signature + test::pngHeader(64, 64, 8, 6) + test::pngChunk("IDAT", "x") + end},
        {"a row too few.png", test::pngFile(4, 4, 8, 6, std::string(51, '\0'))},
        {"a row too many.png", test::pngFile(4, 4, 8, 6, std::string(85, '\0'))},
        {"unknown filter.png", test::pngFile(4, 1, 8, 6, "\5" + std::string(16, '\0'))},
        {"unknown critical chunk.png",
         whole.substr(0, 33) + test::pngChunk("WHAT", "x") + whole.substr(33)},
        {"too wide.png",
         signature + test::pngHeader(8193, 1, 8, 6) + test::pngChunk("IDAT", "x") + end},
        {"too many pixels.png",
         signature + test::pngHeader(8192, 8192, 8, 6) + test::pngChunk("IDAT", "x") + end},
        {"no width.png",
         signature + test::pngHeader(0, 4, 8, 6) + test::pngChunk("IDAT", "x") + end},
        {"paletted.png", test::pngFile(4, 4, 8, 3, grey)},
        {"grey.png", test::pngFile(4, 4, 8, 0, grey)},
        {"sixteen bits a channel.png", test::pngFile(4, 4, 16, 2, grey16)},
        {"text.png", "this is no image, but it is longer than a header"},
        {"lying.tga", test::tgaHeader(2, 65535, 65535, 32, true) + "abcd"},
        {"one byte short.tga", test::tga(4, 4, 24, true, pattern).substr(0, 18 + 47)},
        {"sixteen bits.tga", test::tgaHeader(2, 2, 2, 16, true) + std::string(8, 'x')},
        {"grey.tga", test::tgaHeader(3, 2, 2, 8, true) + std::string(4, 'x')},
        {"run beyond the picture.tga",
         test::tgaHeader(10, 2, 1, 24, true) + std::string("\x82\x01\x02\x03", 4)},
        {"run beyond the file.tga",
         test::tgaHeader(10, 4, 1, 24, true) + std::string("\x02\x01\x02\x03\x04", 5)},
        {"id beyond the file.tga", "\xff" + test::tga(1, 1, 24, true, pattern).substr(1)},
        {"unknown kind.tga", test::tgaHeader(4, 2, 2, 24, true) + std::string(64, 'x')},
    };
    for (const auto& [name, bytes] : cases)
        EXPECT_FALSE(read(name, bytes)) << name;
    EXPECT_FALSE(loadImage("missing.png"));
    EXPECT_FALSE(loadImage("../outside.png"));
    EXPECT_TRUE(read("whole.png", whole));
}

}  // namespace
}  // namespace bc
