// Moon of the series library: mean arguments with long-period corrections, solar perturbations
// summed over products of the multiples of the four arguments, the latitude terms and the small
// planetary terms in longitude.
#include "astronomy/ephemeris.h"
#include "astronomy/tables.h"

#include <algorithm>
#include <cmath>
#include <complex>

namespace astro {

namespace {
constexpr double kPi2 = 6.283185307179586;
constexpr double kArcs = 206264.80624709636;

double frac(double x) { return x - std::floor(x); }
double sinTurns(double c0, double c1, double T) { return std::sin(kPi2 * frac(c0 + c1 * T)); }

// exp(i k arg) scaled by fac^k for k = -6..6 of one argument: the factors carry the changes of
// the eccentricities and of the inclination into every multiple
struct Multiples {
    std::complex<double> e[13];
    void build(double arg, double fac, int max)
    {
        e[6] = 1;
        const std::complex<double> one = std::polar(fac, arg);
        for (int k = 1; k <= max; ++k) {
            e[6 + k] = e[5 + k] * one;
            e[6 - k] = std::conj(e[6 + k]);
        }
    }
    const std::complex<double>& operator[](int k) const { return e[6 + k]; }
};
}  // namespace

bool SeriesMoon(double T, double& lOut, double& bOut, double& rOut)
{
    if (!std::isfinite(T)) return false;
    using tables::moonSeries;
    using tables::moonSeriesCount;
    double mean[5] = {};
    int nMean = 0;
    double dl0 = 0, dl = 0, dls = 0, df = 0, dgam = 0;
    for (std::size_t k = 0; k < moonSeriesCount; ++k) {
        const auto& r = moonSeries[k];
        if (r.kind == 'A' && nMean < 5) {
            mean[nMean++] = kPi2 * frac(r.v[0] + (r.v[1] + r.v[2] * T) * T);
        } else if (r.kind == 'L') {
            const double s = sinTurns(r.v[0], r.v[1], T);
            dl0 += r.v[2] * s;
            dl += r.v[3] * s;
            dls += r.v[4] * s;
            df += r.v[5] * s;
        } else if (r.kind == 'G') {
            dgam += r.v[2] * sinTurns(r.v[0], r.v[1], T);
        }
    }
    if (nMean != 5) return false;
    const double L0 = mean[0] + dl0 / kArcs;
    const double l = mean[1] + dl / kArcs;
    const double ls = mean[2] + dls / kArcs;
    const double F = mean[3] + df / kArcs;
    const double D = mean[4] + (dl0 - dls) / kArcs;
    const double incl = 1.000002708 + 139.978 * dgam;
    Multiples ml, ms, mf, md;
    ml.build(l, 1.000002208, 6);
    ms.build(ls, 0.997504612 - 0.002495388 * T, 6);
    mf.build(F, incl, 6);
    md.build(D, 1.0, 6);
    auto term = [&](const double* v) {
        auto idx = [](double x) { return static_cast<int>(std::lround(std::max(-6.0, std::min(6.0, x)))); };
        return ml[idx(v[0])] * ms[idx(v[1])] * mf[idx(v[2])] * md[idx(v[3])];
    };
    double dlam = 0, ds = 0, gam1c = 0, sinpi = 3422.7, n = 0;
    for (std::size_t k = 0; k < moonSeriesCount; ++k) {
        const auto& r = moonSeries[k];
        if (r.kind == 'S') {
            const std::complex<double> z = term(r.v);
            dlam += r.v[4] * z.imag();
            ds += r.v[5] * z.imag();
            gam1c += r.v[6] * z.real();
            sinpi += r.v[7] * z.real();
        } else if (r.kind == 'N') {
            n += r.v[4] * term(r.v).imag();
        } else if (r.kind == 'P') {
            dlam += r.v[2] * sinTurns(r.v[0], r.v[1], T);
        }
    }
    const double S = F + ds / kArcs;
    lOut = 360.0 * frac((L0 + dlam / kArcs) / kPi2);
    bOut = (incl * (18518.511 + 1.189 + gam1c) * std::sin(S) - 6.24 * std::sin(3 * S) + n) / 3600.0;
    rOut = kArcs / (0.999953253 * sinpi);
    return true;
}

}  // namespace astro
