#pragma once
// Trechla: the long-number calculator on mp_int (tool 80, "Langarithmetik").
#include "numbers/mp_types.h"

#include <QDialog>
#include <functional>

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;

namespace numbers {
enum class RechlaOp;
}

class Trechla : public QDialog {
    Q_OBJECT
public:
    explicit Trechla(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);
    ~Trechla() override;

    static Trechla* instance();  // the open window, or nullptr
    // Kernel messages go through here (a message box with a full stop added, as the global handler
    // shows them); tests replace it.
    static std::function<void(const QString&)> showMessage;

    QPlainTextEdit* Me1 = nullptr;  // result
    QPlainTextEdit* Me2 = nullptr;  // a
    QPlainTextEdit* Me3 = nullptr;  // b
    QLabel* L1 = nullptr;           // digits of the result
    QLabel* L2 = nullptr;           // digits of a
    QLabel* L3 = nullptr;           // digits of b
    QSpinBox* rx1 = nullptr;        // base 2..16
    QCheckBox* CB1 = nullptr;       // "automatisch nach a"

    QPushButton* button(const QString& caption) const;

    // handlers
    void nrpClick();
    void nrmClick();
    void d9Click();
    void nrdClick();
    void d4Click();
    void d2Click();
    void d3Click();
    void d6C();
    void d7C();
    void d5C();
    void d15Click();
    void B1Click();
    void B3Click();
    void B4Click();
    void d8C();
    void d3C();
    void B2Click();

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    void rechne(numbers::RechlaOp op);
    bool leseOperanden();
    void zeigeErgebnis(const QString& text);
    void zaehle();
    numbers::mp_int a_, b_, erg_;
    QList<QPushButton*> buttons_;
};
