// Drawing an object setting: invariants of the simulations and circle fractals, the IFS map
// filter, and the German messages for settings that cannot be drawn.
#include "dynamics/chaosdaten.h"
#include "dynamics/chaoslyapunow.h"
#include "dynamics/chaossysteme.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace chaos;

namespace {

int gesetzt(const Werteraster& r)
{
    int n = 0;
    for (auto w : r.werte) n += w != 0;
    return n;
}

}  // namespace

// Diffusion-limited aggregation only sticks a particle next to the cluster, so the cluster is
// 4-connected: every marked pixel but the seed has a marked neighbour.
TEST(ChaosSimulations, DiffusionClusterIsConnected)
{
    Punktraster p;
    p.ansicht = {-1, 1, -1, 1};
    p.setzeGroesse(120, 120);
    const std::string z = simuliere(3, {}, 1500, 11, p);
    ASSERT_EQ(z.rfind("Cluster ", 0), 0u) << z;
    const Werteraster& r = p.raster;
    int teilchen = 0;
    for (int y = 1; y < r.hoehe - 1; ++y)
        for (int x = 1; x < r.breite - 1; ++x) {
            if (!r.at(x, y)) continue;
            ++teilchen;
            const bool nachbar = r.at(x + 1, y) || r.at(x - 1, y) || r.at(x, y + 1) || r.at(x, y - 1);
            EXPECT_TRUE(nachbar) << "isolated particle at " << x << "," << y;
        }
    EXPECT_GT(teilchen, 100);
    EXPECT_EQ(z.substr(8, std::to_string(teilchen).size()), std::to_string(teilchen)) << z;
}

// The chaos game with 3 corners and factor 1/2 draws the Sierpinski triangle: no point falls
// into the middle hole, which is the triangle of the side midpoints.
TEST(ChaosSimulations, ChaosGameAvoidsTheMiddleTriangle)
{
    Punktraster p;
    p.ansicht = {-1.1, 1.1, -1.1, 1.1};
    p.setzeGroesse(200, 200);
    simuliere(1, {3, 0.5}, 50000, 2, p);
    // corners at 90, 210, 330 degrees on the unit circle; the hole's centre is the origin,
    // its inner circle has radius 1/4
    for (int y = 0; y < 200; ++y)
        for (int x = 0; x < 200; ++x) {
            const double px = -1.1 + 2.2 * (x + 0.5) / 200, py = 1.1 - 2.2 * (y + 0.5) / 200;
            if (std::hypot(px, py) < 0.22) EXPECT_EQ(p.raster.at(x, y), 0) << px << " " << py;
        }
    EXPECT_GT(gesetzt(p.raster), 3000);
}

// The prime walk fits the view to its path: every step lands inside the picture.
TEST(ChaosSimulations, PrimeWalkFitsItsView)
{
    Einstellung e;
    e.typ = Simulationen;
    e.variante = 4;
    e.punkte = 5000;
    e.ansicht = {-1, 1, -1, 1};
    Werteraster r;
    std::vector<std::string> z;
    Ansicht benutzt;
    ASSERT_TRUE(zeichneChaos(e, 200, 150, r, z, {}, &benutzt));
    EXPECT_EQ(z.front(), "Primzahlfraktal bis 5000");
    EXPECT_GT(benutzt.xmax - benutzt.xmin, 10) << "the walk of 5000 steps is wider than the first view";
    EXPECT_NEAR((benutzt.xmax - benutzt.xmin) / 200, (benutzt.ymax - benutzt.ymin) / 150, 1e-9) << "equal units";
    Punktraster p;
    p.ansicht = {-1, 1, -1, 1};
    p.setzeGroesse(200, 150);
    simuliere(4, {}, 5000, 1, p);
    EXPECT_EQ(p.daneben, 0);
}

TEST(ChaosCircles, InnerCirclesStayInsideTheirParent)
{
    const auto k = kreisfraktal(3, 2 * std::sqrt(3.0) - 3, 3, true);
    ASSERT_EQ(k.size(), 1u + 3 + 9 + 27);
    // three circles of radius 2 sqrt 3 - 3 touch each other inside the unit circle
    EXPECT_NEAR(std::hypot(k[1].x - k[2].x, k[1].y - k[2].y), 2 * k[1].r, 1e-12);
    for (const auto& c : k) EXPECT_LE(std::hypot(c.x, c.y) + c.r, 1 + 1e-12);
    EXPECT_EQ(kreisfraktal(4, 0.5, 20, false).size(), 1u + 4 + 16 + 64 + 256 + 1024 + 4096 + 16384 + 65536)
        << "the depth is limited to 8";
}

TEST(ChaosDrawing, IfsMapFilterAndModes)
{
    Einstellung e;
    e.typ = IfsEditor;
    e.code = {"0.5 0 0 0.5 0 0", "0.5 0 0 0.5 0.5 0", "0.5 0 0 0.5 0.25 0.5"};
    e.ansicht = {0, 1, 0, 1};
    e.punkte = 20000;
    e.modus = Zeichenmodus::OR;
    Werteraster alle, eine;
    std::vector<std::string> z;
    ASSERT_TRUE(zeichneChaos(e, 100, 100, alle, z));
    e.nurAbbildung = 1;
    ASSERT_TRUE(zeichneChaos(e, 100, 100, eine, z));
    // map 2 (index 1) puts its points into the right half of the base: x >= 0.5, y <= 0.5
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 100; ++x)
            if (eine.at(x, y)) {
                EXPECT_GE(x, 49);
                EXPECT_GE(y, 49);
            }
    EXPECT_GT(gesetzt(eine), 100);
    EXPECT_LT(gesetzt(eine), gesetzt(alle));
}

TEST(ChaosDrawing, UnusableSettingsSayWhy)
{
    Werteraster r;
    std::vector<std::string> z;
    Einstellung e;
    e.typ = Mandelbrot;
    e.variante = 21;
    EXPECT_FALSE(zeichneChaos(e, 20, 20, r, z));
    ASSERT_EQ(z.size(), 1u);
    EXPECT_EQ(z[0], "Unbekannte Variante 21");
    e.typ = IfsEditor;
    e.code = {"1 2 3"};
    EXPECT_FALSE(zeichneChaos(e, 20, 20, r, z));
    EXPECT_EQ(z[0], "Kein gültiger IFS-Code");
    e.typ = IterativeSysteme;
    e.code = {"pendel 1 2"};
    EXPECT_FALSE(zeichneChaos(e, 20, 20, r, z));
    EXPECT_EQ(z[0], "Unbekanntes System");
    e.typ = Simulationen;
    e.variante = 42;
    EXPECT_FALSE(zeichneChaos(e, 20, 20, r, z));
    EXPECT_EQ(z[0], "Unbekannte Simulation");
    // an orbit that runs away is drawn as far as it goes and said so
    e.typ = IterativeSysteme;
    e.code = {"henon 3 0.3"};
    e.ansicht = {-2, 2, -2, 2};
    EXPECT_TRUE(zeichneChaos(e, 20, 20, r, z));
    EXPECT_EQ(z.back(), "Die Bahn läuft ins Unendliche");
}

TEST(ChaosDrawing, ProgressCanStopEveryKind)
{
    for (int typ : {Mandelbrot, Julia, IfsEditor, IterativeSysteme, Feigenbaum}) {
        Einstellung e;
        e.typ = typ;
        e.code = typ == IfsEditor ? std::vector<std::string>{"0.5 0 0 0.5 0 0", "0.5 0 0 0.5 0.5 0"}
                                  : std::vector<std::string>{"henon"};
        e.punkte = 400000;
        if (typ == Feigenbaum) e.ansicht = {2.8, 4, 0, 1};
        Werteraster r;
        std::vector<std::string> z;
        int aufrufe = 0;
        EXPECT_FALSE(zeichneChaos(e, 80, 60, r, z, [&](int promille) {
            EXPECT_GE(promille, 0);
            EXPECT_LE(promille, 1000);
            return ++aufrufe < 3;
        })) << "type " << typ;
        EXPECT_EQ(aufrufe, 3) << "type " << typ;
    }
}

// With a = b every preset sequence is the plain logistic map, so the diagonal of
// "LyapunovSpace" (a and b from 2 to 4) repeats the exponents of x -> r x (1 - x).
TEST(ChaosLyapunov, DiagonalOfTheSquarePresetIsTheLogisticMap)
{
    LjapunowVorgabe v;
    ASSERT_TRUE(leseLjapunowVorgabe(ljapunowVorgabezeilen()[3], v));
    ASSERT_EQ(v.name, "LyapunovSpace");
    TLyapunovLambdaMap m;
    m.starte(v, 16, 16, 400, 800);
    while (m.rechne(5)) {
    }
    for (int i = 0; i < 16; ++i) {
        const int zeile = 15 - i;  // b grows upwards
        ASSERT_DOUBLE_EQ(m.a(i), m.b(zeile));
        EXPECT_NEAR(m.wert(i, zeile), logistikLjapunow(m.a(i), 400, 800), 1e-9) << "r = " << m.a(i);
    }
    // r = 2.0625 (first column) lies in the fixed-point region: order
    EXPECT_LT(m.wert(0, 15), 0);
}

// The abelian sandpile keeps every grain until one falls off the edge; a stable pile has
// heights 0 to 3 and the fourfold symmetry of the grid.
TEST(ChaosSimulations, SandpileConservesGrainsAndIsSymmetric)
{
    Punktraster p;
    p.ansicht = {-1, 1, -1, 1};
    p.setzeGroesse(101, 101);
    EXPECT_EQ(simuliere(9, {}, 10000, 1, p), "Körner 10000, über den Rand 0");
    long long summe = 0;
    for (int y = 0; y < 101; ++y)
        for (int x = 0; x < 101; ++x) {
            const int hoehe = p.raster.at(x, y) / 60;
            ASSERT_LE(hoehe, 3);
            ASSERT_EQ(p.raster.at(x, y) % 60, 0);
            summe += hoehe;
            EXPECT_EQ(p.raster.at(x, y), p.raster.at(100 - x, y));
            EXPECT_EQ(p.raster.at(x, y), p.raster.at(y, x));
        }
    EXPECT_EQ(summe, 10000);
    Punktraster klein;
    klein.ansicht = {-1, 1, -1, 1};
    klein.setzeGroesse(5, 5);
    const std::string z = simuliere(9, {}, 1000, 1, klein);
    EXPECT_NE(z.find("über den Rand"), std::string::npos);
    EXPECT_NE(z, "Körner 1000, über den Rand 0") << "a 5 x 5 grid cannot hold 1000 grains";
}

// With p = 1 every site is occupied and forms one cluster; with p = 0 nothing is.
TEST(ChaosSimulations, PercolationExtremes)
{
    Punktraster p;
    p.ansicht = {-1, 1, -1, 1};
    p.setzeGroesse(40, 30);
    EXPECT_EQ(simuliere(8, {1.0}, 1, 1, p), "Cluster 1200 Felder, 1 Cluster");
    EXPECT_EQ(simuliere(8, {0.0}, 1, 1, p), "Cluster 0 Felder, 0 Cluster");
    // Eden growth adds only neighbours: the cluster is 4-connected and counted right
    Punktraster e;
    e.ansicht = {-1, 1, -1, 1};
    e.setzeGroesse(60, 60);
    const std::string z = simuliere(7, {}, 20000, 3, e);
    int zellen = 0;
    for (auto w : e.raster.werte) zellen += w != 0;
    EXPECT_EQ(z, "Cluster " + std::to_string(zellen) + " Teilchen");
    EXPECT_GT(zellen, 500);
}
