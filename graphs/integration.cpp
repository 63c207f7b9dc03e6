#include "graphs/integration.h"

#include "kernel/realtostr.h"
#include "kernel/term.h"
#include "kernel/termderiv.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <numbers>

namespace graphs {

namespace {

struct Sammler {
    const Termfunktion& f;
    int schlimmster = 0;
    double operator()(double x)
    {
        int e = 0;
        const double v = f(x, e);
        if (e == 2 || e == 1 || e == 4)
            schlimmster = std::max(schlimmster, e == 1 ? 2 : e);
        return (e == 2 || e == 1) ? 0 : v;
    }
};

double trapezsumme(Sammler& f, double a, double b, long n)
{
    const double h = (b - a) / n;
    double s = (f(a) + f(b)) / 2;
    for (long i = 1; i < n; ++i)
        s += f(a + i * h);
    return s * h;
}

std::string z4(double x) { return kernel::RealToStr(1, 4, x); }
std::string z6(double x) { return kernel::RealToStr(1, 6, x); }

bool gross(double x) { return !std::isfinite(x) || std::fabs(x) > 1e300; }

std::string wertMitEinheit(double x, const char* einheit, bool ueberlauf)
{
    if (ueberlauf || gross(x))
        return "Überlauf";
    return z6(x) + einheit;
}

}  // namespace

const char* verfahrensname(Integrationsverfahren v)
{
    switch (v) {
    case Integrationsverfahren::RechteckLinks: return "Rechteckregel (links)";
    case Integrationsverfahren::RechteckRechts: return "Rechteckregel (rechts)";
    case Integrationsverfahren::Mittelpunkt: return "Mittelpunktregel";
    case Integrationsverfahren::Trapez: return "Trapezregel";
    case Integrationsverfahren::Simpson: return "Simpson-Regel";
    case Integrationsverfahren::Kepler: return "Keplersche Fassregel";
    case Integrationsverfahren::Gauss: return "Gauß-Legendre (3 Punkte)";
    case Integrationsverfahren::Romberg: return "Romberg-Verfahren";
    }
    return "";
}

int fehlerordnung(Integrationsverfahren v)
{
    switch (v) {
    case Integrationsverfahren::RechteckLinks:
    case Integrationsverfahren::RechteckRechts: return 1;
    case Integrationsverfahren::Mittelpunkt:
    case Integrationsverfahren::Trapez: return 2;
    case Integrationsverfahren::Simpson: return 4;
    case Integrationsverfahren::Kepler: return 0;
    case Integrationsverfahren::Gauss: return 6;
    case Integrationsverfahren::Romberg: return 12;
    }
    return 0;
}

bool verfahrenAusName(const std::string& name, Integrationsverfahren& v)
{
    std::string s;
    for (char c : name)
        s += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    static const std::pair<const char*, Integrationsverfahren> namen[] = {
        {"links", Integrationsverfahren::RechteckLinks},   {"rechts", Integrationsverfahren::RechteckRechts},
        {"mitte", Integrationsverfahren::Mittelpunkt},     {"trapez", Integrationsverfahren::Trapez},
        {"simpson", Integrationsverfahren::Simpson},       {"kepler", Integrationsverfahren::Kepler},
        {"gauss", Integrationsverfahren::Gauss},           {"romberg", Integrationsverfahren::Romberg}};
    for (const auto& [n, w] : namen)
        if (s == n) {
            v = w;
            return true;
        }
    return false;
}

double integrieren(const Termfunktion& f, double a, double b, int n, Integrationsverfahren v, int* fehler)
{
    Sammler g{f};
    const long m = std::max(1, n);
    const double h = (b - a) / m;
    double s = 0;
    switch (v) {
    case Integrationsverfahren::RechteckLinks:
        for (long i = 0; i < m; ++i)
            s += g(a + i * h);
        s *= h;
        break;
    case Integrationsverfahren::RechteckRechts:
        for (long i = 1; i <= m; ++i)
            s += g(a + i * h);
        s *= h;
        break;
    case Integrationsverfahren::Mittelpunkt:
        for (long i = 0; i < m; ++i)
            s += g(a + (i + 0.5) * h);
        s *= h;
        break;
    case Integrationsverfahren::Trapez: s = trapezsumme(g, a, b, m); break;
    case Integrationsverfahren::Simpson: {
        double rand = g(a) + g(b), mitten = 0, innen = 0;
        for (long i = 0; i < m; ++i)
            mitten += g(a + (i + 0.5) * h);
        for (long i = 1; i < m; ++i)
            innen += g(a + i * h);
        s = h / 6 * (rand + 4 * mitten + 2 * innen);
        break;
    }
    case Integrationsverfahren::Kepler: s = (b - a) / 6 * (g(a) + 4 * g((a + b) / 2) + g(b)); break;
    case Integrationsverfahren::Gauss: {
        // nodes +-sqrt(3/5) with weights 5/9, 8/9 on [-1, 1]
        const double t = std::sqrt(0.6);
        for (long i = 0; i < m; ++i) {
            const double c = a + (i + 0.5) * h, r = h / 2;
            s += r * (5.0 / 9 * g(c - t * r) + 8.0 / 9 * g(c) + 5.0 / 9 * g(c + t * r));
        }
        break;
    }
    case Integrationsverfahren::Romberg: {
        constexpr int stufen = 6;
        double T[stufen][stufen];
        long k = m;
        for (int i = 0; i < stufen; ++i, k *= 2) {
            T[i][0] = trapezsumme(g, a, b, k);
            double faktor = 4;
            for (int j = 1; j <= i; ++j, faktor *= 4)
                T[i][j] = T[i][j - 1] + (T[i][j - 1] - T[i - 1][j - 1]) / (faktor - 1);
        }
        s = T[stufen - 1][stufen - 1];
        break;
    }
    }
    if (fehler)
        *fehler = g.schlimmster;
    return s;
}

bool integralPaarLesen(const std::string& zeile, std::string& f, std::string& F)
{
    const size_t p = zeile.find(';');
    if (p == std::string::npos || p == 0)
        return false;
    f = zeile.substr(0, p);
    F = zeile.substr(p + 1);
    return true;
}

Integrationsergebnis integrationRechnen(const Integrationsvorgabe& v)
{
    Integrationsergebnis r;
    quorix::TermParamP = v.p;
    quorix::TermParamQ = v.q;
    const std::string g = v.g.empty() ? std::string("0") : v.g;
    for (const auto& [term, nr] : {std::pair{v.f, 1}, std::pair{g, 2}}) {
        const std::string m = pruefeTerm(term, nr);
        if (!m.empty()) {
            r.fehler = m;
            return r;
        }
    }
    // antiderivatives are used only when both are at hand (G of g = 0 may be left out)
    const std::string G = v.G.empty() && g == "0" ? std::string("0") : v.G;
    r.exakt = !v.F.empty() && !G.empty() && pruefeTerm(v.F, 3).empty() && pruefeTerm(G, 4).empty();
    const std::string diff = "(" + v.f + ")-(" + g + ")";
    const Termfunktion d = termfunktion(diff);
    const Termfunktion stamm = termfunktion("(" + v.F + ")-(" + G + ")");
    double a = v.a, b = v.b;
    const double vz = b < a ? -1 : 1;
    if (b < a)
        std::swap(a, b);

    auto teil = [&](double u, double w) {
        if (r.exakt) {
            int e1 = 0, e2 = 0;
            const double s = stamm(w, e1) - stamm(u, e2);
            if (e1 == 2 || e2 == 2 || e1 == 4 || e2 == 4)
                r.ueberlauf = true;
            return s;
        }
        int e = 0;
        const double s = integrieren(d, u, w, v.n, v.verfahren, &e);
        if (e == 4)
            r.ueberlauf = true;
        return s;
    };

    r.teilpunkte = nullstellenScan(d, a, b, 1000).stellen;
    std::vector<double> grenzen = {a};
    for (double t : r.teilpunkte)
        if (t > a && t < b)
            grenzen.push_back(t);
    grenzen.push_back(b);
    r.orientiert = 0;
    r.absolut = 0;
    for (size_t i = 0; i + 1 < grenzen.size(); ++i) {
        const double s = teil(grenzen[i], grenzen[i + 1]);
        r.orientiert += s;
        r.absolut += std::fabs(s);
    }
    r.orientiert *= vz;

    // solid of rotation about the x axis, arc length of f, centroid of the area between f and g:
    // always accurately, whatever rule the area was shown with
    const int genau = std::max(v.n, 200);
    const Termfunktion ringe = termfunktion("ABS((" + v.f + ")^2-(" + g + ")^2)");
    int e = 0;
    r.volumen = std::numbers::pi * integrieren(ringe, a, b, genau, Integrationsverfahren::Gauss, &e);
    r.ueberlauf = r.ueberlauf || e == 4 || gross(r.volumen);
    const std::string a1 = quorix::DerivativeTermNice(v.f);
    const Termfunktion f = termfunktion(v.f);
    const Termfunktion bogen = a1.empty() ? Termfunktion([&f](double x, int& fe) {
        const double hh = 1e-5;
        int e1 = 0, e2 = 0;
        const double m = (f(x + hh, e1) - f(x - hh, e2)) / (2 * hh);
        fe = std::max(e1, e2);
        return std::sqrt(1 + m * m);
    })
                                          : termfunktion("SQRT(1+(" + a1 + ")^2)");
    r.bogenlaenge = integrieren(bogen, a, b, genau, Integrationsverfahren::Gauss, &e);
    // centroid of the region between the curves: weights |f-g|, so crossing parts do not cancel
    const std::string breite = "ABS(" + diff + ")";
    const double flaeche = integrieren(termfunktion(breite), a, b, genau, Integrationsverfahren::Gauss);
    if (flaeche > 1e-12) {
        r.schwerpunktDa = true;
        r.schwerpunktX = integrieren(termfunktion("X*" + breite), a, b, genau, Integrationsverfahren::Gauss) / flaeche;
        r.schwerpunktY =
            integrieren(termfunktion("((" + v.f + ")+(" + g + "))/2*" + breite), a, b, genau, Integrationsverfahren::Gauss) / flaeche;
    }
    return r;
}

std::vector<std::string> integrationszeilen(const Integrationsvorgabe& v, const Integrationsergebnis& r)
{
    std::vector<std::string> z;
    z.push_back("Integralrechnung");
    z.push_back("f(x) = " + v.f);
    if (!v.g.empty() && v.g != "0")
        z.push_back("g(x) = " + v.g);
    if (!r.fehler.empty()) {
        z.push_back(r.fehler);
        return z;
    }
    if (!v.F.empty())
        z.push_back("F(x) = " + v.F);
    if (!v.G.empty())
        z.push_back("G(x) = " + v.G);
    z.push_back("Intervall von " + z4(v.a) + " bis " + z4(v.b));
    if (r.exakt)
        z.push_back("Verfahren\tStammfunktion");
    else if (v.verfahren == Integrationsverfahren::Kepler)
        z.push_back(std::string("Verfahren\t") + verfahrensname(v.verfahren));
    else
        z.push_back(std::string("Verfahren\t") + verfahrensname(v.verfahren) + ", n = " + std::to_string(v.n));
    z.push_back("Orientierte Fläche\t" + wertMitEinheit(r.orientiert, " FE", r.ueberlauf));
    z.push_back("Absolute Fläche\t" + wertMitEinheit(r.absolut, " FE", r.ueberlauf));
    if (!r.teilpunkte.empty()) {
        std::string t = "Schnittstellen";
        for (size_t i = 0; i < r.teilpunkte.size(); ++i)
            t += (i ? "; " : "\t") + z4(r.teilpunkte[i]);
        z.push_back(t);
    }
    if (r.ueberlauf || gross(r.volumen))
        z.push_back("Volumen des Rotationskörpers\tÜberlauf");
    else
        z.push_back("Volumen des Rotationskörpers\t" + z6(r.volumen) + " RE\t= " + z6(r.volumen / std::numbers::pi) +
                    " · PI RE");
    z.push_back("Bogenlänge von f\t" + wertMitEinheit(r.bogenlaenge, " LE", false));
    if (r.schwerpunktDa)
        z.push_back("Schwerpunktskoordinaten\t" + z4(r.schwerpunktX) + ";" + z4(r.schwerpunktY));
    else
        z.push_back("Schwerpunktskoordinaten\tnicht bestimmbar");
    return z;
}

std::vector<std::string> verfahrensvergleich(const std::string& f, const std::string& F, double a, double b, int n)
{
    std::vector<std::string> z;
    z.push_back("Integral von " + z4(a) + " bis " + z4(b) + ", n = " + std::to_string(n));
    double exakt = 0;
    bool mitExakt = false;
    if (!F.empty()) {
        int e1 = 0, e2 = 0;
        const Termfunktion s = termfunktion(F);
        exakt = s(b, e1) - s(a, e2);
        mitExakt = e1 == 0 && e2 == 0;
        if (mitExakt)
            z.push_back("Stammfunktion F(x) = " + F + "\t" + z6(exakt));
    }
    const Termfunktion t = termfunktion(f);
    for (int i = 0; i < kVerfahrenAnzahl; ++i) {
        const auto v = static_cast<Integrationsverfahren>(i);
        int e = 0;
        const double w = integrieren(t, a, b, n, v, &e);
        std::string zeile = std::string(verfahrensname(v)) + "\t" + (e == 4 || gross(w) ? "Überlauf" : z6(w));
        if (mitExakt)
            zeile += "\tFehler " + kernel::RealToStr(1, 10, w - exakt);
        if (e == 2)
            zeile += "\t(nicht überall definiert)";
        z.push_back(zeile);
    }
    return z;
}

}  // namespace graphs
