#include "geometry/dreieckhilfen.h"

#include <algorithm>
#include <cmath>

namespace geo {

double abstand(Pkt a, Pkt b) { return std::hypot(a.x - b.x, a.y - b.y); }
Pkt mitte(Pkt a, Pkt b) { return {(a.x + b.x) / 2, (a.y + b.y) / 2}; }

namespace {
double klemme(double v, double g)
{
    if (!(v == v)) return 0;
    return std::clamp(v, -g, g);
}
int runde(double v)
{
    v = klemme(v, 10000);
    return static_cast<int>(std::lround(v));
}
double kreuz(Pkt a, Pkt b) { return a.x * b.y - a.y * b.x; }
}  // namespace

void PointTable::setze(int nr, Pkt p)
{
    if (nr <= 0 || nr >= kAnzahl) return;
    Eintrag& e = e_[nr];
    e.r = {klemme(p.x, 1e10), klemme(p.y, 1e10)};
    e.ix = runde(e.r.x);
    e.iy = runde(e.r.y);
}

void PointTable::setzeEcke(int nr, int px, int py)
{
    if (nr < 1 || nr > 3) return;
    e_[nr].r = {double(px), double(py)};
    e_[nr].ix = px;
    e_[nr].iy = py;
}

bool TrilinearToPoint(double u, double v, double w, Pkt A, Pkt B, Pkt C, Pkt& P)
{
    const double a = abstand(B, C), b = abstand(C, A), c = abstand(A, B);
    if (a + b + c == 0) return false;
    // zero angle at A: A lies on the segment's line through B and C on the outside
    if (std::fabs(kreuz(B - A, C - A)) < 1e-12 * (b * c + 1) && (B - A).x * (C - A).x + (B - A).y * (C - A).y > 0)
        return false;
    const double s = a * u + b * v + c * w;
    if (s == 0 || !std::isfinite(s)) return false;
    // barycentric weights a u : b v : c w, taken relative to the incentre for accuracy
    const Pkt I = (A * a + B * b + C * c) * (1.0 / (a + b + c));
    const Pkt q = ((A - I) * (a * u) + (B - I) * (b * v) + (C - I) * (c * w)) * (1.0 / s);
    P = I + q;
    return std::isfinite(P.x) && std::isfinite(P.y);
}

bool IntersectLines(Pkt p1, Pkt p2, Pkt q1, Pkt q2, Pkt& S)
{
    const Pkt d1 = p2 - p1, d2 = q2 - q1;
    const double n = kreuz(d1, d2);
    if (n == 0 || !std::isfinite(n)) return false;
    const double t = kreuz(q1 - p1, d2) / n;
    S = p1 + d1 * t;
    return std::isfinite(S.x) && std::isfinite(S.y);
}

Pkt Lotfusspunkt(Pkt P, Pkt A, Pkt B)
{
    const Pkt d = B - A;
    const double l2 = d.x * d.x + d.y * d.y;
    if (l2 == 0) return A;
    const double t = ((P - A).x * d.x + (P - A).y * d.y) / l2;
    return A + d * t;
}

Pkt PerpendicularPoint(Pkt P, Pkt A, Pkt B)
{
    if (std::fabs(P.x - A.x) < 1e-12) return {A.x - 20, B.y};
    if (std::fabs(P.y - A.y) < 1e-12) return {B.x, A.y - 20};
    double m = std::clamp((A.y - P.y) / (A.x - P.x), -1000.0, 1000.0);
    // the perpendicular through B has slope -1/m; go 100 pixels along x from the foot
    const Pkt f = Lotfusspunkt(B, P, A);
    return {f.x + 100, f.y - 100 / m};
}

Pkt RotateAbout(Pkt p, Pkt c, double angle)
{
    const double s = std::sin(angle), k = std::cos(angle);
    const Pkt d = p - c;
    return {c.x + d.x * k - d.y * s, c.y + d.x * s + d.y * k};
}

bool TangentPoint(double r1, Pkt M1, double r2, Pkt M2, Pkt& T)
{
    if (r1 == r2) return false;
    T = M1 + (M2 - M1) * (r1 / (r1 - r2));
    return true;
}

Pkt ParallelPoint(Pkt A, Pkt B, Pkt C) { return A + C - B; }

double SignedDistance(Pkt P, Pkt third, Pkt e1, Pkt e2)
{
    const double l = abstand(e1, e2);
    if (l == 0) return 0;
    const double dp = kreuz(e2 - e1, P - e1) / l;
    const double dt = kreuz(e2 - e1, third - e1);
    return dt < 0 ? -dp : dp;
}

bool SameSide(Pkt P, Pkt Q, Pkt l1, Pkt l2)
{
    return kreuz(l2 - l1, P - l1) * kreuz(l2 - l1, Q - l1) >= 0;
}

Pkt FlipSide(Pkt P, Pkt pivot, Pkt ref, Pkt l1, Pkt l2)
{
    if (SameSide(P, ref, l1, l2)) return P;
    return pivot * 2 - P;
}

int Cramer3(const double m[9], const double r[3], double x[3])
{
    auto det = [](const double k[9]) {
        return k[0] * (k[4] * k[8] - k[5] * k[7]) - k[1] * (k[3] * k[8] - k[5] * k[6]) +
               k[2] * (k[3] * k[7] - k[4] * k[6]);
    };
    const double d = det(m);
    double n[3];
    for (int col = 0; col < 3; ++col) {
        double k[9];
        std::copy(m, m + 9, k);
        for (int row = 0; row < 3; ++row) k[row * 3 + col] = r[row];
        n[col] = det(k);
    }
    if (d == 0) return (n[0] != 0 || n[1] != 0 || n[2] != 0) ? 255 : 1;
    for (int i = 0; i < 3; ++i) x[i] = n[i] / d;
    return 0;
}

bool KiepertApex(double winkel, Pkt p1, Pkt p2, Pkt gegen, bool aussen, Pkt& apex)
{
    const double t = std::tan(winkel);
    if (t == 0) return false;
    const Pkt m = mitte(p1, p2);
    const double half = abstand(p1, p2) / 2;
    if (half == 0) return false;
    const Pkt d = (p2 - p1) * (1.0 / (2 * half));
    Pkt n{-d.y, d.x};
    const bool zurGegenseite = kreuz(p2 - p1, n) * kreuz(p2 - p1, gegen - p1) > 0;
    if (zurGegenseite == aussen) n = n * -1.0;
    apex = m + n * (half * t);
    return true;
}

bool Kreis3(Pkt p1, Pkt p2, Pkt p3, Pkt& m, double& r)
{
    const double d = 2 * kreuz(p2 - p1, p3 - p1);
    if (d == 0) return false;
    const Pkt b = p2 - p1, c = p3 - p1;
    const double b2 = b.x * b.x + b.y * b.y, c2 = c.x * c.x + c.y * c.y;
    m = {p1.x + (c.y * b2 - b.y * c2) / d, p1.y + (b.x * c2 - c.x * b2) / d};
    r = abstand(m, p1);
    return std::isfinite(r);
}

}  // namespace geo

namespace geo {

bool Kegelschnitt5(const Pkt p[5], double k[6])
{
    // Work in a frame about the first point, scaled to about unit size, for conditioning.
    double s = 0;
    for (int i = 1; i < 5; ++i) s = std::max(s, abstand(p[0], p[i]));
    if (s == 0) return false;
    double m[5][6];
    for (int i = 0; i < 5; ++i) {
        const double x = (p[i].x - p[0].x) / s, y = (p[i].y - p[0].y) / s;
        const double row[6] = {x * x, x * y, y * y, x, y, 1};
        std::copy(row, row + 6, m[i]);
    }
    // Null vector of the 5x6 matrix: the signed 5x5 minors.
    double q[6];
    for (int col = 0; col < 6; ++col) {
        double a[5][5];
        for (int i = 0; i < 5; ++i)
            for (int j = 0, jj = 0; j < 6; ++j)
                if (j != col) a[i][jj++] = m[i][j];
        double det = 1;
        for (int c = 0; c < 5; ++c) {
            int piv = c;
            for (int r = c + 1; r < 5; ++r)
                if (std::fabs(a[r][c]) > std::fabs(a[piv][c])) piv = r;
            if (a[piv][c] == 0) { det = 0; break; }
            if (piv != c) { for (int j = 0; j < 5; ++j) std::swap(a[c][j], a[piv][j]); det = -det; }
            det *= a[c][c];
            for (int r = c + 1; r < 5; ++r) {
                const double f = a[r][c] / a[c][c];
                for (int j = c; j < 5; ++j) a[r][j] -= f * a[c][j];
            }
        }
        q[col] = (col % 2 ? -det : det);
    }
    // back to pixel coordinates: x' = (x - x0)/s
    const double x0 = p[0].x, y0 = p[0].y;
    const double A = q[0] / (s * s), B = q[1] / (s * s), C = q[2] / (s * s), D = q[3] / s, E = q[4] / s;
    const double F = q[5];
    k[0] = A;
    k[1] = B;
    k[2] = C;
    k[3] = D - 2 * A * x0 - B * y0;
    k[4] = E - 2 * C * y0 - B * x0;
    k[5] = A * x0 * x0 + B * x0 * y0 + C * y0 * y0 - D * x0 - E * y0 + F;
    double n = 0;
    for (int i = 0; i < 3; ++i) n += k[i] * k[i];
    n = std::sqrt(n);
    if (n == 0 || !std::isfinite(n)) return false;
    for (int i = 0; i < 6; ++i) k[i] /= n;
    return true;
}

double KegelschnittAbstand(const double k[6], Pkt P)
{
    const double x = P.x, y = P.y;
    const double v = k[0] * x * x + k[1] * x * y + k[2] * y * y + k[3] * x + k[4] * y + k[5];
    const double gx = 2 * k[0] * x + k[1] * y + k[3], gy = k[1] * x + 2 * k[2] * y + k[4];
    const double g = std::hypot(gx, gy);
    return g == 0 ? std::fabs(v) : std::fabs(v) / g;
}

}  // namespace geo
