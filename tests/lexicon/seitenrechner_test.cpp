#include "lexicon/seitenrechner.h"

#include "kernel/realtostr.h"
#include "platform/codepage.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>

using namespace lexicon;

namespace {

SeitenrechnerRahmen rahmen(const std::string& e1, const std::string& e2 = "", const std::string& e3 = "")
{
    SeitenrechnerRahmen r;
    r.ed1 = e1;
    r.ed2 = e2;
    r.ed3 = e3;
    r.l10 = "Titel";
    return r;
}

std::string alle(const SeitenrechnerRahmen& r)
{
    std::string s;
    for (const auto& z : r.zeilen)
        s += platform::cp1252ToUtf8(z) + "\n";
    return s;
}

std::string trim(const std::string& s)
{
    const size_t a = s.find_first_not_of(' ');
    const size_t e = s.find_last_not_of(' ');
    return a == std::string::npos ? "" : s.substr(a, e - a + 1);
}

// The line after the one that starts with `label` and a tab, as a number.
double wertNach(const SeitenrechnerRahmen& r, const std::string& label)
{
    for (const auto& z : r.zeilen)
        if (z.rfind(label + "\t", 0) == 0)
            return std::strtod(z.c_str() + label.size() + 1, nullptr);
    ADD_FAILURE() << "no line " << label << " in\n" << alle(r);
    return NAN;
}

}  // namespace

// Every case of seitenrechner_faelle.txt: number, three fields, a line that must (or must not) appear.
TEST(PageCalculators, CaseTable)
{
    kernel::UseDecimalComma = false;
    std::ifstream in(std::string(QUORIX_TEST_DATA) + "/seitenrechner_faelle.txt");
    ASSERT_TRUE(in) << "missing seitenrechner_faelle.txt";
    std::string zeile;
    int faelle = 0, nr = 0;
    while (std::getline(in, zeile)) {
        ++nr;
        if (trim(zeile).empty() || zeile[0] == '#')
            continue;
        std::vector<std::string> teile;
        size_t start = 0;
        for (int i = 0; i < 4; ++i) {
            const size_t p = zeile.find(" |", start);
            ASSERT_NE(p, std::string::npos) << "line " << nr;
            teile.push_back(trim(zeile.substr(start, p - start)));
            start = p + 2;
        }
        std::string erwartet = trim(zeile.substr(start));
        const bool verboten = !erwartet.empty() && erwartet[0] == '!';
        if (verboten)
            erwartet.erase(0, 1);
        for (size_t p; (p = erwartet.find("\\t")) != std::string::npos;)
            erwartet.replace(p, 2, "\t");
        erwartet = platform::utf8ToCp1252(erwartet);
        auto r = rahmen(teile[1], teile[2], teile[3]);
        bool lauf = true;
        r.zeitaufwaendig = &lauf;
        ASSERT_TRUE(seitenrechnerStarten(std::atoi(teile[0].c_str()), r)) << "line " << nr;
        bool gefunden = false;
        for (const auto& z : r.zeilen)
            gefunden = gefunden || trim(z) == erwartet;
        EXPECT_EQ(gefunden, !verboten) << "line " << nr << ": " << (verboten ? "unwanted " : "expected ")
                                       << platform::cp1252ToUtf8(erwartet) << "\nactual:\n"
                                       << alle(r);
        ++faelle;
    }
    EXPECT_GT(faelle, 100);
}

TEST(PageCalculators, TitleFirstAndUnknownNumbers)
{
    auto r = rahmen("1994");
    ASSERT_TRUE(seitenrechnerStarten(19, r));
    ASSERT_EQ(r.zeilen.size(), 2u);
    EXPECT_EQ(r.zeilen[0], "Titel");
    for (int n : {5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 22, 23})
        EXPECT_TRUE(seitenrechnerVorhanden(n)) << n;
    EXPECT_FALSE(seitenrechnerVorhanden(21));
    auto leer = rahmen("");
    EXPECT_FALSE(seitenrechnerStarten(21, leer));
}

TEST(PageCalculators, ThirdInputCaptions)
{
    SeitenrechnerFelder f;
    seitenrechnerVorbereiten(5, f);
    EXPECT_EQ(f.l12, "Inkreisradius");
    seitenrechnerVorbereiten(8, f);
    EXPECT_EQ(f.l12, "c =");
    seitenrechnerVorbereiten(9, f);
    EXPECT_EQ(f.l12, "n = ");
    seitenrechnerVorbereiten(12, f);
    EXPECT_EQ(f.l12, "c =");
    seitenrechnerVorbereiten(19, f);
    EXPECT_EQ(f.l12, "");
}

// A value outside the member's range is replaced in the field, so the user sees what was used.
TEST(PageCalculators, ClampedAndDefaultValuesAreWrittenBack)
{
    auto r = rahmen("5000");
    seitenrechnerStarten(19, r);
    EXPECT_EQ(r.ed1, "3999");
    EXPECT_EQ(r.zeilen.back(), "3999 = MMMCMXCIX");

    r = rahmen("255", "99");
    seitenrechnerStarten(20, r);
    EXPECT_EQ(r.ed2, "36");

    r = rahmen("1000", "5", "-4");
    seitenrechnerStarten(9, r);
    EXPECT_EQ(r.ed3, "0");

    r = rahmen("1000");
    seitenrechnerStarten(15, r);
    EXPECT_EQ(r.ed1, "1583");

    r = rahmen("01.02.2024");
    seitenrechnerStarten(18, r);
    EXPECT_EQ(r.ed1, "1.2.2024");

    // 5 replaces values not above 0 by the 3-4-5 triangle's A, R, r and sets its tab width.
    r = rahmen("0", "-1", "x");
    seitenrechnerStarten(5, r);
    EXPECT_EQ(r.ed1, "6");
    EXPECT_EQ(r.ed2, "2.5");
    EXPECT_EQ(r.ed3, "1");
    EXPECT_EQ(r.tabbreite, 60);
    EXPECT_NEAR(wertNach(r, "Seite a"), 3, 1e-5);
}

// Bezout: a·x + b·y must equal the gcd for every sign combination.
TEST(PageCalculators, BezoutCoefficientsSatisfyTheIdentity)
{
    const long long paare[][3] = {{252, 105, 21}, {-252, 105, 21}, {240, -46, 2}, {-17, -5, 1},
                                  {1000000007, 998244353, 1}, {7, 7, 7}};
    for (const auto& p : paare) {
        auto r = rahmen(std::to_string(p[0]), std::to_string(p[1]));
        seitenrechnerStarten(10, r);
        const long long g = static_cast<long long>(wertNach(r, "ggT"));
        const long long x = std::atoll(r.zeilen[r.zeilen.size() - 2].c_str() + 2);
        const long long y = std::atoll(r.zeilen.back().c_str() + 2);
        EXPECT_EQ(g, p[2]) << p[0] << ", " << p[1];
        EXPECT_EQ(static_cast<__int128>(p[0]) * x + static_cast<__int128>(p[1]) * y, g)
            << p[0] << "*" << x << " + " << p[1] << "*" << y << "\n" << alle(r);
    }
}

// sn is checked against the incomplete integral of the first kind, found independently by
// Simpson's rule: F(asin sn(u), m) = u while |u| is below K. Tolerance 1e-8.
TEST(PageCalculators, JacobiSnInvertsTheEllipticIntegral)
{
    for (double k : {0.3, 0.5, 0.9}) {
        for (double u : {0.2, 0.5, 1.0}) {
            auto r = rahmen(std::to_string(u), std::to_string(k));
            seitenrechnerStarten(6, r);
            const double sn = wertNach(r, "sn(z) =");
            const double cn = wertNach(r, "cn(z) =");
            const double phi = std::atan2(sn, cn);
            const int n = 2000;
            double s = 0;
            for (int i = 0; i <= n; ++i) {
                const double t = phi * i / n;
                const double f = 1 / std::sqrt(1 - k * k * std::sin(t) * std::sin(t));
                s += f * (i == 0 || i == n ? 1 : (i % 2 ? 4 : 2));
            }
            EXPECT_NEAR(s * phi / n / 3, u, 1e-8) << "k = " << k << ", u = " << u;
        }
    }
}

// Loops stop when the flag is cleared from the message loop, and leave their lines.
TEST(PageCalculators, LoopsStopWhenTheFlagIsCleared)
{
    bool lauf = true;
    int runden = 0;
    auto r = rahmen("27");
    r.zeitaufwaendig = &lauf;
    r.nachrichtenschleife = [&] {
        if (++runden == 1)
            lauf = false;
    };
    seitenrechnerStarten(22, r);
    EXPECT_EQ(runden, 1);
    EXPECT_EQ(r.zeilen.size(), 102u) << "title, start and 100 terms";
    EXPECT_EQ(r.zeilen.back().find("Schritte"), std::string::npos);

    // A prime near 10^18 would need 10^9 trial divisions; the stop ends it at once.
    lauf = true;
    runden = 0;
    r = rahmen("999999999999999989");
    r.zeitaufwaendig = &lauf;
    r.nachrichtenschleife = [&] {
        if (++runden == 1)
            lauf = false;
    };
    seitenrechnerStarten(11, r);
    EXPECT_EQ(runden, 1);
    EXPECT_EQ(r.zeilen.back().rfind("abgebrochen", 0), 0u) << alle(r);
}

// Fields go through the shell's term reader, for integers as well as reals.
TEST(PageCalculators, FieldsAcceptTermsThroughTheReader)
{
    const auto alt = feldWertLesen;
    feldWertLesen = [alt](const std::string& s, bool& ok) {
        if (s == "2^10") {
            ok = true;
            return 1024.0;
        }
        if (s == "-SQR(3)") {
            ok = true;
            return -9.0;
        }
        return alt(s, ok);
    };
    auto r = rahmen("2^10", "16");
    seitenrechnerStarten(20, r);
    auto q = rahmen("1", "-4", "-SQR(3)");
    seitenrechnerStarten(12, q);
    feldWertLesen = alt;
    EXPECT_EQ(r.zeilen.back(), "Basis 16\t400") << alle(r);
    EXPECT_EQ(q.zeilen.back(), "x2 =\t5.6055512755") << alle(q);  // 2 + sqrt(13)
}
