// Interest and annuity tables by the textbook formulas with q = 1 + p/100.
#include "algebra/numer_intern.h"

#include <cmath>

namespace numer::intern {
namespace {
// Sum of q^0..q^(n-1), also for q = 1.
double endwertFaktor(double q, int n) { return std::fabs(q - 1) < 1e-15 ? n : (std::pow(q, n) - 1) / (q - 1); }
}  // namespace

void zinsen(Lauf& l)
{
    double k, p, n, r = 0;
    if (!l.reell(0, k) || !l.reell(1, p) || !l.reell(2, n)) return;
    const double q = 1 + p / 100;
    if (q <= 0) return l.fehler("Zinssatz ungültig!");
    switch (l.ein.option) {
    case 0:
        l.zeile("Jahreszinsen\t" + zahl(k * p * n / 100) + " €");
        l.zeile("Endkapital\t" + zahl(k + k * p * n / 100) + " €");
        return;
    case 1:
        // German banking: 360 days a year
        l.zeile("Tageszinsen\t" + zahl(k * p * n / 36000) + " €");
        l.zeile("Diskont\t" + zahl(k - k / (1 + p * n / 36000)) + " €");
        l.zeile("Barwert\t" + zahl(k / (1 + p * n / 36000)) + " €");
        return;
    case 2:
    case 3: {
        if (n < 1 || n != std::floor(n)) return l.fehler("Laufzeit ungültig!");
        double rate = k * std::pow(q, n) / endwertFaktor(q, static_cast<int>(n));
        if (l.ein.option == 3) rate /= q;
        l.zeile(std::string(l.ein.option == 2 ? "Tilgungsrate nachschüssig" : "Tilgungsrate vorschüssig") + "\t" +
                zahl(rate) + " €");
        return;
    }
    default: {
        if (!l.reell(3, r)) return;
        if (n < 1 || n > 1000 || n != std::floor(n)) return l.fehler("Laufzeit ungültig!");
        l.zeile("\tZinseszinsen\tVermehrung\t\tVerminderung");
        l.zeile("Jahr\tKapitalendwert\tnachschüssig\tvorschüssig\tnachschüssig\tvorschüssig");
        for (int j = 1; j <= static_cast<int>(n); ++j) {
            const double kn = k * std::pow(q, j), s = endwertFaktor(q, j);
            l.zeile(std::to_string(j) + "\t" + zahl(kn) + "\t" + zahl(kn + r * s) + "\t" + zahl(kn + r * q * s) + "\t" +
                    zahl(kn - r * s) + "\t" + zahl(kn - r * q * s));
        }
    }
    }
}

void annuitaet(Lauf& l)
{
    double k, p, a;
    if (!l.reell(0, k) || !l.reell(1, p) || !l.reell(2, a)) return;
    const double q = 1 + p / 100;
    if (q <= 0) return l.fehler("Zinssatz ungültig!");
    if (k <= 0 || a <= 0) return l.fehler("Zahlen eingeben");
    const double zins = k * p / 100;
    if (zins >= a) return l.fehler("Annuität muss mindestens " + zahl(zins) + " € Zinsen betragen!");
    const double dauer = p == 0 ? k / a : -std::log(1 - (q - 1) * k / a) / std::log(q);
    l.zeile("Aufzinsfaktor\t" + zahl(q, 6));
    l.zeile("Tilgungsdauer\t" + zahl(dauer, 1) + " Jahre");
    l.zeile("Jahr\tRestschuld €\tTilgungsbetrag €\tZinsen €");
    const double t = a - zins;
    // the repayment column already shows the next year's value, as the printed tables do
    for (int j = 1; j <= 10000; ++j) {
        const double qj = std::pow(q, j);
        const double rest = k * qj - endwertFaktor(q, j) * a;
        l.zeile(std::to_string(j) + "\t" + zahl(rest) + "\t" + zahl(t * qj) + "\t" + zahl(a - t * qj / q));
        if (rest <= 1e-9 * k) break;  // rounding must not add a row
    }
}

}  // namespace numer::intern
