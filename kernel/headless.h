#pragma once
// A headless command: `quorix <name> args...`. Output is UTF-8; exit 0 ok, 1 nothing found, 2 usage.
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace quorix {

using Args = std::vector<std::string>;

struct HeadlessCommand {
    std::string name;
    std::string usage;  // one line for `quorix help`, German
    std::function<int(const Args& args, std::ostream& out, std::ostream& err)> run;
};

// Small helpers for argument parsing shared by all command sets.
bool takeOption(Args& args, const std::string& name, std::string& value);
bool takeFlag(Args& args, const std::string& name);
// A number argument: decimal point or comma, finite, nothing after it.
bool argNumber(const std::string& text, double& value);
// A whole number argument within lo..hi.
bool argInt(const std::string& text, int& value, int lo, int hi);

}  // namespace quorix
