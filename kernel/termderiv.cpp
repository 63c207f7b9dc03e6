// The derivative engine: parser from the outside in, the derivative table, the printer.
#include "kernel/termderiv.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <deque>
#include <string_view>

namespace quorix {

namespace {

constexpr double kPi = 3.14159265358979323846;

enum Kind : std::uint8_t {
    Number = 0, VarX = 1, VarP = 2, K1 = 3, K2 = 4, K3 = 5, K4 = 6, VarY = 7, VarQ = 8, Pi = 9,
    Plus = 11, Minus = 12, Times = 13, Divide = 14, Power = 15,
    Sqrt = 21, Ln = 22, Lg = 23, Exp = 24, Abs = 25, Sgn = 26, Int = 27, Ld = 28, PExp = 29,
    Sin = 31, Cos = 32, Tan = 33, Cot = 34,
    Sinh = 41, Cosh = 42, Tanh = 43, Coth = 44,
    ArcSin = 51, ArcCos = 52, ArcTan = 53, ArcCot = 54,
    ArSinh = 61, ArCosh = 62, ArTanh = 63, ArCoth = 64,
};

struct Node {
    Kind kind = Number;
    double number = 0;
    Node* left = nullptr;
    Node* right = nullptr;
    Node* arg = nullptr;
};

bool isBinary(const Node* n) { return n->kind >= Plus && n->kind <= Power; }

// All nodes of one run live here and go together at the end.
struct Arena {
    std::deque<Node> nodes;
    Node* num(double v)
    {
        nodes.push_back(Node{Number, v});
        return &nodes.back();
    }
    Node* leaf(Kind k)
    {
        nodes.push_back(Node{k});
        return &nodes.back();
    }
    Node* bin(Kind k, Node* l, Node* r)
    {
        nodes.push_back(Node{k, 0, l, r});
        return &nodes.back();
    }
    Node* un(Kind k, Node* a)
    {
        nodes.push_back(Node{k, 0, nullptr, nullptr, a});
        return &nodes.back();
    }
};

constexpr int kMaxParseDepth = 400;

struct Parser {
    Arena& arena;
    bool fault = false;
    int depth = 0;

    Node* fail()
    {
        fault = true;
        return nullptr;
    }

    // Index of the "(" that matches the ")" at `close`, or -1.
    static int openingOf(std::string_view s, int close)
    {
        int d = 0;
        for (int i = close; i >= 0; --i) {
            if (s[i] == ')')
                ++d;
            else if (s[i] == '(' && --d == 0)
                return i;
        }
        return -1;
    }

    Node* parse(std::string_view s)
    {
        if (fault || ++depth > kMaxParseDepth)
            return fail();
        Node* n = parseInner(s);
        --depth;
        return n;
    }

    Node* parseInner(std::string_view s)
    {
        const int n = static_cast<int>(s.size());
        if (n == 0)
            return fail();
        int d = 0;
        for (int i = n - 1; i >= 0; --i) {
            if (s[i] == ')')
                ++d;
            else if (s[i] == '(' && --d < 0)
                return fail();
        }
        if (d != 0)
            return fail();
        if (s[0] == '(' && s[n - 1] == ')' && openingOf(s, n - 1) == 0)
            return parse(s.substr(1, n - 2));
        static const char ops[5] = {'+', '-', '*', '/', '^'};
        static const Kind kinds[5] = {Plus, Minus, Times, Divide, Power};
        for (int k = 0; k < 5; ++k) {
            d = 0;
            for (int i = n - 1; i >= 0; --i) {
                const char c = s[i];
                if (c == ')')
                    ++d;
                else if (c == '(')
                    --d;
                else if (d == 0 && c == ops[k]) {
                    std::string_view l = s.substr(0, i), r = s.substr(i + 1);
                    if (r.empty())
                        return fail();
                    Node* left;
                    if (l.empty()) {
                        if (k > 1)
                            return fail();
                        left = arena.num(0);
                    } else {
                        left = parse(l);
                    }
                    Node* right = parse(r);
                    if (fault)
                        return nullptr;
                    return arena.bin(kinds[k], left, right);
                }
            }
        }
        if (s[n - 1] == ')') {
            const int open = openingOf(s, n - 1);
            const std::string_view name = s.substr(0, open);
            const Kind k = functionKind(name);
            if (fault)
                return nullptr;
            Node* a = parse(s.substr(open + 1, n - open - 2));
            return fault ? nullptr : arena.un(k, a);
        }
        return atom(s);
    }

    Kind functionKind(std::string_view name)
    {
        auto trig = [](std::string_view t) -> int {
            if (t == "SIN") return 0;
            if (t == "COS") return 1;
            if (t == "TAN") return 2;
            if (t == "COT") return 3;
            return -1;
        };
        switch (name.size()) {
        case 2:
            if (name == "LN") return Ln;
            if (name == "LG") return Lg;
            if (name == "LD") return Ld;
            break;
        case 3:
            if (trig(name) >= 0) return static_cast<Kind>(Sin + trig(name));
            if (name == "EXP") return Exp;
            if (name == "ABS") return Abs;
            if (name == "SGN") return Sgn;
            if (name == "INT") return Int;
            break;
        case 4:
            if (name[3] == 'H' && trig(name.substr(0, 3)) >= 0)
                return static_cast<Kind>(Sinh + trig(name.substr(0, 3)));
            if (name == "SQRT") return Sqrt;
            break;
        case 5:
            if (name[0] == 'E') return Exp;
            break;
        case 6:
            if (name[0] == 'W') return Sqrt;
            if (name.substr(0, 2) == "AR" && name[5] == 'H' && trig(name.substr(2, 3)) >= 0)
                return static_cast<Kind>(ArSinh + trig(name.substr(2, 3)));
            if (name.substr(0, 3) == "ARC" && trig(name.substr(3, 3)) >= 0)
                return static_cast<Kind>(ArcSin + trig(name.substr(3, 3)));
            break;
        default:
            break;
        }
        fault = true;
        return Number;
    }

    Node* atom(std::string_view s)
    {
        if (s == "Y")
            return arena.leaf(VarY);
        if (s == "\xC9")
            return arena.num(std::exp(1.0));
        if (s == "X")
            return arena.leaf(VarX);
        if (s.size() == 2 && s[0] == 'K' && s[1] >= '1' && s[1] <= '4')
            return arena.leaf(static_cast<Kind>(K1 + (s[1] - '1')));
        if (s == "PI")
            return arena.leaf(Pi);
        if (s[0] == 'P')
            return arena.leaf(VarP);
        if (s == "Q")
            return arena.leaf(VarQ);
        double v = 0;
        std::string buf(s);
        if (buf[0] == '.')
            buf.insert(buf.begin(), '0');
        auto res = std::from_chars(buf.data(), buf.data() + buf.size(), v, std::chars_format::general);
        if (res.ec != std::errc() || res.ptr != buf.data() + buf.size())
            return fail();
        return arena.num(v);
    }
};

struct Deriver {
    Arena& a;

    Node* d(Node* n)
    {
        switch (n->kind) {
        case Number: case VarP: case K1: case K2: case K3: case K4: case VarY: case VarQ: case Pi:
        case Sgn: case Int:
            return a.num(0);
        case VarX:
            return a.num(1);
        case Plus:
        case Minus:
            return a.bin(n->kind, d(n->left), d(n->right));
        case Times: {
            const bool cl = n->left->kind == Number, cr = n->right->kind == Number;
            if (cl && cr)
                return a.num(0);
            if (cl)
                return a.bin(Times, n->left, d(n->right));
            if (cr)
                return a.bin(Times, d(n->left), n->right);
            return a.bin(Plus, a.bin(Times, d(n->left), n->right), a.bin(Times, n->left, d(n->right)));
        }
        case Divide: {
            Node *u = n->left, *v = n->right;
            const bool cl = u->kind == Number, cr = v->kind == Number;
            if (cl && cr)
                return a.num(0);
            if (cl)
                return a.bin(Divide, a.bin(Times, a.num(-u->number), d(v)), a.bin(Power, v, a.num(2)));
            if (cr)
                return a.bin(Divide, d(u), v);
            return a.bin(Divide, a.bin(Minus, a.bin(Times, d(u), v), a.bin(Times, u, d(v))),
                         a.bin(Power, v, a.num(2)));
        }
        case Power: {
            Node *u = n->left, *v = n->right;
            const bool cl = u->kind == Number, cr = v->kind == Number;
            if (cl && cr)
                return a.num(0);
            if (cl)
                return a.bin(Times, d(v), a.bin(Times, a.un(Ln, u), a.bin(Power, u, v)));
            if (cr)
                return a.bin(Times, d(u), a.bin(Times, a.num(v->number), a.bin(Power, u, a.num(v->number - 1))));
            return a.bin(Times, a.bin(Power, u, v),
                         a.bin(Plus, a.bin(Times, d(v), a.un(Ln, u)), a.bin(Times, d(u), a.bin(Divide, v, u))));
        }
        default:
            break;
        }
        Node* u = n->arg;
        Node* du = d(u);
        auto chain = [&](Node* f) { return a.bin(Times, du, f); };
        auto square = [&](Node* x) { return a.bin(Power, x, a.num(2)); };
        switch (n->kind) {
        case Sqrt:
            return chain(a.bin(Divide, a.num(1), a.bin(Times, a.num(2), a.un(Sqrt, u))));
        case Ln:
            return chain(a.bin(Divide, a.num(1), u));
        case Lg:
            return chain(a.bin(Divide, a.num(1 / std::log(10.0)), u));
        case Ld:
            return chain(a.bin(Divide, a.num(1 / std::log(2.0)), u));
        case Exp:
            return chain(a.un(Exp, u));
        case PExp:
            return chain(a.bin(Times, a.un(Ln, a.leaf(VarP)), a.un(PExp, u)));
        case Abs:
            return chain(a.un(Sgn, u));
        case Sin:
            return chain(a.un(Cos, u));
        case Cos:
            return chain(a.bin(Times, a.num(-1), a.un(Sin, u)));
        case Tan:
            return chain(a.bin(Plus, a.num(1), square(a.un(Tan, u))));
        case Cot:
            return chain(a.bin(Minus, a.num(-1), square(a.un(Cot, u))));
        case Sinh:
            return chain(a.un(Cosh, u));
        case Cosh:
            return chain(a.un(Sinh, u));
        case Tanh:
            return chain(a.bin(Minus, a.num(1), square(a.un(Tanh, u))));
        case Coth:
            return chain(a.bin(Minus, a.num(1), square(a.un(Coth, u))));
        case ArcSin:
            return chain(a.bin(Divide, a.num(1), a.un(Sqrt, a.bin(Minus, a.num(1), square(u)))));
        case ArcCos:
            return chain(a.bin(Divide, a.num(-1), a.un(Sqrt, a.bin(Minus, a.num(1), square(u)))));
        case ArcTan:
            return chain(a.bin(Divide, a.num(1), a.bin(Plus, a.num(1), square(u))));
        case ArcCot:
            return chain(a.bin(Divide, a.num(-1), a.bin(Plus, a.num(1), square(u))));
        case ArSinh:
            return chain(a.bin(Divide, a.num(1), a.un(Sqrt, a.bin(Plus, a.num(1), square(u)))));
        case ArCosh:
            return chain(a.bin(Divide, a.num(1), a.un(Sqrt, a.bin(Plus, a.num(-1), square(u)))));
        case ArTanh:
        case ArCoth:
            return chain(a.bin(Divide, a.num(1), a.bin(Minus, a.num(1), square(u))));
        default:
            return a.num(0);
        }
    }
};

const char* functionName(Kind k)
{
    switch (k) {
    case Sqrt: return "SQRT";
    case Ln: return "LN";
    case Lg: return "LG";
    case Exp: return "EXP";
    case Abs: return "ABS";
    case Sgn: return "SGN";
    case Int: return "INT";
    case Ld: return "LD";
    case Sin: return "SIN";
    case Cos: return "COS";
    case Tan: return "TAN";
    case Cot: return "COT";
    case Sinh: return "SINH";
    case Cosh: return "COSH";
    case Tanh: return "TANH";
    case Coth: return "COTH";
    case ArcSin: return "ARCSIN";
    case ArcCos: return "ARCCOS";
    case ArcTan: return "ARCTAN";
    case ArcCot: return "ARCCOT";
    case ArSinh: return "ARSINH";
    case ArCosh: return "ARCOSH";
    case ArTanh: return "ARTANH";
    case ArCoth: return "ARCOTH";
    default: return "";
    }
}

// Brackets around a binary child: rows parent + - * / ^, columns child + - * / ^;
// 0 none, 1 left side only, 2 right side only, 3 both sides.
constexpr int kBrackets[5][5] = {
    {0, 0, 0, 0, 0},
    {2, 2, 0, 0, 0},
    {3, 3, 0, 1, 0},
    {3, 3, 2, 3, 0},
    {3, 3, 3, 3, 3},
};

std::string numberText(double v)
{
    if (v == kPi)
        return "\xE3";
    if (v == std::exp(1.0))
        return "\xC9";
    char buf[400];
    auto r = std::to_chars(buf, buf + sizeof buf, v, std::chars_format::fixed, 10);
    std::string s(buf, r.ptr);
    if (s.find('.') != std::string::npos) {
        while (s.size() > 1 && s.back() == '0')
            s.pop_back();
        if (s.size() > 1 && s.back() == '.')
            s.pop_back();
    }
    return s == "-0" ? "0" : s;
}

std::string wrap(const std::string& text, const Node* child, Kind parent, bool rightSide)
{
    if (!isBinary(child))
        return text;
    const int rule = kBrackets[parent - Plus][child->kind - Plus];
    const bool need = rule == 3 || (rule == 1 && !rightSide) || (rule == 2 && rightSide);
    return need ? "(" + text + ")" : text;
}

std::string print(const Node* n)
{
    switch (n->kind) {
    case Number: return numberText(n->number);
    case VarX: return "X";
    case VarP: return "P";
    case K1: return "K1";
    case K2: return "K2";
    case K3: return "K3";
    case K4: return "K4";
    case VarY: return "Y";
    case VarQ: return "Q";
    case Pi: return "PI";
    default: break;
    }
    if (!isBinary(n)) {
        if (n->kind == PExp)
            return "P^(" + print(n->arg) + ")";
        return std::string(functionName(n->kind)) + "(" + print(n->arg) + ")";
    }
    const std::string ls = print(n->left), rs = print(n->right);
    const Kind k = n->kind;
    if (k == Times && (ls == "0" || rs == "0"))
        return "0";
    if (k == Plus && ls == "0")
        return rs;
    if (k == Plus && rs == "0")
        return ls;
    if (k == Divide && ls == "0")
        return "0";
    if (ls == rs) {
        if (k == Plus && ls != "-SIN(X)")
            return "2*" + wrap(ls, n->left, Times, true);
        if (k == Minus)
            return "0";
        if (k == Divide)
            return "1";
        if (k == Times && ls != "1")
            return wrap(ls, n->left, Power, false) + "^2";
    }
    static const char opChar[5] = {'+', '-', '*', '/', '^'};
    return wrap(ls, n->left, k, false) + opChar[k - Plus] + wrap(rs, n->right, k, true);
}

// The last touch of DerivativeTerm: exponents 1 behind X go, and a trailing "^1".
void dropPowerOne(std::string& t)
{
    static const char* const table[4] = {"X^1)", "X^1+", "X^1-", "X^1*"};
    for (const char* p : table) {
        const std::string pat(p);
        for (std::size_t q = t.find(pat); q != std::string::npos; q = t.find(pat, q))
            t.erase(q + 1, 2);
    }
    if (t.size() > 2 && t.compare(t.size() - 2, 2, "^1") == 0 && t[t.size() - 3] != '^')
        t.erase(t.size() - 2);
}

}  // namespace

std::string DerivativeTerm(const std::string& term)
{
    std::string s;
    s.reserve(term.size() + 1);
    for (char c : term) {
        if (c == ' ')
            continue;
        s += c == ',' ? '.' : c;
    }
    if (s.empty())
        s = " ";
    if (s[0] == '-')
        s.insert(s.begin(), '0');
    Arena arena;
    Parser parser{arena};
    Node* tree = parser.parse(s);
    if (parser.fault || !tree)
        return std::string();
    Deriver deriver{arena};
    std::string text = print(deriver.d(tree));
    SimplifyTerm(text);
    dropPowerOne(text);
    return text;
}

}  // namespace quorix
