#pragma once
// The order of the keyword list LB1: case-insensitive, umlauts beside their base letters.
// The packer sorts with it and NeueSeite binary-searches with it, so both must agree.
#include <string>

namespace lexicon {

int compareKeywords(const std::string& a, const std::string& b);  // Windows-1252 bytes
inline bool keywordLess(const std::string& a, const std::string& b) { return compareKeywords(a, b) < 0; }

}  // namespace lexicon
