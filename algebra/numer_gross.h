#pragma once
// A small owner of an mp_int so the topics can keep long numbers in containers.
#include "numbers/mp_int.h"

#include <string>

namespace numer {

class Gross {
public:
    Gross() { numbers::mp_init(v_); }
    explicit Gross(int64_t w) : Gross() { numbers::mp_set_int64(v_, w); }
    explicit Gross(const std::string& dez) : Gross() { numbers::mp_read_decimal(v_, dez); }
    Gross(const Gross& o) : Gross() { numbers::mp_copy(o.v_, v_); }
    Gross& operator=(const Gross& o)
    {
        if (this != &o) numbers::mp_copy(o.v_, v_);
        return *this;
    }
    ~Gross() { numbers::mp_clear(v_); }

    numbers::mp_int& m() { return v_; }
    const numbers::mp_int& m() const { return v_; }
    std::string text() const { return numbers::mp_decimal(v_); }

    friend Gross operator+(const Gross& a, const Gross& b) { Gross r; numbers::mp_add(a.v_, b.v_, r.v_); return r; }
    friend Gross operator-(const Gross& a, const Gross& b) { Gross r; numbers::mp_sub(a.v_, b.v_, r.v_); return r; }
    friend Gross operator*(const Gross& a, const Gross& b) { Gross r; numbers::mp_mul(a.v_, b.v_, r.v_); return r; }
    friend Gross operator/(const Gross& a, const Gross& b) { Gross r; numbers::mp_div(a.v_, b.v_, r.v_); return r; }
    friend bool operator<(const Gross& a, const Gross& b) { return numbers::mp_cmp(a.v_, b.v_) < 0; }
    friend bool operator==(const Gross& a, const Gross& b) { return numbers::mp_cmp(a.v_, b.v_) == 0; }
    bool null() const { return numbers::mp_iszero(v_); }
    bool negativ() const { return v_.sign == numbers::MP_NEG && !null(); }

private:
    numbers::mp_int v_;
};

inline Gross ggT(const Gross& a, const Gross& b)
{
    Gross r;
    numbers::mp_gcd(a.m(), b.m(), r.m());
    return r;
}

}  // namespace numer
