// The Moon of the series library against Meeus' worked example and against the almanac Moon.
#include "astronomy/ephemeris.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace astro;

TEST(SeriesMoon, MeeusExample47a)
{
    // Meeus, Astronomical Algorithms, example 47.a: 1992 April 12, 0h TD, geometric mean equinox
    // of date: lambda = 133.162655, beta = -3.229126, distance 368409.7 km. The truncated series
    // of Meeus and of the library differ by a few arc seconds and some 15 km here: tolerance 4",
    // 2" and 20 km.
    double l, b, r;
    ASSERT_TRUE(SeriesMoon((2448724.5 - 2451545) / 36525, l, b, r));
    EXPECT_NEAR(l, 133.162655, 4.0 / 3600);
    EXPECT_NEAR(b, -3.229126, 2.0 / 3600);
    EXPECT_NEAR(r * kEarthRadiusKm, 368409.7, 20);
    EXPECT_NEAR(r, 368409.7 / 6378.14, 20 / 6378.14);
}

TEST(SeriesMoon, AgreesWithTheAlmanacMoonFrom1900To2100)
{
    // Every 3.77 days from 1900 to 2100 against MoonPosition (the 60-row tables of Meeus,
    // themselves good to about 10" and 4"; the library's series to a few arc seconds): largest
    // difference 18" in longitude, 7" in latitude, 25 km in distance, and the rms below 3.5" in
    // longitude and 2" in latitude (measured: 15", 6.1", 23 km, 2.7" and 1.1").
    double maxL = 0, maxB = 0, maxR = 0, sumL2 = 0, sumB2 = 0;
    int n = 0;
    for (double jd = 2415020.5; jd < 2488070.5; jd += 3.77, ++n) {
        double l, b, r;
        ASSERT_TRUE(SeriesMoon((jd - 2451545) / 36525, l, b, r));
        const MoonRecord m = MoonPosition(jd);
        const double dl = std::remainder(l - m.longitude, 360.0) * 3600;
        maxL = std::max(maxL, std::fabs(dl));
        maxB = std::max(maxB, std::fabs(b - m.latitude) * 3600);
        sumB2 += (b - m.latitude) * (b - m.latitude) * 3600 * 3600;
        maxR = std::max(maxR, std::fabs(r * kEarthRadiusKm - m.distance));
        sumL2 += dl * dl;
    }
    EXPECT_LT(maxL, 18.0) << "largest longitude difference " << maxL << "\"";
    EXPECT_LT(maxB, 7.0) << "largest latitude difference " << maxB << "\"";
    EXPECT_LT(maxR, 25.0) << "largest distance difference " << maxR << " km";
    EXPECT_LT(std::sqrt(sumL2 / n), 3.5) << "rms longitude difference " << std::sqrt(sumL2 / n) << "\"";
    EXPECT_LT(std::sqrt(sumB2 / n), 2.0) << "rms latitude difference " << std::sqrt(sumB2 / n) << "\"";
}

TEST(SeriesMoon, RangesAndBadInput)
{
    // longitude within 0..360, latitude within the inclination (5.3 deg), distance between
    // perigee and apogee (356000..407000 km), over two saros cycles
    for (double T = -0.5; T < -0.5 + 36.0 / 36525 * 365.25; T += 1.3 / 36525) {
        double l, b, r;
        ASSERT_TRUE(SeriesMoon(T, l, b, r));
        ASSERT_GE(l, 0.0);
        ASSERT_LT(l, 360.0);
        ASSERT_LT(std::fabs(b), 5.35);
        ASSERT_GT(r * kEarthRadiusKm, 356000);
        ASSERT_LT(r * kEarthRadiusKm, 407000);
    }
    double l = 1, b = 2, r = 3;
    EXPECT_FALSE(SeriesMoon(NAN, l, b, r));
    EXPECT_FALSE(SeriesMoon(INFINITY, l, b, r));
}
