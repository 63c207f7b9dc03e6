// TVarInt: schoolbook arithmetic in radix 2^30 with one shared product array.
#include "numbers/tvarint.h"

#include <algorithm>
#include <cstdio>
#include <random>

namespace numbers {

namespace {
std::vector<uint64_t> g_prod;  // shared accumulator of products

void ensureProduct(size_t n)
{
    if (g_prod.size() < n)
        g_prod.resize((n + 15) / 16 * 16);  // grows in steps of 16 cells
}

uint64_t mulmod64(uint64_t a, uint64_t b, uint64_t m) { return static_cast<uint64_t>((unsigned __int128)a * b % m); }

uint64_t powmod64(uint64_t b, uint64_t e, uint64_t m)
{
    uint64_t r = 1 % m;
    b %= m;
    while (e) {
        if (e & 1)
            r = mulmod64(r, b, m);
        b = mulmod64(b, b, m);
        e >>= 1;
    }
    return r;
}

bool strongWord(uint64_t n, uint64_t a)
{
    uint64_t d = n - 1;
    int s = 0;
    while (!(d & 1)) {
        d >>= 1;
        ++s;
    }
    uint64_t x = powmod64(a % n, d, n);
    if (x == 1 || x == n - 1 || a % n == 0)
        return true;
    for (int i = 1; i < s; ++i) {
        x = mulmod64(x, x, n);
        if (x == n - 1)
            return true;
    }
    return false;
}
}  // namespace

bool wordIsPrime(uint32_t n)
{
    if (n < 2)
        return false;
    if (n < 4)
        return true;
    if (!(n & 1))
        return false;
    for (uint32_t p : {3u, 5u, 7u, 11u, 13u}) {
        if (n == p)
            return true;
        if (n % p == 0)
            return false;
    }
    if (n < 9080191u)
        return strongWord(n, 31) && strongWord(n, 73);
    return strongWord(n, 2) && strongWord(n, 7) && strongWord(n, 61);
}

size_t TVarInt::productCells() { return g_prod.size(); }

TVarInt::TVarInt() = default;

TVarInt::TVarInt(int64_t v)
{
    uint64_t m = v < 0 ? 0 - static_cast<uint64_t>(v) : static_cast<uint64_t>(v);
    sign_ = v < 0 ? -1 : 1;
    while (m) {
        limbs_.push_back(static_cast<uint32_t>(m & LimbMask));
        m >>= LimbBits;
    }
}

TVarInt::TVarInt(const std::string& decimal) { fromDecimal(decimal); }

void TVarInt::trim()
{
    while (!limbs_.empty() && limbs_.back() == 0)
        limbs_.pop_back();
    if (limbs_.empty())
        sign_ = 1;
}

int TVarInt::bitLength() const
{
    if (limbs_.empty())
        return 0;
    return (length() - 1) * LimbBits + (32 - __builtin_clz(limbs_.back()));
}

bool TVarInt::fitsInt64(int64_t& v) const
{
    if (bitLength() > 62)
        return false;
    int64_t m = 0;
    for (int i = length() - 1; i >= 0; --i)
        m = (m << LimbBits) | limbs_[size_t(i)];
    v = sign_ * m;
    return true;
}

bool TVarInt::fromDecimal(const std::string& text)
{
    limbs_.clear();
    sign_ = 1;
    size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t'))
        ++i;
    bool neg = false;
    if (i < text.size() && (text[i] == '-' || text[i] == '+'))
        neg = text[i++] == '-';
    if (i >= text.size())
        return false;
    TVarInt r;
    for (; i < text.size(); ++i) {
        char c = text[i];
        if (c < '0' || c > '9') {
            limbs_.clear();
            return false;
        }
        // r = r * 10 + digit, limb by limb
        uint64_t carry = uint64_t(c - '0');
        for (uint32_t& l : r.limbs_) {
            uint64_t t = uint64_t(l) * 10 + carry;
            l = static_cast<uint32_t>(t & LimbMask);
            carry = t >> LimbBits;
        }
        if (carry)
            r.limbs_.push_back(static_cast<uint32_t>(carry));
    }
    *this = r;
    trim();
    if (neg && !limbs_.empty())
        sign_ = -1;
    return true;
}

std::string TVarInt::toDecimal() const
{
    if (limbs_.empty())
        return "0";
    std::vector<uint32_t> parts;  // pieces of nine decimal digits, lowest first
    TVarInt x = *this;
    x.sign_ = 1;
    while (!x.isZero())
        parts.push_back(divWord(x, 1000000000u, x));
    std::string s = sign_ < 0 ? "-" : "";
    char buf[16];
    std::snprintf(buf, sizeof buf, "%.*d", 1, static_cast<int>(parts.back()));
    s += buf;
    for (size_t i = parts.size() - 1; i-- > 0;) {
        std::snprintf(buf, sizeof buf, "%.*u", 9, parts[i]);
        s += buf;
    }
    return s;
}

int TVarInt::compareAbs(const TVarInt& a, const TVarInt& b)
{
    if (a.length() != b.length())
        return a.length() > b.length() ? 1 : -1;
    for (int i = a.length() - 1; i >= 0; --i)
        if (a.limbs_[size_t(i)] != b.limbs_[size_t(i)])
            return a.limbs_[size_t(i)] > b.limbs_[size_t(i)] ? 1 : -1;
    return 0;
}

int TVarInt::compare(const TVarInt& a, const TVarInt& b)
{
    int sa = a.isZero() ? 0 : a.sign_, sb = b.isZero() ? 0 : b.sign_;
    if (sa != sb)
        return sa > sb ? 1 : -1;
    int c = compareAbs(a, b);
    return sa < 0 ? -c : c;
}

void TVarInt::addMag(const TVarInt& a, const TVarInt& b, TVarInt& r)
{
    const TVarInt& x = a.length() >= b.length() ? a : b;
    const TVarInt& y = a.length() >= b.length() ? b : a;
    std::vector<uint32_t> out(x.limbs_.size() + 1);
    uint32_t c = 0;
    for (size_t i = 0; i < x.limbs_.size(); ++i) {
        uint32_t t = x.limbs_[i] + (i < y.limbs_.size() ? y.limbs_[i] : 0) + c;
        out[i] = t & LimbMask;
        c = t >> LimbBits;
    }
    out.back() = c;
    r.limbs_.swap(out);
}

void TVarInt::subMag(const TVarInt& a, const TVarInt& b, TVarInt& r)
{
    std::vector<uint32_t> out(a.limbs_.size());
    int32_t br = 0;
    for (size_t i = 0; i < a.limbs_.size(); ++i) {
        int32_t t = int32_t(a.limbs_[i]) - int32_t(i < b.limbs_.size() ? b.limbs_[i] : 0) - br;
        br = t < 0;
        out[i] = uint32_t(t) & LimbMask;
    }
    r.limbs_.swap(out);
}

void TVarInt::add(const TVarInt& a, const TVarInt& b, TVarInt& r)
{
    int sa = a.sign_, sb = b.sign_;
    if (sa == sb) {
        addMag(a, b, r);
        r.sign_ = sa;
    } else if (compareAbs(a, b) >= 0) {
        subMag(a, b, r);
        r.sign_ = sa;
    } else {
        subMag(b, a, r);
        r.sign_ = sb;
    }
    r.trim();
}

void TVarInt::sub(const TVarInt& a, const TVarInt& b, TVarInt& r)
{
    TVarInt nb = b;
    nb.sign_ = -nb.sign_;
    add(a, nb, r);
}

void TVarInt::mul(const TVarInt& a, const TVarInt& b, TVarInt& r)
{
    if (a.isZero() || b.isZero()) {
        r = TVarInt();
        return;
    }
    size_t na = a.limbs_.size(), nb = b.limbs_.size(), n = na + nb;
    ensureProduct(n + 1);
    std::fill(g_prod.begin(), g_prod.begin() + long(n + 1), 0);
    // products are below 2^60: sixteen fit a cell, so carry every eight rows
    for (size_t i = 0; i < na; ++i) {
        uint64_t ai = a.limbs_[i];
        for (size_t j = 0; j < nb; ++j)
            g_prod[i + j] += ai * b.limbs_[j];
        if ((i & 7) == 7) {
            uint64_t c = 0;
            for (size_t k = i + 1 - 8; k < n; ++k) {
                uint64_t t = g_prod[k] + c;
                g_prod[k] = t & LimbMask;
                c = t >> LimbBits;
            }
        }
    }
    std::vector<uint32_t> out(n);
    uint64_t c = 0;
    for (size_t k = 0; k < n; ++k) {
        uint64_t t = g_prod[k] + c;
        out[k] = static_cast<uint32_t>(t & LimbMask);
        c = t >> LimbBits;
    }
    int sg = a.sign_ * b.sign_;
    r.limbs_.swap(out);
    r.sign_ = sg;
    r.trim();
}

void TVarInt::sqr(const TVarInt& a, TVarInt& r) { mul(a, a, r); }

uint32_t TVarInt::divWord(const TVarInt& a, uint32_t w, TVarInt& q)
{
    std::vector<uint32_t> out(a.limbs_.size());
    uint64_t rem = 0;
    for (size_t i = a.limbs_.size(); i-- > 0;) {
        uint64_t cur = (rem << LimbBits) | a.limbs_[i];
        out[i] = static_cast<uint32_t>(cur / w);
        rem = cur % w;
    }
    int sg = a.sign_;
    q.limbs_.swap(out);
    q.sign_ = sg;
    q.trim();
    return static_cast<uint32_t>(rem);
}

uint32_t TVarInt::modWord(const TVarInt& a, uint32_t w)
{
    uint64_t rem = 0;
    for (size_t i = a.limbs_.size(); i-- > 0;)
        rem = ((rem << LimbBits) | a.limbs_[i]) % w;
    if (a.sign_ < 0 && rem)
        rem = w - rem;
    return static_cast<uint32_t>(rem);
}

void TVarInt::shiftLeft(const TVarInt& a, int bits, TVarInt& r)
{
    if (bits < 0) {
        shiftRight(a, -bits, r);
        return;
    }
    int ws = bits / LimbBits, bs = bits % LimbBits;
    std::vector<uint32_t> out(a.limbs_.size() + size_t(ws) + 1, 0);
    for (size_t i = 0; i < a.limbs_.size(); ++i) {
        uint64_t t = uint64_t(a.limbs_[i]) << bs;
        out[i + size_t(ws)] |= static_cast<uint32_t>(t & LimbMask);
        out[i + size_t(ws) + 1] |= static_cast<uint32_t>(t >> LimbBits);
    }
    int sg = a.sign_;
    r.limbs_.swap(out);
    r.sign_ = sg;
    r.trim();
}

void TVarInt::shiftRight(const TVarInt& a, int bits, TVarInt& r)
{
    int ws = bits / LimbBits, bs = bits % LimbBits;
    if (size_t(ws) >= a.limbs_.size()) {
        r = TVarInt();
        return;
    }
    std::vector<uint32_t> out(a.limbs_.size() - size_t(ws));
    for (size_t i = 0; i < out.size(); ++i) {
        uint64_t lo = a.limbs_[i + size_t(ws)];
        uint64_t hi = i + size_t(ws) + 1 < a.limbs_.size() ? a.limbs_[i + size_t(ws) + 1] : 0;
        out[i] = static_cast<uint32_t>(((lo | (hi << LimbBits)) >> bs) & LimbMask);
    }
    int sg = a.sign_;
    r.limbs_.swap(out);
    r.sign_ = sg;
    r.trim();
}

bool TVarInt::divMod(const TVarInt& a, const TVarInt& b, TVarInt* q, TVarInt* r)
{
    if (b.isZero())
        return false;
    int sa = a.sign_, sb = b.sign_;
    TVarInt qq, rr;
    if (compareAbs(a, b) < 0) {
        rr = a;
    } else if (b.length() == 1) {
        uint32_t rem = divWord(a, b.limbs_[0], qq);
        rr = TVarInt(int64_t(rem));
    } else {
        // long division on normalised operands
        int s = 0;
        while (!((b.limbs_.back() << s) & 0x20000000u))
            ++s;
        TVarInt u, v;
        shiftLeft(a, s, u);
        shiftLeft(b, s, v);
        u.limbs_.push_back(0);
        size_t n = v.limbs_.size(), m = u.limbs_.size() - n - 1;
        std::vector<uint32_t> qd(m + 1, 0);
        const uint64_t B = uint64_t(1) << LimbBits, vt = v.limbs_[n - 1], vs = v.limbs_[n - 2];
        for (size_t j = m + 1; j-- > 0;) {
            uint64_t num = (uint64_t(u.limbs_[j + n]) << LimbBits) | u.limbs_[j + n - 1];
            uint64_t qh = num / vt, rh = num % vt;
            if (qh >= B) {
                qh = B - 1;
                rh = num - qh * vt;
            }
            while (rh < B && qh * vs > ((rh << LimbBits) | u.limbs_[j + n - 2])) {
                --qh;
                rh += vt;
            }
            int64_t br = 0;
            uint64_t carry = 0;
            for (size_t i = 0; i < n; ++i) {
                uint64_t p = qh * v.limbs_[i] + carry;
                carry = p >> LimbBits;
                int64_t t = int64_t(u.limbs_[i + j]) - int64_t(p & LimbMask) - br;
                br = t < 0;
                u.limbs_[i + j] = uint32_t(t) & LimbMask;
            }
            int64_t t = int64_t(u.limbs_[j + n]) - int64_t(carry) - br;
            u.limbs_[j + n] = uint32_t(t) & LimbMask;
            if (t < 0) {
                --qh;
                uint32_t c = 0;
                for (size_t i = 0; i < n; ++i) {
                    uint32_t x = u.limbs_[i + j] + v.limbs_[i] + c;
                    u.limbs_[i + j] = x & LimbMask;
                    c = x >> LimbBits;
                }
                u.limbs_[j + n] = (u.limbs_[j + n] + c) & LimbMask;
            }
            qd[j] = static_cast<uint32_t>(qh);
        }
        qq.limbs_ = qd;
        qq.trim();
        u.limbs_.resize(n);
        u.sign_ = 1;
        u.trim();
        shiftRight(u, s, rr);
    }
    qq.sign_ = 1;
    rr.sign_ = 1;
    if (!qq.isZero())
        qq.sign_ = sa * sb;
    if (!rr.isZero())
        rr.sign_ = sa;
    if (q)
        *q = qq;
    if (r)
        *r = rr;
    return true;
}

void TVarInt::isqrt(const TVarInt& a, TVarInt& r)
{
    if (a.isZero() || a.sign_ < 0) {
        r = TVarInt();
        return;
    }
    TVarInt x, y, t;
    shiftLeft(TVarInt(1), (a.bitLength() + 1) / 2, x);
    for (;;) {
        divMod(a, x, &t, nullptr);
        add(x, t, y);
        shiftRight(y, 1, y);
        if (compare(y, x) >= 0)
            break;
        x = y;
    }
    r = x;
}

void TVarInt::powMod(const TVarInt& base, const TVarInt& e, const TVarInt& m, TVarInt& r)
{
    TVarInt res(1), b, t;
    divMod(base, m, nullptr, &b);
    if (b.sign_ < 0)
        add(b, m, b);
    for (int i = e.bitLength() - 1; i >= 0; --i) {
        sqr(res, t);
        divMod(t, m, nullptr, &res);
        if ((e.limbs_[size_t(i / LimbBits)] >> (i % LimbBits)) & 1) {
            mul(res, b, t);
            divMod(t, m, nullptr, &res);
        }
    }
    divMod(res, m, nullptr, &r);
}

void TVarInt::gcd(const TVarInt& a, const TVarInt& b, TVarInt& r)
{
    TVarInt x = a, y = b, t;
    x.sign_ = 1;
    y.sign_ = 1;
    while (!y.isZero()) {
        divMod(x, y, nullptr, &t);
        x = y;
        y = t;
    }
    r = x;
}

bool TVarInt::invMod(const TVarInt& a, const TVarInt& m, TVarInt& r)
{
    TVarInt r0 = m, r1, t0(0), t1(1), q, tmp;
    divMod(a, m, nullptr, &r1);
    if (r1.sign_ < 0)
        add(r1, m, r1);
    while (!r1.isZero()) {
        divMod(r0, r1, &q, &tmp);
        r0 = r1;
        r1 = tmp;
        mul(q, t1, tmp);
        sub(t0, tmp, tmp);
        t0 = t1;
        t1 = tmp;
    }
    if (compare(r0, TVarInt(1)) != 0)
        return false;
    if (t0.sign_ < 0)
        add(t0, m, t0);
    r = t0;
    return true;
}

int TVarInt::jacobi(const TVarInt& a0, const TVarInt& n0)
{
    TVarInt a, n = n0, t;
    divMod(a0, n0, nullptr, &a);
    if (a.sign_ < 0)
        add(a, n0, a);
    int res = 1;
    while (!a.isZero()) {
        int s = 0;
        while (!a.isOdd()) {
            shiftRight(a, 1, a);
            ++s;
        }
        uint32_t n8 = n.limbs_[0] & 7;
        if ((s & 1) && (n8 == 3 || n8 == 5))
            res = -res;
        if ((a.limbs_[0] & 3) == 3 && (n.limbs_[0] & 3) == 3)
            res = -res;
        std::swap(a, n);
        divMod(a, n, nullptr, &t);
        a = t;
    }
    return compare(n, TVarInt(1)) == 0 ? res : 0;
}

bool TVarInt::isProbablePrime(const TVarInt& n)
{
    if (n.sign_ < 0 || n.isZero())
        return false;
    int64_t small;
    if (n.fitsInt64(small) && small < 24)
        return (0x8A28ACu >> small) & 1;  // bit set of the primes below 24
    if (!n.isOdd())
        return false;
    if (n.fitsInt64(small) && small < 0xFFFFFFFF)
        return wordIsPrime(static_cast<uint32_t>(small));
    static std::mt19937 rng(12345);
    TVarInt nm1, d, x, t;
    sub(n, TVarInt(1), nm1);
    int s = 0;
    d = nm1;
    while (!d.isOdd()) {
        shiftRight(d, 1, d);
        ++s;
    }
    uint32_t m = n.length() == 1 ? n.limbs_[0] - 1 : LimbMask - 1;
    for (int round = 0; round < 10; ++round) {
        uint32_t base = std::max<uint32_t>(2, rng() % m);
        powMod(TVarInt(int64_t(base)), d, n, x);
        if (compare(x, TVarInt(1)) == 0 || compare(x, nm1) == 0)
            continue;
        bool ok = false;
        for (int i = 1; i < s && !ok; ++i) {
            sqr(x, t);
            divMod(t, n, nullptr, &x);
            ok = compare(x, nm1) == 0;
        }
        if (!ok)
            return false;
    }
    return true;
}

}  // namespace numbers
