// Number words from a table, addition chains and sums of powers against published values.
#include "algebra/numer.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

TEST(NumerWoerter, TableOfCardinals)
{
    std::ifstream f(std::string(QUORIX_TEST_DATA) + "/numer_zahlwoerter.txt");
    std::string z;
    int faelle = 0;
    while (std::getline(f, z)) {
        if (z.empty() || z[0] == '#') continue;
        const size_t a = z.find('\t'), b = z.find('\t', a + 1);
        const int sprache = std::stoi(z.substr(0, a));
        const int64_t n = std::stoll(z.substr(a + 1, b - a - 1));
        EXPECT_EQ(numer::zahlwort(n, sprache), z.substr(b + 1)) << "language " << sprache << ", number " << n;
        ++faelle;
    }
    EXPECT_GT(faelle, 40);
    EXPECT_EQ(numer::zahlwort(1000000000000LL, 0), "");  // out of range
}

TEST(NumerKetten, ShortestAdditionChains)
{
    // l(n) from Knuth, TAOCP vol. 2, 4.6.3: l(15) = 5, l(127) = 10, l(191) = 11, l(1024) = 10
    for (auto [n, laenge] : {std::pair<int64_t, size_t>{1, 0}, {2, 1}, {15, 5}, {127, 10}, {191, 11}, {1024, 10}}) {
        const auto k = numer::additionskette(n);
        EXPECT_EQ(k.size() - 1, laenge) << "n = " << n;
        EXPECT_EQ(k.back(), n);
        for (size_t i = 1; i < k.size(); ++i) {
            bool summe = false;
            for (size_t a = 0; a < i; ++a)
                for (size_t b = a; b < i; ++b) summe = summe || k[a] + k[b] == k[i];
            EXPECT_TRUE(summe) << n << ": member " << k[i] << " is no sum of earlier members";
        }
    }
}

TEST(NumerKetten, WaringNumbers)
{
    // g(2) = 4, g(3) = 9 (reached by 23 and 239), g(4) = 19 (reached by 79)
    EXPECT_EQ(numer::waring(7, 2).size(), 4u);
    EXPECT_EQ(numer::waring(23, 3).size(), 9u);
    EXPECT_EQ(numer::waring(239, 3).size(), 9u);
    EXPECT_EQ(numer::waring(79, 4).size(), 19u);
    EXPECT_EQ(numer::waring(25, 2), (std::vector<int64_t>{5}));
    size_t maxQ = 0;
    for (int n = 1; n <= 1000; ++n) {
        const auto b = numer::waring(n, 2);
        int64_t s = 0;
        for (int64_t x : b) s += x * x;
        ASSERT_EQ(s, n);
        maxQ = std::max(maxQ, b.size());
    }
    EXPECT_EQ(maxQ, 4u);  // Lagrange
}

TEST(NumerKetten, ScherkRepresentations)
{
    // numbers of representations from OEIS A059871, i = 1..20
    const uint64_t a059871[] = {1, 1, 1, 1, 1, 3, 3, 4, 6, 12, 16, 31, 46, 90, 140, 276, 449, 877, 1443, 2834};
    const auto p = numer::primzahlenBis(1000);
    for (int i = 1; i <= 20; ++i) {
        uint64_t anzahl = 0;
        const std::string s = numer::scherk(i, &anzahl);
        EXPECT_EQ(anzahl, a059871[i - 1]) << "i = " << i << ": " << s;
        // the expression really sums to the i-th prime
        int64_t wert = 0, faktor = 1, vorzeichen = 1;
        size_t pos = 0;
        if (s.rfind("2·", 0) == 0) faktor = 2, pos = std::string("2·").size();
        while (pos < s.size()) {
            size_t e = s.find(' ', pos);
            if (e == std::string::npos) e = s.size();
            const std::string t = s.substr(pos, e - pos);
            if (t == "+") vorzeichen = 1;
            else if (t == "-") vorzeichen = -1;
            else wert += vorzeichen * faktor * std::stoll(t), faktor = 1;
            pos = e + 1;
        }
        EXPECT_EQ(wert, static_cast<int64_t>(p[i - 1])) << "i = " << i << ": " << s;
    }
    EXPECT_EQ(numer::scherk(6), "11 + 7 - 5 + 3 - 2 - 1");  // one of the three forms of 13
    EXPECT_FALSE(numer::scherk(300).empty());
    EXPECT_EQ(numer::scherk(301), "");
    EXPECT_EQ(numer::scherk(0), "");
}
