#include "lexicon/toolcatalog.h"

#include "lexicon/pagestore.h"

namespace lexicon {

std::string ansiLower(const std::string& s)
{
    std::string out = s;
    for (char& ch : out) {
        const unsigned char c = static_cast<unsigned char>(ch);
        if ((c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7))
            ch = static_cast<char>(c + 32);
        else if (c == 0x8A || c == 0x8C || c == 0x8E)
            ch = static_cast<char>(c + 16);
    }
    return out;
}

int ToolCatalog::indexOf(const std::string& titel) const
{
    const std::string key = ansiLower(titel);
    for (size_t i = 0; i < werkzeugliste_.size(); ++i)
        if (werkzeugliste_[i].size() == titel.size() && ansiLower(werkzeugliste_[i]) == key)
            return static_cast<int>(i);
    return -1;
}

bool ToolCatalog::suche(const std::string& titel, ToolTriple& ergebnis) const
{
    const int i = indexOf(titel);
    if (i < 0 || static_cast<size_t>(i) + 1 >= werkzeugliste_.size())
        return false;
    const std::string& z = werkzeugliste_[static_cast<size_t>(i) + 1];
    // The first two numbers end at the first blank after them, the third is the rest.
    const size_t b1 = z.find(' ');
    const size_t b2 = b1 == std::string::npos ? std::string::npos : z.find(' ', b1 + 1);
    if (b2 == std::string::npos)
        throw ConversionError("'" + z + "' ist kein gültiger Integerwert");
    ergebnis.nummer = strToInt(z.substr(0, b1));
    ergebnis.seite = strToInt(z.substr(b1 + 1, b2 - b1 - 1));
    ergebnis.punkt = strToInt(z.substr(b2 + 1));
    return true;
}

}  // namespace lexicon
