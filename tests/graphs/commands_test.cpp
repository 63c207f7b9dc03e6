// The headless command `plot`: its output lines, its usage errors, and the pictures it writes
// (saved in the build folder for a look: parabola family, sine with degree grid, 1/x, INT(X),
// polar rose, Lissajous curve).
#include "app.h"
#include "graphs/commands.h"

#include <QImage>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

int plot(const std::vector<std::string>& args, std::string& out, std::string& err)
{
    testApp();
    std::ostringstream o, e;
    const auto cmds = graphs::graphsCommands();
    EXPECT_FALSE(cmds.empty());
    EXPECT_EQ(cmds[0].name, "plot");
    const int rc = cmds[0].run(args, o, e);
    out = o.str();
    err = e.str();
    return rc;
}

std::string datei(const char* name) { return std::string(QUORIX_BUILD_DIR) + "/" + name; }

std::string skriptDatei(const char* name, const std::string& text)
{
    const std::string pfad = datei(name);
    std::ofstream(pfad, std::ios::binary) << text;
    return pfad;
}

}  // namespace

TEST(PlotCommand, TermsGiveOneCurveLineEach)
{
    std::string out, err;
    const std::string png = datei("graphs_hyperbel.png");
    ASSERT_EQ(plot({"1/x", "--range", "-4", "4", "-3", "3", "--size", "640x480", "--png", png}, out, err), 0) << err;
    EXPECT_EQ(out, "Bild\t" + png + "\t640x480\nBereich\t-4\t4\t-3\t3\nKurve\t1\tY = 1/X\t2\t0\n");
    const QImage img(QString::fromStdString(png));
    ASSERT_EQ(img.size(), QSize(640, 480));
    // a black pixel of the branch near (1, 1), white at (1, -1)
    const int px = 320 + 80, py = 240 - 80;
    int schwarz = 0;
    for (int dy = -1; dy <= 1; ++dy)
        for (int dx = -1; dx <= 1; ++dx)
            schwarz += img.pixelColor(px + dx, py + dy) == Qt::black;
    EXPECT_GT(schwarz, 0);
    EXPECT_EQ(img.pixelColor(410, 330), QColor(Qt::white));
}

TEST(PlotCommand, IntegerPartAndFamilyPictures)
{
    std::string out, err;
    ASSERT_EQ(plot({"INT(X)", "--range", "-4", "4", "-4", "4", "--png", datei("graphs_int.png")}, out, err), 0);
    EXPECT_NE(out.find("Kurve\t1\tY = INT(X)\t0\t"), std::string::npos) << out;

    const std::string s = skriptDatei("graphs_familie.txt", "#S\nP*X^2-P\n-2\n2\n0.5\n");
    ASSERT_EQ(plot({"--script", s, "--png", datei("graphs_familie.png")}, out, err), 0) << err;
    int kurven = 0;
    for (size_t p = out.find("Kurve\t"); p != std::string::npos; p = out.find("Kurve\t", p + 1))
        ++kurven;
    EXPECT_EQ(kurven, 9);
}

TEST(PlotCommand, ScriptsOfCurvesAndGrids)
{
    std::string out, err;
    // sine with the degree grid is the window's option; the command draws axes and grid
    ASSERT_EQ(plot({"SIN(X)", "COS(X)", "--range", "-7", "7", "-2", "2", "--png", datei("graphs_sinus.png")}, out, err), 0);
    const std::string rose = skriptDatei("graphs_rose.txt", "#P\nSIN(4*X)\n0\n6.2832\n0.005\n0\n0\n");
    ASSERT_EQ(plot({"--script", rose, "--range", "-1.5", "1.5", "-1.2", "1.2", "--size", "750x600", "--png",
                    datei("graphs_rose.png")},
                   out, err),
              0)
        << err;
    EXPECT_NE(out.find("Kurve\t1\tF(P,W) = SIN(4*X)\t1\t0"), std::string::npos) << out;
    const std::string liss =
        skriptDatei("graphs_lissajous.txt", "#K\nSIN(3*X)|SIN(4*X)\n0\n6.2832\n0.005\n0\n0\n");
    ASSERT_EQ(plot({"--script", liss, "--range", "-1.5", "1.5", "-1.2", "1.2", "--size", "750x600", "--png",
                    datei("graphs_lissajous.png")},
                   out, err),
              0);
    EXPECT_NE(out.find("Kurve\t1\tX = SIN(3*X)   Y = SIN(4*X)\t1\t0"), std::string::npos) << out;
}

TEST(PlotCommand, UsageErrorsAndNothingDrawn)
{
    std::string out, err;
    EXPECT_EQ(plot({"X^2"}, out, err), 2);
    EXPECT_NE(err.find("Aufruf: quorix plot"), std::string::npos);
    EXPECT_EQ(plot({"--png", datei("x.png")}, out, err), 2);
    EXPECT_EQ(plot({"X", "--range", "1", "2", "drei", "--png", datei("x.png")}, out, err), 2);
    EXPECT_NE(err.find("vier Zahlen"), std::string::npos);
    EXPECT_EQ(plot({"X", "--size", "20x20", "--png", datei("x.png")}, out, err), 2);
    EXPECT_EQ(plot({"X", "--script", "a", "--png", datei("x.png")}, out, err), 2);
    EXPECT_EQ(plot({"--script", datei("fehlt.txt"), "--png", datei("x.png")}, out, err), 2);
    EXPECT_NE(err.find("kann nicht gelesen werden"), std::string::npos);
    // a term without value anywhere draws nothing: exit 1
    EXPECT_EQ(plot({"SQRT(-1-X^2)", "--png", datei("graphs_leer.png")}, out, err), 1);
    EXPECT_NE(out.find("Kurve\t1\tY = SQRT(-1-X^2)\t0\t0"), std::string::npos);
}
