// The Mühle window: clicks on the board place stones, a mill waits for the capture click, the
// computer answers, and the board can be saved as a picture.
#include "games/umuehle.h"
#include "games/windows.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmap>
#include <gtest/gtest.h>

namespace {

QPoint punkt(const char* name)
{
    const int p = muehle::punktNachName(name);
    return {muehle::kPunktX[p], muehle::kPunktY[p]};
}

void warteAufComputer(const Tfmuehle& w)
{
    QElapsedTimer t;
    t.start();
    while (w.spiel().computerAmZug() && t.elapsed() < 20000)
        QApplication::processEvents(QEventLoop::AllEvents, 50);
}

}  // namespace

TEST(MuehleFenster, TwoHumansCloseAMillAndCapture)
{
    QDialog* dlg = createTfmuehle(nullptr);
    auto* w = qobject_cast<Tfmuehle*>(dlg);
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->size(), QSize(1008, 710));
    EXPECT_EQ(w->windowTitle(), "Quorix");
    EXPECT_FALSE(w->spiel().laeuft());
    w->setzeVariante(2);
    w->D1C();
    EXPECT_EQ(w->status(), "Spieler A setzt!");
    for (const char* p : {"A7", "A4", "D7", "B4"})
        w->Pb1MD(punkt(p));
    // a click beside every point is ignored
    w->Pb1MD({200, 200});
    EXPECT_EQ(w->spiel().zugzahl(), 5);
    w->Pb1MD(punkt("G7"));
    EXPECT_EQ(w->status(), QString::fromUtf8("Spieler A schlägt!"));
    EXPECT_EQ(w->spiel().zugzahl(), 5) << "the move waits for its capture";
    EXPECT_EQ(w->bild().stellung.brett[2], 1) << "the stone already shows on G7";
    w->Pb1MD(punkt("A7"));  // own stone: no capture
    EXPECT_EQ(w->spiel().zugzahl(), 5);
    w->Pb1MD(punkt("A4"));
    EXPECT_EQ(w->spiel().zugzahl(), 6);
    ASSERT_EQ(w->spielzuege().size(), 5);
    EXPECT_EQ(w->spielzuege()[4], " 5: Spieler G7 x A4");
    EXPECT_EQ(w->spiel().stellung().spieler[2].steine, 1);
    EXPECT_EQ(w->status(), "Spieler B setzt!");
    // "Zurück" takes back two half moves
    w->D3C();
    EXPECT_EQ(w->spiel().zugzahl(), 4);
    EXPECT_EQ(w->spielzuege().size(), 3);
    delete dlg;
}

TEST(MuehleFenster, ComputerAnswersAndBoardPicture)
{
    Tfmuehle w;
    w.setzeTiefe(2);
    w.show();
    // A click on the board starts a game in which the human begins.
    w.Pb1MD(punkt("D6"));
    EXPECT_TRUE(w.spiel().laeuft());
    EXPECT_TRUE(w.spiel().computerAmZug());
    w.Pb1MD(punkt("D2"));
    EXPECT_EQ(w.status(), "Nicht am Zug!");
    warteAufComputer(w);
    EXPECT_EQ(w.spiel().zugzahl(), 3);
    for (const char* p : {"F4", "B4", "D2"}) {
        const int vorher = w.spiel().zugzahl();
        w.Pb1MD(punkt(p));
        if (w.spiel().zugzahl() == vorher)  // point taken by the computer: try the next free one
            continue;
        warteAufComputer(w);
    }
    EXPECT_GE(w.spiel().zugzahl(), 5);
    EXPECT_EQ(w.spielzuege().size(), w.spiel().zugzahl() - 1);
    EXPECT_TRUE(w.spielzuege()[1].startsWith(" 2: Computer "));
    const QPixmap pic = w.grab();
    EXPECT_EQ(pic.size(), QSize(1008, 710));
    if (const char* out = std::getenv("QUORIX_PNG"))
        pic.save(out);
}

TEST(MuehleFenster, StonesAreDraggedWhileMoving)
{
    Tfmuehle w;
    w.setzeVariante(2);
    w.D1C();
    const char* a[9] = {"A7", "B6", "C5", "E4", "F4", "C3", "B2", "A1", "D2"};
    const char* b[9] = {"G7", "F6", "E5", "A4", "B4", "D1", "G4", "E3", "F2"};
    for (int i = 0; i < 9; ++i) {
        w.Pb1MD(punkt(a[i]));
        w.Pb1MD(punkt(b[i]));
    }
    ASSERT_EQ(w.spiel().zugzahl(), 19);
    EXPECT_EQ(w.status(), "Spieler A zieht!");
    // Dropped far from a free neighbour: the stone goes back.
    w.Pb1MD(punkt("C5") + QPoint(12, -9));  // within the 30-pixel square while moving
    EXPECT_EQ(w.bild().gehoben, muehle::punktNachName("C5"));
    w.Pb1MM({300, 300});
    w.Pb1MU(punkt("D3"));
    EXPECT_EQ(w.bild().gehoben, -1);
    EXPECT_EQ(w.spiel().zugzahl(), 19);
    // An opponent's stone can't be taken up.
    w.Pb1MD(punkt("E5"));
    EXPECT_EQ(w.bild().gehoben, -1);
    // Dropped within 20 pixels of the free neighbour D5.
    w.Pb1MD(punkt("C5"));
    w.Pb1MU(punkt("D5") + QPoint(15, 15));
    EXPECT_EQ(w.spiel().zugzahl(), 20);
    EXPECT_EQ(w.spielzuege().back(), "19: Spieler C5 - D5");
    EXPECT_EQ(w.status(), "Spieler B zieht!");
}

TEST(MuehleFenster, ComputerBeginsWithTrace)
{
    Tfmuehle w;
    w.setzeVariante(1);
    w.setzeTiefe(1);
    w.setzeTestausgabe(true);
    w.D1C();
    EXPECT_EQ(w.spiel().zugzahl(), 2);
    EXPECT_EQ(w.spiel().anDerReihe(), 1);
    const QStringList l = w.spielzuege();
    ASSERT_GE(l.size(), 4);
    EXPECT_TRUE(l[0].startsWith(" 1: Computer ")) << l[0].toStdString();
    // 24 root moves at depth 1, each with its value, then the time and the count
    EXPECT_EQ(l.filter("Wert Von ").size(), 24);
    EXPECT_EQ(l.filter("Rechenzeit: ").size(), 1);
    EXPECT_TRUE(l.last().endsWith(" Stellungen"));
    EXPECT_EQ(w.status(), "Spieler A setzt!");
}
