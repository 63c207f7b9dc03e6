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
