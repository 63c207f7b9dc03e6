#pragma once
// The term interpreter: the one place where a typed term such as "SIN(X)+P*X^2" becomes a number.
// Terms are Windows-1252 byte strings in upper case; a fault is a value (usually 0) plus TermError.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quorix {

// Process-wide state, written by tools before they evaluate and read at once afterwards.
extern unsigned char TermError;  // 0 ok, 1 syntax, 2 domain/overflow, 3 jump, 4 clamped
extern double TermParamP;        // also base of EXPP, LOG, WP and second argument of BETA
extern double TermParamQ;        // also the modulus of SN, CN, DN
extern double TermParamR;
extern std::array<std::string, 5> TermFunctionSlots;  // the terms behind F1..F5
extern bool TermRangeGuardOn;
extern double TermRangeLow;
extern double TermRangeHigh;
extern double TermClamp;  // the magnitude that stands for "too large"

double EvalTerm(const std::string& term, double x);
// Mode 0 f(x), 1 f(exp x), 2 ln f(x), 3 ln f(exp x): for logarithmic axes.
double EvalTermMode(const std::string& term, unsigned char mode, double x);
// The text of a numeric field: upper-cased, "," as ".", evaluated at x = 1; 0 on any fault.
double ReadTermValue(const std::string& text);

// In the term of slot 1..5 every `letter` becomes X, character by character.
void ReplaceTermVariable(int slot, char letter);
// The way back: every X becomes `letter`; a damaged "EKP" (from EXP with K) is mended.
void ReplaceTermVariableBack(int slot, char letter);
// Replaces `from` by `to` until none is left; only for texts shorter than 256 characters.
void ReplaceAll(std::string& s, const std::string& from, const std::string& to);

// MCARLO draws from this generator; tests seed it for repeatable runs.
void SetTermRandomSeed(std::uint64_t seed);

// The literal name list of the function call: a call's identity is the place of the first
// substring match of its name in this text.
extern const char* const TermFunctionNames;

}  // namespace quorix
