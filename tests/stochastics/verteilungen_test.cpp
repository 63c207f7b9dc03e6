// Distribution functions against published tables: one runner over verteilungen.txt.
#include "stochastics/ugamdist.h"
#include "stochastics/ugamma.h"

#include <cmath>
#include <fstream>
#include <sstream>
#include <gtest/gtest.h>

using namespace zufall;

namespace {
std::vector<double> zahlen(const std::string& text)
{
    std::vector<double> v;
    if (text == "-") return v;
    std::stringstream s(text);
    std::string teil;
    while (std::getline(s, teil, ',')) v.push_back(std::stod(teil));
    return v;
}
}  // namespace

TEST(Verteilungen, PublishedTables)
{
    std::ifstream in(QUORIX_TEST_DATA "/verteilungen.txt");
    ASSERT_TRUE(in.good());
    std::string zeile;
    int nr = 0, faelle = 0;
    while (std::getline(in, zeile)) {
        ++nr;
        if (zeile.empty() || zeile[0] == '#') continue;
        std::istringstream s(zeile);
        std::string fkt, name, par;
        double x, soll, tol;
        ASSERT_TRUE(s >> fkt >> name >> par >> x >> soll >> tol) << "line " << nr;
        const std::vector<double> p = zahlen(par);
        double ist;
        Stetig st;
        Diskret di;
        if (stetigNachName(name, st)) {
            StetigeVerteilung v{st, p.size() > 0 ? p[0] : 1, p.size() > 1 ? p[1] : 1};
            ist = fkt == "dichte" ? dichte(v, x) : fkt == "verteilung" ? verteilung(v, x) : quantil(v, x);
        } else {
            ASSERT_TRUE(diskretNachName(name, di)) << "line " << nr << ": " << name;
            DiskreteVerteilung v{di, p};
            ist = fkt == "p" ? wahrscheinlichkeit(v, static_cast<long>(x)) : verteilung(v, static_cast<long>(x));
        }
        EXPECT_NEAR(ist, soll, tol) << "line " << nr << ": " << zeile;
        ++faelle;
    }
    EXPECT_GT(faelle, 40);
}

TEST(Verteilungen, GammaFunction)
{
    // Γ(1/2) = √π, Γ(5) = 24, Γ(0.1) = 9.51350769866873 (Abramowitz/Stegun 6.1); 1e-12 relative.
    EXPECT_NEAR(lnGamma(0.5), 0.5 * std::log(M_PI), 1e-13);
    EXPECT_NEAR(gammaFunktion(5), 24, 24e-13);
    EXPECT_NEAR(gammaFunktion(0.1), 9.51350769866873, 1e-11);
    EXPECT_NEAR(gammaFunktion(-0.5), -2 * std::sqrt(M_PI), 1e-12);
    EXPECT_NEAR(lnGamma(171), 706.5730622457874, 1e-9);
}

TEST(Verteilungen, StatusCodes)
{
    // beta density at 0 with a < 1 is infinite: status -2 and the largest real
    EXPECT_EQ(dichte(StetigeVerteilung{Stetig::Beta, 0.5, 2}, 0), std::numeric_limits<double>::max());
    EXPECT_EQ(verteilungsstatus, stUnendlich);
    EXPECT_EQ(dichte(StetigeVerteilung{Stetig::Beta, -1, 2}, 0.5), 0);
    EXPECT_EQ(verteilungsstatus, stParameter);
    EXPECT_EQ(quantil(StetigeVerteilung{Stetig::F, 0, 2}, 0.5), -1);
    EXPECT_EQ(dichte(StetigeVerteilung{Stetig::Gamma, 2, 1}, 1000), 0);
    EXPECT_EQ(verteilungsstatus, stUnterlauf);
    EXPECT_EQ(dichte(StetigeVerteilung{Stetig::Gamma, 2, 1}, 2), dichte(StetigeVerteilung{Stetig::Gamma, 2, 1}, 2));
    EXPECT_EQ(verteilungsstatus, stGut);
}

TEST(Verteilungen, DensitiesIntegrateToTheirDistributionFunction)
{
    // Simpson over [lo, x] must give F(x) - F(lo) for every kind: catches density/CDF mismatches.
    for (int i = 0; i < kStetigAnzahl; ++i) {
        const StetigeVerteilung v{static_cast<Stetig>(i), 3.5, 2.5};
        const double lo = i == 0 || i == 2 ? -4 : 0.05, hi = i == 7 ? 0.8 : 2.5;
        const int n = 2000;
        const double h = (hi - lo) / n;
        double s = dichte(v, lo) + dichte(v, hi);
        for (int k = 1; k < n; ++k) s += (k % 2 ? 4 : 2) * dichte(v, lo + k * h);
        s *= h / 3;
        EXPECT_NEAR(s, verteilung(v, hi) - verteilung(v, lo), 1e-7) << stetigeNamen()[i];
        // the quantile inverts the distribution function
        EXPECT_NEAR(verteilung(v, quantil(v, 0.3)), 0.3, 1e-6) << stetigeNamen()[i];
    }
}

TEST(Verteilungen, DiscreteSumsAndMoments)
{
    const std::vector<DiskreteVerteilung> faelle = {{Diskret::Binomial, {12, 0.3}},
                                                    {Diskret::Poisson, {4.5}},
                                                    {Diskret::Hypergeometrisch, {30, 12, 8}},
                                                    {Diskret::Polya, {10, 3, 6, 2}},
                                                    {Diskret::NegativBinomial, {3, 0.4}}};
    for (const auto& v : faelle) {
        long von, bis;
        traeger(v, von, bis);
        double summe = 0, m = 0, q = 0;
        for (long k = von; k <= bis; ++k) {
            const double p = wahrscheinlichkeit(v, k);
            summe += p;
            m += k * p;
            q += k * k * p;
        }
        const std::string name = diskreteNamen()[static_cast<int>(v.art)];
        EXPECT_NEAR(summe, 1, 1e-10) << name;
        EXPECT_NEAR(m, erwartungswert(v), 1e-8) << name;
        EXPECT_NEAR(q - m * m, varianz(v), 1e-7) << name;
    }
}
