#pragma once
// TBestenliste: the high-score window shared by all games. A game hands in its name and a
// score; the window shows the best 25 of that game and puts the new score in its place.
#include "games/bestenliste.h"

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QPushButton;
class QTreeWidget;

class TBestenliste : public QDialog {
    Q_OBJECT
public:
    // spielname: the section in spiele.ini ("Mathe" if empty); neuerwert <= 0 only shows the list.
    explicit TBestenliste(QWidget* parent = nullptr, const std::string& spielname = {},
                          long long neuerwert = 0);

    const games::Bestenliste& liste() const { return liste_; }
    QStringList zeilen() const;  // the lines of LB1 as shown, for tests
    void setzeSpieler(const QString& name);
    void D1C();  // "Schließen": writes spiele.ini
    void D2C(bool bestaetigt);  // "Löschen" after the question
    void D3C();  // "Spielername übernehmen"

protected:
    void showEvent(QShowEvent* e) override;
    void paintEvent(QPaintEvent* e) override;

private:
    void FormActivate();
    void listeZeigen();

    games::Bestenliste liste_;
    long long neuerwert_ = 0;
    bool aktiviert_ = false;
    bool gespeichert_ = false;
    QTreeWidget* LB1_ = nullptr;
    QLineEdit* E1_ = nullptr;
    QCheckBox* CB1_ = nullptr;
    QPushButton* D1_ = nullptr;
    QPushButton* D2_ = nullptr;
    QPushButton* D3_ = nullptr;
};

// What a game does at the end of a round: the list opens modally with the score entered.
void bestenlisteZeigen(QWidget* parent, const std::string& spielname, long long neuerwert);
