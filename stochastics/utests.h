#pragma once
// Hypothesis tests: binomial significance test, t-test of a mean, chi² goodness of fit and the
// four-field table.
#include "stochastics/diagramm.h"

#include <vector>

namespace zufall {

// ---- Binomial significance test of H0: p = p0 with n trials and k hits.
// zweiseitig: acceptance region [links, rechts] with at most alpha/2 in each tail; einseitig:
// [0, rechts] (right-sided, H1: p > p0).
struct Annahmebereich {
    long links = 0, rechts = 0;
    double fehler1 = 0;  // the actual probability of rejecting a true H0
};
Annahmebereich binomialAnnahmebereich(long n, double p0, double alpha, bool zweiseitig);
Zeilen binomialTestZeilen(long n, double p0, long k, double alpha, bool zweiseitig, Diagramm* bild = nullptr);

// ---- t-test of H0: mean = mu0 for normal data at level alpha.
struct Testergebnis {
    bool gueltig = false;
    double testgroesse = 0, tabellenwert = 0;
    bool ablehnen = false;
};
Testergebnis tTest(const std::vector<double>& werte, double mu0, double alpha, bool zweiseitig);
Zeilen tTestZeilen(const std::vector<double>& werte, double mu0, double alpha, bool zweiseitig);

// ---- Chi² goodness of fit: kind 0 "Normalverteilung" (raw data grouped into classes), 1
// "Gleichverteilung" (counts), 2 "Theoretische Verteilung" (counts and probabilities).
const std::vector<std::string>& testArten();
Testergebnis chiQuadratTest(const std::vector<double>& beobachtet, const std::vector<double>& erwartet, double alpha,
                            int geschaetzteParameter = 0);
Zeilen chiTestZeilen(int art, const std::vector<double>& daten, const std::vector<double>& wahrscheinlichkeiten,
                     double alpha, Diagramm* bild = nullptr);

// ---- Four-field table: a = A and B, b = not A and B, c = A and not B, d = neither.
struct Vierfeld {
    double chi2 = 0, pWert = 1;
    bool entscheidbar = true;  // every expected count at least 5
};
Vierfeld vierfeldTest(double a, double b, double c, double d);
Zeilen vierfeldZeilen(double a, double b, double c, double d, Diagramm* bild = nullptr);

}  // namespace zufall
