#pragma once
// The computation behind TFnumer: forty topics, each a routine that turns the labelled input
// fields into lines of a result table (columns separated by tabs). No Qt here.
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace numer {

struct Thema {
    std::string name;                  // list entry, German
    std::vector<std::string> felder;   // labels of the input fields in use (at most four)
    std::vector<std::string> vorgabe;  // their default texts
    std::vector<std::string> optionen; // labels of the option radio buttons (may be empty)
    std::string spalten;               // column heads of the result list, tab separated
    bool vorhanden = true;             // false: left out in this build (astronomical pages)
};

constexpr int ThemenAnzahl = 40;
// The topic list by number 0..39.
const std::vector<Thema>& themen();

struct Eingabe {
    std::vector<std::string> felder;  // texts of the fields, as typed
    int option = 0;                   // chosen radio button
};

// Called at progress steps with 0..100; answering false aborts the run.
using Fortschritt = std::function<bool(int prozent)>;

struct Ergebnis {
    std::vector<std::string> zeilen;
    bool fehler = false;      // a message instead of a table
    bool abgebrochen = false;
};

// Runs topic `thema`. Never throws on bad input: the message is the result line.
Ergebnis berechne(int thema, const Eingabe& eingabe, const Fortschritt& fortschritt = {});

// ---- building blocks, shared by the topics and open to tests
// A whole number from a field: "," and "." thousands marks are not allowed; a term is not either.
// False when the text is no number or lies outside [lo, hi].
bool leseGanz(const std::string& text, int64_t lo, int64_t hi, int64_t& wert);
// A real number from a field: "," taken as "."; terms through the interpreter.
bool leseReell(const std::string& text, double& wert);

bool istPrim(uint64_t n);                                  // deterministic for 64 bit
std::vector<std::pair<uint64_t, int>> zerlege(uint64_t n); // ascending primes with exponents
std::string zerlegungText(uint64_t n);                     // "2^3 · 3 · 5"
uint64_t teilersumme(uint64_t n);                          // sigma(n), n < 2^63 / something
uint64_t eulerPhi(uint64_t n);
std::vector<uint64_t> primzahlenBis(uint64_t n);           // sieve, n up to about 10^8

// Decimal texts of big values, computed on the long numbers.
std::string fakultaet(int n);
std::string binomial(int n, int k);
std::string fibonacci(int n);
std::string lucas(int n);
std::string partitionen(int n);
// The cardinal of 0 <= n < 10^12 as a word: 0 German, 1 English, 2 French, 3 Italian, 4 Spanish.
std::string zahlwort(int64_t n, int sprache);
// A shortest addition chain 1 = a0 < a1 < ... < ar = n, each a sum of two earlier members.
std::vector<int64_t> additionskette(int64_t n);
// The bases of a shortest sum of k-th powers equal to n, descending.
std::vector<int64_t> waring(int64_t n, int k);
// Scherk's representation of the i-th prime (1 counted as p0): "2·p(i-1) ± p(i-2) ± ... ± 1" for odd i,
// "p(i-1) ± ... ± 1" for even i; "" when i is out of 1..300. `anzahl` gets the number of
// representations for i <= 64 (0 above).
std::string scherk(int i, uint64_t* anzahl = nullptr);
// Numerator and denominator of the Bernoulli number B(n), sign on the numerator.
std::pair<std::string, std::string> bernoulli(int n);

}  // namespace numer
