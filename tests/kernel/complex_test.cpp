#include "kernel/complex.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>
#include <string>

using namespace kernel;

namespace {

constexpr double kPi = 3.14159265358979323846;

void expectC(const Complex& z, double re, double im, double tol, const char* what)
{
    EXPECT_NEAR(Re(z), re, tol) << what << ": expected " << re << (im < 0 ? "" : "+") << im << "i, got "
                                << Re(z) << (Im(z) < 0 ? "" : "+") << Im(z) << "i";
    EXPECT_NEAR(Im(z), im, tol) << what;
}

}  // namespace

TEST(Complex, ModesAndArithmetic)
{
    const Complex z = Cartesian(3, 4), w = Cartesian(1, -2);
    expectC(CAdd(z, w), 4, 2, 1e-15, "add");
    expectC(CSub(z, w), 2, 6, 1e-15, "sub");
    expectC(CMul(z, w), 11, -2, 1e-14, "mul");
    expectC(CDiv(z, w), -1, 2, 1e-14, "div");
    // Polar products multiply moduli and add angles, angle brought to (-pi, pi].
    const Complex p = CMul(Polar(2, 3.0), Polar(3, 1.0), cmPolar);
    EXPECT_EQ(p.mode, cmPolar);
    EXPECT_NEAR(p.a, 6, 1e-15);
    EXPECT_NEAR(p.b, 4.0 - 2 * kPi, 1e-15);
    const Complex q = CDiv(Polar(6, -3.0), Polar(3, 1.0), cmPolar);
    EXPECT_NEAR(q.a, 2, 1e-15);
    EXPECT_NEAR(q.b, -4.0 + 2 * kPi, 1e-15);
    // Addition goes through the cartesian form whatever the modes.
    const Complex s = CAdd(Polar(1, kPi / 2), Cartesian(1, 0), cmPolar);
    EXPECT_NEAR(s.a, std::sqrt(2.0), 1e-15);
    EXPECT_NEAR(s.b, kPi / 4, 1e-15);
    expectC(ToMode(Polar(2, -kPi / 2), cmCartesian), 0, -2, 1e-15, "polar to cartesian");
    EXPECT_NEAR(Polar(1, -kPi).b, kPi, 1e-15);  // -pi belongs to the other end
    expectC(CConj(z), 3, -4, 0, "conj");
    expectC(CInv(Cartesian(0, 2)), 0, -0.5, 1e-15, "inverse");
}

TEST(Complex, FaultsOfTheThreeKinds)
{
    // Cartesian division by zero gives 0 without a message; polar raises.
    const Complex zero = Cartesian(0, 0);
    expectC(CDiv(Cartesian(1, 1), zero), 0, 0, 0, "cartesian 1/0");
    EXPECT_THROW(CDiv(Cartesian(1, 1), zero, cmPolar), EComplexZeroDivide);
    EXPECT_THROW(CLn(zero), EComplexLnZero);
    EXPECT_THROW(CLn(Polar(0, 1)), EComplexLnZero);
    EXPECT_THROW(CPower(zero, Cartesian(-1, 0)), EComplexInvalidOp);
    EXPECT_THROW(CPowerReal(zero, 0), EComplexInvalidOp);
    EXPECT_THROW(CRoot(Cartesian(4, 0), 0), EComplexInvalidOp);
    EXPECT_THROW(CArcTan(Cartesian(0, 1)), EComplexInvalidOp);
    EXPECT_THROW(CArTanh(Cartesian(1, 0)), EComplexInvalidOp);
    EXPECT_THROW(CCot(zero), EComplexInvalidOp);
    EXPECT_THROW(CGamma(Cartesian(-2, 0)), EComplexInvalidOp);
    EXPECT_THROW(CZeta(Cartesian(1, 0)), EComplexInvalidOp);
    // All three share one base, so the global handler can catch them alike.
    EXPECT_THROW(CLn(zero), EComplexError);
}

TEST(Complex, PowersRootsAndElementaryFunctions)
{
    const Complex i = Cartesian(0, 1);
    expectC(CPower(i, i), std::exp(-kPi / 2), 0, 1e-15, "i^i");
    expectC(CPowerInt(Cartesian(1, 1), 8), 16, 0, 0, "(1+i)^8");
    expectC(CPowerInt(Cartesian(0, 2), -2), -0.25, 0, 1e-16, "(2i)^-2");
    expectC(CRoot(Cartesian(-8, 0), 3), 1, std::sqrt(3.0), 1e-14, "principal cube root of -8");
    expectC(CRoot(Cartesian(-8, 0), 3, 1), -2, 0, 1e-14, "second cube root of -8");
    expectC(CSqrt(Cartesian(-4, 0)), 0, 2, 1e-15, "sqrt(-4)");
    expectC(CExp(Cartesian(0, kPi)), -1, 0, 1e-15, "Euler");
    expectC(CLn(Cartesian(-1, 0)), 0, kPi, 1e-15, "ln(-1)");
    // sin(1+i) = sin 1 cosh 1 + i cos 1 sinh 1 (A&S 4.3.55)
    expectC(CSin(Cartesian(1, 1)), 1.2984575814159773, 0.6349639147847361, 1e-14, "sin(1+i)");
    expectC(CCosh(Cartesian(0, 1)), std::cos(1.0), 0, 1e-15, "cosh(i)");
    // Inverses undo their functions on the principal branch.
    const Complex z = Cartesian(0.3, -0.7);
    expectC(CSin(CArcSin(z)), 0.3, -0.7, 1e-14, "sin arcsin");
    expectC(CCos(CArcCos(z)), 0.3, -0.7, 1e-14, "cos arccos");
    expectC(CTan(CArcTan(z)), 0.3, -0.7, 1e-14, "tan arctan");
    expectC(CCot(CArcCot(z)), 0.3, -0.7, 1e-14, "cot arccot");
    expectC(CSinh(CArSinh(z)), 0.3, -0.7, 1e-14, "sinh arsinh");
    expectC(CCosh(CArCosh(z)), 0.3, -0.7, 1e-14, "cosh arcosh");
    expectC(CTanh(CArTanh(z)), 0.3, -0.7, 1e-14, "tanh artanh");
    expectC(CCoth(CArCoth(z)), 0.3, -0.7, 1e-13, "coth arcoth");
    expectC(CSec(Cartesian(0, 0)), 1, 0, 0, "sec 0");
    expectC(CCsc(Cartesian(kPi / 2, 0)), 1, 0, 1e-15, "csc pi/2");
}

TEST(Complex, SpecialFunctionTable)
{
    std::ifstream in(std::string(QUORIX_TEST_DATA) + "/complexfun_table.txt");
    ASSERT_TRUE(in);
    std::string line;
    int rows = 0;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#')
            continue;
        std::istringstream s(line);
        std::string name, source;
        double re, im, er, ei, tol;
        s >> name >> re >> im >> er >> ei >> tol;
        std::getline(s >> std::ws, source);
        const Complex z = Cartesian(re, im);
        Complex v;
        if (name == "gamma")
            v = CGamma(z);
        else if (name == "digamma")
            v = CDigamma(z);
        else if (name == "zeta")
            v = CZeta(z);
        else if (name == "besselj0")
            v = CBesselJ0(z);
        else if (name == "besseli0")
            v = CBesselI0(z);
        else if (name == "ei")
            v = CExpIntegralEi(z);
        else
            FAIL() << "unknown function " << name;
        const std::string what = name + "(" + std::to_string(re) + "," + std::to_string(im) + ") " + source;
        expectC(v, er, ei, tol, what.c_str());
        ++rows;
    }
    EXPECT_GT(rows, 20);
    // ln Gamma is continuous across the negative real axis' neighbourhood and matches ln of Gamma.
    const Complex lg = CLnGamma(Cartesian(4, 0));
    expectC(lg, std::log(6.0), 0, 1e-12, "lnGamma(4)");
}
