#include "lexicon/suche.h"

#include <gtest/gtest.h>

using namespace lexicon;

namespace {

// One block in the page store's layout: head lines, then pages.
platform::StringList block()
{
    platform::StringList b(100, "-1");
    auto seite = [&](int local, const char* stichwort, std::initializer_list<const char*> text) {
        b[static_cast<size_t>(local)] = std::to_string(b.size());
        b.push_back("[" + std::to_string(local) + "]");
        b.push_back(std::string("Titel ") + stichwort);
        b.push_back(std::string("\xA7") + stichwort);
        for (const char* t : text)
            b.push_back(t);
    };
    seite(0, "Kreis", {"Ein Kreis ist rund.", "Der Kreis hat einen $<Radius$>."});
    seite(1, "Radius", {"radius und Durchmesser", "Umfang"});
    seite(2, "Umfang", {"Umfang zuerst", "dann der Radius"});
    seite(3, "Pi", {"$p ist kein Wort", "Kreiszahl"});
    b.push_back("[#]");
    return b;
}

std::vector<std::string> suche(const std::string& w1, const std::string& w2 = {})
{
    SuchAuftrag a;
    a.wort1 = w1;
    a.wort2 = w2;
    a.bloecke = 2;
    a.blockLaden = [](int) { return block(); };
    return volltextSuche(a);
}

}  // namespace

TEST(FullTextSearch, EachPageOnceInARowAndTheFlippedFirstLetter)
{
    EXPECT_EQ(suche("Kreis"), (std::vector<std::string>{"Kreis", "Pi", "Kreis", "Pi"}));  // two blocks
    EXPECT_EQ(suche("Radius").size(), 6u);  // "radius" counts through the flipped first letter
    EXPECT_TRUE(suche("rund.").size() == 2);
    EXPECT_TRUE(suche("eckig").empty());
}

TEST(FullTextSearch, LeadingBlankFindsTheStartOfACrossReference)
{
    // " Radius" finds " Radius" or "<Radius"
    const auto t = suche(" Radius");
    ASSERT_FALSE(t.empty());
    EXPECT_EQ(t[0], "Kreis");
}

TEST(FullTextSearch, TwoWordsMustStandInOrderOnOnePage)
{
    EXPECT_EQ(suche("Kreis", "Radius")[0], "Kreis");
    // "Umfang" before "Radius" on page Umfang: a hit; Radius page has "Umfang" after "radius": a hit too.
    auto t = suche("Umfang", "Radius");
    EXPECT_EQ(std::count(t.begin(), t.end(), "Umfang"), 2);
    EXPECT_EQ(std::count(t.begin(), t.end(), "Radius"), 0);  // second word in front of the first: no hit
}

TEST(FullTextSearch, TokensAreNotStrippedAndStopWorksBetweenBlocks)
{
    EXPECT_TRUE(suche("$p ist").size() == 2);
    SuchAuftrag a;
    a.wort1 = "Kreis";
    a.bloecke = 5;
    int geladen = 0;
    a.blockLaden = [&](int) {
        ++geladen;
        return block();
    };
    a.laeuft = [&]() { return geladen < 2; };
    EXPECT_EQ(volltextSuche(a).size(), 4u);
    EXPECT_EQ(geladen, 2);
}

TEST(Bookmarks, AddWithoutDoublesDeleteWithoutGaps)
{
    platform::StringList ini = {"[QuorixLexikon]", "X1=-5", "[LZeichen]", "L0=Kreis", "L1=", "L2=Pi"};
    EXPECT_EQ(lesezeichenLesen(ini), (platform::StringList{"Kreis", "Pi"}));
    lesezeichenSchreiben(ini, {"Kreis", "Pi", "Radius"});
    EXPECT_EQ(lesezeichenLesen(ini), (platform::StringList{"Kreis", "Pi", "Radius"}));
    lesezeichenSchreiben(ini, {"Kreis", "Radius"}, 2);
    EXPECT_EQ(lesezeichenLesen(ini), (platform::StringList{"Kreis", "Radius"}));
    EXPECT_EQ(ini.back(), "L1=Radius");
}

TEST(Favourites, ExchangeSortAndTheSixteenBitWrap)
{
    std::vector<short> z(820, 0);
    z[5] = 3;
    z[7] = 9;
    z[9] = 3;
    const auto f = favoritenSortieren(z);
    EXPECT_EQ(f[0], (std::pair<short, int>{9, 7}));
    // Equal counts stand in the order the swaps left them: 5 was swapped down to place 1 first.
    EXPECT_EQ(f[1].second, 5);
    EXPECT_EQ(f[2].second, 9);
    EXPECT_EQ(f[3].first, 0);
    short s = 32767;
    ++s;  // the counters are 16-bit: a count past 32767 turns negative and drops out
    z[7] = s;
    EXPECT_EQ(favoritenSortieren(z)[0].first, 3);
}

TEST(FullTextSearch, RawBlockTextGivesTheSameHitsAsLines)
{
    SuchAuftrag a;
    a.wort1 = "Radius";
    a.wort2 = "Umfang";
    a.bloecke = 2;
    a.blockText = [](int) { return platform::joinLines(block()); };
    SuchAuftrag b = a;
    b.blockText = nullptr;
    b.blockLaden = [](int) { return block(); };
    EXPECT_EQ(volltextSuche(a), volltextSuche(b));
    EXPECT_FALSE(volltextSuche(a).empty());
}
