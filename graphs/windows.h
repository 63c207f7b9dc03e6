#pragma once
// Factories of the graph windows for the tool table, and the road of a page's F: link.
class QDialog;
class QWidget;

namespace lexicon {
struct PlotAuftrag;
}

namespace graphs {

QDialog* createTFGraph(QWidget* parent);  // tool 4, "Grafische Darstellung"
// tool 3, "Funktionsuntersuchung": page = sub-program 0..4
QDialog* createTFAnalysis(QWidget* parent, int wahlseite = -1, int wahlpunkt = -1);
// tool 12, "Integralrechnung"
QDialog* createTFintegra(QWidget* parent, int wahlseite = -1, int wahlpunkt = -1);

// An F: link of a page: fills the GraphScript and the fields from the request and opens the
// plotter modally. false for a surface request, which belongs to the surface tool.
bool plotAuftragOeffnen(const lexicon::PlotAuftrag& auftrag, QWidget* parent);
// The same without showing: the window ready to be shown (tests, pictures). nullptr for surfaces.
QDialog* createTFGraphFuer(const lexicon::PlotAuftrag& auftrag, QWidget* parent);

}  // namespace graphs
