// Solar eclipses at the observer against published local circumstances (cases in
// local_eclipses.txt), the lines of the tool, and the Chebyshev fits behind them.
#include "astronomy/ephemeris.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

using namespace astro;

namespace {
double newMoonNear(int y, int m, int d) { return jdeToJd(MoonPhaseTime(std::round(lunationIndex(JulianDay(y, m, d))), 0)); }

// "h:m[:s]" on the day jd0 (0 h UT); NaN for "-"
double timeOn(double jd0, const std::string& s)
{
    if (s == "-") return NAN;
    double h = 0, m = 0, sec = 0;
    char c;
    std::istringstream in(s);
    in >> h >> c >> m;
    if (in >> c) in >> sec;
    return jd0 + (h + m / 60 + sec / 3600) / 24;
}
}  // namespace

TEST(LocalEclipse, PublishedLocalCircumstances)
{
    std::ifstream in(std::string(QUORIX_TEST_DATA) + "/local_eclipses.txt");
    ASSERT_TRUE(in) << "local_eclipses.txt missing";
    std::string line;
    int cases = 0;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream s(line);
        int y, mo, d, code;
        double lat, lon, tol;
        std::string t[5], mag, obs, place;
        s >> y >> mo >> d >> lat >> lon >> code >> t[0] >> t[1] >> t[2] >> t[3] >> t[4] >> mag >> obs >> tol >> place;
        ASSERT_FALSE(s.fail()) << line;
        ++cases;
        const double jd0 = JulianDay(y, mo, d);
        const LocalEclipse e = solarEclipseAtObserver(newMoonNear(y, mo, d), lat, lon);
        EXPECT_EQ(e.code, code) << place;
        for (int k = 0; k < 4; ++k) {
            const double want = timeOn(jd0, t[k]);
            if (std::isnan(want)) {
                if (k == 1 || k == 2) EXPECT_EQ(e.hasContact[k], code >= 2) << place << " contact " << k + 1;
                continue;
            }
            ASSERT_TRUE(e.hasContact[k]) << place << " contact " << k + 1;
            EXPECT_NEAR((e.contact[k] - want) * 86400, 0, tol)
                << place << " contact " << k + 1 << ": published " << t[k] << ", computed " << dateTimeText(e.contact[k]);
        }
        if (t[4] != "-")
            EXPECT_NEAR((e.maximum - timeOn(jd0, t[4])) * 86400, 0, tol) << place << " maximum, published " << t[4];
        if (mag != "-") EXPECT_NEAR(e.magnitude, std::stod(mag), 0.005) << place << " magnitude";
        if (obs != "-") EXPECT_NEAR(e.obscuration, std::stod(obs), 0.005) << place << " obscuration";
    }
    EXPECT_EQ(cases, 6);
}

TEST(LocalEclipse, TotalityOnTheCentralLineInBavaria)
{
    // Central line of 11 August 1999 at 48 deg 08' 56" N, 12 deg 30' E: maximum 10:39:53 UT,
    // totality 2 min 20 s (from the Besselian elements of J. Meeus, Elements of Solar Eclipses
    // 1951-2200, Delta T = 64 s). Tolerance 20 s for the maximum, 3 s for the duration.
    const LocalEclipse e = solarEclipseAtObserver(newMoonNear(1999, 8, 11), 48 + 8 / 60.0 + 56 / 3600.0, 12.5);
    ASSERT_EQ(e.code, 3);
    for (int k = 0; k < 4; ++k) ASSERT_TRUE(e.hasContact[k]) << "contact " << k + 1;
    EXPECT_NEAR((e.maximum - (JulianDay(1999, 8, 11) + (10 + 39 / 60.0 + 53 / 3600.0) / 24)) * 86400, 0, 20);
    EXPECT_NEAR((e.contact[2] - e.contact[1]) * 86400, 140, 3);
    // the maximum falls in the middle of totality, and the Moon's disc is the larger
    EXPECT_NEAR((e.contact[1] + e.contact[2]) / 2, e.maximum, 2.0 / 86400);
    EXPECT_GT(e.magnitude, 1.0);
    EXPECT_DOUBLE_EQ(e.obscuration, 1.0);
}

TEST(LocalEclipse, LinesOfTheTool)
{
    const double nm = newMoonNear(1999, 8, 11);
    const LocalEclipse oslo = solarEclipseAtObserver(nm, 59.9167, 10.75);
    ASSERT_EQ(oslo.lines.size(), 4u);
    EXPECT_TRUE(std::regex_match(oslo.lines[0], std::regex(R"(Partielle Finsternis mit M=0\.71\d \(65\.\d %\))")))
        << oslo.lines[0];
    EXPECT_TRUE(std::regex_match(oslo.lines[1], std::regex(R"(Maximum um 10:35:\d\d UT)"))) << oslo.lines[1];
    EXPECT_TRUE(std::regex_match(oslo.lines[2], std::regex(R"(1\. Kontakt: 11\.8\.1999 9:24:\d\d UT)")))
        << oslo.lines[2];
    EXPECT_TRUE(std::regex_match(oslo.lines[3], std::regex(R"(4\. Kontakt: 11\.8\.1999 11:47:\d\d UT)")))
        << oslo.lines[3];

    const LocalEclipse munich = solarEclipseAtObserver(nm, 48.14, 11.58);
    ASSERT_EQ(munich.lines.size(), 6u);
    EXPECT_TRUE(std::regex_match(munich.lines[0], std::regex(R"(Totale Finsternis mit M=1\.0\d\d)"))) << munich.lines[0];
    EXPECT_EQ(munich.lines[3].rfind("2. Kontakt: 11.8.1999 10:3", 0), 0u) << munich.lines[3];

    const LocalEclipse sydney = solarEclipseAtObserver(nm, -33.87, 151.21);
    ASSERT_EQ(sydney.lines.size(), 1u);
    EXPECT_EQ(sydney.lines[0], "Am Beobachtungsort nicht zu sehen");
    for (bool c : sydney.hasContact) EXPECT_FALSE(c);
}

TEST(LocalEclipse, AnnularOnTheCentralLine)
{
    // 3 October 2005 was annular: where the axis of the shadow meets the Earth at greatest
    // eclipse, the ring must be seen, with its four contacts in order.
    const Eclipse g = NextEclipse(std::round(lunationIndex(JulianDay(2005, 10, 3))), true);
    ASSERT_EQ(g.kind, EclipseKind::Annular);
    const double jd = jdeToJd(g.jde);
    const CentralPoint p = centralLinePoint(jd);
    ASSERT_TRUE(p.onEarth);
    const LocalEclipse e = solarEclipseAtObserver(jd, p.latitude, p.longitude);
    EXPECT_EQ(e.code, 2);
    EXPECT_EQ(e.lines[0].rfind("Ringfoermige Finsternis mit M=0.9", 0), 0u) << e.lines[0];
    EXPECT_LT(e.magnitude, 1.0);
    EXPECT_NEAR(e.maximum, jd, 2.0 / 1440);
    for (int k = 0; k < 4; ++k) ASSERT_TRUE(e.hasContact[k]) << "contact " << k + 1;
    for (int k = 0; k < 3; ++k) EXPECT_LT(e.contact[k], e.contact[k + 1]);
}

TEST(LocalEclipse, FitsFollowTheSeries)
{
    // The Chebyshev fits over one day must reproduce the series Moon within 10 m and the Sun
    // within 1 km (in Earth radii), and stand for their own span only.
    const double jd = JulianDay(2015, 3, 20.4);
    const EclipseFits fits(jd, 0.5);
    EXPECT_TRUE(fits.covers(jd + 0.49));
    EXPECT_FALSE(fits.covers(jd + 0.51));
    EXPECT_NEAR(fits.toJd(fits.toT(jd)), jd, 1e-8);
    EXPECT_NEAR((fits.toT(jd) * 36525 + 2451545 - jd) * 86400, DeltaT(2015) * 86400, 1e-3);
    double worstMoon = 0, worstSun = 0;
    for (int i = 0; i <= 40; ++i) {
        const double T = fits.ta() + (fits.tb() - fits.ta()) * i / 40;
        double sun[3], moon[3], l, b, r, x, y, z;
        fits.positions(T, sun, moon);
        ASSERT_TRUE(SeriesMoon(T, l, b, r));
        Cart(r, b, l, x, y, z);
        EclEqu(T, x, y, z);
        worstMoon = std::max(worstMoon, std::hypot(moon[0] - x, moon[1] - y, moon[2] - z));
        ASSERT_TRUE(SeriesPlanet("Sonne", T, l, b, r));
        const double rs = std::hypot(sun[0], sun[1], sun[2]) / 23454.77992;
        worstSun = std::max(worstSun, std::fabs(rs - r) * 23454.77992);
    }
    EXPECT_LT(worstMoon, 10.0 / 6378.14) << "largest error of the Moon's fit " << worstMoon * 6378.14 << " km";
    EXPECT_LT(worstSun, 1.0 / 6378.14) << "largest error of the Sun's fit " << worstSun * 6378.14 << " km";
    // fits kept for the date serve further places with the same result as fresh ones
    const double nm = newMoonNear(1999, 8, 11);
    const EclipseFits kept(nm, 0.4);
    const LocalEclipse a = solarEclipseAtObserver(kept, 53.15, 23.15), b = solarEclipseAtObserver(nm, 53.15, 23.15);
    EXPECT_EQ(a.code, b.code);
    EXPECT_NEAR((a.contact[0] - b.contact[0]) * 86400, 0, 1);
    EXPECT_NEAR((a.maximum - b.maximum) * 86400, 0, 1);
    // the penumbral cone opens wider than the umbral one closes, both about 0.0046
    EXPECT_NEAR(fits.tanF1(fits.toT(jd)), 0.00466, 0.0001);
    EXPECT_NEAR(fits.tanF2(fits.toT(jd)), 0.00464, 0.0001);
    EXPECT_GT(fits.tanF1(fits.toT(jd)), fits.tanF2(fits.toT(jd)));
}
