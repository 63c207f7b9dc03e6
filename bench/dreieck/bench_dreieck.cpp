// One repaint of the interactive triangle recomputes everything: the core's time for the
// basic selection, for every object at once, and the whole paint of the window into a picture.
// The tool aims at one repaint per timer tick of 1 ms.
#include "geometry/dreieck.h"
#include "geometry/udreieck.h"
#include "platform/toolframe.h"

#include <QApplication>
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

template <class F>
double messen(int laeufe, F f)
{
    std::vector<double> us;
    for (int i = 0; i < laeufe; ++i) {
        const auto t0 = std::chrono::steady_clock::now();
        f(i);
        const auto t1 = std::chrono::steady_clock::now();
        us.push_back(std::chrono::duration<double, std::micro>(t1 - t0).count());
    }
    return median(us);
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    geo::Ansicht v;
    v.x0 = 370;
    v.y0 = 280;
    v.breite = 740;
    v.hoehe = 560;
    const geo::Auswahl grund = geo::grundauswahl();
    const geo::Auswahl alle(geo::bekannteObjekte().begin(), geo::bekannteObjekte().end());
    size_t zeilen = 0;
    auto lauf = [&](const geo::Auswahl& a) {
        return [&](int i) {
            geo::PointTable t;
            // the vertex drifts as in the simulation
            t.setze(geo::nA, {290 + 0.5 * i, 190});
            t.setze(geo::nB, {220, 420});
            t.setze(geo::nC, {560, 420});
            zeilen = geo::berechneDreieck(t, a, v).zeilen.size();
        };
    };
    const double tListe = messen(2000, lauf(grund));
    v.ergebnisse = false;  // as the drawing page computes
    const double tGrund = messen(2000, lauf(grund));
    const double tAlle = messen(200, lauf(alle));
    v.ergebnisse = true;
    const double tAlleListe = messen(50, lauf(alle));
    TxDreieck w;
    const double tBild = messen(50, [&](int) {
        platform::paintPicture(740, 560, [&](platform::Canvas& c, int b, int h) { w.zeichne(c, b, h); });
    });
    std::printf("Dreieck: Grundauswahl zeichnen (us)\t%.1f\t-\t-\n", tGrund);
    std::printf("Dreieck: Grundauswahl mit Ergebnisliste (us)\t%.1f\t-\t-\n", tListe);
    std::printf("Dreieck: alle %zu Objekte zeichnen (us)\t%.1f\t-\t-\n", alle.size(), tAlle);
    std::printf("Dreieck: alle Objekte mit Ergebnisliste (us)\t%.1f\t-\t-\n", tAlleListe);
    std::printf("Dreieck: Ergebniszeilen aller Objekte\t%zu\t-\t-\n", zeilen);
    std::printf("Dreieck: Bild 740x560, Grundauswahl (us)\t%.1f\t-\t-\n", tBild);
    return 0;
}
