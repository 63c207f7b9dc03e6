#pragma once
// Number theory on mp_int and the machine-word helpers beneath it.
#include "numbers/mp_types.h"

namespace numbers {

void mp_gcd(const mp_int& a, const mp_int& b, mp_int& c);
bool mp_gcd1(const mp_int& a, const mp_int& b, mp_int& c);  // gcd into c; answers whether it is 1
void mp_lcm(const mp_int& a, const mp_int& b, mp_int& c);
// p1*a + p2*b = p3 = gcd(a, b); any of the results may be nil
void mp_xgcd(const mp_int& a, const mp_int& b, mp_int* p1, mp_int* p2, mp_int* p3);
int32_t mp_jacobi_lm(const mp_int& a, const mp_int& n);  // n odd, n >= 3
void mp_binomial(int32_t n, int32_t k, mp_int& a);
void s_mp_gbinom(int32_t n, int32_t k, mp_int& a);  // 0 <= k <= n by prime exponents
void mp_lucasv(const mp_int& p, const mp_int& k, const mp_int& n, mp_int& v);  // V_k(p, 1) mod n
void mp_fact(int32_t n, mp_int& a);  // running product 1*2*...*n

// Machine-word helpers
uint32_t gcd32(uint32_t a, uint32_t b);        // binary gcd
uint32_t invmod32(uint32_t a, uint32_t m);     // 0 where no inverse exists or m < 2
uint32_t isqrt32(uint32_t a);                  // digit-pair method
uint32_t icbrt32(uint32_t a);
int jacobi32(int32_t a, uint32_t n);           // n odd
int popcount32(uint32_t x);                    // 256-entry table

}  // namespace numbers
