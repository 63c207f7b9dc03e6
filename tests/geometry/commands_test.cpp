// The headless command `dreieck`.
#include "geometry/commands.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {
int lauf(const quorix::Args& a, std::string& out, std::string& err)
{
    std::ostringstream o, e;
    int rc = -1;
    for (const auto& c : geometryCommands())
        if (c.name == "dreieck") rc = c.run(a, o, e);
    out = o.str();
    err = e.str();
    return rc;
}
}  // namespace

// The 3-4-5 right triangle: area 6, inradius 1, circumcentre the midpoint of the hypotenuse.
TEST(DreieckBefehl, RechtwinkligesDreieck)
{
    std::string out, err;
    ASSERT_EQ(lauf({"0", "0", "4", "0", "0", "3", "--objekt", "Umkreismittelpunkt", "--objekt", "Inkreis"}, out, err),
              0)
        << err;
    EXPECT_NE(out.find("Seite a\t5\n"), std::string::npos) << out;
    EXPECT_NE(out.find("Innenwinkel Alpha in °\t90\n"), std::string::npos) << out;
    EXPECT_NE(out.find("Flächeninhalt\t6\n"), std::string::npos) << out;
    EXPECT_NE(out.find("Umkreismittelpunkt\t( 2 | 1.5 )\n"), std::string::npos) << out;
    EXPECT_NE(out.find("Inkreis \xE2\x80\xA6Radius\t1\n"), std::string::npos) << out;
}

TEST(DreieckBefehl, TrilinearUndFehler)
{
    std::string out, err;
    ASSERT_EQ(lauf({"0", "0", "4", "0", "0", "3", "--trilinear", "--objekt", "Inkreismittelpunkt"}, out, err), 0);
    EXPECT_NE(out.find("Inkreismittelpunkt\t( 1 | 1 ) ; trilinear (1 : 1 : 1)"), std::string::npos) << out;
    EXPECT_EQ(lauf({"0", "0", "4"}, out, err), 2);
    EXPECT_NE(err.find("Aufruf: quorix dreieck"), std::string::npos);
    EXPECT_EQ(lauf({"0", "0", "4", "x", "0", "3"}, out, err), 2);
    EXPECT_NE(err.find("Ungültige Zahl: x"), std::string::npos);
    EXPECT_EQ(lauf({"0", "0", "4", "0", "0", "3", "--objekt", "Zauberkreis"}, out, err), 2);
    EXPECT_NE(err.find("Unbekanntes Objekt: Zauberkreis"), std::string::npos);
    // two vertices on one point: nothing to compute
    EXPECT_EQ(lauf({"1", "1", "1", "1", "0", "3"}, out, err), 1);
    EXPECT_NE(out.find("entartet"), std::string::npos);
    // everything switched on stays finite on an obtuse triangle
    ASSERT_EQ(lauf({"0", "0", "10", "0", "1", "0.5", "--alle"}, out, err), 0);
    EXPECT_EQ(out.find("nan"), std::string::npos);
    EXPECT_EQ(out.find("inf"), std::string::npos);
}
