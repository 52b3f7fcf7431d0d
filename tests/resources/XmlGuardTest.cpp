// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "resources/XmlGuard.h"

#include <gmock/gmock.h>

namespace bc {
namespace {

using testing::HasSubstr;

std::string repeated(const std::string& text, int count) {
    std::string out;
    for (int i = 0; i < count; ++i)
        out += text;
    return out;
}

TEST(XmlGuard, CountsTheDeepestLevel) {
    const std::string open = repeated("<a>", maxXmlDepth);
    EXPECT_EQ(xmlRefusal(open + repeated("</a>", maxXmlDepth)), "");
    EXPECT_THAT(xmlRefusal(open + "<a>"), HasSubstr("deeper than 256"));
    EXPECT_NE(xmlRefusal(open + "<b/>"), "") << "an empty element is a level as well";
    EXPECT_EQ(xmlRefusal("<r>" + repeated("<a><b/></a>", 300) + "</r>"), "");
    const std::string many = repeated("<a>", 300);
    for (const std::string& text : {"<!-- " + many + " -->", "<![CDATA[ " + many + " ]]>",
                                    "<e t=\"" + many + "\" u='" + many + "'/>"})
        EXPECT_EQ(xmlRefusal("<r>" + text + "</r>"), "") << "no elements";
}

// What follows each of these is read by the parser as elements, although the beginning can be
// taken for something that would hide them.
TEST(XmlGuard, NothingHidesLevelsFromTheCount) {
    for (const char* beginning :
         {"<?x >", "<?x <!-- ?>", "<!DOCTYPE r [ <!ELEMENT", "<!x '>", "<!-->-->",
          "<?xml version=\"", "<?xml foo=\" version=\"?><!--\"?>", "<?xmlfoo '?>'",
          "<?xml version='?>' <!-- ?>", "<r a=", "<r a=b\">", "<r \"<!--\">", "< <!--", "</x",
          "</x></y>", "<1 a=\"<!--\">", "\xEF\xBB\xBF", "<!--><r a=\"-->", "<?xab version='>"})
        EXPECT_NE(xmlRefusal(beginning + repeated("<a>", 300) + "\"/>'?>"), "") << beginning;
    EXPECT_NE(xmlRefusal(repeated("</x>", 100) + repeated("<a>", 300)), "");
    EXPECT_NE(xmlRefusal(repeated("<a>", 200) + "< " + repeated("<a>", 100)), "");
}

TEST(XmlGuard, SyntaxErrorsAreLeftToTheParser) {
    for (const char* text : {"<r", "<r a=b/>", "<r a='1'b='2'/>", "<r></s>", "no markup", "",
                             "<?xml version='1.0' foo='x'?><r/>", "< r>", "</r>"})
        EXPECT_EQ(xmlRefusal(text), "") << text;
}

TEST(XmlGuard, BoundsTheTimeAndTheMemoryOfTheParser) {
    EXPECT_THAT(xmlRefusal(std::string("<r>\0</r>", 8)), HasSubstr("NUL"));
    const std::string attributes = repeated(" a=''", maxXmlAttributes);
    EXPECT_EQ(xmlRefusal("<r" + attributes + "><r" + attributes + "/></r>"), "");
    EXPECT_THAT(xmlRefusal("<r" + attributes + " a=''/>"), HasSubstr("256 attributes"));
    const std::string tags = repeated("<b/>", maxXmlPieces - 2);
    EXPECT_EQ(xmlRefusal("<r>" + tags + "</r>"), "");
    EXPECT_THAT(xmlRefusal("<r a=''>" + tags + "</r>"), HasSubstr("more than 3000000 tags"));
}

TEST(XmlGuard, TellsUtf8FromOtherBytes) {
    for (const char* text : {"", "plain", "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x9A\x80"})
        EXPECT_TRUE(isUtf8(text));
    for (const std::string_view text : {"a\xE4", "\xC3(", "\xC3\xC3", "\x80", "\xC0\x80", "\xFF"})
        EXPECT_FALSE(isUtf8(text)) << text;
    EXPECT_FALSE(isUtf8(std::string_view("a\xC3\xA4", 2))) << "cut off";
}

}  // namespace
}  // namespace bc
