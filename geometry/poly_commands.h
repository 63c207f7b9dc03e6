#pragma once
// Headless commands of the polyhedra tool: polyeder.
#include "kernel/headless.h"

#include <vector>

std::vector<quorix::HeadlessCommand> polyCommands();
