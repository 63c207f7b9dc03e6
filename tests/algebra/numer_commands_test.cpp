// The numerisch command: output lines, messages and exit codes.
#include "algebra/numer_commands.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {
int lauf(const quorix::Args& a, std::string& out, std::string& err)
{
    std::ostringstream o, e;
    const auto cmds = numerCommands();
    EXPECT_EQ(cmds.size(), 1u);
    const int rc = cmds.at(0).run(a, o, e);
    out = o.str();
    err = e.str();
    return rc;
}
}  // namespace

TEST(NumerBefehl, PrintsTableAndExitCodes)
{
    std::string out, err;
    EXPECT_EQ(lauf({"34", "84", "120"}, out, err), 0);
    EXPECT_NE(out.find("ggT(84, 120)\t12\n"), std::string::npos) << out;
    // options pick the sub-page; missing fields take the defaults (1 to 1000)
    EXPECT_EQ(lauf({"28", "--option", "10", "100"}, out, err), 0);
    EXPECT_EQ(out, "bis 100 gibt es  \t25 Primzahlen\n");
    EXPECT_EQ(lauf({"21", "100000", "6", "6000"}, out, err), 1);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, "Annuität muss mindestens 6000 € Zinsen betragen!\n");
    EXPECT_EQ(lauf({}, out, err), 2);
    EXPECT_EQ(lauf({"40"}, out, err), 2);
    EXPECT_EQ(lauf({"24"}, out, err), 2);  // astronomical page, not in this build
    EXPECT_NE(err.find("nicht enthalten"), std::string::npos);
    EXPECT_EQ(lauf({"28", "--option", "99"}, out, err), 2);
    EXPECT_EQ(lauf({"--liste"}, out, err), 0);
    EXPECT_NE(out.find("39\tBernoullische Zahlen\tIndex von\tbis\n"), std::string::npos);
}
