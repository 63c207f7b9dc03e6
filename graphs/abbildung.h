#pragma once
// The pixel mapping of the plot and the pure rules that change the visible range.
#include <string>

namespace graphs {

struct Bereich {
    double xmin = -6, xmax = 6, ymin = -5, ymax = 5;
};

struct Abbildung {
    Bereich b;
    int plotWidth = 1, plotHeight = 1;  // size of the paint box plus 1
    double xScale = 1, yScale = 1;      // pixels per unit
    int originX = 0, originY = 0;       // pixel of (0,0)

    // From the range and the size of the paint box (plotWidth := breite + 1).
    static Abbildung aus(const Bereich& b, int breite, int hoehe);

    double xVonPixel(double p) const { return (p - originX) / xScale; }
    double yVonPixel(double r) const { return (originY - r) / yScale; }
    double pixelXgenau(double x) const { return x * xScale + originX; }
    double pixelYgenau(double y) const { return -y * yScale + originY; }
    int pixelX(double x) const;
    int pixelY(double y) const;
};

// The corrections of the "Zeichnen" button: range limited to 200 either way, an empty span
// opened to one unit.
Bereich bereichKorrigieren(Bereich b);
// A unit field with automatic units off: below 0.1 it is forced to 0.1.
double einheitKorrigieren(double e);

// Shift by a fifth of the span: dx, dy in {-1, 0, 1} (right/up positive).
Bereich verschieben(const Bereich& b, int dx, int dy);
// Zoom by `anteil` of the span at each end; false (range unchanged) if a limit forbids it.
bool verkleinern(Bereich& b, double anteil = 0.1);  // both spans must be above 0.01
bool vergroessern(Bereich& b, double anteil = 0.1); // both spans must be below 1000000
// "Grundeinstellung": x -6..6 (-8..8 wide), y from the pixel aspect.
Bereich grundeinstellung(int plotWidth, int plotHeight, bool breit);
// "y-Auflösung anpassen": the y range from the present x range so units are equal on both axes.
Bereich yAufloesungAnpassen(const Bereich& b, int plotWidth, int plotHeight);

// The 1-2-5 unit that gives a readable number of ticks for a span of `pixel` pixels.
double automatischeEinheit(double spanne, int pixel);

}  // namespace graphs
