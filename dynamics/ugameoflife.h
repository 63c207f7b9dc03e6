#pragma once
// Tool 14: Game of Life, the Donnelly voter model and Wa-Tor on one square board, advanced by
// a timer, with the pattern library "game" and a diagram of the counts over time.
#include "dynamics/life.h"
#include "dynamics/lifepatterns.h"
#include "dynamics/lifepicture.h"
#include "dynamics/wator.h"

#include <QDialog>
#include <QRect>
#include <array>
#include <memory>
#include <random>
#include <vector>

class QAction;
class QCheckBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSpinBox;
class QStackedWidget;
class QTimer;

namespace dynamics {

class LifeView;

enum class Simulation { Life = 0, Donnelly = 1, WaTor = 2 };

class TForm14 : public QDialog {
    Q_OBJECT
public:
    // wahlseite 0..2 picks the simulation, wahlpunkt a pattern number of the library.
    explicit TForm14(QWidget* parent = nullptr, int wahlseite = -1, int wahlpunkt = -1,
                     std::vector<std::string> patternLines = {});
    ~TForm14() override;

    void setSimulation(Simulation s);
    Simulation simulation() const { return sim_; }
    // The list box "Game of Life - Standardsituationen": names, and loading by row.
    QStringList patternList() const;
    void LB1C(int row);
    void S15C();          // restart with the present settings
    void einzelschritt();  // one timer tick by hand
    void setRunning(bool on);  // "Steuerung" / "Simulation"
    bool running() const;

    const LifeGame& life() const { return life_; }
    const Donnelly& donnelly() const { return *donnelly_; }
    const WaTor& wator() const { return *wator_; }
    int cellPixels() const { return cellPixels_; }
    QString statusText() const;

    // The paint routine of the board (and diagram); also for file, clipboard and printer.
    void PB1P(platform::Canvas& c, int width, int height) const;
    // Board cell under a pixel of PB1, or false.
    bool cellAt(int x, int y, int width, int height, int& row, int& col) const;
    QRect cellRect(int row, int col, int width, int height) const;
    void PB1D(int x, int y, int width, int height);  // a click: toggles a Life cell

private:
    void FormCreate();
    QWidget* buildLifePanel();
    QWidget* buildDonnellyPanel();
    QWidget* buildWaTorPanel();
    void T1C();  // board size and "Größe"
    void T2C();  // delay
    void tick();
    void record();
    void showState();
    void grundeinstellung();
    void readRule();
    WaTorSettings waTorSettings() const;
    int boardSize() const;
    std::vector<Series> diagramSeries() const;
    // Board origin and cell size inside a paint area.
    void boardGeometry(int width, int height, int& x0, int& y0, int& cell) const;

    int wahlseite_, wahlpunkt_;
    Simulation sim_ = Simulation::Life;
    LifeGame life_;
    std::unique_ptr<Donnelly> donnelly_;
    std::unique_ptr<WaTor> wator_;
    std::vector<LifePattern> patterns_;
    std::vector<PatternName> shownPatterns_;
    std::vector<std::vector<int>> verlauf_;  // per series, one value per recorded step
    int cellPixels_ = 8;
    std::mt19937 rng_{std::random_device{}()};

    LifeView* PB1_ = nullptr;
    QTimer* timer_ = nullptr;
    QStackedWidget* panels_ = nullptr;
    QListWidget* LB1_ = nullptr;
    QCheckBox* torus_ = nullptr;
    QCheckBox* gitter_ = nullptr;
    QCheckBox* diagramm_ = nullptr;
    std::array<QCheckBox*, 9> geburt_{};
    std::array<QCheckBox*, 9> tod_{};
    QSpinBox* groesseFeld_ = nullptr;   // BoardSize
    QSpinBox* zellFeld_ = nullptr;      // "Größe": cell pixels
    QSpinBox* verzoegerung_ = nullptr;  // timer delay in ms
    QSpinBox* gruppen_ = nullptr;
    QSpinBox* aenderungen_ = nullptr;
    QSpinBox* fischAnteil_ = nullptr;
    QSpinBox* haiAnteil_ = nullptr;
    QSpinBox* fischBrut_ = nullptr;
    QSpinBox* haiBrut_ = nullptr;
    QSpinBox* fasten_ = nullptr;
    QSpinBox* anzeigeJe_ = nullptr;
    QCheckBox* variante2_ = nullptr;
    QCheckBox* stopAussterben_ = nullptr;
    QLabel* status_ = nullptr;
    QLabel* title_ = nullptr;
    QPushButton* startButton_ = nullptr;
    QAction* simulationAction_ = nullptr;
};

}  // namespace dynamics
