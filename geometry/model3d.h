#pragma once
// T3DModel: the small 3D model of the bodies of rotation. Points, edges and triangles are built
// by procedures (rings of regular n-gons joined to each other); triangles are filled by a scan
// routine with colours interpolated over the three channels. No Qt: pixels go to a callback.
#include "geometry/polyeder.h"

#include <array>
#include <functional>
#include <utility>
#include <vector>

struct Farbe3 {
    double r = 0, g = 0, b = 0;
};

class T3DModel {
public:
    std::vector<poly::Punkt> punkte;
    std::vector<std::pair<int, int>> kanten;
    std::vector<std::array<int, 3>> dreiecke;  // counter-clockwise seen from outside

    // A regular n-gon of radius r at height z (points at angle k * 2 pi / n); first index.
    int ring(int n, double r, double z);
    // Side triangles and edges between two rings of n points (a below b).
    void verbinde(int a, int b, int n);
    // A cap over a ring: its centre and a fan; `oben` decides which way the cap faces.
    void deckel(int ring, int n, bool oben);

    // A body of rotation about the z-axis from its profile (radius, height), bottom to top;
    // a radius 0 gives a single apex point, other ends are closed by caps.
    static T3DModel rotationskoerper(const std::vector<std::pair<double, double>>& profil, int n);

    double volumen() const;
    void drehen(double a, double b, double c);  // as the solids turn

    using PixelSetzen = std::function<void(int x, int y, const Farbe3& c)>;
    // Fills the triangle row by row; colours interpolated along the edges and across each row.
    static void fuelleDreieck(double x1, double y1, const Farbe3& c1, double x2, double y2, const Farbe3& c2,
                              double x3, double y3, const Farbe3& c3, const PixelSetzen& setze);

private:
    void kante(int a, int b);
};
