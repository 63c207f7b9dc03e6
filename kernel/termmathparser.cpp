#include "kernel/termmathparser.h"

#include <cctype>
#include <charconv>
#include <cmath>

namespace quorix {

std::string mathErrorText(MathError e)
{
    switch (e) {
    case MathError::None: return "";
    case MathError::Syntax: return "Syntaxfehler";
    case MathError::UnknownName: return "Unbekannter Name";
    case MathError::DivisionByZero: return "Division durch Null";
    case MathError::Domain: return "Außerhalb des Definitionsbereichs";
    case MathError::Overflow: return "Zahlenbereich überschritten";
    }
    return "";
}

struct TMathParser::Cursor {
    std::string s;
    std::size_t pos = 0;
    int depth = 0;
    char peek() const { return pos < s.size() ? s[pos] : '\0'; }
};

TMathParser::TMathParser()
{
    vars_["PI"] = 3.14159265358979323846;
    vars_["E"] = std::exp(1.0);
}

void TMathParser::SetVariable(const std::string& name, double value)
{
    std::string n;
    for (char ch : name)
        n += static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
    vars_[n] = value;
}

bool TMathParser::GetVariable(const std::string& name, double& value) const
{
    std::string n;
    for (char ch : name)
        n += static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
    auto it = vars_.find(n);
    if (it == vars_.end())
        return false;
    value = it->second;
    return true;
}

double TMathParser::fail(MathError e, const Cursor& c)
{
    if (error_ == MathError::None) {
        error_ = e;
        errorPos_ = static_cast<int>(c.pos) + 1;
    }
    return 0;
}

bool TMathParser::Evaluate(const std::string& expression, double& value)
{
    error_ = MathError::None;
    errorPos_ = 0;
    Cursor c;
    for (char ch : expression) {
        if (ch == ' ' || ch == '\t')
            continue;
        c.s += ch == ',' ? '.' : static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
    }
    std::string target;
    const std::size_t eq = c.s.find('=');
    if (eq != std::string::npos) {
        target = c.s.substr(0, eq);
        bool okName = !target.empty() && std::isalpha(static_cast<unsigned char>(target[0]));
        for (char ch : target)
            okName = okName && std::isalnum(static_cast<unsigned char>(ch));
        if (!okName) {
            fail(MathError::Syntax, c);
            return false;
        }
        c.pos = eq + 1;
    }
    if (c.pos >= c.s.size()) {
        fail(MathError::Syntax, c);
        return false;
    }
    const double v = this->expression(c);
    if (error_ == MathError::None && c.pos != c.s.size())
        fail(MathError::Syntax, c);
    if (error_ == MathError::None && !std::isfinite(v))
        fail(MathError::Overflow, c);
    if (error_ != MathError::None)
        return false;
    value = v;
    if (!target.empty())
        vars_[target] = v;
    vars_["ANS"] = v;
    return true;
}

double TMathParser::expression(Cursor& c)
{
    double v = term(c);
    while (error_ == MathError::None && (c.peek() == '+' || c.peek() == '-')) {
        const char op = c.s[c.pos++];
        const double r = term(c);
        v = op == '+' ? v + r : v - r;
    }
    return v;
}

double TMathParser::term(Cursor& c)
{
    double v = unary(c);
    while (error_ == MathError::None && (c.peek() == '*' || c.peek() == '/' || c.peek() == '%')) {
        const char op = c.s[c.pos++];
        const double r = unary(c);
        if (op == '*') {
            v *= r;
        } else if (r == 0) {
            return fail(MathError::DivisionByZero, c);
        } else {
            v = op == '/' ? v / r : std::fmod(v, r);
        }
    }
    return v;
}

double TMathParser::unary(Cursor& c)
{
    if (c.peek() == '-') {
        ++c.pos;
        return -unary(c);
    }
    if (c.peek() == '+') {
        ++c.pos;
        return unary(c);
    }
    return power(c);
}

double TMathParser::power(Cursor& c)
{
    const double base = postfix(c);
    if (error_ != MathError::None || c.peek() != '^')
        return base;
    ++c.pos;
    const double ex = unary(c);  // right grouping: 2^3^2 = 2^9
    const double v = std::pow(base, ex);
    if (std::isnan(v))
        return fail(MathError::Domain, c);
    return v;
}

double TMathParser::postfix(Cursor& c)
{
    double v = primary(c);
    while (error_ == MathError::None && c.peek() == '!') {
        ++c.pos;
        if (v < 0 || v != std::floor(v))
            return fail(MathError::Domain, c);
        if (v > 170)
            return fail(MathError::Overflow, c);
        double f = 1;
        for (int i = 2; i <= static_cast<int>(v); ++i)
            f *= i;
        v = f;
    }
    return v;
}

double TMathParser::primary(Cursor& c)
{
    if (++c.depth > 500)
        return fail(MathError::Syntax, c);
    struct Leave {
        Cursor& c;
        ~Leave() { --c.depth; }
    } leave{c};
    const char ch = c.peek();
    if (std::isdigit(static_cast<unsigned char>(ch)) || ch == '.') {
        const std::size_t b = c.pos;
        while (std::isdigit(static_cast<unsigned char>(c.peek())) || c.peek() == '.')
            ++c.pos;
        if (c.peek() == 'E' && c.pos + 1 < c.s.size() &&
            (std::isdigit(static_cast<unsigned char>(c.s[c.pos + 1])) || c.s[c.pos + 1] == '-' || c.s[c.pos + 1] == '+')) {
            ++c.pos;
            if (c.peek() == '-' || c.peek() == '+')
                ++c.pos;
            while (std::isdigit(static_cast<unsigned char>(c.peek())))
                ++c.pos;
        }
        std::string n = c.s.substr(b, c.pos - b);
        if (n[0] == '.')
            n.insert(n.begin(), '0');
        double v = 0;
        auto r = std::from_chars(n.data(), n.data() + n.size(), v);
        if (r.ec != std::errc() || r.ptr != n.data() + n.size())
            return fail(MathError::Syntax, c);
        return v;
    }
    if (ch == '(') {
        ++c.pos;
        const double v = expression(c);
        if (c.peek() != ')')
            return fail(MathError::Syntax, c);
        ++c.pos;
        return v;
    }
    if (std::isalpha(static_cast<unsigned char>(ch))) {
        const std::size_t b = c.pos;
        while (std::isalnum(static_cast<unsigned char>(c.peek())))
            ++c.pos;
        const std::string name = c.s.substr(b, c.pos - b);
        if (c.peek() == '(') {
            ++c.pos;
            const double a = expression(c);
            if (c.peek() != ')')
                return fail(MathError::Syntax, c);
            ++c.pos;
            return function(name, a, c);
        }
        auto it = vars_.find(name);
        if (it == vars_.end())
            return fail(MathError::UnknownName, c);
        return it->second;
    }
    return fail(MathError::Syntax, c);
}

double TMathParser::function(const std::string& n, double a, Cursor& c)
{
    auto domain = [&](bool ok, double v) { return ok ? v : fail(MathError::Domain, c); };
    if (n == "SIN") return std::sin(a);
    if (n == "COS") return std::cos(a);
    if (n == "TAN") return domain(std::cos(a) != 0, std::tan(a));
    if (n == "ASIN" || n == "ARCSIN") return domain(std::fabs(a) <= 1, std::asin(a));
    if (n == "ACOS" || n == "ARCCOS") return domain(std::fabs(a) <= 1, std::acos(a));
    if (n == "ATAN" || n == "ARCTAN") return std::atan(a);
    if (n == "SINH") return std::sinh(a);
    if (n == "COSH") return std::cosh(a);
    if (n == "TANH") return std::tanh(a);
    if (n == "EXP") return std::exp(a);
    if (n == "LN") return domain(a > 0, std::log(a));
    if (n == "LOG" || n == "LG") return domain(a > 0, std::log10(a));
    if (n == "LD") return domain(a > 0, std::log2(a));
    if (n == "SQRT" || n == "WURZEL") return domain(a >= 0, std::sqrt(a));
    if (n == "SQR") return a * a;
    if (n == "ABS") return std::fabs(a);
    if (n == "INT") return std::trunc(a);
    if (n == "FRAC") return a - std::trunc(a);
    if (n == "SGN") return a > 0 ? 1 : a < 0 ? -1 : 0;
    return fail(MathError::UnknownName, c);
}

}  // namespace quorix
