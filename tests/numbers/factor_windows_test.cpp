// Tfaktform and Tfphase driven through their buttons: results in the list, live progress during
// a run, abort by a second press; pictures saved mid-run and at the end for looking at.
#include "numbers/factor/factorwindows.h"
#include "numbers/factor/ufakto.h"
#include "numbers/factor/uphase.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

// The calculator windows' tests keep their own application object: ours lives only for this
// suite, so the two never exist at once.
class FactorWindows : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        if (!QCoreApplication::instance())
            owned = new QApplication(argc, argv);
    }
    static void TearDownTestSuite()
    {
        delete owned;
        owned = nullptr;
    }
    static inline QApplication* owned = nullptr;
    static inline int argc = 1;
    static inline char name[] = "test_numbers";
    static inline char* argv[] = {name, nullptr};
};

QStringList items(QListWidget* lb)
{
    QStringList l;
    for (int i = 0; i < lb->count(); ++i)
        l << lb->item(i)->text();
    return l;
}

QString png(const char* name) { return QString(QUORIX_BUILD_DIR) + "/" + name; }

}  // namespace

TEST_F(FactorWindows, TfaktformFactorsAndShowsProgress)
{
    std::unique_ptr<QDialog> d(createTfaktform(nullptr));
    auto* w = dynamic_cast<Tfaktform*>(d.get());
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->size(), QSize(1008, 710));
    EXPECT_EQ(w->windowTitle(), "Quorix");
    EXPECT_EQ(w->E1->text(), QString(57, '1')) << "the default is the repunit of 57 ones";
    EXPECT_EQ(w->LZiffern->text(), "Ziffern: 57");
    EXPECT_EQ(w->LBit->text(), "Bit: 187");
    w->E1->setText("-0a12b34");  // the filter keeps digits and a leading sign
    EXPECT_EQ(w->E1->text(), "-1234");
    w->show();

    // 40 digits: 27578836091457830909 * 95251334468280329569
    w->E1->setText("2626920940793330852865987489732394848221");
    w->d1->click();
    QStringList l = items(w->LB1);
    ASSERT_GE(l.size(), 3);
    EXPECT_TRUE(l.join("\n").contains("\t= 27578836091457830909 (20) · 95251334468280329569 (20)")) << l.join("\n").toStdString();
    EXPECT_TRUE(l[0].endsWith("  =")) << l[0].toStdString();
    EXPECT_EQ(l.last(), QString::fromUtf8("¯").repeated(47));
    EXPECT_EQ(w->d1->text(), "Faktorisieren");

    // 60 digits run long enough for progress texts: grab the window mid-run, then press again
    w->LB1->clear();
    w->E1->setText("246818370901728406714485929058722761556698596536697701317243");
    QString seenStatus, seenButton;
    QTimer::singleShot(2500, w, [&] {
        seenStatus = w->LStatus->text();
        seenButton = w->d1->text();
        EXPECT_TRUE(w->grab().save(png("tool28_running.png")));
        w->d1->click();  // second press: abort
    });
    w->d1->click();
    EXPECT_EQ(seenButton, "Abbruch");
    EXPECT_TRUE(seenStatus.startsWith("Fortschritt: ")) << seenStatus.toStdString();
    l = items(w->LB1);
    EXPECT_TRUE(l.contains("Abbruch")) << l.join("\n").toStdString();
    EXPECT_FALSE(w->running());
    EXPECT_EQ(w->d1->text(), "Faktorisieren");

    // zero does nothing; one gets no factors and no prime message; a prime is reported as such
    w->LB1->clear();
    w->E1->setText("0");
    w->d1->click();
    EXPECT_EQ(w->LB1->count(), 0);
    w->E1->setText("1");
    w->d1->click();
    QString one = items(w->LB1).join("\n");
    EXPECT_FALSE(one.contains("Primzahl") || one.contains("Primfaktoren") || one.contains("\t= "))
        << one.toStdString();
    w->LB1->clear();
    w->E1->setText("2147483647");
    w->d1->click();
    EXPECT_TRUE(items(w->LB1).contains("Zahl ist wahrscheinlich Primzahl"));
    w->E1->setText("720");
    w->d1->click();
    EXPECT_TRUE(items(w->LB1).join("\n").contains(QString::fromUtf8("Primfaktoren \t2^4 · 3^2 · 5")))
        << items(w->LB1).join("\n").toStdString();
    EXPECT_TRUE(w->grab().save(png("tool28.png")));
}

TEST_F(FactorWindows, TfphaseChainProgressAndAbort)
{
    QStringList messages;
    Tfphase::showMessage = [&](const QString& t) { messages << t; };
    std::unique_ptr<QDialog> d(createTfphase(nullptr));
    auto* w = dynamic_cast<Tfphase*>(d.get());
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->size(), QSize(1008, 710));
    EXPECT_EQ(w->E15->text(), "1200");
    EXPECT_EQ(w->E11->text(), "50");
    EXPECT_FALSE(w->CheckBox1->isVisible());
    w->show();

    // M(67) through the chain with the sieve switch
    w->Cb14->setChecked(true);
    w->E8->setText("M(67)");
    w->d26->click();
    EXPECT_EQ(w->E8->text(), "147573952589676412927") << "the expanded formula replaces the text";
    QString all = items(w->LB1).join("\n");
    EXPECT_TRUE(all.contains("gefundener Teiler\t193707721")) << all.toStdString();
    EXPECT_TRUE(all.contains("gefundener Teiler\t761838257287")) << all.toStdString();
    EXPECT_TRUE(all.contains("Zahl ist faktorisiert"));
    EXPECT_EQ(w->d26->text(), "Start");
    EXPECT_TRUE(w->LZeit->text().startsWith("Zeit: "));

    // one rho group, curves that fail on two 20-digit primes, a rest above the digit limit: it
    // goes to a modal Tfaktform and its result text comes back
    w->LB1->clear();
    w->E11->setText("10");
    w->E15->setText("1");
    w->E8->setText("2626920940793330852865987489732394848221");
    bool sawSieveWindow = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        QWidget* m = QApplication::activeModalWidget();
        sawSieveWindow = sawSieveWindow || qobject_cast<Tfaktform*>(m) != nullptr;
    });
    watch.start(50);
    QTimer::singleShot(60000, w, [] {  // safety net: a modal window that never returns
        if (auto* f = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            f->reject();
    });
    w->d26->click();
    watch.stop();
    all = items(w->LB1).join("\n");
    EXPECT_TRUE(sawSieveWindow) << all.toStdString();
    EXPECT_TRUE(all.contains("Faktorisierung mit elliptischen Kurven")) << all.toStdString();
    EXPECT_TRUE(all.contains("gefundener Teiler\t27578836091457830909")) << all.toStdString();
    EXPECT_TRUE(all.contains("gefundener Teiler\t95251334468280329569")) << all.toStdString();
    EXPECT_TRUE(all.contains("Zahl ist faktorisiert")) << all.toStdString();
    EXPECT_TRUE(Tfaktform::uebergabe.empty()) << "the hand-over text is taken up";
    w->E11->setText("50");
    w->E15->setText("1200");

    // 101 digits: the message and no work
    int before = w->LB1->count();
    w->E8->setText(QString(101, '3'));
    w->d26->click();
    EXPECT_EQ(messages.size(), 1);
    EXPECT_EQ(w->LB1->count(), before);

    // a 60-digit semiprime without the switch: rho runs its groups with live counts; abort
    w->Cb14->setChecked(false);
    w->LB1->clear();
    w->E8->setText("246818370901728406714485929058722761556698596536697701317243");
    QString groups, button;
    QTimer::singleShot(1500, w, [&] {
        groups = w->LGruppen->text();
        button = w->d26->text();
        EXPECT_TRUE(w->grab().save(png("tool19_running.png")));
        w->d26->click();
    });
    w->d26->click();
    EXPECT_EQ(button, "Abbruch");
    EXPECT_TRUE(groups.startsWith("Gruppen: ")) << groups.toStdString();
    EXPECT_GT(groups.mid(9).toInt(), 0) << "the group count moves during the run";
    EXPECT_FALSE(w->running());
    EXPECT_TRUE(w->lastOutcome.aborted);
    EXPECT_EQ(w->d26->text(), "Start");

    w->LB1->clear();
    w->Cb14->setChecked(true);
    w->E8->setText("F(150)");
    w->d26->click();
    EXPECT_TRUE(items(w->LB1).join("\n").contains("Zahl ist faktorisiert"));
    EXPECT_TRUE(w->grab().save(png("tool19.png")));
}
