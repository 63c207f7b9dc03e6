// The construction window: opens with the authored examples, builds steps with the mouse and
// the input row, drags free points and refuses what the list must not lose.
#include "geometry/ukonstru.h"
#include "geometry/windows.h"
#include "platform/codepage.h"
#include "platform/container.h"

#include <QListWidget>
#include <QMouseEvent>
#include <QPixmap>
#include <QTabWidget>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace konstru;

namespace {
std::string baueContainer()
{
    platform::ContainerWriter w;
    for (const char* name : {"konstru", "konstru2"}) {
        std::ifstream in(std::string(QUORIX_SOURCE_DIR) + "/data/texte/" + name + ".txt");
        platform::StringList zeilen;
        for (std::string l; std::getline(in, l);) zeilen.push_back(platform::utf8ToCp1252(l));
        w.addText("10", name, zeilen);
    }
    const std::string pfad = (std::filesystem::temp_directory_path() / "quorix_konstru_fenster.dll").string();
    w.write(pfad);
    return pfad;
}

// Press and release at a pixel of the panel.
void klick(Tikonstru& w, QPointF p, Qt::MouseButton knopf = Qt::LeftButton)
{
    QMouseEvent d(QEvent::MouseButtonPress, p, p, knopf, knopf, Qt::NoModifier);
    w.PB1D(&d);
    QMouseEvent r(QEvent::MouseButtonRelease, p, p, knopf, Qt::NoButton, Qt::NoModifier);
    w.PB1U(&r);
}

struct Fenster : testing::Test {
    static void SetUpTestSuite() { Tikonstru::setzeTextContainer(baueContainer()); }
    void SetUp() override
    {
        w = std::make_unique<Tikonstru>();
        w->show();
        flaeche = w->findChild<TKonstruFlaeche*>();
        ASSERT_NE(flaeche, nullptr);
    }
    // pixel of a world point on the panel
    QPointF pixel(double x, double y) const
    {
        return {w->ansicht().px(x, flaeche->width()), w->ansicht().py(y, flaeche->height())};
    }
    std::unique_ptr<Tikonstru> w;
    TKonstruFlaeche* flaeche = nullptr;
};
}  // namespace

TEST_F(Fenster, OeffnetMitBeispielenUndSpeichertBild)
{
    EXPECT_EQ(w->size(), QSize(1008, 710));
    EXPECT_EQ(w->windowTitle(), "Quorix");
    EXPECT_GE(w->beispielTitel().size(), 12);
    EXPECT_EQ(w->konstruktion().anzahl(), 0);
    EXPECT_EQ(w->status(), "  Punkt mit der Maus anklicken");

    // catalogue page 3 opens the third example
    std::unique_ptr<QDialog> seite3(createTikonstru(nullptr, 3));
    auto* t = qobject_cast<Tikonstru*>(seite3.get());
    ASSERT_NE(t, nullptr);
    EXPECT_GT(t->konstruktion().anzahl(), 5);
    EXPECT_TRUE(t->lauf().leer.empty());

    ASSERT_TRUE(w->C2C(5));  // tangents from a point
    const QPixmap bild = w->grab();
    EXPECT_FALSE(bild.isNull());
    bild.save(QString::fromStdString((std::filesystem::temp_directory_path() / "quorix_konstru.png").string()));
    w->C1C(kDrehpunkt);
    w->findChild<QTabWidget*>()->setCurrentIndex(1);
    w->grab().save(QString::fromStdString((std::filesystem::temp_directory_path() / "quorix_konstru_eingabe.png").string()));
    EXPECT_EQ(w->feldText(3), "30");  // the default rotation angle
}

TEST_F(Fenster, MausKonstruiertUndZiehtPunkte)
{
    // two clicks of "Strecke" on empty places: two free points and the segment
    ASSERT_TRUE(w->Zeichenaktion("Strecke"));
    klick(*w, pixel(-2, 0));
    EXPECT_EQ(w->status(), "  2.Punkt mit der Maus anklicken");
    klick(*w, pixel(2, 0));
    ASSERT_EQ(w->konstruktion().anzahl(), 3);
    EXPECT_EQ(w->konstruktion().zeilen[2], "Strecke s1\tA|B\t1");

    // a click on an existing point reuses it
    ASSERT_TRUE(w->Zeichenaktion("Mittelpunkt"));
    klick(*w, pixel(-2, 0) + QPointF(3, -2));
    klick(*w, pixel(2, 0));
    EXPECT_EQ(w->konstruktion().zeilen.back(), "MittelPunkt C\tA|B\t6");

    // a circle about C through B, and a perpendicular through C on s1
    ASSERT_TRUE(w->Zeichenaktion("Kreis"));
    EXPECT_EQ(w->status(), "  Kreismittelpunkt mit der Maus anklicken");
    klick(*w, pixel(0, 0));
    klick(*w, pixel(2, 0));
    ASSERT_TRUE(w->Zeichenaktion("Senkrechte"));
    klick(*w, pixel(0, 0));
    klick(*w, pixel(1, 0));
    EXPECT_EQ(w->konstruktion().zeilen.back(), "Senkrechte g1\tC|s1\t3");

    // one click on the crossing of the perpendicular and the circle names both points
    ASSERT_TRUE(w->Zeichenaktion("Schnittpunkt"));
    klick(*w, pixel(0, 2));
    EXPECT_EQ(w->konstruktion().zeilen.back(), "Gerade-Kreis-Punkte S1,S2\tg1|k1\t;");
    ASSERT_NE(w->lauf().punkt("S2"), nullptr);
    EXPECT_NEAR(std::fabs(w->lauf().punkt("S2")->p.y), 2, 1e-9);

    // dragging B to (4|0) moves the midpoint and the circle's crossings
    ASSERT_TRUE(w->Zeichenaktion(""));
    const QPointF von = pixel(2, 0), nach = pixel(4, 0);
    QMouseEvent d(QEvent::MouseButtonPress, von, von, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    w->PB1D(&d);
    QMouseEvent m(QEvent::MouseMove, nach, nach, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    w->PB1M(&m);
    w->PB1U(&m);
    const Lauf l = w->lauf();
    ASSERT_NE(l.punkt("C"), nullptr);
    EXPECT_NEAR(l.punkt("C")->p.x, 1, 1e-9);
    EXPECT_NEAR(std::fabs(l.punkt("S1")->p.y), 3, 1e-9);
}

TEST_F(Fenster, EingabezeileLoeschenUndDatei)
{
    w->C1C(0);  // Punkt mit zwei Koordinaten
    w->setzeFeld(1, "1,5");
    w->setzeFeld(2, "2");
    ASSERT_TRUE(w->Hinzufuegen());
    EXPECT_EQ(w->konstruktion().zeilen[0], "Punkt A\t1.5|2\t0");
    EXPECT_EQ(w->feldText(0), "B");  // the next name is offered
    w->setzeFeld(1, "-1");
    w->setzeFeld(2, "0");
    ASSERT_TRUE(w->Hinzufuegen());
    w->C1C(kMittelpunkt);
    w->setzeFeld(1, "A");
    w->setzeFeld(2, "B");
    ASSERT_TRUE(w->Hinzufuegen());

    // a point that the midpoint uses stays, with the name in the message
    EXPECT_FALSE(w->D2C(0, false));
    EXPECT_EQ(w->letzteMeldung(), "A abhängig!");
    EXPECT_EQ(w->konstruktion().anzahl(), 3);
    EXPECT_TRUE(w->D2C(2, false));
    EXPECT_EQ(w->konstruktion().anzahl(), 2);

    // save and load: the last line is selected again
    const QString pfad = QString::fromStdString((std::filesystem::temp_directory_path() / "quorix_konstru_fenster.dyn").string());
    ASSERT_TRUE(w->speichereDatei(pfad));
    ASSERT_TRUE(w->C2C(0));
    ASSERT_TRUE(w->ladeDatei(pfad));
    EXPECT_EQ(w->konstruktion().anzahl(), 2);
    EXPECT_EQ(w->findChild<QListWidget*>("LB1")->currentRow(), 1);
}

TEST_F(Fenster, AnimationBewegtFreienPunkt)
{
    ASSERT_TRUE(w->C2C(2));  // Thales circle over A(-3|0), B(3|0)
    ASSERT_TRUE(w->markiereVeraenderbar("B"));
    ASSERT_TRUE(w->S10C());
    w->Timer2Timer();
    w->Timer2Timer();
    const Lauf l = w->lauf();
    EXPECT_NEAR(l.punkt("B")->p.x, 3.04, 1e-9);
    EXPECT_NEAR(l.punkt("M")->p.x, 0.02, 1e-9);  // the midpoint follows
    // any other use of the sheet stops it
    klick(*w, pixel(-5, -5));
    EXPECT_TRUE(w->S10C()) << "the click stopped it, so the button starts it again";
    EXPECT_FALSE(w->S10C());  // and a second press stops it
}
