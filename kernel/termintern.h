#pragma once
// Internals shared by the files of the real term interpreter.
#include <cstdint>

namespace quorix::termintern {

// Functions in the order of the name list; Fn::None marks a place that no function owns.
enum class Fn : std::uint8_t {
    None,
    SQR, SQRT, EXP, LN, ABS, SI, SIN, COS, TAN, ARCCOS, LG, ARCTAN, SINH, COSH, TANH, INT, SGN,
    F1, F2, F3, F4, COT, LD, ARCSIN, ARSINH, ARCOSH, ARTANH, SEC, GAMMA, GAUSS, MCARLO, CI, EI,
    BETA, BESSJ0, BESSJ1, WURZEL, WURZEL3, EHOCH, WURZEL4, W3, W4, LOG, CSC, WP, F5, VORZEICHEN,
    FRAC, EXPP, GAMMALN, HEAVISIDE, SINW, COSW, TANW, COTW, ARCTANW, ARCSINW, GSUMME, SN, CN, DN,
    EULERPHI, AI, BI, ARCCOT, ARCSEC, DIGAMMA, TIME, ARCCSC, COTH, SZ, W5, GAUSSPHI,
};

// The identity of a call name: the function whose name starts at the first substring match.
Fn lookupFunction(const char* name, int length);

// Applies a function to its argument `a`; `x` is the evaluator's own variable (ARCCOT needs it),
// `depth` the nesting of F1..F5 calls. Writes TermError as the function table says.
double applyFunction(Fn f, double a, double x, int depth);

// Evaluation at a given F-slot nesting depth (0 for a call from outside).
double evalTermAt(const char* term, int length, double x, int depth);

// The polynomial Gamma routine; 0 with TermError 4 at poles and from 43 on.
double gammaPoly(double x);

}  // namespace quorix::termintern
