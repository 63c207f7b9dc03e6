#pragma once
// Hover and click on a page: which link is hit and what it asks for.
#include "lexicon/pagelayout.h"
#include "lexicon/toolcatalog.h"
#include "platform/textlist.h"

#include <string>
#include <vector>

namespace lexicon {

// Index (0-based) of the first link holding the point, all comparisons strict; -1 if none.
int linkAnPunkt(const std::vector<LinkEintrag>& links, int x, int y);

struct KlickAktion {
    enum Art {
        Nichts,
        Stichwort,       // select LB1 item `index`
        Werkzeug,        // start tool `werkzeug` with title `text`
        Funktionsplot,   // `wert` is the F: text
        Zusatzbild,      // `wert`
        Tabelle,         // `wert`
        Pdf,             // `wert` without "#"
        GifFenster,      // `wert`
        Begleitprogramm, // quorixo.exe with `wert`
        Weiter,
        Zurueck,
        Lexikonrechnung  // `wert`, shown at (x1, y1 + 24) of the link
    };
    Art art = Nichts;
    int index = -1;
    ToolTriple werkzeug;
    std::string text;
    std::string wert;
    std::string url;  // non-empty: hand to the system's opener first
    int linkIndex = -1;
};

// The click rule: first link holding the point, "http" on the last link when none does,
// the prefix match in LB1, tool links through the catalogue, then the marker kinds.
KlickAktion klickAuswerten(const std::vector<LinkEintrag>& links, int x, int y,
                           const platform::StringList& lb1, const ToolCatalog& katalog);

// The click rule's keyword match: the first LB1 item that begins with the text, or with the
// text's first letter lowered; -1 if none.
int stichwortIndex(const platform::StringList& lb1, const std::string& text);
// The value of a marker link "»F: X^2«": without "»F:", the blanks behind it and the closing "«".
std::string markerWert(const std::string& text);

// The plot request of an "F:" link.
struct PlotAuftrag {
    bool flaeche = false;
    bool kurvenmodus = false;
    std::string flaechenname;
    platform::StringList plotliste;  // the GraphScript lines
    std::string feldX, feldY;        // terms for the plotter's fields (curves)
    double skalierung = 0;           // 1 for parametric and polar curves, 0: unchanged
};
PlotAuftrag plotAuftragAusWert(const std::string& wert);

}  // namespace lexicon
