#include "graphs/analysis.h"

#include "kernel/numeric.h"
#include "kernel/realtostr.h"
#include "kernel/term.h"
#include "kernel/termderiv.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <numbers>

namespace graphs {

namespace {

constexpr double kGross = 1000000;  // values at least this large count as unbounded

std::string z3(double x) { return kernel::RealToStr(1, 3, x); }
std::string z4(double x) { return kernel::RealToStr(1, 4, x); }

bool definiert(int e) { return e != 1 && e != 2; }

std::string normiert(const std::string& t)
{
    std::string r;
    for (char c : t)
        if (c != ' ')
            r += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return r;
}

// Brent on [a, b] in which f changes sign; values of faults count as 0 for the finder.
double verfeinern(const Termfunktion& f, double a, double b)
{
    return kernel::FindRootBrent(
        [&f](double x) {
            int e = 0;
            return f(x, e);
        },
        250, 1e-12, a, b);
}

// One monomial c*X^n of a polynomial text; false if the text is not of that form.
bool monomLesen(const std::string& s, size_t& i, double& c, int& n)
{
    double vz = 1;
    if (i < s.size() && (s[i] == '+' || s[i] == '-'))
        vz = s[i++] == '-' ? -1 : 1;
    c = 1;
    n = 0;
    bool etwas = false;
    const size_t start = i;
    while (i < s.size() && (std::isdigit(static_cast<unsigned char>(s[i])) || s[i] == '.'))
        ++i;
    if (i > start) {
        c = std::stod(s.substr(start, i - start));
        etwas = true;
        if (i < s.size() && s[i] == '*')
            ++i;
        else if (i < s.size() && s[i] == 'X')
            return false;  // "2X" is no term of the language
    }
    if (i < s.size() && s[i] == 'X') {
        ++i;
        n = 1;
        etwas = true;
        if (i < s.size() && s[i] == '^') {
            ++i;
            const size_t e0 = i;
            while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i])))
                ++i;
            if (i == e0)
                return false;
            n = std::stoi(s.substr(e0, i - e0));
        }
    } else if (etwas && i > 0 && s[i - 1] == '*') {
        return false;
    }
    if (i < s.size() && s[i] == '/') {
        ++i;
        const size_t d0 = i;
        while (i < s.size() && (std::isdigit(static_cast<unsigned char>(s[i])) || s[i] == '.'))
            ++i;
        if (i == d0)
            return false;
        const double d = std::stod(s.substr(d0, i - d0));
        if (d == 0)
            return false;
        c /= d;
    }
    c *= vz;
    return etwas && (i == s.size() || s[i] == '+' || s[i] == '-');
}

std::string polynomStammfunktion(const std::string& term)
{
    const std::string s = normiert(term);
    if (s.empty())
        return {};
    std::string r;
    size_t i = 0;
    while (i < s.size()) {
        double c = 0;
        int n = 0;
        if (!monomLesen(s, i, c, n) || n > 50)
            return {};
        if (c == 0)
            continue;
        const double k = c / (n + 1);
        const int m = n + 1;
        std::string teil;
        if (k == -1)
            teil = "-";
        else if (k != 1)
            teil = kernel::RealToStrDot(1, 10, k) + "*";
        teil += m == 1 ? "X" : "X^" + std::to_string(m);
        if (!r.empty() && teil[0] != '-')
            r += "+";
        r += teil;
    }
    return r.empty() ? "0" : r;
}

double numerischeAbleitung(const Termfunktion& f, double x, int& fehler)
{
    const double h = 1e-5;
    int e1 = 0, e2 = 0;
    const double a = f(x + h, e1), b = f(x - h, e2);
    fehler = definiert(e1) && definiert(e2) ? 0 : 2;
    return (a - b) / (2 * h);
}

}  // namespace

Termfunktion termfunktion(const std::string& term)
{
    return [term](double x, int& fehler) {
        quorix::TermError = 0;
        const double v = quorix::EvalTerm(term, x);
        fehler = quorix::TermError;
        return v;
    };
}

std::string pruefeTerm(const std::string& term, int nummer)
{
    quorix::TermError = 0;
    quorix::EvalTerm(term, 0.123456);
    const bool leer = normiert(term).empty();
    if (quorix::TermError == 1 || leer)
        return "Funktion" + std::to_string(nummer) + " fehlerhaft";
    return {};
}

Nullstellensuche nullstellenScan(const Termfunktion& f, double von, double bis, int schritte)
{
    Nullstellensuche r;
    if (schritte < 1)
        schritte = 1;
    if (bis < von)
        std::swap(von, bis);
    const double h = (bis - von) / schritte;
    int k = 0, e = 0;
    // points where the function is not defined at the start are skipped
    double y = f(von, e);
    while (!definiert(e) && k < schritte) {
        ++k;
        y = f(von + k * h, e);
    }
    if (!definiert(e)) {
        r.fehler = true;
        return r;
    }
    double yVor = 0;  // the value before a grid point of value 0
    bool vorDa = false;
    for (; k < schritte; ++k) {
        const double x = von + k * h, x2 = von + (k + 1) * h;
        int e2 = 0;
        const double y2 = f(x2, e2);
        if (!definiert(e2)) {
            // a gap: start afresh behind it
            vorDa = false;
            y = y2;
            e = e2;
            continue;
        }
        if (!definiert(e)) {
            y = y2;
            e = e2;
            continue;
        }
        if (y * y2 < 0 && std::fabs(y * y2) < 100)
            r.stellen.push_back(verfeinern(f, x, x2));
        else if (y == 0 && vorDa && yVor * y2 < 0 && std::fabs(yVor * y2) < 100)
            r.stellen.push_back(x);
        if (y != 0) {
            yVor = y;
            vorDa = true;
        }
        y = y2;
        e = e2;
    }
    return r;
}

Symmetrie symmetrieTesten(const Termfunktion& f, double weite)
{
    if (!(weite > 0))
        weite = 10;
    bool achse = true, punkt = true;
    int paare = 0;
    for (int i = 0; i < 40; ++i) {
        const double x = weite * (i + 0.37) / 40;
        int e1 = 0, e2 = 0;
        const double a = f(x, e1), b = f(-x, e2);
        if (!definiert(e1) || !definiert(e2) || e1 == 4 || e2 == 4)
            continue;
        ++paare;
        const double tol = 1e-9 * (1 + std::max(std::fabs(a), std::fabs(b)));
        achse = achse && std::fabs(a - b) <= tol;
        punkt = punkt && std::fabs(a + b) <= tol;
    }
    if (paare < 5)
        return Symmetrie::Keine;
    if (achse)
        return Symmetrie::Achse;
    return punkt ? Symmetrie::Punkt : Symmetrie::Keine;
}

std::string verhaltenImUnendlichen(const Termfunktion& f, int richtung)
{
    std::vector<double> werte;
    bool ueberlauf = false;
    double letzte = 0;
    for (int k = 2; k <= 9; ++k) {
        int e = 0;
        const double v = f(richtung * std::pow(10.0, k), e);
        if (e == 4 || (e == 2 && !werte.empty() && std::fabs(letzte) >= kGross)) {
            ueberlauf = true;
            letzte = e == 4 ? v : letzte;
            break;
        }
        if (!definiert(e))
            continue;
        werte.push_back(v);
        letzte = v;
    }
    if (ueberlauf)
        return letzte < 0 ? "-unendlich" : "+unendlich";
    if (werte.size() < 3)
        return "nicht definiert";
    const size_t n = werte.size();
    const double a = werte[n - 3], b = werte[n - 2], c = werte[n - 1];
    if (std::fabs(c) >= kGross && std::fabs(c) > std::fabs(b) && std::fabs(b) > std::fabs(a) &&
        (b > 0) == (c > 0))
        return c < 0 ? "-unendlich" : "+unendlich";
    const double tol = 1e-5 * (1 + std::fabs(c));
    if (std::fabs(c - b) <= tol && std::fabs(b - a) <= 100 * tol)
        return z4(c);
    return "unbestimmt";
}

std::string stammfunktionSuchen(const std::string& term, const std::vector<std::string>& stammfunktionen)
{
    const std::string t = normiert(term);
    for (const std::string& zeile : stammfunktionen) {
        const size_t p = zeile.find(';');
        if (p != std::string::npos && normiert(zeile.substr(0, p)) == t)
            return normiert(zeile.substr(p + 1));
    }
    return polynomStammfunktion(t);
}

Diskussion diskutieren(const Diskussionsvorgabe& v, const std::vector<std::string>& stammfunktionen)
{
    Diskussion d;
    quorix::TermParamP = v.p;
    quorix::TermParamQ = v.q;
    quorix::TermParamR = v.r;
    d.fehler = pruefeTerm(v.term, 1);
    if (!d.fehler.empty())
        return d;
    const Termfunktion f = termfunktion(v.term);
    d.ableitung1 = quorix::DerivativeTermNice(v.term);
    if (!d.ableitung1.empty())
        d.ableitung2 = quorix::DerivativeTermNice(d.ableitung1);
    d.stammfunktion = stammfunktionSuchen(v.term, stammfunktionen);

    double von = v.von, bis = v.bis;
    if (bis < von)
        std::swap(von, bis);
    const int n = std::max(1, v.schritte);
    const double h = (bis - von) / n;

    int e = 0;
    d.yAchse = f(0, e);
    d.yAchseDefiniert = definiert(e) && e != 4;

    d.minWert = 1000000;
    d.maxWert = -1000000;
    for (int k = 0; k <= n; ++k) {
        const double x = von + k * h;
        const double y = f(x, e);
        if (!definiert(e))
            continue;
        if (std::fabs(y) >= kGross || e == 4) {
            d.unbeschraenkt = true;
            continue;
        }
        if (y < d.minWert) {
            d.minWert = y;
            d.minX = x;
            d.minGefunden = true;
        }
        if (y > d.maxWert) {
            d.maxWert = y;
            d.maxX = x;
            d.maxGefunden = true;
        }
    }

    const Nullstellensuche ns = nullstellenScan(f, von, bis, n);
    d.nichtBerechenbar = ns.fehler;
    d.nullstellen = ns.stellen;

    if (!d.ableitung1.empty() && !ns.fehler) {
        const Termfunktion f1 = termfunktion(d.ableitung1);
        const Termfunktion f2 = d.ableitung2.empty() ? Termfunktion() : termfunktion(d.ableitung2);
        for (double x : nullstellenScan(f1, von, bis, n).stellen) {
            Extrempunkt p;
            p.x = x;
            p.y = f(x, e);
            if (!definiert(e))
                continue;
            // the kind by the second derivative, by the sign change of f' where that is flat
            double k2 = 0;
            int e2 = 2;
            if (f2)
                k2 = f2(x, e2);
            if (!definiert(e2) || std::fabs(k2) < 1e-9) {
                int ea = 0, eb = 0;
                const double dx = std::max(h / 10, 1e-6);
                const double links = f1(x - dx, ea), rechts = f1(x + dx, eb);
                k2 = rechts - links;
            }
            p.art = k2 > 0 ? Extremart::Minimum : k2 < 0 ? Extremart::Maximum : Extremart::Sattel;
            d.extrema.push_back(p);
        }
        if (f2)
            for (double x : nullstellenScan(f2, von, bis, n).stellen) {
                const double y = f(x, e);
                if (definiert(e))
                    d.wendepunkte.push_back({x, y});
            }
    }

    d.symmetrie = symmetrieTesten(f, std::max(std::fabs(von), std::fabs(bis)));
    d.verhaltenLinks = verhaltenImUnendlichen(f, -1);
    d.verhaltenRechts = verhaltenImUnendlichen(f, 1);
    return d;
}

std::vector<std::string> diskussionszeilen(const Diskussionsvorgabe& v, const Diskussion& d)
{
    std::vector<std::string> z;
    z.push_back("Funktion f(x)\t" + v.term);
    if (!d.fehler.empty()) {
        z.push_back(d.fehler);
        return z;
    }
    z.push_back("Ableitung Y' = " + d.ableitung1);
    z.push_back("Ableitung Y'' = " + d.ableitung2);
    z.push_back("Stammfunktion F(x) = " + (d.stammfunktion.empty() ? std::string("nicht bekannt") : d.stammfunktion));
    z.push_back("Parameter P = " + z4(v.p) + ", Parameter Q = " + z4(v.q));
    z.push_back("Intervall von " + z4(std::min(v.von, v.bis)) + " bis " + z4(std::max(v.von, v.bis)));
    z.push_back("Ergebnisse");
    if (d.yAchseDefiniert)
        z.push_back("Schnitt mit y-Achse y = " + z4(d.yAchse));
    else
        z.push_back("Kein Schnitt mit der y-Achse");
    if (d.minGefunden)
        z.push_back("minimaler Funktionswert = " + z4(d.minWert) + " bei x = " + z4(d.minX));
    if (d.maxGefunden)
        z.push_back("maximaler Funktionswert = " + z4(d.maxWert) + " bei x = " + z4(d.maxX));
    if (d.unbeschraenkt)
        z.push_back("Funktion im Intervall unbeschränkt");
    switch (d.symmetrie) {
    case Symmetrie::Achse: z.push_back("Symmetrie\tachsensymmetrisch zur y-Achse"); break;
    case Symmetrie::Punkt: z.push_back("Symmetrie\tpunktsymmetrisch zum Ursprung"); break;
    case Symmetrie::Keine: z.push_back("Symmetrie\tkeine Symmetrie zur y-Achse oder zum Ursprung"); break;
    }
    z.push_back("Verhalten für x gegen -unendlich\tf(x) gegen " + d.verhaltenLinks);
    z.push_back("Verhalten für x gegen +unendlich\tf(x) gegen " + d.verhaltenRechts);
    z.push_back("Nullstellen");
    if (d.nichtBerechenbar) {
        z.push_back("Funktion ist nicht korrekt berechenbar!");
        return z;
    }
    for (double x : d.nullstellen)
        z.push_back("Nullstelle x = " + z3(x));
    if (d.nullstellen.empty())
        z.push_back("keine Nullstelle gefunden");
    if (d.ableitung1.empty())
        return z;
    z.push_back("Extrempunkte");
    for (const Extrempunkt& p : d.extrema) {
        const char* art = p.art == Extremart::Minimum ? "Tiefpunkt" : p.art == Extremart::Maximum ? "Hochpunkt"
                                                                                                  : "Sattelpunkt";
        z.push_back(std::string(art) + "\t(" + z3(p.x) + " | " + z3(p.y) + ")");
    }
    if (d.extrema.empty())
        z.push_back("keine Extrempunkte gefunden");
    z.push_back("Wendepunkte");
    for (const Kurvenpunkt& p : d.wendepunkte)
        z.push_back("Wendepunkt\t(" + z3(p.x) + " | " + z3(p.y) + ")");
    if (d.wendepunkte.empty())
        z.push_back(d.ableitung2.empty() ? "2.Ableitung nicht bestimmbar" : "keine Wendepunkte gefunden");
    return z;
}

std::vector<std::string> wertetabelle(const std::string& term, double von, double bis, double schritt,
                                      const std::string& stammfunktion)
{
    std::vector<std::string> z = {"Wertetabelle", "x\tf(x)\tf'(x)\tf''(x)\tF(x)"};
    if (!(schritt > 0))
        schritt = (bis - von) / 20;
    if (!(schritt > 0))
        return z;
    const std::string a1 = quorix::DerivativeTermNice(term);
    const std::string a2 = a1.empty() ? std::string() : quorix::DerivativeTermNice(a1);
    auto zelle = [](const std::string& t, double x) -> std::string {
        if (t.empty())
            return "---";
        quorix::TermError = 0;
        const double v = quorix::EvalTerm(t, x);
        if (quorix::TermError == 1)
            return "---";
        if (quorix::TermError == 2)
            return "nicht def.";
        if (quorix::TermError == 4)
            return "Überlauf";
        return kernel::RealToStr(1, 6, v);
    };
    const long anzahl = std::min<long>(10000, static_cast<long>(std::floor((bis - von) / schritt + 1e-9)));
    for (long k = 0; k <= anzahl; ++k) {
        const double x = von + k * schritt;
        z.push_back(kernel::RealToStr(1, 6, x) + "\t" + zelle(term, x) + "\t" + zelle(a1, x) + "\t" + zelle(a2, x) +
                    "\t" + zelle(stammfunktion, x));
    }
    return z;
}

double anstiegswinkel(double m) { return std::atan(m) * 180 / std::numbers::pi; }

std::string geradengleichung(double m, double n)
{
    const std::string nt = kernel::RealToStr(1, 4, n);
    const std::string mt = kernel::RealToStr(1, 4, m);
    if (mt == "0")
        return nt;  // a horizontal line
    std::string s = mt + "*x";
    if (nt != "0")
        s += (nt[0] == '-' ? "" : "+") + nt;
    return s;
}

std::vector<Schnittpunkt> schnittpunkte(const std::string& f, const std::string& g, double von, double bis,
                                        int schritte)
{
    std::vector<Schnittpunkt> r;
    const std::string diff = "(" + f + ")-(" + g + ")";
    const Termfunktion ff = termfunktion(f), gf = termfunktion(g);
    for (double x : nullstellenScan(termfunktion(diff), von, bis, schritte).stellen) {
        Schnittpunkt s;
        int e = 0;
        s.x = x;
        s.y = ff(x, e);
        const double h = 0.001;
        int e1, e2, e3, e4;
        const double mf = (ff(x + h, e1) - ff(x - h, e2)) / (2 * h);
        const double mg = (gf(x + h, e3) - gf(x - h, e4)) / (2 * h);
        s.winkelF = anstiegswinkel(mf);
        s.winkelG = anstiegswinkel(mg);
        double w = std::fabs(s.winkelF - s.winkelG);
        if (w > 90)
            w = 180 - w;
        s.schnittwinkel = w;
        r.push_back(s);
    }
    return r;
}

std::vector<std::string> schnittzeilen(const std::string& f, const std::string& g, int nf, int ng,
                                       const std::vector<Schnittpunkt>& s)
{
    std::vector<std::string> z;
    z.push_back("Schnittpunkte der Funktionen " + std::to_string(nf) + " und " + std::to_string(ng));
    z.push_back("f" + std::to_string(nf) + "(x) = " + f + "\tf" + std::to_string(ng) + "(x) = " + g);
    for (const Schnittpunkt& p : s) {
        z.push_back("(" + z4(p.x) + " | " + z4(p.y) + ")");
        z.push_back("Anstiegswinkel f(" + std::to_string(nf) + ") = " + z3(p.winkelF) + "°");
        z.push_back("Anstiegswinkel f(" + std::to_string(ng) + ") = " + z3(p.winkelG) + "°");
        z.push_back("Schnittwinkel = " + z3(p.schnittwinkel) + "°");
    }
    if (s.empty())
        z.push_back("keine Schnittpunkte gefunden");
    return z;
}

TangenteNormale tangenteNormale(const std::string& term, double x0)
{
    TangenteNormale t;
    t.x0 = x0;
    const Termfunktion f = termfunktion(term);
    int e = 0;
    t.y0 = f(x0, e);
    if (!definiert(e) || e == 4)
        return t;
    const std::string a1 = quorix::DerivativeTermNice(term);
    if (!a1.empty()) {
        t.ableitung = termfunktion(a1)(x0, e);
        if (!definiert(e))
            t.ableitung = numerischeAbleitung(f, x0, e);
        const std::string a2 = quorix::DerivativeTermNice(a1);
        if (!a2.empty()) {
            t.ableitung2 = termfunktion(a2)(x0, e);
            t.zweiteDefiniert = definiert(e);
        }
    } else {
        t.ableitung = numerischeAbleitung(f, x0, e);
    }
    if (!definiert(e) && a1.empty())
        return t;
    t.definiert = true;
    t.tangenteM = t.ableitung;
    t.tangenteN = t.y0 - t.ableitung * x0;
    t.normaleSenkrecht = t.ableitung == 0;
    if (!t.normaleSenkrecht) {
        t.normaleM = -1 / t.ableitung;
        t.normaleN = t.y0 - t.normaleM * x0;
    }
    return t;
}

std::vector<std::string> tangentenzeilen(const TangenteNormale& t)
{
    std::vector<std::string> z;
    z.push_back("Untersuchte Stelle x\t" + z4(t.x0));
    if (!t.definiert) {
        z.push_back("Kein Funktionswert bestimmbar !");
        return z;
    }
    z.push_back("Funktionswert = " + z4(t.y0));
    z.push_back("Funktionswert der 1.Ableitung = " + z4(t.ableitung));
    z.push_back("Funktionswert der 2.Ableitung = " + (t.zweiteDefiniert ? z4(t.ableitung2) : std::string("---")));
    z.push_back("Anstieg der Tangente = " + z4(t.tangenteM));
    z.push_back("Anstiegswinkel (in °) der Tangente = " + z3(anstiegswinkel(t.tangenteM)));
    z.push_back("Tangentengleichung \ty = " + geradengleichung(t.tangenteM, t.tangenteN));
    z.push_back("Abstand zu (0,0)\t" + z4(std::fabs(t.tangenteN) / std::sqrt(1 + t.tangenteM * t.tangenteM)));
    z.push_back("Nullstelle der Tangente bei\t" +
                (t.tangenteM == 0 ? std::string("Kein") : z4(-t.tangenteN / t.tangenteM)));
    if (t.normaleSenkrecht) {
        z.push_back("Anstieg der Normale = Pol");
        z.push_back("Anstiegswinkel (in °) der Normale = 90");
        z.push_back("Normalengleichung");
        z.push_back("\tx = " + z4(t.x0));
        z.push_back("Nullstelle der Normale bei\t" + z4(t.x0));
    } else {
        z.push_back("Anstieg der Normale = " + z4(t.normaleM));
        z.push_back("Anstiegswinkel (in °) der Normale = " + z3(anstiegswinkel(t.normaleM)));
        z.push_back("Normalengleichung");
        z.push_back("\ty = " + geradengleichung(t.normaleM, t.normaleN));
        z.push_back("Nullstelle der Normale bei\t" +
                    (t.normaleM == 0 ? std::string("Kein") : z4(-t.normaleN / t.normaleM)));
    }
    return z;
}

std::vector<Kurvenpunkt> tangentenVonPunkt(const std::string& term, double px, double py, double von, double bis,
                                           bool normale)
{
    std::vector<Kurvenpunkt> r;
    const std::string a1 = quorix::DerivativeTermNice(term);
    if (a1.empty())
        return r;
    // the point enters the condition as the parameters P and Q
    quorix::TermParamP = px;
    quorix::TermParamQ = py;
    const std::string bedingung = normale ? "(-1/(" + a1 + "))*(P-X)-Q+(" + term + ")"
                                          : "(" + a1 + ")*(P-X)-Q+(" + term + ")";
    const Termfunktion f = termfunktion(term);
    for (double x : nullstellenScan(termfunktion(bedingung), von, bis, 1000).stellen) {
        int e = 0;
        const double y = f(x, e);
        if (definiert(e))
            r.push_back({x, y});
    }
    return r;
}

std::vector<std::string> tangentenVonPunktZeilen(const std::string& term, double px, double py, double von,
                                                 double bis, bool normale)
{
    const double p0 = quorix::TermParamP, q0 = quorix::TermParamQ;
    const std::vector<Kurvenpunkt> punkte = tangentenVonPunkt(term, px, py, von, bis, normale);
    quorix::TermParamP = p0;
    quorix::TermParamQ = q0;
    std::vector<std::string> z;
    z.push_back(std::string(normale ? "Normalen von P an Funktion" : "Tangenten von P an Funktion") + "\tP(" + z4(px) +
                " | " + z4(py) + ")");
    std::vector<double> anstiege;
    for (const Kurvenpunkt& k : punkte) {
        const TangenteNormale t = tangenteNormale(term, k.x);
        const double m = normale ? t.normaleM : t.tangenteM;
        const double n = normale ? t.normaleN : t.tangenteN;
        anstiege.push_back(m);
        z.push_back(std::string(normale ? "Schnittpunkt" : "Berührungspunkt") + "\t(" + z4(k.x) + " | " + z4(k.y) +
                    ")\ty = " + geradengleichung(m, n));
        z.push_back(std::string(normale ? "Abstand Punkt-Schnittpunkt\t" : "Abstand Punkt-Berührungspunkt\t") +
                    z4(std::hypot(k.x - px, k.y - py)));
    }
    if (punkte.empty())
        z.push_back(normale ? "keine Normale gefunden" : "keine Tangente gefunden");
    if (!normale && anstiege.size() == 2) {
        // both tangents pass through P, so P is their intersection
        z.push_back("Schnittpunkt der Tangenten \t(" + z4(px) + ";" + z4(py) + ")");
        double w = std::fabs(anstiegswinkel(anstiege[0]) - anstiegswinkel(anstiege[1]));
        if (w > 90)
            w = 180 - w;
        z.push_back("Schnittwinkel der Tangenten \t" + z3(w) + "°");
    }
    return z;
}

}  // namespace graphs
