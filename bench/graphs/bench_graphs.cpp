// One Darstellung of the plotter at 1000 x 700 with four curves and the grid: the time a frame
// of the parameter animation costs, and the evaluations it spends.
#include "graphs/zeichnen.h"

#include <QGuiApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    using namespace graphs;
    PlotZustand z;
    z.opt.raster = true;
    Skriptliste skript, zahlen;
    for (const char* t : {"P*X^2-3", "SIN(X)*P", "1/X", "SQRT(ABS(X))*COS(P*X)"})
        skript.addFunktion(t);
    Graphzeichner g(z, skript, zahlen, termAuswerter());
    platform::Picture bild(1000, 700);

    std::vector<double> ms, nurSpur;
    long auswertungen = 0;
    for (int lauf = 0; lauf < 60; ++lauf) {
        termAuswerter().setzeParameter(1 + 0.01 * lauf, 1);  // as the animation changes P
        const auto t0 = std::chrono::steady_clock::now();
        g.darstellung(bild);
        const auto t1 = std::chrono::steady_clock::now();
        ms.push_back(std::chrono::duration<double, std::milli>(t1 - t0).count());
        auswertungen = g.auswertungen();
        // the tracing alone, without painting, for comparison
        const auto t2 = std::chrono::steady_clock::now();
        for (const std::string t : {"P*X^2-3", "SIN(X)*P", "1/X", "SQRT(ABS(X))*COS(P*X)"})
            kurveVerfolgen([&t](double x, int& e) { return termAuswerter().wert(t, x, e); }, g.abbildung(),
                           kaNormal);
        const auto t3 = std::chrono::steady_clock::now();
        nurSpur.push_back(std::chrono::duration<double, std::milli>(t3 - t2).count());
    }
    std::printf("Darstellung 1000x700, 4 Kurven, Raster (ms)\t%.2f\t-\t-\n", median(ms));
    std::printf("Auswertungen je Darstellung\t%ld\t-\t-\n", auswertungen);
    std::printf("Kurvenverfolgung allein, 4 Kurven (ms)\t%.3f\t-\t-\n", median(nurSpur));
    return 0;
}
