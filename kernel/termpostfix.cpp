#include "kernel/termpostfix.h"
#include "kernel/term.h"
#include "kernel/termintern.h"

#include <charconv>
#include <cmath>
#include <cstring>

namespace quorix {

namespace {

using termintern::Fn;

struct Converter {
    const std::string& s;
    std::size_t pos = 0;
    std::vector<std::string>& out;
    std::string message;
    int depth = 0;

    bool failAt(const std::string& m)
    {
        if (message.empty())
            message = m;
        return false;
    }
    char peek() const { return pos < s.size() ? s[pos] : '\0'; }
    static int priority(char c)
    {
        if (c == '+' || c == '-')
            return 1;
        if (c == '*' || c == '/')
            return 2;
        if (c == '^')
            return 3;
        return 0;
    }

    // Priority climbing with left grouping for every level.
    bool expression(int minPrio)
    {
        if (++depth > 500)
            return failAt("Term zu tief geschachtelt");
        if (!signedPrimary())
            return false;
        while (priority(peek()) > 0 && priority(peek()) >= minPrio) {
            const char op = s[pos++];
            if (!expression(priority(op) + 1))
                return false;
            out.push_back(std::string(1, op));
        }
        --depth;
        return true;
    }

    bool signedPrimary()
    {
        const bool neg = peek() == '-';
        if (neg)
            ++pos;
        if (!primary())
            return false;
        if (neg)
            out.push_back("NEG");
        return true;
    }

    bool closing(char expected)
    {
        if (peek() != expected)
            return failAt(std::string("\"") + expected + "\" fehlt");
        ++pos;
        return true;
    }

    bool primary()
    {
        const unsigned char c = static_cast<unsigned char>(peek());
        if ((c >= '0' && c <= '9') || c == '.') {
            const std::size_t b = pos;
            while (pos < s.size() && ((s[pos] >= '0' && s[pos] <= '9') || s[pos] == '.'))
                ++pos;
            out.push_back(s.substr(b, pos - b));
            return true;
        }
        if (c == 'X' || c == 'Q' || c == 'R') {
            ++pos;
            out.push_back(std::string(1, c));
            return true;
        }
        if (c == 'P') {
            if (s.compare(pos, 3, "PHI") == 0) {
                pos += 3;
                out.push_back("PHI");
            } else if (s.compare(pos, 2, "PI") == 0) {
                pos += 2;
                out.push_back("PI");
            } else {
                ++pos;
                out.push_back("P");
            }
            return true;
        }
        if (c == 0xC9) {
            ++pos;
            out.push_back("\xC9");
            return true;
        }
        if (c == '(' || c == '|' || c == '[') {
            ++pos;
            if (!expression(1))
                return false;
            if (!closing(c == '(' ? ')' : c == '|' ? '|' : ']'))
                return false;
            if (c != '(')
                out.push_back(c == '|' ? "ABS" : "INT");
            return true;
        }
        if (c >= 'A' && c <= 'Z') {
            const std::size_t open = s.find('(', pos);
            if (open == std::string::npos)
                return failAt("\"(\" fehlt nach " + s.substr(pos));
            const std::string name = s.substr(pos, open - pos);
            if (termintern::lookupFunction(name.data(), static_cast<int>(name.size())) == Fn::None)
                return failAt("Unbekannte Funktion " + name);
            pos = open + 1;
            if (!expression(1) || !closing(')'))
                return false;
            out.push_back(name);
            return true;
        }
        if (c == 0)
            return failAt("Term unvollständig");
        return failAt(std::string("Zeichen nicht erlaubt: ") + static_cast<char>(c));
    }
};

}  // namespace

std::string PostFixResult::text() const
{
    std::string t;
    for (const auto& tok : tokens) {
        if (!t.empty())
            t += ' ';
        t += tok;
    }
    return t;
}

PostFixResult EvaluatePostFix(const std::vector<std::string>& tokens, double x)
{
    PostFixResult r;
    r.tokens = tokens;
    std::vector<double> stack;
    auto fail = [&](unsigned char code, const char* m) {
        r.ok = false;
        r.error = code;
        r.message = m;
        return r;
    };
    for (const auto& t : tokens) {
        const unsigned char c = static_cast<unsigned char>(t[0]);
        if ((c >= '0' && c <= '9') || c == '.') {
            double v = 0;
            const std::string n = c == '.' ? "0" + t : t;
            auto res = std::from_chars(n.data(), n.data() + n.size(), v);
            if (res.ec != std::errc() || res.ptr != n.data() + n.size())
                return fail(1, "Zahl nicht lesbar");
            stack.push_back(v);
        } else if (t == "X") {
            stack.push_back(x);
        } else if (t == "P") {
            stack.push_back(TermParamP);
        } else if (t == "Q") {
            stack.push_back(TermParamQ);
        } else if (t == "R") {
            stack.push_back(TermParamR);
        } else if (t == "PI") {
            stack.push_back(3.14159265358979323846);
        } else if (t == "PHI") {
            stack.push_back((std::sqrt(5.0) + 1) / 2);
        } else if (t == "\xC9") {
            stack.push_back(std::exp(1.0));
        } else if (t.size() == 1 && std::strchr("+-*/^", c)) {
            if (stack.size() < 2)
                return fail(1, "Operand fehlt");
            const double b = stack.back();
            stack.pop_back();
            double& a = stack.back();
            switch (c) {
            case '+': a += b; break;
            case '-': a -= b; break;
            case '*': a *= b; break;
            case '/':
                if (b == 0)
                    return fail(2, "Division durch Null");
                a /= b;
                break;
            default: {
                const double p = std::pow(a, b);
                if (!std::isfinite(p))
                    return fail(2, "Potenz nicht definiert");
                a = p;
            }
            }
        } else {
            if (stack.empty())
                return fail(1, "Operand fehlt");
            double& a = stack.back();
            if (t == "NEG") {
                a = -a;
                continue;
            }
            const Fn f = termintern::lookupFunction(t.data(), static_cast<int>(t.size()));
            if (f == Fn::None)
                return fail(1, "Unbekannte Funktion");
            TermError = 0;
            a = termintern::applyFunction(f, a, x, 0);
            if (TermError == 1 || TermError == 2)
                return fail(TermError, "Definitionsbereich verletzt");
        }
    }
    if (stack.size() != 1)
        return fail(1, "Term unvollständig");
    r.ok = true;
    r.value = stack.back();
    return r;
}

PostFixResult PostFix(const std::string& term, double x)
{
    std::string s;
    for (char c : term)
        if (c != ' ')
            s += c == ',' ? '.' : c;
    std::vector<std::string> tokens;
    // The interpreter's own mending: a leading sign and "(-X^" become subtractions.
    if (!s.empty() && (s[0] == '-' || s[0] == '+'))
        s.insert(s.begin(), '0');
    for (std::size_t p = s.find("(-X^"); p != std::string::npos; p = s.find("(-X^", p))
        s.insert(p + 1, 1, '0');
    Converter conv{s, 0, tokens, {}, 0};
    if (s.empty()) {
        PostFixResult r;
        r.error = 1;
        r.message = "Term leer";
        return r;
    }
    if (!conv.expression(1) || conv.pos != s.size()) {
        PostFixResult r;
        r.tokens = tokens;
        r.error = 1;
        r.message = conv.message.empty() ? "Zeichen nicht erlaubt: " + s.substr(conv.pos, 1) : conv.message;
        return r;
    }
    return EvaluatePostFix(tokens, x);
}

}  // namespace quorix
