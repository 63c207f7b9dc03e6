// The shared prime table (segmented sieve on a wheel of 510510), the word-size table and the
// probable-prime test: trial division, a strong test to base 2 and a strong Lucas test.
#include "numbers/factor/mp_prime.h"
#include "numbers/mp_int.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace numbers {

std::vector<uint32_t> primeTable;

namespace {

uint32_t g_reached = 0;
constexpr uint32_t Wheel = 510510;  // 2*3*5*7*11*13*17
constexpr uint32_t WheelOdd = Wheel / 2;

// One character per odd number below 510510 with 3..13 crossed out (and 17 where asked).
std::string wheelPattern(bool cross17)
{
    std::string p105(105, '+');
    for (int i = 0; i < 105; ++i) {
        int m = 2 * i + 1;
        if (m % 3 == 0)
            p105[i] = '3';
        else if (m % 5 == 0)
            p105[i] = '5';
        else if (m % 7 == 0)
            p105[i] = '7';
    }
    std::string w;
    w.reserve(15015);
    while (w.size() < 15015)
        w += p105;
    for (uint32_t p : {11u, 13u})
        for (uint32_t i = p / 2; i < 15015; i += p)
            w[i] = 'A';
    std::string big;
    big.reserve(WheelOdd);
    for (int k = 0; k < 17; ++k)
        big += w;
    if (cross17)
        for (uint32_t i = 17 / 2; i < WheelOdd; i += 17)
            big[i] = 'B';
    return big;
}

void harvest(const std::string& seg, uint64_t base, uint32_t bound, std::vector<uint32_t>& out, size_t& lastCount)
{
    size_t before = out.size();
    if (out.capacity() < out.size() + WheelOdd / 4)
        out.reserve(out.size() + 2 * lastCount + 512 + WheelOdd / 4);
    for (uint32_t i = 0; i < WheelOdd; ++i) {
        uint64_t m = base + 2 * i + 1;
        if (m >= bound)
            break;
        if (seg[i] == '+')
            out.push_back(static_cast<uint32_t>(m));
    }
    lastCount = out.size() - before;
}

struct WordTable {
    uint8_t bits[4096] = {};  // one byte for sixteen numbers: bit k for 16j + 2k + 1
    uint16_t primes[WordPrimeCount + 1] = {};
    WordTable()
    {
        std::vector<bool> comp(65536, false);
        for (uint32_t i = 2; i * i < 65536; ++i)
            if (!comp[i])
                for (uint32_t j = i * i; j < 65536; j += i)
                    comp[j] = true;
        int k = 0;
        for (uint32_t n = 2; n < 65536; ++n)
            if (!comp[n]) {
                primes[++k] = static_cast<uint16_t>(n);
                if (n & 1)
                    bits[n >> 4] |= static_cast<uint8_t>(1u << ((n & 15) >> 1));
            }
    }
};

const WordTable& wordTable()
{
    static const WordTable t;
    return t;
}

uint64_t powmod64(uint64_t b, uint64_t e, uint64_t m)
{
    uint64_t r = 1;
    b %= m;
    while (e) {
        if (e & 1)
            r = r * b % m;
        b = b * b % m;
        e >>= 1;
    }
    return r;
}

bool strong32(uint32_t n, uint32_t a)
{
    uint32_t d = n - 1;
    int s = 0;
    while (!(d & 1)) {
        d >>= 1;
        ++s;
    }
    uint64_t x = powmod64(a, d, n);
    if (x == 1 || x == n - 1u)
        return true;
    for (int i = 1; i < s; ++i) {
        x = x * x % n;
        if (x == n - 1u)
            return true;
    }
    return false;
}

}  // namespace

void fillPrimeTable(uint32_t bound)
{
    if (bound <= g_reached)
        return;
    primeTable.clear();
    size_t lastCount = 0;
    // First segment: the wheel with its small primes restored, sieved by 17 .. sqrt(510510).
    std::string seg = wheelPattern(false);
    seg[0] = '1';
    for (uint32_t p : {3u, 5u, 7u, 11u, 13u})
        seg[p / 2] = '+';
    for (uint32_t p = 17; p * p < Wheel; p += 2)
        if (seg[p / 2] == '+')
            for (uint32_t i = p * p / 2; i < WheelOdd; i += p)
                seg[i] = 'x';
    primeTable.push_back(2);
    harvest(seg, 0, bound, primeTable, lastCount);

    // Further segments start from the pattern with 17 crossed out; offsets carry across segments.
    const std::string pattern = wheelPattern(true);
    std::vector<uint32_t> sievers, next;  // primes from 19 and their next index in the segment
    size_t used = 7;                      // primeTable[7] = 19
    for (uint64_t base = Wheel; base < bound; base += Wheel) {
        uint64_t end = std::min<uint64_t>(base + Wheel, bound);
        while (used < primeTable.size() && uint64_t(primeTable[used]) * primeTable[used] < end) {
            uint64_t p = primeTable[used++];
            uint64_t first = std::max<uint64_t>(p * p, (base + p - 1) / p * p);
            if (!(first & 1))
                first += p;
            sievers.push_back(static_cast<uint32_t>(p));
            next.push_back(static_cast<uint32_t>((first - base) / 2));
        }
        seg = pattern;
        for (size_t k = 0; k < sievers.size(); ++k) {
            uint32_t p = sievers[k], i = next[k];
            for (; i < WheelOdd; i += p)
                seg[i] = 'x';
            next[k] = i - WheelOdd;
        }
        harvest(seg, base, bound, primeTable, lastCount);
    }
    primeTable.shrink_to_fit();
    g_reached = bound;
}

uint32_t primeTableReached() { return g_reached; }

uint16_t wordPrime(int i) { return i >= 1 && i <= WordPrimeCount ? wordTable().primes[i] : 0; }

bool wordTableIsPrime(uint32_t n)
{
    if (n == 2)
        return true;
    if (n < 2 || !(n & 1) || n >= 65536)
        return false;
    return (wordTable().bits[n >> 4] >> ((n & 15) >> 1)) & 1;
}

bool isPrime32(uint32_t n)
{
    if (n < 65536)
        return wordTableIsPrime(n);
    if (!(n & 1))
        return false;
    if (n < 9080191u)
        return strong32(n, 31) && strong32(n, 73);
    return strong32(n, 2) && strong32(n, 7) && strong32(n, 61);
}

uint32_t mp_small_factor(const mp_int& n, uint32_t f0, uint32_t f1)
{
    if (mp_error || mp_not_init(n) || mp_iszero(n))
        return 0;
    f1 = std::min<uint32_t>(f1, 32767);
    if (f0 < 2)
        f0 = 2;
    if (f0 > f1)
        return 0;
    if (f0 <= 2 && mp_iseven(n))
        return 2;
    // one residue modulo 3*5*7*11*13*17*19*23 settles 3 .. 23
    uint32_t r = mp_mod_int(n, 111546435u);
    for (uint32_t p : {3u, 5u, 7u, 11u, 13u, 17u, 19u, 23u})
        if (p >= f0 && p <= f1 && r % p == 0)
            return p;
    const WordTable& t = wordTable();
    for (int i = 10; i <= WordPrimeCount && t.primes[i] <= f1; ++i)  // primes[10] = 29
        if (t.primes[i] >= f0 && mp_mod_int(n, t.primes[i]) == 0)
            return t.primes[i];
    return 0;
}

bool mp_is_spsp(const mp_int& n, const mp_int& a)
{
    if (mp_error || mp_not_init(n) || mp_not_init(a))
        return false;
    if (mp_cmp_int(a, 1) <= 0)
        mp_raise_range("mp_is_spsp: a<=1");
    if (mp_cmp_int(n, 3) < 0)
        return mp_cmp_int(n, 2) == 0;
    if (mp_iseven(n))
        return false;
    mp_tmp nm1, d, x;
    mp_sub_d(n, 1, nm1);
    int32_t s = mp_cnt_lsb(nm1);
    mp_shr(nm1, s, d);
    mp_exptmod(a, d, n, x);
    if (mp_is1(x) || mp_is_eq(x, nm1))
        return true;
    for (int32_t i = 1; i < s; ++i) {
        mp_sqrmod(x, n, x);
        if (mp_is_eq(x, nm1))
            return true;
        if (mp_is1(x))
            return false;
    }
    return false;
}

bool mp_is_spsp_d(const mp_int& n, mp_digit a)
{
    mp_tmp t;
    mp_set(t, a);
    return mp_is_spsp(n, t);
}

bool mp_is_slpsp(const mp_int& n)
{
    if (mp_error || mp_not_init(n) || mp_cmp_int(n, 3) < 0 || mp_iseven(n))
        return false;
    mp_tmp dd, pp, np1, d, v, t, nm2;
    int32_t p = 3;
    for (;; p += 2) {
        if (p >= 32767)
            return false;
        if (p == 127 && mp_is_square(n))
            return false;
        mp_set_int(dd, p * p - 4);
        int32_t j = mp_jacobi_lm(dd, n);
        if (j == -1)
            break;
        if (j == 0 && mp_cmp_int(n, p * p - 4) > 0)
            return false;  // D shares a factor with n
    }
    mp_set_int(pp, p);
    mp_add_d(n, 1, np1);
    int32_t s = mp_cnt_lsb(np1);
    mp_shr(np1, s, d);
    mp_lucasv(pp, d, n, v);
    mp_sub_d(n, 2, nm2);
    if (mp_cmp_int(v, 2) == 0 || mp_is_eq(v, nm2) || mp_iszero(v))
        return true;
    for (int32_t i = 1; i < s; ++i) {
        mp_sqr(v, t);
        mp_sub_d(t, 2, t);
        mp_mod(t, n, v);
        if (mp_iszero(v))
            return true;
    }
    return false;
}

bool mp_is_pprime_ex(const mp_int& n, uint32_t tdMax)
{
    if (mp_error || mp_not_init(n) || mp_is_le0(n) || mp_is1(n))
        return false;
    int32_t w;
    if (mp_is_longint(n, w))
        return isPrime32(static_cast<uint32_t>(w));
    if (mp_small_factor(n, 2, tdMax) != 0)
        return false;
    return mp_is_spsp_d(n, 2) && mp_is_slpsp(n);
}

bool mp_is_pprime(const mp_int& n) { return mp_is_pprime_ex(n, 16383); }

uint32_t mp_prime_nth(int32_t n)
{
    if (n < 1)
        return 0;
    if (n <= WordPrimeCount)
        return wordPrime(n);
    if (static_cast<size_t>(n) > primeTable.size()) {
        // n ln n + n ln ln n bounds the n-th prime from n = 6 on
        double x = n;
        double b = x * (std::log(x) + std::log(std::log(x))) + 100;
        fillPrimeTable(static_cast<uint32_t>(std::min(b, double(PrimeTableBound))));
    }
    return static_cast<size_t>(n) <= primeTable.size() ? primeTable[n - 1] : 0;
}

}  // namespace numbers
