#pragma once
// The plotter's one door to the term interpreter and the number text of the kernel.
// Everything in graphs/ evaluates and formats through these hooks, so that only
// kernelbindung.cpp has to know which interpreter stands behind them.
#include <string>

namespace graphs {

// Term error codes as the interpreter reports them.
enum TermFehler : int {
    tfKeiner = 0,
    tfSyntax = 1,     // unknown character or name, empty term
    tfDefinition = 2, // no value here: domain fault, division by zero, overflow
    tfSprung = 3,     // value good, but the function jumps here (INT)
    tfGekappt = 4     // value clamped to the largest magnitude
};

class TermAuswerter {
public:
    virtual ~TermAuswerter() = default;
    // f(x) of an upper-case term; termError receives the code of this evaluation.
    virtual double wert(const std::string& term, double x, int& termError) = 0;
    // Logarithmic axes: modus 0 f(x), 1 f(exp x), 2 ln f(x), 3 ln f(exp x).
    virtual double wertModus(const std::string& term, int modus, double x, int& termError);
    // A numeric field: upper case, comma to point, evaluated at X = 1; 0 on any fault.
    virtual double feldwert(const std::string& text);
    // Text of the symbolic first derivative; empty when it cannot be formed.
    virtual std::string ableitung(const std::string& term) { return {}; }
    virtual void setzeParameter(double p, double q) = 0;
    virtual double parameterP() const = 0;
    virtual double parameterQ() const = 0;
    // Slots F1..F5 (1-based) that terms may call.
    virtual void setzeFunktion(int slot, const std::string& term) = 0;
    virtual std::string funktion(int slot) const = 0;
};

// The evaluator in use; the adapter of kernelbindung.cpp.
TermAuswerter& termAuswerter();

// Number text: width, decimals, value; trailing zeros trimmed, "-0" shown as "0".
std::string zahlText(int breite, int stellen, double x);     // decimal comma when set
std::string zahlTextPunkt(int breite, int stellen, double x);  // always a point (script lines)
void setzeDezimalkomma(bool an);

// Rounds a pixel value, limited to -100000..100000 so wild values cannot overflow drawing calls.
int pixelRunden(double v);

}  // namespace graphs
