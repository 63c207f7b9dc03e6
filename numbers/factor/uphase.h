#pragma once
// Tfphase: the factoring chain (tool 19, page "Faktorisieren"): trial division, Pollard rho,
// elliptic curves and the quadratic sieve, with Tfaktform for long rests.
#include "numbers/factor/uphase_core.h"

#include <QDialog>
#include <functional>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

class Tfphase : public QDialog {
    Q_OBJECT
public:
    explicit Tfphase(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);
    ~Tfphase() override;

    // Messages by number go through here (a message box); tests replace it.
    static std::function<void(const QString&)> showMessage;

    QLineEdit* E8 = nullptr;   // number or formula
    QLineEdit* E15 = nullptr;  // group limit of Pollard rho
    QLineEdit* E11 = nullptr;  // digit limit of the sieve
    QCheckBox* CB9 = nullptr;  // "nur Faktoren ausgeben"
    QCheckBox* Cb14 = nullptr; // "MPQS-Faktorisierung sofort bei weniger als ... Stellen "
    QCheckBox* CheckBox1 = nullptr;  // product check, hidden
    QLabel* LGruppen = nullptr;  // group count of Pollard rho
    QLabel* LZeit = nullptr;     // running time
    QLabel* LStatus = nullptr;   // curves and sieve progress
    QListWidget* LB1 = nullptr;
    QPushButton* d26 = nullptr;  // "Faktorisieren" / "Abbruch"

    void d26C();
    bool running() const { return running_; }
    numbers::PhaseOutcome lastOutcome;

protected:
    void paintEvent(QPaintEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

private:
    class Hooks;
    bool running_ = false;
    numbers::PhaseHooks* hooks_ = nullptr;
};
