// Combinatorics and sequences on the long numbers: factorials, binomials, Fibonacci and Lucas
// numbers, partitions, Bernoulli numbers; Moser's circle regions.
#include "algebra/numer_gross.h"
#include "algebra/numer_intern.h"

#include <cctype>
#include <cmath>
#include <functional>

namespace numer {

std::string fakultaet(int n)
{
    Gross f;
    numbers::mp_fact(n, f.m());
    return f.text();
}

std::string binomial(int n, int k)
{
    if (k < 0 || n < 0 || k > n) return "0";
    Gross b;
    numbers::mp_binomial(n, k, b.m());
    return b.text();
}

namespace {
// (F(n), F(n+1)) by doubling: F(2k) = F(k)(2F(k+1) - F(k)), F(2k+1) = F(k)² + F(k+1)²
std::pair<Gross, Gross> fibPaar(int n)
{
    if (n == 0) return {Gross(0), Gross(1)};
    auto [a, b] = fibPaar(n / 2);
    Gross c = a * (b * Gross(2) - a);
    Gross d = a * a + b * b;
    if (n % 2) return {d, c + d};
    return {c, d};
}
}  // namespace

std::string fibonacci(int n) { return fibPaar(n).first.text(); }

std::string lucas(int n)
{
    // L(n) = F(n-1) + F(n+1) = 2F(n+1) - F(n)
    auto [a, b] = fibPaar(n);
    return (b * Gross(2) - a).text();
}

std::string partitionen(int n)
{
    // Euler's pentagonal number recurrence
    std::vector<Gross> p(static_cast<size_t>(n) + 1);
    p[0] = Gross(1);
    for (int m = 1; m <= n; ++m) {
        Gross s;
        for (int k = 1;; ++k) {
            const int g1 = k * (3 * k - 1) / 2, g2 = k * (3 * k + 1) / 2;
            if (g1 > m) break;
            const bool plus = k % 2 == 1;
            s = plus ? s + p[m - g1] : s - p[m - g1];
            if (g2 <= m) s = plus ? s + p[m - g2] : s - p[m - g2];
        }
        p[m] = s;
    }
    return p[n].text();
}

namespace {
// Tangent numbers T(1..m) by the in-place recurrence of Brent and Harvey: only small
// multipliers, no fractions. `weiter` gets the percentage and may stop the run.
bool tangentenzahlen(int m, std::vector<Gross>& t, const std::function<bool(int)>& weiter)
{
    t.assign(static_cast<size_t>(m) + 1, Gross());
    if (m < 1) return true;
    t[1] = Gross(1);
    for (int k = 2; k <= m; ++k) numbers::mp_mul_d(t[k - 1].m(), static_cast<numbers::mp_digit>(k - 1), t[k].m());
    Gross a, b;
    for (int k = 2; k <= m; ++k) {
        if (weiter && !weiter(100 * k / (m + 1))) return false;
        for (int j = k; j <= m; ++j) {
            numbers::mp_mul_d(t[j - 1].m(), static_cast<numbers::mp_digit>(j - k), a.m());
            numbers::mp_mul_d(t[j].m(), static_cast<numbers::mp_digit>(j - k + 2), b.m());
            numbers::mp_add(a.m(), b.m(), t[j].m());
        }
    }
    return true;
}

// B(2k) = (-1)^(k-1) 2k T(k) / (4^k (4^k - 1)), reduced.
std::pair<std::string, std::string> ausTangente(int k, const Gross& tk)
{
    Gross vier;
    numbers::mp_set(vier.m(), 1);
    numbers::mp_shl(vier.m(), 2 * k, vier.m());
    Gross zaehler = tk * Gross(2 * k);
    Gross nenner = vier * (vier - Gross(1));
    const Gross g = ggT(zaehler, nenner);
    zaehler = zaehler / g;
    nenner = nenner / g;
    return {(k % 2 == 0 ? "-" : "") + zaehler.text(), nenner.text()};
}
}  // namespace

std::pair<std::string, std::string> bernoulli(int n)
{
    if (n == 0) return {"1", "1"};
    if (n == 1) return {"-1", "2"};
    if (n % 2 == 1) return {"0", "1"};
    std::vector<Gross> t;
    tangentenzahlen(n / 2, t, {});
    return ausTangente(n / 2, t[n / 2]);
}

namespace intern {

void kombinatorik(Lauf& l)
{
    int64_t n, k = 0;
    const int art = l.ein.option;
    if (!l.ganz(0, 0, art == 0 ? 100000 : 5000, n)) return;
    if (art != 0 && !l.ganz(1, 0, 5000, k)) return;
    switch (art) {
    case 0: {
        const double lg = std::lgamma(static_cast<double>(n) + 1) / std::log(10.0);
        const double ex = std::floor(lg);
        const std::string naeherung = zahl(std::pow(10.0, lg - ex), 8) + " ·10^" + std::to_string(static_cast<int64_t>(ex));
        if (n > 1000) {
            l.zeile(z(n) + "! ≈\t" + naeherung);
            return;
        }
        l.zeile(z(n) + "! =\t" + fakultaet(static_cast<int>(n)));
        if (n >= 1) {
            const double st = 0.5 * std::log(2 * M_PI * n) + n * std::log(n / M_E);  // ln of Stirling's value
            const double abw = 100 * (1 - std::exp(st - std::lgamma(n + 1.0)));
            const double ste = std::floor(st / std::log(10.0));
            l.zeile("Stirlingsche Näherung\t" + zahl(std::pow(10.0, st / std::log(10.0) - ste), 8) + " ·10^" +
                    std::to_string(static_cast<int64_t>(ste)));
            l.zeile("prozentuale Abweichung\t" + zahl(abw, 6) + " %");
        }
        return;
    }
    case 1:  // combinations without repetition
        l.zeile("Kombinationen ohne Wiederholung C(" + z(n) + ", " + z(k) + ")\t" +
                (k > n ? "unbestimmt" : binomial(static_cast<int>(n), static_cast<int>(k))));
        return;
    case 2:  // with repetition: C(n+k-1, k)
        l.zeile("Kombinationen mit Wiederholung\t" +
                (n == 0 ? std::string("unbestimmt") : binomial(static_cast<int>(n + k - 1), static_cast<int>(k))));
        return;
    case 3: {  // variations without repetition: n!/(n-k)!
        if (k > n) return l.zeile("Variationen ohne Wiederholung\tunbestimmt");
        Gross v(1);
        for (int64_t i = n - k + 1; i <= n; ++i) v = v * Gross(i);
        l.zeile("Variationen ohne Wiederholung\t" + v.text());
        return;
    }
    case 4: {  // variations with repetition: n^k
        Gross v;
        numbers::mp_expt_int(Gross(n).m(), static_cast<int32_t>(k), v.m());
        l.zeile("Variationen mit Wiederholung\t" + v.text());
        return;
    }
    default: {  // permutations with repetition: n! / (k1! k2! ...), the classes from field 2
        std::vector<int64_t> klassen;
        int64_t summe = 0;
        for (size_t i = 1; i < 4; ++i) {
            int64_t v;
            if (l.feld(i).empty()) continue;
            if (!leseGanz(l.feld(i), 0, 5000, v)) return l.fehler("Zahl ungültig");
            klassen.push_back(v);
            summe += v;
        }
        if (summe > n) return l.zeile("Permutationen mit Wiederholungen\tunbestimmt");
        Gross p(fakultaet(static_cast<int>(n)));
        for (int64_t c : klassen) p = p / Gross(fakultaet(static_cast<int>(c)));
        p = p / Gross(fakultaet(static_cast<int>(n - summe)));
        l.zeile("Permutationen mit Wiederholungen\t" + p.text());
        return;
    }
    }
}

namespace {
// A whole number typed in base g, written in every base from 2 to 36.
void zahlsysteme(Lauf& l)
{
    int64_t g;
    std::string t = l.feld(0);
    for (char& c : t) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    if (!l.ganz(1, 2, 36, g)) return;
    if (t.empty() || t.size() > 5000) return l.fehler("Zahl eingeben");
    for (char c : t) {
        const int v = c >= '0' && c <= '9' ? c - '0' : c >= 'A' && c <= 'Z' ? c - 'A' + 10 : 99;
        if (v >= g) return l.fehler("Ungültige Ziffer " + std::string(1, c) + " zur Basis " + z(g));
    }
    Gross a;
    numbers::mp_read_radix(a.m(), t, static_cast<int>(g));
    for (int b = 2; b <= 36; ++b) l.zeile("Basis " + std::to_string(b) + "\t" + numbers::mp_radix_astr(a.m(), b));
}
}  // namespace

void fibonacciThema(Lauf& l)
{
    if (l.ein.option == 2) return zahlsysteme(l);
    int64_t von, bis;
    if (!l.ganz(0, 0, 100000, von) || !l.ganz(1, 0, 100000, bis)) return;
    if (bis < von) std::swap(von, bis);
    if (bis - von > 2000) bis = von + 2000;
    const bool luc = l.ein.option == 1;
    for (int64_t i = von; i <= bis; ++i) {
        if (!l.weiter(static_cast<int>(100 * (i - von) / (bis - von + 1)))) return;
        l.zeile(z(i) + "\t" + (luc ? lucas(static_cast<int>(i)) : fibonacci(static_cast<int>(i))));
    }
}

void partitionenThema(Lauf& l)
{
    int64_t n, zeigen;
    if (!l.ganz(0, 1, 10000, n) || !l.ganz(1, 0, 100000, zeigen)) return;
    l.zeile("p(" + z(n) + ")\t" + partitionen(static_cast<int>(n)) + " Partitionen");
    // list in falling order, parts not increasing
    std::vector<int> teile{static_cast<int>(n)};
    int64_t gezeigt = 0;
    while (gezeigt < zeigen) {
        std::string s;
        for (int t : teile) s += (s.empty() ? "" : "+") + std::to_string(t);
        l.zeile(z(gezeigt + 1) + "\t" + s);
        ++gezeigt;
        // next partition: drop trailing ones, lower the last part above one, refill
        int rest = 0;
        while (!teile.empty() && teile.back() == 1) rest += 1, teile.pop_back();
        if (teile.empty()) break;
        int t = --teile.back();
        ++rest;
        while (rest > 0) {
            const int s2 = std::min(t, rest);
            teile.push_back(s2);
            rest -= s2;
        }
    }
    l.schluss(z(gezeigt) + " angezeigte Partitionen");
}

void bernoulliThema(Lauf& l)
{
    int64_t von, bis;
    if (!l.ganz(0, 0, 100000, von)) return;
    if (!l.ganz(1, 0, 100000, bis)) return;
    if (bis < von) std::swap(von, bis);
    if (bis > 2500) return l.fehler("Index zu groß (höchstens 2500)");
    std::vector<Gross> t;
    if (!tangentenzahlen(static_cast<int>(bis / 2), t, [&](int p) { return l.weiter(p); })) return;
    for (int64_t n = von; n <= bis; ++n) {
        std::pair<std::string, std::string> b;
        if (n == 0) b = {"1", "1"};
        else if (n == 1) b = {"-1", "2"};
        else if (n % 2) continue;
        else b = ausTangente(static_cast<int>(n / 2), t[static_cast<size_t>(n / 2)]);
        l.zeile("B(" + z(n) + ") = \t" + b.first + "\t" + b.second);
    }
}

void moser(Lauf& l)
{
    int64_t n;
    if (!l.ganz(0, 1, 10000, n)) return;
    // regions of a circle cut by all chords of n points in general position: 1 + C(n,2) + C(n,4)
    for (int64_t i = 1; i <= n; ++i) {
        const Gross r = Gross(1) + Gross(binomial(static_cast<int>(i), 2)) + Gross(binomial(static_cast<int>(i), 4));
        l.zeile(z(i) + "\t" + r.text());
    }
}

}  // namespace intern
}  // namespace numer
