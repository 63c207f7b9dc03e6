#pragma once
// The page calculators of the side panel: three fields in, lines out.
#include "platform/textlist.h"

#include <functional>
#include <string>

namespace lexicon {

struct SeitenrechnerFelder {
    std::string ed1, ed2, ed3;
    std::string l12;         // caption of the third input, empty: none
    bool ed1Breit = false;   // 514 holds a long input
};

struct SeitenrechnerRahmen {
    std::string ed1, ed2, ed3;        // field texts; members may write them back
    std::string l10;                  // the calculator's title
    platform::StringList zeilen;      // LB3
    int tabbreite = 30;
    bool* zeitaufwaendig = nullptr;   // cleared by a second press: loops stop
    std::function<void()> nachrichtenschleife;  // lets the message loop run once
};

// Reads a field as a real the way every numeric field does (a term is valid).
extern std::function<double(const std::string&, bool& ok)> feldWertLesen;

void seitenrechnerVorbereiten(int aktivnummer, SeitenrechnerFelder& felder);
// Runs the member; false if no member has this number.
bool seitenrechnerStarten(int aktivnummer, SeitenrechnerRahmen& r);
bool seitenrechnerVorhanden(int aktivnummer);

}  // namespace lexicon
