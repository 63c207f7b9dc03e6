#pragma once
// TFchaos (tool 6): escape-time fractals, IFS, simulations, iterative systems, circle fractals
// and the Feigenbaum diagram, chosen from the object list CHAOS.
#include "dynamics/chaosdaten.h"
#include "dynamics/fraktalpalette.h"
#include "platform/canvas.h"
#include "platform/picture.h"

#include <QDialog>
#include <QPoint>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QTimer;
class TFchaos;

// The picture box PB1: shows the fractal and lets the user drag a zoom rectangle.
class TChaosBild : public QWidget {
    Q_OBJECT
public:
    explicit TChaosBild(TFchaos* owner);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    TFchaos* owner_;
};

class TFchaos : public QDialog {
    Q_OBJECT
public:
    explicit TFchaos(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);

    // The object list; the constructor loads CHAOS from the resource file.
    void ladeObjekte(const std::vector<std::string>& zeilen);
    void waehleTyp(int typ);
    void waehleObjekt(int index);
    int typ() const { return typ_; }
    int objektzahl() const;
    // Draws the chosen object to the end (the button "Darstellung").
    void d1c();
    const chaos::Einstellung& einstellung() const { return e_; }
    const chaos::Werteraster& werte() const { return werte_; }
    QStringList ergebnis() const;
    // The picture with its frame, for screen, file, clipboard and printer.
    void zeichne(platform::Canvas& c, int breite, int hoehe);
    // Zoom by a dragged rectangle in picture pixels; false if smaller than one pixel.
    bool zoom(QPoint von, QPoint bis);

private:
    friend class TChaosBild;
    void FormCreate();
    void neuwert();           // loads the block of the chosen object
    void felderSchreiben();   // setting -> fields
    void felderLesen();       // fields -> setting (terms allowed)
    void faerben();
    void S4C() { schiebe(-0.25, 0); }
    void S5C() { schiebe(0.25, 0); }
    void S6C() { schiebe(0, 0.25); }
    void S7C() { schiebe(0, -0.25); }
    void schiebe(double dx, double dy);
    void S8C();
    void S9Click();
    void Timer1Timer();
    void speichern();
    void kopieren();
    void drucken();

    std::vector<chaos::ChaosObjekt> objekte_;
    std::vector<const chaos::ChaosObjekt*> liste_;
    int typ_ = 0;
    chaos::Einstellung e_;
    chaos::Werteraster werte_;
    chaos::Palette palette_{};
    int rotation_ = 0;
    platform::Picture bild_;
    std::vector<chaos::Ansicht> gemerkt_;
    std::vector<std::string> zeilen_;
    bool laeuft_ = false, stopp_ = false;
    double zeitMs_ = 0;
    bool ziehen_ = false;
    QPoint zugStart_, zugEnde_;

    TChaosBild* PB1_ = nullptr;
    QRadioButton* typKnopf_[7] = {};
    QListWidget* LB1_ = nullptr;
    QLineEdit* Ex_[4] = {};  // xmin, xmax, ymin, ymax
    QSpinBox* E4_ = nullptr;  // iterations
    QLineEdit* Efaktor_ = nullptr;
    QLabel* Lc_ = nullptr;
    QLineEdit* Eca_ = nullptr;
    QLineEdit* Ecb_ = nullptr;
    QLabel* Lpar_[3] = {};
    QLineEdit* Epar_[3] = {};
    QLabel* L6_ = nullptr;
    QSpinBox* E6_ = nullptr;
    QLabel* L3_ = nullptr;
    QLineEdit* E3_ = nullptr;  // point count
    QComboBox* CBpalette_ = nullptr;
    QCheckBox* CBinnen_ = nullptr;
    QCheckBox* CBrotation_ = nullptr;
    QWidget* ifsPanel_ = nullptr;
    QComboBox* CBabbildung_ = nullptr;
    QComboBox* CBmodus_ = nullptr;
    QPlainTextEdit* Mcode_ = nullptr;
    QPlainTextEdit* M2_ = nullptr;  // description
    QLabel* Lzeit_ = nullptr;
    QLabel* Lergebnis_ = nullptr;
    QPushButton* D1_ = nullptr;
    QTimer* Timer1_ = nullptr;
};
