#pragma once
// The 43 named colour tables of the fractal tool: 256 colours each, red in the low byte.
#include "platform/color.h"

#include <array>
#include <string>
#include <vector>

namespace chaos {

using Palette = std::array<platform::TColor, 256>;

// The names in the order of the selection box.
const std::vector<std::string>& palettennamen();
// The table of a name; an unknown name gives "defaultw".
Palette palette(const std::string& name);
// The table shifted by `schritte` places, as the colour rotation shows it.
Palette rotiere(const Palette& p, int schritte);

}  // namespace chaos
