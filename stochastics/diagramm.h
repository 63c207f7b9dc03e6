#pragma once
// What a page draws, in world coordinates: bars, points and curves. The window scales and paints.
#include <string>
#include <utility>
#include <vector>

namespace zufall {

using Zeilen = std::vector<std::string>;  // result lines, columns separated by tabs (UTF-8)
using Punkt = std::pair<double, double>;

struct Balken {
    double x = 0, breite = 1, hoehe = 0;
    std::string text;       // label under the bar, may be empty
    bool hervorheben = false;  // drawn in the second colour
};

struct Diagramm {
    std::string titel;
    std::string xText, yText;
    std::vector<Balken> balken;
    std::vector<Punkt> punkte;                // data points
    std::vector<std::vector<Punkt>> kurven;   // polylines, broken where the curve is undefined
    std::vector<Punkt> vergleich;             // second series of marks (exact values)
    struct Linie {
        Punkt a, b;
        std::string text;  // written at the middle of the line
        bool hervorheben = false;
    };
    std::vector<Linie> linien;  // trees: drawn in a fixed 0..1 square without axes
    bool leer() const { return balken.empty() && punkte.empty() && kurven.empty() && vergleich.empty() && linien.empty(); }
};

// Samples a term of the interpreter over [von, bis]; points where it fails break the line.
std::vector<std::vector<Punkt>> termKurve(const std::string& term, double von, double bis, int schritte = 300);

}  // namespace zufall
