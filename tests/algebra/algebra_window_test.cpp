// The algebra window: it opens at the chosen page, computes through its button and draws.
#include "algebra/ualgebra.h"
#include "algebra/windows.h"
#include "algebra/algebra.h"

#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

TEST(Fenster, OpensAtPageAndComputes)
{
    std::unique_ptr<QDialog> d(createTFalgebra(nullptr, 0));
    auto* w = qobject_cast<algebra::TFalgebra*>(d.get());
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->size(), QSize(1008, 710));
    EXPECT_EQ(w->windowTitle(), "Quorix");
    EXPECT_EQ(w->aktuelleSeite(), 0);
    w->S1C();  // the page's example: 2, 3, -1
    const auto& z = w->zeilen();
    EXPECT_NE(std::find(z.begin(), z.end(), "    X2 = 3"), z.end());
    w->show();
    const QPixmap pic = w->grab();
    EXPECT_EQ(pic.size(), QSize(1008, 710));
    if (const char* out = std::getenv("QUORIX_PNG")) pic.save(out);

    // the equation page opened by the catalogue, with the user's own input
    std::unique_ptr<QDialog> g(createTFalgebra(nullptr, 3));
    auto* v = qobject_cast<algebra::TFalgebra*>(g.get());
    EXPECT_EQ(v->aktuelleSeite(), 3);
    v->setzeFeld(0, "x^2");
    v->setzeFeld(1, "2");
    v->setzeFeld(2, "0");
    v->setzeFeld(3, "3");
    v->S1C();
    ASSERT_FALSE(v->zeilen().empty());
    EXPECT_EQ(v->zeilen().back(), "X = 1.414214");
    v->show();
    if (const char* out = std::getenv("QUORIX_PNG2")) v->grab().save(out);
    // changing the page brings its example and an empty result
    v->setzeSeite(17);
    EXPECT_TRUE(v->zeilen().empty());
    v->S1C();
    ASSERT_FALSE(v->zeilen().empty());
    EXPECT_EQ(v->zeilen().front(), "Multiplikation im Restklassenkörper Z zur Basis 7");
    if (const char* out = std::getenv("QUORIX_PNG3")) v->grab().save(out);
}

TEST(Fenster, EveryPageComputesItsExample)
{
    std::unique_ptr<QDialog> d(createTFalgebra(nullptr, 12, 5));
    auto* w = qobject_cast<algebra::TFalgebra*>(d.get());
    // the catalogue's item 5 of the standard tasks is the completion of the square
    auto* aufgabe = w->findChild<QLineEdit*>("E1");
    ASSERT_NE(aufgabe, nullptr);
    EXPECT_EQ(aufgabe->text(), "6");
    w->show();
    const char* dir = std::getenv("QUORIX_PNG_DIR");
    for (int s = 0; s < algebra::seitenzahl; ++s) {
        w->setzeSeite(s);
        w->S1C();
        EXPECT_FALSE(w->laeuft());
        if (algebra::seite(s).vorhanden) EXPECT_FALSE(w->zeilen().empty()) << s;
        if (dir) w->grab().save(QString("%1/seite%2.png").arg(dir).arg(s));
    }
}
