// The calendar window: it opens at its size, lists the chosen date and draws its month sheet.
#include "astronomy/ukalender.h"
#include "astronomy/windows.h"

#include <QApplication>
#include <QPixmap>
#include <QTabWidget>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include <memory>

TEST(Window, CalendarWindowShowsDate)
{
    int argc = 1;
    char name[] = "test";
    char* argv[] = {name};
    QApplication app(argc, argv);
    QDialog* dlg = createTFkalend(nullptr);
    auto* w = qobject_cast<TFkalend*>(dlg);
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->size(), QSize(1008, 710));
    EXPECT_EQ(w->windowTitle(), "Quorix");
    w->setzeDatum({2000, 1, 1});
    EXPECT_TRUE(w->zeilen().contains(QString::fromUtf8("Jüdischer Kalender\t23. Tewet 5760")));
    // the ten dropped days of 1582 are never chosen
    w->setzeDatum({1582, 10, 10});
    EXPECT_EQ(w->gewaehlt().day, 15);
    w->setzeDatum({2024, 10, 3});
    w->show();
    const QPixmap pic = w->grab();
    EXPECT_EQ(pic.size(), QSize(1008, 710));
    if (const char* out = std::getenv("QUORIX_PNG")) pic.save(out);
    delete dlg;

    // the catalogue's "Chinesischer Kalender" (item 9) stays selected when the day changes;
    // "Datumsdifferenz" is page 1
    std::unique_ptr<QDialog> china(createTFkalend(nullptr, 0, 9));
    auto* k = qobject_cast<TFkalend*>(china.get());
    k->setzeDatum({2024, 2, 10});
    QTreeWidget* liste = nullptr;
    for (auto* t : k->findChildren<QTreeWidget*>())
        if (t->headerItem()->text(0) == "Kalender") liste = t;
    ASSERT_NE(liste, nullptr);
    ASSERT_NE(liste->currentItem(), nullptr);
    EXPECT_EQ(liste->currentItem()->text(0), QString::fromUtf8("Chinesischer Kalender"));
    std::unique_ptr<QDialog> diff(createTFkalend(nullptr, 1, -1));
    const auto tabs = diff->findChildren<QTabWidget*>();
    ASSERT_FALSE(tabs.isEmpty());
    EXPECT_EQ(tabs.front()->currentIndex(), 1);
}
