#pragma once
// Life, setting, reading out, tests and arithmetic of mp_int.
#include "numbers/mp_types.h"

#include <string>

namespace numbers {

// Life
void mp_init(mp_int& a);
void mp_init_size(mp_int& a, int32_t size);
void mp_init_size2(mp_int& a, mp_int& b, int32_t size);
void mp_init2(mp_int& a, mp_int& b);
void mp_init3(mp_int& a, mp_int& b, mp_int& c);
void mp_init4(mp_int& a, mp_int& b, mp_int& c, mp_int& d);
void mp_init5(mp_int& a, mp_int& b, mp_int& c, mp_int& d, mp_int& e);
void mp_init6(mp_int& a, mp_int& b, mp_int& c, mp_int& d, mp_int& e, mp_int& f);
void mp_clear(mp_int& a);
void mp_clear2(mp_int& a, mp_int& b);
void mp_clear3(mp_int& a, mp_int& b, mp_int& c);
void mp_clear4(mp_int& a, mp_int& b, mp_int& c, mp_int& d);
void mp_clear5(mp_int& a, mp_int& b, mp_int& c, mp_int& d, mp_int& e);
void mp_clear6(mp_int& a, mp_int& b, mp_int& c, mp_int& d, mp_int& e, mp_int& f);
void mp_grow(mp_int& a, int32_t size);
void mp_clamp(mp_int& a);
void mp_exch(mp_int& a, mp_int& b);
void mp_copy(const mp_int& a, mp_int& b);  // b := a
void mp_zero(mp_int& a);
bool mp_not_init(const mp_int& a);

// Setting
void mp_set(mp_int& a, mp_digit d);
void mp_set1(mp_int& a);
void mp_set_int(mp_int& a, int32_t v);
void mp_set_int64(mp_int& a, int64_t v);
void mp_setbit(mp_int& a, int32_t n);  // a := a with bit n set

// Reading out (machine words)
int32_t mp_bitsize(const mp_int& a);
bool mp_is_longint(const mp_int& a, int32_t& v);  // fits signed 32 bit: hands it out
bool mp_is_int64(const mp_int& a, int64_t& v);

// Tests
bool mp_iszero(const mp_int& a);
bool mp_is1(const mp_int& a);
bool mp_isodd(const mp_int& a);
bool mp_iseven(const mp_int& a);
int mp_cmp(const mp_int& a, const mp_int& b);      // -1, 0, 1
int mp_cmp_mag(const mp_int& a, const mp_int& b);  // on |a|, |b|
int mp_cmp_int(const mp_int& a, int32_t b);
bool mp_is_eq(const mp_int& a, const mp_int& b);
bool mp_is_lt(const mp_int& a, const mp_int& b);
bool mp_is_ge(const mp_int& a, const mp_int& b);
bool mp_is_gt(const mp_int& a, const mp_int& b);
bool mp_is_le0(const mp_int& a);

// Arithmetic: operands first, result last; the result may alias any operand.
void mp_add(const mp_int& a, const mp_int& b, mp_int& c);
void mp_sub(const mp_int& a, const mp_int& b, mp_int& c);
void mp_mul(const mp_int& a, const mp_int& b, mp_int& c);
void mp_sqr(const mp_int& a, mp_int& b);
void mp_divrem(const mp_int& a, const mp_int& b, mp_int* q, mp_int* r);  // nil: not wanted
void mp_div(const mp_int& a, const mp_int& b, mp_int& c);
void mp_mod(const mp_int& a, const mp_int& b, mp_int& c);  // 0 <= c < b for b > 0
void mp_add_d(const mp_int& a, mp_digit b, mp_int& c);
void mp_sub_d(const mp_int& a, mp_digit b, mp_int& c);
void mp_mul_d(const mp_int& a, mp_digit b, mp_int& c);
void mp_add_int(const mp_int& a, int32_t b, mp_int& c);
void mp_sub_int(const mp_int& a, int32_t b, mp_int& c);
void mp_mul_int(const mp_int& a, int32_t b, mp_int& c);
// c := a div b (truncating), rem := a - c*b with the sign of a
void mp_div_w(const mp_int& a, uint32_t b, mp_int* c, uint32_t& rem);
void s_mp_div_d(const mp_int& a, mp_digit b, mp_int* c, mp_digit& rem);  // on |a|
uint32_t mp_mod_int(const mp_int& a, uint32_t b);  // non-negative residue
void mp_inc(mp_int& a);
void mp_dec(mp_int& a);
void mp_abs(const mp_int& a, mp_int& b);
void mp_chs(const mp_int& a, mp_int& b);
void mp_shl(const mp_int& a, int32_t b, mp_int& c);  // c := a * 2^b
void mp_shr(const mp_int& a, int32_t b, mp_int& c);  // c := |a| div 2^b with the sign of a
void mp_shr1(mp_int& a);
void mp_lshd(mp_int& a, int32_t b);  // shift by b digits
void mp_rshd(mp_int& a, int32_t b);
void mp_mod_2k(const mp_int& a, int32_t b, mp_int& c);  // |a| mod 2^b, sign of a kept
int32_t mp_cnt_lsb(const mp_int& a);  // number of trailing zero bits, 0 for zero
void mp_expt_int(const mp_int& a, int32_t b, mp_int& c);
void mp_sqrt(const mp_int& a, mp_int& b);
void mp_sqrtrem(const mp_int& n, mp_int& s, mp_int& r);
bool mp_is_square(const mp_int& a);
bool mp_is_square2(const mp_int& a, mp_int* root);

// Low-level products on digit arrays (used by the modular code and the tests of the crossovers).
void s_mp_mul_digs(const mp_digit* a, int na, const mp_digit* b, int nb, mp_digit* r);  // schoolbook
void s_mp_mul_arrays(const mp_digit* a, int na, const mp_digit* b, int nb, mp_digit* r);
void s_mp_sqr_arrays(const mp_digit* a, int na, mp_digit* r);
void s_mp_mul_school(const mp_int& a, const mp_int& b, mp_int& c);  // schoolbook only, for tests

}  // namespace numbers
