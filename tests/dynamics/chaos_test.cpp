// Point-drawn chaos and the logistic map: Feigenbaum doublings, Lyapunov exponents, IFS
// attractors, iterative maps, circle fractals and the object list CHAOS.
#include "dynamics/chaosdaten.h"
#include "dynamics/chaoslyapunow.h"
#include "dynamics/chaossysteme.h"

#include <cmath>
#include <fstream>
#include <gtest/gtest.h>

using namespace chaos;

namespace {

std::vector<std::string> chaosDatei()
{
    std::ifstream in(std::string(QUORIX_SOURCE_DIR) + "/data/texte/CHAOS.txt");
    std::vector<std::string> z;
    std::string l;
    while (std::getline(in, l)) z.push_back(l);
    return z;
}

}  // namespace

// Period-doubling points of x -> r x (1 - x): r1 = 3, r2 = 1 + sqrt(6), then the values
// tabulated with the Feigenbaum constants (e.g. in Wikipedia "Feigenbaum constants": 3.4494897,
// 3.5440903, 3.5644073, 3.5687594, 3.5696916). Tolerance 1e-6.
TEST(ChaosFeigenbaum, PeriodDoublingPoints)
{
    const double erwartet[] = {3.0, 1 + std::sqrt(6.0), 3.5440903, 3.5644073, 3.5687594, 3.5696916};
    const auto r = feigenbaumVerzweigungen(6);
    ASSERT_EQ(r.size(), 6u);
    for (int k = 0; k < 6; ++k)
        EXPECT_NEAR(r[static_cast<std::size_t>(k)], erwartet[k], 1e-6) << "doubling " << k + 1;
    // the ratio of successive gaps tends to delta = 4.6692016, the points to the onset of
    // chaos r = 3.5699456718 (Weisstein, MathWorld "Feigenbaum Constant" and "Logistic Map");
    // tolerances 1e-4 and 1e-7
    const auto s = feigenbaumVerzweigungen(12);
    const double delta = (s[9] - s[8]) / (s[10] - s[9]);
    EXPECT_NEAR(delta, 4.6692016, 1e-4) << "ratio " << delta;
    EXPECT_NEAR(s[11], 3.5699456718, 1e-7);
}

// Periods of the attracting orbit inside the windows between those points, and the
// period-3 window that opens at 1 + sqrt(8) = 3.8284.
TEST(ChaosFeigenbaum, PeriodsBetweenTheDoublings)
{
    EXPECT_EQ(logistikPeriode(2.8), 1);
    EXPECT_EQ(logistikPeriode(3.2), 2);
    EXPECT_EQ(logistikPeriode(3.5), 4);
    EXPECT_EQ(logistikPeriode(3.56), 8);
    EXPECT_EQ(logistikPeriode(3.835), 3);
    EXPECT_EQ(logistikPeriode(4.0), 0) << "r = 4 is chaotic";
}

TEST(ChaosFeigenbaum, DiagramShowsOneBranchThenTwo)
{
    Punktraster p;
    p.ansicht = {2.5, 3.4, 0, 1};
    p.setzeGroesse(90, 200);
    ASSERT_TRUE(feigenbaumDiagramm(p, 2000, 50));
    auto zweige = [&](int spalte) {
        int n = 0;
        for (int y = 0; y < 200; ++y)
            if (p.raster.at(spalte, y) && (y == 0 || !p.raster.at(spalte, y - 1))) ++n;
        return n;
    };
    EXPECT_EQ(zweige(20), 1);  // r = 2.7
    EXPECT_EQ(zweige(80), 2);  // r = 3.3
}

// The Lyapunov exponent of the logistic map at r = 4 is ln 2 (Ott, Chaos in Dynamical
// Systems; the map is conjugate to the tent map). Tolerance 0.01 for 10^6 steps.
// At r = 2.5 the fixed point has multiplier 2 - r, so the exponent is ln 0.5.
TEST(ChaosLyapunov, LogisticMapKnownValues)
{
    const double l4 = logistikLjapunow(4.0, 1000, 1000000);
    EXPECT_NEAR(l4, std::log(2.0), 0.01) << "expected " << std::log(2.0) << ", got " << l4;
    EXPECT_NEAR(logistikLjapunow(2.5, 1000, 10000), std::log(0.5), 1e-6);
    EXPECT_LT(logistikLjapunow(3.2, 1000, 10000), 0);
    EXPECT_LT(logistikLjapunow(3.835, 2000, 10000), 0) << "inside the period-3 window";
    // a sequence with a = b is the plain logistic map
    EXPECT_NEAR(ljapunowExponent("ab", 3.3, 3.3, 1000, 10000), logistikLjapunow(3.3, 1000, 10000), 1e-12);
}

TEST(ChaosLyapunov, PresetsAndExponentMap)
{
    const auto& z = ljapunowVorgabezeilen();
    ASSERT_EQ(z.size(), 15u);
    LjapunowVorgabe v;
    for (const auto& l : z) EXPECT_TRUE(leseLjapunowVorgabe(l, v)) << l;
    ASSERT_TRUE(leseLjapunowVorgabe(z[0], v));
    EXPECT_EQ(v.name, "ZirconZity");
    EXPECT_EQ(v.folge, "bbbbbbaaaaaa");
    EXPECT_DOUBLE_EQ(v.amin, 3.46);
    EXPECT_DOUBLE_EQ(v.bmax, 3.65);
    EXPECT_FALSE(leseLjapunowVorgabe("X|abc|1|2|3|4", v)) << "letters other than a and b";
    EXPECT_FALSE(leseLjapunowVorgabe("X|ab|2|1|3|4", v)) << "empty range";
    EXPECT_FALSE(leseLjapunowVorgabe("X|ab|1|2|3", v));

    TLyapunovLambdaMap m;
    ASSERT_TRUE(leseLjapunowVorgabe("Test|ab|2|4|2|4", v));
    m.starte(v, 20, 10, 300, 600);
    EXPECT_TRUE(m.rechne(4));
    EXPECT_EQ(m.fertigeZeilen(), 4);
    EXPECT_FALSE(m.rechne(100));
    EXPECT_TRUE(m.fertig());
    // left column (a near 2) with b near 2 is ordered, top right (a, b near 4) chaotic
    EXPECT_LT(m.wert(0, 9), 0);
    EXPECT_GT(m.wert(19, 0), 0);
    EXPECT_NEAR(m.wert(3, 4), ljapunowExponent("ab", m.a(3), m.b(4), 300, 600), 1e-12);
    // recolouring needs no new run: order and chaos look different in every scheme
    for (int f = 0; f < 6; ++f) {
        const auto s = static_cast<Ljapunowfarben>(f);
        if (s == Ljapunowfarben::Einzelfarbe) continue;
        EXPECT_NE(TLyapunovLambdaMap::farbe(-1.0, s, platform::clBlue), TLyapunovLambdaMap::farbe(0.5, s, platform::clBlue))
            << ljapunowFarbnamen()[static_cast<std::size_t>(f)];
    }
}

// Barnsley's fern lies in -2.1820 < x < 2.6558, 0 <= y < 9.9983 (Barnsley, Fractals
// Everywhere; the box quoted with the code in Wikipedia "Barnsley fern"). Tolerance 1e-3.
TEST(ChaosIfs, FernStaysInItsPublishedBox)
{
    const auto maps = leseIfs({"0 0 0 0.16 0 0 0.01", "0.85 0.04 -0.04 0.85 0 1.6 0.85",
                               "0.2 -0.26 0.23 0.22 0 1.6 0.07", "-0.15 0.28 0.26 0.24 0 0.44 0.07"});
    ASSERT_EQ(maps.size(), 4u);
    const Ansicht r = ifsRahmen(maps, 300000, 7);
    EXPECT_GE(r.xmin, -2.1820 - 1e-3);
    EXPECT_LE(r.xmax, 2.6558 + 1e-3);
    EXPECT_GE(r.ymin, 0.0);
    EXPECT_LE(r.ymax, 9.9983 + 1e-3);
    // and it fills the box, not just a corner of it
    EXPECT_LT(r.xmin, -2.0);
    EXPECT_GT(r.xmax, 2.4);
    EXPECT_GT(r.ymax, 9.8);
}

TEST(ChaosIfs, SierpinskiTriangleAndCodeReading)
{
    // comma decimals, no probabilities: equal areas give equal shares
    const auto maps = leseIfs({"0,5 0 0 0,5 0 0", "0.5 0 0 0.5 0.5 0", "0.5 0 0 0.5 0.25 0.5", "kein Code"});
    ASSERT_EQ(maps.size(), 3u);
    for (const auto& m : maps) EXPECT_NEAR(m.p, 1.0 / 3, 1e-12);
    int zaehler[3] = {0, 0, 0};
    bool imDreieck = true;
    ifsSpiel(maps, 30000, 3, [&](double x, double y, int k) {
        ++zaehler[k];
        // the triangle (0,0), (1,0), (0.5,1) without the middle one (0.5,0), (0.25,0.5), (0.75,0.5)
        if (y < -1e-9 || y > 2 * x + 1e-9 || y > 2 * (1 - x) + 1e-9) imDreieck = false;
        if (y < 0.49 && std::fabs(x - 0.5) < y / 2 - 0.01) imDreieck = false;
        return true;
    });
    EXPECT_TRUE(imDreieck);
    for (int k = 0; k < 3; ++k) EXPECT_NEAR(zaehler[k], 10000, 500);
    std::vector<std::string> neun(9, "0.3 0 0 0.3 0 0 0.1");
    EXPECT_EQ(leseIfs(neun).size(), 8u) << "at most eight maps";
}

TEST(ChaosRaster, DrawingModes)
{
    Punktraster p;
    p.ansicht = {0, 10, 0, 10};
    p.setzeGroesse(10, 10);
    p.modus = Zeichenmodus::XOR;
    p.punkt(2.5, 2.5, 5);
    p.punkt(2.5, 2.5, 5);
    EXPECT_EQ(p.raster.at(2, 7), 0) << "XOR twice clears";
    p.modus = Zeichenmodus::OR;
    p.punkt(2.5, 2.5, 1);
    p.punkt(2.5, 2.5, 4);
    EXPECT_EQ(p.raster.at(2, 7), 5);
    p.modus = Zeichenmodus::NOR;
    p.punkt(2.5, 2.5, 2);
    EXPECT_EQ(p.raster.at(2, 7), static_cast<std::uint8_t>(~7));
    EXPECT_FALSE(p.punkt(11, 5, 1));
    EXPECT_EQ(p.daneben, 1);
    EXPECT_EQ(zeichenmodusAusText("AND"), Zeichenmodus::AND);
}

// The Henon attractor (a = 1.4, b = 0.3) lies within |x| < 1.3, |y| < 0.4; the Lorenz
// attractor (10, 28, 8/3) has 0 < z < 50 and |x| < 21.
TEST(ChaosSystems, AttractorsStayInTheirKnownRegions)
{
    Systemcode c;
    ASSERT_TRUE(leseSystemcode("Henon 1.4 0.3", c));
    double xmax = 0, ymax = 0;
    EXPECT_TRUE(iteriereSystem(c, 100000, [&](double x, double y) {
        xmax = std::max(xmax, std::fabs(x));
        ymax = std::max(ymax, std::fabs(y));
        return true;
    }));
    EXPECT_LT(xmax, 1.3);
    EXPECT_GT(xmax, 1.2);
    EXPECT_LT(ymax, 0.4);
    ASSERT_TRUE(leseSystemcode("lorenz", c));
    ASSERT_EQ(c.p.size(), 3u) << "usual parameters filled in";
    double zmin = 1e9, zmax = -1e9, xm = 0;
    iteriereSystem(c, 50000, [&](double x, double z) {
        zmin = std::min(zmin, z);
        zmax = std::max(zmax, z);
        xm = std::max(xm, std::fabs(x));
        return true;
    });
    EXPECT_GT(zmin, 0);
    EXPECT_LT(zmax, 50);
    EXPECT_LT(xm, 21);
    EXPECT_GT(zmax, 40);
    // a Henon map with a = 3 sends its orbit to infinity
    ASSERT_TRUE(leseSystemcode("henon 3 0.3", c));
    EXPECT_FALSE(iteriereSystem(c, 1000, [](double, double) { return true; }));
    EXPECT_FALSE(leseSystemcode("unbekannt 1 2", c));
}

TEST(ChaosCircles, CountAndTangency)
{
    const auto k = kreisfraktal(4, 0.4, 3, false);
    EXPECT_EQ(k.size(), 1u + 4 + 16 + 64);
    // each child touches its parent from outside: centre distance = r + q r
    for (std::size_t i = 1; i <= 4; ++i) EXPECT_NEAR(std::hypot(k[i].x, k[i].y), 1.4, 1e-12);
    const auto innen = kreisfraktal(6, 1.0 / 3, 1, true);
    ASSERT_EQ(innen.size(), 7u);
    // six circles of a third of the radius fit inside and touch each other
    EXPECT_NEAR(std::hypot(innen[1].x - innen[2].x, innen[1].y - innen[2].y), 2.0 / 3, 1e-12);
}

TEST(ChaosSimulations, RandomWalkDistanceAndPrimeSpiral)
{
    Punktraster p;
    p.ansicht = {-100, 100, -100, 100};
    p.setzeGroesse(100, 100);
    const std::string z = simuliere(2, {}, 10000, 5, p);
    ASSERT_EQ(z.rfind("Distanz ", 0), 0u) << z;
    const double d = std::stod(z.substr(8));
    EXPECT_LT(d, 5 * 100.0) << "a walk of 10^4 steps ends about 100 away";
    Punktraster u;
    u.ansicht = {-6, 6, -6, 6};
    u.setzeGroesse(12, 12);
    EXPECT_EQ(simuliere(5, {}, 100, 1, u), "Primzahlen 25 von 100");
    EXPECT_EQ(simuliere(99, {}, 10, 1, u), "");
}

TEST(ChaosText, BlockStructure)
{
    const auto o = leseChaosText({"Kopfzeile ohne Block", "[0", "Erstes", "#Rx", "-1 1", "#2", "40", "Faktor|0,5",
                                  "#P1", "[", "Beschreibung 1", "", "Beschreibung 2", "[101", "Zweites", "#E", "10", "[",
                                  "[x", "Text"});
    ASSERT_EQ(o.size(), 2u);
    EXPECT_EQ(o[0].name, "Erstes");
    EXPECT_EQ(o[0].zahlen("#Rx"), (std::vector<double>{-1, 1}));
    EXPECT_TRUE(o[0].hat("#P1"));
    EXPECT_EQ(o[0].beschreibung.size(), 3u);
    const Einstellung e = einstellungAus(o[0]);
    ASSERT_EQ(e.parameter.size(), 1u);
    EXPECT_EQ(e.parameter[0].beschriftung, "Faktor");
    EXPECT_DOUBLE_EQ(e.parameter[0].wert, 0.5);
    EXPECT_EQ(o[1].typ(), Julia);
    EXPECT_EQ(o[1].beschreibung, (std::vector<std::string>{"[x", "Text"}));
    EXPECT_EQ(punktzahlText(2.5e9), "2.50 Md.");
    EXPECT_EQ(punktzahlText(3.4e6), "3 Mill.");
    EXPECT_EQ(punktzahlText(512), "512");
}

// Every object of the shipped list must load and draw: wrong variants, broken IFS lines or
// unknown system codes show up here.
TEST(ChaosText, EveryShippedObjectDraws)
{
    const auto alle = leseChaosText(chaosDatei());
    ASSERT_GE(alle.size(), 40u);
    for (int typ = 0; typ < 7; ++typ) EXPECT_GE(objekteDesTyps(alle, typ).size(), 3u) << fraktaltypnamen()[static_cast<std::size_t>(typ)];
    EXPECT_EQ(alle.front().nummer, 0);
    for (const auto& o : alle) {
        Einstellung e = einstellungAus(o);
        EXPECT_LT(e.ansicht.xmin, e.ansicht.xmax) << o.name;
        EXPECT_LT(e.ansicht.ymin, e.ansicht.ymax) << o.name;
        EXPECT_FALSE(o.beschreibung.empty()) << o.name;
        e.punkte = std::min<long long>(e.punkte, 20000);
        e.iterationen = std::min(e.iterationen, 60);
        Werteraster r;
        std::vector<std::string> zeilen;
        ASSERT_TRUE(zeichneChaos(e, 64, 48, r, zeilen)) << o.name << ": " << (zeilen.empty() ? "" : zeilen[0]);
        int gesetzt = 0;
        for (auto w : r.werte) gesetzt += w != 0;
        EXPECT_GT(gesetzt, 20) << o.name << " draws (almost) nothing in its own view";
    }
    const ChaosObjekt* farn = findeObjekt(alle, "farn");
    ASSERT_NE(farn, nullptr);
    EXPECT_EQ(leseIfs(einstellungAus(*farn).code).size(), 4u);
}
