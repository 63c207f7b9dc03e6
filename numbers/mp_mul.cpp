// Products: schoolbook (column-wise), Karatsuba, Toom-3, the unbalanced product, squaring.
#include "numbers/mp_base.h"
#include "numbers/mp_internal.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace numbers {


// ------------------------------------------------------------ array helpers

// r[0..n) += a[0..m), m <= n; returns the carry out of r[n-1]
static mp_digit s_add_into(mp_digit* r, int n, const mp_digit* a, int m)
{
    mp_digit c = 0;
    int i = 0;
    for (; i < m; ++i) {
        mp_digit t = r[i] + a[i] + c;
        r[i] = t & MP_MASK;
        c = t >> DIGIT_BIT;
    }
    for (; c && i < n; ++i) {
        mp_digit t = r[i] + c;
        r[i] = t & MP_MASK;
        c = t >> DIGIT_BIT;
    }
    return c;
}

// r[0..n) -= a[0..m), m <= n; returns the borrow
static mp_digit s_sub_from(mp_digit* r, int n, const mp_digit* a, int m)
{
    mp_digit b = 0;
    int i = 0;
    for (; i < m; ++i) {
        mp_digit t = r[i] - a[i] - b;
        r[i] = t & MP_MASK;
        b = t >> 31;
    }
    for (; b && i < n; ++i) {
        mp_digit t = r[i] - b;
        r[i] = t & MP_MASK;
        b = t >> 31;
    }
    return b;
}

// r[0..max+1) := a + b
static void s_add_arr(const mp_digit* a, int na, const mp_digit* b, int nb, mp_digit* r, int nr)
{
    std::memset(r, 0, sizeof(mp_digit) * nr);
    std::memcpy(r, a, sizeof(mp_digit) * na);
    s_add_into(r, nr, b, nb);
}

struct Arena {
    mp_digit* p;
    mp_digit* end;
    mp_digit* take(size_t n)
    {
        if (p + n > end)
            throw std::logic_error("mp_mul: work space");
        mp_digit* q = p;
        p += n;
        return q;
    }
};

// ------------------------------------------------------------ schoolbook

// Row kernels: every 62-bit product is split into its low 31 bits and the rest, which go into two
// arrays of 64-bit sums. Neither can overflow for any length the kernel allows, so the rows need
// no carry pass, and the compiler can run them in vector registers.
__attribute__((target_clones("avx2", "default"), optimize("vect-cost-model=dynamic")))
static void s_rows(const mp_digit* __restrict a, int na, const mp_digit* __restrict b, int nb,
                   uint64_t* __restrict lo, uint64_t* __restrict hi)
{
    for (int i = 0; i < nb; ++i) {
        uint64_t bi = b[i];
        uint64_t* __restrict l = lo + i;
        uint64_t* __restrict h = hi + i;
        for (int j = 0; j < na; ++j) {
            uint64_t p = a[j] * bi;
            l[j] += p & MP_MASK;
            h[j] += p >> DIGIT_BIT;
        }
    }
}

__attribute__((target_clones("avx2", "default"), optimize("vect-cost-model=dynamic")))
static void s_sqr_rows(const mp_digit* __restrict a, int n, uint64_t* __restrict lo, uint64_t* __restrict hi)
{
    for (int i = 0; i < n; ++i) {
        uint64_t ai2 = uint64_t(a[i]) << 1;  // doubled cross products, below 2^63
        uint64_t* __restrict l = lo + i;
        uint64_t* __restrict h = hi + i;
        for (int j = i + 1; j < n; ++j) {
            uint64_t p = ai2 * a[j];
            l[j] += p & MP_MASK;
            h[j] += p >> DIGIT_BIT;
        }
    }
    for (int i = 0; i < n; ++i) {
        uint64_t p = uint64_t(a[i]) * a[i];
        lo[2 * i] += p & MP_MASK;
        hi[2 * i] += p >> DIGIT_BIT;
    }
}

// r[k] = lo[k] + hi[k-1] with carries
static void s_collect(const uint64_t* lo, const uint64_t* hi, int nr, mp_digit* r)
{
    uint64_t c = 0, prevHi = 0;
    for (int k = 0; k < nr; ++k) {
        uint64_t t = lo[k] + prevHi + c;
        prevHi = hi[k];
        r[k] = static_cast<mp_digit>(t) & MP_MASK;
        c = t >> DIGIT_BIT;
    }
}

void s_mp_mul_digs(const mp_digit* a, int na, const mp_digit* b, int nb, mp_digit* r)
{
    if (na == 0 || nb == 0) {
        std::memset(r, 0, sizeof(mp_digit) * (na + nb));
        return;
    }
    if (nb == 1 || na == 1) {
        // one-digit shortcut
        const mp_digit* x = na == 1 ? b : a;
        int n = na == 1 ? nb : na;
        mp_word d = na == 1 ? a[0] : b[0];
        mp_word c = 0;
        for (int i = 0; i < n; ++i) {
            mp_word t = x[i] * d + c;
            r[i] = static_cast<mp_digit>(t & MP_MASK);
            c = t >> DIGIT_BIT;
        }
        r[n] = static_cast<mp_digit>(c);
        return;
    }
    int nr = na + nb;
    uint64_t stackBuf[2 * 256];
    std::vector<uint64_t> heap;
    uint64_t* lo = stackBuf;
    if (nr > 256) {
        heap.assign(size_t(2) * nr, 0);
        lo = heap.data();
    } else {
        std::memset(stackBuf, 0, sizeof(uint64_t) * 2 * nr);
    }
    uint64_t* hi = lo + nr;
    if (na >= nb)
        s_rows(a, na, b, nb, lo, hi);
    else
        s_rows(b, nb, a, na, lo, hi);
    s_collect(lo, hi, nr, r);
}

static void s_sqr_digs(const mp_digit* a, int n, mp_digit* r)
{
    if (n == 0)
        return;
    int nr = 2 * n;
    uint64_t stackBuf[2 * 256];
    std::vector<uint64_t> heap;
    uint64_t* lo = stackBuf;
    if (nr > 256) {
        heap.assign(size_t(2) * nr, 0);
        lo = heap.data();
    } else {
        std::memset(stackBuf, 0, sizeof(uint64_t) * 2 * nr);
    }
    uint64_t* hi = lo + nr;
    s_sqr_rows(a, n, lo, hi);
    s_collect(lo, hi, nr, r);
}

// ------------------------------------------------------------ recursive products

static void s_mul_rec(const mp_digit* a, int na, const mp_digit* b, int nb, mp_digit* r, Arena ar);
static void s_sqr_rec(const mp_digit* a, int n, mp_digit* r, Arena ar);
static void s_toom3(const mp_digit* a, int na, const mp_digit* b, int nb, mp_digit* r, bool square);

static int s_len(const mp_digit* a, int n)
{
    while (n > 0 && a[n - 1] == 0)
        --n;
    return n;
}

// Karatsuba, split at half the longer length; nb <= na < 2 nb.
static void s_karatsuba(const mp_digit* a, int na, const mp_digit* b, int nb, mp_digit* r, Arena ar)
{
    int h = (na + 1) / 2;
    int nr = na + nb;
    if (nb <= h) {
        // b has no upper half: r = a0*b + (a1*b) << h
        s_mul_rec(a, h, b, nb, r, ar);
        std::memset(r + h + nb, 0, sizeof(mp_digit) * (nr - h - nb));
        int n1 = na - h;
        mp_digit* t = ar.take(n1 + nb);
        s_mul_rec(a + h, n1, b, nb, t, ar);
        s_add_into(r + h, nr - h, t, n1 + nb);
        return;
    }
    int na1 = na - h, nb1 = nb - h;
    s_mul_rec(a, h, b, h, r, ar);                     // r[0..2h) = a0 b0
    s_mul_rec(a + h, na1, b + h, nb1, r + 2 * h, ar);  // r[2h..nr) = a1 b1
    mp_digit* sa = ar.take(h + 1);
    mp_digit* sb = ar.take(h + 1);
    mp_digit* t = ar.take(2 * h + 2);
    s_add_arr(a, h, a + h, na1, sa, h + 1);
    s_add_arr(b, h, b + h, nb1, sb, h + 1);
    int la = s_len(sa, h + 1), lb = s_len(sb, h + 1);
    std::memset(t, 0, sizeof(mp_digit) * (2 * h + 2));
    if (la && lb) {
        if (la >= lb)
            s_mul_rec(sa, la, sb, lb, t, ar);
        else
            s_mul_rec(sb, lb, sa, la, t, ar);
    }
    s_sub_from(t, 2 * h + 2, r, 2 * h);
    s_sub_from(t, 2 * h + 2, r + 2 * h, nr - 2 * h);
    int lt = s_len(t, 2 * h + 2);
    s_add_into(r + h, nr - h, t, std::min(lt, nr - h));
}

static void s_mul_rec(const mp_digit* a, int na, const mp_digit* b, int nb, mp_digit* r, Arena ar)
{
    if (na < nb) {
        std::swap(a, b);
        std::swap(na, nb);
    }
    if (nb < mp_mul_cutoff) {
        s_mp_mul_digs(a, na, b, nb, r);
        return;
    }
    if (na >= 2 * nb) {
        // unbalanced: pieces of the smaller's length, from the top piece down
        int nr = na + nb;
        std::memset(r, 0, sizeof(mp_digit) * nr);
        mp_digit* t = ar.take(2 * nb);
        int top = ((na - 1) / nb) * nb;
        for (int off = top; off >= 0; off -= nb) {
            int len = std::min(nb, na - off);
            if (len >= nb)
                s_mul_rec(a + off, len, b, nb, t, ar);
            else
                s_mul_rec(b, nb, a + off, len, t, ar);
            s_add_into(r + off, nr - off, t, len + nb);
        }
        return;
    }
    if (nb >= mp_fft_cutoff && s_mul_fft(a, na, b, nb, r, false))
        return;
    if (nb >= mp_t3m_cutoff && nb > 2 * ((na + 2) / 3)) {
        s_toom3(a, na, b, nb, r, false);
        return;
    }
    s_karatsuba(a, na, b, nb, r, ar);
}

static void s_karatsuba_sqr(const mp_digit* a, int n, mp_digit* r, Arena ar)
{
    int h = (n + 1) / 2, n1 = n - h;
    s_sqr_rec(a, h, r, ar);
    s_sqr_rec(a + h, n1, r + 2 * h, ar);
    mp_digit* sa = ar.take(h + 1);
    mp_digit* t = ar.take(2 * h + 2);
    s_add_arr(a, h, a + h, n1, sa, h + 1);
    int la = s_len(sa, h + 1);
    std::memset(t, 0, sizeof(mp_digit) * (2 * h + 2));
    s_sqr_rec(sa, la, t, ar);
    s_sub_from(t, 2 * h + 2, r, 2 * h);
    s_sub_from(t, 2 * h + 2, r + 2 * h, 2 * n - 2 * h);
    int lt = s_len(t, 2 * h + 2);
    s_add_into(r + h, 2 * n - h, t, std::min(lt, 2 * n - h));
}

static void s_sqr_rec(const mp_digit* a, int n, mp_digit* r, Arena ar)
{
    if (n < mp_sqr_cutoff) {
        std::memset(r, 0, sizeof(mp_digit) * 2 * n);
        s_sqr_digs(a, n, r);
        return;
    }
    if (n >= mp_fft_cutoff && s_mul_fft(a, n, a, n, r, true))
        return;
    if (n >= mp_t3s_cutoff) {
        s_toom3(a, n, a, n, r, true);
        return;
    }
    s_karatsuba_sqr(a, n, r, ar);
}

static size_t s_ws_size(int na, int nb) { return size_t(8) * (na + nb) + 2048; }

void s_mp_mul_arrays(const mp_digit* a, int na, const mp_digit* b, int nb, mp_digit* r)
{
    if (na == 0 || nb == 0) {
        std::memset(r, 0, sizeof(mp_digit) * (na + nb));
        return;
    }
    if (std::min(na, nb) < mp_mul_cutoff) {
        if (na >= nb)
            s_mp_mul_digs(a, na, b, nb, r);
        else
            s_mp_mul_digs(b, nb, a, na, r);
        return;
    }
    std::vector<mp_digit> ws(s_ws_size(na, nb));
    s_mul_rec(a, na, b, nb, r, Arena{ws.data(), ws.data() + ws.size()});
}

void s_mp_sqr_arrays(const mp_digit* a, int n, mp_digit* r)
{
    if (n < mp_sqr_cutoff) {
        std::memset(r, 0, sizeof(mp_digit) * 2 * n);
        s_sqr_digs(a, n, r);
        return;
    }
    std::vector<mp_digit> ws(s_ws_size(n, n));
    s_sqr_rec(a, n, r, Arena{ws.data(), ws.data() + ws.size()});
}

// ------------------------------------------------------------ Toom-3 on signed temporaries

static void s_from_arr(mp_int& x, const mp_digit* a, int n)
{
    n = std::max(0, n);
    mp_grow(x, n);
    s_set_used(x, 0);
    std::memcpy(x.pdigits, a, sizeof(mp_digit) * n);
    x.used = n;
    x.sign = MP_ZPOS;
    mp_clamp(x);
}

static void s_signed_mul(const mp_int& x, const mp_int& y, mp_int& z, bool square)
{
    if (square)
        s_sqr_mag(x, z);
    else
        s_mul_mag(x, y, z);
    z.sign = (z.used && x.sign != y.sign) ? MP_NEG : MP_ZPOS;
}

static void s_exact_div3(mp_int& x)
{
    uint16_t sg = x.sign;
    mp_digit rem;
    mp_int* px = &x;
    x.sign = MP_ZPOS;
    s_mp_div_d(x, 3, px, rem);
    x.sign = x.used ? sg : MP_ZPOS;
}

// Evaluation at 0, 1, -1, -2 and infinity; Bodrato's interpolation sequence.
static void s_toom3(const mp_digit* a, int na, const mp_digit* b, int nb, mp_digit* r, bool square)
{
    int k = (na + 2) / 3;
    mp_tmp a0, a1, a2, b0, b1, b2, p, q, r0, r1, rm1, rm2, rinf, t;
    s_from_arr(a0, a, k);
    s_from_arr(a1, a + k, k);
    s_from_arr(a2, a + 2 * k, na - 2 * k);
    if (!square) {
        s_from_arr(b0, b, k);
        s_from_arr(b1, b + k, k);
        s_from_arr(b2, b + 2 * k, nb - 2 * k);
    }
    const mp_int& B0 = square ? a0 : b0;
    const mp_int& B1 = square ? a1 : b1;
    const mp_int& B2 = square ? a2 : b2;

    s_signed_mul(a0, B0, r0, square);
    s_signed_mul(a2, B2, rinf, square);
    // p = a0 + a2, q = b0 + b2
    mp_add(a0, a2, p);
    mp_add(B0, B2, q);
    // r(1)
    mp_add(p, a1, t);
    mp_tmp u;
    mp_add(q, B1, u);
    s_signed_mul(t, u, r1, square);
    // r(-1)
    mp_sub(p, a1, p);
    mp_sub(q, B1, q);
    s_signed_mul(p, q, rm1, square);
    // r(-2): ((p + a2) * 2 - a0)
    mp_add(p, a2, p);
    mp_shl(p, 1, p);
    mp_sub(p, a0, p);
    mp_add(q, B2, q);
    mp_shl(q, 1, q);
    mp_sub(q, B0, q);
    s_signed_mul(p, q, rm2, square);

    // interpolation
    mp_int& c3 = rm2;
    mp_sub(rm2, r1, c3);
    s_exact_div3(c3);                  // r3 = (r(-2) - r(1)) / 3
    mp_int& c1 = r1;
    mp_sub(r1, rm1, c1);
    mp_shr(c1, 1, c1);                 // r1 = (r(1) - r(-1)) / 2
    mp_int& c2 = rm1;
    mp_sub(rm1, r0, c2);               // r2 = r(-1) - r(0)
    mp_sub(c2, c3, c3);
    mp_shr(c3, 1, c3);
    mp_add(c3, rinf, c3);
    mp_add(c3, rinf, c3);              // r3 = (r2 - r3) / 2 + 2 r(inf)
    mp_add(c2, c1, c2);
    mp_sub(c2, rinf, c2);              // r2 = r2 + r1 - r(inf)
    mp_sub(c1, c3, c1);                // r1 = r1 - r3

    int nr = na + nb;
    std::memset(r, 0, sizeof(mp_digit) * nr);
    std::memcpy(r, r0.v.pdigits, sizeof(mp_digit) * r0.v.used);
    auto addAt = [&](const mp_int& x, int off) {
        if (x.used == 0)
            return;
        // all coefficients are non-negative for non-negative operands
        s_add_into(r + off, nr - off, x.pdigits, std::min<int>(x.used, nr - off));
    };
    addAt(c1, k);
    addAt(c2, 2 * k);
    addAt(c3, 3 * k);
    addAt(rinf, 4 * k);
}

// ------------------------------------------------------------ mp_int level

void s_mul_mag(const mp_int& x, const mp_int& y, mp_int& z)
{
    int na = x.used, nb = y.used;
    mp_grow(z, na + nb);
    s_set_used(z, 0);
    s_mp_mul_arrays(x.pdigits, na, y.pdigits, nb, z.pdigits);
    z.used = na + nb;
    z.sign = MP_ZPOS;
    mp_clamp(z);
}

void s_sqr_mag(const mp_int& x, mp_int& z)
{
    int n = x.used;
    mp_grow(z, 2 * n);
    s_set_used(z, 0);
    s_mp_sqr_arrays(x.pdigits, n, z.pdigits);
    z.used = 2 * n;
    z.sign = MP_ZPOS;
    mp_clamp(z);
}

void mp_mul(const mp_int& a, const mp_int& b, mp_int& c)
{
    if (mp_error)
        return;
    s_check(a, "mp_mul");
    s_check(b, "mp_mul");
    s_check(c, "mp_mul");
    if (&a == &b) {
        mp_sqr(a, c);
        return;
    }
    if (int64_t(a.used) + b.used > MAXDigits)
        mp_raise_maxdigits("mp_grow");
    uint16_t sg = (a.sign != b.sign) ? MP_NEG : MP_ZPOS;
    if (&c == &a || &c == &b) {
        mp_tmp t;
        s_mul_mag(a, b, t);
        mp_exch(t.v, c);
    } else {
        s_mul_mag(a, b, c);
    }
    c.sign = c.used ? sg : MP_ZPOS;
}

void mp_sqr(const mp_int& a, mp_int& b)
{
    if (mp_error)
        return;
    s_check(a, "mp_sqr");
    s_check(b, "mp_sqr");
    if (int64_t(a.used) * 2 > MAXDigits)
        mp_raise_maxdigits("mp_grow");
    if (&a == &b) {
        mp_tmp t;
        s_sqr_mag(a, t);
        mp_exch(t.v, b);
    } else {
        s_sqr_mag(a, b);
    }
}

void s_mp_mul_school(const mp_int& a, const mp_int& b, mp_int& c)
{
    mp_tmp t;
    mp_grow(t, a.used + b.used);
    s_mp_mul_digs(a.pdigits, a.used, b.pdigits, b.used, t.v.pdigits);
    t.v.used = a.used + b.used;
    mp_clamp(t);
    t.v.sign = (t.v.used && a.sign != b.sign) ? MP_NEG : MP_ZPOS;
    mp_exch(t.v, c);
}

}  // namespace numbers
