#pragma once
// Small arithmetic, Brent's root finder, the linear solver and the Simpson integrator.
#include <cstdint>
#include <functional>

namespace kernel {

// A function of one real, e.g. a term bound to EvalTerm by the caller.
using RealFunction = std::function<double(double)>;

// Round to an integer limited to -100000..100000: every computed pixel passes here.
inline int SafeRound(double x)
{
    if (!(x == x))
        return 0;
    if (x > 100000.0)
        return 100000;
    if (x < -100000.0)
        return -100000;
    return static_cast<int>(x < 0 ? x - 0.5 : x + 0.5);
}

double Hypot(double a, double b);  // sqrt(a*a+b*b)
double SqrtAbs(double x);          // sqrt(|x|), defined everywhere
// base^exponent mod modulus by square-and-multiply on 64 bits (128-bit products inside).
std::int64_t ModPower(std::int64_t base, std::int64_t exponent, std::int64_t modulus);
// Euclid; a or b zero gives 1 (the convention the tools rely on).
std::int64_t Gcd(std::int64_t a, std::int64_t b);

// Brent's method in [a, b] with at most `iterations` rounds; the result is the last b.
// Callers bind a term: FindRootBrent([](double x) { return EvalTerm(slot, x); }, ...).
double FindRootBrent(const RealFunction& f, int iterations, double tolerance, double a, double b);

// Up to 25 unknowns; row r, column c are 1-based, column n+1 holds the constants and
// receives the solution. The row stride is 26 entries.
struct LinearMatrix {
    static constexpr int kMax = 25;
    double a[kMax][kMax + 1] = {};
    double& operator()(int row, int col) { return a[row - 1][col - 1]; }
    double operator()(int row, int col) const { return a[row - 1][col - 1]; }
};

// Crout's LU decomposition with row pivoting. |determinant| <= 0.000001 (or a zero pivot)
// gives ok = false and leaves the constants alone.
void SolveLinear(LinearMatrix& m, int n, double& determinant, bool& ok);

// Composite Simpson rule over 200 intervals; no accuracy goal.
double SimpsonTerm(const RealFunction& f, double a, double b);

}  // namespace kernel
