#include "kernel/specfun.h"

#include <algorithm>
#include <cmath>

namespace kernel {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTwoOverPi = 0.636619772367581343;

double horner(const double* c, int count, double t)
{
    double r = c[count - 1];
    for (int i = count - 2; i >= 0; --i)
        r = r * t + c[i];
    return r;
}

// Asymptotic amplitude and phase factors of J0/Y0 and J1/Y1 beyond 8 (Hart's rational forms).
void besselAsymptotic0(double ax, double& p, double& q, double& phase)
{
    const double z = 8.0 / ax, y = z * z;
    static const double P[] = {1.0, -0.1098628627e-2, 0.2734510407e-4, -0.2073370639e-5, 0.2093887211e-6};
    static const double Q[] = {-0.1562499995e-1, 0.1430488765e-3, -0.6911147651e-5, 0.7621095161e-6,
                               -0.934935152e-7};
    p = horner(P, 5, y);
    q = z * horner(Q, 5, y);
    phase = ax - 0.785398163397448310;
}

void besselAsymptotic1(double ax, double& p, double& q, double& phase)
{
    const double z = 8.0 / ax, y = z * z;
    static const double P[] = {1.0, 0.183105e-2, -0.3516396496e-4, 0.2457520174e-5, -0.240337019e-6};
    static const double Q[] = {0.04687499995, -0.2002690873e-3, 0.8449199096e-5, -0.88228987e-6,
                               0.105787412e-6};
    p = horner(P, 5, y);
    q = z * horner(Q, 5, y);
    phase = ax - 2.356194490192344929;
}

}  // namespace

double LnGamma(double x, bool& failed)
{
    static const double cof[6] = {76.18009173, -86.50532033, 24.01409822,
                                  -1.231739516, 0.00120858003, -0.00000536382};
    const double base = x + 4.5;
    if (!(base > 0) || base > 25) {
        failed = true;
        return 0;
    }
    double ser = 1.0;
    double xx = x - 1.0;
    for (double c : cof) {
        xx += 1.0;
        ser += c / xx;
    }
    if (!(ser > 0) || !std::isfinite(ser)) {
        failed = true;
        return 0;
    }
    return (x - 0.5) * std::log(base) - base + std::log(2.50662827465 * ser);
}

double GammaFunction(double x, bool& failed)
{
    bool f = false;
    const double lg = LnGamma(x, f);
    if (f || !(std::fabs(lg) < 25)) {
        failed = true;
        return 0;
    }
    return std::exp(lg);
}

double BesselJ0(double x)
{
    const double ax = std::fabs(x);
    if (ax < 8.0) {
        const double y = x * x;
        static const double R[] = {57568490574.0, -13362590354.0, 651619640.7, -11214424.18, 77392.33017,
                                   -184.9052456};
        static const double S[] = {57568490411.0, 1029532985.0, 9494680.718, 59272.64853, 267.8532712, 1.0};
        return horner(R, 6, y) / horner(S, 6, y);
    }
    double p, q, phase;
    besselAsymptotic0(ax, p, q, phase);
    return std::sqrt(kTwoOverPi / ax) * (std::cos(phase) * p - std::sin(phase) * q);
}

double BesselJ1(double x)
{
    const double ax = std::fabs(x);
    if (ax < 8.0) {
        const double y = x * x;
        static const double R[] = {72362614232.0, -7895059235.0, 242396853.1, -2972611.439, 15704.48260,
                                   -30.16036606};
        static const double S[] = {144725228442.0, 2300535178.0, 18583304.74, 99447.43394, 376.9991397, 1.0};
        return x * horner(R, 6, y) / horner(S, 6, y);
    }
    double p, q, phase;
    besselAsymptotic1(ax, p, q, phase);
    const double v = std::sqrt(kTwoOverPi / ax) * (std::cos(phase) * p - std::sin(phase) * q);
    return x < 0 ? -v : v;
}

double BesselY0(double x, bool& failed)
{
    if (!(x > 0)) {
        failed = true;
        return 0;
    }
    if (x < 8.0) {
        const double y = x * x;
        static const double R[] = {-2957821389.0, 7062834065.0, -512359803.6, 10879881.29, -86327.92757,
                                   228.4622733};
        static const double S[] = {40076544269.0, 745249964.8, 7189466.438, 47447.26470, 226.1030244, 1.0};
        return horner(R, 6, y) / horner(S, 6, y) + kTwoOverPi * BesselJ0(x) * std::log(x);
    }
    double p, q, phase;
    besselAsymptotic0(x, p, q, phase);
    return std::sqrt(kTwoOverPi / x) * (std::sin(phase) * p + std::cos(phase) * q);
}

double BesselY1(double x, bool& failed)
{
    if (!(x > 0)) {
        failed = true;
        return 0;
    }
    if (x < 8.0) {
        const double y = x * x;
        static const double R[] = {-0.4900604943e13, 0.1275274390e13, -0.5153438139e11, 0.7349264551e9,
                                   -0.4237922726e7, 0.8511937935e4};
        static const double S[] = {0.2499580570e14, 0.4244419664e12, 0.3733650367e10, 0.2245904002e8,
                                   0.1020426050e6, 0.3549632885e3, 1.0};
        return x * horner(R, 6, y) / horner(S, 7, y) + kTwoOverPi * (BesselJ1(x) * std::log(x) - 1.0 / x);
    }
    double p, q, phase;
    besselAsymptotic1(x, p, q, phase);
    return std::sqrt(kTwoOverPi / x) * (std::sin(phase) * p + std::cos(phase) * q);
}

double BesselJn(int n, double x, bool& failed)
{
    if (n < 2) {
        failed = true;
        return 0;
    }
    const double ax = std::fabs(x);
    if (ax == 0)
        return 0;
    double result;
    if (ax > n) {
        // Upward recurrence is stable once x exceeds the order.
        double jm = BesselJ0(ax), j = BesselJ1(ax);
        for (int k = 1; k < n; ++k) {
            const double jp = 2.0 * k / ax * j - jm;
            jm = j;
            j = jp;
        }
        result = j;
    } else {
        // Miller's downward recurrence from an even start, normalised by J0 + 2 (J2 + J4 + ...) = 1.
        constexpr double big = 10000000000.0, small = 1.0 / big;
        const int start = 2 * ((n + static_cast<int>(std::sqrt(40.0 * n))) / 2);
        double jp = 0, j = 1, sum = 0, ans = 0;
        bool even = false;
        for (int k = start; k > 0; --k) {
            const double jm = 2.0 * k / ax * j - jp;
            jp = j;
            j = jm;
            if (std::fabs(j) > big) {
                j *= small;
                jp *= small;
                ans *= small;
                sum *= small;
            }
            if (even)
                sum += j;
            even = !even;
            if (k == n)
                ans = jp;
        }
        sum = 2.0 * sum - j;
        result = ans / sum;
    }
    return (x < 0 && (n & 1)) ? -result : result;
}

double BesselYn(int n, double x, bool& failed)
{
    if (n < 2 || !(x > 0)) {
        failed = true;
        return 0;
    }
    double ym = BesselY0(x, failed), y = BesselY1(x, failed);
    for (int k = 1; k < n; ++k) {
        const double yp = 2.0 * k / x * y - ym;
        ym = y;
        y = yp;
    }
    return y;
}

double BesselI0(double x)
{
    const double ax = std::fabs(x);
    if (ax < 3.75) {
        const double t = (x / 3.75) * (x / 3.75);
        static const double C[] = {1.0, 3.5156229, 3.0899424, 1.2067492, 0.2659732, 0.0360768, 0.0045813};
        return horner(C, 7, t);
    }
    const double t = 3.75 / ax;
    static const double C[] = {0.39894228, 0.01328592, 0.00225319, -0.00157565, 0.00916281,
                               -0.02057706, 0.02635537, -0.01647633, 0.00392377};
    return std::exp(ax) / std::sqrt(ax) * horner(C, 9, t);
}

double BesselI1(double x)
{
    const double ax = std::fabs(x);
    double v;
    if (ax < 3.75) {
        const double t = (x / 3.75) * (x / 3.75);
        static const double C[] = {0.5, 0.87890594, 0.51498869, 0.15084934, 0.02658733, 0.00301532, 0.00032411};
        return x * horner(C, 7, t);
    }
    const double t = 3.75 / ax;
    static const double C[] = {0.39894228, -0.03988024, -0.00362018, 0.00163801, -0.01031555,
                               0.02282967, -0.02895312, 0.01787654, -0.00420059};
    v = std::exp(ax) / std::sqrt(ax) * horner(C, 9, t);
    return x < 0 ? -v : v;
}

double BesselK0(double x, bool& failed)
{
    if (!(x > 0)) {
        failed = true;
        return 0;
    }
    if (x <= 2.0) {
        const double t = x * x / 4.0;
        static const double C[] = {-0.57721566, 0.42278420, 0.23069756, 0.03488590,
                                   0.00262698, 0.00010750, 0.0000074};
        return -std::log(x / 2.0) * BesselI0(x) + horner(C, 7, t);
    }
    const double t = 2.0 / x;
    static const double C[] = {1.25331414, -0.07832358, 0.02189568, -0.01062446,
                               0.00587872, -0.00251540, 0.00053208};
    return std::exp(-x) / std::sqrt(x) * horner(C, 7, t);
}

double BesselK1(double x, bool& failed)
{
    if (!(x > 0)) {
        failed = true;
        return 0;
    }
    if (x <= 2.0) {
        const double t = x * x / 4.0;
        static const double C[] = {1.0, 0.15443144, -0.67278579, -0.18156897,
                                   -0.01919402, -0.00110404, -0.00004686};
        return std::log(x / 2.0) * BesselI1(x) + horner(C, 7, t) / x;
    }
    const double t = 2.0 / x;
    static const double C[] = {1.25331414, 0.23498619, -0.03655620, 0.01504268,
                               -0.00780353, 0.00325614, -0.00068245};
    return std::exp(-x) / std::sqrt(x) * horner(C, 7, t);
}

double BesselIn(int n, double x)
{
    if (n < 0)
        n = -n;
    if (n == 0)
        return BesselI0(x);
    if (n == 1)
        return BesselI1(x);
    if (x == 0)
        return 0;
    // Downward recurrence (Miller) normalised by I0; upward recurrence is unstable for I.
    constexpr double big = 10000000000.0, small = 1.0 / big;
    const double ax = std::fabs(x);
    // The start must lie well above both n and x, or the unwanted solution is not damped enough.
    const int top = std::max(n, static_cast<int>(ax));
    const int start = 2 * (top + static_cast<int>(std::sqrt(40.0 * top)));
    double ip = 0, i = 1, ans = 0;
    for (int k = start; k > 0; --k) {
        const double im = ip + 2.0 * k / ax * i;
        ip = i;
        i = im;
        if (std::fabs(i) > big) {
            ans *= small;
            i *= small;
            ip *= small;
        }
        if (k == n)
            ans = ip;
    }
    const double result = ans * BesselI0(ax) / i;
    return (x < 0 && (n & 1)) ? -result : result;
}

double BesselKn(int n, double x, bool& failed)
{
    if (n < 0)
        n = -n;
    if (!(x > 0)) {
        failed = true;
        return 0;
    }
    double km = BesselK0(x, failed), k = BesselK1(x, failed);
    if (n == 0)
        return km;
    for (int j = 1; j < n; ++j) {
        const double kp = km + 2.0 * j / x * k;
        km = k;
        k = kp;
    }
    return k;
}

double Digamma(double x, bool& failed)
{
    if (x <= 0 && std::fabs(x - std::round(x)) < 0.00001) {
        failed = true;
        return 0;
    }
    double reflection = 0;
    if (x < 0) {
        // psi(x) = psi(1 - x) - pi / tan(pi x)
        reflection = -kPi / std::tan(kPi * x);
        x = 1 - x;
    }
    double sum = 0;
    while (x < 10) {
        sum -= 1 / x;
        x += 1;
    }
    const double r = 1 / (x * x);
    // ln x - 1/(2x) - sum B_2k / (2k x^2k)
    const double tail = r * (1.0 / 12 - r * (1.0 / 120 - r * (1.0 / 252 - r * (1.0 / 240 - r * (1.0 / 132)))));
    return reflection + sum + std::log(x) - 0.5 / x - tail;
}

double SpecialFunction(int selector, bool& failed, double x, double second)
{
    const int n = static_cast<int>(std::lround(second));
    switch (selector) {
    case sfGamma: return GammaFunction(x, failed);
    case sfLnGamma: return LnGamma(x, failed);
    case sfBeta: {
        bool f = false;
        const double v = LnGamma(x, f) + LnGamma(second, f) - LnGamma(x + second, f);
        if (f) {
            failed = true;
            return 0;
        }
        return std::exp(v);
    }
    case sfBesselJ0: return BesselJ0(x);
    case sfBesselJ1: return BesselJ1(x);
    case sfBesselY0: return BesselY0(x, failed);
    case sfBesselY1: return BesselY1(x, failed);
    case sfBesselJn: return BesselJn(n, x, failed);
    case sfBesselYn: return BesselYn(n, x, failed);
    case sfBesselI0: return BesselI0(x);
    case sfBesselI1: return BesselI1(x);
    case sfBesselK0: return BesselK0(x, failed);
    case sfBesselK1: return BesselK1(x, failed);
    case sfBesselIn: return BesselIn(n, x);
    case sfBesselKn: return BesselKn(n, x, failed);
    case sfDigamma: return Digamma(x, failed);
    default: return 0;
    }
}

void JacobiSnCnDn(double& sn, double& cn, double& dn, double u, double emc)
{
    constexpr double ca = 0.0003;
    if (emc == 0) {
        // m = 1: the hyperbolic limit.
        cn = 1 / std::cosh(u);
        dn = cn;
        sn = std::tanh(u);
        return;
    }
    const bool negative = emc < 0;
    double d = 1;
    if (negative) {
        // Parameter above 1: transform to 1/m and rescale u.
        // m > 1: sn(u|m) = sn(u sqrt m | 1/m) / sqrt m, cn and dn change places.
        d = 1 - emc;
        emc = -emc / d;
        d = std::sqrt(d);
        u *= d;
    }
    double em[14], en[14];
    double a = 1, c = 1;
    dn = 1;
    int levels = 0;
    for (int i = 1; i <= 13; ++i) {
        levels = i;
        em[i] = a;
        emc = std::sqrt(emc);
        en[i] = emc;
        c = 0.5 * (a + emc);
        if (std::fabs(a - emc) <= ca * a)
            break;
        emc *= a;
        a = c;
    }
    u *= c;
    sn = std::sin(u);
    cn = std::cos(u);
    if (sn != 0) {
        a = cn / sn;
        c *= a;
        for (int i = levels; i >= 1; --i) {
            const double b = em[i];
            a *= c;
            c *= dn;
            dn = (en[i] + a) / (b + a);
            a = c / b;
        }
        a = 1 / std::sqrt(c * c + 1);
        sn = sn >= 0 ? a : -a;
        cn = c * sn;
    }
    if (negative) {
        a = dn;
        dn = cn;
        cn = a;
        sn /= d;
    }
}

void Airy(double& ai, double& bi, double x)
{
    constexpr double invSqrtPi = 0.564189583547756287;  // 1/sqrt(pi)
    constexpr double ai0 = 0.355028053887817239;        // Ai(0)
    constexpr double dai0 = 0.258819403792806798;       // -Ai'(0)
    constexpr double sqrt3 = 1.732050807568877294;
    if (x > 25.77) {
        ai = 0;
        bi = 10000000000.0;
        return;
    }
    const double ax = std::fabs(x);
    if (ax <= 6.0) {
        // Maclaurin series f and g, Ai = c1 f - c2 g, Bi = sqrt3 (c1 f + c2 g). For x > 0, Ai
        // is the small difference of two large sums (about exp(-2 zeta) of them), so the stop
        // is tightened by that factor there.
        const double x3 = x * x * x;
        const double stop = x > 0 ? 0.00000005 * std::exp(-4.0 / 3.0 * x * std::sqrt(x)) : 0.00000005;
        double f = 1, tf = 1, g = x, tg = x;
        for (int k = 0; k < 200; ++k) {
            tf *= x3 / ((3.0 * k + 2) * (3.0 * k + 3));
            tg *= x3 / ((3.0 * k + 3) * (3.0 * k + 4));
            f += tf;
            g += tg;
            if (std::fabs(tf) <= stop * std::fabs(f) && std::fabs(tg) <= stop * std::fabs(g))
                break;
        }
        ai = ai0 * f - dai0 * g;
        bi = sqrt3 * (ai0 * f + dai0 * g);
        return;
    }
    // Asymptotic expansions in zeta = 2/3 |x|^(3/2), with u_k = u_{k-1} (6k-5)(6k-3)(6k-1) / (216 k (2k-1)).
    const double zeta = 2.0 / 3.0 * ax * std::sqrt(ax);
    const double amp = invSqrtPi / std::sqrt(std::sqrt(ax));
    double u[20];
    u[0] = 1;
    for (int k = 1; k < 20; ++k)
        u[k] = u[k - 1] * (6.0 * k - 5) * (6.0 * k - 3) * (6.0 * k - 1) / (216.0 * k * (2.0 * k - 1));
    if (x > 0) {
        double sPlus = 0, sMinus = 0, p = 1;
        for (int k = 0; k < 20; ++k) {
            const double t = u[k] * p;
            if (k > 0 && t < 1e-17)
                break;
            sPlus += t;
            sMinus += (k & 1) ? -t : t;
            p /= zeta;
        }
        ai = 0.5 * amp * std::exp(-zeta) * sMinus;
        bi = amp * std::exp(zeta) * sPlus;
        return;
    }
    double P = 0, Q = 0, p = 1;
    for (int k = 0; k < 20; ++k) {
        const double t = u[k] * p;
        const int sign = ((k / 2) & 1) ? -1 : 1;
        if (k & 1)
            Q += sign * t;
        else
            P += sign * t;
        p /= zeta;
    }
    const double phase = zeta + 0.25 * kPi;
    ai = amp * (std::sin(phase) * P - std::cos(phase) * Q);
    bi = amp * (std::cos(phase) * P + std::sin(phase) * Q);
}

}  // namespace kernel
