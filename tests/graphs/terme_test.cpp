// The evaluator behind kernelbindung, case by case from terme.txt. The values and codes are
// those the term language defines for these terms (values to 1e-9).
#include "graphs/kernelbindung.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>

namespace {

std::string trim(const std::string& s)
{
    const size_t a = s.find_first_not_of(' ');
    if (a == std::string::npos)
        return {};
    return s.substr(a, s.find_last_not_of(' ') - a + 1);
}

}  // namespace

TEST(Evaluator, CasesFromTheTable)
{
    std::ifstream in(std::string(QUORIX_TEST_DATA) + "/terme.txt");
    ASSERT_TRUE(in.good());
    std::string zeile;
    int faelle = 0;
    while (std::getline(in, zeile)) {
        if (zeile.empty() || zeile[0] == '#')
            continue;
        // the last three fields are split from the right, since a term may hold "|"
        std::vector<std::string> teile;
        size_t ende = zeile.size();
        for (int i = 0; i < 3; ++i) {
            const size_t p = zeile.rfind('|', ende - 1);
            teile.insert(teile.begin(), trim(zeile.substr(p + 1, ende - p - 1)));
            ende = p;
        }
        const std::string term = trim(zeile.substr(0, ende));
        int e = -1;
        const double v = graphs::termAuswerter().wert(term, std::stod(teile[0]), e);
        EXPECT_NEAR(v, std::stod(teile[1]), 1e-9) << term << " at x=" << teile[0];
        EXPECT_EQ(e, std::stoi(teile[2])) << term << " at x=" << teile[0];
        ++faelle;
    }
    EXPECT_EQ(faelle, 22);
}

TEST(Evaluator, FieldsAndNumberText)
{
    graphs::TermAuswerter& t = graphs::termAuswerter();
    EXPECT_NEAR(t.feldwert("2*pi"), 6.283185307179586, 1e-12);
    EXPECT_EQ(t.feldwert("1,5"), 1.5);
    EXPECT_EQ(t.feldwert("x+1"), 2);  // X means 1 in a field
    EXPECT_EQ(t.feldwert("sqrt(-1)"), 0);
    int e = 0;
    EXPECT_NEAR(t.wertModus("X^2", 2, 3, e), std::log(9.0), 1e-12);
    EXPECT_EQ(e, 0);
    t.wertModus("X-5", 2, 3, e);  // ln of a negative value
    EXPECT_EQ(e, 2);
    EXPECT_NEAR(t.wertModus("X", 1, 2, e), std::exp(2.0), 1e-12);
    t.setzeFunktion(1, "X*10");
    EXPECT_EQ(t.wert("F1(X)+1", 2, e), 21);
    t.setzeFunktion(1, "");
    EXPECT_EQ(graphs::zahlText(1, 2, 0.001), "0");
    EXPECT_EQ(graphs::zahlText(1, 2, -0.001), "0");
    EXPECT_EQ(graphs::zahlText(1, 2, 2.50), "2.5");
    EXPECT_EQ(graphs::zahlText(1, 0, 100), "100");
    graphs::setzeDezimalkomma(true);
    EXPECT_EQ(graphs::zahlText(1, 2, 2.5), "2,5");
    EXPECT_EQ(graphs::zahlTextPunkt(1, 10, 2.5), "2.5");
    graphs::setzeDezimalkomma(false);
}
