// The triangle core against published values and classical theorems.
#include "geometry/dreieck.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <map>
#include <vector>
#include <string>

using namespace geo;

namespace {

// Builds a triangle given in units (one unit = 100 pixels, y upward) with the origin at pixel 0.
struct Aufbau {
    PointTable t;
    Szene s;
    Aufbau(Pkt A, Pkt B, Pkt C, Auswahl an = {})
    {
        const Pkt e[3] = {A, B, C};
        for (int i = 0; i < 3; ++i) t.setze(nA + i, {e[i].x * 100, -e[i].y * 100});
        s = berechneDreieck(t, an, Ansicht{});
    }
    Pkt einheit(int nr) const { return {t[nr].x / 100, -t[nr].y / 100}; }
    // The number after the tab of the first line with this label; NaN when missing.
    double wert(const std::string& label) const
    {
        for (const std::string& z : s.zeilen)
            if (z.rfind(label + "\t", 0) == 0) return std::atof(z.c_str() + label.size() + 1);
        return std::nan("");
    }
};

double dist(Pkt p, Pkt q) { return std::hypot(p.x - q.x, p.y - q.y); }
// Twice the signed area: zero for collinear points.
double kreuz(Pkt p, Pkt q, Pkt r) { return (q.x - p.x) * (r.y - p.y) - (q.y - p.y) * (r.x - p.x); }
double winkel(Pkt scheitel, Pkt p, Pkt q)
{
    const double u = std::atan2(p.y - scheitel.y, p.x - scheitel.x), v = std::atan2(q.y - scheitel.y, q.x - scheitel.x);
    double w = std::fabs(u - v);
    return w > M_PI ? 2 * M_PI - w : w;
}

// The reference triangle of the Encyclopedia of Triangle Centers: a = 6, b = 9, c = 13.
Pkt etcA() { return {124.0 / 12, std::sqrt(169 - (124.0 / 12) * (124.0 / 12))}; }
const Pkt etcB{0, 0}, etcC{6, 0};

}  // namespace

// Textbook example: the Heron triangle with sides 13, 14, 15, placed as B(0|0), C(14|0), A(5|12).
// Known exactly: area 84, inradius 4, circumradius 65/8, I(6|4), U(7|33/8), S(19/3|4), H(5|15/4).
// Tolerance 1e-9 on the core's values, 1e-4 on the four-decimal result lines.
TEST(DreieckReferenz, Heron13_14_15)
{
    Aufbau d({5, 12}, {0, 0}, {14, 0}, {"Schwerpunkt", "Umkreismittelpunkt", "Inkreismittelpunkt"});
    ASSERT_FALSE(d.s.entartet);
    const double tol = 1e-9;
    EXPECT_NEAR(d.s.a, 14, tol);
    EXPECT_NEAR(d.s.b, 15, tol);
    EXPECT_NEAR(d.s.c, 13, tol);
    EXPECT_NEAR(d.s.flaeche, 84, tol);
    EXPECT_NEAR(d.s.umfang, 42, tol);
    EXPECT_NEAR(std::cos(d.s.alpha), 33.0 / 65, tol);  // law of cosines: (169 + 225 - 196) / 390
    EXPECT_NEAR(std::cos(d.s.beta), 5.0 / 13, tol);
    EXPECT_NEAR(std::cos(d.s.gamma), 3.0 / 5, tol);
    const struct { int nr; double x, y; } soll[] = {
        {nI, 6, 4}, {nU, 7, 33.0 / 8}, {nS, 19.0 / 3, 4}, {nH, 5, 15.0 / 4}, {nN, 6, 63.0 / 16},
        {nKa, 6, 0}, {nWa, 14.0 * 13 / 28, 0}, {nMb, 9.5, 6}};
    for (const auto& p : soll) {
        EXPECT_NEAR(d.einheit(p.nr).x, p.x, tol) << "point " << p.nr;
        EXPECT_NEAR(d.einheit(p.nr).y, p.y, tol) << "point " << p.nr;
    }
    EXPECT_NEAR(d.wert("Inkreisradius"), 4, 1e-4);
    EXPECT_NEAR(d.wert("Umkreisradius"), 8.125, 1e-4);
    EXPECT_NEAR(d.wert("Flächeninhalt"), 84, 1e-4);
    EXPECT_NEAR(d.wert("Innenwinkel Gamma in °"), std::acos(0.6) * 180 / M_PI, 1e-3);
    // the point lines in the list: "( x | y )"
    bool gefunden = false;
    for (const std::string& z : d.s.zeilen)
        if (z == "Inkreismittelpunkt\t( 6 | 4 )") gefunden = true;
    EXPECT_TRUE(gefunden);
}

// Source: the Malfatti circles of the triangle (20|80), (-40|-20), (120|-20), published with the
// Malfatti problem of the ACM Japan regional contest: radii 21.565935, 24.409005, 27.107493.
TEST(DreieckReferenz, MalfattiKreise)
{
    Aufbau d({20, 80}, {-40, -20}, {120, -20}, {"Malfatti-Kreise"});
    EXPECT_NEAR(d.wert("Malfatti-Kreis A \xE2\x80\xA6Radius"), 21.565935, 1e-4);
    EXPECT_NEAR(d.wert("Malfatti-Kreis B \xE2\x80\xA6Radius"), 24.409005, 1e-4);
    EXPECT_NEAR(d.wert("Malfatti-Kreis C \xE2\x80\xA6Radius"), 27.107493, 1e-4);
    const Pkt mA{24.281677, 45.219486};
    const double x = d.wert("Malfatti-Kreis A \xE2\x80\xA6Mittelpunkt");
    (void)x;
    bool gefunden = false;
    for (const std::string& z : d.s.zeilen)
        if (z.find("Malfatti-Kreis A") == 0 && z.find("Mittelpunkt") != std::string::npos) {
            gefunden = true;
            EXPECT_NE(z.find("( 24.2817 | 45.2195 )"), std::string::npos) << z << " expected " << mA.x;
        }
    EXPECT_TRUE(gefunden);
}

// ETC gives X(1) on the 6-9-13 triangle as the trilinear distance 1.690308509457033 (= sqrt(20/7)).
TEST(DreieckETC, InkreisUndBeruehrpunkte)
{
    Aufbau d(etcA(), etcB, etcC, {"Inkreis"});
    const Pkt I = d.einheit(nI);
    EXPECT_NEAR(I.y, 1.690308509457033, 1e-12);  // BC lies on the x axis
    for (int k = nKa; k <= nKc; ++k) EXPECT_NEAR(dist(d.einheit(k), I), 1.690308509457033, 1e-12) << k;
    // each contact point lies on its side
    EXPECT_NEAR(kreuz(d.einheit(nB), d.einheit(nC), d.einheit(nKa)), 0, 1e-10);
    EXPECT_NEAR(kreuz(d.einheit(nC), d.einheit(nA), d.einheit(nKb)), 0, 1e-10);
    EXPECT_NEAR(kreuz(d.einheit(nA), d.einheit(nB), d.einheit(nKc)), 0, 1e-10);
}

TEST(DreieckETC, EulerGeradeUndFeuerbach)
{
    Aufbau d(etcA(), etcB, etcC, {"Feuerbach-Punkt"});
    const Pkt H = d.einheit(nH), S = d.einheit(nS), U = d.einheit(nU), N = d.einheit(nN), I = d.einheit(nI);
    EXPECT_NEAR(kreuz(H, S, U), 0, 1e-9);
    EXPECT_NEAR(dist(H, S), 2 * dist(S, U), 1e-9);
    EXPECT_NEAR(N.x, (H.x + U.x) / 2, 1e-12);
    // H from the altitudes: perpendicular to each side through the opposite vertex
    const Pkt A = d.einheit(nA), B = d.einheit(nB), C = d.einheit(nC);
    EXPECT_NEAR((H.x - A.x) * (C.x - B.x) + (H.y - A.y) * (C.y - B.y), 0, 1e-9);
    EXPECT_NEAR((H.x - B.x) * (A.x - C.x) + (H.y - B.y) * (A.y - C.y), 0, 1e-9);
    // Feuerbach's theorem: the nine-point circle touches the incircle from inside
    const double R = dist(U, A), r = 1.690308509457033;
    EXPECT_NEAR(dist(N, I), R / 2 - r, 1e-10);
    const Pkt Fe = d.einheit(17);
    EXPECT_NEAR(dist(Fe, I), r, 1e-10);
    EXPECT_NEAR(dist(Fe, N), R / 2, 1e-10);
    // ... and it is X(11), trilinears 1 - cos(B - C)
    const double al = d.s.alpha, be = d.s.beta, ga = d.s.gamma;
    Pkt x11;
    ASSERT_TRUE(TrilinearToPoint(1 - std::cos(be - ga), 1 - std::cos(ga - al), 1 - std::cos(al - be), A, B, C, x11));
    EXPECT_NEAR(dist(x11, Fe), 0, 1e-9);
}

// Centres on the Euler line and reflections through U (ETC: X(20) = reflection of X(4) in X(3),
// X(40) = reflection of X(1) in X(3); X(21), X(22), X(23) lie on the Euler line).
TEST(DreieckETC, ZentrenAufDerEulerGeraden)
{
    const char* namen[] = {"Longchamp-Punkt", "Bevan-Punkt", "Schiffler-Punkt", "Exeter-Punkt", "Far-Out-Punkt",
                           "Nagel-Punkt", "Spieker-Punkt"};
    Auswahl an(std::begin(namen), std::end(namen));
    Aufbau d(etcA(), etcB, etcC, an);
    auto punkt = [&](const std::string& name) {
        for (const std::string& z : d.s.zeilen)
            if (z.rfind(name + "\t", 0) == 0) {
                double x, y;
                if (std::sscanf(z.c_str() + name.size() + 1, "( %lf | %lf )", &x, &y) == 2) return Pkt{x, y};
            }
        ADD_FAILURE() << "no line for " << name;
        return Pkt{};
    };
    const Pkt H = d.einheit(nH), U = d.einheit(nU), I = d.einheit(nI), S = d.einheit(nS);
    const Pkt L = punkt("Longchamp-Punkt"), Be = punkt("Bevan-Punkt");
    EXPECT_NEAR(L.x, 2 * U.x - H.x, 1e-4);
    EXPECT_NEAR(L.y, 2 * U.y - H.y, 1e-4);
    EXPECT_NEAR(Be.x, 2 * U.x - I.x, 1e-4);
    EXPECT_NEAR(Be.y, 2 * U.y - I.y, 1e-4);
    for (const char* n : {"Schiffler-Punkt", "Exeter-Punkt", "Far-Out-Punkt"}) {
        const Pkt P = punkt(n);
        EXPECT_NEAR(kreuz(H, U, P) / dist(H, U), 0, 1e-3) << n;
    }
    // Nagel line: I, S, Nagel point collinear with S N = 2 I S; Spieker point halfway from I to N
    const Pkt Na = punkt("Nagel-Punkt"), Sp = punkt("Spieker-Punkt");
    EXPECT_NEAR(Na.x - S.x, 2 * (S.x - I.x), 1e-3);
    EXPECT_NEAR(Na.y - S.y, 2 * (S.y - I.y), 1e-3);
    EXPECT_NEAR(Sp.x, (I.x + Na.x) / 2, 1e-3);
}

TEST(DreieckETC, FermatNapoleonVectenMorley)
{
    Aufbau d(etcA(), etcB, etcC, {"Napoleon-Dreieck, äußeres", "Morley-Dreieck"});
    const Pkt A = d.t[nA], B = d.t[nB], C = d.t[nC];
    // points of the table are in pixels here; angles and ratios do not care
    const Pkt X13 = d.t[100 + 4];
    EXPECT_NEAR(winkel(X13, A, B), 2 * M_PI / 3, 1e-9);
    EXPECT_NEAR(winkel(X13, B, C), 2 * M_PI / 3, 1e-9);
    // outer Napoleon triangle: equilateral, centred on the centroid
    const Pkt n0 = d.t[333], n1 = d.t[334], n2 = d.t[335];
    EXPECT_NEAR(dist(n0, n1), dist(n1, n2), 1e-7);
    EXPECT_NEAR(dist(n1, n2), dist(n2, n0), 1e-7);
    EXPECT_NEAR((n0.x + n1.x + n2.x) / 3, d.t[nS].x, 1e-7);
    // Napoleon point X(17) and Fermat point X(13) on the lines from the vertices to the apexes
    const Pkt E[3] = {A, B, C};
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(kreuz(E[i], d.t[330 + i], X13) / dist(E[i], d.t[330 + i]), 0, 1e-7) << i;
        EXPECT_NEAR(kreuz(E[i], d.t[333 + i], d.t[100 + 8]) / dist(E[i], d.t[333 + i]), 0, 1e-7) << i;
        // Vecten point X(485) on the lines to the centres of the outer squares
        EXPECT_NEAR(kreuz(E[i], d.t[340 + i], d.t[100 + 40]) / dist(E[i], d.t[340 + i]), 0, 1e-7) << i;
    }
    // Morley: equilateral with side 8 R sin(A/3) sin(B/3) sin(C/3)
    const double R = dist(d.t[nU], A);
    const double seite = 8 * R * std::sin(d.s.alpha / 3) * std::sin(d.s.beta / 3) * std::sin(d.s.gamma / 3);
    EXPECT_NEAR(dist(d.t[320], d.t[321]), seite, 1e-7);
    EXPECT_NEAR(dist(d.t[321], d.t[322]), seite, 1e-7);
    EXPECT_NEAR(dist(d.t[322], d.t[320]), seite, 1e-7);
}

TEST(DreieckETC, BrocardUndSoddy)
{
    Aufbau d(etcA(), etcB, etcC, {"innerer Soddy-Kreis", "äußerer Soddy-Kreis"});
    const Pkt A = d.t[nA], B = d.t[nB], C = d.t[nC];
    const double a = dist(B, C), b = dist(C, A), c = dist(A, B);
    // Brocard angle: cot w = cot A + cot B + cot C
    const double w = std::atan(1 / (1 / std::tan(d.s.alpha) + 1 / std::tan(d.s.beta) + 1 / std::tan(d.s.gamma)));
    EXPECT_NEAR(d.wert("Brocard-Winkel in °"), w * 180 / M_PI, 1e-3);
    // one Brocard point sees the sides under w in one sense, the other in the other
    const Pkt O1 = d.t[100 + 34], O2 = d.t[100 + 35];
    const double s1[3] = {winkel(A, O1, B), winkel(B, O1, C), winkel(C, O1, A)};
    const double s2[3] = {winkel(A, O2, C), winkel(B, O2, A), winkel(C, O2, B)};
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(s1[i], w, 1e-9) << i;
        EXPECT_NEAR(s2[i], w, 1e-9) << i;
    }
    // X(39), the Brocard midpoint, halves the two Brocard points
    EXPECT_NEAR(d.t[100 + 37].x, (O1.x + O2.x) / 2, 1e-7);
    // the inner Soddy circle touches the three vertex circles of radii s-a, s-b, s-c
    const double s = (a + b + c) / 2;
    const double ri = d.wert("innerer Soddy-Kreis \xE2\x80\xA6Radius") * 100;
    EXPECT_NEAR(dist(d.t[nSoddyInnen], A), ri + s - a, 1e-2);
    EXPECT_NEAR(dist(d.t[nSoddyInnen], B), ri + s - b, 1e-2);
    EXPECT_NEAR(dist(d.t[nSoddyInnen], C), ri + s - c, 1e-2);
    // the outer one touches them all the same way: |distance - radius| is s-a, s-b, s-c
    const double ra = d.wert("äußerer Soddy-Kreis \xE2\x80\xA6Radius") * 100;
    const double ka = dist(d.t[nSoddyAussen], A) - (s - a), kb = dist(d.t[nSoddyAussen], B) - (s - b);
    EXPECT_NEAR(std::fabs(ka), ra, 1e-2);
    EXPECT_NEAR(std::fabs(kb), ra, 1e-2);
}

// Rectangular circum-hyperbolas: Kiepert (through G, H) contains X(13), X(14), X(17), X(18);
// Jerabek (through U, H) contains X(6); Feuerbach (through I, H) contains X(7), X(8), X(9).
TEST(DreieckETC, HyperbelnDurchBekanntePunkte)
{
    Aufbau d(etcA(), etcB, etcC);
    auto konik = [&](int p4, int p5, double k[6]) {
        const Pkt p[5] = {d.t[nA], d.t[nB], d.t[nC], d.t[p4], d.t[p5]};
        ASSERT_TRUE(Kegelschnitt5(p, k));
    };
    double kiepert[6], jerabek[6], feuerbach[6];
    konik(nS, nH, kiepert);
    konik(nU, nH, jerabek);
    konik(nI, nH, feuerbach);
    for (int nr : {104, 105, 108, 109}) EXPECT_LT(KegelschnittAbstand(kiepert, d.t[nr]), 1e-6) << nr;
    EXPECT_LT(KegelschnittAbstand(jerabek, d.t[nLemoine]), 1e-6);
    for (int nr : {100, 102, 103}) EXPECT_LT(KegelschnittAbstand(feuerbach, d.t[nr]), 1e-6) << nr;
    // rectangular: a + c = 0; and a point off the curve is far from it
    EXPECT_NEAR(kiepert[0] + kiepert[2], 0, 1e-9);
    EXPECT_GT(KegelschnittAbstand(kiepert, d.t[nI]), 1);
}

// Fuhrmann's circle is the circumcircle of Fuhrmann's triangle and has H and the Nagel point
// as ends of a diameter.
TEST(DreieckETC, FuhrmannKreis)
{
    Aufbau d(etcA(), etcB, etcC, {"Fuhrmann-Kreis"});
    const double r = d.wert("Fuhrmann-Kreis \xE2\x80\xA6Radius") * 100;
    const Pkt m = {(d.t[nH].x + d.t[100].x) / 2, (d.t[nH].y + d.t[100].y) / 2};
    for (int i = 0; i < 3; ++i) EXPECT_NEAR(dist(d.t[370 + i], m), r, 1e-2) << i;
}

// The centre of Kiepert's hyperbola is X(115), trilinears (b^2 - c^2)^2 / a; Jerabek's is X(125).
TEST(DreieckETC, KiepertZentrum)
{
    Aufbau d(etcA(), etcB, etcC, {"Kiepert-Hyperbel", "Kiepert-Zentrum"});
    std::string mitte, zentrum, art;
    for (const std::string& z : d.s.zeilen) {
        if (z.rfind("Kiepert-Hyperbel \xE2\x80\xA6Mittelpunkt\t", 0) == 0) mitte = z.substr(z.find('\t') + 1);
        if (z.rfind("Kiepert-Hyperbel \xE2\x80\xA6" "Art\t", 0) == 0) art = z.substr(z.find('\t') + 1);
        if (z.rfind("Kiepert-Zentrum\t", 0) == 0) zentrum = z.substr(z.find('\t') + 1);
    }
    EXPECT_FALSE(mitte.empty());
    EXPECT_EQ(mitte, zentrum);
    EXPECT_EQ(art, "Hyperbel");
    // X(115) lies on the nine-point circle
    const double R = dist(d.t[nU], d.t[nA]);
    EXPECT_NEAR(dist(d.t[100 + 42], d.t[nN]), R / 2, 1e-6);
}

// Conway's theorem, Lester's theorem, the Parry point on Parry's circle, the Kiepert perspectors
// on Kiepert's hyperbola, and the splitters of the perimeter.
TEST(DreieckETC, KreiseUndPunkteAusSaetzen)
{
    Aufbau d(etcA(), etcB, etcC,
             {"Conway-Punkte", "Lester-Kreis", "Parry-Kreis", "Parry-Punkt", "Halbumfangspunkte", "Umkreismittelpunkt"});
    std::vector<Pkt> conway;
    std::map<std::string, Pkt> p;
    for (const std::string& z : d.s.zeilen) {
        const auto tab = z.find('\t');
        double x, y;
        if (tab != std::string::npos && std::sscanf(z.c_str() + tab + 1, "( %lf | %lf )", &x, &y) == 2) {
            if (z.rfind("Conway-Punkt\t", 0) == 0) conway.push_back({x, y});
            p[z.substr(0, tab)] = {x, y};
        }
    }
    ASSERT_EQ(conway.size(), 6u);
    const double rc = std::sqrt(20.0 / 7 + 14 * 14);  // sqrt(r^2 + s^2), s = 14
    for (const Pkt& q : conway) EXPECT_NEAR(dist(q, d.einheit(nI)), rc, 1e-3);
    const Pkt lester = p["Lester-Kreis \xE2\x80\xA6Mittelpunkt"];
    EXPECT_NEAR(dist(lester, p["Umkreismittelpunkt"]), d.wert("Lester-Kreis \xE2\x80\xA6Radius"), 1e-3);
    const Pkt parry = p["Parry-Kreis \xE2\x80\xA6Mittelpunkt"];
    EXPECT_NEAR(dist(parry, p["Parry-Punkt"]), d.wert("Parry-Kreis \xE2\x80\xA6Radius"), 1e-3);
    // B + its way along BC to the extouch point of a makes half the perimeter
    EXPECT_NEAR(13 + dist(d.einheit(nB), p["Halbumfangspunkt auf a"]), 14, 1e-3);
    EXPECT_NEAR(6 + dist(d.einheit(nC), p["Halbumfangspunkt auf b"]), 14, 1e-3);  // from B over C
    double k[6];
    const Pkt fuenf[5] = {d.t[nA], d.t[nB], d.t[nC], d.t[nS], d.t[nH]};
    ASSERT_TRUE(Kegelschnitt5(fuenf, k));
    EXPECT_LT(KegelschnittAbstand(k, d.t[375]), 1e-6);
    EXPECT_LT(KegelschnittAbstand(k, d.t[376]), 1e-6);
}

TEST(DreieckETC, SteinerEllipse)
{
    Aufbau d(etcA(), etcB, etcC, {"Steiner-Ellipse"});
    const double ha = d.wert("Steiner-Ellipse \xE2\x80\xA6große Halbachse");
    const double hb = d.wert("Steiner-Ellipse \xE2\x80\xA6kleine Halbachse");
    // area pi a b = 4 pi / (3 sqrt 3) F
    EXPECT_NEAR(M_PI * ha * hb, 4 * M_PI / (3 * std::sqrt(3.0)) * d.s.flaeche, 1e-3);
    EXPECT_NEAR(d.wert("Steiner-Ellipse \xE2\x80\xA6" "Flächeninhalt"), M_PI * ha * hb, 1e-3);
    // the drawn curve passes through the vertices
    for (const Element& e : d.s.elemente)
        if (e.art == Element::Kurve) {
            double best = 1e9;
            for (const Pkt& p : e.p) best = std::min(best, dist(p, d.t[nB]));
            EXPECT_LT(best, 2.0);
        }
}

// Foot triangles: the one of U is the medial triangle, the one of I the contact triangle.
TEST(DreieckETC, LotDreiecke)
{
    Aufbau d(etcA(), etcB, etcC, {"Umkreis-Lotdreieck", "Inkreis-Lotpunkte"});
    std::vector<double> seiten;
    std::vector<Pkt> fuesse;
    for (const std::string& z : d.s.zeilen) {
        if (z.rfind("Umkreis-Lot \xE2\x80\xA6" "Dreiecksseitenl", 0) == 0) seiten.push_back(std::atof(z.c_str() + z.find('\t') + 1));
        double x, y;
        if (z.rfind("Inkreis \xE2\x80\xA6Lotfu", 0) == 0 &&
            std::sscanf(z.c_str() + z.find('\t') + 1, "( %lf | %lf )", &x, &y) == 2)
            fuesse.push_back({x, y});
    }
    ASSERT_EQ(seiten.size(), 3u);
    EXPECT_NEAR(seiten[0], 3, 1e-4);
    EXPECT_NEAR(seiten[1], 4.5, 1e-4);
    EXPECT_NEAR(seiten[2], 6.5, 1e-4);
    ASSERT_EQ(fuesse.size(), 3u);
    for (int i = 0; i < 3; ++i) EXPECT_NEAR(dist(fuesse[i], d.einheit(nKa + i)), 0, 1e-4) << i;
}

TEST(DreieckRand, EntarteteDreiecke)
{
    // two vertices on one pixel: nothing but the vertices
    Aufbau d({1, 1}, {1, 1}, {4, 2}, {"Umkreis", "Inkreis", "Feuerbach-Kreis"});
    EXPECT_TRUE(d.s.entartet);
    for (const Element& e : d.s.elemente) EXPECT_EQ(e.art, Element::Punkt);
    EXPECT_EQ(d.s.elemente.size(), 3u);
    // collinear and distinct: area 0, angles 0 and 180, no circle drawn, no crash
    Auswahl alle(bekannteObjekte().begin(), bekannteObjekte().end());
    Aufbau g({0, 0}, {2, 0}, {5, 0}, alle);
    EXPECT_FALSE(g.s.entartet);
    EXPECT_EQ(g.s.flaeche, 0);
    EXPECT_NEAR(g.s.beta * 180 / M_PI, 180, 1e-9);
    EXPECT_NEAR(g.s.alpha, 0, 1e-9);
    for (const Element& e : g.s.elemente) {
        for (const Pkt& p : e.p) EXPECT_TRUE(std::isfinite(p.x) && std::isfinite(p.y));
        EXPECT_TRUE(std::isfinite(e.r));
    }
}

TEST(DreieckHilfen, Grundfunktionen)
{
    Pkt S;
    ASSERT_TRUE(IntersectLines({0, 0}, {2, 2}, {0, 2}, {2, 0}, S));
    EXPECT_NEAR(S.x, 1, 1e-12);
    EXPECT_FALSE(IntersectLines({0, 0}, {1, 0}, {0, 1}, {1, 1}, S));
    const Pkt r = RotateAbout({2, 1}, {1, 1}, M_PI / 2);
    EXPECT_NEAR(r.x, 1, 1e-12);
    EXPECT_NEAR(r.y, 2, 1e-12);
    EXPECT_TRUE(SameSide({0, 1}, {5, 3}, {0, 0}, {1, 0}));
    EXPECT_TRUE(SameSide({0, 0}, {5, 3}, {0, 0}, {1, 0}));  // on the line counts as same side
    EXPECT_FALSE(SameSide({0, 1}, {5, -3}, {0, 0}, {1, 0}));
    EXPECT_NEAR(SignedDistance({0, -2}, {3, 5}, {0, 0}, {1, 0}), -2, 1e-12);
    // Cramer: x + y + z = 6, x - y = -1, 2z = 6 -> (1, 2, 3); a singular system with and without solution
    const double m[9] = {1, 1, 1, 1, -1, 0, 0, 0, 2}, rhs[3] = {6, -1, 6};
    double x[3];
    EXPECT_EQ(Cramer3(m, rhs, x), 0);
    EXPECT_NEAR(x[0], 1, 1e-12);
    EXPECT_NEAR(x[1], 2, 1e-12);
    EXPECT_NEAR(x[2], 3, 1e-12);
    const double sing[9] = {1, 1, 0, 2, 2, 0, 0, 0, 1}, r1[3] = {1, 3, 1}, r2[3] = {1, 2, 1};
    EXPECT_EQ(Cramer3(sing, r1, x), 255);
    EXPECT_EQ(Cramer3(sing, r2, x), 1);
    // point table clamps
    PointTable t;
    t.setze(9, {1e12, -5});
    EXPECT_EQ(t[9].x, 1e10);
    EXPECT_EQ(t.eintrag(9).ix, 10000);
    EXPECT_EQ(t.eintrag(9).iy, -5);
}
