// Construction sheet core: constructions whose results are known from school geometry.
#include "geometry/konstru.h"
#include "geometry/konstrubild.h"
#include "geometry/konstruliste.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>

using namespace konstru;

namespace {
constexpr double kTol = 1e-9;

Lauf lauf(const std::vector<std::string>& z) { return fuehreAus(z); }

void erwartePunkt(const Lauf& l, const std::string& name, double x, double y)
{
    const BenannterPunkt* p = l.punkt(name);
    ASSERT_NE(p, nullptr) << name << " fehlt";
    EXPECT_NEAR(p->p.x, x, kTol) << name << ": erwartet (" << x << "|" << y << "), ist (" << p->p.x << "|" << p->p.y << ")";
    EXPECT_NEAR(p->p.y, y, kTol) << name << ": erwartet (" << x << "|" << y << "), ist (" << p->p.x << "|" << p->p.y << ")";
}

std::vector<std::string> dreieck345()
{
    return {zeile(kPunkt, "A", {"0", "0"}), zeile(kPunkt, "B", {"4", "0"}), zeile(kPunkt, "C", {"0", "3"})};
}
}  // namespace

TEST(KonstruZeile, FormUndZerlegung)
{
    // the line form: kind word, blank, name, tab, parameters with "|", tab, kind character
    EXPECT_EQ(zeile(kStrecke, "s1", {"A", "B"}), "Strecke s1\tA|B\t1");
    EXPECT_EQ(zeile(kWinkelpunkt, "P", {"A", "B", "45.000"}), "WinkelPunkt P\tA|B|45.000\tO");
    EXPECT_EQ(artZeichen(kMittelsenkrechte), ':');
    EXPECT_EQ(artZeichen(kPunktspiegelung), 'A');
    Schritt s;
    ASSERT_TRUE(zerlege("StreckenPunkt T\tA|B|0.5\tH\r", s));
    EXPECT_EQ(s.art, kStreckenpunkt);
    EXPECT_EQ(s.name, "T");
    ASSERT_EQ(s.parameter.size(), 3u);
    EXPECT_EQ(s.parameter[2], "0.5");
    EXPECT_FALSE(zerlege("Strecke s1\tA|B", s));      // no kind character
    EXPECT_FALSE(zerlege("Strecke s1\tA|B\tZ", s));   // beyond the last kind
    EXPECT_FALSE(zerlege("Streckes1\tA|B\t1", s));    // no blank before the name
}

// Circumcentre of the 3-4-5 triangle: the midpoint of the hypotenuse (2 | 1.5), radius 2.5.
TEST(KonstruBerechnung, UmkreisAusMittelsenkrechtenUndDreiPunkten)
{
    auto z = dreieck345();
    z.push_back(zeile(kMittelsenkrechte, "g1", {"A", "B"}));
    z.push_back(zeile(kMittelsenkrechte, "g2", {"B", "C"}));
    z.push_back(zeile(kSchnittpunkt, "U", {"g1", "g2"}));
    z.push_back(zeile(kKreis3, "k1", {"A", "B", "C"}));
    z.push_back(zeile(kKreisPeripherie, "k2", {"U", "A"}));
    const Lauf l = lauf(z);
    erwartePunkt(l, "U", 2, 1.5);
    ASSERT_NE(l.kreis("k1"), nullptr);
    EXPECT_NEAR(l.kreis("k1")->m.x, 2, kTol);
    EXPECT_NEAR(l.kreis("k1")->r, 2.5, kTol);
    EXPECT_NEAR(l.kreis("k2")->r, 2.5, kTol);
    EXPECT_TRUE(l.leer.empty());
}

// Incircle of the 3-4-5 triangle from two angle bisectors: centre (1 | 1), r = (3+4-5)/2 = 1.
TEST(KonstruBerechnung, InkreisAusWinkelhalbierenden)
{
    auto z = dreieck345();
    for (auto [n, p, q] : {std::tuple{"g1", "A", "B"}, {"g2", "A", "C"}, {"g3", "B", "A"}, {"g4", "B", "C"}})
        z.push_back(zeile(kGerade, n, {p, q}));
    z.push_back(zeile(kWinkelhalbierende, "w1", {"g1", "g2"}));
    z.push_back(zeile(kWinkelhalbierende, "w2", {"g3", "g4"}));
    z.push_back(zeile(kSchnittpunkt, "I", {"w1", "w2"}));
    z.push_back(zeile(kLot, "F", {"I", "g1"}));
    const Lauf l = lauf(z);
    erwartePunkt(l, "I", 1, 1);
    erwartePunkt(l, "F", 1, 0);
}

// Tangents from P(5|0) to the circle about the origin with r = 3: by Thales the touching
// points are (r²/d | ±r·sqrt(d²-r²)/d) = (1.8 | ±2.4), and the radius meets the tangent at 90°.
TEST(KonstruBerechnung, TangentenVonEinemPunktUeberThaleskreis)
{
    const std::vector<std::string> z = {
        zeile(kPunkt, "M", {"0", "0"}), zeile(kPunkt, "P", {"5", "0"}), zeile(kKreisRadius, "k1", {"M", "3"}),
        zeile(kMittelpunkt, "H", {"M", "P"}), zeile(kKreisPeripherie, "k2", {"H", "P"}),
        zeile(kKreisKreis, "T1,T2", {"k1", "k2"}), zeile(kWinkelMessen, ".", {"M", "T1", "P"})};
    const Lauf l = lauf(z);
    erwartePunkt(l, "T1", 1.8, 2.4);  // left of the way from M to H
    erwartePunkt(l, "T2", 1.8, -2.4);
    bool rechter = false;
    for (const auto& m : l.messungen) rechter |= m == "MT1P\tWinkel\t90°";
    EXPECT_TRUE(rechter) << testing::PrintToString(l.messungen);
}

TEST(KonstruBerechnung, AbbildungenUndTeilpunkte)
{
    const std::vector<std::string> z = {
        zeile(kPunkt, "A", {"1", "0"}), zeile(kPunkt, "B", {"3", "2"}), zeile(kPunkt, "O", {"0", "0"}),
        zeile(kDrehpunkt, "D", {"A", "O", "90"}), zeile(kPunktspiegelung, "E", {"A", "B"}),
        zeile(kGerade, "g1", {"O", "B"}), zeile(kGeradenspiegelung, "F", {"A", "g1"}),
        zeile(kStreckenpunkt, "T", {"A", "B", "0.25"}), zeile(kParallelogrammpunkt, "Q", {"A", "O", "B"}),
        zeile(kVerschiebung, "V", {"A", "O", "B"}), zeile(kWinkelpunkt, "W", {"O", "A", "45"}),
        zeile(kKreisRadius, "k1", {"O", "2"}), zeile(kKreispunkt, "K", {"k1", "90"})};
    const Lauf l = lauf(z);
    erwartePunkt(l, "D", 0, 1);
    erwartePunkt(l, "E", 5, 4);
    // mirror of (1|0) in the line y = 2x/3: foot (9/13 | 6/13)
    erwartePunkt(l, "F", 18.0 / 13 - 1, 12.0 / 13);
    erwartePunkt(l, "T", 1.5, 0.5);
    erwartePunkt(l, "Q", 4, 2);
    erwartePunkt(l, "V", 4, 2);
    erwartePunkt(l, "W", std::sqrt(0.5), std::sqrt(0.5));
    erwartePunkt(l, "K", 0, 2);
}

// How many points each intersection kind finds: secant 2, tangent 2 equal, passant 0; a
// segment or ray only keeps the roots on itself.
TEST(KonstruBerechnung, AnzahlDerSchnittpunkte)
{
    std::vector<std::string> z = {
        zeile(kPunkt, "M", {"0", "0"}), zeile(kKreisRadius, "k1", {"M", "1"}),
        zeile(kPunkt, "A", {"-2", "0"}), zeile(kPunkt, "B", {"2", "0"}), zeile(kPunkt, "C", {"-2", "1"}),
        zeile(kPunkt, "D", {"2", "1"}), zeile(kPunkt, "E", {"-2", "2"}), zeile(kPunkt, "F", {"2", "2"}),
        zeile(kGerade, "g1", {"A", "B"}), zeile(kGerade, "g2", {"C", "D"}), zeile(kGerade, "g3", {"E", "F"}),
        zeile(kGeradeKreis, "S1,S2", {"g1", "k1"}), zeile(kGeradeKreis, "S3,S4", {"g2", "k1"}),
        zeile(kGeradeKreis, "S5,S6", {"g3", "k1"}),
        zeile(kStrecke, "s1", {"M", "B"}), zeile(kStreckeKreis, "S7,S8", {"s1", "k1"}),
        zeile(kStrahl, "h1", {"B", "M"}), zeile(kStrahlKreis, "S9,S10", {"h1", "k1"}),
        zeile(kPunkt, "N", {"5", "0"}), zeile(kKreisRadius, "k2", {"N", "1"}),
        zeile(kKreisKreis, "S11,S12", {"k1", "k2"}), zeile(kSchnittpunkt, "S13", {"g1", "g2"})};
    const Lauf l = lauf(z);
    erwartePunkt(l, "S1", -1, 0);
    erwartePunkt(l, "S2", 1, 0);
    erwartePunkt(l, "S3", 0, 1);
    erwartePunkt(l, "S4", 0, 1);
    EXPECT_EQ(l.punkt("S5"), nullptr);
    EXPECT_EQ(l.punkt("S6"), nullptr);
    EXPECT_EQ(l.punkt("S7"), nullptr);  // behind the segment's start
    erwartePunkt(l, "S8", 1, 0);
    erwartePunkt(l, "S9", 1, 0);
    erwartePunkt(l, "S10", -1, 0);
    EXPECT_EQ(l.punkt("S11"), nullptr);  // disjoint circles
    EXPECT_EQ(l.punkt("S13"), nullptr);  // parallel lines
    int undefiniert = 0;
    for (const auto& m : l.messungen) undefiniert += m.find("\tnicht definiert") != std::string::npos;
    EXPECT_EQ(undefiniert, 6);  // S5, S6, S11, S12, S13 and S7
}

TEST(KonstruBerechnung, FehlerhafteZeilenUndVerdeckteSchritte)
{
    const std::vector<std::string> z = {
        zeile(kPunkt, "A", {"0", "0"}), zeile(kPunkt, "B", {"x", "1"}),  // not a number
        zeile(kStrecke, "s1", {"A", "B"}),                                 // B was never set
        "Unsinn", zeile(kStrecke, "s2", {"A", "Z"}), zeile(kPunkt, "C", {"2", "0"}),
        zeile(kMittelpunkt, "M", {"A", "C"}), zeile(kStrecke, "s3", {"A", "C"})};
    std::vector<bool> sicht(z.size(), true);
    sicht[7] = false;
    const Lauf l = fuehreAus(z, sicht);
    EXPECT_EQ(l.leer, (std::vector<int>{1, 2, 3, 4}));
    erwartePunkt(l, "M", 1, 0);  // the run goes on after the bad lines
    ASSERT_NE(l.linie("s3"), nullptr);  // a hidden step is computed ...
    for (const Zeichnung& d : l.zeichnungen) EXPECT_NE(d.schritt, 7);  // ... but not drawn
    // single step: only the first lines run
    EXPECT_EQ(fuehreAus(z, {}, 1).punkte.size(), 1u);
}

TEST(KonstruListe, ZiehenHinzufuegenLoeschenUmbenennen)
{
    Konstruktion k;
    k.setze(dreieck345());
    k.hinzufuegen(zeile(kMittelpunkt, k.naechsterName(kMittelpunkt), {"A", "B"}));
    EXPECT_EQ(k.naechsterName(kStrecke), "s1");
    k.hinzufuegen(zeile(kStrecke, "s1", {"D", "C"}));
    EXPECT_EQ(k.naechsterName(kStrecke), "s2");
    EXPECT_EQ(k.naechstesPaar(), "S1,S2");
    erwartePunkt(k.rechne(), "D", 2, 0);

    // dragging a free point moves its dependants; a constructed point is not free
    ASSERT_TRUE(k.verschiebe("B", {6, 2}));
    EXPECT_EQ(k.zeilen[1], "Punkt B\t6|2\t0");
    erwartePunkt(k.rechne(), "D", 3, 1);
    EXPECT_FALSE(k.verschiebe("D", {0, 0}));

    // a point that others use stays
    EXPECT_EQ(k.loesche(0), "A abhängig!");
    EXPECT_EQ(k.anzahl(), 5);
    EXPECT_EQ(k.loesche(4), "");
    EXPECT_EQ(k.anzahl(), 4);

    // renaming reaches every later parameter but no other name
    k.hinzufuegen(zeile(kStrecke, "s1", {"A", "AB"}));
    ASSERT_TRUE(k.umbenennen("A", "P"));
    EXPECT_EQ(k.zeilen[0], "Punkt P\t0|0\t0");
    EXPECT_EQ(k.zeilen[3], "MittelPunkt D\tP|B\t6");
    EXPECT_EQ(k.zeilen[4], "Strecke s1\tP|AB\t1");
    EXPECT_FALSE(k.umbenennen("B", "C"));    // taken
    EXPECT_FALSE(k.umbenennen("B", "a|b"));  // would break the line
}

TEST(KonstruListe, NamenUndHoechstzahl)
{
    Konstruktion k;
    for (int i = 0; i < 26; ++i) {
        const std::string n = k.naechsterName(kPunkt);
        EXPECT_EQ(n, std::string(1, static_cast<char>('A' + i)));
        k.hinzufuegen(zeile(kPunkt, n, {"0", "0"}));
    }
    EXPECT_EQ(k.naechsterName(kDrehpunkt), "A1");  // digits once the alphabet is used up
    while (k.anzahl() < kMaxSchritte) ASSERT_TRUE(k.hinzufuegen(zeile(kKommentar, ".", {"x"})));
    EXPECT_FALSE(k.hinzufuegen(zeile(kKommentar, ".", {"zu viel"})));  // the 496th step
    EXPECT_EQ(k.anzahl(), kMaxSchritte);
}

TEST(KonstruListe, DateiUndBeispiele)
{
    Konstruktion k;
    k.setze({zeile(kPunkt, "A", {"1.5", "-2"}), zeile(kKommentar, ".", {"Mittelsenkrechte über AB"})});
    const std::string pfad = (std::filesystem::temp_directory_path() / "quorix_konstru_test.dyn").string();
    ASSERT_TRUE(k.speichere(pfad));
    std::ifstream roh(pfad, std::ios::binary);
    std::stringstream bytes;
    bytes << roh.rdbuf();
    // Windows-1252 with CR LF: the umlaut is one byte 0xFC
    EXPECT_EQ(bytes.str(), "Punkt A\t1.5|-2\t0\r\nKommentar .\tMittelsenkrechte \xFC" "ber AB\tN\r\n");
    Konstruktion g;
    ASSERT_TRUE(g.lade(pfad));
    EXPECT_EQ(g.zeilen, k.zeilen);
    EXPECT_EQ(g.sichtbar, std::vector<bool>(2, true));
    EXPECT_FALSE(g.lade(pfad + ".fehlt"));
    EXPECT_EQ(g.anzahl(), 2);  // unchanged

    const auto b = leseBeispiele({"*Erstes", "Punkt A\t0|0\t0", "", "*Zweites", "Punkt B\t1|1\t0", "Punkt C\t2|1\t0"});
    ASSERT_EQ(b.size(), 2u);
    EXPECT_EQ(b[0].titel, "Erstes");
    EXPECT_EQ(b[1].zeilen.size(), 2u);
}

TEST(KonstruAnimation, KehrtAmRandUm)
{
    Ansicht v;  // 50 pixels per unit, origin in the centre of 400 x 300
    int richtung = 1;
    P2 p = animationsSchritt({1, 1}, richtung, false, v, 400, 300);
    EXPECT_NEAR(p.x, 1.02, 1e-12);
    EXPECT_EQ(richtung, 1);
    p = animationsSchritt({3.99, 0}, richtung, false, v, 400, 300);  // pixel 400.5: past the width
    EXPECT_EQ(richtung, -1);
    p = animationsSchritt(p, richtung, false, v, 400, 300);
    EXPECT_NEAR(p.x, 3.99, 1e-12);
    richtung = 1;
    animationsSchritt({0, 2.8}, richtung, true, v, 400, 300);  // pixel y 9: within 10 of the top
    EXPECT_EQ(richtung, -1);
    // faster settings give shorter intervals, never below 10 ms
    for (int g = 1; g < 10; ++g) EXPECT_GT(animationsIntervall(g), animationsIntervall(g + 1));
    EXPECT_EQ(animationsIntervall(10), 10);
}
