#pragma once
// TFAnalysis (tool 3, "Funktionsuntersuchung"): the workbench for up to six functions with the
// sub-programs plot, value table, discussion, integration, tangent and normal.
#include "graphs/analysis_plot.h"
#include "graphs/graphscript.h"
#include "graphs/plotzustand.h"
#include "platform/canvas.h"
#include "platform/textlist.h"
#include "platform/toolframe.h"

#include <functional>

#include <QDialog>
#include <QStringList>
#include <array>

class QCheckBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QTreeWidget;

namespace graphs {

// A library list (.c00 of the user's data folder, else the factory copy in tinit.dll).
platform::StringList bibliothekLaden(const std::string& name);
// Writes the list to the user's data folder; false if that is not possible.
bool bibliothekSpeichern(const std::string& name, const platform::StringList& liste);
// Shows result lines in a tree: the text up to each tab in its own column.
void zeilenZeigen(QTreeWidget* liste, const std::vector<std::string>& zeilen);
// Draws a GraphScript over a range on a canvas (the windows' small plot).
void vorschauZeichnen(platform::Canvas& c, int breite, int hoehe, Skriptliste& skript, const Bereich& b);

// The row of print, copy and save buttons for a tool's picture, and one that copies the list.
QHBoxLayout* bildknoepfe(QWidget* owner, QWidget* bild, const platform::PaintRoutine& paint,
                         const std::function<std::vector<std::string>()>& liste);

class TAnalyseBild;

class TFAnalysis : public QDialog {
    Q_OBJECT
public:
    explicit TFAnalysis(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);

    static constexpr int kSeiten = 5;
    void seiteWaehlen(int seite);  // RG1C: the sub-program
    int seite() const { return seite_; }
    void setzeTerm(int feld, const QString& term);  // field 1..6
    QString term(int feld) const;

    void B1C(bool zeigen = true);  // "Zeichnen": GraphScript, then the plotter
    void S12C();                   // value table
    void D7C();                    // discussion of f1
    void D8C();                    // intersections of f1 and f2
    void integrationC();           // all rules for f1 over the interval
    void B4C();                    // tangent and normal of f1 at x
    void vonPunktC(bool normale);  // tangents or normals from P(P|Q)
    void bibliothekKlick(int zeile);

    QStringList zeilen() const;  // result lines as listed, tabs kept
    const Skriptliste& skript() const { return vorschau_; }
    const QStringList& meldungen() const { return meldungen_; }
    // The paint routine of the small plot (screen, file, clipboard).
    void zeichnen(platform::Canvas& c, int breite, int hoehe);

private:
    bool termHolen(int feld, std::string& term);  // CheckTerm
    void parameterLesen();
    double feldwert(QLineEdit* e, double vorgabe);
    void ergebnis(const std::vector<std::string>& z);
    void vorschauMitFunktion(const Diskussion* d);

    int seite_ = 0;
    double p_ = 1, q_ = 3, r_ = 0.5, von_ = -10, bis_ = 10, stelle_ = 1, schritt_ = 1;
    std::array<QLineEdit*, 6> E_{};
    std::array<QCheckBox*, 6> cc_{};
    std::array<QCheckBox*, kPlotoptionen> opt_{};
    QLineEdit *EP_ = nullptr, *EQ_ = nullptr, *ER_ = nullptr, *Evon_ = nullptr, *Ebis_ = nullptr;
    QLineEdit *Eschritt_ = nullptr, *Estelle_ = nullptr;
    QListWidget* RG1_ = nullptr;
    QListWidget* LB3_ = nullptr;  // the function library
    QStackedWidget* seiten_ = nullptr;
    QTreeWidget* LB2_ = nullptr;
    TAnalyseBild* PB1_ = nullptr;
    QLabel* titel_ = nullptr;
    platform::StringList bibliothek_, stammliste_;
    std::vector<std::string> zeilen_;
    Skriptliste vorschau_, zahlen_;
    Bereich bereich_;
    QStringList meldungen_;
};

}  // namespace graphs
