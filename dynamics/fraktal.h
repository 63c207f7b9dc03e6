#pragma once
// Escape-time fractals (Mandelbrot and Julia sets with their variants) as plain computation:
// one byte of iteration value per pixel, coloured later through a palette.
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace chaos {

// The visible part of the plane.
struct Ansicht {
    double xmin = -2.2, xmax = 1.0, ymin = -1.2, ymax = 1.2;
};

// One byte per pixel; row 0 is the top row of the picture.
struct Werteraster {
    int breite = 0, hoehe = 0;
    std::vector<std::uint8_t> werte;
    void setzeGroesse(int b, int h)
    {
        breite = b;
        hoehe = h;
        werte.assign(static_cast<std::size_t>(b) * h, 0);
    }
    std::uint8_t& at(int x, int y) { return werte[static_cast<std::size_t>(y) * breite + x]; }
    std::uint8_t at(int x, int y) const { return werte[static_cast<std::size_t>(y) * breite + x]; }
};

// The outcome of iterating one point.
struct Flucht {
    int schritte = 0;       // steps done when the point left (or the limit)
    bool entkommen = false;  // squared modulus exceeded the escape limit
    double betrag = 0;      // modulus of the last value
};

// The variants the escape-time routine knows, in the order of the list.
const std::vector<int>& fluchtvarianten();
bool istFluchtvariante(int v);
// German formula text of a variant, e.g. "z² + c".
std::string variantenname(int v);
// Squared modulus at which a point counts as escaped: 9 (radius 3), 100 for variants 26 and 28.
double fluchtgrenze(int v);

// Iterates variant v with start value z0 = (x, y) and parameter c = (a, b).
// For the Mandelbrot type the caller passes z0 = 0 (polynomial forms) or z0 = c (rational forms,
// see startBeiC), for the Julia type z0 is the pixel.
Flucht iteriere(int v, double x, double y, double a, double b, int maxIter);
// Rational forms divide by z and so cannot start at 0 in the parameter plane.
bool startBeiC(int v);
// The Mandelbrot-type escape of the parameter c = (a, b).
Flucht mandelbrotFlucht(int v, double a, double b, int maxIter);

// Colour index of a point: (k*n) mod 256 if it escaped, else 0 or, with interior colouring,
// round(100*k*modulus) mod 256.
std::uint8_t farbindex(const Flucht& f, double farbfaktor, bool innenfaerbung);

struct Fluchtbild {
    int variante = 10;
    int maxIter = 200;
    bool julia = false;
    double ca = 0, cb = 0;  // the fixed parameter of a Julia set
    double farbfaktor = 1;
    bool innenfaerbung = false;
    std::uint64_t zufallskeim = 1;  // variant 25 shakes c by up to 1/20
};

// Row callback: gets the number of rows done so far; returning false stops the run.
using Fortschritt = std::function<bool(int fertigeZeilen)>;

// Fills the raster, from the last row to the first. False if stopped.
bool rechneFluchtbild(Werteraster& raster, const Ansicht& ansicht, const Fluchtbild& p,
                      const Fortschritt& weiter = {});

// The pixel (column, row) in the plane; row 0 is ymax.
double spalteZuX(const Ansicht& a, int spalte, int breite);
double zeileZuY(const Ansicht& a, int zeile, int hoehe);

// The view of a dragged rectangle in pixels; false if it is smaller than one pixel.
bool zoomAnsicht(const Ansicht& alt, int breite, int hoehe, int x1, int y1, int x2, int y2,
                 Ansicht& neu);
// Widens the view about its centre so that a unit is as long across as up the picture.
Ansicht gleicheEinheiten(const Ansicht& a, int breite, int hoehe);
// Shifts the view by a fraction of its width (dx) and height (dy); positive dy moves up.
Ansicht verschiebe(const Ansicht& a, double dx, double dy);

}  // namespace chaos
