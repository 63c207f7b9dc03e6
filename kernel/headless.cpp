#include "kernel/headless.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace quorix {

bool takeOption(Args& args, const std::string& name, std::string& value)
{
    auto it = std::find(args.begin(), args.end(), name);
    if (it == args.end() || it + 1 == args.end())
        return false;
    value = *(it + 1);
    args.erase(it, it + 2);
    return true;
}

bool takeFlag(Args& args, const std::string& name)
{
    auto it = std::find(args.begin(), args.end(), name);
    if (it == args.end())
        return false;
    args.erase(it);
    return true;
}

bool argNumber(const std::string& text, double& value)
{
    if (text.empty())
        return false;
    std::string t = text;
    std::replace(t.begin(), t.end(), ',', '.');
    char* end = nullptr;
    value = std::strtod(t.c_str(), &end);
    return end && *end == '\0' && std::isfinite(value);
}

bool argInt(const std::string& text, int& value, int lo, int hi)
{
    double d;
    if (!argNumber(text, d) || d != std::floor(d) || d < lo || d > hi)
        return false;
    value = static_cast<int>(d);
    return true;
}

}  // namespace quorix
