// The astronomical topics of the numeric workbench: thin tables over the ephemeris kernel.
#include "algebra/numer_intern.h"
#include "astronomy/ephemeris.h"

namespace numer::intern {

// Solar and lunar eclipses of a span of years, from the lunations of the almanac.
void finsternisse(Lauf& l)
{
    int64_t von, bis;
    if (!l.ganz(0, 1000, 3000, von) || !l.ganz(1, 1000, 3000, bis)) return;
    if (bis < von) std::swap(von, bis);
    if (bis - von > 200) {
        l.fehler("Höchstens 200 Jahre");
        return;
    }
    int anzahl = 0;
    for (int64_t y = von; y <= bis; ++y) {
        if (!l.weiter(static_cast<int>(100 * (y - von) / (bis - von + 1)))) return;
        for (const astro::Eclipse& e : astro::eclipsesOfYear(static_cast<int>(y))) {
            l.zeile(astro::dateTimeText(astro::jdeToJd(e.jde)) + " UT\t" +
                    (e.solar ? "Sonnenfinsternis" : "Mondfinsternis") + "\t" + astro::eclipseText(e.kind));
            ++anzahl;
        }
    }
    l.schluss(std::to_string(anzahl) + " Finsternisse");
}

}  // namespace numer::intern
