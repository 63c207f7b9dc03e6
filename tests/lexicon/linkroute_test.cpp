#include "lexicon/linkroute.h"

#include <gtest/gtest.h>

using namespace lexicon;

namespace {

LinkEintrag link(int x1, int y1, int x2, const std::string& t)
{
    LinkEintrag l;
    l.x1 = static_cast<std::int16_t>(x1);
    l.y1 = static_cast<std::int16_t>(y1);
    l.x2 = static_cast<std::int16_t>(x2);
    l.text = t;
    return l;
}

const platform::StringList lb1 = {"Ableitung\t5", "Kreis\t7", "Kreisfl\xE4" "che\t8", "ableitung (Physik)\t9"};
const ToolCatalog katalog({"Sinusfunktion", "3 0 4", "Enigma", "70 -1 -1"});

}  // namespace

TEST(LinkHit, BordersAreStrict)
{
    const std::vector<LinkEintrag> l = {link(10, 20, 50, "Kreis")};
    EXPECT_EQ(linkAnPunkt(l, 11, 21), 0);
    EXPECT_EQ(linkAnPunkt(l, 49, 39), 0);
    EXPECT_EQ(linkAnPunkt(l, 10, 25), -1);
    EXPECT_EQ(linkAnPunkt(l, 50, 25), -1);
    EXPECT_EQ(linkAnPunkt(l, 30, 40), -1);
}

TEST(LinkClick, KeywordLinksMatchByPrefixAndLoweredFirstLetter)
{
    const std::vector<LinkEintrag> l = {link(0, 0, 100, "Kreis"), link(0, 30, 100, "Kreisfl"),
                                        link(0, 60, 100, "Gibtsnicht"), link(0, 90, 100, "Ableitung (P")};
    auto a = klickAuswerten(l, 5, 5, lb1, katalog);
    EXPECT_EQ(a.art, KlickAktion::Stichwort);
    EXPECT_EQ(a.index, 1);  // the first item that begins with the text
    a = klickAuswerten(l, 5, 35, lb1, katalog);
    EXPECT_EQ(a.index, 2);
    a = klickAuswerten(l, 5, 65, lb1, katalog);
    EXPECT_EQ(a.art, KlickAktion::Nichts);  // a dead link does nothing
    a = klickAuswerten(l, 5, 95, lb1, katalog);
    EXPECT_EQ(a.index, 3);  // "ableitung (P" through the lowered first letter
}

TEST(LinkClick, WebAddressRuleLooksAtTheLastLinkWhenNothingIsHit)
{
    const std::vector<LinkEintrag> l = {link(0, 0, 100, "Kreis"), link(0, 30, 100, "http://example.org")};
    auto a = klickAuswerten(l, 300, 300, lb1, katalog);
    EXPECT_EQ(a.url, "http://example.org");
    EXPECT_EQ(a.art, KlickAktion::Nichts);
    a = klickAuswerten(l, 5, 5, lb1, katalog);
    EXPECT_TRUE(a.url.empty());
    EXPECT_EQ(a.art, KlickAktion::Stichwort);
    EXPECT_EQ(klickAuswerten({}, 5, 5, lb1, katalog).art, KlickAktion::Nichts);
    EXPECT_TRUE(klickAuswerten({}, 5, 5, lb1, katalog).url.empty());
}

TEST(LinkClick, ToolLinksGoThroughTheCatalogueThenTheMarkerKinds)
{
    auto klick = [](const std::string& text) {
        return klickAuswerten({link(0, 0, 100, text)}, 5, 5, lb1, katalog);
    };
    auto a = klick("\xBBSinusfunktion");
    EXPECT_EQ(a.art, KlickAktion::Werkzeug);
    EXPECT_EQ(a.werkzeug.nummer, 3);
    EXPECT_EQ(a.werkzeug.punkt, 4);
    EXPECT_EQ(a.text, "Sinusfunktion");
    a = klick("\xBB" "F:X^2-1\xAB");
    EXPECT_EQ(a.art, KlickAktion::Funktionsplot);
    EXPECT_EQ(a.wert, "X^2-1");
    EXPECT_EQ(klick("\xBB" "C:kegel\xAB").art, KlickAktion::Zusatzbild);
    a = klick("\xBBT:#handbuch\xAB");
    EXPECT_EQ(a.art, KlickAktion::Pdf);
    EXPECT_EQ(a.wert, "handbuch");
    EXPECT_EQ(klick("\xBBT:primzahlen\xAB").art, KlickAktion::Tabelle);
    a = klick("\xBBG:#-p 3\xAB");
    EXPECT_EQ(a.art, KlickAktion::Begleitprogramm);
    EXPECT_EQ(a.wert, "-p 3");
    EXPECT_EQ(klick("\xBBG:mond\xAB").art, KlickAktion::GifFenster);
    EXPECT_EQ(klick("\xBBV: weiter\xAB").art, KlickAktion::Weiter);
    EXPECT_EQ(klick("\xBBR: zur\xFC" "ck\xAB").art, KlickAktion::Zurueck);
    a = klick("\xBB" "B:Kreisfl\xE4" "che\xAB");
    EXPECT_EQ(a.art, KlickAktion::Lexikonrechnung);
    EXPECT_EQ(a.wert, "Kreisfl\xE4" "che");
    EXPECT_EQ(klick("\xBBUnbekanntes Werkzeug").art, KlickAktion::Nichts);
}

TEST(PlotLink, FunctionsCurvesAndSurfaces)
{
    auto p = plotAuftragAusWert("X^2;SIN(X)");
    EXPECT_FALSE(p.flaeche);
    EXPECT_EQ(p.plotliste, (platform::StringList{" ", "#F", "X^2", "#F", "SIN(X)"}));
    p = plotAuftragAusWert("~kCOS(X)|SIN(2*X)");
    EXPECT_EQ(p.feldX, "COS(X)");
    EXPECT_EQ(p.feldY, "SIN(2*X)");
    EXPECT_EQ(p.plotliste, (platform::StringList{" ", "#K", "", "-3.1415926536", "3.1415926536", "0.01", "0", "0"}));
    EXPECT_EQ(p.skalierung, 1);
    p = plotAuftragAusWert("~;2SIN(3*X)");
    EXPECT_EQ(p.feldX, "SIN(3*X)");
    EXPECT_EQ(p.plotliste[3], "-6.2831853072");
    p = plotAuftragAusWert("~~X");
    ASSERT_EQ(p.plotliste.size(), 15u);
    EXPECT_EQ(p.plotliste[8], "#W");
    p = plotAuftragAusWert("Ksattel");
    EXPECT_TRUE(p.flaeche);
    EXPECT_TRUE(p.kurvenmodus);
    EXPECT_EQ(p.flaechenname, "sattel");
}

TEST(LinkClick, BlankAfterTheMarkerColonIsNotPartOfTheValue)
{
    const auto a = klickAuswerten({link(0, 0, 100, "\xBB" "F: ~kCOS(X)|SIN(X)\xAB")}, 5, 5, lb1, katalog);
    EXPECT_EQ(a.art, KlickAktion::Funktionsplot);
    EXPECT_EQ(a.wert, "~kCOS(X)|SIN(X)");
    EXPECT_EQ(plotAuftragAusWert(a.wert).feldY, "SIN(X)");
}
