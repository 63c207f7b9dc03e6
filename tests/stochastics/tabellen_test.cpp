// Value tables of the distribution pages and the page table of the window, without a window.
#include "stochastics/ugamdist.h"
#include "stochastics/useiten.h"
#include "stochastics/utabellen.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

using namespace zufall;

namespace {
std::string alle(const Zeilen& z)
{
    std::string s;
    for (const auto& l : z) s += l + "\n";
    return s;
}
bool hat(const Zeilen& z, const std::string& zeile) { return std::find(z.begin(), z.end(), zeile) != z.end(); }
}  // namespace

TEST(Tabellen, DiscreteRowsAndExponentWindow)
{
    // B(4, 0.5): 1/16, 4/16, 6/16, 4/16, 1/16 with their running sums
    const Zeilen z = diskreteTabelle({Diskret::Binomial, {4, 0.5}});
    EXPECT_EQ(z[0], "Wahrscheinlichkeiten, dass Ereignis k-mal eintritt ...");
    EXPECT_TRUE(hat(z, "k\tP(X=k)\tP(X<=k)"));
    EXPECT_TRUE(hat(z, "0\t0.0625\t0.0625")) << alle(z);
    EXPECT_TRUE(hat(z, "2\t0.375\t0.6875")) << alle(z);
    EXPECT_TRUE(hat(z, "4\t0.0625\t1")) << alle(z);
    // B(20, 0.3): P(15) = 3.7e-5 lies under exp(-10) and shows "0"; P(14) = 2.2e-4 does not
    const Zeilen w = diskreteTabelle({Diskret::Binomial, {20, 0.3}});
    EXPECT_TRUE(hat(w, "15\t0\t0.999994")) << alle(w);
    EXPECT_TRUE(hat(w, "14\t0.000218\t0.999957")) << alle(w);
    // the sentences by kind; the negative binomial table starts at k = r
    EXPECT_EQ(diskreteTabelle({Diskret::Hypergeometrisch, {10, 4, 3}})[0],
              "Wahrscheinlichkeiten, dass in der Stichprobe k weiße Kugeln sind ...");
    const Zeilen nb = diskreteTabelle({Diskret::NegativBinomial, {2, 0.5}});
    EXPECT_EQ(nb[0], "Wahrscheinlichkeiten, dass Ereignis beim k.Versuch eintritt ...");
    EXPECT_EQ(nb[4], "2\t0.25\t0.25");
    // wrong parameters: status -1 and no table
    const Zeilen f = diskreteTabelle({Diskret::Binomial, {10, 1.5}});
    EXPECT_EQ(f, Zeilen{"Ungültige Parameter"});
    EXPECT_EQ(verteilungsstatus, stParameter);
}

TEST(Tabellen, ContinuousRowsAndQuantiles)
{
    Diagramm d;
    const Zeilen z = stetigeTabelle({Stetig::Gauss}, -2, 2, 4, &d);
    EXPECT_EQ(z[1], "Argument x\tDichtefunktion f(x)\tVerteilungsfunktion F(x)");
    EXPECT_EQ(z[4], "0\t0.398942\t0.5");
    EXPECT_TRUE(hat(z, "Irrtumswahrscheinlichkeit\tQuantile"));
    EXPECT_TRUE(hat(z, "0.05\t1.644854")) << alle(z);
    EXPECT_TRUE(hat(z, "0.001\t3.090232")) << alle(z);
    ASSERT_EQ(d.kurven.size(), 1u);
    // beta with a < 1 is infinite at 0: the row says so and the curve leaves the point out
    Diagramm b;
    const Zeilen zb = stetigeTabelle({Stetig::Beta, 0.5, 2}, 0, 1, 2, &b);
    EXPECT_EQ(zb[2], "0\tunendlich\t0");
    EXPECT_GT(b.kurven[0].front().first, 0);
    // the density terms, drawn by the interpreter, agree with the densities
    for (Stetig art : {Stetig::StudentT, Stetig::ChiQuadrat, Stetig::Gauss, Stetig::Exponential, Stetig::Maxwell,
                       Stetig::Weibull}) {
        const StetigeVerteilung v{art, 3, 1.5};
        const auto k = termKurve(dichteTerm(v), 0.5, 3, 5);
        ASSERT_EQ(k.size(), 1u) << dichteTerm(v);
        for (const auto& p : k[0]) EXPECT_NEAR(p.second, dichte(v, p.first), 1e-6) << dichteTerm(v) << " at " << p.first;
    }
}

TEST(Tabellen, NormalPage)
{
    // mean 100, variance 225: one standard deviation either side holds 68.27 %
    Diagramm d;
    const Zeilen z = normalTabelle(false, 100, 225, 115, 85, &d);
    EXPECT_TRUE(hat(z, "P(85 <= X <= 115) = F(b) - F(a)\t0.682689")) << alle(z);
    EXPECT_TRUE(hat(z, "x\tDichtefunktion f(x)"));
    EXPECT_TRUE(hat(z, "x\tVerteilungsfunktion F(x)"));
    EXPECT_EQ(d.titel.rfind("f(x) = ", 0), 0u);
    EXPECT_NE(d.titel.find("*EXP(-SQR(X-100)/450)"), std::string::npos) << d.titel;
    // log-normal with mu 0, variance 1: mean e^0.5, median 1
    const Zeilen l = normalTabelle(true, 0, 1, 0, 1);
    EXPECT_TRUE(hat(l, "Erwartungswert\t1.648721")) << alle(l);
    EXPECT_TRUE(hat(l, "P(0 <= X <= 1) = F(b) - F(a)\t0.5")) << alle(l);
    EXPECT_EQ(normalTabelle(false, 0, 0, 0, 1), Zeilen{"Die Varianz muss positiv sein"});
}

TEST(Seiten, ListOrderAndKindLabels)
{
    const auto& s = seiten();
    ASSERT_EQ(s.size(), 22u);
    EXPECT_EQ(s[0].titel, "Statistische Auswertung");
    EXPECT_EQ(s[12].titel, "Normalverteilung");
    EXPECT_EQ(s[16].titel, "Statistische Auswertung von Datenpaaren");
    EXPECT_EQ(s[21].titel, "Geburtstagsproblem");
    for (int i : {13, 14, 15}) EXPECT_TRUE(s[i].titel.empty()) << i;
    EXPECT_EQ(s[5].knopf, "Experiment starten");
    EXPECT_EQ(s[8].knopf, "Simulation");
    EXPECT_EQ(s[0].knopf, "Berechnung");
    // the labels follow the chosen kind: the hypergeometric kind asks for three numbers
    const auto h = s[10].feldnamen(2);
    EXPECT_EQ(h[0], "Anzahl der Kugeln");
    EXPECT_EQ(h[2], "Stichprobenumfang");
    EXPECT_TRUE(h[3].empty());
    EXPECT_EQ(s[11].feldnamen(2)[0], "");  // the standard normal kind has no parameter
}

TEST(Seiten, InputsAcceptTermsAndExamples)
{
    EXPECT_EQ(feldZahl("2*3+1", 0), 7);
    EXPECT_EQ(feldZahl("  ", 5), 5);
    EXPECT_EQ(feldZahl("2*(", 5), 5);  // a faulty term keeps the default
    // the example list fills the data fields; the pair page evaluates them
    const auto texte = seiten()[16].beispieltexte(3);
    ASSERT_EQ(texte.size(), 2u);
    Zufall z(1);
    const Ergebnis e = seiten()[16].rechne({"3", texte[0], texte[1]}, z, {});
    EXPECT_EQ(e.zeilen[1], "Anzahl\t12\t12");
    // the discrete page with the Poisson kind uses one parameter only
    const Ergebnis p = seiten()[10].rechne({"1", "2", "", "", ""}, z, {});
    EXPECT_EQ(p.zeilen[4], "0\t0.135335\t0.135335");
}

TEST(Seiten, SavedInputsComeBackOnTheirPageOnly)
{
    const Eingaben markow = {"0,5 0,5\n0,2 0,8", "1", "500"};
    const auto zeilen = datenSchreiben(9, markow);
    EXPECT_EQ(zeilen[0], "mar");
    EXPECT_EQ(zeilen[2], "0,5 0,5\\n0,2 0,8");  // one line per field
    Eingaben e(3);
    ASSERT_TRUE(datenLesen(9, zeilen, e));
    EXPECT_EQ(e, markow);
    // backslashes survive; another page of the same group refuses the lines
    const Eingaben werte = {"0", "1 2\\3"};
    Eingaben w(2), t(4, "x");
    ASSERT_TRUE(datenLesen(0, datenSchreiben(0, werte), w));
    EXPECT_EQ(w, werte);
    EXPECT_EQ(datengruppe(14), "dat");
    EXPECT_FALSE(datenLesen(14, datenSchreiben(0, werte), t));
    EXPECT_EQ(t, Eingaben(4, "x"));
}
