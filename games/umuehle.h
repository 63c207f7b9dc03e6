#pragma once
// Tfmuehle (tool 102): Mühle on 24 points, human against computer or against a second human.
#include "games/muehlespiel.h"
#include "platform/canvas.h"

#include <QDialog>
#include <QPoint>
#include <optional>

class QButtonGroup;
class QCheckBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSpinBox;

class Tfmuehle;

// What the board shows: a position, the marks of the last move and a stone in the hand.
struct MuehleBild {
    muehle::Stellung stellung;
    muehle::Zug letzter;      // blue ring on nach, red cross on schlag
    int gehoben = -1;         // point whose stone is being dragged
    QPoint hand;              // where the dragged stone is
    int vorgemerkt = -1;      // target waiting for the capture click
};
// The board picture of 520 x 520 pixels.
void muehleZeichnen(platform::Canvas& c, const MuehleBild& bild);

// PB1: the board; mouse events go to the window's handlers.
class TMuehleBrett : public QWidget {
    Q_OBJECT
public:
    explicit TMuehleBrett(Tfmuehle* owner);
    QSize sizeHint() const override { return {520, 520}; }

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    Tfmuehle* owner_;
};

class Tfmuehle : public QDialog {
    Q_OBJECT
public:
    explicit Tfmuehle(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);

    const muehle::Muehlespiel& spiel() const { return spiel_; }
    MuehleBild bild() const;
    QString status() const;
    void setzeTestausgabe(bool an);     // the line under the buttons: whose turn, "Spielende!", ...
    QStringList spielzuege() const;
    void setzeVariante(int item);  // RG1 item 0, 1 or 2
    void setzeTiefe(int tiefe);

    // Handlers, public so that tests can play through the window.
    void D1C();  // "Spielstart"
    void D2C();  // "Abbruch"
    void D3C();  // "Zurück"
    void Pb1MD(QPoint p);
    void Pb1MM(QPoint p);
    void Pb1MU(QPoint p);
    void Computerzug();

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void nachZug(bool geschlagen);
    void ausfuehren(const muehle::Zug& z);
    void anzeigen();
    int treffer(QPoint p, int radius) const;

    muehle::Muehlespiel spiel_;
    int suchtiefe_ = 3;
    int variante_ = 0;
    bool schlagmodus_ = false;
    muehle::Zugliste gemerkt_;  // the moves that wait for the capture click
    int gehoben_ = -1;
    QPoint hand_;
    int vorgemerkt_ = -1;
    int vorgemerktVon_ = muehle::kKein;
    bool rechnet_ = false;

    TMuehleBrett* PB1_ = nullptr;
    QButtonGroup* RG1_ = nullptr;
    QSpinBox* rx1_ = nullptr;
    QCheckBox* testausgabe_ = nullptr;
    QPushButton* D1_ = nullptr;
    QPushButton* D2_ = nullptr;
    QPushButton* D3_ = nullptr;
    QLabel* zugzahl_ = nullptr;
    QLabel* status_ = nullptr;
    QLabel* zugAnzeige_ = nullptr;
    QLabel* name_[3] = {};
    QLabel* steine_[3] = {};
    QLabel* phase_[3] = {};
    QLabel* vorrat_[3] = {};
    QListWidget* LB1_ = nullptr;
};
