#include "lexicon/pagelayout.h"
#include "lexicon/pagestore.h"

#include <gtest/gtest.h>

using namespace lexicon;
using platform::Picture;

namespace {

// A block holding one page: marker line at 0, title, keyword line, then the body.
platform::StringList block(const platform::StringList& body)
{
    platform::StringList b = {"[0]", "Testseite", "\xA7Test"};
    b.insert(b.end(), body.begin(), body.end());
    b.push_back("[#]");
    return b;
}

struct Fixture {
    Picture bild{600, 700};
    platform::Canvas canvas{bild};
    std::array<Picture, 5> marker{Picture(16, 16), Picture(16, 16), Picture(16, 16), Picture(16, 16), Picture(16, 16)};
    SeitenEinstellungen e;

    SeitenErgebnis male(const platform::StringList& body, int breite = 600)
    {
        SeitenMaler m(canvas, e, marker, {});
        return m.maleSeite(block(body), 0, breite, false);
    }
    int breite(const std::string& s)
    {
        canvas.setFontName(e.schrift);
        canvas.setFontSize(e.lexikonschrift);
        canvas.setFontStyle(0);
        return canvas.textWidth(s);
    }
    // Counts pixels in a rectangle that satisfy a colour predicate.
    template <class P>
    int zaehle(int x1, int y1, int x2, int y2, P p)
    {
        int n = 0;
        for (int y = std::max(0, y1); y < y2; ++y)
            for (int x = std::max(0, x1); x < x2; ++x)
                n += p(bild.pixel(x, y)) ? 1 : 0;
        return n;
    }
};

bool roetlich(platform::TColor c) { return platform::redOf(c) > 100 && platform::greenOf(c) < 60 && platform::blueOf(c) < 60; }
bool tiefblau(platform::TColor c) { return platform::blueOf(c) > 200 && platform::redOf(c) < 80 && platform::greenOf(c) < 80; }

}  // namespace

TEST(PageLayout, LinkRectanglesFollowTheTextCursor)
{
    Fixture f;
    const auto erg = f.male({"Ein $*Kreis$> und $<Radius$> hier"});
    EXPECT_EQ(erg.titel, "Testseite");
    ASSERT_EQ(erg.links.size(), 2u);
    const int x0 = 20 - 4;
    EXPECT_EQ(erg.links[0].text, "Kreis");
    EXPECT_EQ(erg.links[0].x1, x0 + f.breite("Ein ") - 1);
    EXPECT_EQ(erg.links[0].y1, -2 - 2);
    EXPECT_EQ(erg.links[0].x2, x0 + f.breite("Ein ") + 1 + f.breite("Kreis"));
    EXPECT_EQ(erg.links[1].text, "Radius");
    EXPECT_EQ(erg.links[1].x1, x0 + f.breite("Ein ") + f.breite("Kreis") + f.breite(" und ") - 1);
}

TEST(PageLayout, MarkerLinksDoNotAdvanceAndGetFixedWidth)
{
    Fixture f;
    const auto erg = f.male({"$*\xBB" "F:X^2\xAB$>$*Kreis$>", "$*\xBB" "V: weiter\xAB$>"});
    ASSERT_EQ(erg.links.size(), 3u);
    EXPECT_EQ(erg.links[0].x1, erg.links[1].x1);             // the marker took no room
    EXPECT_EQ(erg.links[0].x2, erg.links[0].x1 + 1 + 41);    // kinds B, C, F, G: 41 wide
    EXPECT_EQ(erg.links[2].x2, 20 - 4 + 1 + f.breite("\xBBV: weiter\xAB"));  // V: the whole text
    EXPECT_EQ(erg.links[2].y1, erg.links[0].y1 + 18);        // next line
}

TEST(PageLayout, TabStopsScaleWithTheFontButTheDefaultTabZeroDoesNot)
{
    Fixture f;
    f.e.lexikonschrift = 12;
    auto erg = f.male({"$3$*Kreis$>", "$0$*Kreis$>"});
    ASSERT_EQ(erg.links.size(), 2u);
    EXPECT_EQ(erg.links[0].x1, 20 + 12 * 5 * 4 - 1);
    EXPECT_EQ(erg.links[1].x1, 20 + 200 - 1);
    erg = f.male({"!0150", "!100", "$0$*Kreis$>", "$1$*Kreis$>"});
    ASSERT_EQ(erg.links.size(), 2u);
    EXPECT_EQ(erg.links[0].x1, 20 + 180 - 1);
    EXPECT_EQ(erg.links[1].x1, 20 + 120 - 1);
}

TEST(PageLayout, OnlyTheFirst120LinksAreActive)
{
    Fixture f;
    platform::StringList body;
    for (int z = 0; z < 25; ++z)
        body.push_back("$*A$> $*B$> $*C$> $*D$> $*E$>");
    const auto erg = f.male(body);
    EXPECT_EQ(erg.links.size(), 120u);
    EXPECT_EQ(erg.links.back().text, "E");
    EXPECT_EQ(erg.links.back().y1, erg.links.front().y1 + 23 * 18);  // the 24th line holds the last ones
}

TEST(PageLayout, WrapKeepsCrossReferencesWholeAndHangsAtTabZero)
{
    Fixture f;
    const std::string lang =
        "Dies ist ein langer Satz mit einem $<sehr langen Querverweis$> in der Mitte, der bei schmaler "
        "Seite auf mehrere Zeilen verteilt werden muss.";
    const auto erg = f.male({lang}, 300);
    ASSERT_EQ(erg.links.size(), 1u);
    EXPECT_EQ(erg.links[0].text, "sehr langen Querverweis");
    EXPECT_GE(erg.yEnde, -2 + 4 * 18);  // at least four lines
    // A line with "$0" wraps with its continuation lines at tabstopp[0].
    const auto erg2 = f.male({"$0Ein Text, der hinter dem Tabulator beginnt und so lang ist, dass er umbrechen "
                              "muss, und dann kommt noch ein $*Kreis$> am Ende"},
                             420);
    ASSERT_EQ(erg2.links.size(), 1u);
    EXPECT_GE(erg2.links[0].x1, 20 + 200 - 4);
    EXPECT_GT(erg2.links[0].y1, 0);
}

TEST(PageLayout, FitTestCountsSymbolCharactersAndDropsMarkerRuns)
{
    Fixture f;
    SeitenMaler m(f.canvas, f.e, f.marker, {});
    m.reset(200, false);
    EXPECT_TRUE(m.passt("kurz $p"));
    EXPECT_FALSE(m.passt("ein Text der viel zu lang ist fuer zweihundert Pixel Breite"));
    // A single word that can't be wrapped counts as fitting.
    EXPECT_TRUE(m.passt("Donaudampfschifffahrtsgesellschaftskapitaensmuetze und"));
    // The marker run of an F: link doesn't count.
    EXPECT_TRUE(m.passt("$*\xBB" "F:X^2+2*X+1+3*X^3+4*X^4+5*X^5+6*X^6\xAB$>kurz"));
    EXPECT_EQ(m.startx, 0);
    m.passt("$0abc");
    EXPECT_EQ(m.startx, 200);
}

TEST(PageLayout, CrossReferenceColourFollowsQuervAndHeadingsStayBlue)
{
    Fixture an;
    auto erg = an.male({"$<Querverweis$>"});
    ASSERT_EQ(erg.links.size(), 1u);
    const auto& l = erg.links[0];
    EXPECT_GT(an.zaehle(l.x1, 0, l.x2, 16, roetlich), 10);

    Fixture aus;
    aus.e.querv = false;
    erg = aus.male({"$<Querverweis$>"});
    ASSERT_EQ(erg.links.size(), 1u);  // still clickable
    EXPECT_EQ(aus.zaehle(erg.links[0].x1, 0, erg.links[0].x2, 16, roetlich), 0);

    Fixture kopf;
    erg = kopf.male({"#Kopf $*Kreis$>"});
    ASSERT_EQ(erg.links.size(), 1u);
    const auto& k = erg.links[0];
    EXPECT_GT(kopf.zaehle(k.x1, k.y1, k.x2, k.y1 + 20, tiefblau), 10);
}

TEST(PageLayout, InteractivePartAndUnpaintedLines)
{
    Fixture f;
    const auto erg = f.male({"\xA7versteckt", "]intern", "Text", "]\xA7 Interaktiv", "4", " Periode eines Bruchs",
                             " Z\xE4hler", "  :Nenner  "});
    EXPECT_TRUE(erg.interaktiv.vorhanden);
    EXPECT_EQ(erg.interaktiv.aktivnummer, 4);
    EXPECT_EQ(erg.interaktiv.l10, "Periode eines Bruchs");
    EXPECT_EQ(erg.interaktiv.l2, "Z\xE4hler");
    EXPECT_EQ(erg.interaktiv.l3, "Nenner");
    EXPECT_EQ(erg.yEnde, -2 + 18);  // only "Text" took a line
}

TEST(PageLayout, EmptyPageAndBrokenNumbers)
{
    Fixture f;
    SeitenMaler m(f.canvas, f.e, f.marker, {});
    EXPECT_TRUE(m.maleSeite(block({"Text"}), -1, 600, false).titel.empty());
    EXPECT_THROW(f.male({"!abc"}), ConversionError);
}

TEST(PageLayout, CrossReferenceShieldIsReversible)
{
    const std::string s = "a $<b c$> d $<e $<f g$> h$> i";
    const std::string geschuetzt = querverweiseSchuetzen(s, true);
    EXPECT_EQ(geschuetzt, "a $<b\xA2" "c$> d $<e\xA2$<f\xA2g$>\xA2h$> i");
    EXPECT_EQ(querverweiseSchuetzen(geschuetzt, false), s);
}
