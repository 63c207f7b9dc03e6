#include "kernel/numeric.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kernel {

double Hypot(double a, double b)
{
    return std::sqrt(a * a + b * b);
}

double SqrtAbs(double x)
{
    return std::sqrt(std::fabs(x));
}

std::int64_t ModPower(std::int64_t base, std::int64_t exponent, std::int64_t modulus)
{
    if (modulus == 0)
        return 0;
    if (modulus < 0)
        modulus = -modulus;
    if (modulus == 1 || exponent < 0)
        return 0;
    using u128 = unsigned __int128;
    const auto m = static_cast<std::uint64_t>(modulus);
    std::int64_t b = base % modulus;
    if (b < 0)
        b += modulus;
    std::uint64_t factor = static_cast<std::uint64_t>(b);
    std::uint64_t result = 1;
    auto e = static_cast<std::uint64_t>(exponent);
    while (e) {
        if (e & 1)
            result = static_cast<std::uint64_t>(static_cast<u128>(result) * factor % m);
        factor = static_cast<std::uint64_t>(static_cast<u128>(factor) * factor % m);
        e >>= 1;
    }
    return static_cast<std::int64_t>(result);
}

std::int64_t Gcd(std::int64_t a, std::int64_t b)
{
    if (a == 0 || b == 0)
        return 1;
    std::uint64_t x = a < 0 ? 0 - static_cast<std::uint64_t>(a) : static_cast<std::uint64_t>(a);
    std::uint64_t y = b < 0 ? 0 - static_cast<std::uint64_t>(b) : static_cast<std::uint64_t>(b);
    while (y) {
        std::uint64_t r = x % y;
        x = y;
        y = r;
    }
    return static_cast<std::int64_t>(x);
}

double FindRootBrent(const RealFunction& f, int iterations, double tolerance, double a, double b)
{
    constexpr double eps = 0.00000006;
    double fa = f(a);
    double fb = f(b);
    double c = b, fc = fb;
    double d = b - a, e = d;
    for (int round = 0; round < iterations; ++round) {
        // Keep the root between b and c.
        if ((fb > 0 && fc > 0) || (fb < 0 && fc < 0)) {
            c = a;
            fc = fa;
            d = b - a;
            e = d;
        }
        if (std::fabs(fc) < std::fabs(fb)) {
            a = b;
            b = c;
            c = a;
            fa = fb;
            fb = fc;
            fc = fa;
        }
        const double tol = 2 * eps * std::fabs(b) + 0.5 * tolerance;
        const double m = 0.5 * (c - b);
        if (std::fabs(m) <= tol || fb == 0)
            return b;
        if (std::fabs(e) >= tol && std::fabs(fa) > std::fabs(fb)) {
            double p, q;
            const double s = fb / fa;
            if (a == c) {  // two points only: secant
                p = 2 * m * s;
                q = 1 - s;
            } else {  // inverse quadratic interpolation through a, b, c
                const double qa = fa / fc;
                const double r = fb / fc;
                p = s * (2 * m * qa * (qa - r) - (b - a) * (r - 1));
                q = (qa - 1) * (r - 1) * (s - 1);
            }
            if (p > 0)
                q = -q;
            p = std::fabs(p);
            // Accept the step only if it stays within three quarters of the interval and
            // shrinks faster than bisection did two steps ago.
            if (2 * p < std::min(3 * m * q - std::fabs(tol * q), std::fabs(e * q))) {
                e = d;
                d = p / q;
            } else {
                d = m;
                e = d;
            }
        } else {
            d = m;
            e = d;
        }
        a = b;
        fa = fb;
        b += std::fabs(d) > tol ? d : (m > 0 ? tol : -tol);
        fb = f(b);
    }
    return b;
}

void SolveLinear(LinearMatrix& m, int n, double& determinant, bool& ok)
{
    ok = false;
    determinant = 0;
    if (n < 1 || n > LinearMatrix::kMax)
        return;
    double lu[LinearMatrix::kMax][LinearMatrix::kMax];
    unsigned char perm[LinearMatrix::kMax];
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j)
            lu[i][j] = m.a[i][j];
    int sign = 1;
    // Crout: column by column, U above the diagonal, L (unit-free) on and below it.
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < j; ++i) {
            double s = lu[i][j];
            for (int k = 0; k < i; ++k)
                s -= lu[i][k] * lu[k][j];
            lu[i][j] = s;
        }
        int pivot = j;
        double largest = -1;
        for (int i = j; i < n; ++i) {
            double s = lu[i][j];
            for (int k = 0; k < j; ++k)
                s -= lu[i][k] * lu[k][j];
            lu[i][j] = s;
            if (std::fabs(s) > largest) {
                largest = std::fabs(s);
                pivot = i;
            }
        }
        if (pivot != j) {
            for (int k = 0; k < n; ++k)
                std::swap(lu[pivot][k], lu[j][k]);
            sign = -sign;
        }
        perm[j] = static_cast<unsigned char>(pivot);
        if (lu[j][j] == 0) {
            determinant = 0;
            return;
        }
        for (int i = j + 1; i < n; ++i)
            lu[i][j] /= lu[j][j];
    }
    double det = sign;
    for (int i = 0; i < n; ++i)
        det *= lu[i][i];
    determinant = det;
    if (std::fabs(det) <= 0.000001)
        return;
    double x[LinearMatrix::kMax];
    for (int i = 0; i < n; ++i)
        x[i] = m.a[i][n];
    for (int i = 0; i < n; ++i)
        std::swap(x[i], x[perm[i]]);
    for (int i = 0; i < n; ++i)
        for (int k = 0; k < i; ++k)
            x[i] -= lu[i][k] * x[k];
    for (int i = n - 1; i >= 0; --i) {
        for (int k = i + 1; k < n; ++k)
            x[i] -= lu[i][k] * x[k];
        x[i] /= lu[i][i];
    }
    for (int i = 0; i < n; ++i)
        m.a[i][n] = x[i];
    ok = true;
}

double SimpsonTerm(const RealFunction& f, double a, double b)
{
    constexpr int intervals = 200;
    const double h = (b - a) / intervals;
    double sum = f(a) + f(b);
    for (int i = 1; i < intervals; ++i)
        sum += (i % 2 ? 4.0 : 2.0) * f(a + i * h);
    return sum * h / 3.0;
}

}  // namespace kernel
