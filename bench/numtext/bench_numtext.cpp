// RealToStr against plain snprintf into a string, and the Bessel J0 approximation against the
// standard library's cyl_bessel_j: median of several runs, both measured in this run.
#include "kernel/realtostr.h"
#include "kernel/specfun.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

namespace {

template <class F>
double medianNs(F f, int calls)
{
    std::vector<double> runs;
    for (int r = 0; r < 7; ++r) {
        const auto t0 = std::chrono::steady_clock::now();
        f();
        const auto t1 = std::chrono::steady_clock::now();
        runs.push_back(std::chrono::duration<double, std::nano>(t1 - t0).count() / calls);
    }
    std::sort(runs.begin(), runs.end());
    return runs[runs.size() / 2];
}

volatile double sink;

}  // namespace

int main()
{
    constexpr int n = 200000;
    std::vector<double> xs(n);
    for (int i = 0; i < n; ++i)
        xs[i] = (i - n / 2) * 0.012345;
    size_t total = 0;
    const double ours = medianNs([&] {
        for (double x : xs)
            total += kernel::RealToStr(1, 4, x).size();
    }, n);
    const double anchor = medianNs([&] {
        char buf[64];
        for (double x : xs) {
            const int len = std::snprintf(buf, sizeof buf, "%1.4f", x);
            total += std::string(buf, static_cast<size_t>(len)).size();
        }
    }, n);
    std::printf("RealToStr 1,4 (ns/call)\t%.1f\t%.1f\t%.2f\n", ours, anchor, ours / anchor);

    const double j0 = medianNs([&] {
        double s = 0;
        for (double x : xs)
            s += kernel::BesselJ0(x * 0.01);
        sink = s;
    }, n);
    const double j0std = medianNs([&] {
        double s = 0;
        for (double x : xs)
            s += std::cyl_bessel_j(0.0, std::fabs(x * 0.01));
        sink = s;
    }, n);
    std::printf("Bessel J0 (ns/call)\t%.1f\t%.1f\t%.2f\n", j0, j0std, j0 / j0std);
    return total == 0;
}
