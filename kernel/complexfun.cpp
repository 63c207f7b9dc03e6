// The special functions of the complex term interpreter.
#include "kernel/complex.h"

#include <cmath>
#include <complex>

namespace kernel {

namespace {

using cd = std::complex<double>;
constexpr double kPi = 3.14159265358979323846;
constexpr double kEulerGamma = 0.57721566490153286061;

cd toStd(const Complex& z) { return cd(Re(z), Im(z)); }
Complex fromStd(cd v) { return Cartesian(v.real(), v.imag()); }

bool isNonPositiveInteger(cd z)
{
    return z.imag() == 0 && z.real() <= 0 && z.real() == std::floor(z.real());
}

// Stirling's series for ln Gamma, valid for Re w >= 10: Bernoulli numbers B2..B16.
cd stirlingLnGamma(cd w)
{
    static const double coef[] = {1.0 / 12, -1.0 / 360, 1.0 / 1260, -1.0 / 1680, 1.0 / 1188,
                                  -691.0 / 360360, 1.0 / 156, -3617.0 / 122400};
    const cd inv = 1.0 / w, inv2 = inv * inv;
    cd sum = 0, p = inv;
    for (double c : coef) {
        sum += c * p;
        p *= inv2;
    }
    return (w - 0.5) * std::log(w) - w + 0.5 * std::log(2 * kPi) + sum;
}

// ln Gamma for Re z >= 0.5: shift up to Re >= 10 and subtract the logs on the way, so the
// branch stays continuous.
cd lnGammaRight(cd z)
{
    cd shift = 0;
    while (z.real() < 10) {
        shift += std::log(z);
        z += 1.0;
    }
    return stirlingLnGamma(z) - shift;
}

cd digammaRight(cd z)
{
    cd shift = 0;
    while (z.real() < 10) {
        shift += 1.0 / z;
        z += 1.0;
    }
    static const double coef[] = {1.0 / 12, -1.0 / 120, 1.0 / 252, -1.0 / 240, 1.0 / 132,
                                  -691.0 / 32760, 1.0 / 12};
    const cd inv2 = 1.0 / (z * z);
    cd sum = 0, p = inv2;
    for (double c : coef) {
        sum += c * p;
        p *= inv2;
    }
    return std::log(z) - 0.5 / z - sum - shift;
}

// Borwein's alternating series for zeta, good for Re s >= 1/2 and moderate |Im s|.
cd zetaRight(cd s)
{
    constexpr int n = 60;
    double d[n + 1];
    // d_k = n * sum_{i<=k} (n+i-1)! 4^i / ((n-i)! (2i)!), built term by term.
    double term = 1.0 / n;  // i = 0: (n-1)!/n! = 1/n
    double acc = term;
    d[0] = n * acc;
    for (int i = 1; i <= n; ++i) {
        term *= static_cast<double>(n + i - 1) * (n - i + 1) * 4.0 / ((2.0 * i - 1) * (2.0 * i));
        acc += term;
        d[i] = n * acc;
    }
    cd sum = 0;
    for (int k = 0; k < n; ++k) {
        const cd t = (d[k] - d[n]) * std::exp(-s * std::log(static_cast<double>(k + 1)));
        sum += (k & 1) ? -t : t;
    }
    const cd denom = d[n] * (1.0 - std::exp((1.0 - s) * std::log(2.0)));
    if (std::abs(denom) < 1e-300)
        throw EComplexInvalidOp("RIEMANN: Polstelle");
    return -sum / denom;
}

cd besselJ0(cd z)
{
    if (z.real() < 0)
        z = -z;  // J0 is even
    if (std::abs(z) < 20) {
        const cd q = -z * z / 4.0;
        cd sum = 1, t = 1;
        for (int k = 1; k < 200; ++k) {
            t *= q / (static_cast<double>(k) * k);
            sum += t;
            if (std::abs(t) < 1e-17 * std::abs(sum))
                break;
        }
        return sum;
    }
    // Hankel's expansion: |a_k| = (1 * 9 * ... * (2k-1)^2) / (k! 8^k), a_k of sign (-1)^k.
    cd P = 0, Q = 0, p = 1;
    double a = 1;
    for (int k = 0; k < 30; ++k) {
        if (k > 0)
            a *= (2.0 * k - 1) * (2.0 * k - 1) / (8.0 * k);
        const cd t = a * p;
        const double sign = ((k / 2) & 1) ? -1 : 1;
        if (k & 1)
            Q -= sign * t;  // the odd coefficients of order 0 are negative
        else
            P += sign * t;
        p /= z;
        if (k > 2 && std::abs(t) < 1e-17)
            break;
    }
    const cd phase = z - kPi / 4;
    return std::sqrt(2.0 / (kPi * z)) * (P * std::cos(phase) - Q * std::sin(phase));
}

}  // namespace

Complex CLnGamma(const Complex& z)
{
    const cd v = toStd(z);
    if (isNonPositiveInteger(v))
        throw EComplexInvalidOp("GAMMA: Polstelle");
    if (v.real() >= 0.5)
        return fromStd(lnGammaRight(v));
    // Reflection: ln Gamma(z) = ln pi - ln sin(pi z) - ln Gamma(1 - z).
    return fromStd(std::log(kPi) - std::log(std::sin(kPi * v)) - lnGammaRight(1.0 - v));
}

Complex CGamma(const Complex& z)
{
    const cd v = toStd(z);
    if (isNonPositiveInteger(v))
        throw EComplexInvalidOp("GAMMA: Polstelle");
    if (v.real() >= 0.5)
        return fromStd(std::exp(lnGammaRight(v)));
    return fromStd(kPi / (std::sin(kPi * v) * std::exp(lnGammaRight(1.0 - v))));
}

Complex CDigamma(const Complex& z)
{
    const cd v = toStd(z);
    if (isNonPositiveInteger(v))
        throw EComplexInvalidOp("DIGAMMA: Polstelle");
    if (v.real() >= 0.5)
        return fromStd(digammaRight(v));
    // psi(z) = psi(1 - z) - pi cot(pi z)
    return fromStd(digammaRight(1.0 - v) - kPi * std::cos(kPi * v) / std::sin(kPi * v));
}

Complex CZeta(const Complex& s)
{
    const cd v = toStd(s);
    if (v == 1.0)
        throw EComplexInvalidOp("RIEMANN(1)");
    if (v == 0.0)
        return Cartesian(-0.5, 0);  // the functional equation would need zeta(1) there
    if (v.real() >= 0.5)
        return fromStd(zetaRight(v));
    // Functional equation: zeta(s) = 2^s pi^(s-1) sin(pi s / 2) Gamma(1 - s) zeta(1 - s).
    const cd w = 1.0 - v;
    const cd factor = std::exp(v * std::log(2.0) + (v - 1.0) * std::log(kPi) + lnGammaRight(w)) *
                      std::sin(kPi * v / 2.0);
    return fromStd(factor * zetaRight(w));
}

Complex CBesselJ0(const Complex& z)
{
    return fromStd(besselJ0(toStd(z)));
}

Complex CBesselI0(const Complex& z)
{
    return fromStd(besselJ0(cd(0, 1) * toStd(z)));
}

Complex CExpIntegralEi(const Complex& z)
{
    const cd v = toStd(z);
    if (v == 0.0)
        throw EComplexLnZero();
    if (std::abs(v) <= 40) {
        cd sum = 0, t = 1;
        for (int k = 1; k < 500; ++k) {
            t *= v / static_cast<double>(k);
            const cd term = t / static_cast<double>(k);
            sum += term;
            if (std::abs(term) < 1e-17 * std::abs(sum))
                break;
        }
        return fromStd(kEulerGamma + std::log(v) + sum);
    }
    // Asymptotic series on the same branch as gamma + ln z + sum above.
    cd sum = 0, t = 1;
    for (int k = 0; k < 40; ++k) {
        sum += t;
        const cd next = t * static_cast<double>(k + 1) / v;
        if (std::abs(next) >= std::abs(t))
            break;  // the terms start growing: stop at the smallest
        t = next;
    }
    cd branch = 0;
    if (v.imag() > 0 || (v.imag() == 0 && v.real() < 0))
        branch = cd(0, kPi);
    else if (v.imag() < 0)
        branch = cd(0, -kPi);
    return fromStd(std::exp(v) / v * sum + branch);
}

}  // namespace kernel
