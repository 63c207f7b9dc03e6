#include "dynamics/wator.h"

#include <algorithm>
#include <vector>

namespace dynamics {

WaTor::WaTor(const WaTorSettings& s, std::uint32_t seed) : rng_(seed) { reset(s); }

void WaTor::clear(const WaTorSettings& s)
{
    s_ = s;
    s_.boardSize = clampBoardSize(s.boardSize);
    s_.fischAnteil = std::clamp(s_.fischAnteil, 0, 100);
    s_.haiAnteil = std::clamp(s_.haiAnteil, 0, 100 - s_.fischAnteil);
    s_.fischBrutzeit = std::max(1, s_.fischBrutzeit);
    s_.haiBrutzeit = std::max(1, s_.haiBrutzeit);
    s_.haiFastenzeit = std::max(1, s_.haiFastenzeit);
    fisch_ = hai_ = alter_ = Layer{};
    hunger_ = LayerOf<int>{};
    fische_ = haie_ = chrononen_ = 0;
}

void WaTor::reset(const WaTorSettings& s)
{
    clear(s);
    const int n = s_.boardSize;
    // shuffle all places, then give the first ones fish and the next ones sharks
    std::vector<int> places(n * n);
    for (int k = 0; k < n * n; ++k)
        places[k] = k;
    std::shuffle(places.begin(), places.end(), rng_);
    const int nf = n * n * s_.fischAnteil / 100;
    const int nh = n * n * s_.haiAnteil / 100;
    std::uniform_int_distribution<int> fishAge(0, s_.fischBrutzeit - 1), sharkAge(0, s_.haiBrutzeit - 1);
    for (int k = 0; k < nf + nh; ++k) {
        const int r = places[k] / n + 1, c = places[k] % n + 1;
        if (k < nf) {
            placeFish(r, c);
            alter_[r][c] = static_cast<std::uint8_t>(fishAge(rng_));
        } else {
            placeShark(r, c);
            alter_[r][c] = static_cast<std::uint8_t>(sharkAge(rng_));
        }
    }
}

void WaTor::placeFish(int row, int col)
{
    if (row < 1 || col < 1 || row > s_.boardSize || col > s_.boardSize) return;
    if (fisch_[row][col] || hai_[row][col]) return;
    fisch_[row][col] = 1;
    alter_[row][col] = 0;
    ++fische_;
}

void WaTor::placeShark(int row, int col)
{
    if (row < 1 || col < 1 || row > s_.boardSize || col > s_.boardSize) return;
    if (fisch_[row][col] || hai_[row][col]) return;
    hai_[row][col] = 1;
    alter_[row][col] = 0;
    hunger_[row][col] = 0;
    ++haie_;
}

template <typename Pred>
bool WaTor::pickNeighbour(int r, int c, Pred ok, int& nr, int& nc)
{
    const int n = s_.boardSize;
    static constexpr int dr[4] = {-1, 0, 1, 0};
    static constexpr int dc[4] = {0, 1, 0, -1};
    int cand[4][2];
    int count = 0;
    for (int d = 0; d < 4; ++d) {
        const int rr = (r + dr[d] + n - 1) % n + 1, cc = (c + dc[d] + n - 1) % n + 1;
        if (ok(rr, cc)) {
            cand[count][0] = rr;
            cand[count][1] = cc;
            ++count;
        }
    }
    if (!count) return false;
    const int k = std::uniform_int_distribution<int>(0, count - 1)(rng_);
    nr = cand[k][0];
    nc = cand[k][1];
    return true;
}

void WaTor::moveFish()
{
    const int n = s_.boardSize;
    moved_ = Layer{};
    auto free = [this](int r, int c) { return !fisch_[r][c] && !hai_[r][c]; };
    for (int r = 1; r <= n; ++r)
        for (int c = 1; c <= n; ++c) {
            if (!fisch_[r][c] || moved_[r][c]) continue;
            const int age = alter_[r][c] + 1;
            int nr, nc;
            if (!pickNeighbour(r, c, free, nr, nc)) {
                // no room: it stays and waits with its breeding
                alter_[r][c] = static_cast<std::uint8_t>(std::min(age, 255));
                continue;
            }
            fisch_[r][c] = 0;
            fisch_[nr][nc] = 1;
            moved_[nr][nc] = 1;
            if (age >= s_.fischBrutzeit) {
                alter_[nr][nc] = 0;
                fisch_[r][c] = 1;  // the young fish stays behind
                alter_[r][c] = 0;
                moved_[r][c] = 1;
                ++fische_;
            } else {
                alter_[nr][nc] = static_cast<std::uint8_t>(age);
                alter_[r][c] = 0;
            }
        }
}

void WaTor::moveSharks()
{
    const int n = s_.boardSize;
    moved_ = Layer{};
    auto prey = [this](int r, int c) { return fisch_[r][c] != 0; };
    auto free = [this](int r, int c) { return !fisch_[r][c] && !hai_[r][c]; };
    for (int r = 1; r <= n; ++r)
        for (int c = 1; c <= n; ++c) {
            if (!hai_[r][c] || moved_[r][c]) continue;
            const int age = alter_[r][c] + 1;
            int hunger = hunger_[r][c] + 1;
            int nr = r, nc = c;
            if (pickNeighbour(r, c, prey, nr, nc)) {
                fisch_[nr][nc] = 0;
                --fische_;
                hunger = 0;
            } else if (!pickNeighbour(r, c, free, nr, nc)) {
                nr = r;
                nc = c;
            }
            hai_[r][c] = 0;
            alter_[r][c] = 0;
            hunger_[r][c] = 0;
            if (hunger >= s_.haiFastenzeit) {
                --haie_;  // starved
                continue;
            }
            hai_[nr][nc] = 1;
            moved_[nr][nc] = 1;
            hunger_[nr][nc] = hunger;
            alter_[nr][nc] = static_cast<std::uint8_t>(std::min(age, 255));
            if (age >= s_.haiBrutzeit && (nr != r || nc != c)) {
                alter_[nr][nc] = 0;
                hai_[r][c] = 1;  // the young shark, fed like its parent
                hunger_[r][c] = 0;
                moved_[r][c] = 1;
                ++haie_;
            }
        }
}

void WaTor::step()
{
    if (s_.variante2) {
        moveSharks();
        moveFish();
    } else {
        moveFish();
        moveSharks();
    }
    ++chrononen_;
}

}  // namespace dynamics
