#pragma once
// Finding pages again: full-text search, bookmarks and the favourites' order.
#include "platform/textlist.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace lexicon {

// The second form of a search word: first letter's case flipped, a leading blank becomes "<".
std::string suchwortZweiteForm(const std::string& wort);

struct SuchAuftrag {
    std::string wort1, wort2;  // wort2 empty: one word
    int bloecke = 0;           // blocks 1..bloecke
    std::function<platform::StringList(int block)> blockLaden;
    // Faster alternative: the inflated text of a block (CR LF lines), searched in place.
    std::function<std::string(int block)> blockText;
    std::function<bool()> laeuft;                      // false stops between blocks
    std::function<void(int block, int bloecke)> fortschritt;
};

// The keywords of the pages that hold the word(s), in block order, each page once in a row.
std::vector<std::string> volltextSuche(const SuchAuftrag& auftrag);

// Bookmarks: the values of section [LZeichen] in list order.
platform::StringList lesezeichenLesen(const platform::StringList& ini);
// Writes L0.. for the list; `loeschenAb` >= 0 also deletes the key L<loeschenAb>.
void lesezeichenSchreiben(platform::StringList& ini, const platform::StringList& liste, int loeschenAb = -1);

// favoritensetzen: the exchange sort of the 820 counts; returns (count, item number) pairs.
std::vector<std::pair<short, int>> favoritenSortieren(const std::vector<short>& zaehler);

}  // namespace lexicon
