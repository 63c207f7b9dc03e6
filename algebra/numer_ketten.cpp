// Shortest addition chains and the Waring problem: minimal sums of k-th powers.
#include "algebra/numer_intern.h"

#include <algorithm>
#include <functional>

namespace numer {

std::vector<int64_t> additionskette(int64_t n)
{
    if (n <= 1) return {1};
    std::vector<int64_t> kette{1};
    // iterative deepening over ascending chains; a branch dies when doubling to the end stays short
    std::function<bool(int)> suche = [&](int tiefe) -> bool {
        const int64_t letzte = kette.back();
        if (letzte == n) return true;
        if (static_cast<int>(kette.size()) > tiefe) return false;
        const int rest = tiefe + 1 - static_cast<int>(kette.size());
        if ((letzte << rest) < n) return false;
        for (size_t i = kette.size(); i-- > 0;)
            for (size_t j = i + 1; j-- > 0;) {
                const int64_t s = kette[i] + kette[j];
                if (s <= letzte) break;
                if (s > n) continue;
                kette.push_back(s);
                if (suche(tiefe)) return true;
                kette.pop_back();
            }
        return false;
    };
    for (int tiefe = 1;; ++tiefe) {
        kette.assign(1, 1);
        if (suche(tiefe)) return kette;
    }
}

std::vector<int64_t> waring(int64_t n, int k)
{
    std::vector<int64_t> potenzen;
    for (int64_t b = 1;; ++b) {
        int64_t p = 1;
        for (int i = 0; i < k; ++i) p *= b;
        if (p > n) break;
        potenzen.push_back(p);
    }
    std::vector<int> anzahl(static_cast<size_t>(n) + 1, 0);
    std::vector<int> letzte(static_cast<size_t>(n) + 1, 0);
    for (int64_t m = 1; m <= n; ++m) {
        anzahl[m] = INT32_MAX;
        for (size_t i = 0; i < potenzen.size() && potenzen[i] <= m; ++i)
            if (anzahl[m - potenzen[i]] + 1 < anzahl[m]) {
                anzahl[m] = anzahl[m - potenzen[i]] + 1;
                letzte[m] = static_cast<int>(i + 1);
            }
    }
    std::vector<int64_t> basen;
    for (int64_t m = n; m > 0; m -= potenzen[letzte[m] - 1]) basen.push_back(letzte[m]);
    std::sort(basen.rbegin(), basen.rend());
    return basen;
}

namespace intern {

void additionsketten(Lauf& l)
{
    int64_t n;
    if (!l.ganz(0, 1, 2048, n)) return;
    const auto k = additionskette(n);
    l.zeile("0\t1");
    for (size_t i = 1; i < k.size(); ++i) {
        // name the summands by their place in the chain
        std::string wie;
        for (size_t a = 0; a < i && wie.empty(); ++a)
            for (size_t b = a; b < i; ++b)
                if (k[a] + k[b] == k[i]) {
                    wie = a == b ? "2*" + std::to_string(k[a]) : std::to_string(k[b]) + "+" + std::to_string(k[a]);
                    break;
                }
        l.zeile(std::to_string(i) + "\t" + std::to_string(k[i]) + "\t= " + wie);
    }
    l.schluss("Kettenlänge l(" + z(n) + ") = " + std::to_string(k.size() - 1));
}

void waringThema(Lauf& l)
{
    int64_t von, bis;
    if (!l.ganz(0, 1, 100000, von) || !l.ganz(1, 1, 100000, bis)) return;
    if (bis < von) std::swap(von, bis);
    if (bis - von > 5000) bis = von + 5000;
    const int k = l.ein.option + 2;
    int maximum = 0;
    for (int64_t n = von; n <= bis; ++n) {
        if (!l.weiter(static_cast<int>(100 * (n - von) / (bis - von + 1)))) return;
        const auto b = waring(n, k);
        std::string s;
        for (int64_t x : b) s += (s.empty() ? "" : " + ") + std::to_string(x) + "^" + std::to_string(k);
        l.zeile(z(n) + "\t" + std::to_string(b.size()) + "\t" + s);
        maximum = std::max(maximum, static_cast<int>(b.size()));
    }
    l.schluss("höchstens " + std::to_string(maximum) + " Summanden");
}

}  // namespace intern
}  // namespace numer

namespace numer {

std::string scherk(int i, uint64_t* anzahl)
{
    if (i < 1 || i > 300) return {};  // the reachability table grows with i times the prime sum
    // p[0] = 1 as in Scherk's day, then the primes
    std::vector<uint64_t> p{1};
    for (uint64_t q : primzahlenBis(2000)) p.push_back(q);
    const uint64_t fuehrend = (1 + i % 2) * p[static_cast<size_t>(i - 1)];
    const int64_t ziel = static_cast<int64_t>(p[static_cast<size_t>(i)]) - static_cast<int64_t>(fuehrend);
    int64_t summe = 0;
    for (int k = 0; k <= i - 2; ++k) summe += static_cast<int64_t>(p[k]);
    // the negated terms must add up to (summe - ziel) / 2: a subset sum over p[0..i-2]
    if ((summe - ziel) % 2 != 0 || summe < ziel) return {};
    const int64_t neg = (summe - ziel) / 2;
    if (neg < 0) return {};
    const size_t n = static_cast<size_t>(i > 1 ? i - 1 : 0), breite = static_cast<size_t>(neg) + 1;
    // erreichbar[k][s]: s is a sum of some of the first k terms
    std::vector<std::vector<bool>> erreichbar(n + 1, std::vector<bool>(breite, false));
    std::vector<uint64_t> zahl(breite, 0);
    erreichbar[0][0] = true;
    zahl[0] = 1;
    for (size_t k = 1; k <= n; ++k) {
        const uint64_t w = p[k - 1];
        erreichbar[k] = erreichbar[k - 1];
        for (size_t s = breite; s-- > w;)
            if (erreichbar[k - 1][s - w]) erreichbar[k][s] = true;
        for (size_t s = breite; s-- > w;) zahl[s] += zahl[s - w];
    }
    if (!erreichbar[n][static_cast<size_t>(neg)]) return {};
    if (anzahl) *anzahl = i <= 64 ? zahl[static_cast<size_t>(neg)] : 0;
    // walk back from the largest term: negate it when the rest can still reach the sum
    std::vector<bool> negativ(n, false);
    size_t rest = static_cast<size_t>(neg);
    for (size_t k = n; k >= 1; --k) {
        if (!erreichbar[k - 1][rest]) {
            negativ[k - 1] = true;
            rest -= p[k - 1];
        }
    }
    std::string s = (i % 2 ? "2·" : "") + std::to_string(p[static_cast<size_t>(i - 1)]);
    for (size_t k = n; k >= 1; --k) s += (negativ[k - 1] ? " - " : " + ") + std::to_string(p[k - 1]);
    return s;
}

namespace intern {
void scherkThema(Lauf& l)
{
    int64_t von, bis;
    if (!l.ganz(0, 1, 300, von) || !l.ganz(1, 1, 300, bis)) return;
    if (bis < von) std::swap(von, bis);
    const auto p = primzahlenBis(2000);
    for (int64_t i = von; i <= bis; ++i) {
        if (!l.weiter(static_cast<int>(100 * (i - von) / (bis - von + 1)))) return;
        uint64_t anzahl = 0;
        const std::string s = scherk(static_cast<int>(i), &anzahl);
        l.zeile(z(i) + "\t" + std::to_string(p[static_cast<size_t>(i - 1)]) + " = " + (s.empty() ? "?" : s) + "\t" +
                (anzahl ? std::to_string(anzahl) : std::string()));
    }
}
}  // namespace intern
}  // namespace numer
