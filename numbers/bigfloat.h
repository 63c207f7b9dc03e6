#pragma once
// TOpBox: the floating-point calculator on TBigFloat (tool 97, "Fließkommaberechnung").
#include <QDialog>

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;

class TOpBox : public QDialog {
    Q_OBJECT
public:
    explicit TOpBox(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);

    QPlainTextEdit* EX = nullptr;   // "X ="
    QPlainTextEdit* EY = nullptr;   // "Y ="
    QPlainTextEdit* ER = nullptr;   // result
    QSpinBox* SZ = nullptr;         // "Ziffernzahl"
    QLabel* LS = nullptr;           // state line

    QPushButton* button(const QString& caption) const;
    void rechne(const std::string& op);  // one of the operations of opbox_core

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    QList<QPushButton*> buttons_;
    bool busy_ = false;
};
