#pragma once
// Tfsuche: keyword list, full-text search and bookmarks in one window beside the main window.
#include <QDialog>
#include <string>

class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;

namespace app {

class TForm1;

class Tfsuche : public QDialog {
    Q_OBJECT
public:
    explicit Tfsuche(TForm1* haupt);

    void S26Click();  // the search
    void B2Click();   // keyword list
    void B3Click();   // bookmarks
    void S6Click();   // add bookmark
    void S25Click();  // delete bookmark
    void LB4Click();

    QLineEdit* E3 = nullptr;
    QLineEdit* Ed4 = nullptr;
    QListWidget* LB4 = nullptr;
    QLabel* L1 = nullptr;

protected:
    void closeEvent(QCloseEvent* e) override;
    void moveEvent(QMoveEvent* e) override;

private:
    TForm1* haupt_;
    QPushButton *B1 = nullptr, *B2 = nullptr, *B3 = nullptr, *S6 = nullptr, *S25 = nullptr;
    QProgressBar* fortschritt_ = nullptr;
};

}  // namespace app
