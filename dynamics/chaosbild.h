#pragma once
// Value rasters and exponent maps become pictures, and the CHAOS resource is loaded: the parts
// that window and headless commands share.
#include "dynamics/chaosdaten.h"
#include "dynamics/chaoslyapunow.h"
#include "dynamics/fraktalpalette.h"
#include "platform/picture.h"

#include <string>
#include <vector>

namespace chaos {

// Every byte through the palette, written row by row through the scan lines.
void faerbe(const Werteraster& r, const Palette& p, platform::Picture& bild);
void faerbeLjapunow(const TLyapunovLambdaMap& m, Ljapunowfarben f, platform::TColor einzel, platform::Picture& bild);

// The lines of CHAOS from <program dir>/000/texte.dll, UTF-8; empty if missing.
std::vector<std::string> ladeChaosText(const std::string& container = "");

}  // namespace chaos
