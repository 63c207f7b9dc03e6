#pragma once
// Headless command of the numeric workbench: numerisch.
#include "kernel/headless.h"

#include <vector>

std::vector<quorix::HeadlessCommand> numerCommands();
