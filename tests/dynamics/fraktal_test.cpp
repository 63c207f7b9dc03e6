// Escape-time fractals: membership of known points, escape counts, the variants' symmetries,
// colour indices, the raster and the view arithmetic.
#include "dynamics/fraktal.h"
#include "dynamics/fraktalpalette.h"

#include <complex>
#include <gtest/gtest.h>
#include <set>

using namespace chaos;

// Points whose orbits under z -> z^2 + c are known by hand: 0 is fixed, -1 has period 2,
// -2 lands on the fixed point 2, i is preperiodic (i, -1+i, -i, -1+i, ...).
TEST(FraktalMandelbrot, KnownPointsInsideStayBounded)
{
    const std::pair<double, double> innen[] = {{0, 0}, {-1, 0}, {-2, 0}, {0, 1}, {0.25, 0}, {-0.123, 0.745}};
    for (auto [a, b] : innen) {
        const Flucht f = mandelbrotFlucht(10, a, b, 5000);
        EXPECT_FALSE(f.entkommen) << "c = " << a << " + " << b << "i escaped after " << f.schritte;
        EXPECT_EQ(f.schritte, 5000);
    }
}

// Escape counts from the orbit of 0 worked by hand: the step at which |z|^2 first exceeds 9.
TEST(FraktalMandelbrot, EscapeCountsOfSimplePoints)
{
    struct Fall {
        double a, b;
        int n;
    } faelle[] = {
        {1, 0, 3},      // 0, 1, 2, 5
        {2, 0, 2},      // 0, 2, 6
        {0.5, 0, 5},    // 0, .5, .75, 1.0625, 1.6289, 3.153
        {-2.1, 0, 3},   // 0, -2.1, 2.31, 3.236: the rim between radius 2 and 3 still iterates
        {0, 2, 2},      // 0, 2i, -4+2i
        {10, 0, 1},
    };
    for (const auto& f : faelle) {
        const Flucht r = mandelbrotFlucht(10, f.a, f.b, 1000);
        EXPECT_TRUE(r.entkommen) << f.a << " " << f.b;
        EXPECT_EQ(r.schritte, f.n) << "c = " << f.a << " + " << f.b << "i";
    }
    EXPECT_DOUBLE_EQ(fluchtgrenze(10), 9.0);
    EXPECT_DOUBLE_EQ(fluchtgrenze(26), 100.0);
    EXPECT_DOUBLE_EQ(fluchtgrenze(28), 100.0);
}

// For c = 0 the Julia set is the unit circle: inside stays, outside escapes at the step
// where 1.1^(2^(n+1)) passes 9, that is n = 4.
TEST(FraktalJulia, UnitCircleForCZero)
{
    EXPECT_FALSE(iteriere(10, 0.9, 0.3, 0, 0, 2000).entkommen);
    const Flucht f = iteriere(10, 1.1, 0, 0, 0, 2000);
    EXPECT_TRUE(f.entkommen);
    EXPECT_EQ(f.schritte, 4);
    // the basilica (c = -1): 0 lies on the attracting 2-cycle
    EXPECT_FALSE(iteriere(10, 0, 0, -1, 0, 2000).entkommen);
}

// The written-out powers against complex multiplication on a grid of parameters.
TEST(FraktalVariants, PowerExpansionsMatchComplexArithmetic)
{
    for (int v = 1; v <= 6; ++v) {
        const int grad = v == 6 ? 8 : v + 2;
        int gleich = 0, alle = 0;
        for (int i = 0; i < 40; ++i)
            for (int j = 0; j < 40; ++j) {
                const std::complex<double> c(-1.5 + 3.0 * i / 40, -1.5 + 3.0 * j / 40);
                std::complex<double> z = 0;
                int n = 0;
                while (n < 100) {
                    std::complex<double> p = 1;
                    for (int k = 0; k < grad; ++k) p *= z;
                    z = p + c;
                    ++n;
                    if (std::norm(z) > 9) break;
                }
                const Flucht f = mandelbrotFlucht(v, c.real(), c.imag(), 100);
                gleich += f.schritte == n;
                ++alle;
            }
        // rounding may flip a point right at the boundary, no more
        EXPECT_GE(gleich, alle - 3) << "variant " << v << " (z^" << grad << " + c)";
    }
}

// z^d + c has (d-1)-fold rotational symmetry; z^2 + c and its relatives are mirror symmetric.
TEST(FraktalVariants, Symmetries)
{
    const double pi = 3.14159265358979323846;
    for (int v : {1, 2, 3, 4}) {
        const int d = v + 2;
        const double w = 2 * pi / (d - 1);
        for (double a = -1.2; a <= 1.2; a += 0.3)
            for (double b = -1.1; b <= 1.1; b += 0.35) {
                const double ra = a * std::cos(w) - b * std::sin(w), rb = a * std::sin(w) + b * std::cos(w);
                EXPECT_EQ(mandelbrotFlucht(v, a, b, 60).schritte, mandelbrotFlucht(v, ra, rb, 60).schritte)
                    << "variant " << v << " at " << a << " " << b;
            }
    }
    for (int v : {10, 9, 11, 16})
        for (double a = -2; a <= 1; a += 0.25)
            EXPECT_EQ(mandelbrotFlucht(v, a, 0.37, 80).schritte, mandelbrotFlucht(v, a, -0.37, 80).schritte) << v;
}

TEST(FraktalVariants, EveryListedVariantHasANameAndDrawsSomething)
{
    std::set<std::string> namen;
    for (int v : fluchtvarianten()) {
        EXPECT_FALSE(variantenname(v).empty()) << v;
        namen.insert(variantenname(v));
        Werteraster r;
        r.setzeGroesse(40, 30);
        Fluchtbild p;
        p.variante = v;
        p.maxIter = 60;
        p.farbfaktor = 5;
        ASSERT_TRUE(rechneFluchtbild(r, {-2.5, 2.5, -2, 2}, p));
        std::set<int> werte(r.werte.begin(), r.werte.end());
        EXPECT_GE(werte.size(), 2u) << "variant " << v << " gives a flat picture";
    }
    EXPECT_EQ(namen.size(), fluchtvarianten().size());
    EXPECT_FALSE(istFluchtvariante(20));
}

TEST(FraktalColouring, IndexRules)
{
    Flucht raus{3, true, 5};
    EXPECT_EQ(farbindex(raus, 100, false), 300 % 256);
    EXPECT_EQ(farbindex(raus, 0, false), 0) << "colour factor 0 puts every escaping point on index 0";
    Flucht drin{200, false, 0.5};
    EXPECT_EQ(farbindex(drin, 3, false), 0);
    EXPECT_EQ(farbindex(drin, 3, true), 150);  // round(100*3*0.5)
    // a whole picture with factor 0 has only index 0
    Werteraster r;
    r.setzeGroesse(30, 20);
    Fluchtbild p;
    p.farbfaktor = 0;
    ASSERT_TRUE(rechneFluchtbild(r, {}, p));
    for (auto w : r.werte) ASSERT_EQ(w, 0);
}

TEST(ChaosRaster, RowsRunBottomUpAndCanBeStopped)
{
    Werteraster r;
    r.setzeGroesse(32, 24);
    std::fill(r.werte.begin(), r.werte.end(), 77);
    Fluchtbild p;
    p.farbfaktor = 1;
    int aufrufe = 0;
    EXPECT_FALSE(rechneFluchtbild(r, {-2.2, 1.0, -1.2, 1.2}, p, [&](int fertig) {
        ++aufrufe;
        return fertig < 2;
    }));
    EXPECT_EQ(aufrufe, 2);
    EXPECT_NE(r.at(0, 23), 77);  // the last row came first
    EXPECT_EQ(r.at(0, 0), 77);   // the top row was never reached
    // the full picture: the origin is inside (0), the corner (-2.2, 1.2) escapes at step 2
    ASSERT_TRUE(rechneFluchtbild(r, {-2.2, 1.0, -1.2, 1.2}, p));
    const int spalte0 = static_cast<int>(std::lround(2.2 / 3.2 * 32)), zeile0 = 12;
    EXPECT_EQ(r.at(spalte0, zeile0), 0);
    EXPECT_EQ(r.at(0, 0), 2);  // c, then c^2 + c = 1.2 - 4.08i
}

TEST(ChaosView, ZoomAndShift)
{
    const Ansicht a{-2, 2, -1, 1};
    Ansicht n;
    EXPECT_FALSE(zoomAnsicht(a, 400, 200, 10, 10, 10, 50, n)) << "zero-width rectangle";
    ASSERT_TRUE(zoomAnsicht(a, 400, 200, 300, 150, 100, 50, n));  // dragged up-left
    EXPECT_DOUBLE_EQ(n.xmin, -1);
    EXPECT_DOUBLE_EQ(n.xmax, 1);
    EXPECT_DOUBLE_EQ(n.ymax, 0.5);
    EXPECT_DOUBLE_EQ(n.ymin, -0.5);
    // a 4 x 2 view in a 400 x 400 picture grows to 4 x 4 about its centre; a fitting one stays
    const Ansicht g = gleicheEinheiten(a, 400, 400);
    EXPECT_DOUBLE_EQ(g.xmin, -2);
    EXPECT_DOUBLE_EQ(g.ymin, -2);
    EXPECT_DOUBLE_EQ(g.ymax, 2);
    const Ansicht f = gleicheEinheiten(a, 400, 200);
    EXPECT_DOUBLE_EQ(f.xmax, 2);
    EXPECT_DOUBLE_EQ(f.ymax, 1);
    const Ansicht s = verschiebe(a, 0.25, -0.5);
    EXPECT_DOUBLE_EQ(s.xmin, -1);
    EXPECT_DOUBLE_EQ(s.xmax, 3);
    EXPECT_DOUBLE_EQ(s.ymin, -2);
    EXPECT_DOUBLE_EQ(s.ymax, 0);
}

TEST(FraktalPalettes, NamesTablesAndRotation)
{
    const auto& n = palettennamen();
    EXPECT_EQ(n.size(), 43u);
    EXPECT_EQ(n.front(), "altern");
    EXPECT_EQ(n.back(), "zoot");
    std::set<std::array<platform::TColor, 256>> verschieden;
    for (const auto& name : n) verschieden.insert(palette(name));
    EXPECT_EQ(verschieden.size(), n.size()) << "two names give the same table";
    EXPECT_EQ(palette("gibt es nicht"), palette("defaultw"));
    const Palette p = palette("chroma");
    const Palette q = rotiere(p, 10);
    EXPECT_EQ(q[0], p[0]) << "the interior colour does not rotate";
    EXPECT_EQ(q[11], p[1]);
    EXPECT_EQ(q[1], p[246]);
    EXPECT_EQ(rotiere(p, 255), p);
    EXPECT_EQ(rotiere(rotiere(p, 100), -100), p);
}
