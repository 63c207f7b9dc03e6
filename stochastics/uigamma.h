#pragma once
// Regularized incomplete gamma functions P(a, x) and Q(a, x) = 1 - P(a, x).
namespace zufall {

// a > 0, x >= 0; NaN outside. Series below x = a + 1, continued fraction above.
double igammaP(double a, double x);
double igammaQ(double a, double x);

}  // namespace zufall
