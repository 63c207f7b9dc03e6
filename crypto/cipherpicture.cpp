#include "crypto/cipherpicture.h"

#include "platform/canvas.h"

#include <algorithm>
#include <cmath>

namespace crypto {

using namespace platform;

LetterCounts countLetters(const std::string& text)
{
    LetterCounts lc;
    for (unsigned char c : text) {
        if (c >= 'a' && c <= 'z')
            c -= 32;
        if (c >= 'A' && c <= 'Z') {
            ++lc.count[c - 'A'];
            ++lc.total;
        }
    }
    return lc;
}

void drawLetterFrequencies(Canvas& c, int width, int height, const LetterCounts& plain, const LetterCounts& code)
{
    const TColor plainColour = rgb(40, 90, 200);
    const TColor codeColour = rgb(210, 60, 50);
    c.setPenColor(clGray);
    c.setBrushStyle(BrushStyle::Solid);
    c.setBrushColor(clWhite);
    c.rectangle(0, 0, width, height);
    c.setFontName("Verdana");
    c.setFontSize(8);
    c.setFontStyle(fsBold);
    c.setFontColor(clBlack);
    c.setBrushStyle(BrushStyle::Clear);
    c.textOut(8, 4, "Buchstabenh\xE4ufigkeit in %");
    c.setFontStyle(0);

    // legend
    int lx = width - 220;
    for (int k = 0; k < 2; ++k) {
        c.setBrushStyle(BrushStyle::Solid);
        c.setBrushColor(k == 0 ? plainColour : codeColour);
        c.setPenColor(k == 0 ? plainColour : codeColour);
        c.rectangle(lx, 8, lx + 12, 18);
        c.setBrushStyle(BrushStyle::Clear);
        c.textOut(lx + 16, 5, k == 0 ? "Klartext" : "Geheimtext");
        lx += 100;
    }

    const int left = 40, right = width - 10, top = 28, bottom = height - 22;
    if (right - left < 52 || bottom - top < 20)
        return;
    double maxShare = 5;
    for (int l = 0; l < 26; ++l) {
        if (plain.total)
            maxShare = std::max(maxShare, 100.0 * plain.count[l] / plain.total);
        if (code.total)
            maxShare = std::max(maxShare, 100.0 * code.count[l] / code.total);
    }
    const double top5 = std::ceil(maxShare / 5) * 5;
    // grid lines every 5 per cent
    c.setPenColor(rgb(225, 225, 225));
    for (int g = 0; g <= static_cast<int>(top5); g += 5) {
        const int y = bottom - static_cast<int>(std::lround((bottom - top) * g / top5));
        c.moveTo(left, y);
        c.lineTo(right, y);
        const std::string label = std::to_string(g);
        c.textOut(left - 6 - c.textWidth(label), y - c.textHeight(label) / 2, label);
    }
    const double slot = static_cast<double>(right - left) / 26;
    const int barW = std::max(2, static_cast<int>(slot / 2) - 1);
    for (int l = 0; l < 26; ++l) {
        const int x = left + static_cast<int>(l * slot);
        for (int k = 0; k < 2; ++k) {
            const LetterCounts& lc = k == 0 ? plain : code;
            if (!lc.total)
                continue;
            const double share = 100.0 * lc.count[l] / lc.total;
            const int h = static_cast<int>(std::lround((bottom - top) * share / top5));
            c.setBrushStyle(BrushStyle::Solid);
            c.setBrushColor(k == 0 ? plainColour : codeColour);
            c.setPenColor(k == 0 ? plainColour : codeColour);
            if (h > 0)
                c.rectangle(x + 1 + k * barW, bottom - h, x + 1 + (k + 1) * barW, bottom);
        }
        c.setBrushStyle(BrushStyle::Clear);
        const std::string s(1, static_cast<char>('A' + l));
        c.textOut(x + static_cast<int>(slot / 2) - c.textWidth(s) / 2, bottom + 3, s);
    }
    c.setPenColor(clBlack);
    c.moveTo(left, bottom);
    c.lineTo(right, bottom);
}

}  // namespace crypto
