#include "kernel/commands.h"
#include "kernel/realtostr.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

int run(const std::string& name, const quorix::Args& args, std::string& out, std::string& err)
{
    for (const auto& c : kernel::kernelCommands()) {
        if (c.name == name) {
            std::ostringstream o, e;
            const int code = c.run(args, o, e);
            out = o.str();
            err = e.str();
            return code;
        }
    }
    ADD_FAILURE() << "command missing: " << name;
    return -1;
}

}  // namespace

TEST(KernelCommands, RealToStrPrintsTheShownText)
{
    std::string out, err;
    EXPECT_EQ(run("realtostr", {"1", "2", "2.50"}, out, err), 0);
    EXPECT_EQ(out, "2.5\n");
    EXPECT_EQ(run("realtostr", {"1", "2", "2,50", "--komma"}, out, err), 0);
    EXPECT_EQ(out, "2,5\n");
    EXPECT_FALSE(kernel::UseDecimalComma);  // the flag is restored
    EXPECT_EQ(run("realtostr", {"1", "2", "-0.001"}, out, err), 0);
    EXPECT_EQ(out, "0\n");
    EXPECT_EQ(run("realtostr", {"6", "0", "100"}, out, err), 0);
    EXPECT_EQ(out, "   100\n");
    EXPECT_EQ(run("realtostr", {"1", "x", "3"}, out, err), 2);
    EXPECT_NE(err.find("Aufruf"), std::string::npos);
    EXPECT_EQ(run("realtostr", {"1", "2"}, out, err), 2);
}

TEST(KernelCommands, RootsOfEveryDegree)
{
    std::string out, err;
    EXPECT_EQ(run("roots", {"1", "-3", "2"}, out, err), 0);
    EXPECT_EQ(out, "1; 2\n");
    EXPECT_EQ(run("roots", {"1", "0", "0", "-8"}, out, err), 0);
    EXPECT_EQ(out, "-1-1.73205*i; -1+1.73205*i; 2\n");
    EXPECT_EQ(run("roots", {"1", "-10", "35", "-50", "24"}, out, err), 0);
    EXPECT_EQ(out, "1; 2; 3; 4\n");
    EXPECT_EQ(run("roots", {"0", "0", "0"}, out, err), 0);
    EXPECT_EQ(out, "beliebig\n");
    EXPECT_EQ(run("roots", {"0", "0", "1"}, out, err), 1);
    EXPECT_EQ(out, "keine L.\n");
    EXPECT_EQ(run("roots", {"1", "2"}, out, err), 2);
    EXPECT_EQ(run("roots", {"1", "a", "2"}, out, err), 2);
}
