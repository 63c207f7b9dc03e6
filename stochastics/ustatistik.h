#pragma once
// Descriptive statistics, curve fitting, regression, data pairs, probability tables and
// confidence intervals: plain values in, result lines and drawings out.
#include "stochastics/diagramm.h"

#include <string>
#include <vector>

namespace zufall {

// Numbers as the tool shows them (six decimals, trimmed, decimal comma by the setting) and in
// terms (point).
std::string zahl(double x, int stellen = 6);
std::string termZahl(double x);
// The same, bracketed when negative, for use after an operator.
std::string termKlammer(double x);

// Reads numbers separated by blanks, semicolons, tabs or line ends; "," is a decimal comma. A word that is no number is reported in `fehler` (its text) and skipped.
std::vector<double> leseZahlen(const std::string& text, std::string* fehler = nullptr);

// ---- Descriptive statistics
struct Kennwerte {
    int n = 0;
    double mittel = 0, quadratisch = 0, geometrisch = 0, harmonisch = 0;
    bool geometrischDefiniert = false, harmonischDefiniert = false;
    double stichprobenvarianz = 0, probenStandardabweichung = 0, standardabweichung = 0;
    double variationskoeffizient = 0, standardfehler = 0, streubreite = 0, median = 0;
    double mittlereAbweichung = 0, minimum = 0, maximum = 0;
    double q25 = 0, q75 = 0, q125 = 0, q875 = 0;  // quantiles by linear interpolation
    double ohneMin = 0, ohneMax = 0, ohneBeide = 0;
};
Kennwerte kennwerte(const std::vector<double>& werte);
Zeilen statistikZeilen(const std::vector<double>& werte);
// Histogram in `klassen` classes with the bell curve of the same mean and deviation.
Diagramm statistikDiagramm(const std::vector<double>& werte, int klassen = 0);
// Sample quantile (0 <= p <= 1) by linear interpolation between order statistics.
double stichprobenQuantil(std::vector<double> werte, double p);

// ---- Fitting: the model list, least squares on transformed values
const std::vector<std::string>& modellNamen();
struct Anpassung {
    bool gueltig = false;
    std::string fehler;
    int n = 0;
    double a = 0, b = 0;   // the model's two constants (M and N for the straight lines)
    double r = 0;          // correlation coefficient of the transformed values
    std::string term;      // in interpreter syntax, for drawing
    std::string anzeige;   // the model's form with its constants, for the result list
};
Anpassung anpassen(const std::vector<double>& x, const std::vector<double>& y, int modell);
Zeilen anpassungZeilen(const std::vector<double>& x, const std::vector<double>& y, int modell, Diagramm* bild = nullptr);

// Three target functions (interpreter terms) combined linearly by least squares.
struct Regression {
    bool gueltig = false;
    double k[3] = {0, 0, 0};
    double abweichung = 0;  // sum of squared residuals
};
Regression regression3(const std::vector<double>& x, const std::vector<double>& y, const std::string (&terme)[3]);
Zeilen regressionZeilen(const std::vector<double>& x, const std::vector<double>& y, const std::string (&terme)[3],
                        Diagramm* bild = nullptr);

// ---- Data pairs: both columns, their covariance and correlation
Zeilen paarZeilen(const std::vector<double>& x, const std::vector<double>& y, Diagramm* bild = nullptr);

// ---- Probability table k, P(X = k) with a comparison to the binomial law of the same mean
Zeilen wahrscheinlichkeitstabelle(const std::vector<double>& k, const std::vector<double>& p, Diagramm* bild = nullptr);

// ---- Confidence intervals; stufe indexes "80 %", "90 %", "95 %", "99 %", "99,9 %"
const std::vector<std::string>& konfidenzNiveaus();
double konfidenzNiveau(int stufe);
struct Intervall {
    double unten = 0, oben = 0;
};
bool konfidenzMittelwert(const std::vector<double>& werte, double niveau, Intervall& iv);
bool konfidenzVarianz(const std::vector<double>& werte, double niveau, Intervall& iv);
Zeilen konfidenzZeilen(const std::vector<double>& werte, int stufe);

// ---- Example data of the list "-", "Länderschulden", "Regen", "Schüler", "Sinuswerte",
// "Störche und Babys": x and y columns (y empty for single columns).
const std::vector<std::string>& beispielNamen();
void beispielDaten(int nr, std::vector<double>& x, std::vector<double>& y);

}  // namespace zufall
