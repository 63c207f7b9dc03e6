// Nonlinear systems in X, Y, U, V: Broyden's method from a grid of starts.
#include "algebra/algebraseiten.h"

#include "kernel/term.h"

#include <array>
#include <cctype>
#include <cmath>

namespace algebra {

namespace {

constexpr char kVariablen[] = "XYUV";
constexpr char kErsatz[] = "XPQR";  // the interpreter's names of the same variables

// Rewrites the standalone letters Y, U, V (not parts of function names such as EXP or MAX)
// and notes which of the four variables occur.
std::string umschreiben(const std::string& term, std::array<bool, 4>& benutzt)
{
    std::string out = term;
    size_t i = 0;
    while (i < out.size()) {
        if (!std::isalpha(static_cast<unsigned char>(out[i]))) {
            ++i;
            continue;
        }
        size_t j = i;
        while (j < out.size() && std::isalnum(static_cast<unsigned char>(out[j]))) ++j;
        if (j - i == 1)
            for (int v = 0; v < 4; ++v)
                if (out[i] == kVariablen[v]) {
                    benutzt[v] = true;
                    out[i] = kErsatz[v];
                }
        i = j;
    }
    return out;
}

struct System {
    std::vector<std::string> terme;
    std::vector<int> variablen;  // 0..3 for X, Y, U, V

    bool werte(const std::vector<double>& z, std::vector<double>& f) const
    {
        double v[4] = {0, 0, 0, 0};
        for (size_t k = 0; k < variablen.size(); ++k) v[variablen[k]] = z[k];
        quorix::TermParamP = v[1];
        quorix::TermParamQ = v[2];
        quorix::TermParamR = v[3];
        f.resize(terme.size());
        for (size_t k = 0; k < terme.size(); ++k) {
            f[k] = quorix::EvalTerm(terme[k], v[0]);
            if (quorix::TermError != 0 || !std::isfinite(f[k])) return false;
        }
        return true;
    }
};

double norm(const std::vector<double>& v)
{
    double s = 0;
    for (double x : v) s += x * x;
    return std::sqrt(s);
}

// One attempt of Broyden's method; true with a point of small residual.
bool broyden(const System& s, std::vector<double>& x, double& rest)
{
    const size_t n = x.size();
    std::vector<std::vector<double>> h(n, std::vector<double>(n, 0.0));
    for (size_t i = 0; i < n; ++i) h[i][i] = 1;
    std::vector<double> f, fneu;
    if (!s.werte(x, f)) return false;
    for (int schritt = 0; schritt < 200; ++schritt) {
        if (norm(f) < 1e-10) break;
        std::vector<double> d(n, 0.0);
        for (size_t i = 0; i < n; ++i)
            for (size_t j = 0; j < n; ++j) d[i] -= h[i][j] * f[j];
        for (size_t i = 0; i < n; ++i) x[i] += d[i];
        if (norm(x) > 1e8 || !s.werte(x, fneu)) return false;
        std::vector<double> y(n), hy(n, 0.0), dh(n, 0.0);
        for (size_t i = 0; i < n; ++i) y[i] = fneu[i] - f[i];
        for (size_t i = 0; i < n; ++i)
            for (size_t j = 0; j < n; ++j) {
                hy[i] += h[i][j] * y[j];
                dh[j] += d[i] * h[i][j];
            }
        double nenner = 0;
        for (size_t i = 0; i < n; ++i) nenner += d[i] * hy[i];
        f = fneu;
        if (std::fabs(nenner) < 1e-300) break;
        // rank-one secant update of the inverse Jacobian
        for (size_t i = 0; i < n; ++i)
            for (size_t j = 0; j < n; ++j) h[i][j] += (d[i] - hy[i]) * dh[j] / nenner;
    }
    rest = norm(f);
    return rest < 1e-8;
}

}  // namespace

Ergebnis nichtlinearSeite(const std::vector<std::string>& f, Abbruch* abbruch)
{
    System s;
    std::array<bool, 4> benutzt{};
    for (const auto& t : f) {
        const std::string term = termText(t);
        if (term.find_first_not_of(' ') == std::string::npos) continue;
        s.terme.push_back(umschreiben(term, benutzt));
        quorix::EvalTerm(s.terme.back(), 0.0);
        if (quorix::TermError == 1) return eingabefehler("Der Term ist fehlerhaft: 0 = " + t);
    }
    if (s.terme.empty()) return eingabefehler("Bitte mindestens eine Gleichung eingeben.");
    for (int v = 0; v < 4; ++v)
        if (benutzt[v]) s.variablen.push_back(v);
    Ergebnis e;
    if (s.variablen.size() != s.terme.size()) {
        e.zeilen.push_back("Keine Lösung bestimmbar!");
        return e;
    }
    const size_t n = s.variablen.size();
    std::vector<std::vector<double>> loesungen;
    e.zeilen.push_back("Ergebnis");
    e.zeilen.push_back("X\tY\tU\tV\tNorm");
    for (int k = -100; k <= 100; ++k) {
        if (abbruch) {
            if (abbruch->melden) abbruch->melden(abbruch->ctx, (k + 100) / 2);
            if (abbruch->gestoppt) {
                e.zeilen.push_back("Abbruch");
                break;
            }
        }
        std::vector<double> x(n, k / 4.0);
        double rest = 0;
        if (!broyden(s, x, rest)) continue;
        bool neu = true;
        for (const auto& l : loesungen) {
            double d = 0;
            for (size_t i = 0; i < n; ++i) d = std::max(d, std::fabs(l[i] - x[i]));
            if (d < 1e-3 * (1 + norm(x))) neu = false;  // slow convergence at a multiple root scatters a little
        }
        if (!neu) continue;
        loesungen.push_back(x);
        std::string zeile;
        size_t k2 = 0;
        for (int v = 0; v < 4; ++v) {
            if (benutzt[v]) zeile += zahl(x[k2++], 6);
            zeile += "\t";
        }
        e.zeilen.push_back(zeile + zahl(rest, 12));
    }
    if (loesungen.empty()) {
        e.zeilen.clear();
        if (abbruch && abbruch->gestoppt) e.zeilen.push_back("Abbruch");
        e.zeilen.push_back("Keine Lösung gefunden");
    } else {
        e.ok = true;
    }
    if (!abbruch || !abbruch->gestoppt) e.zeilen.push_back("Status 100%");
    return e;
}

}  // namespace algebra
