#pragma once
// Small text tests of the page markup, shared by the painter and the print and RTF walks.
#include <string>

namespace lexicon::markup {

inline bool beginntMit(const std::string& s, const char* p) { return s.rfind(p, 0) == 0; }

// Without leading and trailing control characters and blanks.
inline std::string trim(const std::string& s)
{
    size_t i = 0, j = s.size();
    while (i < j && static_cast<unsigned char>(s[i]) <= 32)
        ++i;
    while (j > i && static_cast<unsigned char>(s[j - 1]) <= 32)
        --j;
    return s.substr(i, j - i);
}

// The signs that may follow "$" as a format token: sizes, styles, colours.
inline bool istFormatToken(char c)
{
    switch (c) {
    case '(': case ')': case '*': case '+': case '-': case '<': case '=': case '>':
        return true;
    default:
        return c >= '0' && c <= '9';
    }
}

}  // namespace lexicon::markup
