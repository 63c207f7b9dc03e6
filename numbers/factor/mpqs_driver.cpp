// The sieve stage around mpqsSplit: perfect powers first, then the split and the recursion on
// composite parts with parameters chosen anew for their size.
#include "numbers/factor/mp_prime.h"
#include "numbers/factor/mpqs.h"

#include <cmath>
#include <cstdio>

namespace numbers {

namespace {

// b^p, or a value above n as soon as the power passes it
bool powerAtMost(const TVarInt& b, int p, const TVarInt& n, bool& equal)
{
    TVarInt r(1);
    for (int i = 0; i < p; ++i) {
        TVarInt::mul(r, b, r);
        if (TVarInt::compare(r, n) > 0)
            return false;
    }
    equal = TVarInt::compare(r, n) == 0;
    return true;
}

// The p-th root built bit by bit from the top; answers whether it is exact.
bool exactRoot(const TVarInt& n, int p, TVarInt& root)
{
    int nb = (n.bitLength() - 1) / p;
    TVarInt r;
    bool equal = false;
    for (int bit = nb; bit >= 0; --bit) {
        TVarInt cand, one(1);
        TVarInt::shiftLeft(one, bit, cand);
        TVarInt::add(r, cand, cand);
        bool eq = false;
        if (powerAtMost(cand, p, n, eq)) {
            r = cand;
            equal = eq;
        }
    }
    root = r;
    return equal;
}

// One limb: all exponents by machine words.
int wordPower(uint64_t n, uint64_t& base)
{
    base = n;
    if (n < 4)
        return 1;
    for (int e = 62; e >= 2; --e) {
        uint64_t r = static_cast<uint64_t>(std::pow(double(n), 1.0 / e) + 0.5);
        for (uint64_t c = r > 1 ? r - 1 : 1; c <= r + 1; ++c) {
            if (c < 2)
                continue;
            unsigned __int128 v = 1;
            int i = 0;
            for (; i < e && v <= n; ++i)
                v *= c;
            if (i == e && v == n) {
                base = c;
                return e;
            }
        }
    }
    return 1;
}

}  // namespace

int perfectPower(const TVarInt& n, TVarInt& base)
{
    base = n;
    if (n.length() <= 1) {
        int64_t v = 0;
        n.fitsInt64(v);
        uint64_t b;
        int e = wordPower(uint64_t(v), b);
        base = TVarInt(int64_t(b));
        return e;
    }
    int e = 1;
    for (bool again = true; again;) {
        again = false;
        TVarInt r, sq;
        for (;;) {
            TVarInt::isqrt(base, r);
            TVarInt::mul(r, r, sq);
            if (TVarInt::compare(sq, base) != 0 || base.bitLength() < 2)
                break;
            base = r;
            e *= 2;
        }
        for (int p = 3; (base.bitLength() - 1) / p >= 7; p += 2) {
            if (!isPrime32(uint32_t(p)))
                continue;
            if (exactRoot(base, p, r)) {
                base = r;
                e *= p;
                again = true;
                break;
            }
        }
    }
    return e;
}

std::string pieceText(const FactorPiece& f)
{
    std::string v = f.value.toDecimal();
    char buf[32];
    std::string s;
    if (f.exponent > 1) {
        std::snprintf(buf, sizeof buf, "^%d)", f.exponent);
        s = "(" + v + buf;
    } else {
        std::snprintf(buf, sizeof buf, " (%d)", decimalDigits(f.value));
        s = v + buf;
    }
    if (!f.prime)
        s += " nicht prim";
    return s;
}

MpqsOutcome mpqsFactor(const TVarInt& n, std::vector<FactorPiece>& out, FactorHooks& hooks)
{
    if (TVarInt::compare(n, TVarInt(1)) <= 0)
        return MpqsOutcome::Split;
    if (TVarInt::isProbablePrime(n)) {
        out.push_back({n, 1, true});
        return MpqsOutcome::Split;
    }
    TVarInt base;
    int e = perfectPower(n, base);
    if (e > 1) {
        char buf[32];
        std::snprintf(buf, sizeof buf, "^%d)", e);
        hooks.addLine("(" + base.toDecimal() + buf);
        std::vector<FactorPiece> inner;
        MpqsOutcome o = mpqsFactor(base, inner, hooks);
        for (FactorPiece& f : inner) {
            f.exponent *= e;
            out.push_back(f);
        }
        return o;
    }
    MpqsParams p = mpqsParameters(n);
    TVarInt d;
    MpqsOutcome o = mpqsSplit(n, p, d, &hooks);
    if (o != MpqsOutcome::Split) {
        out.push_back({n, 1, false});
        return o;
    }
    TVarInt other;
    TVarInt::divMod(n, d, &other, nullptr);
    if (TVarInt::compare(d, other) > 0)
        std::swap(d, other);
    MpqsOutcome result = MpqsOutcome::Split;
    for (const TVarInt* part : {&d, &other}) {
        if (TVarInt::compare(*part, TVarInt(1)) == 0)
            continue;  // a factor of one is dropped
        if (TVarInt::isProbablePrime(*part)) {
            out.push_back({*part, 1, true});
            continue;
        }
        FactorPiece c{*part, 1, false};
        hooks.addLine(pieceText(c));
        if (result != MpqsOutcome::Split) {
            out.push_back(c);
            continue;
        }
        result = mpqsFactor(*part, out, hooks);
    }
    return result;
}

}  // namespace numbers
