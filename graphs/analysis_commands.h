#pragma once
// Headless commands of the curve discussion and the integration tool:
// `diskussion`, `wertetabelle`, `tangente`, `integral`.
#include "kernel/headless.h"

#include <vector>

namespace graphs {

std::vector<quorix::HeadlessCommand> kurvenCommands();

}  // namespace graphs
