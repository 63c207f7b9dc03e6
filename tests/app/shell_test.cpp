#include "app/lint.h"
#include "app/teilprogramm.h"
#include "app/winfkt.h"
#include "app/proliste.h"
#include "app/usuche.h"
#include "lexicon/einstellungen.h"
#include "lexicon/suche.h"
#include <QLabel>
#include <QLineEdit>
#include "lexicon/globals.h"
#include "tools/packer.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QListWidget>
#include <QMouseEvent>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <set>
#include <sstream>
#include <unistd.h>

namespace fs = std::filesystem;
using app::TForm1;

namespace {

// Packs the small test lexicon into a private program folder and points the shell at it.
class Shell : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        ordner_ = fs::temp_directory_path() / ("quorix_shell_test_" + std::to_string(::getpid()));
        fs::remove_all(ordner_);
        fs::create_directories(ordner_);
        packer::packAll(QUORIX_TEST_DATA "/testdaten", ordner_.string());
        setenv("QUORIX_HOME", ordner_.c_str(), 1);
        setenv("XDG_DATA_HOME", (ordner_ / "home").c_str(), 1);
    }
    void SetUp() override
    {
        form = std::make_unique<TForm1>(true);
        form->resize(1008, 730);
        form->show();
        QApplication::processEvents();
    }
    int zeile(const char* stichwort)
    {
        const auto& z = form->lb1Zeilen();
        for (size_t i = 0; i < z.size(); ++i)
            if (z[i].rfind(std::string(stichwort) + "\t", 0) == 0)
                return static_cast<int>(i);
        return -1;
    }
    const lexicon::LinkEintrag* link(const std::string& text)
    {
        for (const auto& l : form->linkfeld())
            if (l.text == text)
                return &l;
        return nullptr;
    }
    void klick(const lexicon::LinkEintrag& l)
    {
        const QPointF p((l.x1 + l.x2) / 2.0, l.y1 + 10);
        QMouseEvent e(QEvent::MouseButtonPress, p, form->paintBox()->mapToGlobal(p), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(form->paintBox(), &e);
    }
    static fs::path ordner_;
    std::unique_ptr<TForm1> form;
};
fs::path Shell::ordner_;

}  // namespace

TEST_F(Shell, KeywordClickClosesStartPictureAndLinksLeadOn)
{
    EXPECT_TRUE(form->startbildOffen());
    form->lb1()->setCurrentRow(zeile("Kreis"));
    EXPECT_FALSE(form->startbildOffen());
    EXPECT_EQ(form->seitentitel(), "Kreis");
    EXPECT_EQ(form->aktseite(), 1);
    const auto* radius = link("Radius");
    ASSERT_NE(radius, nullptr);
    klick(*radius);
    EXPECT_EQ(form->seitentitel(), "Radius");
    EXPECT_EQ(form->letzteAktion(), "stichwort:" + std::to_string(zeile("Radius")));
}

TEST_F(Shell, PageTurningFollowsPageNumbers)
{
    form->lb1()->setCurrentRow(zeile("Kreis"));
    const auto* weiter = link("\xBBV: weiter\xAB");
    ASSERT_NE(weiter, nullptr);
    klick(*weiter);
    EXPECT_EQ(form->seitentitel(), "Kreis (Fortsetzung)");
    EXPECT_EQ(form->aktseite(), 2);
    const auto* zurueck = link("\xBBR: zur\xFC" "ck\xAB");
    ASSERT_NE(zurueck, nullptr);
    klick(*zurueck);
    EXPECT_EQ(form->aktseite(), 1);
    form->S2C();
    form->S2C();  // page 0 can't be left backwards
    EXPECT_EQ(form->aktseite(), 0);
    form->plus1C();
    // Page 10 has no content: nothing is shown, but turning goes on from there.
    EXPECT_EQ(form->aktseite(), 0);
    EXPECT_EQ(form->letzteseite(), 10);
}

TEST_F(Shell, HistoryBackShrinksUnevenly)
{
    for (const char* w : {"Kreis", "Radius", "Zylinder", "Mittelwert"})
        form->lb1()->setCurrentRow(zeile(w));
    // "0", then the four keywords (the start selection was never painted)
    std::vector<std::string> v = form->verlauf();
    ASSERT_GE(v.size(), 5u);
    const size_t n = v.size();
    form->T1C();
    // Back to the next-to-last entry; two entries went, the repaint added the page again.
    EXPECT_EQ(form->lb1()->currentRow(), zeile("Zylinder"));
    EXPECT_EQ(form->verlauf().size(), n - 1);
    EXPECT_EQ(form->verlauf().back(), std::to_string(zeile("Zylinder")));
    const std::vector<std::string> erwartet = {"0", std::to_string(zeile("Kreis")), std::to_string(zeile("Radius")),
                                               std::to_string(zeile("Zylinder"))};
    EXPECT_EQ(form->verlauf(), erwartet);
    form->T1C();
    form->T1C();
    form->T1C();
    EXPECT_EQ(form->verlauf(), std::vector<std::string>{"0"});  // the start entry "0" is shown last
    EXPECT_EQ(form->lb1()->currentRow(), 0);
    form->T1C();  // one entry: nothing happens
    EXPECT_EQ(form->verlauf().size(), 1u);
}

TEST_F(Shell, WebLinkOnLastPlaceAndDeadClicks)
{
    form->lb1()->setCurrentRow(zeile("Radius"));
    form->PB1D(2, 600);  // nowhere near a link: the last link's web address is opened all the same
    EXPECT_EQ(form->letzteAktion(), "url:http://example.org");
    form->lb1()->setCurrentRow(zeile("Zylinder"));
    form->PB1D(2, 600);
    EXPECT_EQ(form->letzteAktion(), "");
}

TEST_F(Shell, InteractivePageOpensSidePanelAndComputes)
{
    form->lb1()->setCurrentRow(zeile("Mittelwert"));
    EXPECT_EQ(form->p12Breite(), 264);
    form->seitenrechnerFelder("2", "8");
    form->B1C();
    const QStringList z = form->seitenrechnerZeilen();
    ASSERT_GE(z.size(), 4);
    EXPECT_EQ(z[0], "Mittelwerte");
    EXPECT_TRUE(z.contains("arithmetisch : 5.00000"));
    EXPECT_TRUE(z.contains("geometrisch : 4.00000"));
    form->lb1()->setCurrentRow(zeile("Kreis"));
    EXPECT_EQ(form->p12Breite(), 0);
}

TEST_F(Shell, PageWalkVisitsEveryPageUpToTheLastBlock)
{
    form->B2C();
    // Block 2 holds pages 100..105; the walk runs to 100 + the first repeated head line.
    EXPECT_EQ(form->M766C(), 100 + 6 + 1);
    EXPECT_EQ(form->verlauf().size(), 1u);
}

TEST_F(Shell, MenuEntryWithoutCatalogueTitleCountsButDoesNothing)
{
    const short vorher = form->menuzaehler(12);
    form->_M(12, "&Kein Werkzeug");
    EXPECT_EQ(form->menuzaehler(12), vorher + 1);
    EXPECT_EQ(lexicon::wahlseite, -1);
    EXPECT_TRUE(lexicon::werkzeugtitel == "Kein Werkzeug" || lexicon::werkzeugtitel.empty());
}

TEST_F(Shell, LintFindsDeadLinksUnknownToolsBrokenTurningAndMissingCrossReferences)
{
    std::ostringstream out;
    const int n = app::lexikonPruefen(*form, out);
    const std::string t = out.str();
    EXPECT_NE(t.find("6\tFehlerseite\ttoter Link: Nirgendwo\n"), std::string::npos) << t;
    EXPECT_NE(t.find("6\tFehlerseite\tWerkzeuglink ohne Katalogtitel: Unbekanntes Werkzeug\n"), std::string::npos);
    EXPECT_EQ(t.find("Funktionenplotter"), std::string::npos);  // a catalogue title is fine
    EXPECT_NE(t.find("6\tFehlerseite\tV:-Link führt nicht zur Fortsetzung desselben Artikels\n"), std::string::npos);
    EXPECT_NE(t.find("6\tFehlerseite\tkein Querverweis\n"), std::string::npos);
    EXPECT_EQ(t.find("1\tKreis\t"), std::string::npos);  // a sound page: V: and R: agree, one cross reference
    EXPECT_EQ(t.find("2\tKreisumfang\t"), std::string::npos);
    EXPECT_EQ(n, static_cast<int>(std::count(t.begin(), t.end(), '\n')));
}

TEST_F(Shell, SearchWindowFindsPagesAndMarksTheWordsOnThePage)
{
    form->Su1C();
    ASSERT_NE(form->suchfenster(), nullptr);
    form->suchfenster()->E3->setText("Durchmesser");
    form->suchfenster()->S26Click();
    ASSERT_EQ(form->suchfenster()->LB4->count(), 1);
    EXPECT_EQ(form->suchfenster()->L1->text(), QString::fromUtf8("1 Einträge"));
    form->suchfenster()->LB4->setCurrentRow(0);
    form->suchfenster()->LB4Click();
    EXPECT_EQ(form->seitentitel(), "Radius");
    int markiert = 0;
    const auto& bild = form->seitenbild();
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < bild.width(); ++x)
            markiert += bild.pixel(x, y) == platform::rgb(255, 255, 160);
    EXPECT_GT(markiert, 100);
    // Hidden, the window keeps the mark alive; the keyword list fills the result list.
    form->suchfenster()->close();
    form->S41C();
    EXPECT_EQ(form->suchfenster()->LB4->count(), static_cast<int>(form->stichwortListe().size()));
}

TEST_F(Shell, BookmarksSurviveInTheUsersSettingsFile)
{
    form->lb1()->setCurrentRow(zeile("Zylinder"));
    form->Le1C();
    const int vorher = form->suchfenster()->LB4->count();
    ASSERT_TRUE(form->suchfenster()->LB4->findItems("Zylinder", Qt::MatchExactly).isEmpty());
    form->suchfenster()->S6Click();
    form->suchfenster()->S6Click();  // no doubles
    EXPECT_EQ(form->suchfenster()->LB4->count(), vorher + 1);
    platform::StringList ini;
    ASSERT_TRUE(lexicon::textDateiLesen(lexicon::datenpfad + "quorix.ini", ini));
    EXPECT_NE(std::find(ini.begin(), ini.end(), "[LZeichen]"), ini.end());
    form->suchfenster()->LB4->setCurrentRow(form->suchfenster()->LB4->count() - 1);
    form->suchfenster()->S25Click();
    lexicon::textDateiLesen(lexicon::datenpfad + "quorix.ini", ini);
    EXPECT_EQ(lexicon::lesezeichenLesen(ini).size(), static_cast<size_t>(form->suchfenster()->LB4->count()));
}

TEST_F(Shell, SettingsAndUseCountsSurviveARestart)
{
    lexicon::einstellungen.querv = false;
    lexicon::einstellungen.gOrt = "Halle, D";
    form->lb1()->setCurrentRow(zeile("Radius"));
    form->_M(33, "Nichts");
    form->_M(33, "Nichts");
    const short zaehler = form->menuzaehler(33);
    form.reset();  // FormDestroy writes quorix.ini and mfavor.c00
    lexicon::einstellungen = lexicon::Einstellungen{};
    form = std::make_unique<TForm1>(true);
    EXPECT_FALSE(lexicon::einstellungen.querv);
    EXPECT_EQ(lexicon::einstellungen.gOrt, "Halle, D");
    EXPECT_EQ(lexicon::einstellungen.lexikonseite, zeile("Radius"));
    EXPECT_EQ(form->menuzaehler(33), zaehler);
    lexicon::einstellungen.querv = true;
}

TEST_F(Shell, TopicListOffersEveryCatalogueTitleOnceAndFilters)
{
    app::Tproliste d(form.get(), false);
    std::set<std::string> titel;
    const auto& z = form->katalog().liste();
    for (size_t i = 0; i + 1 < z.size(); i += 2)
        titel.insert(z[i]);
    EXPECT_EQ(d.liste->count(), static_cast<int>(titel.size()));
    app::Tproliste texte(form.get(), true);
    for (int i = 0; i < texte.liste->count(); ++i)
        EXPECT_FALSE(texte.liste->item(i)->text().isEmpty());
}

TEST(ToolTable, WindowOpensAtTheCataloguesItem)
{
    // "Atbasch-Verschlüsselung" is item 5 of tool 23: the cipher list stands on that method.
    const app::WerkzeugEintrag* e = app::werkzeugEintrag(23);
    ASSERT_TRUE(e && e->fabrik);
    lexicon::wahlseite = 0;
    lexicon::wahlpunkt = 5;
    std::unique_ptr<QDialog> d(e->fabrik(nullptr));
    lexicon::wahlseite = lexicon::wahlpunkt = -1;
    bool found = false;
    for (auto* cb : d->findChildren<QComboBox*>())
        if (cb->count() == 22) {
            found = true;
            EXPECT_EQ(cb->currentText().toStdString(), "Atbasch-Verschlüsselung");
        }
    EXPECT_TRUE(found) << "no method list in the cipher window";
}
