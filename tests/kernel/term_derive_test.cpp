// The derivative engine: derivatives checked against difference quotients of the interpreter,
// the exact texts of the common cases, the clean-up and the rewrite list "wverein".
#include "kernel/term.h"
#include "kernel/termderiv.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <string>
#include <vector>

using namespace quorix;

namespace {

const char* const kTerms[] = {
    "X^2", "X^3-2*X^2+X-1", "SIN(X)*COS(X)", "SIN(X)+P*X^2", "(X+1)/(X-1)", "X*SIN(X)",
    "EXP(X)*X^2", "LN(X)*X", "SQRT(X^2+1)", "1/X", "1/X^2", "X^X", "2^X", "ARCTAN(X)",
    "ARCSIN(X/2)", "ARCCOS(X/2)", "TAN(X)", "COT(X)", "SINH(X)", "COSH(X)", "TANH(X)", "COTH(X)",
    "ARSINH(X)", "ARCOSH(X+2)", "ARTANH(X/2)", "LG(X)", "LD(X)", "EXP(-X^2/2)", "WURZEL(X)",
    "EHOCH(2*X)", "ABS(X-1)", "SIN(X)^2", "COS(X)^3", "LN(SIN(X)+2)", "X/(1+X^2)", "(X^2+1)^0.5",
    "K1*X^2", "PI*X", "X^2*Q", "SIN(COS(X))", "EXP(SIN(X))/X", "3*X^2-X/4", "X-X^2-X^3",
    "1-X+X^2", "(X-1)*(X+2)*(X-3)", "X^2/(X-3)^2", "2/(X+5)", "SQRT(X)*LN(X)", "ARCCOT(X)",
    "SIN(X)/X", "-X+X^2", "5*X", "X*5", "X/5", "(2*X+1)^3", "COS(2*X+1)", "X^2.5", "1/SQRT(X)",
    "SIN(X)*SIN(X)", "X+X", "X*X*X", "LN(X^2+1)-X", "(X+1)*(X+1)", "EXP(X)/(1+EXP(X))",
};
const double kPoints[] = {0.3, 0.7, 1.3, 1.9};

std::vector<std::string> readLines(const std::string& path)
{
    std::ifstream in(path);
    std::vector<std::string> lines;
    for (std::string l; std::getline(in, l);)
        lines.push_back(l);
    return lines;
}

// Central difference quotient of the interpreter; h = 1e-5 leaves an error far below 1e-6.
void checkAgainstDifferences(const std::string& term, const std::string& derivative)
{
    for (double x : kPoints) {
        const double h = 1e-5;
        const double ref = (EvalTerm(term, x + h) - EvalTerm(term, x - h)) / (2 * h);
        const double got = EvalTerm(derivative, x);
        EXPECT_EQ(TermError, 0) << term << " -> " << derivative << " at " << x;
        EXPECT_NEAR(got, ref, 1e-6 * std::max(1.0, std::fabs(ref)))
            << term << " -> \"" << derivative << "\" at x = " << x;
    }
}

struct DeriveTest : ::testing::Test {
    void SetUp() override
    {
        TermParamP = 1.5;
        TermParamQ = -0.75;
    }
    void TearDown() override { TermParamP = TermParamQ = 0; }
};

}  // namespace

TEST_F(DeriveTest, AgreesWithDifferenceQuotients)
{
    for (const char* t : kTerms) {
        const std::string d = DerivativeTerm(t);
        ASSERT_FALSE(d.empty()) << t;
        checkAgainstDifferences(t, d);
    }
}

TEST_F(DeriveTest, NiceFormWithRewriteListKeepsTheValue)
{
    const auto list = readLines(QUORIX_SOURCE_DIR "/data/texte/wverein.txt");
    ASSERT_GE(list.size(), 20u);
    ASSERT_EQ(list.size() % 2, 0u) << "wverein holds pairs";
    for (const char* t : kTerms) {
        const std::string d = DerivativeTermNice(t, list);
        ASSERT_FALSE(d.empty()) << t;
        checkAgainstDifferences(t, d);
    }
}

TEST_F(DeriveTest, SecondDerivativeThroughTheTextAgain)
{
    for (const char* t : {"X^3-2*X^2+X-1", "SIN(X)*X", "EXP(X)*X", "LN(X)", "X^4"}) {
        const std::string d1 = DerivativeTerm(t);
        const std::string d2 = DerivativeTerm(d1);
        ASSERT_FALSE(d2.empty()) << t << " -> " << d1;
        checkAgainstDifferences(d1, d2);
    }
}

TEST(DeriveText, CommonCases)
{
    const std::pair<const char*, const char*> cases[] = {
        {"X^2", "2*X"},
        {"X^3", "3*X^2"},
        {"SIN(X)", "COS(X)"},
        {"COS(X)", "-SIN(X)"},
        {"EXP(X)", "EXP(X)"},
        {"LN(X)", "1/X"},
        {"SQRT(X)", "1/(2*SQRT(X))"},
        {"1/X", "-1/X^2"},
        {"X*SIN(X)", "SIN(X)+X*COS(X)"},
        {"2^X", "LN(2)*2^X"},
        {"ABS(X)", "SGN(X)"},
        {"ARCTAN(X)", "1/(1+X^2)"},
        {"X", "1"},
        {"5", "0"},
        {"P*X", "P"},
        {"SIN(2*X)", "2*COS(2*X)"},
        {"X^3-2*X^2+X-1", "3*X^2-2*2*X+1"},
        {"LG(X)", "0.4342944819/X"},
        {"7,5*X", "7.5"},
        {"X + 1", "1"},
    };
    for (const auto& [term, expected] : cases)
        EXPECT_EQ(DerivativeTerm(term), expected) << term;
}

TEST(DeriveText, NumbersEqualToPiAndEPrintAsSymbols)
{
    EXPECT_EQ(DerivativeTerm("3.141592653589793*X"), "\xE3");
    EXPECT_EQ(DerivativeTerm("\xC9*X"), "\xC9");
    EXPECT_EQ(DerivativeTerm("\xC9^X"), "LN(\xC9)*\xC9^X");
}

TEST(DeriveText, TermsTheEngineDoesNotUnderstandGiveEmptyText)
{
    for (const char* t : {"", "SQR(X)", "X+", "(X", "X)", "2X", "F1(X)", "*X", "XX", "LOG(X)", "K5*X"})
        EXPECT_EQ(DerivativeTerm(t), "") << t;
}

TEST(DeriveText, NiceFormTidiesWithTheListAndIsPlainWithout)
{
    const auto list = readLines(QUORIX_SOURCE_DIR "/data/texte/wverein.txt");
    EXPECT_EQ(DerivativeTermNice("(X+1)/(X-1)", list), "((X-1)-(X+1))/(X-1)^2");
    EXPECT_EQ(DerivativeTermNice("TAN(X)", list), "1+TAN(X)^2");
    EXPECT_EQ(DerivativeTermNice("3*X^2", list), "6*X");
    EXPECT_EQ(DerivativeTermNice("(X+1)/(X-1)", {}), DerivativeTerm("(X+1)/(X-1)"));
    SetTermRewriteList({"<COS(X)>", "<C>"});
    EXPECT_EQ(DerivativeTermNice("SIN(X)"), "C");
    SetTermRewriteList({});
    EXPECT_EQ(DerivativeTermNice("SIN(X)"), "COS(X)");
    EXPECT_EQ(DerivativeTermNice("SQR(X)", list), "");
}

TEST(SimplifyText, CleanUpsKeepTheValue)
{
    const std::pair<const char*, const char*> cases[] = {
        {"(0)", "0"},
        {"X/X", "1"},
        {"(-1)*SIN(X)", "-SIN(X)"},
        {"1*X+0", "X"},
        {"0+X*1", "X"},
        {"X^1+2", "X+2"},
        {"(0*X*Y+1)", "(1)"},
        {"X+(0*X*(Y+1)-2)", "X+(-2)"},
        {"X+-2", "X-2"},
        {"X--2", "X+2"},
        {"2*(X)", "2*X"},
        {"()", "0"},
        {"+X", "X"},
        {"1-1", "0"},
        {"2*(COS(X))", "2*COS(X)"},
        {"X^(2)", "X^2"},
    };
    for (const auto& [in, expected] : cases) {
        std::string t = in;
        SimplifyTerm(t);
        EXPECT_EQ(t, expected) << in;
    }
}

TEST(SimplifyText, NoBareSignBeforeAPower)
{
    // Inside a term -F^2 is (-F)^2: these must not lose their factor or bracket.
    for (const char* in : {"X*(-1*SIN(X)^2)", "X+-SIN(X)^2", "X--SIN(X)^2", "(1*-X^2)", "(0-SIN(X)^2)",
                           "2^-(X+1))", "2*(-(X)^2)", "(-1*X^2)+1", "1*-X^2", "0+-X^2"}) {
        std::string t = in;
        SimplifyTerm(t);
        for (double x : {0.4, 1.1, 2.3}) {
            const double before = EvalTerm(in, x);
            EXPECT_NEAR(EvalTerm(t, x), before, 1e-12) << in << " -> " << t;
        }
    }
}

namespace {

// Random texts of the kind the printer writes: factors 0, 1, -1, 2, X, SIN(X), COS(X), brackets,
// signs behind brackets and operators.
std::string randomText(std::uint32_t& seed, int depth)
{
    auto next = [&seed](int n) {
        seed = seed * 1664525u + 1013904223u;
        return static_cast<int>((seed >> 8) % n);
    };
    static const char* const factors[] = {"0", "1", "2", "X", "SIN(X)", "COS(X)", "(-1)", "-1", "-X"};
    if (depth <= 0 || next(3) == 0)
        return factors[next(9)];
    static const char ops[] = {'+', '-', '*', '/', '^'};
    std::string l = randomText(seed, depth - 1), r = randomText(seed, depth - 1);
    const char op = ops[next(5)];
    std::string t = l + op + r;
    if (next(2))
        t = (next(3) == 0 ? "(-" : "(") + t + ")";
    return t;
}

}  // namespace

TEST(SimplifyText, RandomPrinterTextsKeepTheirValue)
{
    std::uint32_t seed = 20261122;
    int compared = 0;
    for (int i = 0; i < 3000; ++i) {
        const std::string in = randomText(seed, 4);
        std::string out = in;
        SimplifyTerm(out);
        for (double x : {0.37, 1.21}) {
            const double before = EvalTerm(in, x);
            if (TermError != 0 || !std::isfinite(before) || std::fabs(before) > 1e6)
                continue;
            const double after = EvalTerm(out, x);
            ASSERT_EQ(TermError, 0) << in << " -> " << out;
            ASSERT_NEAR(after, before, 1e-9 * std::max(1.0, std::fabs(before))) << in << " -> " << out << " at " << x;
            ++compared;
        }
    }
    EXPECT_GT(compared, 1000);
}
