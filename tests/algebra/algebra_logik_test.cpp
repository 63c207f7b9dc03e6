// Propositional logic and the group tables, checked against laws rather than fixed text.
#include "algebra/algebra.h"
#include "algebra/ulogint.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <sstream>

using namespace algebra;

namespace {

Aussage lies(const std::string& t)
{
    Aussage a;
    std::string fehler;
    EXPECT_TRUE(a.lies(t, fehler)) << t << ": " << fehler;
    return a;
}

}  // namespace

TEST(Logik, OperatorsFollowTheirTruthTables)
{
    // Rows of the truth table: (A, B) = (0,0), (1,0), (0,1), (1,1) as bits A = 1, B = 2.
    const std::map<std::string, std::vector<bool>> tafeln = {
        {"A+B", {0, 0, 0, 1}}, {"A&B", {0, 0, 0, 1}}, {"A*B", {0, 1, 1, 1}}, {"A|B", {0, 1, 1, 1}},
        {"A#B", {0, 1, 1, 0}}, {"A>B", {1, 0, 1, 1}}, {"A=B", {1, 0, 0, 1}}, {"A\\B", {1, 1, 1, 0}},
        {"A/B", {1, 0, 0, 0}}, {"-A", {1, 0, 1, 0}},  {"A+1", {0, 1, 0, 1}}, {"A*0", {0, 1, 0, 1}}};
    for (const auto& [formel, soll] : tafeln) {
        const Aussage a = lies(formel);
        for (unsigned b = 0; b < 4; ++b) EXPECT_EQ(a.wert(b), soll[b]) << formel << " at A=" << (b & 1) << " B=" << (b >> 1);
    }
}

TEST(Logik, PrecedenceAndKnownLaws)
{
    // NOT binds tighter than AND, AND tighter than OR, implication is right-associative.
    const Aussage a = lies("-A+B*C");
    const Aussage b = lies("((-A)+B)*C");
    for (unsigned v = 0; v < 8; ++v) EXPECT_EQ(a.wert(v), b.wert(v)) << v;
    const Aussage i1 = lies("A>B>C"), i2 = lies("A>(B>C)");
    for (unsigned v = 0; v < 8; ++v) EXPECT_EQ(i1.wert(v), i2.wert(v)) << v;
    // De Morgan, contraposition and the hypothetical syllogism are tautologies.
    for (const char* t : {"-(A+B)=(-A*-B)", "(A>B)=(-B>-A)", "(A>B)&(B>C)>(A>C)", "A*-A"}) {
        const auto z = wahrheitstafel(lies(t));
        EXPECT_EQ(z.back(), "Die Aussage ist eine Tautologie (immer wahr).") << t;
    }
    EXPECT_EQ(wahrheitstafel(lies("A&-A")).back(), "Die Aussage ist eine Kontradiktion (immer falsch).");
}

TEST(Logik, NormalFormIsEquivalentAndTableHasAllRows)
{
    for (const char* t : {"A#B#C", "(A>B)=-C", "A\\(B/C)+D", "H"}) {
        const Aussage a = lies(t);
        const std::string dnf = disjunktiveNormalform(a);
        const Aussage d = lies(dnf);
        for (unsigned v = 0; v < 256; ++v) ASSERT_EQ(a.wert(v), d.wert(v)) << t << " vs " << dnf;
    }
    // three variables: a heading, 8 rows, then the normal form
    const Ergebnis e = berechne(14, {"A#B#C"});
    EXPECT_EQ(e.zeilen[0], "\tA\tB\tC\tWert");
    EXPECT_EQ(e.zeilen[1], "\t1\t1\t1\t1");
    EXPECT_EQ(e.zeilen[8], "\t0\t0\t0\t0");
    EXPECT_EQ(disjunktiveNormalform(lies("A+B")), "(A & B)");
}

TEST(Logik, BadFormulas)
{
    for (const char* t : {"", "A+", "(A", "A B", "I", "A?B"}) {
        Aussage a;
        std::string fehler;
        EXPECT_FALSE(a.lies(t, fehler)) << t;
        EXPECT_FALSE(fehler.empty()) << t;
    }
    EXPECT_TRUE(berechne(14, {"A+"}).eingabefehler);
}

TEST(Gruppen, ResidueTables)
{
    const Ergebnis k = berechne(17, {"7", "Multiplikation"});
    EXPECT_EQ(k.zeilen[0], "Multiplikation im Restklassenkörper Z zur Basis 7");
    // in Z7 every non-zero row of the multiplication is a permutation (a field)
    for (int i = 2; i <= 7; ++i) {
        std::set<std::string> werte;
        std::string zeile = k.zeilen[i + 1], t;
        std::istringstream in(zeile);
        std::getline(in, t, '\t');
        while (std::getline(in, t, '\t')) werte.insert(t);
        EXPECT_EQ(werte.size(), 7u) << zeile;
    }
    EXPECT_EQ(k.zeilen[4], "2\t0\t2\t4\t6\t1\t3\t5");
    const Ergebnis r = berechne(17, {"6", "Addition"});
    EXPECT_EQ(r.zeilen[0], "Addition im Restklassenring Z zur Basis 6");
    EXPECT_EQ(r.zeilen[7], "5\t5\t0\t1\t2\t3\t4");
    EXPECT_TRUE(berechne(17, {"1", "Addition"}).eingabefehler);
    EXPECT_TRUE(berechne(17, {"5", "Division"}).eingabefehler);
}

TEST(Gruppen, DihedralTablesAreGroups)
{
    for (int n = 3; n <= 6; ++n) {
        const Ergebnis e = berechne(18, {std::to_string(n)});
        ASSERT_EQ(e.zeilen.size(), static_cast<size_t>(2 * n + 2));
        // parse the table into indices
        std::vector<std::string> namen;
        {
            std::istringstream in(e.zeilen[1]);
            std::string t;
            std::getline(in, t, '\t');
            while (std::getline(in, t, '\t')) namen.push_back(t);
        }
        const int m = 2 * n;
        ASSERT_EQ(static_cast<int>(namen.size()), m);
        auto index = [&](const std::string& s) {
            for (int i = 0; i < m; ++i)
                if (namen[i] == s) return i;
            return -1;
        };
        std::vector<std::vector<int>> tab(m, std::vector<int>(m));
        for (int i = 0; i < m; ++i) {
            std::istringstream in(e.zeilen[2 + i]);
            std::string t;
            std::getline(in, t, '\t');
            for (int j = 0; j < m; ++j) {
                std::getline(in, t, '\t');
                tab[i][j] = index(t);
                ASSERT_GE(tab[i][j], 0) << t;
            }
        }
        int involutionen = 0;
        bool abelsch = true;
        for (int a = 0; a < m; ++a) {
            EXPECT_EQ(tab[0][a], a);  // d0 is the identity
            involutionen += a != 0 && tab[a][a] == 0;
            for (int b = 0; b < m; ++b) {
                abelsch = abelsch && tab[a][b] == tab[b][a];
                for (int c = 0; c < m; ++c) ASSERT_EQ(tab[tab[a][b]][c], tab[a][tab[b][c]]) << "D" << n;
            }
        }
        EXPECT_FALSE(abelsch) << "D" << n;
        // n reflections, plus the half turn when n is even
        EXPECT_EQ(involutionen, n + (n % 2 == 0 ? 1 : 0)) << "D" << n;
    }
}

TEST(Mengen, OperationsOnThreeSets)
{
    const std::vector<std::string> m = {"1 2 3 4 5", "4 5 6 7", "1 5 7 9"};
    auto rechne = [&](const std::string& op) {
        auto f = m;
        f.push_back(op);
        const Ergebnis e = berechne(15, f);
        return e.zeilen.size() > 3 ? e.zeilen[3] : std::string("-");
    };
    EXPECT_EQ(rechne("A+B"), "A+B = {1; 2; 3; 4; 5; 6; 7}");
    EXPECT_EQ(rechne("A*B*C"), "A*B*C = {5}");
    EXPECT_EQ(rechne("A-B"), "A-B = {1; 2; 3}");
    EXPECT_EQ(rechne("(A+B)*C'"), "(A+B)*C' = {2; 3; 4; 6}");
    // De Morgan within the universe A ∪ B ∪ C: (A ∪ B)' = A' ∩ B'
    unsigned l, r;
    ASSERT_TRUE(mengenBereiche("(A+B)'", l));
    ASSERT_TRUE(mengenBereiche("A'*B'", r));
    EXPECT_EQ(l, r);
    EXPECT_EQ(l, 1u << 4);  // only the part of C outside A and B
    EXPECT_FALSE(mengenBereiche("A+", l));
    EXPECT_FALSE(mengenBereiche("A?B", l));
    EXPECT_TRUE(berechne(15, {"1", "2", "3", "(A"}).eingabefehler);
}
