// Reading and writing mp_int in radix 2..36.
#include "numbers/mp_radix.h"
#include "numbers/mp_base.h"
#include "numbers/mp_internal.h"

#include <cmath>
#include <memory>
#include <vector>

namespace numbers {

static const char kDigits[] = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";

namespace {
struct RadixTable {
    mp_digit power[37] = {};
    int exp[37] = {};
    RadixTable()
    {
        for (int r = 2; r <= 36; ++r) {
            mp_word p = r;
            int e = 1;
            while (p * r <= MP_DIGIT_MAX) {
                p *= r;
                ++e;
            }
            power[r] = static_cast<mp_digit>(p);
            exp[r] = e;
        }
    }
};
const RadixTable& table()
{
    static const RadixTable t;
    return t;
}

int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'Z')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'z')
        return c - 'a' + 10;
    return 99;
}

bool isPow2(int r) { return (r & (r - 1)) == 0; }
int log2of(int r)
{
    int k = 0;
    while ((1 << k) < r)
        ++k;
    return k;
}

// powers P[k] = block^(2^k), with reciprocals for the large ones
struct PowerLadder {
    std::vector<std::unique_ptr<mp_tmp>> P;
    std::vector<std::unique_ptr<mp_recip>> R;
    mp_digit block;
    explicit PowerLadder(mp_digit b) : block(b) {}
    const mp_int& at(size_t k)
    {
        while (P.size() <= k) {
            P.push_back(std::make_unique<mp_tmp>());
            if (P.size() == 1)
                mp_set(*P.back(), block);
            else
                mp_sqr(*P[P.size() - 2], *P.back());
            R.emplace_back();
        }
        return *P[k];
    }
    void divrem(const mp_int& x, size_t k, mp_int& q, mp_int& r)
    {
        const mp_int& p = at(k);
        // a reciprocal pays for large divisors and balanced divisions only, as it serves many
        if (p.used < 400 || x.used - p.used < p.used / 2) {
            mp_divrem(x, p, &q, &r);
            return;
        }
        if (!R[k]) {
            R[k] = std::make_unique<mp_recip>();
            s_recip_setup(p, *R[k]);
        }
        s_divrem_recip(x, *R[k], &q, &r);
    }
};
}  // namespace

mp_digit mp_radix_block_power(int radix) { return table().power[radix]; }
int mp_radix_block_exp(int radix) { return table().exp[radix]; }

// ------------------------------------------------------------ reader

// value of the blocks [lo, hi), most significant first
static void s_read_blocks(const std::vector<mp_digit>& blk, size_t lo, size_t hi, PowerLadder& pw, mp_int& out)
{
    size_t c = hi - lo;
    if (c <= 48) {
        mp_zero(out);
        for (size_t i = lo; i < hi; ++i) {
            mp_mul_d(out, pw.block, out);
            mp_add_d(out, blk[i], out);
        }
        return;
    }
    size_t L = 1, k = 0;
    while (L * 2 < c) {
        L *= 2;
        ++k;
    }
    mp_tmp high, low;
    s_read_blocks(blk, lo, hi - L, pw, high);
    s_read_blocks(blk, hi - L, hi, pw, low);
    mp_mul(high, pw.at(k), out);
    mp_add(out, low, out);
}

void s_mp_read_radix(mp_int& a, const std::string& str, int radix, bool signAllowed)
{
    if (mp_error)
        return;
    s_check(a, "s_mp_read_radix");
    if (radix < 2 || radix > 36)
        mp_raise_range("s_mp_read_radix: radix out of range");
    size_t i = 0, n = str.size();
    while (i < n && (str[i] == ' ' || str[i] == '\t'))
        ++i;
    bool neg = false;
    if (i < n && (str[i] == '+' || str[i] == '-')) {
        if (!signAllowed)
            mp_raise_badarg("s_mp_read_radix: invalid number syntax (sign not allowed)");
        neg = str[i] == '-';
        ++i;
    }
    if (i >= n)
        mp_raise_badarg("s_mp_read_radix: invalid number syntax");
    std::vector<uint8_t> d;
    d.reserve(n - i);
    for (; i < n; ++i) {
        int v = digitValue(str[i]);
        if (v >= radix)
            mp_raise_badarg("s_mp_read_radix: invalid char in str");
        d.push_back(static_cast<uint8_t>(v));
    }
    mp_tmp r;
    if (isPow2(radix)) {
        int k = log2of(radix);
        int32_t bits = 0;
        mp_grow(r, static_cast<int32_t>((d.size() * k) / DIGIT_BIT + 2));
        for (size_t j = d.size(); j-- > 0;) {
            for (int b = 0; b < k; ++b, ++bits)
                if ((d[j] >> b) & 1)
                    r.v.pdigits[bits / DIGIT_BIT] |= mp_digit(1) << (bits % DIGIT_BIT);
        }
        r.v.used = r.v.alloc;
        mp_clamp(r);
    } else {
        // pack the text into blocks of e characters, the first one possibly shorter
        int e = table().exp[radix];
        std::vector<mp_digit> blk;
        size_t first = d.size() % e;
        size_t j = 0;
        auto pack = [&](size_t len) {
            mp_digit v = 0;
            for (size_t t = 0; t < len; ++t)
                v = v * radix + d[j++];
            blk.push_back(v);
        };
        if (first)
            pack(first);
        while (j < d.size())
            pack(e);
        PowerLadder pw(table().power[radix]);
        s_read_blocks(blk, 0, blk.size(), pw, r);
    }
    if (neg && r.v.used)
        r.v.sign = MP_NEG;
    mp_exch(r.v, a);
}

void mp_read_radix(mp_int& a, const std::string& str, int radix) { s_mp_read_radix(a, str, radix, true); }
void mp_read_decimal(mp_int& a, const std::string& str) { s_mp_read_radix(a, str, 10, true); }

// ------------------------------------------------------------ writer

int32_t mp_radix_size(const mp_int& a, int radix)
{
    if (mp_error)
        return 0;
    if (radix < 2 || radix > 36)
        mp_raise_range("mp_radix_size: radix out of range");
    if (mp_not_init(a))
        return 0;
    int32_t bits = mp_bitsize(a);
    int32_t sign = (a.sign == MP_NEG || (mp_show_plus && a.used)) ? 1 : 0;
    if (bits == 0)
        return 2 + sign;
    if (radix == 2)
        return bits + sign + 1;
    double f = 1.0 / std::log2(double(radix));
    return static_cast<int32_t>(std::ceil(bits * f * (1.0 + 1e-12))) + 1 + sign + 1;
}

// digits of x (non-negative) in blocks, appended to out; pad to `width` characters when > 0
static void s_write_small(const mp_int& x, int radix, size_t width, std::string& out)
{
    const RadixTable& t = table();
    int e = t.exp[radix];
    mp_tmp y;
    mp_copy(x, y);
    std::string rev;
    while (y.v.used) {
        mp_digit rem;
        if (radix == 10) {
            // a constant divisor lets the compiler multiply instead of divide
            mp_word r = 0;
            for (int i = y.v.used - 1; i >= 0; --i) {
                mp_word cur = (r << DIGIT_BIT) | y.v.pdigits[i];
                mp_word q = cur / 1000000000u;
                r = cur - q * 1000000000u;
                y.v.pdigits[i] = static_cast<mp_digit>(q);
            }
            rem = static_cast<mp_digit>(r);
            mp_clamp(y);
        } else {
            s_mp_div_d(y, t.power[radix], &y.v, rem);
        }
        for (int i = 0; i < e; ++i) {
            rev.push_back(kDigits[rem % radix]);
            rem /= radix;
        }
    }
    while (!rev.empty() && rev.back() == '0')
        rev.pop_back();
    while (rev.size() < width)
        rev.push_back('0');
    out.append(rev.rbegin(), rev.rend());
}

// x < P[level]: write it, padded to 2^level blocks when `pad`
static void s_write_rec(const mp_int& x, size_t level, bool pad, int radix, PowerLadder& pw, std::string& out)
{
    int e = table().exp[radix];
    size_t width = pad ? (size_t(1) << level) * e : 0;
    if (level == 0 || x.used < mp_radix_cutoff) {
        s_write_small(x, radix, width, out);
        return;
    }
    mp_tmp q, r;
    pw.divrem(x, level - 1, q, r);
    if (!pad && q.v.used == 0) {
        // nothing above: the lower half leads and takes no zeros in front
        s_write_rec(r, level - 1, false, radix, pw, out);
        return;
    }
    s_write_rec(q, level - 1, pad, radix, pw, out);
    s_write_rec(r, level - 1, true, radix, pw, out);
}

static std::string s_radix_astr(const mp_int& a, int radix)
{
    std::string out;
    if (a.sign == MP_NEG)
        out.push_back('-');
    else if (mp_show_plus && a.used)
        out.push_back('+');
    if (a.used == 0) {
        out.push_back('0');
        return out;
    }
    if (isPow2(radix)) {
        int k = log2of(radix);
        int32_t bits = mp_bitsize(a);
        int32_t nd = (bits + k - 1) / k;
        for (int32_t i = nd - 1; i >= 0; --i) {
            int v = 0;
            for (int b = k - 1; b >= 0; --b) {
                int32_t bit = i * k + b;
                v <<= 1;
                if (bit < bits && ((a.pdigits[bit / DIGIT_BIT] >> (bit % DIGIT_BIT)) & 1))
                    v |= 1;
            }
            out.push_back(kDigits[v]);
        }
        return out;
    }
    mp_tmp x;
    mp_abs(a, x);
    if (x.v.used < mp_radix_cutoff) {
        s_write_small(x, radix, 0, out);
        return out;
    }
    PowerLadder pw(table().power[radix]);
    // smallest level whose power exceeds x; the square of the last power is not formed
    // when its bit size alone shows that it would exceed x
    size_t level = 0;
    int32_t xb = mp_bitsize(x);
    while (mp_cmp_mag(pw.at(level), x) <= 0) {
        if (2 * mp_bitsize(pw.at(level)) - 2 >= xb) {
            ++level;
            break;
        }
        ++level;
    }
    s_write_rec(x, level, false, radix, pw, out);
    return out;
}

std::string mp_radix_astr(const mp_int& a, int radix)
{
    if (mp_error)
        return std::string();
    s_check(a, "s_mp_radix_astr");
    if (radix < 2 || radix > 36)
        mp_raise_range("s_mp_toradix_n: radix out of range or maxlen too small");
    std::string s = s_radix_astr(a, radix);
    if (int32_t(s.size()) + 1 > mp_radix_size(a, radix))
        mp_raise_range("s_mp_radix_astr: internal error");
    return s;
}

std::string mp_decimal(const mp_int& a) { return mp_radix_astr(a, 10); }

void s_mp_toradix_n(const mp_int& a, char* buf, int radix, int maxlen)
{
    if (mp_error)
        return;
    s_check(a, "s_mp_toradix_n");
    if (radix < 2 || radix > 36 || maxlen < 2)
        mp_raise_range("s_mp_toradix_n: radix out of range or maxlen too small");
    std::string s = s_radix_astr(a, radix);
    if (int(s.size()) + 1 > maxlen)
        mp_raise_range("s_mp_toradix_n: radix out of range or maxlen too small");
    std::copy(s.begin(), s.end(), buf);
    buf[s.size()] = 0;
}

}  // namespace numbers
