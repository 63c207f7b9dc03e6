#include "stochastics/ugamdist.h"

#include "stochastics/ugamma.h"
#include "stochastics/uibeta.h"
#include "stochastics/uigamma.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace zufall {

int verteilungsstatus = stGut;

namespace {
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kUnterlauf = -708;  // below this exp() gives no normal double

double mitStatus(double lnWert)
{
    if (lnWert < kUnterlauf) {
        verteilungsstatus = stUnterlauf;
        return 0;
    }
    verteilungsstatus = stGut;
    return std::exp(lnWert);
}

double fehler(double wert = 0)
{
    verteilungsstatus = stParameter;
    return wert;
}

bool ganz(double x) { return x == std::floor(x) && x >= 0; }

// A root of the increasing F with F(x) = p by bisection after widening the bracket.
double umkehren(const std::function<double(double)>& F, double p, double lo, double hi)
{
    while (F(hi) < p && hi < 1e300) {
        lo = hi;
        hi *= 2;
    }
    for (int i = 0; i < 200 && hi - lo > 1e-14 * std::max(1.0, std::fabs(hi)); ++i) {
        const double m = 0.5 * (lo + hi);
        (F(m) < p ? lo : hi) = m;
    }
    return 0.5 * (lo + hi);
}
}  // namespace

const std::vector<std::string>& stetigeNamen()
{
    static const std::vector<std::string> n = {
        "Student-t-Verteilung", "Chi²-Verteilung", "Normierte Gaußverteilung", "Exponentialverteilung",
        "Maxwell-Verteilung",   "Weibull-Verteilung", "F-Verteilung",           "Beta-Verteilung",
        "Gamma-Verteilung",     "Fisher-Snedecor-Verteilung"};
    return n;
}

const std::vector<std::string>& diskreteNamen()
{
    static const std::vector<std::string> n = {"Binomialverteilung", "Poisson-Verteilung",
                                               "Hypergeometrische Verteilung", "Pólya-Verteilung",
                                               "Negative Binomialverteilung"};
    return n;
}

std::vector<std::string> stetigeParameter(Stetig art)
{
    switch (art) {
    case Stetig::StudentT:
    case Stetig::ChiQuadrat: return {"Freiheitsgrade"};
    case Stetig::Gauss: return {};
    case Stetig::Exponential: return {"Parameter"};
    case Stetig::Maxwell: return {"Parameter a"};
    case Stetig::Weibull:
    case Stetig::Beta:
    case Stetig::Gamma: return {"Parameter a", "Parameter b"};
    case Stetig::F:
    case Stetig::FisherSnedecor: return {"Freiheitsgrade n", "Freiheitsgrade m"};
    }
    return {};
}

std::vector<std::string> diskreteParameter(Diskret art)
{
    switch (art) {
    case Diskret::Binomial: return {"Anzahl der Versuche", "Wahrscheinlichkeit"};
    case Diskret::Poisson: return {"Parameter l"};
    case Diskret::Hypergeometrisch: return {"Anzahl der Kugeln", "... davon weiße", "Stichprobenumfang"};
    case Diskret::Polya: return {"Anzahl der Kugeln", "... davon weiße", "Stichprobenumfang", "Erhöhungsmaß"};
    case Diskret::NegativBinomial: return {"Parameter r", "Wahrscheinlichkeit"};
    }
    return {};
}

// ---------------------------------------------------------------- normal

double normDichte(double x) { return std::exp(-0.5 * x * x) / std::sqrt(2 * M_PI); }
double normVerteilung(double x) { return 0.5 * std::erfc(-x / std::sqrt(2.0)); }

double normQuantilAS111(double p)
{
    if (!(p > 0) || !(p < 1)) return fehler(kNaN);
    verteilungsstatus = stGut;
    const double q = p - 0.5;
    if (std::fabs(q) <= 0.42) {
        const double r = q * q;
        return q * (((-25.44106049637 * r + 41.39119773534) * r - 18.61500062529) * r + 2.50662823884) /
               ((((3.13082909833 * r - 21.06224101826) * r + 23.08336743743) * r - 8.47351093090) * r + 1);
    }
    double r = q > 0 ? 1 - p : p;
    r = std::sqrt(-std::log(r));
    const double x = (((2.32121276858 * r + 4.85014127135) * r - 2.29796479134) * r - 2.78718931138) /
                     ((1.63706781897 * r + 3.54388924762) * r + 1);
    return q < 0 ? -x : x;
}

double normalDichte(double x, double mu, double varianz)
{
    if (!(varianz > 0)) return fehler();
    verteilungsstatus = stGut;
    const double s = std::sqrt(varianz);
    return normDichte((x - mu) / s) / s;
}

double normalVerteilung(double x, double mu, double varianz)
{
    if (!(varianz > 0)) return fehler();
    verteilungsstatus = stGut;
    return normVerteilung((x - mu) / std::sqrt(varianz));
}

double lognormalDichte(double x, double mu, double varianz)
{
    if (!(varianz > 0)) return fehler();
    verteilungsstatus = stGut;
    if (x <= 0) return 0;
    return normalDichte(std::log(x), mu, varianz) / x;
}

double lognormalVerteilung(double x, double mu, double varianz)
{
    if (!(varianz > 0)) return fehler();
    verteilungsstatus = stGut;
    if (x <= 0) return 0;
    return normalVerteilung(std::log(x), mu, varianz);
}

// ---------------------------------------------------------------- continuous

bool parameterGueltig(const StetigeVerteilung& v)
{
    switch (v.art) {
    case Stetig::Gauss: return true;
    case Stetig::StudentT:
    case Stetig::ChiQuadrat:
    case Stetig::Exponential:
    case Stetig::Maxwell: return v.a > 0;
    default: return v.a > 0 && v.b > 0;
    }
}

double dichte(const StetigeVerteilung& v, double x)
{
    if (!parameterGueltig(v)) return fehler();
    const double a = v.a, b = v.b;
    switch (v.art) {
    case Stetig::StudentT:
        return mitStatus(lnGamma((a + 1) / 2) - lnGamma(a / 2) - 0.5 * std::log(a * M_PI) -
                         (a + 1) / 2 * std::log1p(x * x / a));
    case Stetig::Gauss: verteilungsstatus = stGut; return normDichte(x);
    case Stetig::Exponential: verteilungsstatus = stGut; return x < 0 ? 0 : a * std::exp(-a * x);
    case Stetig::Maxwell:
        verteilungsstatus = stGut;
        return x < 0 ? 0 : std::sqrt(2 / M_PI) * x * x * std::exp(-x * x / (2 * a * a)) / (a * a * a);
    case Stetig::Weibull:  // scale a, shape b
        verteilungsstatus = stGut;
        if (x < 0) return 0;
        if (x == 0) {
            if (b < 1) {
                verteilungsstatus = stUnendlich;
                return std::numeric_limits<double>::max();
            }
            return b == 1 ? 1 / a : 0;
        }
        return b / a * std::pow(x / a, b - 1) * std::exp(-std::pow(x / a, b));
    case Stetig::Beta: {
        verteilungsstatus = stGut;
        if (x < 0 || x > 1) return 0;
        if ((x == 0 && a < 1) || (x == 1 && b < 1)) {
            verteilungsstatus = stUnendlich;
            return std::numeric_limits<double>::max();
        }
        if (x == 0) return a == 1 ? std::exp(lnGamma(a + b) - lnGamma(b)) : 0;
        if (x == 1) return b == 1 ? std::exp(lnGamma(a + b) - lnGamma(a)) : 0;
        return mitStatus(lnGamma(a + b) - lnGamma(a) - lnGamma(b) + (a - 1) * std::log(x) +
                         (b - 1) * std::log1p(-x));
    }
    case Stetig::ChiQuadrat:
    case Stetig::Gamma: {
        // chi² with k degrees is the gamma kind with shape k/2 and rate 1/2
        const double form = v.art == Stetig::ChiQuadrat ? a / 2 : a;
        const double rate = v.art == Stetig::ChiQuadrat ? 0.5 : b;
        verteilungsstatus = stGut;
        if (x < 0) return 0;
        if (x == 0) {
            if (form < 1) {
                verteilungsstatus = stUnendlich;
                return std::numeric_limits<double>::max();
            }
            return form == 1 ? rate : 0;
        }
        return mitStatus(form * std::log(rate) - lnGamma(form) + (form - 1) * std::log(x) - rate * x);
    }
    case Stetig::F:
    case Stetig::FisherSnedecor: {
        verteilungsstatus = stGut;
        const double r = a / b, h = a / 2, t = (a + b) / 2;
        if (x < 0) return 0;
        if (x == 0) {
            if (h < 1) {
                verteilungsstatus = stUnendlich;
                return std::numeric_limits<double>::max();
            }
            return h == 1 ? r : 0;
        }
        return mitStatus(lnGamma(t) - lnGamma(h) - lnGamma(b / 2) + h * std::log(r) + (h - 1) * std::log(x) -
                         t * std::log(r * x + 1));
    }
    }
    return fehler();
}

double verteilung(const StetigeVerteilung& v, double x)
{
    if (!parameterGueltig(v)) return fehler();
    verteilungsstatus = stGut;
    const double a = v.a, b = v.b;
    switch (v.art) {
    case Stetig::StudentT: {
        const double halb = 0.5 * ibeta(a / 2, 0.5, a / (a + x * x));
        return x > 0 ? 1 - halb : halb;
    }
    case Stetig::Gauss: return normVerteilung(x);
    case Stetig::Exponential: return x <= 0 ? 0 : -std::expm1(-a * x);
    case Stetig::Maxwell:
        return x <= 0 ? 0
                      : std::erf(x / (std::sqrt(2.0) * a)) -
                            std::sqrt(2 / M_PI) * x / a * std::exp(-x * x / (2 * a * a));
    case Stetig::Weibull: return x <= 0 ? 0 : -std::expm1(-std::pow(x / a, b));
    case Stetig::Beta: return x <= 0 ? 0 : x >= 1 ? 1 : ibeta(a, b, x);
    case Stetig::ChiQuadrat: return x <= 0 ? 0 : igammaP(a / 2, x / 2);
    case Stetig::Gamma: return x <= 0 ? 0 : igammaP(a, b * x);
    case Stetig::F:
    case Stetig::FisherSnedecor: return x <= 0 ? 0 : ibeta(a / 2, b / 2, a * x / (a * x + b));
    }
    return fehler();
}

double quantil(const StetigeVerteilung& v, double p)
{
    if (!parameterGueltig(v) || !(p > 0) || !(p < 1)) return fehler(-1);
    verteilungsstatus = stGut;
    const double a = v.a, b = v.b;
    switch (v.art) {
    case Stetig::Gauss: return normQuantilAS111(p);
    case Stetig::StudentT: {
        // two-sided tail 2·min(p, 1-p) through the inverse incomplete beta
        const double x = ibetaInv(a / 2, 0.5, 2 * std::min(p, 1 - p));
        const double t = std::sqrt(a * (1 - x) / x);
        return p < 0.5 ? -t : t;
    }
    case Stetig::Exponential: return -std::log1p(-p) / a;
    case Stetig::Weibull: return a * std::pow(-std::log1p(-p), 1 / b);
    case Stetig::Beta: return ibetaInv(a, b, p);
    case Stetig::F:
    case Stetig::FisherSnedecor: {
        const double q = ibetaInv(a / 2, b / 2, p);
        if (q < 0) return fehler(-1);
        return q * b / ((1 - q) * a);
    }
    case Stetig::ChiQuadrat:
    case Stetig::Gamma:
    case Stetig::Maxwell: {
        const StetigeVerteilung w = v;
        const double hi = v.art == Stetig::ChiQuadrat ? std::max(1.0, a) : v.art == Stetig::Gamma ? std::max(1.0, a / b) : a;
        return umkehren([&](double x) { return verteilung(w, x); }, p, 0, hi);
    }
    }
    return fehler(-1);
}

// ---------------------------------------------------------------- discrete

bool parameterGueltig(const DiskreteVerteilung& v)
{
    const auto& p = v.par;
    switch (v.art) {
    case Diskret::Binomial:
    case Diskret::NegativBinomial:
        return p.size() >= 2 && ganz(p[0]) && p[1] >= 0 && p[1] <= 1 && (v.art == Diskret::Binomial || p[0] >= 1);
    case Diskret::Poisson: return p.size() >= 1 && p[0] > 0;
    case Diskret::Hypergeometrisch:
        return p.size() >= 3 && ganz(p[0]) && ganz(p[1]) && ganz(p[2]) && p[1] <= p[0] && p[2] <= p[0];
    case Diskret::Polya:
        return p.size() >= 4 && ganz(p[0]) && ganz(p[1]) && ganz(p[2]) && ganz(p[3]) && p[1] <= p[0] &&
               p[0] > 0 && (p[3] > 0 || p[2] <= p[0]);
    }
    return false;
}

double lnWahrscheinlichkeit(const DiskreteVerteilung& v, long k)
{
    constexpr double kNull = -std::numeric_limits<double>::infinity();
    if (!parameterGueltig(v)) return kNaN;
    const auto& p = v.par;
    switch (v.art) {
    case Diskret::Binomial: {
        const double n = p[0], q = p[1];
        if (k < 0 || k > n) return kNull;
        // p = 0 or 1 puts all the weight on one end
        if (q == 0) return k == 0 ? 0 : kNull;
        if (q == 1) return k == n ? 0 : kNull;
        return lnBinom(n, k) + k * std::log(q) + (n - k) * std::log1p(-q);
    }
    case Diskret::Poisson:
        if (k < 0) return kNull;
        return k * std::log(p[0]) - p[0] - lnGamma(k + 1.0);
    case Diskret::Hypergeometrisch: {
        const double N = p[0], M = p[1], n = p[2];
        if (k < 0 || k > n || k > M || n - k > N - M) return kNull;
        return lnBinom(M, k) + lnBinom(N - M, n - k) - lnBinom(N, n);
    }
    case Diskret::Polya: {
        // urn with N balls, M white; each drawn ball goes back with c more of its colour
        const double N = p[0], M = p[1], n = p[2], c = p[3];
        if (k < 0 || k > n) return kNull;
        double s = lnBinom(n, k);
        for (long i = 0; i < k; ++i) {
            const double w = M + i * c;
            if (w <= 0) return kNull;
            s += std::log(w);
        }
        for (long j = 0; j < n - k; ++j) {
            const double w = N - M + j * c;
            if (w <= 0) return kNull;
            s += std::log(w);
        }
        for (long t = 0; t < n; ++t) s -= std::log(N + t * c);
        return s;
    }
    case Diskret::NegativBinomial: {
        // k is the trial at which the r-th success happens
        const double r = p[0], q = p[1];
        if (k < r || q == 0) return kNull;
        if (q == 1) return k == r ? 0 : kNull;
        return lnBinom(k - 1.0, r - 1) + r * std::log(q) + (k - r) * std::log1p(-q);
    }
    }
    return kNaN;
}

void traeger(const DiskreteVerteilung& v, long& von, long& bis)
{
    von = 0;
    bis = -1;
    if (!parameterGueltig(v)) return;
    const auto& p = v.par;
    switch (v.art) {
    case Diskret::Binomial: bis = static_cast<long>(p[0]); break;
    case Diskret::Hypergeometrisch:
        von = static_cast<long>(std::max(0.0, p[2] - (p[0] - p[1])));
        bis = static_cast<long>(std::min(p[1], p[2]));
        break;
    case Diskret::Polya: bis = static_cast<long>(p[2]); break;
    case Diskret::Poisson: {
        const double s = std::sqrt(p[0]);
        bis = static_cast<long>(std::ceil(p[0] + 12 * s + 20));
        break;
    }
    case Diskret::NegativBinomial: {
        von = static_cast<long>(p[0]);
        const double m = p[0] / std::max(p[1], 1e-9), s = std::sqrt(p[0] * (1 - p[1])) / std::max(p[1], 1e-9);
        bis = static_cast<long>(std::ceil(std::min(m + 12 * s + 20, 1e7)));
        break;
    }
    }
}

double wahrscheinlichkeit(const DiskreteVerteilung& v, long k)
{
    const double l = lnWahrscheinlichkeit(v, k);
    if (std::isnan(l)) return fehler();
    return mitStatus(l);
}

double verteilung(const DiskreteVerteilung& v, long k)
{
    if (!parameterGueltig(v)) return fehler();
    verteilungsstatus = stGut;
    const auto& p = v.par;
    // closed forms keep long tails exact
    if (v.art == Diskret::Binomial && p[1] > 0 && p[1] < 1) {
        if (k < 0) return 0;
        if (k >= p[0]) return 1;
        return ibeta(p[0] - k, k + 1.0, 1 - p[1]);
    }
    if (v.art == Diskret::Poisson) return k < 0 ? 0 : igammaQ(k + 1.0, p[0]);
    long von, bis;
    traeger(v, von, bis);
    double s = 0;
    for (long i = von; i <= std::min(k, bis); ++i) {
        const double l = lnWahrscheinlichkeit(v, i);
        if (l > kUnterlauf) s += std::exp(l);
    }
    return std::min(s, 1.0);
}

double erwartungswert(const DiskreteVerteilung& v)
{
    if (!parameterGueltig(v)) return fehler(kNaN);
    const auto& p = v.par;
    switch (v.art) {
    case Diskret::Binomial: return p[0] * p[1];
    case Diskret::Poisson: return p[0];
    case Diskret::Hypergeometrisch:
    case Diskret::Polya: return p[0] > 0 ? p[2] * p[1] / p[0] : 0;
    case Diskret::NegativBinomial: return p[0] / p[1];
    }
    return kNaN;
}

double varianz(const DiskreteVerteilung& v)
{
    if (!parameterGueltig(v)) return fehler(kNaN);
    const auto& p = v.par;
    switch (v.art) {
    case Diskret::Binomial: return p[0] * p[1] * (1 - p[1]);
    case Diskret::Poisson: return p[0];
    case Diskret::Hypergeometrisch: {
        const double N = p[0], M = p[1], n = p[2];
        return N > 1 ? n * M / N * (1 - M / N) * (N - n) / (N - 1) : 0;
    }
    case Diskret::Polya: {
        const double N = p[0], M = p[1], n = p[2], c = p[3];
        return n * M / N * (1 - M / N) * (N + n * c) / (N + c);
    }
    case Diskret::NegativBinomial: return p[0] * (1 - p[1]) / (p[1] * p[1]);
    }
    return kNaN;
}

bool stetigNachName(const std::string& name, Stetig& art)
{
    static const char* const kurz[] = {"t", "chi2", "normal", "exp", "maxwell", "weibull", "f", "beta", "gamma", "fisher"};
    for (int i = 0; i < kStetigAnzahl; ++i)
        if (name == kurz[i]) {
            art = static_cast<Stetig>(i);
            return true;
        }
    return false;
}

bool diskretNachName(const std::string& name, Diskret& art)
{
    static const char* const kurz[] = {"binomial", "poisson", "hypergeo", "polya", "negbinomial"};
    for (int i = 0; i < kDiskretAnzahl; ++i)
        if (name == kurz[i]) {
            art = static_cast<Diskret>(i);
            return true;
        }
    return false;
}

}  // namespace zufall
