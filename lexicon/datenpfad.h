#pragma once
// Start-up preparation of the user's data folder: settings copy and the 13 .c00 files.
#include <functional>
#include <string>

namespace lexicon {

// Base names of the installation's .c00 files, in their fixed order.
extern const char* const kC00Namen[13];

// appDataFolder: the user's application-data folder (no trailing slash needed).
// frageUebernehmen: asked on a new installation; false means "overwrite the user's data".
// Returns datenpfad (ending in '/'), or lexikonpfad if the folder cannot be created.
std::string datenpfadVorbereiten(const std::string& appDataFolder, const std::string& programmpfad,
                                 const std::string& lexikonpfad,
                                 const std::function<bool()>& frageUebernehmen);

// The user's application-data folder of this system: $XDG_DATA_HOME or ~/.local/share.
std::string anwendungsdatenOrdner();

}  // namespace lexicon
