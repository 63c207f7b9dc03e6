#pragma once
// mp_int: the one big-integer type of the kernel. Radix 2^31, digits least significant first.
// Plain record owned by the caller: mp_init before use, mp_clear after. No Qt here.
#include <cstdint>
#include <stdexcept>
#include <string>

namespace numbers {

using mp_digit = uint32_t;
using mp_word = uint64_t;

constexpr int DIGIT_BIT = 31;
constexpr mp_digit MP_MASK = 0x7FFFFFFF;
constexpr mp_word MP_DIGIT_MAX = MP_MASK;
constexpr int32_t MAXDigits = 0x1000000;
constexpr int32_t MP_MAXBIT = 0x1F000000;  // 31 * MAXDigits
constexpr uint16_t MP_MAGIC = 47861;
constexpr uint16_t MP_ZPOS = 0;
constexpr uint16_t MP_NEG = 1;

struct mp_int {
    mp_digit* pdigits = nullptr;
    int32_t alloc = 0;
    int32_t used = 0;
    uint16_t sign = 0;
    uint16_t magic = 0;
};

// Error codes held in the sticky per-thread mp_error.
enum : int {
    MP_OKAY = 0,
    MP_MEM = 1,
    MP_RANGE = 2,
    MP_BADARG = 3,
    MP_UNDEF = 4,
    MP_MAXDIGITS = 5,
    MP_NOTINIT = 6,
};

extern thread_local int mp_error;
void mp_reset_error();

class MPXError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
class MPXMemory : public MPXError { public: using MPXError::MPXError; };
class MPXRange : public MPXError { public: using MPXError::MPXError; };
class MPXBadArg : public MPXError { public: using MPXError::MPXError; };
class MPXUndef : public MPXError { public: using MPXError::MPXError; };
class MPXMaxDigits : public MPXError { public: using MPXError::MPXError; };
class MPXNotInit : public MPXError { public: using MPXError::MPXError; };

// Raise helpers: set mp_error, then throw.
[[noreturn]] void mp_raise_memory(const char* msg);
[[noreturn]] void mp_raise_range(const char* msg);
[[noreturn]] void mp_raise_badarg(const char* msg);
[[noreturn]] void mp_raise_undef(const char* msg);
[[noreturn]] void mp_raise_maxdigits(const char* msg);
[[noreturn]] void mp_raise_notinit(const char* msg);

// Process-wide settings, set once at start.
extern int mp_allocprec;      // allocation grain: 8, 16, 32 or 64 digits
extern int mp_allocmask;      // mp_allocprec - 1
extern int mp_mul_cutoff;     // Karatsuba from here (digits of the smaller operand)
extern int mp_t3m_cutoff;     // Toom-3 from here
extern int mp_sqr_cutoff;     // Karatsuba squaring
extern int mp_t3s_cutoff;     // Toom-3 squaring
extern int mp_fft_cutoff;     // transform products from here
extern int mp_div_cutoff;     // Newton division from this divisor size
extern int mp_radix_cutoff;   // divide-and-conquer radix conversion from this size
extern bool mp_show_plus;     // writer prints "+" for positive values
extern bool mp_gcd_use_mod;   // gcd reduces unequal sizes by mp_mod first

void mp_set_allocprec(int n);

// Owning helper for temporaries inside the kernel and the tools.
struct mp_tmp {
    mp_int v;
    mp_tmp();
    ~mp_tmp();
    mp_tmp(const mp_tmp&) = delete;
    mp_tmp& operator=(const mp_tmp&) = delete;
    operator mp_int&() { return v; }
    operator const mp_int&() const { return v; }
};

}  // namespace numbers
