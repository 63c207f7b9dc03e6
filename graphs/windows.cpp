#include "graphs/windows.h"

#include "graphs/graph.h"

#include <QLayout>
#include "graphs/plotauftrag.h"

namespace graphs {

QDialog* createTFGraph(QWidget* parent) { return new TFGraph(parent); }

QDialog* createTFGraphFuer(const lexicon::PlotAuftrag& auftrag, QWidget* parent)
{
    bool gleich = false;
    if (!plotAuftragUebernehmen(auftrag, graphScript(), plotZustand(), gleich))
        return nullptr;
    auto* w = new TFGraph(parent);
    if (gleich) {
        // equal units need the paint box's real size, known once the layout has run
        w->ensurePolished();
        w->layout()->activate();
        w->gleicheEinheiten();
    }
    return w;
}

bool plotAuftragOeffnen(const lexicon::PlotAuftrag& auftrag, QWidget* parent)
{
    QDialog* w = createTFGraphFuer(auftrag, parent);
    if (!w)
        return false;
    w->exec();
    delete w;
    return true;
}

}  // namespace graphs
