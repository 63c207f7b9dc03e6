#pragma once
// The lexicon checker: every link alive, every page reachable, every page fits its box.
#include <functional>
#include <ostream>
#include <string>

namespace app {

class TForm1;

// Term check for F: links: true if the interpreter accepts the term (no TermError 1).
extern std::function<bool(const std::string& term)> lintTermPruefen;

// Writes "<page>\t<keyword>\t<problem>" lines; returns the number of problems.
int lexikonPruefen(TForm1& form, std::ostream& out);

}  // namespace app
