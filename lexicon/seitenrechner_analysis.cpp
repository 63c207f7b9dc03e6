// Members of analysis, finance and stochastics: 6, 9, 17.
#include "lexicon/seitenrechner_intern.h"

#include "kernel/specfun.h"

#include <cmath>

namespace lexicon::rechner {

// 6: the Jacobi elliptic functions sn, cn, dn for modulus k in [0, 1].
void elliptischeFunktionen(R& r)
{
    bool o1 = false, o2 = false;
    const double z = wertFeld(r.ed1, o1), k = wertFeld(r.ed2, o2);
    if (!o1 || !o2 || k < 0 || k > 1) {
        zeileAus(r, "Eingabe falsch");
        return;
    }
    double sn = 0, cn = 0, dn = 0;
    kernel::JacobiSnCnDn(sn, cn, dn, z, 1 - k * k);
    zeileAus(r, "Argument\t" + zahl(z));
    zeileAus(r, "Modul\t" + zahl(k));
    zeileAus(r, "sn(z) =\t" + zahl(sn));
    zeileAus(r, "cn(z) =\t" + zahl(cn));
    zeileAus(r, "dn(z) =\t" + zahl(dn));
}

// 9: compound interest year by year, and the doubling time.
void zinseszins(R& r)
{
    bool o1 = false, o2 = false;
    const double k0 = wertFeld(r.ed1, o1), p = wertFeld(r.ed2, o2);
    const int n = static_cast<int>(ganzEd3Grenzen(r, 0, 1000));
    if (!o1 || !o2 || p <= -100) {
        zeileAus(r, "Eingabe falsch");
        return;
    }
    zeileAus(r, "Jahr\tKapital\tZinsen");
    double k = k0;
    for (int jahr = 1; jahr <= n; ++jahr) {
        const double zinsen = k * p / 100;
        k += zinsen;
        zeileAus(r, std::to_string(jahr) + "\t" + zahl(k, 2) + "\t" + zahl(zinsen, 2));
    }
    zeileAus(r, "Endkapital\t" + zahl(k, 2));
    zeileAus(r, "Verdopplungszeit\t" + (p > 0 ? zahl(std::log(2.0) / std::log1p(p / 100), 4) : std::string("-")));
}

// 17: the binomial distribution, single and cumulative probabilities.
void binomialverteilung(R& r)
{
    const int n = static_cast<int>(ganzEd1Grenzen(r, 1, 1000));
    bool ok = false;
    const double p = wertFeld(r.ed2, ok);
    if (!ok || p < 0 || p > 1) {
        zeileAus(r, "Eingabe falsch");
        return;
    }
    zeileAus(r, "k\tP(X = k)\tP(X <= k)");
    double summe = 0;
    for (int k = 0; k <= n; ++k) {
        double pk = 0;
        if (p == 0)
            pk = k == 0 ? 1 : 0;
        else if (p == 1)
            pk = k == n ? 1 : 0;
        else  // in logarithms, so n = 1000 neither overflows nor underflows early
            pk = std::exp(std::lgamma(n + 1.0) - std::lgamma(k + 1.0) - std::lgamma(n - k + 1.0) +
                          k * std::log(p) + (n - k) * std::log1p(-p));
        summe += pk;
        zeileAus(r, std::to_string(k) + "\t" + zahl(pk) + "\t" + zahl(std::fmin(summe, 1.0)));
    }
    zeileAus(r, "Erwartungswert\t" + zahl(n * p));
    zeileAus(r, "Standardabweichung\t" + zahl(std::sqrt(n * p * (1 - p))));
}

}  // namespace lexicon::rechner
