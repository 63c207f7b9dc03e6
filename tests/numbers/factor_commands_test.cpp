// The headless commands `isprime` and `factor`: the table of factorisations in factor_cases.txt,
// the product check of each, and the usage errors.
#include "numbers/factor/factorcommands.h"
#include "numbers/tvarint.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

using numbers::TVarInt;

namespace {

const quorix::HeadlessCommand& command(const std::string& name)
{
    static const std::vector<quorix::HeadlessCommand> all = factorCommands();
    for (const auto& c : all)
        if (c.name == name)
            return c;
    throw std::runtime_error("no command " + name);
}

int run(const std::string& name, const quorix::Args& args, std::string& out, std::string& err)
{
    std::ostringstream o, e;
    int rc = command(name).run(args, o, e);
    out = o.str();
    err = e.str();
    return rc;
}

std::vector<std::string> splitLines(const std::string& s)
{
    std::vector<std::string> v;
    std::istringstream in(s);
    for (std::string l; std::getline(in, l);)
        v.push_back(l);
    return v;
}

// "2^4 · 3^2 · 5" multiplied out
TVarInt productOf(const std::string& list)
{
    TVarInt p(1);
    const std::string dot = " · ";
    size_t pos = 0;
    while (pos <= list.size()) {
        size_t e = list.find(dot, pos);
        std::string piece = list.substr(pos, e == std::string::npos ? std::string::npos : e - pos);
        size_t hat = piece.find('^');
        int exp = hat == std::string::npos ? 1 : std::stoi(piece.substr(hat + 1));
        TVarInt b(piece.substr(0, hat));
        for (int i = 0; i < exp; ++i)
            TVarInt::mul(p, b, p);
        if (e == std::string::npos)
            break;
        pos = e + dot.size();
    }
    return p;
}

}  // namespace

TEST(FactorCommand, TableOfFactorisations)
{
    std::ifstream in(std::string(QUORIX_TEST_DATA) + "/factor_cases.txt");
    ASSERT_TRUE(in) << "factor_cases.txt missing";
    int cases = 0;
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line[0] == '#')
            continue;
        std::istringstream f(line);
        std::string input, mode, expected;
        std::getline(f, input, '\t');
        std::getline(f, mode, '\t');
        std::getline(f, expected);
        quorix::Args args{input};
        if (mode == "mpqs")
            args.push_back("--mpqs");
        std::string out, err;
        int rc = run("factor", args, out, err);
        ++cases;
        EXPECT_EQ(rc, 0) << input << " " << mode << "\n" << out << err;
        std::vector<std::string> lines = splitLines(out);
        ASSERT_FALSE(lines.empty()) << input;
        EXPECT_EQ(lines.back(), "Faktoren\t" + expected) << input << " " << mode << "\n" << out;
        // product check: the printed factors multiply back to the number
        std::string digits = input;
        if (digits.find('(') != std::string::npos) {
            // the first line names the expanded number: "Faktorisierung von N (d) Ziffern" in
            // the chain, "Zahl:  N (d)" in the sieve tool
            const std::string& l0 = lines[0];
            size_t from = l0.rfind("Faktorisierung von ", 0) == 0 ? 19 : l0.rfind("Zahl:  ", 0) == 0 ? 7 : 0;
            ASSERT_GT(from, 0u) << l0;
            digits = l0.substr(from, l0.find(" (") - from);
        }
        EXPECT_EQ(productOf(lines.back().substr(9)).toDecimal(), digits) << input << " " << mode;
    }
    EXPECT_GE(cases, 20) << "lines of factor_cases.txt were lost";
}

TEST(FactorCommand, ChainWritesItsStagesInOrder)
{
    std::string out, err;
    // 2^67 - 1: no factor under a million, so it passes the trial division to the sieve
    ASSERT_EQ(run("factor", {"M(67)"}, out, err), 0) << err;
    std::vector<std::string> l = splitLines(out);
    ASSERT_GE(l.size(), 5u);
    EXPECT_EQ(l[0], "Faktorisierung von 147573952589676412927 (21) Ziffern");
    EXPECT_EQ(l[1], "Probedivisionen");
    auto at = [&](const std::string& s) {
        for (size_t i = 0; i < l.size(); ++i)
            if (l[i].find(s) != std::string::npos)
                return int(i);
        return -1;
    };
    EXPECT_GT(at("keine Primzahl"), 1) << out;
    EXPECT_GT(at("Faktorisierung mit quadratischem Sieb"), at("keine Primzahl")) << out;
    EXPECT_GT(at("Zahl ist faktorisiert"), at("Faktorisierung mit quadratischem Sieb")) << out;
}

TEST(FactorCommand, UsageErrorsAndLimits)
{
    std::string out, err;
    EXPECT_EQ(run("factor", {}, out, err), 2);
    EXPECT_NE(err.find("Aufruf"), std::string::npos);
    EXPECT_EQ(run("factor", {"12a"}, out, err), 2);
    EXPECT_FALSE(err.empty());
    EXPECT_EQ(run("factor", {std::string(101, '7')}, out, err), 2) << "over 100 digits";
    EXPECT_FALSE(err.empty());
    // M(400) is out of range: the formula becomes "1", which has no prime factor
    EXPECT_EQ(run("factor", {"M(400)"}, out, err), 1);
    EXPECT_EQ(splitLines(out).back(), "Faktoren\t");
}

// Known primes and composites, among them a Carmichael number and strong pseudoprimes.
TEST(IsprimeCommand, Answers)
{
    const std::pair<const char*, bool> cases[] = {
        {"2", true},
        {"561", false},                   // Carmichael
        {"3215031751", false},            // strong pseudoprime to 2, 3, 5, 7
        {"2147483647", true},             // 2^31 - 1
        {"170141183460469231731687303715884105727", true},  // 2^127 - 1
        {"147573952589676412927", false}, // 2^67 - 1
        {"1", false},
        {"0", false},
    };
    for (auto [n, prime] : cases) {
        std::string out, err;
        EXPECT_EQ(run("isprime", {n}, out, err), 0) << n;
        EXPECT_EQ(out, prime ? "wahrscheinlich Primzahl\n" : "keine Primzahl\n") << n;
    }
    std::string out, err;
    EXPECT_EQ(run("isprime", {"-5"}, out, err), 2);
    EXPECT_EQ(run("isprime", {}, out, err), 2);
}
