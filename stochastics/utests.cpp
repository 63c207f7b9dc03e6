#include "stochastics/utests.h"

#include "stochastics/ugamdist.h"
#include "stochastics/ustatistik.h"

#include <algorithm>
#include <cmath>

namespace zufall {

namespace {
std::string prozent(double alpha) { return zahl(100 * alpha, 3) + " %"; }
}  // namespace

// ---------------------------------------------------------------- binomial test

Annahmebereich binomialAnnahmebereich(long n, double p0, double alpha, bool zweiseitig)
{
    const DiskreteVerteilung v{Diskret::Binomial, {double(n), p0}};
    const double rand = zweiseitig ? alpha / 2 : alpha;
    Annahmebereich a{0, n, 0};
    if (zweiseitig) {
        // largest left limit with P(X < links) <= alpha/2
        while (a.links < n && verteilung(v, a.links) <= rand) ++a.links;
    }
    // smallest right limit with P(X > rechts) <= rand
    while (a.rechts > 0 && 1 - verteilung(v, a.rechts - 1) <= rand) --a.rechts;
    a.fehler1 = (a.links > 0 ? verteilung(v, a.links - 1) : 0) + (1 - verteilung(v, a.rechts));
    return a;
}

Zeilen binomialTestZeilen(long n, double p0, long k, double alpha, bool zweiseitig, Diagramm* bild)
{
    if (n < 1 || !(p0 > 0 && p0 < 1) || k < 0 || k > n) return {"Ungültige Eingabe: n ≥ 1, 0 < p < 1, 0 ≤ k ≤ n"};
    const Annahmebereich a = binomialAnnahmebereich(n, p0, alpha, zweiseitig);
    const bool an = k >= a.links && k <= a.rechts;
    Zeilen z = {"Nullhypothese\tp = " + zahl(p0), "Stichprobenumfang\t" + std::to_string(n),
                "Irrtumswahrscheinlichkeit\t" + prozent(alpha) + (zweiseitig ? ", zweiseitig" : ", einseitig"),
                "Annahmebereich\t" + std::to_string(a.links) + " bis " + std::to_string(a.rechts),
                "Fehler 1. Art\t" + zahl(a.fehler1), "Trefferzahl\t" + std::to_string(k),
                std::string("Die Nullhypothese kann ") + (an ? "angenommen werden !" : "nicht angenommen werden !")};
    if (bild) {
        bild->titel = "Binomialverteilung n = " + std::to_string(n) + ", p = " + zahl(p0);
        const DiskreteVerteilung v{Diskret::Binomial, {double(n), p0}};
        // the far tails are invisible at any scale: leave them out
        for (long i = 0; i <= n; ++i) {
            const double p = wahrscheinlichkeit(v, i);
            if (p >= 1e-5) bild->balken.push_back({i - 0.4, 0.8, p, std::to_string(i), i < a.links || i > a.rechts});
        }
    }
    return z;
}

// ---------------------------------------------------------------- t-test

Testergebnis tTest(const std::vector<double>& w, double mu0, double alpha, bool zweiseitig)
{
    Testergebnis t;
    const Kennwerte k = kennwerte(w);
    if (k.n < 2 || !(k.probenStandardabweichung > 0)) return t;
    t.testgroesse = (k.mittel - mu0) / k.standardfehler;
    t.tabellenwert = quantil(StetigeVerteilung{Stetig::StudentT, k.n - 1.0}, 1 - (zweiseitig ? alpha / 2 : alpha));
    t.ablehnen = (zweiseitig ? std::fabs(t.testgroesse) : t.testgroesse) > t.tabellenwert;
    t.gueltig = true;
    return t;
}

Zeilen tTestZeilen(const std::vector<double>& w, double mu0, double alpha, bool zweiseitig)
{
    const Testergebnis t = tTest(w, mu0, alpha, zweiseitig);
    if (!t.gueltig) return {"Mindestens zwei verschiedene Werte nötig"};
    return {"t-Test für den Mittelwert " + zahl(mu0) + (zweiseitig ? ", zweiseitig" : ", einseitig"),
            "Irrtumswahrscheinlichkeit\t" + prozent(alpha), "Testgröße = " + zahl(t.testgroesse),
            "Tabellenwert = " + zahl(t.tabellenwert),
            std::string("Die Nullhypothese ") + (t.ablehnen ? "muss abgelehnt werden!" : "kann angenommen werden!")};
}

// ---------------------------------------------------------------- chi² test

const std::vector<std::string>& testArten()
{
    static const std::vector<std::string> n = {"Normalverteilung", "Gleichverteilung", "Theoretische Verteilung"};
    return n;
}

Testergebnis chiQuadratTest(const std::vector<double>& b, const std::vector<double>& e, double alpha, int geschaetzt)
{
    Testergebnis t;
    const int frei = static_cast<int>(b.size()) - 1 - geschaetzt;
    if (b.size() != e.size() || frei < 1) return t;
    for (size_t i = 0; i < b.size(); ++i) {
        if (!(e[i] > 0)) return t;
        t.testgroesse += (b[i] - e[i]) * (b[i] - e[i]) / e[i];
    }
    t.tabellenwert = quantil(StetigeVerteilung{Stetig::ChiQuadrat, double(frei)}, 1 - alpha);
    t.ablehnen = t.testgroesse > t.tabellenwert;
    t.gueltig = true;
    return t;
}

Zeilen chiTestZeilen(int art, const std::vector<double>& daten, const std::vector<double>& pw, double alpha,
                     Diagramm* bild)
{
    std::vector<double> beob, erw;
    std::vector<std::string> namen;
    int geschaetzt = 0;
    if (art == 0) {
        // raw data in classes of equal probability under the fitted normal law
        const Kennwerte k = kennwerte(daten);
        if (k.n < 10 || !(k.probenStandardabweichung > 0)) return {"Mindestens 10 Werte nötig"};
        const int klassen = std::clamp(k.n / 5, 4, 10);
        beob.assign(klassen, 0);
        for (double x : daten) {
            const double u = normVerteilung((x - k.mittel) / k.probenStandardabweichung);
            beob[std::min(klassen - 1, static_cast<int>(u * klassen))] += 1;
        }
        erw.assign(klassen, double(k.n) / klassen);
        for (int i = 0; i < klassen; ++i) {
            const double lo = i == 0 ? -INFINITY : k.mittel + k.probenStandardabweichung * normQuantilAS111(double(i) / klassen);
            namen.push_back(i == 0 ? "unter " + zahl(k.mittel + k.probenStandardabweichung * normQuantilAS111(1.0 / klassen), 3)
                                   : "ab " + zahl(lo, 3));
        }
        geschaetzt = 2;
    } else {
        beob = daten;
        double n = 0;
        for (double x : beob) n += x;
        if (art == 1) erw.assign(beob.size(), n / std::max<size_t>(1, beob.size()));
        else {
            if (pw.size() != beob.size()) return {"Je Klasse eine Häufigkeit und eine Wahrscheinlichkeit angeben"};
            for (double p : pw) erw.push_back(n * p);
        }
        for (size_t i = 0; i < beob.size(); ++i) namen.push_back(std::to_string(i + 1));
    }
    const Testergebnis t = chiQuadratTest(beob, erw, alpha, geschaetzt);
    Zeilen z = {"Test auf " + testArten()[std::clamp(art, 0, 2)], "Irrtumswahrscheinlichkeit " + prozent(alpha),
                "Klassen\tHäufigkeit\terwartet"};
    for (size_t i = 0; i < beob.size(); ++i) z.push_back(namen[i] + "\t" + zahl(beob[i]) + "\t" + zahl(erw[i], 3));
    if (!t.gueltig) {
        z.push_back("Zu wenige Klassen oder eine erwartete Häufigkeit ist 0");
        return z;
    }
    z.push_back("Testgröße = " + zahl(t.testgroesse));
    z.push_back("Tabellenwert = " + zahl(t.tabellenwert));
    z.push_back(std::string("Die Nullhypothese ") + (t.ablehnen ? "muss abgelehnt werden!" : "kann angenommen werden!"));
    if (bild) {
        bild->titel = "Beobachtete und erwartete Häufigkeiten";
        for (size_t i = 0; i < beob.size(); ++i) {
            bild->balken.push_back({double(i) - 0.4, 0.8, beob[i], namen[i]});
            bild->vergleich.push_back({double(i), erw[i]});
        }
    }
    return z;
}

// ---------------------------------------------------------------- four-field table

Vierfeld vierfeldTest(double a, double b, double c, double d)
{
    Vierfeld v;
    const double n = a + b + c + d, zb = a + b, zn = c + d, sa = a + c, sn = b + d;
    if (zb == 0 || zn == 0 || sa == 0 || sn == 0) {
        v.entscheidbar = false;
        return v;
    }
    v.chi2 = n * (a * d - b * c) * (a * d - b * c) / (zb * zn * sa * sn);
    v.pWert = 1 - verteilung(StetigeVerteilung{Stetig::ChiQuadrat, 1}, v.chi2);
    v.entscheidbar = std::min({zb * sa, zb * sn, zn * sa, zn * sn}) / n >= 5;
    return v;
}

Zeilen vierfeldZeilen(double a, double b, double c, double d, Diagramm* bild)
{
    if (a < 0 || b < 0 || c < 0 || d < 0) return {"Häufigkeiten dürfen nicht negativ sein"};
    const double n = a + b + c + d;
    if (n == 0) return {"Alle Häufigkeiten sind 0"};
    auto g = [](double x) { return zahl(x, 4); };
    Zeilen z = {"\tEreignis A\tGegenereignis A\tSumme",
                "Ereignis B\t" + g(a) + "\t" + g(b) + "\t" + g(a + b),
                "Gegenereignis B\t" + g(c) + "\t" + g(d) + "\t" + g(c + d),
                "Summe\t" + g(a + c) + "\t" + g(b + d) + "\t" + g(n),
                "P(A)\t" + zahl(( a + c) / n),
                "P(B)\t" + zahl((a + b) / n),
                "P(A und B)\t" + zahl(a / n)};
    auto bedingt = [&](const std::string& name, double z1, double n1) {
        return name + "\t" + (n1 > 0 ? zahl(z1 / n1) : "unbestimmt");
    };
    z.push_back(bedingt("P(A|B)", a, a + b));
    z.push_back(bedingt("P(A|nicht B)", c, c + d));
    z.push_back(bedingt("P(B|A)", a, a + c));
    z.push_back(bedingt("P(B|nicht A)", b, b + d));
    const Vierfeld v = vierfeldTest(a, b, c, d);
    z.push_back("Chi²\t" + zahl(v.chi2));
    if (!v.entscheidbar) z.push_back("Nullhypothese kann nicht entschieden werden");
    else if (v.pWert > 0.05) z.push_back("Nullhypothese kann nicht abgelehnt werden");
    else {
        const std::string niveau = v.pWert <= 0.001 ? "0,1" : v.pWert <= 0.01 ? "1" : "5";
        z.push_back("Nullhypothese kann zum Niveau " + niveau + "% abgelehnt werden");
        z.push_back("Signifikanter Unterschied mit Irrtumswahrscheinlichkeit " + zahl(v.pWert));
    }
    if (bild) {
        bild->titel = "Vierfeldertafel";
        bild->balken = {{0, 0.45, a, "A,B"}, {0.5, 0.45, c, "A,¬B", true}, {1.5, 0.45, b, "¬A,B"}, {2, 0.45, d, "¬A,¬B", true}};
    }
    return z;
}

}  // namespace zufall
