#pragma once
// Factoring engines on mp_int: Pollard rho and the elliptic curve method.
#include "numbers/factor/factor_hooks.h"
#include "numbers/mp_types.h"

namespace numbers {

// Floyd's cycle with x <- x^2 + 2 mod n and gcds after groups of 256 steps. f := a factor with
// 1 < f < n, or 0 after `count` groups (or on abort). n < 4 gives f = n.
void mp_pollard_rho(const mp_int& n, mp_int& f, int32_t count, FactorHooks* hooks = nullptr);

// Montgomery curves with Suyama's parametrisation. CMax curves (0: 32), B1 the phase-th prime,
// stage 2 up to the (100 phase)-th prime. C counts the curves run; sigma is the running seed.
// f := a factor found, or 0.
void mp_ecm_factor(const mp_int& n, mp_int& f, int32_t CMax, int32_t& C, uint32_t& sigma, int32_t phase,
                   FactorHooks* hooks = nullptr);

// The tool's call: phase 500, CMax 0, the seed carried from call to call (start 123).
void ecmFactorTool(const mp_int& n, mp_int& f, uint32_t& sigma, FactorHooks* hooks = nullptr);

}  // namespace numbers
