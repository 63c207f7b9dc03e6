#include "kernel/coordinates.h"

namespace kernel {

void CoordinatesPixel::update()
{
    const double spanX = xmax - xmin, spanY = ymax - ymin;
    xScale = spanX != 0 ? plotWidth / spanX : 1;
    yScale = spanY != 0 ? plotHeight / spanY : 1;
    originX = spanX != 0 ? SafeRound(-xmin * plotWidth / spanX) : 0;
    originY = (spanY != 0 ? SafeRound(plotHeight * ymin / spanY) : 0) + plotHeight;
}

}  // namespace kernel
