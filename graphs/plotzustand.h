#pragma once
// The shared state of the plotter: range, units, options of the check boxes, labels, palette.
#include "graphs/abbildung.h"
#include "graphs/kurventracer.h"
#include "platform/color.h"

#include <array>
#include <string>
#include <vector>

namespace graphs {

struct PlotOptionen {
    bool achsen = true;          // "Achsen"
    bool rahmen = false;         // "Koordinatenrahmen"
    bool raster = true;          // "Raster"
    bool mm = false;             // "mm": minor grid by fifths and twentieths
    bool winkel = false;         // "Winkel": degree grid
    bool bogenmass = false;      // "Bogenmaß": multiples of pi
    bool quadranten = false;     // "farbige Quadranten"
    bool terme = true;           // "Terme" (C9): labels at the curves
    bool nummern = false;        // "Nummern" (C13): labels prefixed "[n] "
    bool autoEinheiten = true;   // "automat.Einheiten" (CB2)
    bool farbig = true;          // "farbige Funktionen"
    bool punktmodus = false;     // "Punktmodus"
    bool dicht = false;          // "dichte Darstellung"
    bool definitionsbereich = false;  // "Definitionsbereich"
    bool achsenbreit = false;    // wide axes (setting Achsenbreit)
    int logAchsen = 0;           // 0 plain, 1 log x, 2 log y, 3 both
    int breite = 1;              // "Breite" (TB4) as the user set it
    int schrift = 10;            // font size of the graphics
};

// A helper line of a tool in world coordinates, drawn by the commands g, y, z.
struct Hilfslinie {
    double x1, y1, x2, y2;
};

struct PlotZustand {
    Bereich bereich;
    double xE = 1, yE = 1;                 // tick units (E10, E11)
    double feldDomainLow = -1000, feldDomainHigh = 1000;  // E3, E4
    double animationStep = 0.1;
    int animationSign = 1;
    double familieVon = -2, familieBis = 2, familieSchritt = 0.5;  // P of the family S
    std::string feldX, feldY;              // terms of the parametric and polar curves
    std::vector<Hilfslinie> hilfslinien;
    PlotOptionen opt;
    std::array<Punkt, 30> labels{};

    PlotZustand() { labelsZuruecksetzen(); }
    void labelsZuruecksetzen();
    double domainLow() const { return opt.definitionsbereich ? feldDomainLow : -10000; }
    double domainHigh() const { return opt.definitionsbereich ? feldDomainHigh : 10000; }
};

// The plot colour table held with the settings: 16 entries.
extern std::array<platform::TColor, 16> farbtabelle;
// Colour of curve n (from 1): black, then entries 11, 2, 1, 8, 6, 4, 5; above 8 entry n mod 8 + 1.
platform::TColor kurvenfarbe(int n, bool farbig);
// Pen width from the "Breite" value: above 9 gives 5, negative gives 1.
int stiftbreite(int tb4);
// A colour word of the script ("gelb", "rot", "blau", ...); black if unknown.
platform::TColor farbwort(const std::string& wort);

}  // namespace graphs

namespace graphs {
// The plotter's process-wide state: the resident window and the tools share it.
PlotZustand& plotZustand();
}  // namespace graphs
