// Descriptive statistics, fitting, confidence intervals and hypothesis tests against published
// data sets and table values.
#include "stochastics/ustatistik.h"
#include "stochastics/utests.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

using namespace zufall;

namespace {
// Anscombe's quartet, set I (Anscombe 1973): mean x 9, var x 11, mean y 7.50, var y 4.127,
// r = 0.816, line y = 3.00 + 0.500 x.
const std::vector<double> kAx = {10, 8, 13, 9, 11, 14, 6, 4, 12, 7, 5};
const std::vector<double> kAy = {8.04, 6.95, 7.58, 8.81, 8.33, 9.96, 7.24, 4.26, 10.84, 4.82, 5.68};

bool enthaelt(const Zeilen& z, const std::string& text)
{
    return std::any_of(z.begin(), z.end(), [&](const std::string& l) { return l.find(text) != std::string::npos; });
}
std::string alle(const Zeilen& z)
{
    std::string s;
    for (const auto& l : z) s += l + "\n";
    return s;
}
}  // namespace

TEST(Statistik, KnownDataSets)
{
    // the textbook deviation example {2,4,4,4,5,5,7,9}: mean 5, population deviation 2
    const Kennwerte k = kennwerte({2, 4, 4, 4, 5, 5, 7, 9});
    EXPECT_DOUBLE_EQ(k.mittel, 5);
    EXPECT_DOUBLE_EQ(k.standardabweichung, 2);
    EXPECT_NEAR(k.stichprobenvarianz, 32.0 / 7, 1e-12);
    EXPECT_DOUBLE_EQ(k.median, 4.5);
    EXPECT_DOUBLE_EQ(k.streubreite, 7);
    EXPECT_DOUBLE_EQ(k.mittlereAbweichung, 1.5);
    EXPECT_DOUBLE_EQ(k.ohneBeide, 29.0 / 6);
    // means of small sets: geometric {1,3,9} = 3, harmonic {1,2,4} = 12/7, quadratic {1,7} = 5
    EXPECT_NEAR(kennwerte({1, 3, 9}).geometrisch, 3, 1e-12);
    EXPECT_NEAR(kennwerte({1, 2, 4}).harmonisch, 12.0 / 7, 1e-12);
    EXPECT_NEAR(kennwerte({1, 7}).quadratisch, 5, 1e-12);
    const Kennwerte a = kennwerte(kAx), b = kennwerte(kAy);
    EXPECT_NEAR(a.stichprobenvarianz, 11, 1e-12);
    EXPECT_NEAR(b.mittel, 7.50, 0.005);
    EXPECT_NEAR(b.stichprobenvarianz, 4.127, 0.0005);
}

TEST(Statistik, ResultLinesAndUndefinedRows)
{
    const Zeilen z = statistikZeilen({2, 4, 4, 4, 5, 5, 7, 9});
    EXPECT_EQ(z.size(), 18u);
    EXPECT_EQ(z[0], "Werteanzahl\t8");
    EXPECT_EQ(z[1], "Mittelwert\t5");
    EXPECT_TRUE(enthaelt(z, "Medianwert\t4.5")) << alle(z);
    EXPECT_TRUE(enthaelt(z, "50 % -Intervall\t[4 ; 5.5]")) << alle(z);
    // a zero in the data leaves the geometric mean undefined; one value leaves the variance so
    EXPECT_TRUE(enthaelt(statistikZeilen({0, 1, 2}), "Geometrisches Mittel\tunbestimmt"));
    const Zeilen eins = statistikZeilen({3});
    EXPECT_TRUE(enthaelt(eins, "Stichprobenvarianz\tunbestimmt")) << alle(eins);
    EXPECT_TRUE(enthaelt(eins, "Mittelwert\t3"));
    const Zeilen leer = statistikZeilen({});
    EXPECT_EQ(leer[0], "Werteanzahl\t0");
    EXPECT_TRUE(enthaelt(leer, "Mittelwert\tunbestimmt"));
    // the histogram's bars are densities: their area is 1
    const Diagramm d = statistikDiagramm(kAy);
    double flaeche = 0;
    for (const auto& b : d.balken) flaeche += b.hoehe * b.breite;
    EXPECT_NEAR(flaeche, 1, 1e-12);
    EXPECT_FALSE(d.kurven.empty());
}

TEST(Statistik, ReadingNumbers)
{
    std::string fehler;
    EXPECT_EQ(leseZahlen("1,5 2\n-3e2", &fehler), (std::vector<double>{1.5, 2, -300}));
    EXPECT_EQ(leseZahlen("1.5;2,5;x", &fehler), (std::vector<double>{1.5, 2.5}));
    EXPECT_EQ(fehler, "x");
}

TEST(Anpassung, AnscombeLineAndExactModels)
{
    const Anpassung g = anpassen(kAx, kAy, 1);
    ASSERT_TRUE(g.gueltig);
    EXPECT_NEAR(g.a, 0.500, 0.0005);  // slope
    EXPECT_NEAR(g.b, 3.00, 0.005);
    EXPECT_NEAR(g.r, 0.816, 0.0005);
    // data lying exactly on a model is recovered with r = 1
    std::vector<double> x, ye, yg, yl;
    for (int i = 1; i <= 8; ++i) {
        x.push_back(i);
        ye.push_back(3 * std::pow(2, i));
        yg.push_back(2 * std::pow(i, 1.5));
        yl.push_back(1 - 4 * std::log(i));
    }
    const Anpassung e = anpassen(x, ye, 3), geo = anpassen(x, yg, 4), l = anpassen(x, yl, 2);
    EXPECT_NEAR(e.a, 3, 1e-9);
    EXPECT_NEAR(e.b, 2, 1e-9);
    EXPECT_NEAR(geo.a, 2, 1e-9);
    EXPECT_NEAR(geo.b, 1.5, 1e-9);
    EXPECT_NEAR(l.b, -4, 1e-9);
    EXPECT_NEAR(l.r, -1, 1e-12);
    // the printed term evaluates through the interpreter to the model
    Diagramm d;
    const Zeilen z = anpassungZeilen(x, yl, 2, &d);
    ASSERT_FALSE(d.kurven.empty());
    for (const auto& p : d.kurven[0]) EXPECT_NEAR(p.second, 1 - 4 * std::log(p.first), 1e-6) << alle(z);
    // a tiny constant keeps its value in the drawn term (growth over years: A near 1e-72);
    // eight decimals in the term are enough for drawing (1e-4 relative)
    const std::vector<double> jahre = {1970, 1980, 1990, 2000, 2010};
    std::vector<double> schulden;
    for (double j : jahre) schulden.push_back(64 * std::pow(1.09, j - 1970));
    Diagramm gd;
    const Zeilen zg = anpassungZeilen(jahre, schulden, 3, &gd);
    ASSERT_FALSE(gd.kurven.empty());
    EXPECT_NEAR(gd.kurven[0].back().second / (64 * std::pow(1.09, gd.kurven[0].back().first - 1970)), 1, 1e-4) << alle(zg);
    // models that need positive values refuse others
    EXPECT_FALSE(anpassen({-1, 2}, {1, 2}, 2).gueltig);
    EXPECT_FALSE(anpassen({1}, {1}, 1).gueltig);
}

TEST(Anpassung, ThreeTargetFunctions)
{
    std::vector<double> x, y;
    for (int i = 0; i <= 12; ++i) {
        x.push_back(i * 0.5);
        y.push_back(2 * std::sin(i * 0.5) - 0.5 * std::sin(i * 1.0) + 0.1 * std::sin(i * 1.5));
    }
    const std::string terme[3] = {"SIN(X)", "SIN(2*X)", "SIN(3*X)"};
    const Regression r = regression3(x, y, terme);
    ASSERT_TRUE(r.gueltig);
    EXPECT_NEAR(r.k[0], 2, 1e-9);
    EXPECT_NEAR(r.k[1], -0.5, 1e-9);
    EXPECT_NEAR(r.k[2], 0.1, 1e-9);
    const std::string gleich[3] = {"X", "2*X", "SIN(X)"};
    EXPECT_FALSE(regression3(x, y, gleich).gueltig);  // dependent functions
}

TEST(Konfidenz, IntervalsFromTableQuantiles)
{
    const std::vector<double> w = {9.8, 10.2, 10.4, 9.9, 10.0, 10.1, 9.7, 10.3, 10.2, 9.9};
    const Kennwerte k = kennwerte(w);
    Intervall m, v;
    ASSERT_TRUE(konfidenzMittelwert(w, 0.95, m));
    // t(0.975; 9) = 2.262157, chi²(0.025; 9) = 2.700389, chi²(0.975; 9) = 19.022768 (standard tables)
    EXPECT_NEAR(m.oben, k.mittel + 2.262157 * k.probenStandardabweichung / std::sqrt(10.0), 1e-6);
    ASSERT_TRUE(konfidenzVarianz(w, 0.95, v));
    EXPECT_NEAR(v.unten, 9 * k.stichprobenvarianz / 19.022768, 1e-6);
    EXPECT_NEAR(v.oben, 9 * k.stichprobenvarianz / 2.700389, 1e-6);
    EXPECT_TRUE(enthaelt(konfidenzZeilen({1}, 2), "Konfidenzgrenzen\tunbestimmt"));
}

TEST(Tests, BinomialAcceptanceRegions)
{
    // n = 100, p = 0.5, 5 % two-sided: the textbook acceptance region 40 to 60
    const Annahmebereich a = binomialAnnahmebereich(100, 0.5, 0.05, true);
    EXPECT_EQ(a.links, 40);
    EXPECT_EQ(a.rechts, 60);
    EXPECT_LE(a.fehler1, 0.05);
    // n = 20, p = 0.5, 5 % right-sided: P(X >= 15) = 0.0207 < 0.05 < P(X >= 14) = 0.0577
    EXPECT_EQ(binomialAnnahmebereich(20, 0.5, 0.05, false).rechts, 14);
    EXPECT_TRUE(enthaelt(binomialTestZeilen(100, 0.5, 61, 0.05, true), "nicht angenommen werden !"));
    EXPECT_TRUE(enthaelt(binomialTestZeilen(100, 0.5, 60, 0.05, true), "Annahmebereich\t40 bis 60"));
    EXPECT_TRUE(enthaelt(binomialTestZeilen(100, 0.5, 60, 0.05, true), "kann angenommen werden !"));
}

TEST(Tests, TTestAndChiSquare)
{
    const std::vector<double> w = {9.8, 10.2, 10.4, 9.9, 10.0, 10.1, 9.7, 10.3, 10.2, 9.9};
    const Testergebnis t = tTest(w, 10, 0.05, true);
    EXPECT_NEAR(t.tabellenwert, 2.262157, 1e-6);
    EXPECT_FALSE(t.ablehnen);
    EXPECT_TRUE(tTest(w, 9.5, 0.05, true).ablehnen);
    EXPECT_TRUE(enthaelt(tTestZeilen(w, 9.5, 0.01, false), "muss abgelehnt werden!"));
    // fair die counts: chi² 0 against 11.070498 (5 df, 5 %); a loaded die is rejected
    const Testergebnis g = chiQuadratTest({10, 10, 10, 10, 10, 10}, std::vector<double>(6, 10), 0.05);
    EXPECT_NEAR(g.tabellenwert, 11.070498, 1e-6);
    EXPECT_FALSE(g.ablehnen);
    const Zeilen z = chiTestZeilen(1, {5, 8, 9, 8, 10, 20}, {}, 0.05);
    EXPECT_TRUE(enthaelt(z, "Testgröße = 13.4")) << alle(z);
    EXPECT_TRUE(enthaelt(z, "muss abgelehnt werden!"));
}

TEST(Tests, FourFieldTable)
{
    const Vierfeld v = vierfeldTest(10, 20, 30, 40);
    EXPECT_NEAR(v.chi2, 100.0 * 200 * 200 / (30 * 70 * 40 * 60), 1e-12);
    EXPECT_TRUE(enthaelt(vierfeldZeilen(10, 20, 30, 40), "Nullhypothese kann nicht abgelehnt werden"));
    const Zeilen stark = vierfeldZeilen(60, 20, 20, 60);
    EXPECT_TRUE(enthaelt(stark, "Nullhypothese kann zum Niveau 0,1% abgelehnt werden")) << alle(stark);
    EXPECT_TRUE(enthaelt(stark, "P(A|B)\t0.75"));
    EXPECT_TRUE(enthaelt(vierfeldZeilen(1, 2, 1, 0), "nicht entschieden"));
}
