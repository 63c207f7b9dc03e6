#pragma once
// The picture of the Enigma machine: rotor windows with their letters, the lamp board and the
// plugboard. One paint routine for the window, a file or the clipboard.
#include <array>

namespace platform {
class Canvas;
}

namespace crypto {

struct EnigmaPicture {
    std::array<int, 3> rotors{0, 1, 2};     // left, middle, right: 0..2 for I..III
    std::array<int, 3> positions{1, 1, 1};  // 1..26
    std::array<std::array<int, 2>, 6> plugs{{{-1, -1}, {-1, -1}, {-1, -1}, {-1, -1}, {-1, -1}, {-1, -1}}};
    int litLamp = -1;  // 0..25 lights that lamp (live mode), -1 none
    int keyPressed = -1;  // 0..25 the key last typed, -1 none
};

void drawEnigmaMachine(platform::Canvas& c, int width, int height, const EnigmaPicture& p);
// The key of the drawn keyboard under (x, y): 0..25, or -1.
int enigmaKeyAt(int width, int height, int x, int y);

}  // namespace crypto
