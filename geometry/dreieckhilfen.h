#pragma once
// Plane helpers of the triangle tool, in screen pixels with y growing downward.
#include <array>

namespace geo {

struct Pkt {
    double x = 0, y = 0;
};

inline Pkt operator+(Pkt a, Pkt b) { return {a.x + b.x, a.y + b.y}; }
inline Pkt operator-(Pkt a, Pkt b) { return {a.x - b.x, a.y - b.y}; }
inline Pkt operator*(Pkt a, double f) { return {a.x * f, a.y * f}; }
double abstand(Pkt a, Pkt b);
Pkt mitte(Pkt a, Pkt b);

// The scene's point store: real pairs and their rounded pixels. Entry 0 is not used.
class PointTable {
public:
    static constexpr int kAnzahl = 421;
    struct Eintrag {
        Pkt r;
        int ix = 0, iy = 0;
    };
    // Writing clamps each coordinate to +-1e10 and rounds the pixel pair within +-10000.
    void setze(int nr, Pkt p);
    Pkt operator[](int nr) const { return e_[nr].r; }
    const Eintrag& eintrag(int nr) const { return e_[nr]; }
    // Only the vertices survive between repaints; they take their pixels as they are.
    void setzeEcke(int nr, int px, int py);

private:
    std::array<Eintrag, kAnzahl> e_{};
};

// Point of trilinears u : v : w; false when it does not exist (zero weight sum, zero sides,
// zero angle at A).
bool TrilinearToPoint(double u, double v, double w, Pkt A, Pkt B, Pkt C, Pkt& P);
// Crossing of line p1p2 with line q1q2; false for parallel lines.
bool IntersectLines(Pkt p1, Pkt p2, Pkt q1, Pkt q2, Pkt& S);
// Foot of the perpendicular from P on line AB (exact, no clamping).
Pkt Lotfusspunkt(Pkt P, Pkt A, Pkt B);
// A second point of the perpendicular from B to line PA, as the drawing code uses it.
Pkt PerpendicularPoint(Pkt P, Pkt A, Pkt B);
Pkt RotateAbout(Pkt p, Pkt centre, double angle);
// Outer similarity centre of two circles: M1 + r1 / (r1 - r2) (M2 - M1).
bool TangentPoint(double r1, Pkt M1, double r2, Pkt M2, Pkt& T);
Pkt ParallelPoint(Pkt A, Pkt B, Pkt C);  // A + C - B
// Distance of P to the line e1e2, positive when P lies on the side of `third`.
double SignedDistance(Pkt P, Pkt third, Pkt e1, Pkt e2);
// True unless P and Q lie strictly on opposite sides of the line l1l2.
bool SameSide(Pkt P, Pkt Q, Pkt l1, Pkt l2);
// Mirrors P through the pivot if it lies on the other side of line l1l2 than `ref`.
Pkt FlipSide(Pkt P, Pkt pivot, Pkt ref, Pkt l1, Pkt l2);
// Solves the 3x3 system m (row-wise, 9 values) x = r by Cramer's rule.
// 0 solved, 255 no solution, 1 indeterminate.
int Cramer3(const double m[9], const double r[3], double x[3]);
// Apex of the isosceles triangle with base angle `winkel` on the side p1p2, on the side away
// from `gegen` when `aussen`, else towards it; false when the tangent is 0.
bool KiepertApex(double winkel, Pkt p1, Pkt p2, Pkt gegen, bool aussen, Pkt& apex);
// Circle through three points; false when they are collinear.
bool Kreis3(Pkt p1, Pkt p2, Pkt p3, Pkt& m, double& r);

}  // namespace geo

namespace geo {
// Conic a x^2 + b xy + c y^2 + d x + e y + f = 0 through five points, coefficients normalised
// to length 1; false when the points do not fix one conic.
bool Kegelschnitt5(const Pkt p[5], double k[6]);
// The conic's value at P divided by the size of its gradient there: about the distance of P
// from the curve, in pixels, near the curve.
double KegelschnittAbstand(const double k[6], Pkt P);
}  // namespace geo
