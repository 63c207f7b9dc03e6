#pragma once
// The pages of the stochastics window as data: title, inputs with their defaults, the start
// button's caption and the computation. The window builds its widgets from this table; tests run
// every page without a window.
#include "stochastics/usimulation.h"

#include <functional>
#include <string>
#include <vector>

namespace zufall {

struct Feld {
    enum Art { Zahl, Text, Auswahl };
    Art art = Zahl;
    std::string name;     // label
    std::string vorgabe;  // text, or the chosen index of a list
    std::vector<std::string> liste;
    bool beispiel = false;  // choosing an entry fills the page's text fields with example data
};

// The inputs as the user left them: one text per field (the index for lists).
using Eingaben = std::vector<std::string>;

struct Seite {
    std::string titel;      // text of the page list ("" for the pages reached only from the catalogue)
    std::string ueberschrift;
    std::string knopf;      // "Berechnung", "Experiment starten" or "Simulation"
    bool simulation = false;  // long run: the button becomes "Abbruch"
    std::vector<Feld> felder;
    std::function<Ergebnis(const Eingaben&, Zufall&, const Fortschritt&)> rechne;
    // For a kind list in field 0: the labels of the following number fields ("" hides a field).
    std::function<std::vector<std::string>(int art)> feldnamen;
    // For an example list: the texts of the page's text fields, in order.
    std::function<std::vector<std::string>(int nr)> beispieltexte;
};

const std::vector<Seite>& seiten();
constexpr int kSeitenAnzahl = 22;

// Saved inputs: the first line is the short key of the page's data group ("dat", "kfi", "kur",
// "kor", "wve", "mar", "vte", "ein"), the second the page, then one line per field with line
// breaks as "\\n".
std::string datengruppe(int seite);
std::vector<std::string> datenSchreiben(int seite, const Eingaben& e);
// False (and `e` unchanged) when the lines belong to another page or have another field count.
bool datenLesen(int seite, const std::vector<std::string>& zeilen, Eingaben& e);

// A numeric field: a term is accepted wherever a number is expected; a fault gives `vorgabe`.
double feldZahl(const std::string& text, double vorgabe);

}  // namespace zufall
