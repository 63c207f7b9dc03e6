#include "stochastics/useiten.h"

#include "kernel/term.h"
#include "stochastics/ugamdist.h"
#include "stochastics/ustatistik.h"
#include "stochastics/utabellen.h"
#include "stochastics/utests.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

// The page table names only the hooks a page needs; the others stay empty.
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"

namespace zufall {

namespace {
const std::string kRegen = "49 41 53 48 61 71 80 66 55 52 58 63";

int index(const std::string& s) { return std::max(0, std::atoi(s.c_str())); }
long ganz(const std::string& s, long vorgabe, long min, long max)
{
    const double d = feldZahl(s, double(vorgabe));
    return std::clamp(static_cast<long>(std::llround(d)), min, max);
}
std::vector<int> ganzzahlen(const std::string& s)
{
    std::string t = s;
    std::replace(t.begin(), t.end(), ',', ' ');
    std::vector<int> v;
    for (double d : leseZahlen(t)) v.push_back(static_cast<int>(std::llround(d)));
    return v;
}

std::string zahlenText(const std::vector<double>& v)
{
    std::string s;
    for (double x : v) s += (s.empty() ? "" : " ") + zahl(x, 4);
    return s;
}

Ergebnis nurZeilen(Zeilen z, Diagramm d = {}) { return Ergebnis{std::move(z), std::move(d), false}; }

std::vector<std::string> beispielXY(int nr, bool mitY)
{
    std::vector<double> x, y;
    beispielDaten(nr, x, y);
    if (!mitY) return {zahlenText(y.empty() ? x : y)};
    return {zahlenText(x), zahlenText(y)};
}

Feld zahlFeld(const std::string& name, const std::string& vorgabe) { return {Feld::Zahl, name, vorgabe, {}}; }
Feld textFeld(const std::string& name, const std::string& vorgabe) { return {Feld::Text, name, vorgabe, {}}; }
Feld auswahl(const std::string& name, std::vector<std::string> liste, int vorgabe = 0, bool beispiel = false)
{
    return {Feld::Auswahl, name, std::to_string(vorgabe), std::move(liste), beispiel};
}

std::vector<Seite> bauen()
{
    std::vector<Seite> s(kSeitenAnzahl);
    const std::string B = "Berechnung", E = "Experiment starten", S = "Simulation";

    s[0] = {"Statistische Auswertung", "Statistische Auswertung einer Datenreihe", B, false,
            {auswahl("Beispieldaten", beispielNamen(), 2, true), textFeld("Werte", kRegen)},
            [](const Eingaben& e, Zufall&, const Fortschritt&) {
                const auto w = leseZahlen(e[1]);
                return nurZeilen(statistikZeilen(w), statistikDiagramm(w));
            },
            {}, [](int nr) { return beispielXY(nr, false); }};

    s[1] = {"Kurvenanpassung", "Kurvenanpassung nach der Methode der kleinsten Quadrate", B, false,
            {auswahl("Modell", modellNamen(), 3), auswahl("Beispieldaten", beispielNamen(), 1, true),
             textFeld("x-Werte", beispielXY(1, true)[0]), textFeld("y-Werte", beispielXY(1, true)[1])},
            [](const Eingaben& e, Zufall&, const Fortschritt&) {
                Diagramm d;
                Zeilen z = anpassungZeilen(leseZahlen(e[2]), leseZahlen(e[3]), index(e[0]), &d);
                return nurZeilen(z, d);
            },
            {}, [](int nr) { return beispielXY(nr, true); }};

    s[2] = {"Regression", "Regression mit drei Zielfunktionen", B, false,
            {auswahl("Beispieldaten", beispielNamen(), 4, true), textFeld("x-Werte", beispielXY(4, true)[0]),
             textFeld("y-Werte", beispielXY(4, true)[1]), zahlFeld("Zielfunktion 1: Y = ", "SIN(X)"),
             zahlFeld("Zielfunktion 2: Y = ", "SIN(2*X)"), zahlFeld("Zielfunktion 3: Y = ", "SIN(3*X)")},
            [](const Eingaben& e, Zufall&, const Fortschritt&) {
                std::string t[3];
                for (int i = 0; i < 3; ++i) {
                    t[i] = e[3 + i];
                    std::transform(t[i].begin(), t[i].end(), t[i].begin(), ::toupper);
                }
                Diagramm d;
                Zeilen z = regressionZeilen(leseZahlen(e[1]), leseZahlen(e[2]), t, &d);
                return nurZeilen(z, d);
            },
            {}, [](int nr) { return beispielXY(nr, true); }};

    s[3] = {"Wahrscheinlichkeitsverteilung", "Tabelle einer Wahrscheinlichkeitsverteilung", B, false,
            {textFeld("Werte k", "0 1 2 3"), textFeld("Wahrscheinlichkeiten P(X=k)", "0,125 0,375 0,375 0,125")},
            [](const Eingaben& e, Zufall&, const Fortschritt&) {
                Diagramm d;
                Zeilen z = wahrscheinlichkeitstabelle(leseZahlen(e[0]), leseZahlen(e[1]), &d);
                return nurZeilen(z, d);
            }};

    s[4] = {"Konfidenzintervall", "Konfidenzintervalle für Mittelwert und Varianz", B, false,
            {auswahl("Konfidenzniveau", konfidenzNiveaus(), 2), textFeld("Werte", kRegen)},
            [](const Eingaben& e, Zufall&, const Fortschritt&) {
                const auto w = leseZahlen(e[1]);
                return nurZeilen(konfidenzZeilen(w, index(e[0])), statistikDiagramm(w));
            }};

    s[5] = {"Wurfexperiment", "Würfeln mit mehreren Würfeln", E, true,
            {auswahl("Würfel", wuerfelNamen()), zahlFeld("Anzahl der Würfel", "2"), zahlFeld("Anzahl der Würfe", "1000"),
             textFeld("Ereigniswahrscheinlichkeiten für Würfel 1", "")},
            [](const Eingaben& e, Zufall& z, const Fortschritt& f) {
                return wuerfelExperiment(index(e[0]), int(ganz(e[1], 2, 1, 20)), ganz(e[2], 1000, 1, 100000000), z,
                                         leseZahlen(e[3]), f);
            }};

    s[6] = {"Kartenexperiment", "Ziehen von Karten: Treffer sind Asse", E, true,
            {auswahl("Kartenspiel", kartenNamen()), auswahl("Zurücklegen", {"mit", "ohne"}),
             zahlFeld("Anzahl der Züge", "320")},
            [](const Eingaben& e, Zufall& z, const Fortschritt& f) {
                return kartenExperiment(index(e[0]), index(e[1]) == 0, ganz(e[2], 320, 1, 100000000), z, f);
            }};

    s[7] = {"Pfadregel", "Pfadregel am Baumdiagramm: Urne mit farbigen Kugeln", B, false,
            {textFeld("Anfangszustand: Kugeln je Farbe (rot schwarz weiß ...)", "3 2"),
             textFeld("Pfad: Farbnummern der Züge (1 = rot)", "1 2 1"),
             auswahl("Ziehen", {"ohne Zurücklegen", "mit Zurücklegen"})},
            [](const Eingaben& e, Zufall&, const Fortschritt&) {
                std::vector<int> pfad = ganzzahlen(e[1]);
                for (int& c : pfad) --c;
                return pfadErgebnis(ganzzahlen(e[0]), pfad, index(e[2]) == 1);
            }};

    s[8] = {"Lottosimulation", "Lottoziehungen gegen einen Tipp", S, true,
            {zahlFeld("gezogene Zahlen k", "6"), zahlFeld("aus n Zahlen", "49"),
             auswahl("Zusatzzahl", {"ohne Zusatzzahl", "mit Zusatzzahl"}, 1), textFeld("Tipp", "3 9 17 22 31 45"),
             zahlFeld("Anzahl der Ziehungen", "10000")},
            [](const Eingaben& e, Zufall& z, const Fortschritt& f) {
                return lottoSimulation(int(ganz(e[0], 6, 1, 8)), int(ganz(e[1], 49, 2, 100)), index(e[2]) == 1,
                                       ganzzahlen(e[3]), ganz(e[4], 10000, 1, 100000000), z, f);
            }};

    s[9] = {"Markow-Kette", "Markow-Kette: Übergangsmatrix, eine Zeile je Zustand", S, true,
            {textFeld("Übergangswahrscheinlichkeiten", "0,5 0,5 0\n0,2 0,6 0,2\n0 0,3 0,7"),
             zahlFeld("Anfangszustand", "0"), zahlFeld("Anzahl der Schritte", "10000")},
            [](const Eingaben& e, Zufall& z, const Fortschritt& f) {
                const Markow m = markowAusText(e[0]);
                return markowSimulation(m, int(ganz(e[1], 0, 0, 1000)), ganz(e[2], 10000, 1, 100000000), z, f);
            }};

    s[10] = {"Diskrete Verteilungen", "Diskrete Wahrscheinlichkeitsverteilungen", B, false,
             {auswahl("Verteilung", diskreteNamen()), zahlFeld("Anzahl der Versuche", "20"),
              zahlFeld("Wahrscheinlichkeit", "0,3"), zahlFeld("", "10"), zahlFeld("", "1")},
             [](const Eingaben& e, Zufall&, const Fortschritt&) {
                 const Diskret art = static_cast<Diskret>(std::min(index(e[0]), kDiskretAnzahl - 1));
                 DiskreteVerteilung v{art, {}};
                 for (size_t i = 0; i < diskreteParameter(art).size(); ++i) v.par.push_back(feldZahl(e[1 + i], 0));
                 Diagramm d;
                 Zeilen z = diskreteTabelle(v, &d);
                 return nurZeilen(z, d);
             },
             [](int art) {
                 auto n = diskreteParameter(static_cast<Diskret>(std::clamp(art, 0, kDiskretAnzahl - 1)));
                 n.resize(4);
                 return n;
             }};

    s[11] = {"Stetige Verteilungen", "Stetige Verteilungen: Dichte, Verteilungsfunktion, Quantile", B, false,
             {auswahl("Verteilung", stetigeNamen()), zahlFeld("Freiheitsgrade", "5"), zahlFeld("", "2"),
              zahlFeld("von x", "-4"), zahlFeld("bis x", "4")},
             [](const Eingaben& e, Zufall&, const Fortschritt&) {
                 const Stetig art = static_cast<Stetig>(std::min(index(e[0]), kStetigAnzahl - 1));
                 const StetigeVerteilung v{art, feldZahl(e[1], 1), feldZahl(e[2], 1)};
                 double von = feldZahl(e[3], 0), bis = feldZahl(e[4], 1);
                 if (!(bis > von)) stetigerBereich(v, von, bis);
                 Diagramm d;
                 Zeilen z = stetigeTabelle(v, von, bis, 20, &d);
                 if (verteilungsstatus == stParameter) z.insert(z.begin(), "Ungültige Parameter");
                 return nurZeilen(z, d);
             },
             [](int art) {
                 auto n = stetigeParameter(static_cast<Stetig>(std::clamp(art, 0, kStetigAnzahl - 1)));
                 n.resize(2);
                 n.push_back("von x");
                 n.push_back("bis x");
                 return n;
             }};

    s[12] = {"Normalverteilung", "Normalverteilung mit Mittelwert und Varianz", B, false,
             {auswahl("Art", {"Normalverteilung", "Logarithmische Normalverteilung"}), zahlFeld("Mittelwert", "100"),
              zahlFeld("Varianz", "225"), zahlFeld("untere Grenze a", "85"), zahlFeld("obere Grenze b", "115")},
             [](const Eingaben& e, Zufall&, const Fortschritt&) {
                 Diagramm d;
                 Zeilen z = normalTabelle(index(e[0]) == 1, feldZahl(e[1], 0), feldZahl(e[2], 1), feldZahl(e[3], -1),
                                          feldZahl(e[4], 1), &d);
                 return nurZeilen(z, d);
             }};

    s[13] = {"", "Binomial-Signifikanztest", B, false,
             {zahlFeld("Stichprobenumfang n", "100"), zahlFeld("Nullhypothese p", "0,5"), zahlFeld("Trefferzahl k", "58"),
              auswahl("Irrtumswahrscheinlichkeit", {"5 %", "1 %"}), auswahl("Test", {"zweiseitig", "einseitig"})},
             [](const Eingaben& e, Zufall&, const Fortschritt&) {
                 Diagramm d;
                 Zeilen z = binomialTestZeilen(ganz(e[0], 100, 1, 100000), feldZahl(e[1], 0.5), ganz(e[2], 0, -1, 100001),
                                               index(e[3]) == 1 ? 0.01 : 0.05, index(e[4]) == 0, &d);
                 return nurZeilen(z, d);
             }};

    s[14] = {"", "Statistische Tests: t-Test für den Mittelwert", B, false,
             {textFeld("Stichprobe", "10,2 9,8 10,4 10,1 9,9 10,6 10,3 10,0 10,5 10,2"), zahlFeld("Mittelwert der Nullhypothese", "10"),
              auswahl("Irrtumswahrscheinlichkeit", {"0,05", "0,01", "0,001"}), auswahl("Test", {"zweiseitig", "einseitig"})},
             [](const Eingaben& e, Zufall&, const Fortschritt&) {
                 static const double a[] = {0.05, 0.01, 0.001};
                 const auto w = leseZahlen(e[0]);
                 return nurZeilen(tTestZeilen(w, feldZahl(e[1], 0), a[std::min(index(e[2]), 2)], index(e[3]) == 0),
                                  statistikDiagramm(w));
             }};

    s[15] = {"", "Chi²-Verteilungstest", B, false,
             {auswahl("Test auf", testArten(), 1), textFeld("Häufigkeiten (bei Normalverteilung: Werte)", "18 22 16 25 21 18"),
              textFeld("Wahrscheinlichkeiten (theoretische Verteilung)", ""), auswahl("Irrtumswahrscheinlichkeit", {"5 %", "1 %"})},
             [](const Eingaben& e, Zufall&, const Fortschritt&) {
                 Diagramm d;
                 Zeilen z = chiTestZeilen(index(e[0]), leseZahlen(e[1]), leseZahlen(e[2]), index(e[3]) == 1 ? 0.01 : 0.05, &d);
                 return nurZeilen(z, d);
             }};

    s[16] = {"Statistische Auswertung von Datenpaaren", "Statistische Auswertung von Datenpaaren", B, false,
             {auswahl("Beispieldaten", beispielNamen(), 5, true), textFeld("x-Werte", beispielXY(5, true)[0]),
              textFeld("y-Werte", beispielXY(5, true)[1])},
             [](const Eingaben& e, Zufall&, const Fortschritt&) {
                 Diagramm d;
                 Zeilen z = paarZeilen(leseZahlen(e[1]), leseZahlen(e[2]), &d);
                 return nurZeilen(z, d);
             },
             {}, [](int nr) { return beispielXY(nr, true); }};

    s[17] = {"Bedingte Wahrscheinlichkeit", "Vierfeldertafel und bedingte Wahrscheinlichkeit", B, false,
             {zahlFeld("A und B", "40"), zahlFeld("nicht A und B", "10"), zahlFeld("A und nicht B", "20"),
              zahlFeld("nicht A und nicht B", "30")},
             [](const Eingaben& e, Zufall&, const Fortschritt&) {
                 Diagramm d;
                 Zeilen z = vierfeldZeilen(feldZahl(e[0], 0), feldZahl(e[1], 0), feldZahl(e[2], 0), feldZahl(e[3], 0), &d);
                 return nurZeilen(z, d);
             }};

    s[18] = {"Ziegenproblem", "Ziegenproblem: bleiben oder wechseln?", S, true, {zahlFeld("Anzahl der Spiele", "1000")},
             [](const Eingaben& e, Zufall& z, const Fortschritt& f) {
                 return ziegenSimulation(ganz(e[0], 1000, 1, 100000000), z, f);
             }};

    s[19] = {"Ausgleich absoluter Häufigkeiten", "Gesetz der großen Zahlen beim Würfeln", S, true,
             {zahlFeld("Anzahl der Würfe", "60000")},
             [](const Eingaben& e, Zufall& z, const Fortschritt& f) {
                 return ausgleichSimulation(ganz(e[0], 60000, 1, 100000000), z, f);
             }};

    s[20] = {"Würfel von Efron", "Würfel von Efron: Kain gegen Abel", S, true,
             {auswahl("Kain", efronNamen(), 0), auswahl("Abel", efronNamen(), 3), zahlFeld("Anzahl der Spiele", "1000")},
             [](const Eingaben& e, Zufall& z, const Fortschritt& f) {
                 return efronSpiel(index(e[0]), index(e[1]), ganz(e[2], 1000, 1, 100000000), z, f);
             }};

    s[21] = {"Geburtstagsproblem", "Geburtstagsproblem", S, true,
             {zahlFeld("Personenzahl", "23"), zahlFeld("Testläufe", "1000")},
             [](const Eingaben& e, Zufall& z, const Fortschritt& f) {
                 return geburtstagSimulation(int(ganz(e[0], 23, 1, 100000)), ganz(e[1], 1000, 1, 100000000), z, f);
             }};
    return s;
}
}  // namespace

std::string datengruppe(int seite)
{
    switch (seite) {
    case 0:
    case 14: return "dat";
    case 4: return "kfi";
    case 1:
    case 2: return "kur";
    case 16: return "kor";
    case 3: return "wve";
    case 9: return "mar";
    case 15: return "vte";
    default: return "ein";
    }
}

std::vector<std::string> datenSchreiben(int seite, const Eingaben& e)
{
    std::vector<std::string> z = {datengruppe(seite), std::to_string(seite)};
    for (const auto& feld : e) {
        std::string t;
        for (char ch : feld) {
            if (ch == '\\') t += "\\\\";
            else if (ch == '\n') t += "\\n";
            else if (ch != '\r') t += ch;
        }
        z.push_back(t);
    }
    return z;
}

bool datenLesen(int seite, const std::vector<std::string>& zeilen, Eingaben& e)
{
    // pages of one group differ in their fields: the page itself must match
    if (zeilen.size() != e.size() + 2 || zeilen[0] != datengruppe(seite) || zeilen[1] != std::to_string(seite))
        return false;
    for (size_t i = 0; i < e.size(); ++i) {
        std::string t;
        const std::string& z = zeilen[i + 2];
        for (size_t k = 0; k < z.size(); ++k) {
            if (z[k] == '\\' && k + 1 < z.size()) {
                t += z[k + 1] == 'n' ? '\n' : z[k + 1];
                ++k;
            } else {
                t += z[k];
            }
        }
        e[i] = t;
    }
    return true;
}

double feldZahl(const std::string& text, double vorgabe)
{
    if (text.find_first_not_of(" \t") == std::string::npos) return vorgabe;
    const double v = quorix::ReadTermValue(text);
    return quorix::TermError != 0 || !std::isfinite(v) ? vorgabe : v;
}

const std::vector<Seite>& seiten()
{
    static const std::vector<Seite> s = bauen();
    return s;
}

}  // namespace zufall
