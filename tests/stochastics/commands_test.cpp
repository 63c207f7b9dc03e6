// The headless commands: output formats, exit codes and usage messages.
#include "stochastics/commands.h"

#include <sstream>
#include <gtest/gtest.h>

namespace {
int run(const std::string& name, const quorix::Args& args, std::string& out, std::string& err)
{
    for (const auto& c : stochasticsCommands())
        if (c.name == name) {
            std::ostringstream o, e;
            const int rc = c.run(args, o, e);
            out = o.str();
            err = e.str();
            return rc;
        }
    ADD_FAILURE() << "no command " << name;
    return -1;
}
}  // namespace

TEST(Commands, Statistik)
{
    std::string out, err;
    EXPECT_EQ(run("statistik", {"2", "4", "4", "4", "5", "5", "7", "9"}, out, err), 0);
    EXPECT_EQ(out.substr(0, 27), "Werteanzahl\t8\nMittelwert\t5\n");
    EXPECT_NE(out.find("Standardabweichung\t2\n"), std::string::npos) << out;
    EXPECT_EQ(run("statistik", {}, out, err), 2);
    EXPECT_EQ(run("statistik", {"1", "zwei"}, out, err), 2);
    EXPECT_EQ(err, "Keine Zahl: zwei\n");
}

TEST(Commands, Verteilung)
{
    std::string out, err;
    // standard normal at 1.96: density 0.058441, F = 0.975002 (z-table); N(100, 15²) at 130 is z = 2
    EXPECT_EQ(run("verteilung", {"normal", "--x", "1.96"}, out, err), 0);
    EXPECT_EQ(out, "x\tf(x)\tF(x)\n1.96\t0.058441\t0.975002\n");
    EXPECT_EQ(run("verteilung", {"binomial", "10", "0.5", "--x", "5"}, out, err), 0);
    EXPECT_EQ(out, "k\tP(X=k)\tP(X<=k)\n5\t0.246094\t0.623047\n");
    EXPECT_EQ(run("verteilung", {"t", "10"}, out, err), 0);
    EXPECT_NE(out.find("0.025\t2.228139\n"), std::string::npos) << out;
    EXPECT_EQ(run("verteilung", {"normal", "100", "225", "--x", "130"}, out, err), 0);
    EXPECT_EQ(out, "x\tf(x)\tF(x)\n130\t0.003599\t0.97725\n");
    // a large Poisson mean: rows far out in the tails show "0" while the sum stays exact
    // (P(1000) = 0.0126146, P(X <= 1000) = 0.5084094 by 30-digit summation)
    EXPECT_EQ(run("verteilung", {"poisson", "1000"}, out, err), 0);
    EXPECT_NE(out.find("\n800\t0\t"), std::string::npos);
    EXPECT_NE(out.find("\n1000\t0.012615\t0.508409\n"), std::string::npos) << out.substr(0, 300);
    EXPECT_EQ(run("verteilung", {"beta", "1"}, out, err), 2);
    EXPECT_NE(err.find("Parameter a"), std::string::npos);
    EXPECT_EQ(run("verteilung", {"chi2", "-3"}, out, err), 2);
    EXPECT_EQ(run("verteilung", {"cauchy"}, out, err), 2);
    EXPECT_EQ(err.rfind("Unbekannte Verteilung: cauchy", 0), 0u);
}

TEST(Commands, Simulation)
{
    std::string a, b, err;
    EXPECT_EQ(run("simulation", {"geburtstag", "--n", "2000", "--seed", "5"}, a, err), 0);
    EXPECT_EQ(run("simulation", {"geburtstag", "--n", "2000", "--seed", "5"}, b, err), 0);
    EXPECT_EQ(a, b);
    EXPECT_EQ(a.rfind("Personenzahl\t23\nTestläufe\t2000\n", 0), 0u) << a;
    EXPECT_EQ(run("simulation", {"lotto", "--n", "10", "--tipp", "1,2,3,4,5,6", "--zz"}, a, err), 0);
    EXPECT_EQ(a.rfind("Lotto 6 aus 49 mit Zusatzzahl\n10 Ziehungen\n", 0), 0u) << a;
    for (const char* name : {"wuerfel", "karten", "ziege", "efron", "markow", "ausgleich"})
        EXPECT_EQ(run("simulation", {name, "--n", "100"}, a, err), 0) << name << err;
    EXPECT_EQ(run("simulation", {"ziege"}, a, err), 2);
    EXPECT_EQ(run("simulation", {"roulette", "--n", "5"}, a, err), 2);
    EXPECT_EQ(run("simulation", {"markow", "--n", "5", "--matrix", "0.9 0.2/0.5 0.5"}, a, err), 2);
    EXPECT_EQ(err, "Übergangswahrscheinlichkeit am Punkt 0 ist größer 1\n");
}
