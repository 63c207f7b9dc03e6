// The window: size and caption, the catalogue's page and item, every page computing with its
// defaults, and a stopped simulation. QUORIX_PNG_DIR=dir saves a picture of some pages.
#include "stochastics/uzufall.h"
#include "stochastics/windows.h"

#include <QComboBox>
#include <QPixmap>
#include <QTimer>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

using namespace zufall;

TEST(Window, OpensTheCataloguePage)
{
    std::unique_ptr<QDialog> dlg(createTForm17(nullptr, 10, 1));
    auto* w = qobject_cast<TForm17*>(dlg.get());
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->size(), QSize(1008, 710));
    EXPECT_EQ(w->windowTitle(), "Quorix");
    EXPECT_EQ(w->seite(), 10);
    // item 1 of the discrete page is the Poisson law: its table follows
    w->setzeFeld(1, "2");
    w->B1C();
    EXPECT_TRUE(w->zeilen().contains("k\tP(X=k)\tP(X<=k)"));
    EXPECT_TRUE(w->zeilen().contains("0\t0.135335\t0.135335")) << w->zeilen().join("\n").toStdString();
    // out of range selections fall back to the first page
    std::unique_ptr<QDialog> d2(createTForm17(nullptr, 99, 99));
    EXPECT_EQ(qobject_cast<TForm17*>(d2.get())->seite(), 0);
}

TEST(Window, EveryPageComputesWithItsDefaults)
{
    // the Markov page remembers its matrix in the data folder: keep it in a temporary one
    QTemporaryDir daten;
    qputenv("XDG_DATA_HOME", daten.path().toUtf8());
    TForm17 w;
    w.setzeStartwert(17);
    ASSERT_EQ(seiten().size(), static_cast<size_t>(kSeitenAnzahl));
    const char* dir = std::getenv("QUORIX_PNG_DIR");
    w.show();
    for (int i = 0; i < kSeitenAnzahl; ++i) {
        w.waehleSeite(i);
        w.B1C();
        const QStringList z = w.zeilen();
        ASSERT_FALSE(z.isEmpty()) << seiten()[i].ueberschrift;
        const QString alles = z.join("\n");
        EXPECT_FALSE(alles.contains("Ungültig") || alles.contains("nötig") || alles.contains("Keine"))
            << seiten()[i].ueberschrift << "\n" << alles.toStdString();
        EXPECT_FALSE(w.diagramm().leer()) << seiten()[i].ueberschrift;
        if (dir) w.grab().save(QString("%1/seite%2.png").arg(dir).arg(i));
    }
    // the statistics page shows the rows of its evaluation
    w.waehleSeite(0);
    w.setzeFeld(1, "2 4 4 4 5 5 7 9");
    w.B1C();
    EXPECT_TRUE(w.zeilen().contains("Standardabweichung\t2"));
    // a term is accepted where a number is expected
    w.waehleSeite(21);
    w.setzeFeld(0, "2*10+3");
    w.setzeFeld(1, "50");
    w.B1C();
    EXPECT_EQ(w.zeilen().value(0), "Personenzahl\t23");
    // a Markov matrix that was used comes back in the next window
    w.waehleSeite(9);
    w.setzeFeld(0, "0,1 0,9\n0,4 0,6");
    w.setzeFeld(2, "100");
    w.B1C();
    TForm17 w2;
    w2.waehleSeite(9);
    w2.B1C();
    EXPECT_TRUE(w2.zeilen().contains("0 -> 1 = 0.9")) << w2.zeilen().join("\n").toStdString();
}

TEST(Window, SecondPressStopsASimulation)
{
    TForm17 w(nullptr, 21);
    w.setzeFeld(1, "100000000");
    // the press arrives while the run yields to the message loop
    QTimer::singleShot(50, &w, [&w] { w.B1C(); });
    w.B1C();
    const QStringList z = w.zeilen();
    ASSERT_GE(z.size(), 2);
    EXPECT_TRUE(z[1].startsWith("Testläufe\t"));
    EXPECT_LT(z[1].mid(10).toLong(), 100000000L) << z[1].toStdString();
    // the button is free again for the next run
    w.setzeFeld(1, "10");
    w.B1C();
    EXPECT_EQ(w.zeilen().value(1), "Testläufe\t10");
}
