// Observer planets: mean elements, Kepler's equation, geocentric place, magnitude, rise and set.
#include "astronomy/ephemeris.h"

#include <cmath>
#include <map>

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

// a, e0, e1, i0, i1, node0, node1, peri0, peri1, M0, M1 (multiple of 360), M2, size at 1 AU
struct Elem {
    double a, e0, e1, i0, i1, n0, n1, p0, p1, m0, m1, m2, size;
};
const std::map<std::string, Elem>& elementTable()
{
    static const std::map<std::string, Elem> t = {
        {"Erde", {1.000001018, 0.01670862, -4.2037e-05, 0, 0, 0, 0, 102.937348, 1.7195269, 357.5291, 35640, 359.0503, 0}},
        {"Merkur", {0.38709831, 0.205632, 2.0406e-05, 7.004986, 0.0018215, 48.330893, 1.186189, 77.456119, 1.5564775,
                    174.7948, 149400, 72.5157, 6.72}},
        {"Venus", {0.72332982, 0.00677188, -4.7766e-05, 3.394662, 0.0010037, 76.67992, 0.901119, 131.563707, 1.4022188,
                   50.4161, 58320, 197.8108, 16.68}},
        {"Mars", {1.523679342, 0.09340062, 9.0483e-05, 1.849726, -0.000601, 49.558093, 0.7720923, 336.060234, 1.8410331,
                  19.373, 19080, 59.8554, 9.36}},
        {"Jupiter", {5.202603, 0.048495, 0.000163, 1.3033, -0.0055, 100.464, 1.021, 14.3313, 1.6126, 20.0202, 0,
                     3034.69015, 196.88}},
        {"Saturn", {9.55491, 0.055509, -0.000347, 2.4889, -0.0037, 113.666, 0.877, 93.0568, 1.9638, 317.0207, 0,
                    1221.54725, 165.46}},
        {"Uranus", {19.218446, 0.046296, -2.7e-05, 0.7732, 0.0008, 74.006, 0.521, 173.0052, 1.4864, 141.0499, 0,
                    428.37768, 70.04}},
        {"Neptun", {30.110387, 0.008988, 6e-06, 1.77, -0.0093, 131.784, 1.102, 48.1237, 1.4263, 256.225, 0, 218.45704,
                    67}},
        // approximate mean elements of J2000 for the simple routine; 2377 km seen from 1 AU are 3.28"
        {"Pluto", {39.48211675, 0.2488273, 0, 17.14001206, 0, 110.30393684, 0, 224.06891629, 0, 14.86012204, 0,
                   145.20780515, 3.28}},
    };
    return t;
}

struct Helio {
    double l, b, r;
};

Helio helio(const Elem& el, double T)
{
    const double e = el.e0 + el.e1 * T;
    const double incl = el.i0 + el.i1 * T;
    const double node = el.n0 + el.n1 * T;
    const double peri = el.p0 + el.p1 * T;
    double M = el.m0 + el.m1 * T + el.m2 * T;
    M -= 360 * std::trunc(M / 360);
    if (M < 0) M += 360;
    // the simple iteration of the observer planets, in degrees
    const double ed = e / kRad;
    double E = M;
    for (int i = 0; i < 38; ++i) {
        const double En = M + ed * sind(E);
        const double d = std::fabs(En - E);
        E = En;
        if (d < 1e-7) break;
    }
    const double r = el.a * (1 - e * cosd(E));
    const double nu = 2 * std::atan(std::sqrt((1 + e) / (1 - e)) * std::tan(E * kRad / 2)) / kRad;
    const double u = nu + peri - node;
    double l = node + std::atan(cosd(incl) * std::tan(u * kRad)) / kRad;
    if (cosd(u) < 0) l += 180;
    if (l < 0) l += 360;
    const double b = std::asin(sind(u) * sind(incl)) / kRad;
    return {rev(l), b, r};
}

// Periodic correction of the outer planets (longitude in arc minutes, radius in 1e-3 AU) as sine
// and cosine sums of multiples of L = (JD - 2438000.5) pi / 9600. Jupiter's radius sum is the
// program's own; the other sums were fitted by us to the series library (SeriesPlanet) over the
// period of L, JD 2438000.5 to 2457200.5 (1962 to 2015): the fit gives Jupiter's radius sum back
// to about 0.3e-3 AU, which is how the program's fit was made. Outside that span the sums repeat.
struct PertRow {
    signed char mult;  // multiple of L
    double sinC, cosC;
};
struct PertSeries {
    double c0;
    std::vector<PertRow> rows;
};
}  // namespace

void PlanetPerturbation(const std::string& key, double jd, double& dl, double& dr)
{
    dl = 0;
    dr = 0;
    // rows: multiple of L, sine and cosine coefficient
    static const std::map<std::string, PertSeries> longitude = {
        {"Jupiter", {3.8, {{1, 4.1, 1.2}, {2, 1.6, -0.1}, {3, -0.6, 1.1}, {4, 2.2, -1}, {5, -1.3, 3.4}, {6, 0.8, -1},
                           {7, 0.3, -0.2}, {8, 0.5, 0.2}, {9, 0.1, -0.1}, {10, 0.4, -0.1}}}},
        {"Saturn", {-8.5, {{1, -14, -2.8}, {2, 6.1, -1.4}, {3, 0.8, 0}, {4, -0.2, -0.3}, {5, 0.1, -0.6}, {6, -0.2, 0.1},
                           {7, -0.1, 0}, {8, -0.2, -0.1}, {9, -0.1, 0}, {10, -0.1, 0}}}},
        {"Uranus", {-46.5, {{1, 7.1, -3}, {2, 2.5, -0.8}, {3, 1.7, -0.4}, {4, 0.3, 0.1}, {5, 0.8, -0.1}, {6, 0.7, -0.1},
                            {7, 0.6, 0}, {8, 0.5, 0}, {9, 0.5, 0}, {10, 0.4, 0}}}},
        {"Neptun", {32.2, {{1, -2.5, 0}, {2, -0.9, 0}, {3, -0.7, 0}, {4, -1, 0.3}, {5, -0.3, 0}, {6, -0.3, 0},
                           {7, -0.3, 0}, {8, -0.2, 0}, {9, -0.2, 0}, {10, -0.2, 0}}}},
    };
    static const std::map<std::string, PertSeries> radius = {
        {"Jupiter",
         {0.2,
          {{5, 2.6, 1.6}, {4, -1.0, -1.1}, {6, -1.1, -0.4}, {2, -0.3, -0.5}, {3, 0.2, 0.6}, {1, 0, -0.6},
           {7, -0.3, 0.2}, {9, 0, 0.2}, {8, 0.2, 0}}}},
        {"Saturn", {-14.8, {{1, -2.9, 9.1}, {2, -4.2, -15.4}, {3, 3.4, 3}, {4, 0, -0.2}, {5, -0.9, -0.5}, {6, 0.7, 0.3},
                            {7, 0.2, 0.2}, {8, -0.1, 0}, {9, 0.2, 0}, {10, 0.2, 0}}}},
        {"Uranus", {-16.1, {{1, -12.4, -15.6}, {2, -5.3, -0.7}, {3, -2.7, 0.2}, {4, -4.3, -4.6}, {5, -2.1, -0.9},
                            {6, -1.7, -0.5}, {7, -1.5, -0.4}, {8, -1.2, -0.3}, {9, -1.1, -0.2}, {10, -1, -0.1}}}},
        {"Neptun", {-56.1, {{1, -0.6, 0.1}, {2, -0.1, 1.8}, {3, -0.3, 0.2}, {4, -2.6, -3.7}, {5, 0.4, 0.7}, {6, 0.2, 0.3},
                            {7, 0.1, 0.2}, {8, 0.1, 0.1}, {9, 0, 0.2}, {10, 0.1, 0.1}}}},
    };
    const double L = (jd - 2438000.5) * kPi / 9600;
    auto sum = [L](const PertSeries& s) {
        double v = s.c0;
        for (const PertRow& r : s.rows) v += r.sinC * std::sin(r.mult * L) + r.cosC * std::cos(r.mult * L);
        return v;
    };
    auto it = radius.find(key);
    if (it != radius.end()) dr = sum(it->second) / 1000;
    it = longitude.find(key);
    if (it != longitude.end()) dl = sum(it->second) / 60;
}

bool isPlanetKey(const std::string& key) { return elementTable().count(key) > 0; }

const std::vector<std::string>& planetRecordNames()
{
    static const std::vector<std::string> names = {
        "heliozentrische Länge", "Radiusvektor", "Entfernung", "geozentrische Länge", "geozentrische Breite",
        "Rektaszension h", "Rektaszension min", "Deklination Grad", "Deklination min", "Durchmesser",
        "visuelle Helligkeit", "heliozentrische Breite"};
    return names;
}

std::vector<double> planetRecordValues(const PlanetRecord& p)
{
    return {p.helioLongitude, p.radiusVector, p.distance, p.geoLongitude, p.geoLatitude, p.raHours, p.raMinutes,
            p.decDegrees, p.decMinutes, p.diameter, p.magnitude, p.helioLatitude};
}

double PlanetMagnitude(const std::string& key, double r, double delta, double R, double T, double ra, double dec)
{
    const double m0 = 5 * std::log10(r * delta);
    double i = 0;
    const double den = 2 * r * delta;
    if (den != 0) {
        double c = (r * r + delta * delta - R * R) / den;
        c = std::max(-1.0, std::min(1.0, c));
        i = std::fabs(std::acos(c) / kRad);
    }
    if (key == "Merkur") return -0.003 + m0 + 0.01815 * i + 0.0001023 * i * i;
    if (key == "Venus") return -4 + m0 + 0.01322 * i + 4.247e-07 * i * i * i;
    if (key == "Mars") return -1.3 + m0 + 0.01486 * i;
    if (key == "Jupiter") return -8.93 + m0;
    if (key == "Saturn") {
        // the ring plane from its pole, against the planet's direction
        const double node = 40.66 + 4.319 * T, incl = 83.52 + 0.425 * T;
        const double b = -sind(incl) * sind(dec) - cosd(incl) * cosd(dec) * cosd(node - ra);
        return -8.68 + m0 + 0.044 * i - 2.6 * std::fabs(b) + 1.25 * b * b;
    }
    if (key == "Uranus") return -6.85 + m0;
    if (key == "Neptun") return -7.05 + m0;
    return -1 + m0;  // Pluto and the rest: a plain distance law
}

RiseSet PlanetRiseSet(double jd, double ra, double dec, double latitude, double longitude, double zone)
{
    RiseSet rs;
    const double x = std::tan(latitude * kRad) * std::tan(dec * kRad);
    if (std::fabs(x) > 1) {
        const double code = dec * latitude >= 0 ? -1 : -2;
        rs.rise = rs.set = code;
        return rs;
    }
    auto clock = [&](double h) {
        double t = (ra - longitude) / 15 + h;
        t = std::fmod(t, 24.0);
        if (t < 0) t += 24;
        t -= 6.697374558 + (jd - 2451545) * 0.06570982442;
        t = std::fmod(t, 24.0);
        if (t < 0) t += 24;
        t = t / 1.002737909 - 12 + zone;
        t = std::fmod(t, 24.0);
        if (t < 0) t += 24;
        return t;
    };
    // arccos(tan phi tan delta) is 12 h minus the semi-diurnal arc; the 12 h come off in clock()
    const double H = std::acos(x) * 12 / kPi;
    rs.rise = clock(H);
    rs.set = clock(-H);
    return rs;
}

namespace {
PlanetRecord compute(const std::string& keyIn, double jd, bool perturb)
{
    std::string key = isPlanetKey(keyIn) ? keyIn : "Venus";
    const double T = (jd - 2451545) / 36525;
    const auto& table = elementTable();
    Helio p = helio(table.at(key), T);
    Helio earth = helio(table.at("Erde"), T);
    const double prec = (2451545 - jd) * 0.01396 / 365.25;
    p.l = rev(p.l + prec);
    earth.l = rev(earth.l + prec);
    if (perturb && (key == "Jupiter" || key == "Saturn" || key == "Uranus" || key == "Neptun")) {
        double dl, dr;
        PlanetPerturbation(key, jd, dl, dr);
        p.l = rev(p.l + dl);
        p.r += dr;
    }
    PlanetRecord rec;
    rec.helioLongitude = p.l;
    rec.helioLatitude = p.b;
    rec.radiusVector = p.r;
    double x, y, z;
    if (key == "Erde") {
        // the Earth's record holds the Sun seen from the Earth
        x = -earth.r * cosd(earth.l);
        y = -earth.r * sind(earth.l);
        z = 0;
    } else {
        x = p.r * cosd(p.b) * cosd(p.l) - earth.r * cosd(earth.l);
        y = p.r * cosd(p.b) * sind(p.l) - earth.r * sind(earth.l);
        z = p.r * sind(p.b);
    }
    const double delta = std::sqrt(x * x + y * y + z * z);
    rec.distance = delta;
    rec.geoLongitude = rev(std::atan2(y, x) / kRad);
    rec.geoLatitude = std::asin(z / delta) / kRad;
    const double eps = (23.4393 - 0.013 * T) * kRad;
    const double ye = y * std::cos(eps) - z * std::sin(eps);
    const double ze = y * std::sin(eps) + z * std::cos(eps);
    rec.ra = rev(std::atan2(ye, x) / kRad);
    rec.dec = std::asin(ze / delta) / kRad;
    const double raH = rec.ra / 15;
    rec.raHours = std::trunc(raH);
    rec.raMinutes = (raH - rec.raHours) * 60;
    rec.decDegrees = std::trunc(rec.dec);
    rec.decMinutes = (rec.dec - rec.decDegrees) * 60;
    const double size = table.at(key).size;
    rec.diameter = delta > 0 ? size / delta : 0;
    if (key == "Erde") {
        rec.magnitude = 0;
    } else {
        double m = PlanetMagnitude(key, p.r, delta, earth.r, T, rec.ra, rec.dec);
        if (m >= 0) m -= 0.05;
        rec.magnitude = m;
    }
    return rec;
}
}  // namespace

PlanetRecord PlanetPosition(const std::string& key, double jd, double latitude, double longitude, double zone)
{
    (void)latitude;
    (void)longitude;
    (void)zone;
    return compute(key, jd, true);
}

PlanetRecord PlanetSimple(const std::string& key, double jd) { return compute(key, jd, false); }

}  // namespace astro
