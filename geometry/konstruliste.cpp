#include "geometry/konstruliste.h"

#include "platform/codepage.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <fstream>
#include <set>
#include <sstream>

namespace konstru {

namespace {

std::set<std::string> alleNamen(const std::vector<std::string>& zeilen)
{
    std::set<std::string> n;
    for (const std::string& z : zeilen) {
        Schritt s;
        if (zerlege(z, s))
            for (const std::string& name : namenVon(s)) n.insert(name);
    }
    return n;
}

bool gueltigerName(const std::string& n)
{
    if (n.empty() || n == ".") return false;
    return std::none_of(n.begin(), n.end(), [](char c) { return c == '\t' || c == '|' || c == ',' || c == ' '; });
}

}  // namespace

std::vector<Beispiel> leseBeispiele(const std::vector<std::string>& resource)
{
    std::vector<Beispiel> b;
    for (const std::string& roh : resource) {
        std::string z = roh;
        while (!z.empty() && (z.back() == '\r' || z.back() == '\n')) z.pop_back();
        if (!z.empty() && z[0] == '*')
            b.push_back({z.substr(1), {}});
        else if (!b.empty() && !z.empty())
            b.back().zeilen.push_back(z);
    }
    return b;
}

bool Konstruktion::hinzufuegen(const std::string& zeile)
{
    if (anzahl() >= kMaxSchritte) return false;
    zeilen.push_back(zeile);
    sichtbar.push_back(true);
    return true;
}

std::string Konstruktion::loesche(int index)
{
    if (index < 0 || index >= anzahl()) return "";
    Schritt s;
    if (zerlege(zeilen[index], s)) {
        for (const std::string& name : namenVon(s))
            for (int j = index + 1; j < anzahl(); ++j) {
                Schritt t;
                if (!zerlege(zeilen[j], t)) continue;
                if (std::find(t.parameter.begin(), t.parameter.end(), name) != t.parameter.end())
                    return name + " abhängig!";
            }
    }
    zeilen.erase(zeilen.begin() + index);
    sichtbar.erase(sichtbar.begin() + index);
    return "";
}

void Konstruktion::leere()
{
    zeilen.clear();
    sichtbar.clear();
}

void Konstruktion::setze(const std::vector<std::string>& neu)
{
    zeilen = neu;
    sichtbar.assign(zeilen.size(), true);
}

bool Konstruktion::umbenennen(const std::string& alt, const std::string& neu)
{
    if (!gueltigerName(neu) || nameBelegt(neu)) return false;
    int def = -1;
    for (int i = anzahl() - 1; i >= 0 && def < 0; --i) {
        Schritt s;
        if (!zerlege(zeilen[i], s)) continue;
        std::vector<std::string> namen = namenVon(s);
        auto it = std::find(namen.begin(), namen.end(), alt);
        if (it == namen.end()) continue;
        *it = neu;
        std::string name;
        for (std::size_t k = 0; k < namen.size(); ++k) name += (k ? "," : "") + namen[k];
        zeilen[i] = zeile(s.art, name, s.parameter);
        def = i;
    }
    if (def < 0) return false;
    for (int j = def + 1; j < anzahl(); ++j) {
        Schritt t;
        if (!zerlege(zeilen[j], t)) continue;
        bool geaendert = false;
        for (std::string& p : t.parameter)
            if (p == alt) {
                p = neu;
                geaendert = true;
            }
        if (geaendert) zeilen[j] = zeile(t.art, t.name, t.parameter);
    }
    return true;
}

bool Konstruktion::verschiebe(const std::string& name, P2 p)
{
    for (int i = anzahl() - 1; i >= 0; --i) {
        Schritt s;
        if (zerlege(zeilen[i], s) && s.art == kPunkt && s.name == name) {
            zeilen[i] = zeile(kPunkt, name, {zahlText(p.x), zahlText(p.y)});
            return true;
        }
    }
    return false;
}

bool Konstruktion::nameBelegt(const std::string& name) const { return alleNamen(zeilen).count(name) > 0; }

std::string Konstruktion::naechsterName(int art) const
{
    const std::string anfang = namensAnfang(art);
    if (anfang == ".") return ".";
    const std::set<std::string> belegt = alleNamen(zeilen);
    if (anfang.empty()) {
        for (int runde = 0;; ++runde)
            for (char c = 'A'; c <= 'Z'; ++c) {
                const std::string n = std::string(1, c) + (runde ? std::to_string(runde) : "");
                if (!belegt.count(n)) return n;
            }
    }
    int hoechste = 0;
    for (const std::string& n : belegt)
        if (n.size() > anfang.size() && n.compare(0, anfang.size(), anfang) == 0 &&
            std::all_of(n.begin() + anfang.size(), n.end(), [](unsigned char c) { return std::isdigit(c); }) &&
            n.size() - anfang.size() < 9)
            hoechste = std::max(hoechste, std::stoi(n.substr(anfang.size())));
    return anfang + std::to_string(hoechste + 1);
}

std::string Konstruktion::naechstesPaar() const
{
    const std::string erster = naechsterName(kKreisKreis);
    const int n = std::stoi(erster.substr(1));
    return erster + ",S" + std::to_string(n + 1);
}

bool Konstruktion::lade(const std::string& pfad)
{
    std::ifstream in(pfad, std::ios::binary);
    if (!in) return false;
    std::vector<std::string> neu;
    for (std::string z; std::getline(in, z);) {
        if (!z.empty() && z.back() == '\r') z.pop_back();
        z = platform::cp1252ToUtf8(z);
        Schritt s;
        if (zerlege(z, s)) neu.push_back(z);
    }
    if (neu.empty()) return false;
    if (neu.size() > static_cast<std::size_t>(kMaxSchritte)) neu.resize(kMaxSchritte);
    setze(neu);
    return true;
}

bool Konstruktion::speichere(const std::string& pfad) const
{
    const std::string temp = pfad + ".tmp";
    {
        std::ofstream out(temp, std::ios::binary | std::ios::trunc);
        if (!out) return false;
        for (const std::string& z : zeilen) out << platform::utf8ToCp1252(z) << "\r\n";
        if (!out.flush()) return false;
    }
    // renamed only when complete, so a failure never leaves half a file
    return std::rename(temp.c_str(), pfad.c_str()) == 0;
}

}  // namespace konstru
