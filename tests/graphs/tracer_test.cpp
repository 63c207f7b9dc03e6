// The curve tracer as a pure function: where the pen lifts, joins and sets single points.
#include "graphs/kernelbindung.h"
#include "graphs/kurventracer.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace graphs;

namespace {

// The default window of the plotter on a 600 x 500 paint box.
Abbildung standard() { return Abbildung::aus(Bereich{-6, 6, -5, 5}, 600, 500); }

Funktion term(const std::string& t)
{
    return [t](double x, int& e) { return termAuswerter().wert(t, x, e); };
}

// Largest row jump inside any joined piece.
int groessterSprung(const Kurvenspur& s)
{
    int m = 0;
    for (const auto& zug : s.polylinien())
        for (size_t i = 1; i < zug.size(); ++i)
            m = std::max(m, std::abs(zug[i].y - zug[i - 1].y));
    return m;
}

}  // namespace

TEST(Tracer, HyperbolaKeepsItsBranchesApart)
{
    const Abbildung a = standard();
    int aufrufe = 0;
    bool nullGetroffen = false;
    // 1/x as the interpreter gives it: at 0 the clamp value with code 2
    Funktion f = [&](double x, int& e) {
        ++aufrufe;
        e = 0;
        if (x == 0) {
            nullGetroffen = true;
            e = tfDefinition;
            return 10000000000.0;
        }
        return 1 / x;
    };
    const Kurvenspur s = kurveVerfolgen(f, a, kaNormal);
    EXPECT_TRUE(nullGetroffen) << "the column of x=0 must be sampled, origin at " << a.originX;
    const auto zuege = s.polylinien();
    ASSERT_GE(zuege.size(), 2u);
    // no piece crosses the column of the pole
    for (const auto& z : zuege) {
        const bool links = z.front().x < a.originX;
        for (const Punkt& p : z)
            EXPECT_EQ(p.x < a.originX || (p.x == a.originX && !links), links)
                << "piece from " << z.front().x << " to " << z.back().x << " crosses x=0 at " << a.originX;
    }
    EXPECT_EQ(s.auswertungen, aufrufe);
}

TEST(Tracer, HyperbolaThroughTheInterimEvaluator)
{
    const Abbildung a = standard();
    const Kurvenspur s = kurveVerfolgen(term("1/X"), a, kaNormal);
    const auto zuege = s.polylinien();
    ASSERT_EQ(zuege.size(), 2u);
    EXPECT_LT(zuege[0].back().x, a.originX);
    EXPECT_GT(zuege[1].front().x, a.originX);
    // the left branch ends far below, the right one begins far above: no stroke across
    EXPECT_GT(zuege[0].back().y, a.plotHeight);
    EXPECT_LT(zuege[1].front().y, 0);
}

TEST(Tracer, IntegerPartGivesSinglePointsOnly)
{
    const Abbildung a = standard();
    const Kurvenspur s = kurveVerfolgen(term("INT(X)"), a, kaNormal);
    EXPECT_TRUE(s.polylinien().empty());
    const auto punkte = s.einzelpunkte();
    EXPECT_GE(static_cast<int>(punkte.size()), a.plotWidth - 1);
    // each point lies on its step: INT(x) at the column's x
    for (const Punkt& p : punkte) {
        const double x = a.xVonPixel(p.x);
        const double erwartet = x >= 0 ? std::trunc(x) : std::trunc(x - 1);
        EXPECT_EQ(p.y, a.pixelY(erwartet)) << "column " << p.x;
    }
}

TEST(Tracer, SteepFunctionIsJoinedLineByLine)
{
    const Abbildung a = standard();
    // 40x rises 2000 pixels over the plot, 33 rows a column: one piece while inside the margin
    const Kurvenspur s = kurveVerfolgen(term("40*X"), a, kaNormal);
    const auto zuege = s.polylinien();
    ASSERT_EQ(zuege.size(), 1u);
    EXPECT_GT(groessterSprung(s), 30);
    // the piece runs from the lower margin to the upper one
    EXPECT_GE(zuege[0].front().y, a.plotHeight);
    EXPECT_LE(zuege[0].back().y, 0);
}

TEST(Tracer, TangentLiftsThePenBeyondTheMargin)
{
    const Abbildung a = standard();
    const Kurvenspur s = kurveVerfolgen(term("TAN(X)"), a, kaNormal);
    // four poles in -6..6 give five branches
    EXPECT_EQ(s.polylinien().size(), 5u);
    // joins end only inside the margin of 200 rows; the pen may come from further out
    for (const Stiftschritt& st : s.schritte)
        if (st.art == Stift::Linie)
            EXPECT_TRUE(st.y >= -200 && st.y <= a.plotHeight + 200) << st.y;
}

TEST(Tracer, DomainFaultsStartTheCurveLateAndLiftThePen)
{
    const Abbildung a = standard();
    const Kurvenspur w = kurveVerfolgen(term("SQRT(X)"), a, kaNormal);
    // step 1 skips every column with code 2: the first point is the first x >= 0
    ASSERT_FALSE(w.schritte.empty());
    EXPECT_EQ(w.schritte.front().art, Stift::Bewegen);
    EXPECT_EQ(w.schritte.front().x, a.originX);
    EXPECT_EQ(w.polylinien().size(), 1u);

    // LN(X^2-4): no value in -2..2, two branches outside
    const Kurvenspur l = kurveVerfolgen(term("LN(X^2-4)"), a, kaNormal);
    ASSERT_EQ(l.polylinien().size(), 2u);
    for (const Stiftschritt& st : l.schritte)
        if (st.art == Stift::Linie)
            EXPECT_GT(std::fabs(a.xVonPixel(st.x)), 2) << st.x;
}

TEST(Tracer, DefinitionRangeCutsTheCurve)
{
    const Abbildung a = standard();
    TracerOptionen o;
    o.domainLow = -1;
    o.domainHigh = 2;
    const Kurvenspur s = kurveVerfolgen(term("X^2"), a, kaNormal, o);
    const auto zuege = s.polylinien();
    ASSERT_EQ(zuege.size(), 1u);
    EXPECT_GE(a.xVonPixel(zuege[0].front().x), -1 - 1e-9);
    EXPECT_LE(a.xVonPixel(zuege[0].back().x), 2 + 1.0 / a.xScale);
    EXPECT_GT(a.xVonPixel(zuege[0].back().x), 2 - 1.0 / a.xScale);
}

TEST(Tracer, ValuesBeyondTheIntegerRangeMoveThePenToFixedRows)
{
    const Abbildung a = standard();
    Funktion riesig = [](double x, int& e) {
        e = 0;
        return x < 0 ? 1e300 : -1e300;
    };
    const Kurvenspur s = kurveVerfolgen(riesig, a, kaNormal);
    EXPECT_TRUE(s.polylinien().empty());
    for (const Stiftschritt& st : s.schritte) {
        EXPECT_EQ(st.art, Stift::Bewegen);
        // a positive value lies above: a negative pixel row, so the pen goes to -1
        EXPECT_EQ(st.y, a.xVonPixel(st.x) < 0 ? -1 : 1000) << st.x;
    }
}

TEST(Tracer, PointModeSetsPixelsInsteadOfLines)
{
    const Abbildung a = standard();
    TracerOptionen o;
    o.punktmodus = true;
    const Kurvenspur s = kurveVerfolgen(term("SIN(X)"), a, kaNormal, o);
    EXPECT_TRUE(s.polylinien().empty());
    EXPECT_EQ(static_cast<int>(s.einzelpunkte().size()), a.plotWidth + 9);
}

TEST(Tracer, NumericalDerivativesOfTheParabola)
{
    const Abbildung a = standard();
    // (x^2)' = 2x, (x^2)'' = 2: compare rows within a pixel
    const Kurvenspur s1 = kurveVerfolgen(term("X^2"), a, kaAbleitung1);
    const Kurvenspur s2 = kurveVerfolgen(term("X^2"), a, kaAbleitung2);
    for (const auto& z : s1.polylinien())
        for (const Punkt& p : z) {
            const double x = a.xVonPixel(p.x);
            EXPECT_NEAR(p.y, a.pixelYgenau(2 * x + 1.0 / a.xScale), 1.0) << "x=" << x;
        }
    for (const auto& z : s2.polylinien())
        for (const Punkt& p : z)
            EXPECT_NEAR(p.y, a.pixelYgenau(2), 1.0);
    // two evaluations a column for the first, three for the second
    EXPECT_EQ(s2.auswertungen * 2, s1.auswertungen * 3);
}

TEST(Tracer, MirrorKinds)
{
    const Abbildung a = standard();
    auto rows = [&](int art) {
        std::vector<int> r;
        for (const Stiftschritt& st : kurveVerfolgen(term("X^3/10+1"), a, art).schritte)
            r.push_back(st.y);
        return r;
    };
    const std::vector<int> f = rows(kaNormal), fmx = rows(kaSpiegelY), mf = rows(kaSpiegelX),
                           mfmx = rows(kaPunktSpiegel);
    ASSERT_EQ(f.size(), fmx.size());
    for (size_t i = 0; i < f.size(); ++i) {
        const double x = a.xVonPixel(static_cast<int>(i) - 9);
        const double fx = x * x * x / 10 + 1;
        if (std::fabs(fx) > 20)
            continue;
        EXPECT_NEAR(f[i], a.pixelYgenau(fx), 1);
        EXPECT_NEAR(fmx[i], a.pixelYgenau(-x * x * x / 10 + 1), 1);
        EXPECT_NEAR(mf[i], a.pixelYgenau(-fx), 1);
        EXPECT_NEAR(mfmx[i], a.pixelYgenau(x * x * x / 10 - 1), 1);
    }
    const Kurvenspur ff = kurveVerfolgen(term("X/2+1"), a, kaVerkettung);
    for (const auto& z : ff.polylinien())
        for (const Punkt& p : z) {
            const double x = a.xVonPixel(p.x);
            EXPECT_NEAR(p.y, a.pixelYgenau((x / 2 + 1) / 2 + 1), 1);
        }
}

TEST(Tracer, ParametricCircleIsClosedAndRound)
{
    const Abbildung a = Abbildung::aus(Bereich{-2, 2, -2, 2}, 400, 400);
    const Kurvenspur s = parameterkurveVerfolgen(term("COS(X)"), term("SIN(X)"), 0, 2 * M_PI, 0.01, a);
    const auto zuege = s.polylinien();
    ASSERT_EQ(zuege.size(), 1u);
    for (const Punkt& p : zuege[0])
        EXPECT_NEAR(std::hypot(p.x - a.originX, p.y - a.originY), 100.25, 1.5);
    EXPECT_LE(std::abs(zuege[0].front().x - zuege[0].back().x), 1);
    EXPECT_EQ(s.auswertungen, 2 * 629);
}
