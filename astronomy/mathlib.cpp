// Coordinates, precession, nutation and Kepler orbits of the series library.
#include "astronomy/ephemeris.h"

#include <cmath>

namespace astro {

namespace {
constexpr double kPi = 3.14159265358979324;
constexpr double kRad = kPi / 180;
constexpr double kArc = 206264.8062;
double frac(double x) { return x - std::floor(x); }
}  // namespace

double ASN(double x)
{
    if (std::fabs(x) >= 1.0) return 90.0 * x;  // the domain edge gives the pole, as the routine always did
    if (std::fabs(x) < 1e-7) return x / kRad;
    return std::asin(x) / kRad;
}

double ACS(double x)
{
    if (std::fabs(x) >= 1.0) return 90.0 * (1.0 - x);
    if (std::fabs(x) < 1e-7) return 90.0 - x / kRad;
    return std::acos(x) / kRad;
}

double ATN2(double y, double x)
{
    if (x == 0 && y == 0) return 0;
    return std::atan2(y, x) / kRad;
}

void Cart(double r, double theta, double phi, double& x, double& y, double& z)
{
    const double rc = r * std::cos(theta * kRad);
    x = rc * std::cos(phi * kRad);
    y = rc * std::sin(phi * kRad);
    z = r * std::sin(theta * kRad);
}

void Polar(double x, double y, double z, double& r, double& theta, double& phi)
{
    const double rho2 = x * x + y * y;
    r = std::sqrt(rho2 + z * z);
    phi = ATN2(y, x);
    if (phi < 0) phi += 360;
    const double rho = std::sqrt(rho2);
    theta = ATN2(z, rho);
}

double DDD(int d, int m, double s)
{
    const double sign = (d < 0 || m < 0 || s < 0) ? -1.0 : 1.0;
    return sign * (std::abs(d) + std::abs(m) / 60.0 + std::fabs(s) / 3600.0);
}

void DMS(double dd, int& d, int& m, double& s)
{
    const double a = std::fabs(dd);
    d = static_cast<int>(a);
    const double x = (a - d) * 60;
    m = static_cast<int>(x);
    s = (x - m) * 60;
    // the sign sits on the first part that is not zero
    if (dd < 0) {
        if (d != 0) d = -d;
        else if (m != 0) m = -m;
        else s = -s;
    }
}

QuadResult Quad(double yMinus, double y0, double yPlus)
{
    QuadResult q;
    const double a = 0.5 * (yPlus + yMinus) - y0;
    const double b = 0.5 * (yPlus - yMinus);
    const double c = y0;
    if (a == 0) {
        q.xe = 0;
        q.ye = c;
        if (b != 0) {
            const double r = -c / b;
            if (std::fabs(r) <= 1) {
                q.root1 = r;
                q.roots = 1;
            }
        }
        return q;
    }
    q.xe = -b / (2 * a);
    q.ye = (a * q.xe + b) * q.xe + c;
    const double dis = b * b - 4 * a * c;
    if (dis >= 0) {
        const double dx = 0.5 * std::sqrt(dis) / std::fabs(a);
        q.root1 = q.xe - dx;
        q.root2 = q.xe + dx;
        if (std::fabs(q.root1) <= 1) ++q.roots;
        if (std::fabs(q.root2) <= 1) ++q.roots;
        if (q.root1 < -1) q.root1 = q.root2;
    }
    return q;
}

double TEval(const std::vector<double>& f, double ta, double tb, double t)
{
    if (f.empty()) return 0;
    const double u = (2 * t - ta - tb) / (tb - ta);
    double b1 = 0, b2 = 0;
    for (int i = static_cast<int>(f.size()) - 1; i >= 1; --i) {
        const double b0 = f[i] + 2 * u * b1 - b2;
        b2 = b1;
        b1 = b0;
    }
    return f[0] + u * b1 - b2;
}

double ObliquityLib(double T) { return 23.43929111 - (46.815 + (0.00059 - 0.001813 * T) * T) * T / 3600; }

void EclEqu(double T, double& x, double& y, double& z)
{
    const double eps = ObliquityLib(T) * kRad;
    const double c = std::cos(eps), s = std::sin(eps);
    const double v = c * y - s * z;
    z = s * y + c * z;
    y = v;
}

void EquEcl(double T, double& x, double& y, double& z)
{
    const double eps = ObliquityLib(T) * kRad;
    const double c = std::cos(eps), s = std::sin(eps);
    const double v = c * y + s * z;
    z = -s * y + c * z;
    y = v;
}

void PMatEcl(double T1, double T2, Mat3 a)
{
    const double dt = T2 - T1;
    const double ppi = 174.876383889 * kRad +
                       (((3289.4789 + 0.60622 * T1) * T1) + ((-869.8089 - 0.50491 * T1) + 0.03536 * dt) * dt) /
                           kArc;
    const double pi = ((47.0029 - (0.06603 - 0.000598 * T1) * T1) + ((-0.03302 + 0.000598 * T1) + 0.000060 * dt) * dt) *
                      dt / kArc;
    const double pa =
        ((5029.0966 + (2.22226 - 0.000042 * T1) * T1) + ((1.11113 - 0.000042 * T1) - 0.000006 * dt) * dt) * dt / kArc;
    const double c1 = std::cos(ppi + pa), c2 = std::cos(pi), c3 = std::cos(ppi);
    const double s1 = std::sin(ppi + pa), s2 = std::sin(pi), s3 = std::sin(ppi);
    a[0][0] = c1 * c3 + s1 * c2 * s3;
    a[0][1] = c1 * s3 - s1 * c2 * c3;
    a[0][2] = -s1 * s2;
    a[1][0] = s1 * c3 - c1 * c2 * s3;
    a[1][1] = s1 * s3 + c1 * c2 * c3;
    a[1][2] = c1 * s2;
    a[2][0] = s2 * s3;
    a[2][1] = -s2 * c3;
    a[2][2] = c2;
}

void PMatEqu(double T1, double T2, Mat3 a)
{
    const double dt = T2 - T1;
    const double zeta =
        ((2306.2181 + (1.39656 - 0.000139 * T1) * T1) + ((0.30188 - 0.000344 * T1) + 0.017998 * dt) * dt) * dt / kArc;
    const double z = zeta + ((0.79280 + 0.000411 * T1) + 0.000205 * dt) * dt * dt / kArc;
    const double theta =
        ((2004.3109 - (0.85330 + 0.000217 * T1) * T1) - ((0.42665 + 0.000217 * T1) + 0.041833 * dt) * dt) * dt / kArc;
    const double c1 = std::cos(z), c2 = std::cos(theta), c3 = std::cos(zeta);
    const double s1 = std::sin(z), s2 = std::sin(theta), s3 = std::sin(zeta);
    a[0][0] = -s1 * s3 + c1 * c2 * c3;
    a[0][1] = -s1 * c3 - c1 * c2 * s3;
    a[0][2] = -c1 * s2;
    a[1][0] = c1 * s3 + s1 * c2 * c3;
    a[1][1] = c1 * c3 - s1 * c2 * s3;
    a[1][2] = -s1 * s2;
    a[2][0] = s2 * c3;
    a[2][1] = -s2 * s3;
    a[2][2] = c2;
}

void PrecArt(const Mat3 a, double& x, double& y, double& z)
{
    const double u = a[0][0] * x + a[0][1] * y + a[0][2] * z;
    const double v = a[1][0] * x + a[1][1] * y + a[1][2] * z;
    const double w = a[2][0] * x + a[2][1] * y + a[2][2] * z;
    x = u;
    y = v;
    z = w;
}

void NutEqu(double T, double& x, double& y, double& z)
{
    const double p2 = 2 * kPi;
    const double ls = p2 * frac(0.993133 + 99.997306 * T);
    const double d = p2 * frac(0.827362 + 1236.853087 * T);
    const double f = p2 * frac(0.259089 + 1342.227826 * T);
    const double n = p2 * frac(0.347346 - 5.372447 * T);
    const double eps = 0.4090928 - 2.2696e-4 * T;
    const double dpsi = (-17.200 * std::sin(n) - 1.319 * std::sin(2 * (f - d + n)) - 0.227 * std::sin(2 * (f + n)) +
                         0.206 * std::sin(2 * n) + 0.143 * std::sin(ls)) /
                        kArc;
    const double deps = (+9.203 * std::cos(n) + 0.574 * std::cos(2 * (f - d + n)) + 0.098 * std::cos(2 * (f + n)) -
                         0.090 * std::cos(2 * n)) /
                        kArc;
    const double c = dpsi * std::cos(eps), s = dpsi * std::sin(eps);
    const double dx = -(c * y + s * z), dy = c * x - deps * z, dz = s * x + deps * y;
    x += dx;
    y += dy;
    z += dz;
}

void GaussVec(double node, double incl, double perihelionArg, Mat3 pqr)
{
    const double c1 = std::cos(perihelionArg * kRad), c2 = std::cos(incl * kRad), c3 = std::cos(node * kRad);
    const double s1 = std::sin(perihelionArg * kRad), s2 = std::sin(incl * kRad), s3 = std::sin(node * kRad);
    pqr[0][0] = c1 * c3 - s1 * c2 * s3;
    pqr[0][1] = -s1 * c3 - c1 * c2 * s3;
    pqr[0][2] = s2 * s3;
    pqr[1][0] = c1 * s3 + s1 * c2 * c3;
    pqr[1][1] = -s1 * s3 + c1 * c2 * c3;
    pqr[1][2] = -s2 * c3;
    pqr[2][0] = s1 * s2;
    pqr[2][1] = c1 * s2;
    pqr[2][2] = c2;
}

double EccAnom(double man, double ecc)
{
    const double pi2 = 6.283185308;
    double m = pi2 * frac(man / 360.0);
    double e = ecc < 0.8 ? m : kPi;
    for (int i = 0; i < 15; ++i) {
        const double f = e - ecc * std::sin(e) - m;
        e -= f / (1.0 - ecc * std::cos(e));
        if (std::fabs(f) < 1e-11) break;
    }
    return e;
}

void Ellip(double man, double a, double ecc, double& x, double& y, double& vx, double& vy)
{
    const double k = 0.01720209895 / std::sqrt(a);
    const double e = EccAnom(man, ecc);
    const double c = std::cos(e), s = std::sin(e);
    const double fac = std::sqrt((1 - ecc) * (1 + ecc));
    const double rho = 1 - ecc * c;
    x = a * (c - ecc);
    y = a * fac * s;
    vx = -k * s / rho;
    vy = k * fac * c / rho;
}

namespace {

double dot(const double a[3], const double b[3]) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
double norm(const double a[3]) { return std::sqrt(dot(a, a)); }
void cross(const double a[3], const double b[3], double c[3])
{
    c[0] = a[1] * b[2] - a[2] * b[1];
    c[1] = a[2] * b[0] - a[0] * b[2];
    c[2] = a[0] * b[1] - a[1] * b[0];
}

// Series of the sector-triangle ratio, with the closed form for larger w.
double sectorW(double w)
{
    const double eps = 1e-10;
    if (std::fabs(w) < 0.1) {
        double a = 4.0 / 3.0, s = a;
        for (int n = 1; std::fabs(a) >= eps && n < 200; ++n) {
            a *= w * (n + 2.0) / (n + 1.5);
            s += a;
        }
        return s;
    }
    if (w > 0) {
        const double g = 2 * std::asin(std::sqrt(w));
        return (2 * g - std::sin(2 * g)) / std::pow(std::sin(g), 3);
    }
    const double g = 2 * std::log(std::sqrt(-w) + std::sqrt(1 - w));
    return (std::sinh(2 * g) - 2 * g) / std::pow(std::sinh(g), 3);
}

}  // namespace

double FindEta(const double ra[3], const double rb[3], double tau)
{
    const double sa = norm(ra), sb = norm(rb);
    const double kappa = std::sqrt(2 * (sa * sb + dot(ra, rb)));
    const double m = tau * tau / std::pow(kappa, 3);
    const double l = (sa + sb) / (2 * kappa) - 0.5;
    const double etaMin = std::sqrt(m / (l + 1));
    auto F = [&](double eta) {
        const double w = m / (eta * eta) - l;
        return 1 - eta + (m / (eta * eta)) * sectorW(w);
    };
    double eta2 = (12.0 + 10.0 * std::sqrt(1.0 + (44.0 / 9.0) * m / (l + 5.0 / 6.0))) / 22.0;
    double eta1 = eta2 + 0.1;
    double f1 = F(eta1), f2 = F(eta2);
    for (int i = 0; i < 30 && std::fabs(f2 - f1) > 1e-15; ++i) {
        double d = -f2 * (eta2 - eta1) / (f2 - f1);
        eta1 = eta2;
        f1 = f2;
        while (eta2 + d <= etaMin) d *= 0.5;
        eta2 += d;
        f2 = F(eta2);
        if (std::fabs(d) < 1e-12) break;
    }
    return eta2;
}

namespace {
constexpr double kGauss = 0.01720209895;

void finishElements(Elements& el, double p, double ecosnu, double esinnu, double u, double t)
{
    el.ecc = std::sqrt(ecosnu * ecosnu + esinnu * esinnu);
    const double nu = std::atan2(esinnu, ecosnu);
    el.q = p / (1 + el.ecc);
    el.a = el.q / (1 - el.ecc);
    double w = u / kRad - nu / kRad;
    w = std::fmod(w, 360.0);
    if (w < 0) w += 360;
    el.perihelionArg = w;
    const double e = std::atan2(std::sqrt((1 - el.ecc) * (1 + el.ecc)) * std::sin(nu), std::cos(nu) + el.ecc);
    double mAnom = e - el.ecc * std::sin(e);
    const double n = kGauss / std::pow(el.a, 1.5);
    el.tPeri = t - mAnom / n;
    mAnom /= kRad;
    if (mAnom < 0) mAnom += 360;
    el.meanAnomaly = mAnom;
}
}  // namespace

Elements ElementFromVectors(double t, const double r[3], const double v[3])
{
    Elements el;
    double h[3];
    cross(r, v, h);
    const double hh = norm(h);
    el.node = ATN2(h[0], -h[1]);
    if (el.node < 0) el.node += 360;
    el.incl = ATN2(std::sqrt(h[0] * h[0] + h[1] * h[1]), h[2]);
    const double u = std::atan2(r[2] * hh, -r[0] * h[1] + r[1] * h[0]);
    const double rr = norm(r);
    const double p = hh * hh / (kGauss * kGauss);
    const double ecosnu = p / rr - 1;
    const double esinnu = std::sqrt(p) / kGauss * dot(r, v) / rr;
    finishElements(el, p, ecosnu, esinnu, u, t);
    return el;
}

Elements ElementFromTwoPositions(double ta, const double ra[3], double tb, const double rb[3])
{
    Elements el;
    const double tau = kGauss * (tb - ta);
    const double sa = norm(ra), sb = norm(rb);
    double ea[3] = {ra[0] / sa, ra[1] / sa, ra[2] / sa};
    const double fac = dot(rb, ea);
    double r0[3] = {rb[0] - fac * ea[0], rb[1] - fac * ea[1], rb[2] - fac * ea[2]};
    const double s0 = norm(r0);
    double e0[3] = {r0[0] / s0, r0[1] / s0, r0[2] / s0};
    double w[3];
    cross(ea, e0, w);
    el.node = ATN2(w[0], -w[1]);
    if (el.node < 0) el.node += 360;
    el.incl = ATN2(std::sqrt(w[0] * w[0] + w[1] * w[1]), w[2]);
    const double u = std::atan2(ea[2], -ea[0] * w[1] + ea[1] * w[0]);
    const double eta = FindEta(ra, rb, tau);
    const double p = std::pow(sa * s0 * eta / tau, 2);
    const double cosdnu = fac / sb, sindnu = s0 / sb;
    const double ecosnu = p / sa - 1;
    const double esinnu = (ecosnu * cosdnu - (p / sb - 1)) / sindnu;
    finishElements(el, p, ecosnu, esinnu, u, ta);
    return el;
}

}  // namespace astro
