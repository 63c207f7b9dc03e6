#pragma once
// Number text in the radixes 2..36; divide-and-conquer for long numbers in both directions.
#include "numbers/mp_types.h"

#include <string>

namespace numbers {

void mp_read_radix(mp_int& a, const std::string& str, int radix);  // sign allowed
void s_mp_read_radix(mp_int& a, const std::string& str, int radix, bool signAllowed);
void mp_read_decimal(mp_int& a, const std::string& str);
std::string mp_radix_astr(const mp_int& a, int radix);
std::string mp_decimal(const mp_int& a);
// Writes into buf with terminator; maxlen counts the terminator.
void s_mp_toradix_n(const mp_int& a, char* buf, int radix, int maxlen);
int32_t mp_radix_size(const mp_int& a, int radix);  // upper bound, sign and terminator counted

// Per-radix block: largest power of the radix in one digit and its exponent.
mp_digit mp_radix_block_power(int radix);
int mp_radix_block_exp(int radix);

}  // namespace numbers
