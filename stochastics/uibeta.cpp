#include "stochastics/uibeta.h"

#include "stochastics/ugamma.h"

#include <cmath>
#include <limits>

namespace zufall {

namespace {
constexpr double kEps = 1e-16;
constexpr double kTiny = 1e-300;

// The continued fraction of I_x(a, b), modified Lentz; it converges fast for x < (a+1)/(a+b+2).
double kettenbruch(double a, double b, double x)
{
    const double qab = a + b, qap = a + 1, qam = a - 1;
    double c = 1, d = 1 - qab * x / qap;
    if (std::fabs(d) < kTiny) d = kTiny;
    d = 1 / d;
    double h = d;
    for (int m = 1; m <= 1000; ++m) {
        const int m2 = 2 * m;
        double aa = m * (b - m) * x / ((qam + m2) * (a + m2));
        d = 1 + aa * d;
        if (std::fabs(d) < kTiny) d = kTiny;
        c = 1 + aa / c;
        if (std::fabs(c) < kTiny) c = kTiny;
        d = 1 / d;
        h *= d * c;
        aa = -(a + m) * (qab + m) * x / ((a + m2) * (qap + m2));
        d = 1 + aa * d;
        if (std::fabs(d) < kTiny) d = kTiny;
        c = 1 + aa / c;
        if (std::fabs(c) < kTiny) c = kTiny;
        d = 1 / d;
        const double del = d * c;
        h *= del;
        if (std::fabs(del - 1) < kEps) break;
    }
    return h;
}

double lnVorfaktor(double a, double b, double x)
{
    return lnGamma(a + b) - lnGamma(a) - lnGamma(b) + a * std::log(x) + b * std::log1p(-x);
}
}  // namespace

double ibeta(double a, double b, double x)
{
    if (!(a > 0) || !(b > 0) || !(x >= 0) || !(x <= 1)) return std::numeric_limits<double>::quiet_NaN();
    if (x == 0) return 0;
    if (x == 1) return 1;
    if (x < (a + 1) / (a + b + 2)) return std::exp(lnVorfaktor(a, b, x)) * kettenbruch(a, b, x) / a;
    return 1 - std::exp(lnVorfaktor(a, b, x)) * kettenbruch(b, a, 1 - x) / b;
}

double ibetaInv(double a, double b, double p)
{
    if (!(a > 0) || !(b > 0) || !(p >= 0) || !(p <= 1)) return -1;
    if (p == 0) return 0;
    if (p == 1) return 1;
    // Newton steps inside a shrinking bracket: at most 100 steps, bisection when Newton leaves it;
    // the first 10 steps are plain bisection so that Newton starts near the root for skewed shapes.
    double lo = 0, hi = 1, x = 0.5;
    const double lnB = lnGamma(a) + lnGamma(b) - lnGamma(a + b);
    for (int i = 0; i < 100; ++i) {
        const double f = ibeta(a, b, x) - p;
        if (f == 0) return x;
        if (f < 0) lo = x;
        else hi = x;
        double neu = 0.5 * (lo + hi);
        if (i >= 10) {
            const double dichte = std::exp((a - 1) * std::log(x) + (b - 1) * std::log1p(-x) - lnB);
            if (dichte > 0 && std::isfinite(dichte)) {
                const double n = x - f / dichte;
                if (n > lo && n < hi) neu = n;
            }
        }
        if (std::fabs(neu - x) < 1e-15 * std::max(1.0, x)) return neu;
        x = neu;
    }
    return x;
}

}  // namespace zufall
