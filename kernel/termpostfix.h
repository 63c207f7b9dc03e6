#pragma once
// PostFix: the teaching view of a term in reverse Polish notation ("AOS-Term als UPN-Term") and
// its evaluation on a stack of its own ("Auswertung des UPN-Terms"). The grouping is that of the
// interpreter: equal priorities to the left (2^3^2 is 64) and a sign binds to its primary.
#include <string>
#include <vector>

namespace quorix {

struct PostFixResult {
    bool ok = false;
    std::vector<std::string> tokens;  // numbers, variables, operators, function names, NEG
    double value = 0;
    unsigned char error = 0;          // as TermError: 1 syntax, 2 domain, ...
    std::string message;              // German, empty when ok
    std::string text() const;         // tokens separated by blanks
};

// Converts `term` (upper case, as the interpreter reads it) and evaluates it at x.
PostFixResult PostFix(const std::string& term, double x);

// Evaluates a token list on a stack; the value, or an error code with a message.
PostFixResult EvaluatePostFix(const std::vector<std::string>& tokens, double x);

}  // namespace quorix
