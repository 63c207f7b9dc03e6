// Simulations repeat with their seed and approach the exact probabilities within binomial error
// bounds (4.5 standard deviations: a false alarm about once in 300000 runs).
#include "stochastics/usimulation.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

using namespace zufall;

namespace {
// |k/n - p| within 4.5 binomial standard deviations
void imBereich(long k, long n, double p, const std::string& was)
{
    const double sigma = std::sqrt(p * (1 - p) / n);
    EXPECT_NEAR(double(k) / n, p, 4.5 * sigma + 1e-12) << was << ": " << k << " of " << n << ", expected p = " << p;
}

long zahlNach(const Zeilen& z, const std::string& anfang, size_t spalte = 1)
{
    for (const auto& l : z)
        if (l.rfind(anfang, 0) == 0) {
            size_t pos = 0;
            for (size_t i = 0; i < spalte; ++i) pos = l.find('\t', pos) + 1;
            return std::stol(l.substr(pos));
        }
    ADD_FAILURE() << "no line " << anfang;
    return -1;
}
}  // namespace

TEST(Zufall, GeneratorIsUniformAndRepeatable)
{
    Zufall a(42), b(42), c(43);
    std::vector<long> h(7, 0);
    bool gleich = true, anders = false;
    for (int i = 0; i < 70000; ++i) {
        const int x = a.random(7);
        gleich &= x == b.random(7);
        anders |= x != c.random(7);
        ASSERT_GE(x, 0);
        ASSERT_LT(x, 7);
        ++h[x];
    }
    EXPECT_TRUE(gleich);
    EXPECT_TRUE(anders);
    for (long k : h) imBereich(k, 70000, 1.0 / 7, "random(7)");
}

TEST(Wuerfel, ExactSumDistributions)
{
    // two ideal dice: P(7) = 6/36; three dice: P(10) = 27/216
    EXPECT_NEAR(augensummenVerteilung(0, 2)[7], 6.0 / 36, 1e-15);
    EXPECT_NEAR(augensummenVerteilung(0, 3)[10], 27.0 / 216, 1e-15);
    // Sicherman's pair has the sum distribution of two ideal dice
    const auto s = augensummenVerteilung(3, 2), i = augensummenVerteilung(0, 2);
    ASSERT_EQ(s.size(), i.size());
    for (size_t k = 0; k < s.size(); ++k) EXPECT_NEAR(s[k], i[k], 1e-15) << k;
    // a loaded first die: weights 1..6 for its faces
    EXPECT_NEAR(augensummenVerteilung(0, 1, {1, 1, 1, 1, 1, 5})[6], 0.5, 1e-15);
}

TEST(Wuerfel, SimulationConverges)
{
    Zufall z(7);
    const Ergebnis e = wuerfelExperiment(0, 2, 60000, z);
    imBereich(zahlNach(e.zeilen, "7\t"), 60000, 1.0 / 6, "sum 7");
    imBereich(zahlNach(e.zeilen, "12\t"), 60000, 1.0 / 36, "sum 12");
    Zufall z2(7);
    EXPECT_EQ(wuerfelExperiment(0, 2, 60000, z2).zeilen, e.zeilen);  // same seed, same run
    Zufall z3(8);
    const Ergebnis g = wuerfelExperiment(0, 1, 30000, z3, {1, 1, 1, 1, 1, 5});
    imBereich(zahlNach(g.zeilen, "6\t"), 30000, 0.5, "loaded six");
}

TEST(Karten, AcesAndRuns)
{
    Zufall z(3);
    const Ergebnis e = kartenExperiment(0, true, 40000, z);
    const std::string t = e.zeilen[2];
    ASSERT_EQ(t.rfind("Treffer = ", 0), 0u);
    imBereich(std::stol(t.substr(10)), 40000, 1.0 / 8, "skat ace");
    // without putting back, every 52 draws hold each ace once
    Zufall z2(4);
    const Ergebnis b = kartenExperiment(1, false, 5200, z2);
    EXPECT_EQ(b.zeilen[2], "Treffer = 400");
    EXPECT_NE(b.zeilen[5].find("längste Phase mit "), std::string::npos);
}

TEST(Lotto, ClassesAndSimulation)
{
    // 6 of 49 with additional number: the classes with no match left out sum to 1 - P(0 right)
    const auto k = lottoKlassen(6, 49, true);
    double s = 0;
    for (const auto& c : k) s += c.exakt;
    EXPECT_NEAR(s, 1 - 6096454.0 / 13983816, 1e-12);
    const auto sechser = std::find_if(k.begin(), k.end(), [](const Lottoklasse& c) { return c.name == "Sechser"; });
    EXPECT_NEAR(sechser->exakt, 1.0 / 13983816, 1e-18);
    const auto fuenfZZ = std::find_if(k.begin(), k.end(), [](const Lottoklasse& c) { return c.name == "Fünf+ZZ"; });
    EXPECT_NEAR(fuenfZZ->exakt, 6.0 / 13983816, 1e-18);
    Zufall z(11);
    const Ergebnis e = lottoSimulation(6, 49, true, {3, 9, 17, 22, 31, 45}, 100000, z);
    imBereich(zahlNach(e.zeilen, "Dreier\t"), 100000, 246820.0 / 13983816, "Dreier");
    imBereich(zahlNach(e.zeilen, "Zweier\t"), 100000, 1851150.0 / 13983816, "Zweier");
    Zufall z2(1);
    EXPECT_EQ(lottoSimulation(6, 49, false, {1, 1, 2, 3, 4, 5}, 10, z2).zeilen.size(), 1u);  // tip with a repeat
}

TEST(Ziege, SwitchingWinsTwoThirds)
{
    Zufall z(5);
    const Ergebnis e = ziegenSimulation(30000, z);
    imBereich(zahlNach(e.zeilen, "Gewinne mit Wechsel"), 30000, 2.0 / 3, "switch");
    imBereich(zahlNach(e.zeilen, "Gewinne ohne Wechsel"), 30000, 1.0 / 3, "stay");
}

TEST(Efron, NonTransitiveDice)
{
    // A beats B, B beats C, C beats D and D beats A, each with probability 2/3
    EXPECT_NEAR(efronGewinn(0, 1), 2.0 / 3, 1e-15);
    EXPECT_NEAR(efronGewinn(1, 2), 2.0 / 3, 1e-15);
    EXPECT_NEAR(efronGewinn(2, 3), 2.0 / 3, 1e-15);
    EXPECT_NEAR(efronGewinn(3, 0), 2.0 / 3, 1e-15);
    EXPECT_NEAR(efronGewinn(4, 4), 15.0 / 36, 1e-15);
    Zufall z(9);
    const Ergebnis e = efronSpiel(3, 0, 20000, z);
    long abel = -1;
    for (const auto& l : e.zeilen)
        if (l.rfind("Abel gewinnt ", 0) == 0) abel = std::stol(l.substr(13));
    imBereich(abel, 20000, 1.0 / 3, "A against D");
}

TEST(Geburtstag, ExactAndSimulated)
{
    // 23 persons: 0.507297 (the classic figure); 366 persons must share a day
    EXPECT_NEAR(geburtstagExakt(23), 0.507297, 1e-6);
    EXPECT_NEAR(geburtstagExakt(50), 0.970374, 1e-6);
    Zufall z(13);
    const Ergebnis e = geburtstagSimulation(23, 20000, z);
    imBereich(std::stol(e.zeilen[5]), 20000, geburtstagExakt(23), "23 persons");
    Zufall z2(1);
    const Ergebnis voll = geburtstagSimulation(366, 50, z2);
    EXPECT_EQ(voll.zeilen[5].rfind("50 Simulationsläufe", 0), 0u) << voll.zeilen[5];
    // progress reports and a stop
    Zufall z3(1);
    int meldungen = 0;
    const Ergebnis halb = geburtstagSimulation(23, 1000, z3, [&](int p) { return ++meldungen, p < 50; });
    EXPECT_TRUE(halb.abgebrochen);
    EXPECT_EQ(halb.zeilen[1], "Testläufe\t500");
}

TEST(Markow, StationaryLawAndErrors)
{
    const Markow m = markowAusText("0.5 0.5\n0.2 0.8");
    ASSERT_TRUE(m.fehler.empty());
    const auto pi = markowStationaer(m);
    EXPECT_NEAR(pi[0], 2.0 / 7, 1e-12);
    EXPECT_NEAR(markowSchritte(m, 0, 200)[1], 5.0 / 7, 1e-12);
    EXPECT_NEAR(markowSchritte(m, 0, 1)[1], 0.5, 1e-15);
    Zufall z(2);
    const Ergebnis e = markowSimulation(m, 0, 50000, z);
    EXPECT_NE(std::find(e.zeilen.begin(), e.zeilen.end(), "1 -> 1 = 0.8"), e.zeilen.end());
    // a row over 1 names its state
    EXPECT_EQ(markowAusText("0.5 0.5\n0.7 0.6").fehler, "Übergangswahrscheinlichkeit am Punkt 1 ist größer 1");
    EXPECT_FALSE(markowAusText("1 0 0\n0 1").fehler.empty());
}

TEST(Pfadregel, UrnPaths)
{
    // 3 red, 2 black without putting back: red-red 3/5 * 2/4; red-black in any order 6/10
    EXPECT_NEAR(pfadregel({3, 2}, {0, 0}, false).wahrscheinlichkeit, 0.3, 1e-15);
    EXPECT_NEAR(pfadregel({3, 2}, {0, 1}, false).ohneReihenfolge, 0.6, 1e-15);
    // with putting back: three sixes of a die as a 1-of-6 urn
    EXPECT_NEAR(pfadregel({1, 5}, {0, 0, 0}, true).wahrscheinlichkeit, 1.0 / 216, 1e-15);
    const Ergebnis e = pfadErgebnis({3, 2}, {0, 1}, false);
    EXPECT_EQ(e.zeilen[3], "Wahrscheinlichkeit \t3/5 · 2/4 = 0.3");
    EXPECT_EQ(e.bild.linien.size(), 4u);
}

TEST(Ausgleich, AbsoluteSpreadGrowsRelativeShrinks)
{
    Zufall z(21);
    const Ergebnis e = ausgleichSimulation(60000, z);
    const std::string& d = e.zeilen[8];
    ASSERT_EQ(d.rfind("Differenz H(max)-H(min) = ", 0), 0u);
    const long diff = std::stol(d.substr(26));
    // the spread of six counts of 10000 is some hundreds at most, far under 1 % of the throws
    EXPECT_GT(diff, 0);
    EXPECT_LT(diff, 600);
}
