#include "kernel/complex.h"

#include <cmath>
#include <complex>

namespace kernel {

namespace {

using cd = std::complex<double>;
constexpr double kPi = 3.14159265358979323846;

double principalAngle(double t)
{
    if (!std::isfinite(t))
        return 0;
    t = std::remainder(t, 2 * kPi);  // now in [-pi, pi]
    if (t <= -kPi)
        t += 2 * kPi;
    return t;
}

cd toStd(const Complex& z)
{
    if (z.mode == cmPolar)
        return std::polar(z.a, z.b);
    return cd(z.a, z.b);
}

Complex fromStd(cd v, unsigned char mode)
{
    if (mode == cmPolar)
        return Polar(std::abs(v), std::arg(v));
    return Cartesian(v.real(), v.imag());
}

}  // namespace

Complex MakeComplex(unsigned char mode, double a, double b)
{
    return mode == cmPolar ? Polar(a, b) : Cartesian(a, b);
}

Complex Cartesian(double re, double im)
{
    return Complex{cmCartesian, re, im};
}

Complex Polar(double modulus, double angle)
{
    if (modulus < 0) {  // a negative modulus turns the angle by half a turn
        modulus = -modulus;
        angle += kPi;
    }
    return Complex{cmPolar, modulus, modulus == 0 ? 0 : principalAngle(angle)};
}

Complex ToMode(const Complex& z, unsigned char mode)
{
    if (z.mode == mode)
        return z;
    return fromStd(toStd(z), mode);
}

double Re(const Complex& z) { return z.mode == cmPolar ? z.a * std::cos(z.b) : z.a; }
double Im(const Complex& z) { return z.mode == cmPolar ? z.a * std::sin(z.b) : z.b; }
double CAbs(const Complex& z) { return z.mode == cmPolar ? z.a : std::hypot(z.a, z.b); }
double CArg(const Complex& z) { return z.mode == cmPolar ? z.b : std::atan2(z.b, z.a); }
bool CIsZero(const Complex& z) { return z.mode == cmPolar ? z.a == 0 : (z.a == 0 && z.b == 0); }

Complex CAdd(const Complex& z, const Complex& w, unsigned char mode)
{
    return ToMode(Cartesian(Re(z) + Re(w), Im(z) + Im(w)), mode);
}

Complex CSub(const Complex& z, const Complex& w, unsigned char mode)
{
    return ToMode(Cartesian(Re(z) - Re(w), Im(z) - Im(w)), mode);
}

Complex CMul(const Complex& z, const Complex& w, unsigned char mode)
{
    if (mode == cmPolar)
        return Polar(CAbs(z) * CAbs(w), CArg(z) + CArg(w));
    const double a = Re(z), b = Im(z), c = Re(w), d = Im(w);
    return Cartesian(a * c - b * d, a * d + b * c);
}

Complex CDiv(const Complex& z, const Complex& w, unsigned char mode)
{
    if (mode == cmPolar) {
        const double m = CAbs(w);
        if (m == 0)
            throw EComplexZeroDivide();
        return Polar(CAbs(z) / m, CArg(z) - CArg(w));
    }
    const double a = Re(z), b = Im(z), c = Re(w), d = Im(w);
    const double n = c * c + d * d;
    if (n == 0)
        return Cartesian(0, 0);
    return Cartesian((a * c + b * d) / n, (b * c - a * d) / n);
}

Complex CNeg(const Complex& z, unsigned char mode) { return ToMode(Cartesian(-Re(z), -Im(z)), mode); }
Complex CConj(const Complex& z, unsigned char mode) { return ToMode(Cartesian(Re(z), -Im(z)), mode); }
Complex CInv(const Complex& z, unsigned char mode) { return CDiv(Cartesian(1, 0), z, mode); }

Complex CLn(const Complex& z, unsigned char mode)
{
    if (CIsZero(z))
        throw EComplexLnZero();
    return ToMode(Cartesian(std::log(CAbs(z)), CArg(z)), mode);
}

Complex CExp(const Complex& z, unsigned char mode)
{
    return ToMode(Polar(std::exp(Re(z)), Im(z)), mode);
}

Complex CPower(const Complex& z, const Complex& w, unsigned char mode)
{
    if (CIsZero(z)) {
        if (Re(w) > 0)
            return ToMode(Cartesian(0, 0), mode);
        throw EComplexInvalidOp("0 hoch " + std::string(CIsZero(w) ? "0" : "negativ"));
    }
    // z^w = exp(w ln z), principal branch.
    return CExp(CMul(w, CLn(z)), mode);
}

Complex CPowerReal(const Complex& z, double x, unsigned char mode)
{
    if (CIsZero(z)) {
        if (x > 0)
            return ToMode(Cartesian(0, 0), mode);
        throw EComplexInvalidOp("0 hoch " + std::string(x == 0 ? "0" : "negativ"));
    }
    return ToMode(Polar(std::pow(CAbs(z), x), CArg(z) * x), mode);
}

Complex CPowerInt(const Complex& z, int n, unsigned char mode)
{
    if (n >= 0) {
        // Repeated squaring keeps integer powers of exact values exact.
        Complex r = Cartesian(1, 0), f = ToMode(z, cmCartesian);
        unsigned e = static_cast<unsigned>(n);
        while (e) {
            if (e & 1)
                r = CMul(r, f);
            f = CMul(f, f);
            e >>= 1;
        }
        return ToMode(r, mode);
    }
    if (CIsZero(z))
        throw EComplexZeroDivide();
    return ToMode(CInv(CPowerInt(z, -n)), mode);
}

Complex CRoot(const Complex& z, int n, int k, unsigned char mode)
{
    if (n == 0)
        throw EComplexInvalidOp("0-te Wurzel");
    if (CIsZero(z)) {
        if (n < 0)
            throw EComplexZeroDivide();
        return ToMode(Cartesian(0, 0), mode);
    }
    const double r = std::pow(CAbs(z), 1.0 / n);
    return ToMode(Polar(r, (CArg(z) + 2 * kPi * k) / n), mode);
}

Complex CSqrt(const Complex& z, unsigned char mode) { return fromStd(std::sqrt(toStd(z)), mode); }

Complex CSin(const Complex& z, unsigned char mode) { return fromStd(std::sin(toStd(z)), mode); }
Complex CCos(const Complex& z, unsigned char mode) { return fromStd(std::cos(toStd(z)), mode); }
Complex CSinh(const Complex& z, unsigned char mode) { return fromStd(std::sinh(toStd(z)), mode); }
Complex CCosh(const Complex& z, unsigned char mode) { return fromStd(std::cosh(toStd(z)), mode); }

namespace {

cd safeQuotient(cd num, cd den)
{
    if (std::abs(den) < 1e-300)
        throw EComplexInvalidOp("Polstelle");
    return num / den;
}

}  // namespace

Complex CTan(const Complex& z, unsigned char mode)
{
    const cd v = toStd(z);
    return fromStd(safeQuotient(std::sin(v), std::cos(v)), mode);
}
Complex CCot(const Complex& z, unsigned char mode)
{
    const cd v = toStd(z);
    return fromStd(safeQuotient(std::cos(v), std::sin(v)), mode);
}
Complex CSec(const Complex& z, unsigned char mode) { return fromStd(safeQuotient(1.0, std::cos(toStd(z))), mode); }
Complex CCsc(const Complex& z, unsigned char mode) { return fromStd(safeQuotient(1.0, std::sin(toStd(z))), mode); }
Complex CTanh(const Complex& z, unsigned char mode)
{
    const cd v = toStd(z);
    return fromStd(safeQuotient(std::sinh(v), std::cosh(v)), mode);
}
Complex CCoth(const Complex& z, unsigned char mode)
{
    const cd v = toStd(z);
    return fromStd(safeQuotient(std::cosh(v), std::sinh(v)), mode);
}

namespace {

cd lnChecked(cd v)
{
    if (v == 0.0)
        throw EComplexLnZero();
    return std::log(v);
}

const cd I(0, 1);

}  // namespace

// The inverses follow from the logarithm; their branch points (where the log's argument is 0)
// are the invalid operations.
Complex CArcSin(const Complex& z, unsigned char mode)
{
    const cd v = toStd(z);
    return fromStd(-I * lnChecked(I * v + std::sqrt(1.0 - v * v)), mode);
}
Complex CArcCos(const Complex& z, unsigned char mode)
{
    const cd v = toStd(z);
    return fromStd(kPi / 2 + I * lnChecked(I * v + std::sqrt(1.0 - v * v)), mode);
}
Complex CArcTan(const Complex& z, unsigned char mode)
{
    const cd v = toStd(z);
    if (v == I || v == -I)
        throw EComplexInvalidOp("ARCTAN(i) oder ARCTAN(-i)");
    return fromStd(I / 2.0 * (std::log(1.0 - I * v) - std::log(1.0 + I * v)), mode);
}
Complex CArcCot(const Complex& z, unsigned char mode)
{
    const cd v = toStd(z);
    if (v == 0.0)
        return fromStd(kPi / 2, mode);
    return CArcTan(fromStd(safeQuotient(1.0, v), cmCartesian), mode);
}
Complex CArSinh(const Complex& z, unsigned char mode)
{
    const cd v = toStd(z);
    return fromStd(lnChecked(v + std::sqrt(v * v + 1.0)), mode);
}
Complex CArCosh(const Complex& z, unsigned char mode)
{
    const cd v = toStd(z);
    return fromStd(lnChecked(v + std::sqrt(v + 1.0) * std::sqrt(v - 1.0)), mode);
}
Complex CArTanh(const Complex& z, unsigned char mode)
{
    const cd v = toStd(z);
    if (v == 1.0 || v == -1.0)
        throw EComplexInvalidOp("ARTANH(1) oder ARTANH(-1)");
    return fromStd((std::log(1.0 + v) - std::log(1.0 - v)) / 2.0, mode);
}
Complex CArCoth(const Complex& z, unsigned char mode)
{
    const cd v = toStd(z);
    if (v == 0.0)
        throw EComplexInvalidOp("ARCOTH(0)");
    return CArTanh(fromStd(1.0 / v, cmCartesian), mode);
}

}  // namespace kernel
