#pragma once
// Tfaktform: the quadratic sieve tool (tool 28). Long runs yield to the event loop; a second
// press of d1 or S7 sets the abort flag.
#include "numbers/factor/factor_hooks.h"

#include <QDialog>
#include <functional>
#include <string>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

class Tfaktform : public QDialog {
    Q_OBJECT
public:
    explicit Tfaktform(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);
    ~Tfaktform() override;

    // The hand-over: a number put here before the window opens is factored at once, and the
    // result text comes back here for the opener.
    static std::string uebergabe;

    QLineEdit* E1 = nullptr;
    QLabel* LZiffern = nullptr;  // "Ziffern: "
    QLabel* LBit = nullptr;      // "Bit: "
    QLabel* LStatus = nullptr;   // progress of the sieve
    QListWidget* LB1 = nullptr;  // result list
    QPushButton* d1 = nullptr;   // "Faktorisieren" / "Abbruch"
    QPushButton* d2 = nullptr;   // "Zufallszahl"
    QPushButton* S7 = nullptr;   // "Ende"

    void d1C();
    void d2C();
    void S7C();
    void E1Change();
    bool running() const { return running_; }

protected:
    void paintEvent(QPaintEvent* e) override;
    void showEvent(QShowEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

private:
    class Hooks;
    bool running_ = false;
    bool fromHandOver_ = false;
    numbers::FactorHooks* hooks_ = nullptr;
};
