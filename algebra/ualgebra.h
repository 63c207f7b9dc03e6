#pragma once
// Tool 8: the algebra workbench, twenty small solvers chosen from a page list.
#include <QDialog>
#include <QWidget>
#include <string>
#include <vector>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QSpinBox;

namespace algebra {

class Ergebnisfeld;

class TFalgebra : public QDialog {
    Q_OBJECT
public:
    explicit TFalgebra(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);

    void LB1C();        // another page chosen
    void S1C();         // "Berechnung" (second press while running: stop)
    void beispielC();   // fill the page with its stored example
    void loeschenC();   // empty the fields and the result

    int aktuelleSeite() const;
    void setzeSeite(int seite);
    void setzeFeld(int i, const QString& text);
    const std::vector<std::string>& zeilen() const { return zeilen_; }
    bool laeuft() const { return !bereit_; }

private:
    void FormCreate();
    void FormShow();  // captions and hint of the page
    std::vector<std::string> felder() const;

    friend class Ergebnisfeld;
    int wahlseite_, wahlpunkt_;
    bool bereit_ = true;   // the shared running flag: true while idle
    bool stopp_ = false;
    QListWidget* LB1_ = nullptr;
    QLabel* hinweis_ = nullptr;
    QLabel* anzahlText_ = nullptr;
    QSpinBox* anzahl_ = nullptr;
    std::vector<QLabel*> titel_;
    std::vector<QLineEdit*> E_;
    QPushButton* S1_ = nullptr;
    QPushButton* beispiel_ = nullptr;
    QPushButton* loeschen_ = nullptr;
    QLabel* status_ = nullptr;
    Ergebnisfeld* PB1_ = nullptr;
    std::vector<std::string> zeilen_;
    std::vector<std::string> gerechnet_;  // the fields of the last computation, for the drawing
};

}  // namespace algebra
