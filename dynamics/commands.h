#pragma once
// Headless commands of the dynamics subsystem: life (Game of Life from the pattern library)
// and wator (the predator-prey world).
#include "kernel/headless.h"

#include <vector>

std::vector<quorix::HeadlessCommand> dynamicsCommands();
