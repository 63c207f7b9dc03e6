#pragma once
// The three solid resources mpoly1, mpoly2 and koerperz as one list of UTF-8 lines.
#include <string>
#include <vector>

namespace poly {

// The text container beside the program: <program dir>/000/texte.dll.
std::string standardTextContainer();
// Lines of the three resources from the container; a missing resource is an empty list.
std::vector<std::string> ladeKoerperDaten(const std::string& container);
// The same from a folder with the UTF-8 sources mpoly1.txt, mpoly2.txt, koerperz.txt.
std::vector<std::string> ladeKoerperQuellen(const std::string& ordner);

}  // namespace poly
