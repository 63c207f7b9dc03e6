// Fractions: common fraction, decimal (or base-p) expansion with its period, continued fraction.
#include "algebra/algebraseiten.h"

#include "kernel/numeric.h"
#include "kernel/realtostr.h"

#include <cctype>
#include <cmath>
#include <cstdint>
#include <map>

namespace algebra {

namespace {

using i64 = std::int64_t;
constexpr i64 kGrenze = 1000000000000000LL;  // 10^15 keeps every product in 128 bits and exact
constexpr int kMaxPeriode = 20000;

const char* kZiffern = "0123456789ABCDEF";

bool ganz(const std::string& t, i64& v)
{
    if (t.empty() || t.size() > 16) return false;
    size_t i = 0;
    bool neg = false;
    if (t[0] == '-' || t[0] == '+') {
        neg = t[0] == '-';
        i = 1;
    }
    if (i >= t.size()) return false;
    v = 0;
    for (; i < t.size(); ++i) {
        if (!std::isdigit(static_cast<unsigned char>(t[i]))) return false;
        v = v * 10 + (t[i] - '0');
    }
    if (neg) v = -v;
    return true;
}

i64 ggt(i64 a, i64 b)
{
    a = a < 0 ? -a : a;
    b = b < 0 ? -b : b;
    while (b) {
        const i64 r = a % b;
        a = b;
        b = r;
    }
    return a;
}

// "3/4", "-7/12", "0.125", "0,1(6)", "2.(142857)", "5": the exact fraction, reduced.
bool leseBruch(std::string t, i64& z, i64& n, std::string& fehler)
{
    std::string s;
    for (char c : t)
        if (c != ' ') s += c == ',' ? '.' : c;
    const size_t strich = s.find('/');
    if (strich != std::string::npos) {
        if (!ganz(s.substr(0, strich), z) || !ganz(s.substr(strich + 1), n)) {
            fehler = "Bruch bitte als ganze Zahlen Z/N eingeben, z.B. 3/7.";
            return false;
        }
        if (n == 0) {
            fehler = "Der Nenner darf nicht 0 sein.";
            return false;
        }
    } else {
        bool neg = false;
        if (!s.empty() && (s[0] == '-' || s[0] == '+')) {
            neg = s[0] == '-';
            s.erase(0, 1);
        }
        const size_t punkt = s.find('.');
        std::string vor = punkt == std::string::npos ? s : s.substr(0, punkt);
        std::string nach = punkt == std::string::npos ? "" : s.substr(punkt + 1);
        std::string periode;
        const size_t auf = nach.find('(');
        if (auf != std::string::npos) {
            if (nach.back() != ')') {
                fehler = "Die Periode steht in Klammern, z.B. 0,1(6).";
                return false;
            }
            periode = nach.substr(auf + 1, nach.size() - auf - 2);
            nach = nach.substr(0, auf);
            if (periode.empty()) {
                fehler = "Die Periode ist leer.";
                return false;
            }
        }
        if (vor.empty()) vor = "0";
        i64 a, b = 0, c = 0;
        if (!ganz(vor, a) || (!nach.empty() && !ganz(nach, b)) || (!periode.empty() && !ganz(periode, c)) ||
            nach.size() + periode.size() > 15 || nach.find('-') != std::string::npos) {
            fehler = "Keine Umwandlung möglich";
            return false;
        }
        i64 p10 = 1;
        for (size_t i = 0; i < nach.size(); ++i) p10 *= 10;
        if (periode.empty()) {
            z = a * p10 + b;
            n = p10;
        } else {
            // x = a + b/10^k + c/(10^k (10^m - 1))
            i64 q = 1;
            for (size_t i = 0; i < periode.size(); ++i) q *= 10;
            --q;
            n = p10 * q;
            z = (a * p10 + b) * q + c;
        }
        if (neg) z = -z;
    }
    if (n < 0) {
        n = -n;
        z = -z;
    }
    const i64 g = ggt(z, n);
    z /= g ? g : 1;
    n /= g ? g : 1;
    if (std::llabs(z) > kGrenze || n > kGrenze) {
        fehler = "Umwandlung nicht möglich";
        return false;
    }
    return true;
}

}  // namespace

Ergebnis bruchSeite(const std::vector<std::string>& f)
{
    if (f.size() != 2) return eingabefehler("Die Umwandlung braucht die Zahl und die Basis.");
    i64 z, n;
    std::string fehler;
    if (!leseBruch(f[0], z, n, fehler)) return eingabefehler(fehler);
    double bd = 10;
    if (f[1].find_first_not_of(' ') != std::string::npos &&
        (!leseZahl(f[1], bd) || bd != std::floor(bd) || bd < 2 || bd > 16))
        return eingabefehler("Die Basis muss eine ganze Zahl von 2 bis 16 sein.");
    const int basis = static_cast<int>(bd);
    Ergebnis e;
    e.zeilen.push_back("Bruch = " + std::to_string(z) + " / " + std::to_string(n));
    // Long division in the base: a remainder seen before closes the period.
    const bool neg = z < 0;
    const i64 za = neg ? -z : z;
    i64 ganzteil = za / n, rest = za % n;
    std::string vorne;
    for (i64 g = ganzteil; ; g /= basis) {
        vorne.insert(vorne.begin(), kZiffern[g % basis]);
        if (g < basis) break;
    }
    std::map<i64, int> gesehen;
    std::string ziffern;
    int start = -1;
    while (rest != 0 && static_cast<int>(ziffern.size()) <= kMaxPeriode + 50) {
        const auto it = gesehen.find(rest);
        if (it != gesehen.end()) {
            start = it->second;
            break;
        }
        gesehen[rest] = static_cast<int>(ziffern.size());
        const __int128 r = static_cast<__int128>(rest) * basis;
        ziffern += kZiffern[static_cast<int>(r / n)];
        rest = static_cast<i64>(r % n);
    }
    const std::string name = basis == 10 ? "Dezimalbruch = " : "Darstellung zur Basis " + std::to_string(basis) + " = ";
    const std::string komma = basis == 10 && !kernel::UseDecimalComma ? "." : ",";
    std::string text = (neg ? "-" : "") + vorne;
    if (rest == 0) {
        if (!ziffern.empty()) text += komma + ziffern;
        e.zeilen.push_back(name + text);
        e.zeilen.push_back("endlicher Bruch, keine Periode");
    } else if (start < 0) {
        e.zeilen.push_back(name + text + komma + ziffern.substr(0, 60) + "...");
        e.zeilen.push_back("Periodenlänge ? > 20000");
    } else {
        const std::string periode = ziffern.substr(start);
        text += komma + ziffern.substr(0, start) + "(" + (periode.size() > 60 ? periode.substr(0, 60) + "..." : periode) + ")";
        e.zeilen.push_back(name + text);
        e.zeilen.push_back("Periode = " + (periode.size() > 60 ? periode.substr(0, 60) + "..." : periode));
        e.zeilen.push_back("Periodenlänge " + std::to_string(periode.size()));
        if (start > 0) e.zeilen.push_back("Vorperiodenlänge " + std::to_string(start));
    }
    // Continued fraction by Euclid's algorithm on the exact fraction.
    std::string kb = "Kettenbruch = [";
    i64 a = z, b = n;
    bool erstes = true;
    while (b != 0) {
        i64 q = a / b;
        if (a % b != 0 && (a < 0) != (b < 0)) --q;  // floor, also for negatives
        const i64 r = a - q * b;
        kb += std::to_string(q) + (erstes ? "; " : ", ");
        erstes = false;
        a = b;
        b = r;
    }
    kb.resize(kb.size() - 2);
    e.zeilen.push_back(kb + "]");
    e.ok = true;
    return e;
}

}  // namespace algebra
