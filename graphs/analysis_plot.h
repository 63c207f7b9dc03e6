#pragma once
// The GraphScript of the function workbench: what the plot options and the discussion hand to
// the plotter, and a picture range that shows a function over an interval.
#include "graphs/abbildung.h"
#include "graphs/analysis.h"
#include "graphs/graphscript.h"

#include <array>
#include <string>

namespace graphs {

// The plot options in the order of their check boxes (texts UTF-8).
constexpr int kPlotoptionen = 21;
extern const char* const kPlotoptionText[kPlotoptionen];

struct Plotwahl {
    std::array<bool, 6> feld{true, true, true, true, true, true};  // cc1..cc6
    std::array<bool, kPlotoptionen> option{};
};

// The evolute of y = f(x) (the centres of curvature) as the two terms of a parametric curve in
// X; false if f has no second derivative.
bool evolutenTerme(const std::string& term, std::string& xTerm, std::string& yTerm);

// Clears the script and writes the commands for the terms (empty ones are left out) and options.
// The points of `d` (the discussion of field 1) are marked when that option is on.
void plotSkriptSchreiben(Skriptliste& s, const std::array<std::string, 6>& terme, const Plotwahl& w, double p,
                         double q, double r, const Diskussion* d = nullptr);
// The points of a discussion as marks with their coordinates: zeros red, extremes blue,
// inflection points green.
void diskussionspunkteSchreiben(Skriptliste& s, const Diskussion& d);
// x from von to bis; y from the function's values there (robust against poles), with a margin.
Bereich bildbereich(const std::string& term, double von, double bis);

}  // namespace graphs
