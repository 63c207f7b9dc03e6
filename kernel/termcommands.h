#pragma once
// Headless commands of the term engines: eval, derive, ceval, upn.
#include "kernel/headless.h"

#include <vector>

namespace quorix {

// `derive --nice` uses the rewrite list that the shell has set with SetTermRewriteList.
std::vector<HeadlessCommand> termCommands();

}  // namespace quorix
