// The headless commands: output formats, exit codes and the written picture.
#include "dynamics/chaos_commands.h"

#include <QImage>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

namespace {

int lauf(const std::string& name, const quorix::Args& args, std::string& out, std::string& err)
{
    for (const auto& c : chaosCommands())
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

std::string datenDatei() { return std::string(QUORIX_SOURCE_DIR) + "/data/texte/CHAOS.txt"; }

}  // namespace

TEST(ChaosCommands, Fluchtzeit)
{
    std::string out, err;
    EXPECT_EQ(lauf("fluchtzeit", {"1", "0"}, out, err), 0);
    EXPECT_EQ(out, "1\t0\t3\n");  // 0, 1, 2, 5
    EXPECT_EQ(lauf("fluchtzeit", {"-1", "0"}, out, err), 0);
    EXPECT_EQ(out, "-1\t0\tinnen\n");
    EXPECT_EQ(lauf("fluchtzeit", {"1,1", "0", "--julia", "0", "0"}, out, err), 0);
    EXPECT_EQ(out, "1,1\t0\t4\n");
    EXPECT_EQ(lauf("fluchtzeit", {"1"}, out, err), 2);
    EXPECT_FALSE(err.empty());
    EXPECT_EQ(lauf("fluchtzeit", {"0", "0", "--variante", "20"}, out, err), 2);
}

TEST(ChaosCommands, FeigenbaumListsTheDoublings)
{
    std::string out, err;
    ASSERT_EQ(lauf("feigenbaum", {"--anzahl", "3"}, out, err), 0);
    std::istringstream in(out);
    std::string z1, z2, z3, z4;
    std::getline(in, z1);
    std::getline(in, z2);
    std::getline(in, z3);
    EXPECT_FALSE(std::getline(in, z4));
    EXPECT_EQ(z1, "1\t1 -> 2\t3.0000000000");
    EXPECT_EQ(z2.substr(0, 20), "2\t2 -> 4\t3.449489742");  // 1 + sqrt 6
    EXPECT_EQ(z3.substr(0, 18), "3\t4 -> 8\t3.5440903");
    EXPECT_NE(z3.find('\t', 10), std::string::npos) << "third line carries the gap ratio";
    EXPECT_EQ(lauf("feigenbaum", {"--anzahl", "0"}, out, err), 2);
}

TEST(ChaosCommands, Ljapunow)
{
    std::string out, err;
    ASSERT_EQ(lauf("ljapunow", {"4", "--schritte", "1000000"}, out, err), 0);
    const double l = std::stod(out);
    EXPECT_NEAR(l, std::log(2.0), 0.01) << out;
    EXPECT_NE(out.find("Chaos"), std::string::npos);
    ASSERT_EQ(lauf("ljapunow", {"3.2"}, out, err), 0);
    EXPECT_NE(out.find("Ordnung"), std::string::npos);
    EXPECT_EQ(lauf("ljapunow", {"3.2", "--folge", "ab"}, out, err), 2) << "b missing";
    EXPECT_EQ(lauf("ljapunow", {"3.2", "--folge", "abc", "--b", "3"}, out, err), 2);
    EXPECT_EQ(lauf("ljapunow", {"5"}, out, err), 1) << "r = 5 leaves [0, 1]";
}

TEST(ChaosCommands, FraktalWritesThePicture)
{
    const auto dir = std::filesystem::temp_directory_path() / "quorix_chaos_test";
    std::filesystem::create_directories(dir);
    const std::string png = (dir / "m.png").string();
    std::string out, err;
    ASSERT_EQ(lauf("fraktal", {"mandelbrot", "--png", png, "--breite", "64", "--hoehe", "48", "--daten", datenDatei()}, out, err), 0)
        << err;
    EXPECT_EQ(out.rfind(png + "\t64 x 48\tMandelbrotmenge", 0), 0u) << out;
    QImage bild(QString::fromStdString(png));
    ASSERT_EQ(bild.size(), QSize(64, 48));
    // the origin (column 44 of 64 for x in [-2.2, 1]) is in the set: palette index 0 is black
    EXPECT_EQ(bild.pixel(44, 24) & 0xFFFFFF, 0u);
    EXPECT_NE(bild.pixel(0, 0) & 0xFFFFFF, 0u);

    const std::string farn = (dir / "f.png").string();
    ASSERT_EQ(lauf("fraktal", {"ifs", "--objekt", "Farn", "--png", farn, "--breite", "80", "--hoehe", "100", "--daten",
                               datenDatei()},
                   out, err),
              0)
        << err;
    EXPECT_NE(out.find("Barnsley-Farn"), std::string::npos);
    EXPECT_NE(out.find("Abbildungen\t4"), std::string::npos) << out;

    EXPECT_EQ(lauf("fraktal", {"julia", "--png", png, "--bereich", "1", "0", "0", "1"}, out, err), 2);
    EXPECT_EQ(lauf("fraktal", {"quadrat", "--png", png}, out, err), 2);
    EXPECT_EQ(lauf("fraktal", {"mandelbrot"}, out, err), 2) << "no --png";
    EXPECT_EQ(lauf("fraktal", {"mandelbrot", "--png", png, "--palette", "lila"}, out, err), 2);
    EXPECT_EQ(lauf("fraktal", {"ifs", "--png", png, "--objekt", "gibtsnicht", "--daten", datenDatei()}, out, err), 1);
    ASSERT_EQ(lauf("fraktal", {"ljapunow", "--png", png, "--breite", "32", "--hoehe", "24", "--objekt", "Swallow"}, out, err), 0);
    EXPECT_NE(out.find("Swallow"), std::string::npos);
    std::filesystem::remove_all(dir);
}
