#pragma once
// Colours are 24-bit with red in the low byte, as in every data file of the program.
#include <cstdint>

namespace platform {

using TColor = std::uint32_t;

constexpr TColor rgb(int r, int g, int b)
{
    return static_cast<TColor>((r & 0xFF) | ((g & 0xFF) << 8) | ((b & 0xFF) << 16));
}
constexpr int redOf(TColor c) { return static_cast<int>(c & 0xFF); }
constexpr int greenOf(TColor c) { return static_cast<int>((c >> 8) & 0xFF); }
constexpr int blueOf(TColor c) { return static_cast<int>((c >> 16) & 0xFF); }

constexpr TColor clBlack = rgb(0, 0, 0);
constexpr TColor clWhite = rgb(255, 255, 255);
constexpr TColor clRed = rgb(255, 0, 0);
constexpr TColor clBlue = rgb(0, 0, 255);
constexpr TColor clNavy = rgb(0, 0, 128);
constexpr TColor clGreen = rgb(0, 128, 0);
constexpr TColor clGray = rgb(128, 128, 128);
constexpr TColor clSilver = rgb(192, 192, 192);
constexpr TColor clYellow = rgb(255, 255, 0);

}  // namespace platform
