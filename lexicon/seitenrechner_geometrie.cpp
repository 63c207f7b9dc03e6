// Members of equations and triangles: 5, 7, 8, 12.
#include "lexicon/seitenrechner_intern.h"

#include "kernel/realtostr.h"
#include "kernel/roots.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace lexicon::rechner {

namespace {

constexpr double kGrad = 180.0 / 3.14159265358979323846;

// A positive real from the field, or the default written back into it.
double positivOderVorgabe(std::string& feld, double vorgabe)
{
    bool ok = false;
    const double v = wertFeld(feld, ok);
    if (ok && v > 0)
        return v;
    feld = kernel::RealToStr(1, 10, vorgabe);
    return vorgabe;
}

// The roots of a cubic one a line; "keine reelle Lösung" first if one is complex.
void kubikLinien(R& r, const char* name, bool buchstaben, double a, double b, double c, double d)
{
    const std::string text = kernel::CubicRoots(a, b, c, d);
    const kernel::PolynomialRoots pr = kernel::CubicRootValues(a, b, c, d);
    if (text.find("*i") != std::string::npos)
        zeileAus(r, "keine reelle L\xF6sung");
    std::vector<std::complex<double>> w = pr.roots;
    std::sort(w.begin(), w.end(), [](auto x, auto y) { return x.real() < y.real(); });
    for (size_t i = 0; i < w.size(); ++i) {
        const std::string label = std::string(name) + (buchstaben ? std::string(" ") + char('a' + i) : "");
        const bool reell = kernel::RootText(w[i]).find("*i") == std::string::npos;
        zeileAus(r, label + "\t" + (reell ? zahl(w[i].real(), 5) : kernel::RootText(w[i])));
    }
}

}  // namespace

// 5: triangle from area, circumradius and inradius; the 3-4-5 triangle as default.
void dreieckAusFlaecheRadien(R& r)
{
    const double A = positivOderVorgabe(r.ed1, 6);
    const double Ru = positivOderVorgabe(r.ed2, 2.5);
    const double ri = positivOderVorgabe(r.ed3, 1);
    r.tabbreite = 60;
    zeileAus(r, "Fl\xE4" "cheninhalt\t" + r.ed1);
    zeileAus(r, "Umkreisradius\t" + r.ed2);
    zeileAus(r, "Inkreisradius\t" + r.ed3);
    const double s = A / ri;
    const double q = s * s + ri * ri + 4 * Ru * ri;
    kubikLinien(r, "Seite", true, 1, -2 * s, q, -4 * A * Ru);
    kubikLinien(r, "H\xF6he", false, 2 * Ru, -q, 4 * s * s * ri, -4 * s * s * ri * ri);
    kubikLinien(r, "Ankreisradius", false, 1, -(4 * Ru + ri), s * s, -s * s * ri);
}

// 7: Heron's iteration for the square root.
void quadratwurzelHeron(R& r)
{
    bool ok = false;
    const double a = wertFeld(r.ed1, ok);
    if (!ok || a < 0) {
        zeileAus(r, "Eingabe falsch");
        return;
    }
    double x = a > 1 ? a / 2 : 1;
    if (a == 0)
        x = 0;
    for (int n = 1; n <= 60 && x != 0; ++n) {
        const double neu = (x + a / x) / 2;
        zeileAus(r, "Schritt " + std::to_string(n) + "\t" + zahl(neu, 12));
        if (neu == x)
            break;
        x = neu;
    }
    zeileAus(r, "Wurzel\t" + zahl(x, 12));
    zeileAus(r, "SQRT(a)\t" + zahl(std::sqrt(a), 12));
}

// 8: triangle from its three sides.
void dreieckAusSeiten(R& r)
{
    bool o1 = false, o2 = false, o3 = false;
    const double a = wertFeld(r.ed1, o1), b = wertFeld(r.ed2, o2), c = wertFeld(r.ed3, o3);
    if (!o1 || !o2 || !o3 || a <= 0 || b <= 0 || c <= 0 || a >= b + c || b >= a + c || c >= a + b) {
        zeileAus(r, "Kein Dreieck");
        return;
    }
    // Heron in the form that stays accurate for needle-like triangles (sides sorted).
    double x[3] = {a, b, c};
    std::sort(x, x + 3, [](double p, double q) { return p > q; });
    const double F =
        0.25 * std::sqrt((x[0] + (x[1] + x[2])) * (x[2] - (x[0] - x[1])) * (x[2] + (x[0] - x[1])) *
                         (x[0] + (x[1] - x[2])));
    const double s = (a + b + c) / 2;
    auto winkel = [](double gegen, double p, double q) {
        const double co = std::clamp((p * p + q * q - gegen * gegen) / (2 * p * q), -1.0, 1.0);
        return std::acos(co) * kGrad;
    };
    zeileAus(r, "Umfang\t" + zahl(a + b + c));
    zeileAus(r, "Fl\xE4" "cheninhalt\t" + zahl(F));
    zeileAus(r, "Winkel alpha\t" + zahl(winkel(a, b, c)));
    zeileAus(r, "Winkel beta\t" + zahl(winkel(b, a, c)));
    zeileAus(r, "Winkel gamma\t" + zahl(winkel(c, a, b)));
    zeileAus(r, "Umkreisradius\t" + zahl(a * b * c / (4 * F)));
    zeileAus(r, "Inkreisradius\t" + zahl(F / s));
    zeileAus(r, "H\xF6he\t" + zahl(2 * F / a));
    zeileAus(r, "H\xF6he\t" + zahl(2 * F / b));
    zeileAus(r, "H\xF6he\t" + zahl(2 * F / c));
}

// 12: a x^2 + b x + c = 0.
void quadratischeGleichung(R& r)
{
    bool o1 = false, o2 = false, o3 = false;
    const double a = wertFeld(r.ed1, o1), b = wertFeld(r.ed2, o2), c = wertFeld(r.ed3, o3);
    if (!o1 || !o2 || !o3) {
        zeileAus(r, "Eingabe falsch");
        return;
    }
    if (a == 0) {
        if (b == 0) {
            zeileAus(r, "Eingabe falsch");
            return;
        }
        zeileAus(r, "x =\t" + zahl(-c / b));
        return;
    }
    const double D = b * b - 4 * a * c;
    zeileAus(r, "Diskriminante D =\t" + (std::isfinite(D) ? zahl(D) : std::string("\xDC" "berlauf")));
    // The roots from the coefficients scaled to at most 1, so b^2 cannot overflow.
    const double m = std::max({std::fabs(a), std::fabs(b), std::fabs(c)});
    const double as = a / m, bs = b / m, cs = c / m;
    const double Ds = bs * bs - 4 * as * cs;
    if (Ds > 0) {
        // No cancellation: the larger root from the formula, the other by Vieta.
        const double q = -0.5 * (bs + std::copysign(std::sqrt(Ds), bs));
        double x1 = q / as, x2 = cs / q;
        if (x1 > x2)
            std::swap(x1, x2);
        zeileAus(r, "x1 =\t" + zahl(x1));
        zeileAus(r, "x2 =\t" + zahl(x2));
    } else if (Ds == 0) {
        zeileAus(r, "x =\t" + zahl(-bs / (2 * as)));
    } else {
        const double u = -bs / (2 * as), v = std::sqrt(-Ds) / (2 * std::fabs(as));
        zeileAus(r, "keine reelle L\xF6sung");
        zeileAus(r, "x1 = " + zahl(u) + " + " + zahl(v) + "i");
        zeileAus(r, "x2 = " + zahl(u) + " - " + zahl(v) + "i");
    }
}

}  // namespace lexicon::rechner
