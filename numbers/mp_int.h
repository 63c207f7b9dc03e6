#pragma once
// The big-integer kernel in one include.
#include "numbers/mp_base.h"
#include "numbers/mp_modul.h"
#include "numbers/mp_numth.h"
#include "numbers/mp_prng.h"
#include "numbers/mp_radix.h"
#include "numbers/mp_types.h"
