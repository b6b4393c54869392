// The zip reader on archives built byte by byte: what it unpacks, and every kind of archive it
// refuses, each with its own reason, before anything is unpacked.
#include "archive/zip_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "zip_builder.h"

using namespace cv2;
using namespace cv2test;

namespace {

// Collects what an entry unpacks to.
class StringSink : public ArchiveSink {
  public:
    bool Write(const unsigned char* data, size_t count) override {
        text.append(reinterpret_cast<const char*>(data), count);
        return !fail;
    }
    std::string text;
    bool fail = false;
};

class ZipReaderTest : public ::testing::Test {
  protected:
    ZipResult Open(const std::vector<BuiltEntry>& entries, long declared = -1) {
        return OpenBytes(BuildZip(entries, declared));
    }
    ZipResult OpenBytes(const std::string& bytes) {
        m_bytes = bytes;
        m_source = std::make_unique<MemorySource>(
            reinterpret_cast<const unsigned char*>(m_bytes.data()), m_bytes.size());
        return m_reader.Open(*m_source);
    }
    // The first entry's unpacked bytes, or the problem's name.
    ZipResult Extract(size_t index, std::string& text) {
        StringSink sink;
        const ZipResult result = m_reader.Extract(m_reader.Entries().at(index), sink);
        text = sink.text;
        return result;
    }
    std::string m_bytes;
    std::unique_ptr<MemorySource> m_source;
    ZipReader m_reader;
};

// Bytes of sixteen letters in a random order: they deflate to a little over half.
std::string Letters(size_t count) {
    std::string text(count, 'a');
    unsigned seed = 7;
    for (char& c : text) {
        seed = seed * 1103515245u + 12345u;
        c = static_cast<char>('a' + ((seed >> 16) & 15));
    }
    return text;
}

std::string Repeated(const std::string& piece, size_t times) {
    std::string text;
    for (size_t i = 0; i < times; ++i)
        text += piece;
    return text;
}

} // namespace

TEST_F(ZipReaderTest, StoredEntryUnpacksToItsBytes) {
    ASSERT_TRUE(Open({Entry("Blue/blue.skin", "[Skin Info]\r\n")}).Ok());
    ASSERT_EQ(m_reader.Entries().size(), 1u);
    EXPECT_EQ(m_reader.Entries()[0].name, L"Blue/blue.skin");
    std::string text;
    EXPECT_TRUE(Extract(0, text).Ok());
    EXPECT_EQ(text, "[Skin Info]\r\n");
}

TEST_F(ZipReaderTest, DeflatedEntryUnpacksToItsBytesAcrossManyPieces) {
    const std::string data = Letters(300000);
    ASSERT_TRUE(Open({Entry("big.bmp", data, true)}).Ok());
    std::string text;
    EXPECT_TRUE(Extract(0, text).Ok());
    EXPECT_EQ(text, data);
}

TEST_F(ZipReaderTest, DeflatedEntryOfWholePiecesEndsCleanly) {
    const std::string data = Letters(2 * 64 * 1024);
    ASSERT_TRUE(Open({Entry("even.bmp", data, true)}).Ok());
    std::string text;
    EXPECT_TRUE(Extract(0, text).Ok());
    EXPECT_EQ(text, data);
}

TEST_F(ZipReaderTest, EntryWithADataDescriptorUnpacksFromTheDirectorysSizes) {
    BuiltEntry e = Entry("a.skin", Repeated("abc", 100), true);
    e.descriptor = true;
    ASSERT_TRUE(Open({e, Entry("b.txt", "b")}).Ok());
    std::string text;
    EXPECT_TRUE(Extract(0, text).Ok());
    EXPECT_EQ(text, Repeated("abc", 100));
    EXPECT_TRUE(Extract(1, text).Ok());
    EXPECT_EQ(text, "b");
}

TEST_F(ZipReaderTest, FoldersAreListedAndUnpackToNothing) {
    ASSERT_TRUE(Open({Entry("Blue/", ""), Entry("Blue/a.skin", "a")}).Ok());
    EXPECT_TRUE(m_reader.Entries()[0].folder);
    EXPECT_EQ(m_reader.Entries()[0].name, L"Blue");
    std::string text = "x";
    EXPECT_TRUE(Extract(0, text).Ok());
    EXPECT_EQ(text, "");
}

TEST_F(ZipReaderTest, FolderDeclaringASizeUnpacksToNothing) {
    BuiltEntry folder = Entry("Blue/", "");
    folder.size = 512;
    folder.method = 8;
    ASSERT_TRUE(Open({folder, Entry("Blue/a.skin", "a")}).Ok());
    std::string text = "x";
    EXPECT_TRUE(Extract(0, text).Ok());
    EXPECT_EQ(text, "");
}

TEST_F(ZipReaderTest, BackslashesSeparateFoldersAsSlashesDo) {
    ASSERT_TRUE(Open({Entry("Blue\\pics\\a.bmp", "a")}).Ok());
    EXPECT_EQ(m_reader.Entries()[0].name, L"Blue/pics/a.bmp");
}

TEST_F(ZipReaderTest, EmptyArchiveHasNoEntries) {
    EXPECT_TRUE(Open({}).Ok());
    EXPECT_TRUE(m_reader.Entries().empty());
}

TEST_F(ZipReaderTest, CommentAfterTheEndRecordIsSkipped) {
    std::string zip = BuildZip({Entry("a.skin", "a")});
    zip[zip.size() - 2] = 5;
    EXPECT_TRUE(OpenBytes(zip + "hello").Ok());
    EXPECT_EQ(m_reader.Entries().size(), 1u);
}

TEST_F(ZipReaderTest, NamesFlaggedUtf8AreReadAsUtf8) {
    BuiltEntry e = Entry("\xC3\x9C/\xC3\xA9.skin", "x");
    e.flags = 0x800;
    ASSERT_TRUE(Open({e}).Ok());
    EXPECT_EQ(m_reader.Entries()[0].name, L"\u00DC/\u00E9.skin");
}

TEST_F(ZipReaderTest, UnflaggedNamesThatAreNotUtf8AreReadInTheDosCodePage) {
    ASSERT_TRUE(Open({Entry("\x9A\x82.skin", "x")}).Ok());
    EXPECT_EQ(m_reader.Entries()[0].name, L"\u00DC\u00E9.skin");
}

TEST_F(ZipReaderTest, WrongChecksumIsRefusedWithTheEntrysName) {
    BuiltEntry e = Entry("Blue/a.bmp", "picture bytes");
    e.crc = 12345;
    ASSERT_TRUE(Open({e}).Ok());
    std::string text;
    const ZipResult result = Extract(0, text);
    EXPECT_EQ(result.problem, ZipProblem::BadChecksum);
    EXPECT_EQ(result.entry, L"Blue/a.bmp");
}

TEST_F(ZipReaderTest, DeflatedStreamLongerThanItsSizeIsStoppedThere) {
    BuiltEntry e = Entry("a.bmp", Repeated("0123456789", 20000), true);
    e.size = 1000;
    ASSERT_TRUE(Open({e}).Ok());
    std::string text;
    EXPECT_EQ(Extract(0, text).problem, ZipProblem::Damaged);
    EXPECT_LE(text.size(), 64u * 1024u) << "stopped within one piece";
}

TEST_F(ZipReaderTest, DeflatedStreamShorterThanItsSizeIsDamaged) {
    BuiltEntry e = Entry("a.bmp", "short", true);
    e.size = 100;
    ASSERT_TRUE(Open({e}).Ok());
    std::string text;
    EXPECT_EQ(Extract(0, text).problem, ZipProblem::Damaged);
}

TEST_F(ZipReaderTest, CorruptDeflateStreamIsDamaged) {
    BuiltEntry e = Entry("a.bmp", "some text", true);
    e.packed = std::string("\xFF\xFF\xFF\xFF\xFF\xFF", 6);
    ASSERT_TRUE(Open({e}).Ok());
    std::string text;
    EXPECT_EQ(Extract(0, text).problem, ZipProblem::Damaged);
}

TEST_F(ZipReaderTest, DotDotInANameIsRefused) {
    const ZipResult result = Open({Entry("Blue/../../evil.txt", "x")});
    EXPECT_EQ(result.problem, ZipProblem::LeavesFolder);
    EXPECT_EQ(result.entry, L"Blue/../../evil.txt");
    EXPECT_TRUE(m_reader.Entries().empty());
}

TEST_F(ZipReaderTest, DotDotBehindBackslashesIsRefused) {
    EXPECT_EQ(Open({Entry("..\\evil.txt", "x")}).problem, ZipProblem::LeavesFolder);
}

TEST_F(ZipReaderTest, AbsoluteNameIsRefused) {
    EXPECT_EQ(Open({Entry("/etc/evil", "x")}).problem, ZipProblem::AbsolutePath);
}

TEST_F(ZipReaderTest, DriveLetterNameIsRefused) {
    EXPECT_EQ(Open({Entry("C:\\Windows\\evil.dll", "x")}).problem, ZipProblem::AbsolutePath);
}

TEST_F(ZipReaderTest, DeviceNameIsRefused) {
    EXPECT_EQ(Open({Entry("Blue/con.txt", "x")}).problem, ZipProblem::UnfitName);
}

TEST_F(ZipReaderTest, NameLongerThan259CharactersIsRefused) {
    EXPECT_EQ(Open({Entry(std::string(255, 'a') + "/b.bmp", "x")}).problem,
              ZipProblem::NameTooLong);
}

TEST_F(ZipReaderTest, NameOf259CharactersIsTaken) {
    EXPECT_TRUE(Open({Entry(std::string(255, 'a') + ".bmp", "x")}).Ok());
}

TEST_F(ZipReaderTest, SameNameInAnotherCaseIsRefusedAsADuplicate) {
    const ZipResult result = Open({Entry("Blue/a.bmp", "x"), Entry("blue/A.BMP", "y")});
    EXPECT_EQ(result.problem, ZipProblem::DuplicateName);
    EXPECT_EQ(result.entry, L"blue/A.BMP");
}

TEST_F(ZipReaderTest, FileWhereAnotherEntryNeedsAFolderIsRefusedAsADuplicate) {
    EXPECT_EQ(Open({Entry("Blue", "x"), Entry("Blue/a.bmp", "y")}).problem,
              ZipProblem::DuplicateName);
}

TEST_F(ZipReaderTest, MoreThan5000EntriesAreRefused) {
    std::vector<BuiltEntry> entries;
    for (int i = 0; i < 5001; ++i)
        entries.push_back(Entry("f" + std::to_string(i), ""));
    EXPECT_EQ(Open(entries).problem, ZipProblem::TooManyEntries);
}

TEST_F(ZipReaderTest, HundredThousandEntriesAreRefusedAsTooMany) {
    std::vector<BuiltEntry> entries;
    for (int i = 0; i < 100000; ++i)
        entries.push_back(Entry("f" + std::to_string(i), ""));
    // More than 65,535 entries need the 64-bit end record, as every tool writes them.
    EXPECT_EQ(OpenBytes(WithZip64End(BuildZip(entries), 100000)).problem,
              ZipProblem::TooManyEntries);
}

TEST_F(ZipReaderTest, EntriesUnpackingToMoreThan64MegabytesAreRefused) {
    // The sizes the directory declares are enough to refuse it: nothing is unpacked.
    std::vector<BuiltEntry> many;
    for (int i = 0; i < 2; ++i) {
        BuiltEntry part = Entry("part" + std::to_string(i), "", true);
        part.size = 33 << 20;
        part.packed = std::string(200000, 'x');
        many.push_back(part);
    }
    EXPECT_EQ(Open(many).problem, ZipProblem::TooLarge);
}

TEST_F(ZipReaderTest, EntryUnpackingToMoreThan200TimesItsPackedSizeIsRefused) {
    const ZipResult result = Open({Entry("bomb.bmp", std::string(10 << 20, '\0'), true)});
    EXPECT_EQ(result.problem, ZipProblem::RatioTooHigh);
    EXPECT_EQ(result.entry, L"bomb.bmp");
}

TEST_F(ZipReaderTest, FlatColourPictureOfAVgaScreenIsTakenThoughItPacksTightly) {
    // 480x640 pixels of one colour at 32 bits: about 1.2 MB that deflate by about 1,000 to 1.
    ASSERT_TRUE(
        Open({Entry("Blue/background.bmp", std::string(480 * 640 * 4, '\x5a'), true)}).Ok());
    ASSERT_GT(m_reader.Entries()[0].size, 200u * m_reader.Entries()[0].packedSize);
    std::string text;
    EXPECT_TRUE(Extract(0, text).Ok());
    EXPECT_EQ(text.size(), 480u * 640u * 4u);
}

TEST_F(ZipReaderTest, EntryJustOverFourMegabytesIsHeldToTheRatio) {
    EXPECT_EQ(Open({Entry("big.bmp", std::string((4 << 20) + 1, '\0'), true)}).problem,
              ZipProblem::RatioTooHigh);
    EXPECT_TRUE(Open({Entry("big.bmp", std::string(4 << 20, '\0'), true)}).Ok());
}

TEST_F(ZipReaderTest, TruncatedArchiveIsRefusedAsTruncated) {
    const std::string zip = BuildZip({Entry("a.skin", Repeated("skin ", 1000))});
    EXPECT_EQ(OpenBytes(zip.substr(0, zip.size() / 2)).problem, ZipProblem::Truncated);
}

TEST_F(ZipReaderTest, BytesThatAreNoArchiveAreRefused) {
    EXPECT_EQ(OpenBytes("[Skin Info]\r\nName=not a package\r\n").problem, ZipProblem::NotAnArchive);
    EXPECT_EQ(OpenBytes("").problem, ZipProblem::NotAnArchive);
}

TEST_F(ZipReaderTest, EncryptedEntryIsRefused) {
    BuiltEntry e = Entry("Blue/a.skin", "secret");
    e.flags = 1;
    const ZipResult result = Open({e});
    EXPECT_EQ(result.problem, ZipProblem::Encrypted);
    EXPECT_EQ(result.entry, L"Blue/a.skin");
}

TEST_F(ZipReaderTest, Zip64ArchiveIsRefused) {
    EXPECT_EQ(OpenBytes(WithZip64End(BuildZip({Entry("a.skin", "a")}), 1)).problem,
              ZipProblem::Zip64);
}

TEST_F(ZipReaderTest, EntryWithSaturatedSizesIsRefusedAsZip64) {
    BuiltEntry e = Entry("a.skin", "a");
    e.size = 0xFFFFFFFFll;
    EXPECT_EQ(Open({e}).problem, ZipProblem::Zip64);
}

TEST_F(ZipReaderTest, UnknownMethodIsRefused) {
    BuiltEntry e = Entry("a.skin", "a");
    e.method = 12;
    EXPECT_EQ(Open({e}).problem, ZipProblem::UnknownMethod);
}

TEST_F(ZipReaderTest, DirectoryCountBeyondItsRecordsIsDamaged) {
    EXPECT_EQ(Open({Entry("a.skin", "a")}, 2).problem, ZipProblem::Damaged);
}

TEST_F(ZipReaderTest, LocalHeaderNamingAnotherFileIsDamaged) {
    std::string zip = BuildZip({Entry("a.skin", "a")});
    zip[30] = 'b'; // the local header's copy of the name
    EXPECT_EQ(OpenBytes(zip).problem, ZipProblem::Damaged);
}

TEST_F(ZipReaderTest, EntriesSharingTheirBytesAreDamaged) {
    // The second entry's local header lies inside the first entry's data.
    const std::string inner = BuildZip({Entry("b.bmp", "bbbb")});
    const std::string innerHeader = inner.substr(0, 30 + 5 + 4);
    std::string zip = BuildZip({Entry("a.bmp", innerHeader), Entry("b.bmp", "bbbb")});
    // Point the second directory record at the copy inside the first entry.
    const size_t directory = zip.find("PK\x01\x02");
    const size_t second = zip.find("PK\x01\x02", directory + 4);
    const uint32_t inside = 30 + 5;
    for (int k = 0; k < 4; ++k)
        zip[second + 42 + k] = static_cast<char>((inside >> (8 * k)) & 0xFF);
    EXPECT_EQ(OpenBytes(zip).problem, ZipProblem::Damaged);
}

TEST_F(ZipReaderTest, SinkThatCannotTakeTheBytesIsAWriteFailure) {
    ASSERT_TRUE(Open({Entry("a.skin", "abc")}).Ok());
    StringSink sink;
    sink.fail = true;
    EXPECT_EQ(m_reader.Extract(m_reader.Entries()[0], sink).problem, ZipProblem::WriteFailed);
}
