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

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class ResourceManagerTest : public TestFolders {
  protected:
    void zip(const std::vector<ZipBuilder::Member>& members, const std::string& name = "data.zip") {
        put(data() + "/" + name, ZipBuilder::build(members));
    }
    /// Opens the archive that was put and reads a member; "(null)" for a null.
    std::string member(const std::string& name) {
        manager.release();
        manager.addZip("data.zip");
        return bytes(name);
    }
    std::string bytes(const std::string& name) {
        std::size_t size = 0;
        error = false;
        const auto buffer = manager.getBytes(name, size, error);
        if (!buffer)
            return "(null)";
        EXPECT_EQ(buffer[size], '\0');
        return {buffer.get(), size};
    }

    ResourceManager manager;
    bool error = false;
};

TEST_F(ResourceManagerTest, DiskComesBeforeTheArchiveAndTheUserBeforeTheData) {
    zip({{"data/a.txt", "archive a"}, {"data/b.txt", "archive b"}, {"data/c.txt", "archive c"}});
    put(data() + "/data/a.txt", "shipped a");
    put(data() + "/data/b.txt", "shipped b");
    put(user() + "/data/a.txt", "own a");
    EXPECT_EQ(member("data/a.txt"), "own a");
    EXPECT_EQ(member("data/b.txt"), "shipped b");
    EXPECT_EQ(member("data/c.txt"), "archive c");
    EXPECT_EQ(logOf([&] { bytes("data/a.txt"); }), "Found on disk: data/a.txt\n");
    EXPECT_EQ(logOf([&] { bytes("data/c.txt"); }), "NOT Found on disk: data/c.txt\n");
}

TEST_F(ResourceManagerTest, ArchivesAreSearchedInTheirOrderAndEntriesInTheirs) {
    zip({{"x", "first"}, {"x", "second"}}, "one.zip");
    zip({{"x", "other"}, {"y", "only there"}}, "two.zip");
    manager.addZip("missing.zip");
    manager.addZip("one.zip");
    manager.addZip("two.zip");
    EXPECT_EQ(bytes("x"), "first");
    EXPECT_EQ(bytes("y"), "only there");
    manager.release();
    EXPECT_EQ(bytes("x"), "(null)");
    EXPECT_FALSE(manager.addZip(""));
    EXPECT_TRUE(manager.addZip("missing.zip"));
}

TEST_F(ResourceManagerTest, MembersAreStoredOrDeflatedAndNamedByEitherSlash) {
    std::string noise;
    for (unsigned i = 0; i < 200000; ++i)
        noise += static_cast<char>((i * i) >> 7);
    zip({{"data\\maps\\m.xml", noise, 8, -1, -1, "local extra", "central"},
         {"stored", noise},
         {"empty", ""},
         {"emptydeflated", "", 8}});
    EXPECT_EQ(member("data/maps/m.xml"), noise);
    EXPECT_EQ(member("stored"), noise);
    EXPECT_EQ(member("empty"), "");
    EXPECT_EQ(member("emptydeflated"), "");
    EXPECT_EQ(member("Stored"), "(null)") << "letter case counts";
    EXPECT_EQ(member("data\\maps\\m.xml"), "(null)");
}

TEST_F(ResourceManagerTest, MissingNameIsToldInThreeLines) {
    EXPECT_EQ(logOf([&] { bytes("data/none.xml"); }),
              "NOT Found on disk: data/none.xml\nNULL ZipResultsBundle\n"
              "NULL PTR getting Zip file bytes\n");
    EXPECT_TRUE(error);
    TiXmlDocument document;
    EXPECT_THAT(logOf([&] { EXPECT_FALSE(manager.loadXML(document, "data/none.xml")); }),
                EndsWith("Error reading bytes for: data/none.xml\n"
                         "Reason:  Error NULL filedata numBytes==0\n"));
    EXPECT_EQ(manager.loadText("data/none.xml"), "");
}

TEST_F(ResourceManagerTest, EmptyFileIsFoundButIsNoXml) {
    put(user() + "/empty.xml", "");
    TiXmlDocument document;
    EXPECT_EQ(
        logOf([&] { EXPECT_FALSE(manager.loadXML(document, "empty.xml")); }),
        "Found on disk: empty.xml\nError reading bytes for: empty.xml\nReason:  numBytes==0\n");
}

TEST_F(ResourceManagerTest, UnknownMethodIsANullWithoutAMessage) {
    zip({{"odd.xml", "x", 12}});
    member("odd.xml");
    TiXmlDocument document;
    EXPECT_EQ(logOf([&] { EXPECT_FALSE(manager.loadXML(document, "odd.xml")); }),
              "NOT Found on disk: odd.xml\nError reading bytes for: odd.xml\n"
              "Reason:  NULL filedata numBytes==0\n");
    EXPECT_FALSE(error);
}

TEST_F(ResourceManagerTest, OpeningTellsWhatItFound) {
    zip({{"a", "b"}});
    const std::string rule = std::string(61, '-') + "\n";
    EXPECT_EQ(logOf([&] { manager.addZip("data.zip"); }),
              "valid zip file\nfound central directory\n" + rule +
                  "Type  Name  CompressedSize  UncompressedSize  CRC  Method  Offset  DOffset\n" +
                  rule);
    EXPECT_EQ(logOf([&] { manager.addZip("none.zip"); }), "couldn't open file, exiting\n");
    put(data() + "/text.zip", "no archive at all");
    EXPECT_EQ(logOf([&] { manager.addZip("text.zip"); }), "file is not a valid zip, exiting\n");
    put(data() + "/cut.zip", "PK\3\4 and then nothing");
    EXPECT_EQ(logOf([&] { manager.addZip("cut.zip"); }),
              "valid zip file\ncouldn't find central directory, exiting\n");
    EXPECT_EQ(bytes("a"), "b") << "the bad ones are in nobody's way";
}

TEST_F(ResourceManagerTest, MembersThatLieAreRefused) {
    const std::string text(3000, 'x');
    const std::vector<ZipBuilder::Member> liars = {{"more than it says", text, 8, 2999},
                                                   {"less than it says", text, 8, 3001},
                                                   {"stored less than it says", text, 0, 1 << 20},
                                                   {"deflated 200 MB", text, 8, 200 << 20},
                                                   {"above the limit", text, 8, (256LL << 20) + 1},
                                                   {"four gigabytes", text, 8, 0xFFFFFFFF},
                                                   {"behind the end", text, 0, -1, 0x7FFFFFF0},
                                                   {"in the middle of nowhere", text, 0, -1, 100}};
    zip(liars);
    for (const ZipBuilder::Member& m : liars) {
        const std::string log = logOf([&] { EXPECT_EQ(member(m.name), "(null)") << m.name; });
        EXPECT_THAT(log, HasSubstr("ZipFile::getBytes(): ")) << m.name;
    }
}

TEST_F(ResourceManagerTest, DamagedArchivesNeverCrash) {
    std::string noise;
    for (unsigned i = 0; i < 600; ++i)
        noise += static_cast<char>((i * i) >> 3);
    const std::string whole = ZipBuilder::build({{"a", noise, 8}, {"b", "stored"}});
    // Every length, and every byte turned over: what is still found is right or null.
    const auto check = [&](const std::string& archive) {
        put(data() + "/data.zip", archive);
        logOf([&] {
            const std::string b = member("b");
            EXPECT_TRUE(b == "(null)" || b.size() == 6) << b.size();
            bytes("a");
        });
    };
    for (std::size_t n = 0; n < whole.size(); n += 3)
        check(whole.substr(0, n));
    const std::size_t directory = whole.find("PK\1\2");
    for (std::size_t i = 0; i < whole.size(); i += i < directory ? 5 : 1) {
        std::string damaged = whole;
        damaged[i] = static_cast<char>(~damaged[i]);
        if (i < directory || i >= directory + 24)  // a size of b turned over may still be true
            check(damaged);
    }
}

TEST_F(ResourceManagerTest, EntriesBeforeADirectoryThatIsCutOffStay) {
    std::string archive = ZipBuilder::build({{"a", "first"}, {"b", "second"}});
    archive.resize(archive.rfind("PK\1\2") + 20);
    put(data() + "/data.zip", archive);
    EXPECT_THAT(logOf([&] { EXPECT_EQ(member("a"), "first"); }), HasSubstr("cut off"));
    EXPECT_EQ(bytes("b"), "(null)");
}

TEST_F(ResourceManagerTest, XmlIsReadFromDiskAndArchive) {
    zip({{"data/z.xml", "<z n='3'/>", 8}});
    put(user() + "/d.xml", "<?xml version=\"1.0\"?><d><!-- x --><e v=\"1,2\"/></d>");
    member("data/z.xml");
    TiXmlDocument fromZip;
    ASSERT_TRUE(manager.loadXML(fromZip, "data/z.xml"));
    EXPECT_EQ(xml::readInt(*fromZip.RootElement(), "n"), 3);
    TiXmlDocument fromDisk;
    ASSERT_TRUE(manager.loadXML(fromDisk, "d.xml"));
    EXPECT_TRUE(xml::has(*fromDisk.RootElement()->FirstChildElement(), "v"));
}

TEST_F(ResourceManagerTest, BadXmlIsRefusedWithAReason) {
    std::string deep;
    for (int i = 0; i < 50000; ++i)
        deep += "<a>";
    for (const std::string& text :
         {std::string("<r><unclosed></r>"), deep, std::string("<r>\0</r>", 8), std::string("text"),
          std::string("<r a=\"open"), std::string("<r"), std::string("<!-- no element -->"),
          std::string("<?xml version=\"1.0\"?>")}) {
        put(user() + "/bad.xml", text);
        TiXmlDocument document;
        EXPECT_THAT(logOf([&] { EXPECT_FALSE(manager.loadXML(document, "bad.xml")); }),
                    HasSubstr("Failed to parse: bad.xml Error: "))
            << text.substr(0, 20);
    }
}

// A first byte that claims three more at the very end of the text, and inside a value.
TEST_F(ResourceManagerTest, BrokenUtf8StaysInsideTheText) {
    put(user() + "/u.xml", "<?xml version=\"1.0\"?><r a=\"\xF0\" b=\"2\">\xE4</r>\xF0");
    TiXmlDocument document;
    ASSERT_TRUE(manager.loadXML(document, "u.xml"));
    EXPECT_EQ(xml::readInt(*document.RootElement(), "b"), 2);
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
