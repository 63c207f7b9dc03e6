// The shared prime table, the word-size test and mp_is_pprime on the known hard cases.
#include "numbers/factor/mp_prime.h"
#include "numbers/mp_int.h"

#include <gtest/gtest.h>

using namespace numbers;

namespace {

bool pprime(const std::string& dec)
{
    mp_tmp n;
    mp_read_decimal(n, dec);
    return mp_is_pprime(n);
}

bool mersennePrime(int p)
{
    mp_tmp m;
    mp_setbit(m, p);
    mp_sub_d(m, 1, m);
    return mp_is_pprime(m);
}

}  // namespace

// Counts from the standard table of pi(x): pi(10^6) = 78498, pi(10^7) = 664579.
TEST(PrimeTable, SegmentedWheelSieveMatchesPi)
{
    fillPrimeTable(PrimeTableBound);
    ASSERT_EQ(primeTable.size(), 664579u);
    EXPECT_EQ(primeTable[0], 2u);
    EXPECT_EQ(primeTable[1], 3u);
    EXPECT_EQ(primeTable[6], 17u);
    EXPECT_EQ(primeTable.back(), 9999991u);
    size_t below1e6 = std::lower_bound(primeTable.begin(), primeTable.end(), 1000000u) - primeTable.begin();
    EXPECT_EQ(below1e6, 78498u);
    // across the first wheel boundaries (510510 = 2*3*5*7*11*13*17)
    for (size_t i = 1; i < primeTable.size() && primeTable[i] < 3 * 510510u; ++i)
        ASSERT_TRUE(isPrime32(primeTable[i])) << primeTable[i];
    size_t inWheel2 = 0;
    for (uint32_t n = 510510; n < 2 * 510510u; ++n)
        inWheel2 += isPrime32(n);
    size_t fromTable = std::lower_bound(primeTable.begin(), primeTable.end(), 2 * 510510u) -
                       std::lower_bound(primeTable.begin(), primeTable.end(), 510510u);
    EXPECT_EQ(fromTable, inWheel2);
    fillPrimeTable(1000);  // a lower bound does nothing
    EXPECT_EQ(primeTable.size(), 664579u);
}

TEST(PrimeTable, WordTableAndNthPrime)
{
    EXPECT_EQ(wordPrime(1), 2);
    EXPECT_EQ(wordPrime(WordPrimeCount), 65521);  // the largest prime below 2^16
    EXPECT_EQ(wordPrime(0), 0);
    EXPECT_EQ(mp_prime_nth(500), 3571u) << "B1 of the curves at phase 500";
    EXPECT_EQ(mp_prime_nth(6543), 65537u);
    EXPECT_EQ(mp_prime_nth(50000), 611953u);
    EXPECT_EQ(mp_prime_nth(664579), 9999991u);
    EXPECT_FALSE(wordTableIsPrime(1));
    EXPECT_TRUE(wordTableIsPrime(2));
    EXPECT_FALSE(wordTableIsPrime(65535));
}

// 9080191 is the smallest strong pseudoprime to both bases 31 and 73 (Jaeschke 1993): below it
// those bases decide alone, from it on the bases 2, 7 and 61 take over.
TEST(PrimeWord, BasesSwitchAt9080191)
{
    fillPrimeTable(PrimeTableBound);  // each test may run alone in its own process
    EXPECT_FALSE(isPrime32(9080191u));
    EXPECT_TRUE(isPrime32(9080189u) == (std::binary_search(primeTable.begin(), primeTable.end(), 9080189u)));
    // exhaustively against the sieve below the switch, and on a stretch above it
    size_t k = 0;
    for (uint32_t n = 0; n < 9080191u + 200000u; ++n) {
        bool table = k < primeTable.size() && primeTable[k] == n;
        if (table)
            ++k;
        if (n > 2000000 && n < 9000000 && (n & 1) == 0)
            continue;
        ASSERT_EQ(isPrime32(n), table) << n;
    }
    // 4759123141 = 48781 * 97561 is the smallest strong pseudoprime to 2, 7 and 61 (above 32 bits)
    EXPECT_TRUE(isPrime32(4294967291u));
}

// Carmichael numbers (OEIS A002997) and strong pseudoprimes to base 2 (A001262).
TEST(PrimeMp, CarmichaelAndBase2PseudoprimesAreComposite)
{
    for (const char* c : {"561", "1105", "1729", "2465", "2821", "6601", "8911", "41041", "825265", "321197185",
                          "5394826801", "232250619601", "9746347772161", "1436697831295441",
                          "60977817398996785"})
        EXPECT_FALSE(pprime(c)) << c;
    for (const char* s : {"2047", "3277", "4033", "4681", "8321", "15841", "29341", "42799", "49141", "52633"}) {
        mp_tmp n;
        mp_read_decimal(n, s);
        EXPECT_TRUE(mp_is_spsp_d(n, 2)) << s << " is a strong pseudoprime to base 2";
        EXPECT_FALSE(mp_is_slpsp(n)) << s << " must fail the Lucas part";
        EXPECT_FALSE(mp_is_pprime(n)) << s;
    }
}

// The smallest strong pseudoprimes to all of the first k prime bases (OEIS A014233).
TEST(PrimeMp, StrongPseudoprimesToManyBases)
{
    const struct {
        const char* n;
        int bases;
    } cases[] = {{"1373653", 2},          {"25326001", 3},          {"3215031751", 4},
                 {"2152302898747", 5},    {"3474749660383", 6},     {"341550071728321", 7},
                 {"3825123056546413051", 9}, {"318665857834031151167461", 12},
                 {"3317044064679887385961981", 13}};
    const mp_digit bases[] = {2, 3, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37, 41};
    for (const auto& c : cases) {
        mp_tmp n;
        mp_read_decimal(n, c.n);
        for (int i = 0; i < c.bases; ++i)
            ASSERT_TRUE(mp_is_spsp_d(n, bases[i])) << c.n << " base " << bases[i];
        EXPECT_FALSE(mp_is_pprime(n)) << c.n;
    }
}

// Mersenne exponents from the list of known Mersenne primes; composite ones in between.
TEST(PrimeMp, MersenneNumbers)
{
    for (int p : {2, 3, 5, 7, 13, 17, 19, 31, 61, 89, 107, 127, 521, 607, 1279})
        EXPECT_TRUE(mersennePrime(p)) << "2^" << p << "-1";
    for (int p : {11, 23, 29, 37, 41, 43, 47, 53, 59, 67, 71, 73, 79, 83, 97, 101, 103, 109, 113, 257, 523})
        EXPECT_FALSE(mersennePrime(p)) << "2^" << p << "-1";
}

TEST(PrimeMp, EdgesAndSmallFactor)
{
    for (const char* s : {"0", "1", "-7", "4", "1000000"})
        EXPECT_FALSE(pprime(s)) << s;
    for (const char* s : {"2", "3", "65521", "2147483647", "4294967311", "170141183460469231731687303715884105727"})
        EXPECT_TRUE(pprime(s)) << s;
    mp_tmp n;
    mp_read_decimal(n, "1071514531");  // 32719 * 32749, both under the bound of 32767
    EXPECT_EQ(mp_small_factor(n, 2, 100000), 32719u);
    EXPECT_EQ(mp_small_factor(n, 32720, 100000), 32749u);
    mp_read_decimal(n, "1074200609");  // 32771 * 32779: above the bound
    EXPECT_EQ(mp_small_factor(n, 2, 100000), 0u);
    mp_read_decimal(n, "111546435");   // 3 * 5 * ... * 23 by the one residue
    EXPECT_EQ(mp_small_factor(n, 2, 100), 3u);
    EXPECT_EQ(mp_small_factor(n, 20, 100), 23u);
    mp_read_decimal(n, "-4611686018427387904");
    EXPECT_EQ(mp_small_factor(n, 2, 10), 2u);
    mp_set(n, 1);
    EXPECT_THROW(mp_is_spsp(n, n), MPXRange);
    mp_reset_error();
}
