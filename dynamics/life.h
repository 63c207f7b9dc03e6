#pragma once
// The board of the cellular automata: a square of BoardSize cells inside a frame, 1-based, so
// that the neighbour count needs no bounds checks. Game of Life and the Donnelly voter model.
#include <array>
#include <cstdint>
#include <random>
#include <vector>

namespace dynamics {

constexpr int kMinBoardSize = 2;
constexpr int kMaxBoardSize = 80;
// Rows and columns 0 .. BoardSize+1; the frame row BoardSize+1 must exist also for size 80.
constexpr int kLayerSide = kMaxBoardSize + 2;
constexpr int kKinds = 16;

template <typename T>
using LayerOf = std::array<std::array<T, kLayerSide>, kLayerSide>;
using Layer = LayerOf<std::uint8_t>;

int clampBoardSize(int size);
// The setting "Größe": cell pixels between 2 and 15.
int clampCellPixels(int pixels);

// Row 0 from row n, row n+1 from row 1, the same for columns (corners included).
template <typename T>
void wrapFrame(LayerOf<T>& layer, int n)
{
    for (int c = 1; c <= n; ++c) {
        layer[0][c] = layer[n][c];
        layer[n + 1][c] = layer[1][c];
    }
    for (int r = 0; r <= n + 1; ++r) {
        layer[r][0] = layer[r][n];
        layer[r][n + 1] = layer[r][1];
    }
}

template <typename T>
void clearFrame(LayerOf<T>& layer, int n)
{
    for (int k = 0; k <= n + 1; ++k)
        layer[0][k] = layer[n + 1][k] = layer[k][0] = layer[k][n + 1] = T{};
}

// The check boxes "Geburt" and "Tod", indexed by the number of living neighbours.
struct LifeRule {
    std::array<bool, 9> geburt{};
    std::array<bool, 9> tod{};
    // "Grundeinstellung": born with 3, dies with anything but 2 or 3.
    static LifeRule standard();
};

class LifeGame {
public:
    explicit LifeGame(int boardSize = 50);

    int boardSize() const { return size_; }
    void setBoardSize(int size);  // forced into 2..80; the board is cleared
    void clear();                 // cells, counters and generation

    std::uint8_t cell(int row, int col) const;  // 0 outside the board
    // Sets a cell (kinds above 15 become 15) and keeps the counters right.
    void setCell(int row, int col, int kind);
    void toggle(int row, int col);  // a mouse click: empty <-> kind 1

    // counters()[k]: number of board cells of kind k; counters()[0] counts the empty ones.
    const std::array<int, kKinds>& counters() const { return counters_; }
    int population() const { return size_ * size_ - counters_[0]; }
    int generation() const { return generation_; }

    bool torus = false;
    LifeRule rule = LifeRule::standard();

    // One generation. A newborn cell takes the most frequent kind of its living neighbours.
    void step();

    const Layer& layer() const { return board_; }

private:
    int size_;
    int generation_ = 0;
    Layer board_{};
    Layer work_{};
    std::array<int, kKinds> counters_{};
};

// The Donnelly voter model: each step a random cell takes the group of a random neighbour.
class Donnelly {
public:
    Donnelly(int boardSize, int groups, std::uint32_t seed = 1);

    void reset(int boardSize, int groups);  // random groups 1..groups, counters fresh
    int boardSize() const { return size_; }
    int groups() const { return groups_; }
    std::uint8_t cell(int row, int col) const;
    const std::array<int, kKinds>& counters() const { return counters_; }  // cells per group
    long long wanderungen() const { return wanderungen_; }  // "Wählerwanderungen"
    long long schritte() const { return schritte_; }
    // Groups with at least one cell; 1 means the vote has come to an end.
    int livingGroups() const;

    bool torus = true;
    // One voter step; true when the cell changed its group.
    bool step();
    // Steps until `changes` changes happened or one group is left; the changes made.
    int runChanges(int changes);

    const Layer& layer() const { return board_; }

private:
    int size_;
    int groups_;
    Layer board_{};
    std::array<int, kKinds> counters_{};
    long long wanderungen_ = 0;
    long long schritte_ = 0;
    std::mt19937 rng_;
};

}  // namespace dynamics
