// T3DModel: bodies of rotation built from rings are closed and have the volume of their
// polygonal prisms and pyramids; the triangle scan covers the triangle's area.
#include "geometry/model3d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace {
// Euler number of the triangle mesh; -100 when it is not closed and consistently oriented
// (every directed edge once, and its reverse once).
int euler(const T3DModel& m)
{
    std::set<std::pair<int, int>> gerichtet;
    for (const auto& d : m.dreiecke)
        for (int i = 0; i < 3; ++i)
            if (!gerichtet.insert({d[i], d[(i + 1) % 3]}).second) return -100;
    for (const auto& [a, b] : gerichtet)
        if (!gerichtet.count({b, a})) return -100;
    return static_cast<int>(m.punkte.size() - gerichtet.size() / 2 + m.dreiecke.size());
}
// area of the regular n-gon of circumradius r
double vieleck(int n, double r) { return n / 2.0 * r * r * std::sin(2 * M_PI / n); }
}  // namespace

TEST(Model3D, RotationskoerperGeschlossenMitPrismenvolumen)
{
    const int n = 24;
    const T3DModel zyl = T3DModel::rotationskoerper({{2, 0}, {2, 3}}, n);
    EXPECT_EQ(euler(zyl), 2);
    EXPECT_NEAR(zyl.volumen(), vieleck(n, 2) * 3, 1e-9);

    const T3DModel kegel = T3DModel::rotationskoerper({{1.5, 0}, {0, 2}}, n);
    EXPECT_EQ(euler(kegel), 2);
    EXPECT_NEAR(kegel.volumen(), vieleck(n, 1.5) * 2 / 3, 1e-9);

    // frustum: h/3 (A1 + sqrt(A1 A2) + A2) holds for similar polygons
    const T3DModel stumpf = T3DModel::rotationskoerper({{2, 0}, {1, 1.5}}, n);
    const double a1 = vieleck(n, 2), a2 = vieleck(n, 1);
    EXPECT_NEAR(stumpf.volumen(), 1.5 / 3 * (a1 + std::sqrt(a1 * a2) + a2), 1e-9);

    // many segments approach the round cylinder
    EXPECT_NEAR(T3DModel::rotationskoerper({{1, 0}, {1, 1}}, 720).volumen(), M_PI, 1e-4);
    EXPECT_TRUE(T3DModel::rotationskoerper({{1, 0}}, 12).punkte.empty());

    T3DModel gedreht = zyl;
    gedreht.drehen(30, 40, 50);
    EXPECT_NEAR(gedreht.volumen(), zyl.volumen(), 1e-9);
}

TEST(Model3D, RingLiegtAufDemKreis)
{
    T3DModel m;
    const int a = m.ring(6, 2, 1);
    ASSERT_EQ(m.punkte.size(), 6u);
    EXPECT_NEAR(m.punkte[a].x, 2, 1e-12);
    EXPECT_NEAR(m.punkte[a + 1].x, 1, 1e-12);  // 60 degrees
    EXPECT_NEAR(m.punkte[a + 1].y, std::sqrt(3.0), 1e-12);
    EXPECT_EQ(m.kanten.size(), 6u);
}

TEST(Model3D, DreieckFuellen)
{
    std::set<std::pair<int, int>> gesetzt;
    Farbe3 links{}, rechts{};
    T3DModel::fuelleDreieck(0, 0, {255, 0, 0}, 100, 0, {0, 0, 255}, 0, 100, {255, 0, 0},
                            [&](int x, int y, const Farbe3& c) {
                                gesetzt.insert({x, y});
                                if (x == 0 && y == 50) links = c;
                                if (x == 48 && y == 50) rechts = c;
                            });
    // right triangle of legs 100: area 5000, pixel centres inside
    EXPECT_NEAR(static_cast<double>(gesetzt.size()), 5000, 110);
    EXPECT_FALSE(gesetzt.count({60, 60}));
    EXPECT_GT(links.r, 240);
    EXPECT_GT(rechts.b, 100);  // halfway toward the blue corner
    // a triangle of zero height sets nothing and does not fail
    int n = 0;
    T3DModel::fuelleDreieck(0, 5, {}, 10, 5, {}, 20, 5, {}, [&](int, int, const Farbe3&) { ++n; });
    EXPECT_EQ(n, 0);
}
