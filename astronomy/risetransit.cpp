// Rise, transit and set with interpolated positions, and Jupiter's central meridians.
#include "astronomy/ephemeris.h"

#include <cmath>

namespace astro {

namespace {
constexpr double kRad = 3.14159265358979324 / 180;
double frac01(double m)
{
    m -= std::floor(m);
    return m;
}
double to180(double h)
{
    h = std::fmod(h + 180.0, 360.0);
    if (h < 0) h += 360;
    return h - 180;
}
// Interpolation of three tabular values for the interval factor n (-1..1)
double interp(const double y[3], double n)
{
    double y1 = y[0], y2 = y[1], y3 = y[2];
    const double a = y2 - y1, b = y3 - y2, c = b - a;
    return y2 + n / 2 * (a + b + n * c);
}
}  // namespace

double horizonAltitude(Horizon h, double moonParallax, double custom)
{
    switch (h) {
    case Horizon::Planet: return -0.5666666666666667;
    case Horizon::Sun: return -0.8333333333333334;
    case Horizon::Moon: return 0.7275 * moonParallax - 0.5666666666666667;
    case Horizon::Civil: return -6;
    case Horizon::Nautical: return -12;
    case Horizon::Astronomical: return -18;
    case Horizon::Custom: return custom;
    }
    return 0;
}

RiseTransitSet riseTransitSet(double theta0, const double raIn[3], const double dec[3], double latitude,
                              double longitude, double h0, double deltaT)
{
    RiseTransitSet r;
    const double L = -longitude;  // the almanac counts longitudes westward
    // right ascensions made continuous across 360
    double ra[3] = {raIn[0], raIn[1], raIn[2]};
    for (int i = 1; i < 3; ++i)
        while (ra[i] - ra[i - 1] < -180) ra[i] += 360;
    const double phi = latitude * kRad;
    const double cosH0 = (std::sin(h0 * kRad) - std::sin(phi) * std::sin(dec[1] * kRad)) /
                         (std::cos(phi) * std::cos(dec[1] * kRad));
    double m[3];
    m[0] = frac01((ra[1] + L - theta0) / 360);
    if (cosH0 < -1 || cosH0 > 1) {
        r.code = cosH0 < -1 ? -1 : -2;
        m[1] = m[2] = m[0];
    } else {
        const double H0 = std::acos(cosH0) / kRad;
        m[1] = frac01(m[0] - H0 / 360);
        m[2] = frac01(m[0] + H0 / 360);
    }
    for (int iter = 0; iter < 3; ++iter)
        for (int k = 0; k < 3; ++k) {
            if (k > 0 && r.code != 0) continue;
            const double th = theta0 + 360.985647 * m[k];
            const double n = m[k] + deltaT / 86400;
            const double a = interp(ra, n), d = interp(dec, n);
            const double H = to180(th - L - a);
            if (k == 0) {
                m[k] -= H / 360;
            } else {
                const double h = std::asin(std::sin(phi) * std::sin(d * kRad) +
                                           std::cos(phi) * std::cos(d * kRad) * std::cos(H * kRad)) /
                                 kRad;
                m[k] += (h - h0) / (360 * std::cos(d * kRad) * std::cos(phi) * std::sin(H * kRad));
            }
        }
    r.transit = m[0];
    r.rise = r.code == 0 ? m[1] : r.code;
    r.set = r.code == 0 ? m[2] : r.code;
    return r;
}

void JupiterCentralMeridian(double jd, double& omega1, double& omega2)
{
    const double d = jd - 2451545;
    auto sind = [](double x) { return std::sin(x * kRad); };
    auto cosd = [](double x) { return std::cos(x * kRad); };
    const double V = 172.74 + 0.00111588 * d;
    const double M = 357.529 + 0.9856003 * d;
    const double N = 20.02 + 0.0830853 * d + 0.329 * sind(V);
    const double J = 66.115 + 0.9025179 * d - 0.329 * sind(V);
    const double A = 1.915 * sind(M) + 0.02 * sind(2 * M);
    const double B = 5.555 * sind(N) + 0.168 * sind(2 * N);
    const double K = J + A - B;
    const double R = 1.00014 - 0.01671 * cosd(M) - 0.00014 * cosd(2 * M);
    const double r = 5.20872 - 0.25208 * cosd(N) - 0.00611 * cosd(2 * N);
    const double delta = std::sqrt(r * r + R * R - 2 * r * R * cosd(K));
    const double psi = std::asin(R / delta * sind(K)) / kRad;
    auto rev = [](double x) {
        x = std::fmod(x, 360.0);
        return x < 0 ? x + 360 : x;
    };
    omega1 = rev(210.98 + 877.8169088 * (d - delta / 173) + psi - B);
    omega2 = rev(187.23 + 870.1869088 * (d - delta / 173) + psi - B);
}

}  // namespace astro
