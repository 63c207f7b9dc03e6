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

TEST(Roots, SplitForListings)
{
    EXPECT_EQ(SplitRoots("1; 2; 3"), (std::vector<std::string>{"1", "2", "3"}));
    EXPECT_EQ(SplitRoots("keine L."), (std::vector<std::string>{"keine L."}));
    EXPECT_TRUE(SplitRoots("").empty());
}
