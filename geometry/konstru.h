#pragma once
// The construction sheet's core. A construction is an ordered list of text lines
//   "<kind word> <name>" TAB "<p1>|<p2>|..." TAB "<kind character>"
// and each run computes every step from the top, so the lines are the whole model: a free
// point's coordinates are the only state that the mouse changes. World units, y upward.
#include <cstdint>
#include <string>
#include <vector>

namespace konstru {

enum Art {
    kPunkt = 0, kStrecke, kGerade, kSenkrechte, kKreisRadius, kKreisPeripherie, kMittelpunkt, kLot,
    kSchnittpunkt, kWinkelhalbierende, kMittelsenkrechte, kGeradeKreis, kKreisKreis, kParallele,
    kDrehpunkt, kKreis3, kKreisbogen, kPunktspiegelung, kGeradenspiegelung, kStreckeKreis, kStrahl,
    kStift, kStrahlKreis, kWinkelMessen, kStreckenpunkt, kKreispunkt, kParallelogrammpunkt, kVektor,
    kVerschiebung, kEllipse, kKommentar, kWinkelpunkt, kBezier,
    kArtenAnzahl
};

constexpr int kMaxSchritte = 495;        // more lines are refused with message 58
constexpr int kMeldungHoechstzahl = 58;  // entry of the message list
constexpr int kMaxPunkte = 202, kMaxLinien = 101, kMaxKreise = 101;

struct P2 {
    double x = 0, y = 0;
};

// One line taken apart. `namen` holds one name, or two ("S1,S2") for the intersection kinds
// that yield two points.
struct Schritt {
    int art = -1;
    std::string wort;  // kind word without the blank, "Strecke"
    std::string name;  // as written after the blank
    std::vector<std::string> parameter;
};

char artZeichen(int art);                   // '0' + art
const char* artWort(int art);               // "Strecke", "Kreis", ...
const char* namensAnfang(int art);          // "s", "g", "k", "S", "" (capital letter) ...
bool zerlege(const std::string& zeile, Schritt& s);  // false: no valid kind character
std::string zeile(int art, const std::string& name, const std::vector<std::string>& parameter);
std::vector<std::string> namenVon(const Schritt& s);  // "S1,S2" -> {S1, S2}; "." -> {}
// Number text as the lines keep it: point, up to 4 decimals, trimmed.
std::string zahlText(double v);

// ---- result of a run
enum class Form { Punkt, Strecke, Gerade, Strahl, Vektor, Kreis, Bogen, Ellipse, Kurve, Winkel, Text };

struct Zeichnung {
    Form form = Form::Punkt;
    std::vector<P2> p;   // points of the form (centre first for circles, polyline for curves)
    double r = 0, r2 = 0;  // radius; second semi-axis; start and sweep of arcs in degrees
    double w1 = 0, w2 = 0;
    std::string name;  // label drawn beside points and objects
    std::uint32_t farbe = 0;
    int stil = 0, breite = 1;
    int schritt = 0;
    bool frei = false;  // a free point that may be dragged
};

struct BenannterPunkt {
    std::string name;
    P2 p;
    int schritt = 0;
    bool frei = false;
};
struct BenannteLinie {
    std::string name;
    P2 a, b;
    Form form = Form::Gerade;  // Strecke, Gerade, Strahl or Vektor
    int schritt = 0;
};
struct BenannterKreis {
    std::string name;
    P2 m;
    double r = 0;
    int schritt = 0;
};

struct Lauf {
    std::vector<Zeichnung> zeichnungen;  // visible steps only, in list order
    std::vector<BenannterPunkt> punkte;
    std::vector<BenannteLinie> linien;
    std::vector<BenannterKreis> kreise;
    std::vector<std::string> messungen;  // "Name\tKind\tvalues", one per computed object
    std::vector<std::string> kommentare;
    std::vector<int> leer;               // steps that produced nothing

    const BenannterPunkt* punkt(const std::string& name) const;
    const BenannteLinie* linie(const std::string& name) const;
    const BenannterKreis* kreis(const std::string& name) const;
};

// Runs the lines up to `bis` (exclusive, -1: all). `sichtbar[i] == false` hides step i: it is
// computed but not drawn.
Lauf fuehreAus(const std::vector<std::string>& zeilen, const std::vector<bool>& sichtbar = {}, int bis = -1);

// ---- plane helpers (world units)
bool schnittGeraden(P2 a1, P2 a2, P2 b1, P2 b2, P2& s, double& t, double& u);
P2 lotfuss(P2 p, P2 a, P2 b);
P2 drehe(P2 p, P2 z, double grad);  // counter-clockwise
// Line a + t (b - a) with a circle; the roots in rising t. Returns their number (0, 1 or 2;
// a tangent gives 2 equal roots).
int geradeKreis(P2 a, P2 b, P2 m, double r, double t[2]);
// Two circles; the first result lies left of the way from m1 to m2.
int kreisKreis(P2 m1, double r1, P2 m2, double r2, P2 s[2]);
bool kreisDurch3(P2 a, P2 b, P2 c, P2& m, double& r);

}  // namespace konstru
