// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/Text.h"

#include <gmock/gmock.h>

#include <climits>

namespace bc {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> tokens(std::string_view delimiters, std::string_view text) {
    std::vector<std::string> out;
    tokenise(delimiters, text, out);
    return out;
}

TEST(Text, TokensAreNeverEmpty) {
    EXPECT_THAT(tokens(" x", " 640   x 480"), ElementsAre("640", "480"));
    EXPECT_THAT(tokens(",", "alone"), ElementsAre("alone"));
    EXPECT_THAT(tokens(",", ",,,"), IsEmpty());
}

TEST(Text, ComparesWithoutCase) {
    struct Case {
        const char* a;
        const char* b;
        int order;
    };
    for (const Case& c : {Case{"Abc", "aBC", 0}, Case{"", "", 0}, Case{"ab", "abc", -1},
                          Case{"abc", "ab", 1}, Case{"b", "A", 1}, Case{"Az", "ba", -1},
                          // Letters compare as capitals, so "_" comes after them.
                          Case{"a_", "ab", 1}, Case{"\xE9", "z", 1}}) {
        EXPECT_EQ(compareNoCase(c.a, c.b), c.order) << c.a << " against " << c.b;
    }
}

TEST(Text, SplitsAtTheLastDot) {
    std::string base = "save.one.xml";
    std::string extension = "old";
    EXPECT_TRUE(splitExtension(base, base, extension)) << "in place";
    EXPECT_EQ(base + '|' + extension, "save.one|.xml");
    EXPECT_FALSE(splitExtension("noextension", base, extension));
    EXPECT_EQ(base + extension, "");
}

TEST(Text, FormatsFloatsWithSixDigits) {
    struct Case {
        float value;
        const char* text;
    };
    for (const Case& c :
         {Case{1.5F, "1.5"}, Case{100, "100"}, Case{1.0F / 3, "0.333333"}, Case{0.025F, "0.025"},
          Case{-500, "-500"}, Case{1234567, "1.23457e+06"}, Case{0.00001F, "1e-05"}, Case{0, "0"}})
        EXPECT_EQ(formatFloat(c.value), c.text);
}

TEST(Text, ReadsTheNumberThatATextBeginsWith) {
    struct Case {
        const char* text;
        float real;
        int integer;
    };
    for (const Case& c :
         {Case{"12", 12, 12}, Case{" \t-3.75abc", -3.75F, -3}, Case{"+7", 7, 7}, Case{"abc", 0, 0},
          Case{"", 0, 0}, Case{"1e2x", 100, 1}, Case{".5", 0.5F, 0}, Case{"- 5", 0, 0},
          Case{"nan", 0, 0}, Case{"inf", 0, 0}, Case{"1e60", 0, 1}}) {
        EXPECT_EQ(parseFloat(c.text), c.real) << c.text;
        EXPECT_EQ(parseInt(c.text), c.integer) << c.text;
    }
    EXPECT_EQ(parseInt("99999999999999999999999"), INT_MAX);
    EXPECT_EQ(parseInt("-99999999999999999999999"), INT_MIN);
    EXPECT_EQ(parseFloat(std::string(5000, '1')), 0) << "too large for a float";
}

}  // namespace
}  // namespace bc
