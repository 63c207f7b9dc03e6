#pragma once
// Core of the long-number calculator Trechla: operands as text in base 2..16, results as text.
#include "numbers/mp_types.h"

#include <string>

namespace numbers {

enum class RechlaOp { Add, Sub, Mul, Div, Mod, Gcd, Lcm, Fact, Sqr, Sqrt, Pow, Primorial, Binom, Falling };

constexpr int RechlaMaxDigits = 5000;         // decimal digits of the loop results
constexpr int RechlaMaxWritten = 10000;       // digits written in a base other than 10
extern const char* const RechlaBaseMessage;   // "Zahleingabe nicht korrekt. Basis beachten."

// Reads an operand; an empty text is 0. False (and 0) for a character outside the base.
bool rechlaReadOperand(const std::string& text, int base, mp_int& out);
// Writes a result: base 10 through the decimal writer, else digit by digit, at most 10000 digits
// (a longer number is cut off at its high end).
std::string rechlaWrite(const mp_int& value, int base);

struct RechlaResult {
    std::string text;     // digits of the result, or the overflow text
    bool overflow = false;
    std::string error;    // a kernel message (e.g. "mp_divrem: b=0"), or the base message
};

// Reads both operands anew and runs one operation, as the buttons do.
RechlaResult rechlaCompute(RechlaOp op, const std::string& a, const std::string& b, int base);
// Same on numbers already read; result into r. Answers the overflow text or "".
std::string rechlaOperate(RechlaOp op, const mp_int& a, const mp_int& b, mp_int& r);

int rechlaDecimalLength(const mp_int& a);  // digits of |a| in base 10, 1 for zero

}  // namespace numbers
