// The escape-time picture of the classical set at 640 x 480 with 200 iterations, against the
// same picture computed plainly with std::complex (anchor); a Lyapunov picture; a fern.
#include "dynamics/chaosdaten.h"
#include "dynamics/chaoslyapunow.h"
#include "dynamics/fraktal.h"

#include <algorithm>
#include <chrono>
#include <complex>
#include <cstdio>
#include <vector>

namespace {

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

template <class F>
double zeit(F f, int laeufe)
{
    std::vector<double> ms;
    for (int i = 0; i < laeufe; ++i) {
        const auto t0 = std::chrono::steady_clock::now();
        f();
        ms.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - t0).count());
    }
    return median(ms);
}

}  // namespace

int main()
{
    using namespace chaos;
    const int b = 640, h = 480, iter = 200;
    const Ansicht a{-2.2, 1.0, -1.2, 1.2};
    Werteraster r;
    r.setzeGroesse(b, h);
    Fluchtbild p;
    p.maxIter = iter;
    std::vector<std::uint8_t> anker(static_cast<std::size_t>(b) * h);
    long long summe = 0;
    const double quorix = zeit([&] { rechneFluchtbild(r, a, p); }, 7);
    const double plain = zeit(
        [&] {
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < b; ++x) {
                    const std::complex<double> c(a.xmin + (a.xmax - a.xmin) * x / b, a.ymax - (a.ymax - a.ymin) * y / h);
                    std::complex<double> z = 0;
                    int n = 0;
                    while (n < iter) {
                        z = z * z + c;
                        ++n;
                        if (std::abs(z) > 3) break;
                    }
                    anker[static_cast<std::size_t>(y) * b + x] = static_cast<std::uint8_t>(n);
                    summe += n;
                }
        },
        7);
    std::printf("Mandelbrotmenge 640x480, 200 Iterationen (ms)\t%.1f\t%.1f\t%.2f\n", quorix, plain, quorix / plain);

    LjapunowVorgabe v;
    leseLjapunowVorgabe(ljapunowVorgabezeilen()[0], v);
    const double lj = zeit(
        [&] {
            TLyapunovLambdaMap m;
            m.starte(v, 256, 192);
            while (m.rechne(16)) {
            }
        },
        3);
    std::printf("Ljapunow ZirconZity 256x192 (ms)\t%.1f\t-\t-\n", lj);

    Einstellung e;
    e.typ = IfsEditor;
    e.code = {"0 0 0 0.16 0 0 0.01", "0.85 0.04 -0.04 0.85 0 1.6 0.85", "0.2 -0.26 0.23 0.22 0 1.6 0.07",
              "-0.15 0.28 0.26 0.24 0 0.44 0.07"};
    e.ansicht = {-3, 3, 0, 10};
    e.punkte = 1000000;
    std::vector<std::string> zeilen;
    const double farn = zeit([&] { zeichneChaos(e, 640, 480, r, zeilen); }, 5);
    std::printf("IFS-Farn, 1 Mill. Punkte (ms)\t%.1f\t-\t-\n", farn);
    return summe == 42 ? 1 : 0;  // keeps the anchor loop from being dropped
}
