// The Gauss page and Cramer's rule against hand-checked systems.
#include "algebra/algebra.h"
#include "algebra/uglsystem.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace algebra;

namespace {

bool enthaelt(const Ergebnis& e, const std::string& zeile)
{
    for (const auto& z : e.zeilen)
        if (z == zeile) return true;
    return false;
}

std::string alle(const Ergebnis& e)
{
    std::string s;
    for (const auto& z : e.zeilen) s += z + "\n";
    return s;
}

}  // namespace

// Textbook example: 2x+y-z=8, -3x-y+2z=-11, -2x+y+2z=-3 has x=2, y=3, z=-1, det = -1.
TEST(Gauss, SquareSystemWithKnownSolution)
{
    const Ergebnis e = berechne(0, {"2 1 -1 8", "-3 -1 2 -11", "-2 1 2 -3"});
    EXPECT_TRUE(e.ok) << alle(e);
    EXPECT_TRUE(enthaelt(e, "Lösung mit dem Gauß-Verfahren")) << alle(e);
    EXPECT_TRUE(enthaelt(e, "    X1 = 2")) << alle(e);
    EXPECT_TRUE(enthaelt(e, "    X2 = 3")) << alle(e);
    EXPECT_TRUE(enthaelt(e, "    X3 = -1")) << alle(e);
    EXPECT_TRUE(enthaelt(e, " Determinante der Koeffizientenmatrix -1")) << alle(e);
}

TEST(Gauss, TenByTenHilbertLikeSystemSolvesBack)
{
    // A diagonally dominant 10x10 system built around x_i = i; the solver must recover it.
    LgsMatrix m(10, std::vector<double>(11));
    for (int i = 0; i < 10; ++i) {
        double b = 0;
        for (int j = 0; j < 10; ++j) {
            m[i][j] = (i == j) ? 20.0 : 1.0 / (i + j + 1);
            b += m[i][j] * (j + 1);
        }
        m[i][10] = b;
    }
    const LgsLoesung l = loeseLgs(m, 10);
    ASSERT_EQ(l.art, LgsArt::eindeutig);
    for (int j = 0; j < 10; ++j) EXPECT_NEAR(l.x[j], j + 1, 1e-9) << "X" << j + 1;
}

TEST(Gauss, SingularSystems)
{
    // x+y=2, 2x+2y=5 contradicts itself.
    const Ergebnis widerspruch = berechne(0, {"1 1 2", "2 2 5"});
    EXPECT_FALSE(widerspruch.ok);
    EXPECT_TRUE(enthaelt(widerspruch, "System nicht lösbar!")) << alle(widerspruch);
    EXPECT_TRUE(enthaelt(widerspruch, " Determinante der Koeffizientenmatrix 0")) << alle(widerspruch);

    // x+y=2, 2x+2y=4: one free parameter e; every point x = 2 - e, y = e solves it.
    const LgsLoesung l = loeseLgs({{1, 1, 2}, {2, 2, 4}}, 2);
    ASSERT_EQ(l.art, LgsArt::parametrisch);
    ASSERT_EQ(l.richtungen.size(), 1u);
    for (double e : {-3.0, 0.0, 2.5}) {
        const double x = l.x[0] + e * l.richtungen[0][0], y = l.x[1] + e * l.richtungen[0][1];
        EXPECT_NEAR(x + y, 2, 1e-12);
    }
    const Ergebnis p = berechne(0, {"1 1 2", "2 2 4"});
    EXPECT_TRUE(p.ok);
    EXPECT_TRUE(enthaelt(p, "    X1 = 2 - e")) << alle(p);
    EXPECT_TRUE(enthaelt(p, "    X2 = e")) << alle(p);
    EXPECT_TRUE(enthaelt(p, "Spezielle Lösung für e = 1")) << alle(p);
}

TEST(Gauss, UnderdeterminedSystemHasTwoParameters)
{
    // One plane x + 2y + 3z = 6 in space: two free unknowns.
    const LgsLoesung l = loeseLgs({{1, 2, 3, 6}}, 3);
    ASSERT_EQ(l.art, LgsArt::parametrisch);
    EXPECT_EQ(l.richtungen.size(), 2u);
    for (const auto& d : l.richtungen) EXPECT_NEAR(d[0] + 2 * d[1] + 3 * d[2], 0, 1e-12);
    EXPECT_NEAR(l.x[0] + 2 * l.x[1] + 3 * l.x[2], 6, 1e-12);
}

TEST(Gauss, OverdeterminedSystemGivesLeastSquares)
{
    // Regression line through (0,1), (1,3), (2,4): y = 1.1667 + 1.5 x (normal equations by hand),
    // residual norm sqrt(1/6) = 0.40825.
    const Ergebnis e = berechne(0, {"1 0 1", "1 1 3", "1 2 4"});
    EXPECT_TRUE(enthaelt(e, "    x1 = 1.16666667 ; Näherung") || enthaelt(e, "    x1 = 1,16666667 ; Näherung")) << alle(e);
    EXPECT_TRUE(enthaelt(e, "    x2 = 1.5 ; Näherung") || enthaelt(e, "    x2 = 1,5 ; Näherung")) << alle(e);
    const LgsLoesung l = loeseLgs({{1, 0, 1}, {1, 1, 3}, {1, 2, 4}}, 2);
    EXPECT_NEAR(l.residuum, std::sqrt(1.0 / 6.0), 1e-12);
}

TEST(Gauss, BadInputIsReported)
{
    EXPECT_TRUE(berechne(0, {"1 2 3", "1 2"}).eingabefehler);
    EXPECT_TRUE(berechne(0, {"1 2*+3 3"}).eingabefehler);
    EXPECT_TRUE(berechne(0, {"", ""}).eingabefehler);
    // entries may be terms
    const Ergebnis e = berechne(0, {"SQRT(4) 0 2", "0 2^3 16"});
    EXPECT_TRUE(enthaelt(e, "    X1 = 1")) << alle(e);
    EXPECT_TRUE(enthaelt(e, "    X2 = 2")) << alle(e);
}

TEST(Cramer, ThreeCases)
{
    // 2x+3y=8, x-y=-1: D=-5, Dx=-5, Dy=-10 -> (1 ; 2).
    const Ergebnis e = berechne(5, {"2", "3", "8", "1", "-1", "-1"});
    EXPECT_EQ(e.zeilen, (std::vector<std::string>{"D = -5", "D(x) = -5", "D(y) = -10", "eindeutige Lösung (1 ; 2)"}));
    EXPECT_EQ(berechne(5, {"1", "1", "2", "2", "2", "4"}).zeilen.back(), "unendlich viele Lösungspaare");
    EXPECT_EQ(berechne(5, {"1", "1", "2", "2", "2", "5"}).zeilen.back(), "keine Lösung");
    EXPECT_EQ(berechne(5, {"0", "0", "1", "0", "0", "0"}).zeilen.back(), "keine Lösung");
}
