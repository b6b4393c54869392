// The zip writer: what it writes reads back through the reader entry for entry.
#include "archive/zip_writer.h"

#include <gtest/gtest.h>

#include <string>

#include "archive/zip_reader.h"

using namespace cv2;

namespace {

class StringSink : public ArchiveSink {
  public:
    bool Write(const unsigned char* data, size_t count) override {
        if (failAfter >= 0 && static_cast<long>(text.size() + count) > failAfter)
            return false;
        text.append(reinterpret_cast<const char*>(data), count);
        return true;
    }
    std::string text;
    long failAfter = -1;
};

const unsigned char* Data(const std::string& text) {
    return reinterpret_cast<const unsigned char*>(text.data());
}

struct ReadBack {
    ZipResult result;
    std::vector<ZipEntry> entries;
    std::vector<std::string> texts;
};

ReadBack Read(const std::string& zip) {
    MemorySource source(Data(zip), zip.size());
    ZipReader reader;
    ReadBack back;
    back.result = reader.Open(source);
    back.entries = reader.Entries();
    for (const ZipEntry& e : back.entries) {
        StringSink sink;
        const ZipResult r = reader.Extract(e, sink);
        back.texts.push_back(r.Ok() ? sink.text : "<problem>");
    }
    return back;
}

} // namespace

TEST(ZipWriter, WrittenArchiveReadsBackEntryForEntry) {
    StringSink sink;
    ZipWriter zip(sink, DosTimeStamp(0));
    const std::string skin = "[Skin Info]\r\nName=Blue\r\n";
    // Sixteen letters in a random order: deflated to about half, within the reader's ratio.
    std::string picture;
    unsigned seed = 3;
    for (int i = 0; i < 100000; ++i) {
        seed = seed * 1103515245u + 12345u;
        picture += static_cast<char>('a' + ((seed >> 16) & 15));
    }
    ASSERT_TRUE(zip.AddFolder(L"Blue"));
    ASSERT_TRUE(zip.AddFile(L"Blue/blue.skin", Data(skin), skin.size()));
    ASSERT_TRUE(zip.AddFile(L"Blue/bar.bmp", Data(picture), picture.size()));
    ASSERT_TRUE(zip.AddFile(L"Blue/empty.wav", nullptr, 0));
    ASSERT_TRUE(zip.Finish());
    const ReadBack back = Read(sink.text);
    ASSERT_TRUE(back.result.Ok());
    ASSERT_EQ(back.entries.size(), 4u);
    EXPECT_TRUE(back.entries[0].folder);
    EXPECT_EQ(back.entries[1].name, L"Blue/blue.skin");
    EXPECT_EQ(back.texts[1], skin);
    EXPECT_EQ(back.texts[2], picture);
    EXPECT_EQ(back.entries[2].method, 8) << "deflated: it is smaller so";
    EXPECT_EQ(back.texts[3], "");
}

TEST(ZipWriter, BytesThatDoNotShrinkAreStored) {
    StringSink sink;
    ZipWriter zip(sink, DosTimeStamp(0));
    const std::string noise = "\x8f\x13\xa2";
    ASSERT_TRUE(zip.AddFile(L"n.bin", Data(noise), noise.size()));
    ASSERT_TRUE(zip.Finish());
    const ReadBack back = Read(sink.text);
    ASSERT_EQ(back.entries.size(), 1u);
    EXPECT_EQ(back.entries[0].method, 0);
    EXPECT_EQ(back.texts[0], noise);
}

TEST(ZipWriter, NamesBeyondAsciiReadBackTheSame) {
    StringSink sink;
    ZipWriter zip(sink, DosTimeStamp(0));
    ASSERT_TRUE(zip.AddFile(L"Th\u00E8me/\u00E9t\u00E9.bmp", Data("x"), 1));
    ASSERT_TRUE(zip.Finish());
    const ReadBack back = Read(sink.text);
    ASSERT_EQ(back.entries.size(), 1u);
    EXPECT_EQ(back.entries[0].name, L"Th\u00E8me/\u00E9t\u00E9.bmp");
}

TEST(ZipWriter, SinkThatFailsStopsEveryLaterStep) {
    StringSink sink;
    sink.failAfter = 40;
    ZipWriter zip(sink, DosTimeStamp(0));
    EXPECT_FALSE(zip.AddFile(L"a/long enough name.skin", Data("abc"), 3));
    EXPECT_FALSE(zip.AddFile(L"b", Data("b"), 1));
    EXPECT_FALSE(zip.Finish());
}

TEST(ZipWriter, TimeStampIsTheDosFormOfLocalTime) {
    std::tm when{};
    when.tm_year = 2024 - 1900;
    when.tm_mon = 2;
    when.tm_mday = 15;
    when.tm_hour = 13;
    when.tm_min = 45;
    when.tm_sec = 31;
    when.tm_isdst = -1;
    const uint32_t stamp = DosTimeStamp(std::mktime(&when));
    EXPECT_EQ(stamp >> 16, (44u << 9) | (3u << 5) | 15u);
    EXPECT_EQ(stamp & 0xFFFF, (13u << 11) | (45u << 5) | 15u);
}
