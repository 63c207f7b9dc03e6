// The adapter of the term engines to special functions and number text (see term_support.h).
#include "kernel/term_support.h"

#include <charconv>
#include <cmath>

namespace quorix::termsupport {

namespace {
constexpr double kPi = 3.14159265358979323846;
constexpr double kClamp = 10000000000.0;
}  // namespace

double lnGamma(double x, bool& failed)
{
    failed = false;
    const double base = x + 4.5;
    if (!(base > 0 && base <= 25) || (x <= 0 && x == std::trunc(x))) {
        failed = true;
        return 0;
    }
    return std::lgamma(x);
}

double digamma(double x, bool& failed)
{
    failed = false;
    if (!std::isfinite(x)) {
        failed = true;
        return 0;
    }
    if (x <= 0 && std::fabs(x - std::nearbyint(x)) < 0.00001) {
        failed = true;
        return 0;
    }
    double shift = 0;
    if (x < 0) {  // reflection: psi(1-x) - pi / tan(pi x)
        const double r = digamma(1 - x, failed);
        return r - kPi / std::tan(kPi * x);
    }
    if (x < 0.00001) {
        failed = true;
        return 0;
    }
    while (x < 10) {
        shift -= 1 / x;
        x += 1;
    }
    const double f = 1 / (x * x);
    const double series =
        f * (1.0 / 12 - f * (1.0 / 120 - f * (1.0 / 252 - f * (1.0 / 240 - f * (1.0 / 132)))));
    return shift + std::log(x) - 0.5 / x - series;
}

double besselJ0(double x, bool& failed)
{
    failed = !std::isfinite(x);
    return failed ? 0 : std::cyl_bessel_j(0.0, std::fabs(x));
}

double besselJ1(double x, bool& failed)
{
    failed = !std::isfinite(x);
    if (failed)
        return 0;
    const double v = std::cyl_bessel_j(1.0, std::fabs(x));
    return x < 0 ? -v : v;
}

// The amplitude by the arithmetic-geometric mean (descending Landen): at most 13 levels, and
// the precision is that of the stop at |a-b| <= 0.0003 a.
void jacobiSnCnDn(double u, double emc, double& sn, double& cn, double& dn)
{
    if (!std::isfinite(u) || !std::isfinite(emc)) {
        sn = cn = dn = 0;
        return;
    }
    if (emc == 0) {
        cn = dn = 1 / std::cosh(u);
        sn = std::tanh(u);
        return;
    }
    if (emc < 0) {  // parameter above 1: the reciprocal-parameter transform
        const double m = 1 - emc;
        const double s = std::sqrt(m);
        double sn1, cn1, dn1;
        jacobiSnCnDn(u * s, 1 - 1 / m, sn1, cn1, dn1);
        sn = sn1 / s;
        cn = dn1;
        dn = cn1;
        return;
    }
    double a[14], c[14];
    a[0] = 1;
    double b = std::sqrt(emc);
    c[0] = 0;
    int n = 0;
    while (n < 13 && std::fabs(a[n] - b) > 0.0003 * a[n]) {
        const double an = (a[n] + b) / 2;
        c[n + 1] = (a[n] - b) / 2;
        b = std::sqrt(a[n] * b);
        a[n + 1] = an;
        ++n;
    }
    double phi = std::ldexp(a[n] * u, n);
    double phiNext = phi;
    for (int k = n; k >= 1; --k) {
        phiNext = phi;
        phi = (phi + std::asin(c[k] / a[k] * std::sin(phi))) / 2;
    }
    sn = std::sin(phi);
    cn = std::cos(phi);
    dn = n >= 1 ? cn / std::cos(phiNext - phi) : 1;
}

void airy(double x, double& ai, double& bi)
{
    if (x > 25.77) {
        ai = 0;
        bi = kClamp;
        return;
    }
    if (!std::isfinite(x)) {
        ai = bi = 0;
        return;
    }
    constexpr double nu = 1.0 / 3;
    if (x == 0) {
        ai = 0.355028053887817239;
        bi = 0.614926627446000736;
        return;
    }
    const double z = std::fabs(x);
    const double zeta = 2.0 / 3 * z * std::sqrt(z);
    if (x > 0) {
        const double k = std::cyl_bessel_k(nu, zeta);
        const double i = std::cyl_bessel_i(nu, zeta);
        const double iminus = i + 2 / kPi * std::sin(nu * kPi) * k;
        ai = std::sqrt(z / 3) * k / kPi;
        bi = std::sqrt(z / 3) * (i + iminus);
    } else {
        const double j = std::cyl_bessel_j(nu, zeta);
        const double y = std::cyl_neumann(nu, zeta);
        const double jminus = std::cos(nu * kPi) * j - std::sin(nu * kPi) * y;
        ai = std::sqrt(z) / 3 * (j + jminus);
        bi = std::sqrt(z / 3) * (jminus - j);
    }
}

std::string realToStrDot(int width, int decimals, double x)
{
    char buf[400];
    std::string s;
    if (!std::isfinite(x)) {
        s = std::isnan(x) ? "NAN" : (x > 0 ? "INF" : "-INF");
    } else {
        auto r = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::fixed, decimals < 0 ? 0 : decimals);
        s.assign(buf, r.ptr);
    }
    if (static_cast<int>(s.size()) < width)
        s.insert(0, width - s.size(), ' ');
    if (decimals > 0 && s.find('.') != std::string::npos) {
        while (s.size() >= 2 && s.back() == '0')
            s.pop_back();
        while (s.size() > 1 && s.back() == '.')
            s.pop_back();
    }
    std::size_t b = s.find_first_not_of(' ');
    if (b != std::string::npos && s.compare(b, std::string::npos, "-0") == 0)
        s = s.substr(0, b) + "0";
    return s;
}

// Complex special functions of the complex evaluator.

cplx complexGamma(cplx z, bool& failed)
{
    failed = false;
    if (z.imag() == 0 && z.real() <= 0 && z.real() == std::trunc(z.real())) {
        failed = true;
        return 0;
    }
    if (z.real() < 0.5) {  // reflection
        bool f2 = false;
        const cplx g = complexGamma(1.0 - z, f2);
        const cplx s = std::sin(kPi * z);
        if (f2 || std::abs(s * g) == 0) {
            failed = true;
            return 0;
        }
        return kPi / (s * g);
    }
    // Lanczos approximation, g = 7, with the published nine coefficients.
    static const double p[9] = {0.99999999999980993,  676.5203681218851,     -1259.1392167224028,
                                771.32342877765313,   -176.61502916214059,   12.507343278686905,
                                -0.13857109526572012, 9.9843695780195716e-6, 1.5056327351493116e-7};
    z -= 1.0;
    cplx a = p[0];
    const cplx t = z + 7.5;
    for (int i = 1; i < 9; ++i)
        a += p[i] / (z + double(i));
    const cplx r = std::sqrt(2 * kPi) * std::pow(t, z + 0.5) * std::exp(-t) * a;
    if (!std::isfinite(r.real()) || !std::isfinite(r.imag()))
        failed = true;
    return failed ? 0 : r;
}

cplx complexZeta(cplx s, bool& failed)
{
    failed = false;
    if (s == cplx(1, 0) || !std::isfinite(s.real()) || !std::isfinite(s.imag())) {
        failed = true;
        return 0;
    }
    if (s.real() < 0) {  // functional equation; the series below holds for re(s) >= 0
        bool f1 = false, f2 = false;
        const cplx g = complexGamma(1.0 - s, f1);
        const cplx z = complexZeta(1.0 - s, f2);
        if (f1 || f2) {
            failed = true;
            return 0;
        }
        return std::pow(cplx(2), s) * std::pow(cplx(kPi), s - 1.0) * std::sin(kPi * s / 2.0) * g * z;
    }
    // Alternating series with Borwein's weights, n = 40.
    constexpr int n = 40;
    double d[n + 1];
    double term = 1.0 / n, sum = term;  // i = 0: (n-1)!/(n! 0!) = 1/n
    d[0] = n * sum;
    for (int i = 1; i <= n; ++i) {
        term *= 4.0 * (n + i - 1) * (n - i + 1) / ((2.0 * i - 1) * (2.0 * i));
        sum += term;
        d[i] = n * sum;
    }
    cplx eta = 0;
    for (int k = 0; k < n; ++k) {
        const cplx t = (d[k] - d[n]) / std::pow(cplx(k + 1.0), s);
        eta += (k % 2 ? -1.0 : 1.0) * t;
    }
    eta = -eta / d[n];
    const cplx denom = 1.0 - std::pow(cplx(2), 1.0 - s);
    if (std::abs(denom) < 1e-15) {
        failed = true;
        return 0;
    }
    return eta / denom;
}

cplx complexDigamma(cplx z, bool& failed)
{
    failed = false;
    if (!std::isfinite(z.real()) || !std::isfinite(z.imag())) {
        failed = true;
        return 0;
    }
    if (z.real() <= 0 && std::abs(z - std::nearbyint(z.real())) < 0.00001) {
        failed = true;
        return 0;
    }
    if (z.real() < 0.5) {
        const cplx r = complexDigamma(1.0 - z, failed);
        return r - kPi / std::tan(kPi * z);
    }
    cplx shift = 0;
    int guard = 0;
    while (std::abs(z) < 10 && guard++ < 20) {
        shift -= 1.0 / z;
        z += 1.0;
    }
    const cplx f = 1.0 / (z * z);
    const cplx series = f * (1.0 / 12 - f * (1.0 / 120 - f * (1.0 / 252 - f * (1.0 / 240 - f * (1.0 / 132)))));
    return shift + std::log(z) - 0.5 / z - series;
}

namespace {
cplx besselSeries(cplx z, double sign)
{
    const cplx q = sign * z * z / 4.0;
    cplx term = 1, sum = 1;
    for (int k = 1; k < 500; ++k) {
        term *= q / (double(k) * k);
        sum += term;
        if (std::abs(term) < 1e-17 * std::abs(sum))
            break;
    }
    return sum;
}
}  // namespace

cplx complexBesselJ0(cplx z) { return besselSeries(z, -1); }
cplx complexBesselI0(cplx z) { return besselSeries(z, 1); }

cplx complexEi(cplx z, bool& failed)
{
    failed = false;
    if (std::abs(z) == 0 || !(std::abs(z) < 40)) {
        failed = true;
        return 0;
    }
    cplx term = 1, sum = 0;
    for (int k = 1; k < 500; ++k) {
        term *= z / double(k);
        const cplx t = term / double(k);
        sum += t;
        if (std::abs(t) < 1e-17 * std::abs(sum))
            break;
    }
    return 0.57721566490153286 + std::log(z) + sum;
}

}  // namespace quorix::termsupport
