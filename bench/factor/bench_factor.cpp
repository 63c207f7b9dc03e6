// Factoring fixed composites with the sieve tool's computation, side by side with PARI/GP's
// factor() (timed inside gp, so its start-up does not count), measured in the same run.
// Both sides count processor time (gp's getabstime() does), since the machine is shared.
// Without gp the anchor column is "-". Pass --70 to add the 70-digit semiprime.
#include "numbers/factor/ufakto_core.h"
#include "numbers/tvarint.h"

#include <algorithm>
#include <ctime>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

using namespace numbers;

namespace {

double cpuSeconds()
{
    timespec ts;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &ts);
    return double(ts.tv_sec) + 1e-9 * double(ts.tv_nsec);
}

double median(std::vector<double> t)
{
    std::sort(t.begin(), t.end());
    return t[t.size() / 2];
}

// Seconds for one factorization; negative if the factors are incomplete or do not multiply back.
double ours(const std::string& n)
{
    FactorHooks hooks;
    double start = cpuSeconds();
    FaktformOutcome r = faktformRun(n, hooks);
    double s = cpuSeconds() - start;
    TVarInt p(1);
    for (const FactorPiece& f : r.pieces)
        for (int e = 0; e < f.exponent; ++e)
            TVarInt::mul(p, f.value, p);
    if (!r.complete || p.toDecimal() != n)
        return -1;
    return s;
}

bool haveGp() { return std::system("command -v gp >/dev/null 2>&1") == 0; }

// Seconds of factor(n) as gp's own clock measures it; negative on failure.
// Quick cases repeat inside gp, since its clock counts whole milliseconds.
double pari(const std::string& n, int reps)
{
    std::string r = std::to_string(reps);
    std::string cmd = "echo 't=getabstime(); for(i=1," + r + ",f=factor(" + n + ")); print((getabstime()-t)/1000./" + r +
                      ")' | gp -q -f -s 500000000 2>/dev/null";
    FILE* p = popen(cmd.c_str(), "r");
    if (!p)
        return -1;
    char buf[128] = {0};
    double s = -1;
    if (std::fgets(buf, sizeof buf, p))
        s = std::atof(buf);
    pclose(p);
    return s;
}

std::string repunit(int k) { return std::string(size_t(k), '1'); }

}  // namespace

int main(int argc, char** argv)
{
    bool with70 = argc > 1 && std::strcmp(argv[1], "--70") == 0;
    bool gp = haveGp();
    struct Case {
        const char* what;
        std::string n;
        int samples;
    };
    // balanced semiprimes: products of two primes of half the length each (fixed, made once)
    std::vector<Case> cases = {
        {"Halbprimzahl 30 Ziffern [s CPU]", "380948474064071230017158381299", 5},
        {"Halbprimzahl 40 Ziffern [s CPU]", "2626920940793330852865987489732394848221", 5},
        {"Halbprimzahl 50 Ziffern [s CPU]", "52727502684150612101482240207404424017541496633243", 3},
        {"Halbprimzahl 60 Ziffern [s CPU]", "246818370901728406714485929058722761556698596536697701317243", 1},
        {"Repunit 57 Einsen [s CPU]", repunit(57), 3},
        {"2^67-1 [s CPU]", "147573952589676412927", 5},
    };
    if (with70)
        cases.push_back({"Halbprimzahl 70 Ziffern [s CPU]",
                         "4283335487038417430172198688105157806835412133044912426850754971006063", 1});
    for (const Case& c : cases) {
        std::vector<double> a, b;
        bool bad = false;
        for (int s = 0; s < c.samples; ++s) {
            double x = ours(c.n);
            bad = bad || x < 0;
            a.push_back(x);
            if (gp)
                b.push_back(pari(c.n, c.samples >= 5 ? 20 : 1));
        }
        double x = median(a);
        if (bad) {
            std::printf("%s\tFEHLER\t-\t-\n", c.what);
            continue;
        }
        if (gp && !b.empty() && median(b) > 0) {
            double y = median(b);
            std::printf("%s\t%.3f\t%.3f\t%.2f\n", c.what, x, y, y > 0 ? x / y : 0.0);
        } else
            std::printf("%s\t%.3f\t-\t-\n", c.what, x);
        std::fflush(stdout);
    }
    return 0;
}
