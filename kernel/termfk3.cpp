#include "kernel/termfk3.h"

#include <cmath>
#include <cstring>

namespace quorix {

namespace {

struct TokenDef {
    const char* text;
    int arity;  // 0 operand or delimiter, 1 unary, 2 binary
};

const TokenDef kTokens[30] = {
    {"$", 0}, {"(", 0}, {")", 0}, {",", 0}, {"+", 2}, {"-", 2}, {"*", 2}, {"/", 2}, {"SINH", 1},
    {"COSH", 1}, {"EXP", 1}, {"LN", 1}, {"^", 2}, {"SQRT", 1}, {"~", 1}, {"SIN", 1}, {"COS", 1},
    {"ARCTAN", 1}, {"TAN", 1}, {"ABS", 1}, {"PI", 0}, {"R", 0}, {"Q", 0}, {"P", 0}, {"X", 0},
    {"Y", 0}, {"U", 0}, {"V", 0}, {"K", 0}, {"T", 0},
};

constexpr double kIntegerLimit = 2147483647.0;

int precedence(int code)
{
    switch (code) {
    case Fk3Plus: case Fk3Minus: return 1;
    case Fk3Times: case Fk3Divide: return 2;
    case Fk3Negate: return 3;
    case Fk3Power: return 4;
    default: return 0;
    }
}

bool isFunction(int code) { return kTokens[code].arity == 1 && code != Fk3Negate; }

// The longest token of the table that starts at p.
int matchToken(const std::string& s, std::size_t p)
{
    int best = -1;
    std::size_t bestLen = 0;
    for (int i = 0; i < 30; ++i) {
        const std::size_t n = std::strlen(kTokens[i].text);
        if (n > bestLen && s.compare(p, n, kTokens[i].text) == 0) {
            best = i;
            bestLen = n;
        }
    }
    return best;
}

}  // namespace

Fk3Program fk3parser(const std::string& term)
{
    Fk3Program prog;
    std::string s;
    for (char c : term) {
        if (c == ' ')
            continue;
        s += (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
    }
    prog.text = s;
    s += '$';
    std::vector<int> ops;
    bool expectOperand = true;
    std::size_t p = 0;
    auto fault = [&]() {
        prog.fault = true;
        prog.codes.clear();
        prog.numbers.clear();
        prog.text = "F\xA7\xA7\xA7";
        return prog;
    };
    while (p < s.size()) {
        const char c = s[p];
        if (c >= '0' && c <= '9') {
            double v = 0;
            while (p < s.size() && s[p] >= '0' && s[p] <= '9') {
                const double next = v * 10 + (s[p] - '0');
                if (next <= kIntegerLimit)
                    v = next;
                ++p;
            }
            prog.codes.push_back(Fk3Number);
            prog.numbers.push_back(v);
            expectOperand = false;
            continue;
        }
        int code = matchToken(s, p);
        if (code < 0)
            return fault();
        p += std::strlen(kTokens[code].text);
        if (code == Fk3Minus && expectOperand)
            code = Fk3Negate;
        if (code == Fk3End) {
            while (!ops.empty()) {
                if (ops.back() == Fk3Open)
                    return fault();
                prog.codes.push_back(ops.back());
                ops.pop_back();
            }
            break;
        }
        if (kTokens[code].arity == 0 && code >= Fk3Pi) {
            prog.codes.push_back(code);
            expectOperand = false;
        } else if (code == Fk3Open || isFunction(code) || code == Fk3Negate) {
            ops.push_back(code);
            expectOperand = true;
        } else if (code == Fk3Close || code == Fk3Comma) {
            while (!ops.empty() && ops.back() != Fk3Open) {
                prog.codes.push_back(ops.back());
                ops.pop_back();
            }
            if (ops.empty())
                return fault();
            if (code == Fk3Close) {
                ops.pop_back();
                if (!ops.empty() && isFunction(ops.back())) {
                    prog.codes.push_back(ops.back());
                    ops.pop_back();
                }
                expectOperand = false;
            } else {
                expectOperand = true;
            }
        } else {  // binary operator; ^ groups to the right
            const int pr = precedence(code);
            while (!ops.empty() && ops.back() != Fk3Open &&
                   (isFunction(ops.back()) || precedence(ops.back()) > pr ||
                    (precedence(ops.back()) == pr && code != Fk3Power))) {
                prog.codes.push_back(ops.back());
                ops.pop_back();
            }
            ops.push_back(code);
            expectOperand = true;
        }
    }
    return prog;
}

double fk3evaluate(const Fk3Program& program, const Fk3Values& values, bool& ok)
{
    ok = false;
    if (program.fault)
        return 0;
    double stack[256];
    int top = 0;
    std::size_t numberIndex = 0;
    for (int code : program.codes) {
        double v = 0;
        switch (code) {
        case Fk3Number:
            if (numberIndex >= program.numbers.size())
                return 0;
            v = program.numbers[numberIndex++];
            break;
        case Fk3Pi: v = 3.14159265358979323846; break;
        case Fk3R: v = values.r; break;
        case Fk3Q: v = values.q; break;
        case Fk3P: v = values.p; break;
        case Fk3X: v = values.x; break;
        case Fk3Y: v = values.y; break;
        case Fk3U: v = values.u; break;
        case Fk3V: v = values.v; break;
        case Fk3K: v = values.k; break;
        case Fk3T: v = values.t; break;
        default:
            if (kTokens[code].arity == 2) {
                if (top < 2)
                    return 0;
                const double b = stack[--top];
                const double a = stack[--top];
                switch (code) {
                case Fk3Plus: v = a + b; break;
                case Fk3Minus: v = a - b; break;
                case Fk3Times: v = a * b; break;
                case Fk3Divide:
                    if (b == 0)
                        return 0;
                    v = a / b;
                    break;
                default: v = std::pow(a, b); break;
                }
            } else {
                if (top < 1)
                    return 0;
                const double a = stack[--top];
                switch (code) {
                case Fk3Sinh: v = std::sinh(a); break;
                case Fk3Cosh: v = std::cosh(a); break;
                case Fk3Exp: v = std::exp(a); break;
                case Fk3Ln:
                    if (!(a > 0))
                        return 0;
                    v = std::log(a);
                    break;
                case Fk3Sqrt:
                    if (a < 0)
                        return 0;
                    v = std::sqrt(a);
                    break;
                case Fk3Negate: v = -a; break;
                case Fk3Sin: v = std::sin(a); break;
                case Fk3Cos: v = std::cos(a); break;
                case Fk3Arctan: v = std::atan(a); break;
                case Fk3Tan: v = std::tan(a); break;
                case Fk3Abs: v = std::fabs(a); break;
                default: return 0;
                }
            }
        }
        if (top >= 256)
            return 0;
        stack[top++] = v;
    }
    if (top != 1 || !std::isfinite(stack[0]))
        return 0;
    ok = true;
    return stack[0];
}

}  // namespace quorix
