// The two calculator windows driven through their buttons; pictures saved for looking at.
#include "numbers/bigfloat.h"
#include "numbers/urechnerlang.h"
#include "numbers/windows.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <gtest/gtest.h>

namespace {

QApplication* app()
{
    static int argc = 1;
    static char name[] = "test_numbers";
    static char* argv[] = {name, nullptr};
    static QApplication* a = new QApplication(argc, argv);
    return a;
}

class Windows : public ::testing::Test {
protected:
    void SetUp() override
    {
        app();
        Trechla::showMessage = [this](const QString& t) { messages << t; };
    }
    QStringList messages;
};

void click(QPushButton* b)
{
    ASSERT_NE(b, nullptr);
    b->click();
}

}  // namespace

TEST_F(Windows, TrechlaButtonsAndLimits)
{
    QDialog* d = createTrechla(nullptr);
    auto* w = dynamic_cast<Trechla*>(d);
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(createTrechla(nullptr), d) << "one window at a time";
    EXPECT_EQ(w->size(), QSize(1008, 710));
    EXPECT_EQ(w->windowTitle(), "Quorix");
    EXPECT_EQ(w->L1->text(), "0 Ziffern");
    for (const char* c : {"a + b", "a - b", "a · b", "a / b", "a mod b", "ggT", "kgV", "a!", "a²", "Wurzel a", "a^b",
                          "a#", "a über b", "V(a,b)", "Ergebnis nach a", "Ergebnis nach b", "a und b tauschen"})
        EXPECT_NE(w->button(QString::fromUtf8(c)), nullptr) << c;

    w->Me2->setPlainText("1775");
    click(w->button("a!"));
    EXPECT_EQ(w->L1->text(), "4999 Ziffern");
    w->Me2->setPlainText("1776");
    click(w->button("a!"));
    EXPECT_EQ(w->Me1->toPlainText(), QString::fromUtf8("Überlauf, Berechnung maximal bis 1775!"));

    w->Me2->setPlainText("123456789");
    w->Me3->setPlainText("");
    click(w->button("a mod b"));
    ASSERT_EQ(messages.size(), 1);
    EXPECT_EQ(messages[0], "mp_divrem: b=0.") << "an empty b counts as 0";

    w->rx1->setValue(16);
    w->Me2->setPlainText("G");
    click(w->button("a + b"));
    ASSERT_EQ(messages.size(), 2);
    EXPECT_EQ(messages[1], "Zahleingabe nicht korrekt. Basis beachten.");

    w->Me2->setPlainText("FF");
    w->Me3->setPlainText("1");
    w->CB1->setChecked(true);
    click(w->button("a + b"));
    EXPECT_EQ(w->Me1->toPlainText(), "100");
    EXPECT_EQ(w->Me2->toPlainText(), "100") << "automatisch nach a";
    click(w->button("a und b tauschen"));
    EXPECT_EQ(w->Me2->toPlainText(), "1");
    EXPECT_EQ(w->Me3->toPlainText(), "100");

    w->rx1->setValue(10);
    w->CB1->setChecked(false);
    w->Me2->setPlainText("100");
    w->Me3->setPlainText("50");
    click(w->button(QString::fromUtf8("a über b")));
    EXPECT_EQ(w->Me1->toPlainText(), "100891344545564193334812497256");
    w->show();
    QApplication::processEvents();
    EXPECT_TRUE(w->grab().save(QString(QUORIX_BUILD_DIR) + "/tool80.png"));
    delete w;
    EXPECT_EQ(Trechla::instance(), nullptr);
}

TEST_F(Windows, OpBoxComputesToTheDigitCount)
{
    QDialog* d = createTOpBox(nullptr);
    auto* w = dynamic_cast<TOpBox*>(d);
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->size(), QSize(1008, 710));
    EXPECT_EQ(w->EX->toPlainText(), "2,718281828");
    EXPECT_EQ(w->EY->toPlainText(), "3,141592653");
    EXPECT_EQ(w->SZ->value(), 500);
    EXPECT_EQ(w->SZ->minimum(), 10);
    EXPECT_EQ(w->SZ->maximum(), 4000);
    for (const char* c : {"x + y", "x - y", "x · y", "x / y", "x²", "Wurzel x", "1 / x", "x ^ y", "ln x", "lg x",
                          "exp x", "π", "x^(1/y)", "log(y) x", "Ergebnis nach x", "Ergebnis nach y"})
        EXPECT_NE(w->button(QString::fromUtf8(c)), nullptr) << c;
    w->SZ->setValue(30);
    click(w->button(QString::fromUtf8("π")));
    EXPECT_EQ(w->ER->toPlainText(), "3,14159265358979323846264338328");
    click(w->button("Ergebnis nach y"));
    EXPECT_EQ(w->EY->toPlainText(), "3,14159265358979323846264338328");
    w->EX->setPlainText("0");
    click(w->button("1 / x"));
    EXPECT_EQ(w->LS->text(), QString::fromUtf8("Divison durch 0 nicht möglich"));
    w->EX->setPlainText("2");
    w->SZ->setValue(60);
    click(w->button("Wurzel x"));
    w->show();
    QApplication::processEvents();
    EXPECT_TRUE(w->grab().save(QString(QUORIX_BUILD_DIR) + "/tool97.png"));
    delete w;
}
