// Whole games: random and engine self-play checked move by move against the rules, the
// protocol, taking back, the repetition draw and the headless command.
#include "games/commands.h"
#include "games/muehlespiel.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

using namespace muehle;

namespace {

// The board written out once more, independent of the engine's tables.
const int kLinien[32][2] = {{0, 1},   {1, 2},   {3, 4},   {4, 5},   {6, 7},   {7, 8},   {9, 10},
                            {10, 11}, {12, 13}, {13, 14}, {15, 16}, {16, 17}, {18, 19}, {19, 20},
                            {21, 22}, {22, 23}, {0, 9},   {9, 21},  {3, 10},  {10, 18}, {6, 11},
                            {11, 15}, {1, 4},   {4, 7},   {16, 19}, {19, 22}, {8, 12},  {12, 17},
                            {5, 13},  {13, 20}, {2, 14},  {14, 23}};

bool verbunden(int a, int b)
{
    for (const auto& l : kLinien)
        if ((l[0] == a && l[1] == b) || (l[0] == b && l[1] == a))
            return true;
    return false;
}

bool inMuehle(const std::array<std::uint8_t, 24>& b, int p)
{
    for (const auto& m : kMuehle)
        if ((m[0] == p || m[1] == p || m[2] == p) && b[m[0]] == b[p] && b[m[1]] == b[p] && b[m[2]] == b[p])
            return true;
    return false;
}

// Checks one move of `wer` from `vor` to `nach` by the rules of the game.
void pruefeZug(const Stellung& vor, const Stellung& nach, const Zug& z, int wer, int nr)
{
    SCOPED_TRACE("Zug " + std::to_string(nr) + ": " + zugText(z));
    const int feind = 3 - wer;
    ASSERT_LT(z.nach, 24);
    EXPECT_EQ(vor.brett[z.nach], 0) << "target must be empty";
    const int phase = vor.spieler[wer].phase;
    if (phase == Setzen) {
        EXPECT_EQ(z.von, kKein);
        EXPECT_GT(vor.spieler[wer].vorrat, 0);
    } else {
        ASSERT_LT(z.von, 24);
        EXPECT_EQ(vor.brett[z.von], wer);
        if (phase == Ziehen)
            EXPECT_TRUE(verbunden(z.von, z.nach));
    }
    const bool muehle = inMuehle(nach.brett, z.nach);
    if (z.schlag != kKein) {
        EXPECT_TRUE(muehle) << "capture without a new mill";
        EXPECT_EQ(vor.brett[z.schlag], feind);
        EXPECT_FALSE(inMuehle(vor.brett, z.schlag)) << "stone taken out of a mill";
    } else if (muehle) {
        // a mill may go without a capture only when every foreign stone stands in one
        for (int q = 0; q < 24; ++q)
            if (vor.brett[q] == feind)
                EXPECT_TRUE(inMuehle(vor.brett, q)) << "missed capture of " << kPunktnamen[q];
    }
    for (int p = 1; p <= 2; ++p) {
        int n = 0;
        for (auto c : nach.brett)
            n += c == p;
        EXPECT_EQ(n, nach.spieler[p].steine) << "stone count of player " << p;
        EXPECT_GE(nach.spieler[p].vorrat, 0);
    }
}

}  // namespace

TEST(MuehleSpiel, RandomGamesKeepTheRules)
{
    std::mt19937 zufall(20240613);
    int beendet = 0, gewonnen = 0;
    for (int partie = 0; partie < 300; ++partie) {
        Muehlespiel spiel;
        spiel.start(partie % 2 ? Variante::ComputerBeginnt : Variante::SpielerGegenSpieler);
        while (spiel.laeuft()) {
            const Zugliste l = spiel.legaleZuege();
            ASSERT_FALSE(l.empty()) << "a running game always has a move";
            const Zug z = l[zufall() % l.size()];
            const Stellung vor = spiel.stellung();
            const int wer = spiel.anDerReihe();
            const int nr = spiel.zugzahl();
            ASSERT_TRUE(spiel.ziehe(z));
            pruefeZug(vor, spiel.stellung(), z, wer, nr);
            if (HasFatalFailure() || HasFailure())
                return;
        }
        ++beendet;
        EXPECT_LE(spiel.zugzahl(), kZugGrenze);
        if (spiel.zugzahl() == kZugGrenze)
            EXPECT_EQ(spiel.ergebnis(), "Das Spiel endet Remis!");
        if (spiel.ergebnis().rfind("Gewonnen hat ", 0) == 0) {
            ++gewonnen;
            EXPECT_TRUE(SpielEnde(spiel.stellung(), spiel.zugzahl()));
            EXPECT_EQ(spiel.spielzuege().back(), spiel.ergebnis());
        }
    }
    EXPECT_EQ(beendet, 300);
    EXPECT_GT(gewonnen, 0);
}

TEST(MuehleSpiel, EngineSelfPlayIsLegal)
{
    Muehlespiel spiel;
    spiel.start(Variante::SpielerGegenSpieler);
    while (spiel.laeuft()) {
        const Stellung vor = spiel.stellung();
        const int wer = spiel.anDerReihe();
        const int nr = spiel.zugzahl();
        Suche suche;
        const Entscheidung e = spiel.computerZiehen(wer == 1 ? 2 : 3, suche);
        ASSERT_TRUE(e.gefunden);
        pruefeZug(vor, spiel.stellung(), e.zug, wer, nr);
        if (HasFailure())
            return;
    }
    EXPECT_FALSE(spiel.ergebnis().empty());
}

TEST(MuehleSpiel, ProtocolTurnsAndTakingBack)
{
    Muehlespiel spiel;
    spiel.start(Variante::SpielerBeginnt);
    EXPECT_EQ(spiel.amZugText(), "Spieler A setzt!");
    EXPECT_FALSE(spiel.zurueck()) << "nothing to take back";
    EXPECT_FALSE(spiel.ziehe(Zug{3, 4, kKein})) << "no moving while placing";
    ASSERT_TRUE(spiel.ziehe(Zug{kKein, 0, kKein}));
    EXPECT_TRUE(spiel.computerAmZug());
    Suche suche;
    ASSERT_TRUE(spiel.computerZiehen(2, suche).gefunden);
    ASSERT_TRUE(spiel.ziehe(Zug{kKein, 1, kKein}));
    const Stellung nachDrei = spiel.stellung();
    ASSERT_TRUE(spiel.computerZiehen(2, suche).gefunden);
    ASSERT_TRUE(spiel.ziehe(Zug{kKein, 21, kKein}));
    ASSERT_EQ(spiel.spielzuege().size(), 5u);
    EXPECT_EQ(spiel.spielzuege()[0], " 1: Spieler A7");
    EXPECT_EQ(spiel.spielzuege()[1].rfind(" 2: Computer ", 0), 0u);
    EXPECT_EQ(spiel.zugzahl(), 6);
    // Back two half moves: the position after move 3 again, the computer to move.
    ASSERT_TRUE(spiel.zurueck());
    EXPECT_EQ(spiel.zugzahl(), 4);
    EXPECT_EQ(spiel.spielzuege().size(), 3u);
    EXPECT_EQ(spiel.stellung().brett, nachDrei.brett);
    EXPECT_EQ(spiel.stellung().spieler[1].vorrat, 7);
    EXPECT_EQ(spiel.stellung().spieler[2].vorrat, 8);
    EXPECT_EQ(spiel.anDerReihe(), 2);
    EXPECT_TRUE(spiel.abbrechen());
    EXPECT_EQ(spiel.ergebnis(), "Remis!");

    // The computer begins: its moves are protocolled as the computer's.
    spiel.start(Variante::ComputerBeginnt);
    ASSERT_TRUE(spiel.computerZiehen(1, suche).gefunden);
    EXPECT_EQ(spiel.spielzuege()[0].rfind(" 1: Computer ", 0), 0u);
    EXPECT_EQ(spiel.anDerReihe(), 1);
    EXPECT_EQ(Muehlespiel::steineText(1), "1 Stein");
    EXPECT_EQ(Muehlespiel::steineText(9), "9 Steine");
}

TEST(MuehleSpiel, RepetitionEndsInADraw)
{
    // Two humans fill the board, then shuffle the same stones back and forth.
    Muehlespiel spiel;
    spiel.start(Variante::SpielerGegenSpieler);
    // Nobody closes a mill; D7 D6 D5 C4 D3 G1 stay empty.
    const int setzX[9] = {0, 3, 6, 12, 13, 15, 18, 21, 19};
    const int setzO[9] = {2, 5, 8, 9, 10, 22, 14, 17, 20};
    for (int i = 0; i < 9; ++i) {
        ASSERT_TRUE(spiel.ziehe(Zug{kKein, setzX[i], kKein})) << i;
        ASSERT_TRUE(spiel.ziehe(Zug{kKein, setzO[i], kKein})) << i;
    }
    ASSERT_TRUE(spiel.laeuft());
    // x: C5 - D5 - C5 ..., o: G4 - G1 - G4 ...
    const Zug hinX{6, 7, kKein}, herX{7, 6, kKein}, hinO{14, 23, kKein}, herO{23, 14, kKein};
    for (int runde = 0; runde < 2 && spiel.laeuft(); ++runde) {
        ASSERT_TRUE(spiel.ziehe(hinX));
        ASSERT_TRUE(spiel.ziehe(hinO));
        ASSERT_TRUE(spiel.ziehe(herX));
        if (runde == 1)
            EXPECT_TRUE(spiel.laeuft()) << "o has only three shuffling moves so far";
        ASSERT_TRUE(spiel.ziehe(herO));
    }
    EXPECT_FALSE(spiel.laeuft());
    EXPECT_EQ(spiel.ergebnis(), "Das Spiel endet Remis!");
}

TEST(MuehleBefehl, HeadlessMoveAndGame)
{
    const auto cmds = gamesCommands();
    ASSERT_EQ(cmds.size(), 1u);
    std::ostringstream out, err;
    // The mill in one from the engine test, through the command line.
    EXPECT_EQ(cmds[0].run({"zug", "oo.x...x....x.o..x.oo.x.", "--tiefe", "2"}, out, err), 0) << err.str();
    EXPECT_EQ(out.str().rfind("Zug: G4 - G7 schlägt ", 0), 0u) << out.str();
    EXPECT_NE(out.str().find("\nStellungen: "), std::string::npos);
    EXPECT_NE(out.str().find("\nDanach: ooo"), std::string::npos);
    // With the trace, every root move shows its value before the answer.
    out.str("");
    EXPECT_EQ(cmds[0].run({"zug", "xx..........o...........:7,8", "--tiefe", "1", "--test"}, out, err), 0);
    EXPECT_EQ(out.str().rfind("Wert Von G7 = ", 0), 0u) << out.str();
    EXPECT_NE(out.str().find("bester Zug:G7 = "), std::string::npos) << out.str();
    EXPECT_NE(out.str().find("\nZug: G7\n"), std::string::npos) << out.str();
    // No move: x has two stones.
    out.str("");
    EXPECT_EQ(cmds[0].run({"zug", "xx.....ooo..o...........", "--am", "1"}, out, err), 1);
    // Usage errors.
    for (const quorix::Args& a : {quorix::Args{}, quorix::Args{"zug"}, quorix::Args{"zug", "x..", "--tiefe", "2"},
                                  quorix::Args{"zug", "........................", "--tiefe", "9"},
                                  quorix::Args{"spiel"}}) {
        err.str("");
        EXPECT_EQ(cmds[0].run(a, out, err), 2);
        EXPECT_FALSE(err.str().empty());
    }
    // A whole game at depth 1: numbered lines and a closing line.
    out.str("");
    EXPECT_EQ(cmds[0].run({"partie", "--tiefe", "1"}, out, err), 0);
    const std::string t = out.str();
    EXPECT_EQ(t.rfind(" 1: Spieler ", 0), 0u) << t;
    EXPECT_NE(t.find("\n18: Spieler "), std::string::npos);
    EXPECT_TRUE(t.find("Gewonnen hat ") != std::string::npos || t.find("Remis") != std::string::npos) << t;
}
