#include "astronomy/resources.h"

#include "platform/codepage.h"
#include "platform/container.h"

#include <filesystem>

namespace astro {

std::string defaultTextContainer()
{
    std::error_code ec;
    const auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
    if (ec) return "000/texte.dll";
    return (exe.parent_path() / "000" / "texte.dll").string();
}

kal::Resources loadKalenderResources(const std::string& containerPath)
{
    auto load = [&](const char* name) {
        std::vector<std::string> out;
        try {
            for (const std::string& line : platform::loadTextResource(containerPath, "10", name))
                out.push_back(platform::cp1252ToUtf8(line));
        } catch (...) {
            // a missing list is an empty list
        }
        return out;
    };
    kal::Resources r;
    r.kalender = load("kalender");
    r.kalender1 = load("kalender1");
    r.chink = load("chink");
    r.feiert = load("feiert");
    return r;
}

}  // namespace astro
