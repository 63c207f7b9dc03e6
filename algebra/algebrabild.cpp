#include "algebra/algebrabild.h"

#include "algebra/algebra.h"
#include "kernel/numeric.h"
#include "kernel/term.h"
#include "platform/toolframe.h"

#include <QString>
#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace algebra {

namespace {

using platform::Canvas;

QString u(const std::string& s) { return QString::fromUtf8(s.c_str(), static_cast<int>(s.size())); }

std::vector<std::string> spalten(const std::string& z)
{
    std::vector<std::string> r;
    size_t a = 0;
    for (;;) {
        const size_t t = z.find('\t', a);
        r.push_back(z.substr(a, t == std::string::npos ? std::string::npos : t - a));
        if (t == std::string::npos) break;
        a = t + 1;
    }
    return r;
}

// Lines with tabs go to columns of one common width, so that tables line up.
void zeilenZeichnen(Canvas& c, int x, int y, int breite, int unten, const std::vector<std::string>& zeilen, int erste)
{
    c.setFontName("Verdana");
    c.setFontSize(9);
    c.setFontStyle(0);
    c.setBrushStyle(platform::BrushStyle::Clear);
    const int zh = 17;
    int spalte = 60;
    for (const auto& z : zeilen) {
        const auto s = spalten(z);
        if (s.size() > 1)
            for (const auto& t : s) spalte = std::max(spalte, c.textWidthW(u(t)) + 16);
    }
    spalte = std::min(spalte, 260);
    if (erste > 0) {
        c.textOutW(x, y, QString::fromUtf8("\xE2\x80\xA6 (Mausrad: zurück)"));
        y += zh;
    }
    for (size_t i = static_cast<size_t>(std::max(0, erste)); i < zeilen.size(); ++i) {
        if (y + 2 * zh > unten && i + 1 < zeilen.size()) {
            c.textOutW(x, y, QString::fromUtf8("\xE2\x80\xA6 (Mausrad: weitere Zeilen)"));
            break;
        }
        const auto s = spalten(zeilen[i]);
        int xx = x;
        for (size_t k = 0; k < s.size() && xx < x + breite; ++k) {
            if (s.size() == 1) {
                c.textOutW(xx, y, u(s[k]));
                break;
            }
            if (!(k == 0 && s[0].empty())) {  // a leading tab as in the truth table
                c.textOutW(xx, y, u(s[k]));
                xx += spalte;
            }
        }
        y += zh;
    }
}

// The residue and dihedral tables as coloured squares: one hue per element.
void tafelZeichnen(Canvas& c, int x, int y, int breite, int hoehe, const std::vector<std::string>& zeilen)
{
    if (zeilen.size() < 3) return;
    c.setFontName("Verdana");
    c.setFontSize(11);
    c.setFontStyle(platform::fsBold);
    c.setFontColor(platform::clNavy);
    c.textOutW(x, y, u(zeilen[0]));
    y += 28;
    const auto kopf = spalten(zeilen[1]);
    const int n = static_cast<int>(kopf.size()) - 1;
    const int zelle = std::max(14, std::min(44, std::min(breite, hoehe - 40) / (n + 1)));
    c.setFontSize(zelle >= 30 ? 9 : 7);
    c.setFontStyle(0);
    c.setFontColor(platform::clBlack);
    c.setPenColor(platform::clGray);
    auto kaestchen = [&](int r, int s, const std::string& text, platform::TColor farbe) {
        const int x1 = x + s * zelle, y1 = y + r * zelle;
        c.setBrushStyle(platform::BrushStyle::Solid);
        c.setBrushColor(farbe);
        c.rectangle(x1, y1, x1 + zelle + 1, y1 + zelle + 1);
        c.setBrushStyle(platform::BrushStyle::Clear);
        const QString t = u(text);
        c.textOutW(x1 + (zelle - c.textWidthW(t)) / 2, y1 + (zelle - 14) / 2, t);
    };
    auto farbe = [&](const std::string& name) -> platform::TColor {
        int k = 0;
        for (int i = 1; i <= n; ++i)
            if (kopf[i] == name) k = i - 1;
        const QColor q = QColor::fromHsv((k * 360 / std::max(1, n)) % 360, 70, 255);
        return platform::fromQColor(q);
    };
    for (size_t r = 1; r < zeilen.size() && static_cast<int>(r) <= n + 1; ++r) {
        const auto s = spalten(zeilen[r]);
        for (size_t k = 0; k < s.size() && static_cast<int>(k) <= n; ++k) {
            const bool rand = r == 1 || k == 0;
            kaestchen(static_cast<int>(r) - 1, static_cast<int>(k), s[k], rand ? platform::clSilver : farbe(s[k]));
        }
    }
}

// Both sides of an equation as functions on [a, b], so the user sees where they meet.
void vorschauZeichnen(Canvas& c, int x, int y, int w, int h, const Bildinhalt& b)
{
    const bool ungl = b.seite == 19;
    if (b.felder.size() < (ungl ? 5u : 4u)) return;
    const std::string links = termText(b.felder[0]), rechts = termText(b.felder[ungl ? 2 : 1]);
    double a, e;
    if (!leseZahl(b.felder[ungl ? 3 : 2], a) || !leseZahl(b.felder[ungl ? 4 : 3], e)) return;
    if (e <= a) e = a + 5;
    const int n = 300;
    std::vector<double> yl(n + 1), yr(n + 1);
    std::vector<bool> okl(n + 1), okr(n + 1);
    double lo = 1e300, hi = -1e300;
    for (int i = 0; i <= n; ++i) {
        const double xx = a + (e - a) * i / n;
        yl[i] = quorix::EvalTerm(links, xx);
        okl[i] = quorix::TermError == 0 && std::isfinite(yl[i]);
        yr[i] = quorix::EvalTerm(rechts, xx);
        okr[i] = quorix::TermError == 0 && std::isfinite(yr[i]);
        for (auto [v, ok] : {std::pair{yl[i], okl[i]}, std::pair{yr[i], okr[i]}})
            if (ok && std::fabs(v) < 1e6) {
                lo = std::min(lo, v);
                hi = std::max(hi, v);
            }
    }
    c.setPenColor(platform::clGray);
    c.setBrushStyle(platform::BrushStyle::Solid);
    c.setBrushColor(platform::clWhite);
    c.rectangle(x, y, x + w, y + h);
    if (lo > hi) return;
    if (hi - lo < 1e-9) {
        lo -= 1;
        hi += 1;
    }
    const double rand = (hi - lo) * 0.05;
    lo -= rand;
    hi += rand;
    auto px = [&](double xx) { return x + kernel::SafeRound((xx - a) / (e - a) * w); };
    auto py = [&](double yy) { return y + h - kernel::SafeRound((yy - lo) / (hi - lo) * h); };
    c.setPenColor(platform::clSilver);
    if (lo < 0 && hi > 0) {
        c.moveTo(x, py(0));
        c.lineTo(x + w, py(0));
    }
    if (a < 0 && e > 0) {
        c.moveTo(px(0), y);
        c.lineTo(px(0), y + h);
    }
    auto kurve = [&](const std::vector<double>& v, const std::vector<bool>& ok, platform::TColor farbe) {
        c.setPenColor(farbe);
        c.setPenWidth(2);
        bool zug = false;
        for (int i = 0; i <= n; ++i) {
            const bool sichtbar = ok[i] && v[i] >= lo && v[i] <= hi;
            const int X = px(a + (e - a) * i / n), Y = py(v[i]);
            if (sichtbar && zug) c.lineTo(X, Y);
            else if (sichtbar) c.moveTo(X, Y);
            zug = sichtbar;
        }
        c.setPenWidth(1);
    };
    kurve(yl, okl, platform::clBlue);
    kurve(yr, okr, platform::clRed);
    c.setFontSize(8);
    c.setFontStyle(0);
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.setFontColor(platform::clBlue);
    c.textOutW(x + 6, y + 4, QString::fromUtf8("linke Seite"));
    c.setFontColor(platform::clRed);
    c.textOutW(x + 6, y + 18, QString::fromUtf8("rechte Seite"));
    c.setFontColor(platform::clBlack);
    c.textOutW(x + 6, y + h - 16, u(zahl(a, 3)));
    const QString be = u(zahl(e, 3));
    c.textOutW(x + w - 6 - c.textWidthW(be), y + h - 16, be);
}

// The graphic solution: feasible polygon, constraint lines, objective line through the optimum.
void optimierungZeichnen(Canvas& c, int x, int y, int w, int h, const Bildinhalt& b)
{
    const Grafik2D g = optimierungsGrafik(b.felder);
    if (!g.ok || g.ecken.empty()) return;
    double m = 1;
    for (const auto& p : g.ecken)
        if (p.x < g.rand * 0.999 && p.y < g.rand * 0.999) m = std::max({m, p.x, p.y});
    m *= 1.25;
    auto px = [&](double v) { return x + kernel::SafeRound(v / m * w); };
    auto py = [&](double v) { return y + h - kernel::SafeRound(v / m * h); };
    c.setPenColor(platform::clGray);
    c.setBrushStyle(platform::BrushStyle::Solid);
    c.setBrushColor(platform::clWhite);
    c.rectangle(x, y, x + w + 1, y + h + 1);
    std::vector<QPoint> poly;
    for (const auto& p : g.ecken) poly.push_back({px(std::min(p.x, m)), py(std::min(p.y, m))});
    c.setBrushColor(platform::rgb(200, 230, 200));
    c.setPenColor(platform::rgb(0, 128, 0));
    c.polygon(poly);
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.painter().save();
    c.painter().setClipRect(x, y, w + 1, h + 1);
    // constraint lines across the whole square
    c.setPenColor(platform::clNavy);
    for (const auto& l : g.geraden) {
        if (std::fabs(l[1]) > 1e-12) {
            c.moveTo(px(0), py(l[2] / l[1]));
            c.lineTo(px(m), py((l[2] - l[0] * m) / l[1]));
        } else if (std::fabs(l[0]) > 1e-12) {
            c.moveTo(px(l[2] / l[0]), py(0));
            c.lineTo(px(l[2] / l[0]), py(m));
        }
    }
    // the objective line through the listed optimum
    for (const auto& z : b.zeilen)
        if (z.rfind("Optimum x = ", 0) == 0 && std::fabs(g.ziel[1]) > 1e-12) {
            std::string t = z.substr(12);
            for (char& ch : t)
                if (ch == ',') ch = '.';
            const double ox = std::atof(t.c_str());
            const size_t p = t.find("y = ");
            const double oy = p == std::string::npos ? 0 : std::atof(t.c_str() + p + 4);
            const double wert = g.ziel[0] * ox + g.ziel[1] * oy;
            c.setPenColor(platform::clRed);
            c.setPenWidth(2);
            c.moveTo(px(0), py(wert / g.ziel[1]));
            c.lineTo(px(m), py((wert - g.ziel[0] * m) / g.ziel[1]));
            c.setPenWidth(1);
            c.setBrushStyle(platform::BrushStyle::Solid);
            c.setBrushColor(platform::clRed);
            c.ellipse(px(ox) - 4, py(oy) - 4, px(ox) + 5, py(oy) + 5);
            c.setBrushStyle(platform::BrushStyle::Clear);
        }
    c.painter().restore();
    c.setFontSize(8);
    c.setFontStyle(0);
    c.setFontColor(platform::clBlack);
    c.textOutW(x + 4, y + h - 16, "0");
    const QString mx = u(zahl(m, 2));
    c.textOutW(x + w - 4 - c.textWidthW(mx), y + h - 16, mx);
    c.textOutW(x + 4, y + 4, mx);
    c.setFontColor(platform::clGray);
    c.textOutW(x, y + h + 4, QString::fromUtf8("Die grafische Lösung gibt es nur"));
    c.textOutW(x, y + h + 18, QString::fromUtf8("für zweidimensionale Probleme."));
}

// Three circles; the regions that the expression covers are filled cell by cell.
void vennZeichnen(Canvas& c, int x, int y, int w, int h, const Bildinhalt& b)
{
    unsigned regionen = 0;
    if (b.felder.size() < 4 || !mengenBereiche(b.felder[3], regionen)) return;
    const int r = std::min(w, h) * 3 / 10;
    const int mx = x + w / 2, my = y + h / 2;
    const QPoint mitte[3] = {{mx - r / 2, my - r / 3}, {mx + r / 2, my - r / 3}, {mx, my + r / 2}};
    c.setPenColor(platform::clGray);
    c.setBrushStyle(platform::BrushStyle::Solid);
    c.setBrushColor(platform::clWhite);
    c.rectangle(x, y, x + w, y + h);
    c.setPenStyle(platform::PenStyle::Clear);
    c.setBrushColor(platform::rgb(255, 200, 120));
    const int zelle = 2;
    for (int py = y + 1; py < y + h - 1; py += zelle)
        for (int px = x + 1; px < x + w - 1; px += zelle) {
            unsigned muster = 0;
            for (int i = 0; i < 3; ++i) {
                const int dx = px - mitte[i].x(), dy = py - mitte[i].y();
                if (dx * dx + dy * dy <= r * r) muster |= 1u << i;
            }
            if (muster && ((regionen >> muster) & 1u)) c.fillRect(px, py, px + zelle, py + zelle);
        }
    c.setPenStyle(platform::PenStyle::Solid);
    c.setBrushStyle(platform::BrushStyle::Clear);
    const platform::TColor farben[3] = {platform::clBlue, platform::clRed, platform::rgb(0, 128, 0)};
    const char* namen[3] = {"A", "B", "C"};
    c.setFontSize(12);
    c.setFontStyle(platform::fsBold);
    for (int i = 0; i < 3; ++i) {
        c.setPenColor(farben[i]);
        c.setPenWidth(2);
        c.ellipse(mitte[i].x() - r, mitte[i].y() - r, mitte[i].x() + r, mitte[i].y() + r);
        c.setFontColor(farben[i]);
        const int lx = i == 0 ? mitte[i].x() - r - 4 : i == 1 ? mitte[i].x() + r - 8 : mitte[i].x() - 6;
        const int ly = i == 2 ? mitte[i].y() + r + 2 : mitte[i].y() - r - 18;
        c.textOutW(lx, ly, namen[i]);
    }
    c.setPenWidth(1);
    c.setFontStyle(0);
}

}  // namespace

void zeichneErgebnis(Canvas& c, int breite, int hoehe, const Bildinhalt& b)
{
    const std::string name = b.seite >= 0 && b.seite < seitenzahl ? seitennamen()[b.seite] : "";
    platform::DrawToolTitle(c, breite, hoehe, u(name), 6, platform::clWhite);
    const int oben = 58;
    if (!seite(b.seite).vorhanden) {
        c.setFontName("Verdana");
        c.setFontSize(10);
        c.setFontColor(platform::clGray);
        c.setBrushStyle(platform::BrushStyle::Clear);
        c.textOutW(16, oben + 10, QString::fromUtf8("Diese Seite ist in dieser Version noch nicht verfügbar."));
        return;
    }
    c.setFontColor(platform::clBlack);
    if ((b.seite == 17 || b.seite == 18) && !b.zeilen.empty() && b.zeilen.size() > 2) {
        tafelZeichnen(c, 16, oben + 4, breite - 32, hoehe - oben - 8, b.zeilen);
        return;
    }
    int textbreite = breite - 32;
    if (b.seite == 15 && !b.zeilen.empty()) {
        const int w = std::min(320, breite / 2 - 20);
        vennZeichnen(c, breite - w - 12, oben + 4, w, std::min(300, hoehe - oben - 16), b);
        textbreite = breite - w - 44;
    } else if (b.seite == 7 && !b.zeilen.empty()) {
        const int w = std::min(300, breite / 2 - 20);
        optimierungZeichnen(c, breite - w - 12, oben + 4, w, std::min(300, hoehe - oben - 40), b);
        textbreite = breite - w - 44;
    } else if (b.seite == 3 || b.seite == 19) {
        const int w = std::min(300, breite / 2 - 20);
        vorschauZeichnen(c, breite - w - 12, oben + 4, w, std::min(230, hoehe - oben - 16), b);
        textbreite = breite - w - 44;
    }
    c.setFontColor(platform::clBlack);
    zeilenZeichnen(c, 16, oben + 4, textbreite, hoehe - 6, b.zeilen, b.erste);
    if (!b.status.empty()) {
        c.setFontColor(platform::clGray);
        c.setFontSize(8);
        c.textOutW(16, hoehe - 18, u(b.status));
    }
}

}  // namespace algebra
