#include "kernel/roots.h"

#include "kernel/realtostr.h"

#include <algorithm>
#include <cmath>

namespace kernel {

namespace {

using cd = std::complex<double>;
constexpr double kPi = 3.14159265358979323846;

// Real cube root with the sign of x.
double signedCbrt(double x)
{
    if (x == 0)
        return 0;
    return x > 0 ? std::exp(std::log(x) / 3) : -std::exp(std::log(-x) / 3);
}

cd evalPoly(const std::vector<double>& c, cd x)  // c[0] x^n + ... + c[n]
{
    cd r = c[0];
    for (size_t i = 1; i < c.size(); ++i)
        r = r * x + c[i];
    return r;
}

cd evalDeriv(const std::vector<double>& c, cd x)
{
    const size_t n = c.size() - 1;
    cd r = static_cast<double>(n) * c[0];
    for (size_t i = 1; i < n; ++i)
        r = r * x + static_cast<double>(n - i) * c[i];
    return r;
}

// Closed formulas lose digits near multiple roots; a Newton step or two on the original
// polynomial brings them back. A step that does not improve the residual is not taken.
void polish(std::vector<cd>& roots, const std::vector<double>& coeffs)
{
    for (cd& z : roots) {
        for (int k = 0; k < 3; ++k) {
            const cd f = evalPoly(coeffs, z);
            const cd d = evalDeriv(coeffs, z);
            if (std::abs(d) == 0 || std::abs(f) == 0)
                break;
            const cd next = z - f / d;
            if (std::abs(evalPoly(coeffs, next)) < std::abs(f))
                z = next;
            else
                break;
        }
        if (z.imag() != 0 && std::abs(z.imag()) <= 1e-12 * std::max(1.0, std::abs(z.real())))
            z = cd(z.real(), 0);
    }
}

// Roots of the monic x^2 + p x + q in complex form (used inside the quartic as well).
void monicQuadratic(cd p, cd q, cd& r1, cd& r2)
{
    const cd disc = p * p / 4.0 - q;
    const cd s = std::sqrt(disc);
    // Take the root of larger magnitude first, the other by Vieta, to avoid cancellation.
    const cd big = (std::real(std::conj(-p / 2.0) * s) >= 0) ? -p / 2.0 + s : -p / 2.0 - s;
    if (std::abs(big) == 0) {
        r1 = r2 = 0;
        return;
    }
    r1 = big;
    r2 = q / big;
}

void sortRoots(std::vector<cd>& r)
{
    std::sort(r.begin(), r.end(), [](cd a, cd b) {
        if (a.real() != b.real())
            return a.real() < b.real();
        return a.imag() < b.imag();
    });
}

std::string joinRoots(const PolynomialRoots& pr)
{
    if (pr.any)
        return "beliebig";
    if (pr.none)
        return "keine L.";
    std::string s;
    for (const cd& z : pr.roots) {
        if (!s.empty())
            s += "; ";
        s += RootText(z);
    }
    return s;
}

}  // namespace

std::string RootText(std::complex<double> z)
{
    const std::string re = RealToStrDot(1, 5, z.real());
    const std::string im = RealToStrDot(1, 5, std::fabs(z.imag()));
    if (im == "0")
        return re;
    return re + (z.imag() < 0 ? "-" : "+") + im + "*i";
}

PolynomialRoots QuadraticRootValues(double a, double b, double c)
{
    PolynomialRoots pr;
    if (a == 0) {
        if (b == 0) {
            (c == 0 ? pr.any : pr.none) = true;
            return pr;
        }
        pr.roots.push_back(-c / b);
        return pr;
    }
    const double p = b / a, q = c / a;
    const double disc = p * p / 4 - q;
    if (disc < 0) {
        const double im = std::sqrt(-disc);
        pr.roots = {cd(-p / 2, -im), cd(-p / 2, im)};
        return pr;
    }
    const double s = std::sqrt(disc);
    const double big = p > 0 ? -p / 2 - s : -p / 2 + s;
    if (big == 0)
        pr.roots = {0.0, 0.0};
    else
        pr.roots = {cd(big), cd(q / big)};
    sortRoots(pr.roots);
    return pr;
}

PolynomialRoots CubicRootValues(double a, double b, double c, double d)
{
    if (a == 0)
        return QuadraticRootValues(b, c, d);
    PolynomialRoots pr;
    const double r = b / a, s = c / a, t = d / a;
    // x = y - r/3 gives y^3 + p y + q = 0.
    const double p = s - r * r / 3;
    const double q = 2 * r * r * r / 27 - r * s / 3 + t;
    const double h = q * q / 4, k = p * p * p / 27;
    double disc = h + k;
    if (std::fabs(disc) <= 1e-14 * (std::fabs(h) + std::fabs(k)))
        disc = 0;
    const double shift = -r / 3;
    if (disc < 0) {
        // Three real roots: the trigonometric form.
        const double m = 2 * std::sqrt(-p / 3);
        double arg = -q / 2 / std::sqrt(-k);
        arg = std::clamp(arg, -1.0, 1.0);
        const double phi = std::acos(arg) / 3;
        for (int j = 0; j < 3; ++j)
            pr.roots.push_back(cd(m * std::cos(phi - 2 * kPi * j / 3) + shift));
    } else {
        // Cardano: one real root and a pair, real and double when the discriminant is 0.
        const double w = std::sqrt(disc);
        const double u = signedCbrt(-q / 2 + w);
        const double v = signedCbrt(-q / 2 - w);
        pr.roots.push_back(cd(u + v + shift));
        const double re = -(u + v) / 2 + shift;
        const double im = (u - v) * std::sqrt(3.0) / 2;
        if (disc == 0)
            pr.roots.insert(pr.roots.end(), {cd(re), cd(re)});
        else
            pr.roots.insert(pr.roots.end(), {cd(re, -std::fabs(im)), cd(re, std::fabs(im))});
    }
    polish(pr.roots, {a, b, c, d});
    sortRoots(pr.roots);
    return pr;
}

PolynomialRoots QuarticRootValues(double a, double b, double c, double d, double e)
{
    if (a == 0)
        return CubicRootValues(b, c, d, e);
    PolynomialRoots pr;
    const double B = b / a, C = c / a, D = d / a, E = e / a;
    // x = y - B/4 gives y^4 + p y^2 + q y + r = 0.
    const double p = C - 3 * B * B / 8;
    const double q = D - B * C / 2 + B * B * B / 8;
    const double r = E - B * D / 4 + B * B * C / 16 - 3 * B * B * B * B / 256;
    const double shift = -B / 4;
    cd y[4];
    const double scale = std::max({std::fabs(p), std::sqrt(std::fabs(r)), std::cbrt(std::fabs(q)), 1e-300});
    if (std::fabs(q) <= 1e-14 * scale * scale * scale) {
        // Biquadratic: z = y^2.
        cd z1, z2;
        monicQuadratic(p, r, z1, z2);
        y[0] = std::sqrt(z1);
        y[1] = -y[0];
        y[2] = std::sqrt(z2);
        y[3] = -y[2];
    } else {
        // Ferrari: 8m^3 + 8p m^2 + (2p^2 - 8r) m - q^2 = 0 has a positive root m; then
        // (y^2 + p/2 + m)^2 = (sqrt(2m) y - q / (2 sqrt(2m)))^2 splits into two quadratics.
        const PolynomialRoots res = CubicRootValues(8, 8 * p, 2 * p * p - 8 * r, -q * q);
        double m = 0;
        for (const cd& z : res.roots)
            if (z.imag() == 0 && z.real() > m)
                m = z.real();
        const double sq = std::sqrt(2 * m);
        monicQuadratic(-sq, p / 2 + m + q / (2 * sq), y[0], y[1]);
        monicQuadratic(sq, p / 2 + m - q / (2 * sq), y[2], y[3]);
    }
    for (const cd& z : y)
        pr.roots.push_back(z + shift);
    polish(pr.roots, {a, b, c, d, e});
    sortRoots(pr.roots);
    return pr;
}

std::string QuadraticRoots(double a, double b, double c) { return joinRoots(QuadraticRootValues(a, b, c)); }
std::string CubicRoots(double a, double b, double c, double d) { return joinRoots(CubicRootValues(a, b, c, d)); }
std::string QuarticRoots(double a, double b, double c, double d, double e)
{
    return joinRoots(QuarticRootValues(a, b, c, d, e));
}

std::vector<std::string> SplitRoots(const std::string& text)
{
    std::vector<std::string> out;
    size_t start = 0;
    while (start <= text.size()) {
        size_t end = text.find("; ", start);
        if (end == std::string::npos) {
            if (start < text.size())
                out.push_back(text.substr(start));
            break;
        }
        out.push_back(text.substr(start, end - start));
        start = end + 2;
    }
    return out;
}

}  // namespace kernel
