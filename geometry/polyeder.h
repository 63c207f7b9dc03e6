#pragma once
// Solids of the polyhedra tool: vertex tables read from the text resources, faces found as the
// convex hull of the vertices, turning, truncation, stellation, measures and views.
// Plain computation, no Qt.
#include <string>
#include <vector>

namespace poly {

struct Punkt {
    double x = 0, y = 0, z = 0;
};

// Faces list vertex indices counter-clockwise seen from outside. Screen axes: x right, y down,
// z into the screen, so a face whose outer normal has z < 0 faces the viewer.
struct Koerper {
    std::string name;
    std::vector<Punkt> ecken;
    std::vector<std::vector<int>> flaechen;
    std::vector<Punkt> mitten;  // face centres, turned together with the vertices
};

struct Kante {
    int a = 0, b = 0;
};

// The families of the radio group Polyederart.
enum Art { Polyeder = 0, Krummlinig = 1, Archimedisch = 2, Johnson = 3, Abstumpfungen = 4, Sternkoerper = 5 };
const std::vector<std::string>& artNamen();

// Names of a family as the list LB1 shows them (" Abstumpfung" appended in family 4).
std::vector<std::string> koerperNamen(const std::vector<std::string>& zeilen, int art);
// Reads entry `index` (0-based) of family `art`; false when the entry or its section is missing.
// A section lists its vertices, then optionally its faces as lines "F i j k ..." (1-based,
// counter-clockwise from outside); without them the faces are those of the convex hull.
bool leseKoerper(const std::vector<std::string>& zeilen, int art, int index, Koerper& k);
// Finds a solid by its name in any family (case-sensitive, without " Abstumpfung").
bool sucheKoerper(const std::vector<std::string>& zeilen, const std::string& name, Koerper& k);

// A convex solid from its vertices: faces are the planes of the hull, coplanar points merged.
// Duplicate points (closer than 1e-9 of the size) are dropped first.
Koerper konvexerKoerper(const std::string& name, std::vector<Punkt> ecken);
void berechneMitten(Koerper& k);

std::vector<Kante> kanten(const Koerper& k);
double volumen(const Koerper& k);
double oberflaeche(const Koerper& k);
double umkugelradius(const Koerper& k);  // largest distance of a vertex from the origin
void kantenlaengen(const Koerper& k, double& kleinste, double& groesste);

// Every coordinate times groesse over the largest radius.
void skaliere(Koerper& k, double groesse);
// Turns vertices and face centres by three angles in degrees: x-y plane by c, then y-z plane
// by b, then x-z plane by a.
void drehen(Koerper& k, double a, double b, double c);

// Cuts every vertex off at the fraction t (0 to 0.5) of each of its edges: 0.5 meets at the
// edge midpoints. The result is the hull of the cut points.
Koerper abstumpfen(const Koerper& k, double t);
// Sets a pyramid on every face; at t = 0.5 its side edges equal the face's edges, 0 leaves the
// solid as it is.
Koerper sternkoerper(const Koerper& k, double t);

// Painter's order: faces by falling z of their centre; ties keep table order.
std::vector<int> zeichenreihenfolge(const Koerper& k);
// Outer normal (not normalised) of face f.
Punkt normale(const Koerper& k, int f);
bool sichtbar(const Koerper& k, int f);

// The sheets of the two- and three-plane views: front view, top view below it, side view to
// the right. Returns (horizontal, downward) on the sheet.
enum class Tafel { Aufriss, Grundriss, Seitenriss };
Punkt tafelpunkt(const Punkt& p, Tafel t);
// The solid as seen on a sheet: vertices and centres mapped by tafelpunkt (a proper rotation,
// so visibility and painter's order work there as in the main view).
Koerper ansicht(const Koerper& k, Tafel t);

}  // namespace poly
