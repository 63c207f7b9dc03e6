#include "algebra/uglsystem.h"

#include "algebra/algebra.h"

#include <algorithm>
#include <cmath>

namespace algebra {

namespace {

constexpr double kNull = 1e-10;

std::string schrittZeile(const std::vector<double>& zeile)
{
    std::string s;
    for (size_t i = 0; i < zeile.size(); ++i) {
        if (i) s += '\t';
        s += zahl(zeile[i], 4);
    }
    return s;
}

// Reduced row echelon form in place; returns the pivot column of each pivot row.
std::vector<int> reduziere(LgsMatrix& m, int spalten, double& det, bool mitSchritten,
                           std::vector<std::string>& schritte)
{
    const int zeilen = static_cast<int>(m.size());
    double skala = 0;
    for (const auto& z : m)
        for (int j = 0; j < spalten; ++j) skala = std::max(skala, std::fabs(z[j]));
    const double eps = kNull * std::max(1.0, skala);
    std::vector<int> pivots;
    det = 1;
    int r = 0;
    for (int c = 0; c < spalten && r < zeilen; ++c) {
        int best = r;
        for (int i = r + 1; i < zeilen; ++i)
            if (std::fabs(m[i][c]) > std::fabs(m[best][c])) best = i;
        if (std::fabs(m[best][c]) <= eps) {
            det = 0;
            continue;
        }
        if (best != r) {
            std::swap(m[best], m[r]);
            det = -det;
        }
        const double p = m[r][c];
        det *= p;
        for (auto& v : m[r]) v /= p;
        for (int i = 0; i < zeilen; ++i) {
            if (i == r || m[i][c] == 0) continue;
            const double f = m[i][c];
            for (size_t j = 0; j < m[i].size(); ++j) m[i][j] -= f * m[r][j];
            m[i][c] = 0;
        }
        pivots.push_back(c);
        ++r;
        if (mitSchritten) {
            schritte.push_back("Schritt " + std::to_string(r));
            for (const auto& z : m) schritte.push_back(schrittZeile(z));
        }
    }
    if (static_cast<int>(pivots.size()) < spalten) det = 0;
    return pivots;
}

}  // namespace

LgsLoesung loeseLgs(const LgsMatrix& zeilen, int n, bool mitSchritten)
{
    LgsLoesung l;
    const int m = static_cast<int>(zeilen.size());
    if (m > n) {
        // Least squares through the normal equations A^T A x = A^T b.
        LgsMatrix normal(n, std::vector<double>(n + 1, 0.0));
        for (int i = 0; i < n; ++i)
            for (int j = 0; j <= n; ++j)
                for (int k = 0; k < m; ++k) normal[i][j] += zeilen[k][i] * zeilen[k][j];
        double det = 0;
        std::vector<std::string> unbenutzt;
        LgsMatrix r = normal;
        const auto piv = reduziere(r, n, det, false, unbenutzt);
        if (static_cast<int>(piv.size()) == n) {
            l.art = LgsArt::naeherung;
            l.x.resize(n);
            for (int i = 0; i < n; ++i) l.x[i] = r[i][n];
            double s = 0;
            for (int k = 0; k < m; ++k) {
                double d = -zeilen[k][n];
                for (int j = 0; j < n; ++j) d += zeilen[k][j] * l.x[j];
                s += d * d;
            }
            l.residuum = std::sqrt(s);
            return l;
        }
    }
    LgsMatrix a = zeilen;
    for (auto& z : a) z.resize(n + 1, 0.0);
    double det = 0;
    const auto piv = reduziere(a, n, det, mitSchritten, l.schritte);
    l.determinante = (m == n) ? det : 0;
    const int rang = static_cast<int>(piv.size());
    double skala = 0;
    for (const auto& z : zeilen)
        for (double v : z) skala = std::max(skala, std::fabs(v));
    for (int i = rang; i < static_cast<int>(a.size()); ++i)
        if (std::fabs(a[i][n]) > 1e-9 * std::max(1.0, skala)) {
            l.art = LgsArt::unloesbar;
            return l;
        }
    l.x.assign(n, 0.0);
    for (int i = 0; i < rang; ++i) l.x[piv[i]] = a[i][n];
    if (rang == n) {
        l.art = LgsArt::eindeutig;
        return l;
    }
    l.art = LgsArt::parametrisch;
    for (int c = 0; c < n; ++c) {
        if (std::find(piv.begin(), piv.end(), c) != piv.end()) continue;
        l.freie.push_back(c);
        std::vector<double> d(n, 0.0);
        d[c] = 1;
        for (int i = 0; i < rang; ++i) d[piv[i]] = -a[i][c];
        l.richtungen.push_back(d);
    }
    return l;
}

namespace {

std::string parameterName(size_t k, size_t anzahl)
{
    return anzahl == 1 ? std::string("e") : "e" + std::to_string(k + 1);
}

std::string wertZeile(const std::string& name, int index, double v)
{
    return "    " + name + std::to_string(index + 1) + " = " + zahl(v, 8);
}

}  // namespace

std::vector<std::string> lgsZeilen(const LgsLoesung& l, int gleichungen, int n)
{
    std::vector<std::string> z;
    if (!l.schritte.empty()) {
        z.push_back("Konstruktion der Diagonalmatrix");
        std::string kopf;
        for (int i = 1; i <= 10; ++i) kopf += "X" + std::to_string(i) + "\t";
        z.push_back(kopf + "B");
        z.insert(z.end(), l.schritte.begin(), l.schritte.end());
        z.push_back("");
    }
    z.push_back(" Lösung des Gleichungssystems");
    switch (l.art) {
    case LgsArt::unloesbar:
        z.push_back("System nicht lösbar!");
        break;
    case LgsArt::eindeutig:
        z.push_back("Lösung mit dem Gauß-Verfahren");
        for (int i = 0; i < n; ++i) z.push_back(wertZeile("X", i, l.x[i]));
        break;
    case LgsArt::naeherung:
        for (int i = 0; i < n; ++i) z.push_back(wertZeile("x", i, l.x[i]) + " ; Näherung");
        z.push_back("Pseudolösung mit Eulerscher Norm " + zahl(l.residuum, 8));
        break;
    case LgsArt::parametrisch: {
        z.push_back("Lösung mit dem Gauß-Verfahren, unendlich viele Lösungen");
        const size_t p = l.freie.size();
        for (int i = 0; i < n; ++i) {
            std::string s = "    X" + std::to_string(i + 1) + " = ";
            bool leer = true;
            if (std::fabs(l.x[i]) > 1e-12) {
                s += zahl(l.x[i], 8);
                leer = false;
            }
            for (size_t k = 0; k < p; ++k) {
                const double c = l.richtungen[k][i];
                if (std::fabs(c) < 1e-12) continue;
                std::string faktor = std::fabs(std::fabs(c) - 1) < 1e-12 ? "" : zahl(std::fabs(c), 8) + "*";
                if (leer)
                    s += (c < 0 ? "-" : "") + faktor + parameterName(k, p);
                else
                    s += (c < 0 ? " - " : " + ") + faktor + parameterName(k, p);
                leer = false;
            }
            if (leer) s += "0";
            z.push_back(s);
        }
        // One chosen value shows a concrete solution that the user can check.
        const double e = 1;
        z.push_back("Spezielle Lösung für " + std::string(p == 1 ? "e" : "alle e") + " = " + zahl(e));
        for (int i = 0; i < n; ++i) {
            double v = l.x[i];
            for (size_t k = 0; k < p; ++k) v += e * l.richtungen[k][i];
            z.push_back(wertZeile("X", i, v));
        }
        break;
    }
    }
    if (gleichungen == n) z.push_back(" Determinante der Koeffizientenmatrix " + zahl(l.determinante, 8));
    return z;
}

}  // namespace algebra
