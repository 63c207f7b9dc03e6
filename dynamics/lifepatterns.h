#pragma once
// The pattern library "game": blocks of a line "[<number>", the row offset, the column offset
// and one line of digits per row. A digit is the kind of the cell at that place.
#include "dynamics/life.h"

#include <string>
#include <vector>

namespace dynamics {

struct LifePattern {
    int number = -1;
    int rowOffset = 0;
    int colOffset = 0;
    std::vector<std::string> rows;
};

// Every pattern name with its number in the library; the list box shows those that have data.
struct PatternName {
    int number;
    const char* name;  // UTF-8
};
const std::vector<PatternName>& patternNames();

// Reads the blocks; malformed blocks (no number, missing offsets) are skipped.
std::vector<LifePattern> parsePatterns(const std::vector<std::string>& lines);

// The names, in list order, of the patterns present in `patterns`.
std::vector<PatternName> availablePatterns(const std::vector<LifePattern>& patterns);

// The pattern by its name (exact, then case-insensitive prefix) or by its number; null if none.
const LifePattern* findPattern(const std::vector<LifePattern>& patterns, const std::string& nameOrNumber);

// Clears the board and its counters and sets the pattern's cells; cells off the board are lost.
void loadPattern(LifeGame& game, const LifePattern& pattern);

// The lines of the resource "game" of a text container (by default 000/texte.dll beside the
// program), or of a UTF-8 text file when `path` names one. Empty when missing.
std::vector<std::string> loadPatternLines(const std::string& path = {});
std::vector<std::string> loadPatternResource(const std::string& containerPath = {});

}  // namespace dynamics
