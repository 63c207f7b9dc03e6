#pragma once
// TMathParser: the expression class of the internal calculators. Unlike the term interpreter it
// reads the usual school notation: case does not matter, ^ groups to the right, -2^2 is -4,
// n! is the factorial, names hold values ("A=3*4", then "A^2"), and faults come with a text.
#include <map>
#include <string>
#include <vector>

namespace quorix {

enum class MathError { None, Syntax, UnknownName, DivisionByZero, Domain, Overflow };

// The German message of an error (maError).
std::string mathErrorText(MathError e);

class TMathParser {
public:
    TMathParser();
    // Parses and evaluates; an assignment "NAME=term" also stores the value. False on error.
    bool Evaluate(const std::string& expression, double& value);
    void SetVariable(const std::string& name, double value);
    bool GetVariable(const std::string& name, double& value) const;
    MathError Error() const { return error_; }
    std::string ErrorText() const { return mathErrorText(error_); }
    int ErrorPosition() const { return errorPos_; }  // 1-based character position

private:
    struct Cursor;
    double expression(Cursor& c);
    double term(Cursor& c);
    double unary(Cursor& c);
    double power(Cursor& c);
    double postfix(Cursor& c);
    double primary(Cursor& c);
    double function(const std::string& name, double a, Cursor& c);
    double fail(MathError e, const Cursor& c);

    std::map<std::string, double> vars_;
    MathError error_ = MathError::None;
    int errorPos_ = 0;
};

}  // namespace quorix
