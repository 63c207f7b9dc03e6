// Products of very long numbers by number-theoretic transforms modulo three primes below 2^31,
// joined by the Chinese remainder theorem. Each 31-bit digit enters as it is: a coefficient of the
// product is below n * 2^62, well under the product of the primes (about 2^88).
#include "numbers/mp_internal.h"

#include <cstring>
#include <vector>

namespace numbers {

namespace {

struct Prime {
    uint32_t p;
    uint32_t g;  // a primitive root
};
// p - 1 = 15 * 2^27, 7 * 2^26, 45 * 2^24: transforms up to 2^24 points in all three
constexpr Prime kPrimes[3] = {{2013265921u, 31u}, {469762049u, 3u}, {754974721u, 11u}};
constexpr int kMaxLog = 24;

uint32_t powmod(uint64_t b, uint64_t e, uint32_t p)
{
    uint64_t r = 1;
    b %= p;
    while (e) {
        if (e & 1)
            r = r * b % p;
        b = b * b % p;
        e >>= 1;
    }
    return static_cast<uint32_t>(r);
}

// a * w mod p with w' = floor(w 2^32 / p) (Shoup's trick)
inline uint32_t mulShoup(uint32_t a, uint32_t w, uint32_t wq, uint32_t p)
{
    uint32_t q = static_cast<uint32_t>((uint64_t(a) * wq) >> 32);
    uint32_t r = a * w - q * p;
    return r >= p ? r - p : r;
}

void transform(uint32_t* x, int logn, uint32_t p, uint32_t root)
{
    size_t n = size_t(1) << logn;
    // bit reversal
    for (size_t i = 1, j = 0; i < n; ++i) {
        size_t bit = n >> 1;
        for (; j & bit; bit >>= 1)
            j ^= bit;
        j ^= bit;
        if (i < j)
            std::swap(x[i], x[j]);
    }
    // powers of the root once for the whole transform; stage `len` takes every (n/len)-th
    std::vector<uint32_t> w(n / 2), wq(n / 2);
    uint64_t cur = 1;
    for (size_t j = 0; j < n / 2; ++j) {
        w[j] = static_cast<uint32_t>(cur);
        wq[j] = static_cast<uint32_t>((uint64_t(w[j]) << 32) / p);
        cur = cur * root % p;
    }
    for (size_t len = 2; len <= n; len <<= 1) {
        size_t half = len / 2, step = n / len;
        for (size_t i = 0; i < n; i += len) {
            uint32_t* a = x + i;
            uint32_t* b = a + half;
            for (size_t j = 0, t = 0; j < half; ++j, t += step) {
                uint32_t u = a[j];
                uint32_t v = mulShoup(b[j], w[t], wq[t], p);
                uint32_t s = u + v;
                a[j] = s >= p ? s - p : s;
                b[j] = u >= v ? u - v : u + p - v;
            }
        }
    }
}

// x := cyclic convolution of x and y modulo p (both of length 2^logn; y is destroyed)
void convolve(uint32_t* x, uint32_t* y, int logn, const Prime& pr, bool square)
{
    uint32_t p = pr.p;
    size_t n = size_t(1) << logn;
    uint32_t root = powmod(pr.g, (uint64_t(p) - 1) >> logn, p);
    transform(x, logn, p, root);
    if (!square)
        transform(y, logn, p, root);
    const uint32_t* yy = square ? x : y;
    for (size_t i = 0; i < n; ++i)
        x[i] = static_cast<uint32_t>(uint64_t(x[i]) * yy[i] % p);
    transform(x, logn, p, powmod(root, uint64_t(p) - 2, p));
    uint32_t ninv = powmod(n, uint64_t(p) - 2, p);
    uint32_t ninvq = static_cast<uint32_t>((uint64_t(ninv) << 32) / p);
    for (size_t i = 0; i < n; ++i)
        x[i] = mulShoup(x[i], ninv, ninvq, p);
}

}  // namespace

bool s_mul_fft(const mp_digit* a, int na, const mp_digit* b, int nb, mp_digit* r, bool square)
{
    int nr = na + nb;
    int logn = 0;
    while ((1 << logn) < nr - 1)
        ++logn;
    if (logn > kMaxLog)
        return false;
    size_t n = size_t(1) << logn;
    std::vector<uint32_t> res[3];
    std::vector<uint32_t> y(square ? 0 : n);
    for (int k = 0; k < 3; ++k) {
        const Prime& pr = kPrimes[k];
        res[k].assign(n, 0);
        // digits below 2^31 may exceed the smaller primes: reduce them first
        for (int i = 0; i < na; ++i)
            res[k][size_t(i)] = a[i] % pr.p;
        if (!square) {
            std::fill(y.begin(), y.end(), 0);
            for (int i = 0; i < nb; ++i)
                y[size_t(i)] = b[i] % pr.p;
        }
        convolve(res[k].data(), y.data(), logn, pr, square);
    }
    // Garner: c = r0 + p0 (t1 + p1 t2)
    const uint64_t p0 = kPrimes[0].p, p1 = kPrimes[1].p, p2 = kPrimes[2].p;
    const uint64_t inv01 = powmod(p0 % p1, p1 - 2, uint32_t(p1));
    const uint64_t inv012 = powmod((p0 * p1) % p2, p2 - 2, uint32_t(p2));
    const uint64_t p01modp2 = (p0 * p1) % p2;
    unsigned __int128 carry = 0;
    for (int i = 0; i < nr; ++i) {
        unsigned __int128 c = 0;
        if (size_t(i) < n) {
            uint64_t r0 = res[0][size_t(i)], r1 = res[1][size_t(i)], r2 = res[2][size_t(i)];
            uint64_t t1 = (r1 + p1 - r0 % p1) % p1 * inv01 % p1;
            uint64_t x01 = r0 + p0 * t1;  // below p0 p1 < 2^61
            uint64_t t2 = (r2 + p2 - x01 % p2) % p2 * inv012 % p2;
            (void)p01modp2;
            c = (unsigned __int128)x01 + (unsigned __int128)(p0 * p1) * t2;
        }
        carry += c;
        r[i] = static_cast<mp_digit>(carry) & MP_MASK;
        carry >>= DIGIT_BIT;
    }
    return true;
}

}  // namespace numbers
