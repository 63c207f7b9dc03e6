// A repeated evaluation of the same term must not touch the heap: the plotter calls EvalTerm
// once per pixel column. Counts allocations through a replaced global operator new.
#include "kernel/term.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {
std::atomic<long> g_allocations{0};
}

void* operator new(std::size_t n)
{
    ++g_allocations;
    if (void* p = std::malloc(n ? n : 1))
        return p;
    throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }

TEST(TermAllocation, RepeatedEvaluationAllocatesNothing)
{
    using namespace quorix;
    const std::string terms[] = {"SIN(X)+P*X^2", "SQRT(ABS(X))*EXP(-X^2/2)", "F1(X)*[X]+|X|", "GAMMA(X)+SI(X)"};
    TermFunctionSlots[0] = "X^3-1";
    for (const auto& t : terms) {
        EvalTerm(t, 0.5);  // the first call normalises and may allocate
        const long before = g_allocations.load();
        double sink = 0;
        for (int i = 0; i < 1000; ++i)
            sink += EvalTerm(t, 0.001 * i);
        EXPECT_EQ(g_allocations.load() - before, 0) << t << " (" << sink << ")";
    }
    TermFunctionSlots = {};
    // Two terms in turn, and the logarithmic mode that evaluates "EXP(X)" in between.
    EvalTermMode("SIN(X)+X^2", 1, 0.5);
    EvalTerm("COS(X)", 0.5);
    const long before = g_allocations.load();
    for (int i = 0; i < 1000; ++i) {
        EvalTermMode("SIN(X)+X^2", 1, 0.001 * i);
        EvalTerm("COS(X)", 0.001 * i);
    }
    EXPECT_EQ(g_allocations.load() - before, 0);
}
