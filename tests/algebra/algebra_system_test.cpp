// Nonlinear systems, vectors and the headless command.
#include "algebra/algebra.h"
#include "algebra/commands.h"

#include "kernel/term.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

using namespace algebra;

namespace {

std::string alle(const Ergebnis& e)
{
    std::string s;
    for (const auto& z : e.zeilen) s += z + "\n";
    return s;
}

std::vector<std::vector<double>> zeilenwerte(const Ergebnis& e)
{
    std::vector<std::vector<double>> r;
    bool drin = false;
    for (const auto& z : e.zeilen) {
        if (z == "X\tY\tU\tV\tNorm") {
            drin = true;
            continue;
        }
        if (!drin || z.rfind("Status", 0) == 0) continue;
        std::vector<double> v;
        std::string t;
        std::istringstream in(z);
        while (std::getline(in, t, '\t')) {
            for (char& c : t)
                if (c == ',') c = '.';
            v.push_back(t.empty() ? NAN : std::atof(t.c_str()));
        }
        r.push_back(v);
    }
    return r;
}

}  // namespace

TEST(Nichtlinear, CircleAndLine)
{
    // x^2 + y^2 = 25 and x - y = 1 meet in (4, 3) and (-3, -4).
    const Ergebnis e = berechne(6, {"X^2+Y^2-25", "X-Y-1", "", ""});
    const auto z = zeilenwerte(e);
    ASSERT_EQ(z.size(), 2u) << alle(e);
    bool a = false, b = false;
    for (const auto& r : z) {
        a = a || (std::fabs(r[0] - 4) < 1e-6 && std::fabs(r[1] - 3) < 1e-6);
        b = b || (std::fabs(r[0] + 3) < 1e-6 && std::fabs(r[1] + 4) < 1e-6);
    }
    EXPECT_TRUE(a && b) << alle(e);
    EXPECT_EQ(e.zeilen.back(), "Status 100%");
}

TEST(Nichtlinear, FourEquationExampleSolutionsSatisfyTheSystem)
{
    const std::vector<std::string> terme = {"X+Y+U+V-3", "X^2+Y^2+U-2*V-9", "X+Y*U+V-1", "X-V+8"};
    const Ergebnis e = berechne(6, terme);
    const auto z = zeilenwerte(e);
    ASSERT_FALSE(z.empty()) << alle(e);
    // the values are listed with six places, so the residuals are small at that precision
    for (const auto& r : z) {
        const double x = r[0], y = r[1], u = r[2], v = r[3];
        EXPECT_NEAR(x + y + u + v - 3, 0, 1e-4);
        EXPECT_NEAR(x * x + y * y + u - 2 * v - 9, 0, 1e-4);
        EXPECT_NEAR(x + y * u + v - 1, 0, 1e-4);
        EXPECT_NEAR(x - v + 8, 0, 1e-4);
    }
}

TEST(Nichtlinear, CountsMustMatchAndStopWorks)
{
    EXPECT_EQ(berechne(6, {"X+Y", "", "", ""}).zeilen.back(), "Keine Lösung bestimmbar!");
    // EXP and MAX hold the letters X and no variable
    EXPECT_EQ(zeilenwerte(berechne(6, {"EXP(X)-1", "", "", ""})).size(), 1u);
    Abbruch stopp;
    stopp.melden = [](void* ctx, int prozent) {
        if (prozent >= 10) static_cast<Abbruch*>(ctx)->gestoppt = true;
    };
    stopp.ctx = &stopp;
    const Ergebnis e = berechne(6, {"X^2+1", "", "", ""}, &stopp);
    EXPECT_TRUE(stopp.gestoppt);
    EXPECT_EQ(e.zeilen.front(), "Abbruch") << alle(e);
}

TEST(Vektoren, ProductsAnglesAndCombinations)
{
    const Ergebnis e = berechne(9, {"1;2;3", "-2;0;4", "0;0;1", "0;0;0"});
    auto hat = [&](const std::string& z) {
        for (const auto& s : e.zeilen)
            if (s == z) return true;
        return false;
    };
    // a·b = -2 + 0 + 12 = 10; a x b = (8, -10, 4)
    EXPECT_TRUE(hat("Skalarprodukt a · b = 10")) << alle(e);
    EXPECT_TRUE(hat("Vektorprodukt a x b\t(8 ; -10 ; 4)")) << alle(e);
    EXPECT_TRUE(hat("Winkel zwischen c und z-Achse = 0°")) << alle(e);
    EXPECT_TRUE(hat("Winkel zwischen d und x-Achse unbestimmt")) << alle(e);
    EXPECT_TRUE(hat("Spatprodukt (a x b) · c = 4")) << alle(e);
    EXPECT_EQ(berechne(10, {"1;0;2", "0;1;-1", "2;3;1"}).zeilen.front(), "c = 2 · a + 3 · b");
    EXPECT_EQ(berechne(10, {"1;0;0", "0;1;0", "0;0;1"}).zeilen.front(), "c ist keine Linearkombination von a und b");
    EXPECT_TRUE(berechne(10, {"1;0", "0;1;0", "0;0;1"}).eingabefehler);
}

TEST(Befehl, AlgebraCommand)
{
    const auto cmds = algebraCommands();
    ASSERT_EQ(cmds.size(), 1u);
    auto lauf = [&](const quorix::Args& a, std::string& o, std::string& f) {
        std::ostringstream out, err;
        const int rc = cmds[0].run(a, out, err);
        o = out.str();
        f = err.str();
        return rc;
    };
    std::string o, f;
    EXPECT_EQ(lauf({"5", "2", "3", "8", "1", "-1", "-1"}, o, f), 0);
    EXPECT_EQ(o, "D = -5\nD(x) = -5\nD(y) = -10\neindeutige Lösung (1 ; 2)\n");
    EXPECT_EQ(lauf({"3", "X^2", "0"}, o, f), 2);  // fields missing
    EXPECT_EQ(lauf({"3", "X^2", "0", "-1", "1"}, o, f), 1);
    EXPECT_EQ(o.substr(o.rfind('\n', o.size() - 2) + 1), "Keine Lösung gefunden\n");
    EXPECT_EQ(lauf({}, o, f), 2);
    EXPECT_FALSE(f.empty());
    EXPECT_EQ(lauf({"20"}, o, f), 2);
    EXPECT_EQ(lauf({"3", "X", "0", "1", "1", "9"}, o, f), 2);  // too many fields
    EXPECT_EQ(lauf({"0"}, o, f), 0);  // the stored example
    EXPECT_NE(o.find("    X1 = 2\n"), std::string::npos) << o;
}

TEST(Differenzialgleichung, DecayChainAgainstClosedForm)
{
    // Y1' = -0.04 Y1, Y2' = 0.04 Y1 - 0.03 Y2, Y3' = 0.03 Y2 from (1, 0, 0): the two-member decay
    // chain with Y1 = e^(-0.04x), Y2 = 4 (e^(-0.03x) - e^(-0.04x)), Y3 = 1 - Y1 - Y2.
    const Ergebnis e = berechne(8, {"-0.04*Y1", "0.04*Y1-0.03*Y2", "0.03*Y2", "0", "1", "0", "0", "10"});
    ASSERT_TRUE(e.ok) << alle(e);
    ASSERT_EQ(e.zeilen.size(), 102u);  // heading, start and 100 intervals of 0.1
    EXPECT_EQ(e.zeilen[0], "X\tY1\tY2\tY3\tH");
    for (size_t i = 1; i < e.zeilen.size(); i += 25) {
        std::istringstream in(e.zeilen[i]);
        std::string t;
        std::vector<double> v;
        while (std::getline(in, t, '\t')) {
            for (char& c : t)
                if (c == ',') c = '.';
            v.push_back(std::atof(t.c_str()));
        }
        const double x = v[0], y1 = std::exp(-0.04 * x), y2 = 4 * (std::exp(-0.03 * x) - std::exp(-0.04 * x));
        EXPECT_NEAR(v[1], y1, 2e-6) << e.zeilen[i];
        EXPECT_NEAR(v[2], y2, 2e-6) << e.zeilen[i];
        EXPECT_NEAR(v[3], 1 - y1 - y2, 2e-6) << e.zeilen[i];
    }
}

TEST(Differenzialgleichung, BackwardsSingleEquationAndFaults)
{
    // y' = y from y(0) = 1 backwards to -1 gives 1/e.
    const Ergebnis e = berechne(8, {"Y", "", "", "0", "1", "", "", "-1"});
    ASSERT_TRUE(e.ok) << alle(e);
    std::string letzte = e.zeilen.back();
    for (char& c : letzte)
        if (c == ',') c = '.';
    EXPECT_NEAR(std::atof(letzte.substr(letzte.find('\t') + 1).c_str()), std::exp(-1.0), 2e-6) << letzte;
    // sqrt(0.55 - x) is undefined beyond x = 0.55: the run ends with "Abbruch"
    const Ergebnis pol = berechne(8, {"SQRT(0.55-X)", "", "", "0", "0", "", "", "1"});
    EXPECT_EQ(pol.zeilen.back(), "Abbruch") << alle(pol);
    EXPECT_TRUE(berechne(8, {"", "", "", "0", "1", "", "", "1"}).eingabefehler);
}

TEST(Nichtlinear, TwoEquationExampleListsEachSolutionOnce)
{
    // The origin is a solution where the Jacobian is singular; slow convergence there must not
    // produce several rows for the same point.
    const Ergebnis e = berechne(6, {"X^4+Y^4-12*X*Y", "X*SQRT(ABS(X))-Y*SQRT(ABS(Y))-X", "", ""});
    const auto z = zeilenwerte(e);
    ASSERT_FALSE(z.empty()) << alle(e);
    int amUrsprung = 0;
    for (const auto& r : z) {
        const double x = r[0], y = r[1];
        EXPECT_NEAR(x * x * x * x + y * y * y * y - 12 * x * y, 0, 1e-3) << alle(e);
        EXPECT_NEAR(x * std::sqrt(std::fabs(x)) - y * std::sqrt(std::fabs(y)) - x, 0, 1e-4) << alle(e);
        amUrsprung += std::fabs(x) < 0.01 && std::fabs(y) < 0.01;
    }
    EXPECT_EQ(amUrsprung, 1) << alle(e);
}
