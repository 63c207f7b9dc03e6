// The authored example constructions and the kind list, read from their sources, and the
// headless command `konstruktion`.
#include "geometry/commands.h"
#include "geometry/konstruliste.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

using namespace konstru;

namespace {
std::vector<std::string> quelle(const std::string& name)
{
    std::ifstream in(std::string(QUORIX_SOURCE_DIR) + "/data/texte/" + name + ".txt");
    std::vector<std::string> z;
    for (std::string l; std::getline(in, l);) z.push_back(l);
    return z;
}

double winkel(const Lauf& l, const std::string& name)
{
    for (const std::string& m : l.messungen)
        if (m.rfind(name + "\tWinkel\t", 0) == 0) return std::stod(m.substr(name.size() + 8));
    return NAN;
}

int befehl(const quorix::Args& a, std::string& out, std::string& err)
{
    std::ostringstream o, e;
    int rc = -1;
    for (const auto& c : geometryCommands())
        if (c.name == "konstruktion") rc = c.run(a, o, e);
    out = o.str();
    err = e.str();
    return rc;
}
}  // namespace

TEST(KonstruBeispiele, AlleLaufenVollstaendig)
{
    const auto beispiele = leseBeispiele(quelle("konstru"));
    ASSERT_GE(beispiele.size(), 12u);
    for (const Beispiel& b : beispiele) {
        const Lauf l = fuehreAus(b.zeilen);
        EXPECT_TRUE(l.leer.empty()) << b.titel << ": Schritt " << l.leer.front() + 1 << " bleibt leer";
        EXPECT_FALSE(l.zeichnungen.empty()) << b.titel;
    }
}

// What each classic construction must show, whatever the authored coordinates are.
TEST(KonstruBeispiele, LehrsaetzeStimmen)
{
    std::map<std::string, Lauf> l;
    for (const Beispiel& b : leseBeispiele(quelle("konstru"))) l[b.titel] = fuehreAus(b.zeilen);
    EXPECT_NEAR(winkel(l["Thaleskreis"], "ACB"), 90, 1e-3);
    EXPECT_NEAR(winkel(l["Tangenten von einem Punkt an einen Kreis"], "MT1P"), 90, 1e-3);
    EXPECT_NEAR(winkel(l["Mittelsenkrechte mit Zirkel und Lineal"], "AMS1"), 90, 1e-3);
    const Lauf& w = l["Winkelhalbierende mit Zirkel und Lineal"];
    EXPECT_NEAR(winkel(w, "ASW"), winkel(w, "WSB"), 1e-3);
    const Lauf& p = l["Peripheriewinkel über einer Sehne"];
    EXPECT_NEAR(winkel(p, "ACB"), winkel(p, "ADB"), 1e-3);
    EXPECT_NEAR(winkel(l["Drehung eines Dreiecks um 60°"], "BZB1"), 60, 1e-3);

    // the midpoint of the compass construction halves AB
    const Lauf& m = l["Mittelsenkrechte mit Zirkel und Lineal"];
    ASSERT_TRUE(m.punkt("M") && m.punkt("A") && m.punkt("B"));
    EXPECT_NEAR(m.punkt("M")->p.x, (m.punkt("A")->p.x + m.punkt("B")->p.x) / 2, 1e-9);
    // Euler line: the centroid lies on the line through U and H
    const Lauf& e = l["Eulersche Gerade"];
    ASSERT_TRUE(e.punkt("U") && e.punkt("H") && e.punkt("Z"));
    const P2 u = e.punkt("U")->p, h = e.punkt("H")->p, z = e.punkt("Z")->p;
    EXPECT_NEAR((h.x - u.x) * (z.y - u.y) - (h.y - u.y) * (z.x - u.x), 0, 1e-9);
    // hexagon: the sixth rotation closes on the start point
    const Lauf& s = l["Regelmäßiges Sechseck im Kreis"];
    ASSERT_TRUE(s.punkt("F"));
    EXPECT_NEAR(std::hypot(s.punkt("F")->p.x - 3 * std::cos(5 * M_PI / 3), s.punkt("F")->p.y - 3 * std::sin(5 * M_PI / 3)), 0, 1e-9);
}

TEST(KonstruBeispiele, EingabeartenListe)
{
    const auto z = quelle("konstru2");
    ASSERT_EQ(z.size(), 31u);
    EXPECT_EQ(z[0], "Punkt mit zwei Koordinaten");
    EXPECT_EQ(z[kMittelsenkrechte], "Mittelsenkrechte zu zwei Punkten");
    EXPECT_EQ(z[kVerschiebung], "Verschiebung eines Punktes");
}

TEST(KonstruBefehl, AusgabeUndFehler)
{
    const std::string pfad = (std::filesystem::temp_directory_path() / "quorix_konstru_befehl.dyn").string();
    {
        std::ofstream f(pfad, std::ios::binary);
        f << "Punkt A\t0|0\t0\r\nPunkt B\t4|0\t0\r\nPunkt C\t0|3\t0\r\nStrecke s1\tB|C\t1\r\n"
             "Kreis k1\tA|B|C\t?\r\nGerade g1\tA|Q\t2\r\n";
    }
    std::string out, err;
    ASSERT_EQ(befehl({pfad}, out, err), 0) << err;
    EXPECT_NE(out.find("A\tPunkt\t(0 | 0)\n"), std::string::npos) << out;
    EXPECT_NE(out.find("s1\tStrecke\t(4 | 0) (0 | 3)\tLänge 5\n"), std::string::npos) << out;
    EXPECT_NE(out.find("k1\tKreis\tM (2 | 1.5)\tr 2.5\n"), std::string::npos) << out;
    EXPECT_NE(out.find("g1\tGerade\tnicht definiert\n"), std::string::npos) << out;

    // the picture is written beside the listing
    const std::string bild = pfad + ".png";
    std::filesystem::remove(bild);
    ASSERT_EQ(befehl({pfad, "--png", bild}, out, err), 0) << err;
    EXPECT_GT(std::filesystem::file_size(bild), 1000u);

    EXPECT_EQ(befehl({}, out, err), 2);
    EXPECT_NE(err.find("Aufruf: quorix konstruktion"), std::string::npos);
    EXPECT_EQ(befehl({pfad + ".fehlt"}, out, err), 1);
    EXPECT_FALSE(err.empty());
}
