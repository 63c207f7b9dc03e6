#pragma once
// Breaking the upper-case Vigenère code (method 1 of the cipher page): the key length from
// Kasiski's repeated trigrams and the index of coincidence, the key from the letter
// frequencies of German text. No Qt.
#include <string>
#include <vector>

namespace crypto {

struct VigenereAnalysis {
    bool found = false;
    int keyLength = 0;
    std::string key;          // upper-case, in the shift convention of method 1 (A shifts by 1)
    int maxKeyLength = 0;     // the longest key that the text allows
    std::string message;      // Windows-1252; set when the text is too short for 16 signs
    std::vector<double> coincidence;  // mean index of coincidence for lengths 1..maxKeyLength
    std::vector<int> kasiski;         // distances of repeated trigrams divisible by 1..maxKeyLength
};

constexpr int kMaxCodeWordLength = 16;
constexpr int kLettersPerKeySign = 20;  // fewer letters a column give no reliable statistics

VigenereAnalysis analyseVigenere(const std::string& codeText);

}  // namespace crypto
