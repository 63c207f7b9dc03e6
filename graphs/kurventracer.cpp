#include "graphs/kurventracer.h"

#include "graphs/kernelbindung.h"

#include <cmath>

namespace graphs {

namespace {

constexpr double kIntGrenze = 2147483647.0;
constexpr int kRand = 200;  // rows beyond the plot that are still joined

int rang(int e)
{
    switch (e) {
    case tfDefinition: return 4;
    case tfSyntax: return 3;
    case tfSprung: return 2;
    case tfGekappt: return 1;
    default: return 0;
    }
}

}  // namespace

int fehlerVereinen(int a, int b) { return rang(a) >= rang(b) ? a : b; }

std::vector<std::vector<Punkt>> Kurvenspur::polylinien() const
{
    std::vector<std::vector<Punkt>> r;
    std::vector<Punkt> aktuell;
    Punkt pos{0, 0};
    bool hatPos = false;
    auto abschliessen = [&] {
        if (aktuell.size() >= 2)
            r.push_back(aktuell);
        aktuell.clear();
    };
    for (const Stiftschritt& s : schritte) {
        if (s.art == Stift::Linie) {
            if (aktuell.empty() && hatPos)
                aktuell.push_back(pos);
            aktuell.push_back({s.x, s.y});
        } else {
            abschliessen();
        }
        if (s.art != Stift::Punkt) {
            pos = {s.x, s.y};
            hatPos = true;
        }
    }
    abschliessen();
    return r;
}

std::vector<Punkt> Kurvenspur::einzelpunkte() const
{
    std::vector<Punkt> r;
    for (const Stiftschritt& s : schritte)
        if (s.art == Stift::Punkt)
            r.push_back({s.x, s.y});
    return r;
}

Kurvenspur kurveVerfolgen(const Funktion& f, const Abbildung& a, int art, const TracerOptionen& o)
{
    Kurvenspur spur;
    spur.schritte.reserve(static_cast<size_t>(a.plotWidth) + 32);
    const double d = 1.0 / a.xScale;  // the pixel step in x

    // The pixel row of column p (unrounded), with the code of its evaluations.
    auto zeile = [&](int p, int& fehler) -> double {
        const double x = a.xVonPixel(p);
        fehler = 0;
        auto F = [&](double t) {
            int e = 0;
            const double v = f(t, e);
            ++spur.auswertungen;
            fehler = fehlerVereinen(fehler, e);
            return v;
        };
        switch (art) {
        case kaAbleitung1: {
            const double f0 = F(x), f1 = F(x + d);
            return a.originY - (f1 - f0) * a.xScale * a.yScale;
        }
        case kaAbleitung2: {
            const double f0 = F(x), f1 = F(x + d), f2 = F(x + 2 * d);
            return a.originY - (f2 + f0 - 2 * f1) * a.xScale * a.xScale * a.yScale;
        }
        case kaSpiegelY: return a.pixelYgenau(F(-x));
        case kaSpiegelX: return a.pixelYgenau(-F(x));
        case kaPunktSpiegel: return a.pixelYgenau(-F(-x));
        case kaVerkettung: {
            const double inner = F(x);
            int e1 = fehler;
            const double v = F(inner);
            fehler = fehlerVereinen(e1, fehler);
            return a.pixelYgenau(v);
        }
        default: return a.pixelYgenau(F(x));
        }
    };

    int p = -9;
    int fehler = 0;
    double r = zeile(p, fehler);
    if (art <= kaAbleitung2 && !o.logAchsen) {
        // Step 1: find the first column with a value inside the domain.
        while ((fehler == tfSyntax || fehler == tfDefinition || a.xVonPixel(p) < o.domainLow) &&
               p <= a.plotWidth + 10) {
            ++p;
            r = zeile(p, fehler);
        }
    }
    auto zeilenwert = [](double r) {
        if (std::fabs(r) < kIntGrenze)
            return pixelRunden(r);
        return r > 0 ? 1000 : -1;
    };
    spur.schritte.push_back({Stift::Bewegen, p, zeilenwert(r)});

    for (++p; p <= a.plotWidth; ++p) {
        if (a.xVonPixel(p) > o.domainHigh)
            break;
        r = zeile(p, fehler);
        if (!(std::fabs(r) < kIntGrenze)) {
            // out of the integer range: lift the pen to far below or above
            spur.schritte.push_back({Stift::Bewegen, p, r > 0 ? 1000 : -1});
            continue;
        }
        const int ri = pixelRunden(r);
        if (ri >= -kRand && ri <= a.plotHeight + kRand && (fehler == tfKeiner || fehler == tfSyntax)) {
            spur.schritte.push_back({o.punktmodus ? Stift::Punkt : Stift::Linie, p, ri});
        } else if (fehler == tfSprung) {
            spur.schritte.push_back({Stift::Punkt, p, ri});
            // the pen stands on the jump's point, so the next column joins to it
            spur.schritte.push_back({Stift::Bewegen, p, ri});
        } else {
            spur.schritte.push_back({Stift::Bewegen, p, ri});
        }
    }
    return spur;
}

Kurvenspur parameterkurveVerfolgen(const Funktion& fx, const Funktion& fy, double t0, double t1,
                                   double dt, const Abbildung& a, bool punktmodus)
{
    Kurvenspur spur;
    if (!(dt > 0) || !(t1 >= t0))
        return spur;
    const long n = std::min<long>(2000000, static_cast<long>(std::floor((t1 - t0) / dt + 1e-9)));
    bool gehoben = true;
    for (long i = 0; i <= n; ++i) {
        const double t = t0 + i * dt;
        int ex = 0, ey = 0;
        const double x = fx(t, ex);
        const double y = fy(t, ey);
        spur.auswertungen += 2;
        const int e = fehlerVereinen(ex, ey);
        const double px = a.pixelXgenau(x), py = a.pixelYgenau(y);
        const bool imRand = std::fabs(px) < 100000 && std::fabs(py) < 100000 &&
                            px >= -kRand && px <= a.plotWidth + kRand && py >= -kRand &&
                            py <= a.plotHeight + kRand;
        if (e == tfDefinition || e == tfSyntax || e == tfGekappt || !imRand) {
            gehoben = true;
            continue;
        }
        const int xi = pixelRunden(px), yi = pixelRunden(py);
        if (e == tfSprung || punktmodus) {
            spur.schritte.push_back({Stift::Punkt, xi, yi});
            spur.schritte.push_back({Stift::Bewegen, xi, yi});
            gehoben = false;
        } else if (gehoben) {
            spur.schritte.push_back({Stift::Bewegen, xi, yi});
            gehoben = false;
        } else {
            spur.schritte.push_back({Stift::Linie, xi, yi});
        }
    }
    return spur;
}

}  // namespace graphs
