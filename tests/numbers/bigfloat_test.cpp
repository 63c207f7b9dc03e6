// TOpBox's core against the case table, GMP for long roots, and identities at many digits.
#include "numbers/opbox_core.h"
#include "numbers/tbigfloat.h"

#include <gmp.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

using namespace numbers;

namespace {
std::string trim(const std::string& s)
{
    size_t a = s.find_first_not_of(" \t"), b = s.find_last_not_of(" \t\r");
    return a == std::string::npos ? std::string() : s.substr(a, b - a + 1);
}
}  // namespace

TEST(BigFloat, CaseTable)
{
    std::ifstream in(std::string(QUORIX_TEST_DATA) + "/bigfloat_cases.txt");
    ASSERT_TRUE(in) << "bigfloat_cases.txt missing";
    std::string line;
    int n = 0, lineNo = 0;
    while (std::getline(in, line)) {
        ++lineNo;
        if (trim(line).empty() || trim(line)[0] == '#')
            continue;
        std::vector<std::string> f;
        std::stringstream ss(line);
        std::string part;
        while (std::getline(ss, part, '|'))
            f.push_back(trim(part));
        ASSERT_EQ(f.size(), 5u) << "line " << lineNo;
        OpBoxResult r = opboxCompute(f[0], f[1], f[2], std::stoi(f[3]));
        EXPECT_EQ(r.text, f[4]) << "line " << lineNo << ": " << f[0] << " " << f[1] << " " << f[2] << " at " << f[3]
                                << " digits\n  expected " << f[4] << "\n  actual   " << r.text;
        ++n;
    }
    EXPECT_GT(n, 30);
}

TEST(BigFloat, SquareRootAtFourThousandDigitsAgainstGmp)
{
    // floor(sqrt(3 * 10^8010)) gives the digits of sqrt 3 exactly; ours rounds at 4000
    mpz_t z;
    mpz_init_set_ui(z, 3);
    mpz_mul_2exp(z, z, 0);
    mpz_t p;
    mpz_init(p);
    mpz_ui_pow_ui(p, 10, 8010);
    mpz_mul(z, z, p);
    mpz_sqrt(z, z);
    char* s = mpz_get_str(nullptr, 10, z);
    std::string ref(s);
    free(s);
    mpz_clears(z, p, nullptr);
    // round the 4006 reference digits to 4000
    std::string digits = ref.substr(0, 4000);
    if (ref[4000] >= '5') {
        int i = 3999;
        while (digits[size_t(i)] == '9')
            digits[size_t(i--)] = '0';
        ++digits[size_t(i)];
    }
    while (digits.back() == '0')
        digits.pop_back();
    std::string expect = digits.substr(0, 1) + "," + digits.substr(1);
    OpBoxResult r = opboxCompute("sqrt", "3", "", 4000);
    ASSERT_TRUE(r.ok);
    EXPECT_EQ(r.text.size(), expect.size());
    EXPECT_EQ(r.text, expect);
}

TEST(BigFloat, LnAndExpUndoEachOtherAtManyDigits)
{
    for (int digits : {50, 400, 1200}) {
        for (const char* x : {"0,001", "1,5", "7", "123456,789", "1,0000000001"}) {
            OpBoxResult l = opboxCompute("ln", x, "", digits + 5);
            ASSERT_TRUE(l.ok);
            OpBoxResult e = opboxCompute("exp", l.text, "", digits);
            TBigFloat a, b;
            ASSERT_TRUE(TBigFloat::parse(x, a));
            ASSERT_TRUE(TBigFloat::parse(e.text, b));
            EXPECT_EQ(a.format(digits - 2), b.format(digits - 2)) << "exp(ln " << x << ") at " << digits;
        }
    }
    // ln(a b) = ln a + ln b
    OpBoxResult la = opboxCompute("ln", "3", "", 300), lb = opboxCompute("ln", "7", "", 300),
                lab = opboxCompute("ln", "21", "", 300);
    OpBoxResult sum = opboxCompute("add", la.text, lb.text, 298);
    TBigFloat s, t;
    TBigFloat::parse(sum.text, s);
    TBigFloat::parse(lab.text, t);
    EXPECT_EQ(s.format(296), t.format(296));
}

TEST(BigFloat, DigitCountIsClampedAndParsingIsStrict)
{
    EXPECT_EQ(opboxCompute("div", "1", "7", 3).text, "0,1428571429") << "fewer than 10 digits count as 10";
    TBigFloat x;
    EXPECT_TRUE(TBigFloat::parse(" -1.25E-3 ", x));
    EXPECT_EQ(x.format(10), "-0,00125");
    EXPECT_FALSE(TBigFloat::parse("1E", x));
    EXPECT_FALSE(TBigFloat::parse(",", x));
    EXPECT_FALSE(TBigFloat::parse("1 2", x));
}

TEST(TInteger, RadixPoolAndMessages)
{
    std::vector<std::string> msgs;
    tintegerMessage = [&](const std::string& m) { msgs.push_back(m); };
    EXPECT_EQ(TInteger::radix(), 1000000);
    EXPECT_EQ(TIntegerPool::available(), 20);
    TInteger* t = TIntegerPool::take();
    TInteger::setRadix(10000000);  // cut to 10^6: no change, no message
    EXPECT_EQ(TInteger::radix(), 1000000);
    EXPECT_TRUE(msgs.empty());
    TInteger::setRadix(1000);
    EXPECT_EQ(TInteger::radix(), 1000);
    ASSERT_EQ(msgs.size(), 1u);
    EXPECT_EQ(msgs[0], "Basiswechsel!");
    TInteger a, b, c;
    a.fromString("123456789012345678901234567890");
    b.fromString("987654321");
    TInteger::mul(a, b, c);
    EXPECT_EQ(c.toString(), "121932631124828532112482853211126352690");
    TIntegerPool::give(t);
    TInteger::setRadix(5);  // raised to 10
    EXPECT_EQ(TInteger::radix(), 10);
    TInteger::setRadix(1000000);
    EXPECT_EQ(msgs.size(), 1u) << "no temporaries in use: no message";
    std::vector<TInteger*> many;
    for (int i = 0; i < 25; ++i)
        many.push_back(TIntegerPool::take());
    EXPECT_EQ(TIntegerPool::available(), 0) << "the pool grows by one where it is empty";
    for (TInteger* p : many)
        TIntegerPool::give(p);
    EXPECT_EQ(TIntegerPool::available(), 25);
    // a computation gives its temporaries back
    opboxCompute("sqrt", "2", "", 100);
    EXPECT_EQ(TIntegerPool::inUse(), 0);
    EXPECT_EQ(TIntegerPool::available(), 25);
    tintegerMessage = nullptr;
}

TEST(TInteger, SquareAndDivisionAgainstGmp)
{
    mpz_t za, zb, zq, zr;
    mpz_inits(za, zb, zq, zr, nullptr);
    gmp_randstate_t rs;
    gmp_randinit_default(rs);
    for (int bits : {10, 100, 1000, 5000}) {
        mpz_urandomb(za, rs, static_cast<mp_bitcnt_t>(bits * 2));
        mpz_urandomb(zb, rs, static_cast<mp_bitcnt_t>(bits));
        mpz_add_ui(zb, zb, 1);
        char* sa = mpz_get_str(nullptr, 10, za);
        char* sb = mpz_get_str(nullptr, 10, zb);
        TInteger a, b, q, r, s;
        a.fromString(sa);
        b.fromString(sb);
        TInteger::divMod(a, b, q, r);
        mpz_tdiv_qr(zq, zr, za, zb);
        char* gq = mpz_get_str(nullptr, 10, zq);
        char* gr = mpz_get_str(nullptr, 10, zr);
        EXPECT_EQ(q.toString(), gq) << bits;
        EXPECT_EQ(r.toString(), gr) << bits;
        TInteger::sqr(a, s);
        mpz_mul(zq, za, za);
        char* gs = mpz_get_str(nullptr, 10, zq);
        EXPECT_EQ(s.toString(), gs) << bits;
        for (char* p : {sa, sb, gq, gr, gs})
            free(p);
    }
    gmp_randclear(rs);
    mpz_clears(za, zb, zq, zr, nullptr);
}

namespace {
// floor(x * 10^w) of a series summed in GMP integers with 30 spare digits, written as TOpBox
// shows it at `digits` digits (x between 1 and 10, or below 1 with one leading zero)
struct Fixed {
    mpz_t v, scale;
    int w;
    explicit Fixed(int digits) : w(digits + 30)
    {
        mpz_inits(v, scale, nullptr);
        mpz_ui_pow_ui(scale, 10, static_cast<unsigned long>(w));
    }
    ~Fixed() { mpz_clears(v, scale, nullptr); }
    // atan(1/x) * 10^w * k, added to v
    void addAtan(long k, unsigned long x)
    {
        mpz_t p, t;
        mpz_inits(p, t, nullptr);
        mpz_fdiv_q_ui(p, scale, x);
        for (unsigned long n = 0; mpz_sgn(p); ++n) {
            mpz_fdiv_q_ui(t, p, 2 * n + 1);
            mpz_mul_si(t, t, (n & 1) ? -k : k);
            mpz_add(v, v, t);
            mpz_fdiv_q_ui(p, p, x * x);
        }
        mpz_clears(p, t, nullptr);
    }
    std::string text(int digits)
    {
        char* s = mpz_get_str(nullptr, 10, v);
        std::string d(s);
        free(s);
        int intDigits = static_cast<int>(d.size()) - w;  // 1, or 0 for a value below 1
        TBigFloat f;
        TBigFloat::parse(intDigits > 0 ? d.substr(0, size_t(intDigits)) + "," + d.substr(size_t(intDigits))
                                       : "0," + std::string(size_t(-intDigits), '0') + d,
                         f);
        return f.format(digits);
    }
};
}  // namespace

TEST(BigFloat, ConstantsAtFourThousandDigitsByOtherSeries)
{
    // References summed with formulas different from ours (tolerance: none, the rounded text)
    const int digits = 4000;
    {
        // pi/4 = 12 atan(1/49) + 32 atan(1/57) - 5 atan(1/239) + 12 atan(1/110443) (Takano)
        Fixed f(digits);
        f.addAtan(48, 49);
        f.addAtan(128, 57);
        f.addAtan(-20, 239);
        f.addAtan(48, 110443);
        EXPECT_EQ(opboxCompute("pi", "", "", digits).text, f.text(digits)) << "pi";
    }
    {
        // e = sum 1/k!
        Fixed f(digits);
        mpz_t t;
        mpz_init_set(t, f.scale);
        for (unsigned long k = 1; mpz_sgn(t); ++k) {
            mpz_add(f.v, f.v, t);
            mpz_fdiv_q_ui(t, t, k);
        }
        mpz_clear(t);
        EXPECT_EQ(opboxCompute("exp", "1", "", digits).text, f.text(digits)) << "e";
    }
    {
        // ln 2 = sum 1/(k 2^k)
        Fixed f(digits);
        mpz_t p, t;
        mpz_inits(p, t, nullptr);
        mpz_fdiv_q_2exp(p, f.scale, 1);
        for (unsigned long k = 1; mpz_sgn(p); ++k) {
            mpz_fdiv_q_ui(t, p, k);
            mpz_add(f.v, f.v, t);
            mpz_fdiv_q_2exp(p, p, 1);
        }
        mpz_clears(p, t, nullptr);
        EXPECT_EQ(opboxCompute("ln", "2", "", digits).text, f.text(digits)) << "ln 2";
    }
}
