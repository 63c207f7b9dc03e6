#pragma once
// The three-rotor machine of the Enigma tool: three rotors I to III, no ring settings, one
// fixed reflector, a plugboard of six pairs. Positions run 1..26 (1 = "A"). No Qt.
#include <array>
#include <string>

namespace crypto {

struct EnigmaSettings {
    std::array<int, 3> rotors{0, 1, 2};     // rotor 0..2 (I..III) in the left, middle, right slot
    std::array<int, 3> positions{1, 1, 1};  // left, middle, right; 1..26
    std::array<std::array<int, 2>, 6> plugs{{{-1, -1}, {-1, -1}, {-1, -1}, {-1, -1}, {-1, -1}, {-1, -1}}};
};

constexpr const char* kEnigmaStartLine = "I-II-III; A-A-A; n/a; n/a; n/a; n/a; n/a; n/a";

// "I-II-III; A-A-A; AB; n/a; ..." (pairs as two letters, "n/a" for a pair that is off)
std::string settingsLine(const EnigmaSettings& s);
// Reads such a line; false (and `s` unchanged) if it is not one.
bool parseSettingsLine(const std::string& line, EnigmaSettings& s);
const char* rotorName(int rotor);  // "I", "II", "III"

class Enigma {
public:
    explicit Enigma(const EnigmaSettings& s);
    // Enciphers one letter 'A'..'Z' (the rotors step first); other signs come back unchanged.
    char press(char letter);
    // Positions 1..26 of the left, middle and right rotor.
    int left() const { return l_; }
    int middle() const { return m_; }
    int right() const { return r_; }
    std::string positionLetters() const;  // e.g. "ADU"

private:
    int plug(int i) const;
    std::array<const char*, 3> wiring_;  // left, middle, right
    int stepMiddle_, stepRight_;
    int l_, m_, r_;
    bool middleAboutToStep_ = false;
    std::array<std::array<int, 2>, 6> plugs_;
};

// The text preparation of the tool: letters upper-cased, umlauts and ß spelled out, digits and
// + - * / as words, everything else dropped; line ends stay. Windows-1252 in and out.
std::string prepareEnigmaText(const std::string& text);

// Enciphers a prepared text line by line; the machine keeps its positions.
std::string encipherEnigma(Enigma& machine, const std::string& prepared);

}  // namespace crypto
