#pragma once
// The plotter's pixel mapping, shared by every tool that draws over a coordinate system.
#include "kernel/numeric.h"

namespace kernel {

struct CoordinatesPixel {
    int plotWidth = 0;
    int plotHeight = 0;
    double xmin = -6, xmax = 6, ymin = -5, ymax = 5;
    double xScale = 1, yScale = 1;  // pixels per unit
    int originX = 0, originY = 0;   // pixel of (0, 0)

    // Recomputes scales and origin from the range and the plot size.
    void update();

    double xOfPixel(double p) const { return (p - originX) / xScale; }
    double yOfPixel(double p) const { return (originY - p) / yScale; }
    double pixelOfXExact(double x) const { return x * xScale + originX; }
    double pixelOfYExact(double y) const { return -y * yScale + originY; }
    int pixelOfX(double x) const { return SafeRound(pixelOfXExact(x)); }
    int pixelOfY(double y) const { return SafeRound(pixelOfYExact(y)); }
};

}  // namespace kernel
