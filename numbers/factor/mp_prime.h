#pragma once
// Primes: the shared prime table, the word-size table, trial division and the probable-prime test.
#include "numbers/mp_types.h"

#include <cstdint>
#include <vector>

namespace numbers {

// The shared table of 32-bit primes (2 first), grown by fillPrimeTable up to a bound.
extern std::vector<uint32_t> primeTable;
constexpr uint32_t PrimeTableBound = 10000000;
void fillPrimeTable(uint32_t bound);  // a bound below the one reached before does nothing
uint32_t primeTableReached();

// Word-size table: bit table of the odd numbers below 65536 and the 6542 primes under 65536.
constexpr int WordPrimeCount = 6542;
uint16_t wordPrime(int i);           // i-th prime, indexed from 1
bool wordTableIsPrime(uint32_t n);   // n < 65536 by the bit table
bool isPrime32(uint32_t n);          // bit table, then strong tests to 31, 73 or 2, 7, 61

// Smallest prime factor of |n| in [f0, f1] (f1 cut to 32767), 0 if there is none.
uint32_t mp_small_factor(const mp_int& n, uint32_t f0, uint32_t f1);
bool mp_is_spsp(const mp_int& n, const mp_int& a);  // strong probable prime to base a
bool mp_is_spsp_d(const mp_int& n, mp_digit a);
bool mp_is_slpsp(const mp_int& n);                  // strong Lucas probable prime
bool mp_is_pprime_ex(const mp_int& n, uint32_t tdMax);
bool mp_is_pprime(const mp_int& n);                 // = mp_is_pprime_ex(n, 16383)
uint32_t mp_prime_nth(int32_t n);                   // the n-th prime, n >= 1 (0 out of range)

}  // namespace numbers
