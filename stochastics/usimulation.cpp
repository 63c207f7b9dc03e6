#include "stochastics/usimulation.h"

#include "stochastics/ugamdist.h"
#include "stochastics/ugamma.h"
#include "stochastics/ustatistik.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <sstream>

namespace zufall {

namespace {
std::uint64_t splitmix(std::uint64_t& x)
{
    std::uint64_t z = (x += 0x9e3779b97f4a7c15ULL);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
    return z ^ (z >> 31);
}

std::uint64_t rotl(std::uint64_t x, int k) { return (x << k) | (x >> (64 - k)); }

// Calls the progress routine about a hundred times per run; false when the user stopped.
class Takt {
public:
    Takt(long gesamt, const Fortschritt& f) : gesamt_(gesamt), f_(f), schritt_(std::max(1L, gesamt / 100)) {}
    bool weiter(long i)
    {
        if (!f_ || i % schritt_ != 0) return true;
        return f_(static_cast<int>(100.0 * i / gesamt_));
    }

private:
    long gesamt_;
    const Fortschritt& f_;
    long schritt_;
};

std::string anteil(long k, long n) { return n > 0 ? zahl(double(k) / n) : "unbestimmt"; }
}  // namespace

Zufall::Zufall(std::uint64_t seed)
{
    for (auto& s : s_) s = splitmix(seed);
}

std::uint64_t Zufall::naechste()
{
    const std::uint64_t r = rotl(s_[1] * 5, 7) * 9, t = s_[1] << 17;
    s_[2] ^= s_[0];
    s_[3] ^= s_[1];
    s_[1] ^= s_[2];
    s_[0] ^= s_[3];
    s_[2] ^= t;
    s_[3] = rotl(s_[3], 45);
    return r;
}

int Zufall::random(int n)
{
    if (n <= 1) return 0;
    // reject the top part of the range that would favour small values
    const std::uint64_t grenze = UINT64_MAX - UINT64_MAX % static_cast<std::uint64_t>(n);
    std::uint64_t r;
    do r = naechste();
    while (r >= grenze);
    return static_cast<int>(r % static_cast<std::uint64_t>(n));
}

double Zufall::gleich() { return (naechste() >> 11) * 0x1.0p-53; }

// ---------------------------------------------------------------- dice

const std::vector<std::string>& wuerfelNamen()
{
    static const std::vector<std::string> n = {"Idealer Würfel", "Efron-Würfel", "Oktaeder-Würfel", "Sicherman-Würfel"};
    return n;
}

std::vector<int> wuerfelSeiten(int art, int nummer)
{
    switch (art) {
    case 1: return {0, 0, 4, 4, 4, 4};
    case 2: return {1, 2, 3, 4, 5, 6, 7, 8};
    case 3: return nummer % 2 == 0 ? std::vector<int>{1, 2, 2, 3, 3, 4} : std::vector<int>{1, 3, 4, 5, 6, 8};
    default: return {1, 2, 3, 4, 5, 6};
    }
}

namespace {
std::vector<double> seitenGewichte(int art, int nummer, const std::vector<double>& gewichte)
{
    const auto s = wuerfelSeiten(art, nummer);
    if (nummer == 0 && gewichte.size() == s.size()) {
        const double sum = std::accumulate(gewichte.begin(), gewichte.end(), 0.0);
        std::vector<double> g;
        for (double x : gewichte) g.push_back(sum > 0 ? x / sum : 1.0 / s.size());
        return g;
    }
    return std::vector<double>(s.size(), 1.0 / s.size());
}
}  // namespace

std::vector<double> augensummenVerteilung(int art, int anzahl, const std::vector<double>& gewichte)
{
    std::vector<double> v = {1};
    for (int w = 0; w < anzahl; ++w) {
        const auto s = wuerfelSeiten(art, w);
        const auto g = seitenGewichte(art, w, gewichte);
        std::vector<double> neu(v.size() + *std::max_element(s.begin(), s.end()), 0);
        for (size_t i = 0; i < v.size(); ++i)
            for (size_t j = 0; j < s.size(); ++j) neu[i + s[j]] += v[i] * g[j];
        v = neu;
    }
    while (v.size() > 1 && v.back() == 0) v.pop_back();
    return v;
}

Ergebnis wuerfelExperiment(int art, int anzahl, long wuerfe, Zufall& z, const std::vector<double>& gewichte,
                           const Fortschritt& f)
{
    Ergebnis e;
    const std::vector<double> exakt = augensummenVerteilung(art, anzahl, gewichte);
    std::vector<long> h(exakt.size(), 0);
    // cumulative face weights of die 1 for a non-ideal die
    const auto g1 = seitenGewichte(art, 0, gewichte);
    std::vector<double> kum(g1.size());
    std::partial_sum(g1.begin(), g1.end(), kum.begin());
    Takt takt(wuerfe, f);
    long i = 0;
    for (; i < wuerfe; ++i) {
        if (!takt.weiter(i)) {
            e.abgebrochen = true;
            break;
        }
        int s = 0;
        for (int w = 0; w < anzahl; ++w) {
            const auto seiten = wuerfelSeiten(art, w);
            if (w == 0 && !gewichte.empty()) {
                const double u = z.gleich();
                s += seiten[std::min<size_t>(seiten.size() - 1, std::upper_bound(kum.begin(), kum.end(), u) - kum.begin())];
            } else {
                s += seiten[z.random(static_cast<int>(seiten.size()))];
            }
        }
        ++h[s];
    }
    double mittel = 0, erwartet = 0;
    e.zeilen = {"Würfel\t" + std::to_string(anzahl) + " x " + wuerfelNamen()[std::clamp(art, 0, 3)],
                "Würfe\t" + std::to_string(i), "Augensumme\tabsolut\trelativ\ttheoretisch"};
    for (size_t s = 0; s < exakt.size(); ++s) {
        mittel += double(s) * h[s];
        erwartet += s * exakt[s];
        if (exakt[s] == 0 && h[s] == 0) continue;
        e.zeilen.push_back(std::to_string(s) + "\t" + std::to_string(h[s]) + "\t" + anteil(h[s], i) + "\t" + zahl(exakt[s]));
        e.bild.balken.push_back({s - 0.4, 0.8, i > 0 ? double(h[s]) / i : 0, std::to_string(s)});
        e.bild.vergleich.push_back({double(s), exakt[s]});
    }
    e.zeilen.push_back("Mittelwert\t" + (i > 0 ? zahl(mittel / i) : "unbestimmt"));
    e.zeilen.push_back("Erwartungswert\t" + zahl(erwartet));
    e.bild.titel = "Relative Häufigkeiten der Augensummen";
    return e;
}

// ---------------------------------------------------------------- cards

const std::vector<std::string>& kartenNamen()
{
    static const std::vector<std::string> n = {"Skatkarte", "Bridgekarte"};
    return n;
}

Ergebnis kartenExperiment(int deck, bool mitZuruecklegen, long zuege, Zufall& z, const Fortschritt& f)
{
    Ergebnis e;
    const int werte = deck == 1 ? 13 : 8, karten = 4 * werte;
    // card c: suit c / werte (0, 1 red: hearts, diamonds; 2, 3 black), value c % werte; the ace is the last value
    std::vector<int> stapel(karten);
    std::iota(stapel.begin(), stapel.end(), 0);
    int oben = karten;  // all cards used: shuffle again
    long treffer = 0, lauf = 0, besterLauf = 0, besterLaufEnde = 0;
    long rot = 0, schwarz = 0, besteRot = 0, besteRotEnde = 0, besteSchwarz = 0, besteSchwarzEnde = 0;
    Takt takt(zuege, f);
    long i = 0;
    for (; i < zuege; ++i) {
        if (!takt.weiter(i)) {
            e.abgebrochen = true;
            break;
        }
        int c;
        if (mitZuruecklegen) c = z.random(karten);
        else {
            if (oben == karten) {
                for (int k = karten - 1; k > 0; --k) std::swap(stapel[k], stapel[z.random(k + 1)]);
                oben = 0;
            }
            c = stapel[oben++];
        }
        const bool ass = c % werte == werte - 1, istRot = c / werte < 2;
        treffer += ass;
        lauf = ass ? lauf + 1 : 0;
        if (lauf > besterLauf) besterLauf = lauf, besterLaufEnde = i + 1;
        rot = istRot ? rot + 1 : 0;
        schwarz = istRot ? 0 : schwarz + 1;
        if (rot > besteRot) besteRot = rot, besteRotEnde = i + 1;
        if (schwarz > besteSchwarz) besteSchwarz = schwarz, besteSchwarzEnde = i + 1;
    }
    const std::string blatt = deck == 1 ? "Bridgeblatt" : "Skatblatt";
    e.zeilen = {blatt + (mitZuruecklegen ? " mit" : " ohne") + " Zurücklegen, Treffer: Ass",
                "Züge = " + std::to_string(i), "Treffer = " + std::to_string(treffer),
                "prozentuale Häufigkeit = " + (i > 0 ? zahl(100.0 * treffer / i, 3) + " %" : std::string("unbestimmt")),
                "Wahrscheinlichkeit = " + zahl(100.0 / werte, 3) + " %",
                "längste Phase mit " + std::to_string(besterLauf) + " Treffern nach " + std::to_string(besterLaufEnde) + " Zügen",
                "längste Rotphase von " + std::to_string(besteRot) + " Karten nach " + std::to_string(besteRotEnde) + " Zügen",
                "längste Schwarzphase von " + std::to_string(besteSchwarz) + " Karten nach " + std::to_string(besteSchwarzEnde) + " Zügen"};
    e.bild.titel = "Treffer und Nieten";
    e.bild.balken = {{0, 0.8, i ? double(treffer) / i : 0, "Treffer", true},
                     {1, 0.8, i ? double(i - treffer) / i : 0, "Nieten"}};
    e.bild.vergleich = {{0.4, 1.0 / werte}, {1.4, 1 - 1.0 / werte}};
    return e;
}

// ---------------------------------------------------------------- lottery

std::vector<Lottoklasse> lottoKlassen(int k, int n, bool zz)
{
    static const char* const name[] = {"", "Einer", "Zweier", "Dreier", "Vierer", "Fünfer", "Sechser", "Siebener", "Achter"};
    static const char* const zname[] = {"", "", "", "", "Vier+ZZ", "Fünf+ZZ", "Sechs+ZZ", "Sieben+ZZ", ""};
    std::vector<Lottoklasse> v;
    const DiskreteVerteilung h{Diskret::Hypergeometrisch, {double(n), double(k), double(k)}};
    for (int m = std::min(k, 8); m >= 1; --m) {
        const double p = wahrscheinlichkeit(h, m);
        // the additional number comes from the n - k numbers left and hits one of the k - m tips not drawn
        const double pz = zz && n > k ? double(k - m) / (n - k) : 0;
        if (zz && m >= 4 && m < k && zname[m][0]) v.push_back({zname[m], m, true, p * pz, 0});
        v.push_back({name[m], m, false, p * (1 - (zname[m][0] && m >= 4 && m < k ? pz : 0)), 0});
    }
    return v;
}

Ergebnis lottoSimulation(int k, int n, bool zz, const std::vector<int>& tippIn, long ziehungen, Zufall& z,
                         const Fortschritt& f)
{
    Ergebnis e;
    if (k < 1 || k > 8 || n <= k || n > 100) {
        e.zeilen = {"Ungültige Lotterie: 1 bis 8 Zahlen aus höchstens 100"};
        return e;
    }
    std::vector<char> imTipp(n + 1, 0);
    std::vector<int> tipp = tippIn;
    std::sort(tipp.begin(), tipp.end());
    tipp.erase(std::unique(tipp.begin(), tipp.end()), tipp.end());
    if (static_cast<int>(tipp.size()) != k || tipp.front() < 1 || tipp.back() > n) {
        e.zeilen = {"Der Tipp braucht " + std::to_string(k) + " verschiedene Zahlen von 1 bis " + std::to_string(n)};
        return e;
    }
    for (int t : tipp) imTipp[t] = 1;
    auto klassen = lottoKlassen(k, n, zz);
    std::vector<int> urne(n);
    Takt takt(ziehungen, f);
    long i = 0;
    std::vector<int> letzte;
    for (; i < ziehungen; ++i) {
        if (!takt.weiter(i)) {
            e.abgebrochen = true;
            break;
        }
        std::iota(urne.begin(), urne.end(), 1);
        int richtige = 0;
        // partial shuffle: the first k (+1) places are the draw
        for (int j = 0; j < k + (zz ? 1 : 0); ++j) std::swap(urne[j], urne[j + z.random(n - j)]);
        for (int j = 0; j < k; ++j) richtige += imTipp[urne[j]];
        const bool zusatz = zz && imTipp[urne[k]];
        const bool zKlasse = zusatz && std::any_of(klassen.begin(), klassen.end(), [&](const Lottoklasse& o) {
                                 return o.richtige == richtige && o.zusatz;
                             });
        for (auto& c : klassen)
            if (c.richtige == richtige && c.zusatz == zKlasse) {
                ++c.anzahl;
                break;
            }
        if (i + 1 == ziehungen) letzte.assign(urne.begin(), urne.begin() + k + (zz ? 1 : 0));
    }
    std::string tippText;
    for (int t : tipp) tippText += (tippText.empty() ? "" : " ") + std::to_string(t);
    e.zeilen = {"Lotto " + std::to_string(k) + " aus " + std::to_string(n) + (zz ? " mit Zusatzzahl" : ""),
                std::to_string(i) + " Ziehungen", "Tipp\t" + tippText};
    if (!letzte.empty()) {
        std::string s;
        std::sort(letzte.begin(), letzte.begin() + k);
        for (int j = 0; j < k; ++j) s += (j ? " " : "") + std::to_string(letzte[j]);
        if (zz) s += "  ZZ " + std::to_string(letzte[k]);
        e.zeilen.push_back("letzte Ziehung\t" + s);
    }
    e.zeilen.push_back("Klasse\tAnzahl\trelativ\tWahrscheinlichkeit");
    double x = 0;
    for (const auto& c : klassen) {
        e.zeilen.push_back(c.name + "\t" + std::to_string(c.anzahl) + "\t" + anteil(c.anzahl, i) + "\t" + zahl(c.exakt, 8));
        e.bild.balken.push_back({x - 0.4, 0.8, i ? double(c.anzahl) / i : 0, c.name});
        e.bild.vergleich.push_back({x, c.exakt});
        x += 1;
    }
    e.bild.titel = "Gewinnklassen: relative Häufigkeiten";
    return e;
}

// ---------------------------------------------------------------- goat problem

Ergebnis ziegenSimulation(long spiele, Zufall& z, const Fortschritt& f)
{
    Ergebnis e;
    long bleiben = 0, wechseln = 0;
    Takt takt(spiele, f);
    long i = 0;
    for (; i < spiele; ++i) {
        if (!takt.weiter(i)) {
            e.abgebrochen = true;
            break;
        }
        const int auto_ = z.random(3), wahl = z.random(3);
        // the host opens a goat door that is not the player's; with two to choose he picks at random
        int tuer;
        do tuer = z.random(3);
        while (tuer == wahl || tuer == auto_);
        const int andere = 3 - wahl - tuer;
        bleiben += wahl == auto_;
        wechseln += andere == auto_;
    }
    e.zeilen = {"Spiele\t" + std::to_string(i),
                "Gewinne ohne Wechsel\t" + std::to_string(bleiben) + "\t" + anteil(bleiben, i) + "\t" + zahl(1.0 / 3),
                "Gewinne mit Wechsel\t" + std::to_string(wechseln) + "\t" + anteil(wechseln, i) + "\t" + zahl(2.0 / 3),
                "Der Wechsel verdoppelt die Gewinnchance."};
    e.bild.titel = "Gewinnanteil: bleiben oder wechseln";
    e.bild.balken = {{0, 0.8, i ? double(bleiben) / i : 0, "ohne Wechsel"},
                     {1, 0.8, i ? double(wechseln) / i : 0, "mit Wechsel", true}};
    e.bild.vergleich = {{0.4, 1.0 / 3}, {1.4, 2.0 / 3}};
    return e;
}

// ---------------------------------------------------------------- Efron's dice

const std::vector<std::string>& efronNamen()
{
    static const std::vector<std::string> n = {"Würfel A", "Würfel B", "Würfel C", "Würfel D", "idealer Würfel"};
    return n;
}

namespace {
const int kEfron[5][6] = {{0, 0, 4, 4, 4, 4}, {3, 3, 3, 3, 3, 3}, {2, 2, 2, 2, 6, 6}, {1, 1, 1, 5, 5, 5}, {1, 2, 3, 4, 5, 6}};
}

double efronGewinn(int a, int b)
{
    a = std::clamp(a, 0, 4);
    b = std::clamp(b, 0, 4);
    int g = 0;
    for (int i = 0; i < 6; ++i)
        for (int j = 0; j < 6; ++j) g += kEfron[a][i] > kEfron[b][j];
    return g / 36.0;
}

Ergebnis efronSpiel(int kain, int abel, long spiele, Zufall& z, const Fortschritt& f)
{
    Ergebnis e;
    kain = std::clamp(kain, 0, 4);
    abel = std::clamp(abel, 0, 4);
    long gk = 0, ga = 0;
    Takt takt(spiele, f);
    long i = 0;
    for (; i < spiele; ++i) {
        if (!takt.weiter(i)) {
            e.abgebrochen = true;
            break;
        }
        const int k = kEfron[kain][z.random(6)], a = kEfron[abel][z.random(6)];
        gk += k > a;
        ga += a > k;
    }
    e.zeilen = {"Kain\t" + efronNamen()[kain], "Abel\t" + efronNamen()[abel], "Spiele\t" + std::to_string(i),
                "Kain gewinnt " + std::to_string(gk) + " mal\t" + anteil(gk, i) + "\t" + zahl(efronGewinn(kain, abel)),
                "Abel gewinnt " + std::to_string(ga) + " mal\t" + anteil(ga, i) + "\t" + zahl(efronGewinn(abel, kain)),
                std::string("Sieger\t") + (gk > ga ? "Kain" : ga > gk ? "Abel" : "unentschieden"), "Gewinnplan"};
    std::string kopf = "";
    for (int b = 0; b < 5; ++b) kopf += "\t" + efronNamen()[b];
    e.zeilen.push_back(kopf);
    for (int a = 0; a < 5; ++a) {
        std::string zeile = efronNamen()[a];
        for (int b = 0; b < 5; ++b) zeile += "\t" + zahl(efronGewinn(a, b), 4);
        e.zeilen.push_back(zeile);
    }
    e.bild.titel = "Siege von Kain und Abel";
    e.bild.balken = {{0, 0.8, i ? double(gk) / i : 0, "Kain"}, {1, 0.8, i ? double(ga) / i : 0, "Abel", true}};
    e.bild.vergleich = {{0.4, efronGewinn(kain, abel)}, {1.4, efronGewinn(abel, kain)}};
    return e;
}

// ---------------------------------------------------------------- birthdays

double geburtstagExakt(int personen)
{
    if (personen > 365) return 1;
    double q = 1;
    for (int i = 0; i < personen; ++i) q *= (365.0 - i) / 365;
    return 1 - q;
}

Ergebnis geburtstagSimulation(int personen, long laeufe, Zufall& z, const Fortschritt& f)
{
    Ergebnis e;
    long doppelt = 0, dreifach = 0, mehrfach = 0, laeufeMit = 0;
    std::vector<int> tage(365);
    std::vector<long> verteilung;  // runs by the number of shared days
    Takt takt(laeufe, f);
    long i = 0;
    for (; i < laeufe; ++i) {
        if (!takt.weiter(i)) {
            e.abgebrochen = true;
            break;
        }
        std::fill(tage.begin(), tage.end(), 0);
        for (int p = 0; p < personen; ++p) ++tage[z.random(365)];
        int geteilt = 0;
        for (int t : tage) {
            doppelt += t == 2;
            dreifach += t == 3;
            mehrfach += t >= 2;
            geteilt += t >= 2;
        }
        laeufeMit += geteilt > 0;
        if (geteilt >= static_cast<int>(verteilung.size())) verteilung.resize(geteilt + 1, 0);
        ++verteilung[geteilt];
    }
    e.zeilen = {"Personenzahl\t" + std::to_string(personen), "Testläufe\t" + std::to_string(i),
                std::to_string(doppelt) + " Doppelgeburtstage", std::to_string(dreifach) + " Dreifachgeburtstage",
                std::to_string(mehrfach) + " Mehrfachgeburtstage",
                std::to_string(laeufeMit) + " Simulationsläufe mit gemeinsamem Geburtstag",
                "relative Häufigkeit\t" + anteil(laeufeMit, i), "Wahrscheinlichkeit\t" + zahl(geburtstagExakt(personen))};
    e.bild.titel = "Läufe nach Zahl der mehrfach belegten Tage";
    for (size_t g = 0; g < verteilung.size(); ++g)
        e.bild.balken.push_back({g - 0.4, 0.8, i ? double(verteilung[g]) / i : 0, std::to_string(g), g > 0});
    return e;
}

// ---------------------------------------------------------------- Markov chain

Markow markowAusText(const std::string& text)
{
    Markow m;
    std::istringstream in(text);
    std::string zeile;
    while (std::getline(in, zeile)) {
        std::string fehler;
        const auto z = leseZahlen(zeile, &fehler);
        if (!fehler.empty()) {
            m.fehler = "Keine Zahl: " + fehler;
            return m;
        }
        if (!z.empty()) m.p.push_back(z);
    }
    if (m.p.empty()) {
        m.fehler = "Keine Übergangswahrscheinlichkeiten";
        return m;
    }
    for (size_t i = 0; i < m.p.size(); ++i) {
        if (m.p[i].size() != m.p.size()) {
            m.fehler = "Die Matrix muss quadratisch sein";
            return m;
        }
        double s = 0;
        for (double x : m.p[i]) {
            if (x < 0) {
                m.fehler = "Negative Übergangswahrscheinlichkeit am Punkt " + std::to_string(i);
                return m;
            }
            s += x;
        }
        if (s > 1 + 1e-9) {
            m.fehler = "Übergangswahrscheinlichkeit am Punkt " + std::to_string(i) + " ist größer 1";
            return m;
        }
        // a row short of 1 keeps the rest on its own state
        if (s < 1) m.p[i][i] += 1 - s;
    }
    return m;
}

std::vector<double> markowSchritte(const Markow& m, int start, int schritte)
{
    const size_t n = m.p.size();
    std::vector<double> v(n, 0);
    if (start < 0 || start >= static_cast<int>(n)) return v;
    v[start] = 1;
    for (int s = 0; s < schritte; ++s) {
        std::vector<double> w(n, 0);
        for (size_t i = 0; i < n; ++i)
            for (size_t j = 0; j < n; ++j) w[j] += v[i] * m.p[i][j];
        v = w;
    }
    return v;
}

std::vector<double> markowStationaer(const Markow& m)
{
    // solve pi (P - I) = 0 with sum pi = 1 by Gaussian elimination (last equation replaced)
    const size_t n = m.p.size();
    std::vector<std::vector<double>> a(n, std::vector<double>(n + 1, 0));
    for (size_t j = 0; j < n; ++j)
        for (size_t i = 0; i < n; ++i) a[j][i] = m.p[i][j] - (i == j ? 1 : 0);
    for (size_t i = 0; i < n; ++i) a[n - 1][i] = 1;
    a[n - 1][n] = 1;
    for (size_t c = 0; c < n; ++c) {
        size_t p = c;
        for (size_t r = c + 1; r < n; ++r)
            if (std::fabs(a[r][c]) > std::fabs(a[p][c])) p = r;
        if (std::fabs(a[p][c]) < 1e-12) return {};
        std::swap(a[c], a[p]);
        for (size_t r = 0; r < n; ++r) {
            if (r == c) continue;
            const double q = a[r][c] / a[c][c];
            for (size_t l = c; l <= n; ++l) a[r][l] -= q * a[c][l];
        }
    }
    std::vector<double> pi(n);
    for (size_t i = 0; i < n; ++i) pi[i] = a[i][n] / a[i][i];
    return pi;
}

Ergebnis markowSimulation(const Markow& m, int start, long schritte, Zufall& z, const Fortschritt& f)
{
    Ergebnis e;
    if (!m.fehler.empty()) {
        e.zeilen = {m.fehler};
        return e;
    }
    const int n = static_cast<int>(m.p.size());
    start = std::clamp(start, 0, n - 1);
    e.zeilen.push_back("Übergangswahrscheinlichkeiten");
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j)
            if (m.p[i][j] > 0) e.zeilen.push_back(std::to_string(i) + " -> " + std::to_string(j) + " = " + zahl(m.p[i][j]));
    std::vector<long> besuche(n, 0);
    int zustand = start;
    Takt takt(schritte, f);
    long s = 0;
    for (; s < schritte; ++s) {
        if (!takt.weiter(s)) {
            e.abgebrochen = true;
            break;
        }
        const double u = z.gleich();
        double kum = 0;
        int neu = n - 1;
        for (int j = 0; j < n; ++j) {
            kum += m.p[zustand][j];
            if (u < kum) {
                neu = j;
                break;
            }
        }
        zustand = neu;
        ++besuche[zustand];
    }
    const auto pi = markowStationaer(m);
    e.zeilen.push_back("Schritte\t" + std::to_string(s) + "\tab Zustand " + std::to_string(start));
    e.zeilen.push_back("Zustand\tBesuche\trelativ\tstationär");
    for (int i = 0; i < n; ++i) {
        e.zeilen.push_back(std::to_string(i) + "\t" + std::to_string(besuche[i]) + "\t" + anteil(besuche[i], s) + "\t" +
                           (pi.empty() ? "nicht eindeutig" : zahl(pi[i])));
        e.bild.balken.push_back({i - 0.4, 0.8, s ? double(besuche[i]) / s : 0, "Zustand " + std::to_string(i)});
        if (!pi.empty()) e.bild.vergleich.push_back({double(i), pi[i]});
    }
    // the law after a few steps shows how fast the start is forgotten
    e.zeilen.push_back("Verteilung nach n Schritten ab Zustand " + std::to_string(start));
    for (int n : {1, 2, 5, 10, 50}) {
        std::string zeile = "n = " + std::to_string(n);
        for (double p : markowSchritte(m, start, n)) zeile += "\t" + zahl(p, 4);
        e.zeilen.push_back(zeile);
    }
    e.bild.titel = "Aufenthaltsanteile der Zustände";
    return e;
}

// ---------------------------------------------------------------- path rule

Pfad pfadregel(const std::vector<int>& kugeln, const std::vector<int>& pfad, bool zurueck)
{
    Pfad r;
    const int farben = static_cast<int>(kugeln.size());
    std::vector<int> urne = kugeln;
    int gesamt = std::accumulate(urne.begin(), urne.end(), 0);
    double p = 1;
    std::vector<int> anzahl(farben, 0);
    for (int c : pfad) {
        if (c < 0 || c >= farben || gesamt <= 0) return r;
        p *= double(urne[c]) / gesamt;
        ++anzahl[c];
        if (!zurueck) --urne[c], --gesamt;
    }
    r.wahrscheinlichkeit = p;
    // every order of the same counts has the same probability: multiply by the multinomial count
    double ln = lnGamma(pfad.size() + 1.0);
    for (int a : anzahl) ln -= lnGamma(a + 1.0);
    r.ohneReihenfolge = p * std::exp(ln);
    return r;
}

Ergebnis pfadErgebnis(const std::vector<int>& kugeln, const std::vector<int>& pfad, bool zurueck)
{
    static const char* const farbe[] = {"rot", "schwarz", "weiß", "grün", "blau", "gelb"};
    Ergebnis e;
    const int farben = static_cast<int>(kugeln.size());
    if (farben < 1 || farben > 6 || pfad.empty() || pfad.size() > 8) {
        e.zeilen = {"Eine Urne mit 1 bis 6 Farben und ein Pfad mit 1 bis 8 Zügen angeben"};
        return e;
    }
    std::string anfang;
    for (int i = 0; i < farben; ++i) anfang += (i ? ", " : "") + std::to_string(kugeln[i]) + " " + farbe[i];
    e.zeilen = {"Anfangszustand\t" + anfang, zurueck ? "mit Zurücklegen" : "ohne Zurücklegen"};
    std::string weg;
    for (int c : pfad) {
        if (c < 0 || c >= farben) {
            e.zeilen.push_back("Der Pfad nennt eine Farbe, die nicht in der Urne ist");
            return e;
        }
        weg += (weg.empty() ? "" : " - ") + std::string(farbe[c]);
    }
    const Pfad p = pfadregel(kugeln, pfad, zurueck);
    e.zeilen.push_back("Pfad\t" + weg);
    // the factors of the product, one per stage
    std::vector<int> urne = kugeln;
    int gesamt = std::accumulate(urne.begin(), urne.end(), 0);
    std::string faktoren;
    for (int c : pfad) {
        faktoren += (faktoren.empty() ? "" : " · ") + std::to_string(urne[c]) + "/" + std::to_string(gesamt);
        if (!zurueck) --urne[c], --gesamt;
    }
    e.zeilen.push_back("Wahrscheinlichkeit \t" + faktoren + " = " + zahl(p.wahrscheinlichkeit));
    e.zeilen.push_back("ohne Berücksichtigung der Reihenfolge\t" + zahl(p.ohneReihenfolge));
    // the tree: at each stage every colour branches, the chosen path is highlighted
    e.bild.titel = "Baumdiagramm";
    urne = kugeln;
    gesamt = std::accumulate(urne.begin(), urne.end(), 0);
    const int stufen = static_cast<int>(pfad.size());
    double y = 0.5;
    for (int s = 0; s < stufen; ++s) {
        const double x0 = double(s) / stufen, x1 = double(s + 1) / stufen;
        const double spreizung = 0.48 * (farben - 1) / farben / std::pow(farben, s);
        for (int c = 0; c < farben; ++c) {
            const double y1 = farben == 1 ? y : y + spreizung * (2.0 * c / (farben - 1) - 1);
            const std::string text = urne[c] > 0 && gesamt > 0 ? std::to_string(urne[c]) + "/" + std::to_string(gesamt) : "0";
            e.bild.linien.push_back({{x0, y}, {x1, y1}, text, c == pfad[s]});
        }
        const int c = pfad[s];
        y = farben == 1 ? y : y + spreizung * (2.0 * c / (farben - 1) - 1);
        if (!zurueck) --urne[c], --gesamt;
    }
    return e;
}

// ---------------------------------------------------------------- law of large numbers

Ergebnis ausgleichSimulation(long wuerfe, Zufall& z, const Fortschritt& f)
{
    Ergebnis e;
    std::vector<long> h(6, 0);
    std::vector<Punkt> absolut, relativ;
    Takt takt(wuerfe, f);
    long i = 0;
    for (; i < wuerfe; ++i) {
        if (!takt.weiter(i)) {
            e.abgebrochen = true;
            break;
        }
        ++h[z.random(6)];
        if ((i + 1) % std::max(1L, wuerfe / 200) == 0) {
            const auto [mn, mx] = std::minmax_element(h.begin(), h.end());
            absolut.push_back({double(i + 1), double(*mx - *mn)});
            relativ.push_back({double(i + 1), double(*mx - *mn) / (i + 1)});
        }
    }
    const long kleinste = *std::min_element(h.begin(), h.end()), groesste = *std::max_element(h.begin(), h.end());
    e.zeilen = {"Würfe\t" + std::to_string(i), "Absolute Häufigkeiten bezogen auf kleinste Häufigkeit"};
    for (int a = 0; a < 6; ++a)
        e.zeilen.push_back("Augenzahl " + std::to_string(a + 1) + "\t" + std::to_string(h[a]) + "\t" +
                           (kleinste > 0 ? zahl(double(h[a]) / kleinste, 4) : "unbestimmt"));
    e.zeilen.push_back("Differenz H(max)-H(min) = " + std::to_string(groesste - kleinste));
    e.zeilen.push_back("relative Differenz\t" + anteil(groesste - kleinste, i));
    e.bild.titel = "rot: H(max)-H(min), blau: relative Differenz in Promille";
    e.bild.kurven = {absolut};
    for (auto& p : relativ) p.second *= 1000;
    e.bild.punkte = relativ;
    return e;
}

}  // namespace zufall
