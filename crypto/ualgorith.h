#pragma once
// Tool 23: the algorithm window; its page "Kryptografie" holds the cipher workbench.
#include <QDialog>
#include <string>

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;

namespace crypto {

class FrequencyView;

class TForm23 : public QDialog {
    Q_OBJECT
public:
    explicit TForm23(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);

    void B1C();  // encipher: plain text -> code text
    void B3C();  // decipher: code text -> plain text
    void B2C();  // analyse a Vigenère code text
    void undoC();  // "letzte Änderung rückgängig"
    void CB1C();   // the method changed: caption of the key field

    std::string plainText() const;  // Windows-1252
    std::string codeText() const;   // as the decipherer reads it

private:
    struct Snapshot {
        QString plain, code, key;
        std::string codeBytes;
        QString codeShown;
        bool valid = false;
    };
    void FormCreate();
    Snapshot snapshot() const;
    void setCode(const std::string& bytes, const QString& shown);
    void loadC();
    void saveC();

    int wahlseite_, wahlpunkt_;
    QTabWidget* pages_ = nullptr;
    QComboBox* CB1_ = nullptr;
    QLabel* keyCaption_ = nullptr;
    QLineEdit* E_ = nullptr;
    QPlainTextEdit* plain_ = nullptr;
    QPlainTextEdit* code_ = nullptr;
    QLabel* status_ = nullptr;
    FrequencyView* view_ = nullptr;
    // The code memo shows bytes as the screen can; the bytes themselves are kept, so that a
    // code text that was not edited deciphers exactly.
    std::string codeBytes_;
    QString codeShown_;
    Snapshot undo_;
    bool lastOutputIsCode_ = true;
};

}  // namespace crypto
