#include "dynamics/lifepatterns.h"

#include "platform/codepage.h"
#include "platform/container.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>

namespace dynamics {

const std::vector<PatternName>& patternNames()
{
    static const std::vector<PatternName> names = [] {
        std::vector<std::string> n = {"Absolutes Maximum", "Acht Gleiter", "Acorn (7-Zell)", "B-Heptomino"};
        for (int k = 1; k <= 10; ++k)
            n.push_back("Blinkende Punkte " + std::to_string(k));
        for (const char* s :
             {"Blinkendes Schiff", "Centinal", "Drache", "Dreieck", "Ein-Hundert-Eins", "Enterprise",
              "Erntemaschine", "Eureka", "Factory", "Flasche", "Fliege", "Flip-Flop", "Fontäne",
              "Fünfer-Gruppe", "Garten Eden", "Gleiterkanone", "Gleiterkanone mit Eater", "Großer Gleiter",
              "Großes Raumschiff", "Hektik", "Kanada-Schwan", "Kater und großer Blinker", "Kette",
              "Kleines Raumschiff", "Kreisverkehr", "Kreuz 4", "Laufband", "Leuchtturm, Uhr, Kröte, Ampel",
              "Lichtgeschwindigkeit", "Pulsar", "Puls-Shuttle", "Quasar", "Quilt (Draitekol 1994)", "Race",
              "Relay", "Rotation", "Rotation 2", "R-Pentomino", "Segler", "Stillleben", "Stirb langsam",
              "Zehnerreihe"})
            n.push_back(s);
        // the strings must outlive the table
        static std::vector<std::string> keep = n;
        std::vector<PatternName> out;
        for (size_t k = 0; k < keep.size(); ++k)
            out.push_back({static_cast<int>(k), keep[k].c_str()});
        return out;
    }();
    return names;
}

namespace {

std::string trim(const std::string& s)
{
    size_t a = 0, b = s.size();
    while (a < b && std::isspace(static_cast<unsigned char>(s[a]))) ++a;
    while (b > a && std::isspace(static_cast<unsigned char>(s[b - 1]))) --b;
    return s.substr(a, b - a);
}

bool toInt(const std::string& s, int& v)
{
    if (s.empty() || s.size() > 6) return false;
    size_t k = s[0] == '-' ? 1 : 0;
    if (k == s.size()) return false;
    for (size_t i = k; i < s.size(); ++i)
        if (!std::isdigit(static_cast<unsigned char>(s[i]))) return false;
    v = std::stoi(s);
    return true;
}

std::string lower(std::string s)
{
    for (char& c : s)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

}  // namespace

std::vector<LifePattern> parsePatterns(const std::vector<std::string>& lines)
{
    std::vector<LifePattern> out;
    size_t i = 0;
    while (i < lines.size()) {
        const std::string head = trim(lines[i]);
        ++i;
        if (head.empty() || head[0] != '[') continue;
        LifePattern p;
        if (!toInt(trim(head.substr(1)), p.number) || i + 1 >= lines.size() ||
            !toInt(trim(lines[i]), p.rowOffset) || !toInt(trim(lines[i + 1]), p.colOffset))
            continue;
        i += 2;
        while (i < lines.size() && trim(lines[i]).rfind('[', 0) != 0) {
            p.rows.push_back(trim(lines[i]));
            ++i;
        }
        out.push_back(std::move(p));
    }
    return out;
}

std::vector<PatternName> availablePatterns(const std::vector<LifePattern>& patterns)
{
    std::vector<PatternName> out;
    for (const PatternName& n : patternNames())
        if (std::any_of(patterns.begin(), patterns.end(), [&](const LifePattern& p) { return p.number == n.number; }))
            out.push_back(n);
    return out;
}

const LifePattern* findPattern(const std::vector<LifePattern>& patterns, const std::string& nameOrNumber)
{
    auto byNumber = [&](int number) -> const LifePattern* {
        for (const LifePattern& p : patterns)
            if (p.number == number) return &p;
        return nullptr;
    };
    int number;
    if (toInt(trim(nameOrNumber), number)) return byNumber(number);
    for (const PatternName& n : patternNames())
        if (nameOrNumber == n.name) return byNumber(n.number);
    const std::string want = lower(trim(nameOrNumber));
    if (want.empty()) return nullptr;
    for (const PatternName& n : patternNames())
        if (lower(n.name).rfind(want, 0) == 0)
            if (const LifePattern* p = byNumber(n.number)) return p;
    return nullptr;
}

void loadPattern(LifeGame& game, const LifePattern& pattern)
{
    game.clear();
    for (size_t r = 0; r < pattern.rows.size(); ++r)
        for (size_t c = 0; c < pattern.rows[r].size(); ++c) {
            const char ch = pattern.rows[r][c];
            if (ch > '0' && ch <= '9')
                game.setCell(pattern.rowOffset + static_cast<int>(r) + 1, pattern.colOffset + static_cast<int>(c) + 1,
                             ch - '0');
        }
}

std::vector<std::string> loadPatternLines(const std::string& path)
{
    std::vector<std::string> out;
    if (!path.empty()) {
        std::ifstream in(path);
        for (std::string line; std::getline(in, line);)
            out.push_back(line);
        return out;
    }
    return loadPatternResource();
}

std::vector<std::string> loadPatternResource(const std::string& containerPath)
{
    return platform::loadTextListUtf8(containerPath.empty() ? platform::programContainer("texte.dll") : containerPath,
                                      "game");
}

}  // namespace dynamics
