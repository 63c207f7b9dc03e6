#pragma once
// Reading and writing the small RTF dialect of the page export: paragraphs of runs with bold,
// italic, colour, super- and subscript and the Symbol font. Enough for the text window to
// show and save what the export writes; other control words are passed over.
#include "platform/color.h"

#include <string>
#include <vector>

namespace lexicon {

enum class RtfHoehe { normal, hoch, tief };

struct RtfLauf {
    std::string text;  // UTF-8; Symbol characters already mapped to Unicode
    bool fett = false;
    bool kursiv = false;
    platform::TColor farbe = platform::clBlack;
    RtfHoehe hoehe = RtfHoehe::normal;
    bool symbol = false;  // set in the Symbol font

    bool gleichesFormat(const RtfLauf& o) const
    {
        return fett == o.fett && kursiv == o.kursiv && farbe == o.farbe && hoehe == o.hoehe && symbol == o.symbol;
    }
};

struct RtfAbsatz {
    std::vector<RtfLauf> laeufe;
    std::string text() const;  // all runs together
};

struct RtfDokument {
    std::vector<RtfAbsatz> absaetze;
    bool gueltig = false;  // began with "{\rtf" and its braces balance
};

RtfDokument rtfLesen(const std::string& rtf);

// The document in the export's dialect: the same head, one line per paragraph, 7-bit text.
std::string rtfSchreiben(const RtfDokument& d);

}  // namespace lexicon
