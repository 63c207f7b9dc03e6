// TVarInt (radix 2^30) against GMP, and its word-size primality.
#include "numbers/tvarint.h"

#include <gmp.h>
#include <gtest/gtest.h>

#include <random>

using namespace numbers;

namespace {
std::string gmpStr(const mpz_t z)
{
    char* s = mpz_get_str(nullptr, 10, z);
    std::string r(s);
    free(s);
    return r;
}
}  // namespace

TEST(TVarInt, ArithmeticAgainstGmp)
{
    gmp_randstate_t rs;
    gmp_randinit_default(rs);
    mpz_t za, zb, zc, zd;
    mpz_inits(za, zb, zc, zd, nullptr);
    for (int bits : {5, 31, 60, 61, 200, 700, 2000}) {
        for (int rep = 0; rep < 5; ++rep) {
            mpz_urandomb(za, rs, static_cast<mp_bitcnt_t>(bits * 2));
            mpz_urandomb(zb, rs, static_cast<mp_bitcnt_t>(bits));
            mpz_add_ui(zb, zb, 1);
            if (rep & 1)
                mpz_neg(za, za);
            TVarInt a(gmpStr(za)), b(gmpStr(zb)), c, q, r;
            ASSERT_EQ(a.toDecimal(), gmpStr(za));
            TVarInt::mul(a, b, c);
            mpz_mul(zc, za, zb);
            EXPECT_EQ(c.toDecimal(), gmpStr(zc)) << "mul " << bits;
            TVarInt::add(a, b, c);
            mpz_add(zc, za, zb);
            EXPECT_EQ(c.toDecimal(), gmpStr(zc)) << "add " << bits;
            TVarInt::sub(b, a, c);
            mpz_sub(zc, zb, za);
            EXPECT_EQ(c.toDecimal(), gmpStr(zc)) << "sub " << bits;
            ASSERT_TRUE(TVarInt::divMod(a, b, &q, &r));
            mpz_tdiv_qr(zc, zd, za, zb);
            EXPECT_EQ(q.toDecimal(), gmpStr(zc)) << "quotient " << bits;
            EXPECT_EQ(r.toDecimal(), gmpStr(zd)) << "remainder " << bits;
            TVarInt::gcd(a, b, c);
            mpz_gcd(zc, za, zb);
            EXPECT_EQ(c.toDecimal(), gmpStr(zc)) << "gcd " << bits;
            mpz_abs(zd, za);
            TVarInt::isqrt(TVarInt(gmpStr(zd)), c);
            mpz_sqrt(zc, zd);
            EXPECT_EQ(c.toDecimal(), gmpStr(zc)) << "isqrt " << bits;
            mpz_setbit(zb, 0);  // odd modulus
            TVarInt m(gmpStr(zb));
            TVarInt::powMod(a, TVarInt(65537), m, c);
            mpz_set_ui(zd, 65537);
            mpz_powm(zc, za, zd, zb);
            EXPECT_EQ(c.toDecimal(), gmpStr(zc)) << "powMod " << bits;
            if (mpz_cmp_ui(zb, 3) >= 0)
                EXPECT_EQ(TVarInt::jacobi(a, m), mpz_jacobi(za, zb)) << "jacobi " << bits;
            bool has = TVarInt::invMod(a, m, c);
            EXPECT_EQ(has, mpz_invert(zc, za, zb) != 0 && mpz_cmp_ui(zb, 1) > 0) << "invMod " << bits;
            if (has && mpz_cmp_ui(zb, 1) > 0)
                EXPECT_EQ(c.toDecimal(), gmpStr(zc)) << "invMod " << bits;
        }
    }
    mpz_clears(za, zb, zc, zd, nullptr);
    gmp_randclear(rs);
    EXPECT_EQ(TVarInt::productCells() % 16, 0u) << "the shared array grows in steps of 16";
}

TEST(TVarInt, ZeroShiftsAndPrimality)
{
    TVarInt z;
    EXPECT_EQ(z.sign(), 1);
    EXPECT_EQ(z.length(), 0);
    EXPECT_EQ(z.toDecimal(), "0");
    TVarInt one(1), s;
    TVarInt::shiftLeft(one, 100, s);
    EXPECT_EQ(s.toDecimal(), "1267650600228229401496703205376");
    EXPECT_EQ(s.bitLength(), 101);
    TVarInt::shiftRight(s, 99, s);
    EXPECT_EQ(s.toDecimal(), "2");
    EXPECT_EQ(TVarInt::modWord(TVarInt(-7), 5), 3u);
    // word primes, Carmichael numbers and a strong pseudoprime to bases 2, 3, 5 (published lists)
    for (uint32_t p : {2u, 3u, 23u, 65537u, 2147483647u, 4294967291u})
        EXPECT_TRUE(wordIsPrime(p)) << p;
    for (uint32_t c : {1u, 561u, 1105u, 25326001u, 3215031751u, 4294967295u})
        EXPECT_FALSE(wordIsPrime(c)) << c;
    EXPECT_TRUE(TVarInt::isProbablePrime(TVarInt("170141183460469231731687303715884105727")));  // 2^127 - 1
    EXPECT_FALSE(TVarInt::isProbablePrime(TVarInt("170141183460469231731687303715884105729")));
    EXPECT_TRUE(TVarInt::isProbablePrime(TVarInt(23)));
    EXPECT_FALSE(TVarInt::isProbablePrime(TVarInt(21)));
}
