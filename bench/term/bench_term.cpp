// Evaluations per second of EvalTerm over a million x values for five terms, each beside
// muparser (parsed once) on the same term in the same run; medians of five runs. Times are the
// thread's CPU time, since the machines are shared and wall time mostly measures the neighbours.
#include "kernel/term.h"

#ifdef QUORIX_HAVE_MUPARSER
#include <muParser.h>
#endif

#include <algorithm>
#include <ctime>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr int kPoints = 1000000;
constexpr int kRuns = 5;

struct Case {
    const char* quorix;
    const char* muparser;
};

const Case kCases[] = {
    {"SIN(X)+P*X^2", "sin(x)+p*x^2"},
    {"SQRT(ABS(X))*EXP(-X^2/2)", "sqrt(abs(x))*exp(-x^2/2)"},
    {"X^3-2*X^2+X-1", "x^3-2*x^2+x-1"},
    {"(X+1)/(X-1)", "(x+1)/(x-1)"},
    {"SIN(X)*COS(X)/(1+X^2)", "sin(x)*cos(x)/(1+x^2)"},
};

double xAt(int i) { return -3.0 + 6.0 * (i + 0.5) / kPoints; }

double cpuSeconds()
{
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return ts.tv_sec + ts.tv_nsec * 1e-9;
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

template <class F>
double ratePerSecond(F&& f, double& sink)
{
    std::vector<double> rates;
    for (int r = 0; r < kRuns; ++r) {
        const double t0 = cpuSeconds();
        double s = 0;
        for (int i = 0; i < kPoints; ++i)
            s += f(xAt(i));
        const double t1 = cpuSeconds();
        sink += s;
        rates.push_back(kPoints / (t1 - t0));
    }
    return median(rates);
}

}  // namespace

int main()
{
    quorix::TermParamP = 1.5;
    double sink = 0;
    for (const Case& c : kCases) {
        const std::string term = c.quorix;
        const double ours = ratePerSecond([&](double x) { return quorix::EvalTerm(term, x); }, sink) / 1e6;
        double anchor = 0, maxDiff = 0;
#ifdef QUORIX_HAVE_MUPARSER
        mu::Parser parser;
        double mx = 0, mp = quorix::TermParamP;
        parser.DefineVar("x", &mx);
        parser.DefineVar("p", &mp);
        parser.SetExpr(c.muparser);
        anchor = ratePerSecond([&](double x) { mx = x; return parser.Eval(); }, sink) / 1e6;
        // The same values, as far as the two languages agree (the interpreter clamps, muparser not).
        for (int i = 0; i < kPoints; i += 997) {
            mx = xAt(i);
            const double a = quorix::EvalTerm(term, mx), b = parser.Eval();
            if (std::fabs(b) < 1e9)
                maxDiff = std::max(maxDiff, std::fabs(a - b) / std::max(1.0, std::fabs(b)));
        }
#endif
        if (anchor > 0)
            std::printf("%s (Mio. Auswertungen/s)\t%.1f\t%.1f\t%.2f\n", c.quorix, ours, anchor, ours / anchor);
        else
            std::printf("%s (Mio. Auswertungen/s)\t%.1f\t-\t-\n", c.quorix, ours);
        std::fprintf(stderr, "%s: größte relative Abweichung zu muparser %.3g\n", c.quorix, maxDiff);
    }
    std::fprintf(stderr, "(Prüfsumme %g)\n", sink);
    return 0;
}
