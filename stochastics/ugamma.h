#pragma once
// Gamma function family for the distributions: ln Γ, Γ and ln of binomial coefficients.
namespace zufall {

// ln Γ(x) for x > 0 (Lanczos, g = 7, nine terms; about 15 digits). NaN for x <= 0.
double lnGamma(double x);
double gammaFunktion(double x);
// ln C(n, k) for real n >= k >= 0, through ln Γ.
double lnBinom(double n, double k);

}  // namespace zufall
