// The walk of the real term interpreter: normalisation, primaries, priority climbing, operators.
// There is no compiled form: every call walks the normalised text from its first character.
// What is kept between calls is only what the text alone decides (the normalised text, the
// value of a number literal, the identity of a call name), so every result is the same as that
// of a fresh walk, and a repeated evaluation of the same term allocates nothing.
#include "kernel/term.h"
#include "kernel/termintern.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <vector>

namespace quorix {

unsigned char TermError = 0;
double TermParamP = 0;
double TermParamQ = 0;
double TermParamR = 0;
std::array<std::string, 5> TermFunctionSlots;
bool TermRangeGuardOn = false;
double TermRangeLow = -1000000;
double TermRangeHigh = 1000000;
double TermClamp = 10000000000.0;

using termintern::Fn;

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kMaxSlotDepth = 32;       // F1..F5 calling each other; beyond that: syntax error
constexpr int kMaxBracketDepth = 1000;  // keeps absurd nesting off the machine stack
constexpr long kMaxSlotCalls = 10000;  // F1..F5 calls within one outer call: "F1(X)+F1(X)" in F1
long g_slotCalls = 0;

const double kConstants[7] = {2.506628274631, 0.3183098861837907, 9.869604401089358, 1.772453850906,
                              0.367879441171, 7.38905609893, 1.6487212707};

// What the text alone decides at a position where a primary starts.
struct Memo {
    std::int32_t next = 0;  // position after the number, or after the "(" of a call
    std::uint8_t kind = 0;  // 0 not yet seen, 1 number, 2 bad number, 3 call
    Fn fn = Fn::None;
    double value = 0;
};

struct CacheEntry {
    std::string source;
    std::string norm;
    std::string text;  // norm with three NULs behind it
    std::vector<Memo> memo;
    bool valid = false;
};

// Two entries per F-slot depth: a nested call never evicts the text its caller is walking, and
// two terms used in turn (two curves, or EvalTermMode's "EXP(X)") both stay normalised.
struct CacheLevel {
    CacheEntry entry[2];
    int last = 0;
};
CacheLevel g_cache[kMaxSlotDepth + 1];

bool holds(const CacheEntry& e, const char* term, int length)
{
    return e.valid && static_cast<int>(e.source.size()) == length && std::memcmp(e.source.data(), term, length) == 0;
}

void normalise(CacheEntry& e)
{
    std::string& s = e.norm;
    s = e.source;
    for (char& c : s)
        if (c == ',')
            c = '.';
    if (s.size() > 1) {
        // Blanks go while more than one character is left.
        std::size_t w = 0;
        std::size_t left = s.size();
        for (std::size_t r = 0; r < s.size(); ++r) {
            if (s[r] == ' ' && left > 1) {
                --left;
                continue;
            }
            s[w++] = s[r];
        }
        s.resize(w);
    }
    if (!s.empty() && (s[0] == '-' || s[0] == '+'))
        s.insert(s.begin(), '0');
    // A sign binds tighter than ^; only this one spelling is mended inside the term.
    for (std::size_t p = s.find("(-X^"); p != std::string::npos; p = s.find("(-X^", p))
        s.insert(p + 1, 1, '0');
    e.text = s;
    e.text.append(3, '\0');
    e.memo.assign(s.size() + 4, Memo{});
    e.valid = true;
}

// Operator priorities by character; -1 marks a character that is no operator.
struct PriorityTable {
    signed char p[256];
    constexpr PriorityTable() : p{}
    {
        for (int i = 0; i < 256; ++i)
            p[i] = -1;
        for (unsigned char c : {'+', '-', '#', '&', ';', '<', '>'})
            p[c] = 1;
        for (unsigned char c : {'*', '/', '%', '~'})
            p[c] = 2;
        p[0xB7] = 2;
        p['^'] = p['\\'] = 3;
        p[')'] = p[']'] = p['|'] = 0;
    }
};
constexpr PriorityTable kPriority;

inline int priorityOf(unsigned char c) { return kPriority.p[c]; }

bool isNumberChar(unsigned char c) { return (c >= '0' && c <= '9') || c == '.' || c == 0xE9; }

// The platform's decimal conversion of a run of digits, "." and the exponent letter "é". It
// runs once per literal and term (the result is kept), so a string buffer costs nothing later.
bool convertNumber(const char* p, int n, double& v)
{
    std::string buf;
    buf.reserve(n + 1);
    int digits = 0, dots = 0, exps = 0, expDigits = 0;
    for (int i = 0; i < n; ++i) {
        const unsigned char c = static_cast<unsigned char>(p[i]);
        if (c == 0xE9) {
            if (exps++ || digits == 0)
                return false;
            buf += 'e';
        } else {
            if (c == '.' && (dots++ || exps))
                return false;
            if (c != '.')
                (exps ? expDigits : digits)++;
            buf += static_cast<char>(c);
        }
    }
    if (digits == 0 || (exps && expDigits == 0))
        return false;
    if (buf[0] == '.')  // from_chars wants a digit first
        buf.insert(buf.begin(), '0');
    const char* b = buf.data();
    const char* e = b + buf.size();
    auto res = std::from_chars(b, e, v, std::chars_format::general);
    if (res.ec == std::errc::result_out_of_range) {
        v = std::strtod(b, nullptr);  // overflow to infinity, underflow to 0, as the FPU would
        return true;
    }
    return res.ec == std::errc() && res.ptr == e;
}

double power(double a, double b, bool root);
double binomial(double a, double b);

struct Walker {
    const char* s;
    int len;
    int pos = 1;  // 1-based, as the rules are told
    double x;
    int depth;  // F-slot depth
    Memo* memo;
    unsigned char nop = 0;  // operator just read
    int nprio = 0;
    int brackets = 0;

    // The text is followed by NUL characters (see evalTermAt), so a look-ahead of up to three
    // places behind the end reads 0 without a bound test.
    unsigned char at(int p) const { return static_cast<unsigned char>(s[p - 1]); }

    // The last character of the term is never read as an operator.
    [[gnu::always_inline]] void readOp()
    {
        if (pos < len) {
            nop = static_cast<unsigned char>(s[pos - 1]);
            ++pos;
            nprio = priorityOf(nop);
            if (nprio < 0) {
                TermError = 1;
                nprio = 0;
            }
        } else {
            nop = 0;
            nprio = 0;
        }
    }

    // Priority climbing. The rules are told recursively (a signed factor, a combiner that saves
    // the operator being applied on a stack); this is the same walk with the stack of saved
    // records kept here: equal priorities group to the left, so the stack only ever holds
    // rising priorities, three at most, and operands and operators are taken in the same order.
    double expression()
    {
        double values[4];
        unsigned char ops[4];
        int prios[4];
        int n = 0;
        double v = signedPrimary();
        readOp();
        for (;;) {
            while (n > 0 && prios[n - 1] >= nprio) {
                --n;
                v = apply(ops[n], values[n], v);
            }
            if (nprio == 0)
                return v;
            values[n] = v;
            ops[n] = nop;
            prios[n] = nprio;
            ++n;
            v = signedPrimary();
            readOp();
        }
    }

    // A single "-" is applied to the primary at once: inside a term -X^2 is (-X)^2.
    [[gnu::always_inline]] double signedPrimary()
    {
        if (at(pos) == '-') {
            ++pos;
            return -primary();
        }
        return primary();
    }

    [[gnu::noinline]] double nested()
    {
        if (++brackets > kMaxBracketDepth) {
            TermError = 1;
            --brackets;
            return 0;
        }
        ++pos;
        double v = expression();
        --brackets;
        return v;
    }

    [[gnu::always_inline]] double number()
    {
        Memo& m = memo[pos];
        if (m.kind == 0) {
            int e = pos;
            while (e <= len && isNumberChar(at(e)))
                ++e;
            double v = 0;
            bool ok = convertNumber(s + pos - 1, e - pos, v);
            m.kind = ok ? 1 : 2;
            m.value = ok ? v : 0;
            m.next = e;
        }
        pos = m.next;
        if (m.kind == 2)
            TermError = 1;
        return m.value;
    }

    [[gnu::noinline]] double call()
    {
        Memo& m = memo[pos];
        if (m.kind == 0) {
            const char* open = static_cast<const char*>(std::memchr(s + pos - 1, '(', len - pos + 1));
            int nameLen = open ? static_cast<int>(open - (s + pos - 1)) : len - pos + 1;
            m.kind = 3;
            m.fn = termintern::lookupFunction(s + pos - 1, nameLen);
            m.next = open ? pos + nameLen + 1 : len + 1;
        }
        pos = m.next;
        const Fn fn = m.fn;
        if (++brackets > kMaxBracketDepth) {
            TermError = 1;
            --brackets;
            return 0;
        }
        double a = expression();
        --brackets;
        if (fn == Fn::None) {
            TermError = 1;
            return 0;
        }
        return termintern::applyFunction(fn, a, x, depth);
    }

    [[gnu::always_inline]] double primary()
    {
        const unsigned char c = at(pos);
        // The common primaries first, as plain tests: far cheaper than a mispredicted jump table.
        if (c == 'X') {
            ++pos;
            return x;
        }
        if ((c >= '0' && c <= '9') || c == '.')
            return number();
        if (c == '(')
            return nested();
        switch (c) {
        case '0': case '1': case '2': case '3': case '4': case '5': case '6': case '7': case '8':
        case '9': case '.':
            return number();
        case 'X':
            ++pos;
            return x;
        case 'Q':
            ++pos;
            return TermParamQ;
        case 'R':
            ++pos;
            return TermParamR;
        case 'P':
            if (pos < len && at(pos + 1) == 'I') {
                pos += 2;
                return kPi;
            }
            if (pos < len && at(pos + 1) == 'H' && at(pos + 2) == 'I') {
                pos += 3;
                return (std::sqrt(5.0) + 1) / 2;
            }
            ++pos;
            return TermParamP;
        case 'K': {
            const unsigned char d = at(pos + 1);
            pos += 2;
            if (d >= '0' && d <= '9')
                return d <= '6' ? kConstants[d - '0'] : 0;
            return kConstants[0];
        }
        case 0xC9:  // É
            ++pos;
            return std::exp(1.0);
        case '(':
            return nested();
        case '|':
            return std::fabs(nested());
        case '[': {
            double v = nested();
            return v >= 0 ? std::trunc(v) : std::trunc(v - 1);
        }
        case 'A': case 'B': case 'C': case 'D': case 'E': case 'F': case 'G': case 'H': case 'I':
        case 'J': case 'L': case 'M': case 'N': case 'O': case 'S': case 'T': case 'V': case 'W':
            return call();
        default:
            // Left in place: the operator reader meets it next and ends the walk.
            TermError = 1;
            return 0;
        }
    }

    double apply(unsigned char o, double a, double b)
    {
        if (o == '+')
            return a + b;
        if (o == '-')
            return a - b;
        if (o == '*' && std::fabs(a) < TermClamp && std::fabs(b) < TermClamp)
            return a * b;
        if (o == '/' && b != 0)
            return a / b;
        switch (o) {
        case '+':
            return a + b;
        case '-':
            return a - b;
        case '#':
            if (a * b < 0) {
                TermError = 2;
                return 0;
            }
            return std::sqrt(a * b);
        case '&':
            return (a + b) / 2;
        case ';':
            TermParamP = b;
            return a;
        case '<':
            return a < b ? a : b;
        case '>':
            return a > b ? a : b;
        case '*':
        case 0xB7:
            if (std::fabs(a) >= TermClamp || std::fabs(b) >= TermClamp) {
                TermError = 2;
                return TermClamp;
            }
            return a * b;
        case '/':
            if (b == 0) {
                TermError = 2;
                return TermClamp;
            }
            return a / b;
        case '%': {
            const double ra = std::nearbyint(a), rb = std::nearbyint(b);
            // Beyond 64 bits the integer conversion has no value: treat it like a zero divisor.
            if (!(std::fabs(ra) < 9.0e18) || !(std::fabs(rb) < 9.0e18) || rb == 0) {
                TermError = 2;
                return TermClamp;
            }
            return static_cast<double>(static_cast<long long>(ra) % static_cast<long long>(rb));
        }
        case '~':
            return binomial(a, b);
        case '^':
            return power(a, b, false);
        case '\\':
            return power(a, b, true);
        default:
            return a;
        }
    }
};

double negativeBase(double a, double b)
{
    if (a == 0 && b == 0)
        return 1;
    if (a > 0) {
        if (std::fabs(std::log(a) * b) > 16) {
            TermError = 2;
            return 0;
        }
        return std::exp(b * std::log(a));
    }
    if (b != std::trunc(b)) {
        TermError = 2;
        return 0;
    }
    if (a == 0)
        return 0;
    const double l = std::log(std::fabs(a)) * b;
    if (!(std::fabs(l) <= 15)) {
        TermError = 2;
        return 0;
    }
    const double r = std::exp(l);
    return std::fmod(b, 2.0) != 0 ? -r : r;
}

double power(double a, double b, bool root)
{
    if (root) {
        if (b == 0) {
            TermError = 2;
            return 0;
        }
        b = 1 / b;
    }
    if (TermError > 1) {
        TermError = 2;
        return 0;
    }
    if (b == 0)
        return 1;
    if (b == 1)
        return a;
    if (b == 2)
        return a * a;
    if (b == 3)
        return a * a * a;
    if (b == 4) {
        const double q = a * a;
        return q * q;
    }
    if (b > 4 && std::fabs(b) < 2147483647.0 && b == std::trunc(b)) {
        const long n = static_cast<long>(b);
        // The rule multiplies factor by factor; past a million factors (where only |a| close to
        // 1 has not yet hit the clamp or 0) the same outcome is taken from pow.
        constexpr long kSteps = 1000000;
        double p = 1;
        const long steps = n < kSteps ? n : kSteps;
        for (long i = 0; i < steps; ++i) {
            p *= a;
            if (p > TermClamp) {
                TermError = 4;
                return TermClamp;
            }
            if (p == 0)
                return 0;
        }
        if (n == steps)
            return p;
        const double m = std::fabs(a);
        const double even = std::pow(m, static_cast<double>(n % 2 == 0 ? n : n - 1));
        if ((a > 0 && std::pow(m, static_cast<double>(n)) > TermClamp) || (a < 0 && even > TermClamp)) {
            TermError = 4;
            return TermClamp;
        }
        return std::pow(a, static_cast<double>(n));
    }
    if (a == 0)
        return 0;
    const double limit = root ? 15 : 16;
    if (!(std::fabs(std::log(std::fabs(a)) * b) <= limit)) {
        TermError = 2;
        return 0;
    }
    if (a < 0)
        return negativeBase(a, b);
    return std::exp(b * std::log(a));
}

double binomial(double a, double b)
{
    // Ten million steps bound the loop where b is too large to count down.
    constexpr long kMaxSteps = 10000000;
    double r = 1;
    long steps = 0;
    do {
        if (b == 0)
            TermError = 2;
        else
            r = r * a / b;
        if (r > TermClamp)
            TermError = 2;
        a -= 1;
        b -= 1;
        if (++steps > kMaxSteps) {
            TermError = 2;
            break;
        }
        if (r == 0 && std::isfinite(a))  // stays 0 to the end
            break;
    } while (!(b <= 0 || TermError != 0));
    return TermError == 0 ? r : TermClamp;
}

}  // namespace

namespace termintern {

double evalTermAt(const char* term, int length, double x, int depth)
{
    if (TermRangeGuardOn) {
        if (x < TermRangeLow) {
            TermError = 1;
            return 0;
        }
        if (x > TermRangeHigh) {
            TermError = 3;
            return 0;
        }
    }
    if (length == 0) {
        TermError = 1;
        return 0;
    }
    if (depth == 0)
        g_slotCalls = 0;
    else if (++g_slotCalls > kMaxSlotCalls) {
        TermError = 1;
        return 0;
    }
    if (depth > kMaxSlotDepth) {  // F1 calling itself: stop instead of exhausting the stack
        TermError = 1;
        return 0;
    }
    CacheLevel& level = g_cache[depth];
    int k = level.last;
    if (!holds(level.entry[k], term, length)) {
        k = 1 - k;
        if (!holds(level.entry[k], term, length)) {
            level.entry[k].source.assign(term, length);
            normalise(level.entry[k]);
        }
        level.last = k;
    }
    CacheEntry& e = level.entry[k];
    TermError = 0;
    Walker w{e.text.data(), static_cast<int>(e.norm.size()), 1, x, depth, e.memo.data()};
    double v = w.expression();
    if (v > TermClamp) {
        v = TermClamp;
        TermError = 4;
    }
    return v;
}

}  // namespace termintern

double EvalTerm(const std::string& term, double x)
{
    return termintern::evalTermAt(term.data(), static_cast<int>(term.size()), x, 0);
}

double EvalTermMode(const std::string& term, unsigned char mode, double x)
{
    if (mode == 1 || mode == 3)
        x = EvalTerm("EXP(X)", x);
    double v = EvalTerm(term, x);
    if (mode == 2 || mode == 3) {
        if (TermError != 0 || !(v > 0)) {
            TermError = 2;
            return 0;
        }
        v = std::log(v);
    }
    return v;
}

double ReadTermValue(const std::string& text)
{
    std::string t = text;
    for (char& c : t) {
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
        else if (c == ',')
            c = '.';
    }
    TermError = 0;
    double v = EvalTerm(t, 1.0);
    return TermError != 0 ? 0 : v;
}

void ReplaceTermVariable(int slot, char letter)
{
    if (slot < 1 || slot > 5)
        return;
    for (char& c : TermFunctionSlots[slot - 1])
        if (c == letter)
            c = 'X';
}

void ReplaceTermVariableBack(int slot, char letter)
{
    if (slot < 1 || slot > 5)
        return;
    std::string& t = TermFunctionSlots[slot - 1];
    for (char& c : t)
        if (c == 'X')
            c = letter;
    for (std::size_t p = t.find("EKP"); p != std::string::npos; p = t.find("EKP", p))
        t[p + 1] = 'X';
}

void ReplaceAll(std::string& s, const std::string& from, const std::string& to)
{
    if (s.size() >= 256 || from.empty())
        return;
    if (to.find(from) != std::string::npos) {  // repeating would never end: one pass only
        std::string out;
        std::size_t p = 0;
        for (std::size_t q; (q = s.find(from, p)) != std::string::npos; p = q + from.size())
            out.append(s, p, q - p).append(to);
        s = out.append(s, p, std::string::npos);
        return;
    }
    // A replacement may build a new match; the count bounds pairs that would grow forever.
    int count = 0;
    for (std::size_t p = s.find(from); p != std::string::npos && count < 100000; p = s.find(from), ++count)
        s.replace(p, from.size(), to);
}

}  // namespace quorix
