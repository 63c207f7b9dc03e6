#pragma once
// The numbers of the floating-point calculator TOpBox: TInteger (radix a power of ten, global),
// TFloatInt (a TInteger with a decimal exponent) and TBigFloat (a TFloatInt at a digit count).
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace numbers {

// Messages of the number classes ("Basiswechsel!", "Subtraktionsfehler") go to this hook;
// the window shows them, the tests collect them.
extern std::function<void(const std::string&)> tintegerMessage;
// Called every hundredth step of long loops, so that a window can keep its message loop alive.
extern std::function<void()> tintegerYield;

class TInteger {
public:
    TInteger() = default;
    explicit TInteger(int64_t v);

    // The radix is a power of ten shared by all instances, 10 .. 10^6.
    static void setRadix(int64_t r);
    static int64_t radix();
    static int radixDigits();  // decimal digits per digit of the radix

    int sign = 0;                 // -1, 0, 1
    std::vector<int64_t> digits;  // least significant first

    bool isZero() const { return sign == 0; }
    void normalize();
    int decimalLength() const;  // digits of |value|, 0 for zero
    std::string toString() const;
    bool fromString(const std::string& decimalDigits);  // digits only

    static int compareAbs(const TInteger& a, const TInteger& b);
    static void add(const TInteger& a, const TInteger& b, TInteger& r);
    static void sub(const TInteger& a, const TInteger& b, TInteger& r);
    static void mul(const TInteger& a, const TInteger& b, TInteger& r);
    static void sqr(const TInteger& a, TInteger& r);
    static void mulSmall(const TInteger& a, int64_t m, TInteger& r);        // |m| < 2^31
    static int64_t divSmall(const TInteger& a, int64_t d, TInteger& q);     // 0 < d < 2^31
    static void divMod(const TInteger& a, const TInteger& b, TInteger& q, TInteger& r);
    static void shiftDecimal(const TInteger& a, int n, TInteger& r);        // times 10^n, n may be < 0 (truncates)
};

// The pool of temporaries: twenty made in advance; a computation takes and gives back.
class TIntegerPool {
public:
    static TInteger* take();
    static void give(TInteger* t);
    static int available();
    static int inUse();
    static bool freeOnRelease;  // the global switch: give() deletes instead of keeping
};

// value = mantissa * 10^exponent
struct TFloatInt {
    TInteger mantissa;
    int64_t exponent = 0;
    bool isZero() const { return mantissa.isZero(); }
    int sign() const { return mantissa.sign; }
};

enum class BigFloatError { None, Sign, Number, DivZero, Conversion, TooBig };
const char* bigFloatErrorText(BigFloatError e);

class TBigFloat {
public:
    TBigFloat() = default;
    explicit TBigFloat(int64_t v);

    TFloatInt v;

    bool isZero() const { return v.isZero(); }
    int sign() const { return v.sign(); }
    // Rounds the mantissa to `digits` significant digits (half away from zero).
    void roundTo(int digits);
    void truncTo(int digits);
    int64_t magnitude() const;  // decimal exponent of the leading digit

    // Decimal text with comma or point, optional exponent "E"; false on a bad text.
    static bool parse(const std::string& text, TBigFloat& out);
    // Text as the calculator shows it, `digits` significant digits, decimal comma.
    std::string format(int digits) const;
};

// Arithmetic at a working precision of `prec` significant digits.
struct BigFloatMath {
    int prec;
    explicit BigFloatMath(int precision) : prec(precision) {}

    void add(const TBigFloat& a, const TBigFloat& b, TBigFloat& r) const;
    void sub(const TBigFloat& a, const TBigFloat& b, TBigFloat& r) const;
    void mul(const TBigFloat& a, const TBigFloat& b, TBigFloat& r) const;
    BigFloatError div(const TBigFloat& a, const TBigFloat& b, TBigFloat& r) const;
    BigFloatError sqrt(const TBigFloat& a, TBigFloat& r) const;
    BigFloatError ln(const TBigFloat& a, TBigFloat& r) const;
    BigFloatError exp(const TBigFloat& a, TBigFloat& r) const;
    BigFloatError powInt(const TBigFloat& a, int64_t n, TBigFloat& r) const;
    BigFloatError pow(const TBigFloat& a, const TBigFloat& b, TBigFloat& r) const;
    BigFloatError root(const TBigFloat& a, const TBigFloat& n, TBigFloat& r) const;
    void pi(TBigFloat& r) const;
    void ln2(TBigFloat& r) const;
    void ln10(TBigFloat& r) const;
    bool isInteger(const TBigFloat& a, int64_t& n) const;
};

}  // namespace numbers
