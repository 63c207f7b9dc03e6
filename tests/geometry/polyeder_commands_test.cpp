// The command polyeder: its line format, truncation by name, turning, usage errors and the picture.
#include "geometry/poly_commands.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <set>
#include <sstream>

namespace {

struct Ergebnis {
    int code;
    std::string out, err;
};

Ergebnis rufe(quorix::Args args)
{
    args.push_back("--texte");
    args.push_back(std::string(QUORIX_SOURCE_DIR) + "/data/texte");
    for (const auto& c : polyCommands())
        if (c.name == "polyeder") {
            std::ostringstream out, err;
            const int code = c.run(args, out, err);
            return {code, out.str(), err.str()};
        }
    ADD_FAILURE() << "kein Befehl polyeder";
    return {-1, "", ""};
}

bool hatZeile(const std::string& text, const std::string& zeile)
{
    return ("\n" + text).find("\n" + zeile + "\n") != std::string::npos;
}

}  // namespace

TEST(PolyederBefehl, WuerfelMitMassen)
{
    const Ergebnis r = rufe({"Würfel"});
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_TRUE(r.out.rfind("Körper\tWürfel\nEcken\t8\nKanten\t12\nFlächen\t6\t6 Vierecke\nEuler\t2\n", 0) == 0)
        << r.out;
    EXPECT_TRUE(hatZeile(r.out, "Volumen\t1")) << r.out;
    EXPECT_TRUE(hatZeile(r.out, "Oberfläche\t6")) << r.out;
    EXPECT_TRUE(hatZeile(r.out, "Kantenlänge\t1\t1")) << r.out;
    // the unit cube around the origin: every corner at +-0.5, each sign pattern once
    std::istringstream zeilen(r.out);
    std::string z;
    std::set<std::string> ecken;
    while (std::getline(zeilen, z))
        if (z.rfind("P", 0) == 0) ecken.insert(z.substr(z.find('\t')));
    EXPECT_EQ(ecken.size(), 8u);
    EXPECT_TRUE(ecken.count("\t-0.5\t-0.5\t-0.5"));
    EXPECT_TRUE(ecken.count("\t0.5\t0.5\t0.5"));
}

// The cube truncated at its edge midpoints, asked for by its list name: a cuboctahedron.
TEST(PolyederBefehl, AbstumpfungUndSternkoerper)
{
    const Ergebnis r = rufe({"Würfel Abstumpfung", "--abstumpfung", "0.5"});
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_TRUE(hatZeile(r.out, "Flächen\t14\t8 Dreiecke, 6 Vierecke")) << r.out;
    const Ergebnis s = rufe({"Oktaeder", "--stern", "0.5"});
    EXPECT_TRUE(hatZeile(s.out, "Volumen\t1.414214")) << s.out;  // two tetrahedra of edge 2
}

TEST(PolyederBefehl, DrehungHaeltMasse)
{
    const Ergebnis r = rufe({"Ikosaederstumpf", "--drehung", "10", "20", "30"});
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_TRUE(hatZeile(r.out, "Volumen\t55.287731")) << r.out;
    EXPECT_TRUE(hatZeile(r.out, "Flächen\t32\t12 Fünfecke, 20 Sechsecke")) << r.out;
}

TEST(PolyederBefehl, ListeUndFehler)
{
    const Ergebnis l = rufe({"--liste"});
    EXPECT_EQ(l.code, 0);
    EXPECT_TRUE(hatZeile(l.out, "Archimedische Körper\tCubus simus"));
    EXPECT_TRUE(hatZeile(l.out, "Abstumpfungen\tWürfel Abstumpfung"));
    EXPECT_EQ(rufe({"Zwölfflach"}).code, 1);
    EXPECT_EQ(rufe({}).code, 2);
    EXPECT_EQ(rufe({"Würfel", "--abstumpfung", "0.9"}).code, 2);
    const Ergebnis d = rufe({"Würfel", "--drehung", "1", "x", "3"});
    EXPECT_EQ(d.code, 2);
    EXPECT_FALSE(d.err.empty());
}

TEST(PolyederBefehl, BildDatei)
{
    const std::string pfad = (std::filesystem::temp_directory_path() / "quorix_polyeder_test.png").string();
    std::remove(pfad.c_str());
    const Ergebnis r = rufe({"Dürer-Polyeder", "--png", pfad, "--drehung", "20", "100", "0"});
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_GT(std::filesystem::file_size(pfad), 1000u);
}
