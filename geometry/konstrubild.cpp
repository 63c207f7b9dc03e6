#include "geometry/konstrubild.h"

#include "kernel/numeric.h"
#include "platform/codepage.h"

#include <algorithm>
#include <cmath>

namespace konstru {

namespace {

using kernel::SafeRound;
using platform::Canvas;
constexpr double kPi = 3.14159265358979323846;

void raster(Canvas& c, int breite, int hoehe, const Ansicht& v, double schritt, platform::TColor farbe)
{
    const double abstand = schritt * v.einheit;
    if (abstand < 4) return;  // too dense to help
    c.setPenColor(farbe);
    c.setPenWidth(1);
    const double x0 = v.px(0, breite), y0 = v.py(0, hoehe);
    for (double x = std::fmod(x0, abstand); x < breite; x += abstand) {
        c.moveTo(SafeRound(x), 0);
        c.lineTo(SafeRound(x), hoehe);
    }
    for (double y = std::fmod(y0, abstand); y < hoehe; y += abstand) {
        c.moveTo(0, SafeRound(y));
        c.lineTo(breite, SafeRound(y));
    }
}

void achsen(Canvas& c, int breite, int hoehe, const Ansicht& v)
{
    const int x0 = SafeRound(v.px(0, breite)), y0 = SafeRound(v.py(0, hoehe));
    c.setPenColor(platform::clGray);
    c.setPenWidth(1);
    c.moveTo(0, y0);
    c.lineTo(breite, y0);
    c.moveTo(x0, 0);
    c.lineTo(x0, hoehe);
    c.setFontSize(8);
    c.setFontColor(platform::clGray);
    // one label every unit, or fewer when they would crowd
    const int jede = v.einheit >= 30 ? 1 : v.einheit >= 12 ? 5 : 10;
    const int n = static_cast<int>(std::max(breite, hoehe) / v.einheit) + 2;
    const double mx = -v.panX / v.einheit, my = v.panY / v.einheit;
    for (int k = static_cast<int>(mx) - n; k <= static_cast<int>(mx) + n; ++k) {
        if (k == 0 || k % jede) continue;
        const int x = SafeRound(v.px(k, breite));
        c.moveTo(x, y0 - 3);
        c.lineTo(x, y0 + 4);
        c.textOut(x - 4, y0 + 4, std::to_string(k));
    }
    for (int k = static_cast<int>(my) - n; k <= static_cast<int>(my) + n; ++k) {
        if (k == 0 || k % jede) continue;
        const int y = SafeRound(v.py(k, hoehe));
        c.moveTo(x0 - 3, y);
        c.lineTo(x0 + 4, y);
        c.textOut(x0 + 6, y - 7, std::to_string(k));
    }
    c.textOut(breite - 12, y0 - 16, "x");
    c.textOut(x0 + 6, 2, "y");
}

// The point far beyond the panel in direction d from p, so that a clipped line reaches every edge.
P2 weit(P2 p, P2 d, int breite, int hoehe, const Ansicht& v)
{
    const double l = std::hypot(d.x, d.y);
    const double reichweite = (std::hypot(breite, hoehe) + std::fabs(v.panX) + std::fabs(v.panY)) / v.einheit +
                              std::hypot(p.x, p.y);
    return {p.x + d.x / l * reichweite, p.y + d.y / l * reichweite};
}

}  // namespace

void zeichneKonstruktion(Canvas& c, int breite, int hoehe, const Lauf& lauf, const Ansicht& v)
{
    c.setBrushColor(platform::clWhite);
    c.setBrushStyle(platform::BrushStyle::Solid);
    c.fillRect(0, 0, breite, hoehe);
    c.setFontName("Verdana");
    c.setFontSize(10);
    if (v.millimeter) raster(c, breite, hoehe, v, 0.1, platform::rgb(232, 240, 250));
    if (v.gitter || v.millimeter) raster(c, breite, hoehe, v, 1, platform::rgb(200, 214, 236));
    if (v.achsen) achsen(c, breite, hoehe, v);

    auto X = [&](P2 p) { return SafeRound(v.px(p.x, breite)); };
    auto Y = [&](P2 p) { return SafeRound(v.py(p.y, hoehe)); };
    auto linie = [&](P2 a, P2 b) {
        c.moveTo(X(a), Y(a));
        c.lineTo(X(b), Y(b));
    };
    c.setBrushStyle(platform::BrushStyle::Clear);
    int textZeile = 0;
    // lines and circles first, so that points and their names stay on top
    for (int runde = 0; runde < 2; ++runde)
        for (const Zeichnung& z : lauf.zeichnungen) {
            if ((z.form == Form::Punkt) != (runde == 1)) continue;
            c.setPenColor(z.farbe);
            c.setPenWidth(z.breite);
            c.setPenStyle(z.stil == 1 ? platform::PenStyle::Dash : z.stil == 2 ? platform::PenStyle::Dot
                                                                               : platform::PenStyle::Solid);
            switch (z.form) {
            case Form::Strecke:
                linie(z.p[0], z.p[1]);
                break;
            case Form::Vektor: {
                linie(z.p[0], z.p[1]);
                const double w = std::atan2(Y(z.p[1]) - Y(z.p[0]), X(z.p[1]) - X(z.p[0]));
                for (double s : {2.7, -2.7}) {
                    c.moveTo(X(z.p[1]), Y(z.p[1]));
                    c.lineTo(X(z.p[1]) + SafeRound(11 * std::cos(w + s)), Y(z.p[1]) + SafeRound(11 * std::sin(w + s)));
                }
                break;
            }
            case Form::Gerade: {
                const P2 d{z.p[1].x - z.p[0].x, z.p[1].y - z.p[0].y};
                linie(weit(z.p[0], {-d.x, -d.y}, breite, hoehe, v), weit(z.p[0], d, breite, hoehe, v));
                break;
            }
            case Form::Strahl:
                linie(z.p[0], weit(z.p[0], {z.p[1].x - z.p[0].x, z.p[1].y - z.p[0].y}, breite, hoehe, v));
                break;
            case Form::Kreis:
            case Form::Ellipse: {
                const int rx = SafeRound(z.r * v.einheit), ry = SafeRound((z.form == Form::Kreis ? z.r : z.r2) * v.einheit);
                c.ellipse(X(z.p[0]) - rx, Y(z.p[0]) - ry, X(z.p[0]) + rx + 1, Y(z.p[0]) + ry + 1);
                break;
            }
            case Form::Bogen:
            case Form::Winkel: {
                // the angle mark has a fixed pixel radius
                const double r = z.form == Form::Bogen ? z.r * v.einheit : 22;
                const int n = std::max(8, static_cast<int>(std::fabs(z.w2) / 3));
                std::vector<QPoint> pts;
                for (int i = 0; i <= n; ++i) {
                    const double w = (z.w1 + z.w2 * i / n) * kPi / 180;
                    pts.emplace_back(SafeRound(v.px(z.p[0].x, breite) + r * std::cos(w)),
                                     SafeRound(v.py(z.p[0].y, hoehe) - r * std::sin(w)));
                }
                c.polyline(pts);
                if (z.form == Form::Winkel) {
                    const double w = (z.w1 + z.w2 / 2) * kPi / 180;
                    c.setFontSize(9);
                    c.setFontColor(z.farbe);
                    const std::string t = platform::utf8ToCp1252(z.name);
                    c.textOut(X(z.p[0]) + SafeRound(34 * std::cos(w)) - c.textWidth(t) / 2,
                              Y(z.p[0]) - SafeRound(34 * std::sin(w)) - 7, t);
                }
                break;
            }
            case Form::Kurve: {
                std::vector<QPoint> pts;
                for (const P2& p : z.p) pts.emplace_back(X(p), Y(p));
                c.polyline(pts);
                break;
            }
            case Form::Text:
                c.setFontSize(10);
                c.setFontColor(z.farbe);
                c.textOut(8, 6 + 18 * textZeile++, platform::utf8ToCp1252(z.name));
                break;
            case Form::Punkt: {
                const int x = X(z.p[0]), y = Y(z.p[0]);
                c.setPenStyle(platform::PenStyle::Solid);
                c.setPenWidth(1);
                c.setBrushStyle(platform::BrushStyle::Solid);
                // free points are the ones that can be dragged: drawn larger and red
                c.setBrushColor(z.frei ? platform::clRed : z.farbe);
                const int r = z.frei ? 4 : 3;
                c.ellipse(x - r, y - r, x + r + 1, y + r + 1);
                if (z.name == v.markiert) {
                    c.setBrushStyle(platform::BrushStyle::Clear);
                    c.ellipse(x - 8, y - 8, x + 9, y + 9);
                }
                c.setBrushStyle(platform::BrushStyle::Clear);
                c.setFontSize(10);
                c.setFontColor(platform::clNavy);
                c.textOut(x + 6, y - 18, platform::utf8ToCp1252(z.name));
                break;
            }
            }
        }
    c.setPenStyle(platform::PenStyle::Solid);
    c.setPenWidth(1);
}

}  // namespace konstru

namespace konstru {

P2 animationsSchritt(P2 p, int& richtung, bool senkrecht, const Ansicht& v, int breite, int hoehe)
{
    const double schritt = 0.02 * richtung;
    if (senkrecht) p.y += schritt;
    else p.x += schritt;
    const double x = v.px(p.x, breite), y = v.py(p.y, hoehe);
    if (senkrecht ? (y < 10 || y > hoehe) : (x < 5 || x > breite)) richtung = -richtung;
    return p;
}

int animationsIntervall(int geschwindigkeit) { return 110 - 10 * std::clamp(geschwindigkeit, 1, 10); }

}  // namespace konstru
