#include "geometry/model3d.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double kVollkreis = 6.283185307179586;

Farbe3 mische(const Farbe3& a, const Farbe3& b, double t)
{
    return {a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t};
}
}  // namespace

void T3DModel::kante(int a, int b)
{
    if (a > b) std::swap(a, b);
    const auto e = std::make_pair(a, b);
    if (std::find(kanten.begin(), kanten.end(), e) == kanten.end()) kanten.push_back(e);
}

int T3DModel::ring(int n, double r, double z)
{
    const int erster = static_cast<int>(punkte.size());
    for (int k = 0; k < n; ++k) {
        const double w = k * kVollkreis / n;
        punkte.push_back({r * std::cos(w), r * std::sin(w), z});
    }
    for (int k = 0; k < n; ++k) kante(erster + k, erster + (k + 1) % n);
    return erster;
}

void T3DModel::verbinde(int a, int b, int n)
{
    for (int k = 0; k < n; ++k) {
        const int k1 = (k + 1) % n;
        dreiecke.push_back({a + k, a + k1, b + k1});
        dreiecke.push_back({a + k, b + k1, b + k});
        kante(a + k, b + k);
    }
}

void T3DModel::deckel(int r, int n, bool oben)
{
    double z = punkte[r].z;
    const int mitte = static_cast<int>(punkte.size());
    punkte.push_back({0, 0, z});
    for (int k = 0; k < n; ++k) {
        const int k1 = (k + 1) % n;
        if (oben) dreiecke.push_back({mitte, r + k, r + k1});
        else dreiecke.push_back({mitte, r + k1, r + k});
    }
}

T3DModel T3DModel::rotationskoerper(const std::vector<std::pair<double, double>>& profil, int n)
{
    T3DModel m;
    if (profil.size() < 2 || n < 3) return m;
    // each profile point is a ring, or an apex when its radius is 0
    std::vector<int> start;
    for (const auto& [r, z] : profil) {
        if (r <= 0) {
            start.push_back(-static_cast<int>(m.punkte.size()) - 1);
            m.punkte.push_back({0, 0, z});
        } else {
            start.push_back(m.ring(n, r, z));
        }
    }
    for (size_t i = 0; i + 1 < start.size(); ++i) {
        const int a = start[i], b = start[i + 1];
        if (a >= 0 && b >= 0) m.verbinde(a, b, n);
        else if (a >= 0 && b < 0) {
            const int s = -b - 1;
            for (int k = 0; k < n; ++k) {
                m.dreiecke.push_back({a + k, a + (k + 1) % n, s});
                m.kante(a + k, s);
            }
        } else if (a < 0 && b >= 0) {
            const int s = -a - 1;
            for (int k = 0; k < n; ++k) {
                m.dreiecke.push_back({s, b + (k + 1) % n, b + k});
                m.kante(b + k, s);
            }
        }
    }
    if (start.front() >= 0) m.deckel(start.front(), n, false);
    if (start.back() >= 0) m.deckel(start.back(), n, true);
    return m;
}

double T3DModel::volumen() const
{
    double v = 0;
    for (const auto& d : dreiecke) {
        const auto& a = punkte[d[0]];
        const auto& b = punkte[d[1]];
        const auto& c = punkte[d[2]];
        v += (a.x * (b.y * c.z - b.z * c.y) - a.y * (b.x * c.z - b.z * c.x) + a.z * (b.x * c.y - b.y * c.x)) / 6;
    }
    return v;
}

void T3DModel::drehen(double a, double b, double c)
{
    poly::Koerper k;
    k.ecken = std::move(punkte);
    poly::drehen(k, a, b, c);
    punkte = std::move(k.ecken);
}

void T3DModel::fuelleDreieck(double x1, double y1, const Farbe3& c1, double x2, double y2, const Farbe3& c2,
                             double x3, double y3, const Farbe3& c3, const PixelSetzen& setze)
{
    struct Ecke {
        double x, y;
        Farbe3 c;
    };
    Ecke e[3] = {{x1, y1, c1}, {x2, y2, c2}, {x3, y3, c3}};
    std::sort(std::begin(e), std::end(e), [](const Ecke& a, const Ecke& b) { return a.y < b.y; });
    // a flat edge would divide by zero; 0.001 keeps the slopes finite
    auto hoehe = [](double d) { return std::fabs(d) < 1e-9 ? 0.001 : d; };
    const double h02 = hoehe(e[2].y - e[0].y);
    const int yA = static_cast<int>(std::ceil(e[0].y - 0.5));
    const int yE = static_cast<int>(std::ceil(e[2].y - 0.5));
    for (int y = yA; y < yE; ++y) {
        const double py = y + 0.5;
        const double tl = (py - e[0].y) / h02;
        double xa = e[0].x + (e[2].x - e[0].x) * tl;
        Farbe3 ca = mische(e[0].c, e[2].c, tl);
        double xb;
        Farbe3 cb;
        if (py < e[1].y) {
            const double t = (py - e[0].y) / hoehe(e[1].y - e[0].y);
            xb = e[0].x + (e[1].x - e[0].x) * t;
            cb = mische(e[0].c, e[1].c, t);
        } else {
            const double t = (py - e[1].y) / hoehe(e[2].y - e[1].y);
            xb = e[1].x + (e[2].x - e[1].x) * t;
            cb = mische(e[1].c, e[2].c, t);
        }
        if (xa > xb) {
            std::swap(xa, xb);
            std::swap(ca, cb);
        }
        const int xs = static_cast<int>(std::ceil(xa - 0.5));
        const int xe = static_cast<int>(std::ceil(xb - 0.5));
        const double breite = xb - xa > 1e-9 ? xb - xa : 1;
        for (int x = xs; x < xe; ++x) setze(x, y, mische(ca, cb, (x + 0.5 - xa) / breite));
    }
}
