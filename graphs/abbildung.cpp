#include "graphs/abbildung.h"

#include "graphs/kernelbindung.h"

#include <cmath>

namespace graphs {

Abbildung Abbildung::aus(const Bereich& b, int breite, int hoehe)
{
    Abbildung a;
    a.b = b;
    a.plotWidth = breite + 1;
    a.plotHeight = hoehe + 1;
    a.xScale = a.plotWidth / (b.xmax - b.xmin);
    a.yScale = a.plotHeight / (b.ymax - b.ymin);
    a.originX = pixelRunden(-b.xmin * a.plotWidth / (b.xmax - b.xmin));
    a.originY = pixelRunden(a.plotHeight * b.ymin / (b.ymax - b.ymin)) + a.plotHeight;
    return a;
}

int Abbildung::pixelX(double x) const { return pixelRunden(pixelXgenau(x)); }
int Abbildung::pixelY(double y) const { return pixelRunden(pixelYgenau(y)); }

Bereich bereichKorrigieren(Bereich b)
{
    if (b.xmin < -200) b.xmin = -200;
    if (b.ymin < -200) b.ymin = -200;
    if (b.xmax > 200) b.xmax = 200;
    if (b.ymax > 200) b.ymax = 200;
    if (!(b.xmin + 0.02 < b.xmax)) b.xmax = b.xmin + 1;
    if (!(b.ymin + 0.02 < b.ymax)) b.ymax = b.ymin + 1;
    return b;
}

double einheitKorrigieren(double e) { return e < 0.1 ? 0.1 : e; }

Bereich verschieben(const Bereich& b, int dx, int dy)
{
    Bereich r = b;
    const double sx = (b.xmax - b.xmin) / 5 * dx, sy = (b.ymax - b.ymin) / 5 * dy;
    r.xmin += sx;
    r.xmax += sx;
    r.ymin += sy;
    r.ymax += sy;
    return r;
}

bool verkleinern(Bereich& b, double anteil)
{
    const double wx = b.xmax - b.xmin, wy = b.ymax - b.ymin;
    if (!(wx > 0.01 && wy > 0.01))
        return false;
    b.xmin += wx * anteil;
    b.xmax -= wx * anteil;
    b.ymin += wy * anteil;
    b.ymax -= wy * anteil;
    return true;
}

bool vergroessern(Bereich& b, double anteil)
{
    const double wx = b.xmax - b.xmin, wy = b.ymax - b.ymin;
    if (!(wx < 1000000 && wy < 1000000))
        return false;
    b.xmin -= wx * anteil;
    b.xmax += wx * anteil;
    b.ymin -= wy * anteil;
    b.ymax += wy * anteil;
    return true;
}

Bereich grundeinstellung(int plotWidth, int plotHeight, bool breit)
{
    Bereich b;
    b.xmin = breit ? -8 : -6;
    b.xmax = -b.xmin;
    return yAufloesungAnpassen(b, plotWidth, plotHeight);
}

Bereich yAufloesungAnpassen(const Bereich& b, int plotWidth, int plotHeight)
{
    Bereich r = b;
    r.ymin = static_cast<double>(plotHeight) * b.xmin / plotWidth;
    r.ymax = static_cast<double>(plotHeight) * b.xmax / plotWidth;
    return r;
}

double automatischeEinheit(double spanne, int pixel)
{
    if (!(spanne > 0) || pixel <= 0)
        return 1;
    // aim at a tick every 50 pixels or more
    const double roh = spanne * 50.0 / pixel;
    const double zehner = std::pow(10.0, std::floor(std::log10(roh)));
    for (double f : {1.0, 2.0, 5.0, 10.0})
        if (f * zehner >= roh)
            return f * zehner;
    return 10 * zehner;
}

}  // namespace graphs
