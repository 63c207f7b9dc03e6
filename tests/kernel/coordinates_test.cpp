#include "kernel/coordinates.h"

#include <gtest/gtest.h>

using namespace kernel;

TEST(CoordinatesPixel, PlotterMappingBothWays)
{
    // The plotter's default range -6..6 x -5..5 on 600 x 500 pixels: 50 pixels a unit.
    CoordinatesPixel m;
    m.plotWidth = 600;
    m.plotHeight = 500;
    m.update();
    EXPECT_DOUBLE_EQ(m.xScale, 50);
    EXPECT_DOUBLE_EQ(m.yScale, 50);
    EXPECT_EQ(m.originX, 300);
    EXPECT_EQ(m.originY, 250);
    EXPECT_EQ(m.pixelOfX(1), 350);
    EXPECT_EQ(m.pixelOfY(1), 200);  // y grows upwards, rows downwards
    EXPECT_DOUBLE_EQ(m.pixelOfXExact(0.01), 300.5);
    EXPECT_DOUBLE_EQ(m.xOfPixel(0), -6);
    EXPECT_DOUBLE_EQ(m.yOfPixel(0), 5);
    EXPECT_EQ(m.pixelOfY(1e12), -100000);  // wild values are limited like every pixel

    // An off-centre range: origin outside the picture.
    m.xmin = 2;
    m.xmax = 4;
    m.ymin = 1;
    m.ymax = 3;
    m.update();
    EXPECT_EQ(m.originX, -600);
    EXPECT_EQ(m.originY, 750);
    EXPECT_EQ(m.pixelOfX(3), 300);
    EXPECT_EQ(m.pixelOfY(2), 250);
}
