#include "lexicon/rtf.h"
#include "lexicon/rtfleser.h"

#include "druck_testseiten.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace lexicon;

namespace {

std::string zusammen(const platform::StringList& z)
{
    std::string s;
    for (const auto& l : z)
        s += l + "\r\n";
    return s;
}

// Brace depth by the RTF rules: "\{", "\}" and "\\" are characters, not group marks.
bool klammernAusgeglichen(const std::string& r)
{
    int tiefe = 0;
    for (size_t i = 0; i < r.size(); ++i) {
        if (r[i] == '\\') {
            ++i;
            continue;
        }
        if (r[i] == '{')
            ++tiefe;
        else if (r[i] == '}' && --tiefe < 0)
            return false;
    }
    return tiefe == 0;
}

bool enthaelt(const std::string& s, const std::string& teil)
{
    return s.find(teil) != std::string::npos;
}

const RtfAbsatz* absatzMit(const RtfDokument& d, const std::string& utf8)
{
    for (const auto& a : d.absaetze)
        if (enthaelt(a.text(), utf8))
            return &a;
    return nullptr;
}

}  // namespace

TEST(RtfExport, EveryLexiconPageGivesWellFormedSevenBitRtf)
{
    const auto seiten = testseiten::alle();
    ASSERT_GT(seiten.size(), 50u);
    const platform::StringList kopf = rtfKopf();
    for (const auto& s : seiten) {
        const platform::StringList r = rtfSeite(testseiten::block(s), s.nummer);
        ASSERT_GT(r.size(), kopf.size() + 2) << s.nummer;
        for (size_t i = 0; i < kopf.size(); ++i)
            EXPECT_EQ(r[i], kopf[i]) << s.nummer;
        EXPECT_EQ(r.back(), "}") << s.nummer;
        const std::string text = zusammen(r);
        EXPECT_TRUE(klammernAusgeglichen(text)) << "page " << s.nummer;
        for (unsigned char c : text)
            ASSERT_LT(c, 0x80) << "page " << s.nummer << " keeps an 8-bit byte";
        EXPECT_FALSE(enthaelt(text, "$")) << "page " << s.nummer << " keeps a markup token";
        // 0xBB is a link's mark, unless it stands in the Symbol font (there it is "approximately").
        for (size_t p = text.find("\\'bb"); p != std::string::npos; p = text.find("\\'bb", p + 1))
            EXPECT_TRUE(p >= 4 && text.compare(p - 4, 4, "\\f1 ") == 0) << "page " << s.nummer << " keeps a link";
        EXPECT_TRUE(rtfLesen(text).gueltig) << s.nummer;
    }
}

TEST(RtfExport, HeadNamesFontsAndColours)
{
    const std::string kopf = zusammen(rtfKopf());
    EXPECT_TRUE(enthaelt(kopf, "{\\rtf1\\ansi\\ansicpg1252"));
    EXPECT_TRUE(enthaelt(kopf, "{\\f0\\fnil\\fcharset0 Verdana;}"));
    EXPECT_TRUE(enthaelt(kopf, "{\\f1\\fnil\\fcharset2 Symbol;}"));
    EXPECT_TRUE(enthaelt(kopf, "{\\colortbl ;\\red0\\green0\\blue255;\\red255\\green0\\blue0;}"));
}

TEST(RtfExport, ComplexNumbersPageKeepsTextHeadingsAndFormulas)
{
    const auto s = testseiten::seite(1100);  // "Komplexe Zahlen"
    ASSERT_EQ(s.nummer, 1100);
    const std::string r = zusammen(rtfSeite(testseiten::block(s), 1100));
    // Umlauts as Windows-1252 escapes: u-umlaut 0xFC, o-umlaut 0xF6.
    EXPECT_TRUE(enthaelt(r, "Man f\\'fchrt die imagin\\'e4re Einheit i")) << r;
    EXPECT_TRUE(enthaelt(r, "keine reelle L\\'f6sung."));
    // Headings: a paragraph of their own, blue and bold; the first one too.
    EXPECT_TRUE(enthaelt(r, "\\par\\cf1\\b Komplexe Zahlen \\cf0\\b0 \\par "));
    EXPECT_TRUE(enthaelt(r, "\\par\\cf1\\b Zahlenebene und Polarform \\cf0\\b0 \\par "));
    // "r e$+i$j$-": superscript i and phi in the Symbol font, then back to the line.
    EXPECT_TRUE(enthaelt(r, "r e\\super i\\f1 j\\f0 \\nosupersub ."));
    // Tab lines are gone, tab tokens are tabs.
    EXPECT_FALSE(enthaelt(r, "!40"));
    EXPECT_TRUE(enthaelt(r, "\\tab (a + bi) + (c + di)"));
    // Cross references keep their text, tool links vanish with their lines.
    EXPECT_TRUE(enthaelt(r, "siehe Nullstellen einer Parabel."));
    EXPECT_FALSE(enthaelt(r, "Komplexer Rechner"));
    EXPECT_FALSE(enthaelt(r, "Produkt komplexer Zahlen"));
    // The title line isn't repeated as text, the closing line names the program.
    EXPECT_TRUE(enthaelt(r, "\\par Quorix\\par "));
}

TEST(RtfExport, PlotLinksAndInteractiveBlockAreDropped)
{
    const auto polynom = testseiten::seite(1109);
    ASSERT_EQ(polynom.titel, "Polynom");
    const std::string r = zusammen(rtfSeite(testseiten::block(polynom), 1109));
    EXPECT_FALSE(enthaelt(r, "X^3"));
    EXPECT_FALSE(enthaelt(r, "polynom\\par"));  // the picture line
    EXPECT_TRUE(enthaelt(r, "\\tab Graph zeichnen\\par "));

    // A page with a calculator panel: number and captions are for the screen only.
    for (const auto& s : testseiten::alle()) {
        bool interaktiv = false;
        std::string beschriftung;
        for (size_t i = 0; i < s.rumpf.size(); ++i)
            if (s.rumpf[i].rfind("]\xA7", 0) == 0 && i + 2 < s.rumpf.size()) {
                interaktiv = true;
                beschriftung = s.rumpf[i + 2].substr(1);
            }
        if (!interaktiv)
            continue;
        const std::string t = zusammen(rtfSeite(testseiten::block(s), s.nummer));
        EXPECT_FALSE(enthaelt(t, "Interaktiv")) << s.nummer;
        EXPECT_FALSE(enthaelt(t, "*" + rtfAchtBit(beschriftung))) << s.nummer;
    }
}

TEST(RtfExport, MissingMarkerGivesHeadAndClosingOnly)
{
    const auto s = testseiten::seite(1100);
    const platform::StringList r = rtfSeite(testseiten::block(s), 1142);
    EXPECT_EQ(r.size(), rtfKopf().size() + 2);
    EXPECT_TRUE(klammernAusgeglichen(zusammen(r)));
}

TEST(RtfTokens, SuperAndSubscriptLevels)
{
    // Level 5 and a further "$+": no output; two "$-" then give one end of the superscript.
    EXPECT_EQ(rtfTokens("a$+b$+c$-d$-e"), "a\\super bcd\\nosupersub e");
    EXPECT_EQ(rtfTokens("x$-1$+y"), "x\\sub 1\\nosupersub y");
    // From -10 the first "$+" says nothing, the second one ends the subscript.
    EXPECT_EQ(rtfTokens("$-$-a$+$+b"), "\\sub a\\nosupersub b");
}

TEST(RtfTokens, FormattingAndLinksLoseTheirTokens)
{
    EXPECT_EQ(rtfTokens("ein $(fettes$) Wort"), "ein fettes Wort");
    EXPECT_EQ(rtfTokens("siehe $<Kreis$> und $*Parabel$>"), "siehe Kreis und Parabel");
    EXPECT_EQ(rtfTokens("$1a$2b"), "\\tab a\\tab b");
    EXPECT_EQ(rtfTokens("$a $=b"), "\\f1 a\\f0  b");
    EXPECT_EQ(rtfTokens("$*\xBB" "G:bild\xAB$>Text"), "Text");
    EXPECT_EQ(rtfTokens("vor $*\xBBWerkzeug$> nach"), "vor  nach");
    EXPECT_EQ(rtfTokens("Ende$"), "Ende");
}

TEST(RtfExport, BracesAndBackslashesAreEscaped)
{
    const platform::StringList block = {"[7]", "Titel", "\xA7Titel", "Menge {1, 2} und a\\b", "&rot {x}", "[#]"};
    const platform::StringList r = rtfSeite(block, 307);
    const std::string t = zusammen(r);
    EXPECT_TRUE(enthaelt(t, "Menge \\{1, 2\\} und a\\\\b\\par "));
    EXPECT_TRUE(enthaelt(t, "\\cf2\\b rot \\{x\\} \\cf0\\b0 \\par "));
    EXPECT_TRUE(klammernAusgeglichen(t));
}

TEST(RtfLeser, ReadsTheExportWithItsFormats)
{
    const auto s = testseiten::seite(1100);
    const RtfDokument d = rtfLesen(zusammen(rtfSeite(testseiten::block(s), 1100)));
    ASSERT_TRUE(d.gueltig);
    const RtfAbsatz* satz = absatzMit(d, "Die Gleichung x² = -1 hat keine reelle Lösung.");
    ASSERT_NE(satz, nullptr);
    EXPECT_FALSE(satz->laeufe.front().fett);
    const RtfAbsatz* kopf = absatzMit(d, "Zahlenebene und Polarform");
    ASSERT_NE(kopf, nullptr);
    EXPECT_TRUE(kopf->laeufe.front().fett);
    EXPECT_EQ(kopf->laeufe.front().farbe, platform::rgb(0, 0, 255));
    // The superscript "i" and the Symbol font's "j", the phi symbol U+03D5, of "r e^(i phi)".
    const RtfAbsatz* polar = absatzMit(d, "r e");
    ASSERT_NE(polar, nullptr);
    bool hochI = false, phi = false;
    for (const auto& l : polar->laeufe) {
        hochI |= l.hoehe == RtfHoehe::hoch && l.text == "i";
        phi |= l.symbol && l.text == "\xCF\x95";
    }
    EXPECT_TRUE(hochI);
    EXPECT_TRUE(phi);
}

TEST(RtfLeser, RedLinesAndUnknownGroups)
{
    const RtfDokument d = rtfLesen(
        "{\\rtf1{\\colortbl ;\\red0\\green0\\blue255;\\red255\\green0\\blue0;}{\\*\\generator X;}"
        "\\cf2\\b Achtung\\cf0\\b0  gut\\par zweite \\i schr\\'e4g\\i0\\par}");
    ASSERT_TRUE(d.gueltig);
    ASSERT_EQ(d.absaetze.size(), 3u);
    ASSERT_EQ(d.absaetze[0].laeufe.size(), 2u);
    EXPECT_EQ(d.absaetze[0].laeufe[0].text, "Achtung");
    EXPECT_EQ(d.absaetze[0].laeufe[0].farbe, platform::rgb(255, 0, 0));
    EXPECT_EQ(d.absaetze[0].laeufe[1].text, " gut");
    EXPECT_EQ(d.absaetze[1].text(), "zweite schräg");
    EXPECT_TRUE(d.absaetze[1].laeufe.back().kursiv);
    EXPECT_FALSE(rtfLesen("{\\rtf1 offen").gueltig);
    EXPECT_FALSE(rtfLesen("{\\rtf1 }}{").gueltig);
}

TEST(RtfLeser, WritingAndReadingBackKeepsEveryRun)
{
    for (int nummer : {1100, 1101, 1109}) {
        const auto s = testseiten::seite(nummer);
        const RtfDokument a = rtfLesen(zusammen(rtfSeite(testseiten::block(s), nummer)));
        const std::string geschrieben = rtfSchreiben(a);
        EXPECT_TRUE(klammernAusgeglichen(geschrieben));
        const RtfDokument b = rtfLesen(geschrieben);
        ASSERT_EQ(a.absaetze.size(), b.absaetze.size()) << nummer;
        for (size_t i = 0; i < a.absaetze.size(); ++i) {
            ASSERT_EQ(a.absaetze[i].laeufe.size(), b.absaetze[i].laeufe.size()) << nummer << " paragraph " << i;
            for (size_t k = 0; k < a.absaetze[i].laeufe.size(); ++k) {
                EXPECT_EQ(a.absaetze[i].laeufe[k].text, b.absaetze[i].laeufe[k].text);
                EXPECT_TRUE(a.absaetze[i].laeufe[k].gleichesFormat(b.absaetze[i].laeufe[k]));
            }
        }
    }
}

TEST(RtfExport, FileIsWrittenWithCrLf)
{
    const std::string pfad = (std::filesystem::temp_directory_path() / "quorix_rtf_test.000").string();
    rtfDateiSchreiben(pfad, {"{\\rtf1", "a\\par ", "}"});
    std::string daten;
    ASSERT_TRUE(platform::readFile(pfad, daten));
    EXPECT_EQ(daten, "{\\rtf1\r\na\\par \r\n}\r\n");
    std::filesystem::remove(pfad);
}
