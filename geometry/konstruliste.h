#pragma once
// The editable construction: its lines with their visibility flags, and what the sheet does to
// them (add within the step limit, delete unless something depends on it, rename, drag a free
// point, next names, files and example constructions).
#include "geometry/konstru.h"

#include <string>
#include <vector>

namespace konstru {

struct Beispiel {
    std::string titel;  // without the leading "*"
    std::vector<std::string> zeilen;
};
// The resource "konstru": title lines beginning with "*", each followed by its steps.
std::vector<Beispiel> leseBeispiele(const std::vector<std::string>& resource);

class Konstruktion {
public:
    std::vector<std::string> zeilen;
    std::vector<bool> sichtbar;  // one flag per line

    int anzahl() const { return static_cast<int>(zeilen.size()); }
    // False (list unchanged) when the limit of steps is reached: show message 58 then.
    bool hinzufuegen(const std::string& zeile);
    // "" when deleted, else "<name> abhängig!" naming the first object that another step uses.
    std::string loesche(int index);
    void leere();
    // Replaces the name in its defining line and in the parameters of every later line.
    bool umbenennen(const std::string& alt, const std::string& neu);
    // Rewrites the coordinates of the free point `name`; false when it is no free point.
    bool verschiebe(const std::string& name, P2 p);
    void setze(const std::vector<std::string>& neu);  // all flags on
    // The next free name of a kind: "s3", "k1", or the next free capital letter ("A".."Z",
    // then "A1".."Z1", ...).
    std::string naechsterName(int art) const;
    // Both names of a two-point intersection, "S1,S2".
    std::string naechstesPaar() const;
    Lauf rechne(int bis = -1) const { return fuehreAus(zeilen, sichtbar, bis); }

    // .dyn files: one line per step, Windows-1252, CR LF. Load is false for a missing file or
    // one without any valid step line; the list is unchanged then.
    bool lade(const std::string& pfad);
    bool speichere(const std::string& pfad) const;

private:
    bool nameBelegt(const std::string& name) const;
};

}  // namespace konstru
