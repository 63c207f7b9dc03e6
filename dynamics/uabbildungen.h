#pragma once
// TFabbild (tool 5): a slide show of a picture list - picture files, or fractals of the object
// list drawn on the fly.
#include "dynamics/chaosdaten.h"
#include "platform/picture.h"

#include <QDialog>
#include <QStringList>

class QCheckBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSpinBox;
class QTimer;
class TFabbild;

class TDiaBild : public QWidget {
    Q_OBJECT
public:
    explicit TDiaBild(TFabbild* owner);

protected:
    void paintEvent(QPaintEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;

private:
    TFabbild* owner_;
};

class TFabbild : public QDialog {
    Q_OBJECT
public:
    explicit TFabbild(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);

    // Entries are file paths; "Fraktal: <name>" draws that object of the CHAOS list.
    void setzeBildliste(const QStringList& eintraege);
    void ladeObjekte(const std::vector<std::string>& zeilen);  // also fills an empty list
    int anzahl() const;
    int aktuell() const;
    void zeige(int index);
    void naechstes();     // "nächstes Bild"
    void vorhergehendes();  // "vorhergehendes Bild"
    void vollbild(bool an);  // "Vollbildmodus"
    const platform::Picture& bild() const { return bild_; }

private:
    friend class TDiaBild;
    void FormCreate();
    void laden(const QString& eintrag);

    std::vector<chaos::ChaosObjekt> objekte_;
    platform::Picture bild_;
    QString fehler_;
    TDiaBild* PB1_ = nullptr;
    QWidget* steuerung_ = nullptr;
    QListWidget* LB1_ = nullptr;
    QSpinBox* SEintervall_ = nullptr;
    QPushButton* Blauf_ = nullptr;
    QCheckBox* CBvoll_ = nullptr;
    QLabel* Lname_ = nullptr;
    QTimer* Timer1_ = nullptr;
};
