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

namespace konstru {
// One animation tick: the point moves 0.02 units along x (or y when `senkrecht`) in
// `richtung` (+1/-1); the direction flips when its pixel nears the panel's border (5 from the
// left, 10 from the top, the width and height).
P2 animationsSchritt(P2 p, int& richtung, bool senkrecht, const Ansicht& v, int breite, int hoehe);
// The timer interval in ms of the speed setting 1..10: the highest value is the shortest.
int animationsIntervall(int geschwindigkeit);
}  // namespace konstru
