#include "lexicon/globals.h"

namespace lexicon {

std::string programmpfad;
std::string lexikonpfad;
std::string bildpfad;
std::string datenpfad;

int werkzeugnummer = -1;
int wahlseite = -1;
int wahlpunkt = -1;
std::string werkzeugtitel;

void pfadeSetzen(const std::string& executableDir)
{
    programmpfad = executableDir;
    if (programmpfad.empty() || programmpfad.back() != '/')
        programmpfad += '/';
    lexikonpfad = programmpfad + "000/";
    bildpfad = programmpfad + "bmp/";
}

}  // namespace lexicon
