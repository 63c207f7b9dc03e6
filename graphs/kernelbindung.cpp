// INTERIM adapter. The kernel's term interpreter and number text are being written beside
// this folder; until they land, a small private evaluator stands in here. It knows the usual
// school terms (+ - * / ^, brackets, X P Q, PI, SQR SQRT ABS EXP LN LG SIN COS TAN ARCTAN
// SGN INT F1..F5) and the shared error codes. When the kernel is there, point the functions
// of this file at EvalTerm, EvalTermMode, ReadTermValue, DerivativeTerm, RealToStr and
// RealToStrDot, and delete the private evaluator.
#include "graphs/kernelbindung.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <memory>
#include <numbers>
#include <unordered_map>
#include <vector>

namespace graphs {

namespace {

constexpr double kGross = 10000000000.0;  // the magnitude that stands for "too large"

// Parsed once per term text, evaluated per point: the plotter calls it once per pixel column.
struct Knoten {
    enum Art { Zahl, VarX, VarP, VarQ, Plus, Minus, Mal, Durch, Hoch, Neg, Fkt, Fehler } art = Zahl;
    double zahl = 0;
    int fkt = 0;
    int links = -1, rechts = -1;
};

enum Fkt { fSQR, fSQRT, fABS, fEXP, fLN, fLG, fSIN, fCOS, fTAN, fARCTAN, fSGN, fINT, fF1 };

struct Baum {
    std::vector<Knoten> knoten;
    int wurzel = -1;
};

class Leser {
public:
    Leser(const std::string& s, Baum& b) : s_(s), b_(b) {}
    int ausdruck()
    {
        int l = produkt();
        while (pos_ < s_.size() && (s_[pos_] == '+' || s_[pos_] == '-')) {
            const char op = s_[pos_++];
            l = neu(op == '+' ? Knoten::Plus : Knoten::Minus, l, produkt());
        }
        return l;
    }
    bool fertig() const { return pos_ >= s_.size(); }

private:
    int neu(Knoten::Art a, int l = -1, int r = -1, double z = 0, int f = 0)
    {
        Knoten k;
        k.art = a;
        k.links = l;
        k.rechts = r;
        k.zahl = z;
        k.fkt = f;
        b_.knoten.push_back(k);
        return static_cast<int>(b_.knoten.size()) - 1;
    }
    int produkt()
    {
        int l = potenz();
        while (pos_ < s_.size() && (s_[pos_] == '*' || s_[pos_] == '/')) {
            const char op = s_[pos_++];
            l = neu(op == '*' ? Knoten::Mal : Knoten::Durch, l, potenz());
        }
        return l;
    }
    // Powers group to the left and a sign binds tighter than "^", as in the kernel's language.
    int potenz()
    {
        int l = vorzeichen();
        while (pos_ < s_.size() && s_[pos_] == '^') {
            ++pos_;
            l = neu(Knoten::Hoch, l, vorzeichen());
        }
        return l;
    }
    int vorzeichen()
    {
        if (pos_ < s_.size() && s_[pos_] == '-') {
            ++pos_;
            return neu(Knoten::Neg, primaer());
        }
        return primaer();
    }
    int primaer()
    {
        if (pos_ >= s_.size())
            return neu(Knoten::Fehler);
        const char c = s_[pos_];
        if (std::isdigit(static_cast<unsigned char>(c)) || c == '.') {
            size_t e = pos_;
            while (e < s_.size() && (std::isdigit(static_cast<unsigned char>(s_[e])) || s_[e] == '.'))
                ++e;
            const double z = std::strtod(s_.substr(pos_, e - pos_).c_str(), nullptr);
            pos_ = e;
            return neu(Knoten::Zahl, -1, -1, z);
        }
        if (c == '(') {
            ++pos_;
            const int k = ausdruck();
            if (pos_ < s_.size() && s_[pos_] == ')')
                ++pos_;
            return k;
        }
        if (c == '|') {
            ++pos_;
            const int k = ausdruck();
            if (pos_ < s_.size() && s_[pos_] == '|')
                ++pos_;
            return neu(Knoten::Fkt, k, -1, 0, fABS);
        }
        if (c == 'X') { ++pos_; return neu(Knoten::VarX); }
        if (c == 'Q') { ++pos_; return neu(Knoten::VarQ); }
        if (s_.compare(pos_, 2, "PI") == 0) {
            pos_ += 2;
            return neu(Knoten::Zahl, -1, -1, std::numbers::pi);
        }
        if (c == 'P') { ++pos_; return neu(Knoten::VarP); }
        static const std::pair<const char*, int> namen[] = {
            {"SQRT", fSQRT}, {"SQR", fSQR}, {"ABS", fABS}, {"EXP", fEXP}, {"LN", fLN}, {"LG", fLG},
            {"SIN", fSIN}, {"COS", fCOS}, {"TAN", fTAN}, {"ARCTAN", fARCTAN}, {"SGN", fSGN},
            {"INT", fINT}, {"F1", fF1}, {"F2", fF1 + 1}, {"F3", fF1 + 2}, {"F4", fF1 + 3}, {"F5", fF1 + 4}};
        const size_t klammer = s_.find('(', pos_);
        if (klammer != std::string::npos) {
            const std::string name = s_.substr(pos_, klammer - pos_);
            for (const auto& [n, f] : namen)
                if (name == n) {
                    pos_ = klammer + 1;
                    const int arg = ausdruck();
                    if (pos_ < s_.size() && s_[pos_] == ')')
                        ++pos_;
                    return neu(Knoten::Fkt, arg, -1, 0, f);
                }
        }
        pos_ = s_.size();
        return neu(Knoten::Fehler);
    }

    const std::string& s_;
    Baum& b_;
    size_t pos_ = 0;
};

class InterimAuswerter : public TermAuswerter {
public:
    double wert(const std::string& term, double x, int& termError) override
    {
        termError = tfKeiner;
        const Baum& b = baum(term);
        if (b.wurzel < 0) {
            termError = tfSyntax;
            return 0;
        }
        double v = rechne(b, b.wurzel, x, termError, 0);
        if (std::isnan(v)) {
            termError = tfDefinition;
            v = 0;
        }
        if (v > kGross) {
            v = kGross;
            termError = tfGekappt;
        }
        return v;
    }
    void setzeParameter(double p, double q) override { p_ = p; q_ = q; }
    double parameterP() const override { return p_; }
    double parameterQ() const override { return q_; }
    void setzeFunktion(int slot, const std::string& term) override
    {
        if (slot >= 1 && slot <= 5)
            slots_[slot - 1] = term;
    }
    std::string funktion(int slot) const override
    {
        return slot >= 1 && slot <= 5 ? slots_[slot - 1] : std::string();
    }

private:
    const Baum& baum(const std::string& term)
    {
        auto it = cache_.find(term);
        if (it != cache_.end())
            return *it->second;
        if (cache_.size() > 500)
            cache_.clear();
        auto b = std::make_unique<Baum>();
        std::string s;
        for (char c : term)
            if (c != ' ')
                s += c == ',' ? '.' : c;
        if (!s.empty() && (s[0] == '-' || s[0] == '+'))
            s.insert(s.begin(), '0');
        if (!s.empty()) {
            Leser l(s, *b);
            b->wurzel = l.ausdruck();
            // Anything left over is a syntax fault.
            if (!l.fertig())
                b->wurzel = -1;
        }
        return *cache_.emplace(term, std::move(b)).first->second;
    }

    double rechne(const Baum& b, int i, double x, int& e, int tiefe)
    {
        const Knoten& k = b.knoten[static_cast<size_t>(i)];
        auto L = [&] { return rechne(b, k.links, x, e, tiefe); };
        auto R = [&] { return rechne(b, k.rechts, x, e, tiefe); };
        switch (k.art) {
        case Knoten::Zahl: return k.zahl;
        case Knoten::VarX: return x;
        case Knoten::VarP: return p_;
        case Knoten::VarQ: return q_;
        case Knoten::Plus: return L() + R();
        case Knoten::Minus: return L() - R();
        case Knoten::Neg: return -L();
        case Knoten::Mal: {
            const double a = L(), c = R();
            if (std::fabs(a) >= kGross || std::fabs(c) >= kGross) {
                e = tfDefinition;
                return kGross;
            }
            return a * c;
        }
        case Knoten::Durch: {
            const double a = L(), c = R();
            if (c == 0) {
                e = tfDefinition;
                return kGross;
            }
            return a / c;
        }
        case Knoten::Hoch: return hoch(L(), R(), e);
        case Knoten::Fehler: e = tfSyntax; return 0;
        case Knoten::Fkt: {
            const double a = L();
            return funktionswert(k.fkt, a, e, tiefe);
        }
        }
        return 0;
    }

    static double definitionsfehler(int& e)
    {
        e = tfDefinition;
        return 0;
    }

    static double hoch(double a, double c, int& e)
    {
        if (e > tfSyntax)
            return definitionsfehler(e);
        if (c == 0) return 1;
        if (c == 1) return a;
        if (c == 2) return a * a;
        if (c == 3) return a * a * a;
        if (a == 0) return 0;
        if (c == std::floor(c) && std::fabs(c) < 2147483647) {
            const double r = std::pow(a, c);
            if (std::fabs(r) > kGross) {
                e = tfGekappt;
                return kGross;
            }
            return r;
        }
        if (a < 0 || std::fabs(std::log(std::fabs(a)) * c) > 16)
            return definitionsfehler(e);
        return std::exp(c * std::log(a));
    }

    double funktionswert(int f, double a, int& e, int tiefe)
    {
        switch (f) {
        case fSQR: return std::fabs(a) < kGross ? a * a : kGross;
        case fSQRT: return a < 0 ? definitionsfehler(e) : std::sqrt(a);
        case fABS: return std::fabs(a);
        case fEXP: return std::exp(std::clamp(a, -100.0, 100.0));
        case fLN: return a > 0 ? std::log(a) : definitionsfehler(e);
        case fLG: return a > 0 ? std::log10(a) : definitionsfehler(e);
        case fSIN: return std::sin(a);
        case fCOS: return std::cos(a);
        case fTAN: return std::cos(a) == 0 ? 0 : std::tan(a);
        case fARCTAN: return std::atan(a);
        case fSGN: e = tfKeiner; return a == 0 ? 0 : a / std::fabs(a);
        case fINT: e = tfSprung; return a >= 0 ? std::trunc(a) : std::trunc(a - 1);
        default: {
            const int slot = f - fF1;
            if (tiefe > 8)
                return definitionsfehler(e);
            int e2 = 0;
            const Baum& b = baum(slots_[static_cast<size_t>(slot)]);
            if (b.wurzel < 0) {
                e = tfSyntax;
                return 0;
            }
            const double v = rechne(b, b.wurzel, a, e2, tiefe + 1);
            e = e2;  // a nested slot call overwrites the code, as in the kernel
            return v;
        }
        }
    }

    double p_ = 1, q_ = 1;
    std::string slots_[5];
    std::unordered_map<std::string, std::unique_ptr<Baum>> cache_;
};

bool dezimalkomma = false;

std::string text(int breite, int stellen, double x, bool komma)
{
    char buf[64];
    std::snprintf(buf, sizeof buf, "%*.*f", breite, stellen, x);
    std::string s = buf;
    while (!s.empty() && s.front() == ' ')
        s.erase(s.begin());
    if (stellen > 0 && s.find('.') != std::string::npos) {
        while (s.size() >= 2 && s.back() == '0')
            s.pop_back();
        while (s.size() > 1 && s.back() == '.')
            s.pop_back();
    }
    if (s == "-0")
        s = "0";
    if (komma) {
        const size_t p = s.find('.');
        if (p != std::string::npos)
            s[p] = ',';
    }
    return s;
}

}  // namespace

double TermAuswerter::wertModus(const std::string& term, int modus, double x, int& termError)
{
    if (modus == 1 || modus == 3)
        x = std::exp(std::clamp(x, -100.0, 100.0));
    double v = wert(term, x, termError);
    if (modus >= 2) {
        if (termError != tfKeiner || v <= 0) {
            termError = tfDefinition;
            return 0;
        }
        v = std::log(v);
    }
    return v;
}

double TermAuswerter::feldwert(const std::string& text)
{
    std::string t;
    for (char c : text)
        t += c == ',' ? '.' : static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    int e = 0;
    const double v = wert(t, 1.0, e);
    return e != tfKeiner ? 0 : v;
}

TermAuswerter& termAuswerter()
{
    static InterimAuswerter a;
    return a;
}

std::string zahlText(int breite, int stellen, double x) { return text(breite, stellen, x, dezimalkomma); }
std::string zahlTextPunkt(int breite, int stellen, double x) { return text(breite, stellen, x, false); }
void setzeDezimalkomma(bool an) { dezimalkomma = an; }

int pixelRunden(double v)
{
    if (!(v > -100000))
        return -100000;
    if (v > 100000)
        return 100000;
    return static_cast<int>(std::lround(v));
}

}  // namespace graphs
