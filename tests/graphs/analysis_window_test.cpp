// The windows TFAnalysis and TFintegra driven through their entry points: the page the catalogue
// names, the discussion and tangent lists, the plot script, the term check, the library click;
// pictures grabbed to the build folder for a look.
#include "app.h"
#include "graphs/uanalysis.h"
#include "graphs/uintegration.h"
#include "graphs/windows.h"

#include <QLineEdit>
#include <QPixmap>
#include <gtest/gtest.h>

#include <memory>

using namespace graphs;

namespace {

std::string datei(const char* name) { return std::string(QUORIX_BUILD_DIR) + "/" + name; }

void bildSpeichern(QWidget* w, const char* name)
{
    w->show();
    const QPixmap pic = w->grab();
    EXPECT_EQ(pic.size(), QSize(1008, 710));
    pic.save(QString::fromStdString(datei(name)));
}

}  // namespace

TEST(AnalyseFenster, OpensOnTheCataloguePage)
{
    testApp();
    for (int seite = -1; seite < 5; ++seite) {
        std::unique_ptr<QDialog> d(createTFAnalysis(nullptr, seite));
        auto* w = qobject_cast<TFAnalysis*>(d.get());
        ASSERT_NE(w, nullptr);
        EXPECT_EQ(w->windowTitle(), "Quorix");
        EXPECT_EQ(w->size(), QSize(1008, 710));
        EXPECT_EQ(w->seite(), seite < 0 ? 0 : seite);
    }
}

TEST(AnalyseFenster, DiscussionTangentAndPlot)
{
    testApp();
    TFAnalysis w(nullptr, 2);
    w.setzeTerm(1, "x^3-3*x");
    w.setzeTerm(2, "");
    w.D7C();
    const QStringList z = w.zeilen();
    EXPECT_TRUE(z.contains("Nullstelle x = 1.732")) << z.join("\n").toStdString();
    EXPECT_TRUE(z.contains("Hochpunkt\t(-1 | 2)"));
    // the plot marks the zeros in red after the curve
    const auto& s = w.skript().zeilen;
    ASSERT_GE(s.size(), 5u);
    EXPECT_EQ(s[0], "#F");
    EXPECT_EQ(s[1], "X^3-3*X");
    EXPECT_EQ(s[2], "#w");
    EXPECT_EQ(s[3], "rot");
    bildSpeichern(&w, "analysis_diskussion.png");

    // value table and the rules side by side over the interval set in the fields
    w.seiteWaehlen(1);
    w.findChild<QLineEdit*>("Evon")->setText("0");
    w.findChild<QLineEdit*>("Ebis")->setText("2");
    w.findChild<QLineEdit*>("Eschritt")->setText("0,5");
    w.S12C();
    ASSERT_EQ(w.zeilen().size(), 7);
    EXPECT_EQ(w.zeilen()[6], "2\t2\t9\t12\t-2");  // f(2) = 2, f'(2) = 9, f''(2) = 12, F(2) = 4-6
    w.seiteWaehlen(3);
    w.findChild<QLineEdit*>("Eschritt")->setText("4");
    w.integrationC();
    EXPECT_TRUE(w.zeilen().contains("Simpson-Regel\t-2\tFehler 0")) << w.zeilen().join("\n").toStdString();
    w.findChild<QLineEdit*>("Evon")->setText("-10");
    w.findChild<QLineEdit*>("Ebis")->setText("10");

    w.seiteWaehlen(4);
    w.B4C();
    EXPECT_TRUE(w.zeilen().contains("Tangentengleichung \ty = -2")) << w.zeilen().join("\n").toStdString();
    bildSpeichern(&w, "analysis_tangente.png");

    // a faulty term stops with the message of the term check (no box on a hidden window)
    w.hide();
    w.setzeTerm(1, "FOO(X)");
    w.D7C();
    ASSERT_FALSE(w.meldungen().isEmpty());
    EXPECT_EQ(w.meldungen().back(), "Funktion1 fehlerhaft");
}

TEST(AnalyseFenster, PlotOptionsAndLibrary)
{
    testApp();
    TFAnalysis w(nullptr, 0);
    std::array<std::string, 6> terme = {"X^2", "X", "", "", "", ""};
    Plotwahl p;
    p.option[1] = true;   // f(-x)
    p.option[10] = true;  // band P..Q
    p.option[18] = true;  // area f1..f2
    Skriptliste s;
    plotSkriptSchreiben(s, terme, p, 1, 3, 0.5);
    const std::vector<std::string> soll = {"#F", "X^2", "#F", "X", "#A", "3", "X^2", "#H", "1", "3",
                                           "#V", "X^2", "X", "1", "3"};
    EXPECT_EQ(s.zeilen, soll);
    // the evolute of y = x^2 is x = -4t^3, y = 3t^2 + 1/2 (centres of curvature)
    std::string ex, ey;
    ASSERT_TRUE(evolutenTerme("X^2", ex, ey));
    for (double t : {-1.0, 0.5, 2.0}) {
        int e = 0;
        EXPECT_NEAR(termfunktion(ex)(t, e), -4 * t * t * t, 1e-9) << ex;
        EXPECT_NEAR(termfunktion(ey)(t, e), 3 * t * t + 0.5, 1e-9) << ey;
    }
    EXPECT_FALSE(evolutenTerme("FOO(X)", ex, ey));
    // field 2 may call field 1 and its derivative: x^2 and x^2-2x meet at 0 only
    w.setzeTerm(1, "X^2");
    w.setzeTerm(2, "F1(X)-F2(X)");
    w.D8C();
    EXPECT_TRUE(w.zeilen().contains("(0 | 0)")) << w.zeilen().join("\n").toStdString();
    EXPECT_EQ(w.zeilen().size(), 6);
    // a library click fills the first free field
    w.setzeTerm(3, "");
    w.bibliothekKlick(0);
    EXPECT_FALSE(w.term(3).isEmpty());
    w.B1C(false);
    bildSpeichern(&w, "analysis_darstellung.png");
}

TEST(IntegralFenster, AreasAndSolid)
{
    testApp();
    std::unique_ptr<QDialog> d(createTFintegra(nullptr));
    auto* w = qobject_cast<TFintegra*>(d.get());
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), "Quorix");
    w->setzeFelder("X^2", "X", "X^3/3", "X^2/2", "0", "2");
    w->berechnen();
    EXPECT_TRUE(w->zeilen().contains(QString::fromUtf8("Absolute Fläche\t1 FE"))) << w->zeilen().join("\n").toStdString();
    bildSpeichern(w, "integration_flaeche.png");
    w->setzeFelder("SQRT(X)", "0", "", "", "0", "4");
    w->setzeVerfahren(Integrationsverfahren::Romberg, 8);
    w->berechnen();
    EXPECT_TRUE(w->zeilen().contains(QString::fromUtf8("Volumen des Rotationskörpers\t25.132741 RE\t= 8 · PI RE")))
        << w->zeilen().join("\n").toStdString();
    w->RG1C(1);
    bildSpeichern(w, "integration_koerper.png");
    // a rectangle rule over f alone shows its strips: left sum of x^2 on [0, 3] with 6 strips
    w->RG1C(0);
    w->setzeFelder("X^2", "0", "", "", "0", "3");
    w->setzeVerfahren(Integrationsverfahren::RechteckLinks, 6);
    w->berechnen();
    EXPECT_TRUE(w->zeilen().contains(QString::fromUtf8("Orientierte Fläche\t6.875 FE")));
    ASSERT_FALSE(w->skript().zeilen.empty());
    EXPECT_EQ(w->skript().zeilen[0], "#I");
    bildSpeichern(w, "integration_streifen.png");
    // a term fault leaves the list with its message
    w->hide();
    w->setzeFelder("FOO(X)", "0", "", "", "0", "1");
    w->berechnen();
    EXPECT_EQ(w->zeilen().back(), "Funktion1 fehlerhaft");
}
