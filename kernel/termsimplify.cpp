// The textual clean-up of printed derivatives, and the rewrite pass with the list "wverein".
// Every rewrite must keep the value as the interpreter reads the text. The one trap is the
// sign: inside a term "-F^2" is (-F)^2, so a rewrite that would put a bare sign in front of a
// factor that is raised to a power is left out.
#include "kernel/termderiv.h"
#include "kernel/term.h"

#include <cstring>
#include <functional>

namespace quorix {

namespace {

bool isOperandEnd(unsigned char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || c == ')' || c == ']' || c == '|' || c == '.' ||
           c == 0xC9 || c == 0xE3;
}

int matchingClose(const std::string& t, std::size_t open)
{
    int d = 0;
    for (std::size_t i = open; i < t.size(); ++i) {
        if (t[i] == '(')
            ++d;
        else if (t[i] == ')' && --d == 0)
            return static_cast<int>(i);
    }
    return -1;
}

// Index after the factor that starts at i (a number, a name with its bracket, or a bracket).
std::size_t factorEnd(const std::string& t, std::size_t i)
{
    if (i >= t.size())
        return i;
    const unsigned char c = t[i];
    if ((c >= '0' && c <= '9') || c == '.') {
        while (i < t.size() && ((t[i] >= '0' && t[i] <= '9') || t[i] == '.'))
            ++i;
        return i;
    }
    if (c >= 'A' && c <= 'Z') {
        while (i < t.size() && ((t[i] >= 'A' && t[i] <= 'Z') || (t[i] >= '0' && t[i] <= '9')))
            ++i;
        if (i < t.size() && t[i] == '(') {
            const int close = matchingClose(t, i);
            return close < 0 ? t.size() : close + 1;
        }
        return i;
    }
    if (c == '(') {
        const int close = matchingClose(t, i);
        return close < 0 ? t.size() : close + 1;
    }
    return i + 1;
}

// A sign at `sign` followed by the factor at `factor`: would it bind to a power?
bool signGrabsPower(const std::string& t, std::size_t sign, std::size_t factor)
{
    const bool unary = sign > 0 && !isOperandEnd(static_cast<unsigned char>(t[sign - 1]));
    if (!unary)
        return false;
    const std::size_t e = factorEnd(t, factor);
    if (e >= t.size() || t[e] != '^')
        return false;
    // "(-X^" is mended by the interpreter itself.
    return !(factor == sign + 1 && t.compare(factor, 2, "X^") == 0 && sign > 0 && t[sign - 1] == '(');
}

using Guard = std::function<bool(const std::string&, std::size_t)>;

// Replaces every occurrence of `pat` (left to right) where `ok` allows it.
void replaceWhere(std::string& t, const char* pat, const char* rep, const Guard& ok = nullptr)
{
    const std::size_t pl = std::strlen(pat);
    int guard = 0;
    std::size_t p = t.find(pat);
    while (p != std::string::npos && ++guard < 100000) {
        if (!ok || ok(t, p)) {
            t.replace(p, pl, rep);
            p = t.find(pat, p);  // the replacement may have built a new match here
        } else {
            p = t.find(pat, p + 1);
        }
    }
}

bool startsWith(const std::string& t, const char* s) { return t.compare(0, std::strlen(s), s) == 0; }
bool endsWith(const std::string& t, const char* s)
{
    const std::size_t n = std::strlen(s);
    return t.size() >= n && t.compare(t.size() - n, n, s) == 0;
}

bool hasAdditiveAtTop(const std::string& t)
{
    int d = 0;
    for (std::size_t i = 0; i < t.size(); ++i) {
        const char c = t[i];
        if (c == '(')
            ++d;
        else if (c == ')')
            --d;
        else if (d == 0 && (c == '+' || c == '-') && i > 0 && isOperandEnd(static_cast<unsigned char>(t[i - 1])))
            return true;
    }
    return false;
}

void onePass(std::string& t)
{
    if (t == "(0)")
        t = "0";
    if (t == "X/X")
        t = "1";
    if (t == "(1-1)")
        t = "(0)";
    if (startsWith(t, "(-1)*"))
        t = "-" + t.substr(5);
    if (t == "(-1)*SIN(X)")
        t = "(-SIN(X))";
    replaceWhere(t, " ", "");
    replaceWhere(t, "-)", ")");

    // First table: a factor 1 or a summand 0 right behind a bracket or an operator.
    replaceWhere(t, "+1*", "+", [](const std::string& s, std::size_t p) {
        return p > 0 && isOperandEnd(static_cast<unsigned char>(s[p - 1])) && s.size() > p + 3;
    });
    replaceWhere(t, "(1*", "(", [](const std::string& s, std::size_t p) {
        return s.size() > p + 3 && s[p + 3] != '-' && s[p + 3] != '+';
    });
    replaceWhere(t, "-1*", "-", [](const std::string& s, std::size_t p) {
        if (p > 0 && (s[p - 1] == '^' || s[p - 1] == '/'))
            return false;
        if (s.size() <= p + 3 || s[p + 3] == '-' || s[p + 3] == '+')
            return false;
        return !signGrabsPower(s, p, p + 3);
    });
    replaceWhere(t, "(0+", "(", [](const std::string& s, std::size_t p) {
        return s.size() > p + 3 && s[p + 3] != '-' && s[p + 3] != '+';
    });
    replaceWhere(t, "*1*", "*");
    replaceWhere(t, "*1)", ")");
    replaceWhere(t, "/1)", ")");

    // Second table: exponents 1.
    static const char* const powOne[8][2] = {{"X^1)", "X)"}, {"X^1-", "X-"}, {"X^1+", "X+"}, {"X^1*", "X*"},
                                             {"X^1/", "X/"}, {")^1)", "))"}, {")^1+", ")+"}, {")^1-", ")-"}};
    for (const auto& r : powOne)
        replaceWhere(t, r[0], r[1]);

    replaceWhere(t, "(-1*", "(-", [](const std::string& s, std::size_t p) {
        return s.size() > p + 4 && s[p + 4] != '-' && s[p + 4] != '+' && !signGrabsPower(s, p + 1, p + 4);
    });
    if ((startsWith(t, "0*") || startsWith(t, "0/")) && !hasAdditiveAtTop(t))
        t = "0";
    for (std::size_t p = t.find("(0*"); p != std::string::npos; p = t.find("(0*", p + 1)) {
        int d = 0;
        std::size_t j = p + 3;
        for (; j < t.size(); ++j) {
            const char c = t[j];
            if (c == '(')
                ++d;
            else if (c == ')') {
                if (d == 0)
                    break;
                --d;
            } else if (d == 0 && (c == '+' || c == '-') && isOperandEnd(static_cast<unsigned char>(t[j - 1])))
                break;
        }
        t.erase(p + 2, j - (p + 2));
    }
    replaceWhere(t, "+-", "-", [](const std::string& s, std::size_t p) {
        return p > 0 && isOperandEnd(static_cast<unsigned char>(s[p - 1])) && !signGrabsPower(s, p + 1, p + 2);
    });
    replaceWhere(t, "++", "+");
    replaceWhere(t, "(+", "(");
    replaceWhere(t, "(0-", "(-", [](const std::string& s, std::size_t p) {
        if (s.size() <= p + 3 || s[p + 3] == '-' || s[p + 3] == '+')
            return false;
        std::string probe = s;
        probe.erase(p + 1, 1);
        return !signGrabsPower(probe, p + 1, p + 2);
    });
    replaceWhere(t, "--", "+", [](const std::string& s, std::size_t p) {
        return p > 0 && isOperandEnd(static_cast<unsigned char>(s[p - 1])) && !signGrabsPower(s, p + 1, p + 2);
    });
    replaceWhere(t, "/(X)", "/X");
    replaceWhere(t, "-(X)", "-X", [](const std::string& s, std::size_t p) {
        const bool unary = p == 0 || !isOperandEnd(static_cast<unsigned char>(s[p - 1]));
        return !(unary && p > 0 && s.size() > p + 4 && s[p + 4] == '^');
    });
    replaceWhere(t, "+(X)", "+X");
    replaceWhere(t, "*(X)", "*X");
    replaceWhere(t, "((X)", "(X");
    replaceWhere(t, "*1/", "/");
    replaceWhere(t, "()", "0");
    if (startsWith(t, "+"))
        t.erase(0, 1);
    if (endsWith(t, "+0") || endsWith(t, "*1") || endsWith(t, "-0"))
        t.erase(t.size() - 2);
    // A sign left at the head becomes a subtraction ("0-"): not if its factor is raised.
    const bool headSignRaised = t.size() > 2 && t[2] == '-' && factorEnd(t, 3) < t.size() && t[factorEnd(t, 3)] == '^';
    if (startsWith(t, "0+") && !headSignRaised)
        t.erase(0, 2);
    else if (startsWith(t, "1*") && !headSignRaised)
        t.erase(0, 2);
    else if (startsWith(t, "0-"))
        t.erase(0, 1);
    if (endsWith(t, "*"))
        t.pop_back();
    if (t == "(1/X)*X" || t == "X/(X)")
        t = "1";
    if (t == "1-1")
        t = "0";
}

bool singleFactor(const std::string& s)
{
    if (s.empty() || s[0] == '-' || s[0] == '+')
        return false;
    int d = 0;
    for (char c : s) {
        if (c == '(')
            ++d;
        else if (c == ')')
            --d;
        else if (d == 0 && std::strchr("+-*/^#&;<>%~\\|", c) && c != 0)
            return false;
    }
    return true;
}

void finalTouches(std::string& t)
{
    static const char* const heads[6] = {"^(", "+(", "-(", "*(", "/(", "(("};
    for (const char* h : heads) {
        for (std::size_t p = t.find(h); p != std::string::npos; p = t.find(h, p + 1)) {
            const std::size_t open = p + 1;
            const int close = matchingClose(t, open);
            if (close < 0)
                continue;
            const std::string inner = t.substr(open + 1, close - open - 1);
            if (!singleFactor(inner))
                continue;
            if (h[0] == '-' && close + 1 < static_cast<int>(t.size()) && t[close + 1] == '^' &&
                (p == 0 || !isOperandEnd(static_cast<unsigned char>(t[p - 1]))))
                continue;
            t.erase(close, 1);
            t.erase(open, 1);
        }
    }
    static const char* const literals[5] = {"(COS(X))", "(SIN(X))", "(ABS(X))", "(LN(X))", "(-SIN(X))"};
    for (const char* lit : literals) {
        const std::size_t n = std::strlen(lit);
        for (std::size_t p = t.find(lit); p != std::string::npos; p = t.find(lit, p + 1)) {
            if (p == 0 || std::strchr("()+-*/^", t[p - 1]) == nullptr)
                continue;
            if (lit[1] == '-' && p + n < t.size() && t[p + n] == '^')
                continue;
            t.erase(p + n - 1, 1);
            t.erase(p, 1);
        }
    }
    // Only where the minus subtracts or stands behind a bracket: behind ^, * or / it is a sign
    // of the whole bracket.
    replaceWhere(t, "-(X+1))", "-X-1)", [](const std::string& s, std::size_t p) {
        return p == 0 || s[p - 1] == '(' || isOperandEnd(static_cast<unsigned char>(s[p - 1]));
    });
    if (startsWith(t, "(-1)") && !(t.size() > 4 && t[4] == '^')) {
        t.erase(3, 1);
        t.erase(0, 1);
    } else if (startsWith(t, "((-1)") && !(t.size() > 5 && t[5] == '^')) {
        t.erase(4, 1);
        t.erase(1, 1);
    }
}

std::vector<std::string>& rewriteList()
{
    static std::vector<std::string> list;
    return list;
}

}  // namespace

void SimplifyTerm(std::string& text)
{
    for (int pass = 0; pass < 2; ++pass)
        onePass(text);
    finalTouches(text);
}

std::string DerivativeTermNice(const std::string& term, const std::vector<std::string>& rewrites)
{
    std::string t = DerivativeTerm(term);
    if (t.empty())
        return t;
    t = "<" + t + ">";
    for (int pass = 0; pass < 2; ++pass) {
        for (std::size_t i = 0; i + 1 < rewrites.size(); i += 2) {
            const std::string& pat = rewrites[i];
            if (pat.empty() || t.size() <= 1 || t.find(pat) == std::string::npos)
                continue;
            ReplaceAll(t, pat, rewrites[i + 1]);
        }
    }
    if (!t.empty() && t.front() == '<')
        t.erase(0, 1);
    if (!t.empty() && t.back() == '>')
        t.pop_back();
    return t;
}

std::string DerivativeTermNice(const std::string& term) { return DerivativeTermNice(term, rewriteList()); }

void SetTermRewriteList(std::vector<std::string> lines) { rewriteList() = std::move(lines); }

}  // namespace quorix
