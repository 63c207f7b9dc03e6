#include "kernel/headless.h"

#include <algorithm>

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

}  // namespace quorix
