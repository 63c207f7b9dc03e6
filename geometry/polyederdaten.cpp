#include "geometry/polyederdaten.h"

#include "platform/codepage.h"
#include "platform/container.h"

#include <filesystem>
#include <fstream>

namespace poly {

namespace {
const char* const kNamen[] = {"mpoly1", "mpoly2", "koerperz"};
}

std::string standardTextContainer()
{
    std::error_code ec;
    const auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
    if (ec) return "000/texte.dll";
    return (exe.parent_path() / "000" / "texte.dll").string();
}

std::vector<std::string> ladeKoerperDaten(const std::string& container)
{
    std::vector<std::string> z;
    for (const char* name : kNamen) {
        try {
            for (const std::string& l : platform::loadTextResource(container, "10", name))
                z.push_back(platform::cp1252ToUtf8(l));
        } catch (...) {
            // a missing list is an empty list
        }
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
