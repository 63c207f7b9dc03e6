#include "crypto/enigmapicture.h"

#include "crypto/enigma.h"
#include "platform/canvas.h"

#include <algorithm>
#include <string>

namespace crypto {

using namespace platform;

namespace {

const char* const kRows[3] = {"QWERTZUIO", "ASDFGHJK", "PYXCVBNML"};  // the German keyboard

// Where the parts of the machine lie; drawing and the mouse's hit test share it.
struct Layout {
    int m = 12;
    int rotorTop = 26;
    int windowW = 58, windowH = 96, gap = 40;
    int rotorsLeft = 0;
    int boardTop = 0, boardW = 0, boardLeft = 0;
    int lampRows = 36;
    int keysTop = 0, keyRows = 28;
    bool hasKeys = false;
};

Layout layoutFor(int width, int height)
{
    Layout l;
    l.rotorsLeft = width / 2 - (3 * l.windowW + 2 * l.gap) / 2;
    l.boardTop = l.rotorTop + l.windowH + 44;
    l.boardW = std::min(width - 4 * l.m, 480);
    l.boardLeft = (width - l.boardW) / 2;
    l.keysTop = l.boardTop + 3 * l.lampRows + 20;
    l.hasKeys = l.keysTop + 3 * l.keyRows + 24 < height - l.m;
    return l;
}

// Centre of key k in row `row` of a board.
void keyCentre(int left, int top, int width, int rowHeight, int row, int k, int& cx, int& cy)
{
    const int step = width / 9;
    const int len = static_cast<int>(std::string(kRows[row]).size());
    const int rowLeft = left + (9 - len) * step / 2;
    cx = rowLeft + k * step + step / 2;
    cy = top + row * rowHeight + rowHeight / 2;
}

char letter(int pos)  // 1..26
{
    return static_cast<char>('A' + (pos + 25) % 26);
}

void centredText(Canvas& c, int cx, int y, const std::string& s)
{
    c.textOut(cx - c.textWidth(s) / 2, y, s);
}

// A board of 26 round lamps or keys in the three rows of the keyboard.
void drawBoard(Canvas& c, int left, int top, int width, int rowHeight, int radius, int lit, TColor litColour,
               TColor offColour, TColor textOn, TColor textOff)
{
    for (int row = 0; row < 3; ++row) {
        const std::string keys = kRows[row];
        for (std::size_t k = 0; k < keys.size(); ++k) {
            int cx, cy;
            keyCentre(left, top, width, rowHeight, row, static_cast<int>(k), cx, cy);
            const bool on = keys[k] - 'A' == lit;
            c.setPenColor(rgb(20, 20, 20));
            c.setPenWidth(2);
            c.setBrushStyle(BrushStyle::Solid);
            c.setBrushColor(on ? litColour : offColour);
            c.ellipse(cx - radius, cy - radius, cx + radius, cy + radius);
            c.setBrushStyle(BrushStyle::Clear);
            c.setFontColor(on ? textOn : textOff);
            c.setFontStyle(fsBold);
            const std::string s(1, keys[k]);
            c.textOut(cx - c.textWidth(s) / 2, cy - c.textHeight(s) / 2, s);
        }
    }
}

}  // namespace

void drawEnigmaMachine(Canvas& c, int width, int height, const EnigmaPicture& p)
{
    // the wooden box and the metal lid
    c.setPenColor(rgb(60, 40, 20));
    c.setPenWidth(1);
    c.setBrushStyle(BrushStyle::Solid);
    c.setBrushColor(rgb(120, 84, 48));
    c.rectangle(0, 0, width, height);
    const Layout lay = layoutFor(width, height);
    const int m = lay.m;
    c.setBrushColor(rgb(48, 48, 52));
    c.rectangle(m, m, width - m, height - m);
    c.setFontName("Verdana");

    // rotor windows: the letter in the window with its neighbours above and below
    const int rotorTop = lay.rotorTop;
    const int windowW = lay.windowW, windowH = lay.windowH;
    const int gap = lay.gap;
    const int rotorsLeft = lay.rotorsLeft;
    static const char* const kSlot[3] = {"links", "Mitte", "rechts"};
    for (int k = 0; k < 3; ++k) {
        const int x = rotorsLeft + k * (windowW + gap);
        c.setFontSize(8);
        c.setFontStyle(0);
        c.setFontColor(rgb(200, 200, 200));
        c.setBrushStyle(BrushStyle::Clear);
        centredText(c, x + windowW / 2, rotorTop, std::string("Walze ") + rotorName(p.rotors[k]));
        // the rotor's edge behind the window
        c.setBrushStyle(BrushStyle::Solid);
        c.setPenColor(rgb(10, 10, 10));
        c.setBrushColor(rgb(90, 90, 96));
        c.rectangle(x + windowW + 4, rotorTop + 18, x + windowW + 14, rotorTop + 18 + windowH);
        for (int g = rotorTop + 22; g < rotorTop + 14 + windowH; g += 7) {
            c.moveTo(x + windowW + 4, g);
            c.lineTo(x + windowW + 14, g);
        }
        c.setBrushColor(rgb(235, 228, 205));
        c.setPenWidth(2);
        c.rectangle(x, rotorTop + 18, x + windowW, rotorTop + 18 + windowH);
        c.setPenWidth(1);
        const int pos = p.positions[k];
        const int rowH = windowH / 3;
        for (int d = -1; d <= 1; ++d) {
            const std::string s(1, letter(pos + d));
            c.setBrushStyle(BrushStyle::Clear);
            c.setFontSize(d == 0 ? 20 : 11);
            c.setFontStyle(d == 0 ? fsBold : 0);
            c.setFontColor(d == 0 ? clBlack : rgb(150, 140, 120));
            const int cy = rotorTop + 18 + (d + 1) * rowH + rowH / 2;
            centredText(c, x + windowW / 2, cy - c.textHeight(s) / 2, s);
        }
        c.setPenColor(rgb(200, 40, 40));
        c.moveTo(x + 3, rotorTop + 18 + rowH);
        c.lineTo(x + windowW - 3, rotorTop + 18 + rowH);
        c.moveTo(x + 3, rotorTop + 18 + 2 * rowH);
        c.lineTo(x + windowW - 3, rotorTop + 18 + 2 * rowH);
        c.setFontSize(7);
        c.setFontStyle(0);
        c.setFontColor(rgb(170, 170, 170));
        centredText(c, x + windowW / 2, rotorTop + 22 + windowH, kSlot[k]);
    }

    // the lamp board
    const int boardTop = lay.boardTop;
    const int boardW = lay.boardW;
    const int boardLeft = lay.boardLeft;
    const int lampRows = lay.lampRows;
    c.setFontSize(11);
    drawBoard(c, boardLeft, boardTop, boardW, lampRows, 14, p.litLamp, rgb(255, 226, 80), rgb(70, 70, 74),
              clBlack, rgb(170, 170, 170));
    c.setFontSize(8);
    c.setFontStyle(0);
    c.setFontColor(rgb(200, 200, 200));
    c.setBrushStyle(BrushStyle::Clear);
    c.textOut(boardLeft - 6, boardTop - 18, "Lampenfeld");

    // the keyboard below, if there is room
    const int keysTop = lay.keysTop;
    const int keyRows = lay.keyRows;
    if (lay.hasKeys) {
        c.setFontSize(9);
        drawBoard(c, boardLeft, keysTop, boardW, keyRows, 11, p.keyPressed, rgb(140, 140, 150), rgb(25, 25, 28),
                  clWhite, rgb(230, 230, 230));
        c.setFontSize(8);
        c.setFontStyle(0);
        c.setFontColor(rgb(200, 200, 200));
        c.setBrushStyle(BrushStyle::Clear);
        c.textOut(boardLeft - 6, keysTop - 16, "Tastatur");
    }

    // the plugboard along the front
    std::string plugs;
    for (const auto& pr : p.plugs)
        if (pr[0] >= 0 && pr[1] >= 0) {
            plugs += plugs.empty() ? "" : "  ";
            plugs += std::string{static_cast<char>('A' + pr[0]), static_cast<char>('A' + pr[1])};
        }
    c.setFontSize(8);
    c.setFontColor(rgb(220, 220, 220));
    c.setBrushStyle(BrushStyle::Clear);
    c.textOut(m + 10, height - m - 20, "Steckerbrett: " + (plugs.empty() ? std::string("keine Verbindung") : plugs));
}

int enigmaKeyAt(int width, int height, int x, int y)
{
    const Layout lay = layoutFor(width, height);
    if (!lay.hasKeys)
        return -1;
    for (int row = 0; row < 3; ++row)
        for (int k = 0; kRows[row][k]; ++k) {
            int cx, cy;
            keyCentre(lay.boardLeft, lay.keysTop, lay.boardW, lay.keyRows, row, k, cx, cy);
            if ((x - cx) * (x - cx) + (y - cy) * (y - cy) <= 13 * 13)
                return kRows[row][k] - 'A';
        }
    return -1;
}

}  // namespace crypto
