#include "graphs/analysis_plot.h"

#include "kernel/termderiv.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace graphs {

const char* const kPlotoptionText[kPlotoptionen] = {
    "Funktionsschar",         "f(-x)",                  "-f(x)",                 "-f(-x)",
    "f(f(x))",                "Stammfunktion zu f1",    "Umkehrkurve zu f1",     "numerische Ableitung",
    "numerische 2.Ableitung", "numerische 3.Ableitung", "Bereich PQ markieren",  "Y-Bereich PQ markieren",
    "Gerade X = P",           "Gerade X = Q",           "Gerade X = R",          "Gerade Y = P",
    "Gerade Y = Q",           "Gerade Y = R",           "Fläche f1...f2 für PQ", "markierte Punkte",
    "Evolute (Krümmung)"};

namespace {

void punkte(Skriptliste& s, const char* farbe, const std::vector<Kurvenpunkt>& p)
{
    if (p.empty())
        return;
    s.addText("#w");
    s.addText(farbe);
    for (const Kurvenpunkt& k : p) {
        s.addReal(k.x);
        s.addReal(k.y);
    }
    s.addText("...");
}

}  // namespace

bool evolutenTerme(const std::string& term, std::string& xTerm, std::string& yTerm)
{
    const std::string a1 = quorix::DerivativeTermNice(term);
    const std::string a2 = a1.empty() ? std::string() : quorix::DerivativeTermNice(a1);
    if (a2.empty())
        return false;
    // centre of curvature: x - f'(1+f'^2)/f'', f + (1+f'^2)/f''
    xTerm = "X-(" + a1 + ")*(1+(" + a1 + ")^2)/(" + a2 + ")";
    yTerm = "(" + term + ")+(1+(" + a1 + ")^2)/(" + a2 + ")";
    return true;
}

void diskussionspunkteSchreiben(Skriptliste& s, const Diskussion& d)
{
    std::vector<Kurvenpunkt> n, e;
    for (double x : d.nullstellen)
        n.push_back({x, 0});
    for (const Extrempunkt& p : d.extrema)
        e.push_back({p.x, p.y});
    punkte(s, "rot", n);
    punkte(s, "blau", e);
    punkte(s, "gruen", d.wendepunkte);
}

void plotSkriptSchreiben(Skriptliste& s, const std::array<std::string, 6>& terme, const Plotwahl& w, double p,
                         double q, double r, const Diskussion* d)
{
    s.leeren();
    const std::string& f1 = terme[0];
    const auto& o = w.option;
    if (o[0] && !f1.empty()) {
        s.addText("#S");
        s.addText(f1);
    }
    for (int i = 0; i < 6; ++i)
        if (w.feld[i] && !terme[i].empty())
            s.addFunktion(terme[i]);
    // derived curves of f1 as subkinds of "#A"
    static const char* art[] = {nullptr, "3", "4", "5", "6", "7", "8", "1", "2", "9"};
    for (int i = 1; i <= 9; ++i)
        if (o[i] && !f1.empty()) {
            s.addText("#A");
            s.addText(art[i]);
            s.addText(f1);
        }
    auto band = [&](const char* befehl, double a, double b) {
        s.addText(befehl);
        s.addReal(a);
        s.addReal(b);
    };
    if (o[10])
        band("#H", p, q);
    if (o[11])
        band("#h", p, q);
    const double werte[3] = {p, q, r};
    for (int i = 0; i < 3; ++i) {
        if (o[12 + i]) {
            s.addText("#G");
            s.addReal(werte[i]);
        }
        if (o[15 + i]) {
            s.addText("#j");
            s.addReal(werte[i]);
        }
    }
    if (o[18] && !f1.empty()) {
        s.addText("#V");
        s.addText(f1);
        s.addText(terme[1].empty() ? std::string("0") : terme[1]);
        s.addReal(p);
        s.addReal(q);
    }
    if (o[19] && d)
        diskussionspunkteSchreiben(s, *d);
    std::string ex, ey;
    if (o[20] && !f1.empty() && evolutenTerme(f1, ex, ey)) {
        s.addText("#K");
        s.addText(ex + "|" + ey);
        s.addReal(-10);
        s.addReal(10);
        s.addReal(0.01);
        s.addReal(0);
        s.addReal(0);
    }
}

Bereich bildbereich(const std::string& term, double von, double bis)
{
    Bereich b;
    if (bis < von)
        std::swap(von, bis);
    if (!(bis > von))
        bis = von + 1;
    b.xmin = von;
    b.xmax = bis;
    std::vector<double> w;
    const Termfunktion f = termfunktion(term);
    for (int k = 0; k <= 400; ++k) {
        int e = 0;
        const double y = f(von + (bis - von) * k / 400, e);
        if (e == 0 && std::isfinite(y))
            w.push_back(y);
    }
    if (w.size() < 2) {
        b.ymin = -5;
        b.ymax = 5;
        return b;
    }
    // the 2nd and 98th percentile: a pole must not squash the rest of the curve
    std::sort(w.begin(), w.end());
    double lo = w[w.size() * 2 / 100], hi = w[(w.size() - 1) * 98 / 100];
    lo = std::min(lo, 0.0);
    hi = std::max(hi, 0.0);
    if (hi - lo < 1e-9) {
        lo -= 1;
        hi += 1;
    }
    const double rand = (hi - lo) * 0.1;
    b.ymin = lo - rand;
    b.ymax = hi + rand;
    return b;
}

}  // namespace graphs
