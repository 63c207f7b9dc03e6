// A solar eclipse at the observer: topocentric Sun and Moon, contacts where the discs touch.
#include "astronomy/ephemeris.h"

#include <cmath>
#include <cstdio>

namespace astro {

namespace {
constexpr double kRad = 3.14159265358979324 / 180;

struct Discs {
    double sep;     // degrees between the centres
    double rSun;    // semidiameters, degrees
    double rMoon;
    double sunAlt;  // altitude of the Sun, degrees
};

Discs discs(double jd, double lat, double lon)
{
    const double jde = jd + DeltaT(JulianDayToDate(jd).year);
    const SunRecord s = SunPosition(jde);
    const MoonRecord m = MoonPosition(jde);
    const double theta = (ApparentSiderealTime(jd) + lon) * kRad;  // local sidereal time
    const double phi = lat * kRad;
    // geocentric latitude and radius of the observer at sea level (Meeus ch. 11)
    const double uu = std::atan(0.99664719 * std::tan(phi));
    const double rs = 0.99664719 * std::sin(uu), rc = std::cos(uu);
    auto topo = [&](double ra, double dec, double sinPi, double& raT, double& decT) {
        const double H = theta - ra * kRad, d = dec * kRad;
        const double da = std::atan2(-rc * sinPi * std::sin(H), std::cos(d) - rc * sinPi * std::cos(H));
        raT = ra * kRad + da;
        decT = std::atan2((std::sin(d) - rs * sinPi) * std::cos(da), std::cos(d) - rc * sinPi * std::cos(H));
    };
    double sa, sd, ma, md;
    topo(s.ra, s.dec, std::sin(8.794 / 3600 * kRad) / s.radius, sa, sd);
    const double moonSinPi = 6378.14 / m.distance;
    topo(m.ra, m.dec, moonSinPi, ma, md);
    const double c = std::sin(sd) * std::sin(md) + std::cos(sd) * std::cos(md) * std::cos(sa - ma);
    Discs r;
    r.sep = std::acos(std::max(-1.0, std::min(1.0, c))) / kRad;
    r.rSun = 959.63 / 3600 / s.radius;
    // topocentric distance of the Moon from the apparent enlargement
    const double topoDist = m.distance * (1 - rc * moonSinPi * std::cos(theta - m.ra * kRad));
    r.rMoon = 358473400.0 / topoDist / 3600;
    const double H = theta - sa;
    r.sunAlt = std::asin(std::sin(phi) * std::sin(sd) + std::cos(phi) * std::cos(sd) * std::cos(H)) / kRad;
    return r;
}

double refine(double a, double b, double lat, double lon, bool inner)
{
    auto f = [&](double t) {
        const Discs d = discs(t, lat, lon);
        return inner ? d.sep - std::fabs(d.rMoon - d.rSun) : d.sep - (d.rMoon + d.rSun);
    };
    double fa = f(a);
    for (int i = 0; i < 40; ++i) {
        const double m = (a + b) / 2, fm = f(m);
        if ((fm < 0) == (fa < 0)) {
            a = m;
            fa = fm;
        } else {
            b = m;
        }
    }
    return (a + b) / 2;
}

std::string clock(double jd)
{
    const double f = jd + 0.5 - std::floor(jd + 0.5);
    const long s = static_cast<long>(f * 86400 + 0.5);  // fractions of seconds rounded
    char b[32];
    std::snprintf(b, sizeof b, "%ld:%02ld:%02ld", s / 3600 % 24, s / 60 % 60, s % 60);
    return b;
}
}  // namespace

LocalEclipse solarEclipseAtObserver(double jdNewMoon, double lat, double lon)
{
    LocalEclipse e;
    const double step = 1.0 / 1440, span = 0.25;
    double best = 1e9, bestT = jdNewMoon;
    double prevOuter = 0, prevInner = 0;
    int nOuter = 0, nInner = 0;
    for (double t = jdNewMoon - span; t <= jdNewMoon + span; t += step) {
        const Discs d = discs(t, lat, lon);
        const double outer = d.sep - (d.rMoon + d.rSun), inner = d.sep - std::fabs(d.rMoon - d.rSun);
        if (d.sep < best) {
            best = d.sep;
            bestT = t;
        }
        if (t > jdNewMoon - span) {
            if ((outer < 0) != (prevOuter < 0) && nOuter < 2) {
                const int k = nOuter++ == 0 ? 0 : 3;
                e.contact[k] = refine(t - step, t, lat, lon, false);
                e.hasContact[k] = true;
            }
            if ((inner < 0) != (prevInner < 0) && nInner < 2) {
                const int k = nInner++ == 0 ? 1 : 2;
                e.contact[k] = refine(t - step, t, lat, lon, true);
                e.hasContact[k] = true;
            }
        }
        prevOuter = outer;
        prevInner = inner;
    }
    // golden-section search for the least separation around the best minute
    double a = bestT - step, b = bestT + step;
    for (int i = 0; i < 40; ++i) {
        const double m1 = b - 0.618033988749895 * (b - a), m2 = a + 0.618033988749895 * (b - a);
        if (discs(m1, lat, lon).sep < discs(m2, lat, lon).sep) b = m2;
        else a = m1;
    }
    e.maximum = (a + b) / 2;
    const Discs d = discs(e.maximum, lat, lon);
    const double overlap = d.rSun + d.rMoon - d.sep;
    if (overlap <= 0 || d.sunAlt < -0.8333) {
        e.code = 0;
        e.lines.push_back("Am Beobachtungsort nicht zu sehen");
        return e;
    }
    e.magnitude = overlap / (2 * d.rSun);
    // covered part of the Sun's disc from the lens of two circles
    const double R = d.rSun, r = d.rMoon, s = std::max(d.sep, 1e-12);
    if (s <= std::fabs(R - r)) {
        e.obscuration = r >= R ? 1.0 : (r * r) / (R * R);
    } else {
        const double a1 = std::acos((s * s + R * R - r * r) / (2 * s * R));
        const double a2 = std::acos((s * s + r * r - R * R) / (2 * s * r));
        const double lens = R * R * (a1 - std::sin(2 * a1) / 2) + r * r * (a2 - std::sin(2 * a2) / 2);
        e.obscuration = lens / (3.14159265358979324 * R * R);
    }
    char buf[96];
    if (d.sep <= std::fabs(r - R)) {
        e.code = r >= R ? 3 : 2;
    } else {
        e.code = 1;
    }
    if (e.code == 3) {
        std::snprintf(buf, sizeof buf, "Totale Finsternis mit M=%.3f", e.magnitude);
    } else {
        std::snprintf(buf, sizeof buf, "%s Finsternis mit M=%.3f (%.1f %%)", e.code == 1 ? "Partielle" : "Ringfoermige",
                      e.magnitude, e.obscuration * 100);
    }
    e.lines.push_back(buf);
    e.lines.push_back("Maximum um " + clock(e.maximum) + " UT");
    for (int k = 0; k < 4; ++k) {
        if (!e.hasContact[k]) continue;
        const CivilDate c = JulianDayToDate(e.contact[k]);
        e.lines.push_back(std::to_string(k + 1) + ". Kontakt: " + std::to_string(static_cast<int>(c.day)) + "." +
                          std::to_string(c.month) + "." + std::to_string(c.year) + " " + clock(e.contact[k]) + " UT");
    }
    return e;
}

}  // namespace astro

namespace astro {

CentralPoint centralLinePoint(double jd)
{
    const double jde = jd + DeltaT(JulianDayToDate(jd).year);
    const SunRecord s = SunPosition(jde);
    const MoonRecord m = MoonPosition(jde);
    // geocentric equatorial vectors in Earth radii
    const double au = 149597870.7 / 6378.14;
    auto vec = [](double ra, double dec, double r, double v[3]) {
        v[0] = r * std::cos(dec * kRad) * std::cos(ra * kRad);
        v[1] = r * std::cos(dec * kRad) * std::sin(ra * kRad);
        v[2] = r * std::sin(dec * kRad);
    };
    double S[3], M[3];
    vec(s.ra, s.dec, s.radius * au, S);
    vec(m.ra, m.dec, m.distance / 6378.14, M);
    // the flattening is taken into account by stretching the z axis
    const double f = 1 / 0.99664719;
    S[2] *= f;
    M[2] *= f;
    double d[3] = {M[0] - S[0], M[1] - S[1], M[2] - S[2]};
    const double len = std::sqrt(d[0] * d[0] + d[1] * d[1] + d[2] * d[2]);
    for (double& x : d) x /= len;
    const double b = M[0] * d[0] + M[1] * d[1] + M[2] * d[2];
    const double c = M[0] * M[0] + M[1] * M[1] + M[2] * M[2] - 1;
    const double disc = b * b - c;
    CentralPoint p;
    if (disc < 0) return p;
    const double t = -b - std::sqrt(disc);
    if (t <= 0) return p;  // the Earth lies behind the Moon as seen from the Sun only at new moon
    double P[3] = {M[0] + t * d[0], M[1] + t * d[1], M[2] + t * d[2]};
    P[2] /= f;
    p.onEarth = true;
    const double geocentric = std::atan2(P[2], std::sqrt(P[0] * P[0] + P[1] * P[1]));
    p.latitude = std::atan(std::tan(geocentric) / (0.99664719 * 0.99664719)) / kRad;
    double lon = std::atan2(P[1], P[0]) / kRad - ApparentSiderealTime(jd);
    lon = std::fmod(lon + 540.0, 360.0) - 180.0;
    p.longitude = lon;
    return p;
}

std::vector<std::string> centralLine(double jdNewMoon, double minutes)
{
    std::vector<std::string> out;
    const double step = minutes / 1440;
    const double t0 = std::round((jdNewMoon - 0.25) / step) * step;
    for (double t = t0; t <= jdNewMoon + 0.25; t += step) {
        const CentralPoint p = centralLinePoint(t);
        if (!p.onEarth) continue;
        const double f = t + 0.5 - std::floor(t + 0.5);
        const int mm = static_cast<int>(std::lround(f * 1440)) % 1440;
        char buf[80];
        std::snprintf(buf, sizeof buf, "%02d:%02d UT\t%.2f°\t%.2f°", mm / 60, mm % 60, p.latitude, p.longitude);
        out.push_back(buf);
    }
    return out;
}

}  // namespace astro
