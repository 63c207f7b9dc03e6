// Microseconds per timer tick of the three simulations on the largest board of 80 x 80 cells:
// a Life generation on a torus from a random soup, a Wa-Tor chronon, 2000 Donnelly changes.
// Medians of seven runs of thread CPU time; there is no outside program to compare with.
#include "dynamics/life.h"
#include "dynamics/wator.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <random>
#include <vector>

namespace {

constexpr int kRuns = 7;

double cpuSeconds()
{
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return ts.tv_sec + ts.tv_nsec * 1e-9;
}

template <class Setup, class Step>
double microsPerStep(int steps, Setup setup, Step step)
{
    std::vector<double> t;
    for (int r = 0; r < kRuns; ++r) {
        setup();
        const double t0 = cpuSeconds();
        for (int k = 0; k < steps; ++k)
            step();
        t.push_back((cpuSeconds() - t0) * 1e6 / steps);
    }
    std::sort(t.begin(), t.end());
    return t[t.size() / 2];
}

}  // namespace

int main()
{
    using namespace dynamics;
    LifeGame life(kMaxBoardSize);
    life.torus = true;
    const double lifeUs = microsPerStep(
        500,
        [&] {
            std::mt19937 rng(42);
            life.clear();
            for (int r = 1; r <= kMaxBoardSize; ++r)
                for (int c = 1; c <= kMaxBoardSize; ++c)
                    if (rng() % 3 == 0) life.setCell(r, c, 1 + static_cast<int>(rng() % 4));
        },
        [&] { life.step(); });

    WaTorSettings ws;
    ws.boardSize = kMaxBoardSize;
    WaTor wator(ws, 42);
    const double watorUs = microsPerStep(200, [&] { wator.reset(ws); }, [&] { wator.step(); });

    Donnelly voters(kMaxBoardSize, 4, 42);
    const double donnellyUs = microsPerStep(100, [&] { voters.reset(kMaxBoardSize, 4); }, [&] { voters.runChanges(2000); });

    std::printf("life generation 80x80 (us)\t%.1f\t-\t-\n", lifeUs);
    std::printf("wator chronon 80x80 (us)\t%.1f\t-\t-\n", watorUs);
    std::printf("donnelly 2000 changes 80x80 (us)\t%.1f\t-\t-\n", donnellyUs);
    return 0;
}
