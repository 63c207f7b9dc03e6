// The Mühle engine against facts of the board game and hand-worked positions.
#include "games/muehle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace muehle;

namespace {

Stellung aus(const std::string& text)
{
    Stellung s;
    std::string fehler;
    EXPECT_TRUE(stellungAusText(text, s, fehler)) << text << ": " << fehler;
    return s;
}

int anzahlMitSchlag(const Zugliste& l)
{
    return static_cast<int>(std::count_if(l.begin(), l.end(), [](const Zug& z) { return z.schlag != kKein; }));
}

}  // namespace

// The board: 24 points, 32 lines, corners of degree 2, outer edge middles 3, cross of the
// middle square 4; every point lies on exactly two of the 16 mills.
TEST(MuehleBrett, TablesDescribeTheBoard)
{
    int grad[5] = {};
    int kanten = 0;
    for (int p = 0; p < kPunkte; ++p) {
        int g = 0;
        for (int n : nachbarn()[p])
            if (n != kKein) {
                ++g;
                // symmetric and along one axis
                const auto& r = nachbarn()[n];
                EXPECT_NE(std::find(r.begin(), r.end(), p), r.end()) << kPunktnamen[p];
                EXPECT_TRUE(kPunktX[p] == kPunktX[n] || kPunktY[p] == kPunktY[n]);
            }
        ++grad[g];
        kanten += g;
    }
    EXPECT_EQ(kanten / 2, 32);
    EXPECT_EQ(grad[2], 12);
    EXPECT_EQ(grad[3], 8);
    EXPECT_EQ(grad[4], 4);
    // D6 has all four: right F6, down D5, left B6, up D7
    EXPECT_EQ(nachbarn()[4], (std::array<int, 4>{5, 7, 3, 1}));
    for (int p = 0; p < kPunkte; ++p) {
        std::set<int> partner;
        for (const auto& paar : muehlenDurch()[p])
            for (int q : paar)
                partner.insert(q);
        EXPECT_EQ(partner.size(), 4u) << kPunktnamen[p];
    }
    ASSERT_EQ(gabeln().size(), 97u);
    EXPECT_EQ(gabeln().back(), (std::array<int, 5>{3, 1, 4, 5, 7}));
    EXPECT_NE(std::find(gabeln().begin(), gabeln().end(), std::array<int, 5>{1, 3, 4, 5, 7}), gabeln().end());
    EXPECT_EQ(punktNachName("d6"), 4);
    EXPECT_EQ(punktNachName("H1"), -1);
}

TEST(MuehleZuege, CountsForKnownPositions)
{
    // Placing on an empty board: every point.
    EXPECT_EQ(ZugErzeugen(startstellung(), 1).size(), 24u);
    // o A7 D7 to place, x holds the closed mill B6 D6 F6 and a loose D1: 18 empty points, the
    // mill at G7 may only take D1.
    Stellung s = aus("oo.xxx................x.:5,7");
    Zugliste l = ZugErzeugen(s, 2);
    EXPECT_EQ(l.size(), 18u);
    ASSERT_EQ(anzahlMitSchlag(l), 1);
    const Zug muehle = *std::find_if(l.begin(), l.end(), [](const Zug& z) { return z.schlag != kKein; });
    EXPECT_EQ(muehle, (Zug{kKein, 2, 22}));
    // Two loose stones: the closing move comes twice.
    s = aus("oo.xxx...x............x.:4,7");
    l = ZugErzeugen(s, 2);
    EXPECT_EQ(l.size(), 16u + 2u);
    EXPECT_EQ(anzahlMitSchlag(l), 2);
    // All foreign stones in mills: the mill is closed without a capture.
    s = aus("oo.xxx..................:6,7");
    l = ZugErzeugen(s, 2);
    EXPECT_EQ(l.size(), 19u);
    EXPECT_EQ(anzahlMitSchlag(l), 0);

    // Moving: x on A7 (2 free), D6 (4 free), F4 (4 free).
    s = aus("x...x........x...ooo..oo");
    s.spieler[1].phase = Ziehen;  // three stones that came out of placing
    l = ZugErzeugen(s, 1);
    EXPECT_EQ(l.size(), 10u);
    for (const Zug& z : l) {
        const auto& n = nachbarn()[z.von];
        EXPECT_NE(std::find(n.begin(), n.end(), z.nach), n.end());
    }
    EXPECT_EQ(Zugfreiheit(s, 1), 10);
    // Fewer than three stones: no move at all.
    EXPECT_TRUE(ZugErzeugen(aus("xx......................:0,9"), 1).empty());
}

TEST(MuehleZuege, FlyingWithThreeStones)
{
    // o on A7 D6 E5 share no mill, so no jump closes one: 3 stones x 17 empty points.
    Stellung s = aus("o...o...o.xxxx..........");
    EXPECT_EQ(s.spieler[2].phase, Springen);
    EXPECT_EQ(ZugErzeugen(s, 2).size(), 3u * 17u);
    EXPECT_EQ(Zugfreiheit(s, 2), 3);

    // A capture down to three starts the jumping phase of the victim.
    s = aus("ox.x.x..x.......oo.oo...");
    ASSERT_EQ(s.spieler[1].steine, 4);
    ASSERT_EQ(s.spieler[1].phase, Ziehen);
    ZugAusfuehren(s, Zug{19, 18, 8}, 2);  // no legality needed for the bookkeeping
    EXPECT_EQ(s.spieler[1].steine, 3);
    EXPECT_EQ(s.spieler[1].phase, Springen);

    // Leaving the placing phase with three stones keeps a player moving by neighbours.
    s = aus(".x.x.............ooooo..:1,0");  // x lost stones while placing
    ZugAusfuehren(s, Zug{kKein, 23, kKein}, 1);
    EXPECT_EQ(s.spieler[1].steine, 3);
    EXPECT_EQ(s.spieler[1].phase, Ziehen);
    for (const Zug& z : ZugErzeugen(s, 1)) {
        const auto& n = nachbarn()[z.von];
        EXPECT_NE(std::find(n.begin(), n.end(), z.nach), n.end()) << zugText(z);
    }
}

TEST(MuehleEnde, GameEndRules)
{
    // x on the four outer corners, each shut in by o on the edge middles.
    Stellung s = aus("xox......o....o......xox");
    EXPECT_GT(Zugfreiheit(s, 2), 0);
    EXPECT_EQ(Zugfreiheit(s, 1), 0);
    EXPECT_FALSE(SpielEnde(s, 18)) << "nothing ends before move 19";
    EXPECT_TRUE(SpielEnde(s, 19));
    // Two stones lose from move 19 on.
    s = aus("xx.....ooo..o...........");
    EXPECT_FALSE(SpielEnde(s, 5));
    EXPECT_TRUE(SpielEnde(s, 40));
    // Both sides lost at once: the value is that of player 1's loss, good for player 2.
    s = aus("xx.....oo...............");
    Suche suche;
    // 50000 + 15 x 3 free moves of o - 18 x 3 free moves of x; no mill counts while moving
    EXPECT_EQ(Bewerten(s, suche), 49991);
    EXPECT_EQ(suche.stellungen, 1);
}

// Values worked by hand from the weights: placing regime.
TEST(MuehleBewertung, HandWorkedPlacingValues)
{
    Suche suche;
    EXPECT_EQ(Bewerten(startstellung(), suche), 0);
    // x alone on D6: 4 free moves x 40 for player 1.
    EXPECT_EQ(Bewerten(aus("....x...................:8,9"), suche), -160);
    // o on A7 D7: open mill 60, free moves 3 x 30.
    EXPECT_EQ(Bewerten(aus("oo......................:9,7"), suche), 150);
    // o on D7 B6: the fork round D6 counts twice (2 x 2 x 25), free moves 5 x 30.
    EXPECT_EQ(Bewerten(aus(".o.o....................:9,7"), suche), 250);
    EXPECT_EQ(suche.stellungen, 4);
}

TEST(MuehleBewertung, MillCounting)
{
    int g = -1, o = -1;
    // A closed mill with room to open: one closed, nothing open.
    MuehlenZaehlen(aus("ooo..........x.x.x.x.x..:0,3"), 2, g, o);
    EXPECT_EQ(g, 1);
    EXPECT_EQ(o, 0);
    // A shut closed mill counts nothing.
    MuehlenZaehlen(aus("ooo.x....x....x.........:6,6"), 2, g, o);
    EXPECT_EQ(g, 0);
    // Two open mills sharing the empty point G7 are one double: counted once.
    MuehlenZaehlen(aus("oo............o........o:5,5"), 2, g, o);
    EXPECT_EQ(g, 0);
    EXPECT_EQ(o, 1);
    // While moving, an open mill needs an own stone beside the gap from outside the mill.
    MuehlenZaehlen(aus("oo.x.x.x..x...x......ooo"), 2, g, o);
    EXPECT_EQ(o, 0);
}

TEST(MuehleSuche, TakesAMillInOne)
{
    // o can close A7 D7 G7 by G4 - G7; x has no mill anywhere near.
    const Stellung s = aus("oo.x...x....x.o..x.oo.x.");
    for (int tiefe = 1; tiefe <= 4; ++tiefe) {
        Suche suche;
        suche.zugzahl = 30;
        const Entscheidung e = Computerzug(s, 2, tiefe, suche);
        ASSERT_TRUE(e.gefunden);
        EXPECT_EQ(e.zug.von, 14) << "Tiefe " << tiefe << ": " << zugText(e.zug);
        EXPECT_EQ(e.zug.nach, 2) << "Tiefe " << tiefe;
        EXPECT_NE(e.zug.schlag, kKein) << "Tiefe " << tiefe;
        EXPECT_GT(suche.stellungen, 0);
    }
}

TEST(MuehleSuche, BlocksAThreatenedMill)
{
    // x threatens G7 (A7 D7); o has one stone and must place on G7.
    const Stellung s = aus("xx..........o...........:7,8");
    for (int tiefe = 1; tiefe <= 4; ++tiefe) {
        Suche suche;
        suche.zugzahl = 4;
        const Entscheidung e = Computerzug(s, 2, tiefe, suche);
        EXPECT_EQ(e.zug.nach, 2) << "Tiefe " << tiefe << ": " << zugText(e.zug);
    }
    // The human side, minimising, blocks the same way.
    const Stellung t = aus("oo..........x...........:8,7");
    Suche suche;
    suche.zugzahl = 4;
    EXPECT_EQ(Computerzug(t, 1, 3, suche).zug.nach, 2);
}

TEST(MuehleSuche, WinsAtOnceAndTraces)
{
    // x has three stones; closing G7 by G4 - G7 takes one: the look-ahead for an instant win takes it.
    const Stellung s = aus("oo.x.......x..o....ox...");
    Suche suche;
    suche.zugzahl = 40;
    suche.testausgabe = true;
    const Entscheidung e = Computerzug(s, 2, 2, suche);
    EXPECT_TRUE(e.sofortsieg);
    EXPECT_EQ(e.zug.nach, 2);
    // Without the shortcut (before move 18) the search itself finds it and writes its trace.
    suche.zugzahl = 17;
    const Entscheidung f = Computerzug(s, 2, 2, suche);
    EXPECT_FALSE(f.sofortsieg);
    EXPECT_EQ(f.zug.nach, 2);
    ASSERT_FALSE(suche.ausgabe.empty());
    EXPECT_EQ(suche.ausgabe.front().rfind("Wert Von ", 0), 0u);
}

TEST(MuehleText, PositionRoundTripAndErrors)
{
    const std::string t = "x.o.....................:8,8";
    EXPECT_EQ(stellungAlsText(aus(t)), t);
    Stellung s;
    std::string fehler;
    EXPECT_FALSE(stellungAusText("x.o", s, fehler));
    EXPECT_FALSE(fehler.empty());
    EXPECT_FALSE(stellungAusText("x.q.....................", s, fehler));
    EXPECT_FALSE(stellungAusText("xxxxxxxxxx..............", s, fehler));  // ten stones
    EXPECT_EQ(zugText(Zug{1, 4, 22}), "D7 - D6 schlägt D1");
    EXPECT_EQ(zugText(Zug{kKein, 0, kKein}), "A7");
}
