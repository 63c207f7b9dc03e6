#pragma once
// Wa-Tor: fish and sharks on a torus. Byte layers for fish, sharks and age, an integer layer
// for the chronons since a shark's last meal.
#include "dynamics/life.h"

#include <cstdint>
#include <random>

namespace dynamics {

struct WaTorSettings {
    int boardSize = 50;
    int fischAnteil = 30;  // "% Anteil" of the cells, fish and sharks
    int haiAnteil = 5;
    int fischBrutzeit = 3;  // chronons until a fish breeds
    int haiBrutzeit = 10;
    int haiFastenzeit = 3;  // chronons a shark lives without a meal
    bool variante2 = false;  // sharks move before the fish
};

class WaTor {
public:
    explicit WaTor(const WaTorSettings& s = {}, std::uint32_t seed = 1);

    // Fresh sea with the settings; shares are forced into 0..100 together.
    void reset(const WaTorSettings& s);
    // An empty sea of the settings' size, for placing animals by hand.
    void clear(const WaTorSettings& s);
    void placeFish(int row, int col);
    void placeShark(int row, int col);

    const WaTorSettings& settings() const { return s_; }
    int boardSize() const { return s_.boardSize; }
    int fische() const { return fische_; }
    int haie() const { return haie_; }
    int chrononen() const { return chrononen_; }

    bool fish(int row, int col) const { return fisch_[row][col] != 0; }
    bool shark(int row, int col) const { return hai_[row][col] != 0; }
    int age(int row, int col) const { return alter_[row][col]; }
    int hunger(int row, int col) const { return hunger_[row][col]; }

    // One chronon: every animal moves once.
    void step();

private:
    void moveFish();
    void moveSharks();
    // A random one of the four neighbours (torus) for which `ok` holds; false if none.
    template <typename Pred>
    bool pickNeighbour(int r, int c, Pred ok, int& nr, int& nc);

    WaTorSettings s_;
    Layer fisch_{};
    Layer hai_{};
    Layer alter_{};
    LayerOf<int> hunger_{};
    Layer moved_{};  // cleared before each move sweep
    int fische_ = 0;
    int haie_ = 0;
    int chrononen_ = 0;
    std::mt19937 rng_;
};

}  // namespace dynamics
