#pragma once
// The computation behind Tfphase: formula expansion, trial division, Pollard rho, elliptic
// curves and the sieve as the last stage. Lines go to the hooks.
#include "numbers/factor/factor_hooks.h"
#include "numbers/factor/mpqs.h"

#include <string>
#include <vector>

namespace numbers {

// Message number 60 of the message table: the number is too long for the tool.
extern const char* const PhaseMessage60;

struct PhaseOptions {
    std::string text;         // E8: a number or F(n), M(n), P(a,b), R(a,b)
    int groupLimit = 1200;    // E15
    int digitLimit = 50;      // E11
    bool onlyFactors = false; // CB9 "nur Faktoren ausgeben"
    bool mpqs = false;        // Cb14 "MPQS-Faktorisierung sofort bei weniger als ... Stellen"
    bool productCheck = false;  // CheckBox1 (hidden)
};

class PhaseHooks : public FactorHooks {
public:
    // A rest too long for the internal sieve goes to Tfaktform; the answer is its result text.
    // The default runs Tfaktform's computation without a window.
    virtual std::string faktform(const std::string& digits);
};

struct PhaseOutcome {
    std::string number;               // the digits after expansion
    std::vector<FactorPiece> pieces;  // ascending, merged
    bool tooLong = false;             // message 60 was due
    bool complete = false;
    bool aborted = false;
};

// F(n) Fibonacci 2 <= n < 400, M(n) = 2^n - 1 for 2 <= n < 320, P(a,b) = a 2^b + 1 and
// R(a,b) = a 2^b - 1 while log10(a) + b log10(2) < 84; a call out of range gives "1".
// Any other text comes back unchanged.
std::string phaseExpandFormula(const std::string& text);

PhaseOutcome phaseRun(const PhaseOptions& options, PhaseHooks& hooks);

}  // namespace numbers
