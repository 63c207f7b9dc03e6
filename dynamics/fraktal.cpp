#include "dynamics/fraktal.h"

#include <algorithm>
#include <cmath>

namespace chaos {

namespace {

// One step of variant v. The squares of x and y are passed in, so the loop computes them once.
inline void schritt(int v, double& x, double& y, double xx, double yy, double a, double b)
{
    switch (v) {
    case 1: {  // z^3
        const double nx = x * (xx - 3 * yy) + a;
        y = y * (3 * xx - yy) + b;
        x = nx;
        break;
    }
    case 2: {  // z^4
        const double nx = xx * xx + yy * yy - 6 * xx * yy + a;
        y = 4 * x * y * (x + y) * (x - y) + b;
        x = nx;
        break;
    }
    case 3: {  // z^5
        const double nx = x * (xx * xx - 10 * xx * yy + 5 * yy * yy) + a;
        y = y * (5 * xx * xx - 10 * xx * yy + yy * yy) + b;
        x = nx;
        break;
    }
    case 4: {  // z^6
        const double x4 = xx * xx, y4 = yy * yy;
        const double nx = x4 * xx - 15 * x4 * yy + 15 * xx * y4 - y4 * yy + a;
        y = x * y * (6 * x4 - 20 * xx * yy + 6 * y4) + b;
        x = nx;
        break;
    }
    case 5: {  // z^7
        const double x4 = xx * xx, y4 = yy * yy;
        const double nx = x * (x4 * xx - 21 * x4 * yy + 35 * xx * y4 - 7 * y4 * yy) + a;
        y = y * (7 * x4 * xx - 35 * x4 * yy + 21 * xx * y4 - y4 * yy) + b;
        x = nx;
        break;
    }
    case 6: {  // z^8
        const double x4 = xx * xx, y4 = yy * yy;
        const double nx = x4 * x4 - 28 * x4 * xx * yy + 70 * x4 * y4 - 28 * xx * y4 * yy + y4 * y4 + a;
        y = x * y * (8 * x4 * xx - 56 * x4 * yy + 56 * xx * y4 - 8 * y4 * yy) + b;
        x = nx;
        break;
    }
    case 7: {  // z^3 - z
        const double nx = x * (xx - 3 * yy) - x + a;
        y = y * (3 * xx - yy) - y + b;
        x = nx;
        break;
    }
    case 8: {
        const double nx = xx - yy + std::sin(x) + a;
        y = 2 * x * y + std::sin(y) + b;
        x = nx;
        break;
    }
    case 9:
    case 13:
    case 10:
    case 25: {
        const double nx = xx - yy + a;
        y = 2 * x * y + b;
        x = nx;
        break;
    }
    case 11: {
        const double nx = xx - yy + a;
        y = -2 * x * y + b;
        x = nx;
        break;
    }
    case 12:  // sequential on purpose: y takes the new x
        x = xx - yy + a;
        y = x * x + yy + b;
        break;
    case 14: {
        const double nx = 2 * x * y - y + a;
        y = xx - yy + b;
        x = nx;
        break;
    }
    case 15: {
        const double r2 = std::max(xx + yy, 1e-300);
        const double nx = xx - yy + a / r2;
        y = 2 * x * y + b / r2;
        x = nx;
        break;
    }
    case 16: {  // z^2 + c/z
        const double r2 = std::max(xx + yy, 1e-300);
        const double nx = xx - yy + (a * x + b * y) / r2;
        y = 2 * x * y + (b * x - a * y) / r2;
        x = nx;
        break;
    }
    case 17: {  // z^3 + c/z
        const double r2 = std::max(xx + yy, 1e-300);
        const double nx = x * (xx - 3 * yy) + (a * x + b * y) / r2;
        y = y * (3 * xx - yy) + (b * x - a * y) / r2;
        x = nx;
        break;
    }
    case 18: {  // z^3 on |y|
        const double nx = x * (xx - 3 * yy) + a;
        y = y * (3 * xx - yy) + b;
        x = nx;
        break;
    }
    case 19: {  // z^2 + c/z^2
        const double r4 = std::max((xx + yy) * (xx + yy), 1e-300);
        const double ux = xx - yy, uy = -2 * x * y;  // conj(z)^2
        const double nx = xx - yy + (a * ux - b * uy) / r4;
        y = 2 * x * y + (a * uy + b * ux) / r4;
        x = nx;
        break;
    }
    case 24: {  // sin z + c
        const double nx = std::sin(x) * std::cosh(y) + a;
        y = std::cos(x) * std::sinh(y) + b;
        x = nx;
        break;
    }
    case 26: {  // c * exp z
        const double e = std::exp(std::min(x, 700.0));
        const double ux = e * std::cos(y), uy = e * std::sin(y);
        x = a * ux - b * uy;
        y = a * uy + b * ux;
        break;
    }
    case 27: {  // cos z + c
        const double nx = std::cos(x) * std::cosh(y) + a;
        y = -std::sin(x) * std::sinh(y) + b;
        x = nx;
        break;
    }
    case 28: {  // c * sin z
        const double ux = std::sin(x) * std::cosh(y), uy = std::cos(x) * std::sinh(y);
        x = a * ux - b * uy;
        y = a * uy + b * ux;
        break;
    }
    case 32: {  // ((z^2 + c - 1) / (2z + c - 2))^2
        const double px = xx - yy + a - 1, py = 2 * x * y + b;
        const double qx = 2 * x + a - 2, qy = 2 * y + b;
        const double q2 = std::max(qx * qx + qy * qy, 1e-300);
        const double wx = (px * qx + py * qy) / q2, wy = (py * qx - px * qy) / q2;
        x = wx * wx - wy * wy;
        y = 2 * wx * wy;
        break;
    }
    default:
        break;
    }
}

std::uint64_t splitmix(std::uint64_t& s)
{
    std::uint64_t z = (s += 0x9E3779B97F4A7C15ull);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

double zufall01(std::uint64_t& s) { return static_cast<double>(splitmix(s) >> 11) * 0x1.0p-53; }

}  // namespace

const std::vector<int>& fluchtvarianten()
{
    static const std::vector<int> v = {10, 1,  2,  3,  4,  5,  6,  7,  8,  9,  11, 12, 13,
                                       14, 15, 16, 17, 18, 19, 24, 25, 26, 27, 28, 32};
    return v;
}

bool istFluchtvariante(int v)
{
    const auto& l = fluchtvarianten();
    return std::find(l.begin(), l.end(), v) != l.end();
}

std::string variantenname(int v)
{
    switch (v) {
    case 1: return "z³ + c";
    case 2: return "z⁴ + c";
    case 3: return "z⁵ + c";
    case 4: return "z⁶ + c";
    case 5: return "z⁷ + c";
    case 6: return "z⁸ + c";
    case 7: return "z³ - z + c";
    case 8: return "z² + sin x + i sin y + c";
    case 9: return "z² + c mit |x|";
    case 10: return "z² + c";
    case 11: return "z̄² + c";
    case 12: return "x² - y² + a, x² + y² + b";
    case 13: return "z² + c mit |y|";
    case 14: return "2xy - y + a, x² - y² + b";
    case 15: return "z² + c/|z|²";
    case 16: return "z² + c/z";
    case 17: return "z³ + c/z";
    case 18: return "z³ + c mit |y|";
    case 19: return "z² + c/z²";
    case 24: return "sin z + c";
    case 25: return "z² + c, c verrauscht";
    case 26: return "c·exp z";
    case 27: return "cos z + c";
    case 28: return "c·sin z";
    case 32: return "((z² + c - 1)/(2z + c - 2))²";
    default: return "";
    }
}

double fluchtgrenze(int v) { return (v == 26 || v == 28) ? 100.0 : 9.0; }

bool startBeiC(int v) { return v == 15 || v == 16 || v == 17 || v == 19 || v == 28; }

Flucht iteriere(int v, double x, double y, double a, double b, int maxIter)
{
    const double grenze = fluchtgrenze(v);
    const bool absX = v == 9, absY = v == 13 || v == 18;
    Flucht f;
    double xx = x * x, yy = y * y;
    int n = 0;
    while (n < maxIter) {
        if (absX) x = std::fabs(x);
        if (absY) y = std::fabs(y);
        schritt(v, x, y, xx, yy, a, b);
        ++n;
        xx = x * x;
        yy = y * y;
        if (!(xx + yy <= grenze)) {  // NaN counts as escaped
            f.entkommen = true;
            break;
        }
    }
    f.schritte = n;
    f.betrag = std::sqrt(xx + yy);
    return f;
}

Flucht mandelbrotFlucht(int v, double a, double b, int maxIter)
{
    return startBeiC(v) ? iteriere(v, a, b, a, b, maxIter) : iteriere(v, 0, 0, a, b, maxIter);
}

std::uint8_t farbindex(const Flucht& f, double k, bool innen)
{
    if (f.entkommen) {
        const long long i = std::llround(k * f.schritte);
        return static_cast<std::uint8_t>(((i % 256) + 256) % 256);
    }
    if (!innen) return 0;
    const double w = 100.0 * k * f.betrag;
    if (!std::isfinite(w)) return 0;
    const long long i = std::llround(w);
    return static_cast<std::uint8_t>(((i % 256) + 256) % 256);
}

double spalteZuX(const Ansicht& a, int spalte, int breite)
{
    return a.xmin + (a.xmax - a.xmin) * spalte / std::max(1, breite);
}

double zeileZuY(const Ansicht& a, int zeile, int hoehe)
{
    return a.ymax - (a.ymax - a.ymin) * zeile / std::max(1, hoehe);
}

bool rechneFluchtbild(Werteraster& r, const Ansicht& an, const Fluchtbild& p, const Fortschritt& weiter)
{
    std::uint64_t keim = p.zufallskeim;
    int fertig = 0;
    for (int zeile = r.hoehe - 1; zeile >= 0; --zeile) {
        const double y = zeileZuY(an, zeile, r.hoehe);
        std::uint8_t* reihe = &r.werte[static_cast<std::size_t>(zeile) * r.breite];
        for (int sp = 0; sp < r.breite; ++sp) {
            const double x = spalteZuX(an, sp, r.breite);
            Flucht f;
            if (p.julia) {
                f = iteriere(p.variante, x, y, p.ca, p.cb, p.maxIter);
            } else if (p.variante == 25) {
                const double a = x + (zufall01(keim) * 2 - 1) / 20, b = y + (zufall01(keim) * 2 - 1) / 20;
                f = mandelbrotFlucht(p.variante, a, b, p.maxIter);
            } else {
                f = mandelbrotFlucht(p.variante, x, y, p.maxIter);
            }
            reihe[sp] = farbindex(f, p.farbfaktor, p.innenfaerbung);
        }
        ++fertig;
        if (weiter && !weiter(fertig)) return false;
    }
    return true;
}

bool zoomAnsicht(const Ansicht& alt, int breite, int hoehe, int x1, int y1, int x2, int y2, Ansicht& neu)
{
    if (std::abs(x2 - x1) < 1 || std::abs(y2 - y1) < 1 || breite < 1 || hoehe < 1) return false;
    const int l = std::min(x1, x2), rr = std::max(x1, x2), o = std::min(y1, y2), u = std::max(y1, y2);
    neu.xmin = spalteZuX(alt, l, breite);
    neu.xmax = spalteZuX(alt, rr, breite);
    neu.ymax = zeileZuY(alt, o, hoehe);
    neu.ymin = zeileZuY(alt, u, hoehe);
    return true;
}

Ansicht gleicheEinheiten(const Ansicht& a, int breite, int hoehe)
{
    if (breite < 1 || hoehe < 1) return a;
    const double w = a.xmax - a.xmin, h = a.ymax - a.ymin;
    const double einheit = std::max(w / breite, h / hoehe);
    const double mx = (a.xmin + a.xmax) / 2, my = (a.ymin + a.ymax) / 2;
    return {mx - einheit * breite / 2, mx + einheit * breite / 2, my - einheit * hoehe / 2, my + einheit * hoehe / 2};
}

Ansicht verschiebe(const Ansicht& a, double dx, double dy)
{
    const double w = (a.xmax - a.xmin) * dx, h = (a.ymax - a.ymin) * dy;
    return {a.xmin + w, a.xmax + w, a.ymin + h, a.ymax + h};
}

}  // namespace chaos
