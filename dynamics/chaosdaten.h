#pragma once
// The object list of the fractal tool, read from the text resource CHAOS, and the dispatch of
// one object to its drawing routine.
#include "dynamics/chaossysteme.h"
#include "dynamics/fraktal.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace chaos {

// The seven entries of "Fraktal-Typ".
enum Fraktaltyp { Mandelbrot = 0, Julia, IfsEditor, Simulationen, IterativeSysteme, Kreisfraktale, Feigenbaum };
const std::vector<std::string>& fraktaltypnamen();

// One block: "[<nummer>", the name line, directive lines up to "[", then description lines.
// The number is 100 * fraktal type + position, so the type picks its own objects.
struct ChaosObjekt {
    int nummer = 0;
    std::string name;
    std::map<std::string, std::vector<std::string>> direktiven;  // "#Rx" -> its argument lines
    std::vector<std::string> beschreibung;
    int typ() const { return nummer / 100; }
    bool hat(const std::string& d) const { return direktiven.count(d) != 0; }
    const std::vector<std::string>& argumente(const std::string& d) const;
    // The numbers of the first argument line of a directive, or `vorgabe`.
    std::vector<double> zahlen(const std::string& d, std::vector<double> vorgabe = {}) const;
    double zahl(const std::string& d, double vorgabe) const;
};

// Parses the lines (UTF-8). Blocks with bad headers are skipped.
std::vector<ChaosObjekt> leseChaosText(const std::vector<std::string>& zeilen);
std::vector<const ChaosObjekt*> objekteDesTyps(const std::vector<ChaosObjekt>& alle, int typ);
const ChaosObjekt* findeObjekt(const std::vector<ChaosObjekt>& alle, const std::string& name);

// A parameter field of "#2"/"#3": "Beschriftung|Wert".
struct Parameterfeld {
    std::string beschriftung;
    double wert = 0;
};

// What a drawing needs, taken from an object and changed by the user's fields.
struct Einstellung {
    int typ = Mandelbrot;
    int variante = 10;             // escape-time variant or simulation number
    Ansicht ansicht;
    int iterationen = 200;         // "#4"
    int iterMin = 1, iterMax = 100000;  // "#4a"
    int schritt = 0;               // "#6": depth or settling steps
    std::vector<Parameterfeld> parameter;  // "#2" then "#3"
    std::vector<std::string> code;         // "#E": IFS maps or the system code
    double ca = 0, cb = 0;                 // "#R2": Julia parameter
    double farbfaktor = 3;
    bool innenfaerbung = false;
    Zeichenmodus modus = Zeichenmodus::Setzen;
    int nurAbbildung = -1;  // IFS: -1 all maps
    long long punkte = 200000;
    std::uint64_t keim = 1;
    std::string palette = "defaultw";
    double par(std::size_t i, double vorgabe) const { return i < parameter.size() ? parameter[i].wert : vorgabe; }
};
Einstellung einstellungAus(const ChaosObjekt& o);

// Progress in thousandths; returning false stops.
using Anteil = std::function<bool(int promille)>;

// Draws the setting into a raster of the given size; `zeilen` gets the result lines.
// False if stopped or the setting is unusable (then `zeilen` says why). A routine that fits
// its view to what it draws (the prime walk) reports that view in `benutzt`.
bool zeichneChaos(const Einstellung& e, int breite, int hoehe, Werteraster& raster,
                  std::vector<std::string>& zeilen, const Anteil& weiter = {}, Ansicht* benutzt = nullptr);

// "%.2f Md." / "%.0f Mill." / plain count, as the point counts are shown.
std::string punktzahlText(double n);

}  // namespace chaos
