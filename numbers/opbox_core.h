#pragma once
// Core of the floating-point calculator TOpBox: one operation on decimal texts.
#include <string>

namespace numbers {

constexpr int OpBoxMinDigits = 10;
constexpr int OpBoxMaxDigits = 4000;
constexpr int OpBoxDefaultDigits = 500;

struct OpBoxResult {
    bool ok = false;
    std::string text;  // the result as the calculator shows it, or the message
};

// op: add sub mul div sqr sqrt inv pow ln lg exp pi root log. digits is put into 10..4000.
OpBoxResult opboxCompute(const std::string& op, const std::string& x, const std::string& y, int digits);
bool opboxKnownOp(const std::string& op);
bool opboxNeedsY(const std::string& op);

}  // namespace numbers
