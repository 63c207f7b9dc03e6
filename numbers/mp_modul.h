#pragma once
// Modular arithmetic: Barrett, Montgomery, 2^k reduction, powers and inverses.
#include "numbers/mp_types.h"

namespace numbers {

void mp_reduce_setup(const mp_int& m, mp_int& mu);                 // mu := floor(B^(2k) / m)
void mp_reduce(mp_int& x, const mp_int& m, const mp_int& mu);       // 0 <= x < B^(2k)  ->  x mod m
void mp_montgomery_setup(const mp_int& n, mp_digit& rho);          // rho = -1/n mod B
void mp_montgomery_calcnorm(mp_int& a, const mp_int& n);            // a := B^k mod n
void mp_montgomery_reduce(mp_int& x, const mp_int& n, mp_digit rho);  // x := x / B^k mod n
void mp_reduce_2k_setup(const mp_int& a, mp_digit& d);             // a = 2^p - d
void mp_reduce_2k(mp_int& a, const mp_int& n, mp_digit d);
bool mp_reduce_is_2k(const mp_int& n);

void mp_exptmod(const mp_int& a, const mp_int& b, const mp_int& c, mp_int& d);  // d := a^b mod c
void mp_exptmod_d(const mp_int& a, mp_digit b, const mp_int& c, mp_int& d);
void mp_mulmod(const mp_int& a, const mp_int& b, const mp_int& c, mp_int& d);
void mp_sqrmod(const mp_int& a, const mp_int& c, mp_int& d);
void mp_invmod(const mp_int& a, const mp_int& b, mp_int& c);   // c := a^-1 mod b, raises
bool mp_invmodf(const mp_int& a, const mp_int& b, mp_int& c);  // false where there is no inverse

}  // namespace numbers
