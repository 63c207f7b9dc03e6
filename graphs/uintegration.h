#pragma once
// TFintegra (tool 12, "Integralrechnung"): areas between two curves, solids of rotation and a
// library of term pairs with their antiderivatives (minte.c00).
#include "graphs/integration.h"
#include "graphs/graphscript.h"
#include "platform/canvas.h"
#include "platform/textlist.h"

#include <QDialog>
#include <QStringList>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QTreeWidget;

namespace graphs {

class TIntegralBild;

class TFintegra : public QDialog {
    Q_OBJECT
public:
    explicit TFintegra(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);

    static constexpr int kSeiten = 2;  // "Flächen und Volumen", "Körper zeichnen"
    void RG1C(int seite);
    int seite() const { return seite_; }
    void setzeFelder(const QString& f, const QString& g, const QString& F, const QString& G, const QString& a,
                     const QString& b);
    void setzeVerfahren(Integrationsverfahren v, int n);
    void berechnen();   // "Berechnen"
    void S1C(int zeile);  // a library pair into f and F
    void S2C();           // the pair f;F into the library
    QStringList zeilen() const;
    const Skriptliste& skript() const { return skript_; }
    const platform::StringList& bibliothek() const { return bibliothek_; }
    // The paint routine of the picture: the area between the curves or the solid.
    void zeichnen(platform::Canvas& c, int breite, int hoehe);

private:
    void koerperZeichnen(platform::Canvas& c, int breite, int hoehe);
    Integrationsvorgabe vorgabe(bool& ok);

    int seite_ = 0;
    QLineEdit *Ef_ = nullptr, *Eg_ = nullptr, *EF_ = nullptr, *EG_ = nullptr;
    QLineEdit *Ea_ = nullptr, *Eb_ = nullptr, *Ep_ = nullptr, *Eq_ = nullptr, *En_ = nullptr;
    QComboBox* CBv_ = nullptr;   // the rule
    QComboBox* CBk_ = nullptr;   // which solid
    QCheckBox* CBfarbe_ = nullptr;
    QCheckBox* CBseiten_ = nullptr;
    QListWidget* RG1_ = nullptr;
    QListWidget* LB3_ = nullptr;
    QStackedWidget* seiten_ = nullptr;
    QTreeWidget* LB2_ = nullptr;
    TIntegralBild* PB1_ = nullptr;
    platform::StringList bibliothek_;
    std::vector<std::string> zeilen_;
    Skriptliste skript_;
    Integrationsvorgabe letzte_;
    bool gerechnet_ = false;
    QStringList meldungen_;
};

}  // namespace graphs
