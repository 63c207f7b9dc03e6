#include "lexicon/einstellungen.h"

#include <gtest/gtest.h>

using namespace lexicon;

namespace {
Einstellungen lies(const platform::StringList& z)
{
    Einstellungen e;
    einstellungenLesen(e, z);
    return e;
}
std::string wert(const platform::StringList& z, const std::string& key)
{
    for (const auto& l : z)
        if (l.rfind(key + "=", 0) == 0)
            return l.substr(key.size() + 1);
    return "<fehlt>";
}
}  // namespace

TEST(SettingsReader, KeysAreFoundAsSubstringsOfTheFirstLineHoldingThem)
{
    // "Lexikonschrift" stands before "Schrift": the reader takes its value for both.
    auto e = lies({"[QuorixLexikon]", "Lexikonschrift=12", "Schrift=Arial"});
    EXPECT_EQ(e.schrift, "12");
    EXPECT_EQ(e.lexikonschrift, 12);
    // In the factory order Schrift comes first and all is well.
    e = lies({"[QuorixLexikon]", "Schrift=Arial", "Druckschrift=Courier", "Lexikonschrift=12"});
    EXPECT_EQ(e.schrift, "Arial");
    EXPECT_EQ(e.druckschrift, "Courier");
    // Sections are not looked at.
    e = lies({"[Andere]", "GOrt=Irgendwo", "[QuorixLexikon]", "GOrt=Neustadt"});
    EXPECT_EQ(e.gOrt, "Irgendwo");
}

TEST(SettingsReader, ReadersAndStartUpChecks)
{
    auto e = lies({"X1=2", "X2=2", "Y1=1", "Y2=3", "Komma=2", "Querv=1", "Listboxschrift=7", "GBreite=abc",
                   "Druckfontsize=11", "Druckgroesse=13"});
    EXPECT_EQ(e.x1, -5);  // X1 = X2: both reset
    EXPECT_EQ(e.x2, 5);
    EXPECT_EQ(e.y1, 1);
    EXPECT_EQ(e.y2, 3);
    EXPECT_FALSE(e.komma);  // only "1" is on
    EXPECT_TRUE(e.querv);
    EXPECT_EQ(e.listboxschrift, 8);
    EXPECT_DOUBLE_EQ(e.gBreite, 50.8088888888889);  // unreadable real: default
    EXPECT_EQ(e.druckfontsize, 13);                   // Druckgroesse is read last into the same variable
    EXPECT_EQ(e.zeitstrahl, 0);                       // a missing integer is 0, not its default
    EXPECT_EQ(e.schrift, "7");                        // no Schrift line: Listboxschrift answers
    EXPECT_EQ(lies({"Schrift="}).schrift, "Verdana");  // an empty font falls back
    EXPECT_FALSE(lies({"Querv=0"}).querv);
}

TEST(SettingsWriter, WritesEveryKeyInOrderAndReadsBackTheSame)
{
    Einstellungen e;
    e.x1 = -2.5;
    e.gBreite = 48.1234567891;
    e.komma = true;
    e.spieler = "Anna";
    const auto z = einstellungenSchreiben(e, {"[LZeichen]", "L0=Kreis"});
    EXPECT_EQ(z[0], "[LZeichen]");
    EXPECT_EQ(z[1], "L0=Kreis");
    EXPECT_EQ(z[3], "[QuorixLexikon]");
    EXPECT_EQ(z[4], "X1=-2.5");
    EXPECT_EQ(wert(z, "GBreite"), "48.1234567891");
    EXPECT_EQ(wert(z, "Komma"), "1");
    EXPECT_EQ(z.back(), "Komma=1");
    // Schrift before Druckschrift, Lexikonschrift, Listboxschrift, GrafikSchrift: the reader's rule holds.
    size_t posSchrift = 0, posDruck = 0;
    for (size_t i = 0; i < z.size(); ++i) {
        if (z[i].rfind("Schrift=", 0) == 0) posSchrift = i;
        if (z[i].rfind("Druckschrift=", 0) == 0) posDruck = i;
    }
    EXPECT_LT(posSchrift, posDruck);
    const auto zurueck = lies(z);
    EXPECT_EQ(zurueck.x1, -2.5);
    EXPECT_EQ(zurueck.spieler, "Anna");
    EXPECT_TRUE(zurueck.komma);
    // Writing over an existing file replaces values in place.
    const auto z2 = einstellungenSchreiben(zurueck, z);
    EXPECT_EQ(z2, z);
}
