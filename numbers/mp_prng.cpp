// ISAAC after its published description, and the random functions of the kernel.
#include "numbers/mp_prng.h"
#include "numbers/mp_base.h"
#include "numbers/mp_internal.h"

#include <cstdlib>
#include <ctime>

namespace numbers {

void isaac_generate(IsaacState& s)
{
    uint32_t a = s.aa, b = s.bb + (++s.cc);
    for (int i = 0; i < 256; ++i) {
        uint32_t x = s.mm[i];
        switch (i & 3) {
        case 0: a ^= a << 13; break;
        case 1: a ^= a >> 6; break;
        case 2: a ^= a << 2; break;
        default: a ^= a >> 16; break;
        }
        a += s.mm[(i + 128) & 255];
        uint32_t y = s.mm[(x >> 2) & 255] + a + b;
        s.mm[i] = y;
        b = s.mm[(y >> 10) & 255] + x;
        s.randrsl[i] = b;
    }
    s.aa = a;
    s.bb = b;
}

static void isaac_mix(uint32_t v[8])
{
    uint32_t &a = v[0], &b = v[1], &c = v[2], &d = v[3], &e = v[4], &f = v[5], &g = v[6], &h = v[7];
    a ^= b << 11; d += a; b += c;
    b ^= c >> 2;  e += b; c += d;
    c ^= d << 8;  f += c; d += e;
    d ^= e >> 16; g += d; e += f;
    e ^= f << 10; h += e; f += g;
    f ^= g >> 4;  a += f; g += h;
    g ^= h << 8;  b += g; h += a;
    h ^= a >> 9;  c += h; a += b;
}

void isaac_init(IsaacState& s, bool useSeed)
{
    s.aa = s.bb = s.cc = 0;
    uint32_t v[8];
    for (uint32_t& x : v)
        x = 0x9e3779b9u;  // the golden ratio
    for (int i = 0; i < 4; ++i)
        isaac_mix(v);
    for (int pass = 0; pass < (useSeed ? 2 : 1); ++pass) {
        const uint32_t* src = pass == 0 ? s.randrsl : s.mm;
        for (int i = 0; i < 256; i += 8) {
            if (useSeed)
                for (int j = 0; j < 8; ++j)
                    v[j] += src[i + j];
            isaac_mix(v);
            for (int j = 0; j < 8; ++j)
                s.mm[i + j] = v[j];
        }
    }
    isaac_generate(s);
    s.randcnt = 256;
}

uint32_t isaac_next(IsaacState& s)
{
    if (s.randcnt == 0) {
        isaac_generate(s);
        s.randcnt = 256;
    }
    return s.randrsl[--s.randcnt];
}

// ------------------------------------------------------------ the kernel's generator

static IsaacState g_state;
static bool g_ready = false;

void mp_random_randomize()
{
    std::srand(static_cast<unsigned>(std::time(nullptr)));
    for (uint32_t& w : g_state.randrsl) {
        w = 0;
        for (int b = 0; b < 4; ++b)
            w = (w << 8) | static_cast<uint32_t>(std::rand() & 255);
    }
    isaac_init(g_state, true);
    g_ready = true;
}

void mp_random_seed(uint32_t seed)
{
    uint32_t x = seed;
    for (uint32_t& w : g_state.randrsl) {
        x = x * 1103515245u + 12345u;
        w = x;
    }
    isaac_init(g_state, true);
    g_ready = true;
}

uint32_t mp_random_long()
{
    if (!g_ready)
        mp_random_randomize();
    return isaac_next(g_state);
}

int32_t mp_random_int() { return static_cast<int32_t>(mp_random_long() & MP_MASK); }

void mp_rand_ex(mp_int& a, int32_t digits, bool forceTopBit)
{
    if (mp_error)
        return;
    s_check(a, "mp_rand_ex");
    if (digits > MAXDigits)
        mp_raise_maxdigits("mp_rand_ex");
    mp_zero(a);
    if (digits <= 0)
        return;
    mp_grow(a, digits);
    for (int32_t i = 0; i < digits; ++i)
        a.pdigits[i] = static_cast<mp_digit>(mp_random_int());
    while (a.pdigits[digits - 1] == 0)
        a.pdigits[digits - 1] = static_cast<mp_digit>(mp_random_int());
    if (forceTopBit)
        a.pdigits[digits - 1] |= 0x40000000u;
    a.used = digits;
}

void mp_rand(mp_int& a, int32_t digits) { mp_rand_ex(a, digits, false); }

}  // namespace numbers
