// The pixel mapping, the range rules of the controls, the palette and the pen width.
#include "graphs/abbildung.h"
#include "graphs/plotzustand.h"

#include <gtest/gtest.h>

using namespace graphs;

TEST(Mapping, OriginScaleAndRoundTrip)
{
    // paint box 999 x 699: PlotWidth 1000, PlotHeight 700
    const Abbildung a = Abbildung::aus(Bereich{-2, 8, -3, 4}, 999, 699);
    EXPECT_EQ(a.plotWidth, 1000);
    EXPECT_EQ(a.plotHeight, 700);
    EXPECT_DOUBLE_EQ(a.xScale, 100);
    EXPECT_DOUBLE_EQ(a.yScale, 100);
    EXPECT_EQ(a.originX, 200);
    EXPECT_EQ(a.originY, 400);  // round(700*-3/7) + 700
    EXPECT_EQ(a.pixelX(0), 200);
    EXPECT_EQ(a.pixelX(8), 1000);
    EXPECT_EQ(a.pixelY(4), 0);
    EXPECT_EQ(a.pixelY(-3), 700);
    EXPECT_EQ(a.pixelY(1.234), 277);
    EXPECT_DOUBLE_EQ(a.xVonPixel(350), 1.5);
    EXPECT_DOUBLE_EQ(a.yVonPixel(a.pixelYgenau(2.5)), 2.5);
    // wild values are limited so drawing calls cannot overflow
    EXPECT_EQ(a.pixelY(-1e12), 100000);
    EXPECT_EQ(a.pixelY(1e12), -100000);
}

TEST(RangeCorrections, AtZeichnen)
{
    struct Fall {
        Bereich ein, aus;
    } faelle[] = {
        {{-6, 6, -5, 5}, {-6, 6, -5, 5}},
        {{-500, 300, -201, 250}, {-200, 200, -200, 200}},  // limited to 200 either way
        {{3, 3, 1, 1}, {3, 4, 1, 2}},                      // an empty span opens to one unit
        {{3, 3.01, 2, 1}, {3, 4, 2, 3}},                   // also a span below 0.02 or reversed
        {{-300, -250, 0, 0.5}, {-200, -199, 0, 0.5}},      // cut first, then opened
    };
    for (const Fall& f : faelle) {
        const Bereich r = bereichKorrigieren(f.ein);
        EXPECT_DOUBLE_EQ(r.xmin, f.aus.xmin);
        EXPECT_DOUBLE_EQ(r.xmax, f.aus.xmax);
        EXPECT_DOUBLE_EQ(r.ymin, f.aus.ymin);
        EXPECT_DOUBLE_EQ(r.ymax, f.aus.ymax);
    }
    EXPECT_DOUBLE_EQ(einheitKorrigieren(0.05), 0.1);
    EXPECT_DOUBLE_EQ(einheitKorrigieren(-2), 0.1);
    EXPECT_DOUBLE_EQ(einheitKorrigieren(0.5), 0.5);
}

TEST(RangeCorrections, ZoomAndShift)
{
    Bereich b{-5, 5, -2, 2};
    const Bereich r = verschieben(b, 1, 0);
    EXPECT_DOUBLE_EQ(r.xmin, -3);
    EXPECT_DOUBLE_EQ(r.xmax, 7);
    const Bereich o = verschieben(b, 0, -1);
    EXPECT_DOUBLE_EQ(o.ymin, -2.8);
    EXPECT_DOUBLE_EQ(o.ymax, 1.2);

    ASSERT_TRUE(verkleinern(b));
    EXPECT_DOUBLE_EQ(b.xmin, -4);
    EXPECT_DOUBLE_EQ(b.ymax, 1.6);
    ASSERT_TRUE(vergroessern(b, 0.01));
    EXPECT_NEAR(b.xmax, 4.08, 1e-12);

    // zooming in stops when a span is not above 0.01; zooming out at 1000000; nothing changes
    Bereich eng{0, 0.01, 0, 5};
    EXPECT_FALSE(verkleinern(eng));
    EXPECT_DOUBLE_EQ(eng.xmax, 0.01);
    Bereich weit{-400000, 600000, 0, 10};
    EXPECT_FALSE(vergroessern(weit));
    // zooming is not cut to 200: only "Zeichnen" does that
    Bereich gross{-190, 190, -190, 190};
    ASSERT_TRUE(vergroessern(gross));
    EXPECT_DOUBLE_EQ(gross.xmax, 228);
}

TEST(RangeCorrections, BasicSettingAndEqualUnits)
{
    const Bereich g = grundeinstellung(1000, 700, false);
    EXPECT_DOUBLE_EQ(g.xmin, -6);
    EXPECT_DOUBLE_EQ(g.xmax, 6);
    EXPECT_DOUBLE_EQ(g.ymin, -4.2);
    EXPECT_DOUBLE_EQ(g.ymax, 4.2);
    EXPECT_DOUBLE_EQ(grundeinstellung(1000, 700, true).xmin, -8);
    const Bereich y = yAufloesungAnpassen(Bereich{-1, 3, 0, 1}, 801, 401);
    const Abbildung a = Abbildung::aus(y, 800, 400);
    EXPECT_NEAR(a.xScale, a.yScale, 1e-9);
}

TEST(RangeCorrections, AutomaticUnitsFollowOneTwoFive)
{
    EXPECT_DOUBLE_EQ(automatischeEinheit(12, 1000), 1);
    EXPECT_DOUBLE_EQ(automatischeEinheit(12, 300), 2);
    EXPECT_DOUBLE_EQ(automatischeEinheit(400, 1000), 20);
    EXPECT_DOUBLE_EQ(automatischeEinheit(0.1, 800), 0.01);
    EXPECT_DOUBLE_EQ(automatischeEinheit(1000000, 1000), 50000);
}

TEST(Palette, CurveColoursInOrderAndTheNinth)
{
    const int eintraege[8] = {-1, 11, 2, 1, 8, 6, 4, 5};
    EXPECT_EQ(kurvenfarbe(1, true), platform::clBlack);
    for (int n = 2; n <= 8; ++n)
        EXPECT_EQ(kurvenfarbe(n, true), farbtabelle[eintraege[n - 1]]) << "curve " << n;
    // above 8: entry n mod 8 + 1, so colours repeat from the ninth on
    EXPECT_EQ(kurvenfarbe(9, true), farbtabelle[2]);
    EXPECT_EQ(kurvenfarbe(9, true), kurvenfarbe(3, true));
    EXPECT_EQ(kurvenfarbe(10, true), farbtabelle[3]);
    EXPECT_EQ(kurvenfarbe(16, true), farbtabelle[1]);
    EXPECT_EQ(kurvenfarbe(17, true), farbtabelle[2]);
    // the first eight are all different
    for (int i = 1; i <= 8; ++i)
        for (int j = i + 1; j <= 8; ++j)
            EXPECT_NE(kurvenfarbe(i, true), kurvenfarbe(j, true)) << i << " " << j;
    for (int n = 1; n <= 20; ++n)
        EXPECT_EQ(kurvenfarbe(n, false), platform::clBlack);
}

TEST(Palette, PenWidthFromBreite)
{
    EXPECT_EQ(stiftbreite(3), 3);
    EXPECT_EQ(stiftbreite(9), 9);
    EXPECT_EQ(stiftbreite(10), 5);
    EXPECT_EQ(stiftbreite(-1), 1);
    EXPECT_EQ(stiftbreite(0), 1);
}

TEST(Labels, ThirtyPositionsResetToTheirColumn)
{
    PlotZustand z;
    z.labels[4] = {300, 300};
    z.labelsZuruecksetzen();
    for (int n = 1; n <= 30; ++n) {
        EXPECT_EQ(z.labels[n - 1].x, 10);
        EXPECT_EQ(z.labels[n - 1].y, (n - 1) * 20 - 30);
    }
}
