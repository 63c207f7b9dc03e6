#pragma once
// Drawing of the automata through the canvas: the board as squares and the diagram of counts.
#include "dynamics/life.h"
#include "platform/canvas.h"

#include <string>
#include <vector>

namespace dynamics {

// The colour of cell kind (or group) 1..15; kind 0 is the background.
platform::TColor kindColor(int kind);
constexpr platform::TColor kGridColor = 0x808080;
constexpr platform::TColor kFishColor = platform::rgb(0, 160, 0);
constexpr platform::TColor kSharkColor = platform::rgb(200, 0, 0);

// A board of n x n cells at (x, y): every cell a square of cellPixels, coloured by
// colorOf(row, col) (clWhite for empty), with a grid in 0x808080 if wanted.
template <typename ColorOf>
void drawBoard(platform::Canvas& c, int x, int y, int n, int cellPixels, bool grid, ColorOf colorOf)
{
    const int side = n * cellPixels;
    c.setBrushStyle(platform::BrushStyle::Solid);
    c.setBrushColor(platform::clWhite);
    c.fillRect(x, y, x + side, y + side);
    for (int r = 1; r <= n; ++r)
        for (int col = 1; col <= n; ++col) {
            const platform::TColor color = colorOf(r, col);
            if (color == platform::clWhite) continue;
            c.setBrushColor(color);
            const int px = x + (col - 1) * cellPixels, py = y + (r - 1) * cellPixels;
            c.fillRect(px, py, px + cellPixels, py + cellPixels);
        }
    if (grid && cellPixels >= 4) {
        c.setPenColor(kGridColor);
        c.setPenWidth(1);
        for (int k = 0; k <= n; ++k) {
            c.moveTo(x + k * cellPixels, y);
            c.lineTo(x + k * cellPixels, y + side);
            c.moveTo(x, y + k * cellPixels);
            c.lineTo(x + side, y + k * cellPixels);
        }
    }
    c.setPenColor(platform::clBlack);
    c.setBrushStyle(platform::BrushStyle::Clear);
    c.rectangle(x - 1, y - 1, x + side + 1, y + side + 1);
}

// The counts over time: one curve per series, scaled to the largest count.
struct Series {
    std::string name;  // UTF-8
    platform::TColor color;
    std::vector<int> values;
};
void drawDiagram(platform::Canvas& c, int x, int y, int w, int h, const std::vector<Series>& series,
                 const std::string& xLabel);

}  // namespace dynamics
