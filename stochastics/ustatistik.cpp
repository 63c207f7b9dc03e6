#include "stochastics/ustatistik.h"

#include "kernel/realtostr.h"
#include "kernel/term.h"
#include "stochastics/ugamdist.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <numeric>

namespace zufall {

namespace {
const std::string kUnbestimmt = "unbestimmt";

std::string zeile(const std::string& name, double wert) { return name + "\t" + zahl(wert); }

double summe(const std::vector<double>& v) { return std::accumulate(v.begin(), v.end(), 0.0); }

// Slope, intercept and correlation of the straight line through (u, v).
bool gerade(const std::vector<double>& u, const std::vector<double>& v, double& a, double& b, double& r)
{
    const size_t n = u.size();
    if (n < 2) return false;
    const double mu = summe(u) / n, mv = summe(v) / n;
    double suu = 0, svv = 0, suv = 0;
    for (size_t i = 0; i < n; ++i) {
        suu += (u[i] - mu) * (u[i] - mu);
        svv += (v[i] - mv) * (v[i] - mv);
        suv += (u[i] - mu) * (v[i] - mv);
    }
    if (suu == 0) return false;
    b = suv / suu;
    a = mv - b * mu;
    r = svv == 0 ? 1 : suv / std::sqrt(suu * svv);
    return true;
}
}  // namespace

std::string zahl(double x, int stellen)
{
    if (std::isnan(x)) return kUnbestimmt;
    if (std::fabs(x) >= 1e15 || (x != 0 && std::fabs(x) < 1e-6)) {
        char buf[40];
        std::snprintf(buf, sizeof buf, "%.*e", stellen, x);
        std::string s = buf;
        if (kernel::UseDecimalComma) std::replace(s.begin(), s.end(), '.', ',');
        return s;
    }
    return kernel::RealToStr(1, stellen, x);
}

std::string termZahl(double x)
{
    // the interpreter knows no negative exponents: very small and very large constants go
    // through EXP so that eight decimals never round them away
    const double a = std::fabs(x);
    if (x != 0 && std::isfinite(x) && (a < 1e-3 || a >= 1e12))
        return std::string(x < 0 ? "(-" : "") + "EXP(" + kernel::RealToStrDot(1, 8, std::log(a)) + ")" + (x < 0 ? ")" : "");
    return kernel::RealToStrDot(1, 8, x);
}

std::string termKlammer(double x) { return x < 0 ? "(" + termZahl(x) + ")" : termZahl(x); }

std::vector<double> leseZahlen(const std::string& text, std::string* fehler)
{
    std::vector<double> werte;
    std::string wort;
    auto fertig = [&] {
        if (wort.empty()) return;
        std::string t = wort;
        std::replace(t.begin(), t.end(), ',', '.');
        char* ende = nullptr;
        const double v = std::strtod(t.c_str(), &ende);
        if (ende && *ende == '\0' && std::isfinite(v)) werte.push_back(v);
        else if (fehler && fehler->empty()) *fehler = wort;
        wort.clear();
    };
    for (char c : text) {
        if (c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == ';')
            fertig();
        else
            wort += c;
    }
    fertig();
    return werte;
}

std::vector<std::vector<Punkt>> termKurve(const std::string& term, double von, double bis, int schritte)
{
    std::vector<std::vector<Punkt>> kurven(1);
    for (int i = 0; i <= schritte; ++i) {
        const double x = von + (bis - von) * i / schritte;
        const double y = quorix::EvalTerm(term, x);
        if (quorix::TermError != 0 || !std::isfinite(y)) {
            if (!kurven.back().empty()) kurven.emplace_back();
            continue;
        }
        kurven.back().push_back({x, y});
    }
    if (kurven.back().empty()) kurven.pop_back();
    return kurven;
}

// ---------------------------------------------------------------- descriptive

double stichprobenQuantil(std::vector<double> w, double p)
{
    if (w.empty()) return std::nan("");
    std::sort(w.begin(), w.end());
    const double h = (w.size() - 1) * p;
    const size_t i = static_cast<size_t>(std::floor(h));
    if (i + 1 >= w.size()) return w.back();
    return w[i] + (h - i) * (w[i + 1] - w[i]);
}

Kennwerte kennwerte(const std::vector<double>& w)
{
    Kennwerte k;
    k.n = static_cast<int>(w.size());
    const double nan = std::nan("");
    if (k.n == 0) {
        for (double* p : {&k.mittel, &k.quadratisch, &k.stichprobenvarianz, &k.probenStandardabweichung,
                          &k.standardabweichung, &k.variationskoeffizient, &k.standardfehler, &k.streubreite,
                          &k.median, &k.mittlereAbweichung, &k.minimum, &k.maximum, &k.q25, &k.q75, &k.q125,
                          &k.q875, &k.ohneMin, &k.ohneMax, &k.ohneBeide})
            *p = nan;
        return k;
    }
    const double n = k.n;
    k.mittel = summe(w) / n;
    double qs = 0, abw = 0, ls = 0, hs = 0;
    k.geometrischDefiniert = k.harmonischDefiniert = true;
    for (double x : w) {
        qs += x * x;
        abw += std::fabs(x - k.mittel);
        if (x > 0) ls += std::log(x);
        else k.geometrischDefiniert = false;
        if (x != 0) hs += 1 / x;
        else k.harmonischDefiniert = false;
    }
    k.quadratisch = std::sqrt(qs / n);
    k.geometrisch = k.geometrischDefiniert ? std::exp(ls / n) : nan;
    k.harmonisch = k.harmonischDefiniert && hs != 0 ? n / hs : nan;
    if (hs == 0) k.harmonischDefiniert = false;
    double sq = 0;
    for (double x : w) sq += (x - k.mittel) * (x - k.mittel);
    k.standardabweichung = std::sqrt(sq / n);
    k.stichprobenvarianz = k.n > 1 ? sq / (n - 1) : nan;
    k.probenStandardabweichung = std::sqrt(k.stichprobenvarianz);
    k.variationskoeffizient = k.mittel != 0 ? k.probenStandardabweichung / std::fabs(k.mittel) : nan;
    k.standardfehler = k.probenStandardabweichung / std::sqrt(n);
    const auto [mn, mx] = std::minmax_element(w.begin(), w.end());
    k.minimum = *mn;
    k.maximum = *mx;
    k.streubreite = k.maximum - k.minimum;
    k.median = stichprobenQuantil(w, 0.5);
    k.mittlereAbweichung = abw / n;
    k.q25 = stichprobenQuantil(w, 0.25);
    k.q75 = stichprobenQuantil(w, 0.75);
    k.q125 = stichprobenQuantil(w, 0.125);
    k.q875 = stichprobenQuantil(w, 0.875);
    const double s = summe(w);
    k.ohneMin = k.n > 1 ? (s - k.minimum) / (n - 1) : nan;
    k.ohneMax = k.n > 1 ? (s - k.maximum) / (n - 1) : nan;
    k.ohneBeide = k.n > 2 ? (s - k.minimum - k.maximum) / (n - 2) : nan;
    return k;
}

Zeilen statistikZeilen(const std::vector<double>& w)
{
    const Kennwerte k = kennwerte(w);
    auto iv = [](double a, double b) {
        return std::isnan(a) ? kUnbestimmt : "[" + zahl(a) + " ; " + zahl(b) + "]";
    };
    return {"Werteanzahl\t" + std::to_string(k.n),
            zeile("Mittelwert", k.mittel),
            zeile("Quadratisches Mittel", k.quadratisch),
            zeile("Geometrisches Mittel", k.geometrisch),
            zeile("Harmonisches Mittel", k.harmonisch),
            zeile("Stichprobenvarianz", k.stichprobenvarianz),
            zeile("Proben-St.Abweichung", k.probenStandardabweichung),
            zeile("Variationskoeffizient", k.variationskoeffizient),
            zeile("Standardabweichung", k.standardabweichung),
            "50 % -Intervall\t" + iv(k.q25, k.q75),
            "75 % -Intervall\t" + iv(k.q125, k.q875),
            zeile("Standardfehler", k.standardfehler),
            zeile("Streubreite", k.streubreite),
            zeile("Medianwert", k.median),
            zeile("mittlere Abweichung", k.mittlereAbweichung),
            zeile("Mittelwert ohne MinAusreißer", k.ohneMin),
            zeile("Mittelwert ohne MaxAusreißer", k.ohneMax),
            zeile("Mittelwert ohne Ausreißer", k.ohneBeide)};
}

Diagramm statistikDiagramm(const std::vector<double>& w, int klassen)
{
    Diagramm d;
    d.titel = "Histogramm mit Glockenkurve";
    const Kennwerte k = kennwerte(w);
    if (k.n == 0) return d;
    if (klassen <= 0) klassen = std::clamp(static_cast<int>(std::ceil(std::sqrt(k.n))), 1, 20);
    double lo = k.minimum, breite = k.streubreite / klassen;
    if (breite == 0) {
        breite = 1;
        lo -= 0.5;
    }
    std::vector<int> anzahl(klassen, 0);
    for (double x : w) anzahl[std::min(klassen - 1, static_cast<int>((x - lo) / breite))]++;
    for (int i = 0; i < klassen; ++i) {
        // bar heights as densities, so the bell curve lies on the same scale
        Balken b{lo + i * breite, breite, anzahl[i] / (k.n * breite), std::to_string(anzahl[i])};
        d.balken.push_back(b);
    }
    const double s = k.standardabweichung;
    if (s > 0) {
        const std::string term = termZahl(1 / (s * std::sqrt(2 * M_PI))) + "*EXP(-SQR(X-" + termKlammer(k.mittel) +
                                 ")/" + termZahl(2 * s * s) + ")";
        d.kurven = termKurve(term, std::min(lo, k.mittel - 3 * s), std::max(lo + klassen * breite, k.mittel + 3 * s));
    }
    return d;
}

// ---------------------------------------------------------------- fitting

const std::vector<std::string>& modellNamen()
{
    static const std::vector<std::string> n = {
        "Ursprungsgerade Y=M·X",        "linear Y=M·X+N",        "logarithmisch Y=A+B·LN(X)",
        "exponentiell Y=A·B^X",         "geometrisch Y=A·X^B",   "trigonometrisch Y=A+B·SIN(X)",
        "reziprok Y=A+B/X",             "quadratisch Y=A+B·X^2", "kubisch Y=A+B·X^3",
        "rezipr.quadr. Y=A+B/X^2"};
    return n;
}

Anpassung anpassen(const std::vector<double>& x, const std::vector<double>& y, int modell)
{
    Anpassung f;
    f.n = static_cast<int>(std::min(x.size(), y.size()));
    if (f.n < 2 || modell < 0 || modell > 9) {
        f.fehler = "Zu wenige Wertepaare";
        return f;
    }
    std::vector<double> u, v;
    for (int i = 0; i < f.n; ++i) {
        double gx = x[i], hy = y[i];
        const bool lnX = modell == 2 || modell == 4, lnY = modell == 3 || modell == 4;
        if ((lnX && x[i] <= 0) || (lnY && y[i] <= 0)) {
            f.fehler = "Modell nur für positive Werte";
            return f;
        }
        if ((modell == 6 || modell == 9) && x[i] == 0) {
            f.fehler = "Modell nicht für X = 0";
            return f;
        }
        if (lnX) gx = std::log(x[i]);
        if (lnY) hy = std::log(y[i]);
        if (modell == 5) gx = std::sin(x[i]);
        if (modell == 6) gx = 1 / x[i];
        if (modell == 7) gx = x[i] * x[i];
        if (modell == 8) gx = x[i] * x[i] * x[i];
        if (modell == 9) gx = 1 / (x[i] * x[i]);
        u.push_back(gx);
        v.push_back(hy);
    }
    if (modell == 0) {
        double sxy = 0, sxx = 0, syy = 0;
        for (int i = 0; i < f.n; ++i) {
            sxy += u[i] * v[i];
            sxx += u[i] * u[i];
            syy += v[i] * v[i];
        }
        if (sxx == 0) {
            f.fehler = "Alle X-Werte sind 0";
            return f;
        }
        f.a = sxy / sxx;
        // the line through the origin: correlation about zero, not about the means
        f.r = syy == 0 ? 1 : sxy / std::sqrt(sxx * syy);
        f.term = f.anzeige = termZahl(f.a) + "*X";
        f.gueltig = true;
        return f;
    }
    double a, b;
    if (!gerade(u, v, a, b, f.r)) {
        f.fehler = "Alle X-Werte sind gleich";
        return f;
    }
    auto plus = [](double c) { return (c < 0 ? "-" : "+") + termZahl(std::fabs(c)); };
    switch (modell) {
    case 1: f.a = b; f.b = a; f.term = termZahl(b) + "*X" + plus(a); break;
    // the drawn term goes through EXP: the interpreter clamps intermediate powers like 1.09^2010
    case 3:
        f.a = std::exp(a);
        f.b = std::exp(b);
        f.anzeige = zahl(f.a) + "*" + zahl(f.b) + "^X";
        f.term = "EXP(" + termZahl(a) + plus(b) + "*X)";
        break;
    case 4:
        f.a = std::exp(a);
        f.b = b;
        f.anzeige = zahl(f.a) + "*X^(" + zahl(b) + ")";
        f.term = "EXP(" + termZahl(a) + plus(b) + "*LN(X))";
        break;
    default: {
        static const char* const teil[] = {"", "", "*LN(X)", "", "", "*SIN(X)", "/X", "*X^2", "*X^3", "/X^2"};
        f.a = a;
        f.b = b;
        f.term = termZahl(a) + plus(b) + teil[modell];
    }
    }
    if (f.anzeige.empty()) f.anzeige = f.term;
    f.gueltig = true;
    return f;
}

Zeilen anpassungZeilen(const std::vector<double>& x, const std::vector<double>& y, int modell, Diagramm* bild)
{
    const Anpassung f = anpassen(x, y, modell);
    if (!f.gueltig) return {f.fehler};
    Zeilen z = {"Anzahl der Wertepaare\t" + std::to_string(f.n), "Modell\t" + modellNamen()[modell],
                "Korrelationsfunktion\tY = " + f.anzeige,
                zeile(modell <= 1 ? "M" : "A", f.a)};
    if (modell > 0) z.push_back(zeile(modell == 1 ? "N" : "B", f.b));
    z.insert(z.end(), {zeile("Korrelationskoeffizient", f.r),
                zeile("Bestimmtheitsmaß", f.r * f.r)});
    if (bild) {
        bild->titel = "Y = " + f.anzeige;
        for (int i = 0; i < f.n; ++i) bild->punkte.push_back({x[i], y[i]});
        const auto [lo, hi] = std::minmax_element(x.begin(), x.begin() + f.n);
        const double rand = 0.05 * (*hi - *lo);
        bild->kurven = termKurve(f.term, *lo - rand, *hi + rand);
    }
    return z;
}

Regression regression3(const std::vector<double>& x, const std::vector<double>& y, const std::string (&terme)[3])
{
    Regression r;
    const size_t n = std::min(x.size(), y.size());
    double m[3][4] = {};
    std::vector<std::array<double, 3>> f(n);
    for (size_t i = 0; i < n; ++i)
        for (int j = 0; j < 3; ++j) {
            f[i][j] = quorix::EvalTerm(terme[j], x[i]);
            if (quorix::TermError != 0) return r;
        }
    for (size_t i = 0; i < n; ++i)
        for (int j = 0; j < 3; ++j) {
            for (int l = 0; l < 3; ++l) m[j][l] += f[i][j] * f[i][l];
            m[j][3] += f[i][j] * y[i];
        }
    // Gaussian elimination with partial pivoting on the normal equations
    for (int c = 0; c < 3; ++c) {
        int p = c;
        for (int i = c + 1; i < 3; ++i)
            if (std::fabs(m[i][c]) > std::fabs(m[p][c])) p = i;
        if (std::fabs(m[p][c]) < 1e-12) return r;
        for (int l = 0; l < 4; ++l) std::swap(m[c][l], m[p][l]);
        for (int i = 0; i < 3; ++i) {
            if (i == c) continue;
            const double q = m[i][c] / m[c][c];
            for (int l = c; l < 4; ++l) m[i][l] -= q * m[c][l];
        }
    }
    for (int j = 0; j < 3; ++j) r.k[j] = m[j][3] / m[j][j];
    for (size_t i = 0; i < n; ++i) {
        const double d = y[i] - (r.k[0] * f[i][0] + r.k[1] * f[i][1] + r.k[2] * f[i][2]);
        r.abweichung += d * d;
    }
    r.gueltig = true;
    return r;
}

Zeilen regressionZeilen(const std::vector<double>& x, const std::vector<double>& y, const std::string (&terme)[3],
                        Diagramm* bild)
{
    Zeilen z;
    for (int j = 0; j < 3; ++j) z.push_back("Zielfunktion " + std::to_string(j + 1) + ": Y = " + terme[j]);
    const Regression r = regression3(x, y, terme);
    if (!r.gueltig) {
        z.push_back("Keine Lösung: Zielfunktionen abhängig, fehlerhaft oder zu wenige Wertepaare");
        return z;
    }
    std::string term;
    for (int j = 0; j < 3; ++j) {
        z.push_back("Koeffizient " + std::to_string(j + 1) + " = " + zahl(r.k[j]));
        term += (j ? "+" : "") + termKlammer(r.k[j]) + "*(" + terme[j] + ")";
    }
    z.push_back(zeile("Quadratische Abweichung", r.abweichung));
    if (bild && !x.empty()) {
        bild->titel = "Regression";
        for (size_t i = 0; i < std::min(x.size(), y.size()); ++i) bild->punkte.push_back({x[i], y[i]});
        const auto [lo, hi] = std::minmax_element(x.begin(), x.end());
        bild->kurven = termKurve(term, *lo, *hi);
    }
    return z;
}

// ---------------------------------------------------------------- pairs

Zeilen paarZeilen(const std::vector<double>& x, const std::vector<double>& y, Diagramm* bild)
{
    const Kennwerte a = kennwerte(x), b = kennwerte(y);
    auto z2 = [](const std::string& name, double u, double v) { return name + "\t" + zahl(u) + "\t" + zahl(v); };
    Zeilen z = {"Auswertung\tx-Werte\ty-Werte",
                "Anzahl\t" + std::to_string(a.n) + "\t" + std::to_string(b.n),
                z2("Mittelwert", a.mittel, b.mittel),
                z2("Minimum", a.minimum, b.minimum),
                z2("Maximum", a.maximum, b.maximum),
                z2("geometr.Mittel", a.geometrisch, b.geometrisch),
                z2("Varianz", a.stichprobenvarianz, b.stichprobenvarianz),
                z2("Standardabweichung", a.probenStandardabweichung, b.probenStandardabweichung),
                z2("Varianzkoeffizient", a.variationskoeffizient, b.variationskoeffizient)};
    if (x.size() == y.size() && x.size() > 1) {
        double c = 0;
        for (size_t i = 0; i < x.size(); ++i) c += (x[i] - a.mittel) * (y[i] - b.mittel);
        c /= x.size() - 1;
        z.push_back(zeile("Kovarianz", c));
        z.push_back(zeile("Korrelationskoeffizient", c / (a.probenStandardabweichung * b.probenStandardabweichung)));
    } else if (x.size() != y.size()) {
        z.push_back("Ungleich viele x- und y-Werte");
    }
    if (bild) {
        bild->titel = "Punktwolke";
        for (size_t i = 0; i < std::min(x.size(), y.size()); ++i) bild->punkte.push_back({x[i], y[i]});
    }
    return z;
}

// ---------------------------------------------------------------- probability table

Zeilen wahrscheinlichkeitstabelle(const std::vector<double>& k, const std::vector<double>& p, Diagramm* bild)
{
    const size_t n = std::min(k.size(), p.size());
    if (n == 0) return {"Anzahl der Ergebnisse\t0"};
    double s = 0, e = 0, q = 0;
    size_t modal = 0;
    for (size_t i = 0; i < n; ++i) {
        s += p[i];
        e += k[i] * p[i];
        q += k[i] * k[i] * p[i];
        if (p[i] > p[modal]) modal = i;
    }
    const double var = q - e * e;
    Zeilen z = {"Anzahl der Ergebnisse\t" + std::to_string(n), zeile("Wahrscheinlichkeitssumme", s),
                zeile("Erwartungswert", e), zeile("Streuung, Varianz", var),
                zeile("Standardabweichung", std::sqrt(std::max(0.0, var))), zeile("Modalwert", k[modal])};
    if (std::fabs(s - 1) > 1e-9) z.push_back("Die Wahrscheinlichkeitssumme ist nicht 1");
    // the binomial law on 0..max k with the same mean
    const double kmax = *std::max_element(k.begin(), k.begin() + n);
    if (kmax >= 1 && kmax == std::floor(kmax) && e > 0 && e <= kmax) {
        const DiskreteVerteilung b{Diskret::Binomial, {kmax, e / kmax}};
        double d = 0;
        for (size_t i = 0; i < n; ++i) {
            const double pb = k[i] >= 0 && k[i] == std::floor(k[i]) ? wahrscheinlichkeit(b, static_cast<long>(k[i])) : 0;
            d += (p[i] - pb) * (p[i] - pb);
        }
        z.push_back("Vergleich mit Binomialverteilung");
        z.push_back(zeile(" Wahrscheinlichkeit p", e / kmax));
        z.push_back(zeile(" Anzahl der Werte n", kmax));
        z.push_back(zeile(" Quadratische Abweichung", d));
        if (bild)
            for (long i = 0; i <= static_cast<long>(kmax); ++i) bild->vergleich.push_back({double(i), wahrscheinlichkeit(b, i)});
    }
    if (bild) {
        bild->titel = "Wahrscheinlichkeitsverteilung";
        for (size_t i = 0; i < n; ++i) bild->balken.push_back({k[i] - 0.4, 0.8, p[i], zahl(k[i]), i == modal});
    }
    return z;
}

// ---------------------------------------------------------------- confidence intervals

const std::vector<std::string>& konfidenzNiveaus()
{
    static const std::vector<std::string> n = {"80 %", "90 %", "95 %", "99 %", "99,9 %"};
    return n;
}

double konfidenzNiveau(int stufe)
{
    static const double w[] = {0.8, 0.9, 0.95, 0.99, 0.999};
    return w[std::clamp(stufe, 0, 4)];
}

bool konfidenzMittelwert(const std::vector<double>& w, double niveau, Intervall& iv)
{
    const Kennwerte k = kennwerte(w);
    if (k.n < 2) return false;
    const double t = quantil(StetigeVerteilung{Stetig::StudentT, k.n - 1.0}, 1 - (1 - niveau) / 2);
    iv = {k.mittel - t * k.standardfehler, k.mittel + t * k.standardfehler};
    return true;
}

bool konfidenzVarianz(const std::vector<double>& w, double niveau, Intervall& iv)
{
    const Kennwerte k = kennwerte(w);
    if (k.n < 2) return false;
    const StetigeVerteilung chi{Stetig::ChiQuadrat, k.n - 1.0};
    const double a = (1 - niveau) / 2;
    iv = {(k.n - 1) * k.stichprobenvarianz / quantil(chi, 1 - a), (k.n - 1) * k.stichprobenvarianz / quantil(chi, a)};
    return true;
}

Zeilen konfidenzZeilen(const std::vector<double>& w, int stufe)
{
    const Kennwerte k = kennwerte(w);
    const double niveau = konfidenzNiveau(stufe);
    Zeilen z = {"Werteanzahl\t" + std::to_string(k.n), "Konfidenzniveau\t" + konfidenzNiveaus()[std::clamp(stufe, 0, 4)]};
    Intervall m, v;
    z.push_back(" Berechnung für Mittelwert");
    z.push_back("      Stichprobenstandardabweichung\t" + zahl(k.probenStandardabweichung));
    z.push_back("      Stichprobenmittelwert\t" + zahl(k.mittel));
    if (konfidenzMittelwert(w, niveau, m)) {
        z.push_back("      Untere Konfidenzgrenze\t" + zahl(m.unten));
        z.push_back("      Obere Konfidenzgrenze\t" + zahl(m.oben));
    } else {
        z.push_back("      Konfidenzgrenzen\t" + kUnbestimmt);
    }
    z.push_back(" Berechnung für Varianz");
    z.push_back("      Stichprobenvarianz\t" + zahl(k.stichprobenvarianz));
    if (konfidenzVarianz(w, niveau, v)) {
        z.push_back("      Untere Konfidenzgrenze\t" + zahl(v.unten));
        z.push_back("      Obere Konfidenzgrenze\t" + zahl(v.oben));
    } else {
        z.push_back("      Konfidenzgrenzen\t" + kUnbestimmt);
    }
    return z;
}

// ---------------------------------------------------------------- examples

const std::vector<std::string>& beispielNamen()
{
    static const std::vector<std::string> n = {"-", "Länderschulden", "Regen", "Schüler", "Sinuswerte",
                                               "Störche und Babys"};
    return n;
}

void beispielDaten(int nr, std::vector<double>& x, std::vector<double>& y)
{
    // Illustrative teaching data, not statistics of record.
    x.clear();
    y.clear();
    switch (nr) {
    case 1:  // debt per year (year, billions), growing roughly exponentially
        x = {1970, 1975, 1980, 1985, 1990, 1995, 2000, 2005, 2010};
        y = {64, 129, 236, 380, 539, 1018, 1211, 1490, 2012};
        break;
    case 2:  // monthly rain in mm
        x = {49, 41, 53, 48, 61, 71, 80, 66, 55, 52, 58, 63};
        break;
    case 3:  // body height (cm) and weight (kg) of a class
        x = {152, 158, 160, 163, 165, 167, 170, 172, 175, 178, 181, 185};
        y = {44, 48, 51, 50, 55, 58, 60, 59, 64, 67, 70, 75};
        break;
    case 4:
        for (int i = 0; i <= 12; ++i) {
            x.push_back(i * 0.5);
            y.push_back(std::sin(i * 0.5));
        }
        break;
    case 5:  // storks (pairs) and births (thousands) of seven regions: correlation without cause
        x = {12, 19, 25, 31, 38, 44, 52};
        y = {8.1, 9.7, 11.2, 12.0, 14.1, 14.9, 17.3};
        break;
    default: break;
    }
}

}  // namespace zufall
