#pragma once
// TFLyapunov: Lyapunov diagrams of the logistic map driven by a sequence of a and b, computed
// by timer a few rows at a time; TLyapunovLambdaMap keeps the exponents for recolouring.
#include "dynamics/chaoslyapunow.h"
#include "platform/canvas.h"
#include "platform/picture.h"

#include <QDialog>
#include <QElapsedTimer>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTimer;
class TFLyapunov;

class TLjapunowBild : public QWidget {
    Q_OBJECT
public:
    explicit TLjapunowBild(TFLyapunov* owner);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    TFLyapunov* owner_;
};

class TFLyapunov : public QDialog {
    Q_OBJECT
public:
    explicit TFLyapunov(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);

    void waehleVorgabe(int index);
    void waehleGroesse(int index);  // index into "Abbildungsgröße"
    void startC();                 // "Start"
    void pauseC();                 // "Pause" / "Fortsetzen"
    void zuruecksetzenC();         // "Zurücksetzen"
    void waehleFarben(int index);  // "Farbauswahl"
    bool rechnet() const;
    // Runs the timer steps until the picture is complete (for tests and exports).
    void rechneBisFertig();
    const chaos::TLyapunovLambdaMap& karte() const { return map_; }
    const platform::Picture& bild() const { return bild_; }
    void zeichne(platform::Canvas& c, int breite, int hoehe);

private:
    void FormCreate();
    void Timer1Timer();
    void faerben();
    void anzeigen();
    bool vorgabeLesen(chaos::LjapunowVorgabe& v);

    chaos::TLyapunovLambdaMap map_;
    platform::Picture bild_;
    chaos::Ljapunowfarben farben_ = chaos::Ljapunowfarben::Ordnung;
    platform::TColor einzel_ = platform::rgb(0, 60, 160);
    int breite_ = 256, hoehe_ = 192;
    bool pausiert_ = false;
    qint64 zeitMs_ = 0;
    QElapsedTimer uhr_;

    TLjapunowBild* PB1_ = nullptr;
    QListWidget* LB1_ = nullptr;
    QLineEdit* Efolge_ = nullptr;
    QLineEdit* Ea_[2] = {};
    QLineEdit* Eb_[2] = {};
    QComboBox* CBgroesse_ = nullptr;
    QComboBox* CBfarbe_ = nullptr;
    QPushButton* Bstart_ = nullptr;
    QPushButton* Bpause_ = nullptr;
    QPushButton* Breset_ = nullptr;
    QPushButton* Beinzel_ = nullptr;
    QLabel* Lrest_ = nullptr;
    QLabel* Lzeit_ = nullptr;
    QTimer* Timer1_ = nullptr;
};
