// Game of Life through the library patterns: still lifes, oscillator periods, spaceship speeds,
// the glider gun and methuselah lifespans as published for the standard rule B3/S23.
#include "dynamics/life.h"
#include "dynamics/lifepatterns.h"

#include <gtest/gtest.h>
#include <set>
#include <utility>

using namespace dynamics;

namespace {

using Cells = std::set<std::pair<int, int>>;

Cells living(const LifeGame& g)
{
    Cells s;
    for (int r = 1; r <= g.boardSize(); ++r)
        for (int c = 1; c <= g.boardSize(); ++c)
            if (g.cell(r, c)) s.insert({r, c});
    return s;
}

Cells shifted(const Cells& s, int dr, int dc)
{
    Cells t;
    for (auto [r, c] : s)
        t.insert({r + dr, c + dc});
    return t;
}

const std::vector<LifePattern>& library()
{
    static const std::vector<LifePattern> p =
        parsePatterns(loadPatternLines(std::string(QUORIX_SOURCE_DIR) + "/data/texte/game.txt"));
    return p;
}

LifeGame loaded(const std::string& name, int size = 60)
{
    LifeGame g(size);
    const LifePattern* p = findPattern(library(), name);
    EXPECT_NE(p, nullptr) << "pattern missing: " << name;
    if (p) loadPattern(g, *p);
    return g;
}

// The smallest period (up to `limit`) after which the board repeats exactly, 0 if none.
int periodOf(LifeGame g, int limit)
{
    const Cells start = living(g);
    for (int t = 1; t <= limit; ++t) {
        g.step();
        if (living(g) == start) return t;
    }
    return 0;
}

void blinkerAt(LifeGame& g, int r, int c)
{
    g.setCell(r, c - 1, 1);
    g.setCell(r, c, 1);
    g.setCell(r, c + 1, 1);
}

}  // namespace

TEST(LifeRules, StillLifesStayUnchanged)
{
    LifeGame g = loaded("Stillleben");
    const Cells start = living(g);
    ASSERT_EQ(start.size(), 4u + 6 + 7 + 5 + 6 + 4 + 8);  // block, hive, loaf, boat, ship, tub, pond
    for (int t = 0; t < 5; ++t)
        g.step();
    EXPECT_EQ(living(g), start);
    EXPECT_EQ(g.generation(), 5);
}

TEST(LifeRules, OscillatorsHaveTheirPeriods)
{
    LifeGame blinker(10);
    blinkerAt(blinker, 5, 5);
    EXPECT_EQ(periodOf(blinker, 10), 2) << "blinker";
    EXPECT_EQ(periodOf(loaded("Pulsar"), 10), 3) << "pulsar";
    EXPECT_EQ(loaded("Pulsar").population(), 48);
    // beacon, clock, toad and traffic light all have period 2
    EXPECT_EQ(periodOf(loaded("Leuchtturm"), 10), 2);
    // a row of ten cells settles into the pentadecathlon, period 15
    LifeGame ten = loaded("Zehnerreihe");
    for (int t = 0; t < 40; ++t)
        ten.step();
    EXPECT_EQ(periodOf(ten, 20), 15);
}

TEST(LifeRules, GliderMovesOneCellDiagonallyInFourGenerations)
{
    LifeGame g = loaded("Segler", 20);
    const Cells start = living(g);
    ASSERT_EQ(start.size(), 5u);
    for (int k = 1; k <= 3; ++k) {
        for (int t = 0; t < 4; ++t)
            g.step();
        EXPECT_EQ(living(g), shifted(start, k, k)) << "after " << 4 * k << " generations";
    }
}

TEST(LifeRules, SpaceshipsMoveTwoCellsInFourGenerations)
{
    for (const char* name : {"Kleines Raumschiff", "Großes Raumschiff"}) {
        LifeGame g = loaded(name);
        const Cells start = living(g);
        for (int t = 0; t < 4; ++t)
            g.step();
        EXPECT_EQ(living(g), shifted(start, 0, -2)) << name;
    }
}

TEST(LifeRules, GliderGunEmitsAGliderEveryThirtyGenerations)
{
    LifeGame g = loaded("Gleiterkanone", 80);
    ASSERT_EQ(g.population(), 36);
    std::vector<int> pop;
    for (int t = 0; t <= 200; ++t) {
        pop.push_back(g.population());
        g.step();
    }
    // while the gliders are in flight each period adds exactly one glider of five cells
    for (int t = 0; t + 30 <= 200; ++t)
        EXPECT_EQ(pop[t + 30] - pop[t], 5) << "generation " << t;
    // with the eater the whole pattern has period 30 and never grows
    LifeGame e = loaded("Gleiterkanone mit Eater", 80);
    for (int t = 0; t < 90; ++t)
        e.step();
    EXPECT_EQ(periodOf(e, 30), 30);
}

TEST(LifeRules, MethuselahsLiveTheirPublishedLifespans)
{
    // Diehard dies out after exactly 130 generations.
    LifeGame g = loaded("Stirb langsam");
    ASSERT_EQ(g.population(), 7);
    for (int t = 0; t < 129; ++t)
        g.step();
    EXPECT_GT(g.population(), 0);
    g.step();
    EXPECT_EQ(g.population(), 0);
    // Acorn, R-pentomino and B-heptomino start with their published cell counts
    EXPECT_EQ(loaded("Acorn").population(), 7);
    EXPECT_EQ(loaded("R-Pentomino").population(), 5);
    EXPECT_EQ(loaded("B-Heptomino").population(), 7);
}

TEST(LifeRules, TorusWrapsAndTheFrameStops)
{
    // a glider heading out on the lower right
    auto glider = [](LifeGame& g, int r, int c) {
        g.setCell(r, c + 1, 1);
        g.setCell(r + 1, c + 2, 1);
        g.setCell(r + 2, c, 1);
        g.setCell(r + 2, c + 1, 1);
        g.setCell(r + 2, c + 2, 1);
    };
    LifeGame t(12), f(12);
    t.torus = true;
    glider(t, 8, 8);
    glider(f, 8, 8);
    const Cells start = living(t);
    for (int k = 0; k < 4 * 12; ++k) {
        t.step();
        f.step();
    }
    // twelve cells down and right on a 12-board: back where it began
    EXPECT_EQ(living(t), start);
    // without the torus nothing reappears near the top left, and the glider is gone
    for (auto [r, c] : living(f)) {
        EXPECT_GT(r, 6);
        EXPECT_GT(c, 6);
    }
    EXPECT_NE(living(f).size(), 5u);
}

TEST(LifeRules, RuleBoxesDecideBirthAndDeath)
{
    LifeGame g(20);
    const LifePattern* p = findPattern(library(), "R-Pentomino");
    ASSERT_NE(p, nullptr);
    LifePattern moved = *p;
    moved.rowOffset = moved.colOffset = 8;
    loadPattern(g, moved);
    g.rule.geburt.fill(false);
    int last = g.population();
    for (int t = 0; t < 10; ++t) {
        g.step();
        EXPECT_LE(g.population(), last) << "nothing may be born";
        last = g.population();
    }
    // with no death at all and birth at 3, the population never shrinks
    LifeGame h(20);
    loadPattern(h, moved);
    h.rule.tod.fill(false);
    last = h.population();
    for (int t = 0; t < 10; ++t) {
        h.step();
        EXPECT_GE(h.population(), last);
        last = h.population();
    }
    EXPECT_GT(last, 5);
}

TEST(LifeRules, CountersMatchTheBoard)
{
    LifeGame g = loaded("Leuchtturm");
    g.setCell(1, 1, 23);  // kinds above 15 are capped
    EXPECT_EQ(g.cell(1, 1), 15);
    for (int t = 0; t < 25; ++t) {
        std::array<int, kKinds> seen{};
        for (int r = 1; r <= g.boardSize(); ++r)
            for (int c = 1; c <= g.boardSize(); ++c)
                ++seen[g.cell(r, c)];
        ASSERT_EQ(seen, g.counters()) << "generation " << g.generation();
        g.step();
    }
    // the four oscillators keep their own kinds 1..4 while they blink
    // the beacon is stored in its phase of 6 cells and has 8 after an odd number of steps
    EXPECT_EQ(g.counters()[1], 8);
    EXPECT_EQ(g.counters()[4], 12);
}
