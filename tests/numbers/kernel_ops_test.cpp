// The smaller operations of the kernel: shifts, words, signs, powers, inverses, text corner cases.
#include "numbers/mp_int.h"

#include <gtest/gtest.h>

#include <string>

using namespace numbers;

namespace {

class KernelOps : public ::testing::Test {
protected:
    void SetUp() override
    {
        mp_reset_error();
        mp_random_seed(11);
    }
    void TearDown() override { mp_reset_error(); }
};

std::string dec(const mp_int& a) { return mp_decimal(a); }

void setDec(mp_int& a, const char* s) { mp_read_decimal(a, s); }

}  // namespace

TEST_F(KernelOps, ShiftsAndBitCounts)
{
    mp_tmp a, b;
    setDec(a, "-12345678901234567890123");
    mp_shl(a, 100, b);
    mp_shr(b, 100, b);
    EXPECT_TRUE(mp_is_eq(a, b)) << "shift there and back keeps the sign";
    mp_shl(a, -3, b);  // a negative count shifts the other way
    EXPECT_EQ(dec(b), "-1543209862654320986265");
    mp_shr(a, 3, b);
    EXPECT_EQ(dec(b), "-1543209862654320986265") << "magnitude shifted, sign kept";
    setDec(a, "1024");
    EXPECT_EQ(mp_cnt_lsb(a), 10);
    mp_zero(a);
    EXPECT_EQ(mp_cnt_lsb(a), 0);
    mp_setbit(a, 200);
    EXPECT_EQ(mp_cnt_lsb(a), 200);
    EXPECT_EQ(mp_bitsize(a), 201);
    mp_add_d(a, 77, a);
    mp_mod_2k(a, 7, b);
    EXPECT_EQ(dec(b), "77");
    mp_copy(a, b);
    mp_lshd(b, 3);
    EXPECT_EQ(b.v.used, a.v.used + 3);
    mp_rshd(b, 3);
    EXPECT_TRUE(mp_is_eq(a, b));
    mp_rshd(b, 100);
    EXPECT_TRUE(mp_iszero(b));
    mp_set(a, 5);
    mp_shr1(a);
    EXPECT_EQ(dec(a), "2");
}

TEST_F(KernelOps, WordOperationsAndSigns)
{
    mp_tmp a, q;
    setDec(a, "-1000000000000000000007");
    uint32_t rem = 0;
    mp_div_w(a, 10, &q.v, rem);
    EXPECT_EQ(dec(q), "-100000000000000000000");
    EXPECT_EQ(rem, 7u) << "remainder of the magnitude";
    EXPECT_EQ(mp_mod_int(a, 10), 3u) << "non-negative residue";
    mp_mul_int(a, -3, q);
    EXPECT_EQ(dec(q), "3000000000000000000021");
    mp_add_int(a, -3, q);
    EXPECT_EQ(dec(q), "-1000000000000000000010");
    mp_sub_int(a, INT32_MIN, q);
    EXPECT_EQ(dec(q), "-999999999997852516359");
    mp_mul_d(a, 0xFFFFFFFFu, q);  // a full 32-bit word
    EXPECT_EQ(dec(q), "-4294967295000000000030064771065");
    mp_set(a, 0);
    mp_dec(a);
    EXPECT_EQ(dec(a), "-1");
    mp_inc(a);
    mp_inc(a);
    EXPECT_TRUE(mp_is1(a));
    mp_abs(a, q);
    mp_chs(q, q);
    EXPECT_EQ(mp_cmp_int(q, -1), 0);
    mp_set_int(a, 0);
    mp_chs(a, a);
    EXPECT_EQ(a.v.sign, 0) << "zero keeps the positive sign";
    EXPECT_EQ(mp_cmp_int(a, 0), 0);
    int64_t w;
    setDec(a, "-9223372036854775808");
    EXPECT_TRUE(mp_is_int64(a, w));
    EXPECT_EQ(w, INT64_MIN);
    mp_sub_d(a, 1, a);
    EXPECT_FALSE(mp_is_int64(a, w));
}

TEST_F(KernelOps, PowersAndModularCornerCases)
{
    mp_tmp a, b, c, d;
    mp_set(a, 3);
    mp_expt_int(a, 0, b);
    EXPECT_EQ(dec(b), "1");
    mp_expt_int(a, 41, b);
    EXPECT_EQ(dec(b), "36472996377170786403");
    mp_set_int(a, -2);
    mp_expt_int(a, 63, b);
    EXPECT_EQ(dec(b), "-9223372036854775808");
    // exponent 0, modulus 1, negative exponent (through the inverse), negative base
    mp_set(a, 7);
    mp_set(b, 0);
    mp_set(c, 13);
    mp_exptmod(a, b, c, d);
    EXPECT_EQ(dec(d), "1");
    mp_set(c, 1);
    mp_exptmod(a, b, c, d);
    EXPECT_EQ(dec(d), "0");
    mp_set_int(b, -1);
    mp_set(c, 13);
    mp_exptmod(a, b, c, d);
    EXPECT_EQ(dec(d), "2") << "7 * 2 = 14 = 1 mod 13";
    mp_set_int(a, -2);
    mp_exptmod_d(a, 3, c, d);
    EXPECT_EQ(dec(d), "5") << "-8 mod 13";
    // inverses: zero or negative modulus, modulus 1, even pair, a word and a long modulus
    mp_set(a, 3);
    mp_set(c, 0);
    EXPECT_FALSE(mp_invmodf(a, c, d));
    mp_set_int(c, -7);
    EXPECT_FALSE(mp_invmodf(a, c, d));
    mp_set(c, 1);
    EXPECT_TRUE(mp_invmodf(a, c, d));
    EXPECT_TRUE(mp_iszero(d));
    mp_set(a, 4);
    mp_set(c, 10);
    EXPECT_FALSE(mp_invmodf(a, c, d));
    setDec(c, "170141183460469231731687303715884105727");  // 2^127 - 1, prime
    setDec(a, "-5");
    ASSERT_TRUE(mp_invmodf(a, c, d));
    mp_mulmod(a, d, c, b);
    EXPECT_TRUE(mp_is1(b)) << dec(d);
    mp_sqrmod(a, c, b);
    EXPECT_EQ(dec(b), "25");
}

TEST_F(KernelOps, TextCornerCases)
{
    mp_tmp a;
    mp_read_radix(a, "\t  zz", 36);
    EXPECT_EQ(dec(a), "1295") << "letters in either case";
    mp_read_radix(a, "-0000000000000000000000000000000000000001", 10);
    EXPECT_EQ(dec(a), "-1");
    mp_read_radix(a, "1010101010101010101010101010101010101", 2);
    EXPECT_EQ(mp_radix_astr(a, 2), "1010101010101010101010101010101010101");
    EXPECT_EQ(mp_radix_astr(a, 8), "1252525252525");
    char buf[8];
    mp_set(a, 255);
    s_mp_toradix_n(a, buf, 16, 8);
    EXPECT_EQ(std::string(buf), "FF");
    try {
        s_mp_toradix_n(a, buf, 2, 8);  // needs nine bytes
        FAIL() << "expected MPXRange";
    } catch (const MPXRange& e) {
        EXPECT_EQ(std::string(e.what()), "s_mp_toradix_n: radix out of range or maxlen too small");
    }
    mp_reset_error();
    EXPECT_EQ(mp_radix_block_exp(10), 9);
    EXPECT_EQ(mp_radix_block_power(10), 1000000000u);
    EXPECT_EQ(mp_radix_block_exp(2), 30);
}

TEST_F(KernelOps, BinomialsAndLifeFailures)
{
    mp_tmp a;
    mp_binomial(10, 11, a);
    EXPECT_TRUE(mp_iszero(a));
    mp_binomial(10, -1, a);
    EXPECT_TRUE(mp_iszero(a));
    mp_binomial(-4, 3, a);
    EXPECT_EQ(dec(a), "-20") << "(-4)(-5)(-6)/3!";
    s_mp_gbinom(100, 50, a);
    EXPECT_EQ(dec(a), "100891344545564193334812497256");
    try {
        s_mp_gbinom(5, 6, a);
        FAIL() << "expected MPXRange";
    } catch (const MPXRange& e) {
        EXPECT_EQ(std::string(e.what()), "s_mp_gbinom: invalid arguments");
    }
    mp_reset_error();
    mp_fact(20, a);
    EXPECT_EQ(dec(a), "2432902008176640000");
    mp_int x, y;
    try {
        mp_init_size2(x, y, MAXDigits + 1);
        FAIL() << "expected MPXMaxDigits";
    } catch (const MPXMaxDigits& e) {
        EXPECT_EQ(std::string(e.what()), "mp_init_size2");
    }
    mp_reset_error();
    EXPECT_TRUE(mp_not_init(x)) << "nothing was allocated";
    EXPECT_TRUE(mp_not_init(y));
    mp_init2(x, y);
    mp_set(x, 9);
    mp_set(y, 4);
    mp_exch(x, y);
    EXPECT_EQ(dec(x), "4");
    EXPECT_EQ(dec(y), "9");
    mp_clear2(x, y);
    EXPECT_TRUE(mp_not_init(x));
}
