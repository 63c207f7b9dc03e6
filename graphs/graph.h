#pragma once
// Tool 4, "Grafische Darstellung": the resident plotter window. It holds no functions of its
// own: it draws the GraphScript that a tool or a page link filled, over the coordinate system.
#include "graphs/zeichnen.h"
#include "platform/picture.h"

#include <QDialog>
#include <functional>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTimer;

namespace graphs {

class Zeichenflaeche;

class TFGraph : public QDialog {
    Q_OBJECT
public:
    explicit TFGraph(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);
    ~TFGraph() override;

    // The one entry that every control calls: read the boxes, map, draw, show.
    void Darstellung();
    // "Zeichnen" (D1): read the fields with their corrections, then Darstellung.
    void D1C();
    void verschieben(int dx, int dy);         // S4..S7
    void zoomen(bool hinein, double anteil);  // S8, S9, wheel
    void S13C();                              // "Grundeinstellung"
    void S31C();                              // "y-Auflösung anpassen"
    void animationUmschalten();               // B1
    void animationsschritt();                 // one tick of Timer1
    void parameterAendern(double delta);
    bool animationLaeuft() const;
    // After an F: link with scale factor 1: equal units on both axes.
    void gleicheEinheiten() { S31C(); }

    const Graphzeichner& zeichner() const { return zeichner_; }
    const platform::Picture& bild() const { return bild_; }
    QString statustext() const;
    // The message of the shared table when a zoom limit is reached; replaceable by the shell.
    std::function<void(int)> meldung;

    // Mouse on the plot, in picture pixels (the paint box forwards its events).
    void PB1MD(int x, int y);
    void PB1MM(int x, int y, bool gedrueckt);
    void PB1MU(int x, int y);
    void PB1Rad(int stufen);

    // Save, copy, print through the same paint routine.
    bool speichernAls(const QString& datei);
    void speichern();
    void kopieren();
    void drucken();

protected:
    void showEvent(QShowEvent* e) override;
    void hideEvent(QHideEvent* e) override;
    void changeEvent(QEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;

private:
    void FormCreate();
    void FormShow();
    void felderSchreiben();
    void optionenLesen();
    void termfeldAusSkript();
    void skriptAusTermfeld();
    QLineEdit* feld(const char* name, const QString& text, int breite = 70);

    PlotZustand& z_;
    Graphzeichner zeichner_;
    platform::Picture bild_;
    Zeichenflaeche* PB1_ = nullptr;
    QLineEdit* E1_ = nullptr;  // the function terms, separated by ";"
    QLineEdit* EX_ = nullptr;  // x-term (parametric) or r-term (polar)
    QLineEdit* EY_ = nullptr;  // y-term
    QLineEdit* E_[18] = {};  // E3, E4 domain; E6..E9 range; E10, E11 units; E12 P, E13 Q, E14 step; E15..E17 family
    QCheckBox* C_[17] = {};
    QSpinBox* TB4_ = nullptr;
    QPushButton* B1_ = nullptr;
    QLabel* P16_ = nullptr;
    QLabel* status_ = nullptr;
    QTimer* Timer1_ = nullptr;
    std::string termfeldStand_;
    int ziehLabel_ = 0;
    int mausX_ = 0, mausY_ = 0;
    bool gezogen_ = false;
    bool freiAn_ = false;
};

}  // namespace graphs
