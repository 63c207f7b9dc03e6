// Combinatorics and sequences on the long numbers: factorials, binomials, Fibonacci and Lucas
// numbers, partitions, Bernoulli numbers; Moser's circle regions.
#include "algebra/numer_gross.h"
#include "algebra/numer_intern.h"

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
// Akiyama-Tanigawa on exact fractions: after step m, A[0] is B(m) (with B(1) = +1/2).
// `jede` gets every B(m); answering false stops.
void akiyama(int n, const std::function<bool(int, const Gross&, const Gross&)>& jede)
{
    std::vector<Gross> za(static_cast<size_t>(n) + 1), ne(static_cast<size_t>(n) + 1);
    const Gross eins(1);
    for (int m = 0; m <= n; ++m) {
        za[m] = eins;
        ne[m] = Gross(m + 1);
        for (int j = m; j >= 1; --j) {
            Gross z1 = (za[j - 1] * ne[j] - za[j] * ne[j - 1]) * Gross(j);
            Gross n1 = ne[j - 1] * ne[j];
            const Gross g = ggT(z1, n1);
            if (!g.null() && !(g == eins)) z1 = z1 / g, n1 = n1 / g;
            za[j - 1] = z1;
            ne[j - 1] = n1;
        }
        Gross z0 = za[0], n0 = ne[0];
        if (n0.negativ()) z0 = Gross(0) - z0, n0 = Gross(0) - n0;
        if (m == 1) z0 = Gross(0) - z0;  // the usual sign B(1) = -1/2
        if (!jede(m, z0, n0)) return;
    }
}
}  // namespace

std::pair<std::string, std::string> bernoulli(int n)
{
    if (n > 1 && n % 2 == 1) return {"0", "1"};
    std::pair<std::string, std::string> r;
    akiyama(n, [&](int m, const Gross& a, const Gross& b) {
        if (m == n) r = {a.text(), b.text()};
        return true;
    });
    return r;
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

void fibonacciThema(Lauf& l)
{
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
    l.zeile(z(gezeigt) + " angezeigte Partitionen");
}

void bernoulliThema(Lauf& l)
{
    int64_t von, bis;
    if (!l.ganz(0, 0, 100000, von)) return;
    if (!l.ganz(1, 0, 100000, bis)) return;
    if (bis < von) std::swap(von, bis);
    if (bis > 2500) return l.fehler("Index zu groß (höchstens 2500)");
    akiyama(static_cast<int>(bis), [&](int m, const Gross& a, const Gross& b) {
        if (!l.weiter(static_cast<int>(100 * m / (bis + 1)))) return false;
        if (m >= von && (m < 2 || m % 2 == 0)) l.zeile("B(" + std::to_string(m) + ") = \t" + a.text() + "\t" + b.text());
        return true;
    });
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
