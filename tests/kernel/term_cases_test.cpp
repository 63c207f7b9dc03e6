// Runs the case table term_cases.txt through EvalTerm: value and TermError of every row.
#include "kernel/term.h"
#include "kernel/termtext.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

using namespace quorix;

namespace {

std::vector<std::string> split(const std::string& s, char sep)
{
    std::vector<std::string> out;
    std::string cur;
    std::istringstream in(s);
    while (std::getline(in, cur, sep))
        out.push_back(cur);
    if (!s.empty() && s.back() == sep)
        out.emplace_back();
    return out;
}

void resetState()
{
    TermParamP = TermParamQ = TermParamR = 0;
    TermFunctionSlots = {};
    TermRangeGuardOn = false;
    TermRangeLow = -1000000;
    TermRangeHigh = 1000000;
}

}  // namespace

TEST(TermCases, TableOfRules)
{
    std::ifstream in(QUORIX_TEST_DATA "/term_cases.txt");
    ASSERT_TRUE(in) << "term_cases.txt fehlt";
    std::string line;
    int lineNo = 0, rows = 0, failures = 0;
    while (std::getline(in, line)) {
        ++lineNo;
        if (line.empty() || line[0] == '#')
            continue;
        const auto cols = split(line, '\t');
        ASSERT_GE(cols.size(), 5u) << "line " << lineNo;
        resetState();
        std::string term = cols[0] == "<leer>" ? std::string() : termFromUtf8(cols[0]);
        const double x = std::stod(cols[1]);
        TermParamP = std::stod(cols[2]);
        const double expected = std::stod(cols[3]);
        const int code = std::stoi(cols[4]);
        double tol = 1e-12;
        bool checkP = false, random = false;
        double pAfter = 0, lo = 0, hi = 0;
        if (cols.size() > 5) {
            for (const auto& kv : split(cols[5], ';')) {
                const auto eq = kv.find('=');
                ASSERT_NE(eq, std::string::npos) << "line " << lineNo;
                const std::string k = kv.substr(0, eq), v = kv.substr(eq + 1);
                if (k == "tol")
                    tol = std::stod(v);
                else if (k == "Q")
                    TermParamQ = std::stod(v);
                else if (k == "R")
                    TermParamR = std::stod(v);
                else if (k.size() == 2 && k[0] == 'F')
                    TermFunctionSlots[k[1] - '1'] = termFromUtf8(v);
                else if (k == "Pafter") {
                    checkP = true;
                    pAfter = std::stod(v);
                } else if (k == "guard") {
                    TermRangeGuardOn = true;
                    TermRangeLow = std::stod(v.substr(0, v.find(':')));
                    TermRangeHigh = std::stod(v.substr(v.find(':') + 1));
                } else if (k == "range") {
                    random = true;
                    lo = std::stod(v.substr(0, v.find(':')));
                    hi = std::stod(v.substr(v.find(':') + 1));
                } else
                    FAIL() << "line " << lineNo << ": unknown key " << k;
            }
        }
        ++rows;
        const double got = EvalTerm(term, x);
        const int gotCode = TermError;
        bool ok = gotCode == code;
        if (random)
            ok = ok && got >= lo && got <= hi;
        else
            ok = ok && std::fabs(got - expected) <= tol * std::max(1.0, std::fabs(expected));
        if (checkP)
            ok = ok && TermParamP == pAfter;
        if (!ok) {
            ++failures;
            ADD_FAILURE() << "line " << lineNo << ": EvalTerm(\"" << cols[0] << "\", " << x << ")"
                          << " expected " << expected << " code " << code << (checkP ? " P " : "")
                          << (checkP ? std::to_string(pAfter) : "") << ", got " << std::to_string(got)
                          << " (" << got << ") code " << gotCode << " P " << TermParamP;
        }
    }
    resetState();
    EXPECT_GT(rows, 400);
    EXPECT_EQ(failures, 0);
}
