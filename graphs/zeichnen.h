#pragma once
// The plotter's drawing core: coordinate system and the interpreter of the GraphScript.
// No widgets here; it draws through platform::Canvas and records what it drew, so that the
// window, the headless command and the tests share one paint routine.
//
// Line order of the commands (first line "#" and the letter; "..." ends a list):
//   F term                      the function, label "Y = " term
//   ä term                      the same with pen width 3
//   s term, x... "..."          the function with hollow marks "Hebbare Unstetigkeitsstelle"
//   S term [from to step]       family in P; without numbers the window's family fields
//   A subkind term              1, 2 derivatives, 3..6 f(-x) -f(x) -f(-x) f(f(x)),
//                               7 antiderivative from 0, 8 inverse curve, 9 and A third derivative
//   G x / j y                   vertical / horizontal line
//   H a b / h a b               yellow vertical / green horizontal band under the grid
//   @ colour x... "..."         filled marks at (x, F1(x))
//   M colour x... "..."         marks on the last curve; N the same numbered
//   ü x y colour                one filled mark
//   w colour x y ... "..."      marks with their coordinates
//   m xterm yterm ... "..."     marks at computed points
//   e colour x y ... "..."      closed polygon
//   r a b                       the line y = a*x + b, width 3
//   v a b                       arrow from the origin to (a, b)
//   K i n ö  "xterm|yterm" or blank (the fields X, Y), t from, t to, step, 0, 0
//                               parametric curve in X as parameter; i as points, n dense
//   P W p  term or blank (the field X), angle from, to, step, kind (1: degrees), 0
//                               polar curve r(X); W the other branch -r; p as points
//   U term term / V term term a b   area between two curves, shaded
//   k term a b                  region between curve and x axis, filled
//   I term a b n [kind]         integration strips: kind 0 left, 1 right, 2 midpoint
//   ß term a b / á, í term a b n    area with its value / lower / upper sum
//   C c  term a(X), k from, k to, limit or blank, epsilon    members of a sequence
//                               (c joined), band "Umgebung" when epsilon > 0
//   R n v1 .. vn                bars of height v at k = 1..n
//   d text                      the points x y ... "..." of GraphNumbers, joined
//   g y z                       the stored helper lines: solid, dashed, dotted
//   u term term                 the two terms go to the fields X, Y (and slot F5) for a
//                               following K or P group
//   x title xfactor yfactor zero... "..."   a small table with "Nullstellen"
#include "graphs/abbildung.h"
#include "graphs/graphscript.h"
#include "graphs/kernelbindung.h"
#include "graphs/kurventracer.h"
#include "graphs/plotzustand.h"
#include "platform/canvas.h"
#include "platform/picture.h"

#include <string>
#include <vector>

namespace graphs {

// What one command put on the picture, for the window's hit test and for the tests.
struct Gezeichnet {
    char befehl = 0;
    std::string label;
    platform::TColor farbe = platform::clBlack;
    int breite = 1;
    Kurvenspur spur;
};

struct Beschriftung {
    int kurve;  // curve number (from 1), 0 for other texts
    std::string text;
    int x, y, w, h;
};

class Graphzeichner {
public:
    Graphzeichner(PlotZustand& z, Skriptliste& skript, Skriptliste& zahlen, TermAuswerter& t);

    // Mapping for a paint box of breite x hoehe pixels.
    void vorbereiten(int breite, int hoehe);
    void koordinatensystem(platform::Canvas& c);
    void zeichnen(platform::Canvas& c);
    void komplett(platform::Canvas& c);
    // The whole picture: white, font, komplett. The picture keeps its size.
    void darstellung(platform::Picture& bild);

    const Abbildung& abbildung() const { return a_; }
    int curveCounter() const { return curveCounter_; }
    long auswertungen() const { return auswertungen_; }
    const std::vector<Gezeichnet>& protokoll() const { return protokoll_; }
    const std::vector<Beschriftung>& beschriftungen() const { return beschriftungen_; }
    // Label of curve n under the pixel (x, y); 0 if none.
    int labelAn(int x, int y) const;
    // Units as last used for the axes (automatic or the fields).
    double xEinheit() const { return xEin_; }
    double yEinheit() const { return yEin_; }

private:
    // reading lines of one command; a line starting with "#" is never eaten
    bool argDa() const;
    std::string arg();
    double zahl();
    std::vector<double> zahlenliste();
    std::vector<std::string> textliste();

    Funktion termFunktion(const std::string& term, bool modus = true);
    void befehl(platform::Canvas& c, char b, const std::string& kopf);
    void baender(platform::Canvas& c);
    // one traced curve with colour, label and record
    void kurve(platform::Canvas& c, char b, const std::string& term, const std::string& label, int art,
               int breite = 0);
    void kurveAusSpur(platform::Canvas& c, char b, const Kurvenspur& spur, const std::string& label,
                      int breite = 0, int labelY = -1);
    void spurZeichnen(platform::Canvas& c, const Kurvenspur& s, platform::TColor farbe, int breite);
    void label(platform::Canvas& c, int n, const std::string& text, platform::TColor farbe, int yFest = -1);
    void marke(platform::Canvas& c, char b, double x, double y, platform::TColor farbe, int radius = 4,
               bool gefuellt = true);
    void linieWelt(platform::Canvas& c, char b, double x1, double y1, double x2, double y2,
                   platform::TColor farbe, int breite, platform::PenStyle stil);
    void parameterText(platform::Canvas& c);

    // commands with more lines (zeichnen2.cpp)
    void ableitung(platform::Canvas& c, const std::string& art, const std::string& term);
    void familie(platform::Canvas& c, const std::string& term);
    void parameterkurve(platform::Canvas& c, char b);
    void polarkurve(platform::Canvas& c, char b);
    void flaeche(platform::Canvas& c, char b);
    void streifen(platform::Canvas& c, char b);
    void folge(platform::Canvas& c, char b);
    void balken(platform::Canvas& c);
    void dgl(platform::Canvas& c);
    void tabelle(platform::Canvas& c);
    void hebbar(platform::Canvas& c, const std::string& term);
    void markenBefehl(platform::Canvas& c, char b);

    // coordinate system parts (koordinatensystem.cpp)
    void achsenbeschriftungX(platform::Canvas& c, double e, int zeile);
    void achsenbeschriftungY(platform::Canvas& c, double e, int spalte);
    void rasterlinien(platform::Canvas& c, double ex, double ey, platform::TColor farbe);

    PlotZustand& z_;
    Skriptliste& skript_;
    Skriptliste& zahlen_;
    TermAuswerter& t_;
    Abbildung a_;
    int curveCounter_ = 0;
    long auswertungen_ = 0;
    double xEin_ = 1, yEin_ = 1;
    bool pGenutzt_ = false, qGenutzt_ = false;
    std::string letzterTerm_;
    std::vector<Gezeichnet> protokoll_;
    std::vector<Beschriftung> beschriftungen_;
};

// Whether a term uses the parameter letter (P not as part of PI or PHI, or Q).
bool nutztParameter(const std::string& term, char buchstabe);

}  // namespace graphs
