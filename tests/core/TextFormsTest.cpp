// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The text forms of the value types, in which data files and saves hold them.
#include "core/Dimension.h"
#include "core/RGBAColour.h"
#include "core/TexCoord.h"
#include "core/Vector.h"

#include <gtest/gtest.h>

#include <limits>

namespace bc {
namespace {

struct Case {
    const char* text;
    const char* result;
};

template <class Value>
void expectReads(const Value& before, std::initializer_list<Case> cases) {
    for (const Case& c : cases) {
        Value value = before;
        value.fromString(c.text);
        EXPECT_EQ(value.toString(), c.result) << "from \"" << c.text << '"';
    }
}

TEST(TextForms, EachTypeTakesItsOwnCountsOfNumbers) {
    expectReads(Vector(9, 9, 5), {{"1,2", "1,2,5"},
                                  {"7", "9,9,5"},
                                  {",,3,,4,", "3,4,5"},
                                  {"1,2,3,4,5", "1,2,3"},
                                  {" 0.025, -500 ,x", "0.025,-500,0"}});
    expectReads(RGBAColour(1, 2, 3, 4), {{"255,80,5,255", "255,80,5,255"},
                                         {"255,80,5", "1,2,3,4"},
                                         {"1,1,1,1,1", "1,2,3,4"},
                                         {"0.5,,red,,300,-1", "0.5,0,300,-1"}});
    expectReads(
        Dimension(1, 2, 3),
        {{"10,20", "10,20,3"}, {"10,20,30", "10,20,30"}, {"5,6,7,8", "5,6,7"}, {"10", "1,2,3"}});
    expectReads(TexCoord(3, 4), {{"0.25,1", "0.25,1"}, {"1", "3,4"}, {"1,2,3", "3,4"}});
}

TEST(TextForms, SizesAreSeparatedByAnX) {
    for (const auto& [text, size] :
         {Case{"640x480", "640 x 480"}, {" 640  x 480 x 32", "640 x 480"}, {"800 x", "1 x 2"}}) {
        Dimension dimension(1, 2);
        dimension.fromSizeString(text);
        EXPECT_EQ(dimension.toSizeString(), size) << text;
    }
}

TEST(TextForms, ColourChannelsAreClampedForDrawing) {
    EXPECT_EQ(RGBAColour::toByte(-5), 0);
    EXPECT_EQ(RGBAColour::toByte(254.9F), 254);
    EXPECT_EQ(RGBAColour::toByte(256), 255);
    EXPECT_EQ(RGBAColour::toByte(std::numeric_limits<float>::quiet_NaN()), 0);
}

}  // namespace
}  // namespace bc
