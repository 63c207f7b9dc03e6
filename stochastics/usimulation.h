#pragma once
// Random experiments: dice, cards, lottery, goat problem, Efron's dice, birthdays, Markov chains,
// the path rule and the law of large numbers. Every simulation takes its generator, so a seed
// repeats a run; each also gives the exact probabilities it should approach.
#include "stochastics/diagramm.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace zufall {

// xoshiro256** seeded through splitmix64: fast, and the same numbers on every machine.
class Zufall {
public:
    explicit Zufall(std::uint64_t seed = 1);
    std::uint64_t naechste();
    int random(int n);  // uniform in 0..n-1, without modulo bias
    double gleich();    // uniform in [0, 1)

private:
    std::uint64_t s_[4];
};

// Called about every percent of a long run with 0..100; returning false stops the run.
using Fortschritt = std::function<bool(int prozent)>;

struct Ergebnis {
    Zeilen zeilen;
    Diagramm bild;
    bool abgebrochen = false;
};

// ---- Dice: kinds "Idealer Würfel", "Efron-Würfel", "Oktaeder-Würfel", "Sicherman-Würfel"
const std::vector<std::string>& wuerfelNamen();
std::vector<int> wuerfelSeiten(int art, int nummer);  // faces of die `nummer` (0-based) of a kind
// Exact distribution of the sum of `anzahl` dice; index = sum. `gewichte` (if not empty) are the
// face probabilities of die 1.
std::vector<double> augensummenVerteilung(int art, int anzahl, const std::vector<double>& gewichte = {});
Ergebnis wuerfelExperiment(int art, int anzahl, long wuerfe, Zufall& z, const std::vector<double>& gewichte = {},
                           const Fortschritt& f = {});

// ---- Cards: "Skatkarte" (32) or "Bridgekarte" (52); a hit is an ace.
const std::vector<std::string>& kartenNamen();
Ergebnis kartenExperiment(int deck, bool mitZuruecklegen, long zuege, Zufall& z, const Fortschritt& f = {});

// ---- Lottery: k of n, optional additional number, a tip of k numbers.
struct Lottoklasse {
    std::string name;
    int richtige = 0;
    bool zusatz = false;
    double exakt = 0;  // probability per draw
    long anzahl = 0;
};
std::vector<Lottoklasse> lottoKlassen(int k, int n, bool zusatzzahl);
Ergebnis lottoSimulation(int k, int n, bool zusatzzahl, const std::vector<int>& tipp, long ziehungen, Zufall& z,
                         const Fortschritt& f = {});

// ---- Goat problem: the share of wins when staying and when switching.
Ergebnis ziegenSimulation(long spiele, Zufall& z, const Fortschritt& f = {});

// ---- Efron's dice "Würfel A".."Würfel D", "idealer Würfel"; players Kain and Abel.
const std::vector<std::string>& efronNamen();
double efronGewinn(int wuerfel1, int wuerfel2);  // P(die 1 shows more than die 2)
Ergebnis efronSpiel(int kain, int abel, long spiele, Zufall& z, const Fortschritt& f = {});

// ---- Birthdays: chance that among `personen` two share a birthday (365 equal days).
double geburtstagExakt(int personen);
Ergebnis geburtstagSimulation(int personen, long laeufe, Zufall& z, const Fortschritt& f = {});

// ---- Markov chain: rows of transition probabilities; a walk from `start` and the exact laws.
struct Markow {
    std::vector<std::vector<double>> p;
    std::string fehler;  // empty when the matrix is usable
};
Markow markowAusText(const std::string& text);  // one row per line, numbers separated by blanks
std::vector<double> markowSchritte(const Markow& m, int start, int schritte);  // law after n steps
std::vector<double> markowStationaer(const Markow& m);
Ergebnis markowSimulation(const Markow& m, int start, long schritte, Zufall& z, const Fortschritt& f = {});

// ---- Path rule: an urn with balls of several colours, drawn `zuege` times with or without
// putting back; the probability of one path and of its colour counts in any order.
struct Pfad {
    double wahrscheinlichkeit = 0;       // of the path in the given order
    double ohneReihenfolge = 0;          // of the same colour counts in any order
};
Pfad pfadregel(const std::vector<int>& kugeln, const std::vector<int>& pfad, bool zuruecklegen);
Ergebnis pfadErgebnis(const std::vector<int>& kugeln, const std::vector<int>& pfad, bool zuruecklegen);

// ---- Law of large numbers: a die thrown n times, absolute frequencies against the smallest.
Ergebnis ausgleichSimulation(long wuerfe, Zufall& z, const Fortschritt& f = {});

}  // namespace zufall
