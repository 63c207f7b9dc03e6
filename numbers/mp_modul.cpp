// Modular arithmetic on mp_int: Barrett, Montgomery, 2^k reduction, exptmod, inverses.
#include "numbers/mp_modul.h"
#include "numbers/mp_base.h"
#include "numbers/mp_internal.h"
#include "numbers/mp_numth.h"

#include <cstring>
#include <vector>

namespace numbers {

// ------------------------------------------------------------ Barrett

void mp_reduce_setup(const mp_int& m, mp_int& mu)
{
    if (mp_error)
        return;
    mp_tmp p;
    mp_setbit(p, 2 * m.used * DIGIT_BIT);
    mp_div(p, m, mu);
}

void mp_reduce(mp_int& x, const mp_int& m, const mp_int& mu)
{
    if (mp_error)
        return;
    int k = m.used;
    mp_tmp q, t;
    mp_copy(x, q);
    mp_rshd(q, k - 1);
    mp_mul(q, mu, q);
    mp_rshd(q, k + 1);
    mp_mul(q, m, t);
    mp_sub(x, t, x);
    while (x.sign == MP_NEG)
        mp_add(x, m, x);
    while (mp_cmp_mag(x, m) >= 0)
        mp_sub(x, m, x);
}

// ------------------------------------------------------------ Montgomery

void mp_montgomery_setup(const mp_int& n, mp_digit& rho)
{
    if (mp_error)
        return;
    if (n.used == 0 || !(n.pdigits[0] & 1))
        mp_raise_badarg("mp_montgomery_setup: n is even");
    uint32_t b = n.pdigits[0];
    uint32_t x = b;  // inverse modulo 2^32 by Newton's iteration, 5 bits -> 32
    for (int i = 0; i < 5; ++i)
        x *= 2u - b * x;
    rho = (0u - x) & MP_MASK;
}

void mp_montgomery_calcnorm(mp_int& a, const mp_int& n)
{
    if (mp_error)
        return;
    mp_tmp p;
    mp_setbit(p, n.used * DIGIT_BIT);
    mp_mod(p, n, a);
}

// One row of the reduction: mu * m added into split sums (see the product rows in mp_mul).
__attribute__((target_clones("avx2", "default"), optimize("vect-cost-model=dynamic")))
static void s_mont_row(uint64_t* __restrict lo, uint64_t* __restrict hi, const mp_digit* __restrict m, int n,
                       uint64_t mu)
{
    for (int j = 0; j < n; ++j) {
        uint64_t p = mu * m[j];
        lo[j] += p & MP_MASK;
        hi[j] += p >> DIGIT_BIT;
    }
}

// x[0..2n] (one spare digit on top) -> x[n..2n] holds the reduced value, below 2m
static void s_mont_reduce(mp_digit* x, const mp_digit* m, int n, mp_digit rho)
{
    std::vector<uint64_t> buf(size_t(4) * n + 4, 0);
    uint64_t* lo = buf.data();
    uint64_t* hi = lo + 2 * n + 2;
    for (int k = 0; k <= 2 * n; ++k)
        lo[k] = x[k];
    uint64_t c = 0;
    for (int i = 0; i < n; ++i) {
        uint64_t t = lo[i] + (i ? hi[i - 1] : 0) + c;
        uint64_t mu = ((t & MP_MASK) * rho) & MP_MASK;
        s_mont_row(lo + i, hi + i, m, n, mu);
        t = lo[i] + (i ? hi[i - 1] : 0) + c;  // now divisible by the radix
        c = t >> DIGIT_BIT;
    }
    for (int k = n; k <= 2 * n; ++k) {
        uint64_t t = lo[k] + hi[k - 1] + c;
        x[k] = static_cast<mp_digit>(t) & MP_MASK;
        c = t >> DIGIT_BIT;
    }
}

static void s_mont_final(mp_digit* x, const mp_digit* m, int n)
{
    // x[n..2n]: subtract m once if it is not below m
    mp_digit* r = x + n;
    bool ge = r[n] != 0 || s_cmp_mag_digs(r, n, m, n) >= 0;
    if (ge) {
        mp_digit b = 0;
        for (int i = 0; i < n; ++i) {
            mp_digit t = r[i] - m[i] - b;
            r[i] = t & MP_MASK;
            b = t >> 31;
        }
        r[n] = 0;
    }
}

void mp_montgomery_reduce(mp_int& x, const mp_int& n, mp_digit rho)
{
    if (mp_error)
        return;
    int k = n.used;
    std::vector<mp_digit> buf(2 * k + 2, 0);
    std::memcpy(buf.data(), x.pdigits, sizeof(mp_digit) * std::min<int>(x.used, 2 * k + 1));
    s_mont_reduce(buf.data(), n.pdigits, k, rho);
    mp_grow(x, k + 1);
    s_set_used(x, 0);
    std::memcpy(x.pdigits, buf.data() + k, sizeof(mp_digit) * (k + 1));
    x.used = k + 1;
    x.sign = MP_ZPOS;
    mp_clamp(x);
    while (mp_cmp_mag(x, n) >= 0)
        mp_sub(x, n, x);
}

// ------------------------------------------------------------ 2^k reduction

void mp_reduce_2k_setup(const mp_int& a, mp_digit& d)
{
    if (mp_error)
        return;
    if (mp_is_le0(a))
        mp_raise_range("mp_reduce_2k_setup: a<=0");
    mp_tmp t;
    mp_setbit(t, mp_bitsize(a));
    mp_sub(t, a, t);
    d = t.v.used ? t.v.pdigits[0] : 0;
}

bool mp_reduce_is_2k(const mp_int& n)
{
    if (mp_error || mp_not_init(n) || n.used < 2)
        return false;
    mp_tmp t;
    mp_setbit(t, mp_bitsize(n));
    mp_sub(t, n, t);
    return t.v.used <= 1;
}

void mp_reduce_2k(mp_int& a, const mp_int& n, mp_digit d)
{
    if (mp_error)
        return;
    if (mp_is_le0(n))
        mp_raise_range("mp_reduce_2k: n<=0");
    int32_t p = mp_bitsize(n);
    mp_tmp q;
    for (;;) {
        mp_shr(a, p, q);
        mp_mod_2k(a, p, a);
        if (q.v.used == 0)
            break;
        if (d != 1)
            mp_mul_d(q, d, q);
        mp_add(a, q, a);
    }
    while (mp_cmp_mag(a, n) >= 0)
        mp_sub(a, n, a);
}

// ------------------------------------------------------------ powers

void mp_mulmod(const mp_int& a, const mp_int& b, const mp_int& c, mp_int& d)
{
    if (mp_error)
        return;
    mp_tmp t;
    mp_mul(a, b, t);
    mp_mod(t, c, d);
}

void mp_sqrmod(const mp_int& a, const mp_int& c, mp_int& d)
{
    if (mp_error)
        return;
    mp_tmp t;
    mp_sqr(a, t);
    mp_mod(t, c, d);
}

static int s_window(int32_t bits)
{
    if (bits <= 21)
        return 1;
    if (bits <= 36)
        return 3;
    if (bits <= 140)
        return 4;
    if (bits <= 450)
        return 5;
    if (bits <= 1303)
        return 6;
    return 7;
}

// Montgomery ladder of windows for an odd modulus; g in [0, m), e > 0
static void s_exptmod_mont(const mp_int& g, const mp_int& e, const mp_int& m, mp_int& out)
{
    int n = m.used;
    mp_digit rho;
    mp_montgomery_setup(m, rho);
    const mp_digit* md = m.pdigits;
    int w = s_window(mp_bitsize(e));
    int tsize = 1 << (w - 1);
    std::vector<mp_digit> tab(size_t(tsize) * n, 0), acc(n, 0), prod(2 * n + 2, 0);
    auto finish = [&](mp_digit* dst) {
        prod[2 * n] = 0;
        prod[2 * n + 1] = 0;
        s_mont_reduce(prod.data(), md, n, rho);
        s_mont_final(prod.data(), md, n);
        std::memcpy(dst, prod.data() + n, sizeof(mp_digit) * n);
    };
    auto mul = [&](const mp_digit* x, const mp_digit* y, mp_digit* dst) {
        s_mp_mul_arrays(x, n, y, n, prod.data());
        finish(dst);
    };
    auto sqr = [&](mp_digit* x) {
        s_mp_sqr_arrays(x, n, prod.data());
        finish(x);
    };
    // g in Montgomery form: g * B^n mod m
    {
        mp_tmp t;
        mp_copy(g, t);
        mp_lshd(t, n);
        mp_mod(t, m, t);
        std::memcpy(tab.data(), t.v.pdigits, sizeof(mp_digit) * t.v.used);
    }
    if (tsize > 1) {
        std::vector<mp_digit> g2(n);
        mul(tab.data(), tab.data(), g2.data());
        for (int i = 1; i < tsize; ++i)
            mul(tab.data() + size_t(i - 1) * n, g2.data(), tab.data() + size_t(i) * n);
    }
    // acc = 1 in Montgomery form
    {
        mp_tmp one;
        mp_montgomery_calcnorm(one, m);
        std::memcpy(acc.data(), one.v.pdigits, sizeof(mp_digit) * one.v.used);
    }
    auto bit = [&](int32_t i) { return (e.pdigits[i / DIGIT_BIT] >> (i % DIGIT_BIT)) & 1; };
    int32_t i = mp_bitsize(e) - 1;
    bool started = false;
    while (i >= 0) {
        if (!bit(i)) {
            if (started)
                sqr(acc.data());
            --i;
            continue;
        }
        // longest window ending in a 1 bit
        int32_t lo = std::max<int32_t>(0, i - w + 1);
        while (!bit(lo))
            ++lo;
        int val = 0;
        for (int32_t j = i; j >= lo; --j)
            val = (val << 1) | int(bit(j));
        if (started) {
            for (int32_t j = i; j >= lo; --j)
                sqr(acc.data());
            mul(acc.data(), tab.data() + size_t(val >> 1) * n, acc.data());
        } else {
            std::memcpy(acc.data(), tab.data() + size_t(val >> 1) * n, sizeof(mp_digit) * n);
            started = true;
        }
        i = lo - 1;
    }
    // back from Montgomery form
    std::fill(prod.begin(), prod.end(), 0);
    std::memcpy(prod.data(), acc.data(), sizeof(mp_digit) * n);
    s_mont_reduce(prod.data(), md, n, rho);
    s_mont_final(prod.data(), md, n);
    mp_grow(out, n);
    s_set_used(out, 0);
    std::memcpy(out.pdigits, prod.data() + n, sizeof(mp_digit) * n);
    out.used = n;
    out.sign = MP_ZPOS;
    mp_clamp(out);
}

// square and multiply with Barrett or 2^k reduction, for even moduli
static void s_exptmod_generic(const mp_int& g, const mp_int& e, const mp_int& m, mp_int& out)
{
    mp_tmp mu, x, r;
    bool is2k = mp_reduce_is_2k(m);
    mp_digit d = 0;
    if (is2k)
        mp_reduce_2k_setup(m, d);
    else
        mp_reduce_setup(m, mu);
    auto red = [&](mp_int& v) {
        if (is2k)
            mp_reduce_2k(v, m, d);
        else
            mp_reduce(v, m, mu);
    };
    mp_copy(g, x);
    mp_set(r, 1);
    for (int32_t i = mp_bitsize(e) - 1; i >= 0; --i) {
        mp_sqr(r, r);
        red(r);
        if ((e.pdigits[i / DIGIT_BIT] >> (i % DIGIT_BIT)) & 1) {
            mp_mul(r, x, r);
            red(r);
        }
    }
    mp_exch(r.v, out);
}

void mp_exptmod(const mp_int& a, const mp_int& b, const mp_int& c, mp_int& d)
{
    if (mp_error)
        return;
    s_check(a, "mp_exptmod");
    s_check(b, "mp_exptmod");
    s_check(c, "mp_exptmod");
    if (mp_is_le0(c))
        mp_raise_range("mp_exptmod: c<=0");
    mp_tmp g, e, m;
    mp_copy(c, m);
    mp_abs(b, e);
    if (b.sign == MP_NEG)
        mp_invmod(a, m, g);
    else
        mp_mod(a, m, g);
    if (mp_is1(m)) {
        mp_zero(d);
        return;
    }
    if (e.v.used == 0) {
        mp_set(d, 1);
        return;
    }
    mp_tmp r;
    if (mp_isodd(m))
        s_exptmod_mont(g, e, m, r);
    else
        s_exptmod_generic(g, e, m, r);
    mp_exch(r.v, d);
}

void mp_exptmod_d(const mp_int& a, mp_digit b, const mp_int& c, mp_int& d)
{
    if (mp_error)
        return;
    mp_tmp e;
    mp_set_int64(e, b);
    mp_exptmod(a, e, c, d);
}

// ------------------------------------------------------------ inverses

bool mp_invmodf(const mp_int& a, const mp_int& b, mp_int& c)
{
    if (mp_error || mp_not_init(a) || mp_not_init(b))
        return false;
    if (mp_is_le0(b))
        return false;
    if (mp_iseven(a) && mp_iseven(b))
        return false;
    int32_t bw;
    if (mp_is_longint(b, bw)) {
        if (bw == 1) {
            mp_zero(c);
            return true;
        }
        uint32_t r = mp_mod_int(a, uint32_t(bw));
        uint32_t inv = invmod32(r, uint32_t(bw));
        if (inv == 0)
            return false;
        mp_set_int64(c, inv);
        return true;
    }
    mp_tmp r, x, g, m;
    mp_copy(b, m);
    mp_mod(a, m, r);
    mp_xgcd(r, m, &x.v, nullptr, &g.v);
    if (!mp_is1(g))
        return false;
    while (x.v.sign == MP_NEG)
        mp_add(x, m, x);
    while (mp_cmp(x, m) >= 0)
        mp_sub(x, m, x);
    mp_exch(x.v, c);
    return true;
}

void mp_invmod(const mp_int& a, const mp_int& b, mp_int& c)
{
    if (mp_error)
        return;
    s_check(a, "mp_invmod");
    s_check(b, "mp_invmod");
    if (!mp_invmodf(a, b, c))
        mp_raise_undef("mp_invmod: no inverse");
}

}  // namespace numbers
