// The headless commands life and wator: output lines, exit codes and messages.
#include "dynamics/commands.h"
#include "dynamics/lifepatterns.h"
#include "platform/container.h"

#include <QImage>
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace {

const std::string kGame = std::string(QUORIX_SOURCE_DIR) + "/data/texte/game.txt";

struct Result {
    int code;
    std::string out, err;
};

Result run(const std::string& name, quorix::Args args)
{
    for (const auto& c : dynamicsCommands())
        if (c.name == name) {
            std::ostringstream out, err;
            const int code = c.run(args, out, err);
            return {code, out.str(), err.str()};
        }
    ADD_FAILURE() << "no command " << name;
    return {-1, "", ""};
}

std::string lastLine(const std::string& s)
{
    const size_t end = s.find_last_not_of('\n');
    const size_t start = s.rfind('\n', end);
    return s.substr(start == std::string::npos ? 0 : start + 1, end - (start == std::string::npos ? 0 : start + 1) + 1);
}

}  // namespace

TEST(LifeCommand, PrintsGenerationAndPopulation)
{
    // the pulsar's three phases have 48, 56 and 72 cells
    const Result r = run("life", {"Pulsar", "--schritte", "3", "--datei", kGame});
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.out, "Generation\tAnzahl\n0\t48\n1\t56\n2\t72\n3\t48\n");
    // Diehard vanishes at generation 130
    const Result d = run("life", {"stirb", "--schritte", "130", "--datei", kGame});
    EXPECT_EQ(lastLine(d.out), "130\t0");
    // on a 12-board torus a glider keeps its five cells for ever
    const Result t = run("life", {"Segler", "--schritte", "100", "--groesse", "12", "--torus", "--datei", kGame});
    EXPECT_EQ(lastLine(t.out), "100\t5");
}

TEST(LifeCommand, ListsPatternsAndRejectsBadInput)
{
    const Result l = run("life", {"--liste", "--datei", kGame});
    EXPECT_EQ(l.code, 0);
    EXPECT_NE(l.out.find("\tGleiterkanone\n"), std::string::npos) << l.out;
    EXPECT_NE(l.out.find("\tLeuchtturm, Uhr, Kröte, Ampel\n"), std::string::npos);
    // every listed number finds its own pattern again
    std::istringstream lines(l.out);
    for (std::string line; std::getline(lines, line);) {
        const std::string number = line.substr(0, line.find('\t'));
        EXPECT_EQ(run("life", {number, "--schritte", "0", "--datei", kGame}).code, 0) << line;
    }

    EXPECT_EQ(run("life", {"Unbekannt", "--datei", kGame}).code, 1);
    EXPECT_EQ(run("life", {"Pulsar", "--datei", "/nonexistent/game.txt"}).code, 1);
    const Result bad = run("life", {"Pulsar", "--schritte", "-3", "--datei", kGame});
    EXPECT_EQ(bad.code, 2);
    EXPECT_NE(bad.err.find("Aufruf: quorix life"), std::string::npos);
    EXPECT_EQ(run("life", {"Pulsar", "--groesse", "81", "--datei", kGame}).code, 2);
    EXPECT_EQ(run("life", {"--datei", kGame}).code, 2);
}

TEST(LifeCommand, WritesTheBoardAsPng)
{
    const std::string png = std::string(QUORIX_BUILD_DIR) + "/life_command_test.png";
    std::remove(png.c_str());
    const Result r = run("life", {"Pulsar", "--schritte", "0", "--groesse", "40", "--datei", kGame, "--png", png});
    ASSERT_EQ(r.code, 0) << r.err;
    QImage img(QString::fromStdString(png));
    ASSERT_FALSE(img.isNull());
    // 40 cells of 12 pixels plus the margins
    EXPECT_EQ(img.width(), 40 * 12 + 20);
    // the pulsar lies at rows and columns 24..36; its cell in row 26, column 24 is alive
    EXPECT_NE(img.pixelColor(10 + 23 * 12 + 6, 10 + 25 * 12 + 6), QColor(Qt::white));
    EXPECT_EQ(img.pixelColor(10 + 6, 10 + 6), QColor(Qt::white));
}

TEST(WatorCommand, PrintsConsistentCountsPerChronon)
{
    const Result r = run("wator", {"--chrononen", "20", "--groesse", "30", "--fische", "30", "--haie", "10"});
    ASSERT_EQ(r.code, 0) << r.err;
    std::istringstream in(r.out);
    std::string head;
    std::getline(in, head);
    EXPECT_EQ(head, "Chrononen\tFische\tHaie");
    int t, f, h, expected = 0;
    while (in >> t >> f >> h) {
        EXPECT_EQ(t, expected++);
        EXPECT_GE(f, 0);
        EXPECT_GE(h, 0);
        EXPECT_LE(f + h, 900);
        if (t == 0) {
            EXPECT_EQ(f, 270);
            EXPECT_EQ(h, 90);
        }
    }
    EXPECT_EQ(expected, 21);
    EXPECT_EQ(run("wator", {"--fische", "80", "--haie", "30"}).code, 2);
    EXPECT_EQ(run("wator", {"--groesse", "1"}).code, 2);
    EXPECT_EQ(run("wator", {"--unsinn"}).code, 2);
}

TEST(PatternLibrary, ReadsTheResourceFromATextContainer)
{
    // the packer's form: Windows-1252 lines with CR LF inside the container
    std::vector<std::string> lines;
    std::ifstream in(kGame);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line + "\r");
    const std::string dll = std::string(QUORIX_BUILD_DIR) + "/life_test_texte.dll";
    platform::ContainerWriter w;
    w.addText("10", "game", lines);
    w.write(dll);
    const auto fromContainer = dynamics::parsePatterns(dynamics::loadPatternResource(dll));
    const auto fromFile = dynamics::parsePatterns(dynamics::loadPatternLines(kGame));
    ASSERT_EQ(fromContainer.size(), fromFile.size());
    for (size_t k = 0; k < fromFile.size(); ++k) {
        EXPECT_EQ(fromContainer[k].number, fromFile[k].number);
        EXPECT_EQ(fromContainer[k].rows, fromFile[k].rows);
    }
    EXPECT_TRUE(dynamics::loadPatternResource(dll + ".fehlt").empty());
}

TEST(PatternLibrary, SkipsBrokenBlocks)
{
    const auto p = dynamics::parsePatterns({"[7", "2", "3", "0110", "1001", "[x", "1", "1", "11", "[8", "4", "[9", "0",
                                            "0", "1"});
    ASSERT_EQ(p.size(), 2u);
    EXPECT_EQ(p[0].number, 7);
    EXPECT_EQ(p[0].rowOffset, 2);
    EXPECT_EQ(p[0].colOffset, 3);
    EXPECT_EQ(p[0].rows, (std::vector<std::string>{"0110", "1001"}));
    EXPECT_EQ(p[1].number, 9);
    dynamics::LifeGame g(10);
    dynamics::loadPattern(g, p[0]);
    EXPECT_EQ(g.population(), 4);
    EXPECT_EQ(g.cell(3, 5), 1);  // row offset 2 + row 1, column offset 3 + position 2
    EXPECT_EQ(g.cell(4, 4), 1);
}
