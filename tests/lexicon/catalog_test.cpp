#include "lexicon/pagestore.h"
#include "lexicon/toolcatalog.h"

#include <gtest/gtest.h>

using namespace lexicon;

namespace {
ToolCatalog beispiel()
{
    return ToolCatalog({"Punktspiegelung von Punkten", "2 2 1", "Sinusfunktion", "3 0 4",
                        "Spiegelung an einem Punkt", "2 2 1", "sinusfunktion", "9 9 9",
                        "Gr\xF6\xDF" "en", "11 -1 -1", "Fraktale Kompression", "121 0 0"});
}
}  // namespace

TEST(ToolCatalog, FindsTitlesWithoutRegardToCaseFirstMatchWins)
{
    const ToolCatalog k = beispiel();
    ToolTriple t;
    ASSERT_TRUE(k.suche("SINUSFUNKTION", t));
    EXPECT_EQ(t.nummer, 3);  // the first of the two spellings
    EXPECT_EQ(t.seite, 0);
    EXPECT_EQ(t.punkt, 4);
    ASSERT_TRUE(k.suche("gr\xD6\xDF" "EN", t));  // umlauts fold too
    EXPECT_EQ(t.nummer, 11);
    EXPECT_EQ(t.seite, -1);
    ASSERT_TRUE(k.suche("Fraktale Kompression", t));
    EXPECT_EQ(t.nummer, 121);
}

TEST(ToolCatalog, SeveralTitlesShareOneTriple)
{
    const ToolCatalog k = beispiel();
    ToolTriple a, b;
    ASSERT_TRUE(k.suche("Punktspiegelung von Punkten", a));
    ASSERT_TRUE(k.suche("Spiegelung an einem Punkt", b));
    EXPECT_EQ(a.nummer, b.nummer);
    EXPECT_EQ(a.seite, b.seite);
    EXPECT_EQ(a.punkt, b.punkt);
}

TEST(ToolCatalog, MissIsNoErrorAndNumberLinesAreNotSkipped)
{
    const ToolCatalog k = beispiel();
    ToolTriple t;
    EXPECT_FALSE(k.suche("Gibt es nicht", t));
    // "2 2 1" is found on an odd line; the next line is a title, which is no number.
    EXPECT_EQ(k.indexOf("2 2 1"), 1);
    EXPECT_THROW(k.suche("2 2 1", t), ConversionError);
    // A number line whose next line happens to be numeric gives that line's triple.
    const ToolCatalog k2({"A", "1 2 3", "7 8 9", "4 5 6"});
    ASSERT_TRUE(k2.suche("1 2 3", t));
    EXPECT_EQ(t.nummer, 7);
    EXPECT_EQ(t.punkt, 9);
}

TEST(ToolCatalog, ThirdNumberIsTheRestOfTheLine)
{
    const ToolCatalog k({"X", "5 6 7 8"});
    ToolTriple t;
    EXPECT_THROW(k.suche("X", t), ConversionError);  // "7 8" is no integer
}

TEST(KeywordLine, PageNumberIsReadFromFiveCharacters)
{
    EXPECT_EQ(seitennummerAusStichwort("Parabel\t123"), 123);
    EXPECT_EQ(seitennummerAusStichwort("Parabel\t1234567"), 12345);
    EXPECT_EQ(stichwortText("Parabel\t12"), "Parabel");
    EXPECT_THROW(seitennummerAusStichwort("Parabel\tx1"), ConversionError);
}
