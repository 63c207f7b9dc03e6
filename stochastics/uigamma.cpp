#include "stochastics/uigamma.h"

#include "stochastics/ugamma.h"

#include <cmath>
#include <limits>

namespace zufall {

namespace {
constexpr int kMaxIter = 500;
constexpr double kEps = 1e-16;
constexpr double kTiny = 1e-300;

double reihe(double a, double x)  // P by its power series
{
    double summand = 1 / a, summe = summand;
    for (int n = 1; n < kMaxIter; ++n) {
        summand *= x / (a + n);
        summe += summand;
        if (std::fabs(summand) < std::fabs(summe) * kEps) break;
    }
    return summe * std::exp(-x + a * std::log(x) - lnGamma(a));
}

double kettenbruch(double a, double x)  // Q by the modified Lentz method
{
    double b = x + 1 - a, c = 1 / kTiny, d = 1 / b, h = d;
    for (int i = 1; i < kMaxIter; ++i) {
        const double an = -i * (i - a);
        b += 2;
        d = an * d + b;
        if (std::fabs(d) < kTiny) d = kTiny;
        c = b + an / c;
        if (std::fabs(c) < kTiny) c = kTiny;
        d = 1 / d;
        const double del = d * c;
        h *= del;
        if (std::fabs(del - 1) < kEps) break;
    }
    return std::exp(-x + a * std::log(x) - lnGamma(a)) * h;
}
}  // namespace

double igammaP(double a, double x)
{
    if (!(a > 0) || !(x >= 0)) return std::numeric_limits<double>::quiet_NaN();
    if (x == 0) return 0;
    if (std::isinf(x)) return 1;
    return x < a + 1 ? reihe(a, x) : 1 - kettenbruch(a, x);
}

double igammaQ(double a, double x)
{
    if (!(a > 0) || !(x >= 0)) return std::numeric_limits<double>::quiet_NaN();
    if (x == 0) return 1;
    if (std::isinf(x)) return 0;
    return x < a + 1 ? 1 - reihe(a, x) : kettenbruch(a, x);
}

}  // namespace zufall
