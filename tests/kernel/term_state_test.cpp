// The entries around EvalTerm: modes, numeric fields, slot renaming, ReplaceAll, the cache.
#include "kernel/term.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

using namespace quorix;

TEST(TermModes, LogarithmicAxes)
{
    EXPECT_DOUBLE_EQ(EvalTermMode("X^2", 0, 3), 9);
    EXPECT_NEAR(EvalTermMode("X^2", 1, 1), std::exp(1.0) * std::exp(1.0), 1e-12);
    EXPECT_NEAR(EvalTermMode("X^2", 2, 3), std::log(9.0), 1e-15);
    EXPECT_NEAR(EvalTermMode("X", 3, 2.5), 2.5, 1e-15);
    EXPECT_EQ(TermError, 0);
    // Not positive, or any code: 0 with code 2.
    EXPECT_EQ(EvalTermMode("X-5", 2, 3), 0);
    EXPECT_EQ(TermError, 2);
    EXPECT_EQ(EvalTermMode("INT(X)", 2, 3.5), 0);
    EXPECT_EQ(TermError, 2);
    // Mode 1 takes exp through EvalTerm("EXP(X)"), so its end clamp applies to the argument.
    EXPECT_EQ(EvalTermMode("X", 1, 300), 10000000000.0);
    EXPECT_EQ(TermError, 0);
}

TEST(TermFields, ReadTermValueAcceptsTermsAndLowerCase)
{
    EXPECT_NEAR(ReadTermValue("2*pi"), 2 * M_PI, 1e-15);
    EXPECT_DOUBLE_EQ(ReadTermValue("1/4"), 0.25);
    EXPECT_DOUBLE_EQ(ReadTermValue("2,5"), 2.5);
    EXPECT_DOUBLE_EQ(ReadTermValue("x+1"), 2);  // X means 1 in a field
    EXPECT_DOUBLE_EQ(ReadTermValue("sqrt(-1)+3"), 0);
    EXPECT_DOUBLE_EQ(ReadTermValue("int(2.5)"), 0);  // code 3 is a code too
    EXPECT_DOUBLE_EQ(ReadTermValue(""), 0);
}

TEST(TermSlots, ReplaceVariableAndBackWithTheExpRepair)
{
    TermFunctionSlots[1] = "K*EXP(K)+SIN(K)";
    ReplaceTermVariable(2, 'K');
    EXPECT_EQ(TermFunctionSlots[1], "X*EXP(X)+SIN(X)");
    ReplaceTermVariableBack(2, 'K');
    EXPECT_EQ(TermFunctionSlots[1], "K*EXP(K)+SIN(K)");  // "EKP" mended back to "EXP"
    ReplaceTermVariableBack(2, 'T');
    EXPECT_EQ(TermFunctionSlots[1], "K*ETP(K)+SIN(K)");  // only the K damage is mended
    TermFunctionSlots[0] = "T^2+MAX(T)";
    ReplaceTermVariable(1, 'T');
    EXPECT_EQ(TermFunctionSlots[0], "X^2+MAX(X)");  // raw characters, no regard for names
    ReplaceTermVariable(0, 'X');                   // out of range: ignored
    ReplaceTermVariable(6, 'X');
    TermFunctionSlots = {};
}

TEST(TermText, ReplaceAllRepeatsAndRespectsTheLengthLimit)
{
    std::string s = "a---b";
    ReplaceAll(s, "--", "-");
    EXPECT_EQ(s, "a-b");
    std::string x = "X+X";
    ReplaceAll(x, "X", "(X)");  // the new text holds the old: one pass only
    EXPECT_EQ(x, "(X)+(X)");
    std::string longText(300, '-');
    ReplaceAll(longText, "--", "-");
    EXPECT_EQ(longText.size(), 300u);
}

TEST(TermCache, RepeatedAndInterleavedTermsGiveTheSameResults)
{
    // Results must not depend on what was evaluated before.
    const char* terms[] = {"SIN(X)+P*X^2", "X^3-2*X^2+X-1", "(X+1)/(X-1)", "S(X)", "1E5", "[X]"};
    double first[6];
    TermParamP = 2;
    for (int i = 0; i < 6; ++i)
        first[i] = EvalTerm(terms[i], 1.7);
    for (int round = 0; round < 3; ++round)
        for (int i = 5; i >= 0; --i) {
            EXPECT_EQ(EvalTerm(terms[i], 1.7), first[i]) << terms[i];
            EXPECT_EQ(EvalTerm(terms[i], 1.7), first[i]) << terms[i];
        }
    // A changed term of the same length is not confused with the cached one.
    EXPECT_EQ(EvalTerm("X+1", 1), 2);
    EXPECT_EQ(EvalTerm("X+2", 1), 3);
    // A slot changed between calls is read anew.
    TermFunctionSlots[0] = "X*2";
    EXPECT_EQ(EvalTerm("F1(3)", 0), 6);
    TermFunctionSlots[0] = "X*3";
    EXPECT_EQ(EvalTerm("F1(3)", 0), 9);
    TermFunctionSlots = {};
    TermParamP = 0;
}

TEST(TermState, ClampIsAVariable)
{
    TermClamp = 100;
    EXPECT_EQ(EvalTerm("200", 0), 100);
    EXPECT_EQ(TermError, 4);
    EXPECT_EQ(EvalTerm("1/0", 0), 100);
    EXPECT_EQ(TermError, 2);
    TermClamp = 10000000000.0;
}

TEST(TermRandom, McarloStaysInItsRangeAndCoversIt)
{
    SetTermRandomSeed(12345);
    std::set<double> seen;
    for (int i = 0; i < 600; ++i) {
        const double v = EvalTerm("MCARLO(6)", 0);
        ASSERT_EQ(TermError, 0);
        ASSERT_GE(v, 0);
        ASSERT_LE(v, 5);
        ASSERT_EQ(v, std::trunc(v));
        seen.insert(v);
    }
    EXPECT_EQ(seen.size(), 6u);
    double sum = 0;
    for (int i = 0; i < 2000; ++i) {
        const double v = EvalTerm("MCARLO(0)", 0);
        ASSERT_GE(v, 0);
        ASSERT_LE(v, 1);
        sum += v;
    }
    EXPECT_NEAR(sum / 2000, 0.5, 0.05);
}

TEST(TermRobustness, PathologicalTermsEndQuickly)
{
    std::string deep(5000, '(');
    deep += "X";
    EXPECT_EQ(EvalTerm(deep, 1), 0);  // nesting beyond the guard: syntax error
    EXPECT_EQ(TermError, 1);
    EXPECT_EQ(EvalTerm("1.0000001^2000000000", 0), TermClamp);
    EXPECT_EQ(TermError, 4);
    EXPECT_NEAR(EvalTerm("0.9999999^2000000000", 0), std::pow(0.9999999, 2e9), 1e-60);
    EXPECT_EQ(EvalTerm("1E300~1E300", 0), 1);  // read as 1~1: E is no exponent
    EXPECT_EQ(EvalTerm("TIME(1/0*1/0)", 0), 16);  // 10000000000 brought into 0..24
    EXPECT_EQ(EvalTerm("TIME(1\xE9" "400)", 0), 0);  // an infinite number: no endless loop
    EXPECT_EQ(TermError, 2);
    EXPECT_EQ(EvalTerm("99999999999~99999999998", 0), TermClamp);
    EXPECT_EQ(TermError, 2);
    EXPECT_EQ(EvalTerm("GAMMA(-1000.5)", 0), 0);
}
