#include "lexicon/keywordorder.h"

namespace lexicon {

namespace {

// Primary weight of a byte: letters fold to lower case, accented letters to their base.
void appendWeight(std::string& key, unsigned char c)
{
    if (c >= 'A' && c <= 'Z') { key.push_back(static_cast<char>(c + 32)); return; }
    switch (c) {
    case 0xC4: case 0xE4: case 0xC0: case 0xE0: case 0xC1: case 0xE1: case 0xC2: case 0xE2: key.push_back('a'); return;
    case 0xD6: case 0xF6: case 0xD3: case 0xF3: case 0xD4: case 0xF4: key.push_back('o'); return;
    case 0xDC: case 0xFC: case 0xDA: case 0xFA: key.push_back('u'); return;
    case 0xC9: case 0xE9: case 0xC8: case 0xE8: case 0xCA: case 0xEA: key.push_back('e'); return;
    case 0xCD: case 0xED: case 0xCE: case 0xEE: key.push_back('i'); return;
    case 0xC7: case 0xE7: key.push_back('c'); return;
    case 0xD1: case 0xF1: key.push_back('n'); return;
    case 0xDF: key += "ss"; return;
    default: key.push_back(static_cast<char>(c));
    }
}

std::string primaryKey(const std::string& s)
{
    std::string key;
    key.reserve(s.size() + 2);
    for (unsigned char c : s)
        appendWeight(key, c);
    return key;
}

}  // namespace

int compareKeywords(const std::string& a, const std::string& b)
{
    const std::string ka = primaryKey(a), kb = primaryKey(b);
    if (int c = ka.compare(kb))
        return c < 0 ? -1 : 1;
    // Same letters: "Ableitung" before "ableitung", then plain bytes for a total order.
    int c = a.compare(b);
    return c < 0 ? -1 : (c > 0 ? 1 : 0);
}

}  // namespace lexicon
