#pragma once
// ISAAC (the published generator, 256-word state) and the random functions on mp_int.
#include "numbers/mp_types.h"

namespace numbers {

struct IsaacState {
    uint32_t randrsl[256];
    uint32_t mm[256];
    uint32_t aa = 0, bb = 0, cc = 0;
    int randcnt = 0;
};

void isaac_init(IsaacState& s, bool useSeed);  // seed taken from randrsl
void isaac_generate(IsaacState& s);
uint32_t isaac_next(IsaacState& s);

void mp_random_randomize();
void mp_random_seed(uint32_t seed);  // reproducible runs (tests, benchmarks)
uint32_t mp_random_long();
int32_t mp_random_int();  // 31 bits
void mp_rand(mp_int& a, int32_t digits);
void mp_rand_ex(mp_int& a, int32_t digits, bool forceTopBit);

}  // namespace numbers
