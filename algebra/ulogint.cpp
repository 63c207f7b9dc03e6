#include "algebra/ulogint.h"

#include "algebra/algebraseiten.h"

namespace algebra {

struct Aussage::Knoten {
    char op = 0;  // 'v' variable, 'c' constant, or the operator character
    int index = 0;  // variable number or constant value
    std::shared_ptr<Knoten> l, r;
};

namespace {

using Ptr = std::shared_ptr<Aussage::Knoten>;

}  // namespace

// A recursive-descent reader; the levels follow the operator list above.
class Leser {
public:
    explicit Leser(const std::string& t) : t_(t) {}
    std::string fehler;
    unsigned variablen = 0;

    std::shared_ptr<Aussage::Knoten> ganz()
    {
        auto k = aequivalenz();
        if (k && pos_ < t_.size()) return fehl("Unerwartetes Zeichen \"" + std::string(1, t_[pos_]) + "\"");
        return k;
    }

private:
    using K = Aussage::Knoten;
    std::shared_ptr<K> fehl(const std::string& text)
    {
        if (fehler.empty()) fehler = text;
        return nullptr;
    }
    char sieh()
    {
        while (pos_ < t_.size() && t_[pos_] == ' ') ++pos_;
        return pos_ < t_.size() ? t_[pos_] : '\0';
    }
    static std::shared_ptr<K> knoten(char op, std::shared_ptr<K> l, std::shared_ptr<K> r)
    {
        auto k = std::make_shared<K>();
        k->op = op;
        k->l = std::move(l);
        k->r = std::move(r);
        return k;
    }
    std::shared_ptr<K> aequivalenz()
    {
        auto l = implikation();
        while (l && sieh() == '=') {
            ++pos_;
            auto r = implikation();
            if (!r) return nullptr;
            l = knoten('=', l, r);
        }
        return l;
    }
    std::shared_ptr<K> implikation()
    {
        auto l = oder();
        if (l && sieh() == '>') {
            ++pos_;
            auto r = implikation();
            if (!r) return nullptr;
            return knoten('>', l, r);
        }
        return l;
    }
    std::shared_ptr<K> oder()
    {
        auto l = und();
        for (char c = sieh(); l && (c == '*' || c == '|' || c == '#' || c == '/'); c = sieh()) {
            ++pos_;
            auto r = und();
            if (!r) return nullptr;
            l = knoten(c == '|' ? '*' : c, l, r);
        }
        return l;
    }
    std::shared_ptr<K> und()
    {
        auto l = nicht();
        for (char c = sieh(); l && (c == '+' || c == '&' || c == '\\'); c = sieh()) {
            ++pos_;
            auto r = nicht();
            if (!r) return nullptr;
            l = knoten(c == '&' ? '+' : c, l, r);
        }
        return l;
    }
    std::shared_ptr<K> nicht()
    {
        const char c = sieh();
        if (c == '-') {
            ++pos_;
            auto k = nicht();
            return k ? knoten('-', k, nullptr) : nullptr;
        }
        if (c == '(') {
            ++pos_;
            auto k = aequivalenz();
            if (!k) return nullptr;
            if (sieh() != ')') return fehl("Schließende Klammer fehlt");
            ++pos_;
            return k;
        }
        if (c == '0' || c == '1') {
            ++pos_;
            auto k = knoten('c', nullptr, nullptr);
            k->index = c - '0';
            return k;
        }
        const char g = static_cast<char>(c >= 'a' && c <= 'h' ? c - 32 : c);
        if (g >= 'A' && g <= 'H') {
            ++pos_;
            auto k = knoten('v', nullptr, nullptr);
            k->index = g - 'A';
            variablen |= 1u << k->index;
            return k;
        }
        if (c == '\0') return fehl("Die Aussage ist unvollständig");
        return fehl("Unerwartetes Zeichen \"" + std::string(1, c) + "\"");
    }

    std::string t_;
    size_t pos_ = 0;
};

bool Aussage::lies(const std::string& text, std::string& fehler)
{
    Leser l(text);
    auto k = l.ganz();
    if (text.find_first_not_of(' ') == std::string::npos) {
        fehler = "Bitte eine Aussage eingeben.";
        return false;
    }
    if (!k) {
        fehler = l.fehler + ".";
        return false;
    }
    wurzel_ = k;
    variablen_ = l.variablen;
    return true;
}

namespace {

bool rechne(const Aussage::Knoten& k, unsigned b)
{
    switch (k.op) {
    case 'v': return (b >> k.index) & 1u;
    case 'c': return k.index != 0;
    case '-': return !rechne(*k.l, b);
    default: break;
    }
    const bool x = rechne(*k.l, b), y = rechne(*k.r, b);
    switch (k.op) {
    case '+': return x && y;
    case '\\': return !(x && y);
    case '*': return x || y;
    case '/': return !(x || y);
    case '#': return x != y;
    case '>': return !x || y;
    default: return x == y;  // '='
    }
}

std::vector<int> liste(unsigned menge)
{
    std::vector<int> v;
    for (int i = 0; i < 8; ++i)
        if ((menge >> i) & 1u) v.push_back(i);
    return v;
}

// The assignments in the usual school order: the first row has every variable true.
std::vector<unsigned> belegungen(unsigned menge)
{
    const auto v = liste(menge);
    std::vector<unsigned> r;
    const unsigned zeilen = 1u << v.size();
    for (unsigned z = 0; z < zeilen; ++z) {
        unsigned b = 0;
        for (size_t i = 0; i < v.size(); ++i)
            if (!((z >> (v.size() - 1 - i)) & 1u)) b |= 1u << v[i];
        r.push_back(b);
    }
    return r;
}

}  // namespace

bool Aussage::wert(unsigned belegung) const { return wurzel_ && rechne(*wurzel_, belegung); }

std::string disjunktiveNormalform(const Aussage& a)
{
    const auto v = liste(a.variablen());
    std::string s;
    size_t wahr = 0;
    const auto alle = belegungen(a.variablen());
    for (unsigned b : alle) {
        if (!a.wert(b)) continue;
        ++wahr;
        std::string term;
        for (int i : v) {
            if (!term.empty()) term += " & ";
            if (!((b >> i) & 1u)) term += "-";
            term += static_cast<char>('A' + i);
        }
        if (!s.empty()) s += " | ";
        s += v.size() > 1 ? "(" + term + ")" : term;
    }
    if (wahr == 0) return "0";
    if (wahr == alle.size()) return "1";
    return s;
}

std::vector<std::string> wahrheitstafel(const Aussage& a)
{
    const auto v = liste(a.variablen());
    std::vector<std::string> z;
    std::string kopf;
    for (int i : v) kopf += std::string("\t") + static_cast<char>('A' + i);
    z.push_back(kopf + "\tWert");
    size_t wahr = 0;
    const auto alle = belegungen(a.variablen());
    for (unsigned b : alle) {
        std::string zeile;
        for (int i : v) zeile += (b >> i) & 1u ? "\t1" : "\t0";
        const bool w = a.wert(b);
        wahr += w;
        z.push_back(zeile + (w ? "\t1" : "\t0"));
    }
    z.push_back("");
    z.push_back("Disjunktive Normalform:");
    z.push_back(disjunktiveNormalform(a));
    if (wahr == alle.size()) z.push_back("Die Aussage ist eine Tautologie (immer wahr).");
    else if (wahr == 0) z.push_back("Die Aussage ist eine Kontradiktion (immer falsch).");
    else z.push_back("Die Aussage ist erfüllbar, aber keine Tautologie.");
    return z;
}

Ergebnis logikSeite(const std::vector<std::string>& f)
{
    if (f.size() != 1) return eingabefehler("Die Aussagenlogik braucht genau eine Aussage.");
    Aussage a;
    std::string fehler;
    if (!a.lies(f[0], fehler)) return eingabefehler(fehler);
    Ergebnis e;
    e.zeilen = wahrheitstafel(a);
    e.ok = true;
    return e;
}

}  // namespace algebra
