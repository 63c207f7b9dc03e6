#pragma once
// TForm17 (tool 17): statistics and probability workbench. A page list; each page has its inputs,
// one start button, a result list and a drawing panel. Pages are described in useiten.
#include "stochastics/useiten.h"

#include <QDialog>
#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QStackedWidget;
class QTreeWidget;

namespace platform {
class Canvas;
}

class TForm17;

// The drawing panel: paints the current page's drawing through the canvas.
class TZeichenflaeche : public QWidget {
    Q_OBJECT
public:
    explicit TZeichenflaeche(TForm17* owner);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    TForm17* owner_;
};

class TForm17 : public QDialog {
    Q_OBJECT
public:
    explicit TForm17(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);

    int seite() const { return seite_; }
    void waehleSeite(int nr, int punkt = -1);
    void setzeFeld(int feld, const QString& text);  // for tests and the catalogue
    void B1C();                                     // the start button
    QStringList zeilen() const;                     // the result lines, tabs kept
    const zufall::Diagramm& diagramm() const { return bild_; }
    void setzeStartwert(std::uint64_t seed) { zufall_ = zufall::Zufall(seed); }
    void zeichne(platform::Canvas& c, int breite, int hoehe) const;

private:
    struct Seitenwidgets {
        QWidget* panel = nullptr;
        std::vector<QLabel*> labels;
        std::vector<QWidget*> felder;  // QLineEdit, QPlainTextEdit or QComboBox
    };
    void baueSeite(int nr);
    void artGeaendert(int nr);
    void beispielGewaehlt(int nr, int feld, int index);
    zufall::Eingaben eingaben(int nr) const;
    void zeigeErgebnis(const zufall::Ergebnis& e);
    void speichern();
    void datenSpeichern();
    void datenLaden();

public:
    void setzeEingaben(const zufall::Eingaben& e);  // all fields of the current page

    int seite_ = 0;
    bool laeuft_ = false, stopp_ = false;
    zufall::Zufall zufall_;
    zufall::Diagramm bild_;
    std::vector<Seitenwidgets> seiten_;
    QListWidget* LB1_ = nullptr;
    QLabel* L1_ = nullptr;  // heading
    QLabel* L2_ = nullptr;  // progress
    QStackedWidget* eingabe_ = nullptr;
    QPushButton* B1_ = nullptr;
    QPushButton* B2_ = nullptr;  // save picture
    QPushButton* B3_ = nullptr;  // copy picture
    QTreeWidget* LB2_ = nullptr;
    TZeichenflaeche* PB1_ = nullptr;
};
