#pragma once
// Shared between the topic files: the signature of a topic routine and output helpers.
#include "algebra/numer.h"

#include <string>

namespace numer::intern {

struct Lauf {
    const Eingabe& ein;
    Ergebnis& erg;
    const Fortschritt& fortschritt;
    size_t weggelassen = 0;
    static constexpr size_t MaxZeilen = 100000;

    // A table row; rows beyond MaxZeilen are counted, not kept, so the list stays usable.
    void zeile(const std::string& s)
    {
        if (erg.zeilen.size() < MaxZeilen)
            erg.zeilen.push_back(s);
        else
            ++weggelassen;
    }
    // A closing line (count, summary): always kept.
    void schluss(const std::string& s) { erg.zeilen.push_back(s); }
    // Message instead of a table.
    void fehler(const std::string& s)
    {
        erg.zeilen.push_back(s);
        erg.fehler = true;
    }
    // Reports progress; false when the user stopped the run.
    bool weiter(int prozent)
    {
        if (erg.abgebrochen) return false;
        if (fortschritt && !fortschritt(prozent)) erg.abgebrochen = true;
        return !erg.abgebrochen;
    }
    std::string feld(size_t i) const { return i < ein.felder.size() ? ein.felder[i] : std::string(); }
    // Field i as a whole number in [lo, hi]; on failure the message is written and false returned.
    bool ganz(size_t i, int64_t lo, int64_t hi, int64_t& w);
    bool reell(size_t i, double& w);
};

std::string zahl(double x, int stellen = 2);  // the shared real-to-text routine
std::string z(int64_t v);

void pythagoras(Lauf& l);        // 0
void fastPythagoras(Lauf& l);    // 2
void teiler(Lauf& l);            // 3
void algo196(Lauf& l);           // 4
void eigenschaften(Lauf& l);     // 5
void komplex(Lauf& l);           // 6
void iteration(Lauf& l);         // 11
void zinsen(Lauf& l);            // 12
void goldbach(Lauf& l);          // 13
void collatz(Lauf& l);           // 14
void partitionenThema(Lauf& l);  // 15
void fibonacciThema(Lauf& l);    // 16
void untersuchung(Lauf& l);      // 17
void befreundet(Lauf& l);        // 18
void feiertage(Lauf& l);         // 19
void gadisch(Lauf& l);           // 20
void annuitaet(Lauf& l);         // 21
void distanz(Lauf& l);           // 22
void cunningham(Lauf& l);        // 23
void moser(Lauf& l);             // 26
void kombinatorik(Lauf& l);      // 27
void primzahlen(Lauf& l);        // 28
void zahlwoerter(Lauf& l);      // 29
void tupel(Lauf& l);
void scherkThema(Lauf& l);      // 25
void additionsketten(Lauf& l);  // 7
void waringThema(Lauf& l);      // 9             // 30
void zerlegungThema(Lauf& l);    // 33
void ggtKgv(Lauf& l);            // 34
void heron(Lauf& l);             // 35
void aliquot(Lauf& l);           // 37
void bernoulliThema(Lauf& l);    // 39
void finsternisse(Lauf& l);      // 10, on the ephemeris kernel

}  // namespace numer::intern
