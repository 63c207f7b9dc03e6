// TInteger: digits of a power-of-ten radix in 64-bit cells, and its pool of temporaries.
#include "numbers/tbigfloat.h"

#include <algorithm>
#include <cstdlib>

namespace numbers {

std::function<void(const std::string&)> tintegerMessage;
std::function<void()> tintegerYield;

namespace {
int64_t g_radix = 1000000;
int g_rdig = 6;

void message(const char* text)
{
    if (tintegerMessage)
        tintegerMessage(text);
}

std::vector<TInteger*>& pool()
{
    static std::vector<TInteger*> p = [] {
        std::vector<TInteger*> v;
        for (int i = 0; i < 20; ++i)
            v.push_back(new TInteger());
        return v;
    }();
    return p;
}
int g_inUse = 0;
}  // namespace

bool TIntegerPool::freeOnRelease = false;

TInteger* TIntegerPool::take()
{
    auto& p = pool();
    ++g_inUse;
    if (p.empty())
        return new TInteger();  // the pool grows by one where it is empty
    TInteger* t = p.back();
    p.pop_back();
    return t;
}

void TIntegerPool::give(TInteger* t)
{
    --g_inUse;
    if (freeOnRelease) {
        delete t;
        return;
    }
    t->sign = 0;
    t->digits.clear();
    pool().push_back(t);
}

int TIntegerPool::available() { return static_cast<int>(pool().size()); }
int TIntegerPool::inUse() { return g_inUse; }

void TInteger::setRadix(int64_t r)
{
    if (r > 1000000)
        r = 1000000;
    if (r < 10)
        r = 10;
    int64_t p = 1;
    int d = 0;
    while (p < r) {
        p *= 10;
        ++d;
    }
    if (p != r)
        return;  // only powers of ten
    if (r != g_radix && g_inUse > 0)
        message("Basiswechsel!");
    g_radix = r;
    g_rdig = d;
}

int64_t TInteger::radix() { return g_radix; }
int TInteger::radixDigits() { return g_rdig; }

TInteger::TInteger(int64_t v)
{
    sign = v < 0 ? -1 : (v > 0 ? 1 : 0);
    uint64_t m = v < 0 ? 0 - uint64_t(v) : uint64_t(v);
    while (m) {
        digits.push_back(int64_t(m % uint64_t(g_radix)));
        m /= uint64_t(g_radix);
    }
}

void TInteger::normalize()
{
    while (!digits.empty() && digits.back() == 0)
        digits.pop_back();
    if (digits.empty())
        sign = 0;
    else if (sign == 0)
        sign = 1;
}

int TInteger::decimalLength() const
{
    if (digits.empty())
        return 0;
    int n = (static_cast<int>(digits.size()) - 1) * g_rdig;
    for (int64_t t = digits.back(); t; t /= 10)
        ++n;
    return n;
}

std::string TInteger::toString() const
{
    if (digits.empty())
        return "0";
    std::string s = sign < 0 ? "-" : "";
    s += std::to_string(digits.back());
    for (size_t i = digits.size() - 1; i-- > 0;) {
        std::string d = std::to_string(digits[i]);
        s.append(size_t(g_rdig) - d.size(), '0');
        s += d;
    }
    return s;
}

bool TInteger::fromString(const std::string& s)
{
    digits.clear();
    sign = 0;
    for (char c : s)
        if (c < '0' || c > '9')
            return false;
    for (size_t end = s.size(); end > 0;) {
        size_t start = end >= size_t(g_rdig) ? end - size_t(g_rdig) : 0;
        digits.push_back(std::atoll(s.substr(start, end - start).c_str()));
        end = start;
    }
    sign = 1;
    normalize();
    return true;
}

int TInteger::compareAbs(const TInteger& a, const TInteger& b)
{
    if (a.digits.size() != b.digits.size())
        return a.digits.size() > b.digits.size() ? 1 : -1;
    for (size_t i = a.digits.size(); i-- > 0;)
        if (a.digits[i] != b.digits[i])
            return a.digits[i] > b.digits[i] ? 1 : -1;
    return 0;
}

static void addMag(const TInteger& a, const TInteger& b, std::vector<int64_t>& out)
{
    size_t n = std::max(a.digits.size(), b.digits.size());
    out.assign(n + 1, 0);
    int64_t c = 0;
    for (size_t i = 0; i < n; ++i) {
        int64_t t = (i < a.digits.size() ? a.digits[i] : 0) + (i < b.digits.size() ? b.digits[i] : 0) + c;
        c = t >= g_radix;
        out[i] = c ? t - g_radix : t;
    }
    out[n] = c;
}

// |a| - |b| for |a| >= |b|; a subtraction that would go below zero is reported
static void subMag(const TInteger& a, const TInteger& b, std::vector<int64_t>& out)
{
    out.assign(a.digits.size(), 0);
    int64_t br = 0;
    for (size_t i = 0; i < a.digits.size(); ++i) {
        int64_t t = a.digits[i] - (i < b.digits.size() ? b.digits[i] : 0) - br;
        br = t < 0;
        out[i] = br ? t + g_radix : t;
    }
    if (br || b.digits.size() > a.digits.size())
        message("Subtraktionsfehler");
}

void TInteger::add(const TInteger& a, const TInteger& b, TInteger& r)
{
    std::vector<int64_t> out;
    int sg;
    if (a.sign == 0) {
        r = b;
        return;
    }
    if (b.sign == 0) {
        r = a;
        return;
    }
    if (a.sign == b.sign) {
        addMag(a, b, out);
        sg = a.sign;
    } else if (compareAbs(a, b) >= 0) {
        subMag(a, b, out);
        sg = a.sign;
    } else {
        subMag(b, a, out);
        sg = b.sign;
    }
    r.digits.swap(out);
    r.sign = sg;
    r.normalize();
}

void TInteger::sub(const TInteger& a, const TInteger& b, TInteger& r)
{
    TInteger nb = b;
    nb.sign = -nb.sign;
    add(a, nb, r);
}

// The usual radix 10^6 is a constant in these loops, so the compiler multiplies instead of dividing;
// R = 0 takes the radix at run time.
template <int64_t R>
static void carryOutT(std::vector<int64_t>& acc)
{
    const int64_t rad = R ? R : g_radix;
    int64_t c = 0;
    for (int64_t& x : acc) {
        int64_t t = x + c;
        c = t / rad;
        x = t - c * rad;
    }
}

static void carryOut(std::vector<int64_t>& acc)
{
    if (g_radix == 1000000)
        carryOutT<1000000>(acc);
    else
        carryOutT<0>(acc);
}

void TInteger::mul(const TInteger& a, const TInteger& b, TInteger& r)
{
    if (a.sign == 0 || b.sign == 0) {
        r = TInteger();
        return;
    }
    if (&a == &b) {
        sqr(a, r);
        return;
    }
    size_t na = a.digits.size(), nb = b.digits.size();
    std::vector<int64_t> acc(na + nb + 1, 0);
    for (size_t i = 0; i < na; ++i) {
        int64_t ai = a.digits[i];
        if (ai == 0)
            continue;
        int64_t* row = acc.data() + i;
        for (size_t j = 0; j < nb; ++j)
            row[j] += ai * b.digits[j];
        // carry only where a cell's high 16 bits come into use
        if ((row[nb - 1] >> 47) != 0 || ((i & 1023) == 1023))
            carryOut(acc);
        if (tintegerYield && i % 100 == 99)
            tintegerYield();
    }
    carryOut(acc);
    int sg = a.sign * b.sign;
    r.digits.swap(acc);
    r.sign = sg;
    r.normalize();
}

void TInteger::sqr(const TInteger& a, TInteger& r)
{
    if (a.sign == 0) {
        r = TInteger();
        return;
    }
    size_t n = a.digits.size();
    std::vector<int64_t> acc(2 * n + 1, 0);
    // the doubled cross products first, then the diagonal
    for (size_t i = 0; i < n; ++i) {
        int64_t ai2 = 2 * a.digits[i];
        int64_t* row = acc.data() + i;
        for (size_t j = i + 1; j < n; ++j) {
            row[j] += ai2 * a.digits[j];
        }
        for (size_t j = i + 1; j < n; ++j)
            if (row[j] >> 48) {
                carryOut(acc);
                break;
            }
        if (tintegerYield && i % 100 == 99)
            tintegerYield();
    }
    for (size_t i = 0; i < n; ++i) {
        acc[2 * i] += a.digits[i] * a.digits[i];
        if (acc[2 * i] >> 48)
            carryOut(acc);
    }
    carryOut(acc);
    r.digits.swap(acc);
    r.sign = 1;
    r.normalize();
}

void TInteger::mulSmall(const TInteger& a, int64_t m, TInteger& r)
{
    if (a.sign == 0 || m == 0) {
        r = TInteger();
        return;
    }
    int64_t am = m < 0 ? -m : m;
    std::vector<int64_t> out(a.digits.size() + 3, 0);
    int64_t c = 0;
    for (size_t i = 0; i < a.digits.size(); ++i) {
        int64_t t = a.digits[i] * am + c;
        out[i] = t % g_radix;
        c = t / g_radix;
    }
    for (size_t i = a.digits.size(); c; ++i) {
        out[i] = c % g_radix;
        c /= g_radix;
    }
    int sg = m < 0 ? -a.sign : a.sign;
    r.digits.swap(out);
    r.sign = sg;
    r.normalize();
}

int64_t TInteger::divSmall(const TInteger& a, int64_t d, TInteger& q)
{
    std::vector<int64_t> out(a.digits.size(), 0);
    int64_t rem = 0;
    for (size_t i = a.digits.size(); i-- > 0;) {
        int64_t cur = rem * g_radix + a.digits[i];
        out[i] = cur / d;
        rem = cur % d;
    }
    int sg = a.sign;
    q.digits.swap(out);
    q.sign = sg;
    q.normalize();
    return rem;
}

// u[0..n) -= qh * v[0..n), carry and borrow handed back for the top digit
template <int64_t R>
static void mulSubRow(int64_t* u, const int64_t* v, size_t n, int64_t qh, int64_t& carry, int64_t& br)
{
    const int64_t rad = R ? R : g_radix;
    for (size_t i = 0; i < n; ++i) {
        int64_t p = qh * v[i] + carry;
        carry = p / rad;
        int64_t t = u[i] - (p - carry * rad) - br;
        br = t < 0;
        u[i] = br ? t + rad : t;
    }
}

void TInteger::divMod(const TInteger& a, const TInteger& b, TInteger& q, TInteger& r)
{
    int sa = a.sign, sb = b.sign;
    if (compareAbs(a, b) < 0) {
        r = a;
        q = TInteger();
        return;
    }
    if (b.digits.size() == 1) {
        TInteger qq;
        int64_t rem = divSmall(a, b.digits[0], qq);
        q = qq;
        q.sign = q.isZero() ? 0 : sa * sb;
        r = TInteger(rem);
        if (!r.isZero())
            r.sign = sa;
        return;
    }
    // long division after scaling, so that the divisor's top digit is at least radix/2
    int64_t f = g_radix / (b.digits.back() + 1);
    TInteger u, v;
    mulSmall(a, f, u);
    mulSmall(b, f, v);
    u.sign = v.sign = 1;
    size_t n = v.digits.size();
    u.digits.resize(std::max(u.digits.size(), a.digits.size()) + 1, 0);
    size_t m = u.digits.size() - n - 1;
    std::vector<int64_t> qd(m + 1, 0);
    const int64_t vt = v.digits[n - 1], vs = v.digits[n - 2];
    for (size_t j = m + 1; j-- > 0;) {
        int64_t num = u.digits[j + n] * g_radix + u.digits[j + n - 1];
        int64_t qh = num / vt, rh = num % vt;
        if (qh >= g_radix) {
            qh = g_radix - 1;
            rh = num - qh * vt;
        }
        while (rh < g_radix && qh * vs > rh * g_radix + u.digits[j + n - 2]) {
            --qh;
            rh += vt;
        }
        int64_t br = 0, carry = 0;
        if (g_radix == 1000000)
            mulSubRow<1000000>(u.digits.data() + j, v.digits.data(), n, qh, carry, br);
        else
            mulSubRow<0>(u.digits.data() + j, v.digits.data(), n, qh, carry, br);
        int64_t t = u.digits[j + n] - carry - br;
        if (t < 0) {
            u.digits[j + n] = t + g_radix;
            --qh;
            int64_t c = 0;
            for (size_t i = 0; i < n; ++i) {
                int64_t x = u.digits[i + j] + v.digits[i] + c;
                c = x >= g_radix;
                u.digits[i + j] = c ? x - g_radix : x;
            }
            u.digits[j + n] = (u.digits[j + n] + c) % g_radix;
        } else {
            u.digits[j + n] = t;
        }
        qd[j] = qh;
        if (tintegerYield && j % 100 == 99)
            tintegerYield();
    }
    q.digits = qd;
    q.sign = 1;
    q.normalize();
    if (!q.isZero())
        q.sign = sa * sb;
    u.digits.resize(n);
    u.sign = 1;
    u.normalize();
    TInteger rr;
    divSmall(u, f, rr);
    r = rr;
    if (!r.isZero())
        r.sign = sa;
}

void TInteger::shiftDecimal(const TInteger& a, int n, TInteger& r)
{
    if (a.isZero() || n == 0) {
        r = a;
        return;
    }
    TInteger t = a;
    if (n > 0) {
        int whole = n / g_rdig, part = n % g_rdig;
        t.digits.insert(t.digits.begin(), size_t(whole), 0);
        int64_t m = 1;
        for (int i = 0; i < part; ++i)
            m *= 10;
        mulSmall(t, m, r);
        return;
    }
    n = -n;
    size_t whole = size_t(n / g_rdig);
    int part = n % g_rdig;
    if (whole >= t.digits.size()) {
        r = TInteger();
        return;
    }
    t.digits.erase(t.digits.begin(), t.digits.begin() + long(whole));
    int64_t d = 1;
    for (int i = 0; i < part; ++i)
        d *= 10;
    divSmall(t, d, r);
}

}  // namespace numbers
