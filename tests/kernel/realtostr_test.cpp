#include "kernel/realtostr.h"

#include <gtest/gtest.h>

using namespace kernel;

namespace {

// Every test leaves the comma flag as it found it.
struct CommaGuard {
    bool keep = UseDecimalComma;
    ~CommaGuard() { UseDecimalComma = keep; }
};

}  // namespace

TEST(RealToStr, TrimmingAndNegativeZero)
{
    CommaGuard g;
    UseDecimalComma = false;
    EXPECT_EQ(RealToStr(1, 2, 0.001), "0");
    EXPECT_EQ(RealToStr(1, 2, -0.001), "0");
    EXPECT_EQ(RealToStr(1, 2, 2.50), "2.5");
    EXPECT_EQ(RealToStr(1, 0, 100), "100");
    EXPECT_EQ(RealToStr(1, 3, 100), "100");
    EXPECT_EQ(RealToStr(1, 0, -0.3), "0");
    EXPECT_EQ(RealToStr(1, 4, -12.34567), "-12.3457");
    EXPECT_EQ(RealToStr(1, 2, 1e6), "1000000");
    EXPECT_EQ(RealToStr(1, 1, 0.96), "1");
    // Beyond 1e300 the fixed form would be 300 digits long; the exponent must stay whole.
    EXPECT_EQ(RealToStr(1, 2, 1e300), "1.00e+300");
    // The width pads before trimming; trimming shortens the text only.
    EXPECT_EQ(RealToStr(8, 2, 1.5), "    1.5");
    EXPECT_EQ(RealToStr(6, 1, -0.01), "     0");
    EXPECT_EQ(RealToStrDot0(2.5), "2");  // printf rounds the tie to even
    EXPECT_EQ(RealToStrDot0(-7.6), "-8");
}

TEST(RealToStr, DecimalCommaOnlyWhereShown)
{
    CommaGuard g;
    UseDecimalComma = true;
    EXPECT_EQ(RealToStr(1, 2, 2.50), "2,5");
    EXPECT_EQ(RealToStr2(3.14159), "3,14");
    EXPECT_EQ(RealToStr4(3.14159), "3,1416");
    EXPECT_EQ(RealToStrDot(1, 2, 2.5), "2.5");
    EXPECT_EQ(RealToStrDot2(-1.005), "-1");  // -1.005 is stored just above -1.005
    UseDecimalComma = false;
    EXPECT_EQ(RealToStr2(3.14159), "3.14");
}

TEST(RealToStr, SignedAndScaled)
{
    CommaGuard g;
    UseDecimalComma = false;
    EXPECT_EQ(RealToStrSigned(1, 2, 0), "+0");
    EXPECT_EQ(RealToStrSigned(1, 2, -0.001), "+0");
    EXPECT_EQ(RealToStrSigned(1, 2, 1.5), "+1.5");
    EXPECT_EQ(RealToStrSigned(1, 2, -1.5), "-1.5");
    EXPECT_EQ(RealToStrSigned(6, 2, 1.5), " +1.5");  // "  1.50" trimmed, the sign takes a blank
    const double keep = RealToStrScale;
    RealToStrScale = 10;
    EXPECT_EQ(RealToStrScaled(1, 2, 0.25), "2.5");
    RealToStrScale = keep;
}

TEST(ReadNumbers, IntegersCommasAndPlainReals)
{
    EXPECT_EQ(StrToIntSafe("42"), 42);
    EXPECT_EQ(StrToIntSafe(" -17 "), -17);
    EXPECT_EQ(StrToIntSafe("12a"), 0);
    EXPECT_EQ(StrToIntSafe(""), 0);
    EXPECT_EQ(StrToIntSafe("99999999999"), 0);
    EXPECT_EQ(CommaToPoint("1,5;2,25"), "1.5;2.25");
    EXPECT_DOUBLE_EQ(ReadRealPlain("2,5"), 2.5);
    EXPECT_DOUBLE_EQ(ReadRealPlain("-1e3"), -1000);
    EXPECT_EQ(ReadRealPlain("2*PI"), 0.0);  // no term evaluation here
}

TEST(Degrees, TextBothWaysWithCarries)
{
    EXPECT_EQ(DegreesToText(12.5), "12\xB0" "30'0\"");
    EXPECT_EQ(DegreesToText(-48.1375), "-48\xB0" "8'15\"");
    // 29.9999 degrees: 59'59.64" rounds to 60" and carries into the minutes and degrees.
    EXPECT_EQ(DegreesToText(29.9999), "30\xB0" "0'0\"");
    EXPECT_EQ(DegreesToText(10.2583), "10\xB0" "15'30\"");
    EXPECT_EQ(DegreesToText(0), "0\xB0" "0'0\"");
    EXPECT_DOUBLE_EQ(TextToDegrees("12\xB0" "30'0\""), 12.5);
    EXPECT_DOUBLE_EQ(TextToDegrees("-48\xB0" "8'15\""), -48.1375);
    EXPECT_DOUBLE_EQ(TextToDegrees("7.25"), 7.25);
    EXPECT_NEAR(TextToDegrees("13 45 36"), 13.76, 1e-12);
    EXPECT_DOUBLE_EQ(TextToDegrees("5"), 5.0);
    // Round trip at the second's precision.
    for (double x : {0.01, 51.4778, -122.419, 359.99986}) {
        EXPECT_NEAR(TextToDegrees(DegreesToText(x)), x, 0.5 / 3600 + 1e-12) << x << " -> " << DegreesToText(x);
    }
}
