// The quadratic sieve: A = q^2 polynomials, integer logarithms scaled by 65536, block sieving,
// trial division only where a root matches, large-prime relations, elimination over GF(2) on
// packed words and the square-root step.
#include "numbers/factor/mpqs.h"
#include "numbers/factor/mp_prime.h"
#include "numbers/mp_numth.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace numbers {

namespace {

constexpr double LogScale = 65536.0;
int32_t scaledLog(double v) { return static_cast<int32_t>(std::log(v) * LogScale); }

// FBsize and sieve length (hundreds) at 130..290 bits: the published points, linear between them.
struct Anchor {
    int bits, fb, len;
};
constexpr Anchor Anchors[] = {{130, 768, 80},    {160, 1376, 250},   {169, 2048, 370},  {200, 5440, 620},
                              {208, 6080, 620},  {249, 12000, 2400}, {250, 12032, 2400}, {290, 17440, 4500}};

uint32_t sqrtModPrime(uint32_t a, uint32_t p)
{
    a %= p;
    if (p == 2 || a == 0)
        return a;
    auto pw = [p](uint64_t b, uint64_t e) {
        uint64_t r = 1;
        b %= p;
        while (e) {
            if (e & 1)
                r = r * b % p;
            b = b * b % p;
            e >>= 1;
        }
        return r;
    };
    if (p % 4 == 3)
        return static_cast<uint32_t>(pw(a, (p + 1) / 4));
    // Tonelli-Shanks
    uint32_t q = p - 1;
    int s = 0;
    while (!(q & 1)) {
        q >>= 1;
        ++s;
    }
    uint32_t z = 2;
    while (pw(z, (p - 1) / 2) != p - 1u)
        ++z;
    uint64_t c = pw(z, q), r = pw(a, (q + 1) / 2), t = pw(a, q);
    int m = s;
    while (t != 1) {
        int i = 0;
        uint64_t tt = t;
        while (tt != 1) {
            tt = tt * tt % p;
            ++i;
        }
        uint64_t b = c;
        for (int j = 0; j < m - i - 1; ++j)
            b = b * b % p;
        r = r * b % p;
        c = b * b % p;
        t = t * c % p;
        m = i;
    }
    return static_cast<uint32_t>(r);
}

TVarInt mulMod(const TVarInt& a, const TVarInt& b, const TVarInt& m)
{
    TVarInt t, r;
    TVarInt::mul(a, b, t);
    TVarInt::divMod(t, m, nullptr, &r);
    if (r.sign() < 0)
        TVarInt::add(r, m, r);
    return r;
}

TVarInt modPos(const TVarInt& a, const TVarInt& m)
{
    TVarInt r;
    TVarInt::divMod(a, m, nullptr, &r);
    if (r.sign() < 0 && !r.isZero())
        TVarInt::add(r, m, r);
    return r;
}

// Residue arithmetic in doubles for p < 2^24: products stay below 2^48 and are exact, the
// quotient by the reciprocal is off by at most one and corrected without branches.
struct LimbPowers {
    static constexpr int Limbs = 8;  // q and B have at most 8 limbs of 30 bits
};
inline double dmodred(double x, double p, double ip)
{
    // rounding by the 1.5 * 2^52 shift avoids a conversion to integers and back
    const double shift = 6755399441055744.0;
    double r = x - ((x * ip + shift) - shift) * p;
    r += r < 0 ? p : 0;
    r -= r >= p ? p : 0;
    return r;
}
inline double dmodmul(double a, double b, double p, double ip) { return dmodred(a * b, p, ip); }
inline double dmodadd(double a, double b, double p)
{
    double r = a + b;
    return r >= p ? r - p : r;
}

uint64_t mulmod64(uint64_t a, uint64_t b, uint64_t m) { return uint64_t((unsigned __int128)a * b % m); }

uint64_t powmod64(uint64_t b, uint64_t e, uint64_t m)
{
    uint64_t r = 1 % m;
    b %= m;
    while (e) {
        if (e & 1)
            r = mulmod64(r, b, m);
        b = mulmod64(b, b, m);
        e >>= 1;
    }
    return r;
}

int jacobi64(uint64_t a, uint64_t n)
{
    int t = 1;
    a %= n;
    while (a) {
        while (!(a & 1)) {
            a >>= 1;
            uint64_t r = n & 7;
            if (r == 3 || r == 5)
                t = -t;
        }
        std::swap(a, n);
        if ((a & 3) == 3 && (n & 3) == 3)
            t = -t;
        a %= n;
    }
    return n == 1 ? t : 0;
}

uint64_t modWord64(const TVarInt& x, uint64_t m)
{
    unsigned __int128 r = 0;
    for (int j = x.length() - 1; j >= 0; --j)
        r = ((r << 30) | x.limb(j)) % m;
    return uint64_t(r);
}

struct Relation {
    TVarInt value;               // value^2 = product of the primes below, mod N
    std::vector<uint32_t> idx;   // factor-base indices with repetition; 0 stands for -1
    int poly1 = 0, poly2 = -1;
};

struct Partial {
    uint32_t large = 0;
    Relation rel;
};

// The partial store: a sorted list and an unsorted tail.
struct PartialStore {
    std::vector<Partial> sorted, tail;
    size_t size() const { return sorted.size() + tail.size(); }
    const Partial* find(uint32_t large) const
    {
        auto it = std::lower_bound(sorted.begin(), sorted.end(), large,
                                   [](const Partial& p, uint32_t v) { return p.large < v; });
        if (it != sorted.end() && it->large == large)
            return &*it;
        for (const Partial& p : tail)
            if (p.large == large)
                return &p;
        return nullptr;
    }
    void resort()
    {
        for (Partial& p : tail)
            sorted.push_back(std::move(p));
        tail.clear();
        std::sort(sorted.begin(), sorted.end(), [](const Partial& a, const Partial& b) { return a.large < b.large; });
    }
};

bool smallFactorFree(const TVarInt& q)
{
    static const uint32_t ps[20] = {3, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37, 41, 43, 47, 53, 59, 61, 67, 71, 73};
    for (uint32_t p : ps)
        if (TVarInt::modWord(q, p) == 0)
            return false;
    return true;
}

std::string pct(double v)
{
    char b[64];
    std::snprintf(b, sizeof b, "Fortschritt: %2.2f%%", v);
    return b;
}

}  // namespace

int decimalDigits(const TVarInt& n)
{
    std::string s = n.toDecimal();
    return static_cast<int>(s.size()) - (s[0] == '-' ? 1 : 0);
}

MpqsParams mpqsTableParams(int bits, int digits)
{
    MpqsParams p;
    auto set = [&p](int bw, int fb, int len) {
        p.blockWidth = bw;
        p.fbSize = fb;
        p.sieveLen = len;
    };
    if (bits < 40) {
        if (digits <= 6)
            set(2, 8, 80);
        else if (digits <= 8)
            set(2, 9, 100);
        else if (digits <= 10)
            set(4, 12, 150);
        else
            set(4, 12, 200);
    } else if (bits <= 75)
        set(8, 64, 300);
    else if (bits <= 90)
        set(16, 96, 800);
    else if (bits <= 105)
        set(16, 224, 1200);
    else if (bits <= 110)
        set(16, 272, 3000);
    else if (bits <= 115)
        set(16, 320, 5000);
    else if (bits <= 120)
        set(16, 560, 6000);
    else if (bits <= 125)
        set(16, 640, 7000);
    else if (bits <= 129)
        set(16, 768, 8000);
    else if (bits <= 290) {
        size_t i = 0;
        while (Anchors[i + 1].bits < bits)
            ++i;
        const Anchor &a = Anchors[i], &b = Anchors[i + 1];
        double t = double(bits - a.bits) / (b.bits - a.bits);
        set(32, int(a.fb + t * (b.fb - a.fb) + 0.5), 100 * int(a.len + t * (b.len - a.len) + 0.5));
    } else
        set(32, 17600, 500000);
    // limits of the sieve
    p.blockWidth = std::min(p.blockWidth, 32);
    p.fbSize = std::clamp(p.fbSize / p.blockWidth * p.blockWidth, p.blockWidth, 80000);
    p.sieveLen = std::min(p.sieveLen, 524288);
    return p;
}

void mpqsDigitParams(int d, MpqsParams& p)
{
    auto pick = [d](auto under, auto between, auto over, int lo, int hi) {
        return d < lo ? under : (d <= hi ? between : over);
    };
    p.digitsKN = d;
    p.skip = pick(12, 14, 17, 64, 70);
    if (d < 53)
        p.skip = 9;
    p.storeFactor = pick(5, 6, 7, 55, 64);
    if (d > 81)
        p.storeFactor = 9;
    p.lpMultiplier = pick(100, 200, 300, 55, 63);
    p.period = pick(8, 10, 12, 50, 62);
    p.fudge = pick(3.0, 4.0, 5.5, 50, 61);
    if (d >= 65) {
        static const double f65[] = {6.0, 6.0, 6.25, 6.75, 7.5, 7.5, 7.5, 7.5, 8.0, 8.75, 9.0, 9.25, 9.5, 9.75, 10.0, 10.25};
        p.fudge = d <= 80 ? f65[d - 65] : 10.5;
    }
}

uint32_t mpqsMultiplier(const TVarInt& n, int fbSize)
{
    static const uint32_t cand[49] = {1,  2,  3,  5,  7,  11, 13, 14, 17, 19, 21, 22, 23, 26, 29, 30, 31,
                                      34, 35, 37, 38, 39, 41, 42, 43, 46, 47, 51, 53, 55, 57, 58, 59, 61,
                                      62, 65, 66, 67, 69, 70, 71, 73, 74, 77, 79, 83, 89, 97, 101};
    fillPrimeTable(2000000);
    uint32_t n8 = TVarInt::modWord(n, 8);
    std::vector<std::pair<int64_t, uint32_t>> score;
    std::vector<uint32_t> nmod;
    int count = std::min<int>(fbSize, int(primeTable.size()) - 1);
    for (int i = 1; i <= count; ++i)
        nmod.push_back(TVarInt::modWord(n, primeTable[i]));
    for (uint32_t k : cand) {
        int64_t s = 22713;
        uint32_t kn8 = (k * n8) & 7;
        if (kn8 == 1)
            s *= 4;
        else if (kn8 == 5)
            s *= 2;
        if (k == 2)
            s = int64_t(s * 2.25);
        else
            s -= scaledLog(k) / 4;
        for (int i = 1; i <= count; ++i) {
            uint32_t p = primeTable[i];
            int64_t c = scaledLog(p) / p;
            int j = jacobi32(int32_t(nmod[i - 1]), p) * jacobi32(int32_t(k % p), p);
            if (j == 1)
                s += 2 * c;
            else if (j == 0)
                s += c;
        }
        score.push_back({s, k});
    }
    std::sort(score.begin(), score.end(), [](auto& a, auto& b) { return a.first > b.first; });
    uint32_t k1 = score[0].second, k2 = score[1].second;
    double g = double(score[0].first - score[1].first) / LogScale;
    if (k2 < k1 && ((!isPrime32(k1) && g < 0.21) || (g < 0.15 && k2 != 2)))
        return k2;
    return k1;
}

MpqsParams mpqsParameters(const TVarInt& n)
{
    MpqsParams p = mpqsTableParams(n.bitLength(), decimalDigits(n));
    p.multiplier = mpqsMultiplier(n, p.fbSize);
    TVarInt kn;
    TVarInt::mul(n, TVarInt(int64_t(p.multiplier)), kn);
    mpqsDigitParams(decimalDigits(kn), p);
    return p;
}

MpqsOutcome mpqsSplit(const TVarInt& N, const MpqsParams& P, TVarInt& d, FactorHooks* hooks, MpqsStats* stats)
{
    MpqsStats localStats;
    MpqsStats& st = stats ? *stats : localStats;
    fillPrimeTable(PrimeTableBound);
    TVarInt kN;
    TVarInt::mul(N, TVarInt(int64_t(P.multiplier)), kN);
    const int F = P.fbSize;

    // factor base, 1-based: index 1 is 2
    std::vector<uint32_t> fb(F + 1), root(F + 1);
    std::vector<int32_t> lg(F + 1);
    fb[1] = 2;
    root[1] = TVarInt::modWord(kN, 2);
    lg[1] = scaledLog(2);
    {
        int i = 2;
        for (size_t t = 1; t < primeTable.size() && i <= F; ++t) {
            uint32_t p = primeTable[t];
            uint32_t r = TVarInt::modWord(kN, p);
            if (r == 0) {
                if (TVarInt::modWord(N, p) == 0) {  // a factor of N itself
                    d = TVarInt(int64_t(p));
                    return MpqsOutcome::Split;
                }
                continue;
            }
            if (jacobi32(int32_t(r), p) != 1)
                continue;
            fb[i] = p;
            root[i] = sqrtModPrime(r, p);
            lg[i] = scaledLog(p);
            ++i;
        }
        if (i <= F)
            return MpqsOutcome::NoSplit;
    }
    const int skip = std::min(P.skip, F);
    const int32_t M = std::max(P.sieveLen, 32);
    const uint32_t largest = fb[F];
    const uint64_t largeBound = std::min<uint64_t>(uint64_t(largest) * P.lpMultiplier, 1u << 30);

    // threshold
    int64_t u;
    uint32_t kn8 = TVarInt::modWord(kN, 8);
    if (kn8 == 1) {
        u = 3 * lg[1] / 2;
        for (int i = 4; i <= F; ++i) {
            int64_t term = (int64_t(lg[i]) * i) >> i;
            u += term;
            if (term < 100)
                break;
        }
    } else if (kn8 == 5)
        u = lg[1];
    else
        u = lg[1] / 2;
    for (int i = 2; i < skip; ++i)
        u += lg[i] / (fb[i] - 1);
    TVarInt sq;
    TVarInt::isqrt(kN, sq);
    const double lnSqrtKN = 0.5 * (kN.bitLength() * std::log(2.0));
    const int64_t Tl = int64_t(lnSqrtKN * LogScale) - scaledLog(largest) / 4 - u - int64_t(LogScale * P.fudge);
    const int32_t T = int32_t(std::max<int64_t>(Tl, 1));

    // the first q: root of sqrt(2 kN) / M, brought down to 3 mod 4
    TVarInt q, t2;
    TVarInt::shiftLeft(kN, 1, t2);
    TVarInt::isqrt(t2, t2);
    TVarInt::divWord(t2, uint32_t(M), t2);
    TVarInt::isqrt(t2, q);
    if (TVarInt::compare(q, TVarInt(int64_t(11))) < 0)
        q = TVarInt(int64_t(11));
    while (TVarInt::modWord(q, 4) != 3)
        TVarInt::sub(q, TVarInt(1), q);

    const size_t needed = size_t(F) + P.blockWidth + 1;
    const size_t storeMax = size_t(P.storeFactor) * F;
    std::vector<Relation> fulls;
    PartialStore partials;
    const int cellsPerBlock = int(std::min<int64_t>(2 * int64_t(M), 65536));
    std::vector<int32_t> cells((cellsPerBlock + 15) / 16 * 16 + 16, 0);
    std::vector<double> invp(F + 1);
    for (int i = 1; i <= F; ++i)
        invp[i] = 1.0 / fb[i];
    // residues as doubles: the prime, its roots, M mod p and 2^(30 k) mod p
    std::vector<double> dp(F + 1), droot(F + 1), droot2(F + 1), dmm(F + 1), dpw(size_t(2 * LimbPowers::Limbs) * (F + 1));
    for (int i = 1; i <= F; ++i) {
        dp[i] = fb[i];
        droot[i] = root[i];
        droot2[i] = root[i] ? fb[i] - root[i] : 0;
        dmm[i] = M % fb[i];
        uint64_t b = (uint64_t(1) << 15) % fb[i], v = 1 % fb[i];
        for (int k = 0; k < 2 * LimbPowers::Limbs; ++k) {
            dpw[size_t(k) * (F + 1) + i] = double(v);
            v = v * b % fb[i];
        }
    }
    // the polynomials are made in batches of 2 * period: one modular inverse per prime and batch
    const int batch = std::max(2, 2 * P.period);
    struct Poly {
        TVarInt q, A, B, C, qinv;
    };
    std::vector<Poly> polys;
    std::vector<uint32_t> s1(size_t(batch) * (F + 1)), s2(size_t(batch) * (F + 1));
    std::vector<uint32_t> n1(F + 1), n2(F + 1);
    std::vector<double> dqm(size_t(batch) * (F + 1)), dpre(size_t(batch) * (F + 1)), dacc(F + 1), dinv(F + 1), dsum(F + 1);
    std::vector<uint8_t> noRoot(size_t(batch) * (F + 1));
    double t0 = factorNowMs(), lastTick = t0;
    TVarInt Ax, Q, tmp, v;
    const TVarInt one(1), eight(8192);
    std::vector<uint32_t> found;
    int polyCount = 0;

    while (fulls.size() < needed) {
        polys.clear();
        while (int(polys.size()) < batch) {
            // next q = 3 mod 4: no factor up to 73, 8192^q = 8192 mod q, Jacobi(kN, q) = 1
            int64_t q64;
            if (q.fitsInt64(q64) && q64 < (int64_t(1) << 61)) {
                // the same walk in machine words
                static const uint32_t ps[20] = {3, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37, 41, 43, 47, 53, 59, 61, 67, 71, 73};
                uint64_t u = uint64_t(q64);
                for (;;) {
                    u += 4;
                    bool ok = true;
                    for (uint32_t sp : ps)
                        if (u % sp == 0) {
                            ok = false;
                            break;
                        }
                    if (!ok || (u > 8192 && powmod64(8192, u, u) != 8192))
                        continue;
                    if (jacobi64(modWord64(kN, u), u) != 1)
                        continue;
                    break;
                }
                q = TVarInt(int64_t(u));
            } else
            for (;;) {
                TVarInt::add(q, TVarInt(4), q);
                if (!smallFactorFree(q))
                    continue;
                TVarInt f;
                TVarInt::powMod(eight, q, q, f);
                if (TVarInt::compare(f, eight) != 0 && TVarInt::compare(q, eight) > 0)
                    continue;
                if (TVarInt::jacobi(modPos(kN, q), q) != 1)
                    continue;
                break;
            }
            TVarInt g;
            TVarInt::gcd(q, N, g);
            if (TVarInt::compare(g, one) != 0 && TVarInt::compare(g, N) != 0) {
                d = g;
                return MpqsOutcome::Split;
            }
            // B^2 = kN mod q^2 by the root mod q and one Newton lift
            Poly pl;
            pl.q = q;
            TVarInt::mul(q, q, pl.A);
            TVarInt e, r, inv2r, diff, r2;
            TVarInt::add(q, one, e);
            TVarInt::shiftRight(e, 2, e);
            TVarInt::powMod(modPos(kN, q), e, q, r);
            TVarInt::mul(r, r, r2);
            TVarInt::sub(kN, r2, diff);
            TVarInt::divMod(diff, q, &diff, nullptr);  // exact
            diff = modPos(diff, q);
            TVarInt::shiftLeft(r, 1, tmp);
            if (!TVarInt::invMod(modPos(tmp, q), q, inv2r))
                continue;
            TVarInt::mul(mulMod(diff, inv2r, q), q, tmp);
            TVarInt::add(r, tmp, pl.B);
            pl.B = modPos(pl.B, pl.A);
            TVarInt AB;
            TVarInt::sub(pl.A, pl.B, AB);
            if (TVarInt::compare(AB, pl.B) < 0)
                pl.B = AB;
            TVarInt::mul(pl.B, pl.B, tmp);
            TVarInt::sub(tmp, kN, tmp);
            TVarInt::divMod(tmp, pl.A, &pl.C, &r);
            if (!r.isZero())
                continue;  // not a root: skip this q
            if (!TVarInt::invMod(modPos(q, N), N, pl.qinv))
                continue;
            polys.push_back(std::move(pl));
        }
        const int nb = int(polys.size());

        // roots of every polynomial for each prime, as cell offsets from x = -M; the inverses of
        // q^2 mod p for the whole batch come from one inverse by running products
        // Done in doubles over all primes at once (exact below 2^52), without integer division.
        // a number as halves of 15 bits: their products with 2^(15 m) mod p sum exactly
        auto halvesOf = [](const TVarInt& x, double* h) {
            int n = std::min(x.length(), LimbPowers::Limbs);
            for (int k = 0; k < n; ++k) {
                h[2 * k] = double(x.limb(k) & 0x7FFF);
                h[2 * k + 1] = double(x.limb(k) >> 15);
            }
            return 2 * n;
        };
        std::fill(dacc.begin(), dacc.end(), 1.0);
        for (int j = 0; j < nb; ++j) {
            double qh[2 * LimbPowers::Limbs];
            int nh = halvesOf(polys[j].q, qh);
            double* qmj = &dqm[size_t(j) * (F + 1)];
            double* prej = &dpre[size_t(j) * (F + 1)];
            uint8_t* nrj = &noRoot[size_t(j) * (F + 1)];
            // q mod p for all primes at once: row by row of 2^(15 k) mod p, contiguous in i
            std::fill(dsum.begin(), dsum.end(), 0.0);
            for (int k = 0; k < nh; ++k) {
                const double h = qh[k];
                const double* row = &dpw[size_t(k) * (F + 1)];
                for (int i = 2; i <= F; ++i)
                    dsum[i] += h * row[i];
            }
            for (int i = 2; i <= F; ++i) {
                const double p = dp[i], ip = invp[i];
                double a = dmodred(dsum[i], p, ip);
                a = dmodmul(a, a, p, ip);
                nrj[i] = a == 0.0;
                a = a == 0.0 ? 1.0 : a;
                qmj[i] = a;
                prej[i] = dacc[i];
                dacc[i] = dmodmul(dacc[i], a, p, ip);
            }
        }
        for (int i = 2; i <= F; ++i)
            dinv[i] = double(invmod32(uint32_t(dacc[i]), fb[i]));
        for (int j = nb - 1; j >= 0; --j) {
            double bh[2 * LimbPowers::Limbs];
            int nh = halvesOf(polys[j].B, bh);
            const double* qmj = &dqm[size_t(j) * (F + 1)];
            const double* prej = &dpre[size_t(j) * (F + 1)];
            uint32_t* r1 = &s1[size_t(j) * (F + 1)];
            uint32_t* r2 = &s2[size_t(j) * (F + 1)];
            std::fill(dsum.begin(), dsum.end(), 0.0);
            for (int k = 0; k < nh; ++k) {
                const double h = bh[k];
                const double* row = &dpw[size_t(k) * (F + 1)];
                for (int i = 2; i <= F; ++i)
                    dsum[i] += h * row[i];
            }
            for (int i = 2; i <= F; ++i) {
                const double p = dp[i], ip = invp[i];
                double ai = dmodmul(dinv[i], prej[i], p, ip);  // 1 / qm
                dinv[i] = dmodmul(dinv[i], qmj[i], p, ip);
                double bm = dmodred(dsum[i], p, ip);
                double ra = dmodmul(dmodadd(droot[i], p - bm, p), ai, p, ip);
                double rb = dmodmul(dmodadd(droot2[i], p - bm, p), ai, p, ip);
                r1[i] = uint32_t(dmodadd(ra, dmm[i], p));
                r2[i] = uint32_t(dmodadd(rb, dmm[i], p));
            }
        }

        for (int j = 0; j < nb; ++j) {
            const Poly& pl = polys[j];
            const uint32_t* r1 = &s1[size_t(j) * (F + 1)];
            const uint32_t* r2 = &s2[size_t(j) * (F + 1)];
            const uint8_t* nr = &noRoot[size_t(j) * (F + 1)];
            ++polyCount;
            ++st.polynomials;
            std::copy(r1, r1 + F + 1, n1.begin());
            std::copy(r2, r2 + F + 1, n2.begin());
            for (int64_t b0 = 0; b0 < 2 * int64_t(M); b0 += cellsPerBlock) {
                int len = int(std::min<int64_t>(cellsPerBlock, 2 * int64_t(M) - b0));
                int32_t* c = cells.data();
                std::fill(c, c + (len + 15) / 16 * 16, 0);
                for (int i = skip; i <= F; ++i) {
                    if (nr[i])
                        continue;
                    const uint32_t p = fb[i];
                    const int32_t l = lg[i];
                    uint32_t a = n1[i], b = n2[i];
                    for (; a < uint32_t(len); a += p)
                        c[a] += l;
                    for (; b < uint32_t(len); b += p)
                        c[b] += l;
                    n1[i] = a - len;
                    n2[i] = b - len;
                }
                for (int j0 = 0; j0 < len; j0 += 16) {
                    int over = 0;
                    for (int k = 0; k < 16; ++k)
                        over |= c[j0 + k] > T;
                    if (!over)
                        continue;
                    for (int jj = j0; jj < j0 + 16 && jj < len; ++jj) {
                        if (c[jj] <= T)
                            continue;
                        ++st.candidates;
                        int64_t idx = b0 + jj;
                        int64_t x = idx - M;
                        // Q(x) = (A x + 2B) x + C
                        TVarInt X(x);
                        TVarInt::mul(pl.A, X, Ax);
                        TVarInt::add(Ax, pl.B, Ax);
                        TVarInt::add(Ax, pl.B, tmp);
                        TVarInt::mul(tmp, X, Q);
                        TVarInt::add(Q, pl.C, Q);
                        if (Q.isZero())
                            continue;
                        found.clear();
                        if (Q.sign() < 0) {
                            found.push_back(0);
                            TVarInt::sub(TVarInt(), Q, Q);
                        }
                        while (!Q.isOdd()) {
                            TVarInt::shiftRight(Q, 1, Q);
                            found.push_back(1);
                        }
                        for (int i = 2; i <= F; ++i) {
                            const uint32_t p = fb[i];
                            bool test;
                            if (i < skip || nr[i])
                                test = TVarInt::modWord(Q, p) == 0;
                            else {
                                // idx mod p through the real reciprocal, corrected by one step
                                int64_t m = idx - int64_t(double(idx) * invp[i]) * p;
                                if (m < 0)
                                    m += p;
                                else if (m >= p)
                                    m -= p;
                                test = uint32_t(m) == r1[i] || uint32_t(m) == r2[i];
                            }
                            if (!test)
                                continue;
                            while (TVarInt::modWord(Q, p) == 0) {
                                TVarInt::divWord(Q, p, Q);
                                found.push_back(uint32_t(i));
                            }
                        }
                        int64_t rest;
                        if (!Q.fitsInt64(rest) || rest >= int64_t(largeBound))
                            continue;
                        // value: (A x + B) / q mod N, its square is Q(x) mod N
                        v = mulMod(modPos(Ax, N), pl.qinv, N);
                        if (rest == 1) {
                            fulls.push_back({v, found, polyCount, -1});
                            ++st.fullDirect;
                            continue;
                        }
                        uint32_t large = uint32_t(rest);
                        if (const Partial* mate = partials.find(large)) {
                            TVarInt li;
                            if (!TVarInt::invMod(TVarInt(int64_t(large)), N, li))
                                continue;
                            Relation rel;
                            rel.value = mulMod(mulMod(mate->rel.value, v, N), li, N);
                            rel.idx = mate->rel.idx;
                            rel.idx.insert(rel.idx.end(), found.begin(), found.end());
                            rel.poly1 = mate->rel.poly1;
                            rel.poly2 = polyCount;
                            fulls.push_back(std::move(rel));
                            ++st.fullCombined;
                        } else if (partials.size() < storeMax) {
                            partials.tail.push_back({large, {v, found, polyCount, -1}});
                            ++st.partials;
                        }
                    }
                }
            }
        }

        double now = factorNowMs();
        if (now - lastTick >= 1000 || fulls.size() >= needed) {
            lastTick = now;
            if (partials.tail.size() >= 1024)
                partials.resort();
            if (hooks) {
                double frac = double(fulls.size()) / double(needed);
                double secs = (now - t0) / 1000.0;
                char buf[160];
                if (frac > 0.001)
                    std::snprintf(buf, sizeof buf, "%s     Berechnungsdauer: %.0f s     noch %.0f s",
                                  pct(100 * frac).c_str(), secs, secs * (1 - frac) / frac);
                else
                    std::snprintf(buf, sizeof buf, "%s", pct(100 * frac).c_str());
                hooks->status(buf);
                if (hooks->yield()) {
                    hooks->addLine("Abbruch");
                    return MpqsOutcome::Aborted;
                }
            }
        }
    }
    fulls.resize(needed);

    // Rows with a prime of odd exponent that no other row has can be in no dependency: drop them
    // (and the emptied columns) before the elimination.
    std::vector<std::vector<uint32_t>> odd(fulls.size());
    for (size_t r = 0; r < fulls.size(); ++r) {
        std::vector<uint32_t> v = fulls[r].idx;
        std::sort(v.begin(), v.end());
        for (size_t k = 0; k < v.size();) {
            size_t e = k;
            while (e < v.size() && v[e] == v[k])
                ++e;
            if ((e - k) & 1)
                odd[r].push_back(v[k]);
            k = e;
        }
    }
    std::vector<uint8_t> alive(fulls.size(), 1);
    std::vector<int> colCount(F + 1);
    for (bool changed = true; changed;) {
        changed = false;
        std::fill(colCount.begin(), colCount.end(), 0);
        for (size_t r = 0; r < fulls.size(); ++r)
            if (alive[r])
                for (uint32_t i : odd[r])
                    ++colCount[i];
        for (size_t r = 0; r < fulls.size(); ++r)
            if (alive[r])
                for (uint32_t i : odd[r])
                    if (colCount[i] == 1) {
                        alive[r] = 0;
                        changed = true;
                        break;
                    }
    }
    std::vector<int> rowOf;  // matrix row -> relation
    for (size_t r = 0; r < fulls.size(); ++r)
        if (alive[r])
            rowOf.push_back(int(r));
    std::vector<int> colOf(F + 1, -1);
    int cols = 0;
    for (int i = 0; i <= F; ++i)
        if (colCount[i] > 0)
            colOf[i] = cols++;

    // elimination over GF(2): each row is [exponent parities | identity], packed in 32-bit words
    const int R = int(rowOf.size());
    const int wm = (cols + 31) / 32, wi = (R + 31) / 32, W = wm + wi;
    std::vector<uint32_t> mat(size_t(R) * W, 0);
    for (int r = 0; r < R; ++r) {
        uint32_t* row = &mat[size_t(r) * W];
        for (uint32_t i : odd[rowOf[r]]) {
            uint32_t c = uint32_t(colOf[i]);
            row[c >> 5] ^= 1u << (c & 31);
        }
        row[wm + (r >> 5)] |= 1u << (r & 31);
    }
    int rank = 0;
    for (int c = 0; c < cols && rank < R; ++c) {
        const int w = c >> 5;
        const uint32_t bit = 1u << (c & 31);
        int piv = -1;
        for (int r = rank; r < R; ++r)
            if (mat[size_t(r) * W + w] & bit) {
                piv = r;
                break;
            }
        if (piv < 0)
            continue;
        uint32_t* pr = &mat[size_t(piv) * W];
        uint32_t* rr = &mat[size_t(rank) * W];
        if (piv != rank)
            for (int k = w; k < W; ++k)
                std::swap(pr[k], rr[k]);
        for (int r = rank + 1; r < R; ++r) {
            uint32_t* row = &mat[size_t(r) * W];
            if (row[w] & bit)
                for (int k = w; k < W; ++k)
                    row[k] ^= rr[k];
        }
        ++rank;
        if (hooks && c % 500 == 499) {
            hooks->status(pct(100.0 * c / cols));
            if (hooks->yield()) {
                hooks->addLine("Abbruch");
                return MpqsOutcome::Aborted;
            }
        }
    }

    // square roots of the dependencies
    std::vector<uint32_t> ex(F + 1);
    for (int r = rank; r < R; ++r) {
        const uint32_t* row = &mat[size_t(r) * W];
        TVarInt X(1), Y(1);
        std::fill(ex.begin(), ex.end(), 0);
        int used = 0;
        for (int j = 0; j < R; ++j) {
            if (!((row[wm + (j >> 5)] >> (j & 31)) & 1))
                continue;
            X = mulMod(X, fulls[rowOf[j]].value, N);
            for (uint32_t i : fulls[rowOf[j]].idx)
                ++ex[i];
            ++used;
            if (hooks && used % 25 == 0 && hooks->yield()) {
                hooks->addLine("Abbruch");
                return MpqsOutcome::Aborted;
            }
        }
        if (used == 0)
            continue;
        ++st.dependencies;
        bool even = true;
        for (int i = 0; i <= F; ++i)
            even = even && !(ex[i] & 1);
        for (int i = 1; i <= F && even; ++i)
            for (uint32_t e = 0; e < ex[i] / 2; ++e)
                Y = mulMod(Y, TVarInt(int64_t(fb[i])), N);
        if (!even || TVarInt::compare(mulMod(X, X, N), mulMod(Y, Y, N)) != 0) {
            ++st.squareFailures;
            if (hooks)
                hooks->addLine("Fehler");
            continue;
        }
        TVarInt s, g;
        TVarInt::add(X, Y, s);
        TVarInt::gcd(s, N, g);
        if (TVarInt::compare(g, one) > 0 && TVarInt::compare(g, N) < 0) {
            d = g;
            return MpqsOutcome::Split;
        }
    }
    return MpqsOutcome::NoSplit;
}

}  // namespace numbers
