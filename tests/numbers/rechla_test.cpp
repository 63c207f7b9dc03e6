// Trechla's core and the headless commands `mp` and `bigfloat`.
#include "numbers/commands.h"
#include "numbers/mp_int.h"
#include "numbers/rechla_core.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

using namespace numbers;

namespace {
struct CmdRun {
    int code;
    std::string out, err;
};
CmdRun run(const std::string& name, quorix::Args args)
{
    for (const auto& c : numbersCommands())
        if (c.name == name) {
            std::ostringstream out, err;
            int code = c.run(args, out, err);
            return {code, out.str(), err.str()};
        }
    return {-1, "", "no such command"};
}
}  // namespace

TEST(Rechla, FactorialLimitAt1775)
{
    RechlaResult r = rechlaCompute(RechlaOp::Fact, "1775", "", 10);
    EXPECT_FALSE(r.overflow);
    EXPECT_LE(r.text.size(), 5000u);
    EXPECT_EQ(r.text.size(), 4999u);
    EXPECT_EQ(r.text.substr(0, 10), "3006688892") << "leading digits of 1775!, from Python's exact integers";
    r = rechlaCompute(RechlaOp::Fact, "1776", "", 10);
    EXPECT_TRUE(r.overflow);
    EXPECT_EQ(r.text, "Überlauf, Berechnung maximal bis 1775!");
    EXPECT_EQ(rechlaCompute(RechlaOp::Fact, "0", "", 10).text, "1");
    EXPECT_EQ(rechlaCompute(RechlaOp::Fact, "14", "", 16).text, "21C3677C82B40000");
}

TEST(Rechla, LoopOperationsAndTheirTexts)
{
    EXPECT_EQ(rechlaCompute(RechlaOp::Primorial, "30", "", 10).text, "6469693230");
    EXPECT_EQ(rechlaCompute(RechlaOp::Primorial, "10000", "", 10).overflow, false);
    EXPECT_EQ(rechlaCompute(RechlaOp::Primorial, "20000", "", 10).text, "Überlauf, Berechnung maximal bis 10000#");
    EXPECT_EQ(rechlaCompute(RechlaOp::Pow, "7", "0", 10).text, "1");
    EXPECT_EQ(rechlaCompute(RechlaOp::Pow, "7", "1", 10).text, "7");
    EXPECT_EQ(rechlaCompute(RechlaOp::Pow, "2", "64", 10).text, "18446744073709551616");
    EXPECT_EQ(rechlaCompute(RechlaOp::Pow, "10", "4999", 10).overflow, false);
    EXPECT_EQ(rechlaCompute(RechlaOp::Pow, "10", "5000", 10).text, "Überlauf");
    EXPECT_EQ(rechlaCompute(RechlaOp::Binom, "49", "6", 10).text, "13983816");
    EXPECT_EQ(rechlaCompute(RechlaOp::Binom, "6", "49", 10).text, "0");
    EXPECT_EQ(rechlaCompute(RechlaOp::Binom, "100000", "20000", 10).text, "Überlauf!");
    EXPECT_EQ(rechlaCompute(RechlaOp::Falling, "10", "3", 10).text, "720");
    EXPECT_EQ(rechlaCompute(RechlaOp::Falling, "5000", "4000", 10).text, "Überlauf!");
    EXPECT_EQ(rechlaCompute(RechlaOp::Lcm, "12", "18", 10).text, "36");
    EXPECT_EQ(rechlaCompute(RechlaOp::Gcd, "12", "18", 10).text, "6");
    EXPECT_EQ(rechlaCompute(RechlaOp::Sqrt, "1000000000000000000000", "", 10).text, "31622776601");
    EXPECT_EQ(rechlaCompute(RechlaOp::Sub, "11", "110", 2).text, "-11");
}

TEST(Rechla, OperandsAndBases)
{
    RechlaResult r = rechlaCompute(RechlaOp::Add, "G", "1", 16);
    EXPECT_EQ(r.error, "Zahleingabe nicht korrekt. Basis beachten.");
    EXPECT_EQ(r.text, "1") << "the refused operand counts as 0";
    EXPECT_EQ(rechlaCompute(RechlaOp::Add, "19", "1", 9).error, RechlaBaseMessage);
    EXPECT_EQ(rechlaCompute(RechlaOp::Add, "ff", "1", 16).error, RechlaBaseMessage) << "capitals only";
    EXPECT_EQ(rechlaCompute(RechlaOp::Add, "-5", "1", 10).error, RechlaBaseMessage);
    r = rechlaCompute(RechlaOp::Mod, "5", "", 10);
    EXPECT_EQ(r.error, "mp_divrem: b=0") << "an empty b counts as 0";
    EXPECT_EQ(mp_error, 0) << "the calculator resets the sticky error";
    EXPECT_EQ(rechlaCompute(RechlaOp::Div, "-", "1", 10).error, RechlaBaseMessage);
    // base 2 output keeps the lowest 10000 digits
    mp_tmp big;
    mp_setbit(big, 12000);
    mp_add_d(big, 5, big);
    std::string s = rechlaWrite(big, 2);
    EXPECT_EQ(s.size(), 10000u);
    EXPECT_EQ(s.substr(s.size() - 3), "101");
    EXPECT_EQ(s.find('1'), s.size() - 3) << "the high end is cut off";
}

TEST(Commands, MpOutput)
{
    CmdRun r = run("mp", {"mul", "123456789", "987654321"});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out, "121932631112635269\n");
    r = run("mp", {"add", "FF", "1", "--base", "16"});
    EXPECT_EQ(r.out, "100\n");
    r = run("mp", {"fact", "1776"});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out, "Überlauf, Berechnung maximal bis 1775!\n");
    r = run("mp", {"div", "1", "0"});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err, "mp_divrem: b=0.\n");
    EXPECT_EQ(run("mp", {"add", "1"}).code, 2);
    EXPECT_EQ(run("mp", {"frob", "1", "2"}).code, 2);
    EXPECT_EQ(run("mp", {"add", "1", "2", "--base", "17"}).code, 2);
    EXPECT_EQ(run("mp", {"add", "1A", "2"}).code, 2);
    EXPECT_EQ(run("mp", {"sqrt", "99"}).out, "9\n");
}

TEST(Commands, BigfloatOutput)
{
    CmdRun r = run("bigfloat", {"pi", "--digits", "20"});
    EXPECT_EQ(r.code, 0);
    EXPECT_EQ(r.out, "3,1415926535897932385\n");
    r = run("bigfloat", {"div", "1", "0"});
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.err, "Divison durch 0 nicht möglich\n");
    EXPECT_EQ(run("bigfloat", {"add", "x", "1"}).code, 2);
    EXPECT_EQ(run("bigfloat", {"sqrt"}).code, 2);
    EXPECT_EQ(run("bigfloat", {"sqrt", "2", "--digits", "10"}).out, "1,414213562\n");
}

TEST(Commands, MpCaseTable)
{
    std::ifstream in(std::string(QUORIX_TEST_DATA) + "/mp_cases.txt");
    ASSERT_TRUE(in) << "mp_cases.txt missing";
    std::string line;
    int n = 0, lineNo = 0;
    auto trim = [](std::string s) {
        size_t a = s.find_first_not_of(" \t"), b = s.find_last_not_of(" \t\r");
        return a == std::string::npos ? std::string() : s.substr(a, b - a + 1);
    };
    while (std::getline(in, line)) {
        ++lineNo;
        if (trim(line).empty() || trim(line)[0] == '#')
            continue;
        std::vector<std::string> f;
        std::stringstream ss(line);
        std::string part;
        while (std::getline(ss, part, '|'))
            f.push_back(trim(part));
        ASSERT_EQ(f.size(), 5u) << "line " << lineNo;
        quorix::Args args = {f[0], f[1]};
        if (!f[2].empty())
            args.push_back(f[2]);
        args.push_back("--base");
        args.push_back(f[3]);
        CmdRun r = run("mp", args);
        ASSERT_EQ(r.code, 0) << "line " << lineNo << ": " << r.err;
        std::string got = r.out.substr(0, r.out.size() - 1);
        if (f[4][0] == '=')
            EXPECT_EQ(std::to_string(got.size()), f[4].substr(1)) << "line " << lineNo << ": length of the result";
        else
            EXPECT_EQ(got, f[4]) << "line " << lineNo << ": " << f[0] << " " << f[1] << " " << f[2] << " base " << f[3]
                                 << "\n  expected " << f[4] << "\n  actual   " << got;
        ++n;
    }
    EXPECT_GT(n, 30);
}
