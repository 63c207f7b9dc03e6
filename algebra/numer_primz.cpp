// Prime lists and searches over a range, Goldbach sums and the 3a+1 sequence.
#include "algebra/numer_gross.h"
#include "algebra/numer_intern.h"

#include <algorithm>
#include <cmath>

namespace numer::intern {
namespace {
constexpr int64_t kSieb = 100000000;  // the list topics sieve up to here

bool bereich(Lauf& l, int64_t& a, int64_t& b)
{
    if (!l.ganz(0, 0, kSieb, a) || !l.ganz(1, 0, kSieb, b)) return false;
    if (b < a) std::swap(a, b);
    return true;
}

uint64_t umgekehrt(uint64_t p)
{
    uint64_t r = 0;
    for (; p; p /= 10) r = 10 * r + p % 10;
    return r;
}
}  // namespace

void primzahlen(Lauf& l)
{
    int64_t a, b;
    const int art = l.ein.option;
    if (art == 9) {  // the n-th prime
        int64_t n;
        if (!l.ganz(0, 1, 5000000, n)) return;
        const double s = n < 6 ? 15 : n * (std::log(n) + std::log(std::log(n)));
        const auto p = primzahlenBis(static_cast<uint64_t>(s));
        l.zeile(z(n) + ".Primzahl ist\t" + std::to_string(p[static_cast<size_t>(n - 1)]));
        return;
    }
    if (art == 10) {  // prime counting
        int64_t n;
        if (!l.ganz(0, 1, kSieb, n)) return;
        l.zeile("bis " + z(n) + " gibt es  \t" + std::to_string(primzahlenBis(static_cast<uint64_t>(n)).size()) +
                " Primzahlen");
        return;
    }
    if (!bereich(l, a, b)) return;
    const auto p = primzahlenBis(static_cast<uint64_t>(b) + 8);
    auto ist = [&](uint64_t n) { return std::binary_search(p.begin(), p.end(), n); };
    int anzahl = 0;
    std::string ende = " Einträge";
    for (size_t i = 0; i < p.size() && p[i] <= static_cast<uint64_t>(b); ++i) {
        if (i % 20000 == 0 && !l.weiter(static_cast<int>(100 * p[i] / (b + 1)))) return;
        const uint64_t q = p[i];
        if (q < static_cast<uint64_t>(a)) continue;
        std::string s;
        switch (art) {
        case 0: s = std::to_string(q); break;
        case 1: if (ist(q + 2)) s = std::to_string(q) + "\t" + std::to_string(q + 2), ende = " Paare"; break;
        case 2: if (ist(q + 4)) s = std::to_string(q) + "\t" + std::to_string(q + 4), ende = " Paare"; break;
        case 3: if (ist(q + 6)) s = std::to_string(q) + "\t" + std::to_string(q + 6), ende = " Paare"; break;
        case 4:
            if (ist(q + 2) && ist(q + 6) && ist(q + 8))
                s = std::to_string(q) + "\t" + std::to_string(q + 2) + "\t" + std::to_string(q + 6) + "\t" +
                    std::to_string(q + 8);
            break;
        case 5: {
            const uint64_t r = umgekehrt(q);
            if (r != q && istPrim(r)) s = std::to_string(q) + "\t" + std::to_string(r), ende = " Umkehrbare Primzahlen";
            break;
        }
        case 6: if (istPrim(2 * q + 1)) s = std::to_string(q) + "\t" + std::to_string(2 * q + 1); break;
        case 7:
            if (q % 4 == 1) {
                // Fermat: such a prime is a sum of two squares in one way
                for (uint64_t x = 1; 2 * x * x <= q; ++x) {
                    const uint64_t y = static_cast<uint64_t>(std::llround(std::sqrt(static_cast<double>(q - x * x))));
                    if (y * y + x * x == q) s = std::to_string(q) + "\t= " + std::to_string(x) + "² + " + std::to_string(y) + "²";
                }
            }
            break;
        case 8: {
            // good prime: p_n² > p_(n-i)·p_(n+i) for all 1 <= i < n
            if (i == 0) break;
            bool gut = true;
            for (size_t k = 1; k <= i && gut; ++k) {
                if (i + k >= p.size()) { gut = false; break; }
                gut = static_cast<unsigned __int128>(q) * q > static_cast<unsigned __int128>(p[i - k]) * p[i + k];
            }
            if (gut) s = std::to_string(q), ende = " Gute Primzahlen";
            break;
        }
        default: break;
        }
        if (!s.empty()) {
            l.zeile(s);
            ++anzahl;
        }
    }
    l.schluss(std::to_string(anzahl) + ende);
}

void distanz(Lauf& l)
{
    int64_t a, b, m;
    if (!bereich(l, a, b) || !l.ganz(2, 1, 1000, m)) return;
    const auto p = primzahlenBis(static_cast<uint64_t>(b));
    int anzahl = 0;
    for (size_t i = 1; i < p.size(); ++i)
        if (p[i - 1] >= static_cast<uint64_t>(a) && p[i] - p[i - 1] == static_cast<uint64_t>(m)) {
            l.zeile(std::to_string(p[i - 1]) + "\t" + std::to_string(p[i]));
            ++anzahl;
        }
    l.schluss(std::to_string(anzahl) + " Paare");
}

void tupel(Lauf& l)
{
    int64_t a, b;
    if (!bereich(l, a, b)) return;
    // the pattern: offsets from the first prime, e.g. "0 2 6 8"
    std::vector<uint64_t> muster;
    std::string t = l.feld(2);
    for (char& c : t) if (c == ',' || c == ';') c = ' ';
    size_t pos = 0;
    while (pos < t.size()) {
        size_t e = t.find(' ', pos);
        if (e == std::string::npos) e = t.size();
        if (e > pos) {
            int64_t v;
            if (!leseGanz(t.substr(pos, e - pos), 0, 1000, v)) return l.fehler("Muster ungültig");
            muster.push_back(static_cast<uint64_t>(v));
        }
        pos = e + 1;
    }
    if (muster.empty()) return l.fehler("Muster ungültig");
    int anzahl = 0;
    for (uint64_t q : primzahlenBis(static_cast<uint64_t>(b))) {
        if (q < static_cast<uint64_t>(a)) continue;
        if (!std::all_of(muster.begin(), muster.end(), [q](uint64_t d) { return istPrim(q + d); })) continue;
        std::string s;
        for (uint64_t d : muster) s += (s.empty() ? "" : "\t") + std::to_string(q + d);
        l.zeile(s);
        ++anzahl;
    }
    l.schluss(anzahl ? std::to_string(anzahl) + "  Tupel gefunden" : std::string(" kein Tupel gefunden"));
}

void cunningham(Lauf& l)
{
    int64_t bis, laenge;
    if (!l.ganz(0, 2, 10000000, bis) || !l.ganz(1, 2, 20, laenge)) return;
    const int art = l.ein.option == 0 ? 1 : -1;  // 2p+1 or 2p-1
    int anzahl = 0;
    for (uint64_t q : primzahlenBis(static_cast<uint64_t>(bis))) {
        // only the first member of a chain
        if ((q - art) % 2 == 0 && istPrim((q - art) / 2)) continue;
        std::string s = std::to_string(q);
        int k = 1;
        for (uint64_t x = 2 * q + art; istPrim(x); x = 2 * x + art, ++k) s += "\t" + std::to_string(x);
        if (k >= laenge) {
            l.zeile(s);
            ++anzahl;
        }
    }
    l.schluss(std::to_string(anzahl) + " Cunnigham-Reihen " + (art == 1 ? "1.Art" : "2.Art"));
}

void goldbach(Lauf& l)
{
    int64_t a, b;
    if (!l.ganz(0, 4, kSieb, a) || !l.ganz(1, 4, kSieb, b)) return;
    if (b < a) std::swap(a, b);
    if (b - a > 20000) b = a + 20000;
    a += a % 2;
    const bool alle = l.ein.option == 1;
    for (int64_t n = a; n <= b; n += 2) {
        if (!l.weiter(static_cast<int>(100 * (n - a) / (b - a + 1)))) return;
        bool gefunden = false;
        for (int64_t p = 2; 2 * p <= n; ++p) {
            if (!istPrim(static_cast<uint64_t>(p)) || !istPrim(static_cast<uint64_t>(n - p))) continue;
            l.zeile(z(n) + " = " + z(p) + " + " + z(n - p));
            gefunden = true;
            if (!alle) break;
        }
        if (!gefunden) l.zeile(z(n) + "\texistiert nicht");
    }
}

void collatz(Lauf& l)
{
    const std::string t = l.feld(0);
    if (t.empty() || t.size() > 2000 || !std::all_of(t.begin(), t.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return l.fehler("Zahl eingeben");
    Gross a(t), eins(1), zwei(2), drei(3), max = a;
    if (a.null()) return l.fehler("Zahl eingeben");
    double reziprok = 0;
    int64_t schritt = 0;
    int64_t gerade = 0, ungerade = 0;
    while (!(a == eins)) {
        if (schritt % 1000 == 0 && !l.weiter(static_cast<int>(schritt / 1000 % 100))) return;
        ++schritt;
        if (numbers::mp_iseven(a.m())) {
            a = a / zwei;
            ++gerade;
            l.zeile(z(schritt) + "\t" + a.text() + "\t");
        } else {
            const std::string at = a.text();
            if (at.size() < 300) reziprok += 1.0 / std::stod(at);
            a = a * drei + eins;
            ++ungerade;
            l.zeile(z(schritt) + "\t\t" + a.text());
        }
        if (max < a) max = a;
    }
    reziprok += 1.0;  // the final 1 is odd too
    l.schluss("gerade Glieder\t\t" + z(gerade));
    l.schluss("ungerade Glieder\t" + z(ungerade));
    l.schluss("Maximum\t" + max.text());
    l.schluss("Summe der reziproken ungeraden Glieder = " + zahl(reziprok, 8));
}

}  // namespace numer::intern
