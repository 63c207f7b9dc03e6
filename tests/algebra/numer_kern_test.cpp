// Building blocks and the real-valued topics: primality, sequences on long numbers, interest tables.
#include "algebra/numer.h"

#include <gtest/gtest.h>

#include "kernel/realtostr.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace {
numer::Ergebnis lauf(int thema, std::vector<std::string> felder, int option = 0)
{
    numer::Eingabe e;
    e.felder = std::move(felder);
    e.option = option;
    return numer::berechne(thema, e);
}

// The number after the first tab of the line that starts with `kopf`.
double wert(const numer::Ergebnis& r, const std::string& kopf, int spalte = 1)
{
    for (const auto& z : r.zeilen)
        if (z.rfind(kopf, 0) == 0) {
            size_t p = 0;
            for (int i = 0; i < spalte; ++i) p = z.find('\t', p) + 1;
            return std::stod(z.substr(p));
        }
    ADD_FAILURE() << "no line starting with " << kopf;
    return NAN;
}
}  // namespace

TEST(NumerKern, PrimalityAgreesWithSieveAndKnownPrimes)
{
    const auto p = numer::primzahlenBis(100000);
    EXPECT_EQ(p.size(), 9592u);  // pi(10^5)
    size_t k = 0;
    for (uint64_t n = 0; n <= 100000; ++n) {
        const bool inListe = k < p.size() && p[k] == n;
        if (inListe) ++k;
        ASSERT_EQ(numer::istPrim(n), inListe) << n;
    }
    // strong pseudoprimes to several bases must not pass: 3215031751 (bases 2,3,5,7), 3825123056546413051
    EXPECT_FALSE(numer::istPrim(3215031751ULL));
    EXPECT_FALSE(numer::istPrim(3825123056546413051ULL));
    EXPECT_TRUE(numer::istPrim(18446744073709551557ULL));  // largest 64-bit prime
    EXPECT_EQ(numer::zerlegungText(600851475143ULL), "71 · 839 · 1471 · 6857");
    EXPECT_EQ(numer::eulerPhi(36), 12u);
    EXPECT_EQ(numer::teilersumme(8128), 2u * 8128);  // fourth perfect number
}

TEST(NumerKern, LongSequencesMatchPublishedValues)
{
    EXPECT_EQ(numer::fibonacci(0), "0");
    EXPECT_EQ(numer::fibonacci(1), "1");
    EXPECT_EQ(numer::fibonacci(300), "222232244629420445529739893461909967206666939096499764990979600");
    EXPECT_EQ(numer::lucas(0), "2");
    EXPECT_EQ(numer::lucas(50), "28143753123");
    EXPECT_EQ(numer::fakultaet(0), "1");
    EXPECT_EQ(numer::fakultaet(30), "265252859812191058636308480000000");
    EXPECT_EQ(numer::binomial(100, 50), "100891344545564193334812497256");
    EXPECT_EQ(numer::partitionen(0), "1");
    EXPECT_EQ(numer::partitionen(200), "3972999029388");  // MacMahon's table
    EXPECT_EQ(numer::bernoulli(0), std::make_pair(std::string("1"), std::string("1")));
    EXPECT_EQ(numer::bernoulli(30), std::make_pair(std::string("8615841276005"), std::string("14322")));
    EXPECT_EQ(numer::bernoulli(7), std::make_pair(std::string("0"), std::string("1")));
}

TEST(NumerKern, BernoulliDenominatorAtTheLimit)
{
    // von Staudt-Clausen: the denominator of B(2500) is the product of the primes p with
    // (p - 1) | 2500, i.e. 2 · 3 · 5 · 11 · 101 · 251; B(2500) is negative since 2500/2 is even
    const auto r = lauf(39, {"2500", "2500"});
    ASSERT_EQ(r.zeilen.size(), 1u);
    const std::string& z = r.zeilen[0];
    EXPECT_EQ(z.substr(0, 12), "B(2500) = \t-");
    EXPECT_EQ(z.substr(z.rfind('\t') + 1), "8365830");
    EXPECT_TRUE(lauf(39, {"0", "2501"}).fehler);
}

TEST(NumerKern, FactorialOver1000IsOnlyApproximated)
{
    const auto r = lauf(27, {"1000"});
    ASSERT_FALSE(r.zeilen.empty());
    EXPECT_EQ(r.zeilen[0].size(), std::string("1000! =\t").size() + 2568);  // 1000! has 2568 digits
    const auto s = lauf(27, {"1001"});
    ASSERT_EQ(s.zeilen.size(), 1u);
    EXPECT_NE(s.zeilen[0].find("·10^2570"), std::string::npos) << s.zeilen[0];
    // Stirling undershoots by about 1/(12n): 0.83 % at n = 10
    EXPECT_NEAR(wert(lauf(27, {"10"}), "prozentuale Abweichung"), 0.83, 0.01);
}

TEST(NumerFinanz, AnnuityTableFollowsTextbookFormulas)
{
    // K = 100000, p = 6 %, A = 10000: interest 6000, repayment 4000 growing by q = 1.06
    const auto r = lauf(21, {"100000", "6", "10000"});
    ASSERT_FALSE(r.fehler);
    EXPECT_EQ(r.zeilen[1], "Tilgungsdauer\t15.7 Jahre");  // -ln(0.4)/ln(1.06) = 15.725
    EXPECT_EQ(r.zeilen[2], "Jahr\tRestschuld €\tTilgungsbetrag €\tZinsen €");
    EXPECT_EQ(r.zeilen[3], "1\t96000\t4240\t6000");
    EXPECT_EQ(r.zeilen[4], "2\t91760\t4494.4\t5760");
    // 16 rows, the last with the debt paid off (zero or negative)
    EXPECT_EQ(r.zeilen.size(), 3u + 16u);
    EXPECT_LE(wert(r, "16\t"), 0.0);
    EXPECT_GT(wert(r, "15\t"), 0.0);

    const auto zuKlein = lauf(21, {"100000", "6", "6000"});
    EXPECT_TRUE(zuKlein.fehler);
    ASSERT_EQ(zuKlein.zeilen.size(), 1u);
    EXPECT_EQ(zuKlein.zeilen[0], "Annuität muss mindestens 6000 € Zinsen betragen!");
    EXPECT_TRUE(lauf(21, {"1000", "-200", "100"}).fehler);
}

TEST(NumerFinanz, InterestPages)
{
    // annuity factor for 5 % and 10 years: 0.129505 (standard tables), prepaid divided by 1.05
    EXPECT_NEAR(wert(lauf(12, {"10000", "5", "10", "0"}, 2), "Tilgungsrate nachschüssig"), 1295.05, 0.005);
    EXPECT_NEAR(wert(lauf(12, {"10000", "5", "10", "0"}, 3), "Tilgungsrate vorschüssig"), 1233.38, 0.005);
    EXPECT_NEAR(wert(lauf(12, {"5000", "4", "3", "0"}, 0), "Jahreszinsen"), 600, 1e-9);
    EXPECT_NEAR(wert(lauf(12, {"3600", "5", "30", "0"}, 1), "Tageszinsen"), 15, 1e-9);
    const auto t = lauf(12, {"1000", "5", "2", "100"}, 4);
    ASSERT_EQ(t.zeilen.size(), 4u);
    EXPECT_EQ(t.zeilen[0], "\tZinseszinsen\tVermehrung\t\tVerminderung");
    EXPECT_EQ(t.zeilen[2], "1\t1050\t1150\t1155\t950\t945");
    EXPECT_EQ(t.zeilen[3], "2\t1102.5\t1307.5\t1317.75\t897.5\t887.25");
}

TEST(NumerReell, HeronAndIteration)
{
    const auto h = lauf(35, {"2", "1", "8"});
    EXPECT_NEAR(wert(h, "x5\t"), std::sqrt(2.0), 1e-15);
    EXPECT_NEAR(wert(h, "x1\t"), 1.5, 0);
    EXPECT_NEAR(wert(h, "x2\t"), 17.0 / 12, 1e-15);
    // logistic map with P = 2: fixed point 1/2 from x0 = 0.5 at once
    const auto it = lauf(11, {"p*x*(1-x)", "0.5", "2", "3"});
    EXPECT_EQ(it.zeilen[0], "Iterationsgleichung X = P*X*(1-X)");
    EXPECT_EQ(it.zeilen[3], "1\t0.5");
    EXPECT_EQ(it.zeilen[4], "2\t0.5\t0 %");
    // a field takes a term where a number is expected, with a comma as point
    double v;
    EXPECT_TRUE(numer::leseReell("2,5", v));
    EXPECT_DOUBLE_EQ(v, 2.5);
    EXPECT_TRUE(numer::leseReell("sqrt(16)", v));
    EXPECT_DOUBLE_EQ(v, 4);
}

TEST(NumerReell, ComplexNumbersFollowTheCommaSetting)
{
    // (1+i)^2 = 2i; |1+i| = sqrt 2 at 45 degrees
    const auto r = lauf(6, {"1", "1", "1", "1"});
    EXPECT_NE(std::find(r.zeilen.begin(), r.zeilen.end(), "a·b\t0.000000 +2.000000 i"), r.zeilen.end());
    kernel::UseDecimalComma = true;
    const auto k = lauf(6, {"1", "1"});
    kernel::UseDecimalComma = false;
    EXPECT_NE(std::find(k.zeilen.begin(), k.zeilen.end(), "Winkelform\t1,414214 · CIS(45,000000)"), k.zeilen.end());
}

TEST(NumerThemen, TableAndAbort)
{
    const auto& t = numer::themen();
    ASSERT_EQ(t.size(), 40u);
    EXPECT_EQ(t[0].name, "Pythagoreische Zahlen");
    EXPECT_EQ(t[39].name, "Bernoullische Zahlen");
    EXPECT_FALSE(t[1].vorhanden);  // astronomical pages are left out
    EXPECT_TRUE(lauf(1, {}).fehler);
    // every offered topic runs with its defaults and gives a table
    for (size_t i = 0; i < t.size(); ++i) {
        if (!t[i].vorhanden) continue;
        numer::Eingabe e;
        e.felder = t[i].vorgabe;
        const auto r = numer::berechne(static_cast<int>(i), e);
        EXPECT_FALSE(r.fehler) << t[i].name << ": " << (r.zeilen.empty() ? "" : r.zeilen[0]);
        EXPECT_FALSE(r.zeilen.empty()) << t[i].name;
    }
    // the abort keeps the rows already written
    numer::Eingabe e;
    e.felder = {"2", "5001"};
    int aufrufe = 0;
    const auto r = numer::berechne(33, e, [&](int) { return ++aufrufe < 3; });
    EXPECT_TRUE(r.abgebrochen);
    EXPECT_EQ(r.zeilen.size(), 1000u);
}
