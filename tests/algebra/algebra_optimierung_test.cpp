// Linear optimisation against small problems whose optimum is known by hand.
#include "algebra/algebra.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace algebra;

namespace {

std::string alle(const Ergebnis& e)
{
    std::string s;
    for (const auto& z : e.zeilen) s += z + "\n";
    return s;
}

std::vector<std::string> lp(const std::string& ziel, const std::string& art, std::vector<std::string> b)
{
    b.resize(6);
    std::vector<std::string> f = {ziel, art};
    f.insert(f.end(), b.begin(), b.end());
    return f;
}

}  // namespace

TEST(Optimierung, MaximumOfAClassicProductMix)
{
    // max 3x + 5y with x <= 4, 2y <= 12, 3x + 2y <= 18: optimum 36 at (2, 6).
    const Ergebnis e = berechne(7, lp("3*X+5*Y", "Maximum", {"X<4", "2*Y<12", "3*X+2*Y<18"}));
    ASSERT_TRUE(e.ok) << alle(e);
    EXPECT_EQ(e.zeilen[0], "Maximum = 36");
    EXPECT_EQ(e.zeilen[1], "Optimum x = 2; y = 6; z = 0");
}

TEST(Optimierung, MinimumWithGreaterThanConstraints)
{
    // min 2x + 3y with x + y >= 4, x + 3y >= 6: corners (0,4) 12, (3,1) 9, (6,0) 12.
    const Ergebnis e = berechne(7, lp("2*X+3*Y", "Minimum", {"X+Y>4", "X+3*Y>6"}));
    ASSERT_TRUE(e.ok) << alle(e);
    EXPECT_EQ(e.zeilen[0], "Minimum = 9");
    EXPECT_EQ(e.zeilen[1], "Optimum x = 3; y = 1; z = 0");
    // three variables: max x + y + z with x + y + z <= 10 and x - z <= -2 (negative right side)
    const Ergebnis d = berechne(7, lp("X+Y+Z", "max", {"X+Y+Z<10", "X-Z<-2"}));
    EXPECT_EQ(d.zeilen[0], "Maximum = 10") << alle(d);
}

TEST(Optimierung, InfeasibleUnboundedAndBadInput)
{
    EXPECT_EQ(berechne(7, lp("X+Y", "Maximum", {"X+Y<1", "X+Y>2"})).zeilen,
              (std::vector<std::string>{"Nicht lösbar !", "Keine Lösung"}));
    EXPECT_EQ(berechne(7, lp("X+Y", "Maximum", {"X-Y<1"})).zeilen.back(), "Keine Lösung");
    EXPECT_TRUE(berechne(7, lp("X+Y", "Maximum", {"X+Y=1"})).eingabefehler);
    EXPECT_TRUE(berechne(7, lp("X+W", "Maximum", {"X<1"})).eingabefehler);
    EXPECT_TRUE(berechne(7, lp("X+Y", "Mitte", {"X<1"})).eingabefehler);
}

TEST(Optimierung, CornersOfTheFeasiblePolygon)
{
    // The product mix above has the corners (0,0), (4,0), (4,3), (2,6), (0,6).
    const Grafik2D g = optimierungsGrafik(lp("3*X+5*Y", "Maximum", {"X<4", "2*Y<12", "3*X+2*Y<18"}));
    ASSERT_TRUE(g.ok);
    const std::vector<std::pair<double, double>> soll = {{0, 0}, {4, 0}, {4, 3}, {2, 6}, {0, 6}};
    ASSERT_EQ(g.ecken.size(), soll.size());
    for (const auto& [x, y] : soll) {
        bool da = false;
        for (const auto& p : g.ecken) da = da || (std::fabs(p.x - x) < 1e-9 && std::fabs(p.y - y) < 1e-9);
        EXPECT_TRUE(da) << "(" << x << ", " << y << ") missing";
    }
    const Ergebnis e = berechne(7, lp("3*X+5*Y", "Maximum", {"X<4", "2*Y<12", "3*X+2*Y<18"}));
    EXPECT_NE(std::find(e.zeilen.begin(), e.zeilen.end(), "(P)\t2\t6\t36"), e.zeilen.end()) << alle(e);
    // a problem in three variables has no graphic solution
    EXPECT_FALSE(optimierungsGrafik(lp("X+Y+Z", "Maximum", {"X+Y+Z<1"})).ok);
}
