#include "geometry/polyederdaten.h"

#include "platform/codepage.h"
#include "platform/container.h"

#include <filesystem>
#include <fstream>

namespace poly {

namespace {
const char* const kNamen[] = {"mpoly1", "mpoly2", "koerperz"};
}

std::string standardTextContainer() { return platform::programContainer("texte.dll"); }

std::vector<std::string> ladeKoerperDaten(const std::string& container)
{
    std::vector<std::string> z;
    for (const char* name : kNamen) {
        const auto teil = platform::loadTextListUtf8(container, name);
        z.insert(z.end(), teil.begin(), teil.end());
    }
    return z;
}

std::vector<std::string> ladeKoerperQuellen(const std::string& ordner)
{
    std::vector<std::string> z;
    for (const char* name : kNamen) {
        std::ifstream in(ordner + "/" + name + ".txt");
        std::string s;
        while (std::getline(in, s)) {
            if (!s.empty() && s.back() == '\r') s.pop_back();
            z.push_back(s);
        }
    }
    return z;
}

}  // namespace poly
