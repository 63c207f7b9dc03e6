#pragma once
// TFpoly (tool 11): solids turned in space as wire frames or painted faces, with their
// coordinate table, the two- and three-plane views, truncation and stellation.
#include "geometry/polyeder.h"
#include "geometry/polyederbild.h"
#include "platform/canvas.h"

#include <QDialog>
#include <QStringList>
#include <array>
#include <string>
#include <vector>

class QButtonGroup;
class QCheckBox;
class QDoubleSpinBox;
class QLabel;
class QListWidget;
class QSpinBox;
class QTimer;
class TFpoly;

// The drawing panel PB1: paints through the owner and hands the mouse to it.
class TPolyFlaeche : public QWidget {
    Q_OBJECT
public:
    explicit TPolyFlaeche(TFpoly* owner);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    TFpoly* owner_;
};

class TFpoly : public QDialog {
    Q_OBJECT
public:
    // wahlseite: the family 0..5 (Polyederart), wahlpunkt: the row of the list LB1.
    explicit TFpoly(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);

    // The container of the resources mpoly1, mpoly2, koerperz (default: 000/texte.dll beside
    // the program).
    static void setzeTextContainer(const std::string& pfad);

    void zeichne(platform::Canvas& c, int breite, int hoehe);  // screen, file, clipboard, printer
    bool waehle(int art, const QString& name);                 // false when the family lacks it
    void setzeOption(const QString& text, bool an);             // a check box by its caption
    const poly::Koerper& koerper() const { return koerper_; }  // as drawn: scaled and turned
    QStringList namen() const;                                 // the list LB1
    void Timer1Timer();
    void drehen(double a, double b, double c);

    void PB1MD(QMouseEvent* e);
    void PB1MM(QMouseEvent* e);
    void PB1MU();

private:
    void baueOberflaeche();
    void artGewaehlt(int art);
    void neuwert();  // reads the chosen solid, then B1C
    void B1C();      // truncates or stellates, scales and turns into the current orientation
    void Grundeinstellung();
    poly::Darstellung darstellung() const;

    std::vector<std::string> daten_;
    int art_ = 0;
    poly::Koerper basis_;    // as read, unscaled
    poly::Koerper form_;     // after truncation or stellation, unscaled
    poly::Koerper koerper_;  // drawn
    poly::Koerper lage_;     // three unit vectors turned with the solid: its orientation
    std::array<double, 3> summe_{};
    double verformung_ = 0, verformungSchritt_ = 0.01;
    bool zieht_ = false;
    QPoint druck_;

    TPolyFlaeche* PB1_ = nullptr;
    QButtonGroup* polyederart_ = nullptr;
    QListWidget* LB1_ = nullptr;
    std::array<QSpinBox*, 3> drehwinkel_{};
    QSpinBox* bildgroesse_ = nullptr;
    QDoubleSpinBox* abstumpfung_ = nullptr;
    std::vector<QCheckBox*> schalter_;
    QTimer* Timer1_ = nullptr;
    bool sperre_ = false;
};
