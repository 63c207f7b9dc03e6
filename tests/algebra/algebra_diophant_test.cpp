// Diophantine systems: every listed solution is checked by substitution for several k.
#include "algebra/algebra.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>

using namespace algebra;

namespace {

std::string alle(const Ergebnis& e)
{
    std::string s;
    for (const auto& z : e.zeilen) s += z + "\n";
    return s;
}

// Evaluates "2 - 5*k + k2" style texts for the given parameter values.
long long werte(const std::string& text, const std::map<std::string, long long>& k)
{
    std::istringstream in(text);
    std::string t;
    long long s = 0, vz = 1;
    while (in >> t) {
        if (t == "+") { vz = 1; continue; }
        if (t == "-") { vz = -1; continue; }
        if (t[0] == '-') { vz = -vz; t = t.substr(1); }
        const size_t stern = t.find('*');
        long long f = 1;
        std::string name = t;
        if (stern != std::string::npos) { f = std::stoll(t.substr(0, stern)); name = t.substr(stern + 1); }
        if (k.count(name)) s += vz * f * k.at(name);
        else s += vz * std::stoll(t);
        vz = 1;
    }
    return s;
}

std::vector<std::string> ausdruecke(const Ergebnis& e, int n)
{
    std::vector<std::string> v;
    for (int i = 1; i <= n; ++i) {
        const std::string p = "    X" + std::to_string(i) + " = ";
        for (const auto& z : e.zeilen)
            if (z.rfind(p, 0) == 0) { v.push_back(z.substr(p.size())); break; }
    }
    return v;
}

}  // namespace

TEST(Diophant, SingleEquationGeneralSolution)
{
    // 3x + 5y = 1 has the integer solutions x = 2 + 5k, y = -1 - 3k (up to the choice of k).
    const Ergebnis e = berechne(1, {"3 5 1"});
    ASSERT_TRUE(e.ok) << alle(e);
    const auto x = ausdruecke(e, 2);
    ASSERT_EQ(x.size(), 2u) << alle(e);
    for (long long k = -3; k <= 3; ++k) {
        const long long a = werte(x[0], {{"k", k}}), b = werte(x[1], {{"k", k}});
        EXPECT_EQ(3 * a + 5 * b, 1) << alle(e);
    }
    // consecutive k give solutions 5 apart in x: the family is complete
    EXPECT_EQ(std::llabs(werte(x[0], {{"k", 1}}) - werte(x[0], {{"k", 0}})), 5) << alle(e);
}

TEST(Diophant, SystemsAndUnsolvableOnes)
{
    // 3x + 5y + 7z = 1, x + y + z = 1: one parameter; check by substitution
    const Ergebnis e = berechne(1, {"3 5 7 1", "1 1 1 1"});
    ASSERT_TRUE(e.ok) << alle(e);
    const auto x = ausdruecke(e, 3);
    ASSERT_EQ(x.size(), 3u);
    for (long long k = -2; k <= 2; ++k) {
        const long long a = werte(x[0], {{"k", k}}), b = werte(x[1], {{"k", k}}), c = werte(x[2], {{"k", k}});
        EXPECT_EQ(3 * a + 5 * b + 7 * c, 1);
        EXPECT_EQ(a + b + c, 1);
    }
    // 2x + 4y = 3: gcd 2 does not divide 3
    EXPECT_EQ(berechne(1, {"2 4 3"}).zeilen.back(), "keine ganzzahlige Lösung");
    // x + y = 1, x + y = 2 contradict each other
    EXPECT_EQ(berechne(1, {"1 1 1", "1 1 2"}).zeilen.back(), "keine ganzzahlige Lösung");
    // 2x = 4, 3y = 9 has the single solution (2, 3) and no parameter
    const Ergebnis eins = berechne(1, {"2 0 4", "0 3 9"});
    EXPECT_EQ(ausdruecke(eins, 2), (std::vector<std::string>{"2", "3"})) << alle(eins);
    EXPECT_TRUE(berechne(1, {"1.5 2 3"}).eingabefehler);
}
