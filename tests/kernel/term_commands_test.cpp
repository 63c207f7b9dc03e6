// The headless commands eval, derive, ceval and upn: output formats and exit codes.
#include "kernel/term.h"
#include "kernel/termcommands.h"
#include "kernel/termcomplex.h"
#include "kernel/termderiv.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace quorix;

namespace {

struct Outcome {
    int code;
    std::string out, err;
};

Outcome run(const std::string& name, Args args)
{
    for (const auto& c : termCommands()) {
        if (c.name != name)
            continue;
        std::ostringstream out, err;
        const int code = c.run(args, out, err);
        return {code, out.str(), err.str()};
    }
    ADD_FAILURE() << "no command " << name;
    return {-1, "", ""};
}

struct CommandTest : ::testing::Test {
    void TearDown() override
    {
        TermParamP = TermParamQ = TermParamR = 0;
        TermFunctionSlots = {};
        ComplexTermParamP = ComplexTermParamQ = 0;
        SetTermRewriteList({});
    }
};

}  // namespace

TEST_F(CommandTest, ListsTheFourCommandsWithGermanUsage)
{
    const auto cmds = termCommands();
    ASSERT_EQ(cmds.size(), 4u);
    EXPECT_EQ(cmds[0].name, "eval");
    EXPECT_EQ(cmds[3].name, "upn");
    for (const auto& c : cmds)
        EXPECT_EQ(c.usage.rfind("quorix " + c.name, 0), 0u) << c.usage;
}

TEST_F(CommandTest, EvalPrintsValueAndCode)
{
    EXPECT_EQ(run("eval", {"X^2", "--x", "3"}).out, "9\t0\n");
    EXPECT_EQ(run("eval", {"1/0"}).out, "10000000000\t2\n");
    EXPECT_EQ(run("eval", {"0.1+0.2"}).out, "0.30000000000000004\t0\n");
    EXPECT_EQ(run("eval", {"x"}).out, "0\t1\n");  // no upper-casing
    EXPECT_EQ(run("eval", {""}).out, "0\t1\n");
    EXPECT_EQ(run("eval", {"É"}).out, "2.7182818284590451\t0\n");
    EXPECT_EQ(run("eval", {"F1(2)+P", "--f1", "X^3", "--p", "1"}).out, "9\t0\n");
    EXPECT_EQ(run("eval", {"--q", "2", "--r", "-3", "Q*R"}).out, "-6\t0\n");
    EXPECT_EQ(run("eval", {"F5(X)", "--f5", "X-1", "--x", "-4"}).out, "-5\t0\n");
    EXPECT_EQ(run("eval", {"X", "--mode", "2", "--x", "1"}).out, "0\t0\n");
    EXPECT_EQ(run("eval", {"3;4+P"}).out, "7\t0\n");
    EXPECT_EQ(run("eval", {"INT(X)", "--x", "-2.5"}).out, "-3\t3\n");
}

TEST_F(CommandTest, EvalUsageErrors)
{
    const Outcome none = run("eval", {});
    EXPECT_EQ(none.code, 2);
    EXPECT_NE(none.err.find("Kein Term"), std::string::npos);
    EXPECT_EQ(run("eval", {"X", "--x", "abc"}).code, 2);
    EXPECT_EQ(run("eval", {"X", "--x"}).code, 2);
    EXPECT_EQ(run("eval", {"X", "Y"}).code, 2);
    EXPECT_EQ(run("eval", {"X", "--mode", "5"}).code, 2);
}

TEST_F(CommandTest, DerivePrintsTheText)
{
    EXPECT_EQ(run("derive", {"X^3"}).out, "3*X^2\n");
    EXPECT_EQ(run("derive", {"3.141592653589793*X"}).out, "ã\n");
    const Outcome bad = run("derive", {"SQR(X)"});
    EXPECT_EQ(bad.code, 1);
    EXPECT_EQ(bad.out, "");
    EXPECT_NE(bad.err.find("nicht abgeleitet"), std::string::npos);
    EXPECT_EQ(run("derive", {}).code, 2);
    EXPECT_EQ(run("derive", {"TAN(X)", "--nice"}).out, "(1+TAN(X)^2)\n");  // no list set
    SetTermRewriteList({"<(1+TAN(X)^2)>", "<1+TAN(X)^2>"});
    EXPECT_EQ(run("derive", {"TAN(X)", "--nice"}).out, "1+TAN(X)^2\n");
}

TEST_F(CommandTest, CevalPrintsRealImaginaryAndCode)
{
    EXPECT_EQ(run("ceval", {"Z*Z", "--z", "1", "1"}).out, "0\t2\t0\n");
    EXPECT_EQ(run("ceval", {"P+Q", "--z", "0", "0", "--p", "1", "2", "--q", "-3", "0.5"}).out, "-2\t2.5\t0\n");
    EXPECT_EQ(run("ceval", {"1/Z", "--z", "0", "0"}).out, "0\t0\t2\n");
    EXPECT_EQ(run("ceval", {"Z"}).code, 2);
    EXPECT_EQ(run("ceval", {"Z", "--z", "1"}).code, 2);
}

TEST_F(CommandTest, UpnPrintsTheFormAndTheValue)
{
    EXPECT_EQ(run("upn", {"2+3*4"}).out, "2 3 4 * +\n14\n");
    EXPECT_EQ(run("upn", {"2^3^2"}).out, "2 3 ^ 2 ^\n64\n");
    EXPECT_EQ(run("upn", {"-X^2", "--x", "3"}).out, "0 X 2 ^ -\n-9\n");
    const Outcome bad = run("upn", {"SIN(X"});
    EXPECT_EQ(bad.code, 1);
    EXPECT_EQ(bad.err, "\")\" fehlt.\n");
    EXPECT_EQ(run("upn", {}).code, 2);
}
