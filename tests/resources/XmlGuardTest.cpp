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

std::string nested(int levels) {
    return repeated("<a>", levels) + repeated("</a>", levels);
}

TEST(XmlGuard, CountsTheDeepestLevel) {
    EXPECT_EQ(xmlRefusal(nested(maxXmlDepth)), "");
    EXPECT_THAT(xmlRefusal(nested(maxXmlDepth + 1)), HasSubstr("deeper than 256"));
    EXPECT_EQ(xmlRefusal("<r>" + repeated("<a><b/></a>", 10000) + "</r>"), "");
    const std::string open = repeated("<a>", maxXmlDepth);
    EXPECT_NE(xmlRefusal(open + "<b/>"), "") << "an empty element is a level as well";
}

TEST(XmlGuard, MarkupInsideOtherMarkupDoesNotCount) {
    const std::string many = repeated("<a>", 300);
    EXPECT_EQ(xmlRefusal("<r><!-- " + many + " --></r>"), "");
    EXPECT_EQ(xmlRefusal("<r><![CDATA[ " + many + " ]]></r>"), "");
    EXPECT_EQ(xmlRefusal("<r t=\"" + many + "\" u='" + many + "'/>"), "");
}

// What follows each of these is read by the parser as elements, although the beginning can be
// taken for something that would hide them.
TEST(XmlGuard, NothingHidesLevelsFromTheCount) {
    for (const char* beginning :
         {"<?x >", "<?x <!-- ?>", "<!DOCTYPE r [ <!ELEMENT", "<!x '>", "<!-->-->",
          "<?xml version=\"", "<?xml foo=\" version=\"?><!--\"?>", "<?xmlfoo '?>'",
          "<?xml version='?>' <!-- ?>", "<r a=", "<r a=b\">", "<r \"<!--\">", "< <!--", "</x",
          "</x></y>", "<1 a=\"<!--\">", "\xEF\xBB\xBF"})
        EXPECT_NE(xmlRefusal(beginning + repeated("<a>", 300)), "") << beginning;
    EXPECT_NE(xmlRefusal(repeated("</x>", 100) + repeated("<a>", 300)), "");
}

TEST(XmlGuard, FaultsOfFormAreLeftToTheParser) {
    for (const char* text : {"<r", "<r a=b/>", "<r a='1'b='2'/>", "<r></s>", "no markup", "",
                             "<?xml version='1.0' foo='x'?><r/>", "< r>", "</r>"})
        EXPECT_EQ(xmlRefusal(text), "") << text;
}

TEST(XmlGuard, RefusesNulBytesAndCrowdsOfAttributes) {
    EXPECT_THAT(xmlRefusal(std::string("<r>\0</r>", 8)), HasSubstr("NUL"));
    std::string attributes;
    for (int i = 0; i < maxXmlAttributes; ++i)
        attributes += " a" + std::to_string(i) + "=''";
    EXPECT_EQ(xmlRefusal("<r" + attributes + "/>"), "");
    EXPECT_THAT(xmlRefusal("<r" + attributes + " more=''/>"), HasSubstr("attributes"));
}

TEST(XmlGuard, BoundsWhatTheParserWouldTakeInMemory) {
    const int tags = maxXmlPieces - 2;
    EXPECT_EQ(xmlRefusal("<r>" + repeated("<b/>", tags) + "</r>"), "");
    EXPECT_THAT(xmlRefusal("<r>" + repeated("<b/>", tags + 1) + "</r>"), HasSubstr("more than"));
    EXPECT_THAT(xmlRefusal("<r>" + repeated("<b a='' b=''/>", maxXmlPieces / 3) + "</r>"),
                HasSubstr("more than"));
}

TEST(XmlGuard, TellsUtf8FromOtherBytes) {
    for (const char* text : {"", "plain", "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x9A\x80"})
        EXPECT_TRUE(isUtf8(text));
    for (const char* text : {"\xE4", "a\xC3", "\xC3(", "\x80", "\xF0\x9F\x9A", "\xC0\x80", "\xFF"})
        EXPECT_FALSE(isUtf8(text)) << text;
}

}  // namespace
}  // namespace bc
