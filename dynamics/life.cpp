#include "dynamics/life.h"

#include <algorithm>

namespace dynamics {

int clampBoardSize(int size) { return std::clamp(size, kMinBoardSize, kMaxBoardSize); }

int clampCellPixels(int pixels) { return std::clamp(pixels, 2, 15); }

LifeRule LifeRule::standard()
{
    LifeRule r;
    r.geburt[3] = true;
    for (int k = 0; k <= 8; ++k)
        r.tod[k] = k != 2 && k != 3;
    return r;
}

// ---------------------------------------------------------------- Game of Life

LifeGame::LifeGame(int boardSize) : size_(clampBoardSize(boardSize)) { clear(); }

void LifeGame::setBoardSize(int size)
{
    size_ = clampBoardSize(size);
    clear();
}

void LifeGame::clear()
{
    board_ = Layer{};
    counters_.fill(0);
    counters_[0] = size_ * size_;
    generation_ = 0;
}

std::uint8_t LifeGame::cell(int row, int col) const
{
    if (row < 1 || col < 1 || row > size_ || col > size_) return 0;
    return board_[row][col];
}

void LifeGame::setCell(int row, int col, int kind)
{
    if (row < 1 || col < 1 || row > size_ || col > size_) return;
    kind = std::clamp(kind, 0, kKinds - 1);
    --counters_[board_[row][col]];
    board_[row][col] = static_cast<std::uint8_t>(kind);
    ++counters_[kind];
}

void LifeGame::toggle(int row, int col) { setCell(row, col, cell(row, col) ? 0 : 1); }

void LifeGame::step()
{
    const int n = size_;
    if (torus)
        wrapFrame(board_, n);
    else
        clearFrame(board_, n);
    work_ = Layer{};
    counters_.fill(0);
    for (int r = 1; r <= n; ++r) {
        for (int c = 1; c <= n; ++c) {
            int count = 0;
            for (int dr = -1; dr <= 1; ++dr)
                for (int dc = -1; dc <= 1; ++dc)
                    if ((dr || dc) && board_[r + dr][c + dc]) ++count;
            std::uint8_t kind = board_[r][c];
            if (kind) {
                if (rule.tod[count]) kind = 0;
            } else if (rule.geburt[count]) {
                // the kind most of the parents have; ties go to the smaller kind
                std::array<int, kKinds> seen{};
                for (int dr = -1; dr <= 1; ++dr)
                    for (int dc = -1; dc <= 1; ++dc)
                        ++seen[board_[r + dr][c + dc]];
                kind = 1;
                for (int k = 2; k < kKinds; ++k)
                    if (seen[k] > seen[kind]) kind = static_cast<std::uint8_t>(k);
            }
            work_[r][c] = kind;
            ++counters_[kind];
        }
    }
    board_ = work_;
    ++generation_;
}

// ---------------------------------------------------------------- Donnelly

Donnelly::Donnelly(int boardSize, int groups, std::uint32_t seed) : size_(2), groups_(2), rng_(seed)
{
    reset(boardSize, groups);
}

void Donnelly::reset(int boardSize, int groups)
{
    size_ = clampBoardSize(boardSize);
    groups_ = std::clamp(groups, 1, kKinds - 1);
    board_ = Layer{};
    counters_.fill(0);
    std::uniform_int_distribution<int> pick(1, groups_);
    for (int r = 1; r <= size_; ++r)
        for (int c = 1; c <= size_; ++c) {
            const int g = pick(rng_);
            board_[r][c] = static_cast<std::uint8_t>(g);
            ++counters_[g];
        }
    wanderungen_ = 0;
    schritte_ = 0;
}

std::uint8_t Donnelly::cell(int row, int col) const
{
    if (row < 1 || col < 1 || row > size_ || col > size_) return 0;
    return board_[row][col];
}

int Donnelly::livingGroups() const
{
    return static_cast<int>(std::count_if(counters_.begin() + 1, counters_.end(), [](int k) { return k > 0; }));
}

bool Donnelly::step()
{
    std::uniform_int_distribution<int> pos(1, size_);
    std::uniform_int_distribution<int> dir(0, 7);
    static constexpr int dr[8] = {-1, -1, -1, 0, 0, 1, 1, 1};
    static constexpr int dc[8] = {-1, 0, 1, -1, 1, -1, 0, 1};
    const int r = pos(rng_), c = pos(rng_);
    int nr, nc;
    // without the torus only neighbours on the board vote; every cell has at least three
    do {
        const int d = dir(rng_);
        nr = r + dr[d];
        nc = c + dc[d];
        if (torus) {
            nr = (nr + size_ - 1) % size_ + 1;
            nc = (nc + size_ - 1) % size_ + 1;
        }
    } while (nr < 1 || nc < 1 || nr > size_ || nc > size_);
    ++schritte_;
    const std::uint8_t from = board_[r][c], to = board_[nr][nc];
    if (from == to) return false;
    board_[r][c] = to;
    --counters_[from];
    ++counters_[to];
    ++wanderungen_;
    return true;
}

int Donnelly::runChanges(int changes)
{
    int done = 0;
    while (done < changes && livingGroups() > 1)
        if (step()) ++done;
    return done;
}

}  // namespace dynamics
