// The window TFGraph driven through its controls, and its picture grabbed for a look.
#include "app.h"
#include "graphs/graph.h"
#include "graphs/windows.h"
#include "lexicon/linkroute.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

using namespace graphs;

namespace {

template <class T>
T* child(QWidget* w, const char* name)
{
    T* c = w->findChild<T*>(name);
    EXPECT_NE(c, nullptr) << name;
    return c;
}

void setzen(QWidget* w, const char* feld, const char* text) { child<QLineEdit>(w, feld)->setText(text); }

void neu()
{
    testApp();
    graphScript().leeren();
    plotZustand() = PlotZustand();
    termAuswerter().setzeParameter(1, 1);
}

}  // namespace

TEST(Window, CaptionFieldsAndPicture)
{
    neu();
    ScriptAddFunction("X^2");
    ScriptAddFunction("1/X");
    std::unique_ptr<QDialog> d(createTFGraph(nullptr));
    EXPECT_EQ(d->windowTitle(), "Grafische Darstellung");
    EXPECT_EQ(d->size(), QSize(1008, 710));
    d->show();
    QApplication::processEvents();
    EXPECT_EQ(d->size(), QSize(1008, 710));  // the controls fit without growing the window
    EXPECT_EQ(child<QLineEdit>(d.get(), "E1")->text(), "X^2;1/X");
    EXPECT_EQ(child<QLineEdit>(d.get(), "E6")->text(), "-6");
    auto* w = static_cast<TFGraph*>(d.get());
    EXPECT_EQ(w->zeichner().curveCounter(), 2);
    d->grab().save(QString(QUORIX_BUILD_DIR) + "/graphs_tfgraph.png");
    EXPECT_EQ(w->bild().width(), d->findChild<QWidget*>("PB1")->width());
}

TEST(Window, ZeichnenCorrectsTheFieldsAndTakesNewTerms)
{
    neu();
    TFGraph w;
    w.show();
    QApplication::processEvents();
    setzen(&w, "E1", "sin(x);x/2");
    setzen(&w, "E6", "2*PI");
    setzen(&w, "E7", "2*pi");   // xmin = xmax: xmax becomes xmin + 1
    setzen(&w, "E8", "-500");   // cut to -200
    setzen(&w, "E9", "7,5");    // decimal comma
    QTest::mouseClick(child<QPushButton>(&w, "D1"), Qt::LeftButton);
    const Bereich& b = plotZustand().bereich;
    EXPECT_NEAR(b.xmin, 6.283185307, 1e-9);
    EXPECT_NEAR(b.xmax, 7.283185307, 1e-9);
    EXPECT_EQ(b.ymin, -200);
    EXPECT_EQ(b.ymax, 7.5);
    EXPECT_EQ(child<QLineEdit>(&w, "E7")->text(), "7.2832");
    const std::vector<std::string> erwartet = {"#F", "SIN(X)", "#F", "X/2"};
    EXPECT_EQ(graphScript().zeilen, erwartet);
    // unit fields with automatic units off: below 0.1 forced to 0.1 and written back
    child<QCheckBox>(&w, "CB2")->setChecked(false);
    setzen(&w, "E10", "0.01");
    QTest::mouseClick(child<QPushButton>(&w, "D1"), Qt::LeftButton);
    EXPECT_EQ(child<QLineEdit>(&w, "E10")->text(), "0.1");
}

TEST(Window, ZoomShiftBasicSettingAndTheLimitMessage)
{
    neu();
    TFGraph w;
    int gemeldet = 0;
    w.meldung = [&](int n) { gemeldet = n; };
    w.show();
    QApplication::processEvents();
    QTest::mouseClick(child<QPushButton>(&w, "S4"), Qt::LeftButton);
    EXPECT_NEAR(plotZustand().bereich.xmin, -3.6, 1e-12);
    QTest::mouseClick(child<QPushButton>(&w, "S6"), Qt::LeftButton);
    EXPECT_NEAR(plotZustand().bereich.ymax, 7, 1e-12);
    QTest::mouseClick(child<QPushButton>(&w, "S13"), Qt::LeftButton);
    const QWidget* pb = w.findChild<QWidget*>("PB1");
    EXPECT_EQ(plotZustand().bereich.xmin, -6);
    EXPECT_NEAR(plotZustand().bereich.ymax, 6.0 * (pb->height() + 1) / (pb->width() + 1), 1e-12);
    // wheel: down zooms in by a hundredth at each end
    w.PB1Rad(-1);
    EXPECT_NEAR(plotZustand().bereich.xmax, 6 - 0.12, 1e-12);
    plotZustand().bereich = Bereich{0, 0.005, 0, 1};
    QTest::mouseClick(child<QPushButton>(&w, "S8"), Qt::LeftButton);
    EXPECT_EQ(gemeldet, 36);
    EXPECT_EQ(plotZustand().bereich.xmax, 0.005);
}

TEST(Window, StatusTextLabelDragAndFreeParameters)
{
    neu();
    ScriptAddFunction("P*X");
    TFGraph w;
    w.show();
    QApplication::processEvents();
    const Abbildung a = w.zeichner().abbildung();
    w.PB1MM(a.pixelX(1), a.pixelY(2), false);
    EXPECT_EQ(w.statustext().toStdString(), zahlText(1, 4, a.xVonPixel(a.pixelX(1))) + " ; " +
                                                zahlText(1, 4, a.yVonPixel(a.pixelY(2))));
    w.PB1MD(a.pixelX(1), a.pixelY(2));
    EXPECT_NE(w.statustext().indexOf(" | "), -1);
    w.PB1MU(0, 0);
    // drag the label of curve 1 by (100, 50)
    ASSERT_FALSE(w.zeichner().beschriftungen().empty());
    const Beschriftung l = w.zeichner().beschriftungen()[0];
    w.PB1MD(l.x + 2, l.y + 2);
    w.PB1MM(l.x + 102, l.y + 52, true);
    w.PB1MU(l.x + 102, l.y + 52);
    EXPECT_EQ(plotZustand().labels[0].x, 110);
    EXPECT_EQ(plotZustand().labels[0].y, -30 + 50);
    EXPECT_EQ(w.zeichner().beschriftungen()[0].x, l.x + 100);
    // with S19 the pointer sets P and Q
    child<QCheckBox>(&w, "S19")->setChecked(true);
    w.PB1MM(a.pixelX(2), a.pixelY(-1), false);
    EXPECT_NEAR(termAuswerter().parameterP(), 2, 0.05);
    EXPECT_NEAR(termAuswerter().parameterQ(), -1, 0.05);
}

TEST(Window, AnimationStepsP)
{
    neu();
    ScriptAddFunction("P*X^2");
    TFGraph w;
    w.show();
    QApplication::processEvents();
    setzen(&w, "E14", "0.25");
    QTest::mouseClick(child<QPushButton>(&w, "D1"), Qt::LeftButton);
    auto* b1 = child<QPushButton>(&w, "B1");
    QTest::mouseClick(b1, Qt::LeftButton);
    EXPECT_TRUE(w.animationLaeuft());
    EXPECT_EQ(b1->text(), "Stopp");
    w.animationsschritt();
    w.animationsschritt();
    EXPECT_NEAR(termAuswerter().parameterP(), 1.5, 1e-12);
    EXPECT_EQ(child<QLineEdit>(&w, "E12")->text(), "1.5");
    EXPECT_EQ(child<QLabel>(&w, "P16")->text(), " p=1.5");
    QTest::mouseClick(child<QPushButton>(&w, "BRueck"), Qt::LeftButton);
    w.animationsschritt();
    EXPECT_NEAR(termAuswerter().parameterP(), 1.25, 1e-12);
    w.hide();  // closing stops the timer
    EXPECT_FALSE(w.animationLaeuft());
    EXPECT_EQ(b1->text(), "Animation");
}

TEST(Window, OptionsChangeThePictureAndItCanBeSaved)
{
    neu();
    ScriptAddFunction("SIN(X)");
    TFGraph w;
    w.show();
    QApplication::processEvents();
    child<QCheckBox>(&w, "CWinkel")->setChecked(true);
    child<QCheckBox>(&w, "CQuadranten")->setChecked(true);
    const QImage mit = w.bild().image();
    EXPECT_EQ(mit.pixelColor(w.bild().width() - 5, 5), QColor(255, 240, 240));
    ASSERT_TRUE(w.speichernAls(QString(QUORIX_BUILD_DIR) + "/graphs_sinus_winkel.png"));
    ASSERT_TRUE(w.speichernAls(QString(QUORIX_BUILD_DIR) + "/graphs_sinus_winkel.svg"));
    QImage geladen(QString(QUORIX_BUILD_DIR) + "/graphs_sinus_winkel.png");
    EXPECT_EQ(geladen.size(), mit.size());
    // multiples of pi with the millimetre grid: the minor lines change the picture
    child<QCheckBox>(&w, "CWinkel")->setChecked(false);
    child<QCheckBox>(&w, "CQuadranten")->setChecked(false);
    child<QCheckBox>(&w, "CBogen")->setChecked(true);
    const QImage ohneMm = w.bild().image();
    child<QCheckBox>(&w, "CMm")->setChecked(true);
    EXPECT_NE(w.bild().image(), ohneMm);
    ASSERT_TRUE(w.speichernAls(QString(QUORIX_BUILD_DIR) + "/graphs_sinus_bogenmass.png"));
    // logarithmic x axis: ln of the labels, curve through EvalTermMode 1
    child<QCheckBox>(&w, "CBogen")->setChecked(false);
    child<QCheckBox>(&w, "CMm")->setChecked(false);
    child<QCheckBox>(&w, "CLogX")->setChecked(true);
    ASSERT_FALSE(w.zeichner().protokoll().empty());
    const Abbildung& a = w.zeichner().abbildung();
    // sin(exp(u)) at u = 1: the row of sin(e)
    for (const Stiftschritt& s : w.zeichner().protokoll()[0].spur.schritte)
        if (s.x == a.pixelX(1))
            EXPECT_NEAR(s.y, a.pixelYgenau(std::sin(std::exp(a.xVonPixel(s.x)))), 1);
    ASSERT_TRUE(w.speichernAls(QString(QUORIX_BUILD_DIR) + "/graphs_sinus_logx.png"));
}

TEST(Window, PageLinkOpensWithEqualUnits)
{
    neu();
    std::unique_ptr<QDialog> d(createTFGraphFuer(lexicon::plotAuftragAusWert("~;4SIN(2*X)"), nullptr));
    ASSERT_NE(d, nullptr);
    d->show();
    QApplication::processEvents();
    auto* w = static_cast<TFGraph*>(d.get());
    EXPECT_EQ(child<QLineEdit>(d.get(), "EX")->text(), "SIN(2*X)");
    const Abbildung& a = w->zeichner().abbildung();
    EXPECT_NEAR(a.xScale, a.yScale, 1e-9);
    ASSERT_EQ(w->zeichner().protokoll().size(), 1u);
    EXPECT_EQ(w->zeichner().protokoll()[0].befehl, 'P');
    EXPECT_FALSE(w->zeichner().protokoll()[0].spur.polylinien().empty());
    EXPECT_EQ(createTFGraphFuer(lexicon::plotAuftragAusWert("Kflaeche"), nullptr), nullptr);
}

TEST(Window, MouseAndWheelReachThePaintBox)
{
    neu();
    ScriptAddFunction("X");
    TFGraph w;
    w.show();
    QApplication::processEvents();
    QWidget* pb = w.findChild<QWidget*>("PB1");
    ASSERT_NE(pb, nullptr);
    const Abbildung a = w.zeichner().abbildung();
    // a wheel step down zooms in by a hundredth at each end
    const QPointF mitte(pb->width() / 2.0, pb->height() / 2.0);
    QWheelEvent rad(mitte, pb->mapToGlobal(mitte), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
    QApplication::sendEvent(pb, &rad);
    EXPECT_NEAR(plotZustand().bereich.xmin, -6 + 0.12, 1e-12);
    EXPECT_EQ(child<QLineEdit>(&w, "E6")->text(), "-5.88");
    // a click shows the point with " | "
    QTest::mouseClick(pb, Qt::LeftButton, Qt::NoModifier, QPoint(a.originX, a.originY));
    EXPECT_EQ(w.statustext(), "0 | 0");
}

TEST(Window, FamilyFieldsGovernTheCommandS)
{
    neu();
    ScriptAddText("#S");
    ScriptAddText("X+P");
    TFGraph w;
    w.show();
    QApplication::processEvents();
    EXPECT_EQ(w.zeichner().curveCounter(), 9);  // -2 .. 2 by 0.5
    setzen(&w, "E15", "0");
    setzen(&w, "E16", "3");
    setzen(&w, "E17", "0");  // not positive: 0.5
    QTest::mouseClick(child<QPushButton>(&w, "D1"), Qt::LeftButton);
    EXPECT_EQ(w.zeichner().curveCounter(), 7);
    EXPECT_EQ(child<QLineEdit>(&w, "E17")->text(), "0.5");
}
