// ComplexTermInterpreter: normalisation, walk and function table over complex values.
#include "kernel/termcomplex.h"
#include "kernel/term.h"
#include "kernel/term_support.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <vector>

namespace quorix {

unsigned char ComplexTermError = 0;
TermComplex ComplexTermParamP;
TermComplex ComplexTermParamQ;

const char* const ComplexTermFunctionNames =
    "SQR SQRT EXP LN ABS SIN COS TAN COSH SINH TANH GAMMA BI0 BJ0 SEC CSC COT DN SN CN RIEMANN TRE "
    "TIM COTH EI DIGAMMA CONJ";

namespace {

using C = TermComplex;
constexpr double kPi = 3.14159265358979323846;
constexpr int kMaxBracketDepth = 1000;

enum class CFn {
    None, SQR, SQRT, EXP, LN, ABS, SIN, COS, TAN, COSH, SINH, TANH, GAMMA, BI0, BJ0, SEC, CSC, COT,
    DN, SN, CN, RIEMANN, TRE, TIM, COTH, EI, DIGAMMA, CONJ,
};

CFn lookup(std::string_view name)
{
    static const std::vector<CFn> places = [] {
        const std::string_view list(ComplexTermFunctionNames);
        std::vector<CFn> at(list.size() + 1, CFn::None);
        int id = 1;
        for (std::size_t i = 0; i < list.size(); ++i)
            if (list[i] != ' ' && (i == 0 || list[i - 1] == ' '))
                at[i] = static_cast<CFn>(id++);
        return at;
    }();
    const std::size_t p = std::string_view(ComplexTermFunctionNames).find(name);
    return p == std::string_view::npos ? CFn::None : places[p];
}

int priorityOf(unsigned char c)
{
    switch (c) {
    case '+': case '-': case '#': case '&': case ';': case '<': case '>':
        return 1;
    case '*': case 0xB7: case '/': case '%': case '~':
        return 2;
    case '^': case '\\':
        return 3;
    case ')': case ']': case '|':
        return 0;
    default:
        return -1;
    }
}

bool finite(C v) { return std::isfinite(v.real()) && std::isfinite(v.imag()); }

C failed(unsigned char code)
{
    ComplexTermError = code;
    return 0;
}

// Jacobi functions of a complex argument from the real ones (A&S 16.21), parameter m = re(Q)^2.
C jacobi(CFn f, C u)
{
    const double m = ComplexTermParamQ.real() * ComplexTermParamQ.real();
    double s, c, d, s1, c1, d1;
    termsupport::jacobiSnCnDn(u.real(), 1 - m, s, c, d);
    termsupport::jacobiSnCnDn(u.imag(), m, s1, c1, d1);
    const double den = c1 * c1 + m * s * s * s1 * s1;
    if (den == 0)
        return failed(2);
    if (f == CFn::SN)
        return C(s * d1, c * d * s1 * c1) / den;
    if (f == CFn::CN)
        return C(c * c1, -s * d * s1 * d1) / den;
    return C(d * c1 * d1, -m * s * c * s1) / den;
}

C reciprocal(C v)
{
    if (v == C(0))
        return failed(2);
    return 1.0 / v;
}

C applyFunction(CFn f, C a)
{
    bool bad = false;
    C r;
    switch (f) {
    case CFn::None:
        return failed(1);
    case CFn::SQR: return a * a;
    case CFn::SQRT: return std::sqrt(a);
    case CFn::EXP: return std::exp(a);
    case CFn::LN: return a == C(0) ? failed(2) : std::log(a);
    case CFn::ABS: return std::abs(a);
    case CFn::SIN: return std::sin(a);
    case CFn::COS: return std::cos(a);
    case CFn::TAN: return std::cos(a) == C(0) ? failed(2) : std::tan(a);
    case CFn::COSH: return std::cosh(a);
    case CFn::SINH: return std::sinh(a);
    case CFn::TANH: return std::tanh(a);
    case CFn::COTH: return reciprocal(std::tanh(a));
    case CFn::SEC: return reciprocal(std::cos(a));
    case CFn::CSC: return reciprocal(std::sin(a));
    case CFn::COT: return std::sin(a) == C(0) ? failed(2) : std::cos(a) / std::sin(a);
    case CFn::GAMMA: r = termsupport::complexGamma(a, bad); break;
    case CFn::RIEMANN: r = termsupport::complexZeta(a, bad); break;
    case CFn::DIGAMMA: r = termsupport::complexDigamma(a, bad); break;
    case CFn::EI: r = termsupport::complexEi(a, bad); break;
    case CFn::BI0: return termsupport::complexBesselI0(a);
    case CFn::BJ0: return termsupport::complexBesselJ0(a);
    case CFn::DN: case CFn::SN: case CFn::CN: return jacobi(f, a);
    case CFn::TRE: return C(a.real(), 0);
    case CFn::TIM: return C(0, a.imag());
    case CFn::CONJ: return std::conj(a);
    }
    return bad ? failed(4) : r;
}

struct Walker {
    const char* s;
    int len;
    int pos = 1;
    C z;
    unsigned char op = 0;
    int prio = 0;
    unsigned char nop = 0;
    int nprio = 0;
    int brackets = 0;

    unsigned char at(int p) const { return p >= 1 && p <= len ? static_cast<unsigned char>(s[p - 1]) : 0; }

    void readOp()
    {
        if (pos < len) {
            nop = at(pos++);
            nprio = priorityOf(nop);
            if (nprio < 0) {
                ComplexTermError = 1;
                nprio = 0;
            }
        } else {
            nop = 0;
            nprio = 0;
        }
    }

    C expression()
    {
        C v = signedFactor();
        while (nprio > 0)
            v = combine(v);
        return v;
    }

    C signedFactor()
    {
        const bool neg = at(pos) == '-';
        if (neg)
            ++pos;
        C v = primary();
        if (neg)
            v = -v;
        readOp();
        while (nprio > prio)
            v = combine(v);
        return v;
    }

    C combine(C left)
    {
        const unsigned char savedOp = op;
        const int savedPrio = prio;
        do {
            op = nop;
            prio = nprio;
            C right = signedFactor();
            left = apply(op, left, right);
        } while (nprio >= prio);
        op = savedOp;
        prio = savedPrio;
        return left;
    }

    C nested()
    {
        if (++brackets > kMaxBracketDepth) {
            --brackets;
            return failed(1);
        }
        ++pos;
        C v = expression();
        --brackets;
        return v;
    }

    C number()
    {
        std::string buf;
        int e = pos;
        while (e <= len) {
            const unsigned char c = at(e);
            if (!((c >= '0' && c <= '9') || c == '.' || c == 0xE9))
                break;
            buf += c == 0xE9 ? 'e' : static_cast<char>(c);
            ++e;
        }
        pos = e;
        if (buf[0] == '.')
            buf.insert(buf.begin(), '0');
        double v = 0;
        const char* b = buf.data();
        auto res = std::from_chars(b, b + buf.size(), v, std::chars_format::general);
        if (res.ec == std::errc::result_out_of_range)
            return std::strtod(b, nullptr);
        if (res.ec != std::errc() || res.ptr != b + buf.size() || buf.back() == 'e')
            return failed(1);
        return v;
    }

    C call()
    {
        const char* open = static_cast<const char*>(std::memchr(s + pos - 1, '(', len - pos + 1));
        const int nameLen = open ? static_cast<int>(open - (s + pos - 1)) : len - pos + 1;
        const CFn f = lookup(std::string_view(s + pos - 1, nameLen));
        pos += nameLen + 1;
        if (++brackets > kMaxBracketDepth) {
            --brackets;
            return failed(1);
        }
        const C a = expression();
        --brackets;
        return applyFunction(f, a);
    }

    C primary()
    {
        const unsigned char c = at(pos);
        if ((c >= '0' && c <= '9') || c == '.')
            return number();
        switch (c) {
        case 'Z': ++pos; return z;
        case 'Q': ++pos; return ComplexTermParamQ;
        case 'I': ++pos; return C(0, 1);
        case 'P':
            if (at(pos + 1) == 'I' && pos < len) {
                pos += 2;
                return kPi;
            }
            ++pos;
            return ComplexTermParamP;
        case 0xC9: ++pos; return std::exp(1.0);
        case '(': return nested();
        case '|': {
            // Two expressions in a row: the real part of the first, the imaginary of the second.
            const C first = nested();
            const C second = nested();
            return std::sqrt(first.real() * first.real() + second.imag() * second.imag());
        }
        default:
            break;
        }
        if (c >= 'A' && c <= 'Z')
            return call();
        return failed(1);
    }

    C apply(unsigned char o, C a, C b)
    {
        const double clamp = TermClamp;
        switch (o) {
        case '+': return a + b;
        case '-': return a - b;
        case '*':
            if (std::fabs(a.real()) > clamp || std::fabs(b.real()) > clamp) {
                ComplexTermError = 2;
                return clamp;
            }
            return a * b;
        case '/':
            // Complex division by 0 gives 0, as the complex arithmetic has it.
            if (b == C(0)) {
                ComplexTermError = 2;
                return 0;
            }
            return a / b;
        case '^':
            if (b == C(0))
                return 1;
            if (a == C(0))
                return 0;
            {
                const C r = std::exp(b * std::log(a));
                if (!finite(r))
                    return failed(2);
                return r;
            }
        default:
            return a;  // the other operators are read but do nothing here
        }
    }
};

}  // namespace

unsigned char EvalComplexTerm(const std::string& term, TermComplex z, TermComplex& result)
{
    if (term.empty()) {
        result = 0;
        ComplexTermError = 1;
        return 1;
    }
    std::string t = term;
    for (char& c : t) {
        if (c == ',')
            c = '.';
        else if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    }
    for (std::size_t p = t.find("(-"); p != std::string::npos; p = t.find("(-", p + 2))
        t.insert(p + 1, 1, '0');
    t.erase(std::remove(t.begin(), t.end(), ' '), t.end());
    if (t.empty())
        t.push_back(' ');  // a term of blanks only: a syntax error below
    if (t[0] == '-' || t[0] == '+')
        t.insert(t.begin(), '0');
    ComplexTermError = 0;
    Walker w{t.data(), static_cast<int>(t.size()), 1, z};
    result = w.expression();
    return ComplexTermError;
}

}  // namespace quorix
