// The sibling engines: complex evaluator, PostFix, fk3parser and TMathParser.
#include "kernel/termcomplex.h"
#include "kernel/termfk3.h"
#include "kernel/termmathparser.h"
#include "kernel/termpostfix.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace quorix;

namespace {

void expectComplex(const char* term, TermComplex z, TermComplex expected, int code, double tol = 1e-12)
{
    TermComplex r;
    const int c = EvalComplexTerm(term, z, r);
    EXPECT_EQ(c, code) << term;
    EXPECT_NEAR(r.real(), expected.real(), tol) << term << " expected " << expected << " got " << r;
    EXPECT_NEAR(r.imag(), expected.imag(), tol) << term << " expected " << expected << " got " << r;
}

}  // namespace

TEST(ComplexTerm, ArithmeticAndNormalisation)
{
    const TermComplex i(0, 1), z(1, 1);
    expectComplex("Z*Z", z, {0, 2}, 0);
    expectComplex("Z^2", z, {0, 2}, 0);
    expectComplex("I*I", 0, {-1, 0}, 0);
    expectComplex("z*z", z, {0, 2}, 0);              // upper-cased here, unlike the real one
    expectComplex("-Z^2", z, {0, -2}, 0);            // 0-Z^2
    expectComplex("(-Z^2)", z, {0, -2}, 0);          // every "(-" mended
    expectComplex("(-Z)^2", z, {0, 2}, 0);
    expectComplex("1,5*Z", z, {1.5, 1.5}, 0);
    expectComplex("EXP(PI*I)", 0, {-1, 0}, 0, 1e-15);
    expectComplex("(Z+1)/(Z-1)", 1, {0, 0}, 2);
    expectComplex("", z, {0, 0}, 1);
    expectComplex("Z^0", z, {1, 0}, 0);
    expectComplex("0^Z", z, {0, 0}, 0);
    expectComplex("2#3", 0, {2, 0}, 0);              // read, but does nothing
    expectComplex("10000000001*Z", z, {1e10, 0}, 2);
    expectComplex("|Z||Z|", {3, 4}, {5, 0}, 0);      // two expressions: re of one, im of the other
    expectComplex("Y", 0, {0, 0}, 1);
    expectComplex("SIN(Z)", z, std::sin(z), 0);
    expectComplex("TRE(Z)+TIM(Z)*2", {3, 4}, {3, 8}, 0);
    expectComplex("CONJ(Z)", {3, 4}, {3, -4}, 0);
    expectComplex("LN(0)", 0, {0, 0}, 2);
    ComplexTermParamP = {2, 1};
    ComplexTermParamQ = {0, 3};
    expectComplex("P*Q", 0, TermComplex(2, 1) * TermComplex(0, 3), 0);
    ComplexTermParamP = ComplexTermParamQ = 0;
}

// Reference values: zeta(2) = pi^2/6, zeta(0) = -1/2, zeta(-1) = -1/12, the first zero on the
// critical line at 14.134725141734693 (Odlyzko's tables); Gamma(1+i) and Ei(1), J0(1), I0(1)
// from DLMF tables, 1e-9 unless noted.
TEST(ComplexTerm, SpecialFunctions)
{
    const double pi = 3.14159265358979323846;
    expectComplex("RIEMANN(2)", 0, {pi * pi / 6, 0}, 0, 1e-9);
    expectComplex("RIEMANN(0)", 0, {-0.5, 0}, 0, 1e-9);
    expectComplex("RIEMANN(0-1)", 0, {-1.0 / 12, 0}, 0, 1e-9);
    expectComplex("RIEMANN(Z)", {0.5, 14.134725141734693}, {0, 0}, 0, 1e-6);
    expectComplex("RIEMANN(1)", 0, {0, 0}, 4);
    expectComplex("GAMMA(5)", 0, {24, 0}, 0, 1e-9);
    expectComplex("GAMMA(1+I)", 0, {0.49801566811835604, -0.15494982830181069}, 0, 1e-9);
    expectComplex("GAMMA(0)", 0, {0, 0}, 4);
    expectComplex("DIGAMMA(1)", 0, {-0.5772156649015329, 0}, 0, 1e-9);
    expectComplex("EI(1)", 0, {1.8951178163559368, 0}, 0, 1e-9);
    expectComplex("BJ0(1)", 0, {0.7651976865579666, 0}, 0, 1e-9);
    expectComplex("BI0(1)", 0, {1.2660658777520082, 0}, 0, 1e-9);
    ComplexTermParamQ = 0;
    expectComplex("SN(0.5)", 0, {std::sin(0.5), 0}, 0, 1e-12);
    expectComplex("SN(0.5*I)", 0, {0, std::sinh(0.5)}, 0, 1e-12);
}

TEST(PostFixView, ConversionFollowsTheInterpreterGrouping)
{
    const PostFixResult a = PostFix("2+3*4", 0);
    ASSERT_TRUE(a.ok);
    EXPECT_EQ(a.text(), "2 3 4 * +");
    EXPECT_EQ(a.value, 14);
    const PostFixResult b = PostFix("2^3^2", 0);
    EXPECT_EQ(b.text(), "2 3 ^ 2 ^");
    EXPECT_EQ(b.value, 64);
    const PostFixResult c = PostFix("-X^2", 3);
    EXPECT_EQ(c.text(), "0 X 2 ^ -");
    EXPECT_EQ(c.value, -9);
    const PostFixResult d = PostFix("2*(-X^2)", 3);
    EXPECT_EQ(d.text(), "2 0 X 2 ^ - *");
    const PostFixResult e = PostFix("SIN(X)*|X-4|", 1);
    EXPECT_EQ(e.text(), "X SIN X 4 - ABS *");
    EXPECT_NEAR(e.value, std::sin(1.0) * 3, 1e-15);
    const PostFixResult f = PostFix("2*-3", 0);
    EXPECT_EQ(f.text(), "2 3 NEG *");
    EXPECT_EQ(f.value, -6);
}

TEST(PostFixView, FaultsComeWithAMessage)
{
    EXPECT_FALSE(PostFix("SIN(X", 0).ok);
    EXPECT_EQ(PostFix("SIN(X", 0).message, "\")\" fehlt");
    EXPECT_EQ(PostFix("FOO(X)", 0).message, "Unbekannte Funktion FOO");
    EXPECT_EQ(PostFix("", 0).message, "Term leer");
    EXPECT_EQ(PostFix("1/0", 0).message, "Division durch Null");
    EXPECT_EQ(PostFix("SQRT(0-1)", 0).error, 2);
    const PostFixResult own = EvaluatePostFix({"2", "+"}, 0);
    EXPECT_FALSE(own.ok);
    EXPECT_EQ(own.message, "Operand fehlt");
}

TEST(Fk3Parser, TranslatesToPostfixAndEvaluates)
{
    const Fk3Program p = fk3parser("x^2 + sin(y)*2");
    ASSERT_FALSE(p.fault);
    EXPECT_EQ(p.text, "X^2+SIN(Y)*2");
    const std::vector<int> codes = {Fk3X, Fk3Number, Fk3Power, Fk3Y, Fk3Sin, Fk3Number, Fk3Times, Fk3Plus};
    EXPECT_EQ(p.codes, codes);
    Fk3Values v;
    v.x = 3;
    v.y = 0.5;
    bool ok = false;
    EXPECT_NEAR(fk3evaluate(p, v, ok), 9 + 2 * std::sin(0.5), 1e-15);
    EXPECT_TRUE(ok);
    EXPECT_EQ(fk3evaluate(fk3parser("2^3^2"), v, ok), 512);
    EXPECT_EQ(fk3evaluate(fk3parser("-X+U*V"), Fk3Values{3, 0, 2, 5}, ok), 7);
    EXPECT_EQ(fk3evaluate(fk3parser("(1+2)*-K"), Fk3Values{0, 0, 0, 0, 2}, ok), -6);
    EXPECT_EQ(fk3parser("99999999999").numbers.at(0), 999999999);  // digits beyond the limit are dropped
}

TEST(Fk3Parser, UnknownTokensMarkTheText)
{
    for (const char* bad : {"X+2.5", "W", "(X", "X)", "LOG(X)"}) {
        const Fk3Program p = fk3parser(bad);
        EXPECT_TRUE(p.fault) << bad;
        EXPECT_EQ(p.text, "F\xA7\xA7\xA7") << bad;
        bool ok = true;
        fk3evaluate(p, {}, ok);
        EXPECT_FALSE(ok);
    }
}

TEST(MathParser, SchoolNotationVariablesAndErrors)
{
    TMathParser m;
    double v = 0;
    ASSERT_TRUE(m.Evaluate("2+3*4", v));
    EXPECT_EQ(v, 14);
    ASSERT_TRUE(m.Evaluate("2^3^2", v));
    EXPECT_EQ(v, 512);
    ASSERT_TRUE(m.Evaluate("-2^2", v));
    EXPECT_EQ(v, -4);
    ASSERT_TRUE(m.Evaluate("5!", v));
    EXPECT_EQ(v, 120);
    ASSERT_TRUE(m.Evaluate("a = 3*4", v));
    ASSERT_TRUE(m.Evaluate("A^2", v));
    EXPECT_EQ(v, 144);
    ASSERT_TRUE(m.Evaluate("ans/2", v));
    EXPECT_EQ(v, 72);
    ASSERT_TRUE(m.Evaluate("sin(pi/2)+1,5e1", v));
    EXPECT_NEAR(v, 16, 1e-15);
    EXPECT_FALSE(m.Evaluate("1/0", v));
    EXPECT_EQ(m.ErrorText(), "Division durch Null");
    EXPECT_FALSE(m.Evaluate("sqrt(-1)", v));
    EXPECT_EQ(m.ErrorText(), "Außerhalb des Definitionsbereichs");
    EXPECT_FALSE(m.Evaluate("foo+1", v));
    EXPECT_EQ(m.ErrorText(), "Unbekannter Name");
    EXPECT_FALSE(m.Evaluate("2+", v));
    EXPECT_EQ(m.ErrorText(), "Syntaxfehler");
    EXPECT_EQ(m.ErrorPosition(), 3);
    EXPECT_FALSE(m.Evaluate("200!", v));
    EXPECT_EQ(m.Error(), MathError::Overflow);
}
