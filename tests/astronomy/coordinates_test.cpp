// Coordinates, precession and orbits of the series library against published values.
#include "astronomy/ephemeris.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace astro;

TEST(Coordinates, AnglesAndPolar)
{
    EXPECT_DOUBLE_EQ(ATN2(0, 0), 0);
    EXPECT_NEAR(ASN(0.5), 30, 1e-12);
    EXPECT_NEAR(ACS(0.5), 60, 1e-12);
    EXPECT_NEAR(ASN(1.0), 90, 1e-12);
    double x, y, z, r, th, ph;
    Cart(2, 30, -45, x, y, z);
    Polar(x, y, z, r, th, ph);
    EXPECT_NEAR(r, 2, 1e-12);
    EXPECT_NEAR(th, 30, 1e-12);
    EXPECT_NEAR(ph, 315, 1e-12);  // brought to 0..360
    int d, m;
    double s;
    DMS(-0.5, d, m, s);  // the sign sits on the first part that is not zero
    EXPECT_EQ(d, 0);
    EXPECT_EQ(m, -30);
    EXPECT_NEAR(s, 0, 1e-9);
    EXPECT_NEAR(DDD(-12, 30, 36), -12.51, 1e-12);
}

TEST(Coordinates, QuadAndChebyshev)
{
    // y = x^2 - 0.25: roots at -0.5 and 0.5, minimum at 0
    const QuadResult q = Quad(0.75, -0.25, 0.75);
    EXPECT_EQ(q.roots, 2);
    EXPECT_NEAR(q.root1, -0.5, 1e-12);
    EXPECT_NEAR(q.root2, 0.5, 1e-12);
    EXPECT_NEAR(q.ye, -0.25, 1e-12);
    // T0 + 2 T1 + 3 T2 at u = 0.5: 1 + 1 + 3 (2 * 0.25 - 1) = 0.5
    EXPECT_NEAR(TEval({1, 2, 3}, 0, 2, 1.5), 0.5, 1e-12);
}

TEST(Coordinates, PrecessionMeeus21b)
{
    // Meeus 21.b: theta Persei, J2000 place with proper motion applied alpha = 41.054063,
    // delta = 49.227750, precessed to 2028 Nov 13.19 TD: alpha = 41.547214, delta = 49.348483
    // (tolerance 0.0001 deg)
    const double alpha = 41.054063, delta = 49.227750;
    double x, y, z;
    Cart(1, delta, alpha, x, y, z);
    Mat3 a;
    PMatEqu(0, (2462088.69 - 2451545) / 36525, a);
    PrecArt(a, x, y, z);
    double r, d, al;
    Polar(x, y, z, r, d, al);
    EXPECT_NEAR(al, 41.547214, 1e-4);
    EXPECT_NEAR(d, 49.348483, 1e-4);
    // ecliptic and equatorial rotations invert each other
    double u = 0.3, v = -0.2, w = 0.9;
    EclEqu(0.2, u, v, w);
    EquEcl(0.2, u, v, w);
    EXPECT_NEAR(u, 0.3, 1e-12);
    EXPECT_NEAR(v, -0.2, 1e-12);
    EXPECT_NEAR(w, 0.9, 1e-12);
    Mat3 e1, e2;
    PMatEcl(0, 1, e1);
    PMatEcl(1, 0, e2);
    PrecArt(e1, u, v, w);
    PrecArt(e2, u, v, w);
    EXPECT_NEAR(u, 0.3, 1e-9);
    EXPECT_NEAR(w, 0.9, 1e-9);
}

TEST(Orbits, KeplerAndElements)
{
    // Kepler's equation: M = E - e sin E (the routine reduces M with 6.283185308, hence 1e-9)
    for (double e : {0.1, 0.5, 0.85, 0.97}) {
        const double E = EccAnom(123.0, e);
        EXPECT_NEAR(E - e * std::sin(E), 123.0 * 3.14159265358979324 / 180, 1e-9) << "e " << e;
    }
    // an orbit from known elements: elements back from a state vector and from two positions
    const double a = 2.7, ecc = 0.2, inc = 12.0, node = 80.0, peri = 70.0;
    Mat3 pqr;
    GaussVec(node, inc, peri, pqr);
    auto state = [&](double man, double r[3], double v[3]) {
        double x, y, vx, vy;
        Ellip(man, a, ecc, x, y, vx, vy);
        for (int i = 0; i < 3; ++i) {
            r[i] = pqr[i][0] * x + pqr[i][1] * y;
            v[i] = pqr[i][0] * vx + pqr[i][1] * vy;
        }
    };
    double r1[3], v1[3], r2[3], v2[3];
    state(10.0, r1, v1);
    const double n = 0.9856076686 / std::pow(a, 1.5);  // deg per day
    state(10.0 + n * 60, r2, v2);
    const Elements e1 = ElementFromVectors(51544.5, r1, v1);
    EXPECT_NEAR(e1.a, a, 1e-6);
    EXPECT_NEAR(e1.ecc, ecc, 1e-8);
    EXPECT_NEAR(e1.incl, inc, 1e-6);
    EXPECT_NEAR(e1.node, node, 1e-6);
    EXPECT_NEAR(e1.perihelionArg, peri, 1e-6);
    EXPECT_NEAR(e1.meanAnomaly, 10.0, 1e-6);
    const Elements e2 = ElementFromTwoPositions(51544.5, r1, 51604.5, r2);
    EXPECT_NEAR(e2.a, a, 1e-4);
    EXPECT_NEAR(e2.ecc, ecc, 1e-5);
    EXPECT_NEAR(e2.incl, inc, 1e-5);
    EXPECT_NEAR(e2.node, node, 1e-5);
    EXPECT_NEAR(e2.perihelionArg, peri, 1e-3);
}
