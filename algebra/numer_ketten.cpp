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
    l.zeile("Kettenlänge l(" + z(n) + ") = " + std::to_string(k.size() - 1));
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
    l.zeile("höchstens " + std::to_string(maximum) + " Summanden");
}

}  // namespace intern
}  // namespace numer
