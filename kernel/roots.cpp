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
        for (int k = 0; k < 8; ++k) {
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

namespace {

PolynomialRoots cubicClosed(double a, double b, double c, double d)
{
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

PolynomialRoots quarticClosed(double a, double b, double c, double d, double e)
{
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

// The largest backward error of the roots: |p(z)| against the size of the terms at z.
double backwardError(const std::vector<cd>& roots, const std::vector<double>& c)
{
    double worst = 0;
    for (const cd& z : roots) {
        double size = 0, az = 1;
        for (size_t i = c.size(); i-- > 0;) {
            size += std::fabs(c[i]) * az;
            az *= std::abs(z);
        }
        const double err = size > 0 ? std::abs(evalPoly(c, z)) / size : 0;
        if (!(err <= worst))
            worst = std::isnan(err) ? HUGE_VAL : err;
    }
    return worst;
}

// Aberth's simultaneous iteration from the given starting values; starting values that
// coincide are pulled apart first, since the method divides by their differences.
void aberth(std::vector<cd>& z, const std::vector<double>& c)
{
    const size_t n = z.size();
    for (size_t i = 0; i < n; ++i)
        for (size_t j = 0; j < i; ++j)
            if (std::abs(z[i] - z[j]) <= 1e-9 * std::max(1.0, std::abs(z[i])))
                z[i] += cd(1e-3, 1e-3 * (1.0 + static_cast<double>(i))) * std::max(1.0, std::abs(z[i]));
    for (int round = 0; round < 500; ++round) {
        bool moved = false;
        for (size_t k = 0; k < n; ++k) {
            const cd f = evalPoly(c, z[k]);
            if (f == 0.0)
                continue;
            const cd d = evalDeriv(c, z[k]);
            cd sum = 0;
            for (size_t j = 0; j < n; ++j)
                if (j != k && z[k] != z[j])
                    sum += 1.0 / (z[k] - z[j]);
            const cd ratio = d == 0.0 ? cd(1e-3, 1e-3) : f / d;
            const cd step = ratio / (1.0 - ratio * sum);
            if (!std::isfinite(step.real()) || !std::isfinite(step.imag()))
                continue;
            z[k] -= step;
            if (std::abs(step) > 1e-15 * std::abs(z[k]))
                moved = true;
        }
        if (!moved)
            break;
    }
    for (cd& r : z)
        if (r.imag() != 0 && std::abs(r.imag()) <= 1e-12 * std::max(1.0, std::abs(r.real())))
            r = cd(r.real(), 0);
}

// Starting values for Aberth: the upper convex hull of (i, log|a_i|) over the coefficients of
// x^i tells how many roots lie near which radius.
std::vector<cd> newtonPolygonSeeds(const std::vector<double>& c)
{
    const int n = static_cast<int>(c.size()) - 1;
    std::vector<int> idx;
    std::vector<double> lg;
    for (int i = 0; i <= n; ++i) {
        const double a = std::fabs(c[static_cast<size_t>(n - i)]);  // coefficient of x^i
        if (a > 0) {
            idx.push_back(i);
            lg.push_back(std::log(a));
        }
    }
    std::vector<size_t> hull;
    for (size_t k = 0; k < idx.size(); ++k) {
        while (hull.size() >= 2) {
            const size_t a = hull[hull.size() - 2], b = hull.back();
            const double cross = (idx[b] - idx[a]) * (lg[k] - lg[a]) - (lg[b] - lg[a]) * (idx[k] - idx[a]);
            if (cross >= 0)
                hull.pop_back();
            else
                break;
        }
        hull.push_back(k);
    }
    std::vector<cd> seeds;
    int made = 0;
    for (size_t h = 1; h < hull.size(); ++h) {
        const size_t a = hull[h - 1], b = hull[h];
        const int count = idx[b] - idx[a];
        const double radius = std::exp((lg[a] - lg[b]) / count);
        for (int k = 0; k < count; ++k, ++made)
            seeds.push_back(std::polar(radius, 2 * kPi * k / count + 0.4 + 0.7 * made));
    }
    while (static_cast<int>(seeds.size()) < n)  // zero roots (a_0 = 0): start near 0
        seeds.push_back(cd(1e-3, 1e-3 * static_cast<double>(seeds.size())));
    return seeds;
}

// The closed formulas shift by b/(n a); a tiny leading coefficient makes that shift huge and
// the result worthless. The reversed polynomial (roots 1/z) is then well scaled: both are
// tried when the direct roots are poor, and the better set is kept.
template <class Solver>
PolynomialRoots withReversal(const std::vector<double>& c, Solver solve)
{
    PolynomialRoots direct = solve(c);
    const double directError = backwardError(direct.roots, c);
    if (directError <= 1e-12 || c.back() == 0)
        return direct;
    std::vector<double> reversed(c.rbegin(), c.rend());
    PolynomialRoots back = solve(reversed);
    for (cd& z : back.roots)
        z = 1.0 / z;
    polish(back.roots, c);
    sortRoots(back.roots);
    const double backError = backwardError(back.roots, c);
    PolynomialRoots best = backError < directError ? back : direct;
    const double bestError = std::min(backError, directError);
    if (bestError <= 1e-12)
        return best;
    // Roots of widely different sizes defeat both: refine all of them together (Aberth).
    PolynomialRoots refined = best;
    aberth(refined.roots, c);
    sortRoots(refined.roots);
    const double refinedError = backwardError(refined.roots, c);
    if (refinedError < bestError) {
        best = refined;
        if (refinedError <= 1e-12)
            return best;
    }
    // Last resort: start afresh on circles whose radii the Newton polygon gives.
    PolynomialRoots fresh = best;
    fresh.roots = newtonPolygonSeeds(c);
    aberth(fresh.roots, c);
    sortRoots(fresh.roots);
    return backwardError(fresh.roots, c) < std::min(bestError, refinedError) ? fresh : best;
}

}  // namespace

PolynomialRoots CubicRootValues(double a, double b, double c, double d)
{
    if (a == 0)
        return QuadraticRootValues(b, c, d);
    return withReversal({a, b, c, d}, [](const std::vector<double>& k) { return cubicClosed(k[0], k[1], k[2], k[3]); });
}

PolynomialRoots QuarticRootValues(double a, double b, double c, double d, double e)
{
    if (a == 0)
        return CubicRootValues(b, c, d, e);
    return withReversal({a, b, c, d, e},
                        [](const std::vector<double>& k) { return quarticClosed(k[0], k[1], k[2], k[3], k[4]); });
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
