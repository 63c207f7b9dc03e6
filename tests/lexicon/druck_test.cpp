#include "lexicon/druck.h"

#include "druck_testseiten.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace lexicon;
using platform::Picture;

namespace {

platform::StringList block(const platform::StringList& rumpf)
{
    platform::StringList b = {"[0]", "Testseite", "\xA7Testseite"};
    b.insert(b.end(), rumpf.begin(), rumpf.end());
    b.push_back("[#]");
    return b;
}

// A 192-dpi "printer" on a picture: xfaktor = yfaktor = 2, no unprintable offsets.
struct Blatt {
    Picture bild{1600, 2300};
    platform::Canvas canvas{bild};
    DruckGeraet g;
    DruckEinstellungen e;

    Blatt()
    {
        g.dpiX = g.dpiY = 192;
        g.seitenbreite = 1600;
    }
    DruckErgebnis drucke(const platform::StringList& rumpf, const Picture& seitenbild = {})
    {
        SeitenDrucker d(canvas, e, g);
        return d.druckeSeite(block(rumpf), 0, seitenbild);
    }
    int breite(const std::string& s)
    {
        canvas.setFontName(e.druckschrift);
        canvas.setFontSize(e.druckgroesse * 2);
        canvas.setFontStyle(0);
        return canvas.textWidth(s);
    }
    int zaehle(int x1, int y1, int x2, int y2, platform::TColor farbe)
    {
        int n = 0;
        for (int y = std::max(0, y1); y < std::min(y2, bild.height()); ++y)
            for (int x = std::max(0, x1); x < std::min(x2, bild.width()); ++x)
                n += bild.pixel(x, y) == farbe ? 1 : 0;
        return n;
    }
};

}  // namespace

TEST(DruckVariablen, MarginsAndLineHeightFollowTheDevice)
{
    DruckEinstellungen e;  // 9 points; margins 25, 25, 25 tenths of a cm
    e.linksDruck = 20;
    e.rechtsDruck = 10;
    e.obenDruck = 30;
    DruckGeraet g;
    g.dpiX = 600;
    g.dpiY = 600;
    g.versatzX = 50;
    g.versatzY = 100;
    const DruckVariablen v = druckVariablen(g, e, 0, 0);
    EXPECT_EQ(v.xfaktor, 6);
    EXPECT_EQ(v.yfaktor, 6);
    EXPECT_EQ(v.druckzeile, 9 * 2 * 6);
    EXPECT_EQ(v.rand_links, 480 - 50);   // 2 cm = 0.8 inch of 600 dpi
    EXPECT_EQ(v.rand_rechts, 240 - 50);
    EXPECT_EQ(v.rand_oben, 720 - 100);
    EXPECT_EQ(v.bildeinzug, 0);
    EXPECT_EQ(v.bildhoehe, 0);

    // 720 dpi against 96: 7.5 is cut to 7; a margin inside the unprintable edge is 0.
    g.dpiX = g.dpiY = 720;
    g.versatzX = 600;
    e.druckgroesse = 12;
    const DruckVariablen w = druckVariablen(g, e, 100, 80);
    EXPECT_EQ(w.xfaktor, 7);
    EXPECT_EQ(w.druckzeile, 12 * 2 * 7);
    EXPECT_EQ(w.rand_links, 0);
    EXPECT_EQ(w.rand_oben, 864 - 100);  // Round(720 * 30 / 25)
    EXPECT_EQ(w.bildeinzug, 110 * 7);
    EXPECT_EQ(w.bildhoehe, 80 * 7);
}

TEST(DruckFilter, PlotAndCalculationLinksAreCut)
{
    EXPECT_EQ(druckzeileFiltern("$*\xBB" "F: X^2-1\xAB$>  $1Parabel zeichnen"), "$1Parabel zeichnen");
    EXPECT_EQ(druckzeileFiltern("Wert $*\xBB" "B: 2+3\xAB$> ist 5"), "Wert ist 5");
    EXPECT_EQ(druckzeileFiltern("$*\xBB" "B: a\xAB$>$*\xBB" "F: b\xAB$>"), " ");
    EXPECT_EQ(druckzeileFiltern(""), " ");
    EXPECT_EQ(druckzeileFiltern("ein $*\xBB" "Funktionenplotter$> hier"), "ein $*\xBB" "Funktionenplotter$> hier");
    EXPECT_EQ(druckzeileFiltern("$*\xBB" "G:bild\xAB$>"), "$*\xBB" "G:bild\xAB$>");  // whole lines go later
}

TEST(SeitenDrucker, LinesStandOneLineHeightApart)
{
    Blatt b;
    const auto erg = b.drucke({"erste Zeile", "#Kopf", "dritte", "", "&rot"});
    const DruckVariablen& v = erg.anfang;
    EXPECT_EQ(v.xfaktor, 2);
    EXPECT_EQ(v.druckzeile, 36);
    EXPECT_EQ(v.rand_links, 192);  // 2.5 cm = one inch
    ASSERT_EQ(erg.zeilen.size(), 5u);
    // The heading takes an extra line above it; the empty line takes one of its own.
    const int zeile[5] = {0, 2, 3, 4, 5};
    for (size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(erg.zeilen[i].x, 192) << i;
        EXPECT_EQ(erg.zeilen[i].y, 192 + zeile[i] * 36) << i << ": " << erg.zeilen[i].text;
    }
    EXPECT_EQ(erg.ende.zeilenzahl, 6);
    EXPECT_EQ(erg.schlusszeileY, 192 + 7 * 36);
    EXPECT_EQ(erg.titel, "Testseite");
    // The heading is blue on the sheet, the "&" line red, the title nowhere.
    EXPECT_GT(b.zaehle(192, 192 + 2 * 36, 500, 192 + 3 * 36, platform::rgb(0, 0, 255)), 20);
    EXPECT_GT(b.zaehle(192, 192 + 5 * 36, 500, 192 + 6 * 36, platform::rgb(255, 0, 0)), 20);
    EXPECT_EQ(b.zaehle(0, 0, 1600, 192, platform::clBlack), 0);
}

TEST(SeitenDrucker, ScreenOnlyLinesTakeNoRoom)
{
    Blatt b;
    const auto erg = b.drucke({"oben", "$*\xBBV: weiter\xAB$>", "$*\xBBKreisrechner$>", "]\xA7 Interaktiv", "12",
                               "*Quadratische Gleichung", "*a =", "*b =", "!80", "$*\xBB" "F: X^2\xAB$>$1Graph",
                               "]+jbild", "unten"});
    ASSERT_EQ(erg.zeilen.size(), 3u);
    EXPECT_EQ(erg.zeilen[0].text, "oben");
    EXPECT_EQ(erg.zeilen[1].text, "$1Graph");
    EXPECT_EQ(erg.zeilen[1].y, erg.zeilen[0].y + 36);
    EXPECT_EQ(erg.zeilen[2].text, "unten");
    EXPECT_EQ(erg.zeilen[2].y, erg.zeilen[0].y + 72);
}

TEST(SeitenDrucker, PictureIndentsUntilTheLinesHavePassedIt)
{
    Blatt b;
    Picture rot(100, 100, platform::rgb(255, 0, 0));
    platform::StringList rumpf;
    for (int i = 0; i < 8; ++i)
        rumpf.push_back("Zeile " + std::to_string(i));
    const auto erg = b.drucke(rumpf, rot);
    EXPECT_EQ(erg.anfang.bildeinzug, 220);
    EXPECT_EQ(erg.anfang.bildhoehe, 200);
    ASSERT_EQ(erg.zeilen.size(), 8u);
    // After line k, k+1 lines of 36 pixels stand; beyond 200 the text returns to the margin.
    for (size_t k = 0; k < 8; ++k)
        EXPECT_EQ(erg.zeilen[k].x, k < 6 ? 192 + 220 : 192) << k;
    // The picture is drawn stretched to twice its size at the margins' corner.
    EXPECT_EQ(b.bild.pixel(192 + 5, 192 + 5), platform::rgb(255, 0, 0));
    EXPECT_EQ(b.bild.pixel(192 + 195, 192 + 195), platform::rgb(255, 0, 0));
    EXPECT_NE(b.bild.pixel(192 + 205, 192 + 100), platform::rgb(255, 0, 0));
}

TEST(SeitenDrucker, LongLinesWrapInsideTheMargins)
{
    Blatt b;
    b.g.seitenbreite = 900;  // 900 - 192 - 192 = 516 pixels for the text
    const std::string satz =
        "Ein Polynom vom Grad n hat höchstens n reelle Nullstellen, und jede Nullstelle liefert einen "
        "Linearfaktor, den man mit der Polynomdivision abspalten kann.";
    const auto erg = b.drucke({platform::utf8ToCp1252(satz)});
    ASSERT_GE(erg.zeilen.size(), 3u);
    std::string wieder;
    for (size_t i = 0; i < erg.zeilen.size(); ++i) {
        EXPECT_LE(b.breite(erg.zeilen[i].text), 516) << erg.zeilen[i].text;
        EXPECT_EQ(erg.zeilen[i].y, 192 + static_cast<int>(i) * 36);
        wieder += (i ? " " : "") + erg.zeilen[i].text;
    }
    EXPECT_EQ(wieder, platform::utf8ToCp1252(satz));
    // Each line is as full as it can be: the next word would not have fitted.
    for (size_t i = 0; i + 1 < erg.zeilen.size(); ++i) {
        const std::string& n = erg.zeilen[i + 1].text;
        EXPECT_GT(b.breite(erg.zeilen[i].text + " " + n.substr(0, n.find(' '))), 516) << i;
    }
}

TEST(SeitenDrucker, TabsAreScaledPrinterSteps)
{
    Blatt b;
    const auto erg = b.drucke({"!0100", "!300", "$1x"});
    ASSERT_EQ(erg.zeilen.size(), 1u);
    // "x" is drawn at 300 * xfaktor from the margin: black pixels there, none before.
    const int y = erg.zeilen[0].y;
    EXPECT_EQ(b.zaehle(192, y, 192 + 600 - 2, y + 36, platform::clBlack), 0);
    EXPECT_GT(b.zaehle(192 + 600, y, 192 + 640, y + 36, platform::clBlack), 5);
}

TEST(SeitenDrucker, KnownPagePrintsItsTextWithoutLinks)
{
    const auto s = testseiten::seite(1100);
    Picture bild(1600, 2300);
    platform::Canvas c(bild);
    DruckGeraet g;
    g.dpiX = g.dpiY = 192;
    g.seitenbreite = 1600;
    SeitenDrucker d(c, DruckEinstellungen{}, g);
    const auto erg = d.druckeSeite(testseiten::block(s), 0, {});
    ASSERT_TRUE(erg.gefunden);
    EXPECT_EQ(erg.titel, "Komplexe Zahlen");
    bool gleichung = false;
    for (const auto& z : erg.zeilen) {
        EXPECT_EQ(z.text.find('\xBB'), std::string::npos) << z.text;
        gleichung |= z.text.find("Die Gleichung") != std::string::npos;
    }
    EXPECT_TRUE(gleichung);
    EXPECT_EQ(erg.ende.zeilenzahl, static_cast<int>(erg.zeilen.size()) + 3);  // three headings
}

TEST(SeitenDrucker, PdfOfAPageWithPicture)
{
    const auto s = testseiten::seite(1109);
    const std::string pfad = (std::filesystem::temp_directory_path() / "quorix_druck_test.pdf").string();
    std::filesystem::remove(pfad);
    const auto erg = seiteAlsPdf(pfad, testseiten::block(s), 0, Picture(120, 90, platform::rgb(0, 128, 0)),
                                 DruckEinstellungen{});
    EXPECT_TRUE(erg.gefunden);
    EXPECT_EQ(erg.anfang.xfaktor, 1200 / 96);
    EXPECT_GT(erg.anfang.bildeinzug, 0);
    std::ifstream in(pfad, std::ios::binary);
    std::string kopf(5, '\0');
    in.read(kopf.data(), 5);
    EXPECT_EQ(kopf, "%PDF-");
    EXPECT_GT(std::filesystem::file_size(pfad), 2000u);
    std::filesystem::remove(pfad);
}

TEST(SeitenbildQuelle, FindsThePicturesContainer)
{
    SeitenbildQuelle q;
    ASSERT_TRUE(seitenbildSuchen(testseiten::block(testseiten::seite(1109)), 0, q));
    EXPECT_EQ(q.container, "bjpg.dll");
    EXPECT_EQ(q.typ, "Jpeg");
    EXPECT_EQ(q.name, "polynom");
    EXPECT_FALSE(seitenbildSuchen(testseiten::block(testseiten::seite(1100)), 0, q));
}
