#pragma once
// Headless commands of the plotter: `plot`.
#include "kernel/headless.h"

#include <vector>

namespace graphs {

std::vector<quorix::HeadlessCommand> graphsCommands();

}  // namespace graphs
