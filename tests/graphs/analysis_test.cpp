// The curve discussion against functions whose properties are known from school analysis:
// x^3-3x (zeros 0 and +-sqrt 3, extremes at +-1, inflection at 0, point symmetric),
// the bell curve exp(-x^2) (maximum 1 at 0, inflections at +-1/sqrt 2), sin x, and the edge
// cases of the zero scan. Tolerance 1e-6 on refined roots.
#include "graphs/analysis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <numbers>
#include <sstream>

#include "kernel/term.h"

using namespace graphs;

namespace {

Diskussion diskussion(const std::string& term, double von, double bis)
{
    Diskussionsvorgabe v;
    v.term = term;
    v.von = von;
    v.bis = bis;
    return diskutieren(v);
}

void erwarteStellen(const std::vector<double>& ist, const std::vector<double>& soll, const char* was)
{
    ASSERT_EQ(ist.size(), soll.size()) << was;
    for (size_t i = 0; i < soll.size(); ++i)
        EXPECT_NEAR(ist[i], soll[i], 1e-6) << was << " " << i;
}

bool enthaelt(const std::vector<std::string>& zeilen, const std::string& z)
{
    return std::find(zeilen.begin(), zeilen.end(), z) != zeilen.end();
}

}  // namespace

TEST(Diskussion, CubicWithThreeZeros)
{
    const Diskussion d = diskussion("X^3-3*X", -10, 10);
    ASSERT_TRUE(d.fehler.empty()) << d.fehler;
    const double w3 = std::sqrt(3.0);
    erwarteStellen(d.nullstellen, {-w3, 0, w3}, "Nullstellen");
    ASSERT_EQ(d.extrema.size(), 2u);
    EXPECT_NEAR(d.extrema[0].x, -1, 1e-6);
    EXPECT_NEAR(d.extrema[0].y, 2, 1e-6);
    EXPECT_EQ(d.extrema[0].art, Extremart::Maximum);
    EXPECT_NEAR(d.extrema[1].x, 1, 1e-6);
    EXPECT_NEAR(d.extrema[1].y, -2, 1e-6);
    EXPECT_EQ(d.extrema[1].art, Extremart::Minimum);
    ASSERT_EQ(d.wendepunkte.size(), 1u);
    EXPECT_NEAR(d.wendepunkte[0].x, 0, 1e-6);
    EXPECT_EQ(d.symmetrie, Symmetrie::Punkt);
    EXPECT_EQ(d.verhaltenLinks, "-unendlich");
    EXPECT_EQ(d.verhaltenRechts, "+unendlich");
    EXPECT_TRUE(d.yAchseDefiniert);
    EXPECT_EQ(d.yAchse, 0);
    // the value scan ends at the interval's edges: f(-10) = -970, f(10) = 970
    EXPECT_EQ(d.minWert, -970);
    EXPECT_EQ(d.minX, -10);
    EXPECT_EQ(d.maxWert, 970);
    EXPECT_NE(d.stammfunktion.find("X^4"), std::string::npos) << d.stammfunktion;

    Diskussionsvorgabe v;
    v.term = "X^3-3*X";
    const auto z = diskussionszeilen(v, d);
    EXPECT_TRUE(enthaelt(z, "Nullstelle x = -1.732"));
    EXPECT_TRUE(enthaelt(z, "Nullstelle x = 0"));
    EXPECT_TRUE(enthaelt(z, "Hochpunkt\t(-1 | 2)"));
    EXPECT_TRUE(enthaelt(z, "Tiefpunkt\t(1 | -2)"));
    EXPECT_TRUE(enthaelt(z, "Wendepunkt\t(0 | 0)"));
    EXPECT_TRUE(enthaelt(z, "Symmetrie\tpunktsymmetrisch zum Ursprung"));
}

TEST(Diskussion, BellCurve)
{
    const Diskussion d = diskussion("EXP(-X^2)", -5, 5);
    ASSERT_TRUE(d.fehler.empty());
    EXPECT_TRUE(d.nullstellen.empty());
    ASSERT_EQ(d.extrema.size(), 1u);
    EXPECT_NEAR(d.extrema[0].x, 0, 1e-6);
    EXPECT_NEAR(d.extrema[0].y, 1, 1e-12);
    EXPECT_EQ(d.extrema[0].art, Extremart::Maximum);
    const double w = 1 / std::sqrt(2.0);
    ASSERT_EQ(d.wendepunkte.size(), 2u);
    EXPECT_NEAR(d.wendepunkte[0].x, -w, 1e-6);
    EXPECT_NEAR(d.wendepunkte[1].x, w, 1e-6);
    EXPECT_NEAR(d.wendepunkte[1].y, std::exp(-0.5), 1e-6);
    EXPECT_EQ(d.symmetrie, Symmetrie::Achse);
    EXPECT_EQ(d.verhaltenLinks, "0");
    EXPECT_EQ(d.verhaltenRechts, "0");
    EXPECT_NEAR(d.maxWert, 1, 1e-12);
}

TEST(Diskussion, SineAndRationalFunctions)
{
    const Diskussion s = diskussion("SIN(X)", 0.5, 10);
    const double pi = std::numbers::pi;
    erwarteStellen(s.nullstellen, {pi, 2 * pi, 3 * pi}, "sin");
    ASSERT_EQ(s.extrema.size(), 3u);
    EXPECT_NEAR(s.extrema[0].x, pi / 2, 1e-6);
    EXPECT_EQ(s.extrema[1].art, Extremart::Minimum);
    EXPECT_EQ(s.symmetrie, Symmetrie::Punkt);
    EXPECT_EQ(s.verhaltenRechts, "unbestimmt");

    // 1/x tends to 0 both ways; (x^2-1)/(x^2+1) to 1
    const Diskussion h = diskussion("1/X", -3, 3);
    EXPECT_EQ(h.verhaltenLinks, "0");
    EXPECT_EQ(h.verhaltenRechts, "0");
    EXPECT_FALSE(h.yAchseDefiniert);
    const Diskussion r = diskussion("(X^2-1)/(X^2+1)", -3, 3);
    EXPECT_EQ(r.verhaltenRechts, "1");
    erwarteStellen(r.nullstellen, {-1, 1}, "rational");
    EXPECT_EQ(r.symmetrie, Symmetrie::Achse);
    EXPECT_EQ(diskussion("X^2+X", -3, 3).symmetrie, Symmetrie::Keine);
}

TEST(Diskussion, EdgeCasesOfTheZeroScan)
{
    // the sign change of 1/x at its pole has a large product: no zero
    EXPECT_TRUE(diskussion("1/X", -1, 1).nullstellen.empty());
    // a touching zero has no sign change: not found, but the value scan finds the minimum
    const Diskussion p = diskussion("X^2", -1, 1);
    EXPECT_TRUE(p.nullstellen.empty());
    EXPECT_TRUE(p.minGefunden);
    EXPECT_NEAR(p.minWert, 0, 1e-12);
    EXPECT_NEAR(p.minX, 0, 1e-9);
    ASSERT_EQ(p.extrema.size(), 1u);
    EXPECT_EQ(p.extrema[0].art, Extremart::Minimum);
    // an unknown name stops the discussion with the message of the term check
    const Diskussion f = diskussion("FOO(X)", -1, 1);
    EXPECT_EQ(f.fehler, "Funktion1 fehlerhaft");
    Diskussionsvorgabe v;
    v.term = "FOO(X)";
    EXPECT_EQ(diskussionszeilen(v, f), (std::vector<std::string>{"Funktion f(x)\tFOO(X)", "Funktion1 fehlerhaft"}));
    // LN is undefined left of 0: the scan starts behind the gap and finds x = 1
    erwarteStellen(diskussion("LN(X)", -2, 3).nullstellen, {1}, "ln");
    // nowhere defined
    EXPECT_TRUE(diskussion("SQRT(-1-X^2)", -2, 2).nichtBerechenbar);
}

TEST(Diskussion, ParametersEnterTheTerm)
{
    Diskussionsvorgabe v;
    v.term = "X^2-Q";
    v.q = 4;
    erwarteStellen(diskutieren(v).nullstellen, {-2, 2}, "P, Q");
}

TEST(Stammfunktion, PolynomialsAndLibrary)
{
    // F(b)-F(a) against known integrals
    auto bestimmt = [](const std::string& f, double a, double b) {
        const std::string F = stammfunktionSuchen(f, {});
        EXPECT_FALSE(F.empty()) << f;
        int e = 0;
        const Termfunktion s = termfunktion(F);
        return s(b, e) - s(a, e);
    };
    EXPECT_NEAR(bestimmt("X^3-3*X", 0, 2), -2, 1e-12);
    EXPECT_NEAR(bestimmt("3*X^2+2*X+1", 0, 1), 3, 1e-12);
    EXPECT_NEAR(bestimmt("X/2-4", 0, 2), -7, 1e-12);
    EXPECT_NEAR(bestimmt("-X", 0, 1), -0.5, 1e-12);
    EXPECT_EQ(stammfunktionSuchen("SIN(X)", {}), "");
    EXPECT_EQ(stammfunktionSuchen("sin(x)", {"SIN(X);-COS(X)"}), "-COS(X)");
    EXPECT_EQ(stammfunktionSuchen("2X", {}), "");
}

TEST(Wertetabelle, CellsAndFaults)
{
    const auto t = wertetabelle("1/X", -1, 1, 0.5, "LN(ABS(X))");
    ASSERT_EQ(t.size(), 7u);
    EXPECT_EQ(t[0], "Wertetabelle");
    EXPECT_EQ(t[2], "-1\t-1\t-1\t-2\t0");
    EXPECT_EQ(t[4].substr(0, 13), "0\tnicht def.\t");
    EXPECT_EQ(t[6], "1\t1\t-1\t2\t0");
    // no antiderivative: its column shows "---"
    EXPECT_EQ(wertetabelle("X^2", 0, 1, 1)[3], "1\t1\t2\t2\t---");
}

TEST(Tangente, TangentAndNormalOfTheParabola)
{
    // y = x^2 at x = 1: tangent y = 2x-1, normal y = -x/2+1.5
    const TangenteNormale t = tangenteNormale("X^2", 1);
    ASSERT_TRUE(t.definiert);
    EXPECT_NEAR(t.tangenteM, 2, 1e-12);
    EXPECT_NEAR(t.tangenteN, -1, 1e-12);
    EXPECT_NEAR(t.normaleM, -0.5, 1e-12);
    EXPECT_NEAR(t.normaleN, 1.5, 1e-12);
    const auto z = tangentenzeilen(t);
    EXPECT_TRUE(enthaelt(z, "Tangentengleichung \ty = 2*x-1"));
    EXPECT_TRUE(enthaelt(z, "\ty = -0.5*x+1.5"));
    EXPECT_TRUE(enthaelt(z, "Nullstelle der Tangente bei\t0.5"));
    EXPECT_TRUE(enthaelt(z, "Nullstelle der Normale bei\t3"));
    EXPECT_TRUE(enthaelt(z, "Abstand zu (0,0)\t0.4472"));       // 1/sqrt 5
    EXPECT_TRUE(enthaelt(z, "Anstiegswinkel (in °) der Tangente = 63.435"));  // arctan 2
    // at the vertex the tangent is horizontal and the normal vertical
    const auto s = tangentenzeilen(tangenteNormale("X^2", 0));
    EXPECT_TRUE(enthaelt(s, "Nullstelle der Tangente bei\tKein"));
    EXPECT_TRUE(enthaelt(s, "Tangentengleichung \ty = 0"));
    EXPECT_TRUE(enthaelt(s, "\tx = 0"));
    EXPECT_EQ(tangentenzeilen(tangenteNormale("LN(X)", -1)).back(), "Kein Funktionswert bestimmbar !");
}

TEST(Tangente, TangentsFromAnOuterPoint)
{
    // from (0, -1) to y = x^2 the tangents touch at x = -1 and x = 1
    const auto k = tangentenVonPunkt("X^2", 0, -1, -5, 5, false);
    ASSERT_EQ(k.size(), 2u);
    EXPECT_NEAR(k[0].x, -1, 1e-6);
    EXPECT_NEAR(k[1].x, 1, 1e-6);
    const auto z = tangentenVonPunktZeilen("X^2", 0, -1, -5, 5, false);
    EXPECT_TRUE(enthaelt(z, "Berührungspunkt\t(1 | 1)\ty = 2*x-1"));
    EXPECT_TRUE(enthaelt(z, "Schnittwinkel der Tangenten \t53.13°"));  // 2*arctan 2 - 90 ... 180-126.87
    // the normal from (0, 1.5) to x^2 meets it at 0 and +-1 (x^2 = 1.5 - 1/2)
    const auto n = tangentenVonPunkt("X^2", 0, 1.5, -5, 5, true);
    ASSERT_EQ(n.size(), 2u);
    EXPECT_NEAR(std::fabs(n[0].x), 1, 1e-6);
}

TEST(Schnittpunkte, ParabolaAndLine)
{
    // x^2 = x+2 at -1 and 2; at -1 the slopes -2 and 1 meet at 71.565 degrees
    const auto s = schnittpunkte("X^2", "X+2", -5, 5);
    ASSERT_EQ(s.size(), 2u);
    EXPECT_NEAR(s[0].x, -1, 1e-6);
    EXPECT_NEAR(s[0].y, 1, 1e-6);
    EXPECT_NEAR(s[1].x, 2, 1e-6);
    EXPECT_NEAR(s[0].schnittwinkel, 180 - 45 - std::atan(2.0) * 180 / std::numbers::pi, 1e-4);
    const auto z = schnittzeilen("X^2", "X+2", 1, 2, s);
    EXPECT_EQ(z[0], "Schnittpunkte der Funktionen 1 und 2");
    EXPECT_TRUE(enthaelt(z, "(2 | 4)"));
    EXPECT_TRUE(enthaelt(z, "Anstiegswinkel f(2) = 45°"));
}

namespace {

std::vector<std::string> woerter(const std::string& s)
{
    std::istringstream in(s);
    std::vector<std::string> r;
    std::string w;
    while (in >> w)
        if (w != "-")
            r.push_back(w);
    return r;
}

double termwert(const std::string& t)
{
    quorix::TermError = 0;
    const double v = quorix::EvalTerm(t, 1);
    EXPECT_EQ(quorix::TermError, 0) << t;
    return v;
}

}  // namespace

TEST(Diskussion, TextbookCaseTable)
{
    std::ifstream in(std::string(QUORIX_TEST_DATA) + "/analysis_cases.txt");
    ASSERT_TRUE(in);
    std::string zeile;
    int faelle = 0;
    while (std::getline(in, zeile)) {
        if (zeile.empty() || zeile[0] == '#')
            continue;
        std::vector<std::string> teil;
        std::istringstream z(zeile);
        std::string t;
        while (std::getline(z, t, '|'))
            teil.push_back(t);
        ASSERT_EQ(teil.size(), 5u) << zeile;
        const std::string term = woerter(teil[0]).at(0);
        const auto grenzen = woerter(teil[1]);
        const Diskussion d = diskussion(term, termwert(grenzen.at(0)), termwert(grenzen.at(1)));
        ASSERT_TRUE(d.fehler.empty()) << term;
        std::vector<double> soll;
        for (const auto& w : woerter(teil[2]))
            soll.push_back(termwert(w));
        erwarteStellen(d.nullstellen, soll, (term + " zeros").c_str());
        const auto ext = woerter(teil[3]);
        ASSERT_EQ(d.extrema.size(), ext.size()) << term;
        for (size_t i = 0; i < ext.size(); ++i) {
            const size_t p = ext[i].rfind('/');
            EXPECT_NEAR(d.extrema[i].x, termwert(ext[i].substr(0, p)), 1e-6) << term << " extreme " << i;
            EXPECT_EQ(d.extrema[i].art, ext[i][p + 1] == 'H' ? Extremart::Maximum : Extremart::Minimum)
                << term << " extreme " << i;
        }
        soll.clear();
        std::vector<double> ist;
        for (const auto& w : woerter(teil[4]))
            soll.push_back(termwert(w));
        for (const Kurvenpunkt& k : d.wendepunkte)
            ist.push_back(k.x);
        erwarteStellen(ist, soll, (term + " inflections").c_str());
        ++faelle;
    }
    EXPECT_EQ(faelle, 10);
}
