#pragma once
// Special functions behind the term names: Gamma family, Bessel family, digamma, Jacobi, Airy.

namespace kernel {

enum SpecialSelector : unsigned char {
    sfNone = 0,
    sfGamma = 1,
    sfLnGamma = 2,
    sfBeta = 3,      // x = a, second = b
    sfBesselJ0 = 4,
    sfBesselJ1 = 5,
    sfBesselY0 = 6,
    sfBesselY1 = 7,
    sfBesselJn = 8,  // x = argument, second = integer order n (n >= 2)
    sfBesselYn = 9,  // the same
    sfBesselI0 = 10,
    sfBesselI1 = 11,
    sfBesselK0 = 12,
    sfBesselK1 = 13,
    sfBesselIn = 14,  // x = argument, second = integer order
    sfBesselKn = 15,
    sfDigamma = 16,
};

// Dispatch by selector. A value outside the domain sets `failed` (the interpreter makes it
// TermError 4) and gives 0. `failed` is only ever set, never cleared.
double SpecialFunction(int selector, bool& failed, double x, double second = 0);

// The single functions, with the same domain rules.
double LnGamma(double x, bool& failed);  // Lanczos, six coefficients, base x+4.5 in (0, 25]
double GammaFunction(double x, bool& failed);
double BesselJ0(double x);
double BesselJ1(double x);
double BesselY0(double x, bool& failed);
double BesselY1(double x, bool& failed);
double BesselJn(int n, double x, bool& failed);
double BesselYn(int n, double x, bool& failed);
double BesselI0(double x);
double BesselI1(double x);
double BesselK0(double x, bool& failed);
double BesselK1(double x, bool& failed);
double BesselIn(int n, double x);
double BesselKn(int n, double x, bool& failed);
double Digamma(double x, bool& failed);

// Jacobi elliptic functions of u with the complementary parameter emc = 1 - m, by the
// descending Landen sequence (at most 13 levels, relative stop 0.0003).
void JacobiSnCnDn(double& sn, double& cn, double& dn, double u, double emc);

// Airy functions Ai and Bi; above 25.77 Ai is 0 and Bi the clamp 10000000000.
void Airy(double& ai, double& bi, double x);

}  // namespace kernel
