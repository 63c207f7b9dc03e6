// Systems of up to three first-order differential equations: Runge-Kutta with step doubling.
#include "algebra/algebraseiten.h"

#include "kernel/term.h"

#include <array>
#include <cctype>
#include <cmath>

namespace algebra {

namespace {

using Zustand = std::array<double, 3>;

// Y1, Y2, Y3 (and Y for Y1) become the interpreter's P, Q, R; X stays.
std::string umschreibenDgl(const std::string& term)
{
    std::string out;
    size_t i = 0;
    while (i < term.size()) {
        if (!std::isalpha(static_cast<unsigned char>(term[i]))) {
            out += term[i++];
            continue;
        }
        size_t j = i;
        while (j < term.size() && std::isalnum(static_cast<unsigned char>(term[j]))) ++j;
        const std::string wort = term.substr(i, j - i);
        if (wort == "Y" || wort == "Y1") out += "P";
        else if (wort == "Y2") out += "Q";
        else if (wort == "Y3") out += "R";
        else out += wort;
        i = j;
    }
    return out;
}

struct Dgl {
    std::array<std::string, 3> terme;
    int anzahl = 0;

    bool ableitung(double x, const Zustand& y, Zustand& d) const
    {
        quorix::TermParamP = y[0];
        quorix::TermParamQ = y[1];
        quorix::TermParamR = y[2];
        d = {0, 0, 0};
        for (int k = 0; k < anzahl; ++k) {
            d[k] = quorix::EvalTerm(terme[k], x);
            if (quorix::TermError != 0 || !std::isfinite(d[k])) return false;
        }
        return true;
    }

    // `n` classical Runge-Kutta steps over [x, x + breite].
    bool rk4(double x, double breite, int n, Zustand& y) const
    {
        const double h = breite / n;
        for (int i = 0; i < n; ++i) {
            Zustand k1, k2, k3, k4, t;
            const double xi = x + i * h;
            if (!ableitung(xi, y, k1)) return false;
            for (int j = 0; j < 3; ++j) t[j] = y[j] + h / 2 * k1[j];
            if (!ableitung(xi + h / 2, t, k2)) return false;
            for (int j = 0; j < 3; ++j) t[j] = y[j] + h / 2 * k2[j];
            if (!ableitung(xi + h / 2, t, k3)) return false;
            for (int j = 0; j < 3; ++j) t[j] = y[j] + h * k3[j];
            if (!ableitung(xi + h, t, k4)) return false;
            for (int j = 0; j < 3; ++j) y[j] += h / 6 * (k1[j] + 2 * k2[j] + 2 * k3[j] + k4[j]);
        }
        return true;
    }
};

}  // namespace

Ergebnis dglSeite(const std::vector<std::string>& f)
{
    if (f.size() != 8) return eingabefehler("Das Differenzialgleichungssystem braucht drei Terme, x0, drei Startwerte und das Ende.");
    Dgl d;
    for (int k = 0; k < 3; ++k) {
        const std::string t = termText(f[k]);
        if (t.find_first_not_of(' ') == std::string::npos) break;
        d.terme[d.anzahl] = umschreibenDgl(t);
        quorix::EvalTerm(d.terme[d.anzahl], 0.0);
        if (quorix::TermError == 1) return eingabefehler("Der Term ist fehlerhaft: " + f[k]);
        ++d.anzahl;
    }
    if (d.anzahl == 0) return eingabefehler("Bitte mindestens die erste Gleichung eingeben.");
    double x0, ende;
    Zustand y{0, 0, 0};
    if (!leseZahl(f[3], x0) || !leseZahl(f[7], ende)) return eingabefehler("Ungültiger Start- oder Endwert von x.");
    for (int k = 0; k < d.anzahl; ++k)
        if (!leseZahl(f[4 + k], y[k])) return eingabefehler("Ungültiger Startwert: " + f[4 + k]);
    if (std::fabs(ende - x0) > 1000) return eingabefehler("Der Bereich von x darf höchstens 1000 lang sein.");
    Ergebnis e;
    e.zeilen.push_back("X\tY1\tY2\tY3\tH");
    auto zeile = [&](double x, const Zustand& z, double h) {
        std::string s = zahl(x, 4);
        for (int k = 0; k < 3; ++k) s += "\t" + (k < d.anzahl ? zahl(z[k], 6) : std::string());
        e.zeilen.push_back(s + "\t" + (h > 0 ? zahl(h, 6) : std::string()));
    };
    zeile(x0, y, 0);
    const double richtung = ende >= x0 ? 1 : -1;
    const int intervalle = static_cast<int>(std::ceil(std::fabs(ende - x0) / 0.1 - 1e-9));
    double x = x0;
    for (int i = 0; i < intervalle; ++i) {
        const double breite = (i + 1 == intervalle) ? ende - x : richtung * 0.1;
        // double the substeps until two passes agree; 4 substeps to start with
        int n = 4;
        Zustand grob = y;
        if (!d.rk4(x, breite, n, grob)) {
            e.zeilen.push_back("Abbruch");
            return e;
        }
        Zustand fein;
        for (;;) {
            fein = y;
            if (!d.rk4(x, breite, 2 * n, fein)) {
                e.zeilen.push_back("Abbruch");
                return e;
            }
            double diff = 0, mass = 1;
            for (int k = 0; k < 3; ++k) {
                diff = std::max(diff, std::fabs(fein[k] - grob[k]));
                mass = std::max(mass, std::fabs(fein[k]));
            }
            n *= 2;
            if (diff <= 1e-9 * mass || n >= 4096) break;
            grob = fein;
        }
        y = fein;
        x += breite;
        zeile(x, y, std::fabs(breite) / n);
    }
    e.ok = true;
    return e;
}

}  // namespace algebra
