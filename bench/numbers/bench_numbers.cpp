// The big-integer kernel side by side with GMP, measured in the same run.
#include "numbers/mp_int.h"

#include <gmp.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

using namespace numbers;

namespace {

using Clock = std::chrono::steady_clock;

// time per call in microseconds of one sample: repeats a call until it lasts `minSample` seconds
double sample(const std::function<void()>& f, double minSample)
{
    int reps = 0;
    auto start = Clock::now();
    double el;
    do {
        f();
        ++reps;
        el = std::chrono::duration<double>(Clock::now() - start).count();
    } while (el < minSample);
    return el / reps * 1e6;
}

double median(std::vector<double> t)
{
    std::sort(t.begin(), t.end());
    return t[t.size() / 2];
}

// Ours and the anchor alternate sample by sample, so that the load of a shared machine
// falls on both alike; medians of each.
void pair(const std::string& what, const std::function<void()>& ours, const std::function<void()>& anchor,
          int samples = 5, double minSample = 0.02, bool warm = true)
{
    if (warm) {
        ours();
        anchor();
    }
    std::vector<double> a, b;
    for (int s = 0; s < samples; ++s) {
        a.push_back(sample(ours, minSample));
        b.push_back(sample(anchor, minSample));
    }
    double x = median(a), y = median(b);
    std::printf("%s\t%.1f\t%.1f\t%.2f\n", what.c_str(), x, y, x / y);
    std::fflush(stdout);
}

void toGmp(const mp_int& a, mpz_t z)
{
    mpz_import(z, static_cast<size_t>(a.used), -1, 4, 0, 1, a.pdigits);
    if (a.sign == MP_NEG)
        mpz_neg(z, z);
}

// a random number of about `dec` decimal digits
void randomDecimal(mp_int& a, int dec)
{
    int digits = static_cast<int>(dec * 3.3219280948873623 / DIGIT_BIT) + 1;
    mp_rand(a, digits);
}

}  // namespace

int main()
{
    mp_random_seed(12345);
    mp_tmp a, b, c, d;
    mpz_t za, zb, zc, zd;
    mpz_inits(za, zb, zc, zd, nullptr);

    for (int dec : {1000, 10000, 100000}) {
        int samples = dec >= 100000 ? 3 : 5;
        randomDecimal(a, dec);
        randomDecimal(b, dec);
        toGmp(a, za);
        toGmp(b, zb);
        std::string n = std::to_string(dec);
        pair("mul " + n + " digits (us)", [&] { mp_mul(a, b, c); },
             [&] { mpz_mul(zc, za, zb); });
        pair("sqr " + n + " digits (us)", [&] { mp_sqr(a, c); },
             [&] { mpz_mul(zc, za, za); });
        // 2n digits by n digits
        mp_mul(a, b, c);
        mp_add_d(c, 12345, c);
        toGmp(c, zc);
        pair("div " + n + " digits (us)", [&] { mp_divrem(c, b, &d.v, nullptr); },
             [&] { mpz_tdiv_q(zd, zc, zb); });
        std::string s;
        pair("to decimal " + n + " digits (us)", [&] { s = mp_decimal(a); },
             [&] {
                 char* g = mpz_get_str(nullptr, 10, za);
                 void (*fr)(void*, size_t);
                 mp_get_memory_functions(nullptr, nullptr, &fr);
                 fr(g, std::char_traits<char>::length(g) + 1);
             });
        s = mp_decimal(a);
        pair("from decimal " + n + " digits (us)", [&] { mp_read_decimal(d, s); },
             [&] { mpz_set_str(zd, s.c_str(), 10); });
        // the binary gcd is quadratic: one sample without warm-up at the largest size
        pair("gcd " + n + " digits (us)", [&] { mp_gcd(a, b, d); }, [&] { mpz_gcd(zd, za, zb); },
             dec >= 100000 ? 1 : 3, 0.01, dec < 100000);
    }
    for (int dec : {300, 1000}) {
        randomDecimal(a, dec);
        randomDecimal(b, dec);
        randomDecimal(c, dec);
        c.v.pdigits[0] |= 1;
        toGmp(a, za);
        toGmp(b, zb);
        toGmp(c, zc);
        std::string n = std::to_string(dec);
        pair("exptmod " + n + " digits (us)", [&] { mp_exptmod(a, b, c, d); },
             [&] { mpz_powm(zd, za, zb, zc); }, 3);
    }
    // 1775! by the running product, as the calculator computes it
    pair("1775! running product (us)",
         [&] {
             mp_set(a, 1);
             for (mp_digit i = 2; i <= 1775; ++i)
                 mp_mul_d(a, i, a);
         },
         [&] {
             mpz_set_ui(za, 1);
             for (unsigned long i = 2; i <= 1775; ++i)
                 mpz_mul_ui(za, za, i);
         });
    mpz_clears(za, zb, zc, zd, nullptr);
    return 0;
}
