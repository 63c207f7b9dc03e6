#pragma once
// The Mühle engine: a pure function of the position record. Player 1 is the human, player 2 the
// computer; every value is seen from player 2, who maximises.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace muehle {

constexpr int kPunkte = 24;
constexpr int kKein = 255;  // "no point" in a move and in the neighbour table
constexpr int kMuehlen = 16;
constexpr int kFenster = 300000;  // search window -kFenster..kFenster
constexpr int kVerloren = 50000;  // value of a lost position
constexpr int kMaxZuege = 24 * 24 + 32;  // more than any generator output with its captures

enum Phase : std::uint8_t { Setzen = 0, Ziehen = 1, Springen = 2 };

struct SpielerStand {
    std::uint8_t phase = Setzen;
    std::int32_t steine = 0;  // on the board
    std::int32_t vorrat = 9;  // still to place
};

struct Stellung {
    std::array<std::uint8_t, kPunkte> brett{};  // 0 empty, 1 or 2
    SpielerStand spieler[3];                     // index 1 and 2 used
};

struct Zug {
    int von = kKein;
    int nach = kKein;
    int schlag = kKein;
    bool operator==(const Zug&) const = default;
};

using Zugliste = std::vector<Zug>;

// ---- Fixed tables
extern const char* const kPunktnamen[kPunkte];
extern const int kPunktX[kPunkte];
extern const int kPunktY[kPunkte];
extern const int kMuehle[kMuehlen][3];
// Neighbours in the order right, down, left, up; kKein where the board has no line.
const std::array<std::array<int, 4>, kPunkte>& nachbarn();
// For each point the two partner pairs of its mills, in the order of the mill list.
const std::array<std::array<std::array<int, 2>, 2>, kPunkte>& muehlenDurch();
// The 97 fork rows (a, b, c, d, e); the last repeats the shape round point 4.
const std::vector<std::array<int, 5>>& gabeln();

inline int gegner(int spieler) { return 3 - spieler; }

// A fresh game: empty board, nine stones in reserve each.
Stellung startstellung();

int Zugfreiheit(const Stellung& s, int spieler);
// zugzahl is the game's running move number, which the search does not advance.
bool SpielEnde(const Stellung& s, int zugzahl);
bool BildetMuehle(const Stellung& s, int punkt, int spieler, int frei);
Zugliste ZugErzeugen(const Stellung& s, int spieler);
void ZugAusfuehren(Stellung& s, const Zug& z, int spieler);
void MuehlenZaehlen(const Stellung& s, int spieler, int& geschlossen, int& offen);

// Search context: the game's move number, the position count and the optional trace.
struct Suche {
    int zugzahl = 1;
    long long stellungen = 0;
    bool testausgabe = false;
    std::vector<std::string> ausgabe;  // trace lines when testausgabe is on
};

int Bewerten(const Stellung& s, Suche& suche);
// Fail-hard alpha-beta on value copies. `oben` is the depth of the root, where `bester` is set.
int AlphaBeta(Zug& bester, int beta, int alpha, int spieler, const Stellung& s, int tiefe, int oben,
              Suche& suche);

struct Entscheidung {
    Zug zug;
    int wert = 0;
    bool gefunden = false;
    bool sofortsieg = false;  // taken by the look for a move that wins at once
};

// The computer's choice for `spieler`: from move 18 a move that wins at once, otherwise the
// search at `tiefe` over the full window.
Entscheidung Computerzug(const Stellung& s, int spieler, int tiefe, Suche& suche);

// Text of a move: "D7 - D6", "A7"; with a capture the connector and the captured point.
std::string zugText(const Zug& z, const std::string& schlagwort = " schlägt ");
// Point by name ("A7", case-insensitive) or -1.
int punktNachName(const std::string& name);

// Position as text: 24 characters '.', 'x' (player 1), 'o' (player 2) in point order,
// optionally ":" reserve of player 1 "," reserve of player 2. Phases follow from the counts.
bool stellungAusText(const std::string& text, Stellung& s, std::string& fehler);
std::string stellungAlsText(const Stellung& s);

}  // namespace muehle
