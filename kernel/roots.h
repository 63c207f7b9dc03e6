#pragma once
// Closed formulas for the roots of polynomials of degree 1 to 4, as values and as text.
#include <complex>
#include <string>
#include <vector>

namespace kernel {

// The roots of a polynomial, counted with multiplicity. `any`: every x solves it (all
// coefficients 0); `none`: no x does (a non-zero constant).
struct PolynomialRoots {
    bool any = false;
    bool none = false;
    std::vector<std::complex<double>> roots;
};

PolynomialRoots QuadraticRootValues(double a, double b, double c);           // a x^2 + b x + c
PolynomialRoots CubicRootValues(double a, double b, double c, double d);     // a x^3 + ...
PolynomialRoots QuarticRootValues(double a, double b, double c, double d, double e);

// The texts: "beliebig", "keine L.", or the roots separated by "; ", each real with
// 5 decimals through RealToStrDot, a complex one as "re+im*i" or "re-im*i".
std::string QuadraticRoots(double a, double b, double c);
std::string CubicRoots(double a, double b, double c, double d);
std::string QuarticRoots(double a, double b, double c, double d, double e);

// The single roots of such a text, for tools that list them one a line.
std::vector<std::string> SplitRoots(const std::string& text);
// A real root written to the text's precision, or a complex one with "*i".
std::string RootText(std::complex<double> z);

}  // namespace kernel
