#pragma once
// The solvers of the single pages, called by berechne().
#include "algebra/algebra.h"

namespace algebra {

Ergebnis gaussSeite(const std::vector<std::string>& f);
Ergebnis matrixSeite(const std::vector<std::string>& f);
Ergebnis standardSeite(const std::vector<std::string>& f);
Ergebnis dglSeite(const std::vector<std::string>& f);
Ergebnis bruchSeite(const std::vector<std::string>& f);
Ergebnis optimierungSeite(const std::vector<std::string>& f);
Ergebnis diophantSeite(const std::vector<std::string>& f);
Ergebnis zinsenSeite(const std::vector<std::string>& f);
Ergebnis mengenSeite(const std::vector<std::string>& f);
Ergebnis ungleichungLinearSeite(const std::vector<std::string>& f);
Ergebnis cramerSeite(const std::vector<std::string>& f);
Ergebnis gleichungSeite(const std::vector<std::string>& f);
Ergebnis ungleichungSeite(const std::vector<std::string>& f);
Ergebnis polynomSeite(const std::vector<std::string>& f);
Ergebnis nichtlinearSeite(const std::vector<std::string>& f, Abbruch* abbruch);
Ergebnis logikSeite(const std::vector<std::string>& f);
Ergebnis operationstafelSeite(const std::vector<std::string>& f);
Ergebnis diederSeite(const std::vector<std::string>& f);
Ergebnis vektorSeite(const std::vector<std::string>& f);
Ergebnis linearkombinationSeite(const std::vector<std::string>& f);

// A failed reading: one line that says what is wrong.
Ergebnis eingabefehler(const std::string& text);
// Splits a row such as "2 1 -1 8" or "2;1;-1;8" at blanks and semicolons.
std::vector<std::string> teile(const std::string& zeile);

}  // namespace algebra
