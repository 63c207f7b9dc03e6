// Members with exact long numbers: 13 (binomial coefficient), 14 (factorial).
#include "lexicon/seitenrechner_intern.h"

#include "numbers/mp_int.h"

#include <cmath>

namespace lexicon::rechner {

namespace {

// Owns one mp_int for the length of a member.
struct Langzahl {
    numbers::mp_int z;
    Langzahl() { numbers::mp_init(z); }
    ~Langzahl() { numbers::mp_clear(z); }
    Langzahl(const Langzahl&) = delete;
    Langzahl& operator=(const Langzahl&) = delete;
};

}  // namespace

// 13: n over k exactly, by the product (n-k+1)/1 · (n-k+2)/2 · ..., each step an integer.
void binomialkoeffizient(R& r)
{
    const int n = static_cast<int>(ganzEd1Grenzen(r, 0, 5000));
    const int k0 = static_cast<int>(ganzEd2Grenzen(r, 0, n));
    const int k = std::min(k0, n - k0);
    Langzahl c;
    numbers::mp_set(c.z, 1);
    for (int i = 1; i <= k; ++i) {
        numbers::mp_mul_d(c.z, static_cast<numbers::mp_digit>(n - k + i), c.z);
        uint32_t rest = 0;
        numbers::mp_div_w(c.z, static_cast<uint32_t>(i), &c.z, rest);
    }
    zeileAus(r, std::to_string(n) + " \xFC" "ber " + std::to_string(k0) + " =");
    ziffernAus(r, numbers::mp_decimal(c.z));
}

// 14: n! exactly, and Stirling's approximation beside it.
void fakultaet(R& r)
{
    const int n = static_cast<int>(ganzEd1Grenzen(r, 0, 5000));
    Langzahl f;
    numbers::mp_set(f.z, 1);
    for (int i = 2; i <= n; ++i)
        numbers::mp_mul_d(f.z, static_cast<numbers::mp_digit>(i), f.z);
    zeileAus(r, std::to_string(n) + "! =");
    ziffernAus(r, numbers::mp_decimal(f.z));
    if (n == 0) {
        zeileAus(r, "Stirling-N\xE4herung\t-");
        return;
    }
    // sqrt(2 pi n) (n/e)^n in decimal logarithms, so large n do not overflow.
    const double lg = (0.5 * std::log(2 * 3.14159265358979323846 * n) + n * (std::log(n) - 1)) / std::log(10.0);
    const double exponent = std::floor(lg);
    zeileAus(r, "Stirling-N\xE4herung\t" + zahl(std::pow(10.0, lg - exponent), 6) + "E" +
                    std::to_string(static_cast<long long>(exponent)));
}

}  // namespace lexicon::rechner
