#pragma once
// The complex term evaluator: the same walk as the real interpreter over complex values, with
// the variable Z, the complex parameters P and Q, PI, the imaginary unit I and its own error byte.
#include <complex>
#include <string>

namespace quorix {

using TermComplex = std::complex<double>;

extern unsigned char ComplexTermError;  // codes as TermError
extern TermComplex ComplexTermParamP;
extern TermComplex ComplexTermParamQ;

// Evaluates `term` at z into `result`; returns ComplexTermError.
unsigned char EvalComplexTerm(const std::string& term, TermComplex z, TermComplex& result);

extern const char* const ComplexTermFunctionNames;

}  // namespace quorix
