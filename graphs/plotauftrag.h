#pragma once
// The F: link of a page: its plot request fills the GraphScript and the plotter's fields.
#include "graphs/graphscript.h"
#include "graphs/plotzustand.h"
#include "lexicon/linkroute.h"

namespace graphs {

// Copies the plot list into the script (cursor at the end, as the helpers leave it), the curve
// terms into the fields X and Y; a scale factor of 1 asks for equal units on both axes,
// so the y range follows the x range (the window applies that when it opens). Surface requests
// are not the plotter's: false, nothing changed.
bool plotAuftragUebernehmen(const lexicon::PlotAuftrag& auftrag, Skriptliste& skript, PlotZustand& z,
                            bool& gleicheEinheiten);

}  // namespace graphs
