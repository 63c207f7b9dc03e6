// The high-score list: reading spiele.ini, placing new scores, deleting, and the file round trip.
#include "games/beste.h"
#include "games/bestenliste.h"
#include "games/windows.h"
#include "lexicon/einstellungen.h"
#include "lexicon/globals.h"
#include "platform/toolframe.h"

#include <QPixmap>
#include <gtest/gtest.h>

#include <filesystem>

using games::Bestenliste;

namespace {

platform::StringList beispielIni()
{
    // Another game's section and a foreign key must survive.
    return {"[Sudoku]", "1= 000050\tEva\t01.02.2024", "", "[Mathe]", "1= 000300\tAnna\t03.01.2024",
            "2= 000200\tBen\t04.01.2024", "3= 000100\tCarl\t05.01.2024", "4=kaputt", ""};
}

}  // namespace

TEST(Bestenliste, ReadingShowsAllPlaces)
{
    Bestenliste b;
    b.laden(beispielIni(), "");
    EXPECT_EQ(b.spielname(), "Mathe");
    EXPECT_EQ(b.spieltitel(), "Bestenliste: Mathe");
    ASSERT_EQ(b.zeilen().size(), 25u);
    EXPECT_EQ(b.zeilen()[0], " 000300\tAnna\t03.01.2024");
    EXPECT_EQ(b.punkte(2), 200);
    EXPECT_EQ(b.namen(3), "Carl\t05.01.2024");
    // a value without a tab and missing keys are empty places shown as zeros
    EXPECT_EQ(b.punkte(4), 0);
    EXPECT_EQ(b.zeilen()[3], " 000000\t");
    EXPECT_EQ(b.zeilen()[24], " 000000\t");
    // a score that is no number raises
    EXPECT_THROW(b.laden({"[Mathe]", "1=abc\tX\t1.1.2024"}, "Mathe"), std::runtime_error);
}

TEST(Bestenliste, PlacingNewScores)
{
    Bestenliste b;
    b.laden(beispielIni(), "Mathe");
    // equal to the best: in front of it
    EXPECT_EQ(b.eintragen(300, "Dora", "06.01.2024"), 0);
    EXPECT_EQ(b.zeilen()[0], " 000300\tDora\t06.01.2024");
    EXPECT_EQ(b.zeilen()[1], " 000300\tAnna\t03.01.2024");
    EXPECT_EQ(b.punkte(2), 300);
    EXPECT_EQ(b.zeilen().size(), 25u);
    // between two entries
    EXPECT_EQ(b.eintragen(150, "Emil", "07.01.2024"), 3);
    EXPECT_EQ(b.punkte(4), 150);
    EXPECT_EQ(b.punkte(5), 100);
    // zero enters nothing
    EXPECT_EQ(b.eintragen(0, "Fritz", "x"), -1);
    EXPECT_EQ(b.punkte(6), 0);
    // more than six digits stay whole
    EXPECT_EQ(b.eintragen(12345678, "Gabi", "08.01.2024"), 0);
    EXPECT_EQ(b.zeilen()[0], " 12345678\tGabi\t08.01.2024");
    // the name is taken for the new line
    b.nameUebernehmen("Hanna", "09.01.2024");
    EXPECT_EQ(b.zeilen()[0].rfind(" 12345678\tGabi\t", 0), 0u);
    EXPECT_EQ(b.zeilen()[0].substr(b.zeilen()[0].size() - 5), "Hanna");
    EXPECT_EQ(b.namen(1), "Hanna\t09.01.2024");

    // A full list: a score below all 25 places enters nothing.
    platform::StringList voll = {"[Mathe]"};
    for (int i = 1; i <= 25; ++i)
        voll.push_back(std::to_string(i) + "=" + Bestenliste::punktText(1000 - i) + "\tN" + std::to_string(i) + "\td");
    b.laden(voll, "Mathe");
    const auto vorher = b.zeilen();
    EXPECT_EQ(b.eintragen(500, "Ina", "d"), -1);
    EXPECT_EQ(b.zeilen(), vorher);
    // a tie with the last place (975) goes in front of it and pushes it out
    EXPECT_EQ(b.eintragen(975, "Jan", "d"), 24);
    EXPECT_EQ(b.zeilen().size(), 25u);
    EXPECT_EQ(b.zeilen()[23], " 000976\tN24\td");
    EXPECT_EQ(b.zeilen()[24], " 000975\tJan\td");
}

TEST(Bestenliste, DeletingAndFileRoundTrip)
{
    Bestenliste b;
    b.laden(beispielIni(), "Mathe");
    b.loeschen(true);
    ASSERT_EQ(b.zeilen().size(), 1u);
    EXPECT_EQ(b.punkte(1), 300);
    EXPECT_EQ(b.punkte(2), 0);
    b.loeschen(false);
    EXPECT_TRUE(b.zeilen().empty());
    // an empty list takes the new score as its only line
    EXPECT_EQ(b.eintragen(42, "Kim", "d"), 0);
    const platform::StringList ini = b.speichern(beispielIni());
    std::string wert;
    ASSERT_TRUE(Bestenliste::iniLesen(ini, "Mathe", "1", wert));
    EXPECT_EQ(wert, " 000042\tKim\td");
    ASSERT_TRUE(Bestenliste::iniLesen(ini, "Mathe", "2", wert));
    EXPECT_EQ(wert, "");
    ASSERT_TRUE(Bestenliste::iniLesen(ini, "Mathe", "25", wert));
    ASSERT_TRUE(Bestenliste::iniLesen(ini, "Sudoku", "1", wert));
    EXPECT_EQ(wert, " 000050\tEva\t01.02.2024");

    // Through the file: what is written is read back in the same order.
    Bestenliste c;
    c.laden(beispielIni(), "Mathe");
    c.eintragen(250, "Lea", "10.01.2024");
    const std::string pfad = std::string(QUORIX_BUILD_DIR) + "/testhome/spiele_rundlauf.ini";
    std::filesystem::create_directories(std::filesystem::path(pfad).parent_path());
    platform::writeTextFile(pfad, c.speichern({}));
    platform::StringList gelesen;
    ASSERT_TRUE(platform::readTextFile(pfad, gelesen));
    Bestenliste d;
    d.laden(gelesen, "Mathe");
    EXPECT_EQ(d.zeilen(), c.zeilen());
    for (int i = 1; i < 25; ++i)
        EXPECT_GE(d.punkte(i), d.punkte(i + 1)) << "place " << i;
    std::filesystem::remove(pfad);
}

TEST(Bestenliste, WindowEntersAndWritesTheScore)
{
    const std::string ordner = std::string(QUORIX_BUILD_DIR) + "/testhome/bestenfenster/";
    std::filesystem::remove_all(ordner);
    std::filesystem::create_directories(ordner);
    lexicon::datenpfad = ordner;
    lexicon::einstellungen.spieler = "Max";
    {
        TBestenliste w(nullptr, "Muehle", 1234);
        EXPECT_EQ(w.size(), QSize(1008, 710));
        EXPECT_EQ(w.windowTitle(), "Quorix");
        w.show();
        ASSERT_FALSE(w.zeilen().isEmpty());
        EXPECT_TRUE(w.zeilen()[0].startsWith(" 001234\tMax\t")) << w.zeilen()[0].toStdString();
        w.setzeSpieler(QString::fromUtf8("Jürgen"));
        w.D3C();
        EXPECT_TRUE(w.zeilen()[0].endsWith(QString::fromUtf8("Jürgen")));
        const QPixmap pic = w.grab();
        if (const char* out = std::getenv("QUORIX_PNG_BESTE"))
            pic.save(out);
        w.D1C();
    }
    platform::StringList ini;
    ASSERT_TRUE(platform::readTextFile(ordner + "spiele.ini", ini));
    std::string wert;
    ASSERT_TRUE(Bestenliste::iniLesen(ini, "Muehle", "1", wert));
    EXPECT_EQ(wert.rfind(" 001234\tMax\t", 0), 0u);
    EXPECT_EQ(wert.substr(wert.size() - 6), "J\xFCrgen");  // Windows-1252 on disk
    // The factory shows the list only.
    QDialog* leer = createTBestenliste(nullptr);
    leer->show();
    EXPECT_EQ(qobject_cast<TBestenliste*>(leer)->liste().neuzeile(), -1);
    delete leer;
    lexicon::datenpfad.clear();
}
