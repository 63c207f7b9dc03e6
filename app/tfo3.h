#pragma once
// TFo3 "Berechnungen im Lexikon": the small calculator that a page's "«" link opens.
#include <QDialog>
#include <array>
#include <string>

class QLabel;
class QLineEdit;

namespace app {

class TFo3 : public QDialog {
    Q_OBJECT
public:
    // lexikonwert: "#..." for a function value, otherwise the name of an aktivb entry.
    explicit TFo3(const std::string& lexikonwert, QWidget* parent = nullptr);
    void D2Click();
    bool gueltig() const { return gueltig_; }
    std::array<QLineEdit*, 4> E{};
    QLabel* ergebnis = nullptr;

private:
    std::string formel_;
    bool gueltig_ = false;
};

}  // namespace app
