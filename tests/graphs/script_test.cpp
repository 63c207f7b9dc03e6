// The GraphScript helpers and the commands of zeichnen, checked on what was recorded and on
// the pixels of the picture.
#include "app.h"
#include "graphs/graphscript.h"
#include "graphs/plotauftrag.h"
#include "graphs/zeichnen.h"
#include "lexicon/linkroute.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace graphs;

namespace {

struct Bild {
    PlotZustand z;
    Skriptliste skript, zahlen;
    platform::Picture bild{601, 501};
    Graphzeichner g{z, skript, zahlen, termAuswerter()};

    explicit Bild(std::vector<std::string> zeilen)
    {
        testApp();
        z.opt.raster = false;
        for (auto& s : zeilen)
            skript.addText(s);
        g.darstellung(bild);
    }
    const Abbildung& a() const { return g.abbildung(); }
    std::vector<const Gezeichnet*> von(char b) const
    {
        std::vector<const Gezeichnet*> r;
        for (const auto& k : g.protokoll())
            if (k.befehl == b)
                r.push_back(&k);
        return r;
    }
    bool farbeBei(int x, int y, platform::TColor c, int umkreis = 1) const
    {
        for (int dy = -umkreis; dy <= umkreis; ++dy)
            for (int dx = -umkreis; dx <= umkreis; ++dx)
                if (bild.pixel(x + dx, y + dy) == c)
                    return true;
        return false;
    }
};

}  // namespace

TEST(Script, HelpersWriteAndReadLines)
{
    Skriptliste& s = graphScript();
    s.leeren();
    ScriptAddFunction("X^2");
    ScriptAddReal(std::acos(-1.0));
    ScriptAddReal(0.5);
    ScriptAddInt(-7);
    ScriptAddText("...");
    ASSERT_EQ(s.zeilen.size(), 6u);
    EXPECT_EQ(s.zeilen[0], "#F");
    EXPECT_EQ(s.zeilen[1], "X^2");
    EXPECT_EQ(s.zeilen[2], "3.1415926536");  // ten decimals with a point
    EXPECT_EQ(s.zeilen[3], "0.5");
    EXPECT_EQ(s.zeilen[4], "-7");
    EXPECT_EQ(s.cursor, 6u);
    EXPECT_TRUE(ScriptAtEnd());
    s.anAnfang();
    EXPECT_FALSE(ScriptAtEnd());
    EXPECT_EQ(ScriptReadText(), "#F");
    EXPECT_EQ(ScriptReadText(), "X^2");
    EXPECT_NEAR(ScriptReadReal(), 3.1415926536, 1e-12);
    EXPECT_EQ(ScriptReadInt(), 0);  // "0.5" as an integer
    EXPECT_EQ(ScriptReadInt(), -7);
    EXPECT_TRUE(ScriptAtEnd());  // the cursor stands on the last line
    EXPECT_EQ(ScriptReadText(), "...");
    EXPECT_EQ(ScriptReadText(), "");
    EXPECT_EQ(ScriptReadReal(), 0);
    s.leeren();
}

TEST(Script, FunctionsGetColoursLabelsAndNumbers)
{
    Bild b({"#F", "X^2", "#F", "X+1", "#F", "SIN(X)"});
    b.z.opt.nummern = true;
    b.g.darstellung(b.bild);
    const auto f = b.von('F');
    ASSERT_EQ(f.size(), 3u);
    EXPECT_EQ(f[0]->label, "Y = X^2");
    EXPECT_EQ(f[1]->farbe, kurvenfarbe(2, true));
    EXPECT_EQ(f[2]->farbe, kurvenfarbe(3, true));
    EXPECT_EQ(b.g.curveCounter(), 3);
    ASSERT_GE(b.g.beschriftungen().size(), 3u);
    EXPECT_EQ(b.g.beschriftungen()[1].text, "[2] Y = X+1");
    // the parabola's pixel at x = 1 is black
    EXPECT_TRUE(b.farbeBei(b.a().pixelX(1), b.a().pixelY(1), platform::clBlack));
    // the line's pixel at x = 2 carries the second colour
    EXPECT_TRUE(b.farbeBei(b.a().pixelX(2), b.a().pixelY(3), kurvenfarbe(2, true)));
}

TEST(Script, UnknownCommandsAndStrayLinesAreIgnored)
{
    Bild b({" ", "#Z", "irgendwas", "#F", "X", "Kommentar"});
    EXPECT_EQ(b.g.protokoll().size(), 1u);
    EXPECT_EQ(b.g.protokoll()[0].label, "Y = X");
}

TEST(Script, FamilyRunsThroughP)
{
    Bild b({"#S", "P*X", "-1", "1", "0.5"});
    const auto s = b.von('S');
    ASSERT_EQ(s.size(), 5u);
    // member k has slope -1 + 0.5k: its row at x = 2
    for (size_t k = 0; k < s.size(); ++k) {
        const double p = -1 + 0.5 * k;
        bool gefunden = false;
        for (const auto& zug : s[k]->spur.polylinien())
            for (const Punkt& pt : zug)
                if (pt.x == b.a().pixelX(2)) {
                    EXPECT_NEAR(pt.y, b.a().pixelY(2 * p), 1) << "p=" << p;
                    gefunden = true;
                }
        EXPECT_TRUE(gefunden);
    }
    // a step that is not positive becomes 0.5
    Bild c({"#S", "P", "0", "1", "0"});
    EXPECT_EQ(c.von('S').size(), 3u);
}

TEST(Script, DerivedCurvesOfCommandA)
{
    Bild b({"#A", "1", "X^2", "#A", "4", "X^2", "#A", "7", "2*X", "#A", "8", "X^3", "#A", "9", "X^3"});
    const auto a = b.von('A');
    ASSERT_EQ(a.size(), 5u);
    EXPECT_EQ(a[0]->label, "1.Ableitung");
    EXPECT_EQ(a[1]->label, "-f(x)");
    EXPECT_EQ(a[2]->label, "Stammfunktion zu F1");
    EXPECT_EQ(a[3]->label, "Umkehrkurve zu F1");
    EXPECT_EQ(a[4]->label, "3.Ableitung");
    const Abbildung& m = b.a();
    auto zeileBei = [&](const Gezeichnet* k, double x) {
        for (const auto& zug : k->spur.polylinien())
            for (const Punkt& p : zug)
                if (p.x == m.pixelX(x))
                    return p.y;
        return -99999;
    };
    // x of the column nearest to a value
    auto sp = [&](double x) { return m.xVonPixel(m.pixelX(x)); };
    EXPECT_NEAR(zeileBei(a[0], 1), m.pixelY(2 * sp(1)), 1);       // (x^2)' = 2x
    EXPECT_NEAR(zeileBei(a[1], 1), m.pixelY(-sp(1) * sp(1)), 1);  // -f(x)
    EXPECT_NEAR(zeileBei(a[2], 2), m.pixelY(sp(2) * sp(2)), 1);   // antiderivative of 2x from 0 is x^2
    EXPECT_NEAR(zeileBei(a[2], -1), m.pixelY(sp(-1) * sp(-1)), 1);
    EXPECT_NEAR(zeileBei(a[4], 1), m.pixelY(6), 2);    // (x^3)''' = 6
    // the inverse of x^3 passes (8^(1/3) = 2, 8) mirrored: (1, 1) and (-1, -1), (1.5, 1.5^(1/3))
    // the sample nearest to x = 3.375 on the inverse lies at y = 1.5
    Punkt naechster{-1000, -1000};
    for (const auto& zug : a[3]->spur.polylinien())
        for (const Punkt& p : zug)
            if (std::abs(p.x - m.pixelX(3.375)) < std::abs(naechster.x - m.pixelX(3.375)))
                naechster = p;
    EXPECT_LE(std::abs(naechster.x - m.pixelX(3.375)), 2);
    EXPECT_NEAR(naechster.y, m.pixelY(1.5), 2);
}

TEST(Script, LinesBandsAndMarks)
{
    termAuswerter().setzeFunktion(1, "X^2");
    Bild b({"#H", "1", "2", "#h", "-1", "-2", "#G", "3", "#j", "-2", "#@", "rot", "1", "-2", "...", "#\xFC", "2", "1",
            "blau", "#r", "1", "0", "#v", "-2", "1"});
    const Abbildung& m = b.a();
    // yellow band between x = 1 and 2, under everything
    EXPECT_TRUE(b.farbeBei(m.pixelX(1.5), 20, platform::rgb(255, 255, 170), 0));
    EXPECT_FALSE(b.farbeBei(m.pixelX(2.5), 20, platform::rgb(255, 255, 170), 0));
    EXPECT_TRUE(b.farbeBei(m.pixelX(-4), m.pixelY(-1.5), platform::rgb(190, 240, 190), 0));
    ASSERT_EQ(b.von('G').size(), 1u);
    EXPECT_EQ(b.von('G')[0]->spur.schritte[0].x, m.pixelX(3));
    EXPECT_EQ(b.von('G')[0]->spur.schritte[1].x, m.pixelX(3));
    EXPECT_EQ(b.von('j')[0]->spur.schritte[0].y, m.pixelY(-2));
    // marks at (x, F1(x)) filled in red
    const auto at = b.von('@');
    ASSERT_EQ(at.size(), 2u);
    EXPECT_EQ(at[1]->spur.schritte[0].y, m.pixelY(4));
    EXPECT_TRUE(b.farbeBei(m.pixelX(-2), m.pixelY(4), platform::clRed, 0));
    EXPECT_TRUE(b.farbeBei(m.pixelX(2), m.pixelY(1), platform::clBlue, 0));
    // the line y = x drawn three pixels wide; the arrow ends at (2, 1)
    EXPECT_TRUE(b.farbeBei(m.pixelX(-3), m.pixelY(-3), platform::clBlue, 0));
    EXPECT_EQ(b.von('r')[0]->breite, 3);
    EXPECT_EQ(b.von('v')[0]->spur.schritte[1].x, m.pixelX(-2));
    EXPECT_EQ(b.von('v')[0]->spur.schritte[1].y, m.pixelY(1));
    termAuswerter().setzeFunktion(1, "");
}

TEST(Script, ParametricAndPolarCurves)
{
    Bild b({"#K", "COS(X)|SIN(X)", "0", "6.2832", "0.01", "0", "0", "#P", "2", "-3.1415926536", "3.1415926536", "0.01",
            "0", "0"});
    const Abbildung& m = b.a();
    const auto k = b.von('K');
    ASSERT_EQ(k.size(), 1u);
    EXPECT_EQ(k[0]->label, "X = COS(X)   Y = SIN(X)");
    for (const auto& zug : k[0]->spur.polylinien())
        for (const Punkt& p : zug)
            EXPECT_NEAR(std::hypot((p.x - m.originX) / m.xScale, (p.y - m.originY) / m.yScale), 1, 0.02);
    const auto pk = b.von('P');
    ASSERT_EQ(pk.size(), 1u);
    EXPECT_EQ(pk[0]->label, "F(P,W) = 2");
    for (const auto& zug : pk[0]->spur.polylinien())
        for (const Punkt& p : zug)
            EXPECT_NEAR(std::hypot((p.x - m.originX) / m.xScale, (p.y - m.originY) / m.yScale), 2, 0.02);
}

TEST(Script, AreasSumsAndSequences)
{
    Bild b({"#\xDF", "X^2", "0", "3", "#\xE1", "X", "0", "2", "4", "#C", "1/X", "1", "5", "0", "0.3", "#R", "3", "1", "2",
            "3"});
    const Abbildung& m = b.a();
    // the value of the area is written: 9 within the strip rule of one pixel
    bool flaecheText = false, untersumme = false;
    for (const Beschriftung& t : b.g.beschriftungen()) {
        if (t.text.rfind("A = ", 0) == 0) {
            flaecheText = true;
            EXPECT_NEAR(std::stod(t.text.substr(4)), 9, 0.1) << t.text;
        }
        if (t.text.rfind("Untersumme = ", 0) == 0) {
            untersumme = true;
            EXPECT_NEAR(std::stod(t.text.substr(13)), 1.5, 1e-9) << t.text;  // 0.5*(0+0.5+1+1.5)
        }
    }
    EXPECT_TRUE(flaecheText);
    EXPECT_TRUE(untersumme);
    EXPECT_TRUE(b.farbeBei(m.pixelX(2.5), m.pixelY(1), platform::rgb(255, 220, 150), 0));
    const auto c = b.von('C');
    ASSERT_EQ(c.size(), 1u);
    EXPECT_EQ(c[0]->label, "Folge 1/X");
    // five members, unjoined: each a move
    EXPECT_EQ(c[0]->spur.schritte.size(), 5u);
    EXPECT_TRUE(c[0]->spur.polylinien().empty());
    EXPECT_EQ(c[0]->spur.schritte[3].y, m.pixelY(0.25));
    const auto r = b.von('R');
    ASSERT_EQ(r.size(), 1u);
    EXPECT_EQ(r[0]->spur.schritte[4].y, m.pixelY(3));
}

TEST(Script, DifferentialEquationFromGraphNumbers)
{
    testApp();
    PlotZustand z;
    Skriptliste skript, zahlen;
    skript.addText("#d");
    skript.addText("y' = y");
    for (int i = 0; i <= 10; ++i) {
        zahlen.addReal(i * 0.1);
        zahlen.addReal(std::exp(i * 0.1));
    }
    zahlen.addText("...");
    Graphzeichner g(z, skript, zahlen, termAuswerter());
    platform::Picture bild(601, 501);
    g.darstellung(bild);
    ASSERT_EQ(g.protokoll().size(), 1u);
    EXPECT_EQ(g.protokoll()[0].label, "Differenzialgleichung y' = y");
    const auto zuege = g.protokoll()[0].spur.polylinien();
    ASSERT_EQ(zuege.size(), 1u);
    EXPECT_EQ(zuege[0].size(), 11u);
    EXPECT_EQ(zuege[0].back().y, g.abbildung().pixelY(std::exp(1.0)));
}

TEST(Script, ParametersAreNamedUnderThePlot)
{
    termAuswerter().setzeParameter(1.5, 2);
    Bild b({"#F", "P*X^2", "#F", "SQRT(X)+PI"});
    int p = 0, q = 0;
    for (const Beschriftung& t : b.g.beschriftungen()) {
        p += t.text == "Parameter p = 1.5";
        q += t.text.rfind("Parameter q", 0) == 0;
    }
    EXPECT_EQ(p, 1);
    EXPECT_EQ(q, 0);  // neither term uses Q; SQRT and PI are no parameters
    termAuswerter().setzeParameter(1, 1);
}

TEST(PageLink, FunctionTermsReachTheScript)
{
    const lexicon::PlotAuftrag auftrag = lexicon::plotAuftragAusWert("X^2;SIN(X)");
    Skriptliste s;
    PlotZustand z;
    bool gleich = true;
    ASSERT_TRUE(plotAuftragUebernehmen(auftrag, s, z, gleich));
    EXPECT_FALSE(gleich);
    const std::vector<std::string> erwartet = {" ", "#F", "X^2", "#F", "SIN(X)"};
    EXPECT_EQ(s.zeilen, erwartet);
    Bild b(s.zeilen);
    ASSERT_EQ(b.von('F').size(), 2u);
    EXPECT_EQ(b.von('F')[1]->label, "Y = SIN(X)");
}

TEST(PageLink, CurvesFillTheFieldsAndAskForEqualUnits)
{
    Skriptliste s;
    PlotZustand z;
    bool gleich = false;
    ASSERT_TRUE(plotAuftragUebernehmen(lexicon::plotAuftragAusWert("~kCOS(3*X)|SIN(2*X)"), s, z, gleich));
    EXPECT_TRUE(gleich);
    EXPECT_EQ(z.feldX, "COS(3*X)");
    EXPECT_EQ(z.feldY, "SIN(2*X)");
    ASSERT_GE(s.zeilen.size(), 3u);
    EXPECT_EQ(s.zeilen[1], "#K");
    {
        testApp();
        Skriptliste zahlen;
        Graphzeichner g(z, s, zahlen, termAuswerter());
        platform::Picture bild(601, 501);
        g.darstellung(bild);
        ASSERT_EQ(g.protokoll().size(), 1u);
        EXPECT_EQ(g.protokoll()[0].label, "X = COS(3*X)   Y = SIN(2*X)");
        EXPECT_EQ(g.protokoll()[0].spur.polylinien().size(), 1u);
    }
    // "~~" draws the polar term and its other branch
    PlotZustand z2;
    ASSERT_TRUE(plotAuftragUebernehmen(lexicon::plotAuftragAusWert("~~;2SQRT(COS(2*X))"), s, z2, gleich));
    EXPECT_EQ(z2.feldX, "SQRT(COS(2*X))");
    Skriptliste zahlen;
    Graphzeichner g(z2, s, zahlen, termAuswerter());
    platform::Picture bild(601, 501);
    g.darstellung(bild);
    ASSERT_EQ(g.protokoll().size(), 2u);
    EXPECT_EQ(g.protokoll()[0].befehl, 'P');
    EXPECT_EQ(g.protokoll()[1].befehl, 'W');
    // the other branch is the mirror through the origin: x of its first point negated
    const auto& p = g.protokoll()[0].spur.schritte.front();
    const auto& w = g.protokoll()[1].spur.schritte.front();
    EXPECT_NEAR(p.x - g.abbildung().originX, -(w.x - g.abbildung().originX), 1);
    // a surface is not the plotter's
    EXPECT_FALSE(plotAuftragUebernehmen(lexicon::plotAuftragAusWert("Dsattel"), s, z2, gleich));
}

TEST(Script, CurveVariantsAndMarksOnTheLastCurve)
{
    Bild b({"#\xE4", "X/2", "#M", "rot", "2", "4", "...", "#N", "blau", "-2", "...", "#s", "(X^2-1)/(X-1)", "1", "...",
            "#w", "gelb", "1", "-3", "...", "#m", "PI", "-1", "1/2", "-4", "...", "#e", "blau", "-5", "-4", "-3", "-4",
            "-4", "-2", "..."});
    const Abbildung& m = b.a();
    ASSERT_EQ(b.von('\xE4').size(), 1u);
    EXPECT_EQ(b.von('\xE4')[0]->breite, 3);
    // M and N mark the curve drawn last, here X/2
    ASSERT_EQ(b.von('M').size(), 2u);
    EXPECT_EQ(b.von('M')[1]->spur.schritte[0].y, m.pixelY(2));
    ASSERT_EQ(b.von('N').size(), 1u);
    EXPECT_EQ(b.von('N')[0]->spur.schritte[0].y, m.pixelY(-1));
    // s: the curve and a hollow mark at its gap (1, 2)
    const auto s = b.von('s');
    ASSERT_EQ(s.size(), 2u);
    EXPECT_EQ(s[0]->label, "Y = (X^2-1)/(X-1)");
    EXPECT_EQ(s[1]->spur.schritte[0].x, m.pixelX(1));
    EXPECT_EQ(s[1]->spur.schritte[0].y, m.pixelY(2));
    EXPECT_EQ(b.bild.pixel(m.pixelX(1), m.pixelY(2)), platform::clWhite);  // hollow
    EXPECT_EQ(b.von('w')[0]->spur.schritte[0].y, m.pixelY(-3));
    const auto mk = b.von('m');
    ASSERT_EQ(mk.size(), 2u);
    EXPECT_EQ(mk[0]->spur.schritte[0].x, m.pixelX(M_PI));
    EXPECT_EQ(mk[1]->spur.schritte[0].x, m.pixelX(0.5));
    // e: closed triangle, back at its first point
    const auto e = b.von('e');
    ASSERT_EQ(e.size(), 1u);
    ASSERT_EQ(e[0]->spur.schritte.size(), 4u);
    EXPECT_EQ(e[0]->spur.schritte[3].x, e[0]->spur.schritte[0].x);
    EXPECT_EQ(e[0]->spur.schritte[3].y, e[0]->spur.schritte[0].y);
}

TEST(Script, AreasBetweenCurvesStripsAndTables)
{
    Bild b({"#V", "X", "X^2", "0", "1", "#k", "X", "-3", "-2", "#I", "X", "2", "4", "4", "2", "#\xED", "X", "-1", "0",
            "2", "#x", "Nullstellen von f", "2", "0.5", "-1", "1", "...", "#U", "1", "-1"});
    const Abbildung& m = b.a();
    // V shades the columns between the two curves from 0 to 1 only
    const auto v = b.von('V');
    ASSERT_EQ(v.size(), 3u);
    ASSERT_FALSE(v[0]->spur.schritte.empty());
    EXPECT_GE(v[0]->spur.schritte.front().x, m.pixelX(0) - 1);
    EXPECT_LE(v[0]->spur.schritte.back().x, m.pixelX(1) + 1);
    EXPECT_TRUE(b.farbeBei(m.pixelX(0.5), m.pixelY(0.4), platform::rgb(180, 210, 255), 0));
    // k fills between curve and axis
    EXPECT_TRUE(b.farbeBei(m.pixelX(-2.5), m.pixelY(-1.5), platform::rgb(180, 210, 255), 0));
    // I with midpoints: sum 2.5+3.5 = 6 for two strips of width 1
    bool streifen = false, ober = false, tabelle = false;
    for (const Beschriftung& t : b.g.beschriftungen()) {
        if (t.text == "Streifensumme = 6")
            streifen = true;
        if (t.text == "Obersumme = -0.25")  // strips -1..-0.5, -0.5..0 of X: 0.5*(-0.5 + 0)
            ober = true;
        if (t.text == "Y-Faktor 0.5")
            tabelle = true;
    }
    EXPECT_TRUE(streifen);
    EXPECT_TRUE(ober);
    EXPECT_TRUE(tabelle);
    // the zeros of the table are marked on the x axis
    const auto x = b.von('x');
    ASSERT_EQ(x.size(), 2u);
    EXPECT_EQ(x[1]->spur.schritte[0].x, m.pixelX(1));
    // U over the whole width
    const auto u = b.von('U');
    ASSERT_EQ(u.size(), 3u);
    EXPECT_LE(u[0]->spur.schritte.front().x, 0);
    EXPECT_GE(u[0]->spur.schritte.back().x, m.plotWidth);
}

TEST(Script, CurveGroupsHelperLinesAndJoinedSequences)
{
    testApp();
    PlotZustand z;
    z.hilfslinien = {{-1, -1, 1, 1}, {0, 2, 3, 2}};
    Skriptliste skript, zahlen;
    for (const char* l : {"#u", "COS(X)", "SIN(X)", "#K", "", "0", "3.1416", "0.01", "0", "0", "#n", "X|X", "0", "1", "0.1",
                          "0", "0", "#i", "X|-X", "0", "1", "0.1", "0", "0", "#p", "1", "0", "1", "0.1", "0", "0", "#y",
                          "#c", "X", "1", "3", "", "0"})
        skript.addText(l);
    Graphzeichner g(z, skript, zahlen, termAuswerter());
    platform::Picture bild(601, 501);
    g.darstellung(bild);
    const Abbildung& m = g.abbildung();
    auto von = [&](char b) {
        std::vector<const Gezeichnet*> r;
        for (const auto& k : g.protokoll())
            if (k.befehl == b)
                r.push_back(&k);
        return r;
    };
    // u put its terms into the fields; the blank K line takes them
    ASSERT_EQ(von('K').size(), 1u);
    EXPECT_EQ(von('K')[0]->label, "X = COS(X)   Y = SIN(X)");
    EXPECT_EQ(termAuswerter().funktion(5), "COS(X)");
    // n steps ten times finer: 101 samples of 0..1 instead of 11
    ASSERT_EQ(von('n').size(), 1u);
    EXPECT_EQ(von('n')[0]->spur.auswertungen, 2 * 101);
    // i and p draw single points
    EXPECT_TRUE(von('i')[0]->spur.polylinien().empty());
    EXPECT_EQ(von('i')[0]->spur.einzelpunkte().size(), 11u);
    EXPECT_TRUE(von('p')[0]->spur.polylinien().empty());
    // y draws both helper lines
    const auto y = von('y');
    ASSERT_EQ(y.size(), 2u);
    EXPECT_EQ(y[1]->spur.schritte[1].x, m.pixelX(3));
    EXPECT_EQ(y[1]->spur.schritte[1].y, m.pixelY(2));
    // c joins the members of the sequence
    const auto c = von('c');
    ASSERT_EQ(c.size(), 1u);
    EXPECT_EQ(c[0]->spur.polylinien().size(), 1u);
    EXPECT_EQ(c[0]->spur.polylinien()[0].size(), 3u);
    termAuswerter().setzeFunktion(5, "");
}
