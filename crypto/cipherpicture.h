#pragma once
// The letter frequencies of plain and code text as a bar chart, drawn on the cipher page.
#include <array>
#include <string>

namespace platform {
class Canvas;
}

namespace crypto {

struct LetterCounts {
    std::array<int, 26> count{};
    int total = 0;
};

LetterCounts countLetters(const std::string& cp1252);  // A..Z, both cases

void drawLetterFrequencies(platform::Canvas& c, int width, int height, const LetterCounts& plain,
                           const LetterCounts& code);

}  // namespace crypto
