// The two windows driven through their controls as a user would, and their pictures grabbed
// to PNG files in the build folder for a look.
#include "crypto/ualgorith.h"
#include "crypto/uenigma.h"
#include "crypto/windows.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>

namespace {

QApplication& app()
{
    static int argc = 1;
    static char name[] = "test_crypto";
    static char* argv[] = {name, nullptr};
    // left alive to the end: tearing Qt down among the static destructors crashes
    static QApplication* a = new QApplication(argc, argv);
    return *a;
}

template <class T>
T* child(QWidget* w, const char* name)
{
    T* c = w->findChild<T*>(name);
    EXPECT_NE(c, nullptr) << name;
    return c;
}

// Saves the window's picture and tells whether it shows more than one colour.
bool grabShowsSomething(QWidget* w, const char* file)
{
    w->show();
    QApplication::processEvents();
    const QImage img = w->grab().toImage();
    img.save(QString(QUORIX_BUILD_DIR) + "/" + file);
    const QRgb first = img.pixel(0, 0);
    int other = 0;
    for (int y = 0; y < img.height(); y += 7)
        for (int x = 0; x < img.width(); x += 7)
            other += img.pixel(x, y) != first;
    return other > 100;
}

}  // namespace

TEST(CipherWindow, FrameAndPicture)
{
    app();
    std::unique_ptr<QDialog> d(crypto::createTForm23(nullptr));
    EXPECT_EQ(d->windowTitle(), "Quorix");
    EXPECT_EQ(d->size(), QSize(1008, 710));
    auto* tabs = d->findChild<QTabWidget*>();
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(tabs->tabText(0), "Kryptografie");
    EXPECT_EQ(child<QComboBox>(d.get(), "CB1")->count(), 22);
    child<QPlainTextEdit>(d.get(), "plain")->setPlainText(QString::fromUtf8("Die Würde des Menschen ist unantastbar."));
    QTest::mouseClick(child<QPushButton>(d.get(), "B1"), Qt::LeftButton);
    EXPECT_TRUE(grabShowsSomething(d.get(), "crypto_tform23.png"));
}

TEST(CipherWindow, EncipherRepairDecipherUndo)
{
    app();
    crypto::TForm23 w;
    auto* cb1 = child<QComboBox>(&w, "CB1");
    auto* e = child<QLineEdit>(&w, "E");
    auto* plain = child<QPlainTextEdit>(&w, "plain");
    auto* code = child<QPlainTextEdit>(&w, "code");
    cb1->setCurrentIndex(2);
    EXPECT_EQ(child<QLabel>(&w, "keyCaption")->text(), "Verschiebungszahl (von 1 bis 26)");
    e->setText("27");
    plain->setPlainText("abc");
    w.B1C();
    EXPECT_EQ(code->toPlainText(), "FGH");
    EXPECT_EQ(e->text(), "5");  // written back
    plain->clear();
    w.B3C();
    EXPECT_EQ(plain->toPlainText(), "ABC");
    w.undoC();
    EXPECT_EQ(plain->toPlainText(), "");
    EXPECT_EQ(code->toPlainText(), "FGH");

    // an empty code word field gets the default word
    cb1->setCurrentIndex(0);
    e->clear();
    plain->setPlainText(QString::fromUtf8("Grüße aus Köln, 100 % sicher\tund\u00a0fest"));
    w.B1C();
    EXPECT_EQ(e->text(), "nebelkrone");
    // the full Vigenère code holds signs the memo may not keep; unedited code still deciphers
    const QString before = plain->toPlainText();
    plain->clear();
    w.B3C();
    EXPECT_EQ(plain->toPlainText(), QString(before).replace('\t', ' '));

    // byte code is shown as hex and read back
    cb1->setCurrentIndex(10);
    e->setText("Key");
    plain->setPlainText("Plaintext");
    w.B1C();
    EXPECT_EQ(code->toPlainText(), "BBF316E8D940AF0AD3");
    code->setPlainText("BB F3 16 E8 D9 40 AF 0A D3");  // edited by hand
    w.B3C();
    EXPECT_EQ(plain->toPlainText(), "Plaintext");
}

TEST(CipherWindow, VigenereAnalysisFillsKeyAndText)
{
    app();
    crypto::TForm23 w;
    auto* cb1 = child<QComboBox>(&w, "CB1");
    auto* e = child<QLineEdit>(&w, "E");
    auto* plain = child<QPlainTextEdit>(&w, "plain");
    QString text;
    for (int i = 0; i < 12; ++i)
        text += "DIEMATHEMATIKISTEINEDERAELTESTENWISSENSCHAFTENDERMENSCHHEITSCHONDIEBAUERNMUSSTENIHREFELDERVERMESSEN";
    cb1->setCurrentIndex(1);
    e->setText("Zahl");
    plain->setPlainText(text);
    w.B1C();
    plain->clear();
    e->clear();
    w.B2C();
    EXPECT_EQ(e->text(), "ZAHL");
    EXPECT_EQ(plain->toPlainText(), text);
    EXPECT_TRUE(child<QLabel>(&w, "status")->text().contains("Codewort: ZAHL"));
}

TEST(EnigmaWindow, LiveModeTypesAndLightsTheLamp)
{
    app();
    crypto::Tenigmaf w;
    EXPECT_EQ(w.windowTitle(), "Quorix");
    EXPECT_EQ(w.size(), QSize(1008, 710));
    w.show();
    auto* me1 = child<QPlainTextEdit>(&w, "Me1");
    auto* me2 = child<QPlainTextEdit>(&w, "Me2");
    auto* s1 = child<QPushButton>(&w, "S1");
    QTest::mouseClick(s1, Qt::LeftButton);
    ASSERT_TRUE(s1->isChecked());
    QTest::keyClicks(me1, "aa1!aaa");
    EXPECT_EQ(me1->toPlainText(), "AAAAA");  // letters upper-cased, other keys dropped
    EXPECT_EQ(me2->toPlainText(), "BDZGO");
    EXPECT_EQ(child<QLineEdit>(&w, "Edit4")->text(), "F");
    EXPECT_EQ(child<QLabel>(&w, "progress")->text(), "0 %");
    EXPECT_EQ(w.picture().litLamp, 'O' - 'A');
    EXPECT_FALSE(child<QComboBox>(&w, "C1")->isEnabled());
    EXPECT_TRUE(grabShowsSomething(&w, "crypto_tenigmaf.png"));
    // the drawn keyboard answers the mouse: one more A gives the sixth letter, W
    QWidget* view = child<QWidget>(&w, "PB1");
    QPoint keyA(-1, -1);
    for (int y = 0; y < view->height() && keyA.x() < 0; ++y)
        for (int x = 0; x < view->width(); ++x)
            if (crypto::enigmaKeyAt(view->width(), view->height(), x, y) == 0) {
                keyA = QPoint(x + 3, y + 3);
                break;
            }
    ASSERT_GE(keyA.x(), 0) << "no key A on the drawn keyboard";
    QTest::mouseClick(view, Qt::LeftButton, {}, keyA);
    EXPECT_EQ(me1->toPlainText(), "AAAAAA");
    EXPECT_EQ(me2->toPlainText(), "BDZGOW");
    EXPECT_EQ(w.picture().keyPressed, 0);
    QTest::mouseClick(s1, Qt::LeftButton);
    EXPECT_EQ(w.picture().litLamp, -1);
    EXPECT_TRUE(child<QComboBox>(&w, "C1")->isEnabled());
}

TEST(EnigmaWindow, BatchRunSettingsAndPlugboard)
{
    app();
    crypto::Tenigmaf w;
    auto* me1 = child<QPlainTextEdit>(&w, "Me1");
    auto* me2 = child<QPlainTextEdit>(&w, "Me2");
    me1->setPlainText("AAAAA\nAAA");
    w.B1C();
    EXPECT_EQ(me2->toPlainText(), "BDZGO\nWCX");  // the machine runs on over the line end
    EXPECT_EQ(child<QLabel>(&w, "progress")->text(), "100 %");
    EXPECT_EQ(child<QLineEdit>(&w, "Edit4")->text(), "I");

    // rotor order stays a permutation
    auto* c1 = child<QComboBox>(&w, "C1");
    auto* c3 = child<QComboBox>(&w, "C3");
    c1->setCurrentIndex(2);
    EXPECT_EQ(c3->currentText(), "I");
    child<QComboBox>(&w, "C4")->setCurrentIndex(16);
    EXPECT_EQ(child<QLineEdit>(&w, "settingsLine")->text(), "III-II-I; Q-A-A; n/a; n/a; n/a; n/a; n/a; n/a");

    // a pair that is on takes its letters away from the other pairs
    child<QComboBox>(&w, "C7")->setCurrentText("E");
    child<QComboBox>(&w, "C8")->setCurrentText("Z");
    child<QCheckBox>(&w, "CB1")->setChecked(true);
    auto* c9 = child<QComboBox>(&w, "C9");
    EXPECT_EQ(c9->findText("E"), -1);
    EXPECT_EQ(c9->findText("Z"), -1);
    EXPECT_EQ(c9->count(), 24);
    EXPECT_TRUE(child<QLineEdit>(&w, "settingsLine")->text().contains("; EZ;"));

    // a pasted text is prepared as on load
    QApplication::clipboard()->setText(QString::fromUtf8("Grüße 3!"));
    me1->clear();
    QTest::mouseClick(child<QPushButton>(&w, "paste"), Qt::LeftButton);
    EXPECT_EQ(me1->toPlainText(), "GRUESSEDREI");

    // the settings line goes to a file and comes back
    const QString file = QString(QUORIX_BUILD_DIR) + "/crypto_enigma_settings.txt";
    ASSERT_TRUE(w.saveSettingsFile(file));
    crypto::Tenigmaf other;
    ASSERT_TRUE(other.loadSettingsFile(file));
    EXPECT_EQ(child<QLineEdit>(&other, "settingsLine")->text(), child<QLineEdit>(&w, "settingsLine")->text());
    EXPECT_TRUE(child<QCheckBox>(&other, "CB1")->isChecked());
    EXPECT_EQ(child<QComboBox>(&other, "C3")->currentText(), "I");
    EXPECT_FALSE(other.loadSettingsFile(QString(QUORIX_TEST_DATA) + "/german.txt"));

    // reset
    QTest::mouseClick(child<QPushButton>(&w, "D3"), Qt::LeftButton);
    EXPECT_EQ(child<QLineEdit>(&w, "settingsLine")->text(), "I-II-III; A-A-A; n/a; n/a; n/a; n/a; n/a; n/a");
    EXPECT_EQ(child<QLineEdit>(&w, "Edit4")->text(), "A");
    me1->setPlainText("AAAAA");
    w.B1C();
    EXPECT_EQ(me2->toPlainText(), "BDZGO");
}
