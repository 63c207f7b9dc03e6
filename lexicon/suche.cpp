#include "lexicon/suche.h"

#include "lexicon/einstellungen.h"

#include <string_view>

namespace lexicon {

std::string suchwortZweiteForm(const std::string& wort)
{
    std::string r = wort;
    if (r.empty())
        return r;
    if (r[0] >= 'A' && r[0] <= 'Z')
        r[0] = static_cast<char>(r[0] + 32);
    else if (r[0] >= 'a' && r[0] <= 'z')
        r[0] = static_cast<char>(r[0] - 32);
    else if (r[0] == ' ')
        r[0] = '<';
    return r;
}

std::vector<std::string> volltextSuche(const SuchAuftrag& a)
{
    std::vector<std::string> treffer;
    if (a.wort1.empty())
        return treffer;
    const std::string form1b = suchwortZweiteForm(a.wort1);
    const bool zweiworte = !a.wort2.empty();
    const std::string form2b = suchwortZweiteForm(a.wort2);
    for (int block = 1; block <= a.bloecke; ++block) {
        if (a.laeuft && !a.laeuft())
            break;
        if (a.fortschritt)
            a.fortschritt(block, a.bloecke);
        // Lines as views into the block's text: no copy of a line is made while searching.
        std::vector<std::string_view> zeilen;
        platform::StringList liste;
        std::string text;
        if (a.blockText) {
            text = a.blockText(block);
            size_t start = 0;
            while (start < text.size()) {
                size_t ende = text.find('\n', start);
                if (ende == std::string::npos)
                    ende = text.size();
                size_t stop = ende;
                if (stop > start && text[stop - 1] == '\r')
                    --stop;
                zeilen.emplace_back(text.data() + start, stop - start);
                start = ende + 1;
            }
        } else {
            liste = a.blockLaden(block);
            for (const auto& z : liste)
                zeilen.emplace_back(z);
        }
        bool erwartekopf = true;
        bool treffer1 = false;
        std::string stichwort, letzter;
        for (size_t i = 0; i < zeilen.size(); ++i) {
            std::string_view sv = zeilen[i];
            static const std::string_view blank = " ";
            if (sv.empty())
                sv = blank;
            const std::string_view* s = &sv;
            if ((*s)[0] == '[') {
                erwartekopf = true;
                treffer1 = false;
                if (s->size() < 2 || (*s)[1] != '#') {
                    // Skip the title; the keyword line takes the place of s.
                    i += 2;
                    if (i >= zeilen.size())
                        break;
                    sv = zeilen[i].empty() ? blank : zeilen[i];
                }
            }
            if ((*s)[0] == '\xA7' && erwartekopf) {
                stichwort = std::string(s->substr(1, 255));
                erwartekopf = false;
            }
            if ((s->find(a.wort1) != std::string::npos || s->find(form1b) != std::string::npos) &&
                stichwort != letzter) {
                treffer1 = true;
                if (!zweiworte) {
                    treffer.push_back(stichwort);
                    letzter = stichwort;
                }
            }
            if (zweiworte && (s->find(a.wort2) != std::string::npos || s->find(form2b) != std::string::npos) &&
                stichwort != letzter && treffer1) {
                treffer.push_back(stichwort);
                letzter = stichwort;
            }
        }
    }
    return treffer;
}

platform::StringList lesezeichenLesen(const platform::StringList& ini)
{
    platform::StringList liste;
    size_t i = 0;
    for (; i < ini.size(); ++i)
        if (ini[i] == "[LZeichen]")
            break;
    for (++i; i < ini.size(); ++i) {
        if (!ini[i].empty() && ini[i][0] == '[')
            break;
        const size_t eq = ini[i].find('=');
        if (eq == std::string::npos)
            continue;
        const std::string wert = ini[i].substr(eq + 1, 255);
        if (!wert.empty())
            liste.push_back(wert);
    }
    return liste;
}

void lesezeichenSchreiben(platform::StringList& ini, const platform::StringList& liste, int loeschenAb)
{
    for (size_t k = 0; k < liste.size(); ++k)
        iniSchreiben(ini, "LZeichen", "L" + std::to_string(k), liste[k]);
    if (loeschenAb >= 0)
        iniLoeschen(ini, "LZeichen", "L" + std::to_string(loeschenAb));
}

std::vector<std::pair<short, int>> favoritenSortieren(const std::vector<short>& zaehler)
{
    std::vector<std::pair<short, int>> f;
    for (size_t i = 0; i < zaehler.size(); ++i)
        f.emplace_back(zaehler[i], static_cast<int>(i));
    // The plain exchange sort: its swap order decides between equal counts.
    const size_t n = f.size();
    for (size_t i = 0; i + 1 < n; ++i)
        for (size_t j = i + 1; j < n; ++j)
            if (f[j].first > f[i].first)
                std::swap(f[i], f[j]);
    return f;
}

}  // namespace lexicon
