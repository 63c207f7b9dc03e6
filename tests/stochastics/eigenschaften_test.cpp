// Statistical properties checked by repetition: confidence intervals cover the true value as
// often as their level says, tests reject a true null hypothesis at their level, and binomial
// acceptance regions are the widest ones that keep the error bound. Bounds are 4.5 binomial
// standard deviations.
#include "stochastics/ugamdist.h"
#include "stochastics/ustatistik.h"
#include "stochastics/usimulation.h"
#include "stochastics/utests.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace zufall;

namespace {
// Standard normal numbers by the Box-Muller transform.
double normal(Zufall& z)
{
    const double u = 1 - z.gleich(), v = z.gleich();
    return std::sqrt(-2 * std::log(u)) * std::cos(2 * M_PI * v);
}

std::vector<double> stichprobe(Zufall& z, int n, double mu, double sigma)
{
    std::vector<double> w;
    for (int i = 0; i < n; ++i) w.push_back(mu + sigma * normal(z));
    return w;
}

void rate(long k, long n, double p, const std::string& was)
{
    const double s = std::sqrt(p * (1 - p) / n);
    EXPECT_NEAR(double(k) / n, p, 4.5 * s) << was << ": " << k << " of " << n;
}
}  // namespace

TEST(Eigenschaften, ConfidenceIntervalsCoverAtTheirLevel)
{
    Zufall z(2024);
    const int laeufe = 4000;
    long mittel = 0, varianz = 0;
    for (int i = 0; i < laeufe; ++i) {
        const auto w = stichprobe(z, 8, 50, 3);
        Intervall m, v;
        ASSERT_TRUE(konfidenzMittelwert(w, 0.9, m));
        ASSERT_TRUE(konfidenzVarianz(w, 0.9, v));
        mittel += m.unten <= 50 && 50 <= m.oben;
        varianz += v.unten <= 9 && 9 <= v.oben;
    }
    rate(mittel, laeufe, 0.9, "mean interval 90 %");
    rate(varianz, laeufe, 0.9, "variance interval 90 %");
}

TEST(Eigenschaften, TestsRejectTrueHypothesesAtTheirLevel)
{
    Zufall z(77);
    const int laeufe = 4000;
    long t = 0, einseitig = 0, chi = 0;
    for (int i = 0; i < laeufe; ++i) {
        t += tTest(stichprobe(z, 12, 10, 2), 10, 0.05, true).ablehnen;
        einseitig += tTest(stichprobe(z, 6, 0, 1), 0, 0.1, false).ablehnen;
        // a fair die thrown 300 times
        std::vector<double> h(6, 0);
        for (int k = 0; k < 300; ++k) h[z.random(6)] += 1;
        chi += chiQuadratTest(h, std::vector<double>(6, 50), 0.05).ablehnen;
    }
    rate(t, laeufe, 0.05, "two-sided t-test");
    rate(einseitig, laeufe, 0.1, "one-sided t-test");
    rate(chi, laeufe, 0.05, "chi-square test of a fair die");
    // a shifted mean is found nearly always
    long macht = 0;
    for (int i = 0; i < 500; ++i) macht += tTest(stichprobe(z, 20, 12, 2), 10, 0.05, true).ablehnen;
    EXPECT_GT(macht, 490);
}

TEST(Eigenschaften, BinomialRegionsAreTheWidestWithinTheLevel)
{
    for (long n : {10L, 25L, 50L, 120L})
        for (double p : {0.1, 0.3, 0.5, 0.8}) {
            const DiskreteVerteilung v{Diskret::Binomial, {double(n), p}};
            const Annahmebereich a = binomialAnnahmebereich(n, p, 0.05, true);
            const double links = a.links > 0 ? verteilung(v, a.links - 1) : 0, rechts = 1 - verteilung(v, a.rechts);
            EXPECT_LE(links, 0.025 + 1e-12) << n << " " << p;
            EXPECT_LE(rechts, 0.025 + 1e-12) << n << " " << p;
            // one more value in either tail would break the bound
            if (a.links < n) EXPECT_GT(verteilung(v, a.links), 0.025) << n << " " << p;
            if (a.rechts > 0) EXPECT_GT(1 - verteilung(v, a.rechts - 1), 0.025) << n << " " << p;
            EXPECT_NEAR(a.fehler1, links + rechts, 1e-12);
        }
}

TEST(Eigenschaften, NormalityTestSeparatesNormalFromSkewedData)
{
    Zufall z(5);
    int normalAbgelehnt = 0, schiefAbgelehnt = 0;
    for (int i = 0; i < 40; ++i) {
        const auto w = stichprobe(z, 200, 0, 1);
        std::vector<double> s;
        for (int k = 0; k < 200; ++k) s.push_back(-std::log(1 - z.gleich()));  // exponential data
        const auto zn = chiTestZeilen(0, w, {}, 0.01);
        const auto zs = chiTestZeilen(0, s, {}, 0.01);
        normalAbgelehnt += zn.back() == "Die Nullhypothese muss abgelehnt werden!";
        schiefAbgelehnt += zs.back() == "Die Nullhypothese muss abgelehnt werden!";
    }
    EXPECT_LE(normalAbgelehnt, 5);
    EXPECT_GE(schiefAbgelehnt, 38);
}
