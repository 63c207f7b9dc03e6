// The topic table of TFnumer and the dispatch from topic number to routine.
#include "algebra/numer.h"
#include "algebra/numer_intern.h"
#include "kernel/realtostr.h"
#include "kernel/term.h"
#include "numbers/mp_types.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <cctype>
#include <climits>
#include <exception>

namespace numer {

namespace {
Thema t(std::string name, std::vector<std::string> felder, std::vector<std::string> vorgabe,
        std::vector<std::string> optionen = {}, std::string spalten = "", bool da = true)
{
    return {std::move(name), std::move(felder), std::move(vorgabe), std::move(optionen), std::move(spalten), da};
}
Thema fehlt(std::string name) { return t(std::move(name), {}, {}, {}, "", false); }
}  // namespace

const std::vector<Thema>& themen()
{
    static const std::vector<Thema> liste = {
        t("Pythagoreische Zahlen", {"Hypotenuse bis"}, {"100"}, {}, "a\tb\tc"),
        fehlt("Jahreskalender astronomischer Ereignisse"),
        t("Fastpythagoreische Tripel", {"c bis"}, {"50"}, {}, "a² + b²\tc² ± 1"),
        t("Teilerzahl, Teilersumme", {"Zahl"}, {"360"}, {}, "Teiler\tKomplementärteiler"),
        t("196-Algorithmus", {"Startzahl", "höchstens Schritte"}, {"89", "100"}, {}, "Schritt\tZahl"),
        t("Eigenschaften einer Zahl", {"Zahl"}, {"496"}, {}, "Eigenschaft\t\tWert"),
        t("Komplexe Zahl, Berechnung", {"Realteil a", "Imaginärteil a", "Realteil b", "Imaginärteil b"},
          {"3", "4", "", ""}, {}, "Größe\tWert"),
        t("Addington-Ketten", {"Zahl n"}, {"127"}, {}, "Glied\tWert\tBildung"),
        fehlt("Dämmerung"),
        t("Waring-Problem", {"von", "bis"}, {"1", "100"}, {"Quadrate", "Kuben", "Biquadrate"}, "Zahl\tAnzahl\tZerlegung"),
        t("Sonnen- und Mondfinsternisse", {"von Jahr", "bis Jahr"}, {"2026", "2030"}, {}, "Zeitpunkt\tFinsternis\tArt"),
        t("Iterationsberechnung", {"Term f(X)", "Startwert X0", "Parameter P", "Anzahl"}, {"P*X*(1-X)", "0.5", "3.2", "30"},
          {}, "Schritt\tx\tÄnderung"),
        t("Zinsrechnung", {"Kapital €", "Zinssatz %", "Jahre, Tage", "Rate €"}, {"10000", "5", "10", "1000"},
          {"Jahreszinsen", "Tageszinsen,Diskont", "Tilgungsrate nachschüssig", "Tilgungsrate vorschüssig",
           "Zinseszinsen"},
          "Größe\tWert"),
        t("Goldbachsche Vermutung", {"von", "bis"}, {"4", "100"}, {"eine Zerlegung", "alle Zerlegungen"}, "Zerlegung"),
        t("Zahlenfolge 3a+1", {"Startzahl a"}, {"27"}, {}, "Schritt\tgerade Glieder\tungerade Glieder"),
        t("Partitionen", {"Zahl n", "anzuzeigen"}, {"7", "100"}, {}, "Nummer\tPartition"),
        t("Zahlumwandlung", {"Index von", "bis"}, {"0", "50"}, {"Fibonacci-Zahlen", "Lucas-Zahlen", "Zahlsysteme"},
          "Index         \tFibonacci-Zahlen"),
        t("Zahluntersuchung", {"Zahl z"}, {"97"}, {}, "Größe\tWert"),
        t("Befreundete Zahlen", {"bis"}, {"100000"}, {}, "a\tb"),
        t("Feiertage, Jahrestage", {"Jahr"}, {"2025"}, {}, "Gedenk- und Feiertage\tDatum"),
        t("g-adische Bruchdarstellung", {"Zähler", "Nenner", "Basis g"}, {"1", "7", "2"}, {}, "Größe\tWert"),
        t("Annuitätentilgung", {"Schuld K €", "Zinssatz p %", "Annuität A €"}, {"100000", "6", "10000"}, {},
          "Größe\tWert"),
        t("Distanz-m-Primzahlen", {"von", "bis", "Abstand m"}, {"1", "1000", "6"}, {}, "p\tp+m"),
        t("Cunningham-Reihe", {"erste Zahl bis", "Mindestlänge"}, {"10000", "4"}, {"1.Art", "2.Art"}, "Reihe"),
        fehlt("Sonnenaufgang"),
        t("Scherk-Zerlegung", {"Index von", "bis"}, {"1", "30"}, {}, "Index\tZerlegung\tAnzahl"),
        t("Moser-Problem", {"Punkte bis"}, {"10"}, {}, "Punkte\tGebiete"),
        t("Kombinatorik", {"n", "k", "k2", "k3"}, {"10", "3", "", ""},
          {"Fakultät", "Kombinationen ohne Wiederholung", "Kombinationen mit Wiederholung",
           "Variationen ohne Wiederholung", "Variationen mit Wiederholung", "Permutationen mit Wiederholungen"},
          "Größe\tWert"),
        t("Primzahlen", {"von", "bis"}, {"1", "1000"},
          {"Primzahlen", "Primzahlzwillinge", "Cousin-Primzahlen", "Sexy-Primzahlen", "Primzahlvierlinge",
           "Umkehrbare Primz.", "Germain-Primz.", "Primzahlen der Form 4N+1", "Gute Primzahlen", "n.Primzahl",
           "Anzahl bis n"},
          "Primzahlen"),
        t("Zahlwörter", {"von", "bis"}, {"1", "100"}, {"Deutsch", "Englisch", "Französisch", "Italienisch", "Spanisch"},
          "Zahl\tZahlwort"),
        t("Primzahltupel", {"von", "bis", "Muster (Abstände)"}, {"1", "100000", "0 2 6 8 12"}, {}, "Tupel"),
        fehlt("Planetenkonjunktion"),
        fehlt("Rivera-Vermutung"),
        t("Primfaktorzerlegung", {"von", "bis"}, {"1000", "1050"}, {}, "Zahl\tZerlegung"),
        t("ggT, kgV, Teiler", {"Zahl a", "Zahl b"}, {"84", "120"}, {}, "Größe\tWert"),
        t("Heron-Verfahren, Berechnung", {"Radikand a", "Startwert x0", "Schritte"}, {"2", "1", "8"}, {},
          "Näherungswerte\tStartwerte"),
        fehlt("Primzahlketten"),
        t("Teilersummenfolge", {"Startzahl", "Glieder"}, {"12496", "30"}, {}, "Glied\tZahl"),
        fehlt("Lebenserwartung"),
        t("Bernoullische Zahlen", {"Index von", "bis"}, {"0", "30"}, {}, "Index\tZähler\tNenner"),
    };
    return liste;
}

bool leseGanz(const std::string& text, int64_t lo, int64_t hi, int64_t& wert)
{
    std::string s;
    for (char c : text)
        if (c != ' ') s += c;
    if (s.empty()) return false;
    char* ende = nullptr;
    errno = 0;
    const long long v = std::strtoll(s.c_str(), &ende, 10);
    if (*ende != '\0' || errno == ERANGE) return false;
    if (v < lo || v > hi) return false;
    wert = v;
    return true;
}

bool leseReell(const std::string& text, double& wert)
{
    std::string s;
    for (char c : text)
        if (c != ' ') s += c == ',' ? '.' : static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    if (s.empty()) return false;
    char* ende = nullptr;
    const double v = std::strtod(s.c_str(), &ende);
    if (*ende == '\0' && std::isfinite(v)) {
        wert = v;
        return true;
    }
    // a term is valid wherever a number is expected
    quorix::TermError = 0;
    const double t = quorix::EvalTerm(s, 1.0);
    if (quorix::TermError != 0 || !std::isfinite(t)) return false;
    wert = t;
    return true;
}

namespace intern {

std::string zahl(double x, int stellen) { return kernel::RealToStr(1, stellen, x); }
std::string z(int64_t v) { return std::to_string(v); }

bool Lauf::ganz(size_t i, int64_t lo, int64_t hi, int64_t& w)
{
    const std::string f = feld(i);
    if (f.empty()) {
        fehler("Zahlen eingeben");
        return false;
    }
    if (leseGanz(f, lo, hi, w)) return true;
    int64_t probe;
    if (leseGanz(f, INT64_MIN, INT64_MAX, probe))
        fehler(probe < lo ? "Zahl zu klein" : "Zahl zu groß");
    else if (f.find_first_not_of("0123456789") == std::string::npos)
        fehler("Zahl zu groß");  // digits beyond 64 bit
    else
        fehler("Ungültige Zahl: " + f);
    return false;
}

bool Lauf::reell(size_t i, double& w)
{
    const std::string f = feld(i);
    if (f.empty()) {
        fehler("Zahlen eingeben");
        return false;
    }
    if (leseReell(f, w)) return true;
    fehler("Ungültige Zahl: " + f);
    return false;
}

}  // namespace intern

Ergebnis berechne(int thema, const Eingabe& eingabe, const Fortschritt& fortschritt)
{
    using namespace intern;
    Ergebnis erg;
    Lauf l{eingabe, erg, fortschritt};
    using Routine = void (*)(Lauf&);
    static const Routine routinen[ThemenAnzahl] = {
        pythagoras, nullptr, fastPythagoras, teiler, algo196, eigenschaften, komplex, additionsketten, nullptr, waringThema,
        finsternisse, iteration, zinsen, goldbach, collatz, partitionenThema, fibonacciThema, untersuchung, befreundet,
        feiertage, gadisch, annuitaet, distanz, cunningham, nullptr, scherkThema, moser, kombinatorik, primzahlen,
        zahlwoerter, tupel, nullptr, nullptr, zerlegungThema, ggtKgv, heron, nullptr, aliquot, nullptr, bernoulliThema};
    if (thema < 0 || thema >= ThemenAnzahl || !routinen[thema]) {
        l.fehler("Dieses Thema ist in dieser Ausgabe nicht enthalten.");
        return erg;
    }
    numbers::mp_reset_error();
    try {
        routinen[thema](l);
    } catch (const std::exception&) {
        // the long numbers throw when a value outgrows them; their error flag is sticky
        numbers::mp_reset_error();
        l.fehler("Zahl zu groß");
    }
    if (l.weggelassen > 0)
        erg.zeilen.insert(erg.zeilen.begin() + Lauf::MaxZeilen,
                          "(" + std::to_string(l.weggelassen) + " weitere Zeilen nicht angezeigt)");
    return erg;
}

}  // namespace numer
