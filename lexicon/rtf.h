#pragma once
// The RTF export of a lexicon page: every line of the page one paragraph, the reader wraps.
#include "platform/textlist.h"

#include <string>

namespace lexicon {

// The five head lines: fonts Verdana, Symbol, Times New Roman; colours blue and red.
platform::StringList rtfKopf();

// The inline tokens of one line as RTF control words ("$+" superscript, "$-" subscript,
// tab stops, Symbol characters); the link and formatting tokens vanish.
std::string rtfTokens(const std::string& zeile);

// Bytes 0x80..0xFF as "\'hh", so the file stays 7-bit and every reader gets the umlauts.
std::string rtfAchtBit(const std::string& zeile);

// The page `seite` of the block as RTF lines (Windows-1252, no line ends). A page whose
// marker line isn't in the block gives head, closing line and "}" only.
platform::StringList rtfSeite(const platform::StringList& block, int seite);

// The export file in the user's data folder: datenpfad + "rtf.000".
std::string rtfDateiname();
// Writes the lines with CR LF (temporary file, then renamed). Throws when it can't.
void rtfDateiSchreiben(const std::string& pfad, const platform::StringList& zeilen);

}  // namespace lexicon
