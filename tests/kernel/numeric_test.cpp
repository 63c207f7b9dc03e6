#include "kernel/numeric.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace kernel;

TEST(SmallArithmetic, SafeRoundHypotSqrtAbs)
{
    EXPECT_EQ(SafeRound(1000000), 100000);
    EXPECT_EQ(SafeRound(-1e300), -100000);
    EXPECT_EQ(SafeRound(2.4), 2);
    EXPECT_EQ(SafeRound(-2.6), -3);
    EXPECT_EQ(SafeRound(std::nan("")), 0);
    EXPECT_DOUBLE_EQ(Hypot(3, 4), 5);
    EXPECT_DOUBLE_EQ(SqrtAbs(-9), 3);
}

TEST(SmallArithmetic, ModPowerAndGcd)
{
    EXPECT_EQ(ModPower(2, 10, 1000), 24);
    EXPECT_EQ(ModPower(-2, 3, 7), 6);  // -8 mod 7
    // Fermat: 2^(p-1) = 1 mod p for the prime 2^61-1; the products need more than 64 bits.
    const std::int64_t p = (std::int64_t(1) << 61) - 1;
    EXPECT_EQ(ModPower(2, p - 1, p), 1);
    EXPECT_EQ(ModPower(3, 0, 5), 1);
    EXPECT_EQ(Gcd(84, 36), 12);
    EXPECT_EQ(Gcd(-84, 36), 12);
    EXPECT_EQ(Gcd(17, 5), 1);
    EXPECT_EQ(Gcd(0, 7), 1);  // the kept convention
    EXPECT_EQ(Gcd(7, 0), 1);
}

TEST(Brent, UsualHardCases)
{
    int calls = 0;
    auto counted = [&calls](auto f) {
        return [f, &calls](double x) {
            ++calls;
            return f(x);
        };
    };
    // Forsythe-Malcolm-Moler style test functions with known roots.
    struct Case { const char* name; RealFunction f; double a, b, root; int maxCalls; };
    const Case cases[] = {
        {"x^3-2x-5 (Wallis)", [](double x) { return x * x * x - 2 * x - 5; }, 2, 3, 2.0945514815423265, 15},
        {"cos x - x", [](double x) { return std::cos(x) - x; }, 0, 1, 0.7390851332151607, 15},
        {"x^9 flat", [](double x) { return std::pow(x, 9); }, -1, 1.1, 0.0, 200},
        {"exp(x)-2 steep", [](double x) { return std::exp(x) - 2; }, -4, 4, std::log(2.0), 30},
        {"step", [](double x) { return x < 0.3 ? -1.0 : 1.0; }, 0, 1, 0.3, 80},
        {"x^2 - 1e-8", [](double x) { return x * x - 1e-8; }, 0, 1, 1e-4, 60},
    };
    for (const Case& c : cases) {
        calls = 0;
        const double r = FindRootBrent(counted(c.f), 250, 1e-10, c.a, c.b);
        EXPECT_NEAR(r, c.root, 1e-7) << c.name << ": expected " << c.root << ", got " << r;
        EXPECT_LE(calls, c.maxCalls) << c.name;
    }
    // Same signs: nothing special, the result is where it stopped, inside or at the ends.
    const double r = FindRootBrent([](double x) { return x * x + 1; }, 50, 1e-8, -1, 2);
    EXPECT_TRUE(std::isfinite(r));
    // The iteration limit is honoured.
    calls = 0;
    FindRootBrent(counted([](double x) { return std::cos(x) - x; }), 3, 1e-15, 0, 1);
    EXPECT_LE(calls, 5);
}

TEST(LinearSolver, RegularSingularAndNearSingular)
{
    LinearMatrix m;
    // 2x + y - z = 8, -3x - y + 2z = -11, -2x + y + 2z = -3: x=2, y=3, z=-1 (textbook example).
    const double rows[3][4] = {{2, 1, -1, 8}, {-3, -1, 2, -11}, {-2, 1, 2, -3}};
    for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 4; ++c)
            m(r + 1, c + 1) = rows[r][c];
    double det = 0;
    bool ok = false;
    SolveLinear(m, 3, det, ok);
    ASSERT_TRUE(ok);
    EXPECT_NEAR(det, -1.0, 1e-12);
    EXPECT_NEAR(m(1, 4), 2, 1e-12);
    EXPECT_NEAR(m(2, 4), 3, 1e-12);
    EXPECT_NEAR(m(3, 4), -1, 1e-12);

    LinearMatrix s;  // second row twice the first
    const double sing[2][3] = {{1, 2, 3}, {2, 4, 6}};
    for (int r = 0; r < 2; ++r)
        for (int c = 0; c < 3; ++c)
            s(r + 1, c + 1) = sing[r][c];
    SolveLinear(s, 2, det, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(s(1, 3), 3);  // constants untouched
    EXPECT_EQ(s(2, 3), 6);

    LinearMatrix n;  // determinant 0.0000005: counts as singular
    n(1, 1) = 1; n(1, 2) = 0; n(1, 3) = 1;
    n(2, 1) = 0; n(2, 2) = 0.0000005; n(2, 3) = 1;
    SolveLinear(n, 2, det, ok);
    EXPECT_NEAR(det, 0.0000005, 1e-18);
    EXPECT_FALSE(ok);
    n(2, 2) = 0.000002;  // just above the limit: solved
    SolveLinear(n, 2, det, ok);
    EXPECT_TRUE(ok);
    EXPECT_NEAR(n(2, 3), 500000, 1e-6);
}

TEST(LinearSolver, PivotingAndFullSize)
{
    // A zero on the diagonal needs a row exchange; the determinant's sign follows it.
    LinearMatrix m;
    m(1, 1) = 0; m(1, 2) = 1; m(1, 3) = 2;
    m(2, 1) = 1; m(2, 2) = 0; m(2, 3) = 3;
    double det;
    bool ok;
    SolveLinear(m, 2, det, ok);
    ASSERT_TRUE(ok);
    EXPECT_DOUBLE_EQ(det, -1);
    EXPECT_DOUBLE_EQ(m(1, 3), 3);
    EXPECT_DOUBLE_EQ(m(2, 3), 2);
    // 25 unknowns: a diagonally dominant system with the solution 1..25.
    LinearMatrix big;
    for (int r = 1; r <= 25; ++r) {
        double rhs = 0;
        for (int c = 1; c <= 25; ++c) {
            big(r, c) = r == c ? 30.0 : 1.0 / (r + c);
            rhs += big(r, c) * c;
        }
        big(r, 26) = rhs;
    }
    SolveLinear(big, 25, det, ok);
    ASSERT_TRUE(ok);
    for (int r = 1; r <= 25; ++r)
        EXPECT_NEAR(big(r, 26), r, 1e-9) << "unknown " << r;
    SolveLinear(big, 26, det, ok);
    EXPECT_FALSE(ok);
}

TEST(Simpson, TwoHundredIntervals)
{
    // Exact for cubics; sin over [0, pi] with h = pi/200 has the error about h^4 pi / 180.
    EXPECT_NEAR(SimpsonTerm([](double x) { return x * x * x - x; }, 0, 2), 2.0, 1e-12);
    EXPECT_NEAR(SimpsonTerm([](double x) { return std::sin(x); }, 0, M_PI), 2.0, 1e-8);
    EXPECT_NEAR(SimpsonTerm([](double x) { return std::exp(x); }, 1, 0), 1 - M_E, 1e-10);
    EXPECT_EQ(SimpsonTerm([](double) { return 5.0; }, 3, 3), 0.0);
}
