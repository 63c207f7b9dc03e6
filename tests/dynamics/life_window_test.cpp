// The window of tool 14: pattern list, stepping, editing cells with the mouse, the cell size
// setting, and Wa-Tor halting when the sharks die out.
#include "dynamics/ugameoflife.h"
#include "dynamics/windows.h"

#include <QCheckBox>
#include <QPixmap>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <fstream>
#include <gtest/gtest.h>

using namespace dynamics;

namespace {

std::vector<std::string> gameLines()
{
    std::vector<std::string> out;
    std::ifstream in(std::string(QUORIX_SOURCE_DIR) + "/data/texte/game.txt");
    for (std::string line; std::getline(in, line);)
        out.push_back(line);
    return out;
}

void savePng(QWidget& w, const char* name)
{
    w.show();
    const QPixmap pic = w.grab();
    EXPECT_EQ(pic.size(), QSize(1008, 710));
    if (const char* dir = std::getenv("QUORIX_PNG_DIR")) pic.save(QString(dir) + "/" + name);
}

}  // namespace

TEST(LifeWindow, OpensWithThePatternListAndSteps)
{
    QDialog* dlg = createTForm14(nullptr);
    ASSERT_NE(qobject_cast<TForm14*>(dlg), nullptr);
    EXPECT_EQ(dlg->size(), QSize(1008, 710));
    EXPECT_EQ(dlg->windowTitle(), "Quorix");
    delete dlg;

    TForm14 w(nullptr, 0, 29, gameLines());  // pattern 29: the glider gun
    const QStringList names = w.patternList();
    ASSERT_GE(names.size(), 10);
    EXPECT_EQ(names.front(), "Acorn (7-Zell)");
    EXPECT_EQ(w.life().population(), 36) << "the gun is loaded at the start";
    for (int k = 0; k < 30; ++k)
        w.einzelschritt();
    EXPECT_EQ(w.statusText(), "Generation 30 | Anzahl: 41");  // one glider more
    w.findChild<QCheckBox*>("diagramm")->setChecked(true);
    savePng(w, "life_window.png");

    // choosing another pattern starts again from generation 0
    w.LB1C(static_cast<int>(names.indexOf("Pulsar")));
    EXPECT_EQ(w.statusText(), "Generation 0 | Anzahl: 48");
}

TEST(LifeWindow, MouseTogglesCellsAndCellSizeIsForcedIntoRange)
{
    TForm14 w(nullptr, 0, -1, gameLines());
    w.show();
    QWidget* pb = w.findChild<QWidget*>("PB1");
    ASSERT_NE(pb, nullptr);
    auto* groesse = w.findChild<QSpinBox*>("Groesse");
    groesse->setValue(1);
    EXPECT_EQ(w.cellPixels(), 2);
    groesse->setValue(40);
    EXPECT_EQ(w.cellPixels(), 15);
    groesse->setValue(6);
    EXPECT_EQ(w.cellPixels(), 6);

    w.LB1C(0);
    const int before = w.life().population();
    const QRect r = w.cellRect(3, 4, pb->width(), pb->height());
    EXPECT_EQ(r.width(), 6);
    QTest::mouseClick(pb, Qt::LeftButton, {}, r.center());
    EXPECT_EQ(w.life().cell(3, 4), 1);
    EXPECT_EQ(w.life().population(), before + 1);
    QTest::mouseClick(pb, Qt::LeftButton, {}, r.center());
    EXPECT_EQ(w.life().cell(3, 4), 0);
    // clicks beside the board change nothing
    QTest::mouseClick(pb, Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(w.life().population(), before);

    // a board size beyond 80 is forced to 80 and written back; the pattern is loaded again
    auto* seite = w.findChild<QSpinBox*>("T1");
    seite->setValue(200);
    Q_EMIT seite->editingFinished();
    EXPECT_EQ(seite->value(), 80);
    EXPECT_EQ(w.life().boardSize(), 80);
    EXPECT_EQ(w.life().population(), before);
    EXPECT_EQ(w.life().generation(), 0);
}

TEST(LifeWindow, WaTorStopsWhenTheLastSharkDies)
{
    TForm14 w(nullptr, 2, -1, gameLines());
    ASSERT_EQ(w.simulation(), Simulation::WaTor);
    w.findChild<QSpinBox*>("fischAnteil")->setValue(0);
    w.findChild<QSpinBox*>("haiAnteil")->setValue(10);
    w.findChild<QSpinBox*>("fasten")->setValue(3);
    w.findChild<QSpinBox*>("haiBrut")->setValue(200);
    w.findChild<QCheckBox*>("stopAussterben")->setChecked(true);
    w.S15C();
    ASSERT_GT(w.wator().haie(), 0);
    w.setRunning(true);
    int ticks = 0, sharksBefore = 0;
    while (w.running() && ticks < 50) {
        sharksBefore = w.wator().haie();
        w.einzelschritt();
        ++ticks;
    }
    // halted at the very tick the last shark starved: some were alive one tick before
    EXPECT_FALSE(w.running());
    EXPECT_EQ(w.wator().haie(), 0);
    EXPECT_GT(sharksBefore, 0);
    EXPECT_EQ(w.wator().chrononen(), ticks);
    EXPECT_GE(ticks, 3) << "no shark starves before its fasting time";
    EXPECT_TRUE(w.statusText().startsWith(QString("Chrononen: %1 | Fische: 0 | Haie: 0").arg(ticks)));

    w.findChild<QSpinBox*>("fischAnteil")->setValue(35);
    w.findChild<QSpinBox*>("haiAnteil")->setValue(8);
    w.S15C();
    for (int k = 0; k < 40; ++k)
        w.einzelschritt();
    w.findChild<QCheckBox*>("diagramm")->setChecked(true);
    savePng(w, "wator_window.png");
    w.setSimulation(Simulation::Donnelly);
    for (int k = 0; k < 20; ++k)
        w.einzelschritt();
    EXPECT_TRUE(w.statusText().startsWith("Wählerwanderungen: "));
    savePng(w, "donnelly_window.png");
}

TEST(LifeWindow, TimerRunsGenerationsUntilStopped)
{
    TForm14 w(nullptr, 0, -1, gameLines());
    w.findChild<QSpinBox*>("T2")->setValue(1);
    w.findChild<QPushButton*>("zufall")->click();
    const int soup = w.life().population();
    EXPECT_GT(soup, 60 * 60 / 5);
    EXPECT_LT(soup, 60 * 60 / 2);
    EXPECT_EQ(w.life().generation(), 0);
    w.findChild<QPushButton*>("S1")->click();
    EXPECT_TRUE(w.running());
    QTest::qWait(200);
    w.findChild<QPushButton*>("S1")->click();
    EXPECT_FALSE(w.running());
    const int reached = w.life().generation();
    EXPECT_GT(reached, 0);
    QTest::qWait(50);
    EXPECT_EQ(w.life().generation(), reached) << "no step after stopping";
}
