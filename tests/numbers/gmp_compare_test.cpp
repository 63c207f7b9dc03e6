// The kernel against GMP on random operands of many sizes (GMP only serves as the reference here).
#include "numbers/mp_int.h"

#include <gmp.h>
#include <gtest/gtest.h>

#include <string>

using namespace numbers;

namespace {

struct Z {
    mpz_t z;
    Z() { mpz_init(z); }
    ~Z() { mpz_clear(z); }
};

void toGmp(const mp_int& a, mpz_t z)
{
    // 31-bit digits in 32-bit words: one nail bit
    mpz_import(z, static_cast<size_t>(a.used), -1, 4, 0, 1, a.pdigits);
    if (a.sign == MP_NEG)
        mpz_neg(z, z);
}

std::string gmpDec(const mpz_t z)
{
    char* s = mpz_get_str(nullptr, 10, z);
    std::string r(s);
    void (*freefunc)(void*, size_t);
    mp_get_memory_functions(nullptr, nullptr, &freefunc);
    freefunc(s, r.size() + 1);
    return r;
}

bool same(const mp_int& a, const mpz_t z)
{
    Z t;
    toGmp(a, t.z);
    return mpz_cmp(t.z, z) == 0;
}

void randomSigned(mp_int& a, int digits)
{
    mp_rand(a, digits);
    if (mp_random_long() & 1)
        mp_chs(a, a);
}

class GmpCompare : public ::testing::Test {
protected:
    void SetUp() override
    {
        mp_reset_error();
        mp_random_seed(20240607);
    }
};

const int kSizes[] = {1, 2, 3, 5, 15, 16, 17, 24, 31, 33, 63, 64, 95, 97, 128, 200, 333, 700, 1100, 2500, 6000};

}  // namespace

TEST_F(GmpCompare, ProductsAndSquaresOfManySizes)
{
    mp_tmp a, b, c;
    Z za, zb, zc, zr;
    for (int na : kSizes)
        for (int nb : {1, 7, 24, 100, 400, 1100, 3000}) {
            randomSigned(a, na);
            randomSigned(b, nb);
            mp_mul(a, b, c);
            toGmp(a, za.z);
            toGmp(b, zb.z);
            mpz_mul(zr.z, za.z, zb.z);
            ASSERT_TRUE(same(c, zr.z)) << "mul " << na << " x " << nb;
        }
    for (int n : kSizes) {
        randomSigned(a, n);
        mp_sqr(a, c);
        toGmp(a, za.z);
        mpz_mul(zr.z, za.z, za.z);
        ASSERT_TRUE(same(c, zr.z)) << "sqr " << n;
    }
}

TEST_F(GmpCompare, DivisionWithSignsAndNewtonPath)
{
    mp_tmp a, b, q, r;
    Z za, zb, zq, zr;
    int saved = mp_div_cutoff;
    for (int cutoff : {120, saved})
    for (int nb : {1, 2, 3, 10, 50, 119, 120, 300, 900})
        for (int extra : {0, 1, 5, 60, 200, 1000}) {
            randomSigned(a, nb + extra);
            randomSigned(b, nb);
            mp_div_cutoff = cutoff;
            mp_divrem(a, b, &q.v, &r.v);
            mp_div_cutoff = saved;
            toGmp(a, za.z);
            toGmp(b, zb.z);
            mpz_tdiv_qr(zq.z, zr.z, za.z, zb.z);
            ASSERT_TRUE(same(q, zq.z)) << "quotient " << nb + extra << " / " << nb;
            ASSERT_TRUE(same(r, zr.z)) << "remainder " << nb + extra << " / " << nb;
            mp_mod(a, b, r);
            mpz_mod(zr.z, za.z, zb.z);  // non-negative residue
            if (b.v.sign == MP_ZPOS)
                ASSERT_TRUE(same(r, zr.z)) << "mod " << nb + extra << " / " << nb;
        }
}

TEST_F(GmpCompare, DecimalAndOtherRadixesBothWays)
{
    mp_tmp a, back;
    Z za;
    for (int n : {1, 3, 39, 40, 41, 100, 500, 2000, 7000}) {
        randomSigned(a, n);
        toGmp(a, za.z);
        std::string d = mp_decimal(a);
        ASSERT_EQ(d, gmpDec(za.z)) << "decimal writer, " << n << " digits";
        mp_read_decimal(back, d);
        ASSERT_TRUE(mp_is_eq(a, back)) << "decimal reader, " << n << " digits";
        for (int radix : {2, 3, 7, 16, 32, 36}) {
            std::string s = mp_radix_astr(a, radix);
            char* g = mpz_get_str(nullptr, -radix, za.z);  // upper case digits
            ASSERT_EQ(s, std::string(g)) << "radix " << radix << ", " << n << " digits";
            free(g);
            mp_read_radix(back, s, radix);
            ASSERT_TRUE(mp_is_eq(a, back)) << "radix " << radix << " round trip";
            ASSERT_LE(int32_t(s.size()) + 1, mp_radix_size(a, radix));
        }
    }
}

TEST_F(GmpCompare, GcdInverseAndPowers)
{
    mp_tmp a, b, c, d, x, y;
    Z za, zb, zc, zr, zs;
    for (int n : {1, 2, 4, 20, 70, 250}) {
        for (int m : {1, 3, 20, 90}) {
            randomSigned(a, n);
            randomSigned(b, m);
            toGmp(a, za.z);
            toGmp(b, zb.z);
            mp_gcd(a, b, c);
            mpz_gcd(zr.z, za.z, zb.z);
            ASSERT_TRUE(same(c, zr.z)) << "gcd " << n << ", " << m;
            mp_xgcd(a, b, &x.v, &y.v, &d.v);
            ASSERT_TRUE(mp_is_eq(c, d)) << "xgcd value";
            mp_mul(x, a, x);
            mp_mul(y, b, y);
            mp_add(x, y, x);
            ASSERT_TRUE(mp_is_eq(x, d)) << "Bezout identity " << n << ", " << m;
            mp_lcm(a, b, c);
            mpz_lcm(zr.z, za.z, zb.z);
            ASSERT_TRUE(same(c, zr.z)) << "lcm";
        }
        // exptmod for odd and even moduli
        for (int m : {1, 2, 9, 40}) {
            mp_rand(a, n);
            mp_rand(b, 3);
            mp_rand(c, m);
            for (int parity = 0; parity < 2; ++parity) {
                c.v.pdigits[0] = (c.v.pdigits[0] & ~1u) | uint32_t(parity);
                mp_clamp(c);
                if (mp_iszero(c))
                    continue;
                mp_exptmod(a, b, c, d);
                toGmp(a, za.z);
                toGmp(b, zb.z);
                toGmp(c, zc.z);
                mpz_powm(zr.z, za.z, zb.z, zc.z);
                ASSERT_TRUE(same(d, zr.z)) << "exptmod " << n << " digits, modulus " << m << " parity " << parity;
                if (mp_invmodf(a, c, d)) {
                    ASSERT_NE(mpz_invert(zs.z, za.z, zc.z), 0);
                    ASSERT_TRUE(same(d, zs.z)) << "invmod";
                } else {
                    ASSERT_EQ(mpz_invert(zs.z, za.z, zc.z) && !(mpz_even_p(za.z) && mpz_even_p(zc.z)), 0)
                        << "invmodf said no inverse";
                }
            }
        }
    }
    // a modulus of the form 2^p - d takes the 2^k reduction
    mp_set(c, 0);
    mp_setbit(c, 521);
    mp_sub_d(c, 1, c);
    mp_shl(c, 1, c);  // even: 2^522 - 2
    mp_rand(a, 30);
    mp_rand(b, 10);
    mp_exptmod(a, b, c, d);
    toGmp(a, za.z);
    toGmp(b, zb.z);
    toGmp(c, zc.z);
    mpz_powm(zr.z, za.z, zb.z, zc.z);
    EXPECT_TRUE(same(d, zr.z)) << "exptmod with a 2^k - d modulus";
}

TEST_F(GmpCompare, RootsJacobiAndBinomials)
{
    mp_tmp a, s, r, n;
    Z za, zr, zn;
    for (int k : {1, 2, 5, 33, 200, 600}) {
        mp_rand(a, k);
        mp_sqrtrem(a, s, r);
        toGmp(a, za.z);
        mpz_sqrt(zr.z, za.z);
        ASSERT_TRUE(same(s, zr.z)) << "sqrt of " << k << " digits";
        mp_sqr(s, s);
        ASSERT_TRUE(mp_is_square(s)) << "square of " << k << " digits";
        mp_add_d(s, 1, s);
        ASSERT_EQ(mp_is_square(s), false);
        mp_rand(n, k);
        n.v.pdigits[0] |= 1;
        if (mp_cmp_int(n, 3) < 0)
            continue;
        toGmp(n, zn.z);
        ASSERT_EQ(mp_jacobi_lm(a, n), mpz_jacobi(za.z, zn.z)) << "jacobi, " << k << " digits";
    }
    Z zb;
    for (int nn : {0, 1, 10, 63, 64, 100, 130, 1000, 5000})
        for (int kk : {0, 1, 2, 31, 63, 64, 65, 500, 2500}) {
            mp_binomial(nn, kk, a);
            mpz_bin_uiui(zb.z, static_cast<unsigned long>(nn), static_cast<unsigned long>(kk));
            ASSERT_TRUE(same(a, zb.z)) << "binomial(" << nn << ", " << kk << ")";
        }
    // negative upper argument: C(-n, k) = (-1)^k C(n + k - 1, k)
    for (int nn : {-1, -7, -100})
        for (int kk : {0, 3, 70}) {
            mp_binomial(nn, kk, a);
            mpz_set_si(za.z, nn);
            mpz_bin_ui(zb.z, za.z, static_cast<unsigned long>(kk));
            ASSERT_TRUE(same(a, zb.z)) << "binomial(" << nn << ", " << kk << ")";
        }
}
