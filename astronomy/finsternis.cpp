// A solar eclipse at the observer and the central line: Sun and Moon of the series library fitted
// once as Chebyshev polynomials, the observer placed in the frame of the Moon's shadow, and the
// contacts found by parabolas through three steps of 0.1 h.
#include "astronomy/ephemeris.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace astro {

namespace {
constexpr double kPi = 3.14159265358979324;
constexpr double kRad = kPi / 180;
constexpr double kAuEarthRadii = 23454.77992;   // the Sun's distance scale
constexpr double kSunRadius = 696000.0 / 6378.14;  // Earth radii
constexpr double kMoonRadius = 0.2725076;        // for the penumbra
constexpr double kMoonRadiusUmbra = 0.272281;    // mean radius of the limb valleys, for the umbra
constexpr double kHour = 1.0 / 876600;           // one hour in Julian centuries
constexpr double kStep = 0.1 * kHour;
constexpr double kAxisRatio = 0.99664719;        // polar over equatorial radius
constexpr int kFitDegree = 14;

double dot(const double a[3], const double b[3]) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

// coefficients of the Chebyshev series through the values at the zeros of T_n, for TEval
std::vector<double> chebFit(const std::vector<double>& values)
{
    const int n = static_cast<int>(values.size());
    std::vector<double> c(n, 0.0);
    for (int j = 0; j < n; ++j) {
        double s = 0;
        for (int k = 0; k < n; ++k) s += values[k] * std::cos(kPi * j * (k + 0.5) / n);
        c[j] = 2.0 * s / n;
    }
    c[0] /= 2;  // TEval adds the first coefficient in full
    return c;
}

void sunMoonDirect(double T, double sun[3], double moon[3])
{
    double l, b, r;
    SeriesPlanet("Sonne", T, l, b, r);
    l -= 20.496 / 3600 / r;  // annual aberration: the Sun is seen where it was 8 minutes ago
    Cart(r * kAuEarthRadii, b, l, sun[0], sun[1], sun[2]);
    EclEqu(T, sun[0], sun[1], sun[2]);
    SeriesMoon(T, l, b, r);
    Cart(r, b, l, moon[0], moon[1], moon[2]);
    EclEqu(T, moon[0], moon[1], moon[2]);
}

// Greenwich mean sidereal time in degrees at the universal time jd
double gmstDeg(double jd) { return LMST(jd - 2400000.5, 0.0) * 15; }

std::string clock(double jd)
{
    const double f = jd + 0.5 - std::floor(jd + 0.5);
    const long s = static_cast<long>(f * 86400 + 0.5);  // fractions of seconds rounded
    char b[32];
    std::snprintf(b, sizeof b, "%ld:%02ld:%02ld", s / 3600 % 24, s / 60 % 60, s % 60);
    return b;
}

// Roots of the parabola through y(-1), y(0), y(1) within -1 < x <= 1 (half-open so that a root on
// the border of two steps is counted once), with the sign of the slope there.
struct Crossing {
    double x;
    bool falling;
};
int crossings(double ym, double y0, double yp, Crossing out[2])
{
    const QuadResult q = Quad(ym, y0, yp);
    const double a = 0.5 * (yp + ym) - y0, b = 0.5 * (yp - ym);
    int n = 0;
    auto take = [&](double x) {
        if (x > -1 && x <= 1) out[n++] = {x, 2 * a * x + b < 0};
    };
    if (q.roots >= 1) take(q.root1);
    if (q.roots == 2) take(q.root2);
    return n;
}
}  // namespace

// ---------------------------------------------------------------- fits

EclipseFits::EclipseFits(double jd, double halfSpanDays)
{
    deltaT_ = DeltaT(JulianDayToDate(jd).year);
    ta_ = toT(jd - halfSpanDays);
    tb_ = toT(jd + halfSpanDays);
    const int n = kFitDegree + 1;
    std::vector<double> s[3], m[3], f1, f2;
    for (int k = 0; k < n; ++k) {
        const double u = std::cos(kPi * (k + 0.5) / n);
        const double T = 0.5 * (ta_ + tb_) + 0.5 * (tb_ - ta_) * u;
        double sun[3], moon[3];
        sunMoonDirect(T, sun, moon);
        for (int i = 0; i < 3; ++i) {
            s[i].push_back(sun[i]);
            m[i].push_back(moon[i]);
        }
        const double d = std::sqrt((sun[0] - moon[0]) * (sun[0] - moon[0]) + (sun[1] - moon[1]) * (sun[1] - moon[1]) +
                                   (sun[2] - moon[2]) * (sun[2] - moon[2]));
        const double s1 = (kSunRadius + kMoonRadius) / d, s2 = (kSunRadius - kMoonRadiusUmbra) / d;
        f1.push_back(s1 / std::sqrt(1 - s1 * s1));
        f2.push_back(s2 / std::sqrt(1 - s2 * s2));
    }
    for (int i = 0; i < 3; ++i) {
        sun_[i] = chebFit(s[i]);
        moon_[i] = chebFit(m[i]);
    }
    f1_ = chebFit(f1);
    f2_ = chebFit(f2);
}

bool EclipseFits::covers(double jd) const
{
    const double T = toT(jd);
    return T >= ta_ && T <= tb_;
}

void EclipseFits::positions(double T, double sun[3], double moon[3]) const
{
    for (int i = 0; i < 3; ++i) {
        sun[i] = TEval(sun_[i], ta_, tb_, T);
        moon[i] = TEval(moon_[i], ta_, tb_, T);
    }
}

double EclipseFits::tanF1(double T) const { return TEval(f1_, ta_, tb_, T); }
double EclipseFits::tanF2(double T) const { return TEval(f2_, ta_, tb_, T); }

EclipseFits::Shadow EclipseFits::atObserver(double T, double lat, double lon) const
{
    double sun[3], moon[3];
    positions(T, sun, moon);
    // fundamental plane: e from the Moon to the Sun, i in the equator, j = e x i
    double e[3] = {sun[0] - moon[0], sun[1] - moon[1], sun[2] - moon[2]};
    const double de = std::sqrt(dot(e, e));
    for (double& x : e) x /= de;
    const double h = std::sqrt(e[0] * e[0] + e[1] * e[1]);
    const double ax[3] = {-e[1] / h, e[0] / h, 0};
    const double ay[3] = {e[1] * ax[2] - e[2] * ax[1], e[2] * ax[0] - e[0] * ax[2], e[0] * ax[1] - e[1] * ax[0]};
    // the observer at sea level: geocentric latitude 11.5' (0.1924 deg) sin 2phi below the geographic
    const double theta = (gmstDeg(toJd(T)) + lon) * kRad;
    const double phi = lat * kRad;
    const double phiC = (lat - 0.1924 * std::sin(2 * phi)) * kRad;
    const double rho = 0.99833 + 0.00167 * std::cos(2 * phi);
    const double obs[3] = {rho * std::cos(phiC) * std::cos(theta), rho * std::cos(phiC) * std::sin(theta),
                           rho * std::sin(phiC)};
    const double w[3] = {obs[0] - moon[0], obs[1] - moon[1], obs[2] - moon[2]};
    const double x = dot(w, ax), y = dot(w, ay), z = -dot(w, e);
    Shadow s;
    s.m = std::sqrt(x * x + y * y);
    const double t1 = tanF1(T), t2 = tanF2(T);
    s.penumbra = kMoonRadius * std::sqrt(1 + t1 * t1) + z * t1;
    s.umbra = kMoonRadiusUmbra * std::sqrt(1 + t2 * t2) - z * t2;
    // altitude of the Sun over the horizon of the geographic vertical
    const double up[3] = {std::cos(phi) * std::cos(theta), std::cos(phi) * std::sin(theta), std::sin(phi)};
    double toSun[3] = {sun[0] - obs[0], sun[1] - obs[1], sun[2] - obs[2]};
    const double ds = std::sqrt(dot(toSun, toSun));
    s.sunAltitude = ASN(dot(up, toSun) / ds);
    return s;
}

CentralPoint EclipseFits::centralPoint(double T) const
{
    double sun[3], moon[3];
    positions(T, sun, moon);
    // the flattening is taken into account by stretching the z axis
    const double f = 1 / kAxisRatio;
    sun[2] *= f;
    moon[2] *= f;
    double d[3] = {moon[0] - sun[0], moon[1] - sun[1], moon[2] - sun[2]};
    const double len = std::sqrt(dot(d, d));
    for (double& x : d) x /= len;
    const double b = dot(moon, d);
    const double c = dot(moon, moon) - 1;
    const double disc = b * b - c;
    CentralPoint p;
    if (disc < 0) return p;
    const double t = -b - std::sqrt(disc);
    if (t <= 0) return p;  // the Earth lies behind the Moon as seen from the Sun only at new moon
    double P[3] = {moon[0] + t * d[0], moon[1] + t * d[1], moon[2] + t * d[2]};
    P[2] /= f;
    p.onEarth = true;
    const double geocentric = std::atan2(P[2], std::sqrt(P[0] * P[0] + P[1] * P[1]));
    p.latitude = std::atan(std::tan(geocentric) / (kAxisRatio * kAxisRatio)) / kRad;
    const double lon = std::atan2(P[1], P[0]) / kRad - gmstDeg(toJd(T));
    p.longitude = std::fmod(std::fmod(lon, 360.0) + 540.0, 360.0) - 180.0;
    return p;
}

// ---------------------------------------------------------------- eclipse at the observer

LocalEclipse solarEclipseAtObserver(double jdNewMoon, double lat, double lon)
{
    return solarEclipseAtObserver(EclipseFits(jdNewMoon, 0.375), lat, lon);
}

LocalEclipse solarEclipseAtObserver(const EclipseFits& fits, double lat, double lon)
{
    LocalEclipse e;
    // step over the span in triples t - h, t, t + h; the squared distances are nearly parabolas
    const double h = kStep;
    const double ta = fits.ta(), tb = fits.tb();
    auto g = [&](double T, double r2[3]) {
        const EclipseFits::Shadow s = fits.atObserver(T, lat, lon);
        r2[0] = s.m * s.m - s.penumbra * s.penumbra;
        r2[1] = s.m * s.m - s.umbra * s.umbra;
        r2[2] = s.m * s.m;
    };
    double best = 1e30, bestT = 0;
    double prev[3];
    g(ta, prev);
    for (double T = ta + h; T + h <= tb + 1e-12; T += 2 * h) {
        double mid[3], next[3];
        g(T, mid);
        g(T + h, next);
        Crossing c[2];
        const int n1 = crossings(prev[0], mid[0], next[0], c);
        for (int k = 0; k < n1; ++k) {
            const int slot = c[k].falling ? 0 : 3;
            e.contact[slot] = fits.toJd(T + c[k].x * h);
            e.hasContact[slot] = true;
        }
        const int n2 = crossings(prev[1], mid[1], next[1], c);
        for (int k = 0; k < n2; ++k) {
            const int slot = c[k].falling ? 1 : 2;
            e.contact[slot] = fits.toJd(T + c[k].x * h);
            e.hasContact[slot] = true;
        }
        const QuadResult q = Quad(prev[2], mid[2], next[2]);
        const double a = 0.5 * (next[2] + prev[2]) - mid[2];
        if (a > 0 && q.xe > -1 && q.xe <= 1 && q.ye < best) {
            best = q.ye;
            bestT = T + q.xe * h;
        }
        std::copy(next, next + 3, prev);
    }
    // an eclipse seen from the observer has its first contact before its last
    if (e.hasContact[0] && e.hasContact[3] && e.contact[3] < e.contact[0]) e.hasContact[0] = e.hasContact[3] = false;
    if (e.hasContact[1] && e.hasContact[2] && e.contact[2] < e.contact[1]) e.hasContact[1] = e.hasContact[2] = false;

    const EclipseFits::Shadow s = best < 1e30 ? fits.atObserver(bestT, lat, lon) : EclipseFits::Shadow{};
    bool visible = best < 1e30 && s.m < s.penumbra;
    if (visible) {
        // the Sun must stand above the horizon at some time between the first and the last contact
        const double from = e.hasContact[0] ? fits.toT(e.contact[0]) : ta;
        const double to = e.hasContact[3] ? fits.toT(e.contact[3]) : tb;
        bool up = false;
        for (double T = from; T <= to && !up; T += h) up = fits.atObserver(T, lat, lon).sunAltitude > -0.8333;
        visible = up || fits.atObserver(to, lat, lon).sunAltitude > -0.8333;
    }
    if (!visible) {
        e = LocalEclipse{};
        e.lines.push_back("Am Beobachtungsort nicht zu sehen");
        return e;
    }
    e.maximum = fits.toJd(bestT);
    // the discs in the units of the shadow: the Sun's radius (L1 - L2) / 2, the Moon's (L1 + L2) / 2
    const double R = (s.penumbra - s.umbra) / 2, r = (s.penumbra + s.umbra) / 2, d = std::max(s.m, 1e-12);
    e.magnitude = (s.penumbra - s.m) / (s.penumbra - s.umbra);
    if (d <= std::fabs(R - r)) {
        e.obscuration = r >= R ? 1.0 : (r * r) / (R * R);
    } else {
        const double a1 = std::acos(std::clamp((d * d + R * R - r * r) / (2 * d * R), -1.0, 1.0));
        const double a2 = std::acos(std::clamp((d * d + r * r - R * R) / (2 * d * r), -1.0, 1.0));
        const double lens = R * R * (a1 - std::sin(2 * a1) / 2) + r * r * (a2 - std::sin(2 * a2) / 2);
        e.obscuration = lens / (kPi * R * R);
    }
    if (s.m < std::fabs(s.umbra)) e.code = s.umbra > 0 ? 3 : 2;
    else e.code = 1;
    char buf[96];
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
        // the date of the rounded time, so that 23:59:59.7 becomes 0:00:00 of the next day
        const double rounded = std::floor(e.contact[k] * 86400 + 0.5) / 86400;
        const CivilDate c = JulianDayToDate(rounded);
        e.lines.push_back(std::to_string(k + 1) + ". Kontakt: " + std::to_string(static_cast<int>(c.day)) + "." +
                          std::to_string(c.month) + "." + std::to_string(c.year) + " " + clock(e.contact[k]) + " UT");
    }
    return e;
}

// ---------------------------------------------------------------- central line

CentralPoint centralLinePoint(double jd)
{
    const EclipseFits fits(jd, 0.05);
    return fits.centralPoint(fits.toT(jd));
}

std::vector<std::string> centralLine(double jdNewMoon, double minutes)
{
    std::vector<std::string> out;
    const EclipseFits fits(jdNewMoon, 0.3);
    const double step = minutes / 1440;
    const double t0 = std::round((jdNewMoon - 0.25) / step) * step;
    for (double t = t0; t <= jdNewMoon + 0.25; t += step) {
        const CentralPoint p = fits.centralPoint(fits.toT(t));
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
