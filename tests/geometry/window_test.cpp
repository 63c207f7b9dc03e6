// The triangle window: opens at its size with the authored lists, follows themes, the mouse
// and the wheel, and lists its results.
#include "geometry/udreieck.h"
#include "geometry/windows.h"
#include "platform/codepage.h"
#include "platform/container.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPixmap>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {
// A container like the build's texte.dll, made from the authored sources.
std::string baueContainer()
{
    platform::ContainerWriter w;
    for (const char* name : {"xdreieck", "wdreieck"}) {
        std::ifstream in(std::string(QUORIX_SOURCE_DIR) + "/data/texte/" + name + ".txt");
        platform::StringList zeilen;
        for (std::string l; std::getline(in, l);) zeilen.push_back(platform::utf8ToCp1252(l));
        w.addText("10", name, zeilen);
    }
    const std::string pfad = (std::filesystem::temp_directory_path() / "quorix_dreieck_test.dll").string();
    w.write(pfad);
    return pfad;
}

QMouseEvent maus(QEvent::Type typ, QPointF p)
{
    return QMouseEvent(typ, p, p, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
}
}  // namespace

TEST(DreieckFenster, OeffnetMitThemenUndErgebnissen)
{
    TxDreieck::setzeTextContainer(baueContainer());
    QDialog* dlg = createTxDreieck(nullptr);
    auto* w = qobject_cast<TxDreieck*>(dlg);
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->size(), QSize(1008, 710));
    EXPECT_EQ(w->windowTitle(), "Quorix");
    EXPECT_EQ(w->themenAnzahl(), 66);

    // a theme sets the vertices and its objects
    ASSERT_TRUE(w->M31C("&Eulersche Gerade"));
    EXPECT_TRUE(w->auswahl().count("Euler-Gerade"));
    EXPECT_TRUE(w->auswahl().count("Punkt A"));
    const QStringList z = w->ergebnisse();
    EXPECT_TRUE(z.filter(QRegularExpression("^Euler-Gerade\tY = ")).size() == 1) << z.join("\n").toStdString();
    EXPECT_TRUE(z.filter(QRegularExpression("^Seite a\t")).size() == 1);
    EXPECT_FALSE(w->M31C("Kein Thema"));

    // page 13 of the catalogue opens on the Euler line theme too
    TxDreieck seite13(nullptr, 13);
    EXPECT_TRUE(seite13.auswahl().count("Feuerbach-Kreis"));

    // dragging vertex A moves it to the pointer; a press elsewhere pans instead
    w->resize(1008, 710);
    w->show();
    const QPixmap vorher = w->grab();
    (void)vorher;
    const std::array<double, 6> alt = w->ecken();
    w->setzeEcken({0, 1, -1, -1, 1, -1});
    auto* flaeche = w->findChild<TDreieckFlaeche*>();
    ASSERT_NE(flaeche, nullptr);
    flaeche->grab();  // one paint fixes the origin
    const QPointF mitte(flaeche->width() / 2, flaeche->height() / 2);
    const QPointF a = mitte + QPointF(0, -100);  // vertex A at (0 | 1)
    auto druck = maus(QEvent::MouseButtonPress, a + QPointF(3, 2));
    w->PB1MD(&druck);
    auto zug = maus(QEvent::MouseMove, mitte + QPointF(50, -150));
    w->PB1MM(&zug);
    w->PB1MU();
    EXPECT_NEAR(w->ecken()[0], 0.5, 1e-9);
    EXPECT_NEAR(w->ecken()[1], 1.5, 1e-9);
    EXPECT_NE(w->ecken(), alt);

    // the wheel keeps the zoom at 0.2 at least
    for (int i = 0; i < 100; ++i) w->PB1Wheel(120);
    EXPECT_DOUBLE_EQ(w->streckungsfaktor(), 0.2);
    w->PB1Wheel(-120);
    EXPECT_NEAR(w->streckungsfaktor(), 0.22, 1e-12);

    // a term in a field is evaluated; a faulty one gives way to the old value
    auto* e1 = w->findChild<QLineEdit*>("E1");
    ASSERT_NE(e1, nullptr);
    e1->setText("1+1");
    emit e1->editingFinished();
    EXPECT_DOUBLE_EQ(w->ecken()[0], 2);
    e1->setText("SIN(");
    emit e1->editingFinished();
    EXPECT_DOUBLE_EQ(w->ecken()[0], 2);
    EXPECT_EQ(e1->text(), "2");

    // "alle Objekte" leaves the vertices, sides and the fill as they are
    w->setzeObjekt(QString::fromUtf8("Seite a"), false);
    auto* c1 = w->findChild<QCheckBox*>();
    ASSERT_NE(c1, nullptr);
    c1->setChecked(true);
    EXPECT_FALSE(w->auswahl().count("Seite a"));
    EXPECT_TRUE(w->auswahl().count("Umkreis"));
    EXPECT_TRUE(w->auswahl().count("Steiner-Ellipse"));
    c1->setChecked(false);
    EXPECT_FALSE(w->auswahl().count("Umkreis"));
    EXPECT_TRUE(w->auswahl().count("Punkt A"));

    // the picture of a rich theme, for a look
    w->M31C("Feuerbach-Hyperbel");
    w->PB1Wheel(120);
    w->PB1Wheel(120);
    w->PB1Wheel(-120);
    w->PB1Wheel(-120);
    for (int i = 0; i < 20; ++i) w->PB1Wheel(-120);
    const QPixmap bild = w->grab();
    EXPECT_EQ(bild.size(), QSize(1008, 710));
    if (const char* out = std::getenv("QUORIX_PNG")) bild.save(out);
    delete dlg;
}
