#include "lexicon/pagestore.h"

#include "platform/container.h"

#include <cctype>

namespace lexicon {

int strToInt(const std::string& s)
{
    size_t i = 0;
    while (i < s.size() && s[i] == ' ')
        ++i;
    size_t j = s.size();
    while (j > i && s[j - 1] == ' ')
        --j;
    const std::string t = s.substr(i, j - i);
    size_t k = 0;
    if (k < t.size() && (t[k] == '-' || t[k] == '+'))
        ++k;
    if (k == t.size() || t.size() - k > 10)
        throw ConversionError("'" + s + "' ist kein gültiger Integerwert");
    for (size_t m = k; m < t.size(); ++m)
        if (!std::isdigit(static_cast<unsigned char>(t[m])))
            throw ConversionError("'" + s + "' ist kein gültiger Integerwert");
    const long long v = std::stoll(t);
    if (v > 2147483647LL || v < -2147483648LL)
        throw ConversionError("'" + s + "' ist kein gültiger Integerwert");
    return static_cast<int>(v);
}

PageStore::PageStore(std::string lexikonpfad) : lexikonpfad_(std::move(lexikonpfad)) {}

void PageStore::ladeblock(const std::string& name)
{
    seitenblock = platform::loadTextResource(lexikonpfad_ + "tlexikon.dll", "10", name);
}

void PageStore::blockFuerSeite(int seite)
{
    const int block = seite / 100 + 1;
    if (block == blocknummer)
        return;
    ladeblock("t" + std::to_string(block));
    blocknummer = block;
}

int PageStore::kopfzeile(int seite)
{
    blockFuerSeite(seite);
    const size_t idx = static_cast<size_t>(seite % 100);
    if (idx >= seitenblock.size())
        throw ConversionError("Zeilenindex außerhalb des Bereichs (" + std::to_string(idx) + ")");
    return strToInt(seitenblock[idx]);
}

platform::StringList PageStore::stichwortliste() const
{
    return platform::loadTextResource(lexikonpfad_ + "tlexikon.dll", "10", "ms");
}

int PageStore::letzterBlock() const
{
    int k = 0;
    while (platform::hasResource(lexikonpfad_ + "tlexikon.dll", "10", "t" + std::to_string(k + 1)))
        ++k;
    return k;
}

int seitennummerAusStichwort(const std::string& zeile)
{
    const size_t tab = zeile.find('\t');
    if (tab == std::string::npos)
        throw ConversionError("'' ist kein gültiger Integerwert");
    return strToInt(zeile.substr(tab + 1, 5));
}

std::string stichwortText(const std::string& zeile)
{
    const size_t tab = zeile.find('\t');
    return tab == std::string::npos ? zeile : zeile.substr(0, tab);
}

}  // namespace lexicon
