#include "graphs/plotauftrag.h"

namespace graphs {

bool plotAuftragUebernehmen(const lexicon::PlotAuftrag& auftrag, Skriptliste& skript, PlotZustand& z,
                            bool& gleicheEinheiten)
{
    gleicheEinheiten = false;
    if (auftrag.flaeche)
        return false;
    skript.leeren();
    for (const std::string& zeile : auftrag.plotliste)
        skript.addText(zeile);
    if (!auftrag.feldX.empty() || !auftrag.feldY.empty()) {
        z.feldX = auftrag.feldX;
        z.feldY = auftrag.feldY;
    }
    gleicheEinheiten = auftrag.skalierung == 1;
    return true;
}

}  // namespace graphs
