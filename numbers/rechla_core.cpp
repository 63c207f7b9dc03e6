// The operations of Trechla on mp_int, with the loop limits and overflow texts of its buttons.
#include "numbers/rechla_core.h"
#include "numbers/mp_int.h"
#include "numbers/tvarint.h"

namespace numbers {

const char* const RechlaBaseMessage = "Zahleingabe nicht korrekt. Basis beachten.";

bool rechlaReadOperand(const std::string& text, int base, mp_int& out)
{
    std::string t = text.empty() ? "0" : text;
    for (char c : t) {
        int code = static_cast<unsigned char>(c);
        bool refused = code < 48 || (code >= 58 && code <= 64) || code > 70;
        if (!refused) {
            if (base <= 10)
                refused = code > '0' + base - 1;
            else
                refused = code > 'A' + base - 11;
        }
        if (refused) {
            mp_zero(out);
            return false;
        }
    }
    if (base == 10) {
        mp_read_decimal(out, t);
        return true;
    }
    mp_zero(out);
    for (char c : t) {
        int v = c <= '9' ? c - '0' : c - 'A' + 10;
        mp_mul_d(out, static_cast<mp_digit>(base), out);
        mp_add_d(out, static_cast<mp_digit>(v), out);
    }
    return true;
}

std::string rechlaWrite(const mp_int& value, int base)
{
    if (base == 10)
        return mp_decimal(value);
    mp_tmp x;
    mp_abs(value, x);
    std::string rev;
    while (!mp_iszero(x) && int(rev.size()) < RechlaMaxWritten) {
        mp_digit r;
        s_mp_div_d(x, static_cast<mp_digit>(base), &x.v, r);
        rev.push_back(r < 10 ? char('0' + r) : char(r + 55));
    }
    if (rev.empty())
        rev = "0";
    if (value.sign == MP_NEG)
        rev.push_back('-');
    return std::string(rev.rbegin(), rev.rend());
}

namespace {
// 10^5000: a number has more than 5000 decimal digits exactly when it is not below it
const mp_int& limitPower()
{
    static mp_int p = [] {
        mp_int t;
        mp_init(t);
        mp_tmp ten;
        mp_set(ten, 10);
        mp_expt_int(ten, RechlaMaxDigits, t);
        return t;
    }();
    return p;
}

bool tooLong(const mp_int& a)
{
    // cheap test first: fewer bits than 10^4990 has means fewer digits
    if (mp_bitsize(a) < 16576)
        return false;
    return mp_cmp_mag(a, limitPower()) >= 0;
}
}  // namespace

int rechlaDecimalLength(const mp_int& a)
{
    std::string s = mp_decimal(a);
    return static_cast<int>(s.size()) - (s[0] == '-' ? 1 : 0);
}

std::string rechlaOperate(RechlaOp op, const mp_int& a, const mp_int& b, mp_int& r)
{
    mp_tmp t;
    switch (op) {
    case RechlaOp::Add: mp_add(a, b, r); break;
    case RechlaOp::Sub: mp_sub(a, b, r); break;
    case RechlaOp::Mul: mp_mul(a, b, r); break;
    case RechlaOp::Div: mp_div(a, b, r); break;
    case RechlaOp::Mod: mp_mod(a, b, r); break;
    case RechlaOp::Gcd: mp_gcd(a, b, r); break;
    case RechlaOp::Lcm:
        // a*b / gcd(a, b)
        mp_gcd(a, b, t);
        mp_mul(a, b, r);
        mp_div(r, t, r);
        break;
    case RechlaOp::Sqr: mp_sqr(a, r); break;
    case RechlaOp::Sqrt: mp_sqrt(a, r); break;
    case RechlaOp::Fact: {
        int32_t n = 0;
        if (!mp_is_longint(a, n) || n > 10000)
            n = 10001;
        mp_set(r, 1);
        for (int32_t i = 1; i <= n; ++i) {
            if (i == 10001)
                return "Überlauf, Berechnung maximal bis 1775!";
            mp_mul_d(r, static_cast<mp_digit>(i), r);
            if (tooLong(r))
                return "Überlauf, Berechnung maximal bis 1775!";
        }
        break;
    }
    case RechlaOp::Primorial: {
        int32_t n = 0;
        if (!mp_is_longint(a, n) || n > 50000)
            n = 50001;
        mp_set(r, 1);
        for (int32_t p = 2; p <= n; ++p) {
            if (p == 50001)
                return "Überlauf, Berechnung maximal bis 10000#";
            if (!wordIsPrime(static_cast<uint32_t>(p)))
                continue;
            mp_mul_d(r, static_cast<mp_digit>(p), r);
            if (tooLong(r))
                return "Überlauf, Berechnung maximal bis 10000#";
        }
        break;
    }
    case RechlaOp::Pow: {
        int32_t e = 0;
        bool fits = mp_is_longint(b, e);
        if (fits && e == 0) {
            mp_set(r, 1);
            break;
        }
        if (fits && e == 1) {
            mp_copy(a, r);
            break;
        }
        mp_copy(a, t);
        mp_copy(a, r);
        for (int32_t counter = 1; !fits || e > counter; ++counter) {
            if (counter >= 10001)
                return "Überlauf";
            mp_mul(r, t, r);
            if (tooLong(r))
                return "Überlauf";
        }
        break;
    }
    case RechlaOp::Binom:
    case RechlaOp::Falling: {
        int32_t bb = 0;
        if (!mp_is_longint(b, bb))
            return "Überlauf!";
        if (op == RechlaOp::Binom && mp_cmp(b, a) > 0) {
            mp_zero(r);
            break;
        }
        mp_set(r, 1);
        mp_tmp f;
        for (int32_t i = 1; i <= bb; ++i) {
            if (i >= 10001)
                return "Überlauf!";
            if (op == RechlaOp::Binom) {
                // r := r * (a - b + i) / i, exact at every step
                mp_sub(a, b, f);
                mp_add_int(f, i, f);
                mp_mul(r, f, r);
                mp_digit rem;
                s_mp_div_d(r, static_cast<mp_digit>(i), &r, rem);
            } else {
                // a (a - 1) ... (a - b + 1)
                mp_sub_int(a, i - 1, f);
                mp_mul(r, f, r);
            }
            if (tooLong(r))
                return "Überlauf!";
        }
        break;
    }
    }
    return std::string();
}

RechlaResult rechlaCompute(RechlaOp op, const std::string& a, const std::string& b, int base)
{
    RechlaResult res;
    mp_tmp x, y, r;
    bool okA = rechlaReadOperand(a, base, x);
    bool okB = rechlaReadOperand(b, base, y);
    if (!okA || !okB)
        res.error = RechlaBaseMessage;  // the operand then counts as 0, as in the window
    try {
        std::string over = rechlaOperate(op, x, y, r);
        if (!over.empty()) {
            res.overflow = true;
            res.text = over;
        } else {
            res.text = rechlaWrite(r, base);
        }
    } catch (const MPXError& e) {
        mp_reset_error();
        res.error = e.what();
        res.text.clear();
    }
    return res;
}

}  // namespace numbers
