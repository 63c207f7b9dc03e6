// The coordinate system under the curves: quadrants, grid, axes with their numbers, frame.
#include "graphs/zeichnen.h"

#include <cmath>
#include <numbers>

namespace graphs {

using platform::Canvas;
using platform::TColor;

namespace {

constexpr double kPi = std::numbers::pi;

// The multiples k*e that fall into [lo, hi], as k.
void vielfache(double lo, double hi, double e, long& k0, long& k1)
{
    k0 = static_cast<long>(std::ceil(lo / e - 1e-9));
    k1 = static_cast<long>(std::floor(hi / e + 1e-9));
    if (k1 - k0 > 5000)
        k1 = k0 + 5000;  // a unit far too small for the range: no more lines than pixels
}

// Pi multiple k*pi/n as text with "p" for the Symbol font: "p/2", "3p/2", "-p", "2p".
std::string piText(long k, int n)
{
    long z = k, m = n;
    for (long g = 2; g <= m; ++g)
        while (z % g == 0 && m % g == 0) {
            z /= g;
            m /= g;
        }
    std::string s = z < 0 ? "-" : "";
    const long az = std::labs(z);
    if (az != 1)
        s += std::to_string(az);
    s += "p";
    if (m != 1)
        s += "/" + std::to_string(m);
    return s;
}

}  // namespace

void Graphzeichner::rasterlinien(Canvas& c, double ex, double ey, TColor farbe)
{
    c.setPenColor(farbe);
    c.setPenWidth(1);
    long k0, k1;
    vielfache(a_.b.xmin, a_.b.xmax, ex, k0, k1);
    for (long k = k0; k <= k1; ++k) {
        const int p = a_.pixelX(k * ex);
        c.moveTo(p, 0);
        c.lineTo(p, a_.plotHeight);
    }
    vielfache(a_.b.ymin, a_.b.ymax, ey, k0, k1);
    for (long k = k0; k <= k1; ++k) {
        const int r = a_.pixelY(k * ey);
        c.moveTo(0, r);
        c.lineTo(a_.plotWidth, r);
    }
}

void Graphzeichner::achsenbeschriftungX(Canvas& c, double e, int zeile)
{
    const PlotOptionen& o = z_.opt;
    const std::string vor = (o.logAchsen & 1) ? "ln " : "";
    long k0, k1;
    vielfache(a_.b.xmin, a_.b.xmax, e, k0, k1);
    const double abstand = e * a_.xScale;
    // without "dichte Darstellung" labels keep 45 pixels apart, with it 25
    const long jede = std::max(1L, static_cast<long>(std::ceil((o.dicht ? 25.0 : 45.0) / abstand)));
    const int hoehe = c.textHeight("0");
    for (long k = k0; k <= k1; ++k) {
        const int p = a_.pixelX(k * e);
        c.moveTo(p, zeile - 3);
        c.lineTo(p, zeile + 4);
        if (k == 0 || k % jede != 0)
            continue;
        const int y = std::min(zeile + 5, a_.plotHeight - hoehe - 2);
        if (o.bogenmass && !o.winkel) {
            // a multiple of pi: digits in Verdana, the "p" in the Symbol font
            int teil = static_cast<int>(std::lround(kPi / e));
            long kk = k;
            if (teil < 1) {
                kk = k * std::lround(e / kPi);
                teil = 1;
            }
            const std::string t = piText(kk, teil);
            int breite = 0;
            for (char ch : t) {
                c.setFontName(ch == 'p' ? "Symbol" : "Verdana");
                breite += c.textWidth(std::string(1, ch));
            }
            int x = p - breite / 2;
            if (x < 0 || x + breite > a_.plotWidth - 14)
                continue;
            for (char ch : t) {
                c.setFontName(ch == 'p' ? "Symbol" : "Verdana");
                c.textOut(x, y, std::string(1, ch));
                x += c.textWidth(std::string(1, ch));
            }
            c.setFontName("Verdana");
        } else {
            const std::string t = o.winkel ? zahlText(1, 1, k * e * 180 / kPi) + "\xB0" : vor + zahlText(1, 4, k * e);
            const int w = c.textWidth(t);
            // a number cut by the edge helps nobody; the right end belongs to the axis name
            if (p - w / 2 < 0 || p + w / 2 > a_.plotWidth - 14)
                continue;
            c.textOut(p - w / 2, y, t);
        }
    }
}

void Graphzeichner::achsenbeschriftungY(Canvas& c, double e, int spalte)
{
    const PlotOptionen& o = z_.opt;
    const std::string vor = (o.logAchsen & 2) ? "ln " : "";
    long k0, k1;
    vielfache(a_.b.ymin, a_.b.ymax, e, k0, k1);
    const double abstand = e * a_.yScale;
    const long jede = std::max(1L, static_cast<long>(std::ceil((o.dicht ? 16.0 : 30.0) / abstand)));
    const int hoehe = c.textHeight("0");
    for (long k = k0; k <= k1; ++k) {
        const int r = a_.pixelY(k * e);
        c.moveTo(spalte - 3, r);
        c.lineTo(spalte + 4, r);
        if (k == 0 || k % jede != 0)
            continue;
        const std::string t = vor + zahlText(1, 4, k * e);
        const int w = c.textWidth(t);
        const int x = spalte - w - 6 >= 2 ? spalte - w - 6 : spalte + 6;
        if (r - hoehe / 2 < 14 || r + hoehe / 2 > a_.plotHeight)
            continue;
        c.textOut(x, r - hoehe / 2, t);
    }
}

void Graphzeichner::koordinatensystem(Canvas& c)
{
    const PlotOptionen& o = z_.opt;
    const int W = a_.plotWidth, H = a_.plotHeight;
    const int ox = a_.originX, oy = a_.originY;

    // units: from the span, or the fields with the least unit 0.1
    if (o.autoEinheiten) {
        xEin_ = automatischeEinheit(a_.b.xmax - a_.b.xmin, W);
        yEin_ = automatischeEinheit(a_.b.ymax - a_.b.ymin, H);
    } else {
        xEin_ = einheitKorrigieren(z_.xE);
        yEin_ = einheitKorrigieren(z_.yE);
    }
    double ex = xEin_;
    if (o.winkel) {
        // degree grid: 15, 30, 45, 90, 180 or 360 degrees, whichever keeps 40 pixels apart
        ex = 2 * kPi;
        for (double g : {15.0, 30.0, 45.0, 90.0, 180.0, 360.0})
            if (g * kPi / 180 * a_.xScale >= 40) {
                ex = g * kPi / 180;
                break;
            }
    } else if (o.bogenmass) {
        ex = 2 * kPi;
        for (int n : {12, 6, 4, 2, 1})
            if (kPi / n * a_.xScale >= 40) {
                ex = kPi / n;
                break;
            }
    }
    const double ey = yEin_;

    if (o.quadranten) {
        const int cx = std::clamp(ox, 0, W), cy = std::clamp(oy, 0, H);
        c.setBrushColor(platform::rgb(255, 240, 240));
        c.fillRect(cx, 0, W, cy);
        c.setBrushColor(platform::rgb(240, 255, 240));
        c.fillRect(0, 0, cx, cy);
        c.setBrushColor(platform::rgb(240, 240, 255));
        c.fillRect(0, cy, cx, H);
        c.setBrushColor(platform::rgb(255, 255, 225));
        c.fillRect(cx, cy, W, H);
    }
    c.setPenStyle(platform::PenStyle::Solid);
    if (o.mm) {
        // "Millimeternetz": the thinnest division by 20 where it still shows, then fifths
        if (ex / 20 * a_.xScale >= 3 && ey / 20 * a_.yScale >= 3)
            rasterlinien(c, ex / 20, ey / 20, platform::rgb(238, 238, 238));
        rasterlinien(c, ex / 5, ey / 5, platform::rgb(215, 215, 215));
    }
    if (o.raster || o.mm || o.winkel)
        rasterlinien(c, ex, ey, platform::rgb(170, 170, 170));

    c.setFontName("Verdana");
    c.setFontSize(o.schrift);
    c.setFontColor(platform::clBlack);
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.setPenColor(platform::clBlack);
    c.setPenWidth(1);
    const int achsenbreite = o.achsenbreit ? 2 : 1;
    if (o.achsen) {
        c.setPenWidth(achsenbreite);
        const bool xAchseSichtbar = oy >= 0 && oy <= H, yAchseSichtbar = ox >= 0 && ox <= W;
        const int zeile = std::clamp(oy, 0, H - 1), spalte = std::clamp(ox, 0, W - 1);
        if (xAchseSichtbar) {
            c.moveTo(0, oy);
            c.lineTo(W, oy);
            c.moveTo(W - 10, oy - 4);
            c.lineTo(W - 1, oy);
            c.lineTo(W - 10, oy + 5);
        }
        if (yAchseSichtbar) {
            c.moveTo(ox, H);
            c.lineTo(ox, 0);
            c.moveTo(ox - 4, 10);
            c.lineTo(ox, 0);
            c.lineTo(ox + 5, 10);
        }
        c.setPenWidth(1);
        achsenbeschriftungX(c, ex, zeile);
        achsenbeschriftungY(c, ey, spalte);
        if (xAchseSichtbar && yAchseSichtbar)
            c.textOut(ox - c.textWidth("0") - 4, oy + 3, "0");
        const std::string xName = (o.logAchsen & 1) ? "ln x" : "x";
        c.textOut(W - c.textWidth(xName) - 6, std::clamp(oy, 0, H - 40) + 10, xName);
        c.textOut(std::clamp(ox, 0, W - 60) + 10, 0, (o.logAchsen & 2) ? "ln y" : "y");
    }
    if (o.rahmen) {
        c.setPenWidth(achsenbreite);
        c.frameRect(0, 0, W - 1, H - 1);
        c.setPenWidth(1);
        if (!o.achsen) {
            achsenbeschriftungX(c, ex, H - c.textHeight("0") - 8);
            achsenbeschriftungY(c, ey, 4 + c.textWidth("-0000"));
        }
    }
}

}  // namespace graphs
