#pragma once
// TxDreieck (tool 25): the interactive triangle. The vertices are dragged with the mouse or
// typed in; the switched-on objects are recomputed, drawn and listed on every repaint.
#include "geometry/dreieck.h"
#include "geometry/dreieckliste.h"
#include "platform/canvas.h"

#include <QDialog>
#include <QStringList>
#include <array>

class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QRadioButton;
class QSlider;
class QStackedWidget;
class QTabWidget;
class QTimer;
class QTreeWidget;
class TxDreieck;

// The drawing panel PB1: paints through the owner and hands the mouse to it.
class TDreieckFlaeche : public QWidget {
    Q_OBJECT
public:
    explicit TDreieckFlaeche(TxDreieck* owner);

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void wheelEvent(QWheelEvent* e) override;

private:
    TxDreieck* owner_;
};

class TxDreieck : public QDialog {
    Q_OBJECT
public:
    explicit TxDreieck(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);

    // The container of the text resources xdreieck and wdreieck (default: 000/texte.dll
    // beside the program).
    static void setzeTextContainer(const std::string& pfad);

    // The one paint routine of screen, picture file, clipboard and printer.
    void zeichne(platform::Canvas& c, int breite, int hoehe);
    // Results page: recomputes at factor 1 and fills LB1; the lines, for tests and the shell.
    QStringList ergebnisse();
    bool M31C(const QString& caption);  // a theme by its menu caption
    void setzeObjekt(const QString& name, bool an);
    void setzeEcken(const std::array<double, 6>& koordinaten);
    const std::array<double, 6>& ecken() const { return ecke_; }
    double streckungsfaktor() const { return faktor_; }
    int themenAnzahl() const { return static_cast<int>(themen_.size()); }
    geo::Auswahl auswahl() const;

    // mouse, called by the panel
    void PB1MD(QMouseEvent* e);
    void PB1MM(QMouseEvent* e);
    void PB1MU();
    void PB1Wheel(int delta);

private:
    void ladeListen();
    void baueOberflaeche();
    void baueMenue(QWidget* leiste);
    void Grundeinstellung();
    void E1Exit(int i);
    void zeigeFelder();
    QPointF pixel(int ecke) const;  // vertex in panel pixels
    void R2C();
    void C1C(bool an);
    void S8C();
    void S15C();
    void Timer1Timer();
    void ladeDatei();
    void speichereDatei();
    void zoom(double delta);
    void stoppe();

    geo::Objektlisten listen_;
    std::vector<geo::Thema> themen_;
    std::array<double, 6> ecke_{};  // Ax, Ay, Bx, By, Cx, Cy in units
    double faktor_ = 1;
    int panX_ = 0, panY_ = 0;
    bool achsen_ = true, gitter_ = false, mmgitter_ = false, trilinear_ = false;
    int zieht_ = -1;  // dragged vertex, -1 none
    bool pant_ = false;
    QPoint druck_;
    int simRichtung_ = 1;
    QPointF simAB_;
    double x0_ = 0, y0_ = 0;  // origin at the last paint

    TDreieckFlaeche* PB1_ = nullptr;
    QStackedWidget* seiten_ = nullptr;
    QTreeWidget* LB1_ = nullptr;
    QLabel* L12_ = nullptr;   // mouse position
    QLabel* anzahl_ = nullptr;
    std::array<QLineEdit*, 6> E_{};
    QRadioButton* R1_ = nullptr;
    QRadioButton* R2_ = nullptr;
    QTabWidget* TC_ = nullptr;
    std::array<QListWidget*, geo::Objektlisten::kAnzahl> CL_{};
    QWidget* panel_ = nullptr;
    QCheckBox* C1_ = nullptr;
    std::array<QRadioButton*, 3> RG1_{};
    QComboBox* cb1_ = nullptr;
    QSlider* Rx1_ = nullptr;
    QPushButton* S15_ = nullptr;
    QTimer* Timer1_ = nullptr;
    QAction* achsenAktion_ = nullptr;
    QAction* gitterAktion_ = nullptr;
    QAction* mmAktion_ = nullptr;
    QAction* triAktion_ = nullptr;
    bool sperre_ = false;
};
