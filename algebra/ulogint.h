#pragma once
// Propositional formulas in the variables A..H: parsing, evaluation, truth table and DNF.
#include <memory>
#include <string>
#include <vector>

namespace algebra {

// Operators, tightest first: - NOT; + & AND, \ NAND; * | OR, # XOR, / NOR; > implication
// (right-associative); = equivalence. 1 and 0 are the constants.
class Aussage {
public:
    // False with a German message in `fehler` when the text is not a formula.
    bool lies(const std::string& text, std::string& fehler);
    // Bit k of `belegung` is the value of the variable 'A' + k.
    bool wert(unsigned belegung) const;
    // The variables that occur, as a bit set over A..H.
    unsigned variablen() const { return variablen_; }

    struct Knoten;  // the parse tree, defined in the source

private:
    std::shared_ptr<Knoten> wurzel_;
    unsigned variablen_ = 0;
};

// The lines of the logic page: header, one row per assignment, the DNF and the remark.
std::vector<std::string> wahrheitstafel(const Aussage& a);
// The disjunctive normal form in the input notation ("&", "|", "-"), or "0" / "1".
std::string disjunktiveNormalform(const Aussage& a);

}  // namespace algebra
