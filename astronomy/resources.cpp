#include "astronomy/resources.h"

#include "platform/codepage.h"
#include "platform/container.h"

#include <filesystem>

namespace astro {

std::string defaultTextContainer() { return platform::programContainer("texte.dll"); }

kal::Resources loadKalenderResources(const std::string& containerPath)
{
    auto load = [&](const char* name) { return platform::loadTextListUtf8(containerPath, name); };
    kal::Resources r;
    r.kalender = load("kalender");
    r.kalender1 = load("kalender1");
    r.chink = load("chink");
    r.feiert = load("feiert");
    return r;
}

}  // namespace astro
