#pragma once
// The curve discussion of the function workbench: zeros, extreme and inflection points,
// symmetry, behaviour at the ends, value table, intersections, tangent and normal.
// Plain computation on the kernel's term interpreter; no widgets. Result lines are UTF-8.
#include <functional>
#include <string>
#include <vector>

namespace graphs {

// f(x) with the term error code of that evaluation.
using Termfunktion = std::function<double(double x, int& fehler)>;
// A term bound to the interpreter (upper case, Windows-1252).
Termfunktion termfunktion(const std::string& term);

// The message of the term check: "Funktion", n, " fehlerhaft" when the term has a syntax
// fault; empty when it is usable.
std::string pruefeTerm(const std::string& term, int nummer);

// The zero scan: n steps from von to bis; a root is a strict sign change between two grid
// points (refined by Brent's method, up to 250 rounds) or a grid point of value 0 with a sign
// change across it. Pairs whose product is 100 or more in magnitude are poles and dropped.
// `fehler` is set when the function cannot be evaluated anywhere at the start of the range.
struct Nullstellensuche {
    std::vector<double> stellen;
    bool fehler = false;
};
Nullstellensuche nullstellenScan(const Termfunktion& f, double von, double bis, int schritte);

struct Kurvenpunkt {
    double x = 0, y = 0;
};

enum class Extremart { Minimum, Maximum, Sattel };

struct Extrempunkt {
    double x = 0, y = 0;
    Extremart art = Extremart::Minimum;
};

enum class Symmetrie { Keine, Achse, Punkt };

struct Diskussionsvorgabe {
    std::string term;  // upper case
    double von = -10, bis = 10;
    int schritte = 1000;
    double p = 1, q = 3, r = 0.5;
};

struct Diskussion {
    std::string fehler;  // not empty: the discussion stopped with this text
    std::string ableitung1, ableitung2, stammfunktion;
    bool yAchseDefiniert = false;
    double yAchse = 0;
    bool minGefunden = false, maxGefunden = false;
    double minWert = 0, minX = 0, maxWert = 0, maxX = 0;
    bool unbeschraenkt = false;
    bool nichtBerechenbar = false;  // "Funktion ist nicht korrekt berechenbar!"
    std::vector<double> nullstellen;
    std::vector<Extrempunkt> extrema;
    std::vector<Kurvenpunkt> wendepunkte;
    Symmetrie symmetrie = Symmetrie::Keine;
    std::string verhaltenLinks, verhaltenRechts;  // as text, e.g. "+unendlich" or "0"
};

// The whole discussion; the parameters P, Q, R are set for the interpreter first.
// `stammfunktionen` are library lines "TERM;ANTIDERIVATIVE" for the antiderivative lookup.
Diskussion diskutieren(const Diskussionsvorgabe& v, const std::vector<std::string>& stammfunktionen = {});
// The lines the result list shows, in order.
std::vector<std::string> diskussionszeilen(const Diskussionsvorgabe& v, const Diskussion& d);

// Symmetry of f to the y axis or the origin, tested on samples of [-weite, weite].
Symmetrie symmetrieTesten(const Termfunktion& f, double weite);
// Where f goes for x to +infinity (richtung 1) or -infinity (-1): "+unendlich", "-unendlich",
// a limit value as text, or "unbestimmt" / "nicht definiert".
std::string verhaltenImUnendlichen(const Termfunktion& f, int richtung);

// An antiderivative: first the library lines "TERM;F", then polynomials in X. Empty if none.
std::string stammfunktionSuchen(const std::string& term, const std::vector<std::string>& stammfunktionen);

// Value table: the heading "Wertetabelle", a column line, then x, f, f', f'', F separated by
// tabs; undefined cells "---", "nicht def." or "Überlauf". At most 10001 rows.
std::vector<std::string> wertetabelle(const std::string& term, double von, double bis, double schritt,
                                      const std::string& stammfunktion = {});

// Intersections of two functions with their angles.
struct Schnittpunkt {
    double x = 0, y = 0;
    double winkelF = 0, winkelG = 0, schnittwinkel = 0;  // degrees
};
std::vector<Schnittpunkt> schnittpunkte(const std::string& f, const std::string& g, double von, double bis,
                                        int schritte = 1000);
std::vector<std::string> schnittzeilen(const std::string& f, const std::string& g, int nf, int ng,
                                       const std::vector<Schnittpunkt>& s);

// Tangent and normal at x0.
struct TangenteNormale {
    bool definiert = false;
    double x0 = 0, y0 = 0, ableitung = 0, ableitung2 = 0;
    bool zweiteDefiniert = false;
    double tangenteM = 0, tangenteN = 0;  // y = m*x + n
    bool normaleSenkrecht = false;        // tangent horizontal: the normal is x = x0
    double normaleM = 0, normaleN = 0;
};
TangenteNormale tangenteNormale(const std::string& term, double x0);
std::vector<std::string> tangentenzeilen(const TangenteNormale& t);

// Tangents (normale false) or normals (true) from the point (px, py) to the graph: the points
// of contact or of intersection, found by the zero scan on [von, bis].
std::vector<Kurvenpunkt> tangentenVonPunkt(const std::string& term, double px, double py, double von, double bis,
                                           bool normale);
std::vector<std::string> tangentenVonPunktZeilen(const std::string& term, double px, double py, double von,
                                                 double bis, bool normale);

// Slope angle in degrees of a slope m.
double anstiegswinkel(double m);
// "y = m*x+n" written as the list shows it.
std::string geradengleichung(double m, double n);

}  // namespace graphs
