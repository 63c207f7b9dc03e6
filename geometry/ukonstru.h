#pragma once
// Tikonstru (tool 47): the construction sheet. The list of step lines is the model; every
// repaint runs it from the top, so dragging a free point moves everything built on it.
#include "geometry/konstrubild.h"
#include "geometry/konstruliste.h"

#include <QDialog>
#include <QStringList>
#include <array>

class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMouseEvent;
class QPushButton;
class QSpinBox;
class QTabWidget;
class QTimer;
class Tikonstru;

// The drawing panel PB1: paints through the owner and hands the mouse to it.
class TKonstruFlaeche : public QWidget {
    Q_OBJECT
public:
    explicit TKonstruFlaeche(Tikonstru* owner);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void wheelEvent(QWheelEvent* e) override;

private:
    Tikonstru* owner_;
};

class Tikonstru : public QDialog {
    Q_OBJECT
public:
    explicit Tikonstru(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);

    // The container of the text resources konstru and konstru2 (default: 000/texte.dll
    // beside the program).
    static void setzeTextContainer(const std::string& pfad);

    void zeichnen(platform::Canvas& c, int breite, int hoehe);
    const konstru::Konstruktion& konstruktion() const { return k_; }
    konstru::Lauf lauf() const;
    QStringList beispielTitel() const;
    bool C2C(int index);  // loads an example construction
    // Mouse drawing action by its caption ("Strecke", "Kreis", "Schnittpunkt", ...), "" = drag.
    bool Zeichenaktion(const QString& name);
    QString status() const;
    void setzeWinkel(const QString& grad);
    // The input row: kind index in LB2, then the fields; Hinzufügen appends the step.
    void C1C(int index);
    void setzeFeld(int nr, const QString& text);  // 0 = Bezeichnung, 1..4 parameters
    QString feldText(int nr) const;
    bool Hinzufuegen();
    bool D2C(int index, bool fragen = true);  // delete a step; false when it stays
    bool ladeDatei(const QString& pfad);
    bool speichereDatei(const QString& pfad);
    QString letzteMeldung() const { return meldung_; }
    konstru::Ansicht& ansicht() { return v_; }
    // Animation of the point marked in "Veränderbare Punkte"; each tick is Timer2Timer.
    bool S10C();  // Start / Stopp; true when it runs afterwards
    void Timer2Timer();
    void timerstop();
    bool markiereVeraenderbar(const QString& name);
    void setzeRichtung(bool senkrecht);

    // mouse, called by the panel
    void PB1D(QMouseEvent* e);
    void PB1M(QMouseEvent* e);
    void PB1U(QMouseEvent* e);
    void PB1Wheel(int delta);

private:
    void baueOberflaeche();
    void baueMenue(QWidget* leiste);
    void listeAnzeigen(int auswahl = -1);
    void neuZeichnen();
    void schalterzurueck();
    bool schrittAnhaengen(const std::string& zeile);
    std::string punktBei(QPointF pixel, bool anlegen);
    std::string objektBei(QPointF pixel, bool nurLinien, const std::string& ausser = "");
    void klickAusfuehren(QPointF pixel);
    void aktionFertig();
    void zeigeStatus();
    void zoom(double faktor);
    void Grundeinstellung();
    void meldung(const QString& text);
    void umbenennen(const std::string& name);
    void S5C();

    konstru::Konstruktion k_;
    konstru::Ansicht v_;
    std::vector<konstru::Beispiel> beispiele_;
    std::vector<std::string> arten_;  // konstru2
    int aktion_ = -1;               // index in the action table, -1: drag
    std::vector<std::string> klicks_;
    std::string zieht_;             // dragged free point
    bool pant_ = false;
    QPoint druck_;
    bool einzelschritt_ = false;
    int cursor_ = 0;
    QString meldung_;

    TKonstruFlaeche* PB1_ = nullptr;
    QLabel* L1_ = nullptr;  // the next wanted click
    QLabel* L2_ = nullptr;  // mouse position
    QComboBox* C2_ = nullptr;
    QListWidget* LB1_ = nullptr;
    QListWidget* Messergebnisse_ = nullptr;
    QComboBox* LB2_ = nullptr;
    std::array<QLabel*, 5> EL_{};
    std::array<QLineEdit*, 5> E_{};
    QCheckBox* Einzelschritt_ = nullptr;
    QLineEdit* W_ = nullptr;  // angle of the rotating actions
    QTabWidget* TC_ = nullptr;
    std::vector<QPushButton*> schalter_;
    QAction* achsenAktion_ = nullptr;
    QAction* gitterAktion_ = nullptr;
    QAction* mmAktion_ = nullptr;
    bool sperre_ = false;
    QListWidget* LB3_ = nullptr;  // Veränderbare Punkte
    QComboBox* Richtung_ = nullptr;
    QSpinBox* Rx1_ = nullptr;     // Geschwindigkeit
    QPushButton* S10_ = nullptr;
    QTimer* Timer2_ = nullptr;
    int animRichtung_ = 1;
    void veraenderbareZeigen();
};
