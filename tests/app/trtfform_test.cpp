// The text window of a copied page, and the page command's RTF and PDF output.
#include "app/commands.h"
#include "app/trtfform.h"
#include "app/winfkt.h"
#include "lexicon/globals.h"
#include "lexicon/rtf.h"
#include "tools/packer.h"

#include "../lexicon/druck_testseiten.h"

#include <QAction>
#include <QApplication>
#include <QPixmap>
#include <QTextCursor>
#include <QTextEdit>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <unistd.h>

namespace fs = std::filesystem;
using app::Trtfform;

namespace {

fs::path tempDatei(const std::string& name)
{
    return fs::temp_directory_path() / ("quorix_trtf_" + std::to_string(::getpid()) + "_" + name);
}

// The export of a real page, written where the window reads it.
std::string seiteExportieren(int nummer)
{
    const auto s = testseiten::seite(nummer);
    const std::string pfad = tempDatei("seite" + std::to_string(nummer) + ".000").string();
    lexicon::rtfDateiSchreiben(pfad, lexicon::rtfSeite(testseiten::block(s), nummer));
    return pfad;
}

int befehl(const quorix::Args& args, std::string& ausgabe, std::string& fehler)
{
    for (const auto& c : app::appCommands())
        if (c.name == args.front()) {
            std::ostringstream out, err;
            const int rc = c.run(quorix::Args(args.begin() + 1, args.end()), out, err);
            ausgabe = out.str();
            fehler = err.str();
            return rc;
        }
    return -1;
}

}  // namespace

TEST(Trtfform, ShowsThePageTextWithItsFormats)
{
    const std::string pfad = seiteExportieren(1100);
    Trtfform w(nullptr, pfad, {}, QStringLiteral("Komplexe Zahlen"));
    EXPECT_EQ(w.size(), QSize(1008, 710));
    EXPECT_EQ(w.windowTitle(), "Quorix");
    w.show();
    QApplication::processEvents();
    const QString text = w.r1()->toPlainText();
    EXPECT_TRUE(text.contains(QString::fromUtf8("Die Gleichung x² = -1 hat keine reelle Lösung."))) << text.toStdString();
    EXPECT_FALSE(text.contains(QStringLiteral("Komplexer Rechner")));
    EXPECT_EQ(w.p4Breite(), 4);  // no picture

    // The heading is bold and blue in the box.
    QTextCursor c = w.r1()->document()->find(QStringLiteral("Zahlenebene und Polarform"));
    ASSERT_FALSE(c.isNull());
    EXPECT_GE(c.charFormat().fontWeight(), QFont::Bold);
    EXPECT_EQ(c.charFormat().foreground().color(), QColor(0, 0, 255));

    const QPixmap bild = w.grab();
    EXPECT_EQ(bild.size(), QSize(1008, 710));
    if (const char* out = std::getenv("QUORIX_PNG"))
        bild.save(out);
    fs::remove(pfad);
}

TEST(Trtfform, PictureSitsInItsPanel)
{
    const std::string pfad = seiteExportieren(1109);
    Trtfform w(nullptr, pfad, platform::Picture(150, 120, platform::rgb(0, 128, 0)), QStringLiteral("Polynom"));
    w.show();
    QApplication::processEvents();
    EXPECT_EQ(w.p4Breite(), 150 + 12);
    const QImage img = w.grab().toImage();
    // The picture's green shows left of the text.
    EXPECT_EQ(img.pixelColor(60, 150), QColor(0, 128, 0));
    fs::remove(pfad);
}

TEST(Trtfform, EditedTextIsSavedAsRtf)
{
    const std::string pfad = seiteExportieren(1101);
    Trtfform w(nullptr, pfad);
    w.show();
    QApplication::processEvents();
    QTextCursor c(w.r1()->document());
    c.movePosition(QTextCursor::End);
    c.insertText(QString::fromUtf8("Eigene Notiz: Größe"));
    const std::string ziel = tempDatei("gespeichert.rtf").string();
    ASSERT_TRUE(w.rtfSpeichern(ziel));
    std::string daten;
    ASSERT_TRUE(platform::readFile(ziel, daten));
    const lexicon::RtfDokument d = lexicon::rtfLesen(daten);
    ASSERT_TRUE(d.gueltig);
    bool notiz = false, kopf = false;
    for (const auto& a : d.absaetze) {
        notiz |= a.text().find("Eigene Notiz: Größe") != std::string::npos;
        for (const auto& l : a.laeufe)
            kopf |= l.text.find("Skalarprodukt") != std::string::npos && l.fett && l.farbe == platform::rgb(0, 0, 255);
    }
    EXPECT_TRUE(notiz);
    EXPECT_TRUE(kopf);
    EXPECT_EQ(daten.find("Gr\\'f6\\'dfe") != std::string::npos, true);
    fs::remove(ziel);
    fs::remove(pfad);
    EXPECT_FALSE(w.rtfSpeichern("/nonexistent/dir/x.rtf"));
}

TEST(Trtfform, MissingFileLeavesTheBoxEmpty)
{
    Trtfform w(nullptr, tempDatei("fehlt.000").string());
    w.show();
    QApplication::processEvents();
    EXPECT_TRUE(w.r1()->toPlainText().isEmpty());
}

class SeitenAusgabe : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        ordner_ = tempDatei("programm");
        fs::remove_all(ordner_);
        fs::create_directories(ordner_);
        packer::packAll(QUORIX_TEST_DATA "/testdaten", ordner_.string());
        setenv("QUORIX_HOME", ordner_.c_str(), 1);
        setenv("XDG_DATA_HOME", (ordner_ / "home").c_str(), 1);
    }
    static void TearDownTestSuite() { fs::remove_all(ordner_); }
    static fs::path ordner_;
};
fs::path SeitenAusgabe::ordner_;

TEST_F(SeitenAusgabe, RtfOfAPageDropsScreenLinks)
{
    const std::string rtf = (ordner_ / "seite.rtf").string();
    std::string aus, fehler;
    ASSERT_EQ(befehl({"page", "Fehlerseite", "--rtf", rtf}, aus, fehler), 0) << fehler;
    EXPECT_NE(aus.find("Titel\tFehlerseite\n"), std::string::npos);
    EXPECT_NE(aus.find("RTF\t" + rtf + "\t"), std::string::npos) << aus;
    std::string daten;
    ASSERT_TRUE(platform::readFile(rtf, daten));
    EXPECT_NE(daten.find("Ein Nirgendwo und ein  und ein .\\par \r\n"), std::string::npos) << daten;
    EXPECT_EQ(daten.find("weiter"), std::string::npos);

    ASSERT_EQ(befehl({"page", "Mittelwert", "--rtf", rtf}, aus, fehler), 0) << fehler;
    ASSERT_TRUE(platform::readFile(rtf, daten));
    EXPECT_NE(daten.find("Mittelwerte zweier Zahlen."), std::string::npos);
    EXPECT_EQ(daten.find(":Mittelwerte"), std::string::npos);
}

TEST_F(SeitenAusgabe, PdfListsThePrintedLines)
{
    const std::string pdf = (ordner_ / "seite.pdf").string();
    std::string aus, fehler;
    ASSERT_EQ(befehl({"page", "Kreis", "--pdf", pdf}, aus, fehler), 0) << fehler;
    EXPECT_GT(fs::file_size(pdf), 1000u);
    // 1200 dpi against 96: factor 12; the heading's extra line puts the text on line 2.
    EXPECT_NE(aus.find("PDF\t" + pdf + "\t2\n"), std::string::npos) << aus;
    EXPECT_NE(aus.find("Druck\txfaktor 12\tyfaktor 12\t"), std::string::npos) << aus;
    std::istringstream zeilen(aus);
    std::string z;
    std::vector<std::string> gedruckt;
    while (std::getline(zeilen, z))
        if (z.rfind("Druckzeile\t", 0) == 0)
            gedruckt.push_back(z);
    ASSERT_EQ(gedruckt.size(), 2u);
    EXPECT_NE(gedruckt[0].find("\tKreis "), std::string::npos);
    EXPECT_NE(gedruckt[1].find("\tEin Kreis hat einen $<Radius$>."), std::string::npos);

    EXPECT_EQ(befehl({"page", "Kreis", "--pdf"}, aus, fehler), 2);
}

TEST_F(SeitenAusgabe, CopyingTheShownPageWritesTheExportFile)
{
    app::TForm1 f(true);
    f.resize(1008, 730);
    f.show();
    QApplication::processEvents();
    ASSERT_TRUE(f.stichwortWaehlen("Kreisumfang"));
    QAction* kopieren = f.menuePunkt("S28C");
    ASSERT_NE(kopieren, nullptr);
    fs::remove(lexicon::rtfDateiname());
    kopieren->trigger();
    EXPECT_EQ(f.letzteAktion(), "Trtfform");
    std::string daten;
    ASSERT_TRUE(platform::readFile(lexicon::rtfDateiname(), daten)) << lexicon::rtfDateiname();
    // "2$pr": the Symbol font's p is pi; the turning link back is gone.
    EXPECT_NE(daten.find("Der Umfang ist 2\\f1 p\\f0 r, siehe Radius.\\par "), std::string::npos) << daten;
    EXPECT_EQ(daten.find("zur"), std::string::npos);
}
