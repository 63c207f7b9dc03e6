// The fractal window: it opens at its size, lists the objects of each type, draws the chosen
// one, and zooms by a dragged rectangle.
#include "dynamics/chaos_windows.h"
#include "dynamics/ljapunow1.h"
#include "dynamics/uabbildungen.h"
#include "dynamics/uchaos.h"

#include <QPixmap>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>

namespace {

std::vector<std::string> chaosDatei()
{
    std::ifstream in(std::string(QUORIX_SOURCE_DIR) + "/data/texte/CHAOS.txt");
    std::vector<std::string> z;
    std::string l;
    while (std::getline(in, l)) z.push_back(l);
    return z;
}

void speichere(QWidget* w, const char* variable)
{
    if (const char* out = std::getenv(variable)) w->grab().save(out);
}

}  // namespace

TEST(ChaosWindow, DrawsTheClassicalSetAndZooms)
{
    QDialog* dlg = createTFchaos(nullptr);
    auto* w = qobject_cast<TFchaos*>(dlg);
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->size(), QSize(1008, 710));
    EXPECT_EQ(w->windowTitle(), "Quorix");
    w->ladeObjekte(chaosDatei());
    w->show();
    w->waehleTyp(0);
    EXPECT_GE(w->objektzahl(), 20);
    w->d1c();
    const auto& r = w->werte();
    ASSERT_GT(r.breite, 100);
    // c = 0 is inside the set: index 0
    const auto& a = w->einstellung().ansicht;
    const int sp = static_cast<int>((0 - a.xmin) / (a.xmax - a.xmin) * r.breite);
    const int ze = static_cast<int>((a.ymax - 0) / (a.ymax - a.ymin) * r.hoehe);
    EXPECT_EQ(r.at(sp, ze), 0);
    EXPECT_NE(r.at(0, 0), 0);
    EXPECT_TRUE(w->ergebnis().contains("Iteration\t200"));
    speichere(w, "QUORIX_PNG");

    // a rectangle of less than a pixel is ignored, a real one narrows the view
    const chaos::Ansicht vorher = w->einstellung().ansicht;
    EXPECT_FALSE(w->zoom({10, 10}, {10, 40}));
    ASSERT_TRUE(w->zoom({0, 0}, {r.breite / 2, r.hoehe / 2}));
    EXPECT_DOUBLE_EQ(w->einstellung().ansicht.xmin, vorher.xmin);
    // within one pixel: an odd picture size has no middle row
    EXPECT_NEAR(w->einstellung().ansicht.xmax, (vorher.xmin + vorher.xmax) / 2, (vorher.xmax - vorher.xmin) / r.breite);
    EXPECT_NEAR(w->einstellung().ansicht.ymin, (vorher.ymin + vorher.ymax) / 2, (vorher.ymax - vorher.ymin) / r.hoehe);
    delete dlg;
}

TEST(ChaosWindow, EveryTypeHasItsListAndDraws)
{
    TFchaos w(nullptr, 2, 0);
    w.ladeObjekte(chaosDatei());
    w.show();
    for (int typ = 0; typ < 7; ++typ) {
        w.waehleTyp(typ);
        EXPECT_GE(w.objektzahl(), 3) << typ;
        EXPECT_EQ(w.einstellung().typ, typ);
    }
    w.waehleTyp(2);  // IFS editor, the fern first
    w.d1c();
    ASSERT_FALSE(w.ergebnis().isEmpty());
    EXPECT_EQ(w.ergebnis().front(), "Abbildungen\t4");
    speichere(&w, "QUORIX_PNG_IFS");
    w.waehleTyp(6);
    w.d1c();
    speichere(&w, "QUORIX_PNG_FEIGENBAUM");
}

// The Lyapunov window computes by timer steps, keeps the exponents and recolours without a
// new run.
TEST(ChaosLyapunovWindow, ComputesAndRecolours)
{
    QDialog* dlg = createTFLyapunov(nullptr);
    auto* w = qobject_cast<TFLyapunov*>(dlg);
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->size(), QSize(1008, 710));
    EXPECT_EQ(w->windowTitle(), "Quorix");
    w->show();
    w->waehleVorgabe(0);  // ZirconZity
    w->waehleGroesse(1);  // 128 x 96
    w->startC();
    EXPECT_TRUE(w->rechnet());
    w->pauseC();
    EXPECT_FALSE(w->rechnet());
    w->pauseC();
    w->rechneBisFertig();
    ASSERT_TRUE(w->karte().fertig());
    EXPECT_EQ(w->karte().breite(), 128);
    EXPECT_EQ(w->karte().hoehe(), 96);
    const double lambda = w->karte().wert(10, 10);
    const QRgb vorher = w->bild().image().pixel(10, 10);
    w->waehleFarben(3);  // "Regenbogen"
    EXPECT_EQ(w->karte().wert(10, 10), lambda) << "recolouring keeps the exponents";
    if (lambda < 0) EXPECT_NE(w->bild().image().pixel(10, 10), vorher);
    w->waehleFarben(0);
    speichere(w, "QUORIX_PNG_LJAPUNOW");
    w->zuruecksetzenC();
    EXPECT_EQ(w->karte().breite(), 0);
    delete dlg;
}

// The slide show turns through its list in both directions and reports unreadable files.
TEST(ChaosSlideShow, TurnsThroughTheList)
{
    QDialog* dlg = createTFabbild(nullptr);
    auto* w = qobject_cast<TFabbild*>(dlg);
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->size(), QSize(1008, 710));
    w->ladeObjekte(chaosDatei());
    w->setzeBildliste({"Fraktal: Barnsley-Farn", "/gibt/es/nicht.png", "Fraktal: Douady-Kaninchen"});
    w->show();
    EXPECT_EQ(w->aktuell(), 0);
    EXPECT_EQ(w->bild().width(), 640);
    w->naechstes();
    EXPECT_EQ(w->aktuell(), 1);
    EXPECT_TRUE(w->bild().empty()) << "a missing file shows a message, not a picture";
    w->naechstes();
    w->naechstes();
    EXPECT_EQ(w->aktuell(), 0) << "after the last comes the first";
    w->vorhergehendes();
    EXPECT_EQ(w->aktuell(), 2);
    EXPECT_FALSE(w->bild().empty());
    speichere(w, "QUORIX_PNG_DIA");
    delete dlg;
}
