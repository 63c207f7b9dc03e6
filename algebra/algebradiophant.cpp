// Systems of linear Diophantine equations: column Hermite form by Euclid on the columns.
#include "algebra/algebraseiten.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace algebra {

namespace {

using i64 = std::int64_t;
constexpr i64 kGross = 1000000000000000LL;

std::string linearText(i64 konst, const std::vector<std::pair<i64, std::string>>& teile)
{
    std::string s;
    if (konst != 0) s = std::to_string(konst);
    for (const auto& [k, name] : teile) {
        if (k == 0) continue;
        const i64 b = std::llabs(k);
        const std::string f = (b == 1 ? "" : std::to_string(b) + "*") + name;
        if (s.empty()) s = (k < 0 ? "-" : "") + f;
        else s += (k < 0 ? " - " : " + ") + f;
    }
    return s.empty() ? "0" : s;
}

}  // namespace

Ergebnis diophantSeite(const std::vector<std::string>& f)
{
    std::vector<std::vector<i64>> a;
    std::vector<i64> b;
    int n = -1;
    for (size_t i = 0; i < f.size(); ++i) {
        const auto t = teile(f[i]);
        if (t.empty()) continue;
        if (n < 0) n = static_cast<int>(t.size()) - 1;
        if (static_cast<int>(t.size()) != n + 1)
            return eingabefehler("Gleichung " + std::to_string(i + 1) + " hat nicht " + std::to_string(n + 1) + " Einträge.");
        std::vector<i64> z;
        for (const auto& s : t) {
            double v;
            if (!leseZahl(s, v) || v != std::floor(v) || std::fabs(v) > 1e6)
                return eingabefehler("nur ganzzahlige Koeffizienten A und B verwenden (bis 1000000): " + s);
            z.push_back(static_cast<i64>(v));
        }
        b.push_back(z.back());
        z.pop_back();
        a.push_back(z);
    }
    if (a.empty() || n < 1) return eingabefehler("Bitte mindestens eine Gleichung mit Koeffizienten und B eingeben.");
    if (n > 9 || a.size() > 9) return eingabefehler("Höchstens 9 Gleichungen mit 9 Unbekannten.");
    const int m = static_cast<int>(a.size());
    // U collects the column operations: A U = H with H in column echelon form.
    std::vector<std::vector<i64>> u(n, std::vector<i64>(n, 0));
    for (int i = 0; i < n; ++i) u[i][i] = 1;
    auto spalteMinus = [&](int p, int j, i64 q) {  // column p -= q * column j
        for (int r = 0; r < m; ++r) a[r][p] -= q * a[r][j];
        for (int r = 0; r < n; ++r) u[r][p] -= q * u[r][j];
    };
    auto tausche = [&](int p, int j) {
        for (int r = 0; r < m; ++r) std::swap(a[r][p], a[r][j]);
        for (int r = 0; r < n; ++r) std::swap(u[r][p], u[r][j]);
    };
    std::vector<int> pivotSpalte(m, -1);
    int p = 0;
    for (int r = 0; r < m && p < n; ++r) {
        for (int j = p + 1; j < n; ++j)
            while (a[r][j] != 0) {
                spalteMinus(p, j, a[r][p] / a[r][j]);
                tausche(p, j);
            }
        for (const auto& zeile : a)
            for (i64 v : zeile)
                if (std::llabs(v) > kGross) return eingabefehler("Die Zahlen werden zu groß.");
        if (a[r][p] != 0) pivotSpalte[r] = p++;
    }
    const int rang = p;
    Ergebnis e;
    e.zeilen.push_back(" Lösung des Diophantischen Gleichungssystems");
    std::vector<i64> y(n, 0);
    int k = 0;
    for (int r = 0; r < m; ++r) {
        __int128 s = b[r];
        for (int j = 0; j < k; ++j) s -= static_cast<__int128>(a[r][j]) * y[j];
        if (pivotSpalte[r] >= 0) {
            if (s % a[r][k] != 0) {
                e.zeilen.push_back("keine ganzzahlige Lösung");
                return e;
            }
            y[k] = static_cast<i64>(s / a[r][k]);
            ++k;
        } else if (s != 0) {
            e.zeilen.push_back("keine ganzzahlige Lösung");
            return e;
        }
    }
    const int frei = n - rang;
    auto parameter = [&](int t) { return frei == 1 ? std::string("k") : "k" + std::to_string(t + 1); };
    for (int i = 0; i < n; ++i) {
        i64 konst = 0;
        for (int j = 0; j < rang; ++j) konst += u[i][j] * y[j];
        std::vector<std::pair<i64, std::string>> t;
        for (int j = rang; j < n; ++j) t.push_back({u[i][j], parameter(j - rang)});
        e.zeilen.push_back("    X" + std::to_string(i + 1) + " = " + linearText(konst, t));
    }
    if (frei > 0) {
        e.zeilen.push_back(std::string(" spezielle Lösung für ") + (frei == 1 ? "k" : "alle k") + " = 1");
        for (int i = 0; i < n; ++i) {
            i64 v = 0;
            for (int j = 0; j < n; ++j) v += u[i][j] * (j < rang ? y[j] : 1);
            e.zeilen.push_back("    X" + std::to_string(i + 1) + " = " + std::to_string(v));
        }
    }
    e.ok = true;
    return e;
}

}  // namespace algebra
