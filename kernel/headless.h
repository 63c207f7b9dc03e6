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

}  // namespace quorix
