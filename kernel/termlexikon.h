#pragma once
// The core of the window "Berechnungen im Lexikon" (TFo3): the entries of the lists "aktivb1"
// and "aktivb2" and the computation behind its button D2.
#include <array>
#include <string>
#include <vector>

namespace quorix {

struct LexikonCalculation {
    std::string caption;              // the name of the entry, or "Funktionswert"
    std::vector<std::string> labels;  // the labels of the inputs E1..E4 (1 to 4 of them)
    std::string formula;              // a term, "#"+term, or "A1", "A2", "A3"
};

// "aktivb1" for names whose first letter, capitalised, is A to M; otherwise "aktivb2".
std::string lexikonListName(const std::string& lexikonwert);
// The window height for k inputs: 166, 200, 230, 264.
int lexikonWindowHeight(int inputs);
// Finds the entry "*"+name in a list; a value beginning with "#" is the function-value
// calculator and needs no list. False if the entry is missing or malformed.
bool lexikonCalculation(const std::string& lexikonwert, const std::vector<std::string>& list,
                        LexikonCalculation& out);

// D2: the inputs are evaluated as terms (E1 as x, E2..E4 as P, Q, R), then the formula. The
// result text has 5 decimals (8 for magnitudes up to 0.01), or is "Fehler".
std::string lexikonD2(const std::string& formula, const std::array<std::string, 4>& inputs,
                      bool decimalComma = false);

}  // namespace quorix
