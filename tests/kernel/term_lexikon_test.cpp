// The core of "Berechnungen im Lexikon": the lists aktivb1/aktivb2 and the computation of D2.
#include "kernel/term.h"
#include "kernel/termlexikon.h"

#include <gtest/gtest.h>

#include <fstream>

using namespace quorix;

namespace {

std::vector<std::string> readList(const char* name)
{
    std::ifstream in(std::string(QUORIX_SOURCE_DIR "/data/textx/") + name + ".txt");
    std::vector<std::string> lines;
    for (std::string l; std::getline(in, l);)
        lines.push_back(l);
    return lines;
}

std::string d2(const std::string& formula, std::string e1, std::string e2 = "", std::string e3 = "", std::string e4 = "")
{
    return lexikonD2(formula, {e1, e2, e3, e4});
}

}  // namespace

TEST(LexikonCalc, ListChoiceAndWindowHeight)
{
    EXPECT_EQ(lexikonListName("Kugelvolumen"), "aktivb1");
    EXPECT_EQ(lexikonListName("abc"), "aktivb1");
    EXPECT_EQ(lexikonListName("Mantelfläche"), "aktivb1");
    EXPECT_EQ(lexikonListName("n-te Wurzel"), "aktivb2");
    EXPECT_EQ(lexikonListName("Zinseszins"), "aktivb2");
    EXPECT_EQ(lexikonWindowHeight(1), 166);
    EXPECT_EQ(lexikonWindowHeight(2), 200);
    EXPECT_EQ(lexikonWindowHeight(3), 230);
    EXPECT_EQ(lexikonWindowHeight(4), 264);
    EXPECT_EQ(lexikonWindowHeight(7), 264);
}

// Lattice points in a circle: OEIS A000328 (N(1) = 5, N(2) = 13, N(10) = 317).
TEST(LexikonCalc, BuiltInLatticePoints)
{
    EXPECT_EQ(d2("A1", "1"), "5");
    EXPECT_EQ(d2("A1", "2"), "13");
    EXPECT_EQ(d2("A1", "10"), "317");
    EXPECT_EQ(d2("A1", "-10,7"), "317");
    EXPECT_EQ(d2("A1", "1001"), "Fehler");
}

// Triangulations of an n-gon: the Catalan numbers C(n-2) (OEIS A000108: C(8) = 1430,
// C(26) = 18367353072152).
TEST(LexikonCalc, BuiltInTriangulations)
{
    EXPECT_EQ(d2("A2", "3"), "1");
    EXPECT_EQ(d2("A2", "6"), "14");
    EXPECT_EQ(d2("A2", "10"), "1430");
    EXPECT_EQ(d2("A2", "28"), "18367353072152");
    EXPECT_EQ(d2("A2", "2"), "Fehler");
    EXPECT_EQ(d2("A2", "29"), "Fehler");
}

// Julian dates from Meeus, Astronomical Algorithms, ch. 7: 2000 Jan 1.0 = 2451544.5;
// 333 Jan 27.5 = 1842713.0; the calendar reform: 1582 Oct 15 = 2299160.5 and 1582 Oct 4 = 2299159.5.
TEST(LexikonCalc, BuiltInJulianDate)
{
    EXPECT_EQ(d2("A3", "1", "1", "2000"), "2451544.5");
    EXPECT_EQ(d2("A3", "15", "10", "1582"), "2299160.5");
    EXPECT_EQ(d2("A3", "4", "10", "1582"), "2299159.5");
    EXPECT_EQ(d2("A3", "27", "1", "333"), "1842712.5");  // Meeus 7.b: 333 Jan 27.5 = 1842713.0
}

TEST(LexikonCalc, FormulasWithInputsAsTerms)
{
    EXPECT_EQ(d2("4/3*PI*X^3", "1"), "4.18879");
    EXPECT_EQ(lexikonD2("4/3*PI*X^3", {"1", "", "", ""}, true), "4,18879");
    EXPECT_EQ(d2("X", "1/1000"), "0.001");
    EXPECT_EQ(d2("X", "2/3000"), "0.00066667");
    EXPECT_EQ(d2("X*(1+P/100)^Q", "1000", "5", "2"), "1102.5");
    EXPECT_EQ(d2("SQRT((Q-X)^2+(R-P)^2)", "0", "0", "3", "4"), "5");
    EXPECT_EQ(d2("#x^2", "3"), "9");
    EXPECT_EQ(d2("SQRT(X)", "-1"), "Fehler");
    EXPECT_EQ(d2("", "1"), "Fehler");
    EXPECT_EQ(d2("INT(X)", "2.5"), "2");
    EXPECT_EQ(d2("X", "2*pi"), "6.28319");
}

TEST(LexikonCalc, FunctionValueEntry)
{
    LexikonCalculation c;
    ASSERT_TRUE(lexikonCalculation("#y=X^2+1", {}, c));
    EXPECT_EQ(c.caption, "Funktionswert");
    ASSERT_EQ(c.labels.size(), 1u);
    EXPECT_EQ(c.labels[0], "Funktionswert y=X^2+1");
    EXPECT_EQ(c.formula, "#X^2+1");
    EXPECT_EQ(lexikonD2(c.formula, {"2", "", "", ""}), "5");
}

TEST(LexikonCalc, EveryListEntryIsWellFormedAndComputes)
{
    for (const char* name : {"aktivb1", "aktivb2"}) {
        const auto list = readList(name);
        int entries = 0;
        for (const auto& line : list) {
            if (line.empty() || line[0] != '*')
                continue;
            const std::string entry = line.substr(1);
            EXPECT_EQ(lexikonListName(entry), name) << entry;
            LexikonCalculation c;
            ASSERT_TRUE(lexikonCalculation(entry, list, c)) << entry;
            EXPECT_GE(c.labels.size(), 1u);
            EXPECT_LE(c.labels.size(), 4u);
            const std::string r = lexikonD2(c.formula, {"3", "2", "5", "4"});
            EXPECT_NE(r, "Fehler") << entry << ": " << c.formula;
            ++entries;
        }
        EXPECT_GE(entries, 15) << name;
    }
    LexikonCalculation c;
    EXPECT_FALSE(lexikonCalculation("Gibt es nicht", readList("aktivb1"), c));
    EXPECT_FALSE(lexikonCalculation("Kaputt", {"*Kaputt", "zwei"}, c));
    EXPECT_FALSE(lexikonCalculation("Kurz", {"*Kurz", "2", "a"}, c));
}

TEST(LexikonCalc, ParametersAreLeftAsTheyWere)
{
    TermParamP = 7;
    d2("X+P", "1", "2");
    EXPECT_EQ(TermParamP, 7);
    TermParamP = 0;
}
