#include "stochastics/uzeichnung.h"

#include "stochastics/ustatistik.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zufall {

namespace {
using platform::rgb;

// A 1-2-5 step that gives about `ziel` ticks over `spanne`.
double schritt(double spanne, int ziel)
{
    const double roh = spanne / ziel, p = std::pow(10, std::floor(std::log10(roh)));
    for (double f : {1.0, 2.0, 5.0, 10.0})
        if (f * p >= roh) return f * p;
    return 10 * p;
}

std::string achsZahl(double v, double st)
{
    const int stellen = std::clamp(static_cast<int>(std::ceil(-std::log10(st))), 0, 6);
    return zahl(std::fabs(v) < st * 1e-6 ? 0 : v, stellen);
}

void zeichneBaum(platform::Canvas& c, int l, int t, int w, int h, const Diagramm& d)
{
    auto px = [&](const Punkt& p) { return QPoint(l + int(p.first * w), t + int(p.second * h)); };
    for (const auto& li : d.linien) {
        c.setPenColor(li.hervorheben ? platform::clRed : rgb(150, 150, 150));
        c.setPenWidth(li.hervorheben ? 3 : 1);
        const QPoint a = px(li.a), b = px(li.b);
        c.moveTo(a.x(), a.y());
        c.lineTo(b.x(), b.y());
        c.setBrushColor(li.hervorheben ? platform::clRed : platform::clWhite);
        c.setPenWidth(1);
        c.ellipse(b.x() - 5, b.y() - 5, b.x() + 6, b.y() + 6);
        c.setBrushStyle(platform::BrushStyle::Clear);
        c.setFontColor(li.hervorheben ? platform::clRed : platform::clBlack);
        c.textOutW((a.x() + b.x()) / 2 - 10, (a.y() + b.y()) / 2 - 18, QString::fromUtf8(li.text.c_str()));
        c.setBrushStyle(platform::BrushStyle::Solid);
    }
    c.setBrushColor(platform::clNavy);
    if (!d.linien.empty()) {
        const QPoint s = px(d.linien.front().a);
        c.ellipse(s.x() - 6, s.y() - 6, s.x() + 7, s.y() + 7);
    }
}
}  // namespace

void zeichneDiagramm(platform::Canvas& c, int breite, int hoehe, const Diagramm& d)
{
    c.setBrushStyle(platform::BrushStyle::Solid);
    c.setBrushColor(rgb(255, 255, 248));
    c.setPenColor(rgb(180, 180, 180));
    c.rectangle(0, 0, breite, hoehe);
    c.setFontName("Verdana");
    c.setFontSize(10);
    c.setFontStyle(platform::fsBold);
    c.setFontColor(platform::clNavy);
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.textOutW(12, 8, QString::fromUtf8(d.titel.c_str()));
    c.setFontStyle(0);
    c.setFontSize(8);
    c.setFontColor(platform::clBlack);
    if (!d.vergleich.empty()) {
        // legend of the exact values
        c.setBrushStyle(platform::BrushStyle::Solid);
        c.setBrushColor(platform::clRed);
        c.setPenColor(rgb(120, 0, 0));
        c.rectangle(breite - 160, 33, breite - 151, 42);
        c.setBrushStyle(platform::BrushStyle::Clear);
        c.textOutW(breite - 145, 30, QString::fromUtf8("theoretischer Wert"));
    }
    if (d.leer()) {
        c.setFontColor(platform::clGray);
        c.textOutW(12, 40, QString::fromUtf8("Eingaben wählen und die Schaltfläche drücken."));
        return;
    }
    const int l = 60, t = 52, r = breite - 20, b = hoehe - 40;
    if (!d.linien.empty()) {
        zeichneBaum(c, l - 30, t, r - l + 30, b - t, d);
        return;
    }
    // world range of everything drawn; bars start at 0
    double x0 = std::numeric_limits<double>::max(), x1 = -x0, y0 = 0, y1 = -x0;
    auto nimm = [&](double x, double y) {
        if (!std::isfinite(x) || !std::isfinite(y)) return;
        x0 = std::min(x0, x), x1 = std::max(x1, x), y0 = std::min(y0, y), y1 = std::max(y1, y);
    };
    for (const auto& ba : d.balken) nimm(ba.x, ba.hoehe), nimm(ba.x + ba.breite, ba.hoehe);
    for (const auto& p : d.punkte) nimm(p.first, p.second);
    for (const auto& p : d.vergleich) nimm(p.first, p.second);
    for (const auto& k : d.kurven)
        for (const auto& p : k) nimm(p.first, p.second);
    if (x0 > x1) return;
    if (d.balken.empty() && !d.punkte.empty()) {
        // scatter plots need not start at zero
        y0 = std::numeric_limits<double>::max();
        for (const auto& p : d.punkte) y0 = std::min(y0, p.second);
        for (const auto& k : d.kurven)
            for (const auto& p : k) y0 = std::min(y0, p.second);
    }
    if (x1 == x0) x0 -= 1, x1 += 1;
    if (y1 == y0) y1 = y0 + 1;
    const double rx = (x1 - x0) * 0.03, ry = (y1 - y0) * 0.08;
    x0 -= rx, x1 += rx, y1 += ry;
    if (y0 < 0) y0 -= ry;
    auto sx = [&](double x) { return l + static_cast<int>(std::lround((x - x0) / (x1 - x0) * (r - l))); };
    auto sy = [&](double y) { return b - static_cast<int>(std::lround((y - y0) / (y1 - y0) * (b - t))); };
    // grid and axes
    c.setPenColor(rgb(225, 225, 225));
    const double sty = schritt(y1 - y0, 6), stx = schritt(x1 - x0, 8);
    for (double y = std::ceil(y0 / sty) * sty; y <= y1; y += sty) {
        c.setPenColor(rgb(225, 225, 225));
        c.moveTo(l, sy(y));
        c.lineTo(r, sy(y));
        const std::string s = achsZahl(y, sty);
        c.textOut(l - 6 - c.textWidth(s), sy(y) - 7, s);
    }
    const bool balkenTexte = std::any_of(d.balken.begin(), d.balken.end(), [](const Balken& ba) { return !ba.text.empty(); });
    const bool histogramm = balkenTexte && !d.kurven.empty();
    if (!balkenTexte || histogramm) {
        for (double x = std::ceil(x0 / stx) * stx; x <= x1; x += stx) {
            c.setPenColor(rgb(225, 225, 225));
            c.moveTo(sx(x), t);
            c.lineTo(sx(x), b);
            const std::string s = achsZahl(x, stx);
            c.textOut(sx(x) - c.textWidth(s) / 2, b + 4, s);
        }
    }
    c.setPenColor(platform::clBlack);
    c.moveTo(l, t);
    c.lineTo(l, b);
    c.lineTo(r, b);
    if (y0 < 0 && y1 > 0) {
        c.moveTo(l, sy(0));
        c.lineTo(r, sy(0));
    }
    // bars
    c.setBrushStyle(platform::BrushStyle::Solid);
    const int n = static_cast<int>(d.balken.size());
    for (const auto& ba : d.balken) {
        const bool duenn = sx(ba.x + ba.breite) - sx(ba.x) < 3;
        c.setBrushColor(ba.hervorheben ? rgb(240, 150, 120) : rgb(120, 160, 230));
        c.setPenColor(duenn ? (ba.hervorheben ? rgb(240, 150, 120) : rgb(120, 160, 230)) : rgb(40, 60, 120));
        c.rectangle(sx(ba.x), sy(ba.hoehe), std::max(sx(ba.x) + 1, sx(ba.x + ba.breite)), sy(0) + 1);
        if (balkenTexte && !histogramm && !ba.text.empty()) {
            const QString s = QString::fromUtf8(ba.text.c_str());
            const int mitte = (sx(ba.x) + sx(ba.x + ba.breite)) / 2;
            // long labels of many bars would overlap: then only every k-th
            const int w = c.textWidthW(s);
            const int platz = std::max(1, (r - l) / std::max(1, n));
            const int jede = std::max(1, (w + 6) / platz + 1);
            const int i = static_cast<int>(&ba - d.balken.data());
            c.setBrushStyle(platform::BrushStyle::Clear);
            if (i % jede == 0) c.textOutW(mitte - w / 2, b + 4, s);
            c.setBrushStyle(platform::BrushStyle::Solid);
        }
    }
    // curves
    c.setPenColor(platform::clRed);
    c.setPenWidth(2);
    for (const auto& k : d.kurven) {
        std::vector<QPoint> pts;
        for (const auto& p : k) pts.push_back({sx(p.first), std::clamp(sy(p.second), -100000, 100000)});
        if (pts.size() > 1) c.polyline(pts);
    }
    c.setPenWidth(1);
    // data points and exact values
    c.setBrushColor(platform::clNavy);
    c.setPenColor(platform::clNavy);
    for (const auto& p : d.punkte) c.ellipse(sx(p.first) - 3, sy(p.second) - 3, sx(p.first) + 4, sy(p.second) + 4);
    c.setBrushColor(platform::clRed);
    c.setPenColor(rgb(120, 0, 0));
    for (const auto& p : d.vergleich) c.rectangle(sx(p.first) - 4, sy(p.second) - 4, sx(p.first) + 5, sy(p.second) + 5);
}

}  // namespace zufall
