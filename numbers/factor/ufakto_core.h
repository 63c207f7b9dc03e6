#pragma once
// The computation behind Tfaktform: trial division by the prime table, then the sieve.
// Lines go to the hooks as the window writes them into its list.
#include "numbers/factor/factor_hooks.h"
#include "numbers/factor/mpqs.h"

#include <string>
#include <vector>

namespace numbers {

extern const char* const MacronLine;  // 47 macrons under each run

struct FaktformOutcome {
    std::vector<FactorPiece> pieces;  // ascending, equal primes merged
    std::string resultText;           // "p (d) · (q^e) · c (d) nicht prim" for the opener
    bool prime = false;               // the number itself is a probable prime
    bool complete = false;            // every piece is prime
    bool aborted = false;
};

// E1's filter: digits only, a sign only at the head, a leading "0" dropped.
std::string faktformFilter(const std::string& text);
// d2: 10 to 79 random digits followed by one of 1, 3, 5, 7, 9.
std::string faktformRandom();
// d1: the whole run on a decimal text (no sign). Zero does nothing.
FaktformOutcome faktformRun(const std::string& digits, FactorHooks& hooks);

// Sorts and merges equal values.
void mergePieces(std::vector<FactorPiece>& pieces);
// "2^3 · 5 · 7": ascending, a repeated factor as p^e, joined by " · ".
std::string factorListText(const std::vector<FactorPiece>& pieces);
// The pieces of a result text "p (d) · (q^e) · c (d) nicht prim".
std::vector<FactorPiece> parseResultText(const std::string& text);

}  // namespace numbers
