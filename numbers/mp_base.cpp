// mp_int life, setting, tests, addition, shifts and the one-digit operations.
#include "numbers/mp_base.h"
#include "numbers/mp_internal.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace numbers {

thread_local int mp_error = MP_OKAY;

int mp_allocprec = 16;
int mp_allocmask = 15;
// Crossovers measured on this kernel: Karatsuba pays from about 64 digits (96 when squaring),
// Toom-3 from about 300; Newton division from about 300.
int mp_mul_cutoff = 64;
int mp_t3m_cutoff = 300;
int mp_sqr_cutoff = 96;
int mp_t3s_cutoff = 300;
int mp_div_cutoff = 300;
int mp_fft_cutoff = 30000;  // the transforms overtake Toom-3 near 30000 digits (about 280000 decimal)
int mp_radix_cutoff = 40;
bool mp_show_plus = false;
bool mp_gcd_use_mod = true;

void mp_reset_error() { mp_error = MP_OKAY; }

void mp_raise_memory(const char* msg) { mp_error = MP_MEM; throw MPXMemory(msg); }
void mp_raise_range(const char* msg) { mp_error = MP_RANGE; throw MPXRange(msg); }
void mp_raise_badarg(const char* msg) { mp_error = MP_BADARG; throw MPXBadArg(msg); }
void mp_raise_undef(const char* msg) { mp_error = MP_UNDEF; throw MPXUndef(msg); }
void mp_raise_maxdigits(const char* msg) { mp_error = MP_MAXDIGITS; throw MPXMaxDigits(msg); }
void mp_raise_notinit(const char* msg) { mp_error = MP_NOTINIT; throw MPXNotInit(msg); }

void mp_set_allocprec(int n)
{
    if (n < 9)
        mp_allocprec = 8;
    else if (n < 17)
        mp_allocprec = 16;
    else if (n > 32)
        mp_allocprec = 64;
    else
        mp_allocprec = 32;
    mp_allocmask = mp_allocprec - 1;
}

mp_tmp::mp_tmp() { mp_init(v); }
mp_tmp::~mp_tmp() { mp_clear(v); }

// ---------------------------------------------------------------- life

bool mp_not_init(const mp_int& a) { return a.magic != MP_MAGIC || a.pdigits == nullptr; }

static void s_init_size(mp_int& a, int32_t size, const char* who)
{
    if (size > MAXDigits)
        mp_raise_maxdigits(who);
    if (size < 0)
        size = 0;
    int32_t n = size == 0 ? mp_allocprec : ((size + mp_allocmask) / mp_allocprec) * mp_allocprec;
    auto* p = static_cast<mp_digit*>(std::calloc(static_cast<size_t>(n), sizeof(mp_digit)));
    if (!p)
        mp_raise_memory("mp_grow: realloc");
    a.pdigits = p;
    a.alloc = n;
    a.used = 0;
    a.sign = MP_ZPOS;
    a.magic = MP_MAGIC;
}

// Initialising and clearing work while mp_error is set, so that a tool can always tidy up.
void mp_init(mp_int& a) { s_init_size(a, 0, "mp_init_size"); }
void mp_init_size(mp_int& a, int32_t size) { s_init_size(a, size, "mp_init_size"); }
void mp_init_size2(mp_int& a, mp_int& b, int32_t size)
{
    if (size > MAXDigits)
        mp_raise_maxdigits("mp_init_size2");
    s_init_size(a, size, "mp_init_size2");
    try {
        s_init_size(b, size, "mp_init_size2");
    } catch (...) {
        mp_clear(a);
        throw;
    }
}

static void s_init_many(mp_int* const* list, int n)
{
    int done = 0;
    try {
        for (; done < n; ++done)
            mp_init(*list[done]);
    } catch (...) {
        for (int i = 0; i < done; ++i)
            mp_clear(*list[i]);
        throw;
    }
}

void mp_init2(mp_int& a, mp_int& b) { mp_int* l[] = {&a, &b}; s_init_many(l, 2); }
void mp_init3(mp_int& a, mp_int& b, mp_int& c) { mp_int* l[] = {&a, &b, &c}; s_init_many(l, 3); }
void mp_init4(mp_int& a, mp_int& b, mp_int& c, mp_int& d)
{
    mp_int* l[] = {&a, &b, &c, &d};
    s_init_many(l, 4);
}
void mp_init5(mp_int& a, mp_int& b, mp_int& c, mp_int& d, mp_int& e)
{
    mp_int* l[] = {&a, &b, &c, &d, &e};
    s_init_many(l, 5);
}
void mp_init6(mp_int& a, mp_int& b, mp_int& c, mp_int& d, mp_int& e, mp_int& f)
{
    mp_int* l[] = {&a, &b, &c, &d, &e, &f};
    s_init_many(l, 6);
}

void mp_clear(mp_int& a)
{
    if (a.magic == MP_MAGIC && a.pdigits)
        std::free(a.pdigits);
    a.pdigits = nullptr;
    a.alloc = 0;
    a.used = 0;
    a.sign = MP_ZPOS;
    a.magic = 0;
}
void mp_clear2(mp_int& a, mp_int& b) { mp_clear(a); mp_clear(b); }
void mp_clear3(mp_int& a, mp_int& b, mp_int& c) { mp_clear2(a, b); mp_clear(c); }
void mp_clear4(mp_int& a, mp_int& b, mp_int& c, mp_int& d) { mp_clear3(a, b, c); mp_clear(d); }
void mp_clear5(mp_int& a, mp_int& b, mp_int& c, mp_int& d, mp_int& e)
{
    mp_clear4(a, b, c, d);
    mp_clear(e);
}
void mp_clear6(mp_int& a, mp_int& b, mp_int& c, mp_int& d, mp_int& e, mp_int& f)
{
    mp_clear5(a, b, c, d, e);
    mp_clear(f);
}

void s_check(const mp_int& a, const char* who)
{
    if (mp_not_init(a))
        mp_raise_notinit(who);
}

static void s_grow(mp_int& a, int32_t size, int32_t limit)
{
    if (mp_error)
        return;
    s_check(a, "mp_grow");
    if (a.alloc >= size)
        return;
    if (size > limit)
        mp_raise_maxdigits("mp_grow");
    // One spare grain comes with every grow.
    int32_t n = size + (mp_allocprec - size % mp_allocprec) + mp_allocprec;
    auto* p = static_cast<mp_digit*>(std::realloc(a.pdigits, static_cast<size_t>(n) * sizeof(mp_digit)));
    if (!p)
        mp_raise_memory("mp_grow: realloc");
    std::memset(p + a.alloc, 0, static_cast<size_t>(n - a.alloc) * sizeof(mp_digit));
    a.pdigits = p;
    a.alloc = n;
}

void mp_grow(mp_int& a, int32_t size) { s_grow(a, size, MAXDigits); }

void mp_clamp(mp_int& a)
{
    while (a.used > 0 && a.pdigits[a.used - 1] == 0)
        --a.used;
    if (a.used == 0)
        a.sign = MP_ZPOS;
}

void mp_exch(mp_int& a, mp_int& b)
{
    if (mp_error)
        return;
    std::swap(a, b);
}

void mp_copy(const mp_int& a, mp_int& b)
{
    if (mp_error || &a == &b)
        return;
    s_check(a, "mp_copy");
    s_check(b, "mp_copy");
    mp_grow(b, a.used);
    std::memcpy(b.pdigits, a.pdigits, static_cast<size_t>(a.used) * sizeof(mp_digit));
    if (b.used > a.used)
        std::memset(b.pdigits + a.used, 0, static_cast<size_t>(b.used - a.used) * sizeof(mp_digit));
    b.used = a.used;
    b.sign = a.sign;
}

void mp_zero(mp_int& a)
{
    if (mp_error)
        return;
    s_check(a, "mp_zero");
    std::memset(a.pdigits, 0, static_cast<size_t>(a.used) * sizeof(mp_digit));
    a.used = 0;
    a.sign = MP_ZPOS;
}

// Keep the digits above `used` zero: several loops rely on it.
void s_set_used(mp_int& a, int32_t n)
{
    if (a.used > n)
        std::memset(a.pdigits + n, 0, static_cast<size_t>(a.used - n) * sizeof(mp_digit));
    a.used = n;
}

// ---------------------------------------------------------------- setting

void mp_set(mp_int& a, mp_digit d)
{
    if (mp_error)
        return;
    if (mp_not_init(a))
        mp_raise_notinit("mp_set");
    mp_zero(a);
    a.pdigits[0] = d & MP_MASK;
    a.used = a.pdigits[0] ? 1 : 0;
}

void mp_set1(mp_int& a)
{
    if (mp_error)
        return;
    if (mp_not_init(a))
        mp_raise_notinit("mp_set1");
    mp_set(a, 1);
}

void mp_set_int64(mp_int& a, int64_t v)
{
    if (mp_error)
        return;
    s_check(a, "mp_set_int");
    mp_zero(a);
    uint64_t m = v < 0 ? 0 - static_cast<uint64_t>(v) : static_cast<uint64_t>(v);
    mp_grow(a, 3);
    int i = 0;
    while (m) {
        a.pdigits[i++] = static_cast<mp_digit>(m & MP_MASK);
        m >>= DIGIT_BIT;
    }
    a.used = i;
    a.sign = (v < 0 && i) ? MP_NEG : MP_ZPOS;
}

void mp_set_int(mp_int& a, int32_t v) { mp_set_int64(a, v); }

void mp_setbit(mp_int& a, int32_t n)
{
    if (mp_error)
        return;
    s_check(a, "mp_setbit");
    if (n < 0 || n > MP_MAXBIT)
        mp_raise_range("mp_setbit: (n<0) or (n>MP_MAXBIT)");
    int32_t k = n / DIGIT_BIT;
    s_grow(a, k + 1, MAXDigits + 1);  // bit MP_MAXBIT itself needs one digit more
    if (a.used < k + 1)
        a.used = k + 1;
    a.pdigits[k] |= mp_digit(1) << (n % DIGIT_BIT);
}

// ---------------------------------------------------------------- reading out

int32_t mp_bitsize(const mp_int& a)
{
    if (mp_error || mp_not_init(a) || a.used == 0)
        return 0;
    mp_digit top = a.pdigits[a.used - 1];
    int32_t r = (a.used - 1) * DIGIT_BIT;
    while (top) {
        ++r;
        top >>= 1;
    }
    return r;
}

bool mp_is_int64(const mp_int& a, int64_t& v)
{
    if (mp_error || mp_not_init(a) || a.used > 3)
        return false;
    uint64_t m = 0;
    for (int i = a.used - 1; i >= 0; --i) {
        if (m >> 33)
            return false;
        m = (m << DIGIT_BIT) | a.pdigits[i];
    }
    if (a.used == 3 && (a.pdigits[2] >> 2))
        return false;
    if (a.sign == MP_NEG) {
        if (m > (uint64_t(1) << 63))
            return false;
        v = static_cast<int64_t>(0 - m);
    } else {
        if (m >> 63)
            return false;
        v = static_cast<int64_t>(m);
    }
    return true;
}

bool mp_is_longint(const mp_int& a, int32_t& v)
{
    int64_t w;
    if (!mp_is_int64(a, w) || w < INT32_MIN || w > INT32_MAX)
        return false;
    v = static_cast<int32_t>(w);
    return true;
}

// ---------------------------------------------------------------- tests

bool mp_iszero(const mp_int& a) { return !mp_error && !mp_not_init(a) && a.used == 0; }
bool mp_is1(const mp_int& a)
{
    return !mp_error && !mp_not_init(a) && a.used == 1 && a.pdigits[0] == 1 && a.sign == MP_ZPOS;
}
bool mp_isodd(const mp_int& a) { return !mp_error && !mp_not_init(a) && a.used > 0 && (a.pdigits[0] & 1); }
bool mp_iseven(const mp_int& a) { return !mp_error && !mp_not_init(a) && (a.used == 0 || !(a.pdigits[0] & 1)); }

int s_cmp_mag_digs(const mp_digit* a, int na, const mp_digit* b, int nb)
{
    if (na != nb)
        return na > nb ? 1 : -1;
    for (int i = na - 1; i >= 0; --i)
        if (a[i] != b[i])
            return a[i] > b[i] ? 1 : -1;
    return 0;
}

int mp_cmp_mag(const mp_int& a, const mp_int& b)
{
    if (mp_error || mp_not_init(a) || mp_not_init(b))
        return 0;
    return s_cmp_mag_digs(a.pdigits, a.used, b.pdigits, b.used);
}

int mp_cmp(const mp_int& a, const mp_int& b)
{
    if (mp_error || mp_not_init(a) || mp_not_init(b))
        return 0;
    if (a.sign != b.sign)
        return a.sign == MP_NEG ? -1 : 1;
    int c = s_cmp_mag_digs(a.pdigits, a.used, b.pdigits, b.used);
    return a.sign == MP_NEG ? -c : c;
}

int mp_cmp_int(const mp_int& a, int32_t b)
{
    if (mp_error || mp_not_init(a))
        return 0;
    int64_t v;
    if (mp_is_int64(a, v))
        return v < b ? -1 : (v > b ? 1 : 0);
    return a.sign == MP_NEG ? -1 : 1;
}

bool mp_is_eq(const mp_int& a, const mp_int& b) { return !mp_error && !mp_not_init(a) && !mp_not_init(b) && mp_cmp(a, b) == 0; }
bool mp_is_lt(const mp_int& a, const mp_int& b) { return !mp_error && !mp_not_init(a) && !mp_not_init(b) && mp_cmp(a, b) < 0; }
bool mp_is_ge(const mp_int& a, const mp_int& b) { return !mp_error && !mp_not_init(a) && !mp_not_init(b) && mp_cmp(a, b) >= 0; }
bool mp_is_gt(const mp_int& a, const mp_int& b) { return !mp_error && !mp_not_init(a) && !mp_not_init(b) && mp_cmp(a, b) > 0; }
bool mp_is_le0(const mp_int& a) { return !mp_error && !mp_not_init(a) && (a.used == 0 || a.sign == MP_NEG); }

// ---------------------------------------------------------------- addition

// c := |a| + |b|; c may alias either.
static void s_add_mag(const mp_int& a, const mp_int& b, mp_int& c)
{
    const mp_int* x = &a;
    const mp_int* y = &b;
    if (x->used < y->used)
        std::swap(x, y);
    int nx = x->used, ny = y->used;
    mp_grow(c, nx + 1);
    const mp_digit* px = x->pdigits;  // re-read after a possible realloc of an alias
    const mp_digit* py = y->pdigits;
    mp_digit* pc = c.pdigits;
    mp_digit carry = 0;
    int i = 0;
    for (; i < ny; ++i) {
        mp_digit t = px[i] + py[i] + carry;
        pc[i] = t & MP_MASK;
        carry = t >> DIGIT_BIT;
    }
    for (; i < nx; ++i) {
        mp_digit t = px[i] + carry;
        pc[i] = t & MP_MASK;
        carry = t >> DIGIT_BIT;
    }
    pc[i] = carry;
    s_set_used(c, nx + 1);
    mp_clamp(c);
}

// c := |a| - |b| with |a| >= |b|
static void s_sub_mag(const mp_int& a, const mp_int& b, mp_int& c)
{
    int na = a.used, nb = b.used;
    mp_grow(c, na);
    const mp_digit* pa = a.pdigits;
    const mp_digit* pb = b.pdigits;
    mp_digit* pc = c.pdigits;
    mp_digit borrow = 0;
    int i = 0;
    for (; i < nb; ++i) {
        mp_digit t = pa[i] - pb[i] - borrow;
        pc[i] = t & MP_MASK;
        borrow = t >> DIGIT_BIT;  // bit 31 set on underflow; the top bit alone
        borrow &= 1;
    }
    for (; i < na; ++i) {
        mp_digit t = pa[i] - borrow;
        pc[i] = t & MP_MASK;
        borrow = (t >> DIGIT_BIT) & 1;
    }
    s_set_used(c, na);
    mp_clamp(c);
}

static void s_add_signed(const mp_int& a, const mp_int& b, uint16_t bsign, mp_int& c, const char* who)
{
    if (mp_error)
        return;
    s_check(a, who);
    s_check(b, who);
    s_check(c, who);
    uint16_t as = a.sign;
    if (as == bsign) {
        s_add_mag(a, b, c);
        c.sign = c.used ? as : MP_ZPOS;
    } else if (s_cmp_mag_digs(a.pdigits, a.used, b.pdigits, b.used) >= 0) {
        s_sub_mag(a, b, c);
        c.sign = c.used ? as : MP_ZPOS;
    } else {
        s_sub_mag(b, a, c);
        c.sign = c.used ? bsign : MP_ZPOS;
    }
}

void mp_add(const mp_int& a, const mp_int& b, mp_int& c) { s_add_signed(a, b, b.sign, c, "mp_add"); }
void mp_sub(const mp_int& a, const mp_int& b, mp_int& c)
{
    uint16_t bs = b.used ? uint16_t(1 - b.sign) : MP_ZPOS;
    s_add_signed(a, b, bs, c, "mp_sub");
}

void mp_add_int(const mp_int& a, int32_t b, mp_int& c)
{
    if (mp_error)
        return;
    mp_tmp t;
    mp_set_int(t, b);
    mp_add(a, t, c);
}
void mp_sub_int(const mp_int& a, int32_t b, mp_int& c)
{
    if (mp_error)
        return;
    mp_tmp t;
    mp_set_int64(t, -int64_t(b));
    mp_add(a, t, c);
}
void mp_add_d(const mp_int& a, mp_digit b, mp_int& c)
{
    if (mp_error)
        return;
    mp_tmp t;
    mp_set_int64(t, b);
    mp_add(a, t, c);
}
void mp_sub_d(const mp_int& a, mp_digit b, mp_int& c)
{
    if (mp_error)
        return;
    mp_tmp t;
    mp_set_int64(t, -int64_t(b));
    mp_add(a, t, c);
}
void mp_inc(mp_int& a) { mp_add_d(a, 1, a); }
void mp_dec(mp_int& a) { mp_sub_d(a, 1, a); }

void mp_abs(const mp_int& a, mp_int& b)
{
    if (mp_error)
        return;
    mp_copy(a, b);
    b.sign = MP_ZPOS;
}
void mp_chs(const mp_int& a, mp_int& b)
{
    if (mp_error)
        return;
    mp_copy(a, b);
    if (b.used)
        b.sign = uint16_t(1 - b.sign);
}

// ---------------------------------------------------------------- one-digit products and quotients

void mp_mul_d(const mp_int& a, mp_digit b, mp_int& c)
{
    if (mp_error)
        return;
    s_check(a, "mp_mul_d");
    s_check(c, "mp_mul_d");
    int n = a.used;
    uint16_t sg = a.sign;
    mp_grow(c, n + 2);
    const mp_digit* pa = a.pdigits;
    mp_digit* pc = c.pdigits;
    mp_word carry = 0;
    mp_word bb = b;  // may exceed 31 bits up to 2^32-1: the carry takes it
    for (int i = 0; i < n; ++i) {
        mp_word t = pa[i] * bb + carry;
        pc[i] = static_cast<mp_digit>(t & MP_MASK);
        carry = t >> DIGIT_BIT;
    }
    pc[n] = static_cast<mp_digit>(carry & MP_MASK);
    pc[n + 1] = static_cast<mp_digit>(carry >> DIGIT_BIT);
    s_set_used(c, n + 2);
    c.sign = sg;
    mp_clamp(c);
}

void mp_mul_int(const mp_int& a, int32_t b, mp_int& c)
{
    if (mp_error)
        return;
    uint32_t m = b < 0 ? 0u - static_cast<uint32_t>(b) : static_cast<uint32_t>(b);
    uint16_t sg = a.sign;
    mp_mul_d(a, m, c);
    if (c.used)
        c.sign = b < 0 ? uint16_t(1 - sg) : sg;
}

// Quotient of |a| by a word up to 2^32-1; c may be nil or alias a.
static uint32_t s_div_word(const mp_int& a, uint32_t b, mp_int* c)
{
    int n = a.used;
    if (c) {
        mp_grow(*c, n);
    }
    const mp_digit* pa = a.pdigits;
    mp_digit* pc = c ? c->pdigits : nullptr;
    mp_word r = 0;
    for (int i = n - 1; i >= 0; --i) {
        mp_word t = (r << DIGIT_BIT) | pa[i];
        mp_word q = t / b;
        r = t - q * b;
        if (pc)
            pc[i] = static_cast<mp_digit>(q);
    }
    if (c) {
        s_set_used(*c, n);
    }
    return static_cast<uint32_t>(r);
}

void s_mp_div_d(const mp_int& a, mp_digit b, mp_int* c, mp_digit& rem)
{
    if (mp_error)
        return;
    s_check(a, "s_mp_div_d");
    if (b == 0)
        mp_raise_range("s_mp_div_d: b=0");
    uint16_t sg = a.sign;
    rem = s_div_word(a, b, c);
    if (c) {
        c->sign = sg;
        mp_clamp(*c);
    }
}

void mp_div_w(const mp_int& a, uint32_t b, mp_int* c, uint32_t& rem)
{
    if (mp_error)
        return;
    s_check(a, "mp_div_w");
    if (b == 0)
        mp_raise_range("mp_div_w: b=0");
    uint16_t sg = a.sign;
    rem = s_div_word(a, b, c);
    if (c) {
        c->sign = sg;
        mp_clamp(*c);
    }
}

uint32_t mp_mod_int(const mp_int& a, uint32_t b)
{
    if (mp_error)
        return 0;
    s_check(a, "s_mp_mod_int");
    if (b == 0)
        mp_raise_range("s_mp_mod_int: b=0");
    uint32_t r = s_div_word(a, b, nullptr);
    if (a.sign == MP_NEG && r)
        r = b - r;
    return r;
}

// ---------------------------------------------------------------- shifts

void mp_lshd(mp_int& a, int32_t b)
{
    if (mp_error || b <= 0 || a.used == 0)
        return;
    s_check(a, "mp_lshd");
    if (int64_t(a.used) + b > MAXDigits)
        mp_raise_maxdigits("mp_lshd");
    mp_grow(a, a.used + b);
    std::memmove(a.pdigits + b, a.pdigits, static_cast<size_t>(a.used) * sizeof(mp_digit));
    std::memset(a.pdigits, 0, static_cast<size_t>(b) * sizeof(mp_digit));
    a.used += b;
}

void mp_rshd(mp_int& a, int32_t b)
{
    if (mp_error || b <= 0)
        return;
    s_check(a, "mp_rshd");
    if (b >= a.used) {
        mp_zero(a);
        return;
    }
    std::memmove(a.pdigits, a.pdigits + b, static_cast<size_t>(a.used - b) * sizeof(mp_digit));
    s_set_used(a, a.used - b);
    mp_clamp(a);
}

void mp_shl(const mp_int& a, int32_t b, mp_int& c)
{
    if (mp_error)
        return;
    s_check(a, "mp_shl");
    if (b > MP_MAXBIT)
        mp_raise_range("mp_shl: b>MP_MAXBIT");
    if (b < 0) {
        mp_shr(a, -b, c);
        return;
    }
    mp_copy(a, c);
    if (c.used == 0)
        return;
    int32_t d = b / DIGIT_BIT, s = b % DIGIT_BIT;
    if (s) {
        mp_grow(c, c.used + 1);
        mp_digit carry = 0;
        mp_digit* p = c.pdigits;
        for (int i = 0; i < c.used; ++i) {
            mp_digit hi = p[i] >> (DIGIT_BIT - s);
            p[i] = ((p[i] << s) | carry) & MP_MASK;
            carry = hi;
        }
        if (carry)
            p[c.used++] = carry;
    }
    mp_lshd(c, d);
}

void mp_shr(const mp_int& a, int32_t b, mp_int& c)
{
    if (mp_error)
        return;
    s_check(a, "mp_shr");
    if (b < 0) {
        mp_shl(a, -b, c);
        return;
    }
    mp_copy(a, c);
    int32_t d = b / DIGIT_BIT, s = b % DIGIT_BIT;
    mp_rshd(c, d);
    if (s && c.used) {
        mp_digit* p = c.pdigits;
        mp_digit carry = 0;
        for (int i = c.used - 1; i >= 0; --i) {
            mp_digit lo = p[i] & ((mp_digit(1) << s) - 1);
            p[i] = (p[i] >> s) | (carry << (DIGIT_BIT - s));
            carry = lo;
        }
        mp_clamp(c);
    }
}

void mp_shr1(mp_int& a) { mp_shr(a, 1, a); }

void mp_mod_2k(const mp_int& a, int32_t b, mp_int& c)
{
    if (mp_error)
        return;
    mp_copy(a, c);
    if (b <= 0) {
        mp_zero(c);
        return;
    }
    if (b >= c.used * DIGIT_BIT)
        return;
    int32_t d = b / DIGIT_BIT, s = b % DIGIT_BIT;
    int32_t keep = d + (s ? 1 : 0);
    if (s)
        c.pdigits[d] &= (mp_digit(1) << s) - 1;
    s_set_used(c, keep);
    mp_clamp(c);
}

int32_t mp_cnt_lsb(const mp_int& a)
{
    if (mp_error || mp_not_init(a) || a.used == 0)
        return 0;
    int32_t i = 0;
    while (a.pdigits[i] == 0)
        ++i;
    return i * DIGIT_BIT + __builtin_ctz(a.pdigits[i]);
}

}  // namespace numbers
