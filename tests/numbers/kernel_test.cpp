// Edge cases of the kernel: record layout, signs, zero, aliasing, exceptions, sticky error.
#include "numbers/mp_int.h"

#include <gtest/gtest.h>

#include <string>

using namespace numbers;

namespace {

class Kernel : public ::testing::Test {
protected:
    void SetUp() override
    {
        mp_reset_error();
        mp_random_seed(7);
    }
    void TearDown() override { mp_reset_error(); }
};

std::string dec(const mp_int& a) { return mp_decimal(a); }

template <class E, class F>
std::string raised(F f)
{
    try {
        f();
    } catch (const E& e) {
        std::string m = e.what();
        mp_reset_error();
        return m;
    }
    return "(nothing raised)";
}

}  // namespace

TEST_F(Kernel, InitialisationGrainAndGrowRule)
{
    mp_int a;
    EXPECT_TRUE(mp_not_init(a));
    EXPECT_FALSE(mp_iszero(a)) << "predicates answer false for an uninitialised number";
    mp_init(a);
    EXPECT_EQ(a.magic, 47861);
    EXPECT_EQ(a.alloc, mp_allocprec);
    EXPECT_EQ(a.used, 0);
    mp_grow(a, 20);  // 20 + (16 - 4) + 16
    EXPECT_EQ(a.alloc, 48);
    mp_clear(a);
    EXPECT_EQ(a.pdigits, nullptr);
    EXPECT_FALSE(mp_iszero(a));

    mp_set_allocprec(5);
    EXPECT_EQ(mp_allocprec, 8);
    mp_set_allocprec(17);
    EXPECT_EQ(mp_allocprec, 32);
    mp_set_allocprec(40);
    EXPECT_EQ(mp_allocprec, 64);
    mp_set_allocprec(16);
    EXPECT_EQ(mp_allocmask, 15);

    mp_int b;
    mp_init_size(b, 17);
    EXPECT_EQ(b.alloc, 32);
    mp_clear(b);
}

TEST_F(Kernel, ZeroAndSigns)
{
    mp_tmp a, b, c;
    mp_read_decimal(a, "-123456789012345678901234567890");
    mp_read_decimal(b, "123456789012345678901234567890");
    mp_add(a, b, c);
    EXPECT_EQ(c.v.used, 0);
    EXPECT_EQ(c.v.sign, 0) << "a zero sum has the positive sign";
    mp_read_decimal(a, "0");
    EXPECT_EQ(a.v.used, 0);
    mp_read_decimal(a, "-0");
    EXPECT_EQ(a.v.used, 0);
    EXPECT_EQ(a.v.sign, 0);
    EXPECT_EQ(dec(a), "0");
    mp_read_decimal(a, "  \t+42");
    EXPECT_EQ(dec(a), "42");
    mp_show_plus = true;
    EXPECT_EQ(dec(a), "+42");
    mp_show_plus = false;
    mp_read_radix(a, "-ff", 16);
    EXPECT_EQ(dec(a), "-255");
    EXPECT_TRUE(mp_is_le0(a));
    mp_zero(b);
    EXPECT_TRUE(mp_is_le0(b));
}

TEST_F(Kernel, DivisionSignRules)
{
    // quotient truncates towards zero, remainder takes the dividend's sign; mod is non-negative
    struct Case { int a, b, q, r, m; } cases[] = {
        {7, 2, 3, 1, 1}, {-7, 2, -3, -1, 1}, {7, -2, -3, 1, -1}, {-7, -2, 3, -1, -1}, {0, 5, 0, 0, 0}, {4, 7, 0, 4, 4},
    };
    mp_tmp a, b, q, r, m;
    for (const Case& c : cases) {
        mp_set_int(a, c.a);
        mp_set_int(b, c.b);
        mp_divrem(a, b, &q.v, &r.v);
        mp_mod(a, b, m);
        EXPECT_EQ(mp_cmp_int(q, c.q), 0) << c.a << " / " << c.b << ": got " << dec(q);
        EXPECT_EQ(mp_cmp_int(r, c.r), 0) << c.a << " rem " << c.b << ": got " << dec(r);
        if (c.b > 0)
            EXPECT_EQ(mp_cmp_int(m, c.m), 0) << c.a << " mod " << c.b << ": got " << dec(m);
    }
    mp_divrem(a, b, nullptr, &r.v);  // nil quotient: not wanted
    EXPECT_EQ(dec(r), "4");
}

TEST_F(Kernel, ResultsMayAliasOperands)
{
    mp_tmp a, b, ref;
    mp_read_decimal(a, "98765432109876543210987654321098765432109876543210");
    mp_read_decimal(b, "-1234567890123456789");
    mp_mul(a, b, ref);
    mp_mul(a, b, a);
    EXPECT_TRUE(mp_is_eq(a, ref));
    mp_read_decimal(a, "98765432109876543210987654321098765432109876543210");
    mp_mul(a, b, b);
    EXPECT_TRUE(mp_is_eq(b, ref));
    mp_sqr(ref, ref);
    mp_mul(a, a, a);
    mp_read_decimal(b, "-1234567890123456789");
    mp_sqr(b, b);
    mp_mul(a, b, a);
    EXPECT_TRUE(mp_is_eq(a, ref)) << dec(a) << " vs " << dec(ref);
    mp_read_decimal(a, "1000000000000000000000000000000007");
    mp_read_decimal(b, "999999999999");
    mp_divrem(a, b, &b.v, &a.v);  // quotient into the divisor, remainder into the dividend
    EXPECT_EQ(dec(b), "1000000000001000000000");
    EXPECT_EQ(dec(a), "1000000007");
    mp_sub(a, a, a);
    EXPECT_TRUE(mp_iszero(a));
}

TEST_F(Kernel, CrossoversGiveTheSchoolbookProduct)
{
    int saved[5] = {mp_mul_cutoff, mp_t3m_cutoff, mp_sqr_cutoff, mp_t3s_cutoff, mp_fft_cutoff};
    mp_tmp a, b, fast, slow;
    for (auto cut : {std::pair{8, 16}, std::pair{16, 32}, std::pair{24, 96}, std::pair{40, 41}, std::pair{8, 10000}}) {
        mp_mul_cutoff = mp_sqr_cutoff = cut.first;
        mp_fft_cutoff = cut.second == 10000 ? 8 : 100000;  // the last round: transforms throughout
        mp_t3m_cutoff = mp_t3s_cutoff = cut.second;
        for (int na : {8, 16, 17, 31, 32, 33, 50, 97, 150, 301})
            for (int nb : {8, 16, 33, 64, 100, 301}) {
                mp_rand(a, na);
                mp_rand(b, nb);
                mp_mul(a, b, fast);
                s_mp_mul_school(a, b, slow);
                ASSERT_TRUE(mp_is_eq(fast, slow)) << na << " x " << nb << " with cutoffs " << cut.first << "/" << cut.second;
                mp_sqr(a, fast);
                s_mp_mul_school(a, a, slow);
                ASSERT_TRUE(mp_is_eq(fast, slow)) << na << " squared with cutoffs " << cut.first << "/" << cut.second;
            }
    }
    mp_mul_cutoff = saved[0];
    mp_t3m_cutoff = saved[1];
    mp_sqr_cutoff = saved[2];
    mp_t3s_cutoff = saved[3];
    mp_fft_cutoff = saved[4];
    // digits at the top of their range, where the transform's coefficients are largest
    mp_fft_cutoff = 8;
    for (int n : {9, 100, 3000}) {
        mp_grow(a, n);
        for (int i = 0; i < n; ++i)
            a.v.pdigits[i] = MP_MASK;
        a.v.used = n;
        mp_mul(a, a, fast);
        s_mp_mul_school(a, a, slow);
        ASSERT_TRUE(mp_is_eq(fast, slow)) << "all-ones square of " << n << " digits";
    }
    mp_fft_cutoff = saved[4];
}

TEST_F(Kernel, ExceptionsCarryTheirMessages)
{
    mp_tmp a, b, c;
    mp_set(a, 5);
    EXPECT_EQ(raised<MPXRange>([&] { mp_divrem(a, b, &c.v, nullptr); }), "mp_divrem: b=0");
    EXPECT_EQ(raised<MPXRange>([&] { mp_setbit(a, MP_MAXBIT + 1); }), "mp_setbit: (n<0) or (n>MP_MAXBIT)");
    EXPECT_EQ(raised<MPXBadArg>([&] { mp_sqrtrem(a, b, b); }), "mp_sqrtrem: @s=@r");
    EXPECT_EQ(raised<MPXBadArg>([&] { mp_read_radix(a, "12G", 16); }), "s_mp_read_radix: invalid char in str");
    EXPECT_EQ(raised<MPXBadArg>([&] { s_mp_read_radix(a, "-12", 10, false); }),
              "s_mp_read_radix: invalid number syntax (sign not allowed)");
    EXPECT_EQ(raised<MPXBadArg>([&] { mp_read_radix(a, "  -", 10); }), "s_mp_read_radix: invalid number syntax");
    EXPECT_EQ(raised<MPXRange>([&] { mp_read_radix(a, "1", 37); }), "s_mp_read_radix: radix out of range");
    EXPECT_EQ(raised<MPXRange>([&] { mp_radix_size(a, 1); }), "mp_radix_size: radix out of range");
    mp_set(a, 6);
    mp_set(b, 9);
    EXPECT_EQ(raised<MPXUndef>([&] { mp_invmod(a, b, c); }), "mp_invmod: no inverse");
    EXPECT_FALSE(mp_invmodf(a, b, c));
    EXPECT_EQ(raised<MPXBadArg>([&] { mp_montgomery_setup(a, *reinterpret_cast<mp_digit*>(&c.v.used)); }),
              "mp_montgomery_setup: n is even");
    EXPECT_EQ(raised<MPXRange>([&] { mp_exptmod(a, b, c, c); }), "mp_exptmod: c<=0");
    EXPECT_EQ(raised<MPXRange>([&] { mp_jacobi_lm(b, a); }), "mp_jacobi_lm: n<3 or even");
    mp_set_int(a, -4);
    EXPECT_EQ(raised<MPXRange>([&] { mp_sqrt(a, b); }), "mp_sqrt: a < 0");
    EXPECT_EQ(raised<MPXRange>([&] { mp_expt_int(a, -1, b); }), "mp_expt_int: b < 0");
    EXPECT_EQ(raised<MPXRange>([&] { mp_mod_int(a, 0); }), "s_mp_mod_int: b=0");
    EXPECT_EQ(raised<MPXMaxDigits>([&] { mp_grow(a, MAXDigits + 1); }), "mp_grow");
    EXPECT_EQ(raised<MPXMaxDigits>([&] { mp_rand_ex(a, MAXDigits + 1, false); }), "mp_rand_ex");
    mp_int u;
    EXPECT_EQ(raised<MPXNotInit>([&] { mp_set(u, 1); }), "mp_set");
    EXPECT_EQ(raised<MPXNotInit>([&] { mp_set1(u); }), "mp_set1");
    // every exception is an MPXError
    EXPECT_EQ(raised<MPXError>([&] { mp_div_w(a, 0, nullptr, *reinterpret_cast<uint32_t*>(&c.v.used)); }),
              "mp_div_w: b=0");
}

TEST_F(Kernel, SetbitAtTheLimit)
{
    mp_tmp a;
    mp_setbit(a, 520093696);
    EXPECT_EQ(mp_bitsize(a), 520093697);
    mp_zero(a);
    EXPECT_EQ(raised<MPXRange>([&] { mp_setbit(a, 520093697); }), "mp_setbit: (n<0) or (n>MP_MAXBIT)");
}

TEST_F(Kernel, StickyErrorLeavesResultsAlone)
{
    mp_tmp a, b, c;
    mp_set(a, 10);
    mp_set(c, 77);
    EXPECT_THROW(mp_div(a, b, c), MPXRange);
    EXPECT_NE(mp_error, 0);
    mp_set(b, 3);  // does nothing while the error stands
    mp_add(a, a, c);
    EXPECT_EQ(c.v.pdigits[0], 77u);
    EXPECT_EQ(c.v.used, 1);
    EXPECT_FALSE(mp_is1(c)) << "predicates answer false";
    EXPECT_EQ(mp_bitsize(a), 0) << "counting operations answer 0";
    mp_reset_error();
    mp_add(a, a, c);
    EXPECT_EQ(dec(c), "20");
}

TEST_F(Kernel, MachineWordHelpers)
{
    EXPECT_EQ(gcd32(0, 12), 12u);
    EXPECT_EQ(gcd32(462, 1071), 21u);
    EXPECT_EQ(invmod32(3, 7), 5u);
    EXPECT_EQ(invmod32(6, 9), 0u);
    EXPECT_EQ(invmod32(1, 1), 0u);
    for (uint32_t x : {0u, 1u, 2u, 3u, 4u, 15u, 16u, 17u, 99999999u, 4294967295u}) {
        uint64_t r = isqrt32(x);
        EXPECT_TRUE(r * r <= x && (r + 1) * (r + 1) > x) << "isqrt " << x << " -> " << r;
        uint64_t c = icbrt32(x);
        EXPECT_TRUE(c * c * c <= x && (c + 1) * (c + 1) * (c + 1) > x) << "icbrt " << x << " -> " << c;
    }
    EXPECT_EQ(jacobi32(1001, 9907), -1);  // textbook example (Jacobi symbol table)
    EXPECT_EQ(jacobi32(19, 45), 1);
    EXPECT_EQ(jacobi32(8, 21), -1);
    EXPECT_EQ(jacobi32(5, 15), 0);
    EXPECT_EQ(popcount32(0xFFFFFFFFu), 32);
    EXPECT_EQ(popcount32(0x80000001u), 2);
    int32_t v;
    mp_tmp a;
    mp_set_int(a, INT32_MIN);
    EXPECT_TRUE(mp_is_longint(a, v));
    EXPECT_EQ(v, INT32_MIN);
    mp_sub_d(a, 1, a);
    EXPECT_FALSE(mp_is_longint(a, v));
}

TEST_F(Kernel, IsaacReferenceVector)
{
    // Jenkins' randvect.txt: zero seed, outputs of the first and second generation
    IsaacState s{};
    isaac_init(s, true);
    isaac_generate(s);
    EXPECT_EQ(s.randrsl[0], 0xf650e4c8u);
    EXPECT_EQ(s.randrsl[1], 0xe448e96du);
    isaac_generate(s);
    EXPECT_EQ(s.randrsl[255], 0x4bb5af29u);
}

TEST_F(Kernel, LucasVAndModularReductions)
{
    // V_k(3, 1): 2, 3, 7, 18, 47, 123, 322, 843 ...
    mp_tmp p, k, n, v;
    mp_set(p, 3);
    mp_set(n, 1000000);
    const int expect[] = {2, 3, 7, 18, 47, 123, 322, 843};
    for (int i = 0; i < 8; ++i) {
        mp_set(k, mp_digit(i));
        mp_lucasv(p, k, n, v);
        EXPECT_EQ(mp_cmp_int(v, expect[i]), 0) << "V_" << i << " = " << dec(v);
    }
    // Barrett, Montgomery and 2^k reduce to the same residue
    mp_tmp m, x, mu, r1, r2, r3, norm;
    mp_rand(m, 12);
    m.v.pdigits[0] |= 1;
    mp_rand(x, 23);
    mp_mod(x, m, r1);
    mp_copy(x, r2);
    mp_reduce_setup(m, mu);
    mp_reduce(r2, m, mu);
    EXPECT_TRUE(mp_is_eq(r1, r2));
    mp_digit rho;
    mp_montgomery_setup(m, rho);
    mp_montgomery_calcnorm(norm, m);
    mp_mulmod(x, norm, m, r3);  // x*R mod m, then reduce by R
    mp_montgomery_reduce(r3, m, rho);
    EXPECT_TRUE(mp_is_eq(r1, r3));
    mp_zero(m);
    mp_setbit(m, 127);
    mp_sub_d(m, 1, m);  // Mersenne prime 2^127 - 1
    mp_digit d;
    mp_reduce_2k_setup(m, d);
    EXPECT_EQ(d, 1u);
    mp_rand(x, 8);
    mp_mod(x, m, r1);
    mp_reduce_2k(x, m, d);
    EXPECT_TRUE(mp_is_eq(r1, x));
}

TEST_F(Kernel, RandomNumbersHaveTheirLength)
{
    mp_tmp a;
    for (int n : {1, 2, 17, 300}) {
        mp_rand(a, n);
        EXPECT_EQ(a.v.used, n);
        EXPECT_NE(a.v.pdigits[n - 1], 0u);
        mp_rand_ex(a, n, true);
        EXPECT_EQ(mp_bitsize(a), n * 31) << "top bit forced";
    }
    mp_rand(a, 0);
    EXPECT_TRUE(mp_iszero(a));
    for (int i = 0; i < 1000; ++i)
        ASSERT_GE(mp_random_int(), 0) << "31 bits";
    // the same seed gives the same numbers
    mp_tmp b;
    mp_random_seed(99);
    mp_rand(a, 10);
    mp_random_seed(99);
    mp_rand(b, 10);
    EXPECT_TRUE(mp_is_eq(a, b));
}

TEST_F(Kernel, RadixSizeIsAnUpperBoundWithSign)
{
    mp_tmp a;
    for (const char* s : {"0", "1", "-1", "999999999999", "-1000000000000000000000000000000"})
        for (int radix : {2, 3, 10, 16, 36}) {
            mp_read_decimal(a, s);
            for (bool plus : {false, true}) {
                mp_show_plus = plus;
                std::string t = mp_radix_astr(a, radix);
                EXPECT_LE(int32_t(t.size()) + 1, mp_radix_size(a, radix)) << s << " radix " << radix;
                if (plus && a.v.used && a.v.sign == 0)
                    EXPECT_EQ(t[0], '+');
            }
            mp_show_plus = false;
        }
}
