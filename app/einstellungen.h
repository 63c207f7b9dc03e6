#pragma once
// TForm33: the settings dialog. It changes only the variables; the file is written at the end.
#include <QDialog>
#include <functional>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace app {

class TForm33 : public QDialog {
    Q_OBJECT
public:
    // seiteNeuMalen: D4 changes the lexicon font at once and repaints the page.
    explicit TForm33(std::function<void()> seiteNeuMalen, QWidget* parent = nullptr);
    void D2Click();  // take all values
    QLineEdit *T1 = nullptr, *T2 = nullptr, *T3 = nullptr, *T4 = nullptr, *T5 = nullptr;
    QComboBox* C1 = nullptr;
    QCheckBox *CB1 = nullptr, *cb4 = nullptr, *CB3 = nullptr;

private:
    std::function<void()> seiteNeuMalen_;
    QWidget* PB1 = nullptr;
};

// The rules of the dialog's fields, shared with its tests.
int randAusZentimeter(const QString& text, int alt);  // "2,5" -> 25; unreadable keeps alt
int druckSchriftgroesse(const QString& text);          // outside 5..16 -> 9

}  // namespace app
