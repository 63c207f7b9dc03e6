// Equations and inequalities in one variable: the scan for sign changes and the polynomial page.
#include "algebra/algebraseiten.h"

#include "kernel/numeric.h"
#include "kernel/term.h"

#include <cmath>

namespace algebra {

namespace {

struct Differenz {
    std::string term;
    double operator()(double x, bool& fehler) const
    {
        const double v = quorix::EvalTerm(term, x);
        fehler = quorix::TermError != 0 || !std::isfinite(v);
        return v;
    }
};

bool leseSeiten(const std::string& links, const std::string& rechts, Differenz& d, std::string& fehler)
{
    const std::string l = termText(links), r = termText(rechts);
    if (l.find_first_not_of(' ') == std::string::npos || r.find_first_not_of(' ') == std::string::npos) {
        fehler = "Bitte beide Seiten der Gleichung eingeben.";
        return false;
    }
    d.term = "(" + l + ")-(" + r + ")";
    quorix::EvalTerm(d.term, 0.0);
    if (quorix::TermError == 1) {
        fehler = "Der Term ist fehlerhaft: " + links + " = " + rechts;
        return false;
    }
    return true;
}

bool leseIntervall(const std::string& ta, const std::string& tb, double& a, double& b, std::string& fehler)
{
    if (!leseZahl(ta, a) || !leseZahl(tb, b)) {
        fehler = "Ungültige Intervallgrenze.";
        return false;
    }
    if (b <= a) b = a + 5;
    return true;
}

// The roots where f changes its sign, in ascending order. Poles are rejected by the size of
// f(x)·f(x+h); a touching root without a sign change is not seen, by design.
std::vector<double> nullstellen(const Differenz& f, double a, double b)
{
    std::vector<double> r;
    const double h = (b - a) / 1000;
    bool e1 = false;
    double x = a;
    double y1 = f(x, e1);
    for (int i = 0; i < 1000; ++i) {
        bool e2 = false;
        const double x2 = a + (i + 1) * h;
        const double y2 = f(x2, e2);
        if (!e1 && !e2) {
            const double p = y1 * y2;
            if (y2 == 0) {
                // a root on the grid counts only when the sign changes across it
                bool e3 = false;
                const double y3 = f(x2 + h, e3);
                if (!e3 && y1 * y3 < 0 && std::fabs(y1 * y3) < 100) r.push_back(x2);
            } else if (p < 0 && std::fabs(p) < 100) {
                const double tol = std::fabs(2 * x + h) * 1e-6 / 2 + 1e-12;
                auto g = [&f](double t) {
                    bool e;
                    return f(t, e);
                };
                r.push_back(kernel::FindRootBrent(g, 100, tol, x, x2));
            }
        }
        x = x2;
        y1 = y2;
        e1 = e2;
    }
    return r;
}

}  // namespace

Ergebnis gleichungSeite(const std::vector<std::string>& f)
{
    if (f.size() != 4) return eingabefehler("Die Gleichung braucht linke und rechte Seite, a und b.");
    Differenz d;
    std::string fehler;
    double a, b;
    if (!leseSeiten(f[0], f[1], d, fehler) || !leseIntervall(f[2], f[3], a, b, fehler)) return eingabefehler(fehler);
    Ergebnis e;
    e.zeilen.push_back("Lösungen im Intervall [ " + zahl(a) + " ; " + zahl(b) + " ]");
    for (double x : nullstellen(d, a, b)) e.zeilen.push_back("X = " + zahl(x, 6));
    e.ok = e.zeilen.size() > 1;
    if (!e.ok) e.zeilen.push_back("Keine Lösung gefunden");
    return e;
}

Ergebnis ungleichungSeite(const std::vector<std::string>& f)
{
    if (f.size() != 5) return eingabefehler("Die Ungleichung braucht linke Seite, Relation, rechte Seite, a und b.");
    std::string rel;
    for (char c : f[1])
        if (c != ' ') rel += c;
    if (rel == "=<") rel = "<=";
    if (rel == "=>") rel = ">=";
    if (rel != "<" && rel != "<=" && rel != ">" && rel != ">=")
        return eingabefehler("Relation muss <, <=, > oder >= sein.");
    Differenz d;
    std::string fehler;
    double a, b;
    if (!leseSeiten(f[0], f[2], d, fehler) || !leseIntervall(f[3], f[4], a, b, fehler)) return eingabefehler(fehler);
    const bool kleiner = rel[0] == '<';
    const bool strikt = rel.size() == 1;
    auto erfuellt = [&](double x) {
        bool err;
        const double v = d(x, err);
        if (err) return false;
        return kleiner ? (strikt ? v < 0 : v <= 0) : (strikt ? v > 0 : v >= 0);
    };
    std::vector<double> grenzen = {a};
    for (double r : nullstellen(d, a, b)) grenzen.push_back(r);
    grenzen.push_back(b);
    Ergebnis e;
    e.zeilen.push_back(f[0] + " " + rel + " " + f[2] + " im Intervall [ " + zahl(a) + " ; " + zahl(b) + " ]");
    // Neighbouring fulfilled intervals merge; a root between them belongs to the set unless
    // the relation is strict.
    const int stuecke = static_cast<int>(grenzen.size()) - 1;
    auto intervall = [&](int von, int bis) {
        const bool offenLinks = strikt && von > 0, offenRechts = strikt && bis < stuecke;
        e.zeilen.push_back(std::string(offenLinks ? "] " : "[ ") + zahl(grenzen[von]) + " ; " + zahl(grenzen[bis]) +
                           (offenRechts ? " [" : " ]"));
    };
    int start = -1;
    for (int i = 0; i < stuecke; ++i) {
        if (erfuellt((grenzen[i] + grenzen[i + 1]) / 2)) {
            if (start >= 0 && strikt) {
                intervall(start, i);  // the root between two pieces fails a strict relation
                start = -1;
            }
            if (start < 0) start = i;
        } else if (start >= 0) {
            intervall(start, i);
            start = -1;
        }
    }
    if (start >= 0) intervall(start, stuecke);
    e.ok = e.zeilen.size() > 1;
    if (!e.ok) e.zeilen.push_back("Keine Lösung gefunden");
    return e;
}

namespace {

double horner(const std::vector<double>& p, double x)  // p[0] is the leading coefficient
{
    double s = 0;
    for (double c : p) s = s * x + c;
    return s;
}

std::string polynomText(const std::vector<double>& p)  // leading first, degree = size-1
{
    std::string s;
    const int grad = static_cast<int>(p.size()) - 1;
    for (int i = 0; i <= grad; ++i) {
        const double c = p[i];
        if (c == 0) continue;
        const int k = grad - i;
        std::string teil = (c < 0 ? "-" : (s.empty() ? "" : "+")) + zahl(std::fabs(c), 6);
        if (k >= 1) {
            if (std::fabs(c) == 1) teil = teil.substr(0, teil.size() - 1);  // no "1*"
            else teil += "*";
            teil += "X";
            if (k > 1) teil += "^" + std::to_string(k);
        }
        s += teil;
    }
    return s.empty() ? "0" : s;
}

std::vector<double> ableitung(const std::vector<double>& p)
{
    std::vector<double> d;
    const int grad = static_cast<int>(p.size()) - 1;
    for (int i = 0; i < grad; ++i) d.push_back(p[i] * (grad - i));
    if (d.empty()) d.push_back(0);
    return d;
}

}  // namespace

Ergebnis polynomSeite(const std::vector<std::string>& f)
{
    if (f.size() != 7) return eingabefehler("Die ganzrationale Gleichung braucht sieben Koeffizienten a6 ... a0.");
    std::vector<double> p;
    for (const auto& t : f) {
        double v = 0;
        if (t.find_first_not_of(' ') != std::string::npos && !leseZahl(t, v))
            return eingabefehler("Ungültige Zahl: " + t);
        p.push_back(v);
    }
    while (p.size() > 1 && p.front() == 0) p.erase(p.begin());
    Ergebnis e;
    e.zeilen.push_back("f(x) = " + polynomText(p));
    std::vector<double> rest = p;
    int nummer = 0;
    while (rest.size() > 1) {
        bool gefunden = false;
        double a = -15 + 0.01, fa = horner(rest, a);
        for (int i = 1; a < 15 && !gefunden; ++i) {
            const double b = -15 + 0.01 * (i + 1), fb = horner(rest, b);
            // a zero on the grid counts only with a sign change across it
            const bool gitter = fb == 0 && fa * horner(rest, b + 0.01) < 0;
            if ((fa * fb < 0 || gitter) && std::fabs(fa * fb) < 2) {
                double lo = a, hi = b, flo = fa, m = b;
                if (!gitter)
                    for (int k = 0; k < 1000; ++k) {
                        m = (lo + hi) / 2;
                        const double fm = horner(rest, m);
                        if (std::fabs(fm) <= 0.00005) break;
                        if (flo * fm < 0) hi = m;
                        else {
                            lo = m;
                            flo = fm;
                        }
                    }
                // one degree less by Horner's scheme
                std::vector<double> q;
                double s = 0;
                for (size_t k = 0; k + 1 < rest.size(); ++k) {
                    s = s * m + rest[k];
                    q.push_back(s);
                }
                rest = q;
                e.zeilen.push_back("x" + std::to_string(++nummer) + " = " + zahl(m, 4));
                gefunden = true;
            }
            a = b;
            fa = fb;
        }
        if (!gefunden) break;
    }
    if (nummer == 0) e.zeilen.push_back("Keine reelle Lösung zwischen -15 und 15 gefunden");
    const auto d1 = ableitung(p);
    e.zeilen.push_back("1.Ableitung : Y = " + polynomText(d1));
    e.zeilen.push_back("2.Ableitung : Y = " + polynomText(ableitung(d1)));
    e.ok = nummer > 0;
    return e;
}

}  // namespace algebra
