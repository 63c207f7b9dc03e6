#include "kernel/realtostr.h"
#include "kernel/roots.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>

using namespace kernel;

namespace {

// Each root must satisfy the polynomial to a residual relative to the coefficients' scale.
void expectRootsSolve(const PolynomialRoots& pr, std::vector<double> c, double tol, const char* what)
{
    ASSERT_EQ(pr.roots.size(), c.size() - 1) << what;
    for (const auto& z : pr.roots) {
        std::complex<double> v = c[0];
        for (size_t i = 1; i < c.size(); ++i)
            v = v * z + c[i];
        EXPECT_LT(std::abs(v), tol) << what << ": residual at " << RootText(z);
    }
}

}  // namespace

TEST(Roots, QuadraticTextsIncludingDegenerateCases)
{
    EXPECT_EQ(QuadraticRoots(0, 0, 0), "beliebig");
    EXPECT_EQ(QuadraticRoots(0, 0, 1), "keine L.");
    EXPECT_EQ(QuadraticRoots(0, 2, -3), "1.5");
    EXPECT_EQ(QuadraticRoots(1, -3, 2), "1; 2");
    EXPECT_EQ(QuadraticRoots(1, -2, 1), "1; 1");
    EXPECT_EQ(QuadraticRoots(1, 2, 5), "-1-2*i; -1+2*i");
    EXPECT_EQ(QuadraticRoots(2, 0, 1), "0-0.70711*i; 0+0.70711*i");
    // Cancellation: x^2 - 1e8 x + 1 has the small root 1e-8, not 0.
    const auto pr = QuadraticRootValues(1, -1e8, 1);
    EXPECT_NEAR(pr.roots[0].real(), 1e-8, 1e-20);
    // The comma setting never reaches the root texts: they are read back.
    const bool keep = UseDecimalComma;
    UseDecimalComma = true;
    EXPECT_EQ(QuadraticRoots(4, 0, -1), "-0.5; 0.5");
    UseDecimalComma = keep;
}

TEST(Roots, CubicThreeRealOneRealAndMultiple)
{
    EXPECT_EQ(CubicRoots(1, -6, 11, -6), "1; 2; 3");         // trigonometric form
    EXPECT_EQ(CubicRoots(1, 0, 0, -8), "-1-1.73205*i; -1+1.73205*i; 2");  // Cardano
    EXPECT_EQ(CubicRoots(1, -3, 3, -1), "1; 1; 1");          // triple root
    EXPECT_EQ(CubicRoots(1, 0, -3, 2), "-2; 1; 1");          // double root, discriminant 0
    EXPECT_EQ(CubicRoots(0, 1, -3, 2), "1; 2");              // falls to the quadratic
    EXPECT_EQ(CubicRoots(0, 0, 0, 0), "beliebig");
    EXPECT_EQ(CubicRoots(2, -4, -22, 24), "-3; 1; 4");       // leading coefficient not 1
    expectRootsSolve(CubicRootValues(3, -7, 0.5, 11), {3, -7, 0.5, 11}, 1e-11, "3x^3-7x^2+0.5x+11");
    expectRootsSolve(CubicRootValues(1, 1e3, -1, -1e3), {1, 1e3, -1, -1e3}, 1e-7, "wide spread");
}

TEST(Roots, QuarticFerrariAndBiquadratic)
{
    EXPECT_EQ(QuarticRoots(1, -10, 35, -50, 24), "1; 2; 3; 4");
    EXPECT_EQ(QuarticRoots(1, 0, -5, 0, 4), "-2; -1; 1; 2");  // biquadratic
    EXPECT_EQ(QuarticRoots(1, 0, 0, 0, 1),
              "-0.70711-0.70711*i; -0.70711+0.70711*i; 0.70711-0.70711*i; 0.70711+0.70711*i");
    EXPECT_EQ(QuarticRoots(1, 0, 0, 0, -16), "-2; 0-2*i; 0+2*i; 2");
    EXPECT_EQ(QuarticRoots(1, -4, 6, -4, 1), "1; 1; 1; 1");
    EXPECT_EQ(QuarticRoots(0, 1, -6, 11, -6), "1; 2; 3");    // falls to the cubic
    EXPECT_EQ(QuarticRoots(0, 0, 0, 0, 3), "keine L.");
    expectRootsSolve(QuarticRootValues(2, -3, -7, 5, 1.5), {2, -3, -7, 5, 1.5}, 1e-10, "mixed");
    expectRootsSolve(QuarticRootValues(1, 2, 3, 4, 5), {1, 2, 3, 4, 5}, 1e-10, "two complex pairs");
}

TEST(Roots, BadlyScaledPolynomials)
{
    // A tiny leading coefficient: the closed form's shift b/(4a) would swamp the small roots.
    const auto tiny = QuarticRootValues(9.87007e-05, 7.19477, -6.7149, 6.35934, 6.26322);
    ASSERT_EQ(tiny.roots.size(), 4u);
    EXPECT_NEAR(tiny.roots[0].real(), -7.19477 / 9.87007e-05, 10.0);  // the one huge root
    EXPECT_EQ(QuarticRoots(1, 0, 0, 0, 0), "0; 0; 0; 0");
    // Roots spread over ten orders of magnitude: 1e-3, 2, -3e4, 5e5 (each found to 1e-9 relative).
    const double r[4] = {1e-3, 2, -3e4, 5e5};
    std::vector<double> c = {1};
    for (double x : r) {
        std::vector<double> n(c.size() + 1, 0);
        for (size_t i = 0; i < c.size(); ++i) {
            n[i] += c[i];
            n[i + 1] -= x * c[i];
        }
        c = n;
    }
    const auto spread = QuarticRootValues(c[0], c[1], c[2], c[3], c[4]);
    ASSERT_EQ(spread.roots.size(), 4u);
    const double sorted[4] = {-3e4, 1e-3, 2, 5e5};
    for (int i = 0; i < 4; ++i) {
        EXPECT_NEAR(spread.roots[i].real(), sorted[i], 1e-9 * std::fabs(sorted[i])) << i;
        EXPECT_EQ(spread.roots[i].imag(), 0) << i;
    }
    // Tiny outer and dominant middle coefficients: two huge and two tiny roots, none lost.
    const auto both = QuarticRootValues(-3.90781e-06, -0.372273, -62593.2, -1.66024, -0.000195022);
    for (const auto& z : both.roots) {
        std::complex<double> v = -3.90781e-06;
        for (double k : {-0.372273, -62593.2, -1.66024, -0.000195022})
            v = v * z + k;
        const double size = 3.90781e-06 * std::pow(std::abs(z), 4) + 0.372273 * std::pow(std::abs(z), 3) +
                            62593.2 * std::norm(z) + 1.66024 * std::abs(z) + 0.000195022;
        EXPECT_LT(std::abs(v) / size, 1e-10) << RootText(z);
    }
}

TEST(Roots, SplitForListings)
{
    EXPECT_EQ(SplitRoots("1; 2; 3"), (std::vector<std::string>{"1", "2", "3"}));
    EXPECT_EQ(SplitRoots("keine L."), (std::vector<std::string>{"keine L."}));
    EXPECT_TRUE(SplitRoots("").empty());
}
