// Solids of the resources: counts, Euler's formula, equal edges, published measures, the limits
// of the truncation, stellation, turning and the views.
#include "geometry/polyeder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>

namespace {

std::vector<std::string> ressourcen()
{
    std::vector<std::string> z;
    for (const char* n : {"mpoly1", "mpoly2", "koerperz"}) {
        std::ifstream in(std::string(QUORIX_SOURCE_DIR) + "/data/texte/" + n + ".txt");
        std::string s;
        while (std::getline(in, s)) z.push_back(s);
    }
    return z;
}

const std::vector<std::string>& daten()
{
    static const std::vector<std::string> z = ressourcen();
    return z;
}

poly::Koerper hole(const std::string& name)
{
    poly::Koerper k;
    EXPECT_TRUE(poly::sucheKoerper(daten(), name, k)) << name;
    return k;
}

int eulerZahl(const poly::Koerper& k)
{
    return static_cast<int>(k.ecken.size() - poly::kanten(k).size() + k.flaechen.size());
}

bool nah(double a, double b, double rel) { return std::fabs(a - b) <= rel * std::max(1.0, std::fabs(b)); }

}  // namespace

// One line per solid in polyeder_koerper.txt: counts, edge 1 measures, equal edges.
TEST(Polyeder, KoerperTabelle)
{
    std::ifstream in(std::string(QUORIX_TEST_DATA) + "/polyeder_koerper.txt");
    ASSERT_TRUE(in.good());
    std::string zeile;
    int gelesen = 0;
    while (std::getline(in, zeile)) {
        if (zeile.empty() || zeile[0] == '#') continue;
        std::vector<std::string> f;
        std::stringstream ss(zeile);
        std::string t;
        while (std::getline(ss, t, '|')) f.push_back(t);
        ASSERT_EQ(f.size(), 7u) << zeile;
        const poly::Koerper k = hole(f[0]);
        SCOPED_TRACE(f[0]);
        EXPECT_EQ(k.ecken.size(), std::stoul(f[1]));
        EXPECT_EQ(poly::kanten(k).size(), std::stoul(f[2]));
        EXPECT_EQ(k.flaechen.size(), std::stoul(f[3]));
        EXPECT_EQ(eulerZahl(k), 2);
        const double v = std::stod(f[4]), a = std::stod(f[5]);
        if (v > 0) EXPECT_TRUE(nah(poly::volumen(k), v, 1e-6)) << "Volumen erwartet " << v << ", ist " << poly::volumen(k);
        if (a > 0)
            EXPECT_TRUE(nah(poly::oberflaeche(k), a, 1e-6))
                << "Oberfläche erwartet " << a << ", ist " << poly::oberflaeche(k);
        if (f[6] == "gleich") {
            double lo, hi;
            poly::kantenlaengen(k, lo, hi);
            EXPECT_NEAR(lo, 1.0, 1e-6);
            EXPECT_NEAR(hi, 1.0, 1e-6);
        }
        ++gelesen;
    }
    EXPECT_GE(gelesen, 30);
}

// Every entry of every family can be read, is closed (Euler) and has positive volume.
TEST(Polyeder, AlleEintraegeSindGeschlosseneKoerper)
{
    for (int art = 0; art <= 5; ++art) {
        const auto namen = poly::koerperNamen(daten(), art);
        EXPECT_FALSE(namen.empty()) << poly::artNamen()[art];
        for (size_t i = 0; i < namen.size(); ++i) {
            poly::Koerper k;
            ASSERT_TRUE(poly::leseKoerper(daten(), art, static_cast<int>(i), k)) << namen[i];
            // the ring has a hole: e - k + f = 0
            EXPECT_EQ(eulerZahl(k), namen[i] == "Hohlzylinder" ? 0 : 2) << namen[i];
            EXPECT_GT(poly::volumen(k), 0) << namen[i];
        }
    }
    EXPECT_EQ(poly::koerperNamen(daten(), poly::Abstumpfungen).front(), "Tetraeder Abstumpfung");
}

TEST(Polyeder, FehlendeEintraegeLiefernNichts)
{
    poly::Koerper k;
    EXPECT_FALSE(poly::leseKoerper(daten(), poly::Polyeder, 999, k));
    EXPECT_FALSE(poly::leseKoerper({"{0", "Ohne Abschnitt"}, poly::Polyeder, 0, k));
    EXPECT_FALSE(poly::leseKoerper({"{0", "Kurz", "[1]", "8", "0 0 0"}, poly::Polyeder, 0, k));
    EXPECT_TRUE(poly::koerperNamen({}, poly::Polyeder).empty());
    // without a next "{" the block runs to the end of the list
    EXPECT_TRUE(poly::leseKoerper({"{0", "Tetraeder", "[1]", "4", "1 1 1", "1 -1 -1", "-1 1 -1", "-1 -1 1"},
                                  poly::Polyeder, 0, k));
    EXPECT_EQ(k.flaechen.size(), 4u);
}

// A solid with listed faces: the hollow cylinder of radii 1 and 0.6, height 1.5, 36 sides.
TEST(Polyeder, FlaechenAusDerRessource)
{
    const poly::Koerper k = hole("Hohlzylinder");
    EXPECT_EQ(k.ecken.size(), 144u);
    EXPECT_EQ(poly::kanten(k).size(), 288u);
    EXPECT_EQ(k.flaechen.size(), 144u);
    const double ring = 18 * std::sin(2 * M_PI / 36) * (1 - 0.36) * 1.5;  // prism over the polygon ring
    EXPECT_NEAR(poly::volumen(k), ring, 1e-9) << "erwartet " << ring;
    poly::Koerper falsch;
    EXPECT_FALSE(poly::leseKoerper({"{0", "Kaputt", "[1]", "4", "0 0 0", "1 0 0", "0 1 0", "0 0 1", "F 1 2 9"},
                                   poly::Polyeder, 0, falsch));
}

// The rhombohedron of 72-degree rhombi cut at both tips: six pentagons and two triangles,
// all twelve vertices on one sphere.
TEST(Polyeder, DuererPolyeder)
{
    const poly::Koerper k = hole("Dürer-Polyeder");
    EXPECT_EQ(k.ecken.size(), 12u);
    EXPECT_EQ(poly::kanten(k).size(), 18u);
    int fuenfecke = 0, dreiecke = 0;
    for (const auto& f : k.flaechen) {
        fuenfecke += f.size() == 5;
        dreiecke += f.size() == 3;
    }
    EXPECT_EQ(fuenfecke, 6);
    EXPECT_EQ(dreiecke, 2);
    const double r = poly::umkugelradius(k);
    for (const auto& p : k.ecken) EXPECT_NEAR(std::sqrt(p.x * p.x + p.y * p.y + p.z * p.z), r, 1e-9);
}

// Truncation at its limits and at the points where known Archimedean solids appear.
TEST(Polyeder, AbstumpfungGrenzen)
{
    const poly::Koerper wuerfel = hole("Würfel");
    const poly::Koerper kubo = poly::abstumpfen(wuerfel, 0.5);
    EXPECT_EQ(kubo.ecken.size(), 12u);
    EXPECT_EQ(poly::kanten(kubo).size(), 24u);
    EXPECT_EQ(kubo.flaechen.size(), 14u);
    // cuboctahedron of edge sqrt(2)/2: volume 5*sqrt(2)/3 * a^3
    const double a = std::sqrt(0.5);
    EXPECT_NEAR(poly::volumen(kubo), 5 * std::sqrt(2.0) / 3 * a * a * a, 1e-9);

    const poly::Koerper gleich = poly::abstumpfen(wuerfel, 0.0);
    EXPECT_EQ(gleich.ecken.size(), 8u);
    EXPECT_NEAR(poly::volumen(gleich), 1.0, 1e-12);

    // truncated cube: the cut at 1/(2+sqrt 2) leaves regular octagons
    const poly::Koerper stumpf = poly::abstumpfen(wuerfel, 1 / (2 + std::sqrt(2.0)));
    double lo, hi;
    poly::kantenlaengen(stumpf, lo, hi);
    EXPECT_EQ(stumpf.ecken.size(), 24u);
    EXPECT_NEAR(lo, hi, 1e-9);

    // the tetrahedron cut at its edge midpoints is the octahedron, at 1/3 the truncated tetrahedron
    const poly::Koerper okt = poly::abstumpfen(hole("Tetraeder"), 0.5);
    EXPECT_EQ(okt.ecken.size(), 6u);
    EXPECT_EQ(okt.flaechen.size(), 8u);
    const poly::Koerper tt = poly::abstumpfen(hole("Tetraeder"), 1.0 / 3);
    EXPECT_EQ(tt.ecken.size(), 12u);
    EXPECT_NEAR(poly::volumen(tt), 23 * std::sqrt(2.0) / 12 / 27, 1e-9);

    // octahedron and icosahedron at 0.5: cuboctahedron and icosidodecahedron
    EXPECT_EQ(poly::abstumpfen(hole("Oktaeder"), 0.5).flaechen.size(), 14u);
    EXPECT_EQ(poly::abstumpfen(hole("Ikosaeder"), 0.5).ecken.size(), 30u);
    // values out of range are held at the limits
    EXPECT_EQ(poly::abstumpfen(wuerfel, 0.9).ecken.size(), 12u);
}

// Pyramids with equilateral sides on the octahedron give the star of two tetrahedra (volume sqrt 2).
TEST(Polyeder, Sternkoerper)
{
    const poly::Koerper s = poly::sternkoerper(hole("Oktaeder"), 0.5);
    EXPECT_EQ(s.ecken.size(), 14u);
    EXPECT_EQ(poly::kanten(s).size(), 36u);
    EXPECT_EQ(eulerZahl(s), 2);
    EXPECT_NEAR(poly::volumen(s), std::sqrt(2.0), 1e-9);
    double lo, hi;
    poly::kantenlaengen(s, lo, hi);
    EXPECT_NEAR(lo, 1, 1e-9);
    EXPECT_NEAR(hi, 1, 1e-9);
    EXPECT_NEAR(poly::volumen(poly::sternkoerper(hole("Würfel"), 0)), 1, 1e-12);
}

// Turning keeps lengths and measures, follows the plane order x-y, y-z, x-z, and moves the
// face centres with the vertices.
TEST(Polyeder, Drehen)
{
    poly::Koerper k = hole("Ikosaeder");
    const double v = poly::volumen(k);
    poly::drehen(k, 17, -33, 71);
    EXPECT_NEAR(poly::volumen(k), v, 1e-9);
    double lo, hi;
    poly::kantenlaengen(k, lo, hi);
    EXPECT_NEAR(lo, 1, 1e-9);
    EXPECT_NEAR(hi, 1, 1e-9);
    for (size_t f = 0; f < k.flaechen.size(); ++f) {
        poly::Punkt c;
        for (int i : k.flaechen[f]) c = {c.x + k.ecken[i].x / 3, c.y + k.ecken[i].y / 3, c.z + k.ecken[i].z / 3};
        EXPECT_NEAR(c.x, k.mitten[f].x, 1e-9);
        EXPECT_NEAR(c.z, k.mitten[f].z, 1e-9);
    }

    poly::Koerper p;
    p.ecken = {{1, 0, 0}};
    poly::drehen(p, 0, 0, 90);  // x-y plane: (1,0,0) -> (0,1,0)
    EXPECT_NEAR(p.ecken[0].y, 1, 1e-12);
    poly::drehen(p, 0, 90, 0);  // y-z plane: (0,1,0) -> (0,0,1)
    EXPECT_NEAR(p.ecken[0].z, 1, 1e-12);
    poly::drehen(p, 90, 0, 0);  // x-z plane: (0,0,1) -> (-1,0,0)
    EXPECT_NEAR(p.ecken[0].x, -1, 1e-12);
    poly::drehen(p, 0, 0, 0);
    EXPECT_NEAR(p.ecken[0].x, -1, 1e-15);

    poly::skaliere(k, 200);
    EXPECT_NEAR(poly::umkugelradius(k), 200, 1e-9);
}

// Faces far away (large z) are drawn first; equal keys keep table order; three faces of the
// cube face the viewer when it stands on a corner.
TEST(Polyeder, ZeichenreihenfolgeUndSichtbarkeit)
{
    poly::Koerper k;
    k.mitten = {{0, 0, 1}, {0, 0, 5}, {0, 0, 1}, {0, 0, -2}};
    EXPECT_EQ(poly::zeichenreihenfolge(k), (std::vector<int>{1, 0, 2, 3}));

    poly::Koerper w = hole("Würfel");
    int vorn = 0;
    for (size_t f = 0; f < w.flaechen.size(); ++f) vorn += poly::sichtbar(w, static_cast<int>(f));
    EXPECT_EQ(vorn, 1);  // axis-aligned: only the face at -z
    poly::drehen(w, 45, 35.26438968, 0);
    vorn = 0;
    for (size_t f = 0; f < w.flaechen.size(); ++f) vorn += poly::sichtbar(w, static_cast<int>(f));
    EXPECT_EQ(vorn, 3);
}

// A point in front (negative z), right and below shows on the three sheets as a textbook
// construction would place it.
TEST(Polyeder, Tafelprojektion)
{
    const poly::Punkt p{3, 2, -5};
    const poly::Punkt auf = poly::tafelpunkt(p, poly::Tafel::Aufriss);
    const poly::Punkt grund = poly::tafelpunkt(p, poly::Tafel::Grundriss);
    const poly::Punkt seite = poly::tafelpunkt(p, poly::Tafel::Seitenriss);
    EXPECT_DOUBLE_EQ(auf.x, 3);
    EXPECT_DOUBLE_EQ(auf.y, 2);
    EXPECT_DOUBLE_EQ(grund.x, 3);  // the order line: same x in front and top view
    EXPECT_DOUBLE_EQ(grund.y, 5);  // 5 in front of the front plane
    EXPECT_DOUBLE_EQ(seite.y, 2);  // same height in front and side view
    EXPECT_DOUBLE_EQ(seite.x, 5);
}
