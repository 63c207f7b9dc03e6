// Vectors in space: lengths, products, angles, projections and linear combinations.
#include "algebra/algebraseiten.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace algebra {

namespace {

using V = std::array<double, 3>;

bool leseVektor(const std::string& t, V& v)
{
    const auto teil = teile(t);
    if (teil.size() != 3) return false;
    for (int i = 0; i < 3; ++i)
        if (!leseZahl(teil[i], v[i])) return false;
    return true;
}

double skalar(const V& a, const V& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
double betrag(const V& a) { return std::sqrt(skalar(a, a)); }
V kreuz(const V& a, const V& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
std::string text(const V& a) { return "(" + zahl(a[0]) + " ; " + zahl(a[1]) + " ; " + zahl(a[2]) + ")"; }

std::string winkel(const V& a, const V& b)
{
    const double na = betrag(a), nb = betrag(b);
    if (na < 1e-15 || nb < 1e-15) return " unbestimmt";
    const double c = std::max(-1.0, std::min(1.0, skalar(a, b) / (na * nb)));
    return " = " + zahl(std::acos(c) * 180 / M_PI, 4) + "°";
}

}  // namespace

Ergebnis vektorSeite(const std::vector<std::string>& f)
{
    if (f.size() != 4) return eingabefehler("Die Vektorrechnung braucht die vier Vektoren a, b, c, d.");
    std::array<V, 4> v;
    const char* namen[] = {"a", "b", "c", "d"};
    for (int i = 0; i < 4; ++i)
        if (!leseVektor(f[i], v[i]))
            return eingabefehler(std::string("Vektor ") + namen[i] + " braucht drei Komponenten, z.B. 1;2;3.");
    Ergebnis e;
    for (int i = 0; i < 4; ++i) {
        const std::string n = namen[i];
        e.zeilen.push_back("Vektor " + n + " = " + text(v[i]));
        e.zeilen.push_back("Betrag |" + n + "| = " + zahl(betrag(v[i])));
        const double b = betrag(v[i]);
        if (b > 1e-15)
            e.zeilen.push_back("Normierter Vektor " + n + "0 = " + text({v[i][0] / b, v[i][1] / b, v[i][2] / b}));
        const char* achsen[] = {"x", "y", "z"};
        for (int k = 0; k < 3; ++k) {
            V achse{0, 0, 0};
            achse[k] = 1;
            e.zeilen.push_back("Winkel zwischen " + n + " und " + achsen[k] + "-Achse" + winkel(v[i], achse));
        }
    }
    e.zeilen.push_back("Vektorsumme a + b = " + text({v[0][0] + v[1][0], v[0][1] + v[1][1], v[0][2] + v[1][2]}));
    e.zeilen.push_back("Skalarprodukt a · b = " + zahl(skalar(v[0], v[1])));
    e.zeilen.push_back("Vektorprodukt a x b\t" + text(kreuz(v[0], v[1])));
    e.zeilen.push_back("Winkel zwischen a und b" + winkel(v[0], v[1]));
    const double bb = skalar(v[1], v[1]);
    if (bb > 1e-30) {
        const double t = skalar(v[0], v[1]) / bb;
        e.zeilen.push_back("Projektion von a auf b = " + text({t * v[1][0], t * v[1][1], t * v[1][2]}));
    } else {
        e.zeilen.push_back("Projektion von a auf b unbestimmt");
    }
    e.zeilen.push_back("Spatprodukt (a x b) · c = " + zahl(skalar(kreuz(v[0], v[1]), v[2])));
    e.ok = true;
    return e;
}

Ergebnis linearkombinationSeite(const std::vector<std::string>& f)
{
    if (f.size() != 3) return eingabefehler("Die Linearkombination braucht die Vektoren a, b und c.");
    V a, b, c;
    if (!leseVektor(f[0], a) || !leseVektor(f[1], b) || !leseVektor(f[2], c))
        return eingabefehler("Jeder Vektor braucht drei Komponenten, z.B. 1;2;3.");
    // Least squares r a + s b ~ c through the 2x2 normal equations; a zero residual means yes.
    const double aa = skalar(a, a), ab = skalar(a, b), bb = skalar(b, b), ac = skalar(a, c), bc = skalar(b, c);
    const double det = aa * bb - ab * ab;
    const double skala = std::max({1.0, betrag(a), betrag(b), betrag(c)});
    double r = 0, s = 0;
    Ergebnis e;
    if (std::fabs(det) > 1e-12 * skala * skala * skala * skala) {
        r = (ac * bb - bc * ab) / det;
        s = (aa * bc - ab * ac) / det;
    } else if (aa > 1e-24) {
        r = ac / aa;  // a and b parallel: try a alone
    } else if (bb > 1e-24) {
        s = bc / bb;
    }
    V rest;
    for (int i = 0; i < 3; ++i) rest[i] = r * a[i] + s * b[i] - c[i];
    if (betrag(rest) > 1e-9 * skala) {
        e.zeilen.push_back("c ist keine Linearkombination von a und b");
        return e;
    }
    e.zeilen.push_back("c = " + zahl(r) + " · a + " + zahl(s) + " · b");
    if (std::fabs(det) <= 1e-12 * skala * skala * skala * skala)
        e.zeilen.push_back("a und b sind linear abhängig; die Darstellung ist nicht eindeutig.");
    e.ok = true;
    return e;
}

}  // namespace algebra
