#pragma once
// The construction's picture: one paint routine for the sheet, picture files and the printer.
#include "geometry/konstru.h"
#include "platform/canvas.h"

#include <string>

namespace konstru {

struct Ansicht {
    double einheit = 50;  // pixels per unit
    double panX = 0, panY = 0;  // pixels the origin is moved from the panel centre
    bool achsen = true, gitter = false, millimeter = false;
    std::string markiert;  // point shown as selected

    double px(double x, int breite) const { return breite / 2.0 + panX + x * einheit; }
    double py(double y, int hoehe) const { return hoehe / 2.0 + panY - y * einheit; }
    P2 welt(double px, double py, int breite, int hoehe) const
    {
        return {(px - breite / 2.0 - panX) / einheit, (hoehe / 2.0 + panY - py) / einheit};
    }
};

void zeichneKonstruktion(platform::Canvas& c, int breite, int hoehe, const Lauf& lauf, const Ansicht& v);

}  // namespace konstru
