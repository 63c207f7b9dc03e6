#pragma once
// TFnumer (tool 7): forty topics of number theory, interest, combinatorics and calendars,
// each with its own labelled input fields, one start button and a tabbed result list.
#include <QDialog>
#include <QStringList>

#include <array>

class QButtonGroup;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTreeWidget;
class QPlainTextEdit;
class TNumerKopf;

class TFnumer : public QDialog {
    Q_OBJECT
public:
    explicit TFnumer(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);

    int thema() const { return thema_; }
    void setzeThema(int thema);             // the list's choice, then neuwert
    void setzeFeld(int i, const QString& text);
    void setzeOption(int i);
    void B1C();                             // Berechnung, or Abbruch during a run
    QStringList zeilen() const;             // the lines of the result list, tabs kept
    QString fortschritt() const;

private:
    void neuwert();  // relabel the fields and options for the topic
    void RB1C();     // column heads by topic and option

    int thema_ = 28;
    bool laeuft_ = false;
    bool abbruch_ = false;
    QStringList zeilen_;
    TNumerKopf* kopf_ = nullptr;
    QListWidget* LB1_ = nullptr;
    std::array<QLabel*, 4> L_{};
    std::array<QLineEdit*, 4> E_{};
    std::array<QRadioButton*, 12> RB_{};
    QButtonGroup* RBG_ = nullptr;
    QPushButton* B1_ = nullptr;
    QLabel* L9_ = nullptr;  // progress
    QTabWidget* tabs_ = nullptr;
    QTreeWidget* LB2_ = nullptr;
    QPlainTextEdit* M1_ = nullptr;
};
