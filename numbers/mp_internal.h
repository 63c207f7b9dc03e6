#pragma once
// Helpers shared by the kernel's own units; not for the tools.
#include "numbers/mp_types.h"

#include <vector>

namespace numbers {

void s_check(const mp_int& a, const char* who);
void s_set_used(mp_int& a, int32_t n);
int s_cmp_mag_digs(const mp_digit* a, int na, const mp_digit* b, int nb);

// |z| := |x| * |y| (z must not alias x or y); sign left to the caller.
void s_mul_mag(const mp_int& x, const mp_int& y, mp_int& z);
void s_sqr_mag(const mp_int& x, mp_int& z);

// Product by number-theoretic transforms; false where the length is beyond the transforms.
bool s_mul_fft(const mp_digit* a, int na, const mp_digit* b, int nb, mp_digit* r, bool square);

// A precomputed reciprocal for repeated division by the same large divisor.
struct mp_recip {
    mp_int d;    // the divisor, positive
    mp_int inv;  // floor(B^(2n) / d), n = d.used
    int32_t n = 0;
    mp_recip();
    ~mp_recip();
    mp_recip(const mp_recip&) = delete;
    mp_recip& operator=(const mp_recip&) = delete;
};
void s_recip_setup(const mp_int& d, mp_recip& r);
// q := |a| div d, rem := |a| mod d, using the reciprocal; q or rem may be nil.
void s_divrem_recip(const mp_int& a, const mp_recip& r, mp_int* q, mp_int* rem);

}  // namespace numbers
