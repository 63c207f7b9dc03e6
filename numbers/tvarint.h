#pragma once
// TVarInt: the number class of the quadratic sieve. Radix 2^30, its own type beside mp_int.
// Products accumulate in one shared array of 64-bit cells, so the class is not re-entrant.
#include <cstdint>
#include <string>
#include <vector>

namespace numbers {

class TVarInt {
public:
    static constexpr int LimbBits = 30;
    static constexpr uint32_t LimbMask = 0x3FFFFFFF;

    TVarInt();                         // zero: sign +1, length 0
    TVarInt(int64_t v);                // NOLINT: from a word
    explicit TVarInt(const std::string& decimal);
    TVarInt(const TVarInt&) = default;
    TVarInt& operator=(const TVarInt&) = default;

    int sign() const { return sign_; }
    int length() const { return static_cast<int>(limbs_.size()); }
    uint32_t limb(int i) const { return limbs_[static_cast<size_t>(i)]; }
    bool isZero() const { return limbs_.empty(); }
    bool isOdd() const { return !limbs_.empty() && (limbs_[0] & 1); }
    int bitLength() const;
    bool fitsInt64(int64_t& v) const;

    std::string toDecimal() const;
    bool fromDecimal(const std::string& text);  // false on a bad text (value then 0)

    static void add(const TVarInt& a, const TVarInt& b, TVarInt& r);
    static void sub(const TVarInt& a, const TVarInt& b, TVarInt& r);
    static void mul(const TVarInt& a, const TVarInt& b, TVarInt& r);
    static void sqr(const TVarInt& a, TVarInt& r);
    // q truncated towards zero, r with the sign of a; false for b = 0
    static bool divMod(const TVarInt& a, const TVarInt& b, TVarInt* q, TVarInt* r);
    static uint32_t divWord(const TVarInt& a, uint32_t w, TVarInt& q);  // |a| by w, remainder of |a|
    static uint32_t modWord(const TVarInt& a, uint32_t w);              // non-negative residue
    static void shiftLeft(const TVarInt& a, int bits, TVarInt& r);
    static void shiftRight(const TVarInt& a, int bits, TVarInt& r);
    static int compare(const TVarInt& a, const TVarInt& b);
    static int compareAbs(const TVarInt& a, const TVarInt& b);
    static void isqrt(const TVarInt& a, TVarInt& r);
    static void powMod(const TVarInt& base, const TVarInt& e, const TVarInt& m, TVarInt& r);
    static void gcd(const TVarInt& a, const TVarInt& b, TVarInt& r);
    static bool invMod(const TVarInt& a, const TVarInt& m, TVarInt& r);
    static int jacobi(const TVarInt& a, const TVarInt& n);  // n odd positive
    static bool isProbablePrime(const TVarInt& n);          // ten strong pseudoprime rounds

    // The shared product array, exposed for the sieve's bookkeeping.
    static size_t productCells();

private:
    void trim();
    static void addMag(const TVarInt& a, const TVarInt& b, TVarInt& r);
    static void subMag(const TVarInt& a, const TVarInt& b, TVarInt& r);  // |a| >= |b|
    int sign_ = 1;
    std::vector<uint32_t> limbs_;
};

bool wordIsPrime(uint32_t n);  // strong tests to bases 31, 73 or 2, 7, 61

}  // namespace numbers
