// TBigFloat: decimal floating point on TInteger, with series of our own for ln, exp and pi.
#include "numbers/tbigfloat.h"

#include <cmath>
#include <map>

namespace numbers {

const char* bigFloatErrorText(BigFloatError e)
{
    switch (e) {
    case BigFloatError::Sign: return "Vorzeichenfehler";
    case BigFloatError::Number: return "Zahlenfehler";
    case BigFloatError::DivZero: return "Divison durch 0 nicht möglich";
    case BigFloatError::Conversion: return "Umwandlungsfehler";
    case BigFloatError::TooBig: return "Ergebnis zu groß";
    default: return "";
    }
}

TBigFloat::TBigFloat(int64_t x) { v.mantissa = TInteger(x); }

int64_t TBigFloat::magnitude() const { return v.exponent + v.mantissa.decimalLength() - 1; }

void TBigFloat::truncTo(int digits)
{
    int len = v.mantissa.decimalLength();
    if (len > digits) {
        TInteger::shiftDecimal(v.mantissa, digits - len, v.mantissa);
        v.exponent += len - digits;
    }
}

void TBigFloat::roundTo(int digits)
{
    int len = v.mantissa.decimalLength();
    if (len <= digits)
        return;
    int sg = v.mantissa.sign;
    TInteger t;
    TInteger::shiftDecimal(v.mantissa, digits + 1 - len, t);
    TInteger q;
    int64_t last = TInteger::divSmall(t, 10, q);
    if (last >= 5) {
        // half away from zero
        TInteger one(1);
        q.sign = 1;
        TInteger::add(q, one, q);
        q.sign = sg;
    }
    v.mantissa = q;
    v.exponent += len - digits;
}

bool TBigFloat::parse(const std::string& text, TBigFloat& out)
{
    size_t i = 0, n = text.size();
    while (i < n && (text[i] == ' ' || text[i] == '\t'))
        ++i;
    while (n > i && (text[n - 1] == ' ' || text[n - 1] == '\t' || text[n - 1] == '\r' || text[n - 1] == '\n'))
        --n;
    bool neg = false;
    if (i < n && (text[i] == '+' || text[i] == '-'))
        neg = text[i++] == '-';
    std::string digits;
    int64_t exp = 0;
    bool point = false;
    for (; i < n; ++i) {
        char c = text[i];
        if (c >= '0' && c <= '9') {
            digits += c;
            if (point)
                --exp;
        } else if ((c == ',' || c == '.') && !point) {
            point = true;
        } else {
            break;
        }
    }
    if (digits.empty())
        return false;
    if (i < n) {
        if (text[i] != 'E' && text[i] != 'e')
            return false;
        ++i;
        bool eneg = false;
        if (i < n && (text[i] == '+' || text[i] == '-'))
            eneg = text[i++] == '-';
        if (i >= n)
            return false;
        int64_t e = 0;
        for (; i < n; ++i) {
            if (text[i] < '0' || text[i] > '9' || e > 100000000000LL)
                return false;
            e = e * 10 + (text[i] - '0');
        }
        exp += eneg ? -e : e;
    }
    TBigFloat r;
    r.v.mantissa.fromString(digits);
    r.v.exponent = exp;
    if (neg && !r.v.mantissa.isZero())
        r.v.mantissa.sign = -1;
    out = r;
    return true;
}

std::string TBigFloat::format(int digits) const
{
    if (isZero())
        return "0";
    TBigFloat t = *this;
    t.roundTo(digits);
    std::string s = t.v.mantissa.toString();
    bool neg = !s.empty() && s[0] == '-';
    if (neg)
        s.erase(0, 1);
    int64_t mag = t.v.exponent + int64_t(s.size()) - 1;
    if (mag > 999999999999LL || mag < -999999999999LL)
        return "****";  // beyond what the writer can show
    while (s.size() > 1 && s.back() == '0')
        s.pop_back();
    std::string out = neg ? "-" : "";
    if (mag >= int64_t(digits) || mag < -20) {
        out += s.substr(0, 1);
        if (s.size() > 1)
            out += "," + s.substr(1);
        out += "E" + std::string(mag >= 0 ? "+" : "-") + std::to_string(mag >= 0 ? mag : -mag);
        return out;
    }
    if (mag >= 0) {
        size_t ip = size_t(mag) + 1;
        if (s.size() <= ip)
            return out + s + std::string(ip - s.size(), '0');
        return out + s.substr(0, ip) + "," + s.substr(ip);
    }
    return out + "0," + std::string(size_t(-mag - 1), '0') + s;
}

// ------------------------------------------------------------ basic arithmetic

namespace {
// a temporary from the pool, given back at the end of the scope
struct PoolTmp {
    TInteger* p = TIntegerPool::take();
    ~PoolTmp() { TIntegerPool::give(p); }
    PoolTmp() = default;
    PoolTmp(const PoolTmp&) = delete;
    PoolTmp& operator=(const PoolTmp&) = delete;
    TInteger& operator*() { return *p; }
};
}  // namespace

void BigFloatMath::add(const TBigFloat& a, const TBigFloat& b, TBigFloat& r) const
{
    if (a.isZero()) {
        r = b;
        r.truncTo(prec);
        return;
    }
    if (b.isZero()) {
        r = a;
        r.truncTo(prec);
        return;
    }
    int64_t ma = a.magnitude(), mb = b.magnitude();
    // a summand far below the working precision does not count
    if (ma - mb > prec + 2) {
        r = a;
        r.truncTo(prec);
        return;
    }
    if (mb - ma > prec + 2) {
        r = b;
        r.truncTo(prec);
        return;
    }
    TBigFloat x = a, y = b;
    // keep the shift bounded: cut both to prec + 4 digits first
    x.truncTo(prec + 4);
    y.truncTo(prec + 4);
    int64_t e = std::min(x.v.exponent, y.v.exponent);
    TInteger::shiftDecimal(x.v.mantissa, int(x.v.exponent - e), x.v.mantissa);
    TInteger::shiftDecimal(y.v.mantissa, int(y.v.exponent - e), y.v.mantissa);
    TBigFloat s;
    TInteger::add(x.v.mantissa, y.v.mantissa, s.v.mantissa);
    s.v.exponent = e;
    s.truncTo(prec);
    r = s;
}

void BigFloatMath::sub(const TBigFloat& a, const TBigFloat& b, TBigFloat& r) const
{
    TBigFloat nb = b;
    nb.v.mantissa.sign = -nb.v.mantissa.sign;
    add(a, nb, r);
}

void BigFloatMath::mul(const TBigFloat& a, const TBigFloat& b, TBigFloat& r) const
{
    TBigFloat x = a, y = b;
    x.truncTo(prec + 2);
    y.truncTo(prec + 2);
    TBigFloat p;
    TInteger::mul(x.v.mantissa, y.v.mantissa, p.v.mantissa);
    p.v.exponent = x.v.exponent + y.v.exponent;
    p.truncTo(prec);
    r = p;
}

BigFloatError BigFloatMath::div(const TBigFloat& a, const TBigFloat& b, TBigFloat& r) const
{
    if (b.isZero())
        return BigFloatError::DivZero;
    if (a.isZero()) {
        r = TBigFloat();
        return BigFloatError::None;
    }
    TBigFloat x = a, y = b;
    y.truncTo(prec + 2);
    int k = prec + 2 + y.v.mantissa.decimalLength() - x.v.mantissa.decimalLength();
    PoolTmp num, rem;
    TInteger::shiftDecimal(x.v.mantissa, k, *num);
    TBigFloat q;
    TInteger::divMod(*num, y.v.mantissa, q.v.mantissa, *rem);
    q.v.exponent = x.v.exponent - k - y.v.exponent;
    q.truncTo(prec);
    r = q;
    return BigFloatError::None;
}

BigFloatError BigFloatMath::sqrt(const TBigFloat& a, TBigFloat& r) const
{
    if (a.sign() < 0)
        return BigFloatError::Sign;
    if (a.isZero()) {
        r = TBigFloat();
        return BigFloatError::None;
    }
    TBigFloat x = a;
    x.truncTo(prec + 2);
    int len = x.v.mantissa.decimalLength();
    int k = std::max(0, 2 * prec + 4 - len);
    if ((x.v.exponent - k) % 2 != 0)
        ++k;
    TInteger m;
    TInteger::shiftDecimal(x.v.mantissa, k, m);
    int64_t e = x.v.exponent - k;
    // Newton's iteration for the integer root from a double estimate; after the first step
    // it comes from above and falls monotonically
    int L = m.decimalLength();
    int drop = std::max(0, L - 16);
    if (drop % 2)
        ++drop;
    TInteger top;
    TInteger::shiftDecimal(m, -drop, top);
    double td = std::stod(top.toString());
    TInteger g(static_cast<int64_t>(std::sqrt(td)) + 1);
    TInteger::shiftDecimal(g, drop / 2, g);
    PoolTmp q, rem, nx;
    for (int it = 0;; ++it) {
        TInteger::divMod(m, g, *q, *rem);
        TInteger::add(g, *q, *nx);
        TInteger::divSmall(*nx, 2, *nx);
        if (it > 0 && TInteger::compareAbs(*nx, g) >= 0)
            break;
        g = *nx;
    }
    TBigFloat s;
    s.v.mantissa = g;
    s.v.exponent = e / 2;
    s.truncTo(prec);
    r = s;
    return BigFloatError::None;
}

bool BigFloatMath::isInteger(const TBigFloat& a, int64_t& n) const
{
    if (a.isZero()) {
        n = 0;
        return true;
    }
    TInteger m = a.v.mantissa;
    int64_t e = a.v.exponent;
    if (e < 0) {
        TInteger q;
        TInteger::shiftDecimal(m, int(e), q);
        TInteger back;
        TInteger::shiftDecimal(q, int(-e), back);
        if (TInteger::compareAbs(back, m) != 0)
            return false;
        m = q;
        e = 0;
    }
    if (m.decimalLength() + e > 18)
        return false;
    int64_t v = 0;
    for (size_t i = m.digits.size(); i-- > 0;)
        v = v * TInteger::radix() + m.digits[i];
    for (int64_t i = 0; i < e; ++i)
        v *= 10;
    n = m.sign < 0 ? -v : v;
    return true;
}

// ------------------------------------------------------------ constants by series in fixed point

namespace {
double toDouble(const TBigFloat& a)
{
    TBigFloat t = a;
    t.truncTo(17);
    std::string m = t.v.mantissa.toString();
    return std::stod(m) * std::pow(10.0, double(t.v.exponent));
}

// sum of (+/-)1 / ((2k+1) x^(2k+1)) scaled by 10^w: atanh (alternate = false) or atan
TInteger inverseSeries(int64_t x, int w, bool alternate)
{
    TInteger scale(1);
    TInteger::shiftDecimal(scale, w, scale);
    TInteger power, term, sum;
    TInteger::divSmall(scale, x, power);  // 10^w / x^(2k+1)
    int64_t x2 = x * x;
    for (int64_t k = 0; !power.isZero(); ++k) {
        TInteger::divSmall(power, 2 * k + 1, term);
        if (alternate && (k & 1))
            TInteger::sub(sum, term, sum);
        else
            TInteger::add(sum, term, sum);
        TInteger::divSmall(power, x2, power);
    }
    return sum;
}

TBigFloat fromFixed(const TInteger& m, int w)
{
    TBigFloat r;
    r.v.mantissa = m;
    r.v.exponent = -w;
    return r;
}

struct ConstCache {
    std::map<int, TBigFloat> pi, ln2, ln10;
};
ConstCache& cache()
{
    static ConstCache c;
    return c;
}
}  // namespace

void BigFloatMath::pi(TBigFloat& r) const
{
    auto it = cache().pi.find(prec);
    if (it == cache().pi.end()) {
        // Machin: pi = 16 atan(1/5) - 4 atan(1/239)
        int w = prec + 10;
        TInteger a = inverseSeries(5, w, true), b = inverseSeries(239, w, true), s;
        TInteger::mulSmall(a, 16, a);
        TInteger::mulSmall(b, 4, b);
        TInteger::sub(a, b, s);
        TBigFloat p = fromFixed(s, w);
        p.truncTo(prec);
        it = cache().pi.emplace(prec, p).first;
    }
    r = it->second;
}

void BigFloatMath::ln2(TBigFloat& r) const
{
    auto it = cache().ln2.find(prec);
    if (it == cache().ln2.end()) {
        // ln 2 = 2 atanh(1/3)
        int w = prec + 10;
        TInteger a = inverseSeries(3, w, false);
        TInteger::mulSmall(a, 2, a);
        TBigFloat p = fromFixed(a, w);
        p.truncTo(prec);
        it = cache().ln2.emplace(prec, p).first;
    }
    r = it->second;
}

void BigFloatMath::ln10(TBigFloat& r) const
{
    auto it = cache().ln10.find(prec);
    if (it == cache().ln10.end()) {
        // ln 10 = 3 ln 2 + ln(5/4), ln(5/4) = 2 atanh(1/9)
        int w = prec + 10;
        TInteger a = inverseSeries(3, w, false), b = inverseSeries(9, w, false), s;
        TInteger::mulSmall(a, 6, a);
        TInteger::mulSmall(b, 2, b);
        TInteger::add(a, b, s);
        TBigFloat p = fromFixed(s, w);
        p.truncTo(prec);
        it = cache().ln10.emplace(prec, p).first;
    }
    r = it->second;
}

// ------------------------------------------------------------ ln and exp

BigFloatError BigFloatMath::ln(const TBigFloat& a, TBigFloat& r) const
{
    if (a.sign() <= 0)
        return BigFloatError::Sign;
    // guard digits: against the loss where a lies near 1, and for the reduction by roots
    TBigFloat one(1), dev;
    BigFloatMath exact(prec + 40);
    exact.sub(a, one, dev);
    if (dev.isZero()) {
        r = TBigFloat();
        return BigFloatError::None;
    }
    int near1 = dev.magnitude() < 0 ? int(-dev.magnitude()) : 0;
    int s = std::max(4, int(std::sqrt(double(prec)) / 2));
    BigFloatMath m(prec + 12 + s / 3 + near1 + 2);
    // a = f * 10^mag with f in [1, 10), then f = g * 2^j with g in [0.75, 1.5)
    int64_t mag = a.magnitude();
    TBigFloat f = a;
    f.v.exponent -= mag;
    f.truncTo(m.prec);
    int j = 0;
    TBigFloat onehalf, g = f, two(2);
    TBigFloat::parse("1.5", onehalf);
    for (;;) {
        TBigFloat d;
        m.sub(g, onehalf, d);
        if (d.sign() < 0)
            break;
        m.div(g, two, g);
        ++j;
    }
    // s square roots bring g close to 1
    for (int i = 0; i < s; ++i)
        m.sqrt(g, g);
    // ln g = 2 (z + z^3/3 + z^5/5 + ...), z = (g - 1) / (g + 1)
    TBigFloat num, den, z, z2, pw, sum;
    m.sub(g, one, num);
    m.add(g, one, den);
    m.div(num, den, z);
    m.mul(z, z, z2);
    pw = z;
    sum = z;
    int64_t limit = sum.isZero() ? 0 : sum.magnitude() - m.prec - 2;
    for (int64_t k = 1;; ++k) {
        m.mul(pw, z2, pw);
        if (pw.isZero() || pw.magnitude() < limit)
            break;
        // keep the digits lost by the small division
        TBigFloat q = pw;
        TInteger::shiftDecimal(q.v.mantissa, 8, q.v.mantissa);
        q.v.exponent -= 8;
        TInteger::divSmall(q.v.mantissa, 2 * k + 1, q.v.mantissa);
        m.add(sum, q, sum);
    }
    // times 2^(s+1)
    TBigFloat factor(1);
    TInteger p2(1);
    for (int i = 0; i < s + 1; ++i)
        TInteger::mulSmall(p2, 2, p2);
    factor.v.mantissa = p2;
    m.mul(sum, factor, sum);
    // plus j ln 2 + mag ln 10
    BigFloatMath c(m.prec + 20);
    TBigFloat l2, l10, t;
    c.ln2(l2);
    c.ln10(l10);
    c.mul(l2, TBigFloat(j), t);
    c.add(sum, t, sum);
    c.mul(l10, TBigFloat(mag), t);
    c.add(sum, t, sum);
    sum.truncTo(prec);
    r = sum;
    return BigFloatError::None;
}

BigFloatError BigFloatMath::exp(const TBigFloat& a, TBigFloat& r) const
{
    if (a.isZero()) {
        r = TBigFloat(1);
        return BigFloatError::None;
    }
    if (a.magnitude() > 13) {
        if (a.sign() > 0)
            return BigFloatError::TooBig;
        r = TBigFloat();
        return BigFloatError::None;
    }
    // a = n ln 10 + t, exp(a) = 10^n exp(t), |t| <= 1.16
    double ad = toDouble(a);
    int64_t n = std::llround(ad / 2.302585092994046);
    int s = std::max(4, int(std::sqrt(double(prec)) / 2));
    int extra = int(std::log10(std::fabs(double(n)) + 1)) + 1;
    BigFloatMath m(prec + 12 + s / 3 + extra);
    TBigFloat l10, t, nl;
    BigFloatMath(m.prec + extra).ln10(l10);
    BigFloatMath(m.prec + extra).mul(l10, TBigFloat(n), nl);
    BigFloatMath(m.prec + extra).sub(a, nl, t);
    // t / 2^s, Taylor series, then s squarings
    TInteger p2(1);
    for (int i = 0; i < s; ++i)
        TInteger::mulSmall(p2, 2, p2);
    TBigFloat d;
    d.v.mantissa = p2;
    m.div(t, d, t);
    TBigFloat sum(1), term(1);
    for (int64_t k = 1; k < 100000; ++k) {
        m.mul(term, t, term);
        TInteger::shiftDecimal(term.v.mantissa, 8, term.v.mantissa);
        term.v.exponent -= 8;
        TInteger::divSmall(term.v.mantissa, k, term.v.mantissa);
        term.truncTo(m.prec);
        if (term.isZero() || term.magnitude() < -m.prec - 2)
            break;
        m.add(sum, term, sum);
    }
    for (int i = 0; i < s; ++i)
        m.mul(sum, sum, sum);
    sum.v.exponent += n;
    sum.truncTo(prec);
    r = sum;
    return BigFloatError::None;
}

// ------------------------------------------------------------ powers and roots

BigFloatError BigFloatMath::powInt(const TBigFloat& a, int64_t n, TBigFloat& r) const
{
    if (n == 0) {
        r = TBigFloat(1);
        return BigFloatError::None;
    }
    if (a.isZero()) {
        if (n < 0)
            return BigFloatError::DivZero;
        r = TBigFloat();
        return BigFloatError::None;
    }
    uint64_t e = n < 0 ? uint64_t(-n) : uint64_t(n);
    double magEst = std::fabs(double(a.magnitude()) + 1) * double(e);
    if (magEst > 1e12)
        return BigFloatError::TooBig;
    int extra = int(std::log10(double(e)) + 1) + 4;
    BigFloatMath m(prec + extra);
    TBigFloat base = a, acc(1);
    while (e) {
        if (e & 1)
            m.mul(acc, base, acc);
        e >>= 1;
        if (e)
            m.mul(base, base, base);
    }
    if (n < 0)
        m.div(TBigFloat(1), acc, acc);
    acc.truncTo(prec);
    r = acc;
    return BigFloatError::None;
}

BigFloatError BigFloatMath::pow(const TBigFloat& a, const TBigFloat& b, TBigFloat& r) const
{
    int64_t n;
    if (isInteger(b, n) && n > -(int64_t(1) << 40) && n < (int64_t(1) << 40))
        return powInt(a, n, r);
    if (a.sign() < 0)
        return BigFloatError::Sign;
    if (a.isZero()) {
        if (b.sign() < 0)
            return BigFloatError::DivZero;
        r = TBigFloat();
        return BigFloatError::None;
    }
    // a^b = exp(b ln a): the guard digits follow the size of b ln a
    TBigFloat l, p;
    int extra = 6 + int(std::max<int64_t>(0, b.magnitude() + 3));
    BigFloatMath m(prec + extra);
    m.ln(a, l);
    m.mul(l, b, p);
    BigFloatError e = m.exp(p, r);
    if (e == BigFloatError::None)
        r.truncTo(prec);
    return e;
}

BigFloatError BigFloatMath::root(const TBigFloat& a, const TBigFloat& n, TBigFloat& r) const
{
    if (n.isZero())
        return BigFloatError::DivZero;
    int64_t k;
    bool integral = isInteger(n, k);
    if (a.sign() < 0) {
        if (!integral || k % 2 == 0)
            return BigFloatError::Sign;
        TBigFloat pos = a;
        pos.v.mantissa.sign = 1;
        BigFloatError e = root(pos, n, r);
        r.v.mantissa.sign = -r.v.mantissa.sign;
        return e;
    }
    if (a.isZero()) {
        if (n.sign() < 0)
            return BigFloatError::DivZero;
        r = TBigFloat();
        return BigFloatError::None;
    }
    if (integral && k == 2)
        return sqrt(a, r);
    BigFloatMath m(prec + 8);
    TBigFloat l, q;
    m.ln(a, l);
    m.div(l, n, q);
    BigFloatError e = m.exp(q, r);
    if (e == BigFloatError::None)
        r.truncTo(prec);
    return e;
}

}  // namespace numbers
