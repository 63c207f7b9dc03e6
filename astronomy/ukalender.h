#pragma once
// TFkalend (tool 9): month sheet and the chosen date in all calendars, date difference page.
#include "astronomy/kalenderspez.h"

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTabWidget;
class QTreeWidget;
class QComboBox;

class TFkalend;

// The drawn month sheet; a click on a day chooses it.
class TKalenderBlatt : public QWidget {
    Q_OBJECT
public:
    explicit TKalenderBlatt(TFkalend* owner);
    QSize sizeHint() const override { return {420, 350}; }

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;

private:
    TFkalend* owner_;
};

class TFkalend : public QDialog {
    Q_OBJECT
public:
    explicit TFkalend(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);

    const astro::kal::Date& gewaehlt() const { return datum_; }
    const astro::kal::Resources& resources() const { return res_; }
    void setzeDatum(const astro::kal::Date& d);
    QStringList zeilen() const;  // the lines of the list, for tests

private:
    void datum();  // recompute all lines for the chosen date
    void B1C();    // one day back
    void B2C();    // one day on
    void T1Change();
    void T2Change();
    void heute();
    void differenzC();

    astro::kal::Resources res_;
    astro::kal::Date datum_;
    int markiere_ = -1;  // catalogue item: the calendar line kept selected
    bool sperre_ = false;
    QTabWidget* tabs_ = nullptr;
    TKalenderBlatt* blatt_ = nullptr;
    QSpinBox* T0_ = nullptr;  // day
    QComboBox* T1_ = nullptr;  // month
    QSpinBox* T2_ = nullptr;  // year
    QPushButton* B1_ = nullptr;
    QPushButton* B2_ = nullptr;
    QPushButton* B3_ = nullptr;
    QCheckBox* CB1_ = nullptr;
    QTreeWidget* LB1_ = nullptr;
    QLineEdit* E1_ = nullptr;
    QLineEdit* E2_ = nullptr;
    QTreeWidget* LB2_ = nullptr;
};
