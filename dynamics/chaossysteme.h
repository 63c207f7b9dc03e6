#pragma once
// Point-drawn chaos: iterated function systems, iterative maps and attractors, simulations,
// circle fractals and the Feigenbaum diagram. Each routine marks points in a value raster.
#include "dynamics/fraktal.h"

#include <cstdint>
#include <string>
#include <vector>

namespace chaos {

// How a new point combines with the value already at its pixel.
enum class Zeichenmodus { Setzen, XOR, AND, OR, NOR };
Zeichenmodus zeichenmodusAusText(const std::string& s);  // "XOR", "AND", "OR", "NOR"; else Setzen

// A value raster seen through a view of the plane.
struct Punktraster {
    Werteraster raster;
    Ansicht ansicht;
    Zeichenmodus modus = Zeichenmodus::Setzen;
    long long gesetzt = 0;    // points that fell inside the picture
    long long daneben = 0;    // points outside it
    void setzeGroesse(int b, int h) { raster.setzeGroesse(b, h); }
    // Marks (x, y) with value w by the mode; false if outside the picture.
    bool punkt(double x, double y, std::uint8_t w);
    // Adds one hit (density colouring, saturating at 200).
    bool treffer(double x, double y, int schritt = 1);
    bool pixel(int px, int py, std::uint8_t w);
    void linie(double x1, double y1, double x2, double y2, std::uint8_t w);
    void kreis(double mx, double my, double r, std::uint8_t w);
};

// ---- Iterated function systems
// x' = a x + b y + e, y' = c x + d y + f, chosen with probability p.
struct Affin {
    double a = 0, b = 0, c = 0, d = 0, e = 0, f = 0, p = 0;
};
// Lines "a b c d e f p" (decimal point or comma); bad lines are skipped, at most 8 maps.
// Missing or zero probabilities are taken proportional to |det|.
std::vector<Affin> leseIfs(const std::vector<std::string>& zeilen);
// The chaos game: n points after 20 warm-up steps. `treffer` gets each point and its map index;
// returning false stops. `nurAbbildung` >= 0 draws only points that came from that map.
using IfsPunkt = std::function<bool(double x, double y, int abbildung)>;
void ifsSpiel(const std::vector<Affin>& maps, long long n, std::uint64_t keim, const IfsPunkt& treffer);
// The bounding box of n chaos-game points.
Ansicht ifsRahmen(const std::vector<Affin>& maps, long long n, std::uint64_t keim);

// ---- Iterative systems: one routine, the code names the map
// Codes: henon a b | lozi a b | ikeda u | clifford a b c d | dejong a b c d |
// tinkerbell a b c d | gingerbread | standard k | lorenz s r b | roessler a b c | quadratisch 12
struct Systemcode {
    std::string name;
    std::vector<double> p;
};
bool leseSystemcode(const std::string& zeile, Systemcode& code);  // false: unknown name
const std::vector<std::string>& systemnamen();
// Iterates n points of the system from its usual start; `punkt` gets the plane point
// (the x-z projection for flows). False if the orbit left to infinity.
using Bahnpunkt = std::function<bool(double x, double y)>;
bool iteriereSystem(const Systemcode& code, long long n, const Bahnpunkt& punkt);

// ---- Simulations (the routines of the group "Simulationen")
struct Simulation {
    int nummer;
    const char* name;
};
const std::vector<Simulation>& simulationen();
// Runs simulation `nummer` with its parameters into the raster; returns the result line
// (e.g. "Distanz 31.6"). Stops early when `weiter` says so.
std::string simuliere(int nummer, const std::vector<double>& par, long long schritte, std::uint64_t keim,
                      Punktraster& ziel, const std::function<bool(long long)>& weiter = {});

// ---- Circle fractals: every circle carries n circles of q times its radius on its rim
struct Kreis {
    double x, y, r;
    int tiefe;
};
std::vector<Kreis> kreisfraktal(int n, double q, int tiefe, bool innen);

// ---- Feigenbaum diagram of x -> r x (1 - x)
// For every column r the values after `einschwingen` steps, `zeichnen` of them.
bool feigenbaumDiagramm(Punktraster& ziel, int einschwingen, int zeichnen, const Fortschritt& weiter = {});
// The period of the attracting orbit at r (1, 2, 4, ...), 0 if none up to maxPeriode shows.
int logistikPeriode(double r, int maxPeriode = 64);
// The parameter values r_1 = 3, r_2 = 1 + sqrt 6, ... where the period doubles from 2^(k-1)
// to 2^k, found by Newton's method on f^p(x) = x, (f^p)'(x) = -1.
std::vector<double> feigenbaumVerzweigungen(int anzahl);

}  // namespace chaos
