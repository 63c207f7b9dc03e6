#pragma once
// The result panel of the algebra workbench, drawn through the canvas so that screen,
// file, clipboard and printer get the same picture.
#include "platform/canvas.h"

#include <string>
#include <vector>

namespace algebra {

struct Bildinhalt {
    int seite = 0;
    std::vector<std::string> felder;  // as typed; pages 3 and 19 draw their sides from them
    std::vector<std::string> zeilen;  // the result lines (UTF-8, tabs kept)
    std::string status;
    int erste = 0;  // the first result line shown (the panel scrolls with the mouse wheel)
};

void zeichneErgebnis(platform::Canvas& c, int breite, int hoehe, const Bildinhalt& b);

}  // namespace algebra
