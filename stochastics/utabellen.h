#pragma once
// The value tables of the distribution pages: discrete point probabilities with running sums,
// densities and distribution functions of the continuous kinds, quantile tables.
#include "stochastics/diagramm.h"
#include "stochastics/ugamdist.h"

namespace zufall {

// "k\tP(X=k)\tP(X<=k)" rows over the support. A point probability whose logarithm lies below -10
// is shown as "0" (the table's exponent window); the running sum stays exact.
Zeilen diskreteTabelle(const DiskreteVerteilung& v, Diagramm* bild = nullptr);
// The page's sentence for the kind ("Wahrscheinlichkeiten, dass ...").
std::string diskreterSatz(Diskret art);
// Rows "x\tf(x)\tF(x)" at `schritte`+1 points of [von, bis] and the upper quantiles for the error
// probabilities 0.1 ... 0.001. Empty with a message for wrong parameters.
Zeilen stetigeTabelle(const StetigeVerteilung& v, double von, double bis, int schritte, Diagramm* bild = nullptr);
// A sensible drawing range for the kind.
void stetigerBereich(const StetigeVerteilung& v, double& von, double& bis);
// The density as an interpreter term, for drawing.
std::string dichteTerm(const StetigeVerteilung& v);

// Normal (log-normal when `logarithmisch`) with mean and variance: density and distribution rows
// and the probability between two limits as F(b) - F(a).
Zeilen normalTabelle(bool logarithmisch, double mu, double varianz, double a, double b, Diagramm* bild = nullptr);

}  // namespace zufall
