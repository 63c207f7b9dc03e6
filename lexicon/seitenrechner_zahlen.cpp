// Members of elementary number theory: 10, 11, 16, 19, 20, 22, 23.
#include "lexicon/seitenrechner_intern.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <numeric>
#include <vector>

namespace lexicon::rechner {

namespace {

using u64 = uint64_t;
using u128 = unsigned __int128;

const char* const kMal = " \xB7 ";

std::string u64Text(u64 v) { return std::to_string(v); }

u64 mulmod(u64 a, u64 b, u64 m) { return static_cast<u64>(static_cast<u128>(a) * b % m); }

u64 powmod(u64 b, u64 e, u64 m)
{
    u64 x = 1 % m;
    b %= m;
    while (e) {
        if (e & 1)
            x = mulmod(x, b, m);
        b = mulmod(b, b, m);
        e >>= 1;
    }
    return x;
}

// Miller-Rabin with the first twelve primes as bases: exact for every 64-bit n.
bool istPrim(u64 n)
{
    static const u64 basen[] = {2, 3, 5, 7, 11, 13, 17, 19, 23, 29, 31, 37};
    if (n < 2)
        return false;
    for (u64 p : basen) {
        if (n % p == 0)
            return n == p;
    }
    u64 d = n - 1;
    int s = 0;
    while ((d & 1) == 0) {
        d >>= 1;
        ++s;
    }
    for (u64 a : basen) {
        u64 x = powmod(a, d, n);
        if (x == 1 || x == n - 1)
            continue;
        bool zeuge = true;
        for (int i = 1; i < s && zeuge; ++i) {
            x = mulmod(x, x, n);
            if (x == n - 1)
                zeuge = false;
        }
        if (zeuge)
            return false;
    }
    return true;
}

// A non-trivial divisor of the odd composite n (Pollard's rho, Brent's variant).
u64 rhoTeiler(u64 n)
{
    for (u64 c = 1;; ++c) {
        u64 y = 2, x = 2, g = 1, q = 1, ys = 2;
        u64 m = 128, len = 1;
        auto f = [&](u64 v) { return (mulmod(v, v, n) + c) % n; };
        do {
            x = y;
            for (u64 i = 0; i < len; ++i)
                y = f(y);
            u64 k = 0;
            do {
                ys = y;
                for (u64 i = 0; i < std::min(m, len - k); ++i) {
                    y = f(y);
                    q = mulmod(q, x > y ? x - y : y - x, n);
                }
                g = std::gcd(q, n);
                k += m;
            } while (k < len && g == 1);
            len *= 2;
        } while (g == 1);
        if (g == n) {
            do {
                ys = f(ys);
                g = std::gcd(x > ys ? x - ys : ys - x, n);
            } while (g == 1);
        }
        if (g != n)
            return g;
    }
}

u64 kleinsterPrimteiler(u64 n)
{
    for (u64 p = 2; p < 1000; ++p)
        if (n % p == 0)
            return p;
    if (istPrim(n))
        return n;
    const u64 t = rhoTeiler(n);
    return std::min(kleinsterPrimteiler(t), kleinsterPrimteiler(n / t));
}

}  // namespace

// 10: gcd and lcm with the steps of Euclid and Bezout's coefficients.
void ggtKgv(R& r)
{
    int64_t a = 0, b = 0;
    if (!ganzFeld(r.ed1, a) || !ganzFeld(r.ed2, b) || a == 0 || b == 0 ||
        a == std::numeric_limits<int64_t>::min() || b == std::numeric_limits<int64_t>::min()) {
        zeileAus(r, "Zahl falsch");
        return;
    }
    // Extended Euclid on |a|, |b|; old_x·|a| + old_y·|b| = gcd throughout.
    __int128 r0 = a < 0 ? -a : a, r1 = b < 0 ? -b : b;
    __int128 x0 = 1, x1 = 0, y0 = 0, y1 = 1;
    while (r1 != 0) {
        const __int128 q = r0 / r1, rest = r0 % r1;
        zeileAus(r, std::to_string(static_cast<int64_t>(r0)) + " = " + std::to_string(static_cast<int64_t>(q)) +
                        kMal + std::to_string(static_cast<int64_t>(r1)) + " + " +
                        std::to_string(static_cast<int64_t>(rest)));
        r0 = r1;
        r1 = rest;
        const __int128 xn = x0 - q * x1, yn = y0 - q * y1;
        x0 = x1;
        x1 = xn;
        y0 = y1;
        y1 = yn;
    }
    const int64_t g = static_cast<int64_t>(r0);
    const __int128 kgv = (static_cast<__int128>(a < 0 ? -a : a) / g) * (b < 0 ? -b : b);
    const int64_t x = static_cast<int64_t>(a < 0 ? -x0 : x0), y = static_cast<int64_t>(b < 0 ? -y0 : y0);
    zeileAus(r, "ggT\t" + std::to_string(g));
    if (kgv > std::numeric_limits<int64_t>::max())
        zeileAus(r, "kgV\t\xDC" "berlauf");
    else
        zeileAus(r, "kgV\t" + std::to_string(static_cast<int64_t>(kgv)));
    zeileAus(r, "x\t" + std::to_string(x));
    zeileAus(r, "y\t" + std::to_string(y));
}

// 11: prime factors by trial division; a loop the user can stop.
void primfaktoren(R& r)
{
    int64_t n0 = 0;
    if (!ganzFeld(r.ed1, n0) || n0 < 2 || n0 > 1000000000000000000LL) {
        zeileAus(r, "Zahl falsch");
        return;
    }
    u64 n = static_cast<u64>(n0);
    std::vector<std::pair<u64, int>> faktoren;
    auto teile = [&](u64 p) {
        int e = 0;
        while (n % p == 0) {
            n /= p;
            ++e;
        }
        if (e > 0)
            faktoren.push_back({p, e});
    };
    teile(2);
    teile(3);
    u64 runde = 0;
    for (u64 p = 5; p * p <= n; p += 6) {
        teile(p);
        teile(p + 2);
        if (++runde % 100000 == 0 && !weiter(r)) {
            zeileAus(r, "abgebrochen bei Teiler " + u64Text(p));
            return;
        }
    }
    if (n > 1)
        faktoren.push_back({n, 1});
    if (faktoren.size() == 1 && faktoren[0].second == 1) {
        zeileAus(r, std::to_string(n0) + " ist eine Primzahl");
        return;
    }
    std::string zerlegung = std::to_string(n0) + " = ";
    u128 anzahl = 1, summe = 1;
    for (size_t i = 0; i < faktoren.size(); ++i) {
        const auto [p, e] = faktoren[i];
        zerlegung += (i ? kMal : "") + u64Text(p) + (e > 1 ? "^" + std::to_string(e) : "");
        anzahl *= static_cast<u128>(e + 1);
        u128 teilsumme = 1, potenz = 1;
        for (int k = 0; k < e; ++k) {
            potenz *= p;
            teilsumme += potenz;
        }
        summe *= teilsumme;
    }
    zeileAus(r, zerlegung);
    for (const auto& [p, e] : faktoren)
        zeileAus(r, u64Text(p) + "\t" + std::to_string(e));
    zeileAus(r, "Anzahl der Teiler\t" + u64Text(static_cast<u64>(anzahl)));
    // The sum of divisors of n <= 10^18 stays below 2^64 (it is less than 7 n).
    zeileAus(r, "Summe der Teiler\t" + u64Text(static_cast<u64>(summe)));
}

// 16: Miller-Rabin, with the smallest divisor and the neighbouring primes.
void primzahltest(R& r)
{
    int64_t n0 = 0;
    if (!ganzFeld(r.ed1, n0) || n0 < 2) {
        zeileAus(r, "Zahl falsch");
        return;
    }
    const u64 n = static_cast<u64>(n0);
    if (istPrim(n)) {
        zeileAus(r, std::to_string(n0) + " ist eine Primzahl");
    } else {
        zeileAus(r, std::to_string(n0) + " ist keine Primzahl");
        zeileAus(r, "kleinster Teiler\t" + u64Text(kleinsterPrimteiler(n)));
    }
    // Above 2^63 - 1 there is a prime below 2^64, so the search stays in range.
    u64 naechste = n + 1;
    while (!istPrim(naechste))
        ++naechste;
    zeileAus(r, "n\xE4" "chste Primzahl\t" + u64Text(naechste));
    if (n == 2) {
        zeileAus(r, "vorige Primzahl\t-");
    } else {
        u64 vorige = n - 1;
        while (!istPrim(vorige))
            --vorige;
        zeileAus(r, "vorige Primzahl\t" + u64Text(vorige));
    }
}

// 19: Roman numerals with the subtractive forms.
void roemischeZahlen(R& r)
{
    static const std::pair<int, const char*> tafel[] = {{1000, "M"}, {900, "CM"}, {500, "D"}, {400, "CD"},
                                                        {100, "C"},  {90, "XC"},  {50, "L"},  {40, "XL"},
                                                        {10, "X"},   {9, "IX"},   {5, "V"},   {4, "IV"},
                                                        {1, "I"}};
    int n = static_cast<int>(ganzEd1Grenzen(r, 1, 3999));
    std::string s;
    const int wert = n;
    for (const auto& [w, z] : tafel)
        while (n >= w) {
            s += z;
            n -= w;
        }
    zeileAus(r, std::to_string(wert) + " = " + s);
}

// 20: a number in the bases 2, 8, 16 and a chosen one.
void zahlbasen(R& r)
{
    int64_t n = 0;
    if (!ganzFeld(r.ed1, n) || n < 0) {
        zeileAus(r, "Zahl falsch");
        return;
    }
    const int b = static_cast<int>(ganzEd2Grenzen(r, 2, 36));
    auto darstellung = [&](int basis) {
        if (n == 0)
            return std::string("0");
        std::string s;
        for (u64 v = static_cast<u64>(n); v; v /= basis)
            s.insert(s.begin(), "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"[v % basis]);
        return s;
    };
    zeileAus(r, "Basis 2\t" + darstellung(2));
    zeileAus(r, "Basis 8\t" + darstellung(8));
    zeileAus(r, "Basis 16\t" + darstellung(16));
    zeileAus(r, "Basis " + std::to_string(b) + "\t" + darstellung(b));
}

// 22: the Collatz sequence, one term a line; a loop the user can stop.
void collatzFolge(R& r)
{
    u64 n = static_cast<u64>(ganzGrenzen(r.ed1, 1, 1000000000000000LL));
    u64 schritte = 0, maximum = n;
    zeileAus(r, u64Text(n));
    while (n != 1) {
        if (n % 2 == 0) {
            n /= 2;
        } else {
            if (n > (std::numeric_limits<u64>::max() - 1) / 3) {
                zeileAus(r, "\xDC" "berlauf");
                return;
            }
            n = 3 * n + 1;
        }
        ++schritte;
        maximum = std::max(maximum, n);
        zeileAus(r, u64Text(n));
        if (schritte % 100 == 0 && !weiter(r))
            return;
    }
    zeileAus(r, "Schritte\t" + u64Text(schritte));
    zeileAus(r, "Maximum\t" + u64Text(maximum));
}

// 23: the continued fraction of p/q and its convergents.
void kettenbruch(R& r)
{
    int64_t p = 0, q = 0;
    if (!ganzFeld(r.ed1, p) || !ganzFeld(r.ed2, q) || q <= 0 || p == std::numeric_limits<int64_t>::min()) {
        zeileAus(r, "Eingabe falsch");
        return;
    }
    std::vector<int64_t> glieder;
    __int128 zaehler = p, nenner = q;
    while (nenner != 0) {
        // Floor division, so a negative fraction gets a negative a0 and positive rest.
        __int128 a = zaehler / nenner;
        if ((zaehler % nenner != 0) && ((zaehler < 0) != (nenner < 0)))
            --a;
        glieder.push_back(static_cast<int64_t>(a));
        const __int128 rest = zaehler - a * nenner;
        zaehler = nenner;
        nenner = rest;
    }
    std::string s = "[" + std::to_string(glieder[0]);
    for (size_t i = 1; i < glieder.size(); ++i)
        s += (i == 1 ? "; " : ", ") + std::to_string(glieder[i]);
    zeileAus(r, s + "]");
    __int128 pa = 1, pb = glieder[0], qa = 0, qb = 1;
    for (size_t i = 0; i < glieder.size(); ++i) {
        if (i > 0) {
            const __int128 pn = glieder[i] * pb + pa, qn = glieder[i] * qb + qa;
            pa = pb;
            pb = pn;
            qa = qb;
            qb = qn;
        }
        zeileAus(r, std::to_string(static_cast<int64_t>(pb)) + "/" + std::to_string(static_cast<int64_t>(qb)) +
                        "\t" + zahl(static_cast<double>(pb) / static_cast<double>(qb)));
    }
}

}  // namespace lexicon::rechner
