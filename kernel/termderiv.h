#pragma once
// The derivative engine: a real tree, used only to produce the text of a first derivative.
#include <string>
#include <vector>

namespace quorix {

// The text of the derivative with respect to X; empty if the term is not understood.
std::string DerivativeTerm(const std::string& term);
// The textual clean-up that DerivativeTerm applies to the printed tree.
void SimplifyTerm(std::string& text);
// DerivativeTerm, then the rewrite pairs (pattern line, replacement line) applied twice to the
// text wrapped in "<" and ">". The list may be empty.
std::string DerivativeTermNice(const std::string& term, const std::vector<std::string>& rewrites);
// The same with the list the shell has set from the text resource "wverein".
std::string DerivativeTermNice(const std::string& term);
void SetTermRewriteList(std::vector<std::string> lines);

}  // namespace quorix
