#pragma once
// The computation core of the interactive triangle: from the three vertices in the point table
// and the set of switched-on object names it builds everything to draw and the result lines.
// It holds no state between calls; every repaint calls berechneDreieck afresh.
#include "geometry/dreieckhilfen.h"
#include "platform/color.h"

#include <set>
#include <string>
#include <vector>

namespace geo {

// Fixed entries of the point table that other families read.
enum Nr {
    nA = 1, nB = 2, nC = 3, nI = 4, nU = 5, nH = 6, nS = 7, nN = 8,
    nMa = 11, nMb = 12, nMc = 13,
    nKa = 24, nKb = 25, nKc = 26,           // contact points of the incircle
    nSoddyInnen = 54, nSoddyAussen = 55,
    nLemoine = 59,
    nIa = 94, nIb = 95, nIc = 96,           // excentres
    nWa = 213, nWb = 214, nWc = 215,        // feet of the angle bisectors
};

using Auswahl = std::set<std::string>;

struct Ansicht {
    double x0 = 0, y0 = 0;        // pixel of the coordinate origin
    double faktor = 1;            // one unit is 100 * faktor pixels
    int breite = 1000, hoehe = 700;  // panel size, for curves drawn across it
    bool trilinear = false;       // trilinears after each point line
    bool ergebnisse = true;       // fill the result lines (only the results page needs them)
};

struct Element {
    enum Art { Punkt, Strecke, Kreis, Flaeche, Kurve, Pixel } art = Punkt;
    std::vector<Pkt> p;   // Punkt: 1; Strecke: 2; Kreis: centre; Flaeche/Kurve/Pixel: all
    double r = 0;         // radius in pixels
    platform::TColor farbe = platform::clBlack;
    std::string text;     // label of a point (UTF-8)
    bool gestrichelt = false;
};

struct Szene {
    bool entartet = false;
    std::vector<Element> elemente;
    std::vector<std::string> zeilen;  // "label\tvalue", UTF-8
    // the basic quantities, in coordinate units and radians
    double a = 0, b = 0, c = 0, alpha = 0, beta = 0, gamma = 0, flaeche = 0, umfang = 0;
};

// One repaint's worth of computation. Entries 1..3 of `t` hold the vertices.
Szene berechneDreieck(PointTable& t, const Auswahl& an, const Ansicht& v);

// Every object name the core knows, in the order of the visible lists.
const std::vector<std::string>& bekannteObjekte();
// The names the tool switches on when nothing else is chosen.
const Auswahl& grundauswahl();

// Trilinears of P (absolute distances to the sides, divided by the largest); false when all are 0.
bool trilinearText(Pkt P, Pkt A, Pkt B, Pkt C, std::string& text);

}  // namespace geo
