// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "ZipBuilder.h"

#include "resources/ResourceManager.h"
#include "resources/XmlAttributes.h"
#include "resources/ZipFile.h"
#include "support/TestFolders.h"

#include <gmock/gmock.h>
#include <tinyxml.h>

namespace bc {
namespace {

using testing::AnyOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

/// 300,000 bytes that cannot be compressed.
std::string makeNoise() {
    std::string noise;
    for (std::uint32_t n = 0; noise.size() < 300000; n = n * 1664525 + 1013904223)
        noise += static_cast<char>(n >> 24);
    return noise;
}

class ResourceManagerTest : public TestFolders {
  protected:
    void zip(const std::vector<ZipMember>& members, const std::string& name = "data.zip") {
        put(data() + "/" + name, zipOf(members));
    }
    /// Opens the archive that was put and reads a member; "(null)" for a null.
    std::string member(const std::string& name) {
        manager.release();
        manager.addZip("data.zip");
        return bytes(name);
    }
    std::string bytes(const std::string& name) {
        std::size_t size = 0;
        bool error = false;
        const auto buffer = manager.getBytes(name, size, error);
        if (!buffer)
            return "(null)";
        EXPECT_EQ(buffer[size], '\0');
        return {buffer.get(), size};
    }
    /// What is logged about a file that is no XML.
    std::string refusal(const std::string& name) {
        TiXmlDocument document;
        return logOf([&] { EXPECT_FALSE(manager.loadXML(document, name)) << name; });
    }

    ResourceManager manager;
};

TEST_F(ResourceManagerTest, DiskComesFirstThenArchivesAndEntriesInTheirOrder) {
    put(data() + "/disk", "disk");
    zip({{"x", "first"}, {"x", "second"}, {"disk", "hidden"}}, "one.zip");
    zip({{"x", "hidden"}, {"y", "only there"}}, "two.zip");
    for (const char* name : {"missing.zip", "one.zip", "two.zip"})
        EXPECT_TRUE(manager.addZip(name));
    EXPECT_FALSE(manager.addZip(""));
    EXPECT_EQ(bytes("disk") + bytes("x") + bytes("y"), "diskfirstonly there");
    EXPECT_EQ(logOf([&] { bytes("disk"); }), "Found on disk: disk\n");
    manager.release();
    EXPECT_EQ(bytes("x"), "(null)");
}

TEST_F(ResourceManagerTest, MembersAreStoredOrDeflatedAndNamedByEitherSlash) {
    const std::string noise = makeNoise();
    zip({{"data\\maps\\m.xml", noise, 8, -1, -1, "local extra", "central"},
         {"stored", noise},
         {"empty", ""},
         {"emptydeflated", "", 8}});
    EXPECT_EQ(member("data/maps/m.xml"), noise);
    EXPECT_EQ(bytes("stored"), noise);
    EXPECT_EQ(bytes("empty") + bytes("emptydeflated"), "");
    EXPECT_EQ(bytes("Stored"), "(null)") << "upper and lower case differ";
    EXPECT_EQ(bytes("data\\maps\\m.xml"), "(null)");
}

TEST_F(ResourceManagerTest, OpeningAnArchiveLogsWhatItFinds) {
    zip({{"a", "b"}});
    put(data() + "/text.zip", "no archive at all");
    put(data() + "/cut.zip", "PK\3\4 and then nothing");
    const std::string rule = std::string(61, '-') + "\n";
    const std::pair<const char*, std::string> cases[] = {
        {"data.zip",
         "valid zip file\nfound central directory\n" + rule +
             "Type  Name  CompressedSize  UncompressedSize  CRC  Method  Offset  DOffset\n" + rule},
        {"none.zip", "couldn't open file, exiting\n"},
        {"text.zip", "file is not a valid zip, exiting\n"},
        {"cut.zip", "valid zip file\ncouldn't find central directory, exiting\n"}};
    for (const auto& [name, log] : cases)
        EXPECT_EQ(logOf([&, &file = name] { manager.addZip(file); }), log);
}

TEST_F(ResourceManagerTest, MembersThatLieAreRefused) {
    // Each is named after the end of the message about it.
    const std::string text(3000, 'x');
    for (const ZipMember& liar : std::vector<ZipMember>{
             {"damaged member", text, 8, 2999},
             {"member is shorter than it says", text, 8, 3001},
             {"member claims an impossible size", text, 0, 1 << 20},
             {"member claims an impossible size", text, 8, 200 << 20},
             {"member claims an impossible size", text, 8, 0xFFFFFFFF},
             {"member claims an impossible size", makeNoise(), 8, (256 << 20) + 1},
             {"damaged local header", text, 0, -1, 0x7FFFFFF0},
             {"damaged local header", text, 0, -1, 100}}) {
        zip({liar});
        const std::string log = logOf([&] { EXPECT_EQ(member(liar.name), "(null)"); });
        EXPECT_THAT(log, HasSubstr("ZipFile::getBytes(): " + liar.name)) << liar.claimedSize;
    }
}

// Every third length, and each byte inverted: what is still found has the right size or is null.
TEST_F(ResourceManagerTest, DamagedArchivesNeverCrash) {
    const std::string whole =
        zipOf({{"a", "some words, some words and some more words", 8}, {"b", "stored"}});
    const auto check = [&](const std::string& archive) {
        put(data() + "/data.zip", archive);
        logOf([&] {
            EXPECT_THAT(member("b"), AnyOf("(null)", SizeIs(6)));
            bytes("a");
        });
    };
    for (std::size_t n = 0; n < whole.size(); n += 3)
        check(whole.substr(0, n));
    const std::size_t sizeOfB = whole.rfind("PK\1\2") + 24;  // Any size up to 6 may be true.
    for (std::size_t i = 0; i < whole.size(); ++i) {
        std::string damaged = whole;
        damaged[i] = static_cast<char>(~damaged[i]);
        if (i < sizeOfB || i >= sizeOfB + 4)
            check(damaged);
    }
}

TEST_F(ResourceManagerTest, EntriesBeforeTheCutOfADirectoryStay) {
    std::string archive = zipOf({{"a", "first"}, {"b", "second"}});
    archive.resize(archive.rfind("PK\1\2") + 20);
    put(data() + "/data.zip", archive);
    EXPECT_THAT(logOf([&] { EXPECT_EQ(member("a"), "first"); }), HasSubstr("cut off"));
    EXPECT_EQ(bytes("b"), "(null)");
}

TEST_F(ResourceManagerTest, XmlIsReadFromDiskAndArchiveInEitherEncoding) {
    zip({{"z.xml", "<z n='2'/>", 8}});
    put(user() + "/d.xml", "<?xml version=\"1.0\"?><d n=\"2\"><!-- x --><e/></d>");
    // First bytes of longer sequences in a value and at the very end of the text.
    put(user() + "/latin.xml", "<?xml version=\"1.0\"?><r a=\"\xF0\" n=\"2\">\xE4</r>\xF0");
    member("z.xml");
    for (const char* name : {"z.xml", "d.xml", "latin.xml"}) {
        TiXmlDocument document;
        ASSERT_TRUE(manager.loadXML(document, name)) << name;
        EXPECT_EQ(xml::readInt(*document.RootElement(), "n"), 2) << name;
    }
}

TEST_F(ResourceManagerTest, UnreadableXmlIsLoggedWithItsReason) {
    zip({{"odd.xml", "x", 12}, {"liar.xml", "x", 0, 1 << 20}});
    put(user() + "/empty.xml", "");
    member("odd.xml");
    EXPECT_EQ(refusal("none.xml"),
              "NOT Found on disk: none.xml\nNULL ZipResultsBundle\n"
              "NULL PTR getting Zip file bytes\nError reading bytes for: none.xml\n"
              "Reason:  Error NULL filedata numBytes==0\n");
    EXPECT_EQ(refusal("empty.xml"),
              "Found on disk: empty.xml\nError reading bytes for: empty.xml\n"
              "Reason:  numBytes==0\n");
    for (const char* name : {"odd.xml", "liar.xml"})
        EXPECT_THAT(refusal(name), EndsWith("Reason:  NULL filedata numBytes==0\n"));
    std::string deep;
    for (int i = 0; i < 50000; ++i)
        deep += "<a>";
    for (const std::string& text :
         {std::string("<r><unclosed></r>"), deep, std::string("<r>\0</r>", 8), std::string("text"),
          std::string("<r a=\"open"), std::string("<r"), std::string("<!-- no element -->"),
          std::string("<?xml version=\"1.0\"?>")}) {
        put(user() + "/bad.xml", text);
        EXPECT_THAT(refusal("bad.xml"), HasSubstr("Failed to parse: bad.xml Error: "))
            << text.substr(0, 20);
    }
}

TEST(XmlAttributes, MissingAndOddValuesReadAsNothing) {
    TiXmlElement e("e");
    e.SetAttribute("n", "12abc");
    e.SetAttribute("empty", "");
    e.SetAttribute("yes", "true");
    e.SetAttribute("almost", "TRUE");
    e.SetAttribute("nan", "nan");
    EXPECT_EQ(xml::readInt(e, "n"), 12);
    EXPECT_EQ(xml::readFloat(e, "n"), 12);
    for (const char* name : {"empty", "missing", "nan", "yes"}) {
        EXPECT_EQ(xml::readInt(e, name), 0) << name;
        EXPECT_EQ(xml::readFloat(e, name), 0) << name;
    }
    EXPECT_TRUE(xml::readBool(e, "yes"));
    EXPECT_FALSE(xml::readBool(e, "almost"));
    EXPECT_FALSE(xml::readBool(e, "missing"));
    EXPECT_EQ(xml::readString(e, "missing"), "");
}

TEST(XmlAttributes, WritesNumbersInFull) {
    TiXmlElement e("e");
    xml::writeFloat(e, "f", 0.1F);
    xml::writeFloat(e, "max", 3.4028235e38F);
    xml::writeInt(e, "i", -7);
    xml::writeBool(e, "b", true);
    EXPECT_EQ(xml::readString(e, "f"), "0.100000");
    EXPECT_THAT(xml::readString(e, "max"), StartsWith("340282346638528859811704183484516925440."));
    EXPECT_EQ(xml::readFloat(e, "max"), 3.4028235e38F);
    EXPECT_EQ(xml::readString(e, "i"), "-7");
    EXPECT_EQ(xml::readString(e, "b"), "true");
}

}  // namespace
}  // namespace bc
