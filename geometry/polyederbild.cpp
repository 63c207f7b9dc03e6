#include "geometry/polyederbild.h"

#include "kernel/realtostr.h"
#include "platform/toolframe.h"

#include <QPoint>
#include <QString>
#include <algorithm>
#include <cmath>
#include <map>

namespace poly {

namespace {

using platform::Canvas;
using platform::rgb;
using platform::TColor;

struct Rahmen {
    int x0, y0, x1, y1;
    double mx() const { return (x0 + x1) / 2.0; }
    double my() const { return (y0 + y1) / 2.0; }
};

QPoint bild(const Punkt& p, double cx, double cy, double f)
{
    return QPoint(static_cast<int>(std::lround(cx + p.x * f)), static_cast<int>(std::lround(cy + p.y * f)));
}

// Faces by the number of their corners, as the colour tells the kinds of an Archimedean solid apart.
TColor bunteFarbe(size_t ecken)
{
    switch (ecken) {
    case 3: return rgb(240, 200, 60);
    case 4: return rgb(90, 170, 230);
    case 5: return rgb(230, 110, 90);
    case 6: return rgb(120, 200, 120);
    case 8: return rgb(190, 130, 220);
    case 10: return rgb(240, 150, 200);
    default: return rgb(200, 200, 200);
    }
}

TColor schattiert(TColor basis, double licht)
{
    const double f = 0.35 + 0.65 * std::clamp(licht, 0.0, 1.0);
    return rgb(static_cast<int>(platform::redOf(basis) * f), static_cast<int>(platform::greenOf(basis) * f),
               static_cast<int>(platform::blueOf(basis) * f));
}

// Whether an edge lies between two faces turned away from the viewer.
std::map<std::pair<int, int>, bool> verdeckt(const Koerper& k)
{
    std::map<std::pair<int, int>, bool> r;
    for (size_t f = 0; f < k.flaechen.size(); ++f) {
        const bool s = sichtbar(k, static_cast<int>(f));
        const auto& fl = k.flaechen[f];
        for (size_t i = 0; i < fl.size(); ++i) {
            int a = fl[i], b = fl[(i + 1) % fl.size()];
            if (a > b) std::swap(a, b);
            auto it = r.find({a, b});
            if (it == r.end()) r[{a, b}] = !s;
            else it->second = it->second && !s;
        }
    }
    return r;
}

void zeichneKoerper(Canvas& c, const Koerper& k, const Darstellung& d, double cx, double cy, double f,
                    bool punkte)
{
    const bool flaechen = d.farbigeFlaechen || d.bunteFlaechen;
    if (flaechen) {
        // outlines go with their faces, so edges behind nearer faces stay covered
        c.setPenWidth(d.kantenmodell && k.flaechen.size() <= 60 ? 2 : 1);
        c.setPenStyle(platform::PenStyle::Solid);
        c.setBrushStyle(platform::BrushStyle::Solid);
        for (int fi : zeichenreihenfolge(k)) {
            const Punkt n = normale(k, fi);
            const double len = std::sqrt(n.x * n.x + n.y * n.y + n.z * n.z);
            if (len <= 0) continue;
            const double licht = -n.z / len;
            const TColor basis = d.bunteFlaechen ? bunteFarbe(k.flaechen[fi].size()) : rgb(110, 150, 230);
            // a closed surface is seen only through faces turned to the viewer
            if (licht <= 1e-9) continue;
            c.setBrushColor(schattiert(basis, licht));
            c.setPenColor(d.kantenmodell ? rgb(0, 0, 128) : schattiert(basis, licht * 0.8));
            std::vector<QPoint> pts;
            for (int i : k.flaechen[fi]) pts.push_back(bild(k.ecken[i], cx, cy, f));
            c.polygon(pts);
        }
    }
    if (!flaechen || d.verdeckteKanten) {
        const auto hinten = verdeckt(k);
        for (const Kante& e : kanten(k)) {
            const bool h = hinten.at({e.a, e.b});
            if (flaechen && !h) continue;  // drawn with the faces
            if (h && !d.verdeckteKanten) {
                // plain wire frame: every edge, the hidden ones lighter
                c.setPenColor(rgb(120, 120, 170));
                c.setPenStyle(platform::PenStyle::Solid);
            } else if (h) {
                c.setPenColor(rgb(110, 110, 110));
                c.setPenStyle(platform::PenStyle::Dash);
            } else {
                c.setPenColor(rgb(0, 0, 128));
                c.setPenStyle(platform::PenStyle::Solid);
            }
            c.setPenWidth(h ? 1 : 2);
            const QPoint a = bild(k.ecken[e.a], cx, cy, f), b = bild(k.ecken[e.b], cx, cy, f);
            platform::DrawLine(c, a.x(), a.y(), b.x(), b.y());
        }
        c.setPenStyle(platform::PenStyle::Solid);
        c.setPenWidth(1);
    }
    if (punkte) {
        c.setFontName("Verdana");
        c.setFontSize(10);
        c.setFontStyle(0);
        c.setFontColor(rgb(160, 0, 0));
        c.setBrushStyle(platform::BrushStyle::Solid);
        c.setBrushColor(rgb(200, 0, 0));
        c.setPenColor(rgb(200, 0, 0));
        // a vertex counts as seen when one of its faces is turned to the viewer
        std::vector<bool> vorn(k.ecken.size(), false);
        for (size_t fi = 0; fi < k.flaechen.size(); ++fi)
            if (sichtbar(k, static_cast<int>(fi)))
                for (int i : k.flaechen[fi]) vorn[i] = true;
        for (size_t i = 0; i < k.ecken.size(); ++i) {
            const QPoint p = bild(k.ecken[i], cx, cy, f);
            const TColor farbe = vorn[i] ? rgb(200, 0, 0) : rgb(230, 160, 160);
            c.setBrushColor(farbe);
            c.setPenColor(farbe);
            const int r = vorn[i] ? 3 : 2;
            c.ellipse(p.x() - r, p.y() - r, p.x() + r + 1, p.y() + r + 1);
        }
        c.setBrushStyle(platform::BrushStyle::Clear);
        for (size_t i = 0; i < k.ecken.size(); ++i) {
            const QPoint p = bild(k.ecken[i], cx, cy, f);
            c.setFontColor(vorn[i] ? rgb(160, 0, 0) : rgb(200, 150, 150));
            c.textOut(p.x() + 5, p.y() - 16, "P" + std::to_string(i + 1));
        }
    }
}

void beschrifte(Canvas& c, int x, int y, const char* text)
{
    c.setFontName("Verdana");
    c.setFontSize(10);
    c.setFontStyle(platform::fsBold);
    c.setFontColor(rgb(0, 0, 128));
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.textOutW(x, y, QString::fromUtf8(text));
    c.setFontStyle(0);
}

void zeichneTafeln(Canvas& c, const Koerper& k, const Darstellung& d, const Rahmen& r)
{
    const bool drei = d.dreitafel;
    const int mitteY = (r.y0 + r.y1) / 2;
    const int mitteX = drei ? (r.x0 + r.x1) / 2 : r.x1;
    const double radius = std::max(1.0, umkugelradius(k));
    const double platz = std::min((mitteY - r.y0) / 2.0 - 14, ((mitteX - r.x0) / 2.0) - 14);
    const double f = std::max(0.05, platz / radius);
    // the axes between the sheets
    c.setPenColor(rgb(0, 0, 0));
    c.setPenWidth(1);
    c.setPenStyle(platform::PenStyle::Solid);
    platform::DrawLine(c, r.x0, mitteY, r.x1, mitteY);
    if (drei) platform::DrawLine(c, mitteX, r.y0, mitteX, r.y1);
    const double ax = (r.x0 + mitteX) / 2.0;
    const double ay = (r.y0 + mitteY) / 2.0, gy = (mitteY + r.y1) / 2.0;
    const double sx = (mitteX + r.x1) / 2.0;
    zeichneKoerper(c, ansicht(k, Tafel::Aufriss), d, ax, ay, f, false);
    zeichneKoerper(c, ansicht(k, Tafel::Grundriss), d, ax, gy, f, false);
    beschrifte(c, r.x0 + 4, r.y0 + 2, "Aufriss");
    beschrifte(c, r.x0 + 4, mitteY + 4, "Grundriss");
    if (drei) {
        zeichneKoerper(c, ansicht(k, Tafel::Seitenriss), d, sx, ay, f, false);
        beschrifte(c, mitteX + 6, r.y0 + 2, "Seitenriss");
    }
    // thin order lines from front to top view through the vertices
    c.setPenColor(rgb(200, 200, 200));
    c.setPenStyle(platform::PenStyle::Dot);
    for (const Punkt& p : k.ecken) {
        const int x = static_cast<int>(std::lround(ax + p.x * f));
        platform::DrawLine(c, x, static_cast<int>(ay + p.y * f), x, static_cast<int>(gy - p.z * f));
    }
    c.setPenStyle(platform::PenStyle::Solid);
}

void zeichneTabelle(Canvas& c, const Koerper& k, const Rahmen& r, double f)
{
    c.setFontName("Verdana");
    c.setFontSize(9);
    c.setFontStyle(platform::fsBold);
    c.setFontColor(rgb(0, 0, 128));
    c.setBrushStyle(platform::BrushStyle::Clear);
    const int spalten[4] = {r.x0 + 4, r.x0 + 56, r.x0 + 124, r.x0 + 192};
    const char* kopf[4] = {"Punkt", "x", "y", "z"};
    for (int i = 0; i < 4; ++i) c.textOut(spalten[i], r.y0, kopf[i]);
    c.setFontStyle(0);
    c.setFontColor(rgb(0, 0, 0));
    const int zeilenhoehe = 16;
    int y = r.y0 + 20;
    for (size_t i = 0; i < k.ecken.size(); ++i) {
        if (y + zeilenhoehe > r.y1) {
            c.textOut(spalten[0], y, "...");
            break;
        }
        c.textOut(spalten[0], y, "P" + std::to_string(i + 1));
        c.textOut(spalten[1], y, kernel::RealToStr(1, 3, k.ecken[i].x * f));
        c.textOut(spalten[2], y, kernel::RealToStr(1, 3, k.ecken[i].y * f));
        c.textOut(spalten[3], y, kernel::RealToStr(1, 3, k.ecken[i].z * f));
        y += zeilenhoehe;
    }
}

}  // namespace

void zeichnePolyeder(Canvas& c, int breite, int hoehe, const Koerper& k, const Darstellung& d)
{
    platform::DrawToolTitle(c, breite, hoehe, QString::fromUtf8(d.titel.c_str()), 14, rgb(255, 255, 255));
    if (!d.unterzeile.empty()) {
        c.setFontName("Verdana");
        c.setFontSize(9);
        c.setFontStyle(0);
        c.setFontColor(rgb(80, 80, 80));
        c.setBrushStyle(platform::BrushStyle::Clear);
        c.textOutW(16, hoehe - 38, QString::fromUtf8(d.unterzeile.c_str()));
        c.textOutW(16, hoehe - 20, QString::fromUtf8(d.unterzeile2.c_str()));
    }
    Rahmen r{16, 58, breite - 16, hoehe - 44};
    if (d.koordinatentabelle) {
        zeichneTabelle(c, k, Rahmen{breite - 256, 62, breite - 8, hoehe - 44}, d.tabellenFaktor);
        r.x1 = breite - 260;
    }
    if (k.ecken.empty()) return;
    if (d.zweitafel || d.dreitafel) {
        zeichneTafeln(c, k, d, r);
        return;
    }
    zeichneKoerper(c, k, d, r.mx(), r.my(), 1.0, d.punkteHervorheben);
}

}  // namespace poly
