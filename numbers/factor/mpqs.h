#pragma once
// The multiple-polynomial quadratic sieve on TVarInt with large-prime relations (unit Ufakto).
// Only one sieve runs at a time: TVarInt shares its product array.
#include "numbers/factor/factor_hooks.h"
#include "numbers/tvarint.h"

#include <string>
#include <vector>

namespace numbers {

struct MpqsParams {
    int blockWidth = 2;   // bits per block of the matrix packing
    int fbSize = 8;       // primes in the factor base (index 1 = 2)
    int sieveLen = 80;    // half width M of the interval [-M, M)
    uint32_t multiplier = 1;
    int digitsKN = 0;     // decimal digits of k N
    int skip = 12;        // primes below this index are not sieved
    int storeFactor = 5;  // partial store = storeFactor * fbSize
    int lpMultiplier = 100;
    int period = 8;       // polynomials are prepared in batches of 2 * period
    double fudge = 3.0;
};

// Block width, FBsize and sieve length from the table by the bit length (digits under 40 bits).
MpqsParams mpqsTableParams(int bits, int digits);
// Skip, store factor, large-prime multiplier, period and fudge by the digits of k N.
void mpqsDigitParams(int digitsKN, MpqsParams& p);
// Knuth-Schroeppel: the multiplier among the 49 candidates, scored over the first fbSize primes.
uint32_t mpqsMultiplier(const TVarInt& n, int fbSize);
// All of the above for n.
MpqsParams mpqsParameters(const TVarInt& n);

enum class MpqsOutcome { Split, NoSplit, Aborted };

struct MpqsStats {
    int polynomials = 0;
    int candidates = 0;    // cells over the threshold
    int fullDirect = 0;    // relations that factored completely
    int fullCombined = 0;  // from two partials with the same large prime
    int partials = 0;
    int dependencies = 0;  // tried in the square-root step
    int squareFailures = 0;
};

// One run of the sieve on a composite n that is no perfect power: d := a proper divisor.
MpqsOutcome mpqsSplit(const TVarInt& n, const MpqsParams& p, TVarInt& d, FactorHooks* hooks,
                      MpqsStats* stats = nullptr);

// A perfect power n = b^e with e > 1 (largest e found by the scan), else e = 1 and b = n.
int perfectPower(const TVarInt& n, TVarInt& base);

// One piece of a factorization: value^exponent, prime or left composite ("nicht prim").
struct FactorPiece {
    TVarInt value;
    int exponent = 1;
    bool prime = true;
};

// The sieve stage: powers, the split, the recursion on composite parts. Lines go to hooks.
MpqsOutcome mpqsFactor(const TVarInt& n, std::vector<FactorPiece>& out, FactorHooks& hooks);

// "%s (%d)" with the digit count, a power "(%s^%d)".
std::string pieceText(const FactorPiece& f);
int decimalDigits(const TVarInt& n);

}  // namespace numbers
