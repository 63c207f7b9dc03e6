// Fractions: periods of known length and continued fractions from textbook examples.
#include "algebra/algebra.h"

#include <gtest/gtest.h>

using namespace algebra;

namespace {

std::string alle(const Ergebnis& e)
{
    std::string s;
    for (const auto& z : e.zeilen) s += z + "\n";
    return s;
}

bool hat(const Ergebnis& e, const std::string& z)
{
    for (const auto& s : e.zeilen)
        if (s == z) return true;
    return false;
}

}  // namespace

TEST(Bruch, PeriodsOfUnitFractions)
{
    const Ergebnis siebtel = berechne(11, {"1/7", "10"});
    EXPECT_TRUE(hat(siebtel, "Dezimalbruch = 0.(142857)") || hat(siebtel, "Dezimalbruch = 0,(142857)")) << alle(siebtel);
    EXPECT_TRUE(hat(siebtel, "Periodenlänge 6")) << alle(siebtel);
    // 10 is a primitive root mod 97, so 1/97 has the full period 96 (a known full-reptend prime)
    EXPECT_TRUE(hat(berechne(11, {"1/97", ""}), "Periodenlänge 96"));
    // 1/6 = 0.1(6): one digit before the period
    const Ergebnis sechstel = berechne(11, {"1/6", "10"});
    EXPECT_TRUE(hat(sechstel, "Vorperiodenlänge 1")) << alle(sechstel);
    EXPECT_TRUE(hat(berechne(11, {"3/8", "10"}), "endlicher Bruch, keine Periode"));
    // 1/3 in base 2 is 0.(01)
    EXPECT_TRUE(hat(berechne(11, {"1/3", "2"}), "Darstellung zur Basis 2 = 0,(01)")) << alle(berechne(11, {"1/3", "2"}));
    // 10 is a primitive root mod 7 and 10^6 = 8 (mod 49), so the period of 1/7^k is 6·7^(k-1):
    // 2058 for 7^4, and 100842 for 7^6, beyond the search limit of 20000 digits
    EXPECT_TRUE(hat(berechne(11, {"1/2401", "10"}), "Periodenlänge 2058"));
    const Ergebnis lang = berechne(11, {"1/117649", "10"});
    EXPECT_TRUE(hat(lang, "Periodenlänge ? > 20000")) << alle(lang);
}

TEST(Bruch, DecimalsBackToFractions)
{
    EXPECT_EQ(berechne(11, {"0,125", "10"}).zeilen.front(), "Bruch = 1 / 8");
    EXPECT_EQ(berechne(11, {"0,1(6)", "10"}).zeilen.front(), "Bruch = 1 / 6");
    EXPECT_EQ(berechne(11, {"2.(142857)", "10"}).zeilen.front(), "Bruch = 15 / 7");
    EXPECT_EQ(berechne(11, {"-0.(3)", "10"}).zeilen.front(), "Bruch = -1 / 3");
    EXPECT_EQ(berechne(11, {"6/-4", "10"}).zeilen.front(), "Bruch = -3 / 2");
}

TEST(Bruch, ContinuedFractions)
{
    // 415/93 = [4; 2, 6, 7], the standard textbook example
    EXPECT_TRUE(hat(berechne(11, {"415/93", "10"}), "Kettenbruch = [4; 2, 6, 7]"));
    EXPECT_TRUE(hat(berechne(11, {"5", "10"}), "Kettenbruch = [5]"));
    // negative values use the floor: -7/3 = -3 + 2/3 = [-3; 1, 2]
    EXPECT_TRUE(hat(berechne(11, {"-7/3", "10"}), "Kettenbruch = [-3; 1, 2]"));
}

TEST(Bruch, BadInput)
{
    EXPECT_TRUE(berechne(11, {"1/0", "10"}).eingabefehler);
    EXPECT_TRUE(berechne(11, {"abc", "10"}).eingabefehler);
    EXPECT_TRUE(berechne(11, {"0,1(6", "10"}).eingabefehler);
    EXPECT_TRUE(berechne(11, {"1/3", "17"}).eingabefehler);
}

TEST(Jahreszinsen, GermanDayCount)
{
    // 1000 € at 3 % for the whole year: 30 € interest.
    const Ergebnis e = berechne(16, {"1000", "3", ""});
    EXPECT_EQ(e.zeilen[e.zeilen.size() - 2], "Jahreszinsen in € = 30") << alle(e);
    EXPECT_EQ(e.zeilen.back(), "Kapital am 31.12. in € = 1030");
    // 500 € on 15.3.: 360 - (2·30 + 14) = 286 days, 500 · 0.03 · 286/360 = 11.92 €;
    // -200 € on 1.7.: 180 days, -3 €. Total 30 + 11.92 - 3 = 38.92 €, capital 1300 + 38.92.
    const Ergebnis b = berechne(16, {"1000", "3", "15.3. 500; 1.7. -200"});
    EXPECT_TRUE(hat(b, "15.3.\t500\t286\t11.92") || hat(b, "15.3.\t500\t286\t11,92")) << alle(b);
    EXPECT_TRUE(hat(b, "Jahreszinsen in € = 38.92") || hat(b, "Jahreszinsen in € = 38,92")) << alle(b);
    EXPECT_TRUE(hat(b, "Kapital am 31.12. in € = 1338.92") || hat(b, "Kapital am 31.12. in € = 1338,92")) << alle(b);
    EXPECT_TRUE(berechne(16, {"1000", "3", "30.2. 100"}).eingabefehler);
    EXPECT_TRUE(berechne(16, {"1000", "3", "15.3."}).eingabefehler);
    EXPECT_TRUE(berechne(16, {"1000", "-1", ""}).eingabefehler);
}
