// The numeric workbench window: it opens at the catalogue's topic, relabels its fields and fills
// the result list through the start button.
#include "algebra/numer_windows.h"
#include "algebra/unumerisch.h"

#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

TEST(NumerFenster, OpensAtTopicAndComputes)
{
    std::unique_ptr<QDialog> dlg(createTFnumer(nullptr, 21, -1));
    auto* w = qobject_cast<TFnumer*>(dlg.get());
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->size(), QSize(1008, 710));
    EXPECT_EQ(w->windowTitle(), "Quorix");
    EXPECT_EQ(w->thema(), 21);
    EXPECT_EQ(w->fortschritt(), "0 %");
    // neuwert labels the fields of the annuity page
    bool schuld = false;
    for (auto* l : w->findChildren<QLabel*>()) schuld = schuld || l->text() == QString::fromUtf8("Schuld K €");
    EXPECT_TRUE(schuld);
    w->setzeFeld(0, "100000");
    w->setzeFeld(1, "6");
    w->setzeFeld(2, "10000");
    w->B1C();
    ASSERT_GT(w->zeilen().size(), 4);
    EXPECT_EQ(w->zeilen()[3], "1\t96000\t4240\t6000");
    EXPECT_EQ(w->fortschritt(), "100 %");
    // the catalogue item picks the option: twin primes on the prime page
    std::unique_ptr<QDialog> p(createTFnumer(nullptr, 28, 1));
    auto* pw = qobject_cast<TFnumer*>(p.get());
    pw->setzeFeld(1, "100");
    pw->B1C();
    EXPECT_EQ(pw->zeilen().back(), "8 Paare");
    QTreeWidget* liste = nullptr;
    for (auto* t : pw->findChildren<QTreeWidget*>()) liste = t;
    ASSERT_NE(liste, nullptr);
    EXPECT_EQ(liste->headerItem()->text(0), "Primzahlzwillinge");
    EXPECT_EQ(liste->topLevelItem(0)->text(1), "5");
    pw->show();
    if (const char* out = std::getenv("QUORIX_PNG2")) pw->grab().save(out);
    // a left-out topic is not chosen: the window stays on its page
    pw->setzeThema(1);
    EXPECT_EQ(pw->thema(), 28);

    std::unique_ptr<QDialog> zins(createTFnumer(nullptr, 12, 4));
    zins->show();
    if (const char* out = std::getenv("QUORIX_PNG3")) zins->grab().save(out);

    std::unique_ptr<QDialog> b(createTFnumer(nullptr, 39, -1));
    auto* bw = qobject_cast<TFnumer*>(b.get());
    bw->B1C();
    bw->show();
    const QPixmap pic = bw->grab();
    EXPECT_EQ(pic.size(), QSize(1008, 710));
    if (const char* out = std::getenv("QUORIX_PNG")) pic.save(out);
}
