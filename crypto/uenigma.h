#pragma once
// Tool 70, "Enigma": the three-rotor machine with its settings, batch and live mode.
#include "crypto/enigma.h"
#include "crypto/enigmapicture.h"

#include <QDialog>
#include <memory>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace crypto {

class EnigmaView;

class Tenigmaf : public QDialog {
    Q_OBJECT
public:
    explicit Tenigmaf(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1);
    ~Tenigmaf() override;

    EnigmaSettings settings() const;  // as the controls show them
    EnigmaPicture picture() const;
    // Batch run of the whole input text (the button "Ver- und Entschlüsseln").
    void B1C();
    // The settings line in a file ("Laden", "Speichern"); false if it cannot be read or written.
    bool loadSettingsFile(const QString& path);
    bool saveSettingsFile(const QString& path) const;
    // Live mode: a key of the drawn keyboard typed with the mouse.
    void typeLetter(char letter);

protected:
    bool eventFilter(QObject* obj, QEvent* ev) override;

private:
    void FormCreate();
    void rotorChanged(int slot, int index);
    void rebuildPlugBoxes();
    void settingsChanged();
    void applySettings(const EnigmaSettings& s);
    void setControlsEnabled(bool on);
    void showPositions(const Enigma& m);
    void S1C(bool on);
    void D1C();
    void D2C();
    void D3C();
    void OClC();
    void pasteC();
    void UClC();
    void liveKey(char letter);

    int wahlseite_, wahlpunkt_;
    QComboBox* C_[18] = {};  // C1..C3 rotor order, C4..C6 positions, C7..C18 plugboard pairs
    QCheckBox* CB_[6] = {};
    QLineEdit* Edit_[3] = {};  // Edit2..Edit4: the moving positions
    QLineEdit* settingsEdit_ = nullptr;
    QPushButton* B1_ = nullptr;
    QPushButton* S1_ = nullptr;
    QPushButton* D_[3] = {};
    QPlainTextEdit* Me1_ = nullptr;
    QPlainTextEdit* Me2_ = nullptr;
    QLabel* progress_ = nullptr;
    EnigmaView* view_ = nullptr;
    std::array<int, 3> rotorOrder_{0, 1, 2};
    std::array<std::array<int, 2>, 6> plugLetters_{};  // remembered also while a pair is off
    std::unique_ptr<Enigma> live_;
    bool liveMode_ = false;
    bool running_ = false;
    bool stopRequested_ = false;
    bool updating_ = false;
    std::array<int, 3> shownPositions_{1, 1, 1};
    int litLamp_ = -1;
    int keyPressed_ = -1;
};

}  // namespace crypto
