#include "lexicon/pagestore.h"
#include "platform/container.h"
#include "tools/packer.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <unistd.h>

using namespace packer;

namespace {

std::string seite(int nr, const std::string& titel, const std::string& stichwort, const std::string& text)
{
    return "@seite " + std::to_string(nr) + "\n@titel " + titel + "\n@stichwort " + stichwort + "\n" + text + "\n";
}

std::string fehlerText(const std::function<void()>& f)
{
    try {
        f();
    } catch (const PackError& e) {
        return e.what();
    }
    return "";
}

}  // namespace

TEST(Packer, ParsesPagesWithSynonymsAndConvertsToWindows1252)
{
    const auto pages = parsePageSource(
        "// Kommentar\n@seite 7\n@titel Größen\n@stichwort Größe\n@synonym Maß\n#Überschrift\n\nText $p\n\n",
        "daten.txt");
    ASSERT_EQ(pages.size(), 1u);
    EXPECT_EQ(pages[0].number, 7);
    EXPECT_EQ(pages[0].title, "Gr\xF6\xDF" "en");
    ASSERT_EQ(pages[0].keywords.size(), 2u);
    EXPECT_EQ(pages[0].keywords[0], "Gr\xF6\xDF" "e");
    EXPECT_EQ(pages[0].keywords[1], "Ma\xDF");
    // Trailing empty lines go, inner ones stay.
    EXPECT_EQ(pages[0].body, (platform::StringList{"#\xDC" "berschrift", "", "Text $p"}));
}

TEST(Packer, RefusesBadSourcesNamingFileAndLine)
{
    EXPECT_EQ(fehlerText([] { parsePageSource("@seite 3\n@stichwort A\nText\n", "a.txt"); }),
              "a.txt:1: Seite 3 ohne Titel");
    EXPECT_EQ(fehlerText([] { parsePageSource("@seite 3\n@titel A\nText\n", "b.txt"); }),
              "b.txt:1: Seite 3 ohne Stichwort");
    EXPECT_EQ(fehlerText([] { parsePageSource("@seite x3\n", "c.txt"); }), "c.txt:1: ungültige Seitennummer 'x3'");
    EXPECT_EQ(fehlerText([] { parsePageSource(seite(1, "A", "A", "Text ∮"), "d.txt"); }),
              "d.txt:4: Zeichen außerhalb von Windows-1252");
    EXPECT_EQ(fehlerText([] { parsePageSource(seite(1, "A", "A", "[kaputt"), "e.txt"); }),
              "e.txt:4: Zeile beginnt mit '[' (Seitenende)");
    auto doppelt = parsePageSource(seite(5, "A", "A", "x") + seite(5, "B", "B", "y"), "f.txt");
    EXPECT_EQ(fehlerText([&] { buildBlocks(doppelt); }), "f.txt:5: Seitennummer 5 doppelt (auch f.txt:1)");
    auto gleicheStichworte = parsePageSource(seite(1, "A", "Kreis", "x") + seite(2, "B", "Kreis", "y"), "g.txt");
    EXPECT_EQ(fehlerText([&] { buildKeywordList(gleicheStichworte); }),
              "g.txt:5: Stichwort 'Kreis' schon bei Seite 1");
}

TEST(Packer, CatalogueChecksPairs)
{
    EXPECT_EQ(buildCatalog("// c\nSinus\n3 0 4\nKreis\n-1 -1 -1\n", "k.txt"),
              (platform::StringList{"Sinus", "3 0 4", "Kreis", "-1 -1 -1"}));
    EXPECT_EQ(fehlerText([] { buildCatalog("Sinus\n3 0\n", "k.txt"); }),
              "k.txt:2: drei ganze Zahlen mit je einem Leerzeichen erwartet");
    EXPECT_EQ(fehlerText([] { buildCatalog("Sinus\n3 0 4\nKreis\n", "k.txt"); }),
              "k.txt:3: Titel ohne Zeile mit drei Zahlen");
    EXPECT_EQ(fehlerText([] { buildCatalog("&Sinus\n3 0 4\n", "k.txt"); }), "k.txt:1: '&' im Katalogtitel");
    EXPECT_EQ(fehlerText([] { buildCatalog("3 0 4\n3 0 4\n", "k.txt"); }), "k.txt:1: Titel erwartet, Zahlen gefunden");
}

TEST(Packer, KeywordListIsSortedWithUmlautsBesideTheirLetters)
{
    const auto pages = parsePageSource(seite(1, "Z", "Zylinder", "x") + seite(2, "Ä", "Äquator", "x") +
                                           seite(3, "a", "Ableitung", "x") + seite(4, "b", "Basis", "x"),
                                       "s.txt");
    EXPECT_EQ(buildKeywordList(pages), (platform::StringList{"Ableitung\t3", "\xC4quator\t2", "Basis\t4", "Zylinder\t1"}));
}

TEST(PageStore, AddressesPagesAcrossBlocksAndRepeatsTheLastHeadLine)
{
    std::string src;
    for (int n : {0, 1, 99, 100, 101, 150})
        src += seite(n, "Titel " + std::to_string(n), "Wort" + std::to_string(n), "Text der Seite " + std::to_string(n));
    const auto blocks = buildBlocks(parsePageSource(src, "t.txt"));
    ASSERT_EQ(blocks.size(), 2u);
    // Inside: a gap has no content; past the last page the head lines repeat the last real one.
    EXPECT_EQ(blocks[0][2], "-3");
    EXPECT_EQ(blocks[0][3], "-4");
    EXPECT_EQ(blocks[1][51], blocks[1][50]);
    EXPECT_EQ(blocks[1][99], blocks[1][50]);
    EXPECT_EQ(blocks[1].back(), "[#]");

    const auto dir = std::filesystem::temp_directory_path() / ("quorix_pagestore_test_" + std::to_string(::getpid()));
    std::filesystem::create_directories(dir);
    platform::ContainerWriter w;
    for (size_t b = 0; b < blocks.size(); ++b)
        w.addText("10", "t" + std::to_string(b + 1), blocks[b]);
    w.write((dir / "tlexikon.dll").string());

    lexicon::PageStore store(dir.string() + "/");
    EXPECT_EQ(store.letzterBlock(), 2);
    int L = store.kopfzeile(99);
    EXPECT_EQ(store.blocknummer, 1);
    EXPECT_EQ(store.seitenblock[static_cast<size_t>(L)], "[99]");
    EXPECT_EQ(store.seitenblock[static_cast<size_t>(L) + 1], "Titel 99");
    EXPECT_EQ(store.seitenblock[static_cast<size_t>(L) + 2], "\xA7Wort99");
    L = store.kopfzeile(100);
    EXPECT_EQ(store.blocknummer, 2);
    EXPECT_EQ(store.seitenblock[static_cast<size_t>(L)], "[0]");
    EXPECT_EQ(store.seitenblock[static_cast<size_t>(L) + 3], "Text der Seite 100");
    EXPECT_LE(store.kopfzeile(2), -1);
    EXPECT_THROW(store.kopfzeile(250), platform::ResourceError);  // no block 3
}
