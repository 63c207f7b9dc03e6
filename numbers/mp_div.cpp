// Division (long division, and Newton reciprocals for large divisors), roots and powers.
#include "numbers/mp_base.h"
#include "numbers/mp_internal.h"

#include <cstring>
#include <vector>

namespace numbers {

// ------------------------------------------------------------ long division on 31-bit digits

// q := |a| div |b|, r := |a| mod |b|, both non-negative, |b| of at least two digits, |a| >= |b|.
static void s_divrem_knuth(const mp_int& a, const mp_int& b, mp_int* q, mp_int* r)
{
    int n = b.used, m = a.used - n;
    int s = 0;
    for (mp_digit top = b.pdigits[n - 1]; !(top & 0x40000000u); top <<= 1)
        ++s;
    std::vector<mp_digit> u(a.used + 1, 0), v(n);
    // normalise so that the divisor's top digit has its high bit set
    {
        mp_digit c = 0;
        for (int i = 0; i < a.used; ++i) {
            mp_word t = (mp_word(a.pdigits[i]) << s) | c;
            u[i] = static_cast<mp_digit>(t & MP_MASK);
            c = static_cast<mp_digit>(t >> DIGIT_BIT);
        }
        u[a.used] = c;
        c = 0;
        for (int i = 0; i < n; ++i) {
            mp_word t = (mp_word(b.pdigits[i]) << s) | c;
            v[i] = static_cast<mp_digit>(t & MP_MASK);
            c = static_cast<mp_digit>(t >> DIGIT_BIT);
        }
    }
    std::vector<mp_digit> qd(m + 1, 0);
    const mp_word vt = v[n - 1], vs = v[n - 2];
    const mp_word base = mp_word(1) << DIGIT_BIT;
    for (int j = m; j >= 0; --j) {
        mp_word num = (mp_word(u[j + n]) << DIGIT_BIT) | u[j + n - 1];
        mp_word qhat = num / vt, rhat = num % vt;
        if (qhat >= base) {
            qhat = base - 1;
            rhat = num - qhat * vt;
        }
        while (rhat < base && qhat * vs > ((rhat << DIGIT_BIT) | u[j + n - 2])) {
            --qhat;
            rhat += vt;
        }
        // multiply and subtract with one signed carry: qhat * v[i] < 2^62 keeps it in 64 bits
        int64_t c = 0;
        mp_digit* uj = u.data() + j;
        const mp_digit* vv = v.data();
        for (int i = 0; i < n; ++i) {
            int64_t t = int64_t(uj[i]) + c - int64_t(qhat * vv[i]);
            uj[i] = static_cast<mp_digit>(t) & MP_MASK;
            c = t >> DIGIT_BIT;  // arithmetic shift: floor
        }
        int64_t t = int64_t(u[j + n]) + c;
        u[j + n] = static_cast<mp_digit>(t) & MP_MASK;
        if (t < 0) {
            // rare: qhat was one too large, add back
            --qhat;
            mp_digit c = 0;
            for (int i = 0; i < n; ++i) {
                mp_digit x = u[i + j] + v[i] + c;
                u[i + j] = x & MP_MASK;
                c = x >> DIGIT_BIT;
            }
            u[j + n] = (u[j + n] + c) & MP_MASK;
        }
        qd[j] = static_cast<mp_digit>(qhat);
    }
    if (q) {
        mp_grow(*q, m + 1);
        s_set_used(*q, 0);
        std::memcpy(q->pdigits, qd.data(), sizeof(mp_digit) * (m + 1));
        q->used = m + 1;
        q->sign = MP_ZPOS;
        mp_clamp(*q);
    }
    if (r) {
        mp_grow(*r, n);
        s_set_used(*r, 0);
        for (int i = 0; i < n; ++i) {
            mp_word t = (mp_word(u[i]) >> s) | ((i + 1 < n ? mp_word(u[i + 1]) << (DIGIT_BIT - s) : 0) & MP_MASK);
            r->pdigits[i] = static_cast<mp_digit>(t & MP_MASK);
        }
        r->used = n;
        r->sign = MP_ZPOS;
        mp_clamp(*r);
    }
}

// ------------------------------------------------------------ Newton reciprocals

mp_recip::mp_recip() { mp_init2(d, inv); }
mp_recip::~mp_recip() { mp_clear2(d, inv); }

static void s_mag_divrem(const mp_int& a, const mp_int& b, mp_int* q, mp_int* r);

// X := floor(B^(2n) / d), d positive with n digits; inner levels of the recursion need
// only an approximation within a few units, so only the top level corrects exactly.
static void s_recip_calc(const mp_int& d, mp_int& X, bool exact = true)
{
    int n = d.used;
    if (n < 120 || n < 8) {
        mp_tmp p;
        mp_setbit(p, 2 * n * DIGIT_BIT);
        s_divrem_knuth(p, d, &X, nullptr);
        return;
    }
    int k = n / 2 + 3;  // enough digits that one Newton step leaves an error below one unit
    mp_tmp dh, Y, E, T;
    mp_copy(d, dh);
    mp_rshd(dh, n - k);
    s_recip_calc(dh, Y, false);
    // E = B^(n+k) - d*Y, then X = Y*B^(n-k) + floor(Y*E / B^(2k))
    s_mul_mag(d, Y, T);
    mp_setbit(E, (n + k) * DIGIT_BIT);
    mp_sub(E, T, E);
    mp_mul(Y, E, T);
    mp_shr(T, 2 * k * DIGIT_BIT, T);
    mp_copy(Y, X);
    mp_lshd(X, n - k);
    mp_add(X, T, X);
    if (!exact)
        return;
    // correct the last units through the remainder
    mp_tmp R;
    s_mul_mag(d, X, T);
    mp_setbit(R, 2 * n * DIGIT_BIT);
    mp_sub(R, T, R);
    while (R.v.sign == MP_NEG) {
        mp_sub_d(X, 1, X);
        mp_add(R, d, R);
    }
    while (mp_cmp_mag(R, d) >= 0) {
        mp_add_d(X, 1, X);
        mp_sub(R, d, R);
    }
}

void s_recip_setup(const mp_int& d, mp_recip& r)
{
    mp_abs(d, r.d);
    r.n = r.d.used;
    // a few units off is fine: the Barrett step corrects its quotient anyway
    s_recip_calc(r.d, r.inv, false);
}

// one Barrett step for 0 <= x < B^(2n): q := x div d, x := x mod d
static void s_barrett_step(mp_int& x, const mp_recip& rc, mp_int& q)
{
    int n = rc.n;
    mp_tmp t;
    mp_copy(x, t);
    mp_rshd(t, n - 1);
    s_mul_mag(t, rc.inv, q);
    mp_rshd(q, n + 1);
    s_mul_mag(q, rc.d, t);
    mp_sub(x, t, x);
    while (x.sign == MP_NEG) {
        mp_sub_d(q, 1, q);
        mp_add(x, rc.d, x);
    }
    while (mp_cmp_mag(x, rc.d) >= 0) {
        mp_add_d(q, 1, q);
        mp_sub(x, rc.d, x);
    }
}

void s_divrem_recip(const mp_int& a, const mp_recip& rc, mp_int* q, mp_int* rem)
{
    int n = rc.n, m = a.used;
    mp_tmp x, qq, qi;
    if (m <= 2 * n) {
        mp_abs(a, x);
        s_barrett_step(x, rc, qq);
    } else {
        // bring down n digits at a time, as in long division with digits of B^n
        int chunks = (m + n - 1) / n;
        mp_grow(qq, chunks * n);
        for (int c = chunks - 1; c >= 0; --c) {
            int off = c * n, len = std::min(n, m - off);
            mp_lshd(x, n);
            mp_grow(x, n + 1);
            if (x.v.used < len)
                x.v.used = len;
            std::memcpy(x.v.pdigits, a.pdigits + off, sizeof(mp_digit) * len);
            mp_clamp(x);
            s_barrett_step(x, rc, qi);
            std::memcpy(qq.v.pdigits + off, qi.v.pdigits, sizeof(mp_digit) * qi.v.used);
        }
        qq.v.used = chunks * n;
        mp_clamp(qq);
    }
    if (q)
        mp_exch(qq.v, *q);
    if (rem)
        mp_exch(x.v, *rem);
}

// |a| and |b| in, non-negative quotient and remainder out; q and r may alias a or b.
static void s_mag_divrem(const mp_int& a, const mp_int& b, mp_int* q, mp_int* r)
{
    mp_tmp qq, rr;
    if (s_cmp_mag_digs(a.pdigits, a.used, b.pdigits, b.used) < 0) {
        mp_abs(a, rr);
    } else if (b.used == 1) {
        mp_digit rem;
        mp_abs(a, qq);
        s_mp_div_d(qq, b.pdigits[0], &qq.v, rem);
        mp_set(rr, rem);
    } else if (b.used >= mp_div_cutoff && a.used - b.used >= mp_div_cutoff / 2) {
        mp_recip rc;
        s_recip_setup(b, rc);
        s_divrem_recip(a, rc, &qq.v, &rr.v);
    } else {
        s_divrem_knuth(a, b, &qq.v, &rr.v);
    }
    if (q)
        mp_exch(qq.v, *q);
    if (r)
        mp_exch(rr.v, *r);
}

void mp_divrem(const mp_int& a, const mp_int& b, mp_int* q, mp_int* r)
{
    if (mp_error)
        return;
    s_check(a, "mp_divrem");
    s_check(b, "mp_divrem");
    if (b.used == 0)
        mp_raise_range("mp_divrem: b=0");
    uint16_t as = a.sign, bs = b.sign;
    s_mag_divrem(a, b, q, r);
    // quotient truncates towards zero, remainder takes the dividend's sign
    if (q && q->used)
        q->sign = as != bs ? MP_NEG : MP_ZPOS;
    if (r && r->used)
        r->sign = as;
}

void mp_div(const mp_int& a, const mp_int& b, mp_int& c) { mp_divrem(a, b, &c, nullptr); }

void mp_mod(const mp_int& a, const mp_int& b, mp_int& c)
{
    if (mp_error)
        return;
    mp_tmp bb;
    mp_copy(b, bb);  // c may alias b
    mp_divrem(a, b, nullptr, &c);
    if (c.used && c.sign != bb.v.sign)
        mp_add(c, bb, c);
}

// ------------------------------------------------------------ powers and roots

void mp_expt_int(const mp_int& a, int32_t b, mp_int& c)
{
    if (mp_error)
        return;
    s_check(a, "mp_expt_int");
    if (b < 0)
        mp_raise_range("mp_expt_int: b < 0");
    mp_tmp g, r;
    mp_copy(a, g);
    mp_set(r, 1);
    while (b) {
        if (b & 1)
            mp_mul(r, g, r);
        b >>= 1;
        if (b)
            mp_sqr(g, g);
    }
    mp_exch(r.v, c);
}

// Newton's iteration from above; s := floor(sqrt(a)) for a >= 0
static void s_mp_sqrt(const mp_int& a, mp_int& s)
{
    if (a.sign == MP_NEG)
        mp_raise_range("s_mp_sqrt: a < 0");
    if (a.used == 0) {
        mp_zero(s);
        return;
    }
    mp_tmp x, y, t;
    int32_t bits = mp_bitsize(a);
    mp_setbit(x, (bits + 1) / 2);  // 2^ceil(bits/2) > sqrt(a)
    for (;;) {
        mp_div(a, x, t);
        mp_add(x, t, y);
        mp_shr(y, 1, y);
        if (mp_cmp(y, x) >= 0)
            break;
        mp_exch(x.v, y.v);
    }
    mp_exch(x.v, s);
}

void mp_sqrt(const mp_int& a, mp_int& b)
{
    if (mp_error)
        return;
    s_check(a, "mp_sqrt");
    if (a.sign == MP_NEG)
        mp_raise_range("mp_sqrt: a < 0");
    s_mp_sqrt(a, b);
}

void mp_sqrtrem(const mp_int& n, mp_int& s, mp_int& r)
{
    if (mp_error)
        return;
    s_check(n, "mp_sqrtrem");
    if (&s == &r)
        mp_raise_badarg("mp_sqrtrem: @s=@r");
    if (n.sign == MP_NEG)
        mp_raise_range("mp_sqrtrem: n < 0");
    mp_tmp root, t;
    s_mp_sqrt(n, root);
    mp_sqr(root, t);
    mp_sub(n, t, r);
    mp_exch(root.v, s);
}

// ------------------------------------------------------------ perfect squares

namespace {
struct SquareMasks {
    bool low[128];
    uint64_t m1[7], m2[6];
    static constexpr uint32_t q1[7] = {21, 25, 31, 29, 23, 17, 11};
    static constexpr uint32_t q2[6] = {47, 43, 41, 37, 19, 13};
    // bit i is set when i is not a square modulo q
    static uint64_t nonResidues(uint32_t q)
    {
        uint64_t sq = 0;
        for (uint32_t x = 0; x < q; ++x)
            sq |= uint64_t(1) << ((x * x) % q);
        uint64_t all = q == 64 ? ~uint64_t(0) : (uint64_t(1) << q) - 1;
        return all & ~sq;
    }
    SquareMasks()
    {
        for (bool& b : low)
            b = false;
        for (uint32_t x = 0; x < 128; ++x)
            low[(x * x) & 127] = true;
        for (int i = 0; i < 7; ++i)
            m1[i] = nonResidues(q1[i]);
        for (int i = 0; i < 6; ++i)
            m2[i] = nonResidues(q2[i]);
    }
};
const SquareMasks& masks()
{
    static const SquareMasks m;
    return m;
}
}  // namespace

bool mp_is_square2(const mp_int& a, mp_int* root)
{
    if (mp_error || mp_not_init(a) || a.sign == MP_NEG)
        return false;
    if (a.used == 0) {
        if (root)
            mp_zero(*root);
        return true;
    }
    const SquareMasks& m = masks();
    if (!m.low[a.pdigits[0] & 127])
        return false;
    uint32_t r1 = mp_mod_int(a, 2029964475u);
    for (int i = 0; i < 7; ++i)
        if ((m.m1[i] >> (r1 % SquareMasks::q1[i])) & 1)
            return false;
    uint32_t r2 = mp_mod_int(a, 757266679u);
    for (int i = 0; i < 6; ++i)
        if ((m.m2[i] >> (r2 % SquareMasks::q2[i])) & 1)
            return false;
    mp_tmp s, r;
    mp_sqrtrem(a, s, r);
    if (r.v.used != 0)
        return false;
    if (root)
        mp_exch(s.v, *root);
    return true;
}

bool mp_is_square(const mp_int& a) { return mp_is_square2(a, nullptr); }

}  // namespace numbers
