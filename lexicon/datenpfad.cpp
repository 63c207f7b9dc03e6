#include "lexicon/datenpfad.h"

#include "platform/container.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace lexicon {

const char* const kC00Namen[13] = {"mbib", "mdrei", "meinh", "minte", "mkurv", "mort", "mort1",
                                   "mchaos", "mimp", "mreak", "mschach", "mfavor", "mbaum"};

std::string anwendungsdatenOrdner()
{
    if (const char* x = std::getenv("XDG_DATA_HOME"); x && *x)
        return x;
    const char* home = std::getenv("HOME");
    return std::string(home ? home : "/tmp") + "/.local/share";
}

std::string datenpfadVorbereiten(const std::string& appDataFolder, const std::string& programmpfad,
                                 const std::string& lexikonpfad,
                                 const std::function<bool()>& frageUebernehmen)
{
    std::error_code ec;
    // On this system the application-data folder itself may not exist yet on a fresh account.
    fs::create_directories(appDataFolder, ec);
    std::string daten = appDataFolder;
    if (daten.empty() || daten.back() != '/')
        daten += '/';
    daten += "Quorix/";
    if (!fs::is_directory(daten))
        fs::create_directory(daten, ec);
    if (!fs::is_directory(daten))
        return lexikonpfad;

    bool ueberschreiben = false;
    const fs::path userIni = daten + "quorix.ini";
    const fs::path factoryIni = programmpfad + "quorix.ini";
    if (fs::exists(userIni)) {
        if (fs::exists(factoryIni) && fs::last_write_time(userIni, ec) < fs::last_write_time(factoryIni, ec)) {
            // A newer installation: settings are reset, data kept unless the user says no.
            fs::copy_file(factoryIni, userIni, fs::copy_options::overwrite_existing, ec);
            fs::last_write_time(userIni, fs::last_write_time(factoryIni, ec), ec);
            if (frageUebernehmen && !frageUebernehmen())
                ueberschreiben = true;
        }
    } else if (fs::exists(factoryIni)) {
        fs::copy_file(factoryIni, userIni, ec);
        fs::last_write_time(userIni, fs::last_write_time(factoryIni, ec), ec);
    }

    const std::string tinit = lexikonpfad + "tinit.dll";
    for (const char* name : kC00Namen) {
        const std::string ziel = daten + name + ".c00";
        if (fs::exists(ziel) && !ueberschreiben)
            continue;
        try {
            platform::writeFileSafely(ziel, platform::readResource(tinit, "10", name));
        } catch (const platform::ResourceError&) {
            // A damaged installation: the tool that needs the file shows an empty list.
        }
    }
    return daten;
}

}  // namespace lexicon
