// Matrix page: products, inverses and determinants with hand-checked values.
#include "algebra/algebra.h"

#include <gtest/gtest.h>

using namespace algebra;

namespace {

std::string alle(const Ergebnis& e)
{
    std::string s;
    for (const auto& z : e.zeilen) s += z + "\n";
    return s;
}

bool hat(const Ergebnis& e, const std::string& z)
{
    for (const auto& s : e.zeilen)
        if (s == z) return true;
    return false;
}

}  // namespace

TEST(Matrix, ProductsAndDeterminants)
{
    // A = [[1,2],[3,4]], B = [[0,1],[1,0]]: AB swaps the columns, BA the rows; det A = -2, det B = -1,
    // det(A + iB) = 1·4 - (2+i)(3+i) = 4 - (5 + 5i) = -1 - 5i.
    const Ergebnis ab = berechne(2, {"1 2; 3 4", "0 1; 1 0", "A*B", ""});
    EXPECT_TRUE(hat(ab, "\t2\t1")) << alle(ab);
    EXPECT_TRUE(hat(ab, "\t4\t3")) << alle(ab);
    EXPECT_TRUE(hat(ab, "Determinante von A = -2")) << alle(ab);
    EXPECT_TRUE(hat(ab, "Determinante von B = -1")) << alle(ab);
    EXPECT_TRUE(hat(ab, "Determinante von A + i·B = -1 - 5·i")) << alle(ab);
    const Ergebnis ba = berechne(2, {"1 2; 3 4", "0 1; 1 0", "B · A", ""});
    EXPECT_TRUE(hat(ba, "\t3\t4")) << alle(ba);
    // A^5 of the Fibonacci matrix is [[8,5],[5,3]]
    const Ergebnis fib = berechne(2, {"1 1; 1 0", "", "A^n", "5"});
    EXPECT_TRUE(hat(fib, "\t8\t5")) << alle(fib);
    EXPECT_TRUE(hat(fib, "\t5\t3")) << alle(fib);
    EXPECT_TRUE(hat(berechne(2, {"1 2; 3 4", "", "AT", ""}), "\t2\t4"));
}

TEST(Matrix, InverseAndSingularity)
{
    // [[2,1],[5,3]] has det 1 and the inverse [[3,-1],[-5,2]].
    const Ergebnis inv = berechne(2, {"2 1; 5 3", "", "A^-1", ""});
    EXPECT_TRUE(hat(inv, "\t3\t-1")) << alle(inv);
    EXPECT_TRUE(hat(inv, "\t-5\t2")) << alle(inv);
    const Ergebnis sing = berechne(2, {"1 2; 2 4", "", "A^-1", ""});
    EXPECT_FALSE(sing.ok);
    EXPECT_TRUE(hat(sing, "Determinante von A = 0")) << alle(sing);
    // the 3x3 example: det = 2(12-1) - 1(4-0) = 18
    EXPECT_TRUE(hat(berechne(2, {"2 1 0; 1 3 1; 0 1 4", "", "A", ""}), "Determinante von A = 18"));
}

TEST(Matrix, BadInput)
{
    EXPECT_TRUE(berechne(2, {"1 2; 3", "", "A", ""}).eingabefehler);
    EXPECT_TRUE(berechne(2, {"1 2; 3 4", "1", "A+B", ""}).eingabefehler);
    EXPECT_TRUE(berechne(2, {"1 2; 3 4", "", "A/B", ""}).eingabefehler);
    EXPECT_TRUE(berechne(2, {"", "", "A", ""}).eingabefehler);
}
