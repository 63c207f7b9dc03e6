#pragma once
// Probability distributions: densities, distribution functions and quantiles of the continuous
// kinds, point probabilities of the discrete kinds. Status codes as the tools show them.
#include <string>
#include <vector>

namespace zufall {

// 0 good, -1 parameter out of range, -2 infinite value (at the border), -4 exponent under the
// underflow limit (value 0).
enum Status { stGut = 0, stParameter = -1, stUnendlich = -2, stUnterlauf = -4 };
// The status of the last density, distribution or quantile call.
extern int verteilungsstatus;

enum class Stetig { StudentT, ChiQuadrat, Gauss, Exponential, Maxwell, Weibull, F, Beta, Gamma, FisherSnedecor };
constexpr int kStetigAnzahl = 10;
enum class Diskret { Binomial, Poisson, Hypergeometrisch, Polya, NegativBinomial };
constexpr int kDiskretAnzahl = 5;

// The names of the lists (UTF-8) and the names of each kind's parameters.
const std::vector<std::string>& stetigeNamen();
const std::vector<std::string>& diskreteNamen();
std::vector<std::string> stetigeParameter(Stetig art);
std::vector<std::string> diskreteParameter(Diskret art);

struct StetigeVerteilung {
    Stetig art = Stetig::Gauss;
    double a = 1, b = 1;  // degrees, rate, scale/shape, n/m as the kind needs
};

// Density f(x), distribution function F(x) = P(X <= x) and the quantile x with F(x) = p.
// Each sets verteilungsstatus; a wrong parameter gives status -1 and the value 0 (quantile -1).
double dichte(const StetigeVerteilung& v, double x);
double verteilung(const StetigeVerteilung& v, double x);
double quantil(const StetigeVerteilung& v, double p);
bool parameterGueltig(const StetigeVerteilung& v);

// Standard normal: density, distribution function, quantile by AS 111 (Beasley and Springer).
double normDichte(double x);
double normVerteilung(double x);
double normQuantilAS111(double p);
// With mean and variance; the log-normal kind takes both of ln X.
double normalDichte(double x, double mu, double varianz);
double normalVerteilung(double x, double mu, double varianz);
double lognormalDichte(double x, double mu, double varianz);
double lognormalVerteilung(double x, double mu, double varianz);

struct DiskreteVerteilung {
    Diskret art = Diskret::Binomial;
    // Binomial (n, p), Poisson (l), hypergeometric (N, M white, n), Pólya (N, M white, n, c),
    // negative binomial (r, p).
    std::vector<double> par;
};

bool parameterGueltig(const DiskreteVerteilung& v);
// ln P(X = k); -inf where P is 0, NaN for wrong parameters.
double lnWahrscheinlichkeit(const DiskreteVerteilung& v, long k);
// The range of k worth tabulating: all possible values, for Poisson up to where P is negligible.
void traeger(const DiskreteVerteilung& v, long& von, long& bis);
double wahrscheinlichkeit(const DiskreteVerteilung& v, long k);
double verteilung(const DiskreteVerteilung& v, long k);  // P(X <= k)
double erwartungswert(const DiskreteVerteilung& v);
double varianz(const DiskreteVerteilung& v);

// Short names for commands and tables: t, chi2, normal, exp, maxwell, weibull, f, beta, gamma,
// fisher; binomial, poisson, hypergeo, polya, negbinomial. False for an unknown name.
bool stetigNachName(const std::string& name, Stetig& art);
bool diskretNachName(const std::string& name, Diskret& art);

}  // namespace zufall
