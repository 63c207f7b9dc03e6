#pragma once
// fk3parser: the token translator of the surface tool. A term in x, y and the parameters is
// turned, shunting-yard style, into a postfix form held in two arrays: token codes and numbers.
#include <string>
#include <vector>

namespace quorix {

// Token codes in table order; Number marks an entry of the number array.
enum Fk3Token : int {
    Fk3End, Fk3Open, Fk3Close, Fk3Comma, Fk3Plus, Fk3Minus, Fk3Times, Fk3Divide, Fk3Sinh, Fk3Cosh,
    Fk3Exp, Fk3Ln, Fk3Power, Fk3Sqrt, Fk3Negate, Fk3Sin, Fk3Cos, Fk3Arctan, Fk3Tan, Fk3Abs, Fk3Pi,
    Fk3R, Fk3Q, Fk3P, Fk3X, Fk3Y, Fk3U, Fk3V, Fk3K, Fk3T, Fk3Number,
};

struct Fk3Program {
    std::vector<int> codes;       // postfix order
    std::vector<double> numbers;  // one per Fk3Number code, in order
    bool fault = false;
    std::string text;             // the term as read, or "F§§§" after a fault (Windows-1252)
};

struct Fk3Values {
    double x = 0, y = 0, u = 0, v = 0, k = 0, t = 0, p = 0, q = 0, r = 0;
};

Fk3Program fk3parser(const std::string& term);
// Evaluates the postfix form; `ok` false on a stack fault or a value outside the domain.
double fk3evaluate(const Fk3Program& program, const Fk3Values& values, bool& ok);

}  // namespace quorix
