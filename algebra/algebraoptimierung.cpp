// Linear optimisation in X, Y, Z >= 0: two-phase simplex with Bland's rule.
#include "algebra/algebraseiten.h"

#include <algorithm>
#include <cctype>
#include <cmath>

namespace algebra {

namespace {

constexpr double kEps = 1e-9;

// "23*X+12*Y-Z" -> coefficients of X, Y, Z; false on anything else.
bool leseLinear(const std::string& text, double c[3])
{
    c[0] = c[1] = c[2] = 0;
    std::string s;
    for (char ch : termText(text))
        if (ch != ' ') s += ch;
    if (s.empty()) return false;
    size_t i = 0;
    while (i < s.size()) {
        double vz = 1;
        if (s[i] == '+' || s[i] == '-') {
            vz = s[i] == '-' ? -1 : 1;
            ++i;
        } else if (i > 0) {
            return false;
        }
        size_t j = i;
        while (j < s.size() && (std::isdigit(static_cast<unsigned char>(s[j])) || s[j] == '.')) ++j;
        double k = 1;
        if (j > i) {
            k = std::atof(s.substr(i, j - i).c_str());
            if (j < s.size() && s[j] == '*') ++j;
        }
        if (j >= s.size() || (s[j] != 'X' && s[j] != 'Y' && s[j] != 'Z')) return false;
        c[s[j] - 'X'] += vz * k;
        i = j + 1;
    }
    return true;
}

struct Tableau {
    int m = 0, spalten = 0;  // rows, columns without the right side
    std::vector<std::vector<double>> a;  // m rows of spalten + 1
    std::vector<double> z;               // reduced costs; enter while negative
    std::vector<int> basis;

    void pivot(int r, int c)
    {
        const double p = a[r][c];
        for (double& v : a[r]) v /= p;
        for (int i = 0; i < m; ++i)
            if (i != r && a[i][c] != 0) {
                const double f = a[i][c];
                for (int j = 0; j <= spalten; ++j) a[i][j] -= f * a[r][j];
            }
        const double f = z[c];
        for (int j = 0; j <= spalten; ++j) z[j] -= f * a[r][j];
        basis[r] = c;
    }

    // 0 optimal, 1 unbounded; columns from `erlaubt` on are never chosen.
    int loese(int erlaubt)
    {
        for (int schritt = 0; schritt < 5000; ++schritt) {
            int c = -1;
            for (int j = 0; j < erlaubt; ++j)
                if (z[j] < -kEps) {
                    c = j;
                    break;
                }
            if (c < 0) return 0;
            int r = -1;
            double best = 0;
            for (int i = 0; i < m; ++i)
                if (a[i][c] > kEps) {
                    const double q = a[i][spalten] / a[i][c];
                    if (r < 0 || q < best - kEps || (std::fabs(q - best) <= kEps && basis[i] < basis[r])) {
                        r = i;
                        best = q;
                    }
                }
            if (r < 0) return 1;
            pivot(r, c);
        }
        return 0;
    }
};

// Clips a convex polygon by a x + b y <= c (Sutherland-Hodgman).
std::vector<Punkt2> schneide(const std::vector<Punkt2>& poly, double a, double b, double c)
{
    std::vector<Punkt2> out;
    const size_t n = poly.size();
    for (size_t i = 0; i < n; ++i) {
        const Punkt2 p = poly[i], q = poly[(i + 1) % n];
        const double fp = a * p.x + b * p.y - c, fq = a * q.x + b * q.y - c;
        if (fp <= 1e-9) out.push_back(p);
        if ((fp < -1e-9 && fq > 1e-9) || (fp > 1e-9 && fq < -1e-9)) {
            const double t = fp / (fp - fq);
            out.push_back({p.x + t * (q.x - p.x), p.y + t * (q.y - p.y)});
        }
    }
    // drop repeated corners that clipping through a vertex leaves behind
    std::vector<Punkt2> r;
    for (const auto& p : out)
        if (r.empty() || std::fabs(r.back().x - p.x) + std::fabs(r.back().y - p.y) > 1e-9) r.push_back(p);
    while (r.size() > 1 && std::fabs(r.front().x - r.back().x) + std::fabs(r.front().y - r.back().y) <= 1e-9) r.pop_back();
    return r;
}

}  // namespace

Grafik2D optimierungsGrafik(const std::vector<std::string>& f)
{
    Grafik2D g;
    if (f.size() < 3) return g;
    double ziel[3];
    if (!leseLinear(f[0], ziel) || ziel[2] != 0) return g;
    double groesste = 1;
    for (size_t i = 2; i < f.size(); ++i) {
        if (f[i].find_first_not_of(' ') == std::string::npos) continue;
        const size_t p = f[i].find_first_of("<>");
        double k[3], b;
        std::string rechts = p == std::string::npos ? "" : f[i].substr(p + 1);
        if (!rechts.empty() && rechts[0] == '=') rechts.erase(0, 1);
        if (p == std::string::npos || !leseLinear(f[i].substr(0, p), k) || !leseZahl(rechts, b) || k[2] != 0) return Grafik2D{};
        if (f[i][p] == '>') {
            k[0] = -k[0];
            k[1] = -k[1];
            b = -b;
        }
        g.geraden.push_back({k[0], k[1], b});
        for (double kk : {k[0], k[1]})
            if (std::fabs(kk) > 1e-12) groesste = std::max(groesste, std::fabs(b / kk));
    }
    if (g.geraden.empty()) return g;
    g.ziel = {ziel[0], ziel[1]};
    // a box larger than every axis intercept stands for the open quadrant
    g.rand = 2 * groesste;
    std::vector<Punkt2> poly = {{0, 0}, {g.rand, 0}, {g.rand, g.rand}, {0, g.rand}};
    for (const auto& l : g.geraden) poly = schneide(poly, l[0], l[1], l[2]);
    g.ecken = poly;
    g.ok = true;
    return g;
}

Ergebnis optimierungSeite(const std::vector<std::string>& f)
{
    if (f.size() < 3) return eingabefehler("Die Optimierung braucht die Zielfunktion, Maximum oder Minimum und Bedingungen.");
    double ziel[3];
    if (!leseLinear(f[0], ziel)) return eingabefehler("Zielfunktion z.B. 3*X+2*Y eingeben.");
    std::string art;
    for (char ch : f[1]) art += static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
    const bool maximum = art.rfind("max", 0) == 0;
    if (!maximum && art.rfind("min", 0) != 0) return eingabefehler("Bitte Maximum oder Minimum angeben.");
    struct Bedingung {
        double k[3];
        bool groesser;
        double b;
    };
    std::vector<Bedingung> bed;
    for (size_t i = 2; i < f.size(); ++i) {
        if (f[i].find_first_not_of(' ') == std::string::npos) continue;
        const size_t p = f[i].find_first_of("<>");
        Bedingung b{};
        if (p == std::string::npos) return eingabefehler("Eingabeform z.B. 23*X+12*Y<23");
        b.groesser = f[i][p] == '>';
        std::string rechts = f[i].substr(p + 1);
        if (!rechts.empty() && rechts[0] == '=') rechts.erase(0, 1);
        if (!leseLinear(f[i].substr(0, p), b.k) || !leseZahl(rechts, b.b))
            return eingabefehler("Eingabeform z.B. 23*X+12*Y<23: " + f[i]);
        if (b.b < 0) {  // the tableau wants right sides >= 0
            for (double& v : b.k) v = -v;
            b.b = -b.b;
            b.groesser = !b.groesser;
        }
        bed.push_back(b);
    }
    if (bed.empty()) return eingabefehler("Bitte mindestens eine Bedingung eingeben.");
    // columns: X, Y, Z, one slack or surplus per row, then one artificial per ">" row
    const int m = static_cast<int>(bed.size());
    int kuenstlich = 0;
    for (const auto& b : bed) kuenstlich += b.groesser;
    Tableau t;
    t.m = m;
    t.spalten = 3 + m + kuenstlich;
    t.a.assign(m, std::vector<double>(t.spalten + 1, 0.0));
    t.basis.assign(m, 0);
    t.z.assign(t.spalten + 1, 0.0);
    int naechste = 3 + m;
    for (int i = 0; i < m; ++i) {
        for (int j = 0; j < 3; ++j) t.a[i][j] = bed[i].k[j];
        t.a[i][3 + i] = bed[i].groesser ? -1 : 1;
        t.a[i][t.spalten] = bed[i].b;
        if (bed[i].groesser) {
            t.a[i][naechste] = 1;
            t.basis[i] = naechste++;
        } else {
            t.basis[i] = 3 + i;
        }
    }
    Ergebnis e;
    if (kuenstlich > 0) {
        // phase 1: drive the artificial variables to zero
        for (int j = 3 + m; j < t.spalten; ++j) t.z[j] = 1;
        for (int i = 0; i < m; ++i)
            if (t.basis[i] >= 3 + m)
                for (int j = 0; j <= t.spalten; ++j) t.z[j] -= t.a[i][j];
        t.loese(3 + m);
        if (-t.z[t.spalten] > 1e-7) {
            e.zeilen = {"Nicht lösbar !", "Keine Lösung"};
            return e;
        }
        for (int i = 0; i < m; ++i)
            if (t.basis[i] >= 3 + m)
                for (int j = 0; j < 3 + m; ++j)
                    if (std::fabs(t.a[i][j]) > kEps) {
                        t.pivot(i, j);
                        break;
                    }
    }
    // phase 2 with the real objective
    std::fill(t.z.begin(), t.z.end(), 0.0);
    for (int j = 0; j < 3; ++j) t.z[j] = maximum ? -ziel[j] : ziel[j];
    for (int i = 0; i < m; ++i) {
        const double f2 = t.z[t.basis[i]];
        if (f2 != 0)
            for (int j = 0; j <= t.spalten; ++j) t.z[j] -= f2 * t.a[i][j];
    }
    if (t.loese(3 + m) == 1) {
        e.zeilen = {"Zielfunktion unbeschränkt", "Keine Lösung"};
        return e;
    }
    double x[3] = {0, 0, 0};
    for (int i = 0; i < m; ++i)
        if (t.basis[i] < 3) x[t.basis[i]] = t.a[i][t.spalten];
    const double wert = ziel[0] * x[0] + ziel[1] * x[1] + ziel[2] * x[2];
    e.zeilen.push_back(std::string(maximum ? "Maximum = " : "Minimum = ") + zahl(wert));
    e.zeilen.push_back("Optimum x = " + zahl(x[0]) + "; y = " + zahl(x[1]) + "; z = " + zahl(x[2]));
    const Grafik2D g = optimierungsGrafik(f);
    if (g.ok) {
        // the corners of the feasible polygon, as the graphic solution shows them
        e.zeilen.push_back("Ecken des Bereichs der zulässigen Punkte:");
        e.zeilen.push_back("Ecke\tx\ty\tZielwert");
        for (const auto& p : g.ecken)
            if (p.x < g.rand * 0.999 && p.y < g.rand * 0.999)
                e.zeilen.push_back("(P)\t" + zahl(p.x) + "\t" + zahl(p.y) + "\t" + zahl(ziel[0] * p.x + ziel[1] * p.y));
    }
    e.ok = true;
    return e;
}

}  // namespace algebra
