#pragma once
// The integration core: quadrature rules of school and numerics, areas between two curves split
// at their intersections, solids of rotation, arc length and centroid. No widgets; lines UTF-8.
#include "graphs/analysis.h"

#include <string>
#include <vector>

namespace graphs {

enum class Integrationsverfahren {
    RechteckLinks,   // left Riemann sum, error O(h)
    RechteckRechts,  // right Riemann sum, O(h)
    Mittelpunkt,     // midpoint rule, O(h^2)
    Trapez,          // trapezoidal rule, O(h^2)
    Simpson,         // Simpson's rule on each strip, O(h^4)
    Kepler,          // Kepler's barrel rule: Simpson over the whole interval, n ignored
    Gauss,           // 3-point Gauss-Legendre on each strip, O(h^6)
    Romberg          // trapezoids with 5 Richardson steps from n strips
};

constexpr int kVerfahrenAnzahl = 8;
// German name as the lists show it, e.g. "Simpson-Regel".
const char* verfahrensname(Integrationsverfahren v);
// The order p of the global error (error ~ h^p); 0 for Kepler's rule (no strips).
int fehlerordnung(Integrationsverfahren v);
// "links", "rechts", "mitte", "trapez", "simpson", "kepler", "gauss", "romberg" (any case).
bool verfahrenAusName(const std::string& name, Integrationsverfahren& v);

// The integral of f from a to b with n strips (n < 1 counts as 1). `fehler` receives the
// worst term error met (2 or 4), 0 if all values were good.
double integrieren(const Termfunktion& f, double a, double b, int n, Integrationsverfahren v, int* fehler = nullptr);

struct Integrationsvorgabe {
    std::string f, g = "0";  // upper-case terms
    std::string F, G;        // antiderivatives, may be empty
    double a = 0, b = 1;
    double p = 1, q = 1;
    Integrationsverfahren verfahren = Integrationsverfahren::Simpson;
    int n = 200;
};

struct Integrationsergebnis {
    std::string fehler;  // a term fault: the computation did not run
    bool exakt = false;  // areas from the antiderivatives
    double orientiert = 0, absolut = 0;
    std::vector<double> teilpunkte;  // intersections of f and g inside (a, b)
    double volumen = 0;              // solid of rotation about the x axis
    double bogenlaenge = 0;          // arc length of f
    bool schwerpunktDa = false;  // centroid of the region between f and g
    double schwerpunktX = 0, schwerpunktY = 0;
    bool ueberlauf = false;
};

Integrationsergebnis integrationRechnen(const Integrationsvorgabe& v);
std::vector<std::string> integrationszeilen(const Integrationsvorgabe& v, const Integrationsergebnis& r);
// Every rule with n strips side by side; with an antiderivative also the exact value and errors.
std::vector<std::string> verfahrensvergleich(const std::string& f, const std::string& F, double a, double b, int n);

// A library line "f;F" split; false if the line is no pair.
bool integralPaarLesen(const std::string& zeile, std::string& f, std::string& F);

}  // namespace graphs
