#pragma once
// Thin adapter between the term engines and the numeric helper library: special functions and
// number text. It is written on the C++ standard library for now; the integrator points each
// routine at the shared numeric library (SpecialFunction, JacobiSnCnDn, Airy, RealToStrDot, the
// complex routines) once that is in place. The failure rules are those of the shared library.
#include <complex>
#include <string>

namespace quorix::termsupport {

// lnGamma; `failed` when x+4.5 is not in (0, 25].
double lnGamma(double x, bool& failed);
// Digamma; `failed` within 0.00001 of a pole.
double digamma(double x, bool& failed);
double besselJ0(double x, bool& failed);
double besselJ1(double x, bool& failed);
// Jacobi elliptic functions with the complementary parameter emc.
void jacobiSnCnDn(double u, double emc, double& sn, double& cn, double& dn);
// Airy Ai and Bi; beyond 25.77 Ai is 0 and Bi 10000000000.
void airy(double x, double& ai, double& bi);

// Fixed decimal text with `decimals` places, trailing zeros and point trimmed, "-0" as "0",
// always with a point: the number text that is read back as a term.
std::string realToStrDot(int width, int decimals, double x);

using cplx = std::complex<double>;
cplx complexGamma(cplx z, bool& failed);
cplx complexZeta(cplx s, bool& failed);
cplx complexDigamma(cplx z, bool& failed);
cplx complexBesselJ0(cplx z);
cplx complexBesselI0(cplx z);
cplx complexEi(cplx z, bool& failed);

}  // namespace quorix::termsupport
