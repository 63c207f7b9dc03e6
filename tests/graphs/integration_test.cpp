// Quadrature rules against exact integrals: each rule's error shrinks with the order it is known
// to have (error(n)/error(2n) ~ 2^p, checked within +-0.35 in p), the areas between curves split
// at their intersections, and solids of rotation with school-book values (cone, paraboloid).
#include "graphs/integration.h"
#include "kernel/term.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <numbers>
#include <sstream>

using namespace graphs;

namespace {

double wert(const std::string& t)
{
    quorix::TermError = 0;
    return quorix::EvalTerm(t, 1);
}

bool enthaelt(const std::vector<std::string>& z, const std::string& s)
{
    for (const auto& l : z)
        if (l == s)
            return true;
    return false;
}

}  // namespace

TEST(Quadratur, ErrorOrdersOnTheCaseTable)
{
    std::ifstream in(std::string(QUORIX_TEST_DATA) + "/integration_cases.txt");
    ASSERT_TRUE(in);
    std::string zeile;
    int faelle = 0;
    while (std::getline(in, zeile)) {
        if (zeile.empty() || zeile[0] == '#')
            continue;
        std::istringstream s(zeile);
        std::string term, ta, tb;
        double exakt = 0;
        int n = 0;
        ASSERT_TRUE(s >> term >> ta >> tb >> exakt >> n) << zeile;
        const double a = wert(ta), b = wert(tb);
        const Termfunktion f = termfunktion(term);
        for (int i = 0; i < kVerfahrenAnzahl; ++i) {
            const auto v = static_cast<Integrationsverfahren>(i);
            const int p = fehlerordnung(v);
            if (v == Integrationsverfahren::Kepler || v == Integrationsverfahren::Romberg)
                continue;
            const int m = n;
            const double e1 = std::fabs(integrieren(f, a, b, m, v) - exakt);
            const double e2 = std::fabs(integrieren(f, a, b, 2 * m, v) - exakt);
            const double ordnung = std::log2(e1 / e2);
            EXPECT_NEAR(ordnung, p, 0.35) << term << " " << verfahrensname(v) << ": errors " << e1 << " and " << e2;
        }
        const double r = integrieren(f, a, b, n, Integrationsverfahren::Romberg);
        EXPECT_NEAR(r, exakt, 1e-10) << term << " Romberg";
        const double g = integrieren(f, a, b, 50, Integrationsverfahren::Gauss);
        EXPECT_NEAR(g, exakt, 1e-12) << term << " Gauss";
        ++faelle;
    }
    EXPECT_EQ(faelle, 7);
}

TEST(Quadratur, ExactnessOfTheRules)
{
    // Kepler's barrel rule is exact for cubics; the trapezoidal rule for lines
    EXPECT_NEAR(integrieren(termfunktion("X^3-2*X+1"), 0, 2, 1, Integrationsverfahren::Kepler), 2, 1e-12);
    EXPECT_NEAR(integrieren(termfunktion("3*X+1"), -1, 3, 1, Integrationsverfahren::Trapez), 16, 1e-12);
    // left and right sums of an increasing function bracket the integral (lower/upper sum)
    const Termfunktion e = termfunktion("EXP(X)");
    const double l = integrieren(e, 0, 1, 10, Integrationsverfahren::RechteckLinks);
    const double r = integrieren(e, 0, 1, 10, Integrationsverfahren::RechteckRechts);
    EXPECT_LT(l, std::exp(1) - 1);
    EXPECT_GT(r, std::exp(1) - 1);
    // a fault inside the interval is reported
    int fehler = 0;
    integrieren(termfunktion("1/X"), -1, 1, 10, Integrationsverfahren::RechteckLinks, &fehler);
    EXPECT_EQ(fehler, 2);
    Integrationsverfahren v;
    EXPECT_TRUE(verfahrenAusName("Simpson", v));
    EXPECT_EQ(v, Integrationsverfahren::Simpson);
    EXPECT_FALSE(verfahrenAusName("newton", v));
}

TEST(Flaechen, OrientedAndAbsoluteAreas)
{
    // x^3-x on [-1, 1]: the parts cancel (0), absolutely 2 * 1/4
    Integrationsvorgabe v;
    v.f = "X^3-X";
    v.a = -1;
    v.b = 1;
    Integrationsergebnis r = integrationRechnen(v);
    ASSERT_TRUE(r.fehler.empty());
    EXPECT_NEAR(r.orientiert, 0, 1e-12);
    EXPECT_NEAR(r.absolut, 0.5, 1e-10);
    ASSERT_EQ(r.teilpunkte.size(), 1u);
    EXPECT_NEAR(r.teilpunkte[0], 0, 1e-9);

    // between x^2 and x on [0, 2]: parts 1/6 and 5/6; exactly by the antiderivatives
    v.f = "X^2";
    v.g = "X";
    v.F = "X^3/3";
    v.G = "X^2/2";
    v.a = 0;
    v.b = 2;
    r = integrationRechnen(v);
    EXPECT_TRUE(r.exakt);
    EXPECT_NEAR(r.orientiert, 2.0 / 3, 1e-12);
    EXPECT_NEAR(r.absolut, 1.0, 1e-12);
    const auto z = integrationszeilen(v, r);
    EXPECT_TRUE(enthaelt(z, "Orientierte Fläche\t0.666667 FE"));
    EXPECT_TRUE(enthaelt(z, "Absolute Fläche\t1 FE"));
    EXPECT_TRUE(enthaelt(z, "Verfahren\tStammfunktion"));

    // swapped bounds turn the orientation, not the absolute area
    v.a = 2;
    v.b = 0;
    r = integrationRechnen(v);
    EXPECT_NEAR(r.orientiert, -2.0 / 3, 1e-12);
    EXPECT_NEAR(r.absolut, 1.0, 1e-12);

    v.f = "SIN(";
    EXPECT_EQ(integrationRechnen(v).fehler, "Funktion1 fehlerhaft");
}

TEST(Flaechen, SolidsOfRotationArcAndCentroid)
{
    // cone from y = x on [0, 1]: V = pi/3, slant sqrt 2, centroid of the triangle (2/3, 1/3)
    Integrationsvorgabe v;
    v.f = "X";
    v.a = 0;
    v.b = 1;
    Integrationsergebnis r = integrationRechnen(v);
    EXPECT_NEAR(r.volumen, std::numbers::pi / 3, 1e-12);
    EXPECT_NEAR(r.bogenlaenge, std::sqrt(2.0), 1e-12);
    ASSERT_TRUE(r.schwerpunktDa);
    EXPECT_NEAR(r.schwerpunktX, 2.0 / 3, 1e-12);
    EXPECT_NEAR(r.schwerpunktY, 1.0 / 3, 1e-12);
    const auto z = integrationszeilen(v, r);
    EXPECT_TRUE(enthaelt(z, "Volumen des Rotationskörpers\t1.047198 RE\t= 0.333333 · PI RE"));
    EXPECT_TRUE(enthaelt(z, "Schwerpunktskoordinaten\t0.6667;0.3333"));

    // paraboloid from sqrt x on [0, 4]: V = 8 pi; washer between 2 and sqrt x: 16 pi - 8 pi
    v.f = "SQRT(X)";
    v.b = 4;
    EXPECT_NEAR(integrationRechnen(v).volumen, 8 * std::numbers::pi, 1e-6);
    v.g = "2";
    EXPECT_NEAR(integrationRechnen(v).volumen, 8 * std::numbers::pi, 1e-6);

    // a coarse rule for the area leaves the solid exact: pi * int_0^3 x^4 = 243 pi / 5
    Integrationsvorgabe grob;
    grob.f = "X^2";
    grob.b = 3;
    grob.verfahren = Integrationsverfahren::RechteckLinks;
    grob.n = 6;
    const Integrationsergebnis rg = integrationRechnen(grob);
    EXPECT_NEAR(rg.orientiert, 6.875, 1e-12);
    EXPECT_NEAR(rg.volumen, 243 * std::numbers::pi / 5, 1e-9);

    // catenary cosh x on [-1, 1]: arc length 2 sinh 1
    v.f = "COSH(X)";
    v.g = "0";
    v.a = -1;
    v.b = 1;
    EXPECT_NEAR(integrationRechnen(v).bogenlaenge, 2 * std::sinh(1.0), 1e-9);
}

TEST(Flaechen, MethodComparisonLists)
{
    const auto z = verfahrensvergleich("X^2", "X^3/3", 0, 3, 6);
    ASSERT_EQ(z.size(), 2u + kVerfahrenAnzahl);
    EXPECT_EQ(z[1], "Stammfunktion F(x) = X^3/3\t9");
    EXPECT_EQ(z[2], "Rechteckregel (links)\t6.875\tFehler -2.125");
    EXPECT_EQ(z[6], "Simpson-Regel\t9\tFehler 0");
}

TEST(Flaechen, CentroidOfACrossingRegion)
{
    // between x^2 and x on [0, 2] the two lenses do not cancel: the centroid lies inside the
    // bounding box of the region, right of the crossing at x = 1 where most of the area is
    Integrationsvorgabe v;
    v.f = "X^2";
    v.g = "X";
    v.a = 0;
    v.b = 2;
    const Integrationsergebnis r = integrationRechnen(v);
    ASSERT_TRUE(r.schwerpunktDa);
    // exact: A = 1, int x|x^2-x| = 1/12 + 17/12 = 3/2, int (x^2+x)/2 |x^2-x| = 1/15 + 29/15 = 2
    EXPECT_NEAR(r.schwerpunktX, 1.5, 1e-6);
    EXPECT_NEAR(r.schwerpunktY, 2.0, 1e-6);
}
