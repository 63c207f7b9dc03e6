#pragma once
// The picture of a solid: painted faces, wire frame with hidden edges, marked vertices, the
// coordinate table and the two- and three-plane views. Shared by the window and the command.
#include "geometry/polyeder.h"
#include "platform/canvas.h"

#include <string>

namespace poly {

struct Darstellung {
    bool kantenmodell = true;
    bool verdeckteKanten = false;  // hidden edges dashed instead of left out
    bool farbigeFlaechen = false;  // one colour, shaded by the light from the viewer
    bool bunteFlaechen = false;    // a colour per kind of face
    bool zweitafel = false;
    bool dreitafel = false;
    bool koordinatentabelle = false;
    bool punkteHervorheben = false;
    double tabellenFaktor = 1;  // the table shows coordinates times this (back to the data's unit)
    std::string titel;      // UTF-8
    std::string unterzeile;   // UTF-8: counts and turn angles
    std::string unterzeile2;  // UTF-8: measures
};

// The solid is expected already scaled to pixels around the origin.
void zeichnePolyeder(platform::Canvas& c, int breite, int hoehe, const Koerper& k, const Darstellung& d);

}  // namespace poly
