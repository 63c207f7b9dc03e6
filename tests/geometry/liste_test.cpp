// The authored lists and the .dre file format.
#include "geometry/dreieck.h"
#include "geometry/dreieckliste.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>

using namespace geo;

namespace {
std::vector<std::string> lies(const std::string& name)
{
    std::ifstream in(std::string(QUORIX_SOURCE_DIR) + "/data/texte/" + name);
    std::vector<std::string> z;
    for (std::string l; std::getline(in, l);) z.push_back(l);
    return z;
}
bool bekannt(const std::string& n)
{
    const auto& b = bekannteObjekte();
    return std::find(b.begin(), b.end(), n) != b.end();
}
}  // namespace

TEST(DreieckListen, ObjektlistenSindVollstaendigUndBekannt)
{
    const Objektlisten o = leseObjektlisten(lies("xdreieck.txt"));
    EXPECT_EQ(o.titel[0], "Allgemein");
    EXPECT_EQ(o.titel[1], "Dreiecke / Lote");
    EXPECT_EQ(o.titel[2], "A-M");
    EXPECT_EQ(o.titel[3], "N-Z");
    const auto alle = o.alle();
    // every item does something, and every object of the core can be switched on
    for (const std::string& n : alle) EXPECT_TRUE(bekannt(n)) << n;
    EXPECT_EQ(alle.size(), bekannteObjekte().size());
    EXPECT_EQ(std::set<std::string>(alle.begin(), alle.end()).size(), alle.size()) << "duplicate names";
    EXPECT_EQ(o.namen[0].front(), "Punkt A");
}

TEST(DreieckListen, ThemenFuerAlleSeiten)
{
    const auto themen = leseThemen(lies("wdreieck.txt"));
    ASSERT_EQ(themen.size(), 66u);  // catalogue pages 1 to 66
    for (const Thema& t : themen) {
        for (const std::string& k : t.koordinaten) {
            char* end = nullptr;
            std::strtod(k.c_str(), &end);
            EXPECT_TRUE(end && *end == '\0' && !k.empty()) << t.titel << ": " << k;
        }
        EXPECT_FALSE(t.objekte.empty()) << t.titel;
        for (const std::string& n : t.objekte) EXPECT_TRUE(bekannt(n)) << t.titel << ": " << n;
    }
    const Thema* m = findeThema(themen, "&Morley-Dreieck");
    ASSERT_NE(m, nullptr);
    EXPECT_NE(std::find(m->objekte.begin(), m->objekte.end(), "Morley-Dreieck"), m->objekte.end());
    EXPECT_EQ(findeThema(themen, "Gibt es nicht"), nullptr);
}

TEST(DreieckListen, DreDateiHinUndZurueck)
{
    DreDaten d;
    d.felder = {"-1", "2", "-2,5", "-1.5", "3", "pi/2"};
    d.an[0] = {"Umkreis", "Inkreis"};
    d.an[3] = {"Steiner-Ellipse"};
    const auto z = schreibeDre(d);
    ASSERT_EQ(z.size(), 6u + 2 + 1 + 0 + 1 + 1 + 1 + 1);
    EXPECT_EQ(z[8], "#");
    DreDaten e;
    ASSERT_TRUE(leseDre(z, e));
    EXPECT_EQ(e.felder, d.felder);
    EXPECT_EQ(e.an, d.an);
    // a file cut short keeps what it has; one without the six fields is refused
    std::vector<std::string> kurz(z.begin(), z.begin() + 8);
    ASSERT_TRUE(leseDre(kurz, e));
    EXPECT_EQ(e.an[0], d.an[0]);
    EXPECT_TRUE(e.an[3].empty());
    EXPECT_FALSE(leseDre({"1", "2"}, e));
}
