// The factories of the function workbench and the integration tool for the tool table.
#include "graphs/uanalysis.h"
#include "graphs/uintegration.h"
#include "graphs/windows.h"

namespace graphs {

QDialog* createTFAnalysis(QWidget* parent, int wahlseite, int wahlpunkt)
{
    return new TFAnalysis(parent, wahlseite, wahlpunkt);
}

QDialog* createTFintegra(QWidget* parent, int wahlseite, int wahlpunkt)
{
    return new TFintegra(parent, wahlseite, wahlpunkt);
}

}  // namespace graphs
