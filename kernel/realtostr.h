#pragma once
// Reals to text and text to reals: the one way numbers are shown and read back.
#include <cstdint>
#include <string>

namespace kernel {

// Written by the settings: a decimal comma instead of the point in every shown number.
extern bool UseDecimalComma;
// The factor of RealToStrScaled; a tool that shows scaled values sets it once.
extern double RealToStrScale;

// Fixed text of x with minimum width and decimals; trailing zeros and point trimmed when
// decimals > 0, "-0" shown as "0", comma by UseDecimalComma. No allocation beyond the result.
std::string RealToStr(int width, int decimals, double x);
// The same, always with a point: for text that is read back (terms, script lines).
std::string RealToStrDot(int width, int decimals, double x);
std::string RealToStr2(double x);     // width 1, 2 decimals
std::string RealToStr4(double x);     // width 1, 4 decimals
std::string RealToStrDot2(double x);  // point, width 1, 2 decimals
std::string RealToStrDot0(double x);  // point, width 1, no decimals (nothing trimmed)
std::string RealToStrScaled(int width, int decimals, double x);  // RealToStr(x * RealToStrScale)
std::string RealToStrSigned(int width, int decimals, double x);  // "+" unless negative

// Reading. A bad text gives 0; no term evaluation in any of these.
int StrToIntSafe(const std::string& s);
std::string CommaToPoint(std::string text);
double ReadRealPlain(const std::string& text);

// Degrees, minutes and seconds (text in Windows-1252: the degree sign is byte 0xB0).
std::string DegreesToText(double x);
double TextToDegrees(const std::string& s);

}  // namespace kernel
