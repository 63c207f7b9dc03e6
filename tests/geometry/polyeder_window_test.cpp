// The solids window: opens at its size on the catalogue's family and item, lists the solids,
// turns with the timer and the mouse, truncates, and draws its views.
#include "geometry/poly_windows.h"
#include "geometry/upolyeder.h"
#include "platform/codepage.h"
#include "platform/container.h"

#include <QMouseEvent>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QSpinBox>
#include <QPixmap>
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <memory>

namespace {
std::string baueContainer()
{
    platform::ContainerWriter w;
    for (const char* name : {"mpoly1", "mpoly2", "koerperz"}) {
        std::ifstream in(std::string(QUORIX_SOURCE_DIR) + "/data/texte/" + name + ".txt");
        platform::StringList zeilen;
        for (std::string l; std::getline(in, l);) zeilen.push_back(platform::utf8ToCp1252(l));
        w.addText("10", name, zeilen);
    }
    const std::string pfad = (std::filesystem::temp_directory_path() / "quorix_polyeder_test.dll").string();
    w.write(pfad);
    return pfad;
}

void speichere(QWidget* w, const char* name)
{
    const QPixmap pic = w->grab();
    EXPECT_EQ(pic.size(), QSize(1008, 710));
    if (const char* ordner = std::getenv("QUORIX_PNG_DIR")) pic.save(QString(ordner) + "/" + name);
}

double abstand(const poly::Punkt& a, const poly::Punkt& b)
{
    return std::sqrt((a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y) + (a.z - b.z) * (a.z - b.z));
}
}  // namespace

TEST(PolyederFenster, OeffnetAufKatalogeintrag)
{
    TFpoly::setzeTextContainer(baueContainer());
    std::unique_ptr<QDialog> dlg(createTFpoly(nullptr));
    auto* w = qobject_cast<TFpoly*>(dlg.get());
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->size(), QSize(1008, 710));
    EXPECT_EQ(w->windowTitle(), "Quorix");
    EXPECT_EQ(w->namen().front(), "Tetraeder");
    EXPECT_EQ(w->koerper().ecken.size(), 4u);
    // scaled so that the farthest vertex lies at the picture size 230
    double r = 0;
    for (const auto& p : w->koerper().ecken) r = std::max(r, abstand(p, {}));
    EXPECT_NEAR(r, 230, 1e-9);
    w->show();
    speichere(w, "polyeder_tetraeder.png");

    // family 2, row 6: the snub cube
    std::unique_ptr<QDialog> archi(createTFpoly(nullptr, 2, 6));
    auto* a = qobject_cast<TFpoly*>(archi.get());
    EXPECT_EQ(a->koerper().name, "Cubus simus");
    EXPECT_EQ(a->koerper().flaechen.size(), 38u);
    a->show();
    speichere(a, "polyeder_cubus_simus.png");

    // family 4 adds " Abstumpfung"; the default 0.33 turns the cube into 24 vertices
    std::unique_ptr<QDialog> ab(createTFpoly(nullptr, 4, 1));
    auto* s = qobject_cast<TFpoly*>(ab.get());
    EXPECT_EQ(s->namen().at(1), QString::fromUtf8("Würfel Abstumpfung"));
    EXPECT_EQ(s->koerper().ecken.size(), 24u);
    s->setzeOption("Koordinatentabelle", true);
    s->setzeOption("verdeckte Kanten", true);
    s->setzeOption("bunte Flächen", false);
    s->show();
    speichere(s, "polyeder_abstumpfung.png");
}

// The continuous deformation runs the truncation up to the edge midpoints: the cube becomes
// the cuboctahedron; the stellation family sets pyramids on the faces.
TEST(PolyederFenster, StetigeVerformung)
{
    TFpoly::setzeTextContainer(baueContainer());
    TFpoly w(nullptr, 4, 1);
    auto* spin = w.findChild<QDoubleSpinBox*>();
    ASSERT_NE(spin, nullptr);
    spin->setValue(0.48);
    EXPECT_EQ(w.koerper().ecken.size(), 24u);
    w.setzeOption("stetige Verformung", true);
    w.Timer1Timer();
    w.Timer1Timer();
    EXPECT_DOUBLE_EQ(spin->value(), 0.5);
    EXPECT_EQ(w.koerper().ecken.size(), 12u);
    EXPECT_EQ(w.koerper().flaechen.size(), 14u);
    w.Timer1Timer();  // and back again
    EXPECT_EQ(w.koerper().ecken.size(), 24u);

    TFpoly stern(nullptr, 5, 4);  // icosahedron with pyramids
    stern.findChild<QDoubleSpinBox*>()->setValue(0.5);
    EXPECT_EQ(stern.koerper().ecken.size(), 32u);
    EXPECT_EQ(stern.koerper().flaechen.size(), 60u);
    stern.show();
    speichere(&stern, "polyeder_stern.png");
}

TEST(PolyederFenster, TimerUndMausDrehen)
{
    TFpoly::setzeTextContainer(baueContainer());
    TFpoly w(nullptr, 0, 1);  // cube
    ASSERT_EQ(w.koerper().ecken.size(), 8u);
    const poly::Koerper vorher = w.koerper();
    // the first spin steps 1 degree per tick: the points move, the edges keep their length
    w.Timer1Timer();
    EXPECT_GT(abstand(w.koerper().ecken[0], vorher.ecken[0]), 1e-3);
    EXPECT_NEAR(abstand(w.koerper().ecken[0], w.koerper().ecken[1]),
                abstand(vorher.ecken[0], vorher.ecken[1]), 1e-9);
    // all three spins at 0: the solid stays still while the timer runs
    for (auto* spin : w.findChildren<QSpinBox*>())
        if (spin->maximum() == 15) spin->setValue(0);
    const poly::Koerper still = w.koerper();
    for (int i = 0; i < 5; ++i) w.Timer1Timer();
    for (size_t i = 0; i < still.ecken.size(); ++i) EXPECT_NEAR(abstand(w.koerper().ecken[i], still.ecken[i]), 0, 1e-12);

    // marked vertices; the two- and three-plane views exclude each other
    w.setzeOption("Punkte hervorheben", true);
    w.show();
    speichere(&w, "polyeder_punkte.png");
    w.setzeOption("Dreitafel-Projektion", true);
    w.setzeOption("Zweitafel-Projektion", true);
    QCheckBox* drei = nullptr;
    for (auto* c : w.findChildren<QCheckBox*>())
        if (c->text() == "Dreitafel-Projektion") drei = c;
    ASSERT_NE(drei, nullptr);
    EXPECT_FALSE(drei->isChecked());
    speichere(&w, "polyeder_zweitafel.png");
    w.setzeOption("Zweitafel-Projektion", false);
    w.setzeOption("Punkte hervorheben", false);

    // dragging turns it
    QMouseEvent druck(QEvent::MouseButtonPress, QPointF(100, 100), QPointF(100, 100), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QMouseEvent zug(QEvent::MouseMove, QPointF(160, 100), QPointF(160, 100), Qt::NoButton, Qt::LeftButton,
                    Qt::NoModifier);
    w.PB1MD(&druck);
    w.PB1MM(&zug);
    w.PB1MU();
    EXPECT_GT(abstand(w.koerper().ecken[0], still.ecken[0]), 1);

    // a solid chosen by name; a missing one is refused
    EXPECT_TRUE(w.waehle(3, QString::fromUtf8("Fünfseitige Kuppel (J5)")));
    EXPECT_EQ(w.koerper().ecken.size(), 15u);
    EXPECT_FALSE(w.waehle(0, "Zwölfflach"));
    EXPECT_EQ(w.koerper().ecken.size(), 15u);  // a refused name keeps the solid
    // a ring with listed faces: painted faces show its hole
    ASSERT_TRUE(w.waehle(1, "Hohlzylinder"));
    EXPECT_EQ(w.koerper().flaechen.size(), 144u);
    w.setzeOption("farbige Flächen", true);
    w.show();
    speichere(&w, "polyeder_hohlzylinder.png");
    ASSERT_TRUE(w.waehle(3, QString::fromUtf8("Fünfseitige Kuppel (J5)")));
    w.setzeOption("Dreitafel-Projektion", true);
    w.setzeOption("farbige Flächen", true);
    w.setzeOption("bunte Flächen", false);
    w.show();
    speichere(&w, "polyeder_dreitafel.png");
}
