// Pollard rho, the elliptic curves and the quadratic sieve, each on numbers built for it, with
// the product check of every factorisation; the parameter tables of the sieve.
#include "numbers/factor/mp_pfu.h"
#include "numbers/factor/mp_prime.h"
#include "numbers/factor/mpqs.h"
#include "numbers/mp_int.h"

#include <gtest/gtest.h>

using namespace numbers;

namespace {

std::string mul(const std::string& a, const std::string& b)
{
    mp_tmp x, y;
    mp_read_decimal(x, a);
    mp_read_decimal(y, b);
    mp_mul(x, y, x);
    return mp_decimal(x);
}

// f is a proper divisor of n
void expectProperDivisor(const mp_int& n, const mp_int& f)
{
    mp_tmp q, r;
    ASSERT_GT(mp_cmp_int(f, 1), 0) << "no factor of " << mp_decimal(n);
    ASSERT_TRUE(mp_is_lt(f, n));
    mp_divrem(n, f, &q.v, &r.v);
    EXPECT_TRUE(mp_iszero(r)) << mp_decimal(f) << " does not divide " << mp_decimal(n);
}

struct CountingHooks : FactorHooks {
    int yields = 0;
    int abortAfter = -1;
    bool yield() override
    {
        ++yields;
        if (abortAfter >= 0 && yields >= abortAfter)
            aborted = true;
        return aborted;
    }
};

// product of the pieces, each to its exponent
TVarInt product(const std::vector<FactorPiece>& pieces)
{
    TVarInt p(1);
    for (const FactorPiece& f : pieces)
        for (int e = 0; e < f.exponent; ++e)
            TVarInt::mul(p, f.value, p);
    return p;
}

}  // namespace

TEST(PollardRho, FindsTheSmallFactorOfAnUnbalancedProduct)
{
    mp_random_seed(7);
    // 1000003 * a 30-digit prime: the cycle closes after about a thousand steps
    mp_tmp n, f;
    mp_read_decimal(n, mul("1000003", "956766499050877631701701925273"));
    CountingHooks h;
    mp_pollard_rho(n, f, 100, &h);
    expectProperDivisor(n, f);
    EXPECT_EQ(mp_decimal(f), "1000003");
    EXPECT_GE(h.rhoGroups, 1);
    EXPECT_EQ(h.rhoGroups, h.yields) << "one yield per group of 256 steps";

    mp_set(n, 3);
    mp_pollard_rho(n, f, 10);
    EXPECT_EQ(mp_decimal(f), "3") << "n below 4 is its own result";
}

TEST(PollardRho, GivesUpAfterCountGroupsOrOnAbort)
{
    mp_random_seed(8);
    // two 20-digit primes: out of reach of a few groups
    mp_tmp n, f;
    mp_read_decimal(n, "6155172054816489443936682206746973656091");
    CountingHooks h;
    mp_pollard_rho(n, f, 3, &h);
    EXPECT_TRUE(mp_iszero(f));
    EXPECT_EQ(h.rhoGroups, 3);
    CountingHooks stop;
    stop.abortAfter = 2;
    mp_pollard_rho(n, f, 1000, &stop);
    EXPECT_TRUE(mp_iszero(f));
    EXPECT_EQ(stop.rhoGroups, 2);
}

TEST(Ecm, SplitsOffATwelveDigitFactor)
{
    mp_random_seed(9);
    // 12-digit prime times a 30-digit prime: beyond 1200 rho groups, a few curves for ECM
    mp_tmp n, f;
    mp_read_decimal(n, mul("100000000003", "956766499050877631701701925273"));
    uint32_t sigma = 123;
    int32_t curves = 0;
    CountingHooks h;
    mp_ecm_factor(n, f, 0, curves, sigma, 500, &h);
    expectProperDivisor(n, f);
    EXPECT_GE(curves, 1);
    EXPECT_LE(curves, 32);
    EXPECT_EQ(sigma, 123u + uint32_t(curves)) << "the seed goes up by one per curve";
}

TEST(Ecm, SmallFactorsPrimesAndBadArguments)
{
    mp_tmp n, f;
    mp_read_decimal(n, mul("101", "956766499050877631701701925273"));
    uint32_t sigma = 123;
    int32_t c = 0;
    mp_ecm_factor(n, f, 0, c, sigma, 500);
    EXPECT_EQ(mp_decimal(f), "101") << "trial division to 127 comes first";
    EXPECT_EQ(c, 0);
    mp_read_decimal(n, "1000000007");
    mp_ecm_factor(n, f, 2, c, sigma, 100);
    EXPECT_TRUE(mp_iszero(f)) << "a prime has no factor";
    EXPECT_EQ(c, 2);
    mp_set(n, 1);
    try {
        mp_ecm_factor(n, f, 0, c, sigma, 500);
        ADD_FAILURE() << "n < 2 must raise";
    } catch (const MPXRange& e) {
        EXPECT_STREQ(e.what(), "mp_ecm_factor: n < 2");
    }
    mp_reset_error();
    mp_set(n, 91);
    try {
        mp_ecm_factor(n, n, 0, c, sigma, 500);
        ADD_FAILURE() << "n and f the same must raise";
    } catch (const MPXBadArg& e) {
        EXPECT_STREQ(e.what(), "mp_ecm_factor: @n=@f");
    }
    mp_reset_error();
}

TEST(MpqsParams, TableRowsAndInterpolatedSamples)
{
    struct Row {
        int bits, digits, bw, fb, len;
    } rows[] = {
        {20, 6, 2, 8, 80},       {25, 8, 2, 8, 100},      {33, 10, 4, 12, 150},    {39, 12, 4, 12, 200},
        {40, 13, 8, 64, 300},    {75, 23, 8, 64, 300},    {76, 23, 16, 96, 800},   {100, 31, 16, 224, 1200},
        {108, 33, 16, 272, 3000}, {113, 34, 16, 320, 5000}, {118, 36, 16, 560, 6000}, {123, 37, 16, 640, 7000},
        {129, 39, 16, 768, 8000}, {130, 40, 32, 768, 8000}, {160, 49, 32, 1376, 25000}, {200, 61, 32, 5440, 62000},
        {250, 76, 32, 12032, 240000}, {290, 88, 32, 17440, 450000}, {400, 121, 32, 17600, 500000},
    };
    for (const Row& r : rows) {
        MpqsParams p = mpqsTableParams(r.bits, r.digits);
        EXPECT_EQ(p.blockWidth, r.bw) << r.bits << " bits";
        EXPECT_EQ(p.fbSize, r.fb) << r.bits << " bits";
        EXPECT_EQ(p.sieveLen, r.len) << r.bits << " bits";
        EXPECT_EQ(p.fbSize % p.blockWidth, 0);
    }
    // between the samples the table rises monotonically
    for (int b = 131; b <= 290; ++b) {
        EXPECT_GE(mpqsTableParams(b, 0).fbSize, mpqsTableParams(b - 1, 0).fbSize) << b;
        EXPECT_GE(mpqsTableParams(b, 0).sieveLen, mpqsTableParams(b - 1, 0).sieveLen) << b;
    }
}

TEST(MpqsParams, ByDigitsOfKN)
{
    MpqsParams p;
    mpqsDigitParams(57, p);  // the default repunit of 57 ones
    EXPECT_EQ(p.skip, 12);
    EXPECT_EQ(p.storeFactor, 6);
    EXPECT_EQ(p.lpMultiplier, 200);
    EXPECT_EQ(p.period, 10);
    EXPECT_DOUBLE_EQ(p.fudge, 4.0);
    mpqsDigitParams(40, p);
    EXPECT_EQ(p.skip, 9);
    EXPECT_EQ(p.storeFactor, 5);
    EXPECT_EQ(p.lpMultiplier, 100);
    EXPECT_EQ(p.period, 8);
    EXPECT_DOUBLE_EQ(p.fudge, 3.0);
    mpqsDigitParams(53, p);
    EXPECT_EQ(p.skip, 12) << "9 only below 53 digits";
    mpqsDigitParams(71, p);
    EXPECT_EQ(p.skip, 17);
    EXPECT_EQ(p.storeFactor, 7);
    EXPECT_EQ(p.lpMultiplier, 300);
    EXPECT_EQ(p.period, 12);
    mpqsDigitParams(82, p);
    EXPECT_EQ(p.storeFactor, 9);
    const std::pair<int, double> fudges[] = {{61, 4.0},  {62, 5.5},   {65, 6.0},  {66, 6.0},  {67, 6.25},
                                             {68, 6.75}, {69, 7.5},   {72, 7.5},  {73, 8.0},  {74, 8.75},
                                             {75, 9.0},  {76, 9.25},  {77, 9.5},  {78, 9.75}, {79, 10.0},
                                             {80, 10.25}, {81, 10.5}, {99, 10.5}};
    for (auto [d, f] : fudges) {
        mpqsDigitParams(d, p);
        EXPECT_DOUBLE_EQ(p.fudge, f) << d << " digits";
    }
}

TEST(MpqsParams, MultiplierIsACandidateAndKeepsKNSquarefreeOfSmallSquares)
{
    const uint32_t cand[] = {1,  2,  3,  5,  7,  11, 13, 14, 17, 19, 21, 22, 23, 26, 29, 30, 31,
                             34, 35, 37, 38, 39, 41, 42, 43, 46, 47, 51, 53, 55, 57, 58, 59, 61,
                             62, 65, 66, 67, 69, 70, 71, 73, 74, 77, 79, 83, 89, 97, 101};
    for (const char* n : {"6155172054816489443936682206746973656091", "3648654577971527337093183853288344643167408027649",
                          "46953468783761011351423659693278343308832543787279"}) {
        uint32_t k = mpqsMultiplier(TVarInt(n), 1504);
        EXPECT_TRUE(std::find(std::begin(cand), std::end(cand), k) != std::end(cand)) << k;
    }
    // N = 7 mod 8 with k = 1 has no bonus for 2; some multiplier makes kN = 1 mod 8 and wins
    uint32_t k = mpqsMultiplier(TVarInt("6155172054816489443936682206746973656091"), 800);
    EXPECT_NE(k, 1u);
}

TEST(Mpqs, SplitsSemiprimesAndCombinesLargePrimes)
{
    mp_random_seed(10);
    const struct {
        const char *p, *q;
    } cases[] = {
        {"4280387021", "2095513151"},
        {"956766499050877", "631701701925103"},
        {"67071635982607948091", "91770119583970788001"},
        {"1020379357017934789921183", "3575782431187890476292703"},
    };
    for (const auto& c : cases) {
        const std::string qs = c.q;
        TVarInt n(mul(c.p, qs));
        MpqsParams p = mpqsParameters(n);
        TVarInt d, rest;
        MpqsStats st;
        CountingHooks h;
        ASSERT_EQ(mpqsSplit(n, p, d, &h, &st), MpqsOutcome::Split) << n.toDecimal();
        TVarInt::divMod(n, d, &rest, nullptr);
        TVarInt back;
        TVarInt::mul(d, rest, back);
        EXPECT_EQ(back.toDecimal(), n.toDecimal()) << "product check";
        EXPECT_TRUE(d.toDecimal() == c.p || d.toDecimal() == qs) << d.toDecimal();
        EXPECT_EQ(st.squareFailures, 0);
        EXPECT_GT(st.fullCombined, 0) << "partial relations were combined";
        EXPECT_GT(st.polynomials, 0);
    }
}

TEST(Mpqs, AbortsAtAYield)
{
    TVarInt n("3648654577971527337093183853288344643167408027649");
    CountingHooks h;
    h.aborted = true;  // as if pressed before the first second was over
    TVarInt d;
    MpqsParams p = mpqsParameters(n);
    p.period = 1;
    EXPECT_EQ(mpqsSplit(n, p, d, &h), MpqsOutcome::Aborted);
    ASSERT_FALSE(h.lines.empty());
    EXPECT_EQ(h.lines.back(), "Abbruch");
}

TEST(Mpqs, PerfectPowersAndRecursion)
{
    TVarInt base;
    EXPECT_EQ(perfectPower(TVarInt("1234567900987654321"), base), 2);  // 1111111111^2
    EXPECT_EQ(base.toDecimal(), "1111111111");
    // 10^30 = (10^5)^6; the scan stops there since (bits - 1) / p of 10^5 is under 7 for p >= 3
    EXPECT_EQ(perfectPower(TVarInt("1000000000000000000000000000000"), base), 6);
    EXPECT_EQ(base.toDecimal(), "100000");
    TVarInt p3;
    TVarInt::mul(TVarInt("1000000000000000003"), TVarInt("1000000000000000003"), p3);
    TVarInt::mul(p3, TVarInt("1000000000000000003"), p3);
    EXPECT_EQ(perfectPower(p3, base), 3);
    EXPECT_EQ(base.toDecimal(), "1000000000000000003");
    EXPECT_EQ(perfectPower(TVarInt("1000000000000000004"), base), 1);

    // 1111111111^2 goes through the power stage, the composite base recurses into the sieve
    FactorHooks h;
    std::vector<FactorPiece> out;
    ASSERT_EQ(mpqsFactor(TVarInt("1234567900987654321"), out, h), MpqsOutcome::Split);
    ASSERT_FALSE(h.lines.empty());
    EXPECT_EQ(h.lines.front(), "(1111111111^2)");
    EXPECT_EQ(product(out).toDecimal(), "1234567900987654321");
    for (const FactorPiece& f : out) {
        EXPECT_TRUE(f.prime) << f.value.toDecimal();
        EXPECT_EQ(f.exponent, 2);
    }
    EXPECT_EQ(out.size(), 4u);  // 11, 41, 271, 9091
}

TEST(Mpqs, ThreePrimeFactorsAndProductCheck)
{
    // three 14-digit primes: the first split leaves a composite part that is sieved again
    TVarInt n;
    TVarInt::mul(TVarInt("10000000000037"), TVarInt("10000000000051"), n);
    TVarInt::mul(n, TVarInt("10000000000099"), n);
    FactorHooks h;
    std::vector<FactorPiece> out;
    ASSERT_EQ(mpqsFactor(n, out, h), MpqsOutcome::Split);
    EXPECT_EQ(out.size(), 3u);
    EXPECT_EQ(product(out).toDecimal(), n.toDecimal());
    bool marked = false;
    for (const std::string& l : h.lines)
        marked = marked || l.find("nicht prim") != std::string::npos;
    EXPECT_TRUE(marked) << "the composite part is written with \"nicht prim\"";
}
