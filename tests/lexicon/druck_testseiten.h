#pragma once
// Pages of the real lexicon sources (data/lexikon) as blocks, without the packer.
#include "platform/codepage.h"
#include "platform/textlist.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace testseiten {

struct Quellseite {
    int nummer = -1;
    std::string titel;  // Windows-1252
    std::string stichwort;
    platform::StringList rumpf;
};

inline std::vector<Quellseite> lesen(const std::filesystem::path& datei)
{
    std::ifstream in(datei);
    std::vector<Quellseite> seiten;
    std::string z;
    while (std::getline(in, z)) {
        if (!z.empty() && z.back() == '\r')
            z.pop_back();
        if (z.rfind("@seite ", 0) == 0) {
            seiten.emplace_back();
            seiten.back().nummer = std::stoi(z.substr(7));
        } else if (seiten.empty()) {
            continue;
        } else if (z.rfind("@titel ", 0) == 0) {
            seiten.back().titel = platform::utf8ToCp1252(z.substr(7));
        } else if (z.rfind("@stichwort ", 0) == 0) {
            seiten.back().stichwort = platform::utf8ToCp1252(z.substr(11));
        } else if (z.rfind("@", 0) == 0) {
            continue;
        } else {
            seiten.back().rumpf.push_back(platform::utf8ToCp1252(z));
        }
    }
    for (auto& s : seiten)
        while (!s.rumpf.empty() && s.rumpf.back().empty())
            s.rumpf.pop_back();
    return seiten;
}

inline std::vector<Quellseite> alle()
{
    std::vector<Quellseite> r;
    for (const auto& e : std::filesystem::directory_iterator(QUORIX_SOURCE_DIR "/data/lexikon"))
        if (e.path().extension() == ".txt")
            for (auto& s : lesen(e.path()))
                r.push_back(std::move(s));
    return r;
}

inline Quellseite seite(int nummer)
{
    for (auto& s : alle())
        if (s.nummer == nummer)
            return s;
    return {};
}

// A block as the store holds it: the page's marker line "[local]" at index 0.
inline platform::StringList block(const Quellseite& s)
{
    platform::StringList b = {"[" + std::to_string(s.nummer % 100) + "]", s.titel, "\xA7" + s.stichwort};
    b.insert(b.end(), s.rumpf.begin(), s.rumpf.end());
    b.push_back("[#]");
    return b;
}

}  // namespace testseiten
