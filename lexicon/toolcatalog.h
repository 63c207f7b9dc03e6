#pragma once
// The ToolCatalog "txtueber": pairs of lines, a title and "ToolNumber page item".
#include "platform/textlist.h"

#include <string>

namespace lexicon {

struct ToolTriple {
    int nummer = -1;
    int seite = -1;
    int punkt = -1;
};

class ToolCatalog {
public:
    ToolCatalog() = default;
    explicit ToolCatalog(platform::StringList werkzeugliste) : werkzeugliste_(std::move(werkzeugliste)) {}

    // IndexOf(title), not case-sensitive, first match, on even and odd lines alike; then the
    // next line's three integers. A hit whose next line holds no numbers raises ConversionError.
    bool suche(const std::string& titel, ToolTriple& ergebnis) const;
    int indexOf(const std::string& titel) const;
    const platform::StringList& liste() const { return werkzeugliste_; }

private:
    platform::StringList werkzeugliste_;
};

// Case folding of Windows-1252 text as the list's IndexOf does it (umlauts included).
std::string ansiLower(const std::string& s);

}  // namespace lexicon
