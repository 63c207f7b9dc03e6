// Number theory on machine words: primality, factorization, divisors, periods.
#include "algebra/numer_intern.h"

#include <algorithm>
#include <cmath>
#include <climits>
#include <numeric>

namespace numer {

namespace {
using u128 = unsigned __int128;

uint64_t mulmod(uint64_t a, uint64_t b, uint64_t m) { return static_cast<uint64_t>(u128(a) * b % m); }

uint64_t powmod(uint64_t b, uint64_t e, uint64_t m)
{
    uint64_t r = 1 % m;
    b %= m;
    for (; e; e >>= 1, b = mulmod(b, b, m))
        if (e & 1) r = mulmod(r, b, m);
    return r;
}

bool starkPseudoprim(uint64_t n, uint64_t a)
{
    uint64_t d = n - 1;
    int s = 0;
    while (!(d & 1)) d >>= 1, ++s;
    uint64_t x = powmod(a, d, n);
    if (x == 1 || x == n - 1) return true;
    for (int i = 1; i < s; ++i) {
        x = mulmod(x, x, n);
        if (x == n - 1) return true;
    }
    return false;
}

uint64_t rho(uint64_t n)
{
    if (n % 2 == 0) return 2;
    for (uint64_t c = 1;; ++c) {
        uint64_t x = 2, y = 2, d = 1;
        auto f = [&](uint64_t v) { return (mulmod(v, v, n) + c) % n; };
        while (d == 1) {
            x = f(x);
            y = f(f(y));
            d = std::gcd(x > y ? x - y : y - x, n);
        }
        if (d != n) return d;
    }
}

void sammle(uint64_t n, std::vector<uint64_t>& p)
{
    if (n == 1) return;
    if (istPrim(n)) {
        p.push_back(n);
        return;
    }
    const uint64_t d = rho(n);
    sammle(d, p);
    sammle(n / d, p);
}
}  // namespace

bool istPrim(uint64_t n)
{
    if (n < 2) return false;
    for (uint64_t p : {2, 3, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37}) {
        if (n % p == 0) return n == p;
    }
    // these twelve bases decide every 64-bit number
    for (uint64_t a : {2, 3, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37})
        if (!starkPseudoprim(n, a)) return false;
    return true;
}

std::vector<std::pair<uint64_t, int>> zerlege(uint64_t n)
{
    std::vector<uint64_t> p;
    for (uint64_t d = 2; d < 1000 && d * d <= n; ++d)
        while (n % d == 0) p.push_back(d), n /= d;
    sammle(n, p);
    std::sort(p.begin(), p.end());
    std::vector<std::pair<uint64_t, int>> r;
    for (uint64_t q : p) {
        if (!r.empty() && r.back().first == q)
            ++r.back().second;
        else
            r.push_back({q, 1});
    }
    return r;
}

std::string zerlegungText(uint64_t n)
{
    if (n < 2) return std::to_string(n);
    std::string s;
    for (auto [p, e] : zerlege(n)) {
        if (!s.empty()) s += " · ";
        s += std::to_string(p);
        if (e > 1) s += "^" + std::to_string(e);
    }
    return s;
}

uint64_t teilersumme(uint64_t n)
{
    if (n == 0) return 0;
    uint64_t s = 1;
    for (auto [p, e] : zerlege(n)) {
        uint64_t t = 1, q = 1;
        for (int i = 0; i < e; ++i) q *= p, t += q;
        s *= t;
    }
    return s;
}

uint64_t eulerPhi(uint64_t n)
{
    if (n == 0) return 0;
    uint64_t r = n;
    for (auto [p, e] : zerlege(n)) r = r / p * (p - 1);
    return r;
}

std::vector<uint64_t> primzahlenBis(uint64_t n)
{
    std::vector<uint64_t> r;
    if (n < 2) return r;
    std::vector<bool> zusammen(n + 1, false);
    for (uint64_t i = 2; i <= n; ++i) {
        if (zusammen[i]) continue;
        r.push_back(i);
        for (uint64_t j = i * i; j <= n; j += i) zusammen[j] = true;
    }
    return r;
}

namespace intern {
namespace {
std::vector<uint64_t> alleTeiler(uint64_t n)
{
    std::vector<uint64_t> t{1};
    for (auto [p, e] : zerlege(n)) {
        const size_t k = t.size();
        uint64_t q = 1;
        for (int i = 0; i < e; ++i) {
            q *= p;
            for (size_t j = 0; j < k; ++j) t.push_back(t[j] * q);
        }
    }
    std::sort(t.begin(), t.end());
    return t;
}

constexpr int64_t kGrenze = 1000000000000000000LL;  // 10^18: sums of divisors stay in 64 bit

std::string art(uint64_t n)
{
    const uint64_t s = teilersumme(n) - n;
    return s == n ? "vollkommen" : s < n ? "defizient" : "abundant";
}
}  // namespace

void teiler(Lauf& l)
{
    int64_t n;
    if (!l.ganz(0, 1, kGrenze, n)) return;
    const auto t = alleTeiler(static_cast<uint64_t>(n));
    if (t.size() > 100000) return l.fehler("\tZahl zu groß");
    l.zeile("Teiler und Komplementärteiler der Zahl " + z(n));
    uint64_t summe = 0;
    for (size_t i = 0; i < t.size(); ++i) {
        summe += t[i];
        if (t[i] * t[i] <= static_cast<uint64_t>(n)) l.zeile(std::to_string(t[i]) + "\t" + std::to_string(n / t[i]));
    }
    l.zeile("Teilerzahl\t" + std::to_string(t.size()));
    l.zeile("Teilersumme\t" + std::to_string(summe));
    l.zeile("echte Teilersumme\t" + std::to_string(summe - n));
}

void eigenschaften(Lauf& l)
{
    int64_t n;
    if (!l.ganz(0, 2, kGrenze, n)) return;
    const uint64_t u = static_cast<uint64_t>(n);
    if (istPrim(u))
        l.zeile(z(n) + " ist Primzahl");
    else {
        uint64_t a = u - 1, b = u + 1;
        while (!istPrim(a)) --a;
        while (!istPrim(b)) ++b;
        l.zeile(z(n) + " liegt zwischen den Primzahlen\t" + std::to_string(a) + "\t" + std::to_string(b));
        l.zeile("Zerlegung\t" + zerlegungText(u));
    }
    l.zeile("Phi(" + z(n) + ")\t\t" + std::to_string(eulerPhi(u)));
    l.zeile("Teilerzahl\t\t" + std::to_string(alleTeiler(u).size()));
    l.zeile("Teilersumme\t\t" + std::to_string(teilersumme(u)));
    l.zeile(z(n) + " ist\t\t" + art(u));
    const uint64_t w = static_cast<uint64_t>(std::sqrt(static_cast<double>(u)));
    for (uint64_t r = w > 0 ? w - 1 : 0; r <= w + 1; ++r)
        if (r * r == u) l.zeile(z(n) + " ist Quadratzahl\t\t" + std::to_string(r) + "²");
}

void untersuchung(Lauf& l)
{
    int64_t n;
    if (!l.ganz(0, 1, kGrenze, n)) return;
    const uint64_t u = static_cast<uint64_t>(n);
    l.zeile("Zahl z\t" + z(n));
    l.zeile("Zerlegung z =\t" + zerlegungText(u));
    l.zeile("phi(z) =\t" + std::to_string(eulerPhi(u)));
    l.zeile("Wurzel z\t" + zahl(std::sqrt(static_cast<double>(u)), 10));
    // 1/z: the factors 2 and 5 give the preperiod, the rest the period
    uint64_t m = u;
    int a = 0, b = 0;
    while (m % 2 == 0) m /= 2, ++a;
    while (m % 5 == 0) m /= 5, ++b;
    const int vor = std::max(a, b);
    if (m == 1) {
        l.zeile("Periodenlänge\t0 (abbrechender Dezimalbruch)");
    } else {
        uint64_t r = 10 % m;
        int64_t k = 1;
        while (r != 1 && k < 250000) r = mulmod(r, 10, m), ++k;
        l.zeile(r == 1 ? "Periodenlänge\t" + z(k) : "Periodenlänge\t? > 250000");
    }
    l.zeile("Vorperiode\t" + std::to_string(vor));
}

void zerlegungThema(Lauf& l)
{
    int64_t a, b;
    if (!l.ganz(0, 2, INT64_MAX - 100001, a) || !l.ganz(1, 2, INT64_MAX - 100001, b)) return;
    if (b < a) b = a;
    if (b - a > 100000) b = a + 100000;
    for (int64_t n = a; n <= b; ++n) {
        if ((n - a) % 500 == 0 && !l.weiter(static_cast<int>(100 * (n - a) / (b - a + 1)))) return;
        const uint64_t u = static_cast<uint64_t>(n);
        l.zeile(z(n) + "\t" + (istPrim(u) ? "Primzahl" : zerlegungText(u)));
    }
}

void ggtKgv(Lauf& l)
{
    if (l.feld(0).empty() || l.feld(1).empty()) return l.fehler("Zahlen eingeben");
    int64_t a, b;
    if (!l.ganz(0, 1, kGrenze, a) || !l.ganz(1, 1, kGrenze, b)) return;
    const uint64_t g = std::gcd(static_cast<uint64_t>(a), static_cast<uint64_t>(b));
    const u128 k = u128(static_cast<uint64_t>(a) / g) * static_cast<uint64_t>(b);
    l.zeile("ggT(" + z(a) + ", " + z(b) + ")\t" + std::to_string(g));
    if (k > u128(UINT64_MAX))
        l.zeile("kgV\tZahl zu groß");
    else
        l.zeile("kgV(" + z(a) + ", " + z(b) + ")\t" + std::to_string(static_cast<uint64_t>(k)));
    l.zeile(z(a) + " =\t" + zerlegungText(static_cast<uint64_t>(a)));
    l.zeile(z(b) + " =\t" + zerlegungText(static_cast<uint64_t>(b)));
    const auto t = alleTeiler(g);
    std::string s;
    for (uint64_t d : t) s += (s.empty() ? "" : ", ") + std::to_string(d);
    l.zeile("gemeinsame Teiler\t" + s);
}

void befreundet(Lauf& l)
{
    int64_t bis;
    if (!l.ganz(0, 2, 20000000, bis)) return;
    // divisor sums by a sieve: sigma(n) - n for all n up to the bound
    std::vector<uint32_t> s(static_cast<size_t>(bis) + 1, 1);  // s(n) < 5n stays in 32 bit here
    s[0] = s[1] = 0;
    for (int64_t d = 2; d <= bis / 2; ++d) {
        if (d % 100000 == 0 && !l.weiter(static_cast<int>(50 * d / bis))) return;
        for (int64_t m = 2 * d; m <= bis; m += d) s[m] += static_cast<uint32_t>(d);
    }
    int paare = 0;
    for (int64_t a = 2; a <= bis; ++a) {
        const uint64_t b = s[a];
        if (b <= static_cast<uint64_t>(a)) continue;
        const uint64_t sb = b <= static_cast<uint64_t>(bis) ? s[b] : teilersumme(b) - b;
        if (sb == static_cast<uint64_t>(a)) {
            l.zeile(z(a) + "\t" + std::to_string(b));
            ++paare;
        }
    }
    l.schluss(std::to_string(paare) + " Paare");
}

void aliquot(Lauf& l)
{
    int64_t n, anzahl;
    if (!l.ganz(0, 1, kGrenze, n) || !l.ganz(1, 1, 10000, anzahl)) return;
    std::vector<uint64_t> gesehen{static_cast<uint64_t>(n)};
    uint64_t x = static_cast<uint64_t>(n);
    l.zeile("0\t" + z(n));
    for (int64_t i = 1; i <= anzahl; ++i) {
        if (!l.weiter(static_cast<int>(100 * i / anzahl))) return;
        x = teilersumme(x) - x;
        l.zeile(z(i) + "\t" + std::to_string(x));
        if (x == 0 || x == 1) return l.zeile("Folge endet");
        if (std::find(gesehen.begin(), gesehen.end(), x) != gesehen.end())
            return l.zeile("Periode erreicht");
        if (x > static_cast<uint64_t>(kGrenze)) return l.zeile("\tZahl zu groß");
        gesehen.push_back(x);
    }
}

void pythagoras(Lauf& l)
{
    int64_t bis;
    if (!l.ganz(0, 5, 100000, bis)) return;
    int anzahl = 0;
    for (int64_t m = 2; m * m < bis + m; ++m)
        for (int64_t n = 1; n < m; ++n) {
            if ((m - n) % 2 == 0 || std::gcd(m, n) != 1) continue;
            const int64_t c = m * m + n * n;
            if (c > bis) break;
            int64_t a = m * m - n * n, b = 2 * m * n;
            if (a > b) std::swap(a, b);
            l.zeile(z(a) + "\t" + z(b) + "\t" + z(c));
            ++anzahl;
        }
    std::sort(l.erg.zeilen.end() - anzahl, l.erg.zeilen.end(), [](const std::string& x, const std::string& y) {
        return std::stoll(x.substr(x.rfind('\t') + 1)) < std::stoll(y.substr(y.rfind('\t') + 1));
    });
    l.schluss(std::to_string(anzahl) + " Einträge");
}

void fastPythagoras(Lauf& l)
{
    int64_t bis;
    if (!l.ganz(0, 5, 20000, bis)) return;
    int anzahl = 0;
    for (int64_t c = 2; c <= bis; ++c) {
        if (c % 200 == 0 && !l.weiter(static_cast<int>(100 * c / bis))) return;
        for (int64_t a = 2; 2 * a * a <= c * c + 1; ++a) {
            for (int d : {-1, 1}) {
                const int64_t bb = c * c + d - a * a;
                const int64_t b = static_cast<int64_t>(std::llround(std::sqrt(static_cast<double>(bb))));
                if (b >= a && b * b == bb) {
                    l.zeile(z(a) + "²+" + z(b) + "²\t= " + z(c) + "²" + (d < 0 ? "-1" : "+1"));
                    ++anzahl;
                }
            }
        }
    }
    l.schluss(std::to_string(anzahl) + " Einträge");
}

void algo196(Lauf& l)
{
    std::string s = l.feld(0);
    int64_t schritte;
    if (s.empty() || s.size() > 1000 || !std::all_of(s.begin(), s.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return l.fehler("Zahl eingeben");
    if (!l.ganz(1, 1, 100000, schritte)) return;
    for (int64_t i = 1; i <= schritte; ++i) {
        if (i % 100 == 0 && !l.weiter(static_cast<int>(100 * i / schritte))) return;
        std::string r(s.rbegin(), s.rend()), t;
        int u = 0;
        for (size_t k = 0; k < s.size(); ++k) {
            const int d = (s[s.size() - 1 - k] - '0') + (r[r.size() - 1 - k] - '0') + u;
            t.push_back(static_cast<char>('0' + d % 10));
            u = d / 10;
        }
        if (u) t.push_back('1');
        s.assign(t.rbegin(), t.rend());
        l.zeile(z(i) + "\t" + s);
        if (std::equal(s.begin(), s.end(), s.rbegin())) return l.schluss("Palindrom im Schritt " + z(i));
    }
    l.schluss("kein Palindrom nach " + z(schritte) + " Schritten");
}

void gadisch(Lauf& l)
{
    int64_t p, q, g;
    if (!l.ganz(0, 0, 1000000000, p) || !l.ganz(1, 1, 1000000000, q) || !l.ganz(2, 2, 60, g)) return;
    auto ziffer = [g](int64_t d) {
        if (g > 36) return (d < 10 ? "0" : "") + std::to_string(d) + " ";
        return std::string(1, static_cast<char>(d < 10 ? '0' + d : 'A' + d - 10));
    };
    std::string ganz;
    for (int64_t v = p / q; ; v /= g) {
        ganz = ziffer(v % g) + ganz;
        if (v < g) break;
    }
    // long division; a remainder seen before closes the period
    std::vector<int64_t> rest;
    std::string ziffern;
    std::vector<size_t> stelle;
    int64_t r = p % q;
    while (r != 0 && std::find(rest.begin(), rest.end(), r) == rest.end() && rest.size() < 100000) {
        rest.push_back(r);
        stelle.push_back(ziffern.size());
        r *= g;
        ziffern += ziffer(r / q);
        r %= q;
    }
    l.zeile("Basis " + z(g) + "\t" + z(p) + "/" + z(q));
    if (g == 60) l.zeile("Babylonische Bruchdarstellung zur Basis 60");
    if (r == 0) {
        l.zeile("Darstellung\t" + ganz + (ziffern.empty() ? "" : "," + ziffern));
        l.zeile("Periode = 0");
        return;
    }
    const size_t beginn = static_cast<size_t>(std::find(rest.begin(), rest.end(), r) - rest.begin());
    l.zeile("Darstellung\t" + ganz + "," + ziffern.substr(0, stelle[beginn]) + "(" + ziffern.substr(stelle[beginn]) + ")");
    l.zeile("Vorperiode = " + std::to_string(beginn));
    l.zeile("Periode = " + std::to_string(rest.size() - beginn));
}

}  // namespace intern
}  // namespace numer
