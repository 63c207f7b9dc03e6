// Number theory on mp_int: gcd, xgcd, Jacobi, binomials, Lucas V; machine-word helpers.
#include "numbers/mp_numth.h"
#include "numbers/mp_base.h"
#include "numbers/mp_internal.h"
#include "numbers/mp_modul.h"

#include <cstring>
#include <vector>

namespace numbers {

// ------------------------------------------------------------ machine words

uint32_t gcd32(uint32_t a, uint32_t b)
{
    if (a == 0)
        return b;
    if (b == 0)
        return a;
    int k = __builtin_ctz(a | b);
    a >>= __builtin_ctz(a);
    while (b) {
        b >>= __builtin_ctz(b);
        if (a > b)
            std::swap(a, b);
        b -= a;
    }
    return a << k;
}

static uint64_t gcd64(uint64_t a, uint64_t b)
{
    if (a == 0)
        return b;
    if (b == 0)
        return a;
    int k = __builtin_ctzll(a | b);
    a >>= __builtin_ctzll(a);
    while (b) {
        b >>= __builtin_ctzll(b);
        if (a > b)
            std::swap(a, b);
        b -= a;
    }
    return a << k;
}

uint32_t invmod32(uint32_t a, uint32_t m)
{
    if (m < 2)
        return 0;
    int64_t r0 = m, r1 = a % m, t0 = 0, t1 = 1;
    while (r1) {
        int64_t q = r0 / r1;
        int64_t r = r0 - q * r1;
        r0 = r1;
        r1 = r;
        int64_t t = t0 - q * t1;
        t0 = t1;
        t1 = t;
    }
    if (r0 != 1)
        return 0;
    if (t0 < 0)
        t0 += m;
    return static_cast<uint32_t>(t0);
}

uint32_t isqrt32(uint32_t a)
{
    // two bits of the radicand per step, one bit of the root
    uint32_t root = 0, rem = 0;
    for (int i = 15; i >= 0; --i) {
        rem = (rem << 2) | ((a >> (2 * i)) & 3);
        uint32_t trial = (root << 2) | 1;
        root <<= 1;
        if (rem >= trial) {
            rem -= trial;
            root |= 1;
        }
    }
    return root;
}

uint32_t icbrt32(uint32_t a)
{
    uint64_t y = 0;
    for (int s = 30; s >= 0; s -= 3) {
        y <<= 1;
        uint64_t b = 3 * y * (y + 1) + 1;
        if ((uint64_t(a) >> s) >= b) {
            a -= static_cast<uint32_t>(b << s);
            ++y;
        }
    }
    return static_cast<uint32_t>(y);
}

int jacobi32(int32_t a0, uint32_t n)
{
    int64_t am = a0 % int64_t(n);
    if (am < 0)
        am += n;
    uint32_t a = static_cast<uint32_t>(am);
    int r = 1;
    while (a) {
        while (!(a & 1)) {
            a >>= 1;
            uint32_t m8 = n & 7;
            if (m8 == 3 || m8 == 5)
                r = -r;
        }
        std::swap(a, n);
        if ((a & 3) == 3 && (n & 3) == 3)
            r = -r;
        a %= n;
    }
    return n == 1 ? r : 0;
}

int popcount32(uint32_t x)
{
    static const struct Table {
        uint8_t c[256];
        Table()
        {
            c[0] = 0;
            for (int i = 1; i < 256; ++i)
                c[i] = static_cast<uint8_t>(c[i >> 1] + (i & 1));
        }
    } t;
    return t.c[x & 255] + t.c[(x >> 8) & 255] + t.c[(x >> 16) & 255] + t.c[x >> 24];
}

// ------------------------------------------------------------ gcd

// v := (v - u) >> tz in one pass, v > u > 0, both odd; returns new length of v
static int s_sub_shift(mp_digit* v, int nv, const mp_digit* u, int nu)
{
    int i0 = 0;
    while (i0 < nu && v[i0] == u[i0])
        ++i0;
    mp_digit low = (v[i0] - (i0 < nu ? u[i0] : 0)) & MP_MASK;
    int sh = __builtin_ctz(low);
    // the digits below i0 are equal, so the difference starts at digit i0
    mp_digit borrow = 0;
    mp_digit prev = 0;
    bool have = false;
    int out = 0;
    for (int i = i0; i < nv; ++i) {
        mp_digit t = v[i] - (i < nu ? u[i] : 0) - borrow;
        borrow = t >> 31;
        t &= MP_MASK;
        if (!have) {
            prev = t;
            have = true;
            continue;
        }
        v[out++] = ((prev >> sh) | (t << (DIGIT_BIT - sh))) & MP_MASK;
        prev = t;
    }
    v[out++] = prev >> sh;
    for (int i = out; i < nv; ++i)
        v[i] = 0;
    while (out > 0 && v[out - 1] == 0)
        --out;
    return out;
}

void mp_gcd(const mp_int& a, const mp_int& b, mp_int& c)
{
    if (mp_error)
        return;
    s_check(a, "mp_gcd");
    s_check(b, "mp_gcd");
    mp_tmp u, v;
    mp_abs(a, u);
    mp_abs(b, v);
    if (u.v.used == 0) {
        mp_exch(v.v, c);
        return;
    }
    if (v.v.used == 0) {
        mp_exch(u.v, c);
        return;
    }
    // phase one: reduce numbers of quite different length
    while (mp_gcd_use_mod && u.v.used && v.v.used) {
        if (u.v.used > v.v.used + 1)
            mp_mod(u, v, u);
        else if (v.v.used > u.v.used + 1)
            mp_mod(v, u, v);
        else
            break;
    }
    if (u.v.used == 0) {
        mp_exch(v.v, c);
        return;
    }
    if (v.v.used == 0) {
        mp_exch(u.v, c);
        return;
    }
    // phase two: binary steps
    int32_t ku = mp_cnt_lsb(u), kv = mp_cnt_lsb(v);
    int32_t k = std::min(ku, kv);
    mp_shr(u, ku, u);
    mp_shr(v, kv, v);
    mp_tmp r;
    for (;;) {
        if (u.v.used <= 2 || v.v.used <= 2) {
            // one side fits a machine word: finish there
            mp_int& small = u.v.used <= 2 ? u.v : v.v;
            mp_int& big = u.v.used <= 2 ? v.v : u.v;
            uint64_t s = small.used == 0 ? 0 : (small.used == 1 ? small.pdigits[0] : (uint64_t(small.pdigits[1]) << DIGIT_BIT) | small.pdigits[0]);
            uint64_t g;
            if (big.used <= 2) {
                uint64_t bb = big.used == 0 ? 0 : (big.used == 1 ? big.pdigits[0] : (uint64_t(big.pdigits[1]) << DIGIT_BIT) | big.pdigits[0]);
                g = gcd64(s, bb);
            } else {
                mp_tmp sm, rem;
                mp_set_int64(sm, int64_t(s));
                mp_mod(big, sm, rem);
                uint64_t rr = rem.v.used == 0 ? 0 : (rem.v.used == 1 ? rem.v.pdigits[0] : (uint64_t(rem.v.pdigits[1]) << DIGIT_BIT) | rem.v.pdigits[0]);
                g = gcd64(s, rr);
            }
            mp_set_int64(r, int64_t(g));
            break;
        }
        int c2 = mp_cmp_mag(u, v);
        if (c2 == 0) {
            mp_copy(u, r);
            break;
        }
        mp_int& big = c2 > 0 ? u.v : v.v;
        const mp_int& small = c2 > 0 ? v.v : u.v;
        big.used = s_sub_shift(big.pdigits, big.used, small.pdigits, small.used);
    }
    mp_shl(r, k, r);
    mp_exch(r.v, c);
}

bool mp_gcd1(const mp_int& a, const mp_int& b, mp_int& c)
{
    if (mp_error)
        return false;
    mp_gcd(a, b, c);
    return mp_is1(c);
}

void mp_lcm(const mp_int& a, const mp_int& b, mp_int& c)
{
    if (mp_error)
        return;
    mp_tmp g, t;
    mp_gcd(a, b, g);
    if (g.v.used == 0) {
        mp_zero(c);
        return;
    }
    mp_div(a, g, t);
    mp_mul(t, b, t);
    t.v.sign = MP_ZPOS;
    mp_exch(t.v, c);
}

void mp_xgcd(const mp_int& a, const mp_int& b, mp_int* p1, mp_int* p2, mp_int* p3)
{
    if (mp_error)
        return;
    s_check(a, "mp_xgcd");
    s_check(b, "mp_xgcd");
    mp_tmp r0, r1, s0, s1, t0, t1, q, tmp;
    mp_copy(a, r0);
    mp_copy(b, r1);
    mp_set(s0, 1);
    mp_set(t1, 1);
    while (r1.v.used) {
        mp_divrem(r0, r1, &q.v, &tmp.v);
        mp_exch(r0.v, r1.v);
        mp_exch(r1.v, tmp.v);
        mp_mul(q, s1, tmp);
        mp_sub(s0, tmp, s0);
        mp_exch(s0.v, s1.v);
        mp_mul(q, t1, tmp);
        mp_sub(t0, tmp, t0);
        mp_exch(t0.v, t1.v);
    }
    if (r0.v.sign == MP_NEG) {
        mp_chs(r0, r0);
        mp_chs(s0, s0);
        mp_chs(t0, t0);
    }
    if (p1)
        mp_exch(s0.v, *p1);
    if (p2)
        mp_exch(t0.v, *p2);
    if (p3)
        mp_exch(r0.v, *p3);
}

// ------------------------------------------------------------ Jacobi

int32_t mp_jacobi_lm(const mp_int& a, const mp_int& n)
{
    if (mp_error)
        return 0;
    s_check(a, "mp_jacobi_lm");
    s_check(n, "mp_jacobi_lm");
    if (n.sign == MP_NEG || mp_iseven(n) || mp_cmp_int(n, 3) < 0)
        mp_raise_range("mp_jacobi_lm: n<3 or even");
    mp_tmp x, m;
    mp_mod(a, n, x);
    mp_copy(n, m);
    int r = 1;
    for (;;) {
        int32_t xv, mv;
        if (mp_is_longint(m, mv) && mp_is_longint(x, xv))
            return r * jacobi32(xv, uint32_t(mv));
        if (x.v.used == 0)
            return mp_is1(m) ? r : 0;
        int32_t s = mp_cnt_lsb(x);
        if (s) {
            mp_shr(x, s, x);
            uint32_t m8 = m.v.pdigits[0] & 7;
            if ((s & 1) && (m8 == 3 || m8 == 5))
                r = -r;
        }
        if ((x.v.pdigits[0] & 3) == 3 && (m.v.pdigits[0] & 3) == 3)
            r = -r;
        mp_exch(x.v, m.v);
        mp_mod(x, m, x);
    }
}

// ------------------------------------------------------------ binomials

void mp_fact(int32_t n, mp_int& a)
{
    if (mp_error)
        return;
    mp_tmp r;
    mp_set(r, 1);
    uint64_t acc = 1;
    for (int32_t i = 2; i <= n; ++i) {
        if (acc * uint64_t(i) > MP_DIGIT_MAX) {
            mp_mul_d(r, static_cast<mp_digit>(acc), r);
            acc = 1;
        }
        acc *= uint64_t(i);
    }
    mp_mul_d(r, static_cast<mp_digit>(acc), r);
    mp_exch(r.v, a);
}

void s_mp_gbinom(int32_t n, int32_t k, mp_int& a)
{
    if (mp_error)
        return;
    if (k < 0 || n < 0 || k > n || n > 100000000)
        mp_raise_range("s_mp_gbinom: invalid arguments");
    std::vector<bool> comp(size_t(n) + 1, false);
    // the product is gathered in a fixed stack of partial products, merged like a binary counter
    constexpr int kStack = 64;
    mp_int stack[kStack];
    int level[kStack];
    int sp = 0;
    struct Guard {
        mp_int* s;
        int& sp;
        ~Guard()
        {
            for (int i = 0; i < sp; ++i)
                mp_clear(s[i]);
        }
    } guard{stack, sp};
    auto push = [&](mp_digit w) {
        if (sp >= kStack)
            mp_raise_range("s_mp_gbinom: stack too small");
        mp_init(stack[sp]);
        mp_set_int64(stack[sp], w);
        level[sp] = 0;
        ++sp;
        while (sp >= 2 && level[sp - 1] == level[sp - 2]) {
            mp_mul(stack[sp - 2], stack[sp - 1], stack[sp - 2]);
            ++level[sp - 2];
            mp_clear(stack[sp - 1]);
            --sp;
        }
    };
    uint64_t acc = 1;
    int32_t twos = 0;
    for (int64_t p = 2; p <= n; ++p) {
        if (comp[size_t(p)])
            continue;
        for (int64_t q = p * p; q <= n; q += p)
            comp[size_t(q)] = true;
        int32_t e = 0;
        for (int64_t pk = p; pk <= n; pk *= p)
            e += int32_t(n / pk - k / pk - (n - k) / pk);
        if (e < 0)
            mp_raise_range(p == 2 ? "s_mp_gbinom: negative exponent for p=2" : "s_mp_gbinom: negative prime exponent");
        if (p == 2) {
            twos = e;
            continue;
        }
        for (int32_t i = 0; i < e; ++i) {
            if (acc * uint64_t(p) > MP_DIGIT_MAX) {
                push(static_cast<mp_digit>(acc));
                acc = 1;
            }
            acc *= uint64_t(p);
        }
    }
    push(static_cast<mp_digit>(acc));
    while (sp >= 2) {
        mp_mul(stack[sp - 2], stack[sp - 1], stack[sp - 2]);
        mp_clear(stack[sp - 1]);
        --sp;
    }
    mp_shl(stack[0], twos, a);
}

void mp_binomial(int32_t n, int32_t k, mp_int& a)
{
    if (mp_error)
        return;
    s_check(a, "mp_binomial");
    bool neg = false;
    int64_t N = n, K = k;
    if (N < 0) {
        if (K < 0) {
            mp_zero(a);
            return;
        }
        // reflection: C(n, k) = (-1)^k C(k - n - 1, k)
        neg = K & 1;
        N = K - N - 1;
        if (N > INT32_MAX)
            mp_raise_range("s_mp_gbinom: invalid arguments");
    }
    if (K < 0 || K > N) {
        mp_zero(a);
        return;
    }
    if (N - K < K)
        K = N - K;
    mp_tmp r;
    if (K >= 64) {
        s_mp_gbinom(int32_t(N), int32_t(K), r);
    } else {
        // running product of odd parts; the powers of 2 are restored by one shift
        mp_set(r, 1);
        int32_t twos = 0;
        for (int64_t i = 1; i <= K; ++i) {
            uint64_t num = uint64_t(N - K + i), den = uint64_t(i);
            int tn = __builtin_ctzll(num), td = __builtin_ctzll(den);
            twos += tn - td;
            num >>= tn;
            den >>= td;
            mp_tmp t;
            mp_set_int64(t, int64_t(num));
            mp_mul(r, t, r);
            if (den > 1) {
                mp_digit rem;
                s_mp_div_d(r, static_cast<mp_digit>(den), &r.v, rem);
            }
        }
        mp_shl(r, twos, r);
    }
    if (neg && r.v.used)
        r.v.sign = MP_NEG;
    mp_exch(r.v, a);
}

// ------------------------------------------------------------ Lucas sequences

void mp_lucasv(const mp_int& p, const mp_int& k, const mp_int& n, mp_int& v)
{
    if (mp_error)
        return;
    s_check(p, "mp_lucasv");
    s_check(k, "mp_lucasv");
    s_check(n, "mp_lucasv");
    mp_tmp v0, v1, pp, t;
    mp_mod(p, n, pp);
    mp_set(v0, 2);
    mp_mod(v0, n, v0);
    mp_copy(pp, v1);
    for (int32_t i = mp_bitsize(k) - 1; i >= 0; --i) {
        bool bit = (k.pdigits[i / DIGIT_BIT] >> (i % DIGIT_BIT)) & 1;
        mp_mul(v0, v1, t);
        mp_sub(t, pp, t);
        mp_mod(t, n, t);
        if (bit) {
            mp_exch(v0.v, t.v);  // V(2j+1)
            mp_sqr(v1, v1);
            mp_sub_d(v1, 2, v1);
            mp_mod(v1, n, v1);   // V(2j+2)
        } else {
            mp_exch(v1.v, t.v);  // V(2j+1)
            mp_sqr(v0, v0);
            mp_sub_d(v0, 2, v0);
            mp_mod(v0, n, v0);   // V(2j)
        }
    }
    mp_exch(v0.v, v);
}

}  // namespace numbers
