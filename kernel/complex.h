#pragma once
// Complex numbers in two modes. Every operation names the mode of its result. Hard faults
// raise one of the three exception types; everything else answers with a value.
#include <stdexcept>
#include <string>

namespace kernel {

enum ComplexMode : unsigned char { cmPolar = 0, cmCartesian = 1 };

// Mode cmCartesian: a = real part, b = imaginary part. Mode cmPolar: a = modulus, b = angle
// in (-pi, pi].
struct Complex {
    unsigned char mode = cmCartesian;
    double a = 0;
    double b = 0;
};

struct EComplexError : std::runtime_error {
    using std::runtime_error::runtime_error;
};
struct EComplexLnZero : EComplexError {
    EComplexLnZero() : EComplexError("Logarithmus von 0") {}
};
struct EComplexZeroDivide : EComplexError {
    EComplexZeroDivide() : EComplexError("Division durch 0") {}
};
struct EComplexInvalidOp : EComplexError {
    explicit EComplexInvalidOp(const std::string& what = "Ungültige Operation") : EComplexError(what) {}
};

Complex MakeComplex(unsigned char mode, double a, double b);
Complex Cartesian(double re, double im);
Complex Polar(double modulus, double angle);  // the angle is brought to (-pi, pi]
Complex ToMode(const Complex& z, unsigned char mode);
double Re(const Complex& z);
double Im(const Complex& z);
double CAbs(const Complex& z);
double CArg(const Complex& z);
bool CIsZero(const Complex& z);

Complex CAdd(const Complex& z, const Complex& w, unsigned char mode = cmCartesian);
Complex CSub(const Complex& z, const Complex& w, unsigned char mode = cmCartesian);
// The wanted mode decides the form: polar multiplies and divides the moduli and adds or
// subtracts the angles; cartesian uses the familiar formulas. A cartesian division by 0
// gives 0 without a message; a polar one raises EComplexZeroDivide.
Complex CMul(const Complex& z, const Complex& w, unsigned char mode = cmCartesian);
Complex CDiv(const Complex& z, const Complex& w, unsigned char mode = cmCartesian);
Complex CNeg(const Complex& z, unsigned char mode = cmCartesian);
Complex CConj(const Complex& z, unsigned char mode = cmCartesian);
Complex CInv(const Complex& z, unsigned char mode = cmCartesian);  // 1/z as CDiv

// Powers and roots. 0^w with Re w <= 0 raises EComplexInvalidOp.
Complex CPower(const Complex& z, const Complex& w, unsigned char mode = cmCartesian);
Complex CPowerReal(const Complex& z, double x, unsigned char mode = cmCartesian);
Complex CPowerInt(const Complex& z, int n, unsigned char mode = cmCartesian);
// The k-th of the n n-th roots (k = 0 is the principal one); n = 0 raises EComplexInvalidOp.
Complex CRoot(const Complex& z, int n, int k = 0, unsigned char mode = cmCartesian);
Complex CSqrt(const Complex& z, unsigned char mode = cmCartesian);
Complex CExp(const Complex& z, unsigned char mode = cmCartesian);
Complex CLn(const Complex& z, unsigned char mode = cmCartesian);  // ln 0 raises EComplexLnZero

// Trigonometric and hyperbolic functions; at a pole EComplexInvalidOp.
Complex CSin(const Complex& z, unsigned char mode = cmCartesian);
Complex CCos(const Complex& z, unsigned char mode = cmCartesian);
Complex CTan(const Complex& z, unsigned char mode = cmCartesian);
Complex CCot(const Complex& z, unsigned char mode = cmCartesian);
Complex CSec(const Complex& z, unsigned char mode = cmCartesian);
Complex CCsc(const Complex& z, unsigned char mode = cmCartesian);
Complex CSinh(const Complex& z, unsigned char mode = cmCartesian);
Complex CCosh(const Complex& z, unsigned char mode = cmCartesian);
Complex CTanh(const Complex& z, unsigned char mode = cmCartesian);
Complex CCoth(const Complex& z, unsigned char mode = cmCartesian);
// Inverses, principal branches through the logarithm; at a branch point EComplexInvalidOp.
Complex CArcSin(const Complex& z, unsigned char mode = cmCartesian);
Complex CArcCos(const Complex& z, unsigned char mode = cmCartesian);
Complex CArcTan(const Complex& z, unsigned char mode = cmCartesian);
Complex CArcCot(const Complex& z, unsigned char mode = cmCartesian);
Complex CArSinh(const Complex& z, unsigned char mode = cmCartesian);
Complex CArCosh(const Complex& z, unsigned char mode = cmCartesian);
Complex CArTanh(const Complex& z, unsigned char mode = cmCartesian);
Complex CArCoth(const Complex& z, unsigned char mode = cmCartesian);

// The special functions of the complex term interpreter (results cartesian).
Complex CGamma(const Complex& z);    // poles at 0, -1, -2, ... raise EComplexInvalidOp
Complex CLnGamma(const Complex& z);  // principal-ish log-gamma for Re z > 0, reflection below
Complex CDigamma(const Complex& z);  // poles raise EComplexInvalidOp
Complex CZeta(const Complex& s);     // Riemann zeta; s = 1 raises EComplexInvalidOp
Complex CBesselJ0(const Complex& z);
Complex CBesselI0(const Complex& z);  // I0(z) = J0(i z)
Complex CExpIntegralEi(const Complex& z);  // Ei; z = 0 raises EComplexLnZero

}  // namespace kernel
