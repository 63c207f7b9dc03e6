#pragma once
// Paints a page's drawing (bars, points, curves, trees) scaled into a canvas.
#include "platform/canvas.h"
#include "stochastics/diagramm.h"

namespace zufall {

void zeichneDiagramm(platform::Canvas& c, int breite, int hoehe, const Diagramm& d);

}  // namespace zufall
