// Three sets and an expression in them: evaluated region by region of the Venn diagram.
#include "algebra/algebraseiten.h"

#include <algorithm>

namespace algebra {

namespace {

// Recursive descent; a value is the set of regions (bit r: the pattern r of A=1, B=2, C=4).
class MengenLeser {
public:
    explicit MengenLeser(const std::string& t) : t_(t) {}
    bool lies(unsigned& regionen)
    {
        ok_ = true;
        regionen = vereinigung();
        if (sieh() != '\0') ok_ = false;
        return ok_;
    }

private:
    char sieh()
    {
        while (pos_ < t_.size() && t_[pos_] == ' ') ++pos_;
        return pos_ < t_.size() ? t_[pos_] : '\0';
    }
    unsigned vereinigung()
    {
        unsigned l = schnitt();
        for (char c = sieh(); c == '+' || c == '|' || c == '-' || c == '\\'; c = sieh()) {
            ++pos_;
            const unsigned r = schnitt();
            l = (c == '+' || c == '|') ? (l | r) : (l & ~r);
        }
        return l;
    }
    unsigned schnitt()
    {
        unsigned l = einfach();
        while (sieh() == '*' || sieh() == '&') {
            ++pos_;
            l &= einfach();
        }
        return l;
    }
    unsigned einfach()
    {
        const char c = sieh();
        unsigned v = 0;
        if (c == '(') {
            ++pos_;
            v = vereinigung();
            if (sieh() != ')') ok_ = false;
            else ++pos_;
        } else if (c == 'A' || c == 'B' || c == 'C' || c == 'a' || c == 'b' || c == 'c') {
            ++pos_;
            const unsigned bit = 1u << ((c | 0x20) - 'a');
            for (unsigned r = 0; r < 8; ++r)
                if (r & bit) v |= 1u << r;
        } else {
            ok_ = false;
            return 0;
        }
        // a trailing apostrophe is the complement within A ∪ B ∪ C
        while (sieh() == '\'') {
            ++pos_;
            v = ~v & 0xFE;
        }
        return v;
    }

    std::string t_;
    size_t pos_ = 0;
    bool ok_ = true;
};

std::string mengeText(const std::vector<std::string>& m)
{
    std::string s = "{";
    for (size_t i = 0; i < m.size(); ++i) s += (i ? "; " : "") + m[i];
    return s + "}";
}

}  // namespace

bool mengenBereiche(const std::string& ausdruck, unsigned& regionen)
{
    MengenLeser l(ausdruck);
    return l.lies(regionen) && ausdruck.find_first_not_of(' ') != std::string::npos;
}

Ergebnis mengenSeite(const std::vector<std::string>& f)
{
    if (f.size() != 4) return eingabefehler("Die Mengen brauchen A, B, C und die Verknüpfung.");
    std::vector<std::string> mengen[3];
    std::vector<std::string> alle;
    for (int i = 0; i < 3; ++i) {
        for (const auto& t : teile(f[i]))
            if (std::find(mengen[i].begin(), mengen[i].end(), t) == mengen[i].end()) mengen[i].push_back(t);
        for (const auto& t : mengen[i])
            if (std::find(alle.begin(), alle.end(), t) == alle.end()) alle.push_back(t);
    }
    unsigned regionen;
    if (!mengenBereiche(f[3], regionen))
        return eingabefehler("Verknüpfung z.B. (A+B)*C' mit + Vereinigung, * Schnitt, - Differenz, ' Komplement, Klammern.");
    Ergebnis e;
    const char* namen[] = {"A", "B", "C"};
    for (int i = 0; i < 3; ++i) e.zeilen.push_back(std::string(namen[i]) + " = " + mengeText(mengen[i]));
    std::vector<std::string> ergebnis;
    for (const auto& x : alle) {
        unsigned r = 0;
        for (int i = 0; i < 3; ++i)
            if (std::find(mengen[i].begin(), mengen[i].end(), x) != mengen[i].end()) r |= 1u << i;
        if ((regionen >> r) & 1u) ergebnis.push_back(x);
    }
    e.zeilen.push_back(f[3] + " = " + mengeText(ergebnis));
    e.zeilen.push_back("Anzahl der Elemente = " + std::to_string(ergebnis.size()));
    e.ok = true;
    return e;
}

}  // namespace algebra
