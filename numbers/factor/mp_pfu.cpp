// Pollard rho (Barrett reduction, groups of 256 steps) and ECM after Brent and Montgomery:
// stage 1 by the Montgomery ladder over (x : z), stage 2 with a table of baby steps and giant steps.
#include "numbers/factor/mp_pfu.h"
#include "numbers/factor/mp_prime.h"
#include "numbers/mp_int.h"
#include "numbers/mp_internal.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace numbers {

double factorNowMs()
{
    using namespace std::chrono;
    return duration<double, std::milli>(steady_clock::now().time_since_epoch()).count();
}

std::string factorTimeText(double ms)
{
    char buf[64];
    double s = ms / 1000.0;
    if (s < 60)
        std::snprintf(buf, sizeof buf, "%.3f s", s);
    else if (s < 3600)
        std::snprintf(buf, sizeof buf, "%dmin %.4fs", int(s / 60), s - 60 * int(s / 60));
    else if (s < 86400)
        std::snprintf(buf, sizeof buf, "%dh %dmin %.4fs", int(s / 3600), int(s / 60) % 60, s - 60 * int(s / 60));
    else
        return "mehr als 1 Tag";
    return buf;
}

// ------------------------------------------------------------------ Pollard rho

void mp_pollard_rho(const mp_int& n, mp_int& f, int32_t count, FactorHooks* hooks)
{
    if (mp_error)
        return;
    if (mp_cmp_int(n, 4) < 0) {
        mp_copy(n, f);
        return;
    }
    mp_tmp x, y, d, prod, mu, g;
    mp_reduce_setup(n, mu);
    auto step = [&](mp_int& v) {
        mp_sqr(v, v);
        mp_add_d(v, 2, v);
        if (mp_cmp_mag(v, n) >= 0)
            mp_reduce(v, n, mu);
    };
    auto start = [&] {
        mp_rand(x, std::max<int32_t>(1, n.used - 1));
        mp_mod(x, n, x);
        mp_copy(x, y);
    };
    start();
    double t0 = factorNowMs();
    for (int32_t group = 0; group < count; ++group) {
        mp_set1(prod);
        for (int i = 0; i < 256; ++i) {
            step(x);
            step(y);
            step(y);
            mp_sub(x, y, d);
            d.v.sign = MP_ZPOS;  // |x - y|
            mp_mul(prod, d, prod);
            mp_reduce(prod, n, mu);
        }
        mp_gcd(prod, n, g);
        if (hooks) {
            ++hooks->rhoGroups;
            hooks->rhoGroup(hooks->rhoGroups, factorNowMs() - t0);
            if (hooks->yield())
                break;
        }
        if (mp_cmp_int(g, 1) > 0 && mp_is_lt(g, n)) {
            mp_copy(g, f);
            return;
        }
        if (mp_is_eq(g, n))
            start();  // the cycle closed for all factors at once: a new start
    }
    mp_zero(f);
}

// ------------------------------------------------------------------ elliptic curves

namespace {

// Arithmetic modulo n in Montgomery form; (x : z) is projective, so only a24 needs the form.
struct MontCtx {
    const mp_int& n;
    mp_digit rho = 0;
    mp_tmp t;
    explicit MontCtx(const mp_int& m) : n(m) { mp_montgomery_setup(n, rho); }
    void mul(const mp_int& a, const mp_int& b, mp_int& c)
    {
        mp_mul(a, b, t);
        mp_montgomery_reduce(t, n, rho);
        mp_exch(t.v, c);
    }
    void sqr(const mp_int& a, mp_int& c)
    {
        mp_sqr(a, t);
        mp_montgomery_reduce(t, n, rho);
        mp_exch(t.v, c);
    }
    void add(const mp_int& a, const mp_int& b, mp_int& c)
    {
        mp_add(a, b, c);
        if (mp_cmp_mag(c, n) >= 0)
            mp_sub(c, n, c);
    }
    void sub(const mp_int& a, const mp_int& b, mp_int& c)
    {
        mp_sub(a, b, c);
        if (c.sign == MP_NEG)
            mp_add(c, n, c);
    }
};

struct Pt {
    mp_tmp x, z;
};

void copyPt(const Pt& a, Pt& b)
{
    mp_copy(a.x, b.x);
    mp_copy(a.z, b.z);
}

// r := 2p
void dbl(MontCtx& m, const mp_int& a24, const Pt& p, Pt& r, mp_int& t1, mp_int& t2, mp_int& t3)
{
    m.add(p.x, p.z, t1);
    m.sqr(t1, t1);
    m.sub(p.x, p.z, t2);
    m.sqr(t2, t2);
    m.sub(t1, t2, t3);
    m.mul(t1, t2, r.x);
    m.mul(a24, t3, t1);
    m.add(t1, t2, t1);
    m.mul(t3, t1, r.z);
}

// r := p + q with d = p - q
void dadd(MontCtx& m, const Pt& p, const Pt& q, const Pt& d, Pt& r, mp_int& t1, mp_int& t2, mp_int& t3)
{
    m.sub(p.x, p.z, t1);
    m.add(q.x, q.z, t2);
    m.mul(t1, t2, t1);  // u
    m.add(p.x, p.z, t2);
    m.sub(q.x, q.z, t3);
    m.mul(t2, t3, t2);  // v
    m.add(t1, t2, t3);
    m.sqr(t3, t3);
    m.sub(t1, t2, t1);
    m.sqr(t1, t1);
    m.mul(d.z, t3, t3);
    m.mul(d.x, t1, r.z);
    mp_exch(t3, r.x);
}

// p := k p by the Montgomery ladder
void ladder(MontCtx& m, const mp_int& a24, Pt& p, uint64_t k)
{
    if (k == 1)
        return;
    Pt r0, r1, tmp;
    mp_tmp t1, t2, t3;
    copyPt(p, r0);
    dbl(m, a24, p, r1, t1, t2, t3);
    int top = 63 - __builtin_clzll(k);
    for (int i = top - 1; i >= 0; --i) {
        if ((k >> i) & 1) {
            dadd(m, r1, r0, p, tmp, t1, t2, t3);
            copyPt(tmp, r0);
            dbl(m, a24, r1, tmp, t1, t2, t3);
            copyPt(tmp, r1);
        } else {
            dadd(m, r1, r0, p, tmp, t1, t2, t3);
            copyPt(tmp, r1);
            dbl(m, a24, r0, tmp, t1, t2, t3);
            copyPt(tmp, r0);
        }
    }
    copyPt(r0, p);
}

void ladderBig(MontCtx& m, const mp_int& a24, Pt& p, uint64_t k)
{
    if (k == 0) {
        mp_set1(p.x);
        mp_zero(p.z);
        return;
    }
    ladder(m, a24, p, k);
}

// Outcome of a gcd test: 0 none (gcd 1), 1 factor, 2 gcd = n (next curve).
int testGcd(const mp_int& v, const mp_int& n, mp_int& f)
{
    mp_tmp g;
    mp_gcd(v, n, g);
    if (mp_is1(g))
        return 0;
    if (mp_is_eq(g, n) || mp_iszero(v))
        return 2;
    mp_copy(g, f);
    return 1;
}

}  // namespace

void mp_ecm_factor(const mp_int& n, mp_int& f, int32_t CMax, int32_t& C, uint32_t& sigma, int32_t phase,
                   FactorHooks* hooks)
{
    if (mp_error)
        return;
    if (mp_cmp_int(n, 2) < 0)
        mp_raise_range("mp_ecm_factor: n < 2");
    if (&n == &f)
        mp_raise_badarg("mp_ecm_factor: @n=@f");
    C = 0;
    mp_zero(f);
    if (uint32_t p = mp_small_factor(n, 2, 127); p != 0 && mp_cmp_int(n, int32_t(p)) != 0) {
        mp_set(f, p);
        return;
    }
    phase = std::clamp(phase, 100, 6500);
    const int32_t stage2Primes = phase * 100;
    if (CMax <= 0)
        CMax = 32;
    {
        mp_tmp s, g;
        mp_set_int(s, int32_t(sigma & 0x7FFFFFFF));
        if (sigma < 2 || sigma == 5 || !mp_gcd1(s, n, g)) {
            if (mp_bitsize(n) < 31)
                sigma = (mp_random_long() & 0x7FFFFFFF) % 0x7FFFFFF9u + 6;
            else
                sigma = mp_random_long() + 6;
        }
    }
    const uint32_t B1 = mp_prime_nth(phase);
    mp_prime_nth(stage2Primes);  // fills the shared table far enough
    MontCtx m(n);
    mp_tmp u, v, a24, t1, t2, t3, g, norm;
    mp_montgomery_calcnorm(norm, n);
    Pt q;
    for (int32_t curve = 0; curve < CMax; ++curve) {
        ++C;
        ++sigma;
        if (sigma < 2 || sigma == 5)
            sigma = 6;
        // u = s^2 - 5, v = 4 s, x = u^3, z = v^3, a24 = (v - u)^3 (3u + v) / (16 u^3 v)
        mp_tmp s;
        mp_set_int64(s, sigma);
        mp_sqr(s, u);
        mp_sub_d(u, 5, u);
        mp_mod(u, n, u);
        mp_mul_d(s, 4, v);
        mp_mod(v, n, v);
        mp_sqr(u, t1);
        mp_mul(t1, u, t1);
        mp_mod(t1, n, q.x);  // u^3
        mp_sqr(v, t2);
        mp_mul(t2, v, t2);
        mp_mod(t2, n, q.z);  // v^3
        mp_mul(q.x, v, t3);
        mp_mul_d(t3, 16, t3);
        mp_mod(t3, n, t3);   // 16 u^3 v
        if (!mp_invmodf(t3, n, t2)) {
            int r = testGcd(t3, n, f);
            if (r == 1)
                return;
            continue;
        }
        mp_sub(v, u, t1);
        mp_sqr(t1, a24);
        mp_mul(a24, t1, a24);
        mp_mul_d(u, 3, t1);
        mp_add(t1, v, t1);
        mp_mul(a24, t1, a24);
        mp_mod(a24, n, a24);
        mp_mul(a24, t2, a24);
        mp_mod(a24, n, a24);
        mp_mul(a24, norm, a24);  // into Montgomery form
        mp_mod(a24, n, a24);

        // stage 1
        int32_t every = std::max(1, phase / 4);
        bool nextCurve = false;
        for (int32_t i = 1; i <= phase; ++i) {
            uint64_t p = mp_prime_nth(i), pk = p;
            while (pk * p <= B1)
                pk *= p;
            ladder(m, a24, q, pk);
            if (i % every == 0 || i == phase) {
                int r = testGcd(q.z, n, f);
                if (r == 1)
                    return;
                if (r == 2) {
                    nextCurve = true;
                    break;
                }
                if (hooks) {
                    hooks->status("Kurve " + std::to_string(curve + 1) + "  Phase 1: " +
                                  std::to_string(100 * i / phase) + "%");
                    if (hooks->yield())
                        return;
                }
            }
        }
        if (nextCurve)
            continue;

        // stage 2: baby steps kQ (k = 1..200), giant steps of 400 around centres T = 400 j
        std::vector<Pt> baby(201);
        std::vector<mp_tmp> xz(201);
        copyPt(q, baby[1]);
        dbl(m, a24, q, baby[2], t1, t2, t3);
        for (int k = 3; k <= 200; ++k)
            dadd(m, baby[k - 1], q, baby[k - 2], baby[k], t1, t2, t3);
        for (int k = 1; k <= 200; ++k)
            m.mul(baby[k].x, baby[k].z, xz[k]);
        Pt giant, cur, prev, tmp;
        dbl(m, a24, baby[200], giant, t1, t2, t3);
        uint32_t pFirst = mp_prime_nth(phase + 1);
        uint64_t j = (pFirst + 200) / 400;  // centre of the first prime
        copyPt(q, cur);
        ladderBig(m, a24, cur, 400 * j);
        copyPt(q, prev);
        ladderBig(m, a24, prev, j ? 400 * (j - 1) : 0);
        if (j == 0) {
            // no multiple of 400 below: start from 0 and step once to 400
            copyPt(giant, cur);
            mp_set1(prev.x);
            mp_zero(prev.z);
            j = 1;
        }
        mp_set1(g);
        mp_montgomery_calcnorm(g, n);  // 1 in Montgomery form
        mp_tmp xzT, term;
        m.mul(cur.x, cur.z, xzT);
        int32_t fifth = std::max(1, (stage2Primes - phase) / 5);
        for (int32_t i = phase + 1; i <= stage2Primes; ++i) {
            uint64_t p = mp_prime_nth(i);
            while (p > 400 * j + 200) {  // giant step: T + 400 with difference T - 400
                dadd(m, cur, giant, prev, tmp, t1, t2, t3);
                copyPt(cur, prev);
                copyPt(tmp, cur);
                ++j;
                m.mul(cur.x, cur.z, xzT);
            }
            int k = int(p > 400 * j ? p - 400 * j : 400 * j - p);
            // (x_T - x_k)(z_T + z_k) - x_T z_T + x_k z_k = x_T z_k - x_k z_T
            m.sub(cur.x, baby[k].x, t1);
            m.add(cur.z, baby[k].z, t2);
            m.mul(t1, t2, term);
            m.sub(term, xzT, term);
            m.add(term, xz[k], term);
            m.mul(g, term, g);
            if ((i - phase) % fifth == 0 || i == stage2Primes) {
                int r = testGcd(g, n, f);
                if (r == 1)
                    return;
                if (r == 2)
                    break;
                if (hooks) {
                    hooks->status("Kurve " + std::to_string(curve + 1) + "  Phase 2: " +
                                  std::to_string(100 * (i - phase) / (stage2Primes - phase)) + "%");
                    if (hooks->yield())
                        return;
                }
            }
        }
    }
    mp_zero(f);
}

void ecmFactorTool(const mp_int& n, mp_int& f, uint32_t& sigma, FactorHooks* hooks)
{
    int32_t c = 0;
    mp_ecm_factor(n, f, 0, c, sigma, 500, hooks);
}

}  // namespace numbers
