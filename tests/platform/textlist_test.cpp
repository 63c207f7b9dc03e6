#include "platform/container.h"
#include "platform/codepage.h"
#include "platform/textlist.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <unistd.h>

using namespace platform;

TEST(TextList, LinesRoundTripThroughZlib)
{
    const StringList lines = {"Parabel\t12", "", "\xE4\xF6\xFC \xBB" "Sinus", "x"};
    const std::string packed = zlibCompress(joinLines(lines));
    EXPECT_EQ(static_cast<unsigned char>(packed[0]), 0x78);  // zlib header
    EXPECT_EQ(splitLines(zlibInflate(packed)), lines);
}

TEST(TextList, InflateGrowsBeyondFirstBuffer)
{
    std::string big(200000, 'a');  // compresses to a few hundred bytes, inflates far past one step
    EXPECT_EQ(zlibInflate(zlibCompress(big)), big);
}

TEST(TextList, CorruptStreamIsRefused)
{
    std::string packed = zlibCompress("Hallo Welt, Hallo Welt");
    packed[packed.size() / 2] ^= 0x55;
    EXPECT_THROW(zlibInflate(packed.substr(0, packed.size() - 3)), ResourceError);
}

TEST(TextList, SplitAcceptsLoneLineFeedAndNoFinalBreak)
{
    EXPECT_EQ(splitLines("a\r\nb\nc"), (StringList{"a", "b", "c"}));
    EXPECT_TRUE(splitLines("").empty());
}

TEST(TextList, CompressedListFileRoundTripAndMissingFile)
{
    const auto dir = std::filesystem::temp_directory_path() / ("quorix_textlist_test_" + std::to_string(::getpid()));
    std::filesystem::create_directories(dir);
    const std::string path = (dir / "mtest.c00").string();
    SaveCompressedList({"1", "2", "-5"}, path);
    StringList back;
    ASSERT_TRUE(LoadCompressedList(back, path));
    EXPECT_EQ(back, (StringList{"1", "2", "-5"}));
    EXPECT_FALSE(std::filesystem::exists(path + ".tmp"));
    EXPECT_FALSE(LoadCompressedList(back, (dir / "fehlt.c00").string()));
    EXPECT_TRUE(back.empty());
}

TEST(Container, WriteReadAndMissingResources)
{
    const auto dir = std::filesystem::temp_directory_path() / ("quorix_container_test_" + std::to_string(::getpid()));
    std::filesystem::create_directories(dir);
    const std::string path = (dir / "tprobe.dll").string();
    ContainerWriter w;
    w.addText("10", "ms", {"Parabel\t3"});
    w.add("Jpeg", "aa", std::string("\xFF\xD8\x00\x01", 4));
    w.write(path);
    EXPECT_EQ(loadTextResource(path, "10", "ms"), (StringList{"Parabel\t3"}));
    EXPECT_EQ(readResource(path, "Jpeg", "aa").size(), 4u);
    EXPECT_TRUE(hasResource(path, "10", "MS"));  // names are not case-sensitive
    EXPECT_THROW(readResource(path, "10", "t7"), ResourceError);
    EXPECT_THROW(readResource((dir / "fehlt.dll").string(), "10", "ms"), ResourceError);
    // one opening, many reads: the same bytes, and a missing entry does not spoil the next read
    ContainerReader r(path);
    EXPECT_EQ(splitLines(zlibInflate(r.read("10", "ms"))), (StringList{"Parabel\t3"}));
    EXPECT_THROW(r.read("10", "t7"), ResourceError);
    EXPECT_EQ(r.read("Jpeg", "aa"), std::string("\xFF\xD8\x00\x01", 4));
    EXPECT_THROW(ContainerReader((dir / "fehlt.dll").string()), ResourceError);
}

TEST(CodePage, Windows1252AndSymbolTables)
{
    EXPECT_EQ(fromCp1252("\x80\xBB\xAB\xA7\x95\xE4"), QString::fromUtf8("€»«§•ä"));
    EXPECT_EQ(toCp1252(QString::fromUtf8("Größe €")), std::string("Gr\xF6\xDF" "e \x80"));
    EXPECT_EQ(toCp1252(QString::fromUtf8("∑")), "?");
    EXPECT_EQ(symbolText("pSa\xA5\xD6"), QString::fromUtf8("πΣα∞√"));
    EXPECT_EQ(symbolToUnicode('D'), QChar(0x0394));
}
