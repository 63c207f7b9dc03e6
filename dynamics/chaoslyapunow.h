#pragma once
// Lyapunov diagrams: the logistic map driven by a periodic sequence of two parameters a and b.
#include "platform/color.h"

#include <string>
#include <vector>

namespace chaos {

// The mean of ln|f'(x)| of x -> r x (1 - x) over n steps after `vorlauf` steps, from x = 0.5.
double logistikLjapunow(double r, int vorlauf, int n);
// The same with r taken in turn from the sequence ("ab..."), 'a' -> a, 'b' -> b.
double ljapunowExponent(const std::string& folge, double a, double b, int vorlauf, int n);

struct LjapunowVorgabe {
    std::string name, folge;
    double amin, amax, bmin, bmax;
};
// The preset list "Name|Folge|a von|a bis|b von|b bis".
const std::vector<std::string>& ljapunowVorgabezeilen();
bool leseLjapunowVorgabe(const std::string& zeile, LjapunowVorgabe& v);

enum class Ljapunowfarben { Ordnung, Einzelfarbe, Gradient, Regenbogen, InverserRegenbogen, UmgekehrterGradient };
const std::vector<std::string>& ljapunowFarbnamen();  // "Ordnung", ... in the order of the enum

// The array of exponents of a picture, computed a few rows at a time, so that the colouring
// can change with no new run.
class TLyapunovLambdaMap {
public:
    void starte(const LjapunowVorgabe& v, int breite, int hoehe, int vorlauf = 200, int n = 400);
    // Computes up to `zeilen` more rows; false when all rows are done.
    bool rechne(int zeilen);
    void zuruecksetzen() { naechsteZeile_ = 0; }
    int breite() const { return breite_; }
    int hoehe() const { return hoehe_; }
    int fertigeZeilen() const { return naechsteZeile_; }
    bool fertig() const { return naechsteZeile_ >= hoehe_; }
    // a runs along the columns, b up the rows (row 0 is the top, b = bmax).
    double wert(int x, int y) const { return lambda_[static_cast<std::size_t>(y) * breite_ + x]; }
    double a(int x) const;
    double b(int y) const;
    const LjapunowVorgabe& vorgabe() const { return v_; }
    // The colour of one exponent: order (lambda < 0) in one hue, chaos (lambda > 0) dark.
    static platform::TColor farbe(double lambda, Ljapunowfarben f, platform::TColor einzel);
    double minimum() const;

private:
    LjapunowVorgabe v_{};
    int breite_ = 0, hoehe_ = 0, vorlauf_ = 200, n_ = 400, naechsteZeile_ = 0;
    std::vector<double> lambda_;
};

}  // namespace chaos
