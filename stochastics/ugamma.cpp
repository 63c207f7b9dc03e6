#include "stochastics/ugamma.h"

#include <cmath>
#include <limits>

namespace zufall {

namespace {
// The published Lanczos coefficients for g = 7, n = 9.
constexpr double kLanczos[9] = {0.99999999999980993,  676.5203681218851,     -1259.1392167224028,
                                771.32342877765313,   -176.61502916214059,   12.507343278686905,
                                -0.13857109526572012, 9.9843695780195716e-6, 1.5056327351493116e-7};
constexpr double kLnSqrt2Pi = 0.91893853320467274178;
}  // namespace

double lnGamma(double x)
{
    if (!(x > 0)) return std::numeric_limits<double>::quiet_NaN();
    if (x < 0.5) {
        // reflection keeps the series in its accurate range
        return std::log(M_PI / std::fabs(std::sin(M_PI * x))) - lnGamma(1 - x);
    }
    const double z = x - 1;
    double s = kLanczos[0];
    for (int i = 1; i < 9; ++i) s += kLanczos[i] / (z + i);
    const double t = z + 7.5;
    return kLnSqrt2Pi + (z + 0.5) * std::log(t) - t + std::log(s);
}

double gammaFunktion(double x)
{
    if (x > 0) return std::exp(lnGamma(x));
    if (x == std::floor(x)) return std::numeric_limits<double>::quiet_NaN();
    return M_PI / (std::sin(M_PI * x) * std::exp(lnGamma(1 - x)));
}

double lnBinom(double n, double k)
{
    if (k < 0 || k > n) return -std::numeric_limits<double>::infinity();
    return lnGamma(n + 1) - lnGamma(k + 1) - lnGamma(n - k + 1);
}

}  // namespace zufall
