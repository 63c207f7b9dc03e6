#include "crypto/enigma.h"

#include <cctype>
#include <sstream>
#include <vector>

namespace crypto {

namespace {

const char* const kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
const char* const kWiring[3] = {"EKMFLGDQVZNTOWYHXUSPAIBRCJ", "AJDKSIRUXBLHWTMCQGZNPYFVOE",
                                "BDFHJLCPRTXVZNYEIWGAKMUSQO"};
const int kStep[3] = {18, 6, 23};
const char* const kReflector = "YRUHQSLDPXNGOKMIEBFZCWVJAT";
const char* const kRotorNames[3] = {"I", "II", "III"};

// Positions and indices are 1..26; a computed 0 stands for 26.
int mod26(int v)
{
    v %= 26;
    if (v < 0)
        v += 26;
    return v == 0 ? 26 : v;
}
int into(int i, int p) { return mod26(i + p - 1); }
int out(int i, int p) { return mod26((27 - p) % 26 + i); }
int letterIndex(char c) { return c - 'A' + 1; }
int placeIn(const char* wiring, char c)
{
    for (int k = 0; k < 26; ++k)
        if (wiring[k] == c)
            return k + 1;
    return 1;
}

}  // namespace

const char* rotorName(int rotor) { return rotor >= 0 && rotor < 3 ? kRotorNames[rotor] : "?"; }

Enigma::Enigma(const EnigmaSettings& s)
    : wiring_{kWiring[s.rotors[0]], kWiring[s.rotors[1]], kWiring[s.rotors[2]]},
      stepMiddle_(kStep[s.rotors[1]]),
      stepRight_(kStep[s.rotors[2]]),
      l_(mod26(s.positions[0])),
      m_(mod26(s.positions[1])),
      r_(mod26(s.positions[2])),
      plugs_(s.plugs)
{
    middleAboutToStep_ = (m_ == stepMiddle_ - 1);
}

int Enigma::plug(int i) const
{
    // pair after pair on the same variable, as the board was wired
    for (const auto& p : plugs_) {
        if (p[0] < 0 || p[1] < 0)
            continue;
        if (i - 1 == p[0])
            i = p[1] + 1;
        else if (i - 1 == p[1])
            i = p[0] + 1;
    }
    return i;
}

char Enigma::press(char letter)
{
    if (letter < 'A' || letter > 'Z')
        return letter;
    int i = plug(letterIndex(letter));

    // The rotors step before the letter passes them.
    r_ = mod26(r_ + 1);
    if (r_ == stepRight_)
        m_ = (m_ + 1) % 26;
    // the double step of the middle rotor, a test of its own
    if (r_ == stepRight_ + 1 && m_ == stepMiddle_ - 1) {
        m_ = (m_ + 1) % 26;
        l_ = (l_ + 1) % 26;
        middleAboutToStep_ = false;
    }
    if (m_ == 0)
        m_ = 26;
    if (m_ == stepMiddle_ - 1)
        middleAboutToStep_ = true;
    if (m_ == stepMiddle_ && middleAboutToStep_) {
        l_ = (l_ + 1) % 26;
        middleAboutToStep_ = false;
    }
    if (l_ == 0)
        l_ = 26;

    const char* left = wiring_[0];
    const char* mid = wiring_[1];
    const char* right = wiring_[2];
    // forward through right, middle, left
    i = letterIndex(right[into(i, r_) - 1]);
    i = letterIndex(mid[mod26(out(i, r_) + m_ - 1) - 1]);
    i = letterIndex(left[mod26(out(i, m_) + l_ - 1) - 1]);
    // reflector
    i = letterIndex(kReflector[out(i, l_) - 1]);
    // backward through left, middle, right
    i = placeIn(left, kAlphabet[into(i, l_) - 1]);
    i = placeIn(mid, kAlphabet[mod26(out(i, l_) + m_ - 1) - 1]);
    i = placeIn(right, kAlphabet[mod26(out(i, m_) + r_ - 1) - 1]);
    i = out(i, r_);

    i = plug(i);
    return kAlphabet[i - 1];
}

std::string Enigma::positionLetters() const
{
    return {kAlphabet[l_ - 1], kAlphabet[m_ - 1], kAlphabet[r_ - 1]};
}

std::string settingsLine(const EnigmaSettings& s)
{
    std::string line = std::string(rotorName(s.rotors[0])) + "-" + rotorName(s.rotors[1]) + "-" +
                       rotorName(s.rotors[2]) + "; ";
    for (int k = 0; k < 3; ++k) {
        line += kAlphabet[mod26(s.positions[k]) - 1];
        line += k < 2 ? "-" : "";
    }
    for (const auto& p : s.plugs) {
        line += "; ";
        if (p[0] < 0 || p[1] < 0)
            line += "n/a";
        else
            line += std::string{kAlphabet[p[0]], kAlphabet[p[1]]};
    }
    return line;
}

namespace {

std::string trim(const std::string& s)
{
    const auto a = s.find_first_not_of(" \t\r\n");
    if (a == std::string::npos)
        return {};
    const auto b = s.find_last_not_of(" \t\r\n");
    return s.substr(a, b - a + 1);
}

std::vector<std::string> split(const std::string& s, char sep)
{
    std::vector<std::string> parts;
    std::string cur;
    for (char c : s) {
        if (c == sep) {
            parts.push_back(trim(cur));
            cur.clear();
        } else {
            cur += c;
        }
    }
    parts.push_back(trim(cur));
    return parts;
}

}  // namespace

bool parseSettingsLine(const std::string& line, EnigmaSettings& result)
{
    const auto parts = split(line, ';');
    if (parts.size() != 8)
        return false;
    EnigmaSettings s;
    const auto rotors = split(parts[0], '-');
    const auto pos = split(parts[1], '-');
    if (rotors.size() != 3 || pos.size() != 3)
        return false;
    for (int k = 0; k < 3; ++k) {
        int r = -1;
        for (int n = 0; n < 3; ++n)
            if (rotors[k] == kRotorNames[n])
                r = n;
        if (r < 0 || pos[k].size() != 1)
            return false;
        const char c = static_cast<char>(std::toupper(static_cast<unsigned char>(pos[k][0])));
        if (c < 'A' || c > 'Z')
            return false;
        s.rotors[k] = r;
        s.positions[k] = c - 'A' + 1;
    }
    if (s.rotors[0] == s.rotors[1] || s.rotors[1] == s.rotors[2] || s.rotors[0] == s.rotors[2])
        return false;
    for (int k = 0; k < 6; ++k) {
        std::string p;
        for (char c : parts[2 + k])
            if (std::isalpha(static_cast<unsigned char>(c)) || c == '/')
                p += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        if (p == "N/A")
            continue;
        if (p.size() != 2 || p[0] < 'A' || p[0] > 'Z' || p[1] < 'A' || p[1] > 'Z')
            return false;
        s.plugs[k] = {p[0] - 'A', p[1] - 'A'};
    }
    result = s;
    return true;
}

std::string prepareEnigmaText(const std::string& text)
{
    static const char* const kDigits[10] = {"NULL", "EINS", "ZWEI", "DREI", "VIER",
                                            "FUENF", "SECHS", "SIEBEN", "ACHT", "NEUN"};
    std::string out;
    out.reserve(text.size());
    for (unsigned char c : text) {
        if (c >= 'a' && c <= 'z')
            out += static_cast<char>(c - 32);
        else if (c >= 'A' && c <= 'Z')
            out += static_cast<char>(c);
        else if (c == 0xC4 || c == 0xE4)
            out += "AE";
        else if (c == 0xD6 || c == 0xF6)
            out += "OE";
        else if (c == 0xDC || c == 0xFC)
            out += "UE";
        else if (c == 0xDF)
            out += "SS";
        else if (c >= '0' && c <= '9')
            out += kDigits[c - '0'];
        else if (c == '+')
            out += "PLUS";
        else if (c == '-')
            out += "MINUS";
        else if (c == '*')
            out += "MAL";
        else if (c == '/')
            out += "DURCH";
        else if (c == '\n')
            out += '\n';
    }
    return out;
}

std::string encipherEnigma(Enigma& machine, const std::string& prepared)
{
    std::string out;
    out.reserve(prepared.size());
    for (char c : prepared)
        out += (c >= 'A' && c <= 'Z') ? machine.press(c) : c;
    return out;
}

}  // namespace crypto
