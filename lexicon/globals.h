#pragma once
// The process-wide state that the shell shares with every tool: the four paths, the tool
// selection and the settings that pages and tools read.
#include <string>

namespace lexicon {

// All four end in a slash.
extern std::string programmpfad;
extern std::string lexikonpfad;
extern std::string bildpfad;
extern std::string datenpfad;

// The tool selection; valid only while a tool starts.
extern int werkzeugnummer;
extern int wahlseite;
extern int wahlpunkt;
extern std::string werkzeugtitel;

// Derives programmpfad, lexikonpfad and bildpfad from the executable's folder.
void pfadeSetzen(const std::string& executableDir);

}  // namespace lexicon
