#pragma once
// Regularized incomplete beta function I_x(a, b) and its inverse in x.
namespace zufall {

// a, b > 0, 0 <= x <= 1; NaN outside.
double ibeta(double a, double b, double x);
// The x with I_x(a, b) = p, for 0 <= p <= 1; -1 for invalid input.
double ibetaInv(double a, double b, double p);

}  // namespace zufall
