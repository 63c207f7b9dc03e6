#pragma once
// A running game of Mühle without a window: turns, move histories, protocol, the end test,
// the repetition test and taking back. The window shows what this records.
#include "games/muehle.h"

#include <string>
#include <vector>

namespace muehle {

constexpr int kMaxHistorie = 100;
constexpr int kZugGrenze = 100;  // reaching this move number ends the game as a draw

enum class Variante { SpielerBeginnt = 0, ComputerBeginnt = 1, SpielerGegenSpieler = 2 };

class Muehlespiel {
public:
    // Clears board and counters and names the players; the game runs afterwards.
    void start(Variante v);

    const Stellung& stellung() const { return stellung_; }
    int zugzahl() const { return zugzahl_; }
    int anDerReihe() const { return anDerReihe_; }
    bool laeuft() const { return laeuft_; }
    bool zweiSpieler() const { return zweiSpieler_; }
    int ersterSpieler() const { return ersterSpieler_; }
    const std::string& name(int spieler) const { return namen_[spieler]; }
    const std::vector<std::string>& spielzuege() const { return spielzuege_; }
    const std::vector<Zug>& historie(int spieler) const { return historie_[spieler]; }
    // The last move made, for the marks on the board; von/nach kKein if none.
    const Zug& letzterZug() const { return letzter_; }
    // The closing message ("Gewonnen hat ...", "Das Spiel endet Remis!") once the game is over.
    const std::string& ergebnis() const { return ergebnis_; }
    // Whether it is the computer's turn (never in a game of two humans).
    bool computerAmZug() const { return laeuft_ && !zweiSpieler_ && anDerReihe_ == 2; }

    Zugliste legaleZuege() const { return ZugErzeugen(stellung_, anDerReihe_); }

    // The common step after any move: execute, protocol, history, move number, end test, switch.
    // The move must be one of legaleZuege(); false (and nothing changed) otherwise.
    bool ziehe(const Zug& z);
    // The computer's move for the side to move at `tiefe`, made through ziehe().
    Entscheidung computerZiehen(int tiefe, Suche& suche);
    bool remisprobe() const;
    // "Abbruch": stops a running game that hasn't ended by itself.
    bool abbrechen();
    // "Zurück": two half moves back, replayed from the empty board. False before move 3.
    bool zurueck();

    // Panel text of a player: "9 Steine", phase word, reserve (empty from moving on).
    static std::string steineText(int steine);
    static const char* phasenwort(int phase);
    // Status line of the side to move: name with " setzt!", " zieht!" or " springt!".
    std::string amZugText() const;

private:
    void endtest();

    Stellung stellung_ = startstellung();
    int zugzahl_ = 1;
    int anDerReihe_ = 1;
    int ersterSpieler_ = 1;
    bool laeuft_ = false;
    bool zweiSpieler_ = false;
    std::string namen_[3] = {"", "Spieler A", "Computer"};
    std::vector<Zug> historie_[3];
    std::vector<std::string> spielzuege_;
    Zug letzter_;
    std::string ergebnis_;
};

}  // namespace muehle
