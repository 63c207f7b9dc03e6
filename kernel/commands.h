#pragma once
// Headless commands of the calculation kernel: realtostr, roots.
#include "kernel/headless.h"

#include <vector>

namespace kernel {

std::vector<quorix::HeadlessCommand> kernelCommands();

}  // namespace kernel
