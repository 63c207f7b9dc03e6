#include "stochastics/utabellen.h"

#include "stochastics/ugamma.h"
#include "stochastics/ustatistik.h"

#include <algorithm>
#include <cmath>

namespace zufall {

namespace {
constexpr double kFensterUnten = -10, kFensterOben = 87;
const double kIrrtum[] = {0.1, 0.05, 0.025, 0.01, 0.005, 0.001};
}  // namespace

std::string diskreterSatz(Diskret art)
{
    switch (art) {
    case Diskret::Hypergeometrisch:
    case Diskret::Polya: return "Wahrscheinlichkeiten, dass in der Stichprobe k weiße Kugeln sind ...";
    case Diskret::NegativBinomial: return "Wahrscheinlichkeiten, dass Ereignis beim k.Versuch eintritt ...";
    default: return "Wahrscheinlichkeiten, dass Ereignis k-mal eintritt ...";
    }
}

Zeilen diskreteTabelle(const DiskreteVerteilung& v, Diagramm* bild)
{
    if (!parameterGueltig(v)) {
        verteilungsstatus = stParameter;
        return {"Ungültige Parameter"};
    }
    long von, bis;
    traeger(v, von, bis);
    Zeilen z = {diskreterSatz(v.art), "Erwartungswert\t" + zahl(erwartungswert(v)),
                "Varianz\t" + zahl(varianz(v)), "k\tP(X=k)\tP(X<=k)"};
    if (bis - von > 100000) {
        z.push_back(" Überlauf");
        return z;
    }
    double summe = 0;
    for (long k = von; k <= bis; ++k) {
        const double l = lnWahrscheinlichkeit(v, k);
        if (l > kFensterOben) {
            z.push_back(" Überlauf");
            break;
        }
        const double p = std::isinf(l) ? 0 : std::exp(l);
        summe += p;
        const double F = v.art == Diskret::Binomial || v.art == Diskret::Poisson ? verteilung(v, k) : std::min(summe, 1.0);
        z.push_back(std::to_string(k) + "\t" + (l < kFensterUnten ? std::string("0") : zahl(p)) + "\t" + zahl(F));
        if (bild && l >= kFensterUnten) bild->balken.push_back({k - 0.4, 0.8, p, std::to_string(k)});
    }
    if (bild) bild->titel = diskreteNamen()[static_cast<int>(v.art)];
    return z;
}

void stetigerBereich(const StetigeVerteilung& v, double& von, double& bis)
{
    von = 0;
    switch (v.art) {
    case Stetig::StudentT:
    case Stetig::Gauss: von = -4; bis = 4; break;
    case Stetig::Beta: bis = 1; break;
    default: {
        bis = quantil(v, 0.995);
        if (!(bis > 0)) bis = 1;
    }
    }
}

std::string dichteTerm(const StetigeVerteilung& v)
{
    const double a = v.a, b = v.b;
    const std::string A = termZahl(a), B = termZahl(b);
    switch (v.art) {
    case Stetig::StudentT:
        return "EXP(" + termZahl(lnGamma((a + 1) / 2) - lnGamma(a / 2) - 0.5 * std::log(a * M_PI)) + "-(" + A +
               "+1)/2*LN(1+X^2/" + A + "))";
    case Stetig::ChiQuadrat:
        return "EXP(-X/2)*EXP((" + A + "/2-1)*LN(X))/" + termZahl(std::exp(lnGamma(a / 2) + a / 2 * std::log(2.0)));
    case Stetig::Gauss: return "EXP(-X^2/2/1)/SQRT(2*PI*1)";
    case Stetig::Exponential: return A + "*EXP(-X*" + A + ")";
    case Stetig::Maxwell:
        return "X^2*" + termZahl(std::sqrt(2 / M_PI) / (a * a * a)) + "*EXP(-X^2/(" + termZahl(2 * a * a) + "))";
    case Stetig::Weibull:
        // powers through LN keep the interpreter's sign rules out of the way
        return termZahl(b / a) + "*EXP(" + termZahl(b - 1) + "*LN(X/" + A + ")-EXP(" + B + "*LN(X/" + A + ")))";
    default: return "";  // drawn from sampled values
    }
}

Zeilen stetigeTabelle(const StetigeVerteilung& v, double von, double bis, int schritte, Diagramm* bild)
{
    if (!parameterGueltig(v)) {
        verteilungsstatus = stParameter;
        return {"Ungültige Parameter"};
    }
    schritte = std::clamp(schritte, 1, 1000);
    Zeilen z = {stetigeNamen()[static_cast<int>(v.art)], "Argument x\tDichtefunktion f(x)\tVerteilungsfunktion F(x)"};
    for (int i = 0; i <= schritte; ++i) {
        const double x = von + (bis - von) * i / schritte;
        const double f = dichte(v, x);
        const std::string ft = verteilungsstatus == stUnendlich ? "unendlich" : zahl(f);
        z.push_back(zahl(x, 4) + "\t" + ft + "\t" + zahl(verteilung(v, x)));
    }
    z.push_back("Irrtumswahrscheinlichkeit\tQuantile");
    for (double a : kIrrtum) z.push_back(zahl(a) + "\t" + zahl(quantil(v, 1 - a)));
    if (bild) {
        bild->titel = stetigeNamen()[static_cast<int>(v.art)];
        // kinds with a density term are drawn through the interpreter, the others from sampled values
        const std::string term = dichteTerm(v);
        if (!term.empty()) {
            bild->kurven = termKurve(term, von, bis, 400);
            return z;
        }
        std::vector<Punkt> k;
        // sampled densities; infinite values at the border are left out
        for (int i = 0; i <= 400; ++i) {
            const double x = von + (bis - von) * i / 400;
            const double f = dichte(v, x);
            if (verteilungsstatus == stUnendlich || !std::isfinite(f)) continue;
            k.push_back({x, f});
        }
        bild->kurven = {k};
    }
    return z;
}

Zeilen normalTabelle(bool logarithmisch, double mu, double varianz, double a, double b, Diagramm* bild)
{
    if (!(varianz > 0)) return {"Die Varianz muss positiv sein"};
    const double s = std::sqrt(varianz);
    auto f = [&](double x) { return logarithmisch ? lognormalDichte(x, mu, varianz) : normalDichte(x, mu, varianz); };
    auto F = [&](double x) { return logarithmisch ? lognormalVerteilung(x, mu, varianz) : normalVerteilung(x, mu, varianz); };
    double von = mu - 4 * s, bis = mu + 4 * s;
    if (logarithmisch) {
        von = 0;
        bis = std::exp(mu + 2.5 * s);
    }
    Zeilen z = {logarithmisch ? "Logarithmische Normalverteilung" : "Normalverteilung",
                "Erwartungswert\t" + zahl(logarithmisch ? std::exp(mu + varianz / 2) : mu),
                "Varianz\t" + zahl(logarithmisch ? (std::exp(varianz) - 1) * std::exp(2 * mu + varianz) : varianz),
                };
    if (a > b) std::swap(a, b);
    z.push_back("P(" + zahl(a, 4) + " <= X <= " + zahl(b, 4) + ") = F(b) - F(a)\t" + zahl(F(b) - F(a)));
    z.push_back("x\tDichtefunktion f(x)");
    for (int i = 0; i <= 10; ++i) {
        const double x = von + (bis - von) * i / 10;
        z.push_back(zahl(x, 4) + "\t" + zahl(f(x)));
    }
    z.push_back("x\tVerteilungsfunktion F(x)");
    for (int i = 0; i <= 10; ++i) {
        const double x = von + (bis - von) * i / 10;
        z.push_back(zahl(x, 4) + "\t" + zahl(F(x)));
    }
    if (bild) {
        const std::string term = logarithmisch
                                     ? termZahl(1 / (s * std::sqrt(2 * M_PI))) + "*1/X*EXP(-SQR(LN(X)-" + termKlammer(mu) +
                                           ")/" + termZahl(2 * varianz) + ")"
                                     : termZahl(1 / (s * std::sqrt(2 * M_PI))) + "*EXP(-SQR(X-" + termKlammer(mu) + ")/" +
                                           termZahl(2 * varianz) + ")";
        bild->titel = "f(x) = " + term;
        bild->kurven = termKurve(term, logarithmisch ? bis / 400 : von, bis, 400);
        // the area between the limits, as thin bars under the curve
        const double lo = std::max(a, von), hi = std::min(b, bis);
        for (int i = 0; i < 80 && hi > lo; ++i) {
            const double x = lo + (hi - lo) * (i + 0.5) / 80;
            bild->balken.push_back({lo + (hi - lo) * i / 80, (hi - lo) / 80, f(x), "", true});
        }
    }
    return z;
}

}  // namespace zufall
