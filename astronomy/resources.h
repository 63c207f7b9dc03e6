#pragma once
// Loading of the calendar tool's authored lists from the text container texte.dll.
#include "astronomy/kalenderspez.h"

#include <string>

namespace astro {

// <directory of the executable>/000/texte.dll, where the build and the installation put it.
std::string defaultTextContainer();
// Resources 10/kalender, 10/kalender1, 10/chink and 10/feiert as UTF-8 lines; a missing
// container or resource gives an empty list.
kal::Resources loadKalenderResources(const std::string& containerPath = defaultTextContainer());

}  // namespace astro
