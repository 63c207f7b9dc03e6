// Equations, inequalities and polynomials in one variable, with roots known in closed form.
#include "algebra/algebra.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

using namespace algebra;

namespace {

std::string alle(const Ergebnis& e)
{
    std::string s;
    for (const auto& z : e.zeilen) s += z + "\n";
    return s;
}

// The numbers behind a prefix such as "X = " or "x1 = ", in list order.
std::vector<double> werte(const Ergebnis& e, const std::string& praefix)
{
    std::vector<double> v;
    for (auto z : e.zeilen) {
        if (z.rfind(praefix, 0) != 0) continue;
        z = z.substr(praefix.size());
        for (char& c : z)
            if (c == ',') c = '.';
        v.push_back(std::atof(z.c_str()));
    }
    return v;
}

bool nahe(const std::vector<double>& ist, const std::vector<double>& soll, double tol)
{
    if (ist.size() != soll.size()) return false;
    for (size_t i = 0; i < ist.size(); ++i)
        if (std::fabs(ist[i] - soll[i]) > tol) return false;
    return true;
}

}  // namespace

TEST(Gleichung, RootsOfACubicWithinTheInterval)
{
    // X^3 - 2X = X - 1  <=>  X^3 - 3X + 1 = 0: roots 2cos(40°), 2cos(80°), 2cos(160°).
    const Ergebnis e = berechne(3, {"X^3-2*X", "X-1", "-5", "5"});
    const std::vector<double> soll = {2 * std::cos(160 * M_PI / 180), 2 * std::cos(80 * M_PI / 180),
                                      2 * std::cos(40 * M_PI / 180)};
    EXPECT_TRUE(nahe(werte(e, "X = "), soll, 2e-6)) << alle(e);
    EXPECT_TRUE(e.ok);
}

TEST(Gleichung, TranscendentalAndSpecialCases)
{
    // cos x = x has the Dottie number 0.739085 as its only root.
    EXPECT_TRUE(nahe(werte(berechne(3, {"COS(X)", "X", "-10", "10"}), "X = "), {0.739085}, 2e-6));
    // a double root does not change sign and is not found
    const Ergebnis doppelt = berechne(3, {"X^2", "0", "-5", "5"});
    EXPECT_FALSE(doppelt.ok);
    EXPECT_EQ(doppelt.zeilen.back(), "Keine Lösung gefunden");
    // b <= a: the search runs on [a, a + 5], so the root 4 in [1, 6] is found
    EXPECT_TRUE(nahe(werte(berechne(3, {"X", "4", "1", "1"}), "X = "), {4}, 1e-6));
    // a pole of 1/X is no root; a root on a grid point is listed once
    EXPECT_FALSE(berechne(3, {"1/X", "0", "-1", "1"}).ok);
    EXPECT_TRUE(nahe(werte(berechne(3, {"X-2", "0", "-10", "10"}), "X = "), {2}, 1e-9));
    // decimal comma and lower case are accepted
    EXPECT_TRUE(nahe(werte(berechne(3, {"x", "0,5", "0", "1"}), "X = "), {0.5}, 1e-6));
    EXPECT_TRUE(berechne(3, {"", "1", "0", "1"}).eingabefehler);
}

TEST(Ungleichung, IntervalsBetweenRoots)
{
    // X^2 < X + 2  <=>  (X - 2)(X + 1) < 0 on ]-1 ; 2[.
    EXPECT_EQ(berechne(19, {"X^2", "<", "X+2", "-5", "5"}).zeilen.back(), "] -1 ; 2 [");
    // X^2 >= X + 2 on [-5 ; -1] and [2 ; 5]
    const Ergebnis aussen = berechne(19, {"X^2", ">=", "X+2", "-5", "5"});
    ASSERT_EQ(aussen.zeilen.size(), 3u) << alle(aussen);
    EXPECT_EQ(aussen.zeilen[1], "[ -5 ; -1 ]");
    EXPECT_EQ(aussen.zeilen[2], "[ 2 ; 5 ]");
    // (X-1)^2 > 0 holds on both sides of the touching point 1, which a strict relation excludes
    const Ergebnis beruehrt = berechne(19, {"(X-1)^2", ">", "0", "-3", "3"});
    EXPECT_EQ(beruehrt.zeilen.back(), "[ -3 ; 3 ]") << alle(beruehrt);
    EXPECT_FALSE(berechne(19, {"X^2", "<", "-1", "-5", "5"}).ok);
    EXPECT_TRUE(berechne(19, {"X", "!", "1", "0", "1"}).eingabefehler);
}

TEST(Polynom, RealRootsByDeflation)
{
    // x^4 - 5x^2 + 4 = (x-1)(x+1)(x-2)(x+2)
    const Ergebnis e = berechne(4, {"0", "0", "1", "0", "-5", "0", "4"});
    std::vector<double> wurzeln;
    for (int i = 1; i <= 4; ++i) {
        const auto w = werte(e, "x" + std::to_string(i) + " = ");
        ASSERT_EQ(w.size(), 1u) << alle(e);
        wurzeln.push_back(w[0]);
    }
    std::sort(wurzeln.begin(), wurzeln.end());
    EXPECT_TRUE(nahe(wurzeln, {-2, -1, 1, 2}, 1e-4)) << alle(e);
    EXPECT_EQ(e.zeilen.front(), "f(x) = X^4-5*X^2+4");
    EXPECT_EQ(e.zeilen[e.zeilen.size() - 2], "1.Ableitung : Y = 4*X^3-10*X");
    EXPECT_EQ(e.zeilen.back(), "2.Ableitung : Y = 12*X^2-10");
}

TEST(Polynom, RootsOutsideTheRangeAndDoubleRoots)
{
    // (x-20)^6 has no root in -15..15, yet its derivatives are printed
    // x^6 -120x^5 + 6000x^4 -160000x^3 + 2400000x^2 -19200000x + 64000000
    const Ergebnis fern = berechne(4, {"1", "-120", "6000", "-160000", "2400000", "-19200000", "64000000"});
    EXPECT_FALSE(fern.ok);
    EXPECT_TRUE(werte(fern, "x1 = ").empty());
    EXPECT_EQ(fern.zeilen[fern.zeilen.size() - 2].rfind("1.Ableitung : Y = 6*X^5-600*X^4", 0), 0u) << alle(fern);
    // x^3 - x^2 = x^2 (x - 1): only the simple root 1 changes sign
    const Ergebnis d = berechne(4, {"0", "0", "0", "1", "-1", "0", "0"});
    EXPECT_TRUE(nahe(werte(d, "x1 = "), {1}, 1e-4)) << alle(d);
    EXPECT_TRUE(werte(d, "x2 = ").empty()) << alle(d);
    // the zero polynomial and a constant
    EXPECT_EQ(berechne(4, {"", "", "", "", "", "", ""}).zeilen.front(), "f(x) = 0");
}

TEST(Standardaufgaben, StepByStep)
{
    // x² - 2x - 8 = (x - 4)(x + 2)
    const Ergebnis q = berechne(12, {"2", "-2", "-8", ""});
    EXPECT_TRUE(nahe(werte(q, "x1 = -p/2 + Wurzel aus D = "), {4}, 1e-12)) << alle(q);
    EXPECT_TRUE(nahe(werte(q, "x2 = -p/2 - Wurzel aus D = "), {-2}, 1e-12)) << alle(q);
    EXPECT_TRUE(nahe(werte(q, "D = (p/2)² - q = "), {9}, 1e-12)) << alle(q);
    const Ergebnis keine = berechne(12, {"2", "0", "1", ""});
    EXPECT_EQ(keine.zeilen.back(), "keine Lösung");
    // 2^x = 1024 gives 10; bases and values out of range are named
    EXPECT_NEAR(werte(berechne(12, {"3", "2", "1024", ""}), "x = ").back(), 10, 1e-9);
    EXPECT_EQ(berechne(12, {"3", "1", "5", ""}).zeilen.back(),
              "Basis der Exponentialfunktion muss größer 0 und verschieden 1 sein!");
    EXPECT_EQ(berechne(12, {"3", "2", "-4", ""}).zeilen[2], "Exponentialfunktion kann keinen Funktionswert <= 0 annehmen!");
    // 3x + 4 = 10 gives 2; 0x + 1 = 1 holds for every x
    EXPECT_NEAR(werte(berechne(12, {"1", "3", "4", "10"}), "x = ").back(), 2, 1e-12);
    EXPECT_EQ(berechne(12, {"1", "0", "1", "1"}).zeilen.back(), "unendlich viele Lösungen");
    // x² + 6x + 5 = (x + 3)² - 4, vertex (-3 ; -4)
    EXPECT_EQ(berechne(12, {"6", "6", "5", ""}).zeilen.back(), "Scheitelpunkt S(-3 ; -4)");
    EXPECT_TRUE(berechne(12, {"7", "1", "1", ""}).eingabefehler);
}

TEST(Ungleichung, LinearStepByStep)
{
    // -2x + 3 < x - 6  <=>  -3x < -9  <=>  x > 3
    const Ergebnis e = berechne(13, {"-2", "3", "<", "1", "-6"});
    EXPECT_EQ(e.zeilen.back(), "L = ] 3 ; ∞ [") << alle(e);
    EXPECT_EQ(e.zeilen[e.zeilen.size() - 2], "x > 3") << alle(e);
    // 2x <= 4 keeps its direction and the bound
    EXPECT_EQ(berechne(13, {"2", "0", "<=", "0", "4"}).zeilen.back(), "L = ] -∞ ; 2 ]");
    // x + 1 > x holds everywhere, x > x + 1 nowhere
    EXPECT_EQ(berechne(13, {"1", "1", ">", "1", "0"}).zeilen.back(), "wahr für alle x: L = R");
    EXPECT_FALSE(berechne(13, {"1", "0", ">", "1", "1"}).ok);
    EXPECT_TRUE(berechne(13, {"1", "0", "=", "1", "1"}).eingabefehler);
}
