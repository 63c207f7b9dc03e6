#pragma once
// The core of the algebra workbench: twenty pages, each a small solver that reads its fields
// (texts as the user typed them, terms allowed where numbers are expected) and returns the
// lines of its result list. No Qt here; the window and the headless command share it.
#include <array>
#include <string>
#include <vector>

namespace algebra {

constexpr int seitenzahl = 20;

// The page names in the order of the page list (UTF-8).
const std::vector<std::string>& seitennamen();

// One input field of a page: its caption and the stored example value.
struct Feld {
    std::string titel;
    std::string beispiel;
};

struct Seite {
    bool vorhanden = false;          // false: the page is not built in this version
    std::string hinweis;             // the hint line under the fields
    std::vector<Feld> felder;        // fixed fields; with `zeilenfelder` the rows may grow
    bool zeilenfelder = false;       // fields are equation rows (linear pages)
    int maxfelder = 0;               // the most rows a page takes
};

const Seite& seite(int nummer);

// The result of one computation: lines for the list (tabs kept), ok = something was found.
struct Ergebnis {
    std::vector<std::string> zeilen;
    bool ok = false;
    bool eingabefehler = false;  // the input could not be read; zeilen[0] says why
};

// Stops long computations (nonlinear system) at their next test; set from the window.
struct Abbruch {
    bool gestoppt = false;
    // Called at each status step with the percentage; may set gestoppt.
    void (*melden)(void* ctx, int prozent) = nullptr;
    void* ctx = nullptr;
};

Ergebnis berechne(int seite, const std::vector<std::string>& felder, Abbruch* abbruch = nullptr);

// The graphic solution of a linear optimisation in X and Y only: the constraint lines
// a x + b y <= c (X, Y >= 0 implied), the corners of the feasible polygon in order, cut off
// by a box of side `rand` where the region is open.
struct Punkt2 {
    double x, y;
};
struct Grafik2D {
    bool ok = false;
    std::vector<std::array<double, 3>> geraden;
    std::vector<Punkt2> ecken;
    std::array<double, 2> ziel{};
    double rand = 0;
};
Grafik2D optimierungsGrafik(const std::vector<std::string>& felder);

// The regions of the Venn diagram that a set expression covers: bit r stands for the
// elements in exactly the sets of pattern r (A = 1, B = 2, C = 4). False on a bad expression.
bool mengenBereiche(const std::string& ausdruck, unsigned& regionen);

// Reads a number field through the term interpreter: comma as point, upper case; false on a
// term fault or an empty text.
bool leseZahl(const std::string& text, double& wert);
// Upper case and comma to point, as the interpreter wants its terms.
std::string termText(const std::string& text);
// A number as the result lines show it: up to `stellen` places, trailing zeros trimmed.
std::string zahl(double x, int stellen = 6);

}  // namespace algebra
