// Wa-Tor and the Donnelly voter model: the shown counts always agree with the layers, and the
// runs end the way the models must (starving sharks, consensus of the voters).
#include "dynamics/life.h"
#include "dynamics/wator.h"

#include <gtest/gtest.h>

using namespace dynamics;

namespace {

void expectConsistent(const WaTor& w)
{
    int fish = 0, sharks = 0;
    const int n = w.boardSize();
    for (int r = 1; r <= n; ++r)
        for (int c = 1; c <= n; ++c) {
            ASSERT_FALSE(w.fish(r, c) && w.shark(r, c)) << "two animals in " << r << "," << c;
            fish += w.fish(r, c);
            sharks += w.shark(r, c);
            if (w.shark(r, c)) ASSERT_LT(w.hunger(r, c), w.settings().haiFastenzeit);
        }
    ASSERT_EQ(fish, w.fische()) << "chronon " << w.chrononen();
    ASSERT_EQ(sharks, w.haie()) << "chronon " << w.chrononen();
}

}  // namespace

TEST(WaTor, CountsStayConsistentInBothVariants)
{
    for (bool v2 : {false, true}) {
        WaTorSettings s;
        s.boardSize = 40;
        s.fischAnteil = 40;
        s.haiAnteil = 10;
        s.variante2 = v2;
        WaTor w(s, 7);
        EXPECT_EQ(w.fische(), 40 * 40 * 40 / 100);
        EXPECT_EQ(w.haie(), 40 * 40 * 10 / 100);
        for (int t = 0; t < 150; ++t) {
            w.step();
            expectConsistent(w);
            if (HasFatalFailure()) return;
        }
        EXPECT_EQ(w.chrononen(), 150);
    }
}

TEST(WaTor, SharksWithoutFishStarveAfterTheirFastingTime)
{
    WaTorSettings s;
    s.boardSize = 20;
    s.fischAnteil = 0;
    s.haiAnteil = 10;
    s.haiFastenzeit = 4;
    s.haiBrutzeit = 50;
    WaTor w(s, 3);
    w.clear(s);
    for (int k = 0; k < 40; ++k)
        w.placeShark(k / 4 * 2 + 1, k % 4 * 5 + 1);  // young sharks, far from breeding
    ASSERT_EQ(w.haie(), 40);
    for (int t = 1; t < 4; ++t) {
        w.step();
        EXPECT_EQ(w.haie(), 40) << "chronon " << t;
    }
    w.step();
    EXPECT_EQ(w.haie(), 0);
}

TEST(WaTor, FishAloneBreedAndFillTheSea)
{
    WaTorSettings s;
    s.boardSize = 10;
    s.fischBrutzeit = 2;
    WaTor w(s, 5);
    w.clear(s);
    w.placeFish(5, 5);
    ASSERT_EQ(w.fische(), 1);
    // a lone fish moves twice, then leaves a young one behind
    w.step();
    EXPECT_EQ(w.fische(), 1);
    w.step();
    EXPECT_EQ(w.fische(), 2);
    for (int t = 0; t < 60; ++t)
        w.step();
    EXPECT_EQ(w.fische(), 100);
    expectConsistent(w);
}

TEST(WaTor, ASharkEatsTheFishBesideIt)
{
    WaTorSettings s;
    s.boardSize = 10;
    s.haiFastenzeit = 2;
    WaTor w(s, 9);
    w.clear(s);
    w.placeShark(5, 5);
    w.placeFish(5, 6);
    w.step();
    // whichever way the fish swam first, it stayed beside the shark or was eaten
    EXPECT_EQ(w.haie(), 1);
    expectConsistent(w);
    // a shark that ate in time survives longer than its fasting time alone would allow
    WaTor alone(s, 9);
    alone.clear(s);
    alone.placeShark(5, 5);
    alone.step();
    alone.step();
    EXPECT_EQ(alone.haie(), 0);
}

TEST(Donnelly, CountersMatchAndTheVoteEndsInConsensus)
{
    Donnelly d(6, 3, 11);
    EXPECT_EQ(d.counters()[1] + d.counters()[2] + d.counters()[3], 36);
    long long changes = 0;
    while (d.livingGroups() > 1 && d.schritte() < 2000000) {
        changes += d.runChanges(50);
        std::array<int, kKinds> seen{};
        for (int r = 1; r <= 6; ++r)
            for (int c = 1; c <= 6; ++c)
                ++seen[d.cell(r, c)];
        ASSERT_EQ(seen, d.counters());
    }
    EXPECT_EQ(d.livingGroups(), 1) << "a finite voter model always reaches consensus";
    EXPECT_EQ(changes, d.wanderungen());
    EXPECT_EQ(d.runChanges(10), 0) << "after consensus nobody changes";
}

TEST(Donnelly, NoChangeWithOneGroupAndSizesAreForced)
{
    Donnelly d(1, 1, 2);
    EXPECT_EQ(d.boardSize(), 2);
    EXPECT_EQ(d.counters()[1], 4);
    for (int k = 0; k < 100; ++k)
        EXPECT_FALSE(d.step());
    EXPECT_EQ(d.wanderungen(), 0);
    d.reset(500, 40);
    EXPECT_EQ(d.boardSize(), 80);
    EXPECT_EQ(d.groups(), 15);
    EXPECT_EQ(clampCellPixels(1), 2);
    EXPECT_EQ(clampCellPixels(99), 15);
    EXPECT_EQ(clampCellPixels(7), 7);
}
