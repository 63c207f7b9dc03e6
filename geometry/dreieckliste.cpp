#include "geometry/dreieckliste.h"

#include <algorithm>

namespace geo {

namespace {
std::string ohneRand(std::string s)
{
    while (!s.empty() && (s.back() == '\r' || s.back() == ' ' || s.back() == '\t')) s.pop_back();
    size_t i = 0;
    while (i < s.size() && (s[i] == ' ' || s[i] == '\t')) ++i;
    return s.substr(i);
}
}  // namespace

std::vector<std::string> Objektlisten::alle() const
{
    std::vector<std::string> v;
    for (const auto& l : namen)
        for (const std::string& n : l)
            if (std::find(v.begin(), v.end(), n) == v.end()) v.push_back(n);
    return v;
}

Objektlisten leseObjektlisten(const std::vector<std::string>& zeilen)
{
    Objektlisten o;
    int block = -1;
    bool offen = false;
    for (const std::string& roh : zeilen) {
        const std::string z = ohneRand(roh);
        if (z.empty()) continue;
        if (z.front() == '[' && z.back() == ']') {
            if (block + 1 >= Objektlisten::kAnzahl) break;
            ++block;
            o.titel[block] = z.substr(1, z.size() - 2);
            offen = true;
        } else if (z == "#") {
            offen = false;
        } else if (offen && block >= 0) {
            o.namen[block].push_back(z);
        }
    }
    return o;
}

std::vector<Thema> leseThemen(const std::vector<std::string>& zeilen)
{
    std::vector<Thema> themen;
    for (size_t i = 0; i < zeilen.size(); ++i) {
        const std::string z = ohneRand(zeilen[i]);
        if (z.empty() || z.front() != '[') continue;
        Thema t;
        t.titel = z.substr(1);
        if (!t.titel.empty() && t.titel.back() == ']') t.titel.pop_back();
        if (i + 6 >= zeilen.size()) break;
        for (int k = 0; k < 6; ++k) t.koordinaten[k] = ohneRand(zeilen[i + 1 + k]);
        size_t j = i + 7;
        for (; j < zeilen.size(); ++j) {
            const std::string n = ohneRand(zeilen[j]);
            if (n == "#") break;
            if (!n.empty()) t.objekte.push_back(n);
        }
        themen.push_back(std::move(t));
        i = j;
    }
    return themen;
}

const Thema* findeThema(const std::vector<Thema>& themen, std::string caption)
{
    caption.erase(std::remove(caption.begin(), caption.end(), '&'), caption.end());
    caption = ohneRand(caption);
    for (const Thema& t : themen)
        if (t.titel == caption) return &t;
    return nullptr;
}

std::vector<std::string> schreibeDre(const DreDaten& d)
{
    std::vector<std::string> z(d.felder.begin(), d.felder.end());
    for (const auto& block : d.an) {
        z.insert(z.end(), block.begin(), block.end());
        z.push_back("#");
    }
    return z;
}

bool leseDre(const std::vector<std::string>& zeilen, DreDaten& d)
{
    if (zeilen.size() < 6) return false;
    d = DreDaten{};
    for (int k = 0; k < 6; ++k) d.felder[k] = ohneRand(zeilen[k]);
    size_t i = 6;
    for (int b = 0; b < Objektlisten::kAnzahl && i < zeilen.size(); ++b) {
        for (; i < zeilen.size(); ++i) {
            const std::string n = ohneRand(zeilen[i]);
            if (n == "#") {
                ++i;
                break;
            }
            if (!n.empty()) d.an[b].push_back(n);
        }
    }
    return true;
}

}  // namespace geo
