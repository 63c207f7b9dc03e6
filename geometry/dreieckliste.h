#pragma once
// The authored lists of the triangle tool: the object lists (resource xdreieck), the themes
// (resource wdreieck) and the tool's own .dre files. All lines are UTF-8.
#include <array>
#include <string>
#include <vector>

namespace geo {

// The four visible lists in the order of their tabs; the hidden master list is their union.
struct Objektlisten {
    static constexpr int kAnzahl = 4;
    std::array<std::string, kAnzahl> titel;
    std::array<std::vector<std::string>, kAnzahl> namen;
    std::vector<std::string> alle() const;
};
// Blocks "[Tabname]", then one name a line, closed by "#". Lines before the first block and
// empty lines are skipped.
Objektlisten leseObjektlisten(const std::vector<std::string>& zeilen);

struct Thema {
    std::string titel;
    std::array<std::string, 6> koordinaten;  // Ax, Ay, Bx, By, Cx, Cy as written
    std::vector<std::string> objekte;
};
// Blocks "[Titel", six coordinate lines, object names, "#".
std::vector<Thema> leseThemen(const std::vector<std::string>& zeilen);
// The theme of a menu caption; "&" is stripped first. Null when there is none.
const Thema* findeThema(const std::vector<Thema>& themen, std::string caption);

// A .dre file: six edit texts, then the checked names of the four lists, each block closed by "#".
struct DreDaten {
    std::array<std::string, 6> felder;
    std::array<std::vector<std::string>, Objektlisten::kAnzahl> an;
};
std::vector<std::string> schreibeDre(const DreDaten& d);
// False when the six fields are missing; a missing block counts as empty.
bool leseDre(const std::vector<std::string>& zeilen, DreDaten& d);

}  // namespace geo
