// Almanac group: VSOP87 Sun, ELP Moon, nutation, phases, perigee and apogee, eclipses.
#include "astronomy/ephemeris.h"
#include "astronomy/tables.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace astro {

namespace {
constexpr double kPi = 3.14159265358979324;
constexpr double kRad = kPi / 180;
double sind(double x) { return std::sin(x * kRad); }
double cosd(double x) { return std::cos(x * kRad); }
double rev(double x)
{
    x = std::fmod(x, 360.0);
    return x < 0 ? x + 360 : x;
}

void toEquatorial(double lon, double lat, double eps, double& ra, double& dec)
{
    ra = rev(std::atan2(sind(lon) * cosd(eps) - std::tan(lat * kRad) * sind(eps), cosd(lon)) / kRad);
    dec = std::asin(sind(lat) * cosd(eps) + cosd(lat) * sind(eps) * sind(lon)) / kRad;
}
}  // namespace

// ---------------------------------------------------------------- Sun

void VsopEarth(double jde, double& L, double& B, double& R)
{
    const double tau = (jde - 2451545.0) / 365250.0;
    double sums[3][6] = {};
    for (std::size_t i = 0; i < tables::vsopEarthCount; ++i) {
        const auto& r = tables::vsopEarth[i];
        const int var = r.series[0] == 'L' ? 0 : r.series[0] == 'B' ? 1 : 2;
        const int power = r.series[1] - '0';
        sums[var][power] += r.a * std::cos(r.b + r.c * tau);
    }
    double out[3];
    for (int v = 0; v < 3; ++v) {
        double s = 0;
        for (int p = 5; p >= 0; --p) s = s * tau + sums[v][p];
        out[v] = s * 1e-8;
    }
    L = out[0];
    B = out[1];
    R = out[2];
}

SunRecord SunPosition(double jde)
{
    const double T = (jde - 2451545.0) / 36525.0;
    double L, B, R;
    VsopEarth(jde, L, B, R);
    double lon = rev(L / kRad + 180);
    double lat = -B / kRad;
    // reduction of the dynamical frame to FK5
    const double l1 = lon - 1.397 * T - 0.00031 * T * T;
    lon += -0.09033 / 3600;
    lat += 0.03916 / 3600 * (cosd(l1) - sind(l1));
    lon -= 0.005691611111111111 / R;  // aberration
    SunRecord s;
    s.longitude = rev(lon);
    s.latitude = lat;
    s.radius = R;
    const Nutation n = NutationAlmanac(jde);
    s.apparentLongitude = rev(lon + n.dpsi);
    toEquatorial(s.apparentLongitude, lat, n.eps, s.ra, s.dec);
    return s;
}

// ---------------------------------------------------------------- Moon

namespace {
struct MoonArgs {
    double lp, d, m, mp, f, a1, a2, a3, e;
};
MoonArgs moonArgs(double T)
{
    const double T2 = T * T, T3 = T2 * T, T4 = T3 * T;
    MoonArgs a;
    a.lp = rev(218.3164591 + 481267.88134236 * T - 0.0013268 * T2 + T3 / 538841 - T4 / 65194000);
    a.d = rev(297.8502042 + 445267.1115168 * T - 0.00163 * T2 + T3 / 545868 - T4 / 113065000);
    a.m = rev(357.5291092 + 35999.0502909 * T - 0.0001536 * T2 + T3 / 24490000);
    a.mp = rev(134.9634114 + 477198.8676313 * T + 0.008997 * T2 + T3 / 69699 - T4 / 14712000);
    a.f = rev(93.2720993 + 483202.0175273 * T - 0.0034029 * T2 - T3 / 3526000 + T4 / 863310000);
    a.a1 = rev(119.75 + 131.849 * T);
    a.a2 = rev(53.09 + 479264.29 * T);
    a.a3 = rev(313.45 + 481266.484 * T);
    a.e = 1 - 0.002516 * T - 7.4e-6 * T2;
    return a;
}
}  // namespace

MoonRecord MoonPosition(double jde)
{
    const double T = (jde - 2451545.0) / 36525.0;
    const MoonArgs a = moonArgs(T);
    double sl = 0, sr = 0, sb = 0;
    for (std::size_t i = 0; i < tables::moonTermCount; ++i) {
        const auto& r = tables::moonTerms[i];
        const double arg = r.d * a.d + r.m * a.m + r.mp * a.mp + r.f * a.f;
        double fac = 1;
        if (std::abs(r.m) == 1) fac = a.e;
        else if (std::abs(r.m) == 2) fac = a.e * a.e;
        if (r.table == 'A') {
            sl += fac * r.sine * sind(arg);
            sr += fac * r.cosine * cosd(arg);
        } else {
            sb += fac * r.sine * sind(arg);
        }
    }
    sl += 3958 * sind(a.a1) + 1962 * sind(a.lp - a.f) + 318 * sind(a.a2);
    sb += -2235 * sind(a.lp) + 382 * sind(a.a3) + 175 * sind(a.a1 - a.f) + 175 * sind(a.a1 + a.f) +
          127 * sind(a.lp - a.mp) - 115 * sind(a.lp + a.mp);
    MoonRecord m;
    m.longitude = rev(a.lp + sl / 1e6);
    m.latitude = sb / 1e6;
    m.distance = 385000.56 + sr / 1000;
    const Nutation n = NutationAlmanac(jde);
    m.apparentLongitude = rev(m.longitude + n.dpsi);
    toEquatorial(m.apparentLongitude, m.latitude, n.eps, m.ra, m.dec);
    m.parallax = std::asin(6378.14 / m.distance) / kRad;
    return m;
}

MoonShort MoonPositionShort(double jde)
{
    const double T = (jde - 2451545.0) / 36525.0;
    const MoonArgs a = moonArgs(T);
    // the leading terms of the long series, enough for a picture of the phase
    const double lon = a.lp + 6.288774 * sind(a.mp) + 1.274027 * sind(2 * a.d - a.mp) + 0.658314 * sind(2 * a.d) +
                       0.213618 * sind(2 * a.mp) - 0.185116 * a.e * sind(a.m) - 0.114332 * sind(2 * a.f);
    const double lat = 5.128122 * sind(a.f) + 0.280602 * sind(a.mp + a.f) + 0.277693 * sind(a.mp - a.f) +
                       0.173237 * sind(2 * a.d - a.f);
    MoonShort s;
    toEquatorial(rev(lon), lat, ObliquityLib(T), s.ra, s.dec);
    s.phaseAngle = rev(180 - a.d - 6.289 * sind(a.mp) + 2.1 * sind(a.m) - 1.274 * sind(2 * a.d - a.mp) -
                       0.658 * sind(2 * a.d) - 0.214 * sind(2 * a.mp) - 0.11 * sind(a.d));
    s.illuminated = (1 + cosd(s.phaseAngle)) / 2;
    return s;
}

// ---------------------------------------------------------------- nutation and sidereal time

Nutation NutationAlmanac(double jde)
{
    const double T = (jde - 2451545.0) / 36525.0;
    const double T2 = T * T, T3 = T2 * T;
    const double d = rev(297.85036 + 445267.111480 * T - 0.0019142 * T2 + T3 / 189474);
    const double m = rev(357.52772 + 35999.050340 * T - 0.0001603 * T2 - T3 / 300000);
    const double mp = rev(134.96298 + 477198.867398 * T + 0.0086972 * T2 + T3 / 56250);
    const double f = rev(93.27191 + 483202.017538 * T - 0.0036825 * T2 + T3 / 327270);
    const double om = rev(125.04452 - 1934.136261 * T + 0.0020708 * T2 + T3 / 450000);
    double dpsi = 0, deps = 0;
    for (std::size_t i = 0; i < tables::nutationTermCount; ++i) {
        const auto& r = tables::nutationTerms[i];
        const double arg = r.d * d + r.m * m + r.mp * mp + r.f * f + r.om * om;
        dpsi += (r.a + 0.1 * r.b * T) * sind(arg);
        deps += (r.c + 0.1 * r.dd * T) * cosd(arg);
    }
    Nutation n;
    n.dpsi = dpsi * 1e-4 / 3600;
    n.deps = deps * 1e-4 / 3600;
    n.eps0 = (84381.448 - 46.8150 * T - 0.00059 * T2 + 0.001813 * T3) / 3600;
    n.eps = n.eps0 + n.deps;
    return n;
}

Nutation NutationShort(double jde)
{
    const double T = (jde - 2451545.0) / 36525.0;
    const double om = 125.04452 - 1934.136261 * T;
    const double l = 280.4665 + 36000.7698 * T, lp = 218.3165 + 481267.8813 * T;
    Nutation n;
    n.dpsi = (-17.2 * sind(om) - 1.32 * sind(2 * l) - 0.23 * sind(2 * lp) + 0.21 * sind(2 * om)) / 3600;
    n.deps = (9.2 * cosd(om) + 0.57 * cosd(2 * l) + 0.1 * cosd(2 * lp) - 0.09 * cosd(2 * om)) / 3600;
    n.eps0 = (84381.448 - 46.8150 * T) / 3600;
    n.eps = n.eps0 + n.deps;
    return n;
}

double ApparentSiderealTime(double jd)
{
    const double T = (jd - 2451545.0) / 36525.0;
    const Nutation n = NutationAlmanac(jd);
    const double th = 280.46061837 + 360.98564736629 * (jd - 2451545.0) + T * T * (0.000387933 - T / 38710000);
    return rev(th + n.dpsi * cosd(n.eps));
}

// ---------------------------------------------------------------- phases

double lunationIndex(double jd) { return (jd - 2451550.09765) / 29.530588853; }

double MoonPhaseTime(double k, int kind)
{
    k = std::floor(k) + 0.25 * kind;
    const double T = k / 1236.85, T2 = T * T, T3 = T2 * T, T4 = T3 * T;
    double jde = 2451550.09765 + 29.530588853 * k + 0.0001337 * T2 - 1.5e-7 * T3 + 7.3e-10 * T4;
    const double E = 1 - 0.002516 * T - 7.4e-6 * T2;
    const double M = rev(2.5534 + 29.10535669 * k - 2.18e-5 * T2 - 1.1e-7 * T3);
    const double Mp = rev(201.5643 + 385.81693528 * k + 0.1017438 * T2 + 1.239e-5 * T3 - 5.8e-8 * T4);
    const double F = rev(160.7108 + 390.67050274 * k - 0.0016341 * T2 - 2.27e-6 * T3 + 1.1e-8 * T4);
    const double Om = rev(124.7746 - 1.5637558 * k + 0.0020691 * T2 + 2.15e-6 * T3);
    // periodic and planetary terms of Meeus, Astronomical Algorithms, chapter 49
    double c = 0;
    if (kind == 0 || kind == 2) {
        const bool nm = kind == 0;
        c = (nm ? -0.40720 : -0.40614) * sind(Mp) + (nm ? 0.17241 : 0.17302) * E * sind(M) +
            (nm ? 0.01608 : 0.01614) * sind(2 * Mp) + (nm ? 0.01039 : 0.01043) * sind(2 * F) +
            (nm ? 0.00739 : 0.00734) * E * sind(Mp - M) - (nm ? 0.00514 : 0.00515) * E * sind(Mp + M) +
            (nm ? 0.00208 : 0.00209) * E * E * sind(2 * M) - 0.00111 * sind(Mp - 2 * F) -
            0.00057 * sind(Mp + 2 * F) + 0.00056 * E * sind(2 * Mp + M) - 0.00042 * sind(3 * Mp) +
            0.00042 * E * sind(M + 2 * F) + 0.00038 * E * sind(M - 2 * F) - 0.00024 * E * sind(2 * Mp - M) -
            0.00017 * sind(Om) - 0.00007 * sind(Mp + 2 * M) + 0.00004 * sind(2 * Mp - 2 * F) +
            0.00004 * sind(3 * M) + 0.00003 * sind(Mp + M - 2 * F) + 0.00003 * sind(2 * Mp + 2 * F) -
            0.00003 * sind(Mp + M + 2 * F) + 0.00003 * sind(Mp - M + 2 * F) - 0.00002 * sind(Mp - M - 2 * F) -
            0.00002 * sind(3 * Mp + M) + 0.00002 * sind(4 * Mp);
    } else {
        c = -0.62801 * sind(Mp) + 0.17172 * E * sind(M) - 0.01183 * E * sind(Mp + M) + 0.00862 * sind(2 * Mp) +
            0.00804 * sind(2 * F) + 0.00454 * E * sind(Mp - M) + 0.00204 * E * E * sind(2 * M) -
            0.00180 * sind(Mp - 2 * F) - 0.00070 * sind(Mp + 2 * F) - 0.00040 * sind(3 * Mp) -
            0.00034 * E * sind(2 * Mp - M) + 0.00032 * E * sind(M + 2 * F) + 0.00032 * E * sind(M - 2 * F) -
            0.00028 * E * E * sind(Mp + 2 * M) + 0.00027 * E * sind(2 * Mp + M) - 0.00017 * sind(Om) -
            0.00005 * sind(Mp - M - 2 * F) + 0.00004 * sind(2 * Mp + 2 * F) - 0.00004 * sind(Mp + M + 2 * F) +
            0.00004 * sind(Mp - 2 * M) + 0.00003 * sind(Mp + M - 2 * F) + 0.00003 * sind(3 * M) +
            0.00002 * sind(2 * Mp - 2 * F) + 0.00002 * sind(Mp - M + 2 * F) - 0.00002 * sind(3 * Mp + M);
        const double W = 0.00306 - 0.00038 * E * cosd(M) + 0.00026 * cosd(Mp) - 0.00002 * cosd(Mp - M) +
                         0.00002 * cosd(Mp + M) + 0.00002 * cosd(2 * F);
        c += kind == 1 ? W : -W;
    }
    // planetary arguments
    static const double pa[14][3] = {
        {299.77, 0.107408, 0.000325}, {251.88, 0.016321, 0.000165}, {251.83, 26.651886, 0.000164},
        {349.42, 36.412478, 0.000126}, {84.66, 18.206239, 0.000110}, {141.74, 53.303771, 0.000062},
        {207.14, 2.453732, 0.000060}, {154.84, 7.306860, 0.000056}, {34.52, 27.261239, 0.000047},
        {207.19, 0.121824, 0.000042}, {291.34, 1.844379, 0.000040}, {161.72, 24.198154, 0.000037},
        {239.56, 25.513099, 0.000035}, {331.55, 3.592518, 0.000023}};
    double add = 0;
    for (int i = 0; i < 14; ++i) {
        double arg = pa[i][0] + pa[i][1] * k;
        if (i == 0) arg -= 0.009173 * T2;
        add += pa[i][2] * sind(arg);
    }
    return jde + c + add;
}

const char* phaseName(int kind)
{
    static const char* names[] = {"Neumond", "erstes Viertel", "Vollmond", "letztes Viertel"};
    return names[kind & 3];
}

double jdeToJd(double jde)
{
    const CivilDate d = JulianDayToDate(jde);
    return jde - DeltaT(d.year);
}

std::vector<PhaseEvent> moonPhasesOfYear(int year)
{
    std::vector<PhaseEvent> out;
    const double j0 = JulianDay(year, 1, 1), j1 = JulianDay(year + 1, 1, 1);
    const double k0 = std::floor(lunationIndex(j0)) - 1;
    for (double k = k0; k < k0 + 16; k += 1) {
        for (int kind = 0; kind < 4; ++kind) {
            const double jde = MoonPhaseTime(k, kind);
            const double jd = jdeToJd(jde);
            if (jd >= j0 && jd < j1) out.push_back({kind, jde});
        }
    }
    std::sort(out.begin(), out.end(), [](const PhaseEvent& a, const PhaseEvent& b) { return a.jde < b.jde; });
    return out;
}

// ---------------------------------------------------------------- perigee and apogee

double PerigeeApogeeTime(double k, bool isApogee)
{
    k = std::floor(k) + (isApogee ? 0.5 : 0.0);
    const double T = k / 1325.55, T2 = T * T, T3 = T2 * T, T4 = T3 * T;
    const double jde = 2451534.6698 + 27.55454988 * k + T2 * (-0.0006886 + T * (-1.098e-6 + 5.2e-9 * T));
    const double D = rev(171.9179 + 335.9106046 * k - 0.010025 * T2 - 1.156e-5 * T3 + 5.5e-8 * T4);
    const double M = rev(347.3477 + 27.1577721 * k - 0.0008323 * T2 - 1e-6 * T3);
    const double F = rev(316.6109 + 364.5287911 * k - 0.0125131 * T2 - 1.48e-5 * T3);
    // rows of Meeus, Astronomical Algorithms, Table 50.A (the first 30 for perigee, 16 for apogee):
    // multiples of D, M, F; coefficient in days and its T part
    struct Row {
        signed char d, m, f;
        double c, ct;
    };
    static const Row perigee[] = {
        {2, 0, 0, -1.6769, 0},   {4, 0, 0, 0.4589, 0},    {6, 0, 0, -0.1856, 0},   {8, 0, 0, 0.0883, 0},
        {2, -1, 0, -0.0773, 0.00019}, {0, 1, 0, 0.0502, -0.00013}, {10, 0, 0, -0.0460, 0},
        {4, -1, 0, 0.0422, -0.00011}, {6, -1, 0, -0.0256, 0}, {12, 0, 0, 0.0253, 0}, {1, 0, 0, 0.0237, 0},
        {8, -1, 0, 0.0162, 0},   {14, 0, 0, -0.0145, 0},  {0, 0, 2, 0.0129, 0},    {3, 0, 0, -0.0112, 0},
        {10, -1, 0, -0.0104, 0}, {16, 0, 0, 0.0086, 0},   {12, -1, 0, 0.0069, 0},  {5, 0, 0, 0.0066, 0},
        {2, 0, 2, -0.0053, 0},   {18, 0, 0, -0.0052, 0},  {14, -1, 0, -0.0046, 0}, {7, 0, 0, -0.0041, 0},
        {2, 1, 0, 0.0040, 0},    {20, 0, 0, 0.0032, 0},   {1, 1, 0, -0.0032, 0},   {16, -1, 0, 0.0031, 0},
        {4, 1, 0, -0.0029, 0},   {9, 0, 0, 0.0027, 0},    {4, 0, 2, 0.0027, 0}};
    static const Row apogee[] = {
        {2, 0, 0, 0.4392, 0},    {4, 0, 0, 0.0684, 0},    {0, 1, 0, 0.0456, -0.00011}, {2, -1, 0, 0.0426, -0.00011},
        {0, 0, 2, 0.0212, 0},    {1, 0, 0, -0.0189, 0},   {6, 0, 0, 0.0144, 0},    {4, -1, 0, 0.0113, 0},
        {2, 0, 2, 0.0047, 0},    {1, 1, 0, 0.0036, 0},    {8, 0, 0, 0.0035, 0},    {6, -1, 0, 0.0034, 0},
        {2, 0, -2, -0.0034, 0},  {2, -2, 0, 0.0022, 0},   {3, 0, 0, -0.0017, 0},   {4, 0, 2, 0.0013, 0}};
    double c = 0;
    const Row* rows = isApogee ? apogee : perigee;
    const std::size_t n = isApogee ? std::size(apogee) : std::size(perigee);
    for (std::size_t i = 0; i < n; ++i)
        c += (rows[i].c + rows[i].ct * T) * sind(rows[i].d * D + rows[i].m * M + rows[i].f * F);
    return jde + c;
}

// ---------------------------------------------------------------- eclipses

const char* eclipseText(EclipseKind k)
{
    switch (k) {
    case EclipseKind::Total: return "total";
    case EclipseKind::Annular: return "ringförmig";
    case EclipseKind::Hybrid: return "total-ringförmig";
    case EclipseKind::NonCentral: return "nicht zentral";
    case EclipseKind::Partial: return "partiell";
    case EclipseKind::Penumbral: return "Halbschatten";
    default: return "";
    }
}

// Meeus, Astronomical Algorithms, chapter 54
Eclipse NextEclipse(double k, bool solar)
{
    k = solar ? std::ceil(k - 1e-9) : std::ceil(k - 0.5 - 1e-9) + 0.5;
    for (int guard = 0; guard < 1000; ++guard, k += 1) {
        const double T = k / 1236.85, T2 = T * T, T3 = T2 * T, T4 = T3 * T;
        const double F = rev(160.7108 + 390.67050274 * k - 0.0016341 * T2 - 2.27e-6 * T3 + 1.1e-8 * T4);
        if (std::fabs(sind(F)) > 0.36) continue;
        double jde = 2451550.09765 + 29.530588853 * k + 0.0001337 * T2 - 1.5e-7 * T3 + 7.3e-10 * T4;
        const double M = rev(2.5534 + 29.10535669 * k - 2.18e-5 * T2 - 1.1e-7 * T3);
        const double Mp = rev(201.5643 + 385.81693528 * k + 0.1017438 * T2 + 1.239e-5 * T3 - 5.8e-8 * T4);
        const double Om = rev(124.7746 - 1.5637558 * k + 0.0020691 * T2 + 2.15e-6 * T3);
        const double E = 1 - 0.002516 * T - 7.4e-6 * T2;
        const double F1 = F - 0.02665 * sind(Om);
        const double A1 = 299.77 + 0.107408 * k - 0.009173 * T2;
        jde += (solar ? -0.4075 : -0.4065) * sind(Mp) + (solar ? 0.1721 : 0.1727) * E * sind(M) +
               0.0161 * sind(2 * Mp) - 0.0097 * sind(2 * F1) + 0.0073 * E * sind(Mp - M) -
               0.0050 * E * sind(Mp + M) - 0.0023 * sind(Mp - 2 * F1) + 0.0021 * E * sind(2 * M) +
               0.0012 * sind(Mp + 2 * F1) + 0.0006 * E * sind(2 * Mp + M) - 0.0004 * sind(3 * Mp) -
               0.0003 * E * sind(M + 2 * F1) + 0.0003 * sind(A1) - 0.0002 * E * sind(M - 2 * F1) -
               0.0002 * E * sind(2 * Mp - M) - 0.0002 * sind(Om);
        const double P = 0.2070 * E * sind(M) + 0.0024 * E * sind(2 * M) - 0.0392 * sind(Mp) + 0.0116 * sind(2 * Mp) -
                         0.0073 * E * sind(Mp + M) + 0.0067 * E * sind(Mp - M) + 0.0118 * sind(2 * F1);
        const double Q = 5.2207 - 0.0048 * E * cosd(M) + 0.0020 * E * cosd(2 * M) - 0.3299 * cosd(Mp) -
                         0.0060 * E * cosd(Mp + M) + 0.0041 * E * cosd(Mp - M);
        const double W = std::fabs(cosd(F1));
        const double gamma = (P * cosd(F1) + Q * sind(F1)) * (1 - 0.0048 * W);
        const double u = 0.0059 + 0.0046 * E * cosd(M) - 0.0182 * cosd(Mp) + 0.0004 * cosd(2 * Mp) -
                         0.0005 * cosd(M + Mp);
        const double g = std::fabs(gamma);
        Eclipse ec;
        ec.solar = solar;
        ec.jde = jde;
        ec.gamma = gamma;
        ec.u = u;
        ec.k = k;
        ec.descendingNode = gamma < 0;
        if (solar) {
            if (g > 1.5433 + u) continue;
            if (g <= 0.9972) {
                if (u < 0) ec.kind = EclipseKind::Total;
                else if (u > 0.0047) ec.kind = EclipseKind::Annular;
                else ec.kind = u < 0.00464 * std::sqrt(1 - gamma * gamma) ? EclipseKind::Hybrid : EclipseKind::Annular;
                ec.magnitude = 1;
            } else if (g <= 0.9972 + std::fabs(u)) {
                ec.kind = EclipseKind::NonCentral;
                ec.magnitude = 1;
            } else {
                ec.kind = EclipseKind::Partial;
                ec.magnitude = (1.5433 + u - g) / (0.5461 + 2 * u);
            }
        } else {
            const double umbral = (1.0128 - u - g) / 0.5450;
            const double penumbral = (1.5573 + u - g) / 0.5450;
            if (penumbral <= 0) continue;
            // total when the umbral magnitude reaches 1, i.e. 0.4678 - u - |gamma| >= 0
            if (umbral >= 1) ec.kind = EclipseKind::Total;
            else if (umbral > 0) ec.kind = EclipseKind::Partial;
            else ec.kind = EclipseKind::Penumbral;
            ec.magnitude = umbral > 0 ? umbral : penumbral;
        }
        return ec;
    }
    return {};
}

std::vector<Eclipse> eclipsesOfYear(int year)
{
    std::vector<Eclipse> out;
    const double j0 = JulianDay(year, 1, 1), j1 = JulianDay(year + 1, 1, 1);
    for (bool solar : {true, false}) {
        double k = std::floor(lunationIndex(j0)) - 1;
        for (;;) {
            const Eclipse e = NextEclipse(k, solar);
            const double jd = jdeToJd(e.jde);
            if (jd >= j1) break;
            if (jd >= j0) out.push_back(e);
            k = e.k + 1;
        }
    }
    std::sort(out.begin(), out.end(), [](const Eclipse& a, const Eclipse& b) { return a.jde < b.jde; });
    return out;
}

MoonAge moonAge(double jd)
{
    double k = std::floor(lunationIndex(jd)) + 1;
    double nm = jdeToJd(MoonPhaseTime(k, 0));
    while (nm > jd) {
        k -= 1;
        nm = jdeToJd(MoonPhaseTime(k, 0));
    }
    MoonAge a;
    a.age = jd - nm;
    a.nextKind = -1;
    for (double kk = k; a.nextKind < 0; kk += 1)
        for (int kind = 0; kind < 4; ++kind) {
            const double t = jdeToJd(MoonPhaseTime(kk, kind));
            if (t > jd) {
                a.nextKind = kind;
                a.nextJde = MoonPhaseTime(kk, kind);
                break;
            }
        }
    a.illuminated = MoonPositionShort(jd).illuminated;
    return a;
}

std::string dateTimeText(double jd, double zone)
{
    // round to the minute first so that 59.9 minutes never shows as 60
    const double j = std::floor((jd + zone / 24.0 + 0.5) * 1440.0 + 0.5) / 1440.0 - 0.5;
    const CivilDate d = JulianDayToDate(j);
    const int day = static_cast<int>(std::floor(d.day));
    const int minutes = static_cast<int>(std::lround((d.day - day) * 1440.0));
    char buf[64];
    std::snprintf(buf, sizeof buf, "%02d.%02d.%d %02d:%02d", day, d.month, d.year, minutes / 60, minutes % 60);
    return buf;
}

}  // namespace astro
