// The headless commands of the curve discussion and the integration tool: exact output lines
// for known functions, and their usage errors (exit code 2, message on the error stream).
#include "graphs/commands.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

int rufe(const std::string& name, const std::vector<std::string>& args, std::string& out, std::string& err)
{
    for (const auto& c : graphs::graphsCommands())
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

TEST(KurvenBefehle, DiscussionOfTheCubic)
{
    std::string out, err;
    ASSERT_EQ(rufe("diskussion", {"x^3-3*x"}, out, err), 0) << err;
    EXPECT_EQ(out,
              "Funktion f(x)\tX^3-3*X\n"
              "Ableitung Y' = 3*X^2-3\n"
              "Ableitung Y'' = 3*2*X\n"
              "Stammfunktion F(x) = 0.25*X^4-1.5*X^2\n"
              "Parameter P = 1, Parameter Q = 3\n"
              "Intervall von -10 bis 10\n"
              "Ergebnisse\n"
              "Schnitt mit y-Achse y = 0\n"
              "minimaler Funktionswert = -970 bei x = -10\n"
              "maximaler Funktionswert = 970 bei x = 10\n"
              "Symmetrie\tpunktsymmetrisch zum Ursprung\n"
              "Verhalten für x gegen -unendlich\tf(x) gegen -unendlich\n"
              "Verhalten für x gegen +unendlich\tf(x) gegen +unendlich\n"
              "Nullstellen\n"
              "Nullstelle x = -1.732\n"
              "Nullstelle x = 0\n"
              "Nullstelle x = 1.732\n"
              "Extrempunkte\n"
              "Hochpunkt\t(-1 | 2)\n"
              "Tiefpunkt\t(1 | -2)\n"
              "Wendepunkte\n"
              "Wendepunkt\t(0 | 0)\n");
}

TEST(KurvenBefehle, IntervalAndUsage)
{
    std::string out, err;
    ASSERT_EQ(rufe("diskussion", {"1/x", "--von", "-1", "--bis", "1"}, out, err), 0);
    EXPECT_NE(out.find("Intervall von -1 bis 1\n"), std::string::npos);
    EXPECT_NE(out.find("Nullstellen\nkeine Nullstelle gefunden\n"), std::string::npos) << out;
    EXPECT_EQ(rufe("diskussion", {"foo(x)"}, out, err), 2);
    EXPECT_EQ(err, "Funktion1 fehlerhaft\n");
    EXPECT_EQ(rufe("diskussion", {"x", "--von", "a+"}, out, err), 2);
    EXPECT_NE(err.find("Aufruf: quorix diskussion"), std::string::npos);
    EXPECT_EQ(rufe("diskussion", {"x", "--farbe", "rot"}, out, err), 2);
    EXPECT_EQ(rufe("diskussion", {}, out, err), 2);
}

TEST(KurvenBefehle, IntegralAndTangent)
{
    std::string out, err;
    ASSERT_EQ(rufe("integral", {"x^2", "0", "3", "--methode", "trapez", "--n", "3"}, out, err), 0) << err;
    // trapezoids of width 1: (0 + 2*(1+4) + 9)/2 = 9.5
    EXPECT_NE(out.find("Verfahren\tTrapezregel, n = 3\nOrientierte Fläche\t9.5 FE\nAbsolute Fläche\t9.5 FE\n"),
              std::string::npos)
        << out;
    ASSERT_EQ(rufe("integral", {"sin(x)", "0", "pi"}, out, err), 0);
    EXPECT_NE(out.find("Orientierte Fläche\t2 FE\n"), std::string::npos) << out;
    EXPECT_EQ(rufe("integral", {"x", "0", "1", "--methode", "newton"}, out, err), 2);
    EXPECT_EQ(rufe("integral", {"x", "0"}, out, err), 2);

    ASSERT_EQ(rufe("tangente", {"x^2", "1"}, out, err), 0);
    EXPECT_NE(out.find("Tangentengleichung \ty = 2*x-1\n"), std::string::npos) << out;
    EXPECT_EQ(rufe("tangente", {"ln(x)", "-1"}, out, err), 1);
    EXPECT_EQ(out, "Untersuchte Stelle x\t-1\nKein Funktionswert bestimmbar !\n");
    ASSERT_EQ(rufe("wertetabelle", {"x^2", "0", "1", "0.5"}, out, err), 0);
    EXPECT_EQ(out, "Wertetabelle\nx\tf(x)\tf'(x)\tf''(x)\tF(x)\n0\t0\t0\t2\t0\n0.5\t0.25\t1\t2\t0.041667\n1\t1\t2\t2\t0.333333\n");
}
